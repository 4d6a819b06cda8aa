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

    /// Plain text, an ampersand is one: captions are file names and titles.
    void SetButtonText(QString const& caption);
    /// The whole caption.
    [[nodiscard]] QString GetButtonText() const { return m_caption; }

private:
    QString m_caption;
};

} // namespace Korvex::GUI
