#pragma once

#include "Proc/FFmpeg/InputFile.h"

#include "Proc/MediaInfo.h"

namespace Korvex::Proc::FFmpeg
{

/// What an opened file says of itself; texts are valid UTF-8.
[[nodiscard]] MediaInfo DescribeFile(InputFile const& file);
[[nodiscard]] StreamInfo DescribeStream(InputFile const& file, std::uint32_t index);

/// How long picture and sound last: subtitles that go on after them count only where nothing is known of those. Zero
/// when the file says nothing.
[[nodiscard]] std::chrono::microseconds PlayingTime(AVFormatContext const& file);

/// FFmpeg's name of a codec; empty for none.
[[nodiscard]] std::string CodecName(AVCodecID codec);
[[nodiscard]] bool IsTextSubtitle(AVCodecID codec);
[[nodiscard]] bool IsBitmapSubtitle(AVCodecID codec);

/// True for an attachment that is a font, by its name or its type.
[[nodiscard]] bool IsFont(AVStream const& stream);
/// By the name of its file; other fonts are TrueType or a collection of them.
[[nodiscard]] bool IsOpenType(std::string const& fontName);
/// As Matroska's players expect it.
[[nodiscard]] char const* FontMimeType(std::string const& fontName);

/// A value of a stream's or file's metadata as valid UTF-8; empty when it is not there.
[[nodiscard]] std::string MetadataText(AVDictionary const* metadata, char const* key);

} // namespace Korvex::Proc::FFmpeg
