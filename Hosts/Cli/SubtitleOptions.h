#pragma once

#include "Cli/Options.h"
#include "Common/SubtitleChoice.h"

#include <vector>

/// The options about subtitles that `convert` and `preview` share.
namespace Korvex::Cli
{

/// Which commands the options are for: the two differ in what happens when no mode is named.
enum class SubtitlePurpose
{
    Convert, ///< soft
    Preview, ///< the only added file is drawn; nothing when there is none
};

[[nodiscard]] std::vector<OptionGroup> SubtitleOptionGroups(SubtitlePurpose purpose);

/// Reads them. Throws UsageError for a value that makes no sense and for an option without effect in the chosen mode.
[[nodiscard]] Hosts::SubtitleChoice ReadSubtitleOptions(Arguments const& arguments, SubtitlePurpose purpose);

} // namespace Korvex::Cli
