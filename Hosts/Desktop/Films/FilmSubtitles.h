#pragma once

#include "Desktop/Films/FilmChoice.h"
#include "Desktop/Films/TrackCodecs.h"

#include "Subtitles/Entities/SubtitleCollection.h"

#include "Proc/MediaInfo.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Korvex::Hosts
{
class HostServices;
} // namespace Korvex::Hosts

namespace Korvex::Converter::Transcoder::Entities
{
struct Preset;
} // namespace Korvex::Converter::Transcoder::Entities

namespace Korvex::Converter::Subtitles::Entities
{
class ISubtitleCollectionInteractor;
} // namespace Korvex::Converter::Subtitles::Entities

namespace Korvex::Desktop
{

/// The subtitles of one film as the module's interactor edits them, and what has to be kept beside it.
///
/// The interactor is given the codecs that tracks will go out as. That all tracks were wanted shows in the mode, which
/// the module leaves alone when it falls back to no subtitles. GUI thread.
class FilmSubtitles
{
public:
    using Collection = Converter::Subtitles::Entities::SubtitleCollection;
    using Track = Converter::Subtitles::Entities::SubtitleTrack;
    using TrackID = Converter::Subtitles::Entities::SubtitleTrackID;

    /// `services` has to outlive the object.
    explicit FilmSubtitles(Hosts::HostServices& services);
    ~FilmSubtitles();
    FilmSubtitles(FilmSubtitles const&) = delete;
    FilmSubtitles& operator=(FilmSubtitles const&) = delete;

    [[nodiscard]] Converter::Subtitles::Entities::ISubtitleCollectionInteractor& GetInteractor() const;

    /// Lists the film's tracks and the files beside it, and makes the choice on them.
    void Open(Proc::MediaInfo const& media, FilmChoice const& choice);
    void SetPreset(Converter::Transcoder::Entities::Preset const& preset);
    /// Brings what the module changed in line with what is kept here. Not from inside its notifications.
    void Settle();

    /// With the codecs of the sources.
    [[nodiscard]] Collection GetCollection() const;
    [[nodiscard]] FilmChoice GetChoice() const;
    [[nodiscard]] std::vector<Track> ListLeftOut() const;
    /// The files that were found beside the film, as they were found.
    [[nodiscard]] std::map<TrackID, Track> const& ListFoundBeside() const { return m_foundBeside; }
    [[nodiscard]] TrackProperties GetProperties(TrackID const& id) const;
    /// Whether the track was in when this was settled last.
    [[nodiscard]] bool IsSettled(TrackID const& id) const { return m_codecs.Knows(id); }

    void AddFiles(std::vector<ioPath> const& paths);
    void ChooseNone();
    void ChooseAllSoft();
    void ChooseTrack(TrackID const& id);
    void LeaveOut(TrackID const& id);
    void PutBack(TrackID const& id);
    void SetProperties(TrackID const& id, TrackProperties const& properties);
    void SetEncoding(TrackID const& id, Converter::Subtitles::Entities::SubtitleEncoding encoding);
    void SetOffset(TrackID const& id, double seconds);
    void SetLook(Converter::Subtitles::Entities::SubtitleTextSettings const& look);
    /// What was found out about files: their character encodings, by track.
    void NoteEncodings(std::map<TrackID, std::string> const& encodings);

    void ShowInPanels();

private:
    struct Choice
    {
        Converter::Subtitles::Entities::SubtitleCollectionMode mode;
        std::int32_t withoutSubtitles;
        TrackID currentTrack;
    };

    [[nodiscard]] static Choice ReadChoice(Collection const& collection);
    static void Make(Choice const& choice, Collection& collection);
    void LearnSources(Collection& collection);
    void Normalise(Collection& collection) const;
    void MarkDefaults(Collection& collection) const;
    [[nodiscard]] std::set<TrackID> ListDefaults() const;
    void TakeDefaultMark(TrackID const& id);
    [[nodiscard]] bool IsListed(ioPath const& path) const;
    void NoteTrack(Track const& track, FilmChoice& choice) const;
    void RestoreTracks(FilmChoice const& choice, Collection& collection);
    void ChooseWithout(TrackID const& id, Collection& collection) const;
    void Put(Collection collection);
    template <typename Change>
    void ChangeTrack(TrackID const& id, Change const& change);

    Hosts::HostServices& m_services;
    std::shared_ptr<Converter::Subtitles::Entities::ISubtitleCollectionInteractor> m_interactor;
    Proc::MediaInfo m_media;
    std::string m_formatId;
    TrackCodecs m_codecs;
    std::map<TrackID, Track> m_ownTracks; ///< as the film has them
    std::map<TrackID, Track> m_foundBeside;
    std::map<TrackID, Track> m_leftOut;
    std::set<TrackID> m_removedFiles;
    std::optional<std::set<TrackID>> m_defaultTracks; ///< not set: as in the film
    Choice m_settled{};
    std::map<TrackID, Choice> m_choiceBefore; ///< what was chosen when the file came in
};

} // namespace Korvex::Desktop
