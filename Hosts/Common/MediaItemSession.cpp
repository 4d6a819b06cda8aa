#include "Common/MediaItemSession.h"

#include "Common/EncodingNames.h"
#include "Common/HostServices.h"
#include "Common/Sentences.h"
#include "Common/SessionError.h"
#include "Common/SoftPreparation.h"
#include "Common/SubtitleFiles.h"
#include "Common/WorkFolder.h"

#include "Subtitles/Subtitles.h"

#include "Conf/IFormatCodec.h"
#include "Core/FileSystem.h"
#include "Proc/Fonts.h"
#include "Proc/MediaInfo.h"
#include "Proc/SubtitleLoader.h"
#include "Transcoder/ITranscoderInteractor.h"

#include <QColor>
#include <QFont>
#include <QString>

#include <algorithm>
#include <utility>

namespace Korvex::Hosts
{

namespace Subtitles = Converter::Subtitles;
using Converter::Transcoder::Entities::ConversionRequest;
using Converter::Transcoder::Entities::MediaItem;
using Converter::Transcoder::Entities::Preset;
using Subtitles::Entities::ISubtitleCollectionInteractor;
using Subtitles::Entities::SubtitleAlign;
using Subtitles::Entities::SubtitleCollection;
using Subtitles::Entities::SubtitleCollectionMode;
using Subtitles::Entities::SubtitleEncoding;
using Subtitles::Entities::SubtitleTextSettings;
using Subtitles::Entities::SubtitleTrack;
using Subtitles::Entities::SubtitleTrackID;

namespace
{

QString ToText(std::string const& utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

void ApplyLook(LookChoice const& look, SubtitleTextSettings& settings)
{
    if (look.fontFamily)
        settings.font.setFamily(ToText(*look.fontFamily));
    if (look.fontSize)
        settings.font.setPointSize(*look.fontSize);
    if (look.isBold)
        settings.font.setBold(true);
    if (look.isItalic)
        settings.font.setItalic(true);
    if (look.isUnderlined)
        settings.font.setUnderline(true);
    if (look.isStruckOut)
        settings.font.setStrikeOut(true);
    if (look.textColor)
        settings.textColor = QColor(ToText(*look.textColor));
    if (look.outlineColor)
        settings.outlineColor = QColor(ToText(*look.outlineColor));
    if (look.align)
        settings.align = static_cast<SubtitleAlign>(*look.align);
    if (look.shiftLines)
        settings.positionShift = *look.shiftLines;
}

Core::Error MakeError(Core::ErrorCode code, ioPath const& file, std::string track = {})
{
    Core::Error error;
    error.code = code;
    error.file = file;
    error.track = std::move(track);
    return error;
}

} // namespace

class MediaItemSession::Impl
{
public:
    explicit Impl(HostServices& services) : m_services(services), m_interactor(services.GetPool().GetInteractor()) {}

    ~Impl() { m_interactor->ClearSubtitleCollection(); }

    void Open(ioPath const& film, Preset const& preset, SubtitleChoice const& choice)
    {
        auto info = Proc::ProbeMedia(film);
        if (!info)
            throw FileError(info.GetError());
        m_info = std::move(info).Value();
        m_preset = preset;

        SubtitleCollection const fresh;
        m_interactor->SetPresenterSettings({});
        m_interactor->SetPreset(preset);
        m_interactor->SetSubtitleCollection(fresh, true);
        m_item = MediaItem{film, static_cast<std::uint32_t>(fresh.collectionId), m_info.title};

        m_interactor->AddTrackList(ListOwnTracks(choice));
        if (choice.lookUp == SidecarLookUp::BesideFilm && IsFilm())
            m_services.GetTranscoder().AddMediaItem(m_item);
        for (AddedFile const& file : choice.added)
            Add(file);
        CompleteTracks();
    }

    void Apply(SubtitleChoice const& choice)
    {
        if (!IsFilm())
            throw FileError(MakeError(Core::ErrorCode::NothingToConvert, m_info.path));
        SubtitleCollection collection = m_interactor->GetSubtitleCollection();
        switch (choice.output)
        {
        case SubtitleOutput::Soft:
            ChooseSoft(choice, collection);
            break;
        case SubtitleOutput::Burn:
            ChooseBurn(choice, collection);
            break;
        case SubtitleOutput::None:
            collection.mode =
                collection.tracks.empty() ? SubtitleCollectionMode::ModeNone : SubtitleCollectionMode::SelectedTrack;
            collection.withoutSubtitles = 1;
            collection.currentTrack.Clear();
            break;
        }
        m_interactor->SetSubtitleCollection(collection, true);
    }

    Subtitles::CoreSettings ReadSettings() const
    {
        return Subtitles::ReadCoreSettings(m_interactor->GetSubtitleCollection());
    }

    ConversionRequest MakeRequest() const
    {
        ConversionRequest request;
        request.item = m_item;
        request.preset = m_preset;
        Subtitles::CoreSettings const settings = ReadSettings();
        request.soft = settings.soft;
        request.mixer = settings.mixer;
        return request;
    }

    SubtitleTrack FindTrack(std::string const& id) const
    {
        SubtitleCollection const collection = m_interactor->GetSubtitleCollection();
        for (auto const& [trackId, track] : collection.tracks)
            if (trackId.ToString() == id)
                return track;
        SubtitleTrackID const external = FindExternal(id);
        if (external.IsEmpty())
            throw FileError(MakeMissingTrackError(id));
        return collection.tracks.at(external);
    }

    Proc::MediaInfo const& GetMediaInfo() const { return m_info; }
    SubtitleCollection GetCollection() const { return m_interactor->GetSubtitleCollection(); }
    std::vector<std::string> TakeNotes() { return std::exchange(m_notes, {}); }

private:
    std::map<SubtitleTrackID, SubtitleTrack> ListOwnTracks(SubtitleChoice const& choice) const
    {
        std::map<SubtitleTrackID, SubtitleTrack> all = Subtitles::ListMediaTracks(m_info);
        if (!choice.ownTracks)
            return all;
        std::map<SubtitleTrackID, SubtitleTrack> chosen;
        for (std::string const& id : *choice.ownTracks)
        {
            auto const found =
                std::find_if(all.begin(), all.end(), [&](auto const& entry) { return entry.first.ToString() == id; });
            if (found == all.end())
                throw FileError(MakeMissingTrackError(id));
            chosen.insert(*found);
        }
        return chosen;
    }

    Core::Error MakeMissingTrackError(std::string const& id) const
    {
        bool const isOtherStream =
            std::any_of(m_info.streams.begin(), m_info.streams.end(),
                        [&](Proc::StreamInfo const& stream) { return std::to_string(stream.index) == id; });
        return MakeError(isOtherStream ? Core::ErrorCode::TrackNotSubtitle : Core::ErrorCode::NoSuchTrack, m_info.path,
                         id);
    }

    /// A subtitle file has no files beside it: it is one.
    bool IsFilm() const
    {
        return std::any_of(m_info.streams.begin(), m_info.streams.end(),
                           [](Proc::StreamInfo const& stream) {
                               return stream.kind == Proc::StreamKind::Video || stream.kind == Proc::StreamKind::Audio;
                           });
    }

    void Add(AddedFile const& file)
    {
        SubtitleTrackID id = FindExternal(file.path);
        if (id.IsEmpty())
        {
            m_interactor->AddSubtitles(file.path);
            id = SubtitleTrackID(file.path);
        }
        SubtitleCollection collection = m_interactor->GetSubtitleCollection();
        auto const found = collection.tracks.find(id);
        if (found == collection.tracks.end() || found->second.codecId == Conf::IFormatCodec::CODEC_ID_NONE)
            throw FileError(ExplainUnreadable(file.path));
        if (!file.language.empty())
            found->second.language = file.language;
        if (!file.title.empty())
            found->second.title = file.title;
        if (file.isForced)
            found->second.isForced = true;
        if (file.isDefault)
            m_markedDefault.insert(id);
        m_interactor->SetSubtitleCollection(collection, true);
    }

    /// The track that this file already is, however its path was spelled.
    SubtitleTrackID FindExternal(ioPath const& path) const
    {
        SubtitleCollection const collection = m_interactor->GetSubtitleCollection();
        for (auto const& [id, track] : collection.tracks)
            if (track.isExternal && (track.path == path || Core::IsSameFile(track.path, path)))
                return id;
        return {};
    }

    /// What the listed tracks still lack: the encodings of files and who is on by default.
    void CompleteTracks()
    {
        SubtitleCollection collection = m_interactor->GetSubtitleCollection();
        Subtitles::NoteDetectedEncodings(collection);
        MarkDefaults(collection);
        m_interactor->SetSubtitleCollection(collection, true);
    }

    /// Where the user marked files, they alone are on by default; else the film's own marks stay.
    void MarkDefaults(SubtitleCollection& collection) const
    {
        collection.defaultTracks = m_markedDefault;
        if (m_markedDefault.empty())
            for (auto const& [id, track] : collection.tracks)
            {
                Proc::StreamInfo const* stream = track.isExternal ? nullptr : m_info.FindStream(track.streamIndex);
                if (stream != nullptr && stream->isDefault)
                    collection.defaultTracks->insert(id);
            }
    }

    void ChooseSoft(SubtitleChoice const& choice, SubtitleCollection& collection)
    {
        auto const listed = collection.tracks;
        SoftPreparation preparation(m_services, m_info, choice, m_preset.formatId, m_folder);
        preparation.Prepare(collection);
        // What was written anew is clean now, so the conversion has nothing to warn of.
        for (auto const& [id, track] : listed)
        {
            auto const kept = collection.tracks.find(id);
            bool const isUntouched = kept != collection.tracks.end() && kept->second.path == track.path;
            DescribeExternal(track, choice, isUntouched ? DamageReport::ByConversion : DamageReport::Here);
        }
        m_notes.insert(m_notes.end(), preparation.GetNotes().begin(), preparation.GetNotes().end());
        collection.mode =
            collection.tracks.empty() ? SubtitleCollectionMode::ModeNone : SubtitleCollectionMode::AllSoftSubtitles;
        collection.withoutSubtitles = collection.tracks.empty() ? 1 : 0;
        collection.currentTrack.Clear();
    }

    void ChooseBurn(SubtitleChoice const& choice, SubtitleCollection& collection)
    {
        SubtitleTrackID const id = FindBurnTrack(choice, collection);
        SubtitleTrack& track = collection.tracks.at(id);
        if (choice.encoding && !track.encodingEditable)
            throw ChoiceError("The option --encoding has no effect on track " + id.ToString() + " of " +
                              Quoted(m_info.path) + ": it is for subtitle files of their own.");
        if (choice.look.HasStyle() && !track.styleEditable)
            throw ChoiceError("The options about font and colours have no effect on track " + id.ToString() + " of " +
                              Quoted(m_info.path) + ", which is " + track.codecName + " and has a look of its own.");
        track.encoding = static_cast<SubtitleEncoding>(choice.encoding.value_or(0));
        track.synchronizationOffset = choice.offsetSeconds;
        DescribeExternal(track, choice, DamageReport::Here);
        ApplyLook(choice.look, collection.textSettings);
        DescribeFont(choice.look);
        collection.mode = SubtitleCollectionMode::SelectedTrack;
        collection.withoutSubtitles = 0;
        collection.currentTrack = id;
    }

    /// A font that somebody chose is not replaced in silence; the default one is just a wish.
    void DescribeFont(LookChoice const& look)
    {
        std::string const standIn = look.fontFamily ? Proc::FindStandInFont(*look.fontFamily) : std::string();
        if (!standIn.empty())
            m_notes.push_back("The font \"" + *look.fontFamily + "\" is not installed; \"" + standIn +
                              "\" stands in for it in " + Quoted(m_info.path) + ".");
    }

    SubtitleTrackID FindBurnTrack(SubtitleChoice const& choice, SubtitleCollection const& collection) const
    {
        if (!choice.burnTrack.empty())
            return FindTrack(choice.burnTrack).id;
        if (choice.added.size() == 1)
            return FindExternal(choice.added.front().path);
        if (choice.added.empty() && collection.tracks.size() == 1)
            return collection.tracks.begin()->first;
        throw ChoiceError(collection.tracks.empty()
                              ? "There are no subtitles to draw into " + Quoted(m_info.path) +
                                    ": add a file with --add."
                              : "Several tracks of " + Quoted(m_info.path) +
                                    " could be drawn in: name one with --burn=TRACK; \"korvex tracks\" lists them.");
    }

    void DescribeExternal(SubtitleTrack const& track, SubtitleChoice const& choice, DamageReport damage)
    {
        if (!track.isExternal)
            return;
        bool const hasEncoding = choice.encoding && track.encodingEditable;
        auto const document =
            Proc::LoadSubtitleFile(track.path, hasEncoding ? GetEncodingName(*choice.encoding) : std::string());
        if (!document)
            throw FileError(document.GetError());
        if (auto const* text = std::get_if<Proc::TextDocument>(&*document))
            for (std::string& note : DescribeReading(track.path, *text, damage))
                m_notes.push_back(std::move(note));
    }

    HostServices& m_services;
    std::shared_ptr<ISubtitleCollectionInteractor> m_interactor;
    Proc::MediaInfo m_info;
    Preset m_preset;
    MediaItem m_item;
    std::set<SubtitleTrackID> m_markedDefault;
    WorkFolder m_folder;
    std::vector<std::string> m_notes;
};

MediaItemSession::MediaItemSession(HostServices& services) : m_impl(std::make_unique<Impl>(services)) {}

MediaItemSession::~MediaItemSession() = default;

void MediaItemSession::Open(ioPath const& film, Preset const& preset, SubtitleChoice const& choice)
{
    m_impl->Open(film, preset, choice);
}

void MediaItemSession::Apply(SubtitleChoice const& choice)
{
    m_impl->Apply(choice);
}

Proc::MediaInfo const& MediaItemSession::GetMediaInfo() const
{
    return m_impl->GetMediaInfo();
}

SubtitleCollection MediaItemSession::GetCollection() const
{
    return m_impl->GetCollection();
}

SubtitleTrack MediaItemSession::FindTrack(std::string const& id) const
{
    return m_impl->FindTrack(id);
}

std::shared_ptr<Proc::SettingsSubtitleMixer const> MediaItemSession::GetMixerSettings() const
{
    return m_impl->ReadSettings().mixer;
}

ConversionRequest MediaItemSession::MakeRequest() const
{
    return m_impl->MakeRequest();
}

std::vector<std::string> MediaItemSession::TakeNotes()
{
    return m_impl->TakeNotes();
}

} // namespace Korvex::Hosts
