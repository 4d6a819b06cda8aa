#pragma once

#include "Desktop/Films/Film.h"
#include "Desktop/Films/OutputSettings.h"

#include "Subtitles/Entities/SubtitleCollection.h"

#include <QObject>

#include <map>
#include <set>
#include <vector>

class QWidget;

namespace Korvex::Desktop
{

class ConversionQueue;
struct BatchReport;
class FilmList;

/// Sends films into the queue: those with problems stay out of it, those that are still being read follow when they
/// have been. GUI thread.
class ConversionControl final : public QObject
{
    Q_OBJECT
public:
    /// Both have to outlive it.
    ConversionControl(FilmList& films, ConversionQueue& queue, QObject* parent = nullptr);
    ~ConversionControl() override;

    /// Films that were converted as they are to be now are left alone as long as there are others.
    void ConvertAll();
    void Convert(std::vector<Film*> const& films);
    void Cancel(FilmId film);
    void CancelAll();
    /// Waiting, running, or to follow when it has been read.
    [[nodiscard]] bool IsConverting(FilmId film) const;
    /// Asks when conversions would be lost. True: go on.
    [[nodiscard]] bool ConfirmClose(QWidget* window) const;

Q_SIGNALS:
    /// Nothing waits or runs any more.
    void BatchEnded(Korvex::Desktop::BatchReport const& report);
    /// The first film of those asked for that cannot be converted as it stands.
    void ProblemFound(Korvex::Desktop::FilmId film);

private:
    void Watch(Film* film);
    void OnFilmChanged(FilmId id);
    /// False when the film cannot be converted as it stands.
    bool Send(Film& film);
    void ReportBatch();
    /// Converted, and would be converted in the same way again.
    [[nodiscard]] bool IsFinished(Film const& film) const;

    struct Order
    {
        Converter::Subtitles::Entities::SubtitleCollection collection; ///< as in the job
        OutputSettings output;
    };

    FilmList& m_films;
    ConversionQueue& m_queue;
    std::set<FilmId> m_watched;
    std::set<FilmId> m_following;     ///< asked for while they were being read
    std::set<FilmId> m_refused;       ///< asked for since nothing was converted, and could not be begun
    std::map<FilmId, Order> m_orders; ///< the last one of each film, until the film is read anew
};

} // namespace Korvex::Desktop
