#include "Subtitles/Adapters/SettingsBuilders.h"

#include "Subtitles/Adapters/SubtitleEncodingNames.h"

#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/Entities/TrackMarks.h"

#include "Proc/Settings.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace Korvex::Converter::Subtitles::Adapters
{

using Entities::SubtitleAlign;
using Entities::SubtitleCollection;
using Entities::SubtitleTextSettings;
using Entities::SubtitleTrack;

namespace
{

/// A weight of 57 (medium) is still regular.
constexpr int HEAVIEST_REGULAR_WEIGHT = 57;
constexpr double MICROSECONDS_PER_SECOND = 1'000'000.0;

bool IsStreamOfMediaFile(SubtitleTrack const& track)
{
    return !track.isExternal && track.streamIndex != SubtitleTrack::NO_STREAM;
}

void SetFont(Proc::AssRendererSettings& renderer, QFont const& font)
{
    // A font that was given in pixels has no point size.
    if (double const size = font.pointSizeF(); size > 0.0)
        renderer.SetFontSize(size);

    unsigned flags = 0;
    if (font.weight() > HEAVIEST_REGULAR_WEIGHT)
        flags |= Proc::AssRendererSettings::BOLD;
    if (font.style() != QFont::StyleNormal)
        flags |= Proc::AssRendererSettings::ITALIC;
    if (font.underline())
        flags |= Proc::AssRendererSettings::UNDERLINE;
    if (font.strikeOut())
        flags |= Proc::AssRendererSettings::STRIKE_OUT;
    if (flags != 0)
        renderer.SetFlags(flags);

    if (!font.family().isEmpty())
        renderer.SetFontName(font.family().toStdString());
}

Proc::AssRendererSettings BuildRendererSettings(SubtitleTextSettings const& look)
{
    Proc::AssRendererSettings renderer;
    renderer.SetPrimaryColour(look.textColor.red(), look.textColor.green(), look.textColor.blue());
    SetFont(renderer, look.font);
    renderer.SetOutlineColour(look.outlineColor.red(), look.outlineColor.green(), look.outlineColor.blue());
    return renderer;
}

void SetAlignment(Proc::SettingsSubtitleDrawer& drawer, SubtitleAlign align)
{
    using Proc::AlignmentHorizontal;
    using Proc::AlignmentVertical;
    switch (align)
    {
    case SubtitleAlign::Default:
        drawer.SetHorizontalAlignment(AlignmentHorizontal::Default);
        drawer.SetVerticalAligment(AlignmentVertical::Default);
        break;
    case SubtitleAlign::Top:
        drawer.SetVerticalAligment(AlignmentVertical::Top);
        break;
    case SubtitleAlign::VerticalCenter:
        drawer.SetVerticalAligment(AlignmentVertical::Center);
        break;
    case SubtitleAlign::Bottom:
        drawer.SetVerticalAligment(AlignmentVertical::Bottom);
        break;
    case SubtitleAlign::Left:
        drawer.SetHorizontalAlignment(AlignmentHorizontal::Left);
        break;
    case SubtitleAlign::HorizontalCenter:
        drawer.SetHorizontalAlignment(AlignmentHorizontal::Center);
        break;
    case SubtitleAlign::Right:
        drawer.SetHorizontalAlignment(AlignmentHorizontal::Right);
        break;
    }
}

/// Truncated towards zero; what is no time at all shifts nothing.
std::int64_t ToTimeShiftUs(double seconds)
{
    constexpr double LIMIT = 9.0e18; // inside the range of the result, which a double cannot express exactly
    double const us = seconds * MICROSECONDS_PER_SECOND;
    return std::isnan(us) ? 0 : static_cast<std::int64_t>(std::clamp(us, -LIMIT, LIMIT));
}

Proc::SubtitleTrack BuildSoftTrack(SubtitleCollection const& collection, SubtitleTrack const& track)
{
    Proc::SubtitleTrack result;
    if (IsStreamOfMediaFile(track))
    {
        result.kind = Proc::SubtitleTrack::Kind::Stream;
        result.streamIndex = track.streamIndex;
    }
    else
    {
        result.kind = Proc::SubtitleTrack::Kind::File;
        result.path = track.path;
        if (Entities::ReadMarks(track.detail).isHearingImpaired)
            result.isHearingImpaired = true;
        // A working file that was written in place of a stream keeps the stream's place.
        if (track.streamIndex != SubtitleTrack::NO_STREAM)
            result.standsForStream = track.streamIndex;
    }
    result.language = track.language;
    // A file name serves the lists here; viewers of the film want none.
    if (!track.isExternal || track.title != track.path.FileName())
        result.title = track.title;
    result.isForced = track.isForced;
    if (collection.defaultTracks)
        result.isDefault = collection.defaultTracks->count(track.id) != 0;
    return result;
}

} // namespace

std::shared_ptr<Proc::SettingsSubtitleMixer> BuildMixerSettings(SubtitleCollection const& collection)
{
    auto const current = collection.tracks.find(collection.currentTrack);
    if (current == collection.tracks.end())
        return nullptr;
    SubtitleTrack const& track = current->second;
    auto settings = std::make_shared<Proc::SettingsSubtitleMixer>();
    settings->SetEncoding(EncodingToCoreString(track.encoding));
    settings->SetDrawerSettings(BuildDrawerSettings(collection));
    if (IsStreamOfMediaFile(track))
        settings->SetSubtitleStreamIndex(track.streamIndex);
    else
        settings->SetFilename(track.path);
    return settings;
}

Proc::SettingsSubtitleDrawer BuildDrawerSettings(SubtitleCollection const& collection)
{
    Proc::SettingsSubtitleDrawer drawer;
    SubtitleTextSettings const& look = collection.textSettings;
    SetAlignment(drawer, look.align);
    if (auto const current = collection.tracks.find(collection.currentTrack); current != collection.tracks.end())
        drawer.SetTimeShift(ToTimeShiftUs(current->second.synchronizationOffset));
    drawer.SetMoveSubtitles(look.positionShift, 0);
    drawer.SetAssRendererSettings(BuildRendererSettings(look));
    return drawer;
}

std::shared_ptr<Proc::SettingsSubtitleSoft> BuildSoftSettings(SubtitleCollection const& collection)
{
    std::vector<Proc::SubtitleTrack> tracks;
    for (auto const& [id, track] : collection.tracks)
        tracks.push_back(BuildSoftTrack(collection, track));
    auto settings = std::make_shared<Proc::SettingsSubtitleSoft>();
    settings->SetTracksInfo(std::move(tracks));
    return settings;
}

} // namespace Korvex::Converter::Subtitles::Adapters
