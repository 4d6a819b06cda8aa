#pragma once

#include "Subtitles/Entities/Export.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/IRESTRequestFactory.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

/// The legacy service has suggestions, searches and archives; it hands out links with its results and has no files to
/// be fetched one by one.
class KVSUBTITLES_API RESTRequestFactory final : public IRESTRequestFactory
{
public:
    [[nodiscard]] Operation CreateAutoSuggestRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                                     QString const& text) const override;
    [[nodiscard]] Operation CreateSearchRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                                UseCases::SearchRequest const& request) const override;
    [[nodiscard]] Operation CreateDownloadRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                                  std::shared_ptr<UseCases::SearchResult> const& result) const override;
    [[nodiscard]] Operation CreateUploadFileRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                                    std::shared_ptr<UseCases::SearchResult> const& result,
                                                    ioPath const& folder) const override;
    [[nodiscard]] Operation CreateArchiveDownloadRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                                         std::shared_ptr<UseCases::SearchResult> const& result,
                                                         ioPath const& folder) const override;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
