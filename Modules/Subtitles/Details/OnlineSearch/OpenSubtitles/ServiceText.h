#pragma once

#include "Subtitles/Entities/Export.h"

#include <QString>

class QByteArray;
class QJsonObject;

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

/// The services hand out titles and comments as their web pages hold them. This is the plain text: character
/// references resolved once (the named ones of markup, the numbered ones of Unicode; others stay as they are), tags
/// that format text, control characters, line breaks and runs of blanks folded into single blanks, none at the ends.
[[nodiscard]] KVSUBTITLES_API QString ReadPlainLine(QString const& text);

/// The text with stars in place of the secret in any letter case; an empty one hides nothing.
[[nodiscard]] KVSUBTITLES_API QString WithoutSecret(QString text, QByteArray const& secret);

/// What a page of markup calls itself: its title, else its first heading. Empty when it says nothing.
[[nodiscard]] KVSUBTITLES_API QString FindPageTitle(QString const& markup);

/// The server's own words in a JSON reply: its `message`, else `error`, else `errors`. Empty when it says nothing.
[[nodiscard]] KVSUBTITLES_API QString FindMessage(QJsonObject const& reply);

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
