#include "Desktop/Window/FilmListPane.h"

#include "Desktop/Conversion/ConversionQueue.h"
#include "Desktop/Films/FilmList.h"
#include "Desktop/Window/FilmListView.h"
#include "Desktop/Window/FlowLayout.h"

#include <QAction>
#include <QEvent>
#include <QItemSelectionModel>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Korvex::Desktop
{

namespace
{

QToolButton* MakeButton(QAction* action, char const* name, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

FilmListPane::FilmListPane(FilmList& films, ConversionQueue const& queue, QAction* add, QAction* remove,
                           QWidget* parent)
    : KFrame(parent),
      m_films(films),
      m_view(new FilmListView(queue, this)),
      m_title(new QLabel(this))
{
    setObjectName(QStringLiteral("filmListPane"));
    m_view->setObjectName(QStringLiteral("filmListView"));
    m_view->setModel(&films);
    m_title->setObjectName(QStringLiteral("filmListTitle"));
    remove->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(remove);

    auto* buttons = new FlowLayout;
    buttons->addWidget(MakeButton(add, "addFilmsButton", this));
    buttons->addWidget(MakeButton(remove, "removeFilmButton", this));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_title);
    layout->addWidget(m_view, 1);
    layout->addLayout(buttons);

    connect(m_view, &FilmListView::SubtitlesRequested, this, &FilmListPane::SubtitlesRequested);
    connect(m_view, &FilmListView::RevealRequested, this, &FilmListPane::RevealRequested);
    connect(m_view, &FilmListView::RemarksRequested, this, &FilmListPane::RemarksRequested);
    connect(m_view, &FilmListView::MenuRequested, this, &FilmListPane::MenuRequested);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &FilmListPane::NoteCurrentFilm);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &FilmListPane::SelectionChanged);
    // Queued: the view learns of rows in the same moment and picks its new current one after that.
    connect(&films, &QAbstractItemModel::rowsRemoved, this, &FilmListPane::NoteCurrentFilm, Qt::QueuedConnection);
    for (auto const signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&films, signal, this, &FilmListPane::UpdateTitle);
    connect(&queue, &ConversionQueue::StatusChanged, this,
            [this](FilmId id)
            {
                if (QModelIndex const index = m_films.index(m_films.FindRow(id)); index.isValid())
                    m_view->UpdateRows(index, index);
            });
    // Pausing concerns all rows.
    connect(&queue, &ConversionQueue::TotalChanged, m_view->viewport(), qOverload<>(&QWidget::update));
    Retranslate();
}

FilmListPane::~FilmListPane() = default;

Film* FilmListPane::GetCurrentFilm() const
{
    return m_view->currentIndex().data(FilmList::FilmRole).value<Film*>();
}

std::vector<Film*> FilmListPane::GetSelectedFilms() const
{
    std::vector<Film*> films;
    QItemSelectionModel const* selection = m_view->selectionModel();
    for (int row = 0; row < m_films.rowCount(); ++row)
        if (QModelIndex const index = m_films.index(row); selection->isSelected(index))
            films.push_back(index.data(FilmList::FilmRole).value<Film*>());
    return films;
}

Film* FilmListPane::FindFilmAt(QPoint const& globalPosition) const
{
    QWidget const& viewport = *m_view->viewport();
    QPoint const place = viewport.mapFromGlobal(globalPosition);
    bool const isInside = viewport.isVisible() && viewport.rect().contains(place);
    return isInside ? m_view->indexAt(place).data(FilmList::FilmRole).value<Film*>() : nullptr;
}

void FilmListPane::SelectFilm(FilmId id)
{
    for (int row = 0; row < m_films.rowCount(); ++row)
    {
        QModelIndex const index = m_films.index(row);
        if (index.data(FilmList::FilmRole).value<Film*>()->GetId() != id)
            continue;
        MakeCurrent(index);
        m_view->scrollTo(index);
        return;
    }
}

void FilmListPane::MoveSelection(int rows)
{
    int const last = m_films.rowCount() - 1;
    if (last >= 0)
        MakeCurrent(m_films.index(std::clamp(m_view->currentIndex().row() + rows, 0, last)));
}

void FilmListPane::MakeCurrent(QModelIndex const& index)
{
    // The view would add it to the selection while the keys of a shortcut are held.
    m_view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
}

void FilmListPane::PressSubtitlesButton()
{
    m_view->PressSubtitlesButton();
}

void FilmListPane::NoteCurrentFilm()
{
    Film* film = GetCurrentFilm();
    FilmId const id = film == nullptr ? 0 : film->GetId();
    if (id == m_currentFilm)
        return;
    m_currentFilm = id;
    Q_EMIT CurrentFilmChanged(film);
}

void FilmListPane::UpdateTitle()
{
    m_title->setText(tr("%n film(s)", nullptr, m_films.rowCount()));
}

void FilmListPane::Retranslate()
{
    m_view->setAccessibleName(tr("Films"));
    m_view->doItemsLayout(); // its sentences are of other lengths
    UpdateTitle();
}

void FilmListPane::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    KFrame::changeEvent(event);
}

} // namespace Korvex::Desktop
