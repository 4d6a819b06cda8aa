#pragma once

#include "Subtitles/Entities/Export.h"

#include <QString>

#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{
struct SearchRequest;
}

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

/// The words of the legacy service, and how its limits shape a search.
class KVSUBTITLES_API RESTProtocol
{
public:
    static QString const USER_AGENT;
    static QString const TEMPORARY_USER_AGENT; ///< the service's name for programs without one of their own; never sent

    static QString const QUERY_SEARCH;
    static QString const QUERY_SUGGEST;

    static QString const QUERY_KEY_EPISODE;
    static QString const QUERY_KEY_IMDB_ID;
    static QString const QUERY_KEY_LANGUAGE;
    static QString const QUERY_KEY_MOVIE_BYTE_SIZE;
    static QString const QUERY_KEY_MOVIE_HASH;
    static QString const QUERY_KEY_MOVIE_SUGGEST;
    static QString const QUERY_KEY_SEASON;
    static QString const QUERY_KEY_SUGGEST_FORMAT;
    static QString const QUERY_KEY_TITLE;
    static QString const QUERY_VALUE_SUGGEST_FORMAT;

    static QString const RESULT_KEY_ADD_DATE;
    static QString const RESULT_KEY_ARCHIVE_LINK;
    static QString const RESULT_KEY_AUTHOR_COMMENT;
    static QString const RESULT_KEY_AUTO_TRANSLATION;
    static QString const RESULT_KEY_DISC;
    static QString const RESULT_KEY_DISC_COUNT;
    static QString const RESULT_KEY_DOWNLOADS;
    static QString const RESULT_KEY_ENCODING;
    static QString const RESULT_KEY_EPISODE;
    static QString const RESULT_KEY_FILE_ID;
    static QString const RESULT_KEY_FILE_LINK;
    static QString const RESULT_KEY_FILE_NAME;
    static QString const RESULT_KEY_FOREIGN_PARTS_ONLY;
    static QString const RESULT_KEY_FORMAT;
    static QString const RESULT_KEY_FRAME_RATE;
    static QString const RESULT_KEY_FROM_TRUSTED;
    static QString const RESULT_KEY_HASH;
    static QString const RESULT_KEY_HEARING_IMPAIRED;
    static QString const RESULT_KEY_HIGH_DEFINITION;
    static QString const RESULT_KEY_IMDB_ID;
    static QString const RESULT_KEY_LANGUAGE;
    static QString const RESULT_KEY_LANGUAGE_ISO;
    static QString const RESULT_KEY_MATCHED_BY;
    static QString const RESULT_KEY_MOVIE_KIND;
    static QString const RESULT_KEY_MOVIE_NAME;
    static QString const RESULT_KEY_MOVIE_SUGGEST;
    static QString const RESULT_KEY_MOVIE_YEAR;
    static QString const RESULT_KEY_RATING;
    static QString const RESULT_KEY_RELEASE;
    static QString const RESULT_KEY_SEASON;
    static QString const RESULT_KEY_SERIES_IMDB_ID;
    static QString const RESULT_KEY_VOTES;

    /// The service answers for one language at a time: one request for each chosen language, in the order of the
    /// language table. No language chosen, or every one, is a single request that names none; a request each would
    /// be twice what the service allows an address in ten seconds.
    [[nodiscard]] static std::vector<UseCases::SearchRequest>
    SplitLanguageRequests(UseCases::SearchRequest const& request);
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
