#pragma once

#include "Desktop/Films/Film.h"

#include <QObject>
#include <QPointer>

class QPoint;
class QWidget;

namespace Korvex::Desktop
{

class ModulePanels;
class Notices;
class SaveTrack;

/// What can be done with one track in the panels: its menu, and saving it as a file. GUI thread.
class TrackActions final : public QObject
{
    Q_OBJECT
public:
    /// All have to outlive it.
    TrackActions(ModulePanels const& panels, Notices& notices, QWidget& window);
    ~TrackActions() override;

    /// The film that the panels show; null: none.
    void ShowFilm(Film* film);
    /// Asks when a track is still being saved. True: go on.
    [[nodiscard]] bool ConfirmClose() const;

private:
    void OpenMenu(Converter::Subtitles::Entities::SubtitleTrackID const& id, QPoint const& place);

    QWidget& m_window;
    SaveTrack* m_saving;
    QPointer<Film> m_film;
    QMetaObject::Connection m_extraction;
};

} // namespace Korvex::Desktop
