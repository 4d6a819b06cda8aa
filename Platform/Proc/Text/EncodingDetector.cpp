#include "Proc/Text/EncodingDetector.h"

#include "Proc/Text/CharacterConverter.h"
#include "Proc/Text/EncodingModels.h"
#include "Proc/Text/EncodingScore.h"

#include <uchardet.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <map>
#include <memory>
#include <type_traits>

namespace Korvex::Proc::Text
{

namespace
{

// Bonuses to logarithms of likelihoods; each is worth about as much as one odd letter.
constexpr double HINT_BONUS = 6.0;     ///< the language that the file's name gives
constexpr double LOCALE_BONUS = 1.5;   ///< the language of the user's machine
constexpr double UCHARDET_BONUS = 3.0; ///< the other detector says so
/// How far a score has to be ahead for some certainty.
constexpr double SURE = 5.0;
/// How far below the best score the rest of a text is not looked at any more.
constexpr double FLOOR_DISTANCE = 100.0;

struct UchardetDeleter
{
    void operator()(uchardet_t detector) const { uchardet_delete(detector); }
};
using UchardetPointer = std::unique_ptr<std::remove_pointer_t<uchardet_t>, UchardetDeleter>;

UchardetPointer MakeUchardet()
{
    return UchardetPointer(uchardet_new());
}

std::string AskUchardet(std::string_view bytes)
{
    auto const detector = MakeUchardet();
    if (!detector || uchardet_handle_data(detector.get(), bytes.data(), bytes.size()) != 0)
    {
        return {};
    }
    uchardet_data_end(detector.get());
    std::string const name = NormalizeEncodingName(uchardet_get_charset(detector.get()));
    return name == "SHIFT_JIS" ? "CP932" : (name == "GB18030" ? "CP936" : (name == "BIG5" ? "BIG-5" : name));
}

/// The language of the user's messages, as the environment and the C library know it.
LanguageModel const* GetLocaleLanguage()
{
    for (char const* const variable : {"LC_ALL", "LC_MESSAGES", "LANG"})
    {
        char const* const value = std::getenv(variable);
        if (value != nullptr && *value != '\0')
        {
            return FindLanguage(value);
        }
    }
    char const* const name = std::setlocale(LC_CTYPE, nullptr);
    return name != nullptr ? FindLanguage(name) : nullptr;
}

/// How many bytes a character has.
enum class Width
{
    Byte,
    Pair,
};

struct Candidate
{
    std::string encoding;
    Script script; ///< of the languages written in it
    double score;
    Width width;
};

class Detection
{
public:
    Detection(std::string_view bytes, DetectionHints const& hints)
        : m_sample(TakeSample(bytes)),
          m_stripped(StripMarkup(m_sample))
    {
        for (std::string const& name : hints.languages)
        {
            if (LanguageModel const* const language = FindLanguage(name))
            {
                m_hinted.push_back(language);
            }
        }
        for (LanguageModel const& language : GetLanguageModels())
        {
            m_wordScores[&language] = ScoreWords(m_stripped, language);
        }
        m_locale = GetLocaleLanguage();
        m_uchardet = AskUchardet(m_stripped);
    }

    DetectedEncoding Detect()
    {
        for (EncodingModel const& encoding : GetByteEncodings())
        {
            Consider(encoding, Width::Byte,
                     [&](LanguageModel const& language) { return ScoreByteEncoding(m_stripped, encoding, language); });
        }
        for (EncodingModel const& encoding : GetPairEncodings())
        {
            Consider(encoding, Width::Pair,
                     [&](LanguageModel const& language)
                     { return ScorePairEncoding(m_sample, encoding, language, FindFloor()); });
        }
        return Choose();
    }

private:
    template <typename Score>
    void Consider(EncodingModel const& encoding, Width width, Score&& score)
    {
        Candidate best{std::string(encoding.name), Script::Latin, -HUGE_VAL, width};
        for (LanguageModel const& language : GetLanguageModels())
        {
            if (HasWord(encoding.languages, language.codes.substr(0, language.codes.find(' '))))
            {
                best.script = language.script;
                best.score = std::max(best.score, score(language) + GetBonus(language));
            }
        }
        best.score += encoding.prior;
        best.score += m_uchardet == encoding.name ? UCHARDET_BONUS : 0;
        m_candidates.push_back(std::move(best));
    }

    /// A score so far below the best one that no bonus lifts it up again.
    double FindFloor() const
    {
        double best = -HUGE_VAL;
        for (Candidate const& candidate : m_candidates)
        {
            best = std::max(best, candidate.score);
        }
        return best - FLOOR_DISTANCE;
    }

    double GetBonus(LanguageModel const& language) const
    {
        bool const isHinted = std::find(m_hinted.begin(), m_hinted.end(), &language) != m_hinted.end();
        return language.prior + m_wordScores.at(&language) + (isHinted ? HINT_BONUS : 0) +
               (m_locale == &language ? LOCALE_BONUS : 0);
    }

    DetectedEncoding Choose()
    {
        // Of equals the first stays first: the lists are in order of preference.
        std::stable_sort(m_candidates.begin(), m_candidates.end(),
                         [](Candidate const& a, Candidate const& b) { return a.score > b.score; });
        Candidate const& best = m_candidates.front();
        double const rivalScore = FindRivalScore();
        double const high = CountHighBytes();
        // Nothing reads as text: what the user's machine used to write is as good as any.
        static constexpr double HOPELESS = -6.8;
        static constexpr double HOPELESS_PAIR = -5.2; // a byte is half a character there
        if (high == 0 || best.score / high < (best.width == Width::Pair ? HOPELESS_PAIR : HOPELESS))
        {
            static constexpr double CONFIDENCE = 0.1;
            LanguageModel const* const language = !m_hinted.empty() ? m_hinted.front() : m_locale;
            return {language != nullptr ? std::string(language->codePage) : "CP1252",
                    TextDecodeReport::Source::Fallback, CONFIDENCE, Rank(rivalScore, CONFIDENCE)};
        }
        double const confidence = std::clamp(1 - std::exp(-(best.score - rivalScore) / SURE), 0.05, 0.99);
        std::string const encoding = PreferOffered(best.encoding);
        DropImplausible(high);
        return {encoding, TextDecodeReport::Source::Detector, confidence, Rank(rivalScore, confidence)};
    }

    double CountHighBytes() const
    {
        return static_cast<double>(
            std::count_if(m_stripped.begin(), m_stripped.end(), [](char byte) { return (byte & 0x80) != 0; }));
    }

    /// Leaves what somebody may take the text for: what reads almost as well as the best one, and of the same script
    /// also what reads somewhat worse. Nobody takes Russian for Chinese.
    void DropImplausible(double highBytes)
    {
        static constexpr double LARGEST_DISTANCE = 2.5 * SURE;
        static constexpr double LARGEST_DISTANCE_A_BYTE = 2.5;
        Candidate const best = m_candidates.front();
        auto const isImplausible = [&best, highBytes](Candidate const& candidate)
        {
            double const distance = best.score - candidate.score;
            bool const isGivenUp = candidate.width == Width::Pair && distance >= FLOOR_DISTANCE;
            bool const isSimilar = candidate.script == best.script && distance <= LARGEST_DISTANCE_A_BYTE * highBytes;
            return distance > LARGEST_DISTANCE && (isGivenUp || !isSimilar);
        };
        m_candidates.erase(std::remove_if(m_candidates.begin(), m_candidates.end(), isImplausible), m_candidates.end());
    }

    /// What each candidate gets of the confidence that the best one leaves; none gets more than that one has.
    std::vector<RankedEncoding> Rank(double rivalScore, double bestConfidence) const
    {
        double total = 0;
        for (Candidate const& candidate : m_candidates)
        {
            total += std::exp(std::min(candidate.score - rivalScore, 0.0) / SURE);
        }
        std::vector<RankedEncoding> ranking;
        for (Candidate const& candidate : m_candidates)
        {
            double const share = std::exp(std::min(candidate.score - rivalScore, 0.0) / SURE) / total;
            ranking.push_back({candidate.encoding, std::min(bestConfidence, (1 - bestConfidence) * share)});
        }
        return ranking;
    }

    /// Of pages that give the same text the one that the core's users can choose. Bytes at 80 to 9F speak against the
    /// ISO pages, which have no characters there.
    std::string PreferOffered(std::string const& encoding) const
    {
        if (IsOfferedEncoding(encoding))
        {
            return encoding;
        }
        bool const hasWindowsBytes = std::any_of(m_sample.begin(), m_sample.end(),
                                                 [](char byte) { return static_cast<unsigned char>(byte) >> 5 == 4; });
        std::string const text = Decode(encoding);
        for (Candidate const& candidate : m_candidates)
        {
            bool const isIso = candidate.encoding.compare(0, 3, "ISO") == 0;
            if (IsOfferedEncoding(candidate.encoding) && !(isIso && hasWindowsBytes) &&
                Decode(candidate.encoding) == text)
            {
                return candidate.encoding;
            }
        }
        return encoding;
    }

    /// The best score among those that would give another text.
    double FindRivalScore() const
    {
        std::string const text = Decode(m_candidates.front().encoding);
        for (Candidate const& candidate : m_candidates)
        {
            if (Decode(candidate.encoding) != text)
            {
                return candidate.score;
            }
        }
        return m_candidates.back().score;
    }

    std::string Decode(std::string const& encoding) const
    {
        auto const converter = CharacterConverter::Make(encoding);
        std::size_t replaced = 0;
        return converter ? converter->Convert(m_sample, replaced) : std::string();
    }

    std::string m_sample;
    std::string m_stripped;
    std::map<LanguageModel const*, double> m_wordScores;
    std::vector<LanguageModel const*> m_hinted;
    LanguageModel const* m_locale = nullptr;
    std::string m_uchardet;
    std::vector<Candidate> m_candidates;
};

} // namespace

bool IsOfferedEncoding(std::string_view name)
{
    return HasWord("UTF-8 ISO-8859-15 CP1251 CP1250 KOI8-R KOI8-U ISO-8859-9 ISO-8859-7 ISO-8859-8 "
                   "ISO-8859-13 ISO-8859-3 CP932 CP936 BIG-5",
                   name);
}

DetectedEncoding DetectEncoding(std::string_view bytes, DetectionHints const& hints)
{
    return Detection(bytes, hints).Detect();
}

} // namespace Korvex::Proc::Text
