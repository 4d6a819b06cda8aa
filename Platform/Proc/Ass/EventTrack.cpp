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

} // namespace

EventTrack::EventTrack(RenderContext& context, TrackPtr track)
    : m_context(context),
      m_track(std::move(track)),
      m_timeline({})
{
}

void EventTrack::Add(TextCue const& cue, TrackEvent const& event)
{
    std::string chunk = std::to_string(event.readOrder) + ',' + std::to_string(cue.layer) + ',' + ToField(cue.style) +
                        ',' + ToField(cue.name) + ',' + std::to_string(cue.marginLeft) + ',' +
                        std::to_string(cue.marginRight) + ',' + std::to_string(cue.marginVertical) + ',' +
                        ToField(cue.effect) + ',' + ToLine(event.text);
    ass_process_chunk(m_track.get(), chunk.data(), static_cast<int>(chunk.size()), event.startMs,
                      event.endMs - event.startMs);
    m_cues.push_back({event.startMs, event.endMs, event.traits.isAnimated, !event.traits.hasPosition});
}

void EventTrack::Finish()
{
    m_timeline = Blend::CueTimeline(m_cues);
    m_isLaidOut.assign(m_timeline.Count(), false);
    m_cues = {};
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
        static_cast<void>(m_context.Render(*m_track, m_timeline[earlier].startMs, nullptr));
        m_isLaidOut[earlier] = true;
        wasLaidOut = true;
    }
    int change = 0;
    m_images = m_context.Render(*m_track, timeMs, &change);
    m_isLaidOut[*segment] = true;
    return !isSameSegment || wasLaidOut || change != 0;
}

} // namespace Korvex::Proc::Ass
