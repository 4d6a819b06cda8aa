#include "Desktop/Window/DropTarget.h"

#include "Desktop/Window/DropHighlight.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace Korvex::Desktop
{

namespace
{

std::vector<ioPath> ListFiles(QMimeData const* data)
{
    std::vector<ioPath> paths;
    for (QUrl const& url : data->urls())
        if (url.isLocalFile())
            paths.emplace_back(url.toLocalFile().toStdString());
    return paths;
}

} // namespace

DropTarget::DropTarget(QWidget* window) : QObject(window), m_window(window), m_highlight(new DropHighlight(window))
{
    constexpr int LEAVE_MS = 60;
    m_leaving.setSingleShot(true);
    m_leaving.setInterval(LEAVE_MS);
    connect(&m_leaving, &QTimer::timeout, m_highlight, &QWidget::hide);
    window->setAcceptDrops(true);
    window->installEventFilter(this);
}

DropTarget::~DropTarget() = default;

bool DropTarget::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type())
    {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop:
        break;
    default:
        return false;
    }
    return watched == m_window && HandleDrag(event);
}

bool DropTarget::HandleDrag(QEvent* event)
{
    if (event->type() == QEvent::DragLeave)
    {
        m_leaving.start();
        return false;
    }
    auto& drop = static_cast<QDropEvent&>(*event);
    if (ListFiles(drop.mimeData()).empty())
        return false;
    // Never a move: the source would take its files away.
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    m_leaving.stop();
    if (event->type() == QEvent::Drop)
        Drop(drop);
    else
        m_highlight->Show();
    return true;
}

void DropTarget::Drop(QDropEvent& event)
{
    m_highlight->hide();
    m_window->activateWindow();
    Q_EMIT Dropped(ListFiles(event.mimeData()), m_window->mapToGlobal(event.pos()));
}

} // namespace Korvex::Desktop
