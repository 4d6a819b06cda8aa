#pragma once

#include "Core/Result.h"
#include "Proc/SubtitleContent.h"

#include <optional>
#include <string>
#include <string_view>

namespace Korvex::Proc
{

/// A text subtitle file, read.
struct ExternalText
{
    TextDocument document;
    std::string formatId;    ///< as MediaInfo::formatId
    std::string foreignUtf8; ///< the whole text, for formats that the core has no reader of its own for; else empty
};

/// Reads a file whose content is text: by the core's own readers, else by a demuxer that gets the text as UTF-8. Empty
/// when the file's bytes are no text, so that it may be a media file. Fails with FormatUnknown for text that is no
/// subtitles.
[[nodiscard]] Core::Result<std::optional<ExternalText>>
LoadExternalText(ioPath const& path, std::string const& encoding, std::string const& samiClass = {});

/// The format, as MediaInfo::formatId, of a file that holds text of this codec.
[[nodiscard]] std::string FindTextFormatId(std::string const& codecId);

/// The codec of a long file in one of the formats that the core has readers for, told by its beginning alone. Empty
/// when that does not tell, and for short files, which are as quickly read whole.
[[nodiscard]] std::string FindCodecByBeginning(ioPath const& path, std::string const& encoding);

/// From the first bytes of a file and its extension: is it a text, in whatever encoding?
[[nodiscard]] bool LooksLikeText(std::string_view head, std::string const& extension);

} // namespace Korvex::Proc
