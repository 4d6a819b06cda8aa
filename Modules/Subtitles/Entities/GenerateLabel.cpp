#include "Subtitles/Entities/SubtitleTrack.h"

#include "Subtitles/Entities/Language.h"

#include <boost/format.hpp>

#include <algorithm>
#include <locale>
#include <regex>

namespace Korvex::Converter::Subtitles::Entities
{

namespace
{

std::string LanguagePiece(std::string const& shortName)
{
    if (shortName.empty())
        return {};
    std::string const name = Language::GetDisplayText(Language::GetLanguageFromShortName(shortName));
    return boost::str(boost::format("[%1%]") % (name.empty() ? shortName : name));
}

/// White space is that of ASCII only: in another locale single bytes of UTF-8 would count as blanks.
std::regex MakeWhiteSpace()
{
    std::regex expression;
    expression.imbue(std::locale::classic());
    expression.assign("\\s");
    return expression;
}

/// Every run of white space becomes one blank; none is left at the ends. The expression matches single characters,
/// because the library's matcher recurses once for each character of a run and titles have no limit.
std::string CollapseWhiteSpace(std::string const& text)
{
    static std::regex const WHITE_SPACE = MakeWhiteSpace();
    std::string result = std::regex_replace(text, WHITE_SPACE, " ");
    auto const bothBlank = [](char a, char b) { return a == ' ' && b == ' '; };
    result.erase(std::unique(result.begin(), result.end(), bothBlank), result.end());
    if (!result.empty() && result.back() == ' ')
        result.pop_back();
    if (!result.empty() && result.front() == ' ')
        result.erase(0, 1);
    return result;
}

} // namespace

std::string GenerateLabel(SubtitleTrack const& track)
{
    std::string const language = LanguagePiece(track.language);
    std::string title = track.title;
    std::string const codec =
        track.codecName.empty() ? std::string() : boost::str(boost::format("(%1%)") % track.codecName);
    std::string const number = std::to_string(track.streamIndex); // the formatter would group it as the locale says
    if (title.empty() && language.empty() && track.detail.empty())
        title = boost::str(boost::format("Subtitles #%1%") % number);
    return CollapseWhiteSpace(boost::str(boost::format("%1% %2% %3% %4%") % title % language % track.detail % codec));
}

} // namespace Korvex::Converter::Subtitles::Entities
