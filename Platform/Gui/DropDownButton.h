#pragma once

#include "Gui/Export.h"

#include <QPushButton>

namespace Korvex::GUI
{

/// A button that opens something below itself: its caption at the left, an arrow at the right. Space, Enter, Alt+Down
/// and F4 open it like a click. It looks open from the click until `OnHideDropDown`.
class KORVEX_GUI_API DropDownButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(bool open READ IsOpen) // for the style sheet
public:
    explicit DropDownButton(QWidget* parent = nullptr);
    ~DropDownButton() override;

    /// Whoever opened the drop-down says that it has closed: the button looks closed again.
    void OnHideDropDown();
    [[nodiscard]] bool IsOpen() const { return m_isOpen; }

    [[nodiscard]] QSize sizeHint() const override;
    /// Narrow: the caption is shortened where there is no room.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void SetOpen(bool isOpen);
    /// Where the caption stands, without the arrow.
    [[nodiscard]] QRect FindTextPlace() const;
    /// Of the caption as it is written, ampersands doubled.
    [[nodiscard]] QString MakeShortText() const;

    bool m_isOpen = false;
};

} // namespace Korvex::GUI
