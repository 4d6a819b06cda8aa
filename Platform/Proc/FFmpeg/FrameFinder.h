#pragma once

#include "Proc/FFmpeg/Handles.h"
#include "Proc/FFmpeg/InputFile.h"

#include "Core/Result.h"

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace Korvex::Proc::FFmpeg
{

/// Finds the picture of one stream that is shown at a time. Reads on from where it is when the time lies ahead and the
/// file has no nearer place to begin. One thread at a time.
class FrameFinder
{
public:
    /// `file` and `interrupted` have to outlive the finder; setting the latter makes a search end with Cancelled.
    FrameFinder(InputFile const& file, AVStream const& stream, CodecContext decoder,
                std::atomic<bool> const& interrupted);

    /// A new reference to the frame; its `pts` counts from the start of the file, in the stream's time base.
    [[nodiscard]] Core::Result<Frame> Find(std::chrono::microseconds time);

    [[nodiscard]] std::chrono::microseconds TimeOf(std::int64_t pts) const;

private:
    using microseconds = std::chrono::microseconds;

    enum class Skipping
    {
        Allowed,
        Forbidden,
    };

    [[nodiscard]] Core::Status Search(microseconds time);
    [[nodiscard]] Core::Status SearchFromKeys(microseconds time);
    [[nodiscard]] Core::Result<bool> TryFrom(std::optional<microseconds> from, microseconds time);
    [[nodiscard]] bool CanReadOn(microseconds time) const;
    [[nodiscard]] bool Seek(std::optional<microseconds> from);
    [[nodiscard]] Core::Result<bool> ReadUpTo(microseconds time, Skipping skipping);
    void ChooseSkipping(std::int64_t pts, microseconds time, Skipping skipping);
    /// False when no later frame can be the one.
    [[nodiscard]] bool Take(Frame frame, microseconds time);
    /// One that was left out may have been shown later than the one found.
    [[nodiscard]] bool IsSure(microseconds time) const;

    InputFile const& m_file;
    AVStream const& m_stream;
    CodecContext m_decoder;
    std::atomic<bool> const& m_interrupted;
    std::int64_t const m_start; ///< of the picture that is shown at the file's start, in the stream's time base
    bool const m_isIntraOnly;   ///< every picture can be decoded alone

    Frame m_found;
    microseconds m_foundFrom{0}; ///< the times at which `m_found` is shown
    microseconds m_foundUntil{0};
    Frame m_next;                      ///< the first one that is shown after `m_found`, when it is known
    std::optional<std::int64_t> m_key; ///< where reading began, from the start of the file
    bool m_needsEarlierKey = false;    ///< it did not begin at the file's first byte
    bool m_hasSkipped = false;
    bool m_canReadOn = false; ///< the decoder stands behind `m_next` and has not been told that this is the end
    std::int64_t m_lastRead = 0;
};

} // namespace Korvex::Proc::FFmpeg
