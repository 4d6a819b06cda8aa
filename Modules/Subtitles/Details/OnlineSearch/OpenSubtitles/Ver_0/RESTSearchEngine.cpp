#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchEngine.h"

#include "Subtitles/Details/OnlineSearch/INetworkOperation.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/IRESTRequestFactory.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTProtocol.h"

#include "App/Configuration.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

RESTSearchEngine::RESTSearchEngine(std::shared_ptr<INetworkManager> const& networkManager,
                                   std::shared_ptr<IRESTRequestFactory> const& requestFactory)
    : OpenSubtitles::RESTSearchEngine(networkManager),
      m_requestFactory(requestFactory)
{
    ConfigureNetwork();
}

RESTSearchEngine::~RESTSearchEngine() = default;

std::string RESTSearchEngine::GetServiceName() const
{
    return "opensubtitles-0";
}

void RESTSearchEngine::ConfigureNetwork()
{
    m_configuration.SetBaseUrl(App::GetActiveConfiguration().openSubtitlesLegacyUrl);
    m_configuration.userAgent = RESTProtocol::USER_AGENT;
}

void RESTSearchEngine::AddSearchRequest(UseCases::SearchRequest const& request)
{
    for (UseCases::SearchRequest const& part : RESTProtocol::SplitLanguageRequests(request))
        Append(m_requestFactory->CreateSearchRequest(m_configuration, part));
}

void RESTSearchEngine::AddAutoSuggestRequest(QString const& text)
{
    Append(m_requestFactory->CreateAutoSuggestRequest(m_configuration, text));
}

void RESTSearchEngine::AddDownloadRequest(std::shared_ptr<UseCases::SearchResult> const& result, ioPath const& folder)
{
    Append(m_requestFactory->CreateArchiveDownloadRequest(m_configuration, result, folder));
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
