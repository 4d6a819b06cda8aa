#pragma once

#include "Proc/FFmpeg/Handles.h"

#include "Core/Result.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

namespace Korvex::Proc::FFmpeg
{

/// How much of a file is read when it is opened.
enum class StreamAnalysis
{
    HeadersOnly, ///< what the container's header says; frame rates and start times may be missing
    Quick,       ///< as far as codecs, geometry, duration and start time need
    Full,        ///< also frame rates and pixel formats as a conversion needs them
};

struct InputOptions
{
    StreamAnalysis analysis = StreamAnalysis::Full;
    /// Set by another thread to make a blocking call give up. Not owned; has to outlive the file. Null: never.
    std::atomic<bool> const* cancelled = nullptr;
};

/// A file that is read. It is always opened as a plain local file and only by demuxers of media containers, elementary
/// streams and subtitle formats: playlists, devices, image sequences and network addresses are refused whatever the
/// file is called. One thread at a time.
class InputFile
{
public:
    /// Fails with FileNotFound, FileUnreadable, FileEmpty, FormatUnknown, FileDamaged or Cancelled.
    [[nodiscard]] static Core::Result<InputFile> Open(ioPath const& path, InputOptions const& options = {});

    /// Reads a subtitle text that is already in memory, as valid UTF-8, with the demuxers of text formats alone.
    /// `path` is only named in errors and lends its extension to the choice of the demuxer.
    [[nodiscard]] static Core::Result<InputFile> OpenText(std::string utf8, ioPath const& path);

    InputFile(InputFile&&) noexcept;
    InputFile& operator=(InputFile&&) noexcept;
    ~InputFile();

    [[nodiscard]] AVFormatContext& Context() const { return *m_context; }
    [[nodiscard]] ioPath const& Path() const { return m_path; }

    /// The container's time that counts as zero everywhere (a transport stream may begin at an hour). Zero for files
    /// without picture and sound.
    [[nodiscard]] std::chrono::microseconds StartTime() const;

    /// Null for an index that the file does not have.
    [[nodiscard]] AVStream* FindStream(std::uint32_t index) const;

    /// The first moving picture, which conversions and previews show; null in a file without one.
    [[nodiscard]] AVStream* FindMainVideo() const;

    /// Null in a file without subtitles.
    [[nodiscard]] AVStream* FindFirstSubtitle() const;

    /// Lets the demuxer skip the packets of every other stream.
    void SelectOnly(std::uint32_t index) const;

    /// Replaces what `packet` holds by the next packet of any selected stream. False at the end of the file; the end of
    /// a truncated file counts as its end. Times and durations that cannot be true are taken off. Fails with
    /// FileUnreadable or Cancelled.
    [[nodiscard]] Core::Result<bool> ReadPacket(AVPacket& packet) const;

    /// True once the flag that it was opened with is set.
    [[nodiscard]] bool IsCancelled() const;

    /// A usable time of a stream, counted from `StartTime`.
    [[nodiscard]] std::chrono::microseconds ToMediaTime(std::int64_t timestamp, AVRational timeBase) const;

private:
    struct MemoryText;

    InputFile(ioPath path, std::unique_ptr<MemoryText> text, InputContext context);

    ioPath m_path;
    std::unique_ptr<MemoryText> m_text; // goes after the context, which reads from it
    InputContext m_context;
};

} // namespace Korvex::Proc::FFmpeg
