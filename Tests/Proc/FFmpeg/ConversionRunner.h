#pragma once

#include "Proc/Settings.h"
#include "Proc/Transcode.h"

#include <optional>
#include <string>
#include <vector>

namespace Korvex::Testing
{

/// What an observer heard of one job.
struct Conversion
{
    std::optional<Core::Error> refusal; ///< from making the job; nothing else is set then
    Proc::TranscodeReport report;
    std::vector<Proc::TranscodeProgress> progress;
    int finishedCount = 0;

    [[nodiscard]] bool Succeeded() const { return !refusal && !report.error; }
    [[nodiscard]] std::optional<Core::ErrorCode> Code() const;
    /// For messages of failing tests.
    [[nodiscard]] std::string Words() const;
};

/// Makes a job, runs it to its end.
[[nodiscard]] Conversion Convert(Proc::SettingsTranscode const& settings);

/// The same where it has to succeed; throws the sentence of what failed.
Conversion MustConvert(Proc::SettingsTranscode const& settings);

[[nodiscard]] Proc::SettingsTranscode SoftSettings(ioPath const& input, ioPath const& output,
                                                   std::string const& formatId,
                                                   std::vector<Proc::SubtitleTrack> tracks);
[[nodiscard]] Proc::SettingsTranscode BurnSettings(ioPath const& input, ioPath const& output,
                                                   std::string const& formatId, ioPath const& subtitles);
[[nodiscard]] Proc::SubtitleTrack StreamTrack(std::uint32_t index);
[[nodiscard]] Proc::SubtitleTrack FileTrack(ioPath const& path);

} // namespace Korvex::Testing
