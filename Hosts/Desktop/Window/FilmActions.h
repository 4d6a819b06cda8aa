#pragma once

#include "Desktop/Films/Film.h"

#include <QObject>

#include <memory>
#include <vector>

class QMenu;
class QWidget;

namespace Korvex::Desktop
{

class Actions;
class ConversionControl;
class ConversionQueue;
class FilmList;
class FilmListPane;
class Notices;

/// What can be done with the films that are selected, and when. GUI thread.
class FilmActions final : public QObject
{
    Q_OBJECT
public:
    /// What the actions work on. All have to outlive them.
    struct Parts
    {
        FilmList& films;
        FilmListPane& pane;
        ConversionQueue& queue;
        ConversionControl& control;
        Notices& notices;
        Actions const& actions;
        QWidget& window; ///< over which questions are asked
    };

    explicit FilmActions(Parts const& parts);
    ~FilmActions() override;

    /// Keeps the menu filled with the tracks that the current film leaves out.
    void FillPutBackMenu(QMenu& menu);
    /// Where the film's last conversion went.
    void Reveal(FilmId film);

private:
    void Connect();
    void UpdateEnabled();
    void RemoveSelected();
    [[nodiscard]] bool ConfirmRemoval(std::vector<Film*> const& films) const;
    void ApplyChoiceToAll(FilmId id);
    void CopyCommand();
    void RefillPutBackMenu(QMenu& menu);

    Parts m_parts;
};

} // namespace Korvex::Desktop
