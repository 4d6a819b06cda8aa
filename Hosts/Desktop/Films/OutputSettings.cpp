#include "Desktop/Films/OutputSettings.h"

#include "Common/OutputFormats.h"

#include "Core/FileSystem.h"
#include "Transcoder/Preset.h"

namespace Korvex::Desktop
{

using Converter::Transcoder::Entities::Preset;

namespace
{

int RateFactor(Quality quality)
{
    switch (quality)
    {
    case Quality::AsSource:
    case Quality::High:
        return 18;
    case Quality::Medium:
        return 22;
    case Quality::Small:
        return 27;
    }
    return 18;
}

} // namespace

Preset MakePreset(OutputSettings const& settings)
{
    Preset preset;
    preset.formatId = settings.formatId;
    preset.crf = RateFactor(settings.quality);
    if (settings.quality != Quality::AsSource)
        preset.videoCodecId = "h264";
    return preset;
}

ioPath MakeOutputPath(ioPath const& film, OutputSettings const& settings)
{
    Hosts::OutputFormat const* format = Hosts::FindOutputFormat(settings.formatId);
    std::string const extension = "." + (format != nullptr ? format->extensions.front() : std::string("mkv"));
    ioPath const folder = settings.folder ? *settings.folder : film.Parent();
    ioPath target = folder / (film.Stem() + extension);
    for (int number = 2; Core::PathExists(target); ++number)
        target = folder / (film.Stem() + " (" + std::to_string(number) + ")" + extension);
    return target;
}

} // namespace Korvex::Desktop
