#pragma once

#include "Common/SubtitleChoice.h"

#include <string>
#include <vector>

namespace Korvex::Proc
{
struct MediaInfo;
} // namespace Korvex::Proc

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleCollection;
struct SubtitleTrack;
} // namespace Korvex::Converter::Subtitles::Entities

namespace Korvex::Hosts
{

class HostServices;
class WorkFolder;
enum class CarryObstacle;
struct RewrittenTrack;
struct SoftPlan;

/// Makes soft tracks fit as the options of the command line ask for it, by way of a `SoftPlan`, and puts what was done
/// into words. Throws FileError and ChoiceError.
class SoftPreparation
{
public:
    /// All of them have to outlive the object.
    SoftPreparation(HostServices const& services, Proc::MediaInfo const& film, SubtitleChoice const& choice,
                    std::string formatId, WorkFolder& folder);

    void Prepare(Converter::Subtitles::Entities::SubtitleCollection& collection);

    /// What was converted, one sentence each.
    [[nodiscard]] std::vector<std::string> const& GetNotes() const { return m_notes; }

private:
    using Collection = Converter::Subtitles::Entities::SubtitleCollection;
    using Track = Converter::Subtitles::Entities::SubtitleTrack;

    [[nodiscard]] bool IsShifted(Track const& track) const;
    void CheckChoice(Collection const& collection) const;
    void SpreadOptions(Collection& collection) const;
    void RefuseWhatCannotGo(SoftPlan const& plan, Collection const& collection) const;
    [[noreturn]] void Refuse(Track const& track, CarryObstacle obstacle) const;
    [[nodiscard]] std::string SuggestInstead(Track const& track) const;
    void AddNote(RewrittenTrack const& rewritten);

    HostServices const& m_services;
    Proc::MediaInfo const& m_film;
    SubtitleChoice const& m_choice;
    std::string m_formatId;
    bool m_hasExternalFile = false;
    WorkFolder& m_folder;
    std::vector<std::string> m_notes;
};

} // namespace Korvex::Hosts
