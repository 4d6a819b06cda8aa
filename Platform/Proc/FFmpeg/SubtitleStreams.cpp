#include "Proc/FFmpeg/SubtitleStreams.h"

#include "Proc/FFmpeg/StreamFacts.h"
#include "Proc/FFmpeg/StreamLoader.h"
#include "Proc/FFmpeg/SubtitlePayload.h"

#include "Proc/Settings.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>

namespace Korvex::Proc::FFmpeg
{

namespace
{

using Source = OutputStream::Source;
using Kind = SubtitleTrack::Kind;

/// Streams and what stands in for them by number, then files.
std::uint64_t PlaceOf(SubtitleTrack const& track)
{
    if (track.kind == Kind::Stream)
        return track.streamIndex;
    return track.standsForStream ? *track.standsForStream : std::numeric_limits<std::uint64_t>::max();
}

/// The module lists tracks by their text keys, which puts "10" before "2".
std::vector<SubtitleTrack> InOrder(std::vector<SubtitleTrack> tracks)
{
    std::stable_sort(tracks.begin(), tracks.end(),
                     [](SubtitleTrack const& a, SubtitleTrack const& b) { return PlaceOf(a) < PlaceOf(b); });
    return tracks;
}

void SetTag(OutputStream& stream, std::string const& key, std::string const& value)
{
    auto const old =
        std::find_if(stream.tags.begin(), stream.tags.end(), [&](auto const& tag) { return tag.first == key; });
    if (old != stream.tags.end())
        stream.tags.erase(old);
    if (!value.empty())
        stream.tags.emplace_back(key, value);
}

void SetFlag(int& disposition, int flag, std::optional<bool> wanted)
{
    if (wanted)
        disposition = *wanted ? disposition | flag : disposition & ~flag;
}

void DescribeTrack(OutputStream& stream, SubtitleTrack const& track, ContainerRule const& rule)
{
    if (!track.language.empty())
        SetTag(stream, "language", ToIso6392(track.language, rule.languageForm));
    if (!track.title.empty())
    {
        SetTag(stream, "title", track.title);
        if (rule.namesTracksByHandler)
            SetTag(stream, "handler_name", track.title);
    }
    SetFlag(stream.disposition, AV_DISPOSITION_DEFAULT, track.isDefault);
    SetFlag(stream.disposition, AV_DISPOSITION_FORCED, track.isForced);
    SetFlag(stream.disposition, AV_DISPOSITION_HEARING_IMPAIRED, track.isHearingImpaired);
}

Core::Error CannotCarry(ioPath const& file, std::string track, AVCodecID codec, ContainerRule const& rule)
{
    // Pictures cannot become text, whatever the container would take.
    char const* const advice =
        IsBitmapSubtitle(codec) ? "burn the track into the picture, or choose Matroska" : rule.subtitleAdvice;
    Core::Error error = MakeError(Core::ErrorCode::ContainerCannotCarry, file, advice);
    error.track = std::move(track);
    error.codec = CodecDisplayName(codec);
    error.container = rule.displayName;
    return error;
}

/// The texts that an AVI file holds are in whatever encoding their files had; other containers promise UTF-8.
bool NeedsDecoding(InputFile const& input, AVStream const& stream)
{
    return std::strcmp(input.Context().iformat->name, "avi") == 0 && IsTextSubtitle(stream.codecpar->codec_id);
}

/// Reads the stream as one would a file of its own.
Core::Status PreloadInputStream(InputFile const& input, std::uint32_t index, OutputStream& output,
                                std::vector<Warning>& warnings)
{
    Core::Result<InputFile> const file = InputFile::Open(input.Path(), {StreamAnalysis::Quick});
    if (!file)
        return file.GetError();
    Core::Result<SubtitleDocument> const document = LoadStream(*file, index);
    if (!document)
        return document.GetError();
    SubtitlePayload payload = MakeTextPayload(std::get<TextDocument>(*document), input.Path());
    output.source = Source::Preloaded;
    output.inputIndex.reset();
    output.parameters = std::move(payload.parameters);
    output.timeBase = payload.timeBase;
    output.packets = std::move(payload.packets);
    warnings.insert(warnings.end(), payload.warnings.begin(), payload.warnings.end());
    return Core::SUCCESS;
}

Core::Status AddInputStream(SubtitleTrack const& track, InputFile const& input, StreamMap& map)
{
    std::string const number = std::to_string(track.streamIndex);
    AVStream const* stream = input.FindStream(track.streamIndex);
    if (!stream || stream->codecpar->codec_type != AVMEDIA_TYPE_SUBTITLE)
    {
        Core::Error error =
            MakeError(stream ? Core::ErrorCode::TrackNotSubtitle : Core::ErrorCode::NoSuchTrack, input.Path());
        error.track = number;
        return error;
    }
    if (!CanCarry(*map.rule, *stream->codecpar))
        return CannotCarry(input.Path(), number, stream->codecpar->codec_id, *map.rule);
    OutputStream output;
    output.source = Source::Copied;
    output.inputIndex = track.streamIndex;
    output.parameters = CopyParametersForOutput(*stream->codecpar, *map.rule);
    output.timeBase = stream->time_base;
    output.disposition = stream->disposition;
    AVDictionaryEntry const* tag = nullptr;
    while ((tag = av_dict_get(stream->metadata, "", tag, AV_DICT_IGNORE_SUFFIX)))
        output.tags.emplace_back(tag->key, tag->value);
    DescribeTrack(output, track, *map.rule);
    if (NeedsDecoding(input, *stream))
    {
        if (Core::Status const failed = PreloadInputStream(input, track.streamIndex, output, map.warnings))
            return failed;
    }
    map.streams.push_back(std::move(output));
    return Core::SUCCESS;
}

void AddFonts(std::vector<FontAttachment> const& fonts, StreamMap& map)
{
    if (!map.rule->carriesAttachments)
        return;
    for (FontAttachment const& font : fonts)
    {
        if (!font.data || font.data->empty())
            continue;
        OutputStream output;
        output.source = Source::HeaderOnly;
        output.parameters = MakeCodecParameters();
        output.parameters->codec_type = AVMEDIA_TYPE_ATTACHMENT;
        output.parameters->codec_id = IsOpenType(font.name) ? AV_CODEC_ID_OTF : AV_CODEC_ID_TTF;
        SetExtraData(*output.parameters, font.data->data(), font.data->size());
        output.tags = {{"filename", font.name}, {"mimetype", FontMimeType(font.name)}};
        map.streams.push_back(std::move(output));
    }
}

Core::Status AddFile(SubtitleTrack const& track, StreamMap& map)
{
    Core::Result<SubtitlePayload> payload = LoadSubtitlePayload(track.path);
    if (!payload)
        return payload.GetError();
    if (!CanCarry(*map.rule, *payload->parameters))
        return CannotCarry(track.path, track.title.empty() ? "0" : "\"" + track.title + "\"",
                           payload->parameters->codec_id, *map.rule);
    OutputStream output;
    output.source = Source::Preloaded;
    output.parameters = CopyParametersForOutput(*payload->parameters, *map.rule);
    output.timeBase = payload->timeBase;
    output.packets = std::move(payload->packets);
    // A file of its own says nothing of whether this conversion should show it by default.
    output.disposition = payload->disposition & ~(AV_DISPOSITION_DEFAULT | AV_DISPOSITION_FORCED);
    SetTag(output, "language", ToIso6392(payload->language, map.rule->languageForm));
    SetTag(output, "title", payload->title);
    DescribeTrack(output, track, *map.rule);
    map.streams.push_back(std::move(output));
    map.warnings.insert(map.warnings.end(), payload->warnings.begin(), payload->warnings.end());
    AddFonts(payload->fonts, map);
    return Core::SUCCESS;
}

} // namespace

Core::Status AddSoftSubtitles(SettingsTranscode const& settings, InputFile const& input, StreamMap& map)
{
    for (SubtitleTrack const& track : InOrder(settings.soft->GetTracksInfo()))
    {
        if (track.kind == Kind::File && track.path.empty())
        {
            Warning warning;
            warning.code = WarningCode::SubtitlesWithoutFile;
            warning.title = track.title;
            map.warnings.push_back(std::move(warning));
            continue;
        }
        Core::Status failed = track.kind == Kind::Stream ? AddInputStream(track, input, map) : AddFile(track, map);
        if (failed)
            return failed;
    }
    return Core::SUCCESS;
}

} // namespace Korvex::Proc::FFmpeg
