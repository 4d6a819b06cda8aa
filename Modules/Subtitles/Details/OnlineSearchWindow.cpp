#include "Subtitles/Details/OnlineSearchWindow.h"

#include "Subtitles/Details/OnlineSearchWindowFields.h"
#include "Subtitles/Details/OnlineSearchWindowStatus.h"
#include "Subtitles/Details/ResultList.h"
#include "Subtitles/UseCases/SearchResult.h"

#include <QAbstractButton>
#include <QEvent>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace Korvex::Converter::Subtitles::Details
{

using Adapters::OnlineSearchMark;
using Adapters::OnlineSearchState;

namespace
{

constexpr int MARGIN = 12;
constexpr int GAP = 10;
constexpr QSize LEAST_SIZE(640, 420);
constexpr QSize FIRST_SIZE(1080, 600);

} // namespace

OnlineSearchWindow::OnlineSearchWindow(QString const& filmName, QWidget* title, QWidget* parent)
    : QDialog(parent),
      m_filmName(filmName),
      m_fields(new OnlineSearchWindowFields(title, this)),
      m_results(new ResultList(this)),
      m_status(new OnlineSearchWindowStatus(this))
{
    setObjectName(QStringLiteral("onlineSearchWindow"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint, true);
    setAttribute(Qt::WA_QuitOnClose, false); // the program ends with its own window
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    column->setSpacing(GAP);
    column->addWidget(m_fields);
    column->addWidget(m_results, 1);
    column->addWidget(m_status);
    setMinimumSize(LEAST_SIZE);
    resize(FIRST_SIZE);
    Wire();
    Retranslate();
    if (title != nullptr)
        title->setFocus();
}

OnlineSearchWindow::~OnlineSearchWindow() = default;

void OnlineSearchWindow::Wire()
{
    connect(m_fields, &OnlineSearchWindowFields::SearchRequested, this, [this] { RequestSearch(); });
    connect(m_results, &ResultList::Chosen, this, [this] { RequestDownload(); });
    connect(m_results, &ResultList::SelectionChanged, this,
            [this] { m_status->SetCounts(m_results->CountRows(), static_cast<int>(m_results->GetSelected().size())); });
    connect(m_status, &OnlineSearchWindowStatus::DownloadRequested, this, [this] { RequestDownload(); });
    connect(m_status, &OnlineSearchWindowStatus::CancelRequested, this, &OnlineSearchWindow::CancelRequested);
    connect(m_status, &OnlineSearchWindowStatus::CloseRequested, this, &QDialog::reject);
}

void OnlineSearchWindow::SetResults(std::vector<Adapters::OnlineSearchRow> const& rows)
{
    m_results->SetRows(rows);
    if (!rows.empty() && rows.front().result != nullptr)
        m_fields->SetSeries(rows.front().result->facts.season.has_value());
    ShowState();
}

void OnlineSearchWindow::SetState(OnlineSearchState state, QString const& sentence, OnlineSearchMark mark)
{
    m_state = state;
    m_sentence = sentence;
    m_mark = mark;
    m_fields->SetSearchEnabled(state == OnlineSearchState::Ready);
    ShowState();
}

void OnlineSearchWindow::ShowState()
{
    bool const isReady = m_state == OnlineSearchState::Ready;
    bool const isHintInPlace = isReady && m_results->CountRows() == 0 && m_mark == OnlineSearchMark::Hint;
    if (isHintInPlace)
        m_results->SetEmptyText(m_sentence);
    else
        m_results->SetEmptyText(isReady && m_mark == OnlineSearchMark::None && m_sentence.isEmpty()
                                    ? tr("Type a title and press \"Search\".")
                                    : QString());
    m_status->SetState(m_state, isHintInPlace ? QString() : m_sentence, m_mark);
}

void OnlineSearchWindow::RequestSearch()
{
    if (m_state == OnlineSearchState::Ready)
        Q_EMIT SearchRequested();
}

void OnlineSearchWindow::RequestDownload()
{
    Results const selected = m_results->GetSelected();
    if (m_state == OnlineSearchState::Ready && !selected.empty())
        Q_EMIT DownloadRequested(selected);
}

/// There is no default button: what Enter does depends on where it is pressed.
void OnlineSearchWindow::keyPressEvent(QKeyEvent* event)
{
    bool const isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter)
        return QDialog::keyPressEvent(event);
    QWidget* const widget = focusWidget();
    if (event->isAutoRepeat())
        return;
    if (m_fields->IsSearchField(widget))
        RequestSearch();
    else if (auto* const button = qobject_cast<QAbstractButton*>(widget))
        button->click();
}

void OnlineSearchWindow::Retranslate()
{
    setWindowTitle(m_filmName.isEmpty() ? tr("Find subtitles") : tr("Find subtitles: %1").arg(m_filmName));
    ShowState();
}

void OnlineSearchWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QDialog::changeEvent(event);
}

} // namespace Korvex::Converter::Subtitles::Details
