#pragma once

#include <memory>

namespace Hypodermic
{
class Container;
}

namespace Korvex::Converter::Subtitles::UseCases
{

/// Resolves the module's factories and hands them the container.
void GiveContainerToFactories(std::shared_ptr<Hypodermic::Container> const& container);

} // namespace Korvex::Converter::Subtitles::UseCases
