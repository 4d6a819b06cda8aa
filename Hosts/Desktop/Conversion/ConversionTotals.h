#pragma once

#include "Desktop/Conversion/ConversionQueue.h"

#include <chrono>
#include <optional>
#include <vector>

namespace Korvex::Desktop
{

/// What becomes of a film's picture decides how long its conversion takes.
enum class PictureWork
{
    Copied,
    Encoded,
};

/// Media seconds a second, as they were last measured; 0 while not known.
struct ConversionSpeeds
{
    double copying = 0.0;
    double encoding = 0.0;

    void Set(PictureWork work, double speed);
    /// Where only the other kind was measured, from that; 0 when nothing was.
    [[nodiscard]] double Expect(PictureWork work) const;
};

/// One conversion of several, for sums over all of them.
struct ConversionShare
{
    std::chrono::microseconds duration{0}; ///< of the film; 0 when it does not say
    PictureWork work = PictureWork::Encoded;
    ConversionStatus const* status = nullptr;
};

/// Nothing more happens to it.
[[nodiscard]] bool HasEnded(ConversionState state);

/// How much of all is behind us, 0..1, weighted by the work that is expected; whatever has ended is, however it ended.
/// None without films.
[[nodiscard]] std::optional<double> SumFraction(std::vector<ConversionShare> const& shares);

/// How long all that has not ended will take: what the running one measured for itself, and the others by their
/// kind's speed. None when that cannot be said.
[[nodiscard]] std::optional<std::chrono::seconds> SumRemaining(std::vector<ConversionShare> const& shares,
                                                               ConversionSpeeds const& speeds);

} // namespace Korvex::Desktop
