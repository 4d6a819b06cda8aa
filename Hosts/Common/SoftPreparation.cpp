#include "Common/SoftPreparation.h"

#include "Common/EncodingNames.h"
#include "Common/HostServices.h"
#include "Common/Sentences.h"
#include "Common/SessionError.h"
#include "Common/SoftPlan.h"
#include "Common/WorkFolder.h"

#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/Entities/TrackOrder.h"

#include "Core/FileSystem.h"
#include "Proc/MediaInfo.h"

#include <algorithm>
#include <set>
#include <utility>

namespace Korvex::Hosts
{

using Converter::Subtitles::Entities::SubtitleCollection;
using Converter::Subtitles::Entities::SubtitleEncoding;
using Converter::Subtitles::Entities::SubtitleTrack;

SoftPreparation::SoftPreparation(HostServices const& services, Proc::MediaInfo const& film,
                                 SubtitleChoice const& choice, std::string formatId, WorkFolder& folder)
    : m_services(services),
      m_film(film),
      m_choice(choice),
      m_formatId(std::move(formatId)),
      m_folder(folder)
{
}

void SoftPreparation::Prepare(SubtitleCollection& collection)
{
    m_hasExternalFile = std::any_of(collection.tracks.begin(), collection.tracks.end(),
                                    [](auto const& entry) { return entry.second.isExternal; });
    CheckChoice(collection);
    SpreadOptions(collection);
    SoftPlan const plan = MakeSoftPlan(m_services, m_film, collection, m_formatId);
    RefuseWhatCannotGo(plan, collection);
    auto const rewritten = CarryOut(plan, m_folder);
    if (!rewritten)
        throw FileError(rewritten.GetError());
    PutIn(*rewritten, collection);
    for (RewrittenTrack const& track : *rewritten)
        AddNote(track);
}

bool SoftPreparation::IsShifted(SubtitleTrack const& track) const
{
    return m_choice.offsetSeconds != 0.0 && (track.isExternal || !m_hasExternalFile);
}

void SoftPreparation::CheckChoice(SubtitleCollection const& collection) const
{
    if (m_choice.encoding && !m_hasExternalFile)
        throw ChoiceError("The option --encoding has no effect on " + Quoted(m_film.path) +
                          ": it is for subtitle files, and there is none.");
    if (m_choice.offsetSeconds == 0.0)
        return;
    if (collection.tracks.empty())
        throw ChoiceError("The option --offset has no effect on " + Quoted(m_film.path) +
                          ": there are no subtitles to move.");
    for (SubtitleTrack const* track : Converter::Subtitles::Entities::ListOrder(collection.tracks))
        if (!track->isExternal && !IsTextTrack(m_film, *track) && IsShifted(*track))
            throw ChoiceError("The option --offset cannot move track " + track->id.ToString() + " of " +
                              Quoted(m_film.path) + ", which is " + track->codecName +
                              ": leave the track out with --tracks, or draw it in with --burn.");
}

/// The options are for the whole run, the plan looks at each track.
void SoftPreparation::SpreadOptions(SubtitleCollection& collection) const
{
    for (auto& [id, track] : collection.tracks)
    {
        if (m_choice.encoding && track.encodingEditable)
            track.encoding = static_cast<SubtitleEncoding>(*m_choice.encoding);
        if (IsShifted(track))
            track.synchronizationOffset = m_choice.offsetSeconds;
    }
}

/// Tells of the first in the lists.
void SoftPreparation::RefuseWhatCannotGo(SoftPlan const& plan, SubtitleCollection const& collection) const
{
    for (SubtitleTrack const* track : Converter::Subtitles::Entities::ListOrder(collection.tracks))
    {
        auto const isThis = [track](auto const& entry) { return entry.track.id == track->id; };
        auto const problem = std::find_if(plan.problems.begin(), plan.problems.end(), isThis);
        if (problem != plan.problems.end())
            Refuse(*track, problem->obstacle);
        auto const rewrite = std::find_if(plan.rewrites.begin(), plan.rewrites.end(), isThis);
        if (rewrite != plan.rewrites.end() && m_choice.preparation == Preparation::Refuse)
            Refuse(*track, FindObstacle(*rewrite));
    }
}

void SoftPreparation::Refuse(SubtitleTrack const& track, CarryObstacle obstacle) const
{
    if (obstacle != CarryObstacle::Codec)
        throw ChoiceError("Track " + track.id.ToString() + " would have to be written anew for " +
                          (obstacle == CarryObstacle::Encoding ? "--encoding" : "--offset") +
                          ": leave out --no-prepare or that option.");
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
    std::vector<std::string> ways;
    std::vector<std::string> containers;
    for (std::string const& formatId : ListFormatsThatCarry(m_services, track.codecId))
        containers.push_back(DisplayName(formatId));
    if (!containers.empty())
        ways.push_back("choose " + JoinWithOr(containers));
    std::set<std::string> const allowed = m_services.GetAllowedSoftCodecIds(m_formatId);
    bool const canBeWrittenAnew =
        !FindOutputCodec(track.codecId, IsTextTrack(m_film, track), {allowed.begin(), allowed.end()}).empty();
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

void SoftPreparation::AddNote(RewrittenTrack const& rewritten)
{
    SubtitleTrack const& track = rewritten.rewrite.track;
    std::string sentence = "Track " + track.id.ToString() + " (" + track.codecName + ") ";
    if (!rewritten.track)
    {
        m_notes.push_back(sentence + "holds no cues and was left out.");
        return;
    }
    if (rewritten.written.codecId != track.codecId)
        sentence += "goes into " + DisplayName(m_formatId) + " as " + DisplayName(rewritten.written.codecId);
    else
        sentence += "was written anew";
    if (rewritten.rewrite.hasEncoding)
        sentence += ", read as " + rewritten.rewrite.source.encoding;
    if (rewritten.rewrite.hasShift)
        sentence += ", moved by " + FormatSeconds(track.synchronizationOffset) + " s";
    std::size_t const leftOut = rewritten.written.leftOutCues;
    if (leftOut > 0)
        sentence += ", leaving out " + std::to_string(leftOut) + (leftOut == 1 ? " cue" : " cues") +
                    " that would never be shown";
    m_notes.push_back(sentence + ".");
}

} // namespace Korvex::Hosts
