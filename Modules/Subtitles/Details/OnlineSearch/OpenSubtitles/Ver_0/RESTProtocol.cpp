#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTProtocol.h"

#include "Subtitles/Entities/Language.h"
#include "Subtitles/UseCases/SearchRequest.h"

#include <algorithm>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

using Entities::Language::LanguageID;

QString const RESTProtocol::USER_AGENT = QStringLiteral("Korvex_Videoconverter");
QString const RESTProtocol::TEMPORARY_USER_AGENT = QStringLiteral("TemporaryUserAgent");

QString const RESTProtocol::QUERY_SEARCH = QStringLiteral("search");
QString const RESTProtocol::QUERY_SUGGEST = QStringLiteral("libs/suggest.php");

QString const RESTProtocol::QUERY_KEY_EPISODE = QStringLiteral("episode");
QString const RESTProtocol::QUERY_KEY_IMDB_ID = QStringLiteral("imdbid");
QString const RESTProtocol::QUERY_KEY_LANGUAGE = QStringLiteral("sublanguageid");
QString const RESTProtocol::QUERY_KEY_MOVIE_BYTE_SIZE = QStringLiteral("moviebytesize");
QString const RESTProtocol::QUERY_KEY_MOVIE_HASH = QStringLiteral("moviehash");
QString const RESTProtocol::QUERY_KEY_MOVIE_SUGGEST = QStringLiteral("MovieName");
QString const RESTProtocol::QUERY_KEY_SEASON = QStringLiteral("season");
QString const RESTProtocol::QUERY_KEY_SUGGEST_FORMAT = QStringLiteral("format");
QString const RESTProtocol::QUERY_KEY_TITLE = QStringLiteral("query");
QString const RESTProtocol::QUERY_VALUE_SUGGEST_FORMAT = QStringLiteral("json3");

QString const RESTProtocol::RESULT_KEY_ADD_DATE = QStringLiteral("SubAddDate");
QString const RESTProtocol::RESULT_KEY_ARCHIVE_LINK = QStringLiteral("ZipDownloadLink");
QString const RESTProtocol::RESULT_KEY_AUTHOR_COMMENT = QStringLiteral("SubAuthorComment");
QString const RESTProtocol::RESULT_KEY_AUTO_TRANSLATION = QStringLiteral("SubAutoTranslation");
QString const RESTProtocol::RESULT_KEY_DISC = QStringLiteral("SubActualCD");
QString const RESTProtocol::RESULT_KEY_DISC_COUNT = QStringLiteral("SubSumCD");
QString const RESTProtocol::RESULT_KEY_DOWNLOADS = QStringLiteral("SubDownloadsCnt");
QString const RESTProtocol::RESULT_KEY_ENCODING = QStringLiteral("SubEncoding");
QString const RESTProtocol::RESULT_KEY_EPISODE = QStringLiteral("SeriesEpisode");
QString const RESTProtocol::RESULT_KEY_FILE_ID = QStringLiteral("IDSubtitleFile");
QString const RESTProtocol::RESULT_KEY_FILE_LINK = QStringLiteral("SubDownloadLink");
QString const RESTProtocol::RESULT_KEY_FILE_NAME = QStringLiteral("SubFileName");
QString const RESTProtocol::RESULT_KEY_FOREIGN_PARTS_ONLY = QStringLiteral("SubForeignPartsOnly");
QString const RESTProtocol::RESULT_KEY_FORMAT = QStringLiteral("SubFormat");
QString const RESTProtocol::RESULT_KEY_FRAME_RATE = QStringLiteral("MovieFPS");
QString const RESTProtocol::RESULT_KEY_FROM_TRUSTED = QStringLiteral("SubFromTrusted");
QString const RESTProtocol::RESULT_KEY_HASH = QStringLiteral("SubHash");
QString const RESTProtocol::RESULT_KEY_HEARING_IMPAIRED = QStringLiteral("SubHearingImpaired");
QString const RESTProtocol::RESULT_KEY_HIGH_DEFINITION = QStringLiteral("SubHD");
QString const RESTProtocol::RESULT_KEY_IMDB_ID = QStringLiteral("IDMovieImdb");
QString const RESTProtocol::RESULT_KEY_LANGUAGE = QStringLiteral("SubLanguageID");
QString const RESTProtocol::RESULT_KEY_LANGUAGE_ISO = QStringLiteral("ISO639");
QString const RESTProtocol::RESULT_KEY_MATCHED_BY = QStringLiteral("MatchedBy");
QString const RESTProtocol::RESULT_KEY_MOVIE_KIND = QStringLiteral("MovieKind");
QString const RESTProtocol::RESULT_KEY_MOVIE_NAME = QStringLiteral("MovieName");
QString const RESTProtocol::RESULT_KEY_MOVIE_SUGGEST = QStringLiteral("name");
QString const RESTProtocol::RESULT_KEY_MOVIE_YEAR = QStringLiteral("MovieYear");
QString const RESTProtocol::RESULT_KEY_RATING = QStringLiteral("SubRating");
QString const RESTProtocol::RESULT_KEY_RELEASE = QStringLiteral("MovieReleaseName");
QString const RESTProtocol::RESULT_KEY_SEASON = QStringLiteral("SeriesSeason");
QString const RESTProtocol::RESULT_KEY_SERIES_IMDB_ID = QStringLiteral("SeriesIMDBParent");
QString const RESTProtocol::RESULT_KEY_VOTES = QStringLiteral("SubSumVotes");

std::vector<UseCases::SearchRequest> RESTProtocol::SplitLanguageRequests(UseCases::SearchRequest const& request)
{
    auto languages = request.languages;
    languages.erase(LanguageID::None);
    auto const& all = Entities::Language::GetAllLanguages();
    bool const isEvery =
        std::all_of(all.begin(), all.end(), [&](LanguageID language) { return languages.count(language) > 0; });
    if (languages.empty() || isEvery)
        return {UseCases::SearchRequest{request.tags, {}}};

    std::vector<UseCases::SearchRequest> requests;
    requests.reserve(languages.size());
    for (LanguageID const language : languages)
        requests.push_back(UseCases::SearchRequest{request.tags, {language}});
    return requests;
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
