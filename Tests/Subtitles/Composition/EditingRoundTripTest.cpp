#include "Subtitles/Fakes/FakeEditingPanel.h"
#include "Subtitles/Fakes/FakeTranscoder.h"

#include "Subtitles/Subtitles.h"

#include "App/GUIContainer.h"
#include "Conf/IFormatFile.h"
#include "Proc/Settings.h"

#include "Hypodermic/Container.h"
#include "Hypodermic/ContainerBuilder.h"

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

class EditingRoundTripTest : public testing::Test
{
protected:
    void SetUp() override
    {
        Hypodermic::ContainerBuilder builder;
        builder.registerInstance(std::make_shared<Testing::FakeTranscoder>())
            .as<Transcoder::Entities::ITranscoderInteractor>();
        auto const widgets = std::make_shared<Gui::GUIContainer>();
        widgets->Register<Adapters::IEditingPanel>(m_panel);
        builder.registerInstance(widgets);
        FillBuilder(builder, nullptr);
        m_container = builder.build();
        InitFactories(m_container);
        m_first = ShowFilm();
    }

    /// An interactor with two tracks in the panel.
    std::shared_ptr<Entities::ISubtitleCollectionInteractor> ShowFilm()
    {
        auto interactor = m_container->resolve<Entities::ISubtitleCollectionInteractorPool>()->GetInteractor();
        Transcoder::Entities::Preset preset;
        preset.formatId = Conf::IFormatFile::FORMAT_MATROSKA;
        interactor->SetPreset(preset);
        Entities::SubtitlePresenterSettings settings;
        settings.kind = Entities::SubtitlePresenterKind::EditingPanel;
        interactor->SetPresenterSettings(settings);
        interactor->SetSubtitleCollection(SubtitleCollection(), true);
        interactor->AddTrackList({{SubtitleTrackID(2u), MakeStream(2)}, {SubtitleTrackID(10u), MakeStream(10)}});
        return interactor;
    }

    std::shared_ptr<Testing::FakeEditingPanel> m_panel = std::make_shared<Testing::FakeEditingPanel>();
    std::shared_ptr<Hypodermic::Container> m_container;
    std::shared_ptr<Entities::ISubtitleCollectionInteractor> m_first;
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

    auto const second = ShowFilm();
    m_panel->UserSelects(SubtitleTrackID(10u));
    m_panel->UserSetsShift(-5);
    m_panel->UserSelectsNone();

    EXPECT_EQ(m_first->GetSubtitleCollection(), before);
    EXPECT_EQ(second->GetSubtitleCollection().textSettings.positionShift, -5);
}

} // namespace
} // namespace Korvex::Converter::Subtitles
