#pragma once

#include <QObject>
#include <QPointer>

class QRect;
class QWidget;

namespace Korvex::GUI
{
class ModalPopup;
} // namespace Korvex::GUI

namespace Korvex::Desktop
{

/// Shows one panel beside the place that asked for it, over a veil that a click or Escape closes. GUI thread.
class SubtitlesPopup final : public QObject
{
    Q_OBJECT
public:
    /// Belongs to the window. The panel is taken into the window while it is open and out of it afterwards; it may go
    /// while it is open.
    SubtitlesPopup(QWidget& panel, QWidget& window);
    ~SubtitlesPopup() override;

    /// Below `anchor`, which is a place of the screen, or above where there is no room.
    void Open(QRect const& anchor);

private:
    void Place(GUI::ModalPopup& popup, QRect const& anchor) const;
    void Close(GUI::ModalPopup& popup);

    QPointer<QWidget> m_panel;
    QWidget& m_window;
    QPointer<GUI::ModalPopup> m_popup; ///< null while closed
};

} // namespace Korvex::Desktop
