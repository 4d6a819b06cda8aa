#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/IRESTRequestFactory.h"

#include "Subtitles/Entities/Export.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

/// The requests of version 1.
class KVSUBTITLES_API RESTRequestFactory final : public IRESTRequestFactory
{
public:
    [[nodiscard]] Operation CreateAutoSuggestRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                                     QString const& text) const override;
    [[nodiscard]] Operation CreateSearchRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                                UseCases::SearchRequest const& request) const override;
    /// A result of another service makes a request that is refused before anything is sent.
    [[nodiscard]] Operation CreateDownloadRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                                  std::shared_ptr<UseCases::SearchResult> const& result) const override;
    [[nodiscard]] Operation CreateUploadFileRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                                    std::shared_ptr<UseCases::SearchResult> const& result,
                                                    ioPath const& folder) const override;
    /// Null: this version hands out single files.
    [[nodiscard]] Operation CreateArchiveDownloadRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                                         std::shared_ptr<UseCases::SearchResult> const& result,
                                                         ioPath const& folder) const override;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
