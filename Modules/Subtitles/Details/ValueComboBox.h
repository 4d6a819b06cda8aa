#pragma once

#include "Subtitles/Entities/MetaTypes.h"

#include "Gui/Style.h"

#include <QComboBox>
#include <QIcon>
#include <QSignalBlocker>
#include <QVariant>

#include <vector>

/// Combo boxes whose items are values of an enumeration that has display texts. None of these lets the box send a
/// signal. GUI thread.
namespace Korvex::Converter::Subtitles::Details
{

/// Longer texts are shortened in the middle; their whole text is the item's tool tip.
inline constexpr int ITEM_TEXT_WIDTH = 200;

template <typename Value>
void SetValueText(QComboBox& box, int index, Value value)
{
    QString const text = QString::fromStdString(GetDisplayText(value));
    QString const shortened = GUI::ElideText(ITEM_TEXT_WIDTH, text, box.font(), Qt::ElideMiddle);
    box.setItemText(index, shortened);
    box.setItemData(index, shortened == text ? QVariant() : QVariant(text), Qt::ToolTipRole);
}

template <typename Value>
void FillWithValues(QComboBox& box, std::vector<Value> const& values)
{
    QSignalBlocker const blocker(box);
    box.clear();
    for (Value const value : values)
    {
        int const index = box.count();
        box.insertItem(index, QIcon(), QString(), QVariant::fromValue(value));
        SetValueText(box, index, value);
    }
    GUI::FixComboBox(&box);
}

/// The value at a row; 0 where the row holds none.
template <typename Value>
[[nodiscard]] Value GetValueAt(QComboBox const& box, int index)
{
    return box.itemData(index, Qt::UserRole).template value<Value>();
}

/// A value that is not in the box leaves its row as it is.
template <typename Value>
void SelectValue(QComboBox& box, Value value)
{
    QSignalBlocker const blocker(box);
    int const index = box.findData(QVariant::fromValue(value), Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0)
        box.setCurrentIndex(index);
}

template <typename Value>
void RetranslateValues(QComboBox& box)
{
    QSignalBlocker const blocker(box);
    for (int index = 0; index < box.count(); ++index)
        SetValueText(box, index, GetValueAt<Value>(box, index));
    GUI::FixComboBox(&box);
}

} // namespace Korvex::Converter::Subtitles::Details
