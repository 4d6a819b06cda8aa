#pragma once

#include "Desktop/Films/FilmChoice.h"
#include "Desktop/Films/FilmProblem.h"

#include "Core/ioPath.h"

#include <QImage>
#include <QObject>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Korvex::Hosts
{
class HostServices;
} // namespace Korvex::Hosts

namespace Korvex::Core
{
struct Error;
} // namespace Korvex::Core

namespace Korvex::Proc
{
struct MediaInfo;
class SettingsSubtitleMixer;
} // namespace Korvex::Proc

namespace Korvex::Desktop
{

class FileThread;
struct ConversionJob;
struct FileStamp;
struct OutputSettings;

/// Numbers films of one run of the program, from 1.
using FilmId = std::uint32_t;

enum class FilmState
{
    Reading, ///< its headers are being read
    Ready,
    Missing,    ///< the file has gone; choices are kept
    Unreadable, ///< it is no film; GetStateSentence says why
};

/// One film in the list: what it holds, the subtitles chosen for it, what stands in the way of converting it. Every
/// choice goes through the module's interactor, of which each film holds one. GUI thread.
class Film final : public QObject
{
    Q_OBJECT
public:
    /// `services` has to outlive the film. The film itself is not read here: whoever reads it calls `SetMedia` or
    /// `SetFailure`. Added files are read on `fileThread`, without it on a thread of the film's own.
    Film(Hosts::HostServices& services, FilmId id, ioPath path, std::shared_ptr<FileThread> fileThread = nullptr);
    ~Film() override;

    [[nodiscard]] FilmId GetId() const;
    [[nodiscard]] ioPath const& GetPath() const;
    [[nodiscard]] FilmState GetState() const;
    /// Why it is missing or unreadable; empty otherwise.
    [[nodiscard]] QString GetStateSentence() const;
    [[nodiscard]] Proc::MediaInfo const& GetMedia() const;
    [[nodiscard]] QImage const& GetThumbnail() const;

    /// The file was read: its subtitles are listed and what was chosen before is chosen again.
    void SetMedia(Proc::MediaInfo const& media);
    /// Missing where the error says that there is no such file, else unreadable. Choices are kept.
    void SetFailure(Core::Error const& error);
    void SetThumbnail(QImage const& thumbnail);
    /// It is read anew, perhaps at another place.
    void SetReading(ioPath const& path);

    /// A copy of what the interactor edits, with the codecs that the tracks have in their sources.
    [[nodiscard]] Converter::Subtitles::Entities::SubtitleCollection GetCollection() const;
    /// The track that is drawn in; empty when none is.
    [[nodiscard]] std::optional<Converter::Subtitles::Entities::SubtitleTrack> GetDrawnTrack() const;
    /// What is drawn into its picture; null: nothing. The object stays as it is; edits make a new one.
    [[nodiscard]] std::shared_ptr<Proc::SettingsSubtitleMixer const> GetMixerSettings() const;
    /// The choice in words: "No subtitles", "All 3 tracks", "Drawn in: film.ru.srt [Russian]"; as
    /// the panels show it, where not all tracks fit.
    [[nodiscard]] QString DescribeChoice() const;
    [[nodiscard]] std::vector<FilmProblem> ListProblems() const;
    /// What converting it as it stands changes in its tracks.
    [[nodiscard]] std::vector<FilmRemark> ListRemarks() const;
    /// It was read and nothing stands in the way.
    [[nodiscard]] bool IsConvertible() const;
    [[nodiscard]] std::vector<Converter::Subtitles::Entities::SubtitleTrack> ListLeftOut() const;
    /// The files that were found beside it, as they were found.
    [[nodiscard]] std::map<Converter::Subtitles::Entities::SubtitleTrackID,
                           Converter::Subtitles::Entities::SubtitleTrack> const&
    ListFoundBeside() const;

    /// Its subtitle files that hold no subtitles, as they were when that was found out.
    [[nodiscard]] std::map<ioPath, FileStamp> const& ListUnreadableFiles() const;

    /// Whether the track was in when `Changed` came last. While a file is being added: whether it had been in before.
    [[nodiscard]] bool HadTrack(Converter::Subtitles::Entities::SubtitleTrackID const& id) const;

    /// What was decided; also of a film that is not there at the moment.
    [[nodiscard]] FilmChoice GetChoice() const;
    /// Decides all of it; takes effect when the film has been read.
    void SetChoice(FilmChoice const& choice);

    /// A film that is still being read gets them afterwards.
    void AddSubtitleFiles(std::vector<ioPath> const& paths);
    void ChooseNone();
    void ChooseAllSoft();
    void ChooseTrack(Converter::Subtitles::Entities::SubtitleTrackID const& id);
    /// A track of the film stays out of the output until it is put back; an added file leaves the list for good.
    void LeaveOut(Converter::Subtitles::Entities::SubtitleTrackID const& id);
    void PutBack(Converter::Subtitles::Entities::SubtitleTrackID const& id);
    void SetTrackProperties(Converter::Subtitles::Entities::SubtitleTrackID const& id,
                            TrackProperties const& properties);
    [[nodiscard]] TrackProperties GetTrackProperties(Converter::Subtitles::Entities::SubtitleTrackID const& id) const;
    void SetEncoding(Converter::Subtitles::Entities::SubtitleTrackID const& id,
                     Converter::Subtitles::Entities::SubtitleEncoding encoding);
    void SetOffset(Converter::Subtitles::Entities::SubtitleTrackID const& id, double seconds);
    void SetLook(Converter::Subtitles::Entities::SubtitleTextSettings const& look);
    /// Everything but `Kind::ChooseFormat` and `Kind::Locate`, which are the list's and the window's.
    void Apply(Remedy const& remedy);

    void SetOutput(OutputSettings const& settings);
    /// Takes the editing panel and the item panel of the host's GUI container, from whichever film had them.
    void ShowInPanels();

    /// Everything that a conversion needs, as it stands now. Only of a convertible film.
    [[nodiscard]] ConversionJob MakeJob(OutputSettings const& settings) const;

Q_SIGNALS:
    /// Anything that is shown of it changed: state, thumbnail, tracks, choice, look, problems. Comes from the event
    /// loop, once for several changes.
    void Changed();
    void ExtractRequested(Converter::Subtitles::Entities::SubtitleTrackID const& id);
    /// The user ticked "Apply to all files" and is done choosing.
    void ApplyToAllRequested();

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
