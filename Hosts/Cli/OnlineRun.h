#pragma once

#include "Subtitles/Entities/SubtitleCollectionID.h"
#include "Subtitles/UseCases/IOnlineDownloaderInteractor.h"
#include "Subtitles/UseCases/ResultRanking.h"

#include "Core/ScopedObservation.h"

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

class QEventLoop;

namespace Korvex::Cli
{

struct OnlineQuery;

/// The online service could not do what was asked. The text is a sentence.
class OnlineError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

struct DownloadedFile
{
    std::shared_ptr<Converter::Subtitles::UseCases::SearchResult> result;
    ioPath path;
};

/// What a download brought: a failure or an interrupt ends it, and keeps what had come before.
struct DownloadOutcome
{
    std::vector<DownloadedFile> files;
    std::optional<OnlineError> error;
    bool isInterrupted = false;
};

/// What a search brought, the best first: one failure ends it, and keeps what had come before.
struct SearchOutcome
{
    std::vector<Converter::Subtitles::UseCases::RankedResult> results;
    std::optional<OnlineError> error;
};

/// Carries operations of the online service out one after the other, each on an event loop of its own. Each ends as
/// soon as the user wants it to stop; what was asked is then cancelled.
class OnlineRun final : private Converter::Subtitles::UseCases::IOnlineDownloaderInteractorObserver
{
public:
    using Interactor = Converter::Subtitles::UseCases::IOnlineDownloaderInteractor;
    using SearchResult = Converter::Subtitles::UseCases::SearchResult;

    OnlineRun(std::shared_ptr<Interactor> interactor, std::function<bool()> isInterrupted);
    ~OnlineRun() override;

    /// The query with what the film's file adds to it. Throws UsageError when nothing is there to search by.
    [[nodiscard]] Converter::Subtitles::UseCases::SearchRequest MakeRequest(OnlineQuery const& query) const;
    /// @param request what `MakeRequest` made of the query. Throws Interrupted.
    [[nodiscard]] SearchOutcome Search(OnlineQuery const& query,
                                       Converter::Subtitles::UseCases::SearchRequest const& request);
    /// Throws OnlineError and Interrupted.
    [[nodiscard]] std::vector<QString> Suggest(QString const& text);
    /// Into a folder that exists.
    [[nodiscard]] DownloadOutcome Download(std::vector<std::shared_ptr<SearchResult>> const& results,
                                           ioPath const& folder);
    /// What the server said last.
    [[nodiscard]] Converter::Subtitles::UseCases::ServerReport GetServerReport() const;

private:
    using CollectionID = Converter::Subtitles::Entities::SubtitleCollectionID;
    using Status = Converter::Subtitles::UseCases::IOnlineSearchController::Status;

    /// Returns when the operation that `start` began has ended. Throws Interrupted.
    void Await(std::function<void()> const& start);
    void End();

    void OnSearchResults(CollectionID collection, std::vector<std::shared_ptr<SearchResult>> const& results) override;
    void OnSuggestions(CollectionID collection, std::vector<QString> const& titles) override;
    void OnSubtitlesDownloaded(CollectionID collection, std::shared_ptr<SearchResult> const& result,
                               ioPath const& file) override;
    void OnOperationFinished(CollectionID collection) override;
    void OnOperationFailed(CollectionID collection, Status status, QString const& message) override;

    std::shared_ptr<Interactor> m_interactor;
    std::function<bool()> m_isInterrupted;
    CollectionID m_collection; ///< stands for this run; no film belongs to it
    Core::ScopedObservation<Converter::Subtitles::UseCases::IOnlineDownloaderInteractorObserver> m_observation;

    QEventLoop* m_loop = nullptr; ///< while an operation is awaited
    bool m_isEnded = true;
    std::optional<OnlineError> m_error;
    std::vector<std::shared_ptr<SearchResult>> m_results;
    std::vector<QString> m_suggestions;
    std::vector<DownloadedFile> m_files;
};

} // namespace Korvex::Cli
