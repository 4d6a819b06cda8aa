#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/IOnlineDownloaderInteractor.h"

#include <memory>
#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{

class IOnlineSearchMetadataFiller;

class KVSUBTITLES_API OnlineDownloaderInteractor final : public IOnlineDownloaderInteractor
{
public:
    /// @param services the online services that are set up; the first one serves, none is allowed
    /// @param fillers adds what the service understands about files; none is allowed
    OnlineDownloaderInteractor(std::vector<std::shared_ptr<IOnlineSearchController>> const& services,
                               std::vector<std::shared_ptr<IOnlineSearchMetadataFiller>> const& fillers);
    ~OnlineDownloaderInteractor() override;

    void RegisterEventHandler(IOnlineDownloaderInteractorObserver* observer) override;
    void UnregisterEventHandler(IOnlineDownloaderInteractorObserver* observer) override;
    bool IsAvailable() const override;
    SearchRequest MakeQuery(Entities::SubtitleSearchMediaInfoSettings const& media) const override;
    std::function<SearchRequest()> PrepareQuery(Entities::SubtitleSearchMediaInfoSettings const& media) const override;
    IOnlineSearchController::Status StartSearch(Entities::SubtitleCollectionID collection,
                                                SearchRequest const& request) override;
    IOnlineSearchController::Status StartSuggest(Entities::SubtitleCollectionID collection,
                                                 QString const& text) override;
    IOnlineSearchController::Status Download(Entities::SubtitleCollectionID collection,
                                             std::vector<std::shared_ptr<SearchResult>> const& results,
                                             ioPath const& folder) override;
    IOnlineSearchController::Status Fetch(Entities::SubtitleCollectionID collection,
                                          std::vector<std::shared_ptr<SearchResult>> const& results,
                                          ioPath const& storage) override;
    bool Cancel() override;
    ServerReport GetServerReport() const override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::UseCases
