#pragma once

#include <string>

namespace Korvex::Converter::Subtitles::UseCases
{

/// Tells the user what the module has to say outside any panel. User-interface thread only; returns at once.
class IMessagesController
{
public:
    /// One sentence, UTF-8, that names the file and says what to do.
    virtual void ShowWarning(std::string const& sentence) = 0;
    virtual void ShowError(std::string const& sentence) = 0;
    virtual ~IMessagesController() = default;
};

} // namespace Korvex::Converter::Subtitles::UseCases
