#pragma once

#include "Subtitles/Entities/Language.h"

#include <string>

namespace Korvex::Converter::Subtitles::UseCases
{
struct SearchResult;
} // namespace Korvex::Converter::Subtitles::UseCases

/// Names of downloaded subtitle files.
namespace Korvex::Hosts
{

/// How a language is called on a command line and in file names: "en", "pt-br"; empty for `None`.
[[nodiscard]] std::string GetShortName(Converter::Subtitles::Entities::Language::LanguageID language);

/// The name without extension under which the look-up of files beside a film finds the subtitles and understands what
/// they are: "Movie.en", "Movie.en.forced", "Movie.pt-br.cd2".
/// @param mediaStem the film's file name without its extension, UTF-8
[[nodiscard]] std::string MakeSidecarStem(std::string const& mediaStem,
                                          Converter::Subtitles::UseCases::SearchResult const& result);

} // namespace Korvex::Hosts
