#include "Cli/Values.h"

#include "Cli/Console.h"
#include "Common/EncodingNames.h"
#include "Common/Sentences.h"

#include "Subtitles/Entities/Language.h"
#include "Subtitles/Entities/SubtitleAlign.h"
#include "Subtitles/Entities/SubtitleEncoding.h"

#include <QColor>
#include <QLocale>
#include <QString>

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace Korvex::Cli
{

using Converter::Subtitles::Entities::SubtitleAlign;
using Converter::Subtitles::Entities::SubtitleEncoding;

namespace
{

constexpr double SECONDS_A_DAY = 86400.0;

struct AlignName
{
    char const* name;
    SubtitleAlign value;
};

constexpr std::array<AlignName, 7> ALIGN_NAMES{{
    {"default", SubtitleAlign::Default},
    {"top", SubtitleAlign::Top},
    {"vertical-center", SubtitleAlign::VerticalCenter},
    {"bottom", SubtitleAlign::Bottom},
    {"left", SubtitleAlign::Left},
    {"horizontal-center", SubtitleAlign::HorizontalCenter},
    {"right", SubtitleAlign::Right},
}};

/// Other names under which people know the encodings, folded as `FoldName` does.
struct EncodingAlias
{
    std::string_view name;
    SubtitleEncoding value;
};

constexpr std::array<EncodingAlias, 15> ENCODING_ALIASES{{
    {"windows1251", SubtitleEncoding::Windows1251},
    {"windows1250", SubtitleEncoding::Windows1250},
    {"koi8ru", SubtitleEncoding::KOI8U},
    {"greek", SubtitleEncoding::ISO8859_7},
    {"hebrew", SubtitleEncoding::ISO8859_8},
    {"latin3", SubtitleEncoding::ISO8859_3},
    {"latin5", SubtitleEncoding::ISO8859_9},
    {"latin7", SubtitleEncoding::ISO8859_13},
    {"latin9", SubtitleEncoding::ISO8859_15},
    {"shiftjis", SubtitleEncoding::CP932},
    {"sjis", SubtitleEncoding::CP932},
    {"windows31j", SubtitleEncoding::CP932},
    {"gbk", SubtitleEncoding::CP936},
    {"gb2312", SubtitleEncoding::CP936},
    {"auto", SubtitleEncoding::Auto},
}};

[[noreturn]] void Refuse(GivenOption const& option, std::string const& expected)
{
    throw UsageError("The option " + std::string(option.name) + " takes " + expected + ", not \"" + option.Value() +
                     "\".");
}

/// Lower case, letters and digits only: "Windows-1251" and "windows1251" are one name.
std::string FoldName(std::string const& name)
{
    std::string folded;
    for (char const c : name)
    {
        if (c >= 'A' && c <= 'Z')
            folded.push_back(static_cast<char>(c - 'A' + 'a'));
        else if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'))
            folded.push_back(c);
    }
    return folded;
}

/// A number without sign, exponent or thousands separators, whatever the locale.
std::optional<double> ReadPlainNumber(std::string_view text)
{
    bool const isPlain = !text.empty() && text.find_first_not_of("0123456789.") == std::string_view::npos;
    bool isOk = false;
    double const value =
        isPlain ? QLocale::c().toDouble(QString::fromUtf8(text.data(), static_cast<int>(text.size())), &isOk) : 0.0;
    return isOk ? std::optional<double>(value) : std::nullopt;
}

} // namespace

int ReadInteger(GivenOption const& option, int minimum, int maximum)
{
    bool isOk = false;
    int const value = QString::fromStdString(option.Value()).toInt(&isOk);
    if (!isOk || value < minimum || value > maximum)
        Refuse(option, "a whole number from " + std::to_string(minimum) + " to " + std::to_string(maximum));
    return value;
}

double ReadSeconds(GivenOption const& option)
{
    std::string_view text = option.Value();
    bool const isNegative = text.front() == '-';
    if (isNegative || text.front() == '+')
        text.remove_prefix(1);
    auto const value = ReadPlainNumber(text);
    if (!value || *value > SECONDS_A_DAY)
        Refuse(option, "seconds such as 1.5 or -0.75");
    return isNegative ? -*value : *value;
}

std::chrono::microseconds ReadTime(GivenOption const& option)
{
    constexpr char const* expected = "a time such as 12.5, 1:02.5 or 1:02:03.5";
    std::string_view text = option.Value();
    double seconds = 0.0;
    for (int parts = 1;; ++parts)
    {
        std::size_t const colon = text.find(':');
        auto const part = ReadPlainNumber(text.substr(0, colon));
        bool const isLast = colon == std::string_view::npos;
        if (!part || parts > 3 || (parts > 1 && *part >= 60.0) || (!isLast && std::floor(*part) != *part))
            Refuse(option, expected);
        seconds = seconds * 60.0 + *part;
        if (isLast)
            break;
        text.remove_prefix(colon + 1);
    }
    if (seconds > 100.0 * SECONDS_A_DAY)
        Refuse(option, expected);
    return std::chrono::microseconds(std::llround(seconds * 1e6));
}

std::string ReadColor(GivenOption const& option)
{
    std::string const& text = option.Value();
    bool const isNumber = text.front() == '#';
    bool const hasRightLength = !isNumber || text.size() == 7;
    if (!hasRightLength || text == "transparent" || !QColor::isValidColor(QString::fromStdString(text)))
        Refuse(option, "a colour such as #ffcc00 or yellow");
    return text;
}

std::int32_t ReadAlign(GivenOption const& option)
{
    std::vector<std::string> names;
    for (AlignName const& align : ALIGN_NAMES)
    {
        if (option.Value() == align.name)
            return static_cast<std::int32_t>(align.value);
        names.emplace_back(align.name);
    }
    Refuse(option, Hosts::JoinWithOr(names));
}

std::int32_t ReadEncoding(GivenOption const& option)
{
    std::string const wanted = FoldName(option.Value());
    std::vector<std::string> names{"auto"};
    for (std::int32_t value = 1; value <= static_cast<std::int32_t>(SubtitleEncoding::BIG5); ++value)
    {
        names.push_back(Hosts::GetEncodingName(value));
        if (FoldName(names.back()) == wanted)
            return value;
    }
    for (EncodingAlias const& alias : ENCODING_ALIASES)
        if (alias.name == wanted)
            return static_cast<std::int32_t>(alias.value);
    Refuse(option, Hosts::JoinWithOr(names));
}

std::string ReadLanguage(GivenOption const& option)
{
    namespace Language = Converter::Subtitles::Entities::Language;
    std::string const& name = option.Value();
    bool const hasThreeLetters = name.size() == 3 && std::all_of(name.begin(), name.end(),
                                                                 [](char c)
                                                                 {
                                                                     char const lower = static_cast<char>(c | 0x20);
                                                                     return lower >= 'a' && lower <= 'z';
                                                                 });
    if (!hasThreeLetters && Language::GetLanguageFromShortName(name) == Language::LanguageID::None)
        Refuse(option, "a language such as en, rus or pt-BR");
    return name;
}

std::vector<std::string> ReadList(GivenOption const& option)
{
    std::vector<std::string> pieces;
    std::string const& text = option.Value();
    for (std::size_t begin = 0; begin <= text.size();)
    {
        std::size_t const end = std::min(text.find(',', begin), text.size());
        if (end == begin)
            Refuse(option, "names separated by commas");
        pieces.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return pieces;
}

std::string ReadWord(GivenOption const& option, std::vector<std::string> const& allowed)
{
    if (std::find(allowed.begin(), allowed.end(), option.Value()) == allowed.end())
        Refuse(option, Hosts::JoinWithOr(allowed));
    return option.Value();
}

} // namespace Korvex::Cli
