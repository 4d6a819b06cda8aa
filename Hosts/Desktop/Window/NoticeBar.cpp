#include "Desktop/Window/NoticeBar.h"

#include "Desktop/Window/FlowLayout.h"
#include "Desktop/Window/MarkLabel.h"

#include "Gui/Icons.h"
#include "Gui/Style.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

namespace Korvex::Desktop
{

namespace
{

QString GetName(Mark mark)
{
    switch (mark)
    {
    case Mark::Warning:
        return QStringLiteral("warning");
    case Mark::Error:
        return QStringLiteral("error");
    case Mark::Success:
        return QStringLiteral("success");
    case Mark::None:
    case Mark::News:
        break;
    }
    return QStringLiteral("news");
}

/// Two sentences and a button are read in half of it.
constexpr std::chrono::seconds PASSING_TIME{10};

QToolButton* MakeTool(char const* name, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

NoticeBar::NoticeBar(QWidget* parent)
    : KFrame(parent),
      m_passing(new QTimer(this)),
      m_mark(new MarkLabel(this)),
      m_sentence(new QLabel(this)),
      m_buttons(new FlowLayout),
      m_pager(new KFrame(this)),
      m_previous(MakeTool("noticePreviousButton", m_pager)),
      m_pageLabel(new QLabel(m_pager)),
      m_next(MakeTool("noticeNextButton", m_pager)),
      m_close(MakeTool("noticeCloseButton", this))
{
    setObjectName(QStringLiteral("noticeBar"));
    m_sentence->setObjectName(QStringLiteral("noticeSentence"));
    m_sentence->setWordWrap(true);
    m_sentence->setTextFormat(Qt::PlainText);
    m_sentence->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_pageLabel->setObjectName(QStringLiteral("noticePageLabel"));
    m_sentence->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_previous->setIcon(GUI::MakeIcon(GUI::IconKind::ArrowLeft));
    m_next->setIcon(GUI::MakeIcon(GUI::IconKind::ArrowRight));
    m_close->setIcon(GUI::MakeIcon(GUI::IconKind::Close));

    auto* pager = new QHBoxLayout(m_pager);
    pager->setContentsMargins(0, 0, 0, 0);
    pager->setSpacing(2);
    for (QWidget* part :
         {static_cast<QWidget*>(m_previous), static_cast<QWidget*>(m_pageLabel), static_cast<QWidget*>(m_next)})
        pager->addWidget(part);
    auto* head = new QHBoxLayout;
    head->addWidget(m_mark, 0, Qt::AlignTop);
    head->addWidget(m_sentence, 1);
    head->addWidget(m_close, 0, Qt::AlignTop);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addLayout(m_buttons);

    connect(m_previous, &QToolButton::clicked, this, [this] { ShowPage(m_page - 1); });
    connect(m_next, &QToolButton::clicked, this, [this] { ShowPage(m_page + 1); });
    connect(m_close, &QToolButton::clicked, this,
            [this]
            {
                // A copy: closing replaces the notices.
                if (auto const close = GetCurrent().close)
                    close();
            });
    m_buttons->addWidget(m_pager);
    m_passing->setObjectName(QStringLiteral("noticePassingTimer"));
    m_passing->setInterval(PASSING_TIME);
    connect(m_passing, &QTimer::timeout, this, &NoticeBar::ClosePassing);
    Retranslate();
    hide();
}

NoticeBar::~NoticeBar() = default;

void NoticeBar::SetNotices(std::vector<Notice> notices)
{
    QString shown = m_notices.empty() ? QString() : GetCurrent().sentence;
    // The most pressing one comes first: what the user reads stays only until another one takes that place.
    bool const isPressing =
        !m_notices.empty() && !notices.empty() &&
        std::none_of(m_notices.begin(), m_notices.end(),
                     [&first = notices.front()](Notice const& notice) { return notice.sentence == first.sentence; });
    if (isPressing)
        shown = notices.front().sentence;
    auto const isKnown = [this](Notice const& notice)
    {
        return std::any_of(m_notices.begin(), m_notices.end(),
                           [&notice](Notice const& known) { return known.sentence == notice.sentence; });
    };
    auto const passes = [](Notice const& notice) { return notice.passes; };
    if (std::none_of(notices.begin(), notices.end(), passes))
        m_passing->stop();
    else if (std::any_of(notices.begin(), notices.end(),
                         [&](Notice const& notice) { return notice.passes && !isKnown(notice); }))
        m_passing->start();
    m_notices = std::move(notices);
    m_page = 0;
    ShowNotice(shown);
}

void NoticeBar::ShowNotice(QString const& sentence)
{
    auto const found = std::find_if(m_notices.begin(), m_notices.end(),
                                    [&sentence](Notice const& notice) { return notice.sentence == sentence; });
    if (found != m_notices.end())
        m_page = static_cast<int>(found - m_notices.begin());
    ShowCurrent();
}

void NoticeBar::ShowFirst()
{
    ShowPage(0);
}

void NoticeBar::ShowPage(int page)
{
    m_page = std::clamp(page, 0, std::max(0, static_cast<int>(m_notices.size()) - 1));
    ShowCurrent();
}

void NoticeBar::ShowCurrent()
{
    setVisible(!m_notices.empty());
    if (m_notices.empty())
        return;
    Notice const& notice = GetCurrent();
    int const count = static_cast<int>(m_notices.size());
    Util::ApplyWidgetStyle(this, GetName(notice.mark), "noticeKind");
    m_mark->SetMark(notice.mark);
    m_sentence->setText(notice.sentence);
    m_pager->setVisible(count > 1);
    m_pageLabel->setText(tr("%1 of %2").arg(m_page + 1).arg(count));
    m_previous->setEnabled(m_page > 0);
    m_next->setEnabled(m_page + 1 < count);
    m_close->setVisible(static_cast<bool>(notice.close));
    FillButtons();
}

void NoticeBar::FillButtons()
{
    Notice const& notice = GetCurrent();
    QStringList labels;
    for (Notice::Button const& button : notice.buttons)
        labels.append(button.label);
    // Buttons that stay keep the focus when something else about the film changes.
    if (labels == m_labels)
        return;
    m_labels = labels;
    while (QLayoutItem* item = m_buttons->takeAt(0))
    {
        // Later: it may be the one whose click brought this about.
        if (QWidget* widget = item->widget(); widget != m_pager)
        {
            widget->hide();
            widget->deleteLater();
        }
        delete item;
    }
    for (std::size_t index = 0; index < notice.buttons.size(); ++index)
    {
        auto* button = new QPushButton(notice.buttons[index].label, this);
        button->setObjectName(QStringLiteral("noticeButton"));
        connect(button, &QPushButton::clicked, this, [this, index] { Press(index); });
        m_buttons->addWidget(button);
    }
    m_buttons->addWidget(m_pager);
}

void NoticeBar::Press(std::size_t button)
{
    // A copy: what it does replaces the notices.
    auto const press = GetCurrent().buttons.at(button).press;
    press();
}

bool NoticeBar::HasToStay() const
{
    QWidget const* focus = QApplication::focusWidget();
    return !isActiveWindow() || underMouse() || (focus != nullptr && isAncestorOf(focus));
}

void NoticeBar::ClosePassing()
{
    if (HasToStay())
        return;
    // A copy: closing replaces the notices.
    for (Notice const& notice : std::vector<Notice>(m_notices))
        if (notice.passes && notice.close)
            notice.close();
}

Notice const& NoticeBar::GetCurrent() const
{
    return m_notices.at(static_cast<std::size_t>(m_page));
}

void NoticeBar::Retranslate()
{
    auto const name = [](QToolButton* button, QString const& text)
    {
        button->setToolTip(text);
        button->setAccessibleName(text);
    };
    name(m_previous, tr("Previous notice"));
    name(m_next, tr("Next notice"));
    name(m_close, tr("Close this notice"));
    ShowCurrent();
}

void NoticeBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    KFrame::changeEvent(event);
}

bool NoticeBar::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate && m_passing->isActive())
        m_passing->start(); // whoever comes back has time to read
    return KFrame::event(event);
}

void NoticeBar::leaveEvent(QEvent* event)
{
    if (m_passing->isActive())
        m_passing->start();
    KFrame::leaveEvent(event);
}

} // namespace Korvex::Desktop
