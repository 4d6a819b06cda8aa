#pragma once

#include "Subtitles/UseCases/IOnlineSearchController.h"

#include <optional>

namespace Korvex::Testing
{

/// Keeps what an observer of a service hears.
struct Listener final : Converter::Subtitles::UseCases::IOnlineSearchControllerObserver
{
    using Result = std::shared_ptr<Converter::Subtitles::UseCases::SearchResult>;
    using Status = Converter::Subtitles::UseCases::IOnlineSearchController::Status;

    void OnSearchResults(std::vector<Result> const& hits) override { results = hits; }
    void OnAutoSuggestResults(std::vector<QString> const& texts) override { suggestions = texts; }
    void OnSubtitlesDownloaded(Result const& /*result*/, ioPath const& file) override
    {
        files.push_back(QString::fromStdString(file.utf8string()));
    }
    void OnOperationFinished() override { status = Status::Success; }
    void OnOperationFailed(Status failure, QString const& text) override
    {
        status = failure;
        message = text.toStdString();
    }

    std::vector<Result> results;
    std::vector<QString> suggestions;
    std::vector<QString> files;
    std::optional<Status> status; ///< how the operation ended
    std::string message;
};

} // namespace Korvex::Testing
