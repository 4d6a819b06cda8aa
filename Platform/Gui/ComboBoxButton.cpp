#include "Gui/ComboBoxButton.h"

namespace Korvex::GUI
{

ComboBoxButton::ComboBoxButton(QWidget* parent) : DropDownButton(parent) {}

ComboBoxButton::~ComboBoxButton() = default;

void ComboBoxButton::SetButtonText(QString const& text)
{
    m_text = text;
    setText(text);
}

} // namespace Korvex::GUI
