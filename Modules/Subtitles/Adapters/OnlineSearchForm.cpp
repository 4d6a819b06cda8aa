#include "Subtitles/Adapters/OnlineSearchForm.h"

#include "Subtitles/Entities/SearchTags.h"

#include "Subtitles/UseCases/ImdbId.h"

#include <algorithm>
#include <optional>

namespace Korvex::Converter::Subtitles::Adapters
{

using Entities::SearchTags;

namespace
{

/// Digits of a number that services may take; empty for anything else.
std::optional<int> ReadNumber(QString const& text)
{
    constexpr int MOST_DIGITS = 5;
    bool const isNumber = text.size() <= MOST_DIGITS &&
                          std::all_of(text.begin(), text.end(), [](QChar c) { return c >= '0' && c <= '9'; });
    bool isRead = false;
    int const number = text.toInt(&isRead);
    return isNumber && isRead ? std::optional(number) : std::nullopt;
}

std::optional<int> GetNumber(UseCases::SearchRequest const& request, std::string const& tag)
{
    return ReadNumber(GetTag(request, tag));
}

} // namespace

CheckedForm CheckForm(QString const& title, OnlineSearchFields const& fields, SearchTagMap const& fileTags)
{
    CheckedForm form;
    auto const refuse = [](FormProblem problem) { return CheckedForm{{}, problem}; };

    QString const imdbText = fields.imdbId.trimmed();
    std::string const imdbId = UseCases::CleanImdbId(imdbText.toStdString());
    if (imdbId.empty() && !imdbText.isEmpty())
        return refuse(FormProblem::ImdbId);
    if (!imdbId.empty())
        form.tags[SearchTags::IMDB_ID] = imdbId;
    if (std::string const cleaned = UseCases::CleanTitle(title.toStdString()); !cleaned.empty())
        form.tags[SearchTags::TITLE] = cleaned;
    if (fields.isFileSearched)
        form.tags.insert(fileTags.begin(), fileTags.end());
    if (form.tags.empty())
        return refuse(FormProblem::Empty);

    struct Number
    {
        QString text;
        std::string tag;
        FormProblem problem;
    };
    for (Number const& number : {Number{fields.season, SearchTags::SEASON_NUMBER, FormProblem::Season},
                                 Number{fields.episode, SearchTags::EPISODE_NUMBER, FormProblem::Episode}})
    {
        QString const text = number.text.trimmed();
        if (text.isEmpty())
            continue;
        auto const value = ReadNumber(text);
        if (!value)
            return refuse(number.problem);
        form.tags[number.tag] = std::to_string(*value);
    }
    return form;
}

SearchTagMap TakeFileTags(UseCases::SearchRequest const& request)
{
    SearchTagMap tags;
    for (std::string const& tag : {SearchTags::MOVIE_HASH_OS, SearchTags::MOVIE_BYTE_SIZE})
    {
        auto const found = request.tags.find(tag);
        if (found == request.tags.end())
            return {};
        tags.insert(*found);
    }
    return tags;
}

QString GetTag(UseCases::SearchRequest const& request, std::string const& tag)
{
    auto const found = request.tags.find(tag);
    return found == request.tags.end() ? QString() : QString::fromStdString(found->second);
}

QString FormatImdbId(QString const& digits)
{
    constexpr int LEAST_DIGITS = 7;
    return digits.isEmpty() ? QString() : QLatin1String("tt") + digits.rightJustified(LEAST_DIGITS, QLatin1Char('0'));
}

UseCases::SearchedFilm MakeWantedFilm(UseCases::SearchedFilm const& film, UseCases::SearchRequest const& request)
{
    UseCases::SearchedFilm wanted = film;
    std::string const title = GetTag(request, SearchTags::TITLE).toStdString();
    if (!title.empty() && title != UseCases::CleanTitle(film.title))
    {
        wanted.title = title;
        wanted.release.title = title;
        wanted.year.reset(); // it belongs to the other title
    }
    wanted.imdbId = GetTag(request, SearchTags::IMDB_ID).toStdString();
    wanted.season = GetNumber(request, SearchTags::SEASON_NUMBER);
    auto const episode = GetNumber(request, SearchTags::EPISODE_NUMBER);
    bool const isFilms = episode && !film.episodes.empty() && film.episodes.front() == *episode;
    if (!isFilms)
        wanted.episodes = episode ? std::vector<int>{*episode} : std::vector<int>();
    return wanted;
}

} // namespace Korvex::Converter::Subtitles::Adapters
