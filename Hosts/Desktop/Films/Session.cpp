#include "Desktop/Films/Session.h"

#include "Common/OutputFormats.h"

#include "Subtitles/Adapters/SubtitleEncodingNames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <algorithm>

namespace Korvex::Desktop
{

using Converter::Subtitles::Adapters::EncodingFromCoreString;
using Converter::Subtitles::Adapters::EncodingToCoreString;
using Converter::Subtitles::Entities::SubtitleAlign;
using Converter::Subtitles::Entities::SubtitleCollectionMode;
using Converter::Subtitles::Entities::SubtitleTextSettings;
using Converter::Subtitles::Entities::SubtitleTrackID;

namespace
{

constexpr int VERSION = 1;

constexpr char const* NONE = "none";
constexpr char const* ALL = "all";
constexpr char const* TRACK = "track";
constexpr char const* UNDECIDED = "undecided";

QString ToText(std::string const& utf8)
{
    return QString::fromStdString(utf8);
}

std::string ReadText(QJsonObject const& object, char const* key)
{
    return object.value(QLatin1String(key)).toString().toStdString();
}

/// A text is all that an identifier shows of itself; whether it names a stream tells the list that it is used with.
SubtitleTrackID MakeTrackId(std::string const& text)
{
    return SubtitleTrackID(ioPath(text));
}

template <typename Range, typename ToString>
QJsonArray WriteTexts(Range const& range, ToString const& toString)
{
    QJsonArray array;
    for (auto const& item : range)
        array.append(ToText(toString(item)));
    return array;
}

QJsonArray WriteIds(std::set<SubtitleTrackID> const& ids)
{
    return WriteTexts(ids, [](SubtitleTrackID const& id) { return id.ToString(); });
}

std::vector<std::string> ReadTexts(QJsonValue const& value)
{
    std::vector<std::string> texts;
    for (QJsonValue const& item : value.toArray())
        if (item.isString())
            texts.push_back(item.toString().toStdString());
    return texts;
}

std::set<SubtitleTrackID> ReadIds(QJsonValue const& value)
{
    std::set<SubtitleTrackID> ids;
    for (std::string const& text : ReadTexts(value))
        ids.insert(MakeTrackId(text));
    return ids;
}

char const* NameMode(FilmChoice const& choice)
{
    switch (choice.mode)
    {
    case SubtitleCollectionMode::AllSoftSubtitles:
        return ALL;
    case SubtitleCollectionMode::SelectedTrack:
        return choice.isWithoutSubtitles ? NONE : TRACK;
    case SubtitleCollectionMode::ModeNone:
        break;
    }
    return UNDECIDED;
}

void ReadMode(QString const& name, FilmChoice& choice)
{
    if (name == QLatin1String(ALL))
        choice.mode = SubtitleCollectionMode::AllSoftSubtitles;
    else if (name == QLatin1String(TRACK) || name == QLatin1String(NONE))
        choice.mode = SubtitleCollectionMode::SelectedTrack;
    choice.isWithoutSubtitles = name == QLatin1String(NONE);
}

QJsonObject WriteLook(SubtitleTextSettings const& look)
{
    return {{"font", look.font.toString()},
            {"textColor", look.textColor.name()},
            {"outlineColor", look.outlineColor.name()},
            {"align", static_cast<int>(look.align)},
            {"shift", look.positionShift}};
}

SubtitleTextSettings ReadLook(QJsonObject const& object)
{
    SubtitleTextSettings look;
    if (QFont font; font.fromString(object.value("font").toString()))
        look.font = font;
    auto const readColor = [&object](char const* key, QColor& color)
    {
        QColor const stored(object.value(QLatin1String(key)).toString());
        if (stored.isValid())
            color = stored;
    };
    readColor("textColor", look.textColor);
    readColor("outlineColor", look.outlineColor);
    int const align = object.value("align").toInt();
    if (align >= 0 && align <= static_cast<int>(SubtitleAlign::Right))
        look.align = static_cast<SubtitleAlign>(align);
    look.positionShift = object.value("shift").toInt();
    return look;
}

QJsonObject WriteTrack(SubtitleTrackID const& id, TrackChoice const& track)
{
    return {{"id", ToText(id.ToString())},
            {"language", ToText(track.properties.language)},
            {"title", ToText(track.properties.title)},
            {"forced", track.properties.isForced},
            {"detail", ToText(track.detail)},
            {"encoding", ToText(EncodingToCoreString(track.encoding))},
            {"offset", track.offsetSeconds}};
}

TrackChoice ReadTrack(QJsonObject const& object)
{
    TrackChoice track;
    track.properties.language = ReadText(object, "language");
    track.properties.title = ReadText(object, "title");
    track.properties.isForced = object.value("forced").toBool();
    track.detail = ReadText(object, "detail");
    track.encoding = EncodingFromCoreString(ReadText(object, "encoding"));
    track.offsetSeconds = object.value("offset").toDouble();
    return track;
}

QJsonObject WriteFilm(Session::Entry const& film)
{
    FilmChoice const& choice = film.choice;
    QJsonArray tracks;
    for (auto const& [id, track] : choice.tracks)
        tracks.append(WriteTrack(id, track));
    QJsonObject object{
        {"path", ToText(film.path.utf8string())},
        {"subtitles", NameMode(choice)},
        {"track", ToText(choice.currentTrack.ToString())},
        {"files", WriteTexts(choice.files, [](ioPath const& file) { return file.utf8string(); })},
        {"removedFiles", WriteIds(choice.removedFiles)},
        {"leftOut", WriteIds(choice.leftOut)},
        {"tracks", tracks},
        {"look", WriteLook(choice.look)},
    };
    if (choice.defaultTracks)
        object.insert("defaultTracks", WriteIds(*choice.defaultTracks));
    return object;
}

Session::Entry ReadFilm(QJsonObject const& object)
{
    Session::Entry film;
    film.path = ReadText(object, "path");
    FilmChoice& choice = film.choice;
    ReadMode(object.value("subtitles").toString(), choice);
    choice.currentTrack = MakeTrackId(ReadText(object, "track"));
    for (std::string const& file : ReadTexts(object.value("files")))
        choice.files.emplace_back(file);
    choice.removedFiles = ReadIds(object.value("removedFiles"));
    choice.leftOut = ReadIds(object.value("leftOut"));
    for (QJsonValue const& track : object.value("tracks").toArray())
        choice.tracks.emplace(MakeTrackId(ReadText(track.toObject(), "id")), ReadTrack(track.toObject()));
    if (object.contains("defaultTracks"))
        choice.defaultTracks = ReadIds(object.value("defaultTracks"));
    choice.look = ReadLook(object.value("look").toObject());
    return film;
}

QJsonObject WriteOutput(OutputSettings const& output)
{
    QJsonObject object{{"format", ToText(output.formatId)}, {"quality", static_cast<int>(output.quality)}};
    if (output.folder)
        object.insert("folder", ToText(output.folder->utf8string()));
    return object;
}

OutputSettings ReadOutput(QJsonObject const& object)
{
    OutputSettings output;
    if (std::string const format = ReadText(object, "format"); Hosts::FindOutputFormat(format) != nullptr)
        output.formatId = format;
    int const quality = object.value("quality").toInt();
    if (quality >= 0 && quality <= static_cast<int>(Quality::Small))
        output.quality = static_cast<Quality>(quality);
    if (object.contains("folder"))
        output.folder = ReadText(object, "folder");
    return output;
}

} // namespace

QByteArray WriteSession(Session const& session)
{
    QJsonArray films;
    for (Session::Entry const& film : session.films)
        films.append(WriteFilm(film));
    QJsonObject extras;
    for (auto const& [name, bytes] : session.extras)
        extras.insert(ToText(name), QString::fromLatin1(bytes.toBase64()));
    return QJsonDocument(
               QJsonObject{
                   {"version", VERSION}, {"output", WriteOutput(session.output)}, {"films", films}, {"window", extras}})
        .toJson();
}

ReadSessionResult ReadSession(QByteArray const& bytes)
{
    QJsonObject const root = QJsonDocument::fromJson(bytes).object();
    int const version = root.value("version").toInt();
    if (version > VERSION)
        return {{}, SessionFailure::Newer};
    if (version < 1)
        return {{}, SessionFailure::Damaged};
    ReadSessionResult result;
    result.session.output = ReadOutput(root.value("output").toObject());
    for (QJsonValue const& film : root.value("films").toArray())
        if (Session::Entry entry = ReadFilm(film.toObject()); !entry.path.empty())
            result.session.films.push_back(std::move(entry));
    QJsonObject const extras = root.value("window").toObject();
    for (QString const& name : extras.keys())
        result.session.extras.emplace(name.toStdString(),
                                      QByteArray::fromBase64(extras.value(name).toString().toLatin1()));
    return result;
}

} // namespace Korvex::Desktop
