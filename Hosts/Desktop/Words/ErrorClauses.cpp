#include "Desktop/Words/ErrorClauses.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <vector>

namespace Korvex::Desktop
{

namespace
{

/// %1 and %2 stand for names, numbers and further clauses.
struct Clause
{
    char const* core; ///< as the core says it
    char const* text; ///< as the window says it
};

constexpr Clause CLAUSES[] = {
    {"it is a folder", QT_TRANSLATE_NOOP("ErrorClauses", "it is a folder")},
    {"it is not a file", QT_TRANSLATE_NOOP("ErrorClauses", "it is not a file")},
    {"it is larger than %1 bytes", QT_TRANSLATE_NOOP("ErrorClauses", "it is larger than %1 bytes")},
    {"its header cannot be read", QT_TRANSLATE_NOOP("ErrorClauses", "its header cannot be read")},
    {"nothing in it can be read", QT_TRANSLATE_NOOP("ErrorClauses", "nothing in it can be read")},
    {"it holds no subtitles", QT_TRANSLATE_NOOP("ErrorClauses", "it holds no subtitles")},
    {"it does not hold exactly one subtitle track",
     QT_TRANSLATE_NOOP("ErrorClauses", "it does not hold exactly one subtitle track")},
    {"it has no picture", QT_TRANSLATE_NOOP("ErrorClauses", "it has no picture")},
    {"it has no picture that subtitles could be drawn into",
     QT_TRANSLATE_NOOP("ErrorClauses", "it has no picture that subtitles could be drawn into")},
    {"the size of its picture is not known", QT_TRANSLATE_NOOP("ErrorClauses", "the size of its picture is not known")},
    {"the picture has no usable size", QT_TRANSLATE_NOOP("ErrorClauses", "the picture has no usable size")},
    {"none of its pictures can be decoded", QT_TRANSLATE_NOOP("ErrorClauses", "none of its pictures can be decoded")},
    {"there is no decoder for it", QT_TRANSLATE_NOOP("ErrorClauses", "there is no decoder for it")},
    {"there is no decoder for track %1", QT_TRANSLATE_NOOP("ErrorClauses", "there is no decoder for track %1")},
    {"its decoder refuses the stream: %1", QT_TRANSLATE_NOOP("ErrorClauses", "its decoder refuses the stream: %1")},
    {"its decoder does not know the options %1",
     QT_TRANSLATE_NOOP("ErrorClauses", "its decoder does not know the options %1")},
    {"its encoder refuses the sound: %1", QT_TRANSLATE_NOOP("ErrorClauses", "its encoder refuses the sound: %1")},
    {"its encoder refuses the picture (%1): %2",
     QT_TRANSLATE_NOOP("ErrorClauses", "its encoder refuses the picture (%1): %2")},
    {"the encoder here is %1", QT_TRANSLATE_NOOP("ErrorClauses", "the encoder here is %1")},
    {"there is no encoder preset \"%1\"", QT_TRANSLATE_NOOP("ErrorClauses", "there is no encoder preset \"%1\"")},
    {"the text encoding \"%1\" is not known",
     QT_TRANSLATE_NOOP("ErrorClauses", "the text encoding \"%1\" is not known")},
    {"the text renderer could not be set up",
     QT_TRANSLATE_NOOP("ErrorClauses", "the text renderer could not be set up")},
    {"it names a folder", QT_TRANSLATE_NOOP("ErrorClauses", "it names a folder")},
    {"it is a device or a pipe, not a file", QT_TRANSLATE_NOOP("ErrorClauses", "it is a device or a pipe, not a file")},
    {"a .%1 file", QT_TRANSLATE_NOOP("ErrorClauses", "a .%1 file")},
    {"save it as .%1 instead", QT_TRANSLATE_NOOP("ErrorClauses", "save it as .%1 instead")},
    {"it consists of pictures, so save it as .%1",
     QT_TRANSLATE_NOOP("ErrorClauses", "it consists of pictures, so save it as .%1")},
    {"this FFmpeg has no libx264", QT_TRANSLATE_NOOP("ErrorClauses", "the encoder libx264 is missing")},
    {"subtitles go out either as tracks or in the picture, not both",
     QT_TRANSLATE_NOOP("ErrorClauses", "subtitles can be switchable or drawn in, not both")},
    {"the rate factor goes from 0 to 51", QT_TRANSLATE_NOOP("ErrorClauses", "the quality goes from 0 to 51")},
    {"the chosen container", QT_TRANSLATE_NOOP("ErrorClauses", "the chosen format")},
    {"draw it into the picture", QT_TRANSLATE_NOOP("ErrorClauses", "draw it in")},
    {"choose Matroska or draw it into the picture", QT_TRANSLATE_NOOP("ErrorClauses", "choose Matroska or draw it in")},
    {"burn it into the picture, or choose Matroska",
     QT_TRANSLATE_NOOP("ErrorClauses", "choose Matroska or draw it in")},
    {"burn the track into the picture, or choose Matroska",
     QT_TRANSLATE_NOOP("ErrorClauses", "choose Matroska or draw it in")},
    {"let text be converted to MOV text, burn the track into the picture, or choose Matroska",
     QT_TRANSLATE_NOOP("ErrorClauses", "choose Matroska or draw it in")},
    {"let it be converted to SubRip, or burn it into the picture",
     QT_TRANSLATE_NOOP("ErrorClauses", "draw it in or leave it out")},
    {"Permission denied", QT_TRANSLATE_NOOP("ErrorClauses", "you may not do this")},
    {"Operation not permitted", QT_TRANSLATE_NOOP("ErrorClauses", "you may not do this")},
    {"Read-only file system", QT_TRANSLATE_NOOP("ErrorClauses", "the disk is read-only")},
    {"Input/output error", QT_TRANSLATE_NOOP("ErrorClauses", "the disk could not be read or written")},
    {"No such file or directory", QT_TRANSLATE_NOOP("ErrorClauses", "there is no such file or folder")},
    {"File name too long", QT_TRANSLATE_NOOP("ErrorClauses", "its name is too long")},
    {"Cannot allocate memory", QT_TRANSLATE_NOOP("ErrorClauses", "there is not enough memory")},
    {"Invalid data found when processing input", QT_TRANSLATE_NOOP("ErrorClauses", "it holds data that make no sense")},
};

struct Pattern
{
    QRegularExpression core;
    char const* text;
};

std::vector<Pattern> MakePatterns()
{
    std::vector<Pattern> patterns;
    for (Clause const& clause : CLAUSES)
    {
        QString const escaped = QRegularExpression::escape(QString::fromUtf8(clause.core));
        QString const open =
            QString(escaped).replace(QRegularExpression(QStringLiteral("\\\\%[12]")), QStringLiteral("(.+)"));
        patterns.push_back({QRegularExpression(QRegularExpression::anchoredPattern(open)), clause.text});
    }
    return patterns;
}

QString Translate(QString const& clause)
{
    static std::vector<Pattern> const PATTERNS = MakePatterns();
    for (Pattern const& pattern : PATTERNS)
    {
        QRegularExpressionMatch const match = pattern.core.match(clause);
        if (!match.hasMatch())
            continue;
        QString const text = QCoreApplication::translate("ErrorClauses", pattern.text);
        switch (match.lastCapturedIndex())
        {
        case 0:
            return text;
        case 1:
            return text.arg(Translate(match.captured(1)));
        default:
            return text.arg(Translate(match.captured(1)), Translate(match.captured(2)));
        }
    }
    return clause;
}

} // namespace

QString TranslateClause(std::string const& clause)
{
    return Translate(QString::fromStdString(clause));
}

QString ShortenCodecName(std::string const& name)
{
    return QString::fromStdString(name.substr(0, name.find(" (")));
}

} // namespace Korvex::Desktop
