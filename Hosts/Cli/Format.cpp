#include "Cli/Format.h"

#include "Core/CoreManager.h"
#include "Core/Localization.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace Korvex::Cli
{

std::string FormatClock(std::chrono::seconds time)
{
    long long const seconds = time.count();
    std::array<char, 32> text{};
    if (seconds >= 3600)
        std::snprintf(text.data(), text.size(), "%lld:%02lld:%02lld", seconds / 3600, seconds / 60 % 60, seconds % 60);
    else
        std::snprintf(text.data(), text.size(), "%02lld:%02lld", seconds / 60, seconds % 60);
    return text.data();
}

std::string FormatClock(std::chrono::microseconds time)
{
    auto const seconds = std::chrono::duration_cast<std::chrono::seconds>(time);
    std::array<char, 8> fraction{};
    std::snprintf(fraction.data(), fraction.size(), ".%03d",
                  static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(time - seconds).count()));
    return FormatClock(seconds) + fraction.data();
}

std::string FormatDecimal(double value)
{
    long long const tenths = std::llround(value * 10.0);
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

std::string DisplayName(std::string const& id)
{
    return Core::GetLocalizationManagerForDomain(Core::CoreManager::MESSAGE_DOMAIN).Translate(id);
}

std::string Count(std::size_t number, std::string const& noun)
{
    return std::to_string(number) + " " + noun + (number == 1 ? "" : "s");
}

} // namespace Korvex::Cli
