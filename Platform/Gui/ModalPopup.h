#pragma once

#include "Gui/Export.h"

#include <QFrame>
#include <QPointer>

namespace Korvex::GUI
{

/// A veil over its parent that holds one content widget, as a drop-down does. A click outside the content, Escape, or
/// the content hiding itself closes it; the focus then returns to the widget that had it. The veil hides itself when it
/// closes and can be shown again. GUI thread.
class KORVEX_GUI_API ModalPopup : public QFrame
{
    Q_OBJECT
public:
    explicit ModalPopup(QWidget* parent = nullptr);
    ~ModalPopup() override;

    /// Takes the content in as its child, which also takes its window flags away. Not owned for good: whoever hears
    /// `Closed` may take the content out again before the popup is deleted.
    void SetPopup(QWidget* content);
    /// Where the content lies, in the popup's coordinates, with the size that it wants.
    [[nodiscard]] QRect GetPopupGeometry() const;
    /// Moves the content's top-left corner there; it is kept inside the veil, smaller than it wants where it has to be.
    void SetPopupPosition(QPoint const& topLeft);

Q_SIGNALS:
    /// Once for each time that it was shown, however it closed.
    void Closed();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPointer<QWidget> m_content;
    QPointer<QWidget> m_focusBefore;
};

} // namespace Korvex::GUI
