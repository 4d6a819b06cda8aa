// The only file of this layer that includes the container, which takes seconds to compile.

#include "Subtitles/Details/ExternalSubtitlesDialog.h"

#include "Subtitles/UseCases/RegistrationGroups.h"

#include "Hypodermic/ContainerBuilder.h"

namespace Korvex::Converter::Subtitles::Details
{

void RegisterGroupOne(Hypodermic::ContainerBuilder& builder)
{
    builder.registerType<ExternalSubtitlesDialog>().as<Adapters::IExternalSubtitlesDialog>();
}

void RegisterGroupThree(Hypodermic::ContainerBuilder& /*builder*/) {}

} // namespace Korvex::Converter::Subtitles::Details
