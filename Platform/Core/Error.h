#pragma once

#include "Core/Export.h"
#include "Core/ioPath.h"

#include <string>

namespace Korvex::Core
{

/// Why an operation of the core failed. The code decides what a caller does; `ToSentence` puts it into words.
enum class ErrorCode
{
    FileNotFound,
    FileUnreadable,
    FileEmpty,
    FormatUnknown, ///< the bytes are no media or subtitle format that is known here
    FileDamaged,   ///< the format is known but nothing useful can be read
    NoSuchTrack,
    TrackNotSubtitle,
    CodecNotSupported, ///< no decoder or encoder for `codec`
    ContainerUnknown,
    ContainerCannotCarry, ///< `codec` of `track` does not fit into `container`; `detail` says what would
    NothingToConvert,     ///< the input has neither video nor audio
    NoUsableFont,
    OutputExists,
    OutputIsInput,
    OutputFolderMissing,
    OutputNotWritable,
    DiskFull,
    InvalidSetting,
    Cancelled,
    Internal, ///< a library call failed; `detail` names it
};

/// A failure, typed. Fields that do not apply stay empty.
struct Error
{
    ErrorCode code = ErrorCode::Internal;
    ioPath file;           ///< the file that the failure is about
    std::string track;     ///< the track as `korvex tracks` names it
    std::string codec;     ///< display name of the codec
    std::string container; ///< display name of the container
    std::string detail;    ///< what else the user needs, a clause without a full stop
};

/// One sentence for the user: it names the file and says what to do. English, UTF-8, ends in a full stop.
[[nodiscard]] KORVEX_PLATFORM_API std::string ToSentence(Error const& error);

} // namespace Korvex::Core
