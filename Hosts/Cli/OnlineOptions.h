#pragma once

#include "Cli/Options.h"

#include "Subtitles/Entities/Language.h"
#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"

#include "App/Configuration.h"

#include <vector>

/// What the commands that ask the online service have in common.
namespace Korvex::Cli
{

struct Console;

/// What a search goes by, as the command line says it.
struct OnlineQuery
{
    Converter::Subtitles::Entities::SubtitleSearchMediaInfoSettings media; ///< `path` stays empty without an input
    std::vector<Converter::Subtitles::Entities::Language::LanguageID> languages; ///< the most wanted first; none: all
};

/// "--title" and the others that describe the film.
[[nodiscard]] OptionGroup QueryOptions();
[[nodiscard]] Option TimeoutOption();

/// Throws UsageError for what makes no sense, FileError for an input that is no file.
[[nodiscard]] OnlineQuery ReadQuery(Arguments const& arguments);

/// The configuration of this run, `--timeout` included. Its problems are told on `err`. Throws std::runtime_error when
/// the service's address cannot be used.
[[nodiscard]] App::Configuration ReadOnlineConfiguration(Arguments const& arguments, Console& console);

} // namespace Korvex::Cli
