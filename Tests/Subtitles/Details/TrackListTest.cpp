#include "Support/WidgetSupport.h"

#include "Subtitles/Details/SubtitleCollection.h"
#include "Subtitles/Entities/SubtitleTrack.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QListView>
#include <QTest>
#include <QToolButton>
#include <QToolTip>

namespace Korvex::Converter::Subtitles::Details
{
namespace
{

using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;
using testing::ElementsAre;
using testing::IsEmpty;

class TrackListTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QObject::connect(&list, &SubtitleCollection::NoSubtitlesSelected, &list, [this] { log.push_back("none"); });
        QObject::connect(&list, &SubtitleCollection::AllSoftSubtitlesSelected, &list,
                         [this] { log.push_back("all soft"); });
        QObject::connect(&list, &SubtitleCollection::SubtitleTrackSelected, &list,
                         [this](SubtitleTrackID const& id) { log.push_back("track " + id.ToString()); });
        QObject::connect(&list, &SubtitleCollection::ExtractSubtitleRequested, &list,
                         [this](SubtitleTrackID const& id) { log.push_back("extract " + id.ToString()); });
        Add(10, "Zebra");
        Add(9, "A title that is much too long for a row of this width, so that its middle is left out of it");
        list.resize(260, 200);
        Testing::ShowAndWait(list);
        ASSERT_NE(View(), nullptr);
        View()->setFocus();
    }

    void Add(std::uint32_t stream, std::string const& title)
    {
        SubtitleTrack track(stream);
        track.title = title;
        list.AddTrack(track);
    }
    [[nodiscard]] QListView* View() { return list.findChild<QListView*>(); }
    [[nodiscard]] QModelIndex Row(int row) { return View()->model()->index(row, 0); }
    void ClickRow(int row)
    {
        QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, View()->visualRect(Row(row)).center());
    }
    [[nodiscard]] QString ToolTipOfRow(int row)
    {
        QToolTip::hideText();
        QPoint const place = View()->visualRect(Row(row)).center();
        QHelpEvent event(QEvent::ToolTip, place, View()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(View()->viewport(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
    [[nodiscard]] std::vector<std::string> Take() { return std::exchange(log, {}); }

    SubtitleCollection list;
    std::vector<std::string> log;
};

TEST_F(TrackListTest, ChoosesByClickAndByKeyAndNeverBySetter)
{
    ClickRow(2);
    ClickRow(0);
    EXPECT_THAT(Take(), ElementsAre("track 10", "none"));
    QTest::keyClick(View(), Qt::Key_Down);
    QTest::keyClick(View(), Qt::Key_Down);
    EXPECT_TRUE(list.IsSetWithoutSubtitles()) << "moving chooses nothing";
    QTest::keyClick(View(), Qt::Key_Return);
    QTest::keyClick(View(), Qt::Key_End);
    QTest::keyClick(View(), Qt::Key_Space);
    QTest::keyClick(View(), Qt::Key_Home);
    QTest::keyClick(View(), Qt::Key_Enter);
    QTest::keyClicks(View(), "ze");
    QTest::keyClick(View(), Qt::Key_Return);
    EXPECT_THAT(Take(), ElementsAre("track 10", "track 9", "none", "track 10"));
    EXPECT_EQ(list.GetTitleCurrentTrack(), "Zebra");

    list.SetAllSoftSubtitles();
    EXPECT_TRUE(list.IsSetAllSoftSubtitles());
    EXPECT_EQ(list.GetTitleCurrentTrack(), "");
    list.SetCurrentTrack(SubtitleTrackID(77));
    EXPECT_TRUE(list.IsSetAllSoftSubtitles()) << "no such track";
    list.SetCurrentTrack(SubtitleTrackID(10));
    list.Clear();
    EXPECT_TRUE(list.IsSetWithoutSubtitles());
    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(TrackListTest, SaysWhyAllTracksCannotBeLeft)
{
    list.SetWithoutSubtitles();
    list.SetSoftSubAvailable(false);
    EXPECT_TRUE(ToolTipOfRow(1).contains("output format"));
    ClickRow(1);
    QTest::keyClick(View(), Qt::Key_Home);
    QTest::keyClick(View(), Qt::Key_Down);
    QTest::keyClick(View(), Qt::Key_Return);
    EXPECT_THAT(Take(), ElementsAre("track 10")) << "keys pass over it, clicks do nothing";
    list.SetSoftSubAvailable(true);
    EXPECT_EQ(ToolTipOfRow(1), "");
    ClickRow(1);
    EXPECT_THAT(Take(), ElementsAre("all soft"));
    EXPECT_TRUE(ToolTipOfRow(3).startsWith("A title that is much too long"));
}

TEST_F(TrackListTest, ExtractsByButtonAndByKeyWithoutChoosing)
{
    auto const buttons = list.findChildren<QToolButton*>("extractButton");
    ASSERT_EQ(buttons.size(), 2);
    EXPECT_TRUE(buttons[0]->accessibleName().contains("Zebra"));
    for (QToolButton* button : buttons)
        QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(View()->visualRect(Row(3)).contains(buttons[1]->geometry()));
    EXPECT_TRUE(View()->viewport()->rect().contains(buttons[1]->geometry()));
    QTest::keyClick(View(), Qt::Key_End);
    QTest::keyClick(View(), Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(View(), Qt::Key_Home);
    QTest::keyClick(View(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(Take(), ElementsAre("extract 10", "extract 9", "extract 9"));
    EXPECT_TRUE(list.IsSetAllSoftSubtitles());

    list.Clear();
    Add(3, "New");
    QCoreApplication::processEvents(); // the rows' layout brings the button
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(list.findChildren<QToolButton*>("extractButton").size(), 1);
    QTest::mouseClick(list.findChild<QToolButton*>("extractButton"), Qt::LeftButton);
    EXPECT_THAT(Take(), ElementsAre("extract 3"));
}

TEST_F(TrackListTest, OpensTheMenuOfATrackOnly)
{
    std::vector<std::string> menus;
    list.SetTrackMenuHandler([&](SubtitleTrackID const& id, QPoint const&) { menus.push_back(id.ToString()); });
    auto const openMenu = [this](QContextMenuEvent::Reason reason, int row)
    {
        QPoint const place = View()->visualRect(Row(row)).center();
        QContextMenuEvent event(reason, place, View()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(reason == QContextMenuEvent::Mouse ? View()->viewport() : View(), &event);
    };
    View()->setCurrentIndex(Row(2));
    openMenu(QContextMenuEvent::Mouse, 3);
    openMenu(QContextMenuEvent::Mouse, 0);
    openMenu(QContextMenuEvent::Keyboard, 0);
    EXPECT_THAT(menus, ElementsAre("9", "10"));
}

TEST_F(TrackListTest, MayBeRefilledWhileItReportsAChoice)
{
    QObject::connect(&list, &SubtitleCollection::SubtitleTrackSelected, &list,
                     [this](SubtitleTrackID const& id)
                     {
                         list.Clear();
                         Add(9, "Nine");
                         list.SetCurrentTrack(id);
                     });
    ClickRow(3);
    EXPECT_EQ(list.GetTitleCurrentTrack(), "Nine");
    EXPECT_EQ(View()->model()->rowCount(), 3);
}

TEST_F(TrackListTest, ScrollsManyTracksAndTellsEachRowToScreenReaders)
{
    QSize const small = list.sizeHint();
    for (std::uint32_t stream = 100; stream < 140; ++stream)
        Add(stream, "Track " + std::to_string(stream));
    EXPECT_GT(list.sizeHint().height(), small.height());
    EXPECT_LT(list.sizeHint().height(), 500);
    QAccessibleInterface* const rows = QAccessible::queryAccessibleInterface(View());
    ASSERT_NE(rows, nullptr);
    QAccessibleInterface* const last = rows->child(43);
    ASSERT_NE(last, nullptr);
    EXPECT_EQ(last->text(QAccessible::Name), "Track 139");
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Details
