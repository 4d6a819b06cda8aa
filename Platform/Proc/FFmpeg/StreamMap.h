#pragma once

#include "Proc/FFmpeg/ContainerRules.h"
#include "Proc/FFmpeg/InputFile.h"

#include "Core/Result.h"
#include "Proc/Transcode.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Korvex::Proc::FFmpeg
{

/// One stream of the output and where it comes from.
struct OutputStream
{
    enum class Source
    {
        Copied,     ///< packets of an input stream
        Encoded,    ///< an input stream, decoded and encoded anew
        Preloaded,  ///< packets that are in memory already
        HeaderOnly, ///< an attachment: all of it stands in the parameters
    };

    Source source = Source::Copied;
    std::optional<std::uint32_t> inputIndex; ///< of the input stream; Preloaded ones have none
    CodecParameters parameters;              ///< of what is written; an encoder fills in its own before the header
    AVRational timeBase{1, 1000};
    std::vector<Packet> packets; ///< of a Preloaded stream
    std::vector<std::pair<std::string, std::string>> tags;
    int disposition = 0;
    bool keepsDisplayMatrix = true;

    [[nodiscard]] AVMediaType Type() const { return parameters->codec_type; }
};

/// The whole plan of an output: which streams it has, in order.
struct StreamMap
{
    ContainerRule const* rule = nullptr;
    std::vector<OutputStream> streams;
    std::vector<Warning> warnings; ///< about what is left out
    /// The picture that subtitles are drawn into, empty in a file without one.
    std::optional<std::uint32_t> mainVideo;
};

/// Decides for every stream of the input what becomes of it, and checks every listed subtitle track against the
/// container. Reads subtitle files that are listed.
[[nodiscard]] Core::Result<StreamMap> MakeStreamMap(SettingsTranscode const& settings, InputFile const& input);

} // namespace Korvex::Proc::FFmpeg
