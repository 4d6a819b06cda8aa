#pragma once

#include "Core/Export.h"
#include "Core/Result.h"
#include "Core/ioPath.h"
#include "Proc/SubtitleContent.h"

#include <string>
#include <string_view>
#include <vector>

namespace Korvex::Proc::Text
{

/// What is known about a text besides its bytes.
struct DetectionHints
{
    std::vector<std::string> languages; ///< short names of languages that the text may be in ("uk", "ukr")
};

/// Languages that the last parts of a file's name may mean ("Movie.uk.forced.srt").
[[nodiscard]] KORVEX_PLATFORM_API DetectionHints HintsFromName(ioPath const& path);

struct DecodedText
{
    std::string utf8; ///< valid UTF-8 without a byte-order mark; what did not decode shows as U+FFFD
    TextDecodeReport report;
};

/// Converts bytes to UTF-8. `encoding` is one of the core's names or any that the system's converter knows; empty means
/// detection: byte-order mark (UTF-8, UTF-16, UTF-32), UTF-16 or UTF-32 without one, ISO-2022-JP, valid or merely
/// damaged UTF-8, then how the text reads in each candidate (letters of its languages, case, scripts), helped by the
/// hints, by a second detector and by the locale; at last the usual code page of the hinted language or of the locale,
/// else CP1252. A file with some lines in UTF-8 and the others not is decoded line by line. A stated encoding yields to
/// a byte-order mark that contradicts it.
///
/// Names mean what files that carry them hold. "BIG-5" is code page 950 with the Hong Kong characters in its gaps,
/// "CP936" falls back on GB18030. Bytes 80 to 9F of an ISO-8859 page, control characters there, are read as in the
/// Windows page of the same letters.
///
/// Each run of bytes that are no character shows as one U+FFFD and is counted, and so do control characters (all below
/// U+0020 but tab and line ends, U+007F to U+009F): they are no text. A zero byte inside a UTF-8 sequence is taken out
/// of it and shown behind it. End-of-file signs and zeros behind the text go; the zeros are counted.
///
/// Fails with InvalidSetting for an encoding that does not exist; bytes never make it fail. Any thread.
[[nodiscard]] KORVEX_PLATFORM_API Core::Result<DecodedText>
DecodeText(std::string_view bytes, std::string const& encoding, DetectionHints const& hints = {});

/// Whether users find this encoding in lists.
[[nodiscard]] KORVEX_PLATFORM_API bool IsOfferedEncoding(std::string_view name);

/// One encoding that bytes may be in.
struct RankedEncoding
{
    std::string encoding;  ///< the core's name
    double confidence = 0; ///< 0..1
};

struct EncodingRanking
{
    TextDecodeReport detected; ///< what DecodeText finds without a stated encoding; nothing is counted
    /// Those of the others that users can choose and that the bytes may really be in, the best first; some may give the
    /// same text. Where detection found nothing that reads well, all that users can choose.
    std::vector<RankedEncoding> others;
};

/// What detection thinks of the encodings. None is named besides the detected one where a mark or the form of the bytes
/// settles it. Looks at a sample of long texts. Any thread.
[[nodiscard]] KORVEX_PLATFORM_API EncodingRanking RankEncodings(std::string_view bytes,
                                                                DetectionHints const& hints = {});

/// `text` with every byte that is not valid UTF-8 replaced by U+FFFD; `replacedBytes` counts them.
[[nodiscard]] KORVEX_PLATFORM_API std::string RepairUtf8(std::string_view text, std::size_t& replacedBytes);

} // namespace Korvex::Proc::Text
