#pragma once

#include <iosfwd>
#include <string>

class QJsonObject;
class QString;

namespace Korvex::Cli
{

/// One object on one line.
void WriteJsonLine(std::ostream& out, QJsonObject const& object);

/// UTF-8 to Qt's text; what is not UTF-8 (a path may be any bytes) shows as U+FFFD.
[[nodiscard]] QString ToJsonText(std::string const& utf8);

} // namespace Korvex::Cli
