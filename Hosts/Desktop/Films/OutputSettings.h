#pragma once

#include "Core/ioPath.h"

#include <optional>
#include <string>

namespace Korvex::Converter::Transcoder::Entities
{
struct Preset;
} // namespace Korvex::Converter::Transcoder::Entities

namespace Korvex::Desktop
{

/// How well the picture is kept.
enum class Quality
{
    AsSource, ///< copied where nothing is drawn and the container can carry it, else as High
    High,     ///< encoded at constant rate factor 18
    Medium,   ///< 22
    Small,    ///< 27
};

/// What the user chose for all outputs of the list.
struct OutputSettings
{
    std::string formatId = "matroska"; ///< a Conf::IFormatFile container
    Quality quality = Quality::AsSource;
    std::optional<ioPath> folder; ///< not set: each output goes beside its film
};

[[nodiscard]] Converter::Transcoder::Entities::Preset MakePreset(OutputSettings const& settings);

/// Where the film's output goes: its name with the container's extension in the output folder, with " (2)", " (3)" ...
/// in front of the extension where a file of that name exists or it would be the film itself. Looks at the disk.
[[nodiscard]] ioPath MakeOutputPath(ioPath const& film, OutputSettings const& settings);

} // namespace Korvex::Desktop
