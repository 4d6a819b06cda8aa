#pragma once

#include "Transcoder/ITranscoderInteractor.h"

#include "Core/RefCounted.h"

#include <functional>
#include <memory>

namespace Korvex::Proc
{
class ITranscodeJob;
struct SettingsTranscode;
} // namespace Korvex::Proc

namespace Korvex::Converter::Transcoder
{

/// The queue of films and the running conversions of a host.
///
/// Jobs report on threads of their own; their news is handed to the thread that made this object, through its Qt event
/// loop. Progress that the loop has not taken yet is replaced by newer progress, so a busy loop is never flooded.
/// Destroying the object cancels what still runs and waits for it; its observers then hear nothing more.
class KORVEX_PLATFORM_API TranscoderInteractor final : public Entities::ITranscoderInteractor
{
public:
    /// Makes a job from checked settings, or says why it cannot.
    using JobFactory =
        std::function<Core::Result<boost::intrusive_ptr<Proc::ITranscodeJob>>(Proc::SettingsTranscode const&)>;

    TranscoderInteractor();                            ///< with the core's own jobs
    explicit TranscoderInteractor(JobFactory makeJob); ///< with the jobs given
    ~TranscoderInteractor() override;
    TranscoderInteractor(TranscoderInteractor const&) = delete;
    TranscoderInteractor& operator=(TranscoderInteractor const&) = delete;

    void RegisterEventHandler(Entities::ITranscoderInteractorEventObserver* observer) override;
    void UnregisterEventHandler(Entities::ITranscoderInteractorEventObserver* observer) override;

    void AddMediaItem(Entities::MediaItem const& item) override;
    Core::Result<Entities::ConversionId> StartConversion(Entities::ConversionRequest const& request,
                                                         Entities::IConversionObserver& observer) override;
    void CancelConversion(Entities::ConversionId id) override;
    void DropConversion(Entities::ConversionId id) override;
    void SetConversionPaused(Entities::ConversionId id, bool isPaused) override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Transcoder
