#pragma once

#include "Subtitles/UseCases/IOnlineSearchController.h"
#include "Subtitles/UseCases/IServerReportSource.h"
#include "Subtitles/UseCases/IServiceName.h"

#include "Core/EventHandlerList.h"

#include <string>

namespace Korvex::Converter::Subtitles::Testing
{

/// Keeps the rules of the real one: busy until an operation has ended, idle already when it tells so but not yet when
/// it tells of a failure, silent once cancelled.
class FakeOnlineService final : public UseCases::IOnlineSearchController,
                                public UseCases::IServerReportSource,
                                public UseCases::IServiceName
{
public:
    using Observer = UseCases::IOnlineSearchControllerObserver;

    void RegisterEventHandler(Observer* observer) override { observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { observers.UnregisterEventHandler(observer); }
    Status StartSearch(UseCases::SearchRequest const& request) override { return Start(Describe(request)); }
    Status AutoSuggest(std::string const&, QString const& text) override { return Start(text.toStdString()); }
    Status DownloadSubtitles(std::vector<std::shared_ptr<UseCases::SearchResult>> const& results,
                             ioPath const& folder) override
    {
        if (results.empty())
            return isBusy ? Busy : Success;
        return Start("download " + folder.FileName());
    }
    bool CancelOperation() override { return isCanceled = isBusy; }
    UseCases::ServerReport GetServerReport() const override { return report; }
    std::string GetServiceName() const override { return "fake"; }

    static std::string Describe(UseCases::SearchRequest const& request)
    {
        std::string text;
        for (auto const& [tag, value] : request.tags)
            text += (text.empty() ? "" : " ") + tag + "=" + value;
        return text;
    }

    void End()
    {
        isBusy = false;
        Tell([](auto* observer) { observer->OnOperationFinished(); });
    }
    void Fail(Status status)
    {
        Tell([&](auto* observer) { observer->OnOperationFailed(status, "its own words"); });
        isBusy = false;
    }
    void Suggest(std::vector<QString> const& titles)
    {
        Tell([&](auto* observer) { observer->OnAutoSuggestResults(titles); });
    }
    void Find(std::vector<std::shared_ptr<UseCases::SearchResult>> const& results)
    {
        Tell([&](auto* observer) { observer->OnSearchResults(results); });
    }

    Core::EventHandlerList<Observer> observers;
    std::vector<std::string> started;
    UseCases::ServerReport report;
    Status refusal = Success;
    bool isBusy = false;
    bool isCanceled = false;

private:
    Status Start(std::string const& what)
    {
        if (isBusy)
            return Busy;
        if (refusal != Success)
            return refusal;
        started.push_back(what);
        isBusy = true;
        isCanceled = false;
        return Success;
    }
    template <typename Event>
    void Tell(Event const& event)
    {
        if (!isCanceled)
            observers.Notify(event);
    }
};

} // namespace Korvex::Converter::Subtitles::Testing
