#include "Subtitles/Fakes/FakeController.h"
#include "Subtitles/Fakes/FakeEditingPanel.h"

#include "Subtitles/Adapters/EditingPresenter.h"
#include "Subtitles/Entities/SubtitlePresenterSettings.h"
#include "Subtitles/UseCases/SubtitlesInteractor.h"

#include "App/GUIContainer.h"

namespace Korvex::Converter::Subtitles::UseCases
{
namespace
{

using Entities::SubtitleCollection;
using Entities::SubtitleCollectionMode;
using Entities::SubtitleEncoding;
using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;

/// With the real presenter, onto a panel that writes down what arrives.
class SubtitlesInteractorTest : public testing::Test, public Entities::ISubtitlesInteractorEventObserver
{
protected:
    SubtitlesInteractorTest()
    {
        m_widgets->Register<Adapters::IEditingPanel>(m_panel);
        m_interactor.ReconnectToWidgets({Entities::SubtitlePresenterKind::EditingPanel});
        EXPECT_EQ(m_panel->TakeCalls(), "aligns encodings ");
        m_interactor.RegisterEventHandler(this);
        SubtitleTrack track(2u);
        track.encoding = SubtitleEncoding::KOI8R;
        track.synchronizationOffset = 1.5;
        m_collection->tracks.emplace(track.id, track);
        m_collection->mode = SubtitleCollectionMode::SelectedTrack;
        m_collection->currentTrack = track.id;
        m_collection->textSettings.positionShift = 4;
    }

    void OnSubtitlesChanged(Entities::SubtitleCollectionID collection) override { m_changed.push_back(collection); }

    SubtitleTrack& Track() { return m_collection->tracks.at(m_collection->currentTrack); }

    std::shared_ptr<SubtitleCollection> m_collection = std::make_shared<SubtitleCollection>();
    std::shared_ptr<Gui::GUIContainer> m_widgets = std::make_shared<Gui::GUIContainer>();
    std::shared_ptr<Testing::FakeEditingPanel> m_panel = std::make_shared<Testing::FakeEditingPanel>();
    std::shared_ptr<Testing::FakeController> m_controller = std::make_shared<Testing::FakeController>();
    SubtitlesInteractor m_interactor{std::make_shared<Adapters::EditingPresenter>(m_widgets), m_controller};
    std::vector<Entities::SubtitleCollectionID> m_changed;
};

TEST_F(SubtitlesInteractorTest, ShowsTheCurrentTrackThenItsLook)
{
    m_interactor.SetSubtitleCollection(m_collection);
    EXPECT_EQ(m_panel->TakeCalls(), "align1 encoding0 font0 outline0 text0 shift1 offset1 encoding=4 offset=15 "
                                    "font=20 align=0 outline=#000000 shift=4 text=#ffffff ");
    Track().styleEditable = true;
    Track().encodingEditable = true;
    m_interactor.SubtitleTrackSelected();
    EXPECT_EQ(m_panel->TakeCalls().substr(0, 45), "align1 encoding1 font1 outline1 text1 shift1 ");
    m_collection->currentTrack = SubtitleTrackID(9u);
    m_interactor.SubtitleTrackSelected();
    EXPECT_EQ(m_panel->TakeCalls(), "") << "no such track";
}

TEST_F(SubtitlesInteractorTest, ShowsDefaultsWhereThereIsNothingToEdit)
{
    std::string const defaults = "align0 encoding0 font0 outline0 shift0 offset0 text0 encoding=0 offset=0 "
                                 "font=20 align=0 outline=#000000 shift=0 text=#ffffff ";
    m_collection->withoutSubtitles = 1;
    m_interactor.SetSubtitleCollection(m_collection);
    EXPECT_EQ(m_panel->TakeCalls(), defaults);
    m_collection->withoutSubtitles = 0;
    m_collection->mode = SubtitleCollectionMode::AllSoftSubtitles;
    m_interactor.SetAllSoftSubtitles();
    EXPECT_EQ(m_panel->TakeCalls(), defaults);
    EXPECT_EQ(m_collection->textSettings.positionShift, 4) << "only shown";
}

TEST_F(SubtitlesInteractorTest, TakesOverMediaInfoAndWidgets)
{
    m_interactor.SetSubtitleCollection(m_collection);
    auto const other = std::make_shared<SubtitleCollection>();
    other->tracks.emplace(SubtitleTrackID(5u), SubtitleTrack(5u));
    other->currentTrack = SubtitleTrackID(5u);
    m_panel->calls.clear();
    m_interactor.UpdateMediaInfo(other);
    EXPECT_EQ(m_collection->currentTrack, SubtitleTrackID(5u));
    EXPECT_EQ(m_collection->tracks.size(), 1u);
    EXPECT_NE(m_panel->TakeCalls().find("encoding=0"), std::string::npos);

    m_interactor.ExtractSubtitle();
    m_interactor.ClearConnectToWidgets();
    m_interactor.SubtitleTrackSelected();
    EXPECT_EQ(m_panel->TakeCalls(), "hide1 ");
}

TEST_F(SubtitlesInteractorTest, WritesEditsToTheTrackOrTheCollection)
{
    m_interactor.SetSubtitleCollection(m_collection);
    m_panel->Edit([](auto* observer) { observer->OnFontChanged(QFont("Arial", 30)); });
    EXPECT_EQ(m_controller->calls, Testing::SETTINGS_MADE);
    EXPECT_EQ(m_changed, std::vector{m_collection->collectionId});
    m_panel->Edit([](auto* observer) { observer->OnOutlineColorChanged(Qt::blue); });
    m_panel->Edit([](auto* observer) { observer->OnEncodingChanged(SubtitleEncoding::BIG5); });
    EXPECT_EQ(m_collection->textSettings.font, QFont("Arial", 30));
    EXPECT_EQ(m_collection->textSettings.outlineColor, QColor(Qt::blue));
    EXPECT_EQ(Track().encoding, SubtitleEncoding::BIG5);
}

TEST_F(SubtitlesInteractorTest, AlwaysHasATrackToWriteInto)
{
    m_panel->Edit([](auto* observer) { observer->OnPositionShiftChanged(1); });
    EXPECT_TRUE(m_controller->calls.empty()) << "no collection yet";

    m_collection->currentTrack = SubtitleTrackID(9u);
    m_interactor.SetSubtitleCollection(m_collection);
    m_panel->Edit([](auto* observer) { observer->OnEncodingChanged(SubtitleEncoding::UTF8); });
    EXPECT_EQ(m_collection->tracks.at(SubtitleTrackID(9u)).encoding, SubtitleEncoding::UTF8);
    EXPECT_TRUE(m_collection->tracks.at(SubtitleTrackID(9u)).IsEmpty());
}

} // namespace
} // namespace Korvex::Converter::Subtitles::UseCases
