#pragma once

#include "Desktop/Films/Film.h"

#include "Gui/KFrame.h"

#include <vector>

class QAction;
class QLabel;
class QModelIndex;

namespace Korvex::Desktop
{

class ConversionQueue;
class FilmList;
class FilmListView;

/// The films with what was chosen for each and how its conversion stands. GUI thread.
class FilmListPane final : public KFrame
{
    Q_OBJECT
public:
    /// Both have to outlive it. The actions stand as buttons under the list, `remove` also belongs to the list's keys.
    FilmListPane(FilmList& films, ConversionQueue const& queue, QAction* add, QAction* remove,
                 QWidget* parent = nullptr);
    ~FilmListPane() override;

    /// Null without films.
    [[nodiscard]] Film* GetCurrentFilm() const;
    /// In the order of the list.
    [[nodiscard]] std::vector<Film*> GetSelectedFilms() const;
    /// The film whose row is at this place of the screen; null where there is none.
    [[nodiscard]] Film* FindFilmAt(QPoint const& globalPosition) const;
    void SelectFilm(FilmId id);
    /// By that many rows; stops at the ends.
    void MoveSelection(int rows);
    /// As if the user had clicked the current film's button.
    void PressSubtitlesButton();

Q_SIGNALS:
    /// Also with null, when the last film went.
    void CurrentFilmChanged(Korvex::Desktop::Film* film);
    void SelectionChanged();
    /// The place of the button is on the screen.
    void SubtitlesRequested(Korvex::Desktop::Film* film, QRect const& button);
    void RevealRequested(Korvex::Desktop::Film* film);
    /// To read what was otherwise than expected in the film's conversion.
    void RemarksRequested(Korvex::Desktop::Film* film);
    void MenuRequested(Korvex::Desktop::Film* film, QPoint const& globalPosition);

protected:
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();
    void UpdateTitle();
    void NoteCurrentFilm();
    /// It alone is selected then.
    void MakeCurrent(QModelIndex const& index);

    FilmList& m_films;
    FilmListView* m_view;
    QLabel* m_title;
    FilmId m_currentFilm = 0; ///< the one that was told last; 0: none
};

} // namespace Korvex::Desktop
