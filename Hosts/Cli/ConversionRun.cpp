#include "Cli/ConversionRun.h"

#include "Cli/Reporter.h"
#include "Common/SessionError.h"

#include <QEventLoop>
#include <QTimer>

namespace Korvex::Cli
{

using Converter::Transcoder::Entities::ConversionId;
using Converter::Transcoder::Entities::ConversionRequest;
using Converter::Transcoder::Entities::ITranscoderInteractor;

namespace
{

/// How soon an interrupt is noticed. A signal handler may do next to nothing, so the loop looks.
constexpr int INTERRUPT_CHECK_MS = 50;

} // namespace

ConversionRun::ConversionRun(ITranscoderInteractor& transcoder, Reporter& reporter)
    : m_transcoder(transcoder),
      m_reporter(reporter)
{
}

Proc::TranscodeReport ConversionRun::Run(ConversionRequest const& request, std::function<bool()> const& isInterrupted)
{
    QEventLoop loop;
    m_loop = &loop;
    auto const id = m_transcoder.StartConversion(request, *this);
    if (!id)
        throw Hosts::FileError(id.GetError());

    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop,
                     [&]
                     {
                         if (isInterrupted())
                             m_transcoder.CancelConversion(*id);
                     });
    timer.start(INTERRUPT_CHECK_MS);
    loop.exec();
    m_loop = nullptr;
    return std::move(m_report);
}

void ConversionRun::OnConversionProgress(ConversionId, Proc::TranscodeProgress const& progress)
{
    m_reporter.Progress(progress);
}

void ConversionRun::OnConversionFinished(ConversionId, Proc::TranscodeReport const& report)
{
    m_report = report;
    m_loop->quit();
}

} // namespace Korvex::Cli
