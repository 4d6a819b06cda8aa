#include "Gui/Style.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QStyle>
#include <QVariant>
#include <QWidget>

namespace Korvex::GUI
{

void RoundWidgetCorners(QWidget* /*widget*/) {}

void SetRoundedProperty(QWidget* widget)
{
    Util::ApplyWidgetStyle(widget, QStringLiteral("true"), "rounded");
}

void FixComboBox(QComboBox* box)
{
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
}

QString ElideText(int width, QString const& text, QFont const& font, Qt::TextElideMode mode)
{
    return QFontMetrics(font).elidedText(text, mode, width);
}

} // namespace Korvex::GUI

namespace Korvex::Util
{

void ApplyWidgetStyle(QWidget* widget, QString const& value, char const* property)
{
    widget->setProperty(property, value);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

} // namespace Korvex::Util
