#pragma once

#include "Core/Export.h"

#include <string>

namespace Korvex::Core
{

/// Display texts of one message domain. A text without a translation comes back unchanged. UTF-8; any thread.
class KORVEX_PLATFORM_API ILocalizationManager
{
public:
    virtual ~ILocalizationManager();
    [[nodiscard]] virtual std::string Translate(std::string const& text) const = 0;
};

/// The texts of `domain`; for an unknown domain one that translates nothing. Lives until the process ends.
[[nodiscard]] KORVEX_PLATFORM_API ILocalizationManager const&
GetLocalizationManagerForDomain(std::string const& domain);

} // namespace Korvex::Core
