#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/IMessagesController.h"

#include <memory>

namespace Korvex::Converter::Gui
{
class GUIContainer;
}

namespace Korvex::Converter::Subtitles::Adapters
{

/// Hands sentences to the view that the host registered, in a later round of the event loop, so that a view may open
/// dialogs; a sentence outlives the controller that it was given to. Without a view they go to the log as errors, at
/// once.
class KVSUBTITLES_API MessagesController final : public UseCases::IMessagesController
{
public:
    /// @param container where the host registers its view of messages
    explicit MessagesController(std::shared_ptr<Gui::GUIContainer> const& container);
    ~MessagesController() override;

    void ShowWarning(std::string const& sentence) override;
    void ShowError(std::string const& sentence) override;

private:
    std::shared_ptr<Gui::GUIContainer> m_container;
};

} // namespace Korvex::Converter::Subtitles::Adapters
