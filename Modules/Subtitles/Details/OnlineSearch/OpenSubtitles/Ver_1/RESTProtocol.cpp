#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTProtocol.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

QString const RESTProtocol::QUERY_SEARCH = QStringLiteral("subtitles");
QString const RESTProtocol::QUERY_SUGGEST = QStringLiteral("features");
QString const RESTProtocol::QUERY_DOWNLOAD = QStringLiteral("download");

QString const RESTProtocol::QUERY_KEY_TITLE = QStringLiteral("query");
QString const RESTProtocol::QUERY_KEY_MOVIE_SUGGEST = QStringLiteral("query");
QString const RESTProtocol::QUERY_KEY_IMDB_ID = QStringLiteral("imdb_id");
QString const RESTProtocol::QUERY_KEY_LANGUAGE = QStringLiteral("languages");
QString const RESTProtocol::QUERY_KEY_SEASON = QStringLiteral("season_number");
QString const RESTProtocol::QUERY_KEY_EPISODE = QStringLiteral("episode_number");

QString const RESTProtocol::RESULT_KEY_FILE_NAME = QStringLiteral("file_name");
QString const RESTProtocol::RESULT_KEY_RELEASE = QStringLiteral("release");
QString const RESTProtocol::RESULT_KEY_FILE_ID = QStringLiteral("file_id");
QString const RESTProtocol::RESULT_KEY_FORMAT = QStringLiteral("format");
QString const RESTProtocol::RESULT_KEY_MOVIE_SUGGEST = QStringLiteral("title");

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
