#include "Desktop/Window/SaveTrack.h"

#include "Desktop/Films/FileThread.h"
#include "Desktop/Window/SaveDialog.h"
#include "Desktop/Words/ErrorWords.h"

#include "Common/Extraction.h"
#include "Common/Sentences.h"

#include "Subtitles/Entities/SubtitleCodecs.h"
#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/Entities/SubtitleTrack.h"

#include "Core/Error.h"
#include "Core/FileSystem.h"
#include "Gui/Style.h"
#include "Proc/SubtitleExport.h"

#include <QApplication>
#include <QPointer>
#include <QProgressDialog>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <optional>
#include <set>
#include <utility>

namespace Korvex::Desktop
{

using Converter::Subtitles::Entities::SubtitleTrack;
using Converter::Subtitles::Entities::SubtitleTrackID;

using Written = Core::Result<Proc::ExportedSubtitle>;

namespace
{

/// Shorter work shows no window.
constexpr int PROGRESS_DELAY_MS = 500;
constexpr int LONGEST_NAME_PIXELS = 400;

QString ToText(std::string const& utf8)
{
    return QString::fromStdString(utf8);
}

/// So that a long name does not make a wide window.
QString Shorten(QString const& name)
{
    return GUI::ElideText(LONGEST_NAME_PIXELS, name, QApplication::font(), Qt::ElideMiddle);
}

std::optional<SubtitleTrack> FindTrack(Film const& film, SubtitleTrackID const& id)
{
    auto const collection = film.GetCollection();
    if (auto const listed = collection.tracks.find(id); listed != collection.tracks.end())
        return listed->second;
    std::vector<SubtitleTrack> const leftOut = film.ListLeftOut();
    auto const found =
        std::find_if(leftOut.begin(), leftOut.end(), [&](SubtitleTrack const& track) { return track.id == id; });
    return found == leftOut.end() ? std::nullopt : std::optional(*found);
}

/// "film.en.srt", "film.en (2).srt", ... in the film's folder, whichever does not exist.
ioPath FindFreePath(ioPath const& film, std::string const& name)
{
    ioPath const folder = film.Parent();
    ioPath path = folder / name;
    for (int number = 2; Core::PathExists(path); ++number)
        path = folder / (ioPath(name).Stem() + " (" + std::to_string(number) + ")." + ioPath(name).Extension());
    return path;
}

QStringList ListExtensions(std::string const& codecId)
{
    if (!Converter::Subtitles::Entities::IsTextSubtitleCodec(codecId))
        return {ToText(Proc::SuggestExtractExtension(codecId))};
    QString const suggested = ToText(Proc::SuggestExtractExtension(codecId));
    return suggested == QLatin1String("ass") ? QStringList{"ass", "srt"} : QStringList{"srt", "ass"};
}

QString DescribeWritten(Proc::ExportedSubtitle const& written)
{
    QString const done =
        SaveTrack::tr("\"%1\" was saved as %2 with %n cue(s)", nullptr, static_cast<int>(written.cueCount))
            .arg(ToText(written.path.FileName()), ToText(Hosts::DisplayName(written.codecId)));
    QStringList lost;
    if (written.replacedBytes > 0)
        lost += SaveTrack::tr("%n byte(s) could not be read as %1", nullptr, static_cast<int>(written.replacedBytes))
                    .arg(ToText(written.encoding));
    if (written.skippedCues > 0)
        lost += SaveTrack::tr("%n cue(s) without usable times were left out", nullptr,
                              static_cast<int>(written.skippedCues));
    if (written.leftOutCues > 0)
        lost += SaveTrack::tr("%n cue(s) of no duration were left out", nullptr, static_cast<int>(written.leftOutCues));
    return lost.isEmpty() ? SaveTrack::tr("%1.").arg(done) : SaveTrack::tr("%1; %2.").arg(done, lost.join("; "));
}

QString DescribeFailure(Core::Error const& error)
{
    if (error.code != Core::ErrorCode::ContainerUnknown)
        return Describe(error);
    return SaveTrack::tr("The name \"%1\" does not tell how to save the track: let it end in .srt, .ass, .sup or .mkv.")
        .arg(ToText(error.file.FileName()));
}

} // namespace

class SaveTrack::Impl
{
public:
    Impl(SaveTrack& owner, QWidget* window, AskForPath askForPath)
        : m_owner(owner),
          m_window(window),
          m_askForPath(std::move(askForPath))
    {
    }

    ~Impl()
    {
        for (Order const& order : m_orders)
        {
            *order.isCancelled = true;
            delete order.progress;
        }
    }

    [[nodiscard]] bool IsActive() const { return !m_orders.empty(); }

    void Ask(ioPath const& film, Proc::SubtitleSource const& source, SubtitleTrack const& track)
    {
        std::string const name = Hosts::SuggestFileName(film, track);
        if (name.empty())
        {
            Q_EMIT m_owner.Failed(
                SaveTrack::tr(
                    "Track %1 of \"%2\" is %3, which no subtitle file can hold: draw it into the picture instead.")
                    .arg(ToText(track.id.ToString()), ToText(film.FileName()), ToText(track.codecName)));
            return;
        }
        QPointer<SaveTrack> const owner(&m_owner);
        QString const path =
            m_askForPath(m_window, {ToText(FindFreePath(film, name).utf8string()), ListExtensions(track.codecId)});
        if (owner && !path.isEmpty())
            Start(film, source, path.toStdString());
    }

private:
    struct Order
    {
        std::shared_ptr<std::atomic<bool>> isCancelled;
        QPointer<QProgressDialog> progress;
    };

    void Start(ioPath const& film, Proc::SubtitleSource source, ioPath const& target)
    {
        auto const isCancelled = std::make_shared<std::atomic<bool>>(false);
        source.cancelled = isCancelled;
        m_orders.push_back({isCancelled, MakeProgress(target, isCancelled)});
        // The dialog has asked about a file that is there, not about one that comes while the track is read.
        auto const existing = Core::PathExists(target) ? Hosts::ExistingTarget::Replace : Hosts::ExistingTarget::Refuse;
        m_thread.Add(FileThread::Urgency::Soon,
                     [this, film, source, target, existing]() -> FileThread::Delivery
                     {
                         auto const written = std::make_shared<Written>(Write(film, source, target, existing));
                         return [this, source, written] { Finish(source, *written); };
                     });
    }

    /// One that waited may have been cancelled before its turn.
    static Written Write(ioPath const& film, Proc::SubtitleSource const& source, ioPath const& target,
                         Hosts::ExistingTarget existing)
    {
        if (!*source.cancelled)
            return Hosts::SaveTrack(film, source, target, existing);
        Core::Error error;
        error.code = Core::ErrorCode::Cancelled;
        error.file = source.path;
        return error;
    }

    QProgressDialog* MakeProgress(ioPath const& target, std::shared_ptr<std::atomic<bool>> const& isCancelled)
    {
        auto* const progress =
            new QProgressDialog(SaveTrack::tr("Saving \"%1\"").arg(Shorten(ToText(target.FileName()))),
                                SaveTrack::tr("Cancel"), 0, 0, m_window);
        progress->setObjectName(QStringLiteral("saveTrackProgress"));
        progress->setWindowTitle(SaveTrack::tr("Save a track"));
        connect(progress, &QProgressDialog::canceled, &m_owner, [isCancelled] { *isCancelled = true; });
        QTimer::singleShot(PROGRESS_DELAY_MS, progress, [progress] { progress->show(); });
        return progress;
    }

    void Finish(Proc::SubtitleSource const& source, Written const& written)
    {
        auto const order = std::find_if(m_orders.begin(), m_orders.end(),
                                        [&](Order const& known) { return known.isCancelled == source.cancelled; });
        delete order->progress;
        m_orders.erase(order);
        if (written)
            Q_EMIT m_owner.Saved(DescribeWritten(*written));
        else if (written.GetError().code != Core::ErrorCode::Cancelled)
            Q_EMIT m_owner.Failed(DescribeFailure(written.GetError()));
    }

    SaveTrack& m_owner;
    QWidget* m_window;
    AskForPath m_askForPath;
    std::vector<Order> m_orders; ///< that run or wait
    FileThread m_thread;         ///< goes first: it waits for what runs
};

SaveTrack::SaveTrack(QWidget* window) : SaveTrack(window, &AskWithDialog) {}

SaveTrack::SaveTrack(QWidget* window, AskForPath askForPath)
    : m_impl(std::make_unique<Impl>(*this, window, std::move(askForPath)))
{
}

SaveTrack::~SaveTrack() = default;

void SaveTrack::Save(Film const& film, SubtitleTrackID const& id)
{
    std::optional<SubtitleTrack> const track = FindTrack(film, id);
    if (!track)
        return;
    // The panel asks inside a notification of the module, where no dialog may open.
    QMetaObject::invokeMethod(
        this,
        [this, path = film.GetPath(), source = Hosts::FindTrackSource(film.GetMedia(), *track), track = *track]
        { m_impl->Ask(path, source, track); },
        Qt::QueuedConnection);
}

bool SaveTrack::IsActive() const
{
    return m_impl->IsActive();
}

} // namespace Korvex::Desktop
