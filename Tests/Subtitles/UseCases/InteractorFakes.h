#pragma once

#include "Subtitles/Entities/ISubtitlesInteractor.h"
#include "Subtitles/UseCases/IMessagesController.h"
#include "Subtitles/UseCases/IOnlineDownloaderInteractor.h"
#include "Subtitles/UseCases/ISubtitleCollectionPresenter.h"

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

class FakeDownloader final : public UseCases::IOnlineDownloaderInteractor
{
public:
    using Observer = UseCases::IOnlineDownloaderInteractorObserver;
    using Status = UseCases::IOnlineSearchController::Status;

    void RegisterEventHandler(Observer* observer) override { m_observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { m_observers.UnregisterEventHandler(observer); }
    bool IsAvailable() const override { return true; }
    UseCases::SearchRequest MakeQuery(Entities::SubtitleSearchMediaInfoSettings const&) const override { return {}; }
    Status StartSearch(Entities::SubtitleCollectionID, UseCases::SearchRequest const&) override { return {}; }
    Status StartSuggest(Entities::SubtitleCollectionID, QString const&) override { return {}; }
    Status Download(Entities::SubtitleCollectionID, std::vector<std::shared_ptr<UseCases::SearchResult>> const&,
                    ioPath const&) override
    {
        return {};
    }
    bool Cancel() override { return false; }
    UseCases::ServerReport GetServerReport() const override { return {}; }

    void Deliver(Entities::SubtitleCollectionID collection, ioPath const& file)
    {
        m_observers.Notify([&](auto* observer) { observer->OnSubtitlesDownloaded(collection, nullptr, file); });
    }
    void Fail(Entities::SubtitleCollectionID collection, QString const& message)
    {
        m_observers.Notify([&](auto* observer)
                           { observer->OnOperationFailed(collection, Status::UnsupportedSearch, message); });
    }

private:
    Core::EventHandlerList<Observer> m_observers;
};

} // namespace Korvex::Converter::Subtitles::Testing
