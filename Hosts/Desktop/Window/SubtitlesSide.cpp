#include "Desktop/Window/SubtitlesSide.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace Korvex::Desktop
{

SubtitlesSide::SubtitlesSide(QWidget& editingPanel, QWidget& textHelp, QWidget* parent)
    : KFrame(parent),
      m_scroll(new QScrollArea(this))
{
    setObjectName(QStringLiteral("subtitlesSide"));
    constexpr int MARGIN = 12;
    auto* column = new QWidget;
    column->setObjectName(QStringLiteral("subtitlesColumn"));
    auto* columnLayout = new QVBoxLayout(column);
    columnLayout->setContentsMargins(0, 0, 0, 0);
    columnLayout->addWidget(&editingPanel);
    auto* helpLayout = new QHBoxLayout;
    helpLayout->setContentsMargins(MARGIN, 0, MARGIN, MARGIN);
    helpLayout->addWidget(&textHelp);
    columnLayout->addLayout(helpLayout);
    columnLayout->addStretch(1);

    m_scroll->setObjectName(QStringLiteral("subtitlesScroll"));
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setWidgetResizable(true);
    m_scroll->setWidget(column);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_scroll);
    column->installEventFilter(this);
}

SubtitlesSide::~SubtitlesSide() = default;

bool SubtitlesSide::eventFilter(QObject* watched, QEvent* event)
{
    // The column scrolls up and down alone, so it sets how narrow this side can become.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Polish)
        m_scroll->setMinimumWidth(m_scroll->widget()->minimumSizeHint().width() +
                                  m_scroll->verticalScrollBar()->sizeHint().width());
    return KFrame::eventFilter(watched, event);
}

} // namespace Korvex::Desktop
