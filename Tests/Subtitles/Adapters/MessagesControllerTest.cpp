#include "Subtitles/Fakes/LogCatcher.h"

#include "Subtitles/Adapters/IMessagesView.h"
#include "Subtitles/Adapters/MessagesController.h"

#include "App/GUIContainer.h"

#include <QCoreApplication>

#include <optional>

namespace Korvex::Converter::Subtitles::Adapters
{
namespace
{

class FakeView final : public IMessagesView
{
public:
    void ShowWarning(std::string const& sentence) override { sentences.push_back("warning: " + sentence); }
    void ShowError(std::string const& sentence) override { sentences.push_back("error: " + sentence); }

    std::vector<std::string> sentences;
};

TEST(MessagesControllerTest, HandsSentencesToTheViewLaterAndToTheLogWithoutOne)
{
    int argumentCount = 0;
    QCoreApplication const application(argumentCount, nullptr);
    auto const widgets = std::make_shared<Gui::GUIContainer>();
    auto view = std::make_shared<FakeView>();
    widgets->Register<IMessagesView>(view);
    Testing::LogCatcher const log;

    std::optional<MessagesController> controller(widgets);
    controller->ShowWarning("w");
    controller->ShowError("e");
    controller.reset();
    EXPECT_TRUE(view->sentences.empty()) << "not inside the call";
    QCoreApplication::processEvents();
    EXPECT_EQ(view->sentences, (std::vector<std::string>{"warning: w", "error: e"}));
    EXPECT_TRUE(log.lines.empty());

    controller.emplace(widgets);
    controller->ShowWarning("the view goes meanwhile");
    view.reset();
    QCoreApplication::processEvents();
    controller->ShowWarning("no view");
    EXPECT_EQ(log.lines, (std::vector<std::string>{"MessagesController.cpp: the view goes meanwhile",
                                                   "MessagesController.cpp: no view"}));
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Adapters
