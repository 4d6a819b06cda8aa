#include "Gui/ColorPickerButton.h"

namespace Korvex::GUI
{

ColorPickerButton::ColorPickerButton(QWidget* parent) : QToolButton(parent) {}

ColorPickerButton::~ColorPickerButton() = default;

void ColorPickerButton::SetColor(QColor const& color)
{
    if (color == m_color)
        return;
    m_color = color;
    update();
    Q_EMIT ColorChanged(m_color);
}

} // namespace Korvex::GUI
