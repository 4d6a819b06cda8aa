#include "Subtitles/Fakes/FakeEditingPanel.h"

#include "Subtitles/Adapters/EditingPresenter.h"
#include "Subtitles/Entities/SubtitlePresenterSettings.h"

#include "App/GUIContainer.h"

// What users edit, and the panel's echo, is held by the round trip through the whole module.
namespace Korvex::Converter::Subtitles::Adapters
{
namespace
{

using Entities::SubtitlePresenterKind;

TEST(EditingPresenterTest, NeedsAPanelThatItsKindNames)
{
    auto const widgets = std::make_shared<Gui::GUIContainer>();
    auto panel = std::make_shared<Testing::FakeEditingPanel>();
    widgets->Register<IEditingPanel>(panel);
    EditingPresenter presenter(widgets);

    presenter.SetPositionShift(3);
    presenter.ReconnectToWidgets({SubtitlePresenterKind::ItemPanel});
    presenter.SetPositionShift(3);
    EXPECT_EQ(panel->shift, 0);

    presenter.ReconnectToWidgets({SubtitlePresenterKind::EditingPanel});
    presenter.ReconnectToWidgets({SubtitlePresenterKind::ItemPanel});
    presenter.SetPositionShift(4);
    presenter.FillEncodingComboBox();
    presenter.FillAligmentComboBox();
    EXPECT_EQ(panel->shift, 4) << "another kind keeps the connection";
    ASSERT_EQ(panel->encodings.size(), 15u);
    EXPECT_EQ(panel->encodings.back(), Entities::SubtitleEncoding::BIG5);
    ASSERT_EQ(panel->aligns.size(), 7u);
    EXPECT_EQ(panel->aligns.front(), Entities::SubtitleAlign::Default);

    presenter.ClearConnectToWidgets();
    presenter.SetPositionShift(5);
    EXPECT_EQ(panel->shift, 4);
    presenter.ReconnectToWidgets({SubtitlePresenterKind::Both});
    panel.reset();
    presenter.SetPositionShift(6);
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Adapters
