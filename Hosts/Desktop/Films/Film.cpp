#include "Desktop/Films/Film.h"

#include "Common/SoftPlan.h"
#include "Desktop/Films/AddedFiles.h"
#include "Desktop/Films/ConversionJob.h"
#include "Desktop/Films/FileKinds.h"
#include "Desktop/Films/FilePatterns.h"
#include "Desktop/Films/FileThread.h"
#include "Desktop/Films/FilmSubtitles.h"
#include "Desktop/Films/FilmWords.h"
#include "Desktop/Films/OutputSettings.h"
#include "Desktop/Words/ErrorWords.h"

#include "Subtitles/Subtitles.h"

#include "Core/Error.h"
#include "Core/ScopedObservation.h"
#include "Proc/MediaInfo.h"
#include "Proc/Settings.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Korvex::Desktop
{

namespace Entities = Converter::Subtitles::Entities;
using Entities::SubtitleCollection;
using Entities::SubtitleCollectionMode;
using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;

class Film::Impl final : public Entities::ISubtitleCollectionInteractorEventObserver
{
public:
    Impl(Film& owner, Hosts::HostServices& services, FilmId filmId, ioPath filmPath,
         std::shared_ptr<FileThread> fileThread)
        : id(filmId),
          path(filmPath),
          subtitles(services),
          m_owner(owner),
          m_services(services),
          m_choicePath(std::move(filmPath)),
          m_addedFiles(fileThread ? std::move(fileThread) : std::make_shared<FileThread>(),
                       [this](AddedFiles::Encodings const& encodings) { NoteEncodings(encodings); }),
          m_observation(subtitles.GetInteractor(), *this)
    {
        SetOutput({});
    }

    void SetOutput(OutputSettings const& settings)
    {
        m_formatId = settings.formatId;
        subtitles.SetPreset(MakePreset(settings));
        NoteChange();
    }

    void SetMedia(Proc::MediaInfo const& read)
    {
        FilmChoice const choice =
            FollowFilm(m_wasRead ? subtitles.GetChoice() : m_waitingChoice, m_choicePath, read.path);
        m_choicePath = read.path;
        media = read;
        state = FilmState::Ready;
        m_wasRead = true;
        m_addedFiles.Forget();
        subtitles.Open(media, choice);
        if (!m_waitingFiles.empty())
            subtitles.AddFiles(std::exchange(m_waitingFiles, {}));
        NoteChange();
    }

    void SetFailure(Core::Error const& error)
    {
        state = error.code == Core::ErrorCode::FileNotFound ? FilmState::Missing : FilmState::Unreadable;
        m_failure = error;
        NoteChange();
    }

    [[nodiscard]] QString GetStateSentence() const
    {
        if (state == FilmState::Missing)
            return tr("The film \"%1\" is not there any more: show where it is now, or remove it from the list.")
                .arg(QString::fromStdString(path.utf8string()));
        return state == FilmState::Unreadable ? Describe(m_failure) : QString();
    }

    void SetReading(ioPath const& newPath)
    {
        path = newPath;
        state = FilmState::Reading;
        NoteChange();
    }

    [[nodiscard]] FilmChoice GetChoice() const
    {
        FilmChoice choice = m_wasRead ? subtitles.GetChoice() : m_waitingChoice;
        for (ioPath const& file : m_waitingFiles)
        {
            choice.files.push_back(file);
            choice.mode = SubtitleCollectionMode::SelectedTrack;
            choice.isWithoutSubtitles = false;
            choice.currentTrack = SubtitleTrackID(file);
        }
        return choice;
    }

    void SetChoice(FilmChoice const& choice)
    {
        if (m_wasRead)
            subtitles.Open(media, choice);
        else
            m_waitingChoice = choice;
        NoteChange();
    }

    void AddFiles(std::vector<ioPath> const& paths)
    {
        if (m_wasRead && state != FilmState::Reading)
            subtitles.AddFiles(paths);
        else
            m_waitingFiles.insert(m_waitingFiles.end(), paths.begin(), paths.end());
        NoteChange();
    }

    [[nodiscard]] std::vector<FilmProblem> ListProblems() const
    {
        if (state == FilmState::Missing)
            return {{GetStateSentence(), {{Remedy::Kind::Locate, tr("Locate..."), {}, {}}}}};
        if (state == FilmState::Unreadable)
            return {{GetStateSentence(), {}}};
        if (state == FilmState::Reading)
            return {};
        SubtitleCollection const collection = subtitles.GetCollection();
        return FilmWords::ListProblems(collection, Hosts::MakeSoftPlan(m_services, media, collection, m_formatId),
                                       m_addedFiles.GetReasons());
    }

    [[nodiscard]] QString DescribeChoice() const
    {
        SubtitleCollection const collection = subtitles.GetCollection();
        return state == FilmState::Ready && HasLostTracks(collection) ? tr("No subtitles, as it stands")
                                                                      : FilmWords::DescribeChoice(collection);
    }

    [[nodiscard]] std::vector<FilmRemark> ListRemarks() const
    {
        if (state != FilmState::Ready)
            return {};
        SubtitleCollection const collection = subtitles.GetCollection();
        if (collection.mode != SubtitleCollectionMode::AllSoftSubtitles)
            return {};
        return FilmWords::ListRemarks(collection, Hosts::MakeSoftPlan(m_services, media, collection, m_formatId));
    }

    [[nodiscard]] std::map<ioPath, FileStamp> const& ListUnreadableFiles() const
    {
        return m_addedFiles.GetUnreadable();
    }

    void NoteChange()
    {
        if (std::exchange(m_isChangeNoted, true))
            return;
        QMetaObject::invokeMethod(
            &m_owner, [this] { TellChange(); }, Qt::QueuedConnection);
    }

    void OnSubtitleCollectionChanged(Entities::SubtitleCollectionID const& /*collection*/) override { NoteChange(); }

    // Dialogs open in answer to these, which must not happen inside a notification.

    void OnApplyToAllFiles(SubtitleCollection const& /*collection*/) override
    {
        QMetaObject::invokeMethod(&m_owner, &Film::ApplyToAllRequested, Qt::QueuedConnection);
    }

    void OnExtractSubtitleRequested(SubtitleTrackID const& track) override
    {
        QMetaObject::invokeMethod(
            &m_owner, [this, track] { Q_EMIT m_owner.ExtractRequested(track); }, Qt::QueuedConnection);
    }

    FilmId const id;
    ioPath path;
    FilmState state = FilmState::Reading;
    Proc::MediaInfo media;
    QImage thumbnail;
    FilmSubtitles subtitles;

private:
    /// All tracks are wanted and the module lets none out, because one of them does not fit.
    [[nodiscard]] static bool HasLostTracks(SubtitleCollection const& collection)
    {
        return collection.mode == SubtitleCollectionMode::AllSoftSubtitles && !collection.tracks.empty() &&
               !Converter::Subtitles::ReadCoreSettings(collection).soft;
    }

    void TellChange()
    {
        if (m_wasRead)
        {
            subtitles.Settle();
            m_addedFiles.Read(subtitles.GetCollection());
        }
        // What settling changed is told along.
        m_isChangeNoted = false;
        Q_EMIT m_owner.Changed();
    }

    void NoteEncodings(AddedFiles::Encodings const& encodings)
    {
        subtitles.NoteEncodings(encodings);
        NoteChange();
    }

    Film& m_owner;
    Hosts::HostServices& m_services;
    std::string m_formatId;
    bool m_wasRead = false;
    bool m_isChangeNoted = false;
    Core::Error m_failure;      ///< why the film cannot be used
    ioPath m_choicePath;        ///< where the film was when the choice was made
    FilmChoice m_waitingChoice; ///< until the film has been read
    std::vector<ioPath> m_waitingFiles;
    AddedFiles m_addedFiles;
    Core::ScopedObservation<Entities::ISubtitleCollectionInteractorEventObserver> m_observation;
};

Film::Film(Hosts::HostServices& services, FilmId id, ioPath path, std::shared_ptr<FileThread> fileThread)
    : m_impl(std::make_unique<Impl>(*this, services, id, std::move(path), std::move(fileThread)))
{
}

Film::~Film() = default;

FilmId Film::GetId() const
{
    return m_impl->id;
}

ioPath const& Film::GetPath() const
{
    return m_impl->path;
}

FilmState Film::GetState() const
{
    return m_impl->state;
}

QString Film::GetStateSentence() const
{
    return m_impl->GetStateSentence();
}

Proc::MediaInfo const& Film::GetMedia() const
{
    return m_impl->media;
}

QImage const& Film::GetThumbnail() const
{
    return m_impl->thumbnail;
}

void Film::SetMedia(Proc::MediaInfo const& media)
{
    m_impl->SetMedia(media);
}

void Film::SetFailure(Core::Error const& error)
{
    m_impl->SetFailure(error);
}

void Film::SetThumbnail(QImage const& thumbnail)
{
    m_impl->thumbnail = thumbnail;
    m_impl->NoteChange();
}

void Film::SetReading(ioPath const& path)
{
    m_impl->SetReading(path);
}

SubtitleCollection Film::GetCollection() const
{
    return m_impl->subtitles.GetCollection();
}

std::optional<SubtitleTrack> Film::GetDrawnTrack() const
{
    SubtitleCollection const collection = GetCollection();
    auto const current = collection.tracks.find(collection.currentTrack);
    bool const isDrawn = collection.mode == SubtitleCollectionMode::SelectedTrack && collection.withoutSubtitles == 0 &&
                         current != collection.tracks.end();
    return isDrawn ? std::optional(current->second) : std::nullopt;
}

std::shared_ptr<Proc::SettingsSubtitleMixer const> Film::GetMixerSettings() const
{
    return Converter::Subtitles::ReadCoreSettings(GetCollection()).mixer;
}

QString Film::DescribeChoice() const
{
    return m_impl->DescribeChoice();
}

std::vector<FilmProblem> Film::ListProblems() const
{
    return m_impl->ListProblems();
}

std::vector<FilmRemark> Film::ListRemarks() const
{
    return m_impl->ListRemarks();
}

bool Film::IsConvertible() const
{
    return GetState() == FilmState::Ready && ListProblems().empty();
}

std::vector<SubtitleTrack> Film::ListLeftOut() const
{
    return m_impl->subtitles.ListLeftOut();
}

std::map<SubtitleTrackID, SubtitleTrack> const& Film::ListFoundBeside() const
{
    return m_impl->subtitles.ListFoundBeside();
}

std::map<ioPath, FileStamp> const& Film::ListUnreadableFiles() const
{
    return m_impl->ListUnreadableFiles();
}

bool Film::HadTrack(SubtitleTrackID const& id) const
{
    return m_impl->subtitles.IsSettled(id);
}

FilmChoice Film::GetChoice() const
{
    return m_impl->GetChoice();
}

void Film::SetChoice(FilmChoice const& choice)
{
    m_impl->SetChoice(choice);
}

void Film::AddSubtitleFiles(std::vector<ioPath> const& paths)
{
    std::vector<ioPath> absolute;
    std::transform(paths.begin(), paths.end(), std::back_inserter(absolute), MakeAbsolute);
    m_impl->AddFiles(absolute);
}

void Film::ChooseNone()
{
    m_impl->subtitles.ChooseNone();
}

void Film::ChooseAllSoft()
{
    m_impl->subtitles.ChooseAllSoft();
}

void Film::ChooseTrack(SubtitleTrackID const& id)
{
    m_impl->subtitles.ChooseTrack(id);
}

void Film::LeaveOut(SubtitleTrackID const& id)
{
    m_impl->subtitles.LeaveOut(id);
}

void Film::PutBack(SubtitleTrackID const& id)
{
    m_impl->subtitles.PutBack(id);
}

void Film::SetTrackProperties(SubtitleTrackID const& id, TrackProperties const& properties)
{
    m_impl->subtitles.SetProperties(id, properties);
}

TrackProperties Film::GetTrackProperties(SubtitleTrackID const& id) const
{
    return m_impl->subtitles.GetProperties(id);
}

void Film::SetEncoding(SubtitleTrackID const& id, Entities::SubtitleEncoding encoding)
{
    m_impl->subtitles.SetEncoding(id, encoding);
}

void Film::SetOffset(SubtitleTrackID const& id, double seconds)
{
    m_impl->subtitles.SetOffset(id, seconds);
}

void Film::SetLook(Entities::SubtitleTextSettings const& look)
{
    m_impl->subtitles.SetLook(look);
}

void Film::Apply(Remedy const& remedy)
{
    switch (remedy.kind)
    {
    case Remedy::Kind::BurnTrack:
        ChooseTrack(remedy.track);
        break;
    case Remedy::Kind::LeaveOut:
        LeaveOut(remedy.track);
        break;
    case Remedy::Kind::ResetOffset:
        SetOffset(remedy.track, 0.0);
        break;
    case Remedy::Kind::ChooseFormat:
    case Remedy::Kind::Locate:
        break;
    }
}

void Film::SetOutput(OutputSettings const& settings)
{
    m_impl->SetOutput(settings);
}

void Film::ShowInPanels()
{
    m_impl->subtitles.ShowInPanels();
}

ConversionJob Film::MakeJob(OutputSettings const& settings) const
{
    ConversionJob job;
    job.film = GetId();
    job.media = GetMedia();
    job.collection = GetCollection();
    // News about the film's collection is not about that of the job.
    job.collection.collectionId = Entities::SubtitleCollectionID();
    job.collection.impl.reset();
    job.collection.implCollection = 0;
    job.preset = MakePreset(settings);
    job.output = MakeOutputPath(GetPath(), settings);
    return job;
}

} // namespace Korvex::Desktop
