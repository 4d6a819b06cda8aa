#include "Common/Sentences.h"

#include "Core/CoreManager.h"
#include "Core/Localization.h"
#include "Proc/SubtitleContent.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace Korvex::Hosts
{

std::string Quoted(ioPath const& path)
{
    return "\"" + path.utf8string() + "\"";
}

std::string DisplayName(std::string const& id)
{
    return Core::GetLocalizationManagerForDomain(Core::CoreManager::MESSAGE_DOMAIN).Translate(id);
}

std::string JoinWithOr(std::vector<std::string> const& words)
{
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i)
    {
        if (i > 0)
            text += i + 1 == words.size() ? " or " : ", ";
        text += words[i];
    }
    return text;
}

std::string FormatSeconds(double seconds)
{
    long long const thousandths = std::llround(std::fabs(seconds) * 1000.0);
    std::array<char, 8> fraction{};
    std::snprintf(fraction.data(), fraction.size(), "%03d", static_cast<int>(thousandths % 1000));
    std::string text = (seconds < 0.0 ? "-" : "") + std::to_string(thousandths / 1000) + "." + fraction.data();
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    return text;
}

namespace
{

void DescribeEncoding(ioPath const& file, Proc::TextDecodeReport const& decoding, std::vector<std::string>& sentences)
{
    using Source = Proc::TextDecodeReport::Source;
    if (decoding.source == Source::Detector)
        sentences.push_back("The text of " + Quoted(file) + " was read as " + decoding.encoding +
                            ", which was detected; --encoding names another encoding.");
    else if (decoding.source == Source::Fallback)
        sentences.push_back("Nothing tells the encoding of " + Quoted(file) + "; it was read as " + decoding.encoding +
                            ", and --encoding names another.");
}

void DescribeDamage(ioPath const& file, Proc::TextDocument const& document, std::vector<std::string>& sentences)
{
    std::size_t const bytes = document.decoding.replacedBytes;
    std::size_t const cues = document.skippedCues;
    if (bytes > 0)
        sentences.push_back(std::to_string(bytes) + (bytes == 1 ? " byte of " : " bytes of ") + Quoted(file) +
                            " did not decode as " + document.decoding.encoding +
                            " and show as \"\xEF\xBF\xBD\"; check the encoding.");
    if (cues > 0)
        sentences.push_back(std::to_string(cues) + (cues == 1 ? " cue of " : " cues of ") + Quoted(file) +
                            " had no usable times and " + (cues == 1 ? "was" : "were") + " left out.");
}

void DescribeClasses(ioPath const& file, Proc::TextDocument const& document, std::vector<std::string>& sentences)
{
    if (document.omittedSamiClasses.empty())
        return;
    std::string others;
    for (std::string const& name : document.omittedSamiClasses)
        others += (others.empty() ? "" : ", ") + name;
    sentences.push_back("The file " + Quoted(file) + " holds several texts, one for each language: " +
                        document.samiClass + " was taken, " + others + " left out.");
}

} // namespace

std::vector<std::string> DescribeReading(ioPath const& file, Proc::TextDocument const& document, DamageReport damage)
{
    std::vector<std::string> sentences;
    DescribeEncoding(file, document.decoding, sentences);
    if (damage == DamageReport::Here)
        DescribeDamage(file, document, sentences);
    DescribeClasses(file, document, sentences);
    if (document.cues.empty())
        sentences.push_back("The subtitle file " + Quoted(file) + " holds no cues.");
    return sentences;
}

} // namespace Korvex::Hosts
