#pragma once

#include <QString>

/// Text from elsewhere in the columns of a terminal.
namespace Korvex::Cli
{

/// One line that is safe to show: control characters, which a terminal would obey, line ends and marks that turn the
/// direction of writing become blanks; several blanks become one.
[[nodiscard]] QString ToSafeLine(QString const& text);

/// How many columns a text takes: two for the wide characters of East Asia, none for marks that combine.
[[nodiscard]] int DisplayWidth(QString const& text);

/// The text within so many columns, "..." in place of its middle where it is longer: names of releases differ at both
/// ends.
[[nodiscard]] QString Shortened(QString const& text, int columns);

/// Followed (`Left`) or preceded (`Right`) by blanks up to so many columns.
enum class Alignment
{
    Left,
    Right,
};
[[nodiscard]] QString Padded(QString const& text, int columns, Alignment alignment);

} // namespace Korvex::Cli
