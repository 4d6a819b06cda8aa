#include "Gui/DropDownButton.h"

#include "Gui/Icons.h"
#include "Gui/Style/WholeTextTip.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace Korvex::GUI
{

namespace
{

constexpr int ARROW_SIDE = 16;
constexpr int GAP = 6;
constexpr int SHORTEST_TEXT = 4; ///< characters

} // namespace

DropDownButton::DropDownButton(QWidget* parent) : QPushButton(parent)
{
    setAutoDefault(false);
    connect(this, &QAbstractButton::clicked, this, [this] { SetOpen(true); });
}

DropDownButton::~DropDownButton() = default;

void DropDownButton::OnHideDropDown()
{
    SetOpen(false);
}

void DropDownButton::SetOpen(bool isOpen)
{
    if (isOpen == m_isOpen)
        return;
    m_isOpen = isOpen;
    style()->unpolish(this);
    style()->polish(this);
    update();
}

QSize DropDownButton::sizeHint() const
{
    return QPushButton::sizeHint() + QSize(GAP + ARROW_SIDE, 0);
}

QSize DropDownButton::minimumSizeHint() const
{
    QSize const hint = sizeHint();
    int const captionWidth = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    int const shortest = SHORTEST_TEXT * fontMetrics().averageCharWidth();
    return {hint.width() - qMax(0, captionWidth - shortest), hint.height()};
}

QRect DropDownButton::FindTextPlace() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QRect place = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    int const arrow = GAP + ARROW_SIDE;
    return isRightToLeft() ? place.adjusted(arrow, 0, 0, 0) : place.adjusted(0, 0, -arrow, 0);
}

QString DropDownButton::MakeShortText() const
{
    int const iconWidth = icon().isNull() ? 0 : iconSize().width() + GAP;
    return fontMetrics().elidedText(text(), Qt::ElideRight, qMax(0, FindTextPlace().width() - iconWidth),
                                    Qt::TextShowMnemonic);
}

void DropDownButton::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.features &= ~QStyleOptionButton::HasMenu;
    painter.drawControl(QStyle::CE_PushButtonBevel, option);

    QRect const textPlace = FindTextPlace();
    QStyleOptionButton label = option;
    label.rect = textPlace;
    label.text = MakeShortText();
    painter.drawControl(QStyle::CE_PushButtonLabel, label);

    int const arrowLeft = isRightToLeft() ? textPlace.left() - GAP - ARROW_SIDE : textPlace.right() + 1 + GAP;
    QRect const arrow(arrowLeft, (height() - ARROW_SIDE) / 2, ARROW_SIDE, ARROW_SIDE);
    // The style sheet puts the colour of its caption into the palette.
    PaintIcon(painter, m_isOpen ? IconKind::ArrowUp : IconKind::ArrowDown, arrow,
              palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
}

bool DropDownButton::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QPushButton::event(event);
    auto const readable = [](QString caption) { return caption.replace(QLatin1String("&&"), QLatin1String("&")); };
    return ShowWholeText(*this, *static_cast<QHelpEvent*>(event), readable(MakeShortText()), readable(text())) ||
           QPushButton::event(event);
}

void DropDownButton::keyPressEvent(QKeyEvent* event)
{
    bool const opens = event->key() == Qt::Key_F4 || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                       (event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier));
    if (!opens)
        QPushButton::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
}

} // namespace Korvex::GUI
