#pragma once

#include "Core/Export.h"
#include "Core/RefCounted.h"
#include "Core/Result.h"
#include "Proc/SubtitleContent.h"

#include <chrono>
#include <cstdint>
#include <vector>

namespace Korvex::Proc
{

class SettingsSubtitleMixer;

/// A picture for the screen: RGBA, 8 bits, 4 bytes a pixel, rows without padding, square pixels not assumed.
struct RgbaImage
{
    int width = 0;
    int height = 0;
    int sampleAspectNumerator = 1;
    int sampleAspectDenominator = 1;
    std::chrono::microseconds time{0}; ///< of the frame that is shown, from the start of the file
    std::vector<std::uint8_t> rgba;
};

/// Shows frames of one file as a conversion would write them: upright, with the chosen track drawn in. Keeps the file
/// open between calls. Times are those that the file states: where the clock of a transport stream jumps, a conversion
/// closes the gap and a preview does not. One thread at a time, but for `Interrupt`.
///
/// Fast where a person waits: another look of the same track costs neither decoding nor reading the track again, a time
/// a little ahead costs the pictures in between.
class KORVEX_PLATFORM_API IPreview : public Core::RefCounted
{
public:
    /// Draws this track from now on; null: none. Reads the track if it is another one than before, or an external file
    /// that has been written to meanwhile. When that fails, nothing is drawn.
    virtual Core::Status SetSubtitles(SettingsSubtitleMixer const* settings) = 0;

    /// The frame shown at `time` (the last one that begins no later; the first frame for earlier times, the last for
    /// later ones).
    [[nodiscard]] virtual Core::Result<RgbaImage> Render(std::chrono::microseconds time) = 0;

    /// When the track that is drawn has something to show, after its time shift, ordered by start; empty without one.
    [[nodiscard]] virtual std::vector<CueSpan> ListCueSpans() const = 0;

    /// Makes the call that is running, or else the next one that takes long, end with ErrorCode::Cancelled; whoever
    /// still wants what was cancelled asks again. From any thread.
    virtual void Interrupt() = 0;
};

[[nodiscard]] KORVEX_PLATFORM_API Core::Result<boost::intrusive_ptr<IPreview>> MakePreview(ioPath const& mediaPath);

} // namespace Korvex::Proc
