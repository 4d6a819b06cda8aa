#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTSearchEngine.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTNetworkConfiguration.h"
#include "Subtitles/UseCases/IServiceName.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{
class IRESTRequestFactory;
}

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

/// The legacy service: a search is one request for each language, a download is one archive.
class KVSUBTITLES_API RESTSearchEngine final : public OpenSubtitles::RESTSearchEngine, public UseCases::IServiceName
{
    Q_OBJECT

public:
    /// Takes the service's address from the configuration in force.
    RESTSearchEngine(std::shared_ptr<INetworkManager> const& networkManager,
                     std::shared_ptr<IRESTRequestFactory> const& requestFactory);
    ~RESTSearchEngine() override;

    [[nodiscard]] std::string GetServiceName() const override;

protected:
    void AddSearchRequest(UseCases::SearchRequest const& request) override;
    void AddAutoSuggestRequest(QString const& text) override;
    void AddDownloadRequest(std::shared_ptr<UseCases::SearchResult> const& result, ioPath const& folder) override;

private:
    void ConfigureNetwork();

    RESTNetworkConfiguration m_configuration;
    std::shared_ptr<IRESTRequestFactory> const m_requestFactory;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
