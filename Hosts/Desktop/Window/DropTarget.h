#pragma once

#include "Core/ioPath.h"

#include <QObject>
#include <QTimer>

#include <vector>

class QDropEvent;
class QMimeData;
class QWidget;

namespace Korvex::Desktop
{

class DropHighlight;

/// Lets files be dropped anywhere on a window whose parts take no drops of their own, and lights it up while they
/// hover. GUI thread.
class DropTarget final : public QObject
{
    Q_OBJECT
public:
    /// Belongs to the window.
    explicit DropTarget(QWidget* window);
    ~DropTarget() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The place is on the screen.
    void Dropped(std::vector<Korvex::ioPath> const& paths, QPoint const& place);

private:
    bool HandleDrag(QEvent* event);
    void Drop(QDropEvent& event);

    QWidget* m_window;
    DropHighlight* m_highlight;
    /// Moving from one widget to the next leaves and enters: the light goes only when nothing was entered.
    QTimer m_leaving;
};

} // namespace Korvex::Desktop
