#pragma once

#include "Gui/Export.h"

#include <QPushButton>

namespace Korvex::GUI
{

/// A button that opens something below itself, with a mark at its right edge. Space, Enter, Alt+Down and F4 open it
/// like a click.
class KORVEX_GUI_API DropDownButton : public QPushButton
{
    Q_OBJECT
public:
    explicit DropDownButton(QWidget* parent = nullptr);
    ~DropDownButton() override;

    /// Whoever opened the drop-down says that it has closed: the button looks closed again.
    void OnHideDropDown();
    [[nodiscard]] bool IsOpen() const { return m_isOpen; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_isOpen = false;
};

} // namespace Korvex::GUI
