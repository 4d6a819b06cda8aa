#include "Desktop/TextHelp/TextHelpTexts.h"

#include "Desktop/Words/NumberTexts.h"

#include "Proc/Fonts.h"
#include "Proc/TextSample.h"
#include "Subtitles/Adapters/SubtitleEncodingNames.h"

#include <QChar>

#include <algorithm>
#include <array>

namespace Korvex::Desktop
{

namespace
{

using Source = Proc::TextDecodeReport::Source;

constexpr std::size_t MOST_EXAMPLES = 6;

/// The first characters, blanks between, so that they do not join.
QString ListExamples(std::u32string const& characters)
{
    QString text;
    for (char32_t const character : characters.substr(0, MOST_EXAMPLES))
        text += (text.isEmpty() ? QString() : QStringLiteral(" ")) + QString::fromUcs4(&character, 1);
    return characters.size() > MOST_EXAMPLES ? text + QStringLiteral(" \u2026") : text;
}

bool IsOf(char32_t character, QChar::Script script)
{
    return QChar::script(character) == script;
}

/// The script of most of the characters. Chinese characters among Japanese letters are Japanese.
QChar::Script FindScript(std::u32string const& characters)
{
    static constexpr std::array SCRIPTS{
        QChar::Script_Han,    QChar::Script_Hangul, QChar::Script_Cyrillic, QChar::Script_Greek,
        QChar::Script_Hebrew, QChar::Script_Arabic, QChar::Script_Thai,     QChar::Script_Devanagari,
    };
    auto const count = [&](QChar::Script script)
    {
        return std::count_if(characters.begin(), characters.end(),
                             [script](char32_t character) { return IsOf(character, script); });
    };
    for (QChar::Script const script : {QChar::Script_Hiragana, QChar::Script_Katakana})
    {
        if (count(script) > 0)
            return QChar::Script_Hiragana;
    }
    auto const most = std::max_element(SCRIPTS.begin(), SCRIPTS.end(),
                                       [&](QChar::Script a, QChar::Script b) { return count(a) < count(b); });
    return count(*most) * 2 > static_cast<std::ptrdiff_t>(characters.size()) ? *most : QChar::Script_Common;
}

} // namespace

QString TextHelpTexts::NameEncoding(std::string const& encoding)
{
    using namespace Converter::Subtitles;
    Entities::SubtitleEncoding const offered = Adapters::EncodingFromCoreString(encoding);
    QString const name = QString::fromStdString(encoding);
    if (offered != Entities::SubtitleEncoding::Auto)
        return QString::fromStdString(Entities::GetDisplayText(offered));
    return name.startsWith(QLatin1String("CP125")) ? QStringLiteral("Windows-") + name.mid(2) : name;
}

QString TextHelpTexts::DescribeDetection(Proc::TextSample const& sample)
{
    static constexpr double VERY_SURE = 0.9;
    static constexpr double FAIRLY_SURE = 0.6;
    Proc::TextDecodeReport const& detected = sample.detected;
    QString const name = NameEncoding(detected.encoding);
    switch (detected.source)
    {
    case Source::ByteOrderMark:
        return tr("The file itself says that it is %1.").arg(name);
    case Source::ValidUtf8:
        return tr("Detected: %1, certain.").arg(name);
    case Source::Fallback:
        return tr("Nothing tells the encoding; %1 is a guess.").arg(name);
    case Source::Stated:
    case Source::Detector:
        break;
    }
    QString const percent = FormatPercent(detected.confidence);
    if (detected.confidence >= VERY_SURE)
        return tr("Detected: %1, very sure (%2).").arg(name, percent);
    return detected.confidence >= FAIRLY_SURE ? tr("Detected: %1, fairly sure (%2).").arg(name, percent)
                                              : tr("Detected: %1, not sure (%2).").arg(name, percent);
}

QString TextHelpTexts::DescribeReplacedBytes(Proc::TextDecodeReport const& report)
{
    return tr("%n byte(s) cannot be read in this encoding and show as \"%1\".", nullptr,
              static_cast<int>(report.replacedBytes))
        .arg(QChar(QChar::ReplacementCharacter));
}

QString TextHelpTexts::DescribeMissingFont(std::string const& family, std::string const& standIn)
{
    return tr("The font \"%1\" is not installed; \"%2\" stands in.")
        .arg(QString::fromStdString(family), QString::fromStdString(standIn));
}

QString TextHelpTexts::NameLetters(std::u32string const& characters)
{
    switch (FindScript(characters))
    {
    case QChar::Script_Hiragana:
        return tr("Japanese");
    case QChar::Script_Han:
        return tr("Chinese");
    case QChar::Script_Hangul:
        return tr("Korean");
    case QChar::Script_Cyrillic:
        return tr("Cyrillic");
    case QChar::Script_Greek:
        return tr("Greek");
    case QChar::Script_Hebrew:
        return tr("Hebrew");
    case QChar::Script_Arabic:
        return tr("Arabic");
    case QChar::Script_Thai:
        return tr("Thai");
    case QChar::Script_Devanagari:
        return tr("Devanagari");
    default:
        return ListExamples(characters);
    }
}

QString TextHelpTexts::DescribeStandIn(std::string const& family, Proc::FontStandIn const& standIn)
{
    return tr("\"%1\" lacks %n character(s) of this text (%2): \"%3\" stands in.", nullptr,
              static_cast<int>(standIn.characters.size()))
        .arg(QString::fromStdString(family), NameLetters(standIn.characters), QString::fromStdString(standIn.family));
}

QString TextHelpTexts::DescribeUnavailable(std::u32string const& characters)
{
    return tr("No installed font has %n character(s) of this text (%1); they show as empty boxes.", nullptr,
              static_cast<int>(characters.size()))
        .arg(NameLetters(characters));
}

} // namespace Korvex::Desktop
