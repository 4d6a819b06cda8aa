#pragma once

#include "Subtitles/Entities/Export.h"

#include <memory>

namespace Hypodermic
{
class Container;
class ContainerBuilder;
} // namespace Hypodermic

namespace Korvex::App
{
class ICustomizationManager;
}

namespace Korvex::Converter::Subtitles
{

/// Registers every component of the module. Before the container is built the host registers there, too, what the
/// module asks of it: its `Transcoder::Entities::ITranscoderInteractor` and its `Gui::GUIContainer`.
/// @param customization may be null: every feature then has its default.
KVSUBTITLES_API void FillBuilder(Hypodermic::ContainerBuilder& builder,
                                 std::shared_ptr<App::ICustomizationManager> const& customization);

/// Once, with the built container, before anything else of the module is used. The module does not keep the container
/// alive: the host holds it for as long as it makes new objects from it.
KVSUBTITLES_API void InitFactories(std::shared_ptr<Hypodermic::Container> const& container);

} // namespace Korvex::Converter::Subtitles
