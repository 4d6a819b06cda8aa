#include "Desktop/Conversion/ConversionTotals.h"

#include <cmath>
#include <cstdint>

namespace Korvex::Desktop
{

namespace
{

using Seconds = std::chrono::duration<double>;

/// What a film weighs that does not say how long it is.
constexpr Seconds USUAL_DURATION = std::chrono::minutes(1);

} // namespace

bool HasEnded(ConversionState state)
{
    return state == ConversionState::Done || state == ConversionState::Failed || state == ConversionState::Cancelled;
}

std::optional<double> SumFraction(std::vector<ConversionShare> const& shares)
{
    double done = 0.0;
    double total = 0.0;
    for (ConversionShare const& share : shares)
    {
        double const weight = (share.duration.count() > 0 ? Seconds(share.duration) : USUAL_DURATION).count();
        total += weight;
        done += weight * (HasEnded(share.status->state) ? 1.0 : share.status->fraction.value_or(0.0));
    }
    return total > 0.0 ? std::optional(done / total) : std::nullopt;
}

std::optional<std::chrono::seconds> SumRemaining(std::vector<ConversionShare> const& shares, double speed)
{
    double seconds = 0.0;
    bool isAnyLeft = false;
    for (ConversionShare const& share : shares)
    {
        if (HasEnded(share.status->state))
            continue;
        isAnyLeft = true;
        if (share.status->remaining)
        {
            seconds += Seconds(*share.status->remaining).count();
            continue;
        }
        if (speed <= 0.0 || share.duration.count() <= 0)
            return std::nullopt;
        seconds += Seconds(share.duration).count() / speed;
    }
    return isAnyLeft ? std::optional(std::chrono::seconds(std::llround(seconds))) : std::nullopt;
}

} // namespace Korvex::Desktop
