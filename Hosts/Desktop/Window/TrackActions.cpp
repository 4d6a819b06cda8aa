#include "Desktop/Window/TrackActions.h"

#include "Desktop/Window/LossQuestion.h"
#include "Desktop/Window/ModulePanels.h"
#include "Desktop/Window/Notices.h"
#include "Desktop/Window/SaveTrack.h"
#include "Desktop/Window/TrackMenu.h"

#include "Subtitles/Details/EditingPanel.h"
#include "Subtitles/Details/ItemPanel.h"

#include <QWidget>

namespace Korvex::Desktop
{

using Converter::Subtitles::Entities::SubtitleTrackID;

TrackActions::TrackActions(ModulePanels const& panels, Notices& notices, QWidget& window)
    : QObject(&window),
      m_window(window),
      m_saving(new SaveTrack(&window))
{
    m_saving->setParent(this);
    connect(m_saving, &SaveTrack::Saved, &notices,
            [&notices](QString const& sentence) { notices.AddNews(Mark::Success, sentence); });
    connect(m_saving, &SaveTrack::Failed, &notices,
            [&notices](QString const& sentence) { notices.AddNews(Mark::Error, sentence); });
    // The panels may outlive the window.
    auto const open = [self = QPointer<TrackActions>(this)](SubtitleTrackID const& id, QPoint const& place)
    {
        if (self)
            self->OpenMenu(id, place);
    };
    panels.GetEditingPanel().SetTrackMenuHandler(open);
    panels.GetItemPanel().SetTrackMenuHandler(open);
}

TrackActions::~TrackActions() = default;

void TrackActions::ShowFilm(Film* film)
{
    disconnect(m_extraction);
    m_film = film;
    if (film != nullptr)
        m_extraction = connect(film, &Film::ExtractRequested, this,
                               [this](SubtitleTrackID const& id) { m_saving->Save(*m_film, id); });
}

bool TrackActions::ConfirmClose() const
{
    if (!m_saving->IsActive())
        return true;
    return Confirm({tr("Quit while saving?"),
                    tr("A track is still being saved. Quitting cancels that, and no file is written."),
                    tr("Cancel saving and quit"), tr("Go on saving")},
                   &m_window);
}

void TrackActions::OpenMenu(SubtitleTrackID const& id, QPoint const& place)
{
    if (m_film)
        TrackMenu::Open(*m_film, id, *m_saving, &m_window, place);
}

} // namespace Korvex::Desktop
