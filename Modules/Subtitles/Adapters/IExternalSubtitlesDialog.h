#pragma once

#include "Core/ioPath.h"

#include <string>
#include <vector>

namespace Korvex::Converter::Subtitles::Adapters
{

/// Lets the user pick subtitle files. Optional: a host without widgets has none.
class IExternalSubtitlesDialog
{
public:
    /// Runs the dialog until the user closes it; empty when the user cancelled.
    /// @param formats identifiers of the formats to offer
    [[nodiscard]] virtual std::vector<ioPath> ChooseFiles(std::vector<std::string> const& formats) = 0;
    virtual ~IExternalSubtitlesDialog() = default;
};

} // namespace Korvex::Converter::Subtitles::Adapters
