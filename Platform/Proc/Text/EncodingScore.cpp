#include "Proc/Text/EncodingScore.h"

#include "Proc/Text/CharacterConverter.h"
#include "Proc/Text/Lines.h"
#include "Proc/Text/Utf8.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <mutex>

namespace Korvex::Proc::Text
{

namespace
{

// Natural logarithms of rough probabilities. They were set by how the kinds of characters are distributed in running
// text, not fitted to any file; what matters is their order.
constexpr double CAPITAL = -1.8;         ///< a capital, compared with its small letter
constexpr double CAPITAL_IN_RUN = -0.2;  ///< a capital after a capital
constexpr double CAPITAL_IN_WORD = -5.5; ///< a capital after a small letter
constexpr double ALTERNATION = 0.26;     ///< a vowel next to a consonant, in Cyrillic and Greek
constexpr double REPETITION = -0.36;     ///< two of a kind next to each other
constexpr double ACCENTS_IN_ROW = -1.5;  ///< two letters outside ASCII in a row, in Latin script
constexpr double FINAL_INSIDE = -9.0;    ///< a letter's form for the end of a word before another letter
constexpr double MIXED_SCRIPTS = -4.0;   ///< a Cyrillic letter next to a Latin one
constexpr double SIGN_IN_WORD = -3.0;    ///< a sign between two letters
constexpr double FOREIGN_LETTER = -9.0;  ///< a letter of the script that the language does not use
constexpr double FOREIGN_SCRIPT = -11.0;
constexpr double QUOTE = -5.0; ///< quotes, dashes, ellipsis
constexpr double SIGN = -8.5;
constexpr double NO_TEXT = -15.0;  ///< a control character or no character at all
constexpr double RARE_NAME = -4.0; ///< a byte at 80 to 9F in a file that would carry an ISO name

bool IsHigh(char byte)
{
    return (byte & 0x80) != 0;
}

bool IsQuote(char32_t codePoint)
{
    static constexpr std::u32string_view QUOTES =
        U"\u00AB\u00BB\u2013\u2014\u2015\u2018\u2019\u201A\u201C\u201D\u201E\u2026\u266A"
        U"\u00A0";
    return QUOTES.find(codePoint) != std::u32string_view::npos;
}

enum class Kind : unsigned char
{
    None,
    SmallLetter,
    CapitalLetter,
    Quote,
    Apostrophe,
    Sign,
};

/// Which letters take turns in a word; for scripts where that is known.
enum class Sound : unsigned char
{
    None,
    Vowel,
    Consonant,
};

Sound SoundOf(char32_t codePoint)
{
    static constexpr std::u32string_view VOWELS = U"аеёиоуыэюяіїєαεηιουωάέήίόύώϊϋΐΰ";
    static constexpr std::u32string_view SILENT = U"ьъйў";
    char32_t const letter = ToSmallLetter(codePoint);
    auto const script = ScriptOf(letter);
    if ((script != Script::Cyrillic && script != Script::Greek) || SILENT.find(letter) != std::u32string_view::npos)
    {
        return Sound::None;
    }
    return VOWELS.find(letter) != std::u32string_view::npos ? Sound::Vowel : Sound::Consonant;
}

double ScoreSounds(Sound before, Sound sound)
{
    if (before == Sound::None || sound == Sound::None)
    {
        return 0;
    }
    return before == sound ? REPETITION : ALTERNATION;
}

/// What one byte means in one encoding and how likely it is in one language.
struct ByteModel
{
    std::array<double, 256> score{};
    std::array<Kind, 256> kind{};
    std::array<Sound, 256> sound{};
    std::array<bool, 256> isFinalForm{};
};

double ScoreLetter(char32_t codePoint, LanguageModel const& language)
{
    std::size_t const rank = language.letters.find(ToSmallLetter(codePoint));
    std::size_t const literalRank = language.letters.find(codePoint);
    std::size_t const found = std::min(rank, literalRank);
    if (found == std::u32string_view::npos)
    {
        return ScriptOf(codePoint) == language.script ? FOREIGN_LETTER : FOREIGN_SCRIPT;
    }
    // Letter frequencies fall about exponentially with their rank.
    double const decay = std::max(1.5, static_cast<double>(language.letters.size()) / 3);
    return std::log(1 - std::exp(-1 / decay)) - static_cast<double>(found) / decay;
}

void ClassifyByte(ByteModel& model, std::size_t byte, std::string_view utf8, LanguageModel const& language)
{
    if (utf8.empty())
    {
        model.score[byte] = NO_TEXT;
        model.kind[byte] = Kind::Sign;
        return;
    }
    static constexpr std::u32string_view FINAL_FORMS = U"ςךםןףץ";
    std::size_t position = 0;
    char32_t const codePoint = NextCodePoint(utf8, position);
    bool const isOwnSign = language.letters.find(codePoint) != std::u32string_view::npos && !ScriptOf(codePoint);
    if (ScriptOf(codePoint))
    {
        model.score[byte] = ScoreLetter(codePoint, language);
        model.sound[byte] = SoundOf(codePoint);
        model.isFinalForm[byte] = FINAL_FORMS.find(codePoint) != std::u32string_view::npos;
        model.kind[byte] = ToSmallLetter(codePoint) == codePoint ? Kind::SmallLetter : Kind::CapitalLetter;
    }
    else if (isOwnSign)
    {
        model.score[byte] = ScoreLetter(codePoint, language);
        model.kind[byte] = Kind::Quote;
    }
    else if (IsQuote(codePoint))
    {
        model.score[byte] = QUOTE;
        model.kind[byte] = codePoint == 0x2019 ? Kind::Apostrophe : Kind::Quote;
    }
    else
    {
        model.score[byte] = codePoint < 0xA0 ? NO_TEXT : SIGN;
        model.kind[byte] = Kind::Sign;
    }
}

ByteModel MakeByteModel(EncodingModel const& encoding, LanguageModel const& language)
{
    ByteModel model;
    auto const converter = CharacterConverter::Make(std::string(encoding.name));
    bool const isIso = encoding.name.substr(0, 3) == "ISO";
    for (std::size_t byte = 0; byte < 256; ++byte)
    {
        char const letter = static_cast<char>(static_cast<unsigned char>(byte));
        if (byte < 0x80)
        {
            model.kind[byte] = !IsLetter(letter)           ? Kind::None
                               : ToLower(letter) == letter ? Kind::SmallLetter
                                                           : Kind::CapitalLetter;
            continue;
        }
        std::size_t replaced = 0;
        std::string const utf8 = converter ? converter->Convert({&letter, 1}, replaced) : std::string();
        ClassifyByte(model, byte, replaced > 0 ? std::string_view() : utf8, language);
        model.score[byte] += isIso && byte < 0xA0 ? RARE_NAME : 0;
    }
    return model;
}

ByteModel const& GetByteModel(EncodingModel const& encoding, LanguageModel const& language)
{
    static std::mutex mutex;
    static std::map<std::pair<std::string_view, std::string_view>, ByteModel> models;
    std::lock_guard const lock(mutex);
    auto const key = std::make_pair(encoding.name, language.codes);
    auto found = models.find(key);
    if (found == models.end())
    {
        found = models.emplace(key, MakeByteModel(encoding, language)).first;
    }
    return found->second;
}

bool IsLetterKind(Kind kind)
{
    return kind == Kind::SmallLetter || kind == Kind::CapitalLetter;
}

/// What the neighbours of a letter say about it.
double ScoreLetterContext(Kind kind, Kind before, bool afterHigh, bool nextToAscii, Script script)
{
    double score = 0;
    if (kind == Kind::CapitalLetter)
    {
        score +=
            before == Kind::SmallLetter ? CAPITAL_IN_WORD : (before == Kind::CapitalLetter ? CAPITAL_IN_RUN : CAPITAL);
    }
    if (script == Script::Latin)
    {
        score += afterHigh && IsLetterKind(before) ? ACCENTS_IN_ROW : 0;
    }
    else
    {
        score += nextToAscii ? MIXED_SCRIPTS : 0;
    }
    return score;
}

double ScoreSignContext(Kind kind, Kind before, Kind after)
{
    bool const isInWord = IsLetterKind(before) && IsLetterKind(after);
    if (kind == Kind::Apostrophe)
    {
        return !IsLetterKind(before) && IsLetterKind(after) ? SIGN_IN_WORD : 0;
    }
    return isInWord ? SIGN_IN_WORD : 0;
}

/// Zones of the two-byte encodings: where the characters of everyday text lie.
double ScorePairZone(std::string_view encoding, unsigned lead, unsigned trail)
{
    static constexpr double EVERYDAY = -8.2;
    static constexpr double SELDOM = -11.5;
    static constexpr double ODD = -13.0;
    if (encoding == "CP936")
    {
        return trail < 0xA1 ? ODD : (lead >= 0xB0 && lead <= 0xD7 ? EVERYDAY : SELDOM);
    }
    if (encoding == "CP949")
    {
        return trail < 0xA1 ? ODD : (lead >= 0xB0 && lead <= 0xC8 ? EVERYDAY + 1 : ODD);
    }
    if (encoding == "BIG-5")
    {
        return lead >= 0xA4 && lead <= 0xC6 ? EVERYDAY : (lead >= 0xC9 && lead <= 0xF9 ? SELDOM : ODD);
    }
    if (encoding == "CP932")
    {
        return lead >= 0x88 && lead <= 0x97 ? EVERYDAY : SELDOM;
    }
    return lead >= 0xB0 && lead <= 0xCF ? EVERYDAY : SELDOM;
}

double ScorePairCharacter(char32_t codePoint, std::string_view encoding, unsigned lead, unsigned trail,
                          LanguageModel const& language)
{
    static constexpr double KANA = -3.6;
    static constexpr double HALF_WIDTH_KANA = -7.5;
    static constexpr double COMMON = -5.5;
    static constexpr double WIDE_PUNCTUATION = -4.5;
    static constexpr double WIDE_SIGN = -8.0;
    bool const isJapanese = language.codes.substr(0, 2) == "ja";
    if (codePoint >= 0x3041 && codePoint <= 0x30FE)
    {
        return isJapanese ? KANA : SIGN - 2;
    }
    if (codePoint >= 0xFF61 && codePoint <= 0xFF9F)
    {
        return HALF_WIDTH_KANA;
    }
    if (language.letters.find(codePoint) != std::u32string_view::npos)
    {
        return COMMON;
    }
    static constexpr std::u32string_view PUNCTUATION =
        U"\u3000\u3001\u3002\uFF0C\uFF1F\uFF01\u300C\u300D\u300A\u300B\uFF1A\u2026"
        U"\u201C\u201D\u2014\u30FC\uFF5E\u2500\u00B7\u30FB\uFF0E";
    if (PUNCTUATION.find(codePoint) != std::u32string_view::npos)
    {
        return WIDE_PUNCTUATION;
    }
    if (ScriptOf(codePoint) == Script::EastAsian)
    {
        return ScorePairZone(encoding, lead, trail);
    }
    bool const isPrivate = codePoint >= 0xE000 && codePoint <= 0xF8FF;
    return isPrivate ? NO_TEXT : (codePoint >= 0xFF01 && codePoint <= 0xFF5E ? WIDE_SIGN : SIGN - 3);
}

} // namespace

std::string TakeSample(std::string_view bytes)
{
    static constexpr std::size_t LARGEST = 12'000;
    static constexpr std::size_t LONGEST_LINE = 2'000;
    std::vector<std::string_view> lines;
    std::size_t total = 0;
    for (std::string_view const line : SplitLines(bytes))
    {
        auto const high = std::find_if(line.begin(), line.end(), IsHigh);
        if (high != line.end())
        {
            // A huge line is cut, around its first byte that matters.
            auto const start = line.size() > LONGEST_LINE ? static_cast<std::size_t>(high - line.begin()) : 0;
            lines.push_back(line.substr(start, LONGEST_LINE));
            total += lines.back().size();
        }
    }
    std::size_t const step = total / LARGEST + 1;
    std::string sample;
    for (std::size_t line = 0; line < lines.size() && sample.size() < LARGEST + LONGEST_LINE; line += step)
    {
        sample += lines[line];
        sample += '\n';
    }
    return sample;
}

std::string StripMarkup(std::string_view sample)
{
    static constexpr std::size_t LONGEST_TAG = 300;
    std::string result;
    for (std::size_t i = 0; i < sample.size(); ++i)
    {
        char const letter = sample[i];
        if (letter == '<' || letter == '{')
        {
            std::size_t const end = sample.substr(0, i + LONGEST_TAG).find_first_of(letter == '<' ? ">\n" : "}\n", i);
            bool const isMarkup = i + 1 < sample.size() && !IsHigh(sample[i + 1]) && !IsBlank(sample[i + 1]);
            if (isMarkup && end != std::string_view::npos && sample[end] != '\n')
            {
                i = end;
                result += ' ';
                continue;
            }
        }
        if (letter == '\\' && i + 1 < sample.size() &&
            (sample[i + 1] == 'N' || sample[i + 1] == 'n' || sample[i + 1] == 'h'))
        {
            ++i;
            result += ' ';
            continue;
        }
        result += letter;
    }
    return result;
}

double ScoreWords(std::string_view stripped, LanguageModel const& language)
{
    static constexpr double WORD = 0.8;
    static constexpr double MOST = 10.0;
    double score = 0;
    auto const isPart = [](char byte) { return IsHigh(byte) || IsLetter(byte) || IsDigit(byte); };
    for (std::size_t start = 0; start < stripped.size() && score < MOST && !language.words.empty();)
    {
        std::size_t end = start;
        while (end < stripped.size() && isPart(stripped[end]))
        {
            ++end;
        }
        static constexpr std::size_t LONGEST_WORD = 8;
        bool const mayBeListed = end > start && end - start <= LONGEST_WORD;
        score += mayBeListed && HasWord(language.words, ToLower(stripped.substr(start, end - start))) ? WORD : 0;
        start = end + 1;
    }
    return score;
}

double ScoreByteEncoding(std::string_view stripped, EncodingModel const& encoding, LanguageModel const& language)
{
    ByteModel const& model = GetByteModel(encoding, language);
    auto const indexAt = [&](std::size_t position)
    { return static_cast<std::size_t>(static_cast<unsigned char>(stripped[position])); };
    double score = 0;
    Kind before = Kind::None;
    bool afterHigh = false;
    for (std::size_t i = 0; i < stripped.size(); ++i)
    {
        std::size_t const byte = indexAt(i);
        Kind const kind = model.kind[byte];
        if (byte >= 0x80)
        {
            std::size_t const next = i + 1 < stripped.size() ? indexAt(i + 1) : 0;
            Kind const after = model.kind[next];
            bool const nextToAscii = (!afterHigh && IsLetterKind(before)) || (next < 0x80 && IsLetterKind(after));
            score += model.score[byte];
            score += model.isFinalForm[byte] && IsLetterKind(after) ? FINAL_INSIDE : 0;
            score += afterHigh ? ScoreSounds(model.sound[indexAt(i - 1)], model.sound[byte]) : 0;
            score += IsLetterKind(kind) ? ScoreLetterContext(kind, before, afterHigh, nextToAscii, language.script)
                                        : ScoreSignContext(kind, before, after);
        }
        before = kind;
        afterHigh = byte >= 0x80;
    }
    return score;
}

double ScorePairEncoding(std::string_view sample, EncodingModel const& encoding, LanguageModel const& language,
                         double floor)
{
    auto const converter = CharacterConverter::Make(std::string(encoding.name));
    if (!converter)
    {
        return NO_TEXT * static_cast<double>(sample.size());
    }
    double score = 0;
    for (std::size_t i = 0; i < sample.size() && score > floor;)
    {
        if (!IsHigh(sample[i]))
        {
            ++i;
            continue;
        }
        std::size_t replaced = 0;
        std::size_t length = 1;
        std::string utf8 = converter->Convert(sample.substr(i, 1), replaced);
        for (; replaced > 0 && length < 4 && i + length < sample.size();)
        {
            ++length;
            utf8 = converter->Convert(sample.substr(i, length), replaced);
        }
        if (replaced > 0)
        {
            score += NO_TEXT;
            ++i;
            continue;
        }
        std::size_t position = 0;
        unsigned const lead = static_cast<unsigned char>(sample[i]);
        unsigned const trail = length > 1 ? static_cast<unsigned char>(sample[i + 1]) : 0;
        score += ScorePairCharacter(NextCodePoint(utf8, position), encoding.name, lead, trail, language);
        i += length;
    }
    return score;
}

} // namespace Korvex::Proc::Text
