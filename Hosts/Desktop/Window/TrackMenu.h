#pragma once

#include "Desktop/Films/Film.h"

#include <QMenu>

namespace Korvex::Desktop
{

class SaveTrack;

/// What can be done with one subtitle track of a film, for the menu of its row; and the film's tracks that were left
/// out, to put them back. The film may go while the menu or a dialog that it opened is shown. GUI thread.
class TrackMenu final : public QMenu
{
    Q_OBJECT
public:
    /// @param saving has to outlive the menu
    /// @param window under the dialogs
    TrackMenu(Film& film, Converter::Subtitles::Entities::SubtitleTrackID const& id, SaveTrack& saving,
              QWidget* window);
    ~TrackMenu() override;

    /// Opens a menu that deletes itself once it is closed.
    static void Open(Film& film, Converter::Subtitles::Entities::SubtitleTrackID const& id, SaveTrack& saving,
                     QWidget* window, QPoint const& globalPosition);

private:
    class Builder;
};

} // namespace Korvex::Desktop
