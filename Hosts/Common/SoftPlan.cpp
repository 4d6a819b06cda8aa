#include "Common/SoftPlan.h"

#include "Common/EncodingNames.h"
#include "Common/HostServices.h"
#include "Common/OutputFormats.h"
#include "Common/Sentences.h"
#include "Common/WorkFolder.h"

#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/Entities/TrackOrder.h"

#include "Conf/IFormatCodecSubtitle.h"
#include "Proc/MediaInfo.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <set>
#include <utility>

namespace Korvex::Hosts
{

using Codec = Conf::IFormatCodecSubtitle;
using Converter::Subtitles::Entities::SubtitleCollection;
using Converter::Subtitles::Entities::SubtitleEncoding;
using Converter::Subtitles::Entities::SubtitleTrack;

namespace
{

bool Contains(std::vector<std::string> const& ids, std::string const& id)
{
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

/// What the core writes text of this codec anew as, best first.
std::vector<std::string> ListRewriteCodecs(std::string const& codecId)
{
    if (codecId == Codec::CODEC_ID_ASS || codecId == Codec::CODEC_ID_SSA)
        return {Codec::CODEC_ID_ASS, Codec::CODEC_ID_SUBRIP, Codec::CODEC_ID_MOV_TEXT};
    return {Codec::CODEC_ID_SUBRIP, Codec::CODEC_ID_MOV_TEXT, Codec::CODEC_ID_ASS};
}

/// Empty when text cannot be written anew for the container.
std::string FindRewriteCodec(std::string const& codecId, std::vector<std::string> const& allowedCodecIds)
{
    for (std::string const& candidate : ListRewriteCodecs(codecId))
        if (Contains(allowedCodecIds, candidate))
            return candidate;
    return {};
}

SoftRewrite DescribeRewrite(Proc::MediaInfo const& film, SubtitleTrack const& track,
                            std::vector<std::string> const& allowedCodecIds)
{
    SoftRewrite rewrite;
    rewrite.track = track;
    rewrite.isCodecRefused = !Contains(allowedCodecIds, track.codecId);
    rewrite.hasEncoding = track.encodingEditable && track.encoding != SubtitleEncoding::Auto;
    rewrite.hasShift = track.synchronizationOffset != 0.0;
    rewrite.source.path = track.isExternal ? track.path : film.path;
    if (!track.isExternal)
        rewrite.source.streamIndex = track.streamIndex;
    if (rewrite.hasEncoding)
        rewrite.source.encoding = GetEncodingName(static_cast<std::int32_t>(track.encoding));
    rewrite.source.timeShift = std::chrono::microseconds(std::llround(track.synchronizationOffset * 1e6));
    return rewrite;
}

/// With the source's identifier and number it keeps the source's place among the others.
SubtitleTrack MakeWrittenTrack(SubtitleTrack const& source, Proc::ExportedSubtitle const& written)
{
    SubtitleTrack track = source;
    track.path = written.path;
    track.isExternal = true;
    // A file's name in place of a title is told by being the path's, and stays so.
    if (source.isExternal && source.title == source.path.FileName())
        track.title = track.path.FileName();
    track.codecId = written.codecId;
    track.codecName = DisplayName(written.codecId);
    track.encoding = SubtitleEncoding::Auto;
    track.synchronizationOffset = 0.0;
    return track;
}

} // namespace

SoftPlan MakeSoftPlan(HostServices const& services, Proc::MediaInfo const& film, SubtitleCollection const& collection,
                      std::string const& formatId)
{
    SoftPlan plan;
    plan.formatId = formatId;
    std::set<std::string> const allowed = services.GetAllowedSoftCodecIds(formatId);
    plan.allowedCodecIds.assign(allowed.begin(), allowed.end());
    for (SubtitleTrack const* track : Converter::Subtitles::Entities::ListOrder(collection.tracks))
    {
        SoftRewrite rewrite = DescribeRewrite(film, *track, plan.allowedCodecIds);
        if (!rewrite.isCodecRefused && !rewrite.hasEncoding && !rewrite.hasShift)
            continue;
        if (!IsTextTrack(film, *track) || FindRewriteCodec(track->codecId, plan.allowedCodecIds).empty())
        {
            plan.problems.push_back({*track, FindObstacle(rewrite), ListFormatsThatCarry(services, track->codecId)});
        }
        else
        {
            if (rewrite.isCodecRefused)
                rewrite.formatIds = ListFormatsThatCarry(services, track->codecId);
            plan.rewrites.push_back(std::move(rewrite));
        }
    }
    return plan;
}

CarryObstacle FindObstacle(SoftRewrite const& rewrite)
{
    if (rewrite.isCodecRefused)
        return CarryObstacle::Codec;
    return rewrite.hasEncoding ? CarryObstacle::Encoding : CarryObstacle::Offset;
}

std::vector<std::string> ListFormatsThatCarry(HostServices const& services, std::string const& codecId)
{
    std::vector<std::string> formatIds;
    for (OutputFormat const& format : GetOutputFormats())
        if (services.GetAllowedSoftCodecIds(format.id).count(codecId) > 0)
            formatIds.push_back(format.id);
    return formatIds;
}

bool IsTextTrack(Proc::MediaInfo const& film, SubtitleTrack const& track)
{
    static std::set<std::string> const BITMAPS{Codec::CODEC_ID_HDMV_PGS_SUBTITLE, Codec::CODEC_ID_DVD_SUBTITLE,
                                               Codec::CODEC_ID_DVB_SUBTITLE, Codec::CODEC_ID_XSUB};
    if (track.isExternal)
        return !track.codecId.empty() && BITMAPS.count(track.codecId) == 0;
    Proc::StreamInfo const* stream = film.FindStream(track.streamIndex);
    return stream == nullptr || stream->isTextSubtitle;
}

std::string FindOutputCodec(std::string const& codecId, bool isText, std::vector<std::string> const& allowedCodecIds)
{
    if (Contains(allowedCodecIds, codecId))
        return codecId;
    return isText ? FindRewriteCodec(codecId, allowedCodecIds) : std::string();
}

Core::Result<std::vector<RewrittenTrack>> CarryOut(SoftPlan const& plan, WorkFolder& folder)
{
    std::vector<RewrittenTrack> tracks;
    if (plan.rewrites.empty())
        return tracks;
    Core::Result<ioPath> const path = folder.Get();
    if (!path)
        return path.GetError();
    for (SoftRewrite const& rewrite : plan.rewrites)
    {
        auto written = Proc::PrepareSubtitle(rewrite.source, plan.allowedCodecIds, *path,
                                             "track-" + std::to_string(tracks.size() + 1));
        if (!written)
            return written.GetError();
        RewrittenTrack track;
        track.rewrite = rewrite;
        if (written->cueCount > 0)
            track.track = MakeWrittenTrack(rewrite.track, *written);
        track.written = std::move(written).Value();
        tracks.push_back(std::move(track));
    }
    return tracks;
}

void PutIn(std::vector<RewrittenTrack> const& tracks, SubtitleCollection& collection)
{
    for (RewrittenTrack const& rewritten : tracks)
    {
        auto const& id = rewritten.rewrite.track.id;
        if (rewritten.track)
        {
            collection.tracks[id] = *rewritten.track;
            continue;
        }
        collection.tracks.erase(id);
        if (collection.defaultTracks)
            collection.defaultTracks->erase(id);
    }
}

} // namespace Korvex::Hosts
