#include "Proc/Ass/EventTrack.h"

#include "Proc/Ass/RenderContext.h"

#include <algorithm>

namespace Korvex::Proc::Ass
{
namespace
{

/// Fields other than the last must not hold what separates fields.
std::string ToField(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == ',' || c == '\n' || c == '\r' || c == '\0'; }, ' ');
    return text;
}

/// An event is one line, and the renderer's texts end at a zero.
std::string ToLine(std::string const& text)
{
    std::string line;
    line.reserve(text.size());
    for (char const c : text)
    {
        if (c == '\n')
            line += "\\N";
        else if (c != '\r' && c != '\0')
            line += c;
    }
    return line;
}

Blend::CueTimeline MakeTimeline(std::vector<TrackEvent const*> const& events)
{
    std::vector<Blend::TimelineCue> cues;
    cues.reserve(events.size());
    for (TrackEvent const* const event : events)
        cues.push_back({event->startMs, event->endMs, event->traits.isAnimated, !event->traits.hasPosition});
    return Blend::CueTimeline(cues);
}

} // namespace

EventTrack::EventTrack(RenderContext& context, std::vector<TrackEvent const*> events)
    : m_context(context),
      m_events(std::move(events)),
      m_timeline(MakeTimeline(m_events))
{
    std::stable_sort(m_events.begin(), m_events.end(),
                     [](TrackEvent const* a, TrackEvent const* b) { return a->startMs < b->startMs; });
    m_latestEnds.reserve(m_events.size());
    for (TrackEvent const* const event : m_events)
        m_latestEnds.push_back(m_latestEnds.empty() ? event->endMs : std::max(m_latestEnds.back(), event->endMs));
}

void EventTrack::SetStyles(TrackPtr styles, TextOf textOf)
{
    m_track = std::move(styles);
    m_textOf = std::move(textOf);
    m_isGiven.assign(m_events.size(), false);
    m_isLaidOut.assign(m_timeline.Count(), false);
    m_segment.reset();
    m_images = nullptr;
}

void EventTrack::Give(TrackEvent const& event)
{
    TextCue const& cue = event.cue;
    std::string chunk = std::to_string(event.readOrder) + ',' + std::to_string(cue.layer) + ',' + ToField(cue.style) +
                        ',' + ToField(cue.name) + ',' + std::to_string(cue.marginLeft) + ',' +
                        std::to_string(cue.marginRight) + ',' + std::to_string(cue.marginVertical) + ',' +
                        ToField(cue.effect) + ',' + ToLine(m_textOf(event));
    ass_process_chunk(m_track.get(), chunk.data(), static_cast<int>(chunk.size()), event.startMs,
                      event.endMs - event.startMs);
}

ASS_Image const* EventTrack::Render(std::int64_t timeMs, int* change)
{
    auto const next =
        std::upper_bound(m_events.begin(), m_events.end(), timeMs,
                         [](std::int64_t time, TrackEvent const* event) { return time < event->startMs; });
    // The order in which the renderer gets events says nothing: it sorts them by layer and place in the file.
    for (auto i = static_cast<std::size_t>(next - m_events.begin()); i-- > 0 && m_latestEnds[i] > timeMs;)
    {
        if (m_isGiven[i] || m_events[i]->endMs <= timeMs)
            continue;
        Give(*m_events[i]);
        m_isGiven[i] = true;
    }
    return m_context.Render(*m_track, timeMs, change);
}

bool EventTrack::Update(std::int64_t timeMs)
{
    std::optional<std::size_t> const segment = m_timeline.Find(timeMs);
    bool const isSameSegment = segment == m_segment;
    m_segment = segment;
    if (!segment)
    {
        m_images = nullptr;
        return !isSameSegment;
    }
    if (isSameSegment && !m_timeline[*segment].isAnimated)
        return false;

    bool wasLaidOut = false;
    for (std::size_t earlier = m_timeline[*segment].layoutBegin; earlier < *segment; ++earlier)
    {
        if (m_isLaidOut[earlier])
            continue;
        static_cast<void>(Render(m_timeline[earlier].startMs, nullptr));
        m_isLaidOut[earlier] = true;
        wasLaidOut = true;
    }
    int change = 0;
    m_images = Render(timeMs, &change);
    m_isLaidOut[*segment] = true;
    return !isSameSegment || wasLaidOut || change != 0;
}

} // namespace Korvex::Proc::Ass
