#pragma once

#include <QListView>
#include <QTest>

#include <gtest/gtest.h>

namespace Korvex::Converter::Subtitles::Testing
{

/// Clicks a row of the track list that `list` is or holds: 0 "No subtitles", 1 all soft, then the tracks.
inline void ClickTrackRow(QWidget& list, int row)
{
    auto* const view = list.findChild<QListView*>("trackListView");
    ASSERT_NE(view, nullptr);
    QModelIndex const index = view->model()->index(row, 0);
    ASSERT_TRUE(index.isValid()) << "no row " << row;
    view->scrollTo(index);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
}

} // namespace Korvex::Converter::Subtitles::Testing
