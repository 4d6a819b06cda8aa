#pragma once

#include "Desktop/Films/ShellQuoting.h"

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace Korvex::Desktop
{

class Film;
struct OutputSettings;

/// A film's conversion as words for the command line.
struct CommandLineText
{
    std::vector<std::string> words; ///< "korvex", "convert", ...
    QStringList unsaid;             ///< what the command line cannot say, one sentence each
};

/// The conversion as it stands now. Looks at the disk for a free name of the output. GUI thread; for a film that was
/// read.
[[nodiscard]] CommandLineText MakeCommandLine(Film const& film, OutputSettings const& settings);

} // namespace Korvex::Desktop
