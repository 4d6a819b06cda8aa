#include "Desktop/Films/OutputSettings.h"

#include "Common/OutputFormats.h"

#include "Core/FileSystem.h"
#include "Transcoder/Preset.h"

#include <QString>

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

/// What file systems allow, in bytes.
constexpr int LONGEST_NAME = 255;

/// The film's name with this ending, cut where both would be too long for one name.
std::string MakeName(ioPath const& film, std::string const& ending)
{
    QString stem = QString::fromStdString(film.Stem());
    int const most = LONGEST_NAME - static_cast<int>(ending.size());
    while (stem.toUtf8().size() > most)
        stem.chop(stem.size() > 1 && stem.at(stem.size() - 1).isLowSurrogate() ? 2 : 1);
    return stem.toStdString() + ending;
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
    ioPath target = folder / MakeName(film, extension);
    for (int number = 2; Core::PathExists(target); ++number)
        target = folder / MakeName(film, " (" + std::to_string(number) + ")" + extension);
    return target;
}

} // namespace Korvex::Desktop
