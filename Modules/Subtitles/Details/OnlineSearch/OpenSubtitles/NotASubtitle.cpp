#include "Subtitles/Details/OnlineSearch/OpenSubtitles/NotASubtitle.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServiceText.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

namespace
{

/// What a page says of itself stands at its beginning; the rest of a long file is not looked at.
constexpr int HEAD_BYTES = 1 << 16;
constexpr int MOST_QUOTED_CHARACTERS = 120;
/// Replies that only advertise are small. A file that is larger has real cues.
constexpr int MOST_NOTICE_BYTES = 4096;
constexpr int MOST_NOTICE_CUES = 2;
constexpr int MOST_REFUSAL_CHARACTERS = 512;

struct Signature
{
    QByteArray start;
    char const* words;
};

bool IsEmptyText(QByteArray const& bytes)
{
    // Blanks of UTF-16 and UTF-32 are these bytes with zeros between them.
    int const markBytes =
        bytes.startsWith("\xEF\xBB\xBF") ? 3 : (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF") ? 2 : 0);
    return std::all_of(bytes.begin() + markBytes, bytes.end(),
                       [](char byte) {
                           return byte == '\0' || byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n' ||
                                  byte == '\x1A';
                       });
}

QString DecodeUtf16(QByteArray const& bytes, int lowByte)
{
    QString text;
    text.reserve(bytes.size() / 2);
    for (int at = 0; at + 1 < bytes.size(); at += 2)
        text += QChar(static_cast<uchar>(bytes.at(at + lowByte)), static_cast<uchar>(bytes.at(at + 1 - lowByte)));
    return text;
}

/// Good enough for the ASCII words of markup and notices, whatever the encoding of the rest is.
QString DecodeHead(QByteArray const& bytes)
{
    QByteArray const head = bytes.left(HEAD_BYTES);
    QString text;
    if (head.startsWith("\xFF\xFE") || (head.size() >= 4 && head.at(0) != 0 && head.at(1) == 0 && head.at(3) == 0))
        text = DecodeUtf16(head, 0);
    else if (head.startsWith("\xFE\xFF") || (head.size() >= 4 && head.at(0) == 0 && head.at(1) != 0 && head.at(2) == 0))
        text = DecodeUtf16(head, 1);
    else
        text = QString::fromUtf8(head);
    text.remove(QChar(QChar::ByteOrderMark));
    text.remove(QChar(QChar::Null));
    return text;
}

/// One line of what others wrote, fit to stand in a sentence: `<what> ("<quote>")`.
QString Describe(QString const& what, QString const& text)
{
    QString quote = ReadPlainLine(text).replace(QLatin1Char('"'), QLatin1Char('\''));
    if (quote.isEmpty())
        return what;
    if (quote.size() > MOST_QUOTED_CHARACTERS)
    {
        int const end = MOST_QUOTED_CHARACTERS - (quote.at(MOST_QUOTED_CHARACTERS - 1).isHighSurrogate() ? 1 : 0);
        quote = quote.left(end) + QChar(0x2026);
    }
    return QStringLiteral("%1 (\"%2\")").arg(what, quote);
}

/// The text behind byte-order marks, blanks, comments and processing instructions.
QString SkipPreamble(QString const& text)
{
    QString rest = text.trimmed();
    for (;;)
    {
        QLatin1String const end = rest.startsWith(QLatin1String("<!--")) ? QLatin1String("-->")
                                  : rest.startsWith(QLatin1String("<?")) ? QLatin1String("?>")
                                                                         : QLatin1String();
        int const at = end.isEmpty() ? -1 : rest.indexOf(end);
        if (at < 0)
            return rest;
        rest = rest.mid(at + end.size()).trimmed();
    }
}

/// SAMI and TTML are markup as well, and some files begin within it.
std::optional<QString> FindPage(QString const& head)
{
    static QRegularExpression const PAGE(
        QStringLiteral("^<(?:!doctype\\s+html|html|head|body|title|meta|script|style|link|center|div|h[1-6])\\b"),
        QRegularExpression::CaseInsensitiveOption);
    static QRegularExpression const SAMI(QStringLiteral("<(?:sami|sync)\\b"),
                                         QRegularExpression::CaseInsensitiveOption);
    QString const start = SkipPreamble(head);
    bool const isError = start.startsWith(QLatin1String("<error"), Qt::CaseInsensitive);
    if (!isError && (!PAGE.match(start).hasMatch() || SAMI.match(start).hasMatch()))
        return std::nullopt;
    return Describe(isError ? QStringLiteral("an XML error") : QStringLiteral("an HTML page"), FindPageTitle(start));
}

/// Texts may begin with the same brackets: "{1}{25}", "[Script Info]", "[0][20]".
std::optional<QString> FindJson(QString const& head)
{
    static QRegularExpression const JSON(
        QStringLiteral("^\\s*(?:\\{\\s*(?:\"|\\}\\s*$)|\\[\\s*(?:\\{\\s*\"|\"|\\]\\s*$))"));
    if (!JSON.match(head).hasMatch())
        return std::nullopt;
    QJsonDocument const document = QJsonDocument::fromJson(head.toUtf8());
    return Describe(QStringLiteral("JSON"), FindMessage(document.object()));
}

/// The texts of the cues without their times, numbers and tags; empty for a text without times.
QStringList ReadCues(QString const& text)
{
    static QRegularExpression const TIME(
        QStringLiteral("-->|^\\{\\d+\\}\\{\\d*\\}|^\\[[\\d:.]+\\]|^\\d+:\\d\\d:\\d\\d|^Dialogue:|<sync\\b|\\bbegin="),
        QRegularExpression::CaseInsensitiveOption);
    static QRegularExpression const NO_TEXT(QStringLiteral("^[\\d:.,\\s]+(?:-->.*)?$|^(?:\\[[\\d:.]+\\])+|"
                                                           "^\\d+:\\d\\d:\\d\\d:|^Dialogue:(?:[^,]*,){9}"),
                                            QRegularExpression::CaseInsensitiveOption);
    static QRegularExpression const TAG(QStringLiteral("<[^<>]*>|\\{[^{}]*\\}|\\\\[Nn]"));
    static QRegularExpression const LINE_END(QStringLiteral("[\\r\\n]+"));
    QStringList cues;
    for (QString const& raw : text.split(LINE_END))
    {
        QString line = raw.trimmed();
        if (TIME.match(line).hasMatch())
            cues.append(QString());
        if (!cues.isEmpty())
            cues.back() += line.remove(NO_TEXT).replace(TAG, QStringLiteral(" ")) + QLatin1Char(' ');
    }
    return cues;
}

/// Both have to be there: what a service sells or refuses, and that it is about subtitles of the service. Characters of
/// a film speak of limits and members too.
bool IsAdvertisement(QString const& cue)
{
    static QRegularExpression const SERVICE(
        QStringLiteral("opensubtitles|osdb\\.link|\\bsubtitles?\\b.*\\bdownload|\\bdownload.*\\bsubtitles?\\b"),
        QRegularExpression::CaseInsensitiveOption);
    static QRegularExpression const OFFER(
        QStringLiteral("\\bvip\\b|\\bpremium\\b|\\bmember(?:ship)?\\b|\\bsubscri|\\badvertis|\\b(?:remove|without) "
                       "(?:all )?ads\\b|"
                       "\\bdownload(?:ed)? from\\b|\\b(?:limit|quota|maximum|allowed)\\b|\\bupgrade\\b|\\bdonat"),
        QRegularExpression::CaseInsensitiveOption);
    return SERVICE.match(cue).hasMatch() && OFFER.match(cue).hasMatch();
}

/// A sentence of a server that answers in plain text.
bool IsRefusal(QString const& text)
{
    static QRegularExpression const REFUSAL(
        QStringLiteral("\\b(?:too many|not found|limit|quota|exceeded|forbidden|unauthori[sz]ed|unavailable|denied|"
                       "expired|bad gateway|internal server error|invalid)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    return text.size() <= MOST_REFUSAL_CHARACTERS && REFUSAL.match(text).hasMatch();
}

std::optional<QString> FindNotice(QByteArray const& bytes, QString const& head)
{
    if (bytes.size() > MOST_NOTICE_BYTES)
        return std::nullopt;
    QStringList cues = ReadCues(head);
    if (cues.isEmpty())
    {
        bool const isNotice = IsRefusal(head) || IsAdvertisement(head);
        return isNotice ? std::optional(Describe(QStringLiteral("a notice"), head)) : std::nullopt;
    }
    cues.erase(std::remove_if(cues.begin(), cues.end(), [](auto const& cue) { return cue.trimmed().isEmpty(); }),
               cues.end());
    if (cues.isEmpty() || cues.size() > MOST_NOTICE_CUES || !std::all_of(cues.begin(), cues.end(), IsAdvertisement))
        return std::nullopt;
    return Describe(QStringLiteral("an advertisement"), cues.front());
}

} // namespace

std::optional<QString> FindFileSignature(QByteArray const& bytes)
{
    static std::array<Signature, 18> const SIGNATURES = {{
        {QByteArrayLiteral("PK\x03\x04"), "a ZIP archive"},
        {QByteArrayLiteral("PK\x05\x06"), "an empty ZIP archive"},
        {QByteArrayLiteral("PK\x07\x08"), "a part of a ZIP archive"},
        {QByteArrayLiteral("\x1F\x8B"), "a GZIP archive"},
        {QByteArrayLiteral("Rar!\x1A\x07"), "a RAR archive"},
        {QByteArrayLiteral("7z\xBC\xAF\x27\x1C"), "a 7-Zip archive"},
        {QByteArrayLiteral("\xFD"
                           "7zXZ\0"),
         "an XZ archive"},
        {QByteArrayLiteral("BZh91AY&SY"), "a BZIP2 archive"},
        {QByteArrayLiteral("\x7F"
                           "ELF"),
         "a program"},
        {QByteArrayLiteral("\xCF\xFA\xED\xFE"), "a program"},
        {QByteArrayLiteral("%PDF-"), "a PDF document"},
        {QByteArrayLiteral("\x89PNG\r\n"), "a picture"},
        {QByteArrayLiteral("GIF87a"), "a picture"},
        {QByteArrayLiteral("GIF89a"), "a picture"},
        {QByteArrayLiteral("\xFF\xD8\xFF"), "a picture"},
        {QByteArrayLiteral("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"), "an office document"},
        {QByteArrayLiteral("{\\rtf"), "an office document"},
        {QByteArrayLiteral("\x28\xB5\x2F\xFD"), "a ZSTD archive"},
    }};
    auto const found = std::find_if(SIGNATURES.begin(), SIGNATURES.end(),
                                    [&bytes](Signature const& signature) { return bytes.startsWith(signature.start); });
    if (found != SIGNATURES.end())
        return QString::fromLatin1(found->words);
    // Texts begin with these two letters too, but hold no zeros there.
    constexpr int PROGRAM_HEADER_BYTES = 64;
    if (bytes.startsWith("MZ") && bytes.left(PROGRAM_HEADER_BYTES).contains('\0'))
        return QStringLiteral("a program");
    return std::nullopt;
}

std::optional<QString> FindWhatItIsInstead(QByteArray const& bytes)
{
    if (IsEmptyText(bytes))
        return QStringLiteral("an empty file");
    if (auto signature = FindFileSignature(bytes))
        return signature;
    QString const head = DecodeHead(bytes);
    if (auto page = FindPage(head))
        return page;
    if (auto json = FindJson(head))
        return json;
    return FindNotice(bytes, head);
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
