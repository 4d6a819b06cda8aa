#pragma once

#include "Desktop/Films/Film.h"

#include "Subtitles/Entities/SubtitleCollection.h"

#include "Proc/MediaInfo.h"
#include "Transcoder/Preset.h"

namespace Korvex::Desktop
{

/// Everything that one conversion needs, copied from a film when the user started it: later edits do not reach it.
struct ConversionJob
{
    FilmId film = 0;
    Proc::MediaInfo media;
    Converter::Subtitles::Entities::SubtitleCollection collection; ///< its implementation slot is empty
    Converter::Transcoder::Entities::Preset preset;
    ioPath output;
};

} // namespace Korvex::Desktop
