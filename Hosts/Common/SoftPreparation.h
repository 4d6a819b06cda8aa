#pragma once

#include "Common/SubtitleChoice.h"

#include "Core/ioPath.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Korvex::Proc
{
struct ExportedSubtitle;
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

/// Where working files go: a folder that is made when it is first needed and removed with this object.
class WorkFolder
{
public:
    WorkFolder() = default;
    ~WorkFolder();
    WorkFolder(WorkFolder const&) = delete;
    WorkFolder& operator=(WorkFolder const&) = delete;

    /// Throws FileError when it cannot be made.
    [[nodiscard]] ioPath const& Get();

private:
    std::optional<ioPath> m_path;
};

/// Makes soft tracks fit. The soft settings carry neither encoding nor times, and each container takes only some
/// codecs; so a text track that needs more than copying is written anew as a working file, which takes its place in the
/// collection with title, language and marks kept. Throws FileError and ChoiceError.
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
    using Track = Converter::Subtitles::Entities::SubtitleTrack;

    /// Why a track has to be written anew.
    struct Need
    {
        bool isCodecRefused = false;
        bool hasEncoding = false;
        bool hasShift = false;

        [[nodiscard]] bool IsAny() const { return isCodecRefused || hasEncoding || hasShift; }
    };

    [[nodiscard]] bool IsBitmap(Track const& track) const;
    [[nodiscard]] bool IsShifted(Track const& track) const;
    [[nodiscard]] Need FindNeed(Track const& track) const;
    void CheckChoice(std::vector<Track> const& tracks) const;
    [[noreturn]] void Refuse(Track const& track, Need const& need) const;
    [[nodiscard]] std::string SuggestInstead(Track const& track) const;
    /// Empty when the track holds no cues: there is nothing to write.
    [[nodiscard]] std::optional<Track> Rewrite(Track const& track, Need const& need);
    void AddNote(Track const& track, Need const& need, Proc::ExportedSubtitle const& written);

    HostServices const& m_services;
    Proc::MediaInfo const& m_film;
    SubtitleChoice const& m_choice;
    std::string m_formatId;
    std::set<std::string> m_allowedCodecIds;
    bool m_hasExternalText = false;
    WorkFolder& m_folder;
    std::vector<std::string> m_notes;
};

} // namespace Korvex::Hosts
