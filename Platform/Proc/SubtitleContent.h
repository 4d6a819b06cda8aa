#pragma once

#include "Core/Export.h"
#include "Core/ioPath.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

/// Decoded subtitles as the readers give them and the drawer, the muxer and the exporters take them. Plain values.
namespace Korvex::Proc
{

/// What the text of a cue is written in.
enum class TextMarkup
{
    Ass,    ///< the text field of an ASS event: override blocks in braces, "\N" breaks the line
    SubRip, ///< HTML-like tags b, i, u, s, font; lines separated by '\n'
    Sami,   ///< HTML of a SAMI body; lines separated by <br>
    Plain,  ///< no markup at all; lines separated by '\n'
};

/// One text event, shown from `start` up to but not including `end`. Times count from the start of the media file.
struct TextCue
{
    std::chrono::microseconds start{0};
    std::chrono::microseconds end{0};
    std::string text; ///< UTF-8, in the document's markup

    // Fields of an ASS event. Formats without them leave the defaults.
    int layer = 0;
    std::string style = "Default";
    std::string name;
    int marginLeft = 0;
    int marginRight = 0;
    int marginVertical = 0;
    std::string effect;
};

/// A font that travels with the subtitles (an attachment of the media file or the [Fonts] section of a script).
struct FontAttachment
{
    std::string name; ///< file name as stored
    std::shared_ptr<std::vector<std::uint8_t> const> data;
};

/// How the bytes of a text became UTF-8.
struct TextDecodeReport
{
    enum class Source
    {
        Stated, ///< the caller named the encoding
        ByteOrderMark,
        ValidUtf8,
        Detector, ///< statistics over the text
        Fallback, ///< nothing else gave an answer
    };

    std::string encoding; ///< the core's name of the encoding used ("CP1251", "UTF-16LE")
    Source source = Source::Stated;
    double confidence = 1.0;       ///< 0..1, how sure the choice of `encoding` is
    std::size_t replacedBytes = 0; ///< bytes that did not decode; each run shows as U+FFFD in the text
};

/// All text events of one track.
struct TextDocument
{
    std::string codecId; ///< a Conf::IFormatCodecSubtitle identifier, or FFmpeg's name
    TextMarkup markup = TextMarkup::Ass;
    /// ASS only: [Script Info] and [V4+ Styles] as a script of version 4+, without events. Empty for formats that have
    /// no look of their own; those are drawn with the look that the user set.
    std::string scriptHeader;
    std::vector<TextCue> cues; ///< in the order of the source, which decides who lies on top
    std::vector<FontAttachment> fonts;
    TextDecodeReport decoding;
    std::size_t skippedCues = 0;                 ///< cues of the source that made no sense (no usable times)
    std::string samiClass;                       ///< SAMI only: the class that was read, as the file writes it
    std::vector<std::string> omittedSamiClasses; ///< classes with text that was left out because another one was read

    [[nodiscard]] bool HasOwnLook() const { return !scriptHeader.empty(); }
};

class PackedPicture;

/// One rectangle of a bitmap subtitle. `rgba` or `packed` holds its picture.
struct KORVEX_PLATFORM_API BitmapRect
{
    int x = 0; ///< on the cue's canvas
    int y = 0;
    int width = 0;
    int height = 0;
    std::shared_ptr<std::vector<std::uint8_t> const> rgba{}; ///< as `Pixels` gives it
    std::shared_ptr<PackedPicture const> packed{};           ///< what the readers make

    /// Straight (not premultiplied) RGBA, 4 bytes a pixel, rows without padding. Null when there is no picture. Unpacks
    /// at every call: keep the result while it is shown.
    [[nodiscard]] std::shared_ptr<std::vector<std::uint8_t> const> Pixels() const;
};

/// One bitmap event. The canvas is the picture that the track was made for; it is scaled onto the real one.
struct BitmapCue
{
    std::chrono::microseconds start{0};
    std::chrono::microseconds end{0};
    int canvasWidth = 0;
    int canvasHeight = 0;
    bool isForced = false;
    std::vector<BitmapRect> rects;
};

/// All events of one bitmap track, ordered by start; each ends no later than the next begins.
struct BitmapDocument
{
    std::string codecId;
    std::vector<BitmapCue> cues;
};

/// When one event of a track is shown, counted from the start of the media file.
struct CueSpan
{
    std::chrono::microseconds start{0};
    std::chrono::microseconds end{0}; ///< the first moment at which it is gone
};

using SubtitleDocument = std::variant<TextDocument, BitmapDocument>;

} // namespace Korvex::Proc
