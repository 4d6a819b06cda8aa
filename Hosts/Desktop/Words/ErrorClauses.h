#pragma once

#include <QString>

#include <string>

namespace Korvex::Desktop
{

/// What the core adds to its errors in English clauses, in the user's language and in the words of the window; clauses
/// that are not known stay as they are. Any thread.
[[nodiscard]] QString TranslateClause(std::string const& clause);

/// A codec's display name without what it has in brackets, to stand in brackets itself: "AAC".
[[nodiscard]] QString ShortenCodecName(std::string const& name);

} // namespace Korvex::Desktop
