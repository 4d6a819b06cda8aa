#include "Proc/MediaInfo.h"

#include "Proc/ExternalText.h"
#include "Proc/FFmpeg/MediaFile.h"
#include "Proc/MediaProbe.h"

#include <algorithm>

namespace Korvex::Proc
{

namespace
{

MediaInfo DescribeText(ioPath const& path, ExternalText const& text)
{
    StreamInfo stream;
    stream.kind = StreamKind::Subtitle;
    stream.codecId = text.document.codecId;
    stream.isTextSubtitle = true;
    for (TextCue const& cue : text.document.cues)
        stream.duration = std::max(stream.duration, cue.end);

    MediaInfo info;
    info.path = path;
    info.formatId = text.formatId;
    info.duration = stream.duration;
    info.streams.push_back(std::move(stream));
    return info;
}

} // namespace

StreamInfo const* MediaInfo::FindMainVideo() const
{
    auto const found = std::find_if(streams.begin(), streams.end(),
                                    [](StreamInfo const& stream)
                                    { return stream.kind == StreamKind::Video && !stream.isAttachedPicture; });
    return found == streams.end() ? nullptr : &*found;
}

StreamInfo const* MediaInfo::FindStream(std::uint32_t index) const
{
    auto const found =
        std::find_if(streams.begin(), streams.end(), [&](StreamInfo const& stream) { return stream.index == index; });
    return found == streams.end() ? nullptr : &*found;
}

Core::Result<MediaInfo> ProbeMedia(ioPath const& path, std::string const& encoding)
{
    Core::Result<std::optional<ExternalText>> const text = LoadExternalText(path, encoding);
    if (!text)
        return text.GetError();
    if (*text)
        return DescribeText(path, **text);
    return FFmpeg::ProbeMediaFile(path);
}

Core::Result<MediaInfo> ProbeStreams(ioPath const& path, std::string const& encoding)
{
    ExternalText text;
    text.document.codecId = FindCodecByBeginning(path, encoding);
    if (text.document.codecId.empty())
        return ProbeMedia(path, encoding);
    text.formatId = FindTextFormatId(text.document.codecId);
    return DescribeText(path, text);
}

Core::Result<MediaInfo> ProbeMedia(ioPath const& path)
{
    return ProbeMedia(path, {});
}

} // namespace Korvex::Proc
