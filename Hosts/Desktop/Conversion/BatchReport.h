#pragma once

#include "Desktop/Films/Film.h"

#include <QString>

#include <vector>

namespace Korvex::Desktop
{

/// How the films went that were converted one after the other.
struct BatchReport
{
    struct Entry
    {
        FilmId film = 0;
        QString name; ///< without its folder
    };

    std::vector<Entry> converted; ///< also with remarks
    std::vector<Entry> remarked;  ///< of these, the ones that came out otherwise than expected
    std::vector<Entry> failed;    ///< also those that could not be begun
    int cancelledCount = 0;
};

/// Sentences with counts; empty when there is nothing that the user does not know: all was cancelled.
[[nodiscard]] QString DescribeBatch(BatchReport const& report);

} // namespace Korvex::Desktop
