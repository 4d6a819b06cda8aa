#include "Subtitles/Fakes/FakeEditingPanel.h"

#include "Subtitles/Adapters/EditingPresenter.h"
#include "Subtitles/Entities/SubtitlePresenterSettings.h"

#include "App/GUIContainer.h"

namespace Korvex::Converter::Subtitles::Adapters
{
namespace
{

using Entities::SubtitleAlign;
using Entities::SubtitleEncoding;
using Entities::SubtitlePresenterKind;

class EditingPresenterTest : public testing::Test, public UseCases::IEditingPresenterEventObserver
{
protected:
    EditingPresenterTest()
    {
        m_widgets->Register<IEditingPanel>(m_panel);
        m_presenter.RegisterEventHandler(this);
    }

    void OnFontChanged(QFont const&) override { m_events.push_back("font"); }
    void OnTextColorChanged(QColor const&) override { m_events.push_back("text"); }
    void OnOutlineColorChanged(QColor const&) override { m_events.push_back("outline"); }
    void OnEncodingChanged(SubtitleEncoding) override { m_events.push_back("encoding"); }
    void OnAlignChanged(SubtitleAlign) override { m_events.push_back("align"); }
    void OnSynchronizationOffsetChanged(double) override { m_events.push_back("offset"); }
    void OnPositionShiftChanged(int) override { m_events.push_back("shift"); }

    void Connect(SubtitlePresenterKind kind) { m_presenter.ReconnectToWidgets({kind}); }

    std::shared_ptr<Gui::GUIContainer> m_widgets = std::make_shared<Gui::GUIContainer>();
    std::shared_ptr<Testing::FakeEditingPanel> m_panel = std::make_shared<Testing::FakeEditingPanel>();
    EditingPresenter m_presenter{m_widgets};
    std::vector<std::string> m_events;
};

TEST_F(EditingPresenterTest, NeedsAPanelThatItsKindNames)
{
    m_presenter.SetPositionShift(3);
    Connect(SubtitlePresenterKind::ItemPanel);
    m_presenter.SetPositionShift(3);
    EXPECT_EQ(m_panel->shift, 0);

    Connect(SubtitlePresenterKind::EditingPanel);
    Connect(SubtitlePresenterKind::ItemPanel);
    m_presenter.SetPositionShift(4);
    EXPECT_EQ(m_panel->shift, 4) << "another kind keeps the connection";
    m_presenter.ClearConnectToWidgets();
    m_presenter.SetPositionShift(5);
    EXPECT_EQ(m_panel->shift, 4);

    Connect(SubtitlePresenterKind::Both);
    m_panel.reset();
    m_presenter.SetPositionShift(6);
    Connect(SubtitlePresenterKind::Both);
    m_presenter.SetPositionShift(7);
}

TEST_F(EditingPresenterTest, OffersEveryEncodingAndAlignmentInOrder)
{
    Connect(SubtitlePresenterKind::EditingPanel);
    m_presenter.FillEncodingComboBox();
    m_presenter.FillAligmentComboBox();
    ASSERT_EQ(m_panel->encodings.size(), 15u);
    EXPECT_EQ(m_panel->encodings.front(), SubtitleEncoding::Auto);
    EXPECT_EQ(m_panel->encodings.back(), SubtitleEncoding::BIG5);
    ASSERT_EQ(m_panel->aligns.size(), 7u);
    EXPECT_EQ(m_panel->aligns.back(), SubtitleAlign::Right);
}

TEST_F(EditingPresenterTest, PassesOnEditsButNoEcho)
{
    Connect(SubtitlePresenterKind::EditingPanel);
    m_presenter.SetPositionShift(3);
    m_presenter.SetSynchronizationOffset(1.0);
    m_presenter.SetTextColor(Qt::red);
    m_presenter.SetAlign(SubtitleAlign::Top);
    EXPECT_TRUE(m_events.empty());

    // Pushed by somebody else, the alignment still is not the user's.
    m_panel->SetAlign(SubtitleAlign::Left);
    EXPECT_TRUE(m_events.empty());

    using Editor = ITrackEditorEventObserver;
    m_panel->Edit([](Editor* observer) { observer->OnFontChanged(QFont()); });
    m_panel->Edit([](Editor* observer) { observer->OnTextColorChanged(Qt::red); });
    m_panel->Edit([](Editor* observer) { observer->OnOutlineColorChanged(Qt::red); });
    m_panel->Edit([](Editor* observer) { observer->OnEncodingChanged(SubtitleEncoding::UTF8); });
    m_panel->UserSetsAlign(SubtitleAlign::Right);
    m_panel->UserSetsOffset(2.0);
    m_panel->UserSetsShift(9);
    EXPECT_EQ(m_events, (std::vector<std::string>{"font", "text", "outline", "encoding", "align", "offset", "shift"}));
}

TEST_F(EditingPresenterTest, LosesThePanelToWhoeverConnectsLast)
{
    Connect(SubtitlePresenterKind::EditingPanel);
    {
        EditingPresenter second(m_widgets);
        second.ReconnectToWidgets({SubtitlePresenterKind::EditingPanel});
        m_panel->UserSetsShift(1);
        m_presenter.SetPositionShift(50);
    }
    m_panel->UserSetsShift(2);
    EXPECT_TRUE(m_events.empty());
    EXPECT_EQ(m_panel->shift, 2);
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Adapters
