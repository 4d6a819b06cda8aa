#include "Gui/ColorPickerButton.h"

#include "Gui/DialogPlace.h"
#include "Gui/LookAndFeelManager.h"
#include "Gui/Style.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace Korvex::GUI
{

namespace
{

constexpr QSize SWATCH(36, 20);
constexpr double SWATCH_RADIUS = 3.0;

void PaintSwatch(QPainter& painter, QRect const& place, QColor const& color, bool isEnabled)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled ? 1.0 : 0.4);
    // One of the two lines stands out from any colour.
    QRectF const outer = QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(GetColor(ColorRole::FieldBorder));
    painter.setBrush(color);
    painter.drawRoundedRect(outer, SWATCH_RADIUS, SWATCH_RADIUS);
    painter.setPen(GetColor(ColorRole::Raised));
    painter.drawRoundedRect(outer.adjusted(1, 1, -1, -1), SWATCH_RADIUS - 1, SWATCH_RADIUS - 1);
}

void StyleButton(QDialogButtonBox const& buttons, QDialogButtonBox::StandardButton which, QString const& hint)
{
    if (QPushButton* const button = buttons.button(which))
    {
        Util::ApplyWidgetStyle(button, hint, "styleHint");
        button->setIcon({}); // some desktops want one, in the style that the button's parent has
    }
}

} // namespace

ColorPickerButton::ColorPickerButton(QWidget* parent) : QToolButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    connect(this, &QAbstractButton::clicked, this, &ColorPickerButton::OpenDialog);
    Retranslate();
}

ColorPickerButton::~ColorPickerButton() = default;

void ColorPickerButton::SetColor(QColor const& color)
{
    if (color == m_color)
        return;
    m_colorBefore = color;
    ShowColor(color);
}

void ColorPickerButton::ShowColor(QColor const& color)
{
    if (color == m_color)
        return;
    m_color = color;
    Retranslate();
    update();
    Q_EMIT ColorChanged(m_color);
}

void ColorPickerButton::SetCaption(QString const& caption)
{
    m_caption = caption;
    Retranslate();
}

void ColorPickerButton::Retranslate()
{
    QString const name = m_color.name();
    setText(name);
    QString const description = m_caption.isEmpty() ? tr("Color %1").arg(name) : tr("%1: %2").arg(m_caption, name);
    setToolTip(description.toHtmlEscaped());
    setAccessibleName(description);
    if (m_dialog != nullptr)
        m_dialog->setWindowTitle(m_caption.isEmpty() ? tr("Choose a color") : m_caption);
}

QSize ColorPickerButton::sizeHint() const
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ToolButton, &option, SWATCH, this);
}

void ColorPickerButton::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = {};
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    QRect place(QPoint(), SWATCH.boundedTo(size()));
    place.moveCenter(rect().center());
    PaintSwatch(painter, place, m_color, isEnabled());
}

void ColorPickerButton::keyPressEvent(QKeyEvent* event)
{
    bool const opens = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!opens)
        QToolButton::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
}

void ColorPickerButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QToolButton::changeEvent(event);
}

void ColorPickerButton::OpenDialog()
{
    if (m_dialog != nullptr)
        return;
    m_colorBefore = m_color;
    m_dialog = new QColorDialog(m_color, this);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->setOption(QColorDialog::DontUseNativeDialog);
    if (auto const* const buttons = m_dialog->findChild<QDialogButtonBox*>())
    {
        StyleButton(*buttons, QDialogButtonBox::Ok, QStringLiteral("activeButton"));
        StyleButton(*buttons, QDialogButtonBox::Cancel, QStringLiteral("rejectButton"));
    }
    RoundWidgetCorners(m_dialog);
    Retranslate();
    connect(m_dialog, &QColorDialog::currentColorChanged, this,
            [this](QColor const& color) { ShowColor(QColor::fromRgb(color.rgb())); });
    connect(m_dialog, &QDialog::rejected, this, [this] { ShowColor(m_colorBefore); });
    PlaceInCorner(*m_dialog); // what is being coloured stays in view
    m_dialog->open();
}

} // namespace Korvex::GUI
