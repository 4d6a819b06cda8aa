#pragma once

#include "Core/Export.h"
#include "Core/ioPath.h"

#include <chrono>
#include <cstddef>
#include <string>

namespace Korvex::Proc
{

/// What is in an output but not as one would expect.
enum class WarningCode
{
    PictureEncodedAnew,     ///< `container` cannot carry the picture of `file` as it is
    AttachmentsLeftOut,     ///< `container` cannot carry the files attached to `file`
    SecondPictureLeftOut,   ///< `container` cannot carry `track` of `file`, which is `codec`
    CoverPictureLeftOut,    ///< the same
    FurtherSoundLeftOut,    ///< the same
    UnreadableSoundLeftOut, ///< nothing in `track` of `file`, which is `codec`, can be read
    SubtitlesWithoutFile,   ///< the added track `title`, which may have no title, has no file
    BytesNotDecoded,        ///< `count` bytes of `file` are none in `encoding`
    CuesWithoutTimes,       ///< `count` cues of `file` were left out
    CuesWithoutDuration,    ///< `count` cues of `file` were left out
    PicturesDamaged,        ///< some of `file`
    EndsEarly,              ///< `file` breaks off after `done` of `total`
};

/// A warning, typed. Fields that do not apply stay empty.
struct Warning
{
    WarningCode code = WarningCode::PictureEncodedAnew;
    ioPath file;           ///< the file that the warning is about
    std::string track;     ///< the number of the stream
    std::string title;     ///< of a track
    std::string codec;     ///< display name of the codec
    std::string container; ///< display name of the output's container
    std::string encoding;  ///< the core's name
    std::size_t count = 0;
    std::chrono::seconds done{0};
    std::chrono::seconds total{0};
};

/// One sentence for the user: it names the file. English, UTF-8, ends in a full stop.
[[nodiscard]] KORVEX_PLATFORM_API std::string ToSentence(Warning const& warning);

} // namespace Korvex::Proc
