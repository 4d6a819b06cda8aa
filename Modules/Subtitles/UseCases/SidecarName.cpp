#include "Subtitles/UseCases/SidecarName.h"

#include "Subtitles/Entities/Language.h"

#include <QString>

#include <algorithm>
#include <map>
#include <set>
#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{

namespace
{

namespace Language = Entities::Language;

constexpr char const* SEPARATORS = "._ -()[]";

/// Names that a file system shows alike become equal.
std::string Fold(std::string const& text)
{
    return QString::fromStdString(text).normalized(QString::NormalizationForm_C).toCaseFolded().toStdString();
}

bool BeginsWith(std::string const& text, std::string const& beginning)
{
    return text.compare(0, beginning.size(), beginning) == 0;
}

bool IsLetters(std::string const& word)
{
    return std::all_of(word.begin(), word.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

bool IsNumber(std::string const& word)
{
    return std::all_of(word.begin(), word.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// "cd1": subtitles that come in several files, one for each disc.
bool IsPart(std::string const& word)
{
    return word.size() > 2 && BeginsWith(word, "cd") && IsNumber(word.substr(2));
}

/// The short name of a language that is written out in English; empty for any other word.
std::string ShortNameOf(std::string const& englishName)
{
    static std::map<std::string, std::string> const NAMES = []
    {
        std::map<std::string, std::string> names;
        for (Language::LanguageID const id : Language::GetAllLanguages())
        {
            Language::LanguageData const& language = Language::GetLanguageData(id);
            names.emplace(Fold(language.displayName), language.shortNames.front());
        }
        return names;
    }();
    auto const found = NAMES.find(englishName);
    return found == NAMES.end() ? std::string() : found->second;
}

std::vector<std::string> Split(std::string const& text)
{
    std::vector<std::string> words;
    std::size_t begin = text.find_first_not_of(SEPARATORS);
    while (begin != std::string::npos)
    {
        std::size_t const end = text.find_first_of(SEPARATORS, begin);
        words.push_back(text.substr(begin, end - begin));
        begin = text.find_first_not_of(SEPARATORS, end);
    }
    return words;
}

/// Takes the words behind the film's name one after the other.
class MarkReader
{
public:
    bool Read(std::vector<std::string> const& words)
    {
        for (std::size_t i = 0; i < words.size(); ++i)
        {
            if (i + 1 < words.size() && ReadRegionalLanguage(words[i], words[i + 1]))
                ++i;
            else if (!ReadMark(words[i]) && !ReadLanguage(words[i]))
                return false;
        }
        return true;
    }

    [[nodiscard]] SidecarLabels const& GetLabels() const { return m_labels; }

private:
    [[nodiscard]] bool HasLanguage() const { return !m_labels.language.empty(); }

    bool ReadMark(std::string const& word)
    {
        static std::set<std::string> const HEARING_IMPAIRED = {"sdh", "cc"};
        static std::set<std::string> const NEUTRAL = {"default", "full", "sub", "subs", "subtitle", "subtitles"};
        if (word == "forced")
            m_labels.marks.isForced = true;
        else if (word == "commentary")
            m_labels.marks.isCommentary = true;
        else if (HEARING_IMPAIRED.count(word) != 0 || (word == "hi" && HasLanguage()))
            m_labels.marks.isHearingImpaired = true;
        else
            return NEUTRAL.count(word) != 0 || IsPart(word) || (HasLanguage() && IsNumber(word));
        return true;
    }

    /// "pt-br", "zh-hant", "en-us", "sr-latn".
    bool ReadRegionalLanguage(std::string const& language, std::string const& region)
    {
        static std::set<std::string> const SCRIPTS = {"hans", "hant", "latn", "cyrl"};
        if (HasLanguage() || language.size() > 3 ||
            Language::GetLanguageFromShortName(language) == Language::LanguageID::None)
            return false;
        std::string const regional = language + "-" + region;
        bool const isKnownForm =
            Language::GetLanguageFromShortName(regional) != Language::GetLanguageFromShortName(language);
        if (!isKnownForm && SCRIPTS.count(region) == 0 && !IsPlainRegion(language, region))
            return false;
        m_labels.language = regional;
        return true;
    }

    /// Two letters behind a language are its region unless they are a mark or a second language.
    static bool IsPlainRegion(std::string const& language, std::string const& region)
    {
        return region.size() == 2 && IsLetters(region) && region != "hi" && region != "cc" &&
               (region == language || Language::GetLanguageFromShortName(region) == Language::LanguageID::None);
    }

    bool ReadLanguage(std::string const& word)
    {
        std::string shortName = ShortNameOf(word);
        if (shortName.empty() && Language::GetLanguageFromShortName(word) != Language::LanguageID::None)
            shortName = word;
        if (shortName.empty())
            return false;
        if (!HasLanguage())
            m_labels.language = shortName;
        return true;
    }

    SidecarLabels m_labels;
};

} // namespace

SidecarName::SidecarName(std::string const& mediaStem) : m_mediaStem(Fold(mediaStem)) {}

std::optional<SidecarLabels> SidecarName::Parse(std::string const& stem) const
{
    std::string const name = Fold(stem);
    if (m_mediaStem.empty() || !BeginsWith(name, m_mediaStem))
        return std::nullopt;
    std::string const rest = name.substr(m_mediaStem.size());
    if (rest.empty())
        return SidecarLabels{};
    if (std::string(SEPARATORS).find(rest.front()) == std::string::npos)
        return std::nullopt;

    MarkReader reader;
    if (!reader.Read(Split(rest)))
        return std::nullopt;
    return reader.GetLabels();
}

bool SidecarName::IsOutdoneBy(std::string const& otherStem, std::string const& stem) const
{
    std::string const other = Fold(otherStem);
    return other.size() > m_mediaStem.size() && BeginsWith(other, m_mediaStem) && BeginsWith(Fold(stem), other);
}

} // namespace Korvex::Converter::Subtitles::UseCases
