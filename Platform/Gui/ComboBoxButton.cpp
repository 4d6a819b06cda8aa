#include "Gui/ComboBoxButton.h"

namespace Korvex::GUI
{

ComboBoxButton::ComboBoxButton(QWidget* parent) : DropDownButton(parent)
{
    // Its width is the layout's to say: a long caption must not widen the panel.
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

ComboBoxButton::~ComboBoxButton() = default;

void ComboBoxButton::SetButtonText(QString const& caption)
{
    m_caption = caption;
    setText(QString(caption).replace(QLatin1Char('&'), QLatin1String("&&")));
}

} // namespace Korvex::GUI
