#include "Subtitles/Fakes/TrackListClicks.h"
#include "Support/WidgetSupport.h"

#include "Subtitles/Details/ItemPanel.h"

#include "Gui/ModalPopup.h"

#include <QAbstractButton>
#include <QTest>

namespace Korvex::Converter::Subtitles::Details
{
namespace
{

using Converter::Subtitles::Testing::ClickTrackRow;
using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;
using Events = std::vector<std::string>;

SubtitleTrack MakeTrack(std::uint32_t index, std::string language)
{
    SubtitleTrack track(index);
    track.language = std::move(language);
    track.codecName = "SubRip";
    return track;
}

class ItemPanelTest : public testing::Test, public Adapters::ISubtitleCollectionEventObserver
{
protected:
    ItemPanelTest()
    {
        m_panel.RegisterEventHandler(this);
        m_panel.AddSubtitleTrack(MakeTrack(2, "en"));
        m_panel.AddSubtitleTrack(MakeTrack(3, "de"));
        m_panel.SetSoftSubAvailable(true);
    }

    void OnChooseFileRequested() override { m_events.push_back("choose"); }
    void OnFindFileRequested(std::string const& source) override { m_events.push_back("find " + source); }
    void OnSubtitleTrackSelected(SubtitleTrackID const& id) override { m_events.push_back("track " + id.ToString()); }
    void OnExtractSubtitleRequested(SubtitleTrackID const& id) override
    {
        m_events.push_back("extract " + id.ToString());
    }
    void OnApplyToAllFilesChanged(bool apply) override { m_events.push_back(apply ? "apply" : "do not apply"); }
    void OnChoiceFinished() override
    {
        m_events.push_back("finished");
        m_panel.Hide();
    }
    void OnNoSubtitlesSelected() override { m_events.push_back("none"); }
    void OnAllSoftSubtitlesSelected() override { m_events.push_back("all soft"); }

    void Click(char const* button)
    {
        auto* const found = m_panel.findChild<QAbstractButton*>(button);
        ASSERT_NE(found, nullptr) << button;
        QTest::mouseClick(found, Qt::LeftButton, {}, QPoint(10, found->height() / 2));
    }

    ItemPanel m_panel;
    Events m_events;
};

TEST_F(ItemPanelTest, TellsWhatTheUserDoesAndNothingThatIsPushedIn)
{
    Korvex::Testing::ShowAndWait(m_panel);
    m_panel.SetWithoutSubtitles();
    m_panel.SetAllSoftSubtitles();
    m_panel.SetCurrentTrack(SubtitleTrackID(3u));
    EXPECT_EQ(m_panel.GetCurrentTitle(), GenerateLabel(MakeTrack(3, "de")));
    m_panel.SetApplyToAllFiles(true);
    EXPECT_TRUE(m_panel.GetApplyToAllFiles());
    EXPECT_EQ(m_events, Events{});

    ClickTrackRow(m_panel, 0);
    EXPECT_EQ(m_panel.GetCurrentTitle(), "No subtitles");
    ClickTrackRow(m_panel, 1);
    EXPECT_EQ(m_panel.GetCurrentTitle(), "Leave all tracks (softsub)");
    ClickTrackRow(m_panel, 2);
    Click("chooseButton");
    Click("findButton");
    Click("applyToAllCheckBox");
    EXPECT_FALSE(m_panel.GetApplyToAllFiles());
    Click("doneButton");
    EXPECT_EQ(m_events,
              (Events{"none", "all soft", "track 2", "choose", "find itemPanel", "do not apply", "finished"}));

    m_panel.UnregisterEventHandler(this);
    ClickTrackRow(m_panel, 0);
    EXPECT_EQ(m_events.size(), 7u);
}

TEST_F(ItemPanelTest, ClosesThePopupThatHoldsItAndOpensAgain)
{
    QWidget window;
    window.resize(500, 500);
    GUI::ModalPopup popup(&window);
    int closed = 0;
    QObject::connect(&popup, &GUI::ModalPopup::Closed, &popup, [&] { ++closed; });
    popup.hide();
    Korvex::Testing::ShowAndWait(window);
    for (int time = 1; time <= 2; ++time)
    {
        popup.SetPopup(&m_panel);
        popup.setGeometry(window.rect());
        popup.show();
        popup.SetPopupPosition({20, 20});
        QCoreApplication::processEvents();
        EXPECT_TRUE(m_panel.isVisible());
        for (auto const* extract : m_panel.findChildren<QWidget*>("extractButton"))
            EXPECT_FALSE(extract->visibleRegion().isEmpty());
        Click("doneButton");
        EXPECT_FALSE(popup.isVisible());
        EXPECT_EQ(closed, time);
    }
    m_panel.setParent(nullptr);
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Details
