#pragma once

#include "Proc/Ass/AssHandles.h"
#include "Proc/Ass/EventTraits.h"
#include "Proc/Blend/CueTimeline.h"
#include "Proc/SubtitleContent.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Korvex::Proc::Ass
{

class RenderContext;

/// An event as it goes to the renderer.
struct TrackEvent
{
    std::int64_t startMs = 0;
    std::int64_t endMs = 0;
    int readOrder = 0;
    EventTraits traits;
    std::string text; ///< in ASS markup
};

/// Events that are laid out together, and which of them are active when. Asks the renderer only when the answer can
/// have changed.
class EventTrack
{
public:
    /// `context` has to outlive the track.
    EventTrack(RenderContext& context, TrackPtr track);

    void Add(TextCue const& cue, TrackEvent const& event);
    /// After the last event, before the first question.
    void Finish();

    [[nodiscard]] bool IsActiveAt(std::int64_t timeMs) const { return m_timeline.Find(timeMs).has_value(); }

    /// Moves to a time. True when the images may have changed.
    bool Update(std::int64_t timeMs);

    /// The images of the time last moved to, from the bottom up; valid until the renderer is used again.
    [[nodiscard]] ASS_Image const* Images() const { return m_images; }

private:
    RenderContext& m_context;
    TrackPtr m_track;
    std::vector<Blend::TimelineCue> m_cues;
    Blend::CueTimeline m_timeline;
    std::vector<bool> m_isLaidOut; ///< of every segment: stacked events that it shows have got their places
    std::optional<std::size_t> m_segment;
    ASS_Image const* m_images = nullptr;
};

} // namespace Korvex::Proc::Ass
