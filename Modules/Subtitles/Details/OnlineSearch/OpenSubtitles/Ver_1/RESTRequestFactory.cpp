#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTRequestFactory.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTAutoSuggestRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTDownloadRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchResultData.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTUploadFileRequest.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

namespace
{

/// Null when the configuration is another version's.
template <class Request, class... Arguments>
IRESTRequestFactory::Operation Make(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                    Arguments const&... arguments)
{
    auto const* const own = dynamic_cast<RESTNetworkConfiguration const*>(&configuration);
    return own == nullptr ? nullptr : std::make_shared<Request>(*own, arguments...);
}

} // namespace

IRESTRequestFactory::Operation
RESTRequestFactory::CreateAutoSuggestRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                             QString const& text) const
{
    return Make<RESTAutoSuggestRequest>(configuration, text);
}

IRESTRequestFactory::Operation
RESTRequestFactory::CreateSearchRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                        UseCases::SearchRequest const& request) const
{
    return Make<RESTSearchRequest>(configuration, request);
}

IRESTRequestFactory::Operation
RESTRequestFactory::CreateDownloadRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                          std::shared_ptr<UseCases::SearchResult> const& result) const
{
    return Make<RESTDownloadRequest>(configuration, std::dynamic_pointer_cast<RESTSearchResultData>(result));
}

IRESTRequestFactory::Operation
RESTRequestFactory::CreateUploadFileRequest(OpenSubtitles::RESTNetworkConfiguration const& configuration,
                                            std::shared_ptr<UseCases::SearchResult> const& result,
                                            ioPath const& folder) const
{
    return Make<RESTUploadFileRequest>(configuration, std::dynamic_pointer_cast<RESTSearchResultData>(result), folder);
}

IRESTRequestFactory::Operation
RESTRequestFactory::CreateArchiveDownloadRequest(OpenSubtitles::RESTNetworkConfiguration const& /*configuration*/,
                                                 std::shared_ptr<UseCases::SearchResult> const& /*result*/,
                                                 ioPath const& /*folder*/) const
{
    return nullptr;
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
