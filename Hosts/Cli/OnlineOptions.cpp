#include "Cli/OnlineOptions.h"

#include "Cli/Console.h"
#include "Cli/Json.h"
#include "Cli/TextWidth.h"
#include "Cli/Values.h"
#include "Common/SessionError.h"

#include "Subtitles/UseCases/ImdbId.h"

#include "Core/FileSystem.h"

#include <algorithm>
#include <ostream>

namespace Korvex::Cli
{

namespace Language = Converter::Subtitles::Entities::Language;

namespace
{

constexpr int FIRST_FILM_YEAR = 1870;
constexpr int LAST_YEAR = 2200;
constexpr int MOST_EPISODES = 9999;

std::vector<Language::LanguageID> ReadLanguages(GivenOption const& option)
{
    std::vector<Language::LanguageID> languages;
    for (std::string const& name : ReadList(option))
    {
        Language::LanguageID const language = Language::GetLanguageFromShortName(name);
        if (language == Language::LanguageID::None)
            throw UsageError("The option --language takes languages such as en, rus or pt-BR, separated by commas, and "
                             "\"" +
                             name + "\" is none.");
        if (std::find(languages.begin(), languages.end(), language) == languages.end())
            languages.push_back(language);
    }
    return languages;
}

/// "tt0133093", or the number alone.
std::string ReadImdbId(GivenOption const& option)
{
    std::string const digits = Converter::Subtitles::UseCases::CleanImdbId(option.Value());
    if (digits.empty())
        throw UsageError("The option --imdb takes an IMDb id such as tt0133093, not \"" + option.Value() + "\".");
    return digits;
}

std::string ReadTitle(GivenOption const& option)
{
    if (option.Value().find_first_not_of(" \t") == std::string::npos)
        throw UsageError("The option --title needs a title.");
    return option.Value();
}

ioPath ReadInput(Arguments const& arguments)
{
    if (arguments.inputs.empty())
        return {};
    if (arguments.inputs.size() > 1)
        throw UsageError("One film at a time: name one input, and put a title of several words in quotation marks.");
    ioPath input = arguments.inputs.front();
    if (auto const head = Core::ReadFileHead(input, 1); !head)
        throw Hosts::FileError(head.GetError());
    return input;
}

} // namespace

OptionGroup QueryOptions()
{
    return {"What to look for (INPUT and its .nfo file tell the rest)",
            {{"--title", OptionValue::Required, "TITLE", "The film's or series' title."},
             {"--imdb", OptionValue::Required, "ID", "The IMDb id, such as tt0133093."},
             {"--season", OptionValue::Required, "N", "The season of an episode."},
             {"--episode", OptionValue::Required, "N", "The episode within its season."},
             {"--year", OptionValue::Required, "Y", "The year; it puts the right film first and leaves none out."},
             {"--language", OptionValue::Required, "L[,M]",
              "Languages such as en, rus or pt-BR, the most wanted first; all when left out."}}};
}

Option TimeoutOption()
{
    return {"--timeout", OptionValue::Required, "SECONDS",
            "How long one exchange with the service may take; 30 unless configured otherwise."};
}

OnlineQuery ReadQuery(Arguments const& arguments)
{
    OnlineQuery query;
    auto& media = query.media;
    if (GivenOption const* title = arguments.Find("--title"))
        media.title = ReadTitle(*title);
    if (GivenOption const* id = arguments.Find("--imdb"))
        media.imdbId = ReadImdbId(*id);
    if (GivenOption const* season = arguments.Find("--season"))
        media.season = ReadInteger(*season, 0, MOST_EPISODES);
    if (GivenOption const* episode = arguments.Find("--episode"))
        media.episode = ReadInteger(*episode, 0, MOST_EPISODES);
    if (GivenOption const* year = arguments.Find("--year"))
        media.year = ReadInteger(*year, FIRST_FILM_YEAR, LAST_YEAR);
    if (GivenOption const* languages = arguments.Find("--language"))
        query.languages = ReadLanguages(*languages);
    if (media.season.has_value() != media.episode.has_value())
        throw UsageError("The options --season and --episode go together.");
    if (arguments.inputs.empty() && media.title.empty() && media.imdbId.empty())
        throw UsageError("Say what to look for: a film's file, --title TITLE or --imdb ID.");
    media.path = ReadInput(arguments);
    return query;
}

App::Configuration ReadOnlineConfiguration(Arguments const& arguments, Console& console)
{
    GivenOption const* timeout = arguments.Find("--timeout");
    std::optional<std::chrono::seconds> wanted;
    if (timeout != nullptr)
        wanted =
            std::chrono::seconds(ReadInteger(*timeout, static_cast<int>(App::Configuration::SHORTEST_TIMEOUT.count()),
                                             static_cast<int>(App::Configuration::LONGEST_TIMEOUT.count())));

    App::Configuration configuration = App::LoadConfiguration();
    for (std::string const& problem : configuration.problems)
        console.err << "korvex: " << ToSafeLine(ToJsonText(problem)).toStdString() << '\n';
    std::string const& address = App::UsesOpenSubtitlesVersion1(configuration) ? configuration.openSubtitlesUrl
                                                                               : configuration.openSubtitlesLegacyUrl;
    if (address.empty())
        throw std::runtime_error(
            "The online service's address cannot be used; \"korvex config\" shows where it is set.");
    if (wanted)
        configuration.openSubtitlesTimeout = *wanted;
    return configuration;
}

} // namespace Korvex::Cli
