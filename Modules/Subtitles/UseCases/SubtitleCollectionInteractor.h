#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/ISubtitleCollectionInteractor.h"

#include <memory>

namespace Korvex::Converter::Transcoder::Entities
{
class ITranscoderInteractor;
}

namespace Korvex::Converter::Subtitles::Entities
{
class ISubtitlesInteractor;
}

namespace Korvex::Converter::Subtitles::UseCases
{

class IMessagesController;
class IOnlineDownloaderInteractor;
class IOnlineSearchInteractor;
class ISubtitleCollectionPresenter;
class ISubtitleController;

class KVSUBTITLES_API SubtitleCollectionInteractor final : public Entities::ISubtitleCollectionInteractor
{
public:
    SubtitleCollectionInteractor(std::shared_ptr<ISubtitleCollectionPresenter> const& presenter,
                                 std::shared_ptr<ISubtitleController> const& controller,
                                 std::shared_ptr<Entities::ISubtitlesInteractor> const& subtitles,
                                 std::shared_ptr<IOnlineDownloaderInteractor> const& downloader,
                                 std::shared_ptr<Transcoder::Entities::ITranscoderInteractor> const& transcoder,
                                 std::shared_ptr<IMessagesController> const& messages,
                                 std::shared_ptr<IOnlineSearchInteractor> const& onlineSearch);
    ~SubtitleCollectionInteractor() override;

    void RegisterEventHandler(Entities::ISubtitleCollectionInteractorEventObserver* observer) override;
    void UnregisterEventHandler(Entities::ISubtitleCollectionInteractorEventObserver* observer) override;
    void AddSubtitles(ioPath const& path) override;
    void AddTrackList(std::map<Entities::SubtitleTrackID, Entities::SubtitleTrack> const& tracks) override;
    void SetSubtitleCollection(Entities::SubtitleCollection const& collection, bool refreshWidgets) override;
    Entities::SubtitleCollection GetSubtitleCollection() const override;
    bool IsValid(Entities::SubtitleCollection const& collection) const override;
    void ClearSubtitleCollection() override;
    void SetPresenterSettings(Entities::SubtitlePresenterSettings const& settings) override;
    void SetPreset(Transcoder::Entities::Preset const& preset) override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::UseCases
