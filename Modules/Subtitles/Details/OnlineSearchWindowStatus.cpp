#include "Subtitles/Details/OnlineSearchWindowStatus.h"

#include "Gui/Icons.h"
#include "Gui/Style.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>

namespace Korvex::Converter::Subtitles::Details
{

using Adapters::OnlineSearchMark;
using Adapters::OnlineSearchState;

namespace
{

constexpr int LONGEST_SENTENCE = 400; ///< characters; a server's words may be of any length

QString Shorten(QString const& sentence)
{
    return sentence.size() <= LONGEST_SENTENCE ? sentence : sentence.left(LONGEST_SENTENCE - 1) + QStringLiteral("…");
}

} // namespace

/// Drawn each time, so that it follows the theme.
class OnlineSearchWindowStatus::Sign final : public QWidget
{
public:
    static constexpr int SIDE = 16;

    explicit Sign(QWidget* parent) : QWidget(parent) { setFixedSize(SIDE, SIDE); }

    void SetMark(OnlineSearchMark mark)
    {
        m_isError = mark == OnlineSearchMark::Error;
        setVisible(mark != OnlineSearchMark::None);
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        GUI::PaintIcon(painter, m_isError ? GUI::IconKind::Error : GUI::IconKind::Information, rect(),
                       GUI::GetColor(m_isError ? GUI::ColorRole::Error : GUI::ColorRole::Accent));
    }

private:
    bool m_isError = false;
};

OnlineSearchWindowStatus::OnlineSearchWindowStatus(QWidget* parent)
    : QFrame(parent),
      m_busy(new QProgressBar(this)),
      m_sign(new Sign(this)),
      m_sentenceLabel(new QLabel(this)),
      m_cancel(new QPushButton(this)),
      m_download(new QPushButton(this)),
      m_close(new QPushButton(this))
{
    setObjectName(QStringLiteral("onlineSearchStatus"));
    m_busy->setObjectName(QStringLiteral("searchBusyBar"));
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    QSizePolicy policy = m_busy->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the list keeps its height
    m_busy->setSizePolicy(policy);
    m_sign->setObjectName(QStringLiteral("searchStateSign"));
    m_sentenceLabel->setObjectName(QStringLiteral("searchStateLabel"));
    m_sentenceLabel->setTextFormat(Qt::PlainText);
    m_sentenceLabel->setWordWrap(true);
    m_sentenceLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_cancel->setObjectName(QStringLiteral("searchCancelButton"));
    m_download->setObjectName(QStringLiteral("downloadButton"));
    m_close->setObjectName(QStringLiteral("searchCloseButton"));
    Util::ApplyWidgetStyle(m_download, QStringLiteral("activeButton"), "styleHint");
    for (QPushButton* const button : {m_cancel, m_download, m_close})
        button->setAutoDefault(false);

    auto* const row = new QHBoxLayout;
    row->addWidget(m_sign);
    row->addWidget(m_sentenceLabel, 1);
    row->addWidget(m_cancel);
    row->addWidget(m_download);
    row->addWidget(m_close);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_busy);
    column->addLayout(row);
    Update();

    connect(m_cancel, &QPushButton::clicked, this, &OnlineSearchWindowStatus::CancelRequested);
    connect(m_download, &QPushButton::clicked, this, &OnlineSearchWindowStatus::DownloadRequested);
    connect(m_close, &QPushButton::clicked, this, &OnlineSearchWindowStatus::CloseRequested);
}

OnlineSearchWindowStatus::~OnlineSearchWindowStatus() = default;

void OnlineSearchWindowStatus::SetState(OnlineSearchState state, QString const& sentence, OnlineSearchMark mark)
{
    m_state = state;
    m_sentence = sentence;
    m_mark = mark;
    Update();
    SayAloud();
}

void OnlineSearchWindowStatus::SetCounts(int found, int selected)
{
    m_found = found;
    m_selected = selected;
    Update();
}

QString OnlineSearchWindowStatus::DescribeState() const
{
    switch (m_state)
    {
    case OnlineSearchState::Searching:
        return tr("Searching...");
    case OnlineSearchState::Downloading:
        return tr("Downloading...");
    case OnlineSearchState::Cancelling:
        return tr("Cancelling...");
    case OnlineSearchState::Ready:
        break;
    }
    return m_found > 0 ? tr("%n subtitle(s) found", nullptr, m_found) : QString();
}

void OnlineSearchWindowStatus::Update()
{
    bool const isBusy = m_state != OnlineSearchState::Ready;
    m_busy->setVisible(isBusy);
    m_busy->setAccessibleName(DescribeState());
    m_sign->SetMark(m_sentence.isEmpty() ? OnlineSearchMark::None : m_mark);
    m_sentenceLabel->setText(m_sentence.isEmpty() ? DescribeState() : Shorten(m_sentence));
    m_sentenceLabel->setToolTip(m_sentence.size() > LONGEST_SENTENCE ? m_sentence.toHtmlEscaped() : QString());
    Util::ApplyWidgetStyle(m_sentenceLabel, m_mark == OnlineSearchMark::Error ? QStringLiteral("error") : QString(),
                           "role");
    m_cancel->setText(tr("&Cancel"));
    m_cancel->setVisible(isBusy);
    m_cancel->setEnabled(m_state != OnlineSearchState::Cancelling);
    m_download->setText(m_selected > 1 ? tr("&Download %n", nullptr, m_selected) : tr("&Download"));
    m_download->setEnabled(!isBusy && m_selected > 0);
    m_close->setText(tr("Close"));
}

/// Screen readers do not look at a label by themselves.
void OnlineSearchWindowStatus::SayAloud()
{
    if (!isVisible() || m_sentenceLabel->text().isEmpty())
        return;
    QAccessibleEvent event(m_sentenceLabel, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void OnlineSearchWindowStatus::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Update();
    QFrame::changeEvent(event);
}

} // namespace Korvex::Converter::Subtitles::Details
