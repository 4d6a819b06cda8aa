#pragma once

#include "Proc/Transcode.h"
#include "Transcoder/ITranscoderInteractor.h"

#include <functional>

class QEventLoop;

namespace Korvex::Cli
{

class Reporter;

/// One conversion from start to end, on an event loop of its own.
class ConversionRun final : private Converter::Transcoder::Entities::IConversionObserver
{
public:
    /// Both have to outlive the object.
    ConversionRun(Converter::Transcoder::Entities::ITranscoderInteractor& transcoder, Reporter& reporter);

    /// Returns when the conversion has ended; it is cancelled once `isInterrupted` says so. Throws FileError when it
    /// cannot start.
    [[nodiscard]] Proc::TranscodeReport Run(Converter::Transcoder::Entities::ConversionRequest const& request,
                                            std::function<bool()> const& isInterrupted);

private:
    void OnConversionProgress(Converter::Transcoder::Entities::ConversionId id,
                              Proc::TranscodeProgress const& progress) override;
    void OnConversionFinished(Converter::Transcoder::Entities::ConversionId id,
                              Proc::TranscodeReport const& report) override;

    Converter::Transcoder::Entities::ITranscoderInteractor& m_transcoder;
    Reporter& m_reporter;
    QEventLoop* m_loop = nullptr;
    Proc::TranscodeReport m_report;
};

} // namespace Korvex::Cli
