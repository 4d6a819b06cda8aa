#pragma once

#include "Proc/FFmpeg/ContainerRules.h"
#include "Proc/FFmpeg/JobControl.h"
#include "Proc/FFmpeg/StreamMap.h"

#include "Core/Result.h"
#include "Core/TakenName.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace Korvex::Proc::FFmpeg
{

/// What an encoder says of its stream before the header is written.
struct EncodedParameters
{
    CodecParameters parameters;
    AVRational timeBase{1, 1000};
    AVRational frameRate{0, 1}; ///< pictures only
    std::vector<std::pair<AVPacketSideDataType, std::vector<std::uint8_t>>> sideData;
};

/// The file that a job writes. It stands beside its target under a temporary name until `Commit`; an object that goes
/// before that takes the file with it. One thread at a time.
class OutputFile
{
public:
    [[nodiscard]] static Core::Result<std::unique_ptr<OutputFile>>
    Create(ContainerRule const& rule, ioPath const& target, JobControl const& control);
    ~OutputFile();
    OutputFile(OutputFile const&) = delete;
    OutputFile& operator=(OutputFile const&) = delete;

    /// Streams are numbered in the order in which they are added. `input` lends a copied stream its rates and side data
    /// and is null for others.
    void AddStream(OutputStream const& stream, AVStream const* input);

    /// Container tags and chapters of the input.
    void CopyDescription(InputFile const& input);

    /// Once for each stream that is encoded, after `AddStream` and before the header.
    void SetEncoded(std::size_t index, EncodedParameters const& encoded);

    [[nodiscard]] Core::Status WriteHeader();
    /// A packet of stream `index`, in its own `time_base`. Those of one stream come in rising order of decoding.
    [[nodiscard]] Core::Status Write(std::size_t index, AVPacket& packet);
    [[nodiscard]] Core::Status WriteTrailer();
    /// Closes the file and gives it its final name, which it returns.
    [[nodiscard]] Core::Result<ioPath> Commit(Core::TakenName takenName);

private:
    OutputFile(ContainerRule const& rule, ioPath target);

    [[nodiscard]] Core::Error WriteFailed(char const* function, int averror) const;
    void MakeRising(AVPacket& packet);

    ContainerRule const& m_rule;
    ioPath const m_target;
    ioPath const m_temporary;
    OutputContext m_context;
    int m_subtitleCount = 0;
    int m_videoCount = 0;
    std::vector<std::optional<std::int64_t>> m_lastDts;
    bool m_isCommitted = false;
};

} // namespace Korvex::Proc::FFmpeg
