#include "Subtitles/Composition/BuiltModule.h"
#include "Subtitles/Fakes/FakeEditingPanel.h"
#include "Subtitles/Fakes/TrackListClicks.h"
#include "Support/WidgetSupport.h"

#include "Subtitles/Details/EditingPanel.h"
#include "Subtitles/Details/ItemPanel.h"

#include "Conf/IFormatFile.h"
#include "Proc/Settings.h"

#include <QAbstractButton>
#include <QSpinBox>
#include <QTest>

// From a panel that echoes through the whole module into the core settings.
namespace Korvex::Converter::Subtitles
{
namespace
{

using Entities::SubtitleAlign;
using Entities::SubtitleCollection;
using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;

SubtitleTrack MakeStream(std::uint32_t index)
{
    SubtitleTrack track(index);
    track.codecId = "subrip";
    track.styleEditable = true;
    return track;
}

/// The module with a host's panels around it.
class Module
{
public:
    Module(std::shared_ptr<Adapters::IEditingPanel> const& editingPanel,
           std::shared_ptr<Adapters::IItemPanel> const& itemPanel, Entities::SubtitlePresenterKind kind)
        : m_kind(kind)
    {
        auto const widgets = std::make_shared<Gui::GUIContainer>();
        widgets->Register(editingPanel);
        widgets->Register(itemPanel);
        m_container = Testing::BuildModule(nullptr, widgets);
    }

    /// An interactor with two tracks in the panels.
    std::shared_ptr<Entities::ISubtitleCollectionInteractor> ShowFilm()
    {
        auto interactor = m_container->resolve<Entities::ISubtitleCollectionInteractorPool>()->GetInteractor();
        Transcoder::Entities::Preset preset;
        preset.formatId = Conf::IFormatFile::FORMAT_MATROSKA;
        interactor->SetPreset(preset);
        Entities::SubtitlePresenterSettings settings;
        settings.kind = m_kind;
        interactor->SetPresenterSettings(settings);
        interactor->SetSubtitleCollection(SubtitleCollection(), true);
        interactor->AddTrackList({{SubtitleTrackID(2u), MakeStream(2)}, {SubtitleTrackID(10u), MakeStream(10)}});
        return interactor;
    }

private:
    Entities::SubtitlePresenterKind m_kind;
    std::shared_ptr<Hypodermic::Container> m_container;
};

class EditingRoundTripTest : public testing::Test
{
protected:
    std::shared_ptr<Testing::FakeEditingPanel> m_panel = std::make_shared<Testing::FakeEditingPanel>();
    Module m_module{m_panel, nullptr, Entities::SubtitlePresenterKind::EditingPanel};
    std::shared_ptr<Entities::ISubtitleCollectionInteractor> m_first = m_module.ShowFilm();
};

TEST_F(EditingRoundTripTest, EditsReachTheSettingsAndTogglingKeepsThem)
{
    m_panel->UserSelects(SubtitleTrackID(2u));
    m_panel->UserSetsShift(12);
    m_panel->UserSetsOffset(-1.5);
    m_panel->UserSetsTextColor(Qt::red);
    m_panel->UserSetsAlign(SubtitleAlign::Bottom);
    SubtitleCollection const before = m_first->GetSubtitleCollection();
    auto const burned = ReadCoreSettings(before).mixer;
    ASSERT_NE(burned, nullptr);
    EXPECT_EQ(burned->GetSubtitleStreamIndex(), 2u);
    EXPECT_EQ(burned->GetDrawerSettings().GetMoveUp(), 12);
    EXPECT_EQ(burned->GetDrawerSettings().GetTimeShift(), -1500000);
    EXPECT_EQ(burned->GetDrawerSettings().GetVerticalAligment(), Proc::AlignmentVertical::Bottom);
    EXPECT_EQ(burned->GetDrawerSettings().GetAssRendererSettings().GetPrimaryColour().green, 0);

    m_panel->UserSelectsNone();
    EXPECT_EQ(m_panel->shift, 0) << "defaults are shown";
    EXPECT_EQ(ReadCoreSettings(m_first->GetSubtitleCollection()).mixer, nullptr);
    m_panel->UserSelectsAllSoft();
    ASSERT_NE(ReadCoreSettings(m_first->GetSubtitleCollection()).soft, nullptr);
    EXPECT_EQ(ReadCoreSettings(m_first->GetSubtitleCollection()).soft->GetTracksInfo().size(), 2u);
    m_panel->UserSelects(SubtitleTrackID(10u));
    EXPECT_EQ(m_panel->offset, 0.0) << "the other track has an offset of its own";
    m_panel->UserSelectsNone();
    m_panel->UserSelects(SubtitleTrackID(2u));

    EXPECT_EQ(m_first->GetSubtitleCollection(), before);
    EXPECT_EQ(m_panel->shift, 12);
    EXPECT_EQ(m_panel->offset, -1.5);
    EXPECT_EQ(m_panel->textColor, QColor(Qt::red));
    EXPECT_EQ(m_panel->align, SubtitleAlign::Bottom);
}

TEST_F(EditingRoundTripTest, ThePanelServesTheFilmThatItShowsAlone)
{
    m_panel->UserSelects(SubtitleTrackID(2u));
    m_panel->UserSetsShift(12);
    SubtitleCollection const before = m_first->GetSubtitleCollection();

    auto const second = m_module.ShowFilm();
    m_panel->UserSelects(SubtitleTrackID(10u));
    m_panel->UserSetsShift(-5);
    m_panel->UserSelectsNone();

    EXPECT_EQ(m_first->GetSubtitleCollection(), before);
    EXPECT_EQ(second->GetSubtitleCollection().textSettings.positionShift, -5);
}

/// The panels of a desktop host in one window.
class PanelsRoundTripTest : public testing::Test, public Entities::ISubtitleCollectionInteractorEventObserver
{
protected:
    PanelsRoundTripTest()
    {
        m_film->RegisterEventHandler(this);
        m_editing->resize(320, 700);
        Korvex::Testing::ShowAndWait(*m_editing);
        Korvex::Testing::ShowAndWait(*m_item);
    }
    ~PanelsRoundTripTest() override { m_film->UnregisterEventHandler(this); }

    void OnApplyToAllFiles(SubtitleCollection const& collection) override { m_applied.push_back(collection); }

    void ClickButton(QWidget& panel, char const* name)
    {
        auto* const button = panel.findChild<QAbstractButton*>(name);
        ASSERT_NE(button, nullptr) << name;
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, button->height() / 2));
    }

    /// Opens the editing panel's track list and clicks a row.
    void ChooseInEditingPanel(int row)
    {
        ClickButton(*m_editing, "selectSubtitlesTrackButton");
        auto* const list = m_editing->findChild<QWidget*>("subtitleCollection");
        ASSERT_NE(list, nullptr) << "the drop-down did not open";
        Testing::ClickTrackRow(*list, row);
    }

    [[nodiscard]] std::shared_ptr<Proc::SettingsSubtitleMixer const> GetMixer() const
    {
        return ReadCoreSettings(m_film->GetSubtitleCollection()).mixer;
    }

    std::shared_ptr<Details::EditingPanel> m_editing = std::make_shared<Details::EditingPanel>();
    std::shared_ptr<Details::ItemPanel> m_item = std::make_shared<Details::ItemPanel>();
    Module m_module{m_editing, m_item, Entities::SubtitlePresenterKind::Both};
    std::shared_ptr<Entities::ISubtitleCollectionInteractor> m_film = m_module.ShowFilm();
    std::vector<SubtitleCollection> m_applied;
};

TEST_F(PanelsRoundTripTest, AClickOnATrackReachesTheMixerAndTheOtherPanel)
{
    EXPECT_EQ(GetMixer(), nullptr);
    ChooseInEditingPanel(3);
    ASSERT_NE(GetMixer(), nullptr);
    EXPECT_EQ(GetMixer()->GetSubtitleStreamIndex(), 10u);
    EXPECT_EQ(m_item->GetCurrentTitle(), m_editing->GetCurrentTitle());

    auto* const shift = m_editing->findChild<QSpinBox*>("alignSpinBox");
    ASSERT_TRUE(shift != nullptr && shift->isEnabled());
    shift->setFocus();
    QTest::keyClick(shift, Qt::Key_Up);
    EXPECT_EQ(GetMixer()->GetDrawerSettings().GetMoveUp(), 1);

    Testing::ClickTrackRow(*m_item, 2);
    EXPECT_EQ(GetMixer()->GetSubtitleStreamIndex(), 2u);
    EXPECT_EQ(m_editing->GetCurrentTitle(), m_item->GetCurrentTitle());
    Testing::ClickTrackRow(*m_item, 1);
    EXPECT_EQ(GetMixer(), nullptr);
    ASSERT_NE(ReadCoreSettings(m_film->GetSubtitleCollection()).soft, nullptr);
    EXPECT_EQ(m_editing->GetCurrentTitle(), "Leave all tracks (softsub)");
    ChooseInEditingPanel(0);
    EXPECT_EQ(m_item->GetCurrentTitle(), "No subtitles");
    EXPECT_EQ(ReadCoreSettings(m_film->GetSubtitleCollection()).soft, nullptr);
}

TEST_F(PanelsRoundTripTest, ApplyToAllTakesTheChoiceOfTheItemPanelOnce)
{
    Testing::ClickTrackRow(*m_item, 3);
    ClickButton(*m_item, "applyToAllCheckBox");
    EXPECT_TRUE(m_applied.empty()) << "not before the choice is finished";
    ClickButton(*m_item, "doneButton");
    ASSERT_EQ(m_applied.size(), 1u);
    EXPECT_EQ(m_applied[0].currentTrack, SubtitleTrackID(10u));
    EXPECT_FALSE(m_item->isVisible());

    m_item->show();
    ClickButton(*m_item, "doneButton");
    EXPECT_EQ(m_applied.size(), 1u) << "the check box is cleared after each use";
}

} // namespace
} // namespace Korvex::Converter::Subtitles
