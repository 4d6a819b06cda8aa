#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/JsonFields.h"

#include <QJsonObject>
#include <QJsonValue>

#include <cmath>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

namespace
{

constexpr double EXACT_LIMIT = 9007199254740992.0; // 2^53

} // namespace

QString ReadText(QJsonObject const& object, QString const& key)
{
    return object.value(key).toString();
}

std::optional<qint64> ReadInteger(QJsonObject const& object, QString const& key)
{
    QJsonValue const value = object.value(key);
    bool isWhole = value.isString();
    qint64 number = isWhole ? value.toString().trimmed().toLongLong(&isWhole) : 0;
    if (double const written = value.toDouble(); value.isDouble() && std::abs(written) < EXACT_LIMIT)
    {
        number = static_cast<qint64>(written);
        isWhole = std::trunc(written) == written;
    }
    return isWhole && std::abs(static_cast<double>(number)) < EXACT_LIMIT ? std::optional<qint64>(number)
                                                                          : std::nullopt;
}

std::optional<int> ReadInteger(QJsonObject const& object, QString const& key, int minimum, int maximum)
{
    auto const number = ReadInteger(object, key);
    return number && *number >= minimum && *number <= maximum ? std::optional<int>(static_cast<int>(*number))
                                                              : std::nullopt;
}

std::optional<double> ReadNumber(QJsonObject const& object, QString const& key)
{
    QJsonValue const value = object.value(key);
    bool isNumber = value.isDouble();
    double const number = value.isString() ? value.toString().trimmed().toDouble(&isNumber) : value.toDouble();
    return isNumber && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

bool ReadFlag(QJsonObject const& object, QString const& key)
{
    QJsonValue const value = object.value(key);
    return value.toBool(ReadInteger(object, key).value_or(0) != 0 ||
                        value.toString().compare(QLatin1String("true"), Qt::CaseInsensitive) == 0);
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
