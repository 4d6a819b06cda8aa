#pragma once

#include <memory>

class QString;

namespace Korvex
{
class ioPath;
}

namespace Korvex::Converter::Subtitles::UseCases
{
struct SearchRequest;
struct SearchResult;
} // namespace Korvex::Converter::Subtitles::UseCases

namespace Korvex::Converter::Subtitles::Details
{
class INetworkOperation;
}

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

struct RESTNetworkConfiguration;

/// Makes the operations of one version of the service. Holds no state. Every operation returns null for what its
/// version has not, and for a configuration of the other version.
class IRESTRequestFactory
{
public:
    using Operation = std::shared_ptr<INetworkOperation>;

    [[nodiscard]] virtual Operation CreateAutoSuggestRequest(RESTNetworkConfiguration const& configuration,
                                                             QString const& text) const = 0;
    [[nodiscard]] virtual Operation CreateSearchRequest(RESTNetworkConfiguration const& configuration,
                                                        UseCases::SearchRequest const& request) const = 0;
    /// Asks for the link from which the result can be fetched, and keeps it in the result.
    [[nodiscard]] virtual Operation
    CreateDownloadRequest(RESTNetworkConfiguration const& configuration,
                          std::shared_ptr<UseCases::SearchResult> const& result) const = 0;
    /// Fetches the file from the link that the result keeps into `folder`.
    [[nodiscard]] virtual Operation CreateUploadFileRequest(RESTNetworkConfiguration const& configuration,
                                                            std::shared_ptr<UseCases::SearchResult> const& result,
                                                            ioPath const& folder) const = 0;
    /// Fetches the result's archive and unpacks its subtitle file into `folder`.
    [[nodiscard]] virtual Operation CreateArchiveDownloadRequest(RESTNetworkConfiguration const& configuration,
                                                                 std::shared_ptr<UseCases::SearchResult> const& result,
                                                                 ioPath const& folder) const = 0;
    virtual ~IRESTRequestFactory() = default;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
