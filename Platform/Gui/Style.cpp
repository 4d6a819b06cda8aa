#include "Gui/Style.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QEvent>
#include <QFontMetrics>
#include <QPainterPath>
#include <QRegion>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QVariant>
#include <QWidget>

namespace Korvex::GUI
{

namespace
{

constexpr int CORNER_RADIUS = 6;
constexpr int SHORTEST_BOX = 8; ///< characters

/// Keeps a frameless window's mask to its size. A child of the window.
class CornerMask final : public QObject
{
public:
    explicit CornerMask(QWidget* window) : QObject(window), m_window(window)
    {
        window->installEventFilter(this);
        Update();
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
            Update();
        return false;
    }

private:
    void Update()
    {
        bool const isBareWindow = m_window->isWindow() && (m_window->windowType() == Qt::Popup ||
                                                           m_window->windowFlags().testFlag(Qt::FramelessWindowHint));
        if (!isBareWindow)
            return m_window->clearMask();
        QPainterPath path;
        path.addRoundedRect(m_window->rect(), CORNER_RADIUS, CORNER_RADIUS);
        m_window->setMask(QRegion(path.toFillPolygon().toPolygon()));
    }

    QWidget* const m_window;
};

} // namespace

void RoundWidgetCorners(QWidget* widget)
{
    QString const name = QStringLiteral("korvexCornerMask");
    if (widget->findChild<QObject*>(name, Qt::FindDirectChildrenOnly) == nullptr)
        (new CornerMask(widget))->setObjectName(name);
}

void SetRoundedProperty(QWidget* widget)
{
    Util::ApplyWidgetStyle(widget, QStringLiteral("true"), "rounded");
}

void FixComboBox(QComboBox* box)
{
    // The delegate that a combo box makes itself ignores what the style sheet says of rows.
    if (qobject_cast<QStyledItemDelegate*>(box->itemDelegate()) == nullptr)
        box->setItemDelegate(new QStyledItemDelegate(box));
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(SHORTEST_BOX);
    QAbstractItemView* const list = box->view();
    list->setTextElideMode(Qt::ElideMiddle);
    list->setMinimumWidth(list->sizeHintForColumn(0) + 2 * CORNER_RADIUS +
                          box->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, box));
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
    if (widget->property(property) == value)
        return;
    widget->setProperty(property, value);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->updateGeometry();
    widget->update();
}

} // namespace Korvex::Util
