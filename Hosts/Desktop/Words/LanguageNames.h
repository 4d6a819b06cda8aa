#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

/// How the languages of subtitles are shown to the user and found by what the user writes.
namespace Korvex::Desktop
{

/// "German – Deutsch": the name in the program's present language, as labels of tracks have it, and what its speakers
/// call it. A short name that is not known is shown as it is; nothing for an empty one.
[[nodiscard]] QString DescribeLanguage(std::string const& shortName);

/// The languages that the user has set up for the system, described, the preferred one first.
[[nodiscard]] QStringList ListUsersLanguages();
/// All languages that are known, described, in the alphabetical order of the program's present language.
[[nodiscard]] QStringList ListAllLanguages();

/// The short name of the language that the user wrote: its description, one of its names, in English too, or a short
/// name; empty for an empty text. Not set when there is none. Any three letters are a short name.
[[nodiscard]] std::optional<std::string> FindLanguage(QString const& written);

} // namespace Korvex::Desktop
