#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServiceText.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

namespace
{

/// "&" and ";" included, no reference that is resolved here is longer: "&#x10FFFF;".
constexpr int LONGEST_REFERENCE = 10;
constexpr int LONGEST_TAG = 300;

/// A character that may stand in a line of text; control characters and halves of surrogate pairs may not.
bool IsTextCharacter(uint code)
{
    bool const isControl = code < 0x20 || (code >= 0x7F && code < 0xA0);
    bool const isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    return !isControl && !isSurrogate && code <= 0x10FFFF;
}

/// @param name what stands between "&" and ";"
std::optional<QString> ResolveReference(QStringView name)
{
    static std::array<std::pair<char const*, char16_t>, 6> const NAMED = {
        {{"amp", u'&'}, {"lt", u'<'}, {"gt", u'>'}, {"quot", u'"'}, {"apos", u'\''}, {"nbsp", u' '}}};
    for (auto const& [known, character] : NAMED)
    {
        if (name == QLatin1String(known))
            return QString(QChar(character));
    }
    if (!name.startsWith(u'#'))
        return std::nullopt;
    bool const isHexadecimal = name.mid(1).startsWith(u'x', Qt::CaseInsensitive);
    bool isNumber = false;
    uint const code = name.mid(isHexadecimal ? 2 : 1).toString().toUInt(&isNumber, isHexadecimal ? 16 : 10);
    if (!isNumber)
        return std::nullopt;
    return IsTextCharacter(code) ? QString::fromUcs4(&code, 1) : QStringLiteral(" ");
}

/// How long the tag is that the text begins with; 0 when it begins with none that formats text, since release groups
/// set their names in angle brackets, too.
int MeasureTag(QStringView text)
{
    static std::array<char const*, 15> const NAMES = {"a",  "b",   "br", "div", "em",   "font",   "hr", "i",
                                                      "li", "img", "p",  "s",   "span", "strong", "u"};
    int const end = static_cast<int>(text.left(std::min<qsizetype>(LONGEST_TAG, text.size())).toString().indexOf(u'>'));
    if (end < 0)
        return 0;
    int const begin = text.mid(1).startsWith(u'/') ? 2 : 1;
    int nameEnd = begin;
    while (nameEnd < end && text.at(nameEnd).isLetter())
        ++nameEnd;
    QChar const next = text.at(nameEnd);
    if (next != u'>' && next != u'/' && !next.isSpace())
        return 0;
    QStringView const name = text.mid(begin, nameEnd - begin);
    bool const isKnown =
        std::any_of(NAMES.begin(), NAMES.end(),
                    [name](char const* known) { return name.compare(QLatin1String(known), Qt::CaseInsensitive) == 0; });
    return isKnown ? end + 1 : 0;
}

/// A text, a list of them, or an object that names what is wrong with each field.
QString ReadJsonWords(QJsonValue const& value)
{
    if (value.isString())
        return value.toString().trimmed();
    QStringList words;
    for (auto const& element : value.toArray())
        words += ReadJsonWords(element);
    auto const object = value.toObject();
    for (auto field = object.begin(); field != object.end(); ++field)
    {
        auto const text = ReadJsonWords(field.value());
        bool const isName = field.key() == QLatin1String("message") || field.key() == QLatin1String("error") ||
                            field.key() == QLatin1String("title") || field.key() == QLatin1String("detail");
        if (!text.isEmpty())
            words += isName ? text : field.key() + QLatin1String(": ") + text;
    }
    words.removeAll(QString());
    return words.join(QLatin1String("; "));
}

} // namespace

QString ReadPlainLine(QString const& text)
{
    QString line;
    line.reserve(text.size());
    for (int i = 0; i < text.size(); ++i)
    {
        QChar const character = text.at(i);
        int const end = character == u'&' ? text.midRef(i, LONGEST_REFERENCE).indexOf(u';') : -1;
        auto const resolved = end > 0 ? ResolveReference(QStringView(text).mid(i + 1, end - 1)) : std::nullopt;
        int const tagLength = character == u'<' ? MeasureTag(QStringView(text).mid(i)) : 0;
        if (tagLength > 0)
        {
            line += QChar(u' ');
            i += tagLength - 1;
        }
        else if (resolved)
        {
            line += *resolved;
            i += end;
        }
        else
        {
            line += character.category() == QChar::Other_Control ? QChar(u' ') : character;
        }
    }
    return line.simplified();
}

QString WithoutSecret(QString text, QByteArray const& secret)
{
    auto const key = QString::fromUtf8(secret);
    if (key.isEmpty())
        return text;
    text.replace(key, QStringLiteral("***"), Qt::CaseInsensitive);
    return text.contains(key, Qt::CaseInsensitive) ? QString() : text;
}

QString FindPageTitle(QString const& markup)
{
    constexpr int MOST_CHARACTERS_BEFORE_TITLE = 16384;
    static QRegularExpression const TITLE(QStringLiteral("<(title|h1|message)\\b[^<>]*>(.*?)</\\1\\s*>"),
                                          QRegularExpression::CaseInsensitiveOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    static QRegularExpression const TAG(QStringLiteral("<[^<>]*>"));
    for (auto match = TITLE.globalMatch(markup.left(MOST_CHARACTERS_BEFORE_TITLE)); match.hasNext();)
    {
        auto title = match.next().captured(2).replace(TAG, QStringLiteral(" ")).trimmed();
        if (!title.isEmpty())
            return title;
    }
    return {};
}

QString FindMessage(QJsonObject const& object)
{
    for (auto const* key : {"message", "error", "errors"})
    {
        if (auto words = ReadJsonWords(object.value(QLatin1String(key))); !words.isEmpty())
            return words;
    }
    return {};
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
