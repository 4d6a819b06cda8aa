#pragma once

namespace Hypodermic
{
class ContainerBuilder;
}

/// The composition names classes of every layer, yet no layer may include an outer one: each layer defines its own
/// part of the groups in a file of its own, and `FillBuilder` calls them in the order required. A layer without
/// components in a group has no function there.
namespace Korvex::Converter::Subtitles
{

namespace UseCases
{
void RegisterGroupOne(Hypodermic::ContainerBuilder& builder);
void RegisterGroupTwo(Hypodermic::ContainerBuilder& builder);
void RegisterGroupThree(Hypodermic::ContainerBuilder& builder);
} // namespace UseCases

namespace Adapters
{
void RegisterGroupOne(Hypodermic::ContainerBuilder& builder);
void RegisterGroupTwo(Hypodermic::ContainerBuilder& builder);
void RegisterGroupThree(Hypodermic::ContainerBuilder& builder);
} // namespace Adapters

namespace Details
{
void RegisterGroupOne(Hypodermic::ContainerBuilder& builder);
void RegisterGroupTwo(Hypodermic::ContainerBuilder& builder);
/// Group two goes on with this and ends with one of the clients.
void RegisterNetwork(Hypodermic::ContainerBuilder& builder);
void RegisterLegacyClient(Hypodermic::ContainerBuilder& builder);
void RegisterVersion1Client(Hypodermic::ContainerBuilder& builder);
void RegisterGroupThree(Hypodermic::ContainerBuilder& builder);
} // namespace Details

} // namespace Korvex::Converter::Subtitles
