#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTSearchEngine.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTNetworkConfiguration.h"
#include "Subtitles/UseCases/IServiceName.h"

#include <memory>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{
class IRESTRequestFactory;
}

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

/// The service by its version 1. Address and key are those of the configuration in force when the engine is made.
class KVSUBTITLES_API RESTSearchEngine final : public OpenSubtitles::RESTSearchEngine, public UseCases::IServiceName
{
    Q_OBJECT

public:
    RESTSearchEngine(std::shared_ptr<INetworkManager> const& networkManager,
                     std::shared_ptr<IRESTRequestFactory> const& requestFactory);
    ~RESTSearchEngine() override;

    [[nodiscard]] std::string GetServiceName() const override;

private:
    void ConfigureNetwork();

    void AddSearchRequest(UseCases::SearchRequest const& request) override;
    void AddAutoSuggestRequest(QString const& text) override;
    /// Two requests: one for the link, one for the file behind it.
    void AddDownloadRequest(std::shared_ptr<UseCases::SearchResult> const& result, ioPath const& folder) override;

    RESTNetworkConfiguration m_configuration;
    std::shared_ptr<IRESTRequestFactory> m_requestFactory;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
