#pragma once

#include <QString>

#include <optional>

class QJsonObject;

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

/// Members of a reply, whatever the server made of their types: what is missing, null or of another kind counts as not
/// said.
[[nodiscard]] QString ReadText(QJsonObject const& object, QString const& key);
/// A whole number, or a text of decimal digits, below 2^53 either way: what a double holds exactly, and sums of which
/// hold, too.
[[nodiscard]] std::optional<qint64> ReadInteger(QJsonObject const& object, QString const& key);
/// The same between two bounds, both included.
[[nodiscard]] std::optional<int> ReadInteger(QJsonObject const& object, QString const& key, int minimum, int maximum);
[[nodiscard]] std::optional<double> ReadNumber(QJsonObject const& object, QString const& key);
/// False where nothing is said.
[[nodiscard]] bool ReadFlag(QJsonObject const& object, QString const& key);

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
