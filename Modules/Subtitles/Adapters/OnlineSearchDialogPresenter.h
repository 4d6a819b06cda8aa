#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/IOnlineSearchPresenter.h"

#include <memory>
#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{
class IAutocompletePresenter;
}

namespace Korvex::Converter::Subtitles::Adapters
{

class IOnlineSearchDialog;
class ISearchDialogStatisticHandler;

/// Another choice of languages searches again by itself a moment after the last change, as long as something has been
/// searched for and no download runs. A title that the user types or picks takes the place of an IMDb id that came from
/// the film, since an id goes before a title.
///
/// What is shown follows a change of the application's language; a failure stays as it was told.
class KVSUBTITLES_API OnlineSearchDialogPresenter final : public UseCases::IOnlineSearchPresenter
{
public:
    /// @param dialogs the first one serves; without any an opening ends at once
    OnlineSearchDialogPresenter(std::vector<std::shared_ptr<IOnlineSearchDialog>> const& dialogs,
                                std::shared_ptr<UseCases::IAutocompletePresenter> const& autocomplete,
                                std::shared_ptr<ISearchDialogStatisticHandler> const& statistics);
    ~OnlineSearchDialogPresenter() override;

    void RegisterEventHandler(UseCases::IOnlineSearchPresenterEventObserver* observer) override;
    void UnregisterEventHandler(UseCases::IOnlineSearchPresenterEventObserver* observer) override;
    void ConnectStatistics(Core::EventPublisher<UseCases::ISearchDialogStatisticObserver>& feed) override;
    void Open(Entities::SubtitleSearchMediaInfoSettings const& media, UseCases::SearchRequest const& query) override;
    void CompleteQuery(UseCases::SearchRequest const& query) override;
    void Raise() override;
    void Close() override;
    UseCases::SearchRequest GetQuery() const override;
    void ShowReady() override;
    void ShowSearching(UseCases::SearchRequest const& request) override;
    void AddResults(std::vector<std::shared_ptr<UseCases::SearchResult>> const& results) override;
    void ShowSearchFinished() override;
    void ShowDownloading(std::size_t count) override;
    void ShowDownloaded(std::size_t count, std::optional<int> downloadsLeft) override;
    void ShowCancelling() override;
    void ShowCancelled() override;
    void ShowFailure(UseCases::IOnlineSearchController::Status status, QString const& sentence) override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::Adapters
