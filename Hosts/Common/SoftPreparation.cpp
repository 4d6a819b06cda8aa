#include "Common/SoftPreparation.h"

#include "Common/EncodingNames.h"
#include "Common/HostServices.h"
#include "Common/OutputFormats.h"
#include "Common/Sentences.h"
#include "Common/SessionError.h"

#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/Entities/TrackOrder.h"

#include "Conf/IFormatCodecSubtitle.h"
#include "Core/FileSystem.h"
#include "Proc/MediaInfo.h"
#include "Proc/SubtitleExport.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <utility>

namespace Korvex::Hosts
{

using Converter::Subtitles::Entities::SubtitleCollection;
using Converter::Subtitles::Entities::SubtitleTrack;

namespace
{

/// What a text track can be written anew as.
std::array<std::string const*, 3> const TEXT_CODEC_IDS{&Conf::IFormatCodecSubtitle::CODEC_ID_SUBRIP,
                                                       &Conf::IFormatCodecSubtitle::CODEC_ID_ASS,
                                                       &Conf::IFormatCodecSubtitle::CODEC_ID_MOV_TEXT};

} // namespace

WorkFolder::~WorkFolder()
{
    if (m_path)
        Core::RemoveWorkFolder(*m_path);
}

ioPath const& WorkFolder::Get()
{
    if (!m_path)
    {
        auto folder = Core::CreateWorkFolder();
        if (!folder)
            throw FileError(folder.GetError());
        m_path = std::move(folder).Value();
    }
    return *m_path;
}

SoftPreparation::SoftPreparation(HostServices const& services, Proc::MediaInfo const& film,
                                 SubtitleChoice const& choice, std::string formatId, WorkFolder& folder)
    : m_services(services),
      m_film(film),
      m_choice(choice),
      m_formatId(std::move(formatId)),
      m_allowedCodecIds(services.GetAllowedSoftCodecIds(m_formatId)),
      m_folder(folder)
{
}

void SoftPreparation::Prepare(SubtitleCollection& collection)
{
    std::vector<SubtitleTrack> tracks;
    for (SubtitleTrack const* track : Converter::Subtitles::Entities::ListOrder(collection.tracks))
        tracks.push_back(*track);
    m_hasExternalText =
        std::any_of(tracks.begin(), tracks.end(),
                    [this](SubtitleTrack const& track) { return track.isExternal && !IsBitmap(track); });
    CheckChoice(tracks);

    for (SubtitleTrack const& track : tracks)
    {
        Need const need = FindNeed(track);
        if (!need.IsAny())
            continue;
        if (m_choice.preparation == Preparation::Refuse || IsBitmap(track))
            Refuse(track, need);
        if (std::optional<SubtitleTrack> const rewritten = Rewrite(track, need))
        {
            collection.tracks[track.id] = *rewritten;
            continue;
        }
        collection.tracks.erase(track.id);
        if (collection.defaultTracks)
            collection.defaultTracks->erase(track.id);
    }
}

bool SoftPreparation::IsBitmap(SubtitleTrack const& track) const
{
    Proc::StreamInfo const* stream = track.isExternal ? nullptr : m_film.FindStream(track.streamIndex);
    return stream != nullptr && !stream->isTextSubtitle;
}

bool SoftPreparation::IsShifted(SubtitleTrack const& track) const
{
    return m_choice.offsetSeconds != 0.0 && (track.isExternal || !m_hasExternalText);
}

SoftPreparation::Need SoftPreparation::FindNeed(SubtitleTrack const& track) const
{
    Need need;
    need.isCodecRefused = m_allowedCodecIds.count(track.codecId) == 0;
    need.hasEncoding = m_choice.encoding.value_or(0) != 0 && track.encodingEditable;
    need.hasShift = IsShifted(track);
    return need;
}

void SoftPreparation::CheckChoice(std::vector<SubtitleTrack> const& tracks) const
{
    if (m_choice.encoding && !m_hasExternalText)
        throw ChoiceError("The option --encoding has no effect on " + Quoted(m_film.path) +
                          ": it is for subtitle files, and there is none.");
    if (m_choice.offsetSeconds == 0.0)
        return;
    if (tracks.empty())
        throw ChoiceError("The option --offset has no effect on " + Quoted(m_film.path) +
                          ": there are no subtitles to move.");
    for (SubtitleTrack const& track : tracks)
        if (IsBitmap(track) && IsShifted(track))
            throw ChoiceError("The option --offset cannot move track " + track.id.ToString() + " of " +
                              Quoted(m_film.path) + ", which is " + track.codecName +
                              ": leave the track out with --tracks, or draw it in with --burn.");
}

void SoftPreparation::Refuse(SubtitleTrack const& track, Need const& need) const
{
    if (!need.isCodecRefused)
        throw ChoiceError("Track " + track.id.ToString() + " would have to be written anew for " +
                          (need.hasEncoding ? "--encoding" : "--offset") + ": leave out --no-prepare or that option.");
    Core::Error error;
    error.code = Core::ErrorCode::ContainerCannotCarry;
    error.file = track.isExternal ? track.path : m_film.path;
    error.track = track.id.ToString();
    error.codec = track.codecName.empty() ? track.codecId : track.codecName;
    error.container = DisplayName(m_formatId);
    error.detail = SuggestInstead(track);
    throw FileError(error);
}

std::string SoftPreparation::SuggestInstead(SubtitleTrack const& track) const
{
    std::vector<std::string> containers;
    for (OutputFormat const& format : GetOutputFormats())
        if (m_services.GetAllowedSoftCodecIds(format.id).count(track.codecId) > 0)
            containers.push_back(DisplayName(format.id));
    std::vector<std::string> ways;
    if (!containers.empty())
        ways.push_back("choose " + JoinWithOr(containers));
    bool const canBeWrittenAnew = !IsBitmap(track) && std::any_of(TEXT_CODEC_IDS.begin(), TEXT_CODEC_IDS.end(),
                                                                  [this](std::string const* codecId)
                                                                  { return m_allowedCodecIds.count(*codecId) > 0; });
    if (canBeWrittenAnew && m_choice.preparation == Preparation::Refuse)
        ways.emplace_back("leave out --no-prepare to have the text written anew");
    ways.push_back("draw it in with --burn=" + track.id.ToString());
    bool const isAdded = std::any_of(m_choice.added.begin(), m_choice.added.end(),
                                     [&track](AddedFile const& file)
                                     { return file.path == track.path || Core::IsSameFile(file.path, track.path); });
    ways.emplace_back(!track.isExternal ? "leave it out with --tracks"
                      : isAdded         ? "leave out its --add"
                                        : "keep to the film's own tracks with --no-lookup");
    return JoinWithOr(ways);
}

std::optional<SubtitleTrack> SoftPreparation::Rewrite(SubtitleTrack const& track, Need const& need)
{
    Proc::SubtitleSource source;
    source.path = track.isExternal ? track.path : m_film.path;
    if (!track.isExternal)
        source.streamIndex = track.streamIndex;
    if (need.hasEncoding)
        source.encoding = GetEncodingName(*m_choice.encoding);
    if (need.hasShift)
        source.timeShift = std::chrono::microseconds(std::llround(m_choice.offsetSeconds * 1e6));

    auto const written = Proc::PrepareSubtitle(source, {m_allowedCodecIds.begin(), m_allowedCodecIds.end()},
                                               m_folder.Get(), "track-" + std::to_string(m_notes.size() + 1));
    if (!written)
    {
        // A container without any text codec: refused by the track's own name and with what would work.
        if (written.GetError().code == Core::ErrorCode::ContainerCannotCarry)
            Refuse(track, need);
        throw FileError(written.GetError());
    }

    if (written->cueCount == 0)
    {
        m_notes.push_back("Track " + track.id.ToString() + " (" + track.codecName +
                          ") holds no cues and was left out.");
        return std::nullopt;
    }
    AddNote(track, need, *written);
    // With the track's identifier and number it keeps the track's place among the others.
    SubtitleTrack rewritten = track;
    rewritten.path = written->path;
    rewritten.isExternal = true;
    // A file's name in place of a title is told by being the path's, and stays so.
    if (track.isExternal && track.title == track.path.FileName())
        rewritten.title = rewritten.path.FileName();
    rewritten.codecId = written->codecId;
    rewritten.codecName = DisplayName(written->codecId);
    return rewritten;
}

void SoftPreparation::AddNote(SubtitleTrack const& track, Need const& need, Proc::ExportedSubtitle const& written)
{
    std::string sentence = "Track " + track.id.ToString() + " (" + track.codecName + ") ";
    if (written.codecId != track.codecId)
        sentence += "goes into " + DisplayName(m_formatId) + " as " + DisplayName(written.codecId);
    else
        sentence += "was written anew";
    if (need.hasEncoding)
        sentence += ", read as " + GetEncodingName(*m_choice.encoding);
    if (need.hasShift)
        sentence += ", moved by " + FormatSeconds(m_choice.offsetSeconds) + " s";
    if (written.leftOutCues > 0)
        sentence += ", leaving out " + std::to_string(written.leftOutCues) +
                    (written.leftOutCues == 1 ? " cue" : " cues") + " that would never be shown";
    m_notes.push_back(sentence + ".");
}

} // namespace Korvex::Hosts
