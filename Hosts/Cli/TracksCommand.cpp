#include "Cli/TracksCommand.h"

#include "Cli/Format.h"
#include "Cli/Json.h"
#include "Cli/Services.h"
#include "Common/MediaItemSession.h"
#include "Common/Sentences.h"
#include "Common/SessionError.h"

#include "Subtitles/Entities/Language.h"
#include "Subtitles/Entities/TrackOrder.h"
#include "Subtitles/Subtitles.h"

#include "Proc/MediaInfo.h"
#include "Transcoder/Preset.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <ostream>

namespace Korvex::Cli
{

using Converter::Subtitles::Entities::SubtitleCollection;
using Converter::Subtitles::Entities::SubtitleTrack;
using Converter::Subtitles::Entities::SubtitleTrackID;
namespace Language = Converter::Subtitles::Entities::Language;

namespace
{

char const* KindName(Proc::StreamKind kind)
{
    switch (kind)
    {
    case Proc::StreamKind::Video:
        return "video";
    case Proc::StreamKind::Audio:
        return "audio";
    case Proc::StreamKind::Subtitle:
        return "subtitles";
    case Proc::StreamKind::Attachment:
        return "attachment";
    case Proc::StreamKind::Other:
        break;
    }
    return "other";
}

std::string LanguageName(std::string const& shortName)
{
    auto const id = Language::GetLanguageFromShortName(shortName);
    std::string const& name = Language::GetLanguageData(id).displayName;
    return name.empty() ? shortName : name;
}

/// One line of the list: identifier, kind, codec, and whatever else there is to say.
struct Row
{
    std::string id;
    std::string kind;
    std::string codec;
    std::string details;
};

void Append(std::string& text, std::string const& piece)
{
    if (!piece.empty())
        text += (text.empty() ? "" : ", ") + piece;
}

Row DescribeStream(Proc::StreamInfo const& stream)
{
    Row row{std::to_string(stream.index), KindName(stream.kind), Hosts::DisplayName(stream.codecId), {}};
    if (stream.width > 0 && stream.kind == Proc::StreamKind::Video)
        Append(row.details, std::to_string(stream.width) + "x" + std::to_string(stream.height));
    if (stream.framesPerSecond > 0.0 && !stream.isAttachedPicture)
        Append(row.details, Hosts::FormatSeconds(stream.framesPerSecond) + " frames a second");
    if (stream.rotationDegrees != 0)
        Append(row.details, "turned by " + std::to_string(stream.rotationDegrees) + " degrees");
    Append(row.details, stream.isAttachedPicture ? "cover picture" : "");
    Append(row.details, LanguageName(stream.language));
    Append(row.details, stream.title.empty() ? "" : "\"" + stream.title + "\"");
    Append(row.details, stream.isDefault ? "default" : "");
    return row;
}

Row DescribeSubtitle(SubtitleTrack const& track, bool isDefault)
{
    Row row{track.id.ToString(), "subtitles", track.codecName.empty() ? track.codecId : track.codecName, {}};
    Append(row.details, LanguageName(track.language));
    bool const isTitleTold = track.isExternal && track.title == track.path.FileName();
    Append(row.details, track.title.empty() || isTitleTold ? "" : "\"" + track.title + "\"");
    Append(row.details, track.detail);
    Append(row.details, isDefault ? "default" : "");
    Append(row.details, track.isForced && track.detail.find("Forced") == std::string::npos ? "forced" : "");
    Append(row.details, track.extra);
    return row;
}

bool IsDefault(SubtitleCollection const& collection, SubtitleTrack const& track)
{
    return collection.defaultTracks && collection.defaultTracks->count(track.id) > 0;
}

void PrintTable(Proc::MediaInfo const& info, SubtitleCollection const& collection, std::ostream& out)
{
    std::vector<Row> rows{{"ID", "Kind", "Codec", "Details"}};
    auto const addSubtitle = [&](SubtitleTrack const& track)
    { rows.push_back(DescribeSubtitle(track, IsDefault(collection, track))); };
    for (Proc::StreamInfo const& stream : info.streams)
    {
        auto const track = collection.tracks.find(SubtitleTrackID(stream.index));
        if (track == collection.tracks.end())
            rows.push_back(DescribeStream(stream));
        else
            addSubtitle(track->second);
    }
    for (SubtitleTrack const* track : Converter::Subtitles::Entities::ListOrder(collection.tracks))
        if (track->isExternal)
            addSubtitle(*track);

    std::size_t idWidth = 0;
    std::size_t codecWidth = 0;
    for (Row const& row : rows)
    {
        idWidth = std::max(idWidth, row.id.size());
        codecWidth = std::max(codecWidth, row.codec.size());
    }
    constexpr std::size_t kindWidth = 10;
    for (Row const& row : rows)
    {
        std::string line = "  " + row.id + std::string(idWidth - row.id.size() + 2, ' ') + row.kind +
                           std::string(kindWidth - row.kind.size() + 2, ' ') + row.codec +
                           std::string(codecWidth - row.codec.size() + 2, ' ') + row.details;
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    }
}

/// One reader may serve several formats ("mov,mp4,m4a"): the one that the file's name ends in, else the first.
std::string FormatOfFile(Proc::MediaInfo const& info)
{
    std::string const names = "," + info.formatId + ",";
    std::string extension = info.path.Extension();
    if (!extension.empty() && names.find("," + extension + ",") != std::string::npos)
        return extension;
    return info.formatId.substr(0, info.formatId.find(','));
}

void PrintText(Proc::MediaInfo const& info, SubtitleCollection const& collection, std::ostream& out)
{
    out << info.path.utf8string() << ": " << Hosts::DisplayName(FormatOfFile(info));
    if (info.duration.count() > 0)
        out << ", " << FormatClock(info.duration);
    out << '\n';
    PrintTable(info, collection, out);
}

QJsonObject StreamToJson(Proc::StreamInfo const& stream)
{
    QJsonObject object{{"id", ToJsonText(std::to_string(stream.index))},
                       {"kind", KindName(stream.kind)},
                       {"codec", ToJsonText(stream.codecId)},
                       {"language", ToJsonText(stream.language)},
                       {"title", ToJsonText(stream.title)},
                       {"default", stream.isDefault}};
    if (stream.kind == Proc::StreamKind::Video)
    {
        object.insert("width", stream.width);
        object.insert("height", stream.height);
        object.insert("framesPerSecond", stream.framesPerSecond);
        object.insert("rotation", stream.rotationDegrees);
    }
    return object;
}

QJsonObject SubtitleToJson(SubtitleTrack const& track, bool isDefault)
{
    QJsonObject object{{"id", ToJsonText(track.id.ToString())},
                       {"kind", "subtitles"},
                       {"codec", ToJsonText(track.codecId)},
                       {"language", ToJsonText(track.language)},
                       {"title", ToJsonText(track.title)},
                       {"detail", ToJsonText(track.detail)},
                       {"default", isDefault},
                       {"forced", track.isForced},
                       {"external", track.isExternal}};
    if (!track.extra.empty())
        object.insert("encoding", ToJsonText(track.extra));
    return object;
}

void PrintJson(Proc::MediaInfo const& info, SubtitleCollection const& collection, std::ostream& out)
{
    QJsonArray tracks;
    for (Proc::StreamInfo const& stream : info.streams)
        if (collection.tracks.find(SubtitleTrackID(stream.index)) == collection.tracks.end())
            tracks.append(StreamToJson(stream));
    for (SubtitleTrack const* track : Converter::Subtitles::Entities::ListOrder(collection.tracks))
        tracks.append(SubtitleToJson(*track, IsDefault(collection, *track)));
    WriteJsonLine(out, {{"file", ToJsonText(info.path.utf8string())},
                        {"format", ToJsonText(info.formatId)},
                        {"durationSeconds", std::chrono::duration<double>(info.duration).count()},
                        {"tracks", tracks}});
}

} // namespace

std::vector<OptionGroup> TracksCommand::Options() const
{
    return {{"Options", {{"--json", OptionValue::None, {}, "One JSON object a line for each file."}}}};
}

ExitCode TracksCommand::Run(Arguments const& arguments, Console& console)
{
    if (arguments.inputs.empty())
        throw UsageError("Name at least one file.");
    bool const isJson = arguments.Find("--json") != nullptr;
    Services services;
    ExitCode code = ExitCode::Done;
    for (std::string const& file : arguments.inputs)
    {
        if (console.isInterrupted())
            throw Interrupted();
        try
        {
            Hosts::MediaItemSession session(services);
            session.Open(file, {}, {});
            for (std::string const& note : session.TakeNotes())
                console.err << "korvex: " << note << '\n';
            (isJson ? PrintJson : PrintText)(session.GetMediaInfo(), session.GetCollection(), console.out);
        }
        catch (Hosts::FileError const& error)
        {
            console.err << "korvex: " << error.what() << '\n';
            code = ExitCode::Failed;
        }
    }
    return code;
}

} // namespace Korvex::Cli
