#pragma once

#include "Core/Export.h"
#include "Core/RefCounted.h"
#include "Core/Result.h"
#include "Proc/Picture.h"
#include "Proc/SubtitleContent.h"

#include <chrono>
#include <vector>

namespace Korvex::Proc
{

class SettingsSubtitleDrawer;
class SettingsSubtitleMixer;

/// Draws one subtitle track into pictures. The one small interface behind which layout, caching and blending live; the
/// converter and every preview use it alike, so what the preview shows is what is burned in.
///
/// One thread at a time; it may be another thread at each call.
class KORVEX_PLATFORM_API ISubtitleDrawer : public Core::RefCounted
{
public:
    /// True when `Draw` would change a picture at this time. Cheap for times at which nothing is shown.
    [[nodiscard]] virtual bool IsVisibleAt(std::chrono::microseconds time) = 0;

    /// Paints what is shown at `time` (counted from the start of the media file, before the track's time shift) onto
    /// the picture, whose size has to be the geometry's. Returns true when a sample may have changed.
    virtual bool Draw(PictureView const& picture, std::chrono::microseconds time) = 0;

    /// Draws by these settings from now on: the pictures are those of a drawer made anew. Costs no new look at the
    /// track's events, however many there are.
    virtual void SetSettings(SettingsSubtitleDrawer const& settings) = 0;

    /// When the track has something to show, after its time shift, ordered by start.
    [[nodiscard]] virtual std::vector<CueSpan> ListCueSpans() const = 0;
};

/// Reads the track that the settings name (a stream of `mediaPath` or an external file), whole, and prepares to draw it
/// on pictures of `geometry`.
[[nodiscard]] KORVEX_PLATFORM_API Core::Result<boost::intrusive_ptr<ISubtitleDrawer>>
MakeSubtitleDrawer(SettingsSubtitleMixer const& settings, ioPath const& mediaPath, PictureGeometry const& geometry);

/// The same for events that are already in memory.
[[nodiscard]] KORVEX_PLATFORM_API Core::Result<boost::intrusive_ptr<ISubtitleDrawer>>
MakeSubtitleDrawer(SettingsSubtitleDrawer const& settings, SubtitleDocument document, PictureGeometry const& geometry);

} // namespace Korvex::Proc
