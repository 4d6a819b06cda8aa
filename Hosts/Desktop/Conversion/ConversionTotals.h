#pragma once

#include "Desktop/Conversion/ConversionQueue.h"

#include <chrono>
#include <optional>
#include <vector>

namespace Korvex::Desktop
{

/// One conversion of several, for sums over all of them.
struct ConversionShare
{
    std::chrono::microseconds duration{0}; ///< of the film; 0 when it does not say
    ConversionStatus const* status = nullptr;
};

/// Nothing more happens to it.
[[nodiscard]] bool HasEnded(ConversionState state);

/// How much of all is behind us, 0..1, weighted by duration; whatever has ended is, however it ended. None without
/// films.
[[nodiscard]] std::optional<double> SumFraction(std::vector<ConversionShare> const& shares);

/// How long all that has not ended will take: what the running one measured for itself, and the others by `speed`
/// (media seconds a second, 0 while not known). None when that cannot be said.
[[nodiscard]] std::optional<std::chrono::seconds> SumRemaining(std::vector<ConversionShare> const& shares,
                                                               double speed);

} // namespace Korvex::Desktop
