#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchEngine.h"

#include "Subtitles/Details/OnlineSearch/INetworkOperation.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/IRESTRequestFactory.h"

#include "App/Configuration.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
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
    return "opensubtitles-1";
}

void RESTSearchEngine::ConfigureNetwork()
{
    App::Configuration const configuration = App::GetActiveConfiguration();
    m_configuration.SetBaseUrl(configuration.openSubtitlesUrl);
    m_configuration.apiKey = QByteArray::fromStdString(configuration.openSubtitlesApiKey).trimmed();
}

void RESTSearchEngine::AddSearchRequest(UseCases::SearchRequest const& request)
{
    Append(m_requestFactory->CreateSearchRequest(m_configuration, request));
}

void RESTSearchEngine::AddAutoSuggestRequest(QString const& text)
{
    Append(m_requestFactory->CreateAutoSuggestRequest(m_configuration, text));
}

void RESTSearchEngine::AddDownloadRequest(std::shared_ptr<UseCases::SearchResult> const& result, ioPath const& folder)
{
    Append(m_requestFactory->CreateDownloadRequest(m_configuration, result));
    Append(m_requestFactory->CreateUploadFileRequest(m_configuration, result, folder));
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
