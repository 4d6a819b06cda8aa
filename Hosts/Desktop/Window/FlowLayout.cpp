#include "Desktop/Window/FlowLayout.h"

#include <QWidget>

#include <algorithm>

namespace Korvex::Desktop
{

FlowLayout::FlowLayout()
{
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
}

int FlowLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem* FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    auto const place = m_items.begin() + index;
    QLayoutItem* item = place->release();
    m_items.erase(place);
    return item;
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return {};
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    return Arrange(QRect(0, 0, width, 0), Pass::Measure);
}

QSize FlowLayout::sizeHint() const
{
    QSize size(0, 0);
    for (auto const& item : m_items)
    {
        QSize const hint = item->isEmpty() ? QSize(0, 0) : item->sizeHint();
        size.setWidth(size.width() + hint.width() + std::max(0, spacing()));
        size.setHeight(std::max(size.height(), hint.height()));
    }
    return size;
}

QSize FlowLayout::minimumSize() const
{
    QSize size(0, 0);
    for (auto const& item : m_items)
        if (!item->isEmpty())
            size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(QRect const& place)
{
    QLayout::setGeometry(place);
    Arrange(place, Pass::Move);
}

int FlowLayout::Arrange(QRect const& place, Pass pass) const
{
    int const gap = std::max(0, spacing());
    int x = place.left();
    int y = place.top();
    int rowHeight = 0;
    for (auto const& item : m_items)
    {
        if (item->isEmpty())
            continue;
        QSize const size(std::min(item->sizeHint().width(), place.width()), item->sizeHint().height());
        if (x > place.left() && x + size.width() > place.right() + 1)
        {
            x = place.left();
            y += rowHeight + gap;
            rowHeight = 0;
        }
        if (pass == Pass::Move)
            item->setGeometry(QRect(QPoint(x, y), size));
        x += size.width() + gap;
        rowHeight = std::max(rowHeight, size.height());
    }
    return y + rowHeight - place.top();
}

} // namespace Korvex::Desktop
