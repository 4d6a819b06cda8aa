#include "Proc/FFmpeg/ConversionRunner.h"

#include <stdexcept>

namespace Korvex::Testing
{

namespace
{

class Listener final : public Proc::ITranscodeObserver
{
public:
    Listener(Conversion& result, Proc::ITranscodeJob& job, std::function<void(Proc::ITranscodeJob&)> const& onProgress)
        : m_result(result),
          m_job(job),
          m_onProgress(onProgress)
    {
    }

    void OnProgress(Proc::TranscodeProgress const& progress) override
    {
        m_result.progress.push_back(progress);
        if (m_onProgress)
            m_onProgress(m_job);
    }
    void OnFinished(Proc::TranscodeReport const& report) override
    {
        m_result.report = report;
        ++m_result.finishedCount;
    }

private:
    Conversion& m_result;
    Proc::ITranscodeJob& m_job;
    std::function<void(Proc::ITranscodeJob&)> const& m_onProgress;
};

} // namespace

std::optional<Core::ErrorCode> Conversion::Code() const
{
    if (refusal)
        return refusal->code;
    return report.error ? std::optional(report.error->code) : std::nullopt;
}

std::string Conversion::Words() const
{
    if (refusal)
        return "refused: " + Core::ToSentence(*refusal);
    return report.error ? "failed: " + Core::ToSentence(*report.error) : "succeeded";
}

Conversion Convert(Proc::SettingsTranscode const& settings, std::function<void(Proc::ITranscodeJob&)> const& onProgress)
{
    Conversion result;
    auto job = Proc::MakeTranscodeJob(settings);
    if (!job)
    {
        result.refusal = job.GetError();
        return result;
    }
    Listener listener(result, **job, onProgress);
    (*job)->Start(listener);
    (*job)->Wait();
    return result;
}

Conversion MustConvert(Proc::SettingsTranscode const& settings)
{
    Conversion done = Convert(settings);
    if (!done.Succeeded())
        throw std::runtime_error(done.Words());
    return done;
}

Proc::SettingsTranscode SoftSettings(ioPath const& input, ioPath const& output, std::string const& formatId,
                                     std::vector<Proc::SubtitleTrack> tracks)
{
    auto soft = std::make_shared<Proc::SettingsSubtitleSoft>();
    soft->SetTracksInfo(std::move(tracks));
    Proc::SettingsTranscode settings;
    settings.input = input;
    settings.output = output;
    settings.formatId = formatId;
    settings.soft = soft;
    return settings;
}

Proc::SettingsTranscode BurnSettings(ioPath const& input, ioPath const& output, std::string const& formatId,
                                     ioPath const& subtitles)
{
    auto mixer = std::make_shared<Proc::SettingsSubtitleMixer>();
    mixer->SetFilename(subtitles);
    Proc::SettingsTranscode settings;
    settings.input = input;
    settings.output = output;
    settings.formatId = formatId;
    settings.mixer = mixer;
    settings.preset = "ultrafast";
    return settings;
}

Proc::SubtitleTrack StreamTrack(std::uint32_t index)
{
    Proc::SubtitleTrack track;
    track.kind = Proc::SubtitleTrack::Kind::Stream;
    track.streamIndex = index;
    return track;
}

Proc::SubtitleTrack FileTrack(ioPath const& path)
{
    Proc::SubtitleTrack track;
    track.kind = Proc::SubtitleTrack::Kind::File;
    track.path = path;
    return track;
}

} // namespace Korvex::Testing
