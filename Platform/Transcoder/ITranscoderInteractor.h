#pragma once

#include "Core/EventPublisher.h"
#include "Core/Export.h"
#include "Core/Result.h"
#include "Core/TakenName.h"
#include "Transcoder/Preset.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Korvex::Proc
{
class SettingsSubtitleMixer;
class SettingsSubtitleSoft;
struct TranscodeProgress;
struct TranscodeReport;
} // namespace Korvex::Proc

namespace Korvex::Converter::Transcoder::Entities
{

/// A film that is queued for conversion.
struct MediaItem
{
    ioPath path;
    /// Number of the subtitle collection that belongs to the film; 0 when it has none.
    std::uint32_t subtitleCollectionId = 0;
    std::string title = {}; ///< by the container, UTF-8; may be empty
};

/// Everything that one conversion needs. At most one of the two subtitle settings is set; they are shared, so that the
/// user may go on editing while the conversion runs.
struct ConversionRequest
{
    MediaItem item;
    ioPath output;
    Preset preset;
    std::shared_ptr<Proc::SettingsSubtitleSoft const> soft;
    std::shared_ptr<Proc::SettingsSubtitleMixer const> mixer;
    Core::TakenName takenName = Core::TakenName::Refuse;
};

using ConversionId = std::uint32_t;

/// Hears of one conversion, on the thread that started it, from that thread's event loop.
class IConversionObserver
{
public:
    virtual void OnConversionProgress(ConversionId id, Proc::TranscodeProgress const& progress) = 0;
    /// Exactly once, unless the conversion is dropped; nothing follows.
    virtual void OnConversionFinished(ConversionId id, Proc::TranscodeReport const& report) = 0;

protected:
    ~IConversionObserver() = default;
};

/// News of the queue for whoever keeps something per film.
class ITranscoderInteractorEventObserver
{
public:
    /// A film came in; its subtitle collection has been handed to its interactor.
    virtual void OnMediaItemAdded(MediaItem const& item) = 0;
    virtual ~ITranscoderInteractorEventObserver() = default;
};

/// The host's queue of films and its running conversions. The thread that made it is the only one that calls it; that
/// thread runs a Qt event loop.
class ITranscoderInteractor : public Core::EventPublisher<ITranscoderInteractorEventObserver>
{
public:
    /// Announces a film to the observers.
    virtual void AddMediaItem(MediaItem const& item) = 0;

    /// Checks the output's place and starts the conversion; never waits for the input, so that whatever else stands in
    /// the way comes with the report. The observer is not owned; it has to live until `OnConversionFinished` or
    /// `DropConversion`.
    virtual Core::Result<ConversionId> StartConversion(ConversionRequest const& request,
                                                       IConversionObserver& observer) = 0;

    /// Asks a conversion to stop; it then finishes as cancelled. An unknown or finished id does nothing.
    virtual void CancelConversion(ConversionId id) = 0;

    /// Cancels a conversion and waits until it has ended; its observer hears nothing more, so that it may go. An
    /// unknown or finished id does nothing.
    virtual void DropConversion(ConversionId id) = 0;

    /// Makes a conversion stand still or go on. The time spent paused counts neither for its speed nor for the time
    /// left. An unknown or finished id does nothing.
    virtual void SetConversionPaused(ConversionId id, bool isPaused) = 0;
};

} // namespace Korvex::Converter::Transcoder::Entities
