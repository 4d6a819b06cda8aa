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
    if (value.isString())
    {
        bool isNumber = false;
        qint64 const number = value.toString().trimmed().toLongLong(&isNumber);
        return isNumber ? std::optional<qint64>(number) : std::nullopt;
    }
    double const number = value.toDouble(0.5);
    if (std::trunc(number) != number || std::abs(number) > EXACT_LIMIT)
        return std::nullopt;
    return static_cast<qint64>(number);
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
