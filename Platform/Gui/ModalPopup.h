#pragma once

#include "Gui/Export.h"

#include <QFrame>
#include <QPointer>

namespace Korvex::GUI
{

/// A veil over its parent that holds one content widget, as a drop-down does. It keeps the parent's size. A click
/// outside the content, Escape, the content hiding itself or leaving, and the focus going elsewhere in the window close
/// it; the focus then returns to the widget that had it, unless the user has moved it. The veil hides itself when it
/// closes and can be shown again. GUI thread.
class KORVEX_GUI_API ModalPopup : public QFrame
{
    Q_OBJECT
public:
    explicit ModalPopup(QWidget* parent = nullptr);
    /// Closes first, if it is open, unless the parent is being destroyed: then nobody is told any more.
    ~ModalPopup() override;

    /// Takes the content in as its child, which also takes its window flags away; the content before goes back to
    /// having no parent. Not owned for good: whoever hears `Closed` may take the content out again before the popup is
    /// deleted.
    void SetPopup(QWidget* content);
    /// Where the content lies, in the popup's coordinates, with the size that it wants and the veil allows.
    [[nodiscard]] QRect GetPopupGeometry() const;
    /// Moves the content's top-left corner there; it is kept inside the veil, smaller than it wants where it has to be.
    void SetPopupPosition(QPoint const& topLeft);

Q_SIGNALS:
    /// Once for each time that it was shown, however it closed. At once; from the event loop where it closed because
    /// its parent was hidden, which may be the beginning of the parent's destruction.
    void Closed();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void childEvent(QChildEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    enum class FocusAfter
    {
        Returns,
        Stays,
    };

    void Close(FocusAfter focus);
    void TellClosed();
    void OnFocusChanged(QWidget* now);
    void FocusContent();
    void PlaceContent();
    [[nodiscard]] QSize FindContentSize() const;

    QPointer<QWidget> m_content;
    QPointer<QWidget> m_focusBefore;
    QPoint m_wantedTopLeft;
    bool m_isOpen = false;
    bool m_owesClosed = false;    ///< closed, and nobody told yet
    bool m_isParentGoing = false; ///< its destructor runs
};

} // namespace Korvex::GUI
