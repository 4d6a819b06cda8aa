#pragma once

#include "Proc/FFmpeg/AudioStage.h"
#include "Proc/FFmpeg/StreamMap.h"
#include "Proc/FFmpeg/VideoStages.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace Korvex::Proc::FFmpeg
{

/// Carries out one plan: reads the input on one thread, decodes, paints and encodes on others, and merges and writes on
/// the thread that calls `Run`.
class Conversion
{
public:
    /// Called for every packet that was written, with its time.
    using WrittenSink = std::function<void(std::chrono::microseconds)>;

    Conversion(SettingsTranscode const& settings, InputFile const& input, StreamMap& plan, JobControl& control);
    ~Conversion();

    /// Until the output stands under its final name, which it returns, or has failed to; a cancel comes back as an
    /// error too.
    [[nodiscard]] Core::Result<ioPath> Run(WrittenSink const& onWritten);

    /// True when jumps in the input's clock were closed, so that its stated duration says little. After `Run`.
    [[nodiscard]] bool HasClosedJumps() const { return m_demuxing && m_demuxing->HasClosedJumps(); }

private:
    [[nodiscard]] Core::Status Execute(WrittenSink const& onWritten);
    [[nodiscard]] Core::Status Prepare();
    [[nodiscard]] Core::Status PrepareStream(std::size_t index, std::vector<Route>& routes);
    [[nodiscard]] Core::Status PrepareVideo(std::size_t index, AVStream& stream);
    [[nodiscard]] Core::Result<boost::intrusive_ptr<ISubtitleDrawer>> MakeDrawer(PictureShape const& shape) const;
    [[nodiscard]] Core::Status PrepareAudio(std::size_t index, AVStream const& stream);
    void StartThreads();
    void Start(std::string what, std::function<void()> body);
    void AddStreams();
    [[nodiscard]] Core::Status WriteHeader();
    [[nodiscard]] Core::Status WriteAll(WrittenSink const& onWritten);
    void JoinThreads();

    SettingsTranscode const& m_settings;
    InputFile const& m_input;
    StreamMap& m_plan;
    JobControl& m_control;
    PacketMerger m_merger;
    std::unique_ptr<OutputFile> m_output;
    std::unique_ptr<Demuxing> m_demuxing;
    std::unique_ptr<VideoStages> m_video;
    std::map<std::size_t, std::unique_ptr<AudioStage>> m_audio; ///< by output stream
    std::vector<std::thread> m_threads;
};

} // namespace Korvex::Proc::FFmpeg
