#pragma once

#include "Subtitles/Entities/ISubtitlesInteractor.h"
#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"
#include "Subtitles/UseCases/IMessagesController.h"
#include "Subtitles/UseCases/IOnlineDownloaderInteractor.h"
#include "Subtitles/UseCases/IOnlineSearchInteractor.h"
#include "Subtitles/UseCases/ISubtitleCollectionPresenter.h"

#include <functional>
#include <string>
#include <vector>

namespace Korvex::Converter::Subtitles::Testing
{

/// Writes down in `calls` what it was asked to show; connecting is not written down.
class FakeCollectionPresenter final : public UseCases::ISubtitleCollectionPresenter
{
public:
    using Observer = UseCases::ISubtitleCollectionPresenterEventObserver;

    void RegisterEventHandler(Observer* observer) override { m_observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { m_observers.UnregisterEventHandler(observer); }
    void ReconnectToWidgets(Entities::SubtitlePresenterSettings const&, Entities::SubtitleCollectionID) override
    {
        isConnected = true;
    }
    void ClearConnectToWidgets() override { isConnected = false; }
    void AddSubtitleTrack(Entities::SubtitleTrack const& track) override
    {
        calls.push_back("add " + track.id.ToString());
    }
    void ClearTracks() override { calls.push_back("clear"); }
    void SortTracks() override { calls.push_back("sort"); }
    void FillWidgetsTracks() override { calls.push_back("fill"); }
    void SetCurrentTrack(Entities::SubtitleTrackID const& id) override { calls.push_back("current " + id.ToString()); }
    void SetWithoutSubtitles() override { calls.push_back("without"); }
    void SetAllSoftSubtitles() override { calls.push_back("all soft"); }
    void SetSoftSubAvailable(bool available) override { calls.push_back(available ? "soft" : "no soft"); }
    void SetApplyToAllFiles(bool apply) override { applyToAllFiles = apply; }
    bool GetApplyToAllFiles() const override { return applyToAllFiles; }
    void Hide() override { calls.push_back("hide"); }

    template <typename Event>
    void Raise(Event const& event)
    {
        m_observers.Notify(event);
    }

    std::vector<std::string> calls;
    bool isConnected = false;
    bool applyToAllFiles = false;

private:
    Core::EventHandlerList<Observer> m_observers;
};

class FakeSubtitlesInteractor final : public Entities::ISubtitlesInteractor
{
public:
    using Observer = Entities::ISubtitlesInteractorEventObserver;

    void RegisterEventHandler(Observer* observer) override { m_observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { m_observers.UnregisterEventHandler(observer); }
    void SetSubtitleCollection(std::shared_ptr<Entities::SubtitleCollection> const& value) override
    {
        collection = value;
        calls.push_back("set");
    }
    void UpdateMediaInfo(std::shared_ptr<Entities::SubtitleCollection> const&) override {}
    void ReconnectToWidgets(Entities::SubtitlePresenterSettings const&) override {}
    void ClearConnectToWidgets() override {}
    void ExtractSubtitle() override { calls.push_back("extract"); }
    void SubtitleTrackSelected() override { calls.push_back("track"); }
    void SetAllSoftSubtitles() override { calls.push_back("all soft"); }
    void SetWithoutSubtitles() override { calls.push_back("without"); }

    std::shared_ptr<Entities::SubtitleCollection> collection;
    std::vector<std::string> calls;

private:
    Core::EventHandlerList<Observer> m_observers;
};

class FakeMessages final : public UseCases::IMessagesController
{
public:
    void ShowWarning(std::string const& sentence) override { sentences.push_back(sentence); }
    void ShowError(std::string const& sentence) override { sentences.push_back(sentence); }

    std::vector<std::string> sentences;
};

/// Accepts what it is asked for and writes it down.
class FakeDownloader final : public UseCases::IOnlineDownloaderInteractor
{
public:
    using Observer = UseCases::IOnlineDownloaderInteractorObserver;
    using Status = UseCases::IOnlineSearchController::Status;
    using Results = std::vector<std::shared_ptr<UseCases::SearchResult>>;

    void RegisterEventHandler(Observer* observer) override { m_observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { m_observers.UnregisterEventHandler(observer); }
    bool IsAvailable() const override { return true; }
    UseCases::SearchRequest MakeQuery(Entities::SubtitleSearchMediaInfoSettings const& media) const override
    {
        return PrepareQuery(media)();
    }
    std::function<UseCases::SearchRequest()>
    PrepareQuery(Entities::SubtitleSearchMediaInfoSettings const&) const override
    {
        return readFilm;
    }
    Status StartSearch(Entities::SubtitleCollectionID collection, UseCases::SearchRequest const& request) override
    {
        std::string text = "search";
        for (auto const& [tag, value] : request.tags)
            text += " " + tag + "=" + value;
        return Start(collection, text);
    }
    Status StartSuggest(Entities::SubtitleCollectionID, QString const&) override { return {}; }
    Status Download(Entities::SubtitleCollectionID collection, Results const& results, ioPath const& folder) override
    {
        return Start(collection, "download " + std::to_string(results.size()) + " " + folder.utf8string());
    }
    Status Fetch(Entities::SubtitleCollectionID collection, Results const& results, ioPath const& storage) override
    {
        return Start(collection, "fetch " + std::to_string(results.size()) + " " + storage.utf8string());
    }
    bool Cancel() override
    {
        calls.push_back("cancel");
        return true;
    }
    UseCases::ServerReport GetServerReport() const override { return report; }

    template <typename Event>
    void Raise(Event const& event)
    {
        m_observers.Notify(event);
    }

    std::function<UseCases::SearchRequest()> readFilm = [] { return UseCases::SearchRequest(); };
    UseCases::ServerReport report;
    Status answer = Status::Success; ///< to start calls
    std::vector<std::string> calls;

private:
    Status Start(Entities::SubtitleCollectionID collection, std::string const& call)
    {
        if (answer != Status::Success)
            Raise([&](auto* observer) { observer->OnOperationFailed(collection, answer, "Refused."); });
        else
            calls.push_back(call);
        return answer;
    }

    Core::EventHandlerList<Observer> m_observers;
};

class FakeOnlineSearch final : public UseCases::IOnlineSearchInteractor
{
public:
    void RegisterEventHandler(UseCases::ISearchDialogStatisticObserver*) override {}
    void UnregisterEventHandler(UseCases::ISearchDialogStatisticObserver*) override {}
    void Open(Entities::SubtitleCollectionID, Entities::SubtitleSearchMediaInfoSettings const&,
              std::string const&) override
    {
    }
    void Close() override {}
    void SetDownloadFolder(ioPath const&) override {}
};

} // namespace Korvex::Converter::Subtitles::Testing
