#pragma once

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

enum class Shell
{
    Posix,
    WindowsCommand,
};

/// The one of this system.
[[nodiscard]] Shell GetUsualShell();

/// One line that the shell takes apart into these words.
[[nodiscard]] std::string QuoteWords(std::vector<std::string> const& words, Shell shell);

} // namespace Korvex::Desktop
