#include "Subtitles/Fakes/FakeEditingPanel.h"

#include "Subtitles/Adapters/IExternalSubtitlesDialog.h"
#include "Subtitles/Adapters/IItemPanel.h"
#include "Subtitles/Adapters/ItemPresenter.h"
#include "Subtitles/Adapters/SubtitleCollectionPresenter.h"
#include "Subtitles/Entities/SubtitlePresenterSettings.h"

#include "App/GUIContainer.h"

#include <QCoreApplication>

namespace Korvex::Converter::Subtitles::Adapters
{
namespace
{

using Entities::SubtitlePresenterKind;
using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;
using Rows = std::vector<std::string>;

class FakeItemPanel final : public Testing::FakeTrackList<IItemPanel>
{
public:
    void Hide() override { isHidden = true; }

    bool isHidden = false;
};

class FakeDialog final : public IExternalSubtitlesDialog
{
public:
    std::vector<ioPath> ChooseFiles(std::vector<std::string> const& formats) override
    {
        offered = formats;
        return {"a.srt", "b.ass"};
    }

    Rows offered;
};

class CollectionPresenterTest : public testing::Test, public UseCases::ISubtitleCollectionPresenterEventObserver
{
protected:
    CollectionPresenterTest()
    {
        m_widgets->Register<IEditingPanel>(m_panel);
        m_widgets->Register<IItemPanel>(m_item, static_cast<std::string>(m_collection));
        m_presenter.RegisterEventHandler(this);
        m_presenter.ReconnectToWidgets({SubtitlePresenterKind::Both}, m_collection);
    }

    void OnFilesChosen(std::vector<ioPath> const& paths) override
    {
        m_events.push_back("files " + std::to_string(paths.size()));
    }
    void OnFindFileRequested(std::string const&) override {}
    void OnSubtitleTrackSelected(SubtitleTrackID const& id) override { m_events.push_back("track " + id.ToString()); }
    void OnExtractSubtitleRequested(SubtitleTrackID const&) override {}
    void OnNoSubtitlesSelected() override { m_events.push_back("none"); }
    void OnAllSoftSubtitlesSelected() override {}
    void OnChoiceFinished() override { m_events.push_back("finished"); }

    Entities::SubtitleCollectionID m_collection;
    std::shared_ptr<Gui::GUIContainer> m_widgets = std::make_shared<Gui::GUIContainer>();
    std::shared_ptr<Testing::FakeEditingPanel> m_panel = std::make_shared<Testing::FakeEditingPanel>();
    std::shared_ptr<FakeItemPanel> m_item = std::make_shared<FakeItemPanel>();
    std::shared_ptr<FakeDialog> m_dialog = std::make_shared<FakeDialog>();
    SubtitleCollectionPresenter m_presenter{m_widgets, std::make_shared<ItemPresenter>(m_widgets), {m_dialog}};
    Rows m_events;
};

TEST_F(CollectionPresenterTest, FillsBothListsInOrderAndShowsTheChoiceAgain)
{
    for (std::uint32_t const index : {10u, 2u, 10u})
        m_presenter.AddSubtitleTrack(SubtitleTrack(index));
    m_presenter.SetCurrentTrack(SubtitleTrackID(10u));
    m_presenter.SetSoftSubAvailable(true);
    EXPECT_TRUE(m_panel->rows.empty());
    m_presenter.SortTracks();
    m_presenter.FillWidgetsTracks();
    EXPECT_EQ(m_panel->rows, (Rows{"2", "10"}));
    EXPECT_EQ(m_item->rows, m_panel->rows);
    EXPECT_EQ(m_panel->shown, "10");
    m_panel->UserSelects(SubtitleTrackID(2u));
    EXPECT_EQ(m_item->shown, "2");
    m_item->UserSelectsNone();
    EXPECT_EQ(m_panel->shown, "without");
    EXPECT_EQ(m_events, (Rows{"track 2", "none"})) << "each once";

    m_presenter.ClearTracks();
    m_presenter.FillWidgetsTracks();
    EXPECT_EQ(m_panel->shown, "nothing") << "another film's choice is forgotten";
}

TEST_F(CollectionPresenterTest, ServesTheFilmsItemPanelOrTheCommonOne)
{
    m_item->applyToAllFiles = true;
    EXPECT_TRUE(m_presenter.GetApplyToAllFiles());
    m_item->Raise([](auto* observer) { observer->OnChoiceFinished(); });
    EXPECT_EQ(m_events, Rows{"finished"});

    auto const common = std::make_shared<FakeItemPanel>();
    m_widgets->Register<IItemPanel>(common);
    m_presenter.ReconnectToWidgets({SubtitlePresenterKind::ItemPanel}, Entities::SubtitleCollectionID());
    m_presenter.SetWithoutSubtitles();
    m_presenter.Hide();
    EXPECT_EQ(common->shown, "without");
    EXPECT_EQ(m_item->shown, "nothing");
    EXPECT_TRUE(common->isHidden && !m_item->isHidden);
}

TEST_F(CollectionPresenterTest, OpensTheDialogAfterTheNotification)
{
    int argumentCount = 0;
    QCoreApplication const application(argumentCount, nullptr);
    m_panel->Raise([](auto* observer) { observer->OnChooseFileRequested(); });
    EXPECT_TRUE(m_dialog->offered.empty());
    QCoreApplication::processEvents();
    EXPECT_EQ(m_dialog->offered, (Rows{"srt", "ass", "ssa"}));
    EXPECT_EQ(m_events, Rows{"files 2"});
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Adapters
