#pragma once

#include "Core/ioPath.h"

#include <string>
#include <vector>

namespace Korvex::Hosts
{

/// A container that films can be written in.
struct OutputFormat
{
    std::string id;                      ///< a Conf::IFormatFile identifier
    std::vector<std::string> extensions; ///< without dot, lower case; the first one names new files
};

/// All of them, in the order in which they are offered.
[[nodiscard]] std::vector<OutputFormat> const& GetOutputFormats();

/// Null when there is none of this identifier.
[[nodiscard]] OutputFormat const* FindOutputFormat(std::string const& id);

/// The format that the path's extension stands for (any letter case); null when it stands for none.
[[nodiscard]] OutputFormat const* FindOutputFormatOfFile(ioPath const& path);

} // namespace Korvex::Hosts
