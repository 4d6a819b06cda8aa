#include "Proc/FFmpeg/ConversionRunner.h"

#include <stdexcept>

namespace Korvex::Testing
{

namespace
{

struct Listener final : Proc::ITranscodeObserver
{
    void OnProgress(Proc::TranscodeProgress const& progress) override { result.progress.push_back(progress); }
    void OnFinished(Proc::TranscodeReport const& report) override
    {
        result.report = report;
        ++result.finishedCount;
    }
    Conversion result;
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

Conversion Convert(Proc::SettingsTranscode const& settings)
{
    Listener listener;
    auto const job = Proc::MakeTranscodeJob(settings);
    if (!job)
    {
        listener.result.refusal = job.GetError();
        return listener.result;
    }
    (*job)->Start(listener);
    (*job)->Wait();
    return listener.result;
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
    Proc::SettingsTranscode settings = SoftSettings(input, output, formatId, {});
    settings.soft.reset();
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
