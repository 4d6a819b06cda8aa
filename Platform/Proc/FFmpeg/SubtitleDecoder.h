#pragma once

#include "Proc/FFmpeg/Handles.h"

#include "Core/Result.h"
#include "Proc/Streams.h"

#include <optional>
#include <string>
#include <vector>

namespace Korvex::Proc::FFmpeg
{

/// What the decoder needs to know of a stream.
struct SubtitleStreamTraits
{
    AVCodecParameters const* parameters = nullptr;
    int fallbackCanvasWidth = 0; ///< for bitmaps whose codec does not state its canvas: the video's size
    int fallbackCanvasHeight = 0;
    ioPath path; ///< only named in errors
};

/// One event as it left the decoder. Bitmap formats tell ends by events without rectangles, so an end may be missing.
struct DecodedEvent
{
    std::chrono::microseconds start{0};
    std::optional<std::chrono::microseconds> end;
    std::vector<TextCue> texts; ///< ASS markup; times as above, an unknown end equals the start
    std::optional<BitmapCue> bitmap;

    [[nodiscard]] bool IsClear() const { return texts.empty() && (!bitmap || bitmap->rects.empty()); }
};

/// FFmpeg's decoder for one subtitle stream. One thread at a time.
class SubtitleDecoder
{
public:
    /// Fails with CodecNotSupported. `options` are decoder options "key=value:key=value".
    [[nodiscard]] static Core::Result<SubtitleDecoder> Make(SubtitleStreamTraits const& traits,
                                                            std::string const& options = {});

    /// Decodes one packet; empty when it ends no event or makes no sense. Text in the packet is made valid UTF-8 first.
    [[nodiscard]] std::optional<DecodedEvent> Decode(RawPacket const& packet);

    /// Bytes of text that were no UTF-8 so far.
    [[nodiscard]] std::size_t ReplacedBytes() const { return m_replacedBytes; }

private:
    SubtitleDecoder(CodecContext decoder, SubtitleStreamTraits const& traits);

    BitmapCue MakeBitmap(AVSubtitle const& subtitle) const;

    CodecContext m_decoder;
    int m_fallbackCanvasWidth;
    int m_fallbackCanvasHeight;
    bool m_isBitmap;
    std::size_t m_replacedBytes = 0;
};

/// Fills in the ends that the stream left open: the next event ends the one before, and so does an event of a bitmap
/// track that begins earlier than the end that was stated.
[[nodiscard]] std::vector<TextCue> CloseTextEvents(std::vector<DecodedEvent> events);
[[nodiscard]] std::vector<BitmapCue> CloseBitmapEvents(std::vector<DecodedEvent> events);

} // namespace Korvex::Proc::FFmpeg
