#pragma once

#include "Core/Result.h"
#include "Proc/SubtitleContent.h"

#include <cstddef>
#include <string>
#include <vector>

/// Files with one subtitle stream, written by FFmpeg's muxers; free of the library's types. They write straight into
/// the file named, so callers name a temporary one and commit it; they give the number of events written.
namespace Korvex::Proc
{
struct SubtitleSource;
} // namespace Korvex::Proc

namespace Korvex::Proc::FFmpeg
{

enum class SubtitleContainer
{
    Matroska,
    BluRay, ///< ".sup": PGS segments with 90 kHz stamps
};

/// Copies a stream's packets as they are (the first subtitle stream without an index), times counted from the start of
/// the media and moved by the source's shift; events that would end before zero are left out. Language, title, marks
/// and, in Matroska, attached fonts go along. `codecId` becomes the stream's codec. Fails with ContainerCannotCarry or
/// Cancelled.
[[nodiscard]] Core::Result<std::size_t> CopySubtitleStream(SubtitleSource const& source, SubtitleContainer container,
                                                           ioPath const& file, std::string& codecId);

/// A Matroska file with the document's events: ASS for a document with a look of its own, else SubRip.
[[nodiscard]] Core::Result<std::size_t> WriteMatroskaText(TextDocument const& document, ioPath const& file);

/// An MP4 file with one mov_text track. The format shows one text at a time: events that overlap become one after the
/// other with all their lines. Of the markup bold, italic, underline and colour stay.
[[nodiscard]] Core::Result<std::size_t> WriteMovText(TextDocument const& document, ioPath const& file);

} // namespace Korvex::Proc::FFmpeg
