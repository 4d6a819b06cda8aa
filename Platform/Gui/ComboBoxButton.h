#pragma once

#include "Gui/DropDownButton.h"

namespace Korvex::GUI
{

/// A drop-down button that looks like a combo box: the caption of the present choice at the left, shortened where there
/// is no room (the whole caption is then the tool tip), and an arrow at the right.
class KORVEX_GUI_API ComboBoxButton : public DropDownButton
{
    Q_OBJECT
public:
    explicit ComboBoxButton(QWidget* parent = nullptr);
    ~ComboBoxButton() override;

    void SetButtonText(QString const& text);
    /// The whole caption.
    [[nodiscard]] QString GetButtonText() const { return m_text; }

private:
    QString m_text;
};

} // namespace Korvex::GUI
