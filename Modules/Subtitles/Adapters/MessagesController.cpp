#include "Subtitles/Adapters/MessagesController.h"

#include "Subtitles/Adapters/IMessagesView.h"

#include "App/GUIContainer.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QMetaObject>

namespace Korvex::Converter::Subtitles::Adapters
{

namespace
{

using Show = void (IMessagesView::*)(std::string const&);

void ShowOrLog(Gui::GUIContainer const& container, Show show, std::string const& sentence)
{
    if (auto const view = container.Resolve<IMessagesView>())
        (view.get()->*show)(sentence);
    else
        LOG(ERROR) << sentence;
}

/// The view is looked up again when its turn comes: it may be gone by then.
void Deliver(std::shared_ptr<Gui::GUIContainer> const& container, Show show, std::string const& sentence)
{
    QCoreApplication* const application = QCoreApplication::instance();
    if (application == nullptr || !container->Resolve<IMessagesView>())
    {
        LOG(ERROR) << sentence;
        return;
    }
    QMetaObject::invokeMethod(
        application, [container, show, sentence] { ShowOrLog(*container, show, sentence); }, Qt::QueuedConnection);
}

} // namespace

MessagesController::MessagesController(std::shared_ptr<Gui::GUIContainer> const& container) : m_container(container) {}

MessagesController::~MessagesController() = default;

void MessagesController::ShowWarning(std::string const& sentence)
{
    Deliver(m_container, &IMessagesView::ShowWarning, sentence);
}

void MessagesController::ShowError(std::string const& sentence)
{
    Deliver(m_container, &IMessagesView::ShowError, sentence);
}

} // namespace Korvex::Converter::Subtitles::Adapters
