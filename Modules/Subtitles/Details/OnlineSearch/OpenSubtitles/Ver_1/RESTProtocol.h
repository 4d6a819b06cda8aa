#pragma once

#include "Subtitles/Entities/Export.h"

#include <QString>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

/// The words of version 1 of the service: its operations, their parameters, and the members of its replies.
class KVSUBTITLES_API RESTProtocol
{
public:
    static QString const QUERY_SEARCH;
    static QString const QUERY_SUGGEST;
    static QString const QUERY_DOWNLOAD;

    static QString const QUERY_KEY_TITLE;
    static QString const QUERY_KEY_MOVIE_SUGGEST;
    static QString const QUERY_KEY_IMDB_ID;
    static QString const QUERY_KEY_LANGUAGE;
    static QString const QUERY_KEY_SEASON;
    static QString const QUERY_KEY_EPISODE;

    static QString const RESULT_KEY_FILE_NAME;
    static QString const RESULT_KEY_RELEASE;
    static QString const RESULT_KEY_FILE_ID;
    static QString const RESULT_KEY_FORMAT;
    static QString const RESULT_KEY_MOVIE_SUGGEST;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
