#pragma once

#include "Subtitles/Entities/Export.h"

#include "Subtitles/UseCases/SearchResult.h"

#include <QString>
#include <QUrl>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

/// A hit, with what its download needs. The link and its file name belong to the worker's thread: the link request
/// writes them, the fetch that follows reads them.
struct KVSUBTITLES_API RESTSearchResultData final : UseCases::SearchResult
{
    int fileId = 0; ///< 0: none
    QString format; ///< as the service says; seldom given

    QUrl link;            ///< where the file is, good for one fetch; empty until asked for
    QString linkFileName; ///< what the service calls the file behind the link
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
