#pragma once

#include "Subtitles/Entities/Export.h"

#include "Subtitles/UseCases/SearchResult.h"

#include <QString>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

/// A hit of the legacy service with what its download needs. The files of a set on several discs share one archive.
struct KVSUBTITLES_API RESTSearchResultData final : UseCases::SearchResult
{
    RESTSearchResultData() = default;
    RESTSearchResultData(RESTSearchResultData const&) = default;
    RESTSearchResultData(RESTSearchResultData&&) = default;
    RESTSearchResultData& operator=(RESTSearchResultData const&) = default;
    RESTSearchResultData& operator=(RESTSearchResultData&&) = default;
    ~RESTSearchResultData() override;

    QString archiveLink;  ///< as given: what it carries is case-sensitive
    QString subtitleHash; ///< MD5 of the subtitle file, 32 hexadecimal digits; may be empty
    QString format;       ///< "srt", "sub", ...; may be empty
    QString encoding;     ///< what the service takes the file's encoding to be; only a hint
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
