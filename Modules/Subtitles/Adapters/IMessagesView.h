#pragma once

#include "App/IExternalWidget.h"

#include <string>

namespace Korvex::Converter::Subtitles::Adapters
{

/// Where a host shows what the module has to say. Optional; the host registers it in its `GUIContainer` without a name
/// and owns it. Without one the sentences go to the log.
class IMessagesView : public virtual Gui::IExternalWidget
{
public:
    /// Sentences, UTF-8.
    virtual void ShowWarning(std::string const& sentence) = 0;
    virtual void ShowError(std::string const& sentence) = 0;
};

} // namespace Korvex::Converter::Subtitles::Adapters
