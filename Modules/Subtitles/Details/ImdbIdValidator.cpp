#include "Subtitles/Details/ImdbIdValidator.h"

#include <QRegularExpression>

#include <algorithm>

namespace Korvex::Converter::Subtitles::Details
{

ImdbIdValidator::ImdbIdValidator(QObject* parent) : QValidator(parent) {}

ImdbIdValidator::~ImdbIdValidator() = default;

ImdbIdValidator::Fault ImdbIdValidator::FindFault(QString const& text)
{
    QString digits = text.trimmed();
    if (digits.isEmpty())
        return Fault::None;
    if (digits.startsWith(QLatin1String("tt"), Qt::CaseInsensitive))
        digits.remove(0, 2);
    else if (digits.compare(QLatin1String("t"), Qt::CaseInsensitive) == 0)
        return Fault::TooShort; // half of "tt"
    auto const isDigit = [](QChar letter) { return letter >= QLatin1Char('0') && letter <= QLatin1Char('9'); };
    if (!std::all_of(digits.begin(), digits.end(), isDigit))
        return Fault::NotANumber;
    if (digits.size() < FEWEST_DIGITS)
        return Fault::TooShort;
    return digits.size() > MOST_DIGITS ? Fault::TooLong : Fault::None;
}

QString ImdbIdValidator::Explain(Fault fault)
{
    switch (fault)
    {
    case Fault::None:
        return {};
    case Fault::TooShort:
        return tr("The IMDb id is too short: it has at least %n digit(s), as in tt0123456.", nullptr, FEWEST_DIGITS);
    case Fault::TooLong:
        return tr("The IMDb id is too long: it has at most %n digit(s).", nullptr, MOST_DIGITS);
    case Fault::NotANumber:
        break;
    }
    return tr("This is no IMDb id: type \"tt\" and a number, or the number alone, as in tt0123456.");
}

QValidator::State ImdbIdValidator::validate(QString& input, int& cursorPosition) const
{
    static QRegularExpression const LINK(QStringLiteral("/title/(tt[0-9]+)"));
    if (auto const link = LINK.match(input); link.hasMatch())
    {
        input = link.captured(1);
        cursorPosition = input.size();
    }
    return FindFault(input) == Fault::None ? Acceptable : Intermediate;
}

} // namespace Korvex::Converter::Subtitles::Details
