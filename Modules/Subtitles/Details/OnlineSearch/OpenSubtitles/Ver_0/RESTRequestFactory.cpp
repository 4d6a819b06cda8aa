#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTRequestFactory.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTArchiveDownloadRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTAutoSuggestRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTNetworkConfiguration.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchRequest.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

namespace
{

template <typename Request, typename... Arguments>
std::shared_ptr<INetworkOperation> MakeOperation(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                                 Arguments const&... arguments)
{
    auto const* const own = dynamic_cast<RESTNetworkConfiguration const*>(&configuration);
    return own ? std::make_shared<Request>(*own, arguments...) : nullptr;
}

} // namespace

RESTRequestFactory::Operation
RESTRequestFactory::CreateAutoSuggestRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                             QString const& text) const
{
    return MakeOperation<RESTAutoSuggestRequest>(configuration, text);
}

RESTRequestFactory::Operation
RESTRequestFactory::CreateSearchRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                        UseCases::SearchRequest const& request) const
{
    return MakeOperation<RESTSearchRequest>(configuration, request);
}

RESTRequestFactory::Operation
RESTRequestFactory::CreateDownloadRequest(OpenSubtitles::RESTNetworkConfiguration const& /*configuration*/,
                                          std::shared_ptr<UseCases::SearchResult> const& /*result*/) const
{
    return nullptr;
}

RESTRequestFactory::Operation
RESTRequestFactory::CreateUploadFileRequest(OpenSubtitles::RESTNetworkConfiguration const& /*configuration*/,
                                            std::shared_ptr<UseCases::SearchResult> const& /*result*/,
                                            ioPath const& /*folder*/) const
{
    return nullptr;
}

RESTRequestFactory::Operation
RESTRequestFactory::CreateArchiveDownloadRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                                 std::shared_ptr<UseCases::SearchResult> const& result,
                                                 ioPath const& folder) const
{
    return MakeOperation<RESTArchiveDownloadRequest>(configuration, result, folder);
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
