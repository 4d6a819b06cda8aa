#include "Desktop/Films/FilmSubtitles.h"

#include "Common/HostServices.h"

#include "Subtitles/Entities/TrackMarks.h"
#include "Subtitles/Entities/TrackOrder.h"
#include "Subtitles/Subtitles.h"

#include "Core/FileSystem.h"
#include "Transcoder/ITranscoderInteractor.h"
#include "Transcoder/Preset.h"

#include <algorithm>
#include <utility>

namespace Korvex::Desktop
{

namespace Entities = Converter::Subtitles::Entities;
using Converter::Transcoder::Entities::MediaItem;
using Converter::Transcoder::Entities::Preset;
using Entities::SubtitleCollection;
using Entities::SubtitleCollectionMode;
using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;

namespace
{

/// The panels show one film at a time. All others have to be told to keep away, or their next change would take them.
FilmSubtitles*& Shown()
{
    static FilmSubtitles* shown = nullptr;
    return shown;
}

bool HasProperTitle(SubtitleTrack const& track)
{
    return !track.isExternal || track.title != track.path.FileName();
}

void SetForced(bool isForced, SubtitleTrack& track)
{
    track.isForced = isForced;
    Entities::TrackMarks marks = Entities::ReadMarks(track.detail);
    marks.isForced = isForced;
    track.detail = Entities::DescribeMarks(marks);
}

/// But for the default mark, which belongs to the collection.
TrackProperties ReadProperties(SubtitleTrack const& track)
{
    return {track.language, HasProperTitle(track) ? track.title : std::string(), false, track.isForced};
}

void SetNames(TrackProperties const& properties, SubtitleTrack& track)
{
    track.language = properties.language;
    track.title = properties.title.empty() && track.isExternal ? track.path.FileName() : properties.title;
    if (properties.isForced != track.isForced)
        SetForced(properties.isForced, track);
}

} // namespace

FilmSubtitles::FilmSubtitles(Hosts::HostServices& services)
    : m_services(services),
      m_interactor(services.GetPool().GetInteractor())
{
    m_interactor->SetPresenterSettings({});
    m_interactor->SetSubtitleCollection(SubtitleCollection(), true);
}

FilmSubtitles::~FilmSubtitles()
{
    if (Shown() == this)
        Shown() = nullptr;
    m_interactor->SetPresenterSettings({});
    m_interactor->ClearSubtitleCollection();
}

Entities::ISubtitleCollectionInteractor& FilmSubtitles::GetInteractor() const
{
    return *m_interactor;
}

void FilmSubtitles::Open(Proc::MediaInfo const& media, FilmChoice const& choice)
{
    m_media = media;
    m_codecs.Clear();
    m_leftOut.clear();
    m_choiceBefore.clear();
    m_removedFiles = choice.removedFiles;
    m_defaultTracks = choice.defaultTracks;
    m_ownTracks = Converter::Subtitles::ListMediaTracks(media);

    SubtitleCollection fresh;
    fresh.textSettings = choice.look;
    m_interactor->SetSubtitleCollection(fresh, true);
    std::map<SubtitleTrackID, SubtitleTrack> tracks;
    for (auto const& [id, track] : m_ownTracks)
        (choice.leftOut.count(id) > 0 ? m_leftOut : tracks).emplace(id, track);
    m_interactor->AddTrackList(tracks);
    m_services.GetTranscoder().AddMediaItem(
        MediaItem{media.path, static_cast<std::uint32_t>(fresh.collectionId), media.title});
    m_foundBeside.clear();
    for (auto const& [id, track] : m_interactor->GetSubtitleCollection().tracks)
        if (track.isExternal)
            m_foundBeside.emplace(id, track);
    for (ioPath const& file : choice.files)
        if (!IsListed(file))
            m_interactor->AddSubtitles(file);

    SubtitleCollection collection = m_interactor->GetSubtitleCollection();
    for (SubtitleTrackID const& id : m_removedFiles)
        collection.tracks.erase(id);
    LearnSources(collection);
    RestoreTracks(choice, collection);
    Put(std::move(collection));
}

void FilmSubtitles::RestoreTracks(FilmChoice const& choice, SubtitleCollection& collection)
{
    for (auto const& [id, chosen] : choice.tracks)
        for (auto* tracks : {&collection.tracks, &m_leftOut})
        {
            auto const found = tracks->find(id);
            if (found == tracks->end())
                continue;
            if (found->second.isExternal && !chosen.detail.empty())
                found->second.detail = chosen.detail;
            SetNames(chosen.properties, found->second);
            found->second.encoding = chosen.encoding;
            found->second.synchronizationOffset = chosen.offsetSeconds;
        }
    bool const isTrackGone = choice.mode == SubtitleCollectionMode::SelectedTrack && !choice.isWithoutSubtitles &&
                             collection.tracks.count(choice.currentTrack) == 0;
    collection.mode = isTrackGone ? SubtitleCollectionMode::ModeNone : choice.mode;
    collection.withoutSubtitles = choice.isWithoutSubtitles ? 1 : 0;
    collection.currentTrack = isTrackGone ? SubtitleTrackID() : choice.currentTrack;
}

void FilmSubtitles::SetPreset(Preset const& preset)
{
    m_interactor->SetPreset(preset);
    if (preset.formatId == m_formatId)
        return;
    m_formatId = preset.formatId;
    auto const allowed = m_services.GetAllowedSoftCodecIds(m_formatId);
    m_codecs.SetAllowed({allowed.begin(), allowed.end()});
    Put(m_interactor->GetSubtitleCollection());
}

void FilmSubtitles::Settle()
{
    SubtitleCollection const edited = m_interactor->GetSubtitleCollection();
    SubtitleCollection settled = edited;
    LearnSources(settled);
    Normalise(settled);
    if (settled != edited)
        m_interactor->SetSubtitleCollection(settled, true);
    m_settled = ReadChoice(settled);
}

SubtitleCollection FilmSubtitles::GetCollection() const
{
    SubtitleCollection collection = m_interactor->GetSubtitleCollection();
    m_codecs.ShowSources(collection);
    return collection;
}

FilmChoice FilmSubtitles::GetChoice() const
{
    SubtitleCollection const collection = m_interactor->GetSubtitleCollection();
    FilmChoice choice;
    choice.mode = collection.mode;
    choice.isWithoutSubtitles =
        collection.mode == SubtitleCollectionMode::SelectedTrack && collection.withoutSubtitles != 0;
    choice.currentTrack = collection.currentTrack;
    choice.removedFiles = m_removedFiles;
    choice.defaultTracks = m_defaultTracks;
    choice.look = collection.textSettings;
    for (auto const& [id, track] : m_leftOut)
    {
        choice.leftOut.insert(id);
        NoteTrack(track, choice);
    }
    for (auto const& [id, track] : collection.tracks)
    {
        if (track.isExternal)
            choice.files.push_back(track.path);
        NoteTrack(track, choice);
    }
    return choice;
}

/// A track that is as the film has it needs no words.
void FilmSubtitles::NoteTrack(SubtitleTrack const& track, FilmChoice& choice) const
{
    auto const own = m_ownTracks.find(track.id);
    bool const isAsInFilm = own != m_ownTracks.end() && own->second.language == track.language &&
                            own->second.title == track.title && own->second.isForced == track.isForced &&
                            track.synchronizationOffset == 0.0;
    if (!isAsInFilm)
        choice.tracks.emplace(track.id, TrackChoice{ReadProperties(track), track.encoding, track.synchronizationOffset,
                                                    track.isExternal ? track.detail : std::string()});
}

std::vector<SubtitleTrack> FilmSubtitles::ListLeftOut() const
{
    std::vector<SubtitleTrack> tracks;
    for (SubtitleTrack const* track : Entities::ListOrder(m_leftOut))
        tracks.push_back(*track);
    return tracks;
}

TrackProperties FilmSubtitles::GetProperties(SubtitleTrackID const& id) const
{
    SubtitleCollection const collection = m_interactor->GetSubtitleCollection();
    auto const found = collection.tracks.find(id);
    if (found == collection.tracks.end())
        return {};
    TrackProperties properties = ReadProperties(found->second);
    properties.isDefault = collection.defaultTracks && collection.defaultTracks->count(id) > 0;
    return properties;
}

void FilmSubtitles::AddFiles(std::vector<ioPath> const& paths)
{
    for (ioPath const& path : paths)
        if (!IsListed(path))
            m_interactor->AddSubtitles(path);
    Settle();
}

void FilmSubtitles::ChooseNone()
{
    SubtitleCollection collection = m_interactor->GetSubtitleCollection();
    Make({SubtitleCollectionMode::SelectedTrack, 1, {}}, collection);
    Put(std::move(collection));
}

void FilmSubtitles::ChooseAllSoft()
{
    SubtitleCollection collection = m_interactor->GetSubtitleCollection();
    Make({SubtitleCollectionMode::AllSoftSubtitles, 0, collection.currentTrack}, collection);
    Put(std::move(collection));
}

void FilmSubtitles::ChooseTrack(SubtitleTrackID const& id)
{
    SubtitleCollection collection = m_interactor->GetSubtitleCollection();
    if (collection.tracks.count(id) == 0)
        return;
    Make({SubtitleCollectionMode::SelectedTrack, 0, id}, collection);
    Put(std::move(collection));
}

void FilmSubtitles::LeaveOut(SubtitleTrackID const& id)
{
    SubtitleCollection collection = m_interactor->GetSubtitleCollection();
    auto const found = collection.tracks.find(id);
    if (found == collection.tracks.end())
        return;
    SubtitleTrack track = std::move(found->second);
    collection.tracks.erase(found);
    if (collection.currentTrack == id)
        ChooseWithout(id, collection);
    if (track.isExternal)
    {
        TakeDefaultMark(id);
        m_removedFiles.insert(id);
        m_codecs.Forget(id);
        m_choiceBefore.erase(id);
    }
    else
    {
        track.codecId = m_ownTracks.at(id).codecId;
        m_leftOut.emplace(id, std::move(track));
    }
    Put(std::move(collection));
}

/// The current track goes: what was chosen before it came in counts again, if that can still be had.
void FilmSubtitles::ChooseWithout(SubtitleTrackID const& id, SubtitleCollection& collection) const
{
    if (collection.mode != SubtitleCollectionMode::SelectedTrack || collection.withoutSubtitles != 0)
    {
        collection.currentTrack.Clear();
        return;
    }
    auto const before = m_choiceBefore.find(id);
    bool const canReturn =
        before != m_choiceBefore.end() &&
        (before->second.mode != SubtitleCollectionMode::SelectedTrack || before->second.withoutSubtitles != 0 ||
         collection.tracks.count(before->second.currentTrack) > 0);
    Make(canReturn ? before->second : Choice{SubtitleCollectionMode::SelectedTrack, 1, {}}, collection);
}

void FilmSubtitles::PutBack(SubtitleTrackID const& id)
{
    auto const found = m_leftOut.find(id);
    if (found == m_leftOut.end())
        return;
    SubtitleCollection collection = m_interactor->GetSubtitleCollection();
    collection.tracks.insert(m_leftOut.extract(found));
    Put(std::move(collection));
}

template <typename Change>
void FilmSubtitles::ChangeTrack(SubtitleTrackID const& id, Change const& change)
{
    SubtitleCollection collection = m_interactor->GetSubtitleCollection();
    auto const found = collection.tracks.find(id);
    if (found == collection.tracks.end())
        return;
    change(found->second);
    Put(std::move(collection));
}

/// As with the command line, marking a track as default takes the film's own marks off; they return with the last one.
void FilmSubtitles::SetProperties(SubtitleTrackID const& id, TrackProperties const& properties)
{
    SubtitleCollection const collection = m_interactor->GetSubtitleCollection();
    if (collection.tracks.count(id) == 0)
        return;
    bool const wasDefault = collection.defaultTracks && collection.defaultTracks->count(id) > 0;
    if (properties.isDefault && !wasDefault)
    {
        if (!m_defaultTracks)
            m_defaultTracks.emplace();
        m_defaultTracks->insert(id);
    }
    else if (!properties.isDefault && wasDefault)
    {
        m_defaultTracks = ListDefaults();
        TakeDefaultMark(id);
    }
    ChangeTrack(id, [&](SubtitleTrack& track) { SetNames(properties, track); });
}

void FilmSubtitles::TakeDefaultMark(SubtitleTrackID const& id)
{
    if (!m_defaultTracks || m_defaultTracks->erase(id) == 0)
        return;
    if (m_defaultTracks->empty() && m_ownTracks.count(id) == 0)
        m_defaultTracks.reset();
}

void FilmSubtitles::SetEncoding(SubtitleTrackID const& id, Entities::SubtitleEncoding encoding)
{
    ChangeTrack(id, [&](SubtitleTrack& track) { track.encoding = encoding; });
}

void FilmSubtitles::SetOffset(SubtitleTrackID const& id, double seconds)
{
    ChangeTrack(id, [&](SubtitleTrack& track) { track.synchronizationOffset = seconds; });
}

void FilmSubtitles::SetLook(Entities::SubtitleTextSettings const& look)
{
    SubtitleCollection collection = m_interactor->GetSubtitleCollection();
    collection.textSettings = look;
    Put(std::move(collection));
}

void FilmSubtitles::NoteEncodings(std::map<SubtitleTrackID, std::string> const& encodings)
{
    SubtitleCollection collection = m_interactor->GetSubtitleCollection();
    bool isAnyNew = false;
    for (auto const& [id, encoding] : encodings)
    {
        auto const found = collection.tracks.find(id);
        if (found == collection.tracks.end() || found->second.extra == encoding)
            continue;
        found->second.extra = encoding;
        isAnyNew = true;
    }
    if (isAnyNew)
        Put(std::move(collection));
}

void FilmSubtitles::ShowInPanels()
{
    if (Shown() != nullptr)
        Shown()->m_interactor->SetPresenterSettings({});
    Shown() = this;
    m_interactor->SetPresenterSettings({Entities::SubtitlePresenterKind::Both});
    Put(m_interactor->GetSubtitleCollection());
}

FilmSubtitles::Choice FilmSubtitles::ReadChoice(SubtitleCollection const& collection)
{
    return {collection.mode, collection.withoutSubtitles, collection.currentTrack};
}

void FilmSubtitles::Make(Choice const& choice, SubtitleCollection& collection)
{
    collection.mode = choice.mode;
    collection.withoutSubtitles = choice.withoutSubtitles;
    collection.currentTrack = choice.currentTrack;
}

/// Edits without a track leave an entry that is none.
void FilmSubtitles::LearnSources(SubtitleCollection& collection)
{
    for (auto entry = collection.tracks.begin(); entry != collection.tracks.end();)
    {
        auto const& [id, track] = *entry;
        if (track.IsEmpty())
        {
            entry = collection.tracks.erase(entry);
            continue;
        }
        if (m_codecs.Learn(track) && track.isExternal)
        {
            m_removedFiles.erase(id);
            m_choiceBefore.emplace(id, m_settled);
        }
        ++entry;
    }
}

void FilmSubtitles::Normalise(SubtitleCollection& collection) const
{
    MarkDefaults(collection);
    bool const isSoftPossible = m_codecs.ShowOutputs(m_media, collection);
    if (collection.mode == SubtitleCollectionMode::ModeNone && !collection.tracks.empty())
        collection.mode = SubtitleCollectionMode::AllSoftSubtitles;
    if (collection.mode == SubtitleCollectionMode::AllSoftSubtitles)
        collection.withoutSubtitles = isSoftPossible ? 0 : 1;
    collection.currentIndex = Entities::FindListRow(collection.tracks, collection.currentTrack);
}

void FilmSubtitles::MarkDefaults(SubtitleCollection& collection) const
{
    collection.defaultTracks.emplace();
    for (SubtitleTrackID const& id : ListDefaults())
        if (collection.tracks.count(id) > 0)
            collection.defaultTracks->insert(id);
}

/// Of the film's tracks that are left out, too: they may be put back.
std::set<SubtitleTrackID> FilmSubtitles::ListDefaults() const
{
    if (m_defaultTracks)
        return *m_defaultTracks;
    std::set<SubtitleTrackID> defaults;
    for (auto const& [id, track] : m_ownTracks)
        if (Proc::StreamInfo const* stream = m_media.FindStream(track.streamIndex);
            stream != nullptr && stream->isDefault)
            defaults.insert(id);
    return defaults;
}

bool FilmSubtitles::IsListed(ioPath const& path) const
{
    SubtitleCollection const collection = m_interactor->GetSubtitleCollection();
    return std::any_of(collection.tracks.begin(), collection.tracks.end(),
                       [&path](auto const& entry) {
                           return entry.second.isExternal &&
                                  (entry.second.path == path || Core::IsSameFile(entry.second.path, path));
                       });
}

void FilmSubtitles::Put(SubtitleCollection collection)
{
    LearnSources(collection);
    Normalise(collection);
    m_interactor->SetSubtitleCollection(collection, true);
    m_settled = ReadChoice(collection);
}

} // namespace Korvex::Desktop
