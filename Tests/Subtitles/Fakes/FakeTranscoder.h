#pragma once

#include "Core/EventHandlerList.h"
#include "Transcoder/ITranscoderInteractor.h"

namespace Korvex::Converter::Subtitles::Testing
{

/// Announces films; converts none.
class FakeTranscoder final : public Transcoder::Entities::ITranscoderInteractor
{
public:
    using Observer = Transcoder::Entities::ITranscoderInteractorEventObserver;

    void RegisterEventHandler(Observer* observer) override { m_observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { m_observers.UnregisterEventHandler(observer); }
    void AddMediaItem(Transcoder::Entities::MediaItem const& item) override
    {
        m_observers.Notify([&](auto* observer) { observer->OnMediaItemAdded(item); });
    }
    Core::Result<Transcoder::Entities::ConversionId>
    StartConversion(Transcoder::Entities::ConversionRequest const& /*request*/,
                    Transcoder::Entities::IConversionObserver& /*observer*/) override
    {
        return Core::Error{};
    }
    void CancelConversion(Transcoder::Entities::ConversionId /*id*/) override {}
    void DropConversion(Transcoder::Entities::ConversionId /*id*/) override {}
    void SetConversionPaused(Transcoder::Entities::ConversionId /*id*/, bool /*isPaused*/) override {}

private:
    Core::EventHandlerList<Observer> m_observers;
};

} // namespace Korvex::Converter::Subtitles::Testing
