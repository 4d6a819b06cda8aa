#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleFileName.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

namespace
{

/// Leaves room below the usual 255 bytes for a number, for the name of the film's language and for temporary names.
constexpr int MOST_BYTES = 200;

bool IsSeparator(QChar character)
{
    return character == QLatin1Char('/') || character == QLatin1Char('\\');
}

bool IsDotOrBlank(QChar character)
{
    return character == QLatin1Char('.') || character.isSpace();
}

/// Characters that do not show, or that make a name read otherwise than it is spelled ("exe.srt" for "trs.exe").
bool IsInvisible(uint character)
{
    bool const isBidiControl = character == 0x061C || character == 0x200E || character == 0x200F ||
                               (character >= 0x202A && character <= 0x202E) ||
                               (character >= 0x2066 && character <= 0x2069);
    bool const isFiller = character == 0x00AD || character == 0x200B || character == 0x2060 || character == 0xFEFF ||
                          (character >= 0xE0000 && character <= 0xE007F);
    return isBidiControl || isFiller || QChar::category(character) == QChar::Other_Control ||
           character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
}

bool IsForbidden(uint character)
{
    static constexpr std::array FORBIDDEN = {'<', '>', ':', '"', '|', '?', '*', '/', '\\'};
    return std::find(FORBIDDEN.begin(), FORBIDDEN.end(), static_cast<int>(character)) != FORBIDDEN.end() ||
           QChar::isNonCharacter(character) || character == QChar::ReplacementCharacter;
}

/// Half a pair of surrogates comes out as "_", as the forbidden ones do.
QString ReplaceForbidden(QString const& name)
{
    QString clean;
    for (char32_t const codePoint : name.toStdU32String())
    {
        uint const character = codePoint;
        if (IsInvisible(character))
            continue;
        if (IsForbidden(character) || QChar::isSurrogate(character))
            clean += QLatin1Char('_');
        else
            clean += QString::fromUcs4(&character, 1);
    }
    return clean;
}

QString WithoutDotsAtEnds(QString const& text)
{
    auto const begin = std::find_if_not(text.begin(), text.end(), IsDotOrBlank);
    auto end = text.end();
    while (end != begin && IsDotOrBlank(*(end - 1)))
        --end;
    return text.mid(static_cast<int>(begin - text.begin()), static_cast<int>(end - begin));
}

/// Windows opens the device whatever the extension is, and takes superscript digits for digits.
bool IsDevice(QString const& name)
{
    QString const stem = WithoutDotsAtEnds(name.section(QLatin1Char('.'), 0, 0)).toUpper();
    static QStringList const DEVICES = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$", "CLOCK$"};
    if (DEVICES.contains(stem))
        return true;
    static QString const DIGITS = QString::fromUtf8("0123456789¹²³");
    bool const isPort = stem.startsWith(QLatin1String("COM")) || stem.startsWith(QLatin1String("LPT"));
    return isPort && stem.size() == 4 && DIGITS.contains(stem.back());
}

/// As much of the beginning as fits, cut between characters.
QString Shortened(QString text, int mostBytes)
{
    QByteArray bytes = text.toUtf8();
    if (bytes.size() <= mostBytes)
        return text;
    int end = mostBytes;
    while (end > 0 && (static_cast<uchar>(bytes.at(end)) & 0xC0U) == 0x80U)
        --end;
    bytes.truncate(end);
    return WithoutDotsAtEnds(QString::fromUtf8(bytes));
}

} // namespace

bool IsSubtitleExtension(QString const& extension)
{
    static QStringList const EXTENSIONS = {"srt",  "ass",  "ssa", "sub", "idx", "vtt",  "webvtt", "smi", "sami", "txt",
                                           "ttml", "dfxp", "xml", "itt", "mpl", "mpl2", "tmp",    "stl", "sbv",  "sup",
                                           "usf",  "aqt",  "jss", "pjs", "psb", "rt",   "lrc",    "scc", "cap"};
    return EXTENSIONS.contains(extension.toLower());
}

QString LastComponent(QString const& path)
{
    auto end = path.end();
    while (end != path.begin() && IsSeparator(*(end - 1)))
        --end;
    auto begin = end;
    while (begin != path.begin() && !IsSeparator(*(begin - 1)))
        --begin;
    return path.mid(static_cast<int>(begin - path.begin()), static_cast<int>(end - begin));
}

QString ExtensionOf(QString const& name)
{
    int const dot = name.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? QString() : name.mid(dot + 1).toLower();
}

QString CleanFileName(QString const& serverName, QString const& extension)
{
    QString stem = ReplaceForbidden(LastComponent(serverName));
    while (!stem.isEmpty() && IsDotOrBlank(stem.back()))
        stem.chop(1);
    QString ending = IsSubtitleExtension(extension) ? extension.toLower() : QStringLiteral("srt");
    if (QString const own = ExtensionOf(stem); IsSubtitleExtension(own))
    {
        ending = stem.right(own.size());
        stem.chop(own.size() + 1);
    }
    stem = WithoutDotsAtEnds(stem);
    if (stem.isEmpty())
        stem = QStringLiteral("subtitle");
    if (IsDevice(stem))
        stem.prepend(QLatin1Char('_'));
    return Shortened(stem, MOST_BYTES - 1 - ending.size()) + QLatin1Char('.') + ending;
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
