#pragma once

#include "Subtitles/Adapters/IOnlineSearchDialog.h"

#include "Subtitles/UseCases/SearchQuery.h"
#include "Subtitles/UseCases/SearchRequest.h"

#include <QString>

#include <map>
#include <string>

/// From what stands in the fields of the search dialog to a request, and back.
namespace Korvex::Converter::Subtitles::Adapters
{

using SearchTagMap = std::map<std::string, std::string>;

/// Why a form cannot be searched by.
enum class FormProblem
{
    None,
    Empty, ///< there is nothing to search by
    ImdbId,
    Season,
    Episode,
};

struct CheckedForm
{
    SearchTagMap tags; ///< empty with a problem
    FormProblem problem = FormProblem::None;
};

/// @param fileTags by what the service knows the file itself; empty when it knows none
[[nodiscard]] CheckedForm CheckForm(QString const& title, OnlineSearchFields const& fields,
                                    SearchTagMap const& fileTags);

/// Fingerprint and size of a request; empty without both.
[[nodiscard]] SearchTagMap TakeFileTags(UseCases::SearchRequest const& request);

/// The value of a tag; empty without it.
[[nodiscard]] QString GetTag(UseCases::SearchRequest const& request, std::string const& tag);

/// An IMDb id as people write it: "tt" and at least seven digits; empty for none.
[[nodiscard]] QString FormatImdbId(QString const& digits);

/// The film that hits are held against: the one of the file, but with what the user asks for instead.
[[nodiscard]] UseCases::SearchedFilm MakeWantedFilm(UseCases::SearchedFilm const& film,
                                                    UseCases::SearchRequest const& request);

} // namespace Korvex::Converter::Subtitles::Adapters
