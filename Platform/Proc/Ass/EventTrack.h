#pragma once

#include "Proc/Ass/AssHandles.h"
#include "Proc/Ass/EventTraits.h"
#include "Proc/Blend/CueTimeline.h"
#include "Proc/SubtitleContent.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Korvex::Proc::Ass
{

class RenderContext;

/// An event as the file has it, whatever it is drawn with.
struct TrackEvent
{
    TextCue cue; ///< its text in ASS markup
    std::int64_t startMs = 0;
    std::int64_t endMs = 0; ///< after `startMs`
    int readOrder = 0;
    EventTraits traits;
    int styleAlignment = 0; ///< of the script's style, 1..9 as on a numeric keypad
};

/// Events that are laid out together, and which of them are active when. Asks the renderer only when the answer can
/// have changed, and gives it an event only when that is about to be shown: of a long track another look costs what is
/// visible, not the track.
class EventTrack
{
public:
    /// The text with which an event goes to the renderer.
    using TextOf = std::function<std::string(TrackEvent const&)>;

    /// `context` and the events have to outlive the track.
    EventTrack(RenderContext& context, std::vector<TrackEvent const*> events);

    /// Draws by the styles of `styles`, a track without events. Before the first question.
    void SetStyles(TrackPtr styles, TextOf textOf);

    [[nodiscard]] bool IsActiveAt(std::int64_t timeMs) const { return m_timeline.Find(timeMs).has_value(); }

    /// Moves to a time. True when the images may have changed.
    bool Update(std::int64_t timeMs);

    /// The images of the time last moved to, from the bottom up; valid until the renderer is used again.
    [[nodiscard]] ASS_Image const* Images() const { return m_images; }

private:
    [[nodiscard]] ASS_Image const* Render(std::int64_t timeMs, int* change);
    void Give(TrackEvent const& event);

    RenderContext& m_context;
    std::vector<TrackEvent const*> m_events; ///< ordered by start
    std::vector<std::int64_t> m_latestEnds;  ///< of each event and all that start before it
    Blend::CueTimeline m_timeline;
    TrackPtr m_track;
    TextOf m_textOf;
    std::vector<bool> m_isGiven;   ///< of every event: the renderer has it
    std::vector<bool> m_isLaidOut; ///< of every segment: stacked events that it shows have got their places
    std::optional<std::size_t> m_segment;
    ASS_Image const* m_images = nullptr;
};

} // namespace Korvex::Proc::Ass
