#pragma once

#include "Subtitles/UseCases/SearchResult.h"

#include <QString>

class QJsonObject;

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

/// All that one element of a search reply tells about a subtitle but the identifier of its file.
///
/// @param file the element's file that is offered
[[nodiscard]] UseCases::SearchResultFacts ReadFacts(QJsonObject const& attributes, QJsonObject const& file);

/// The subtitle format that a file name ends in, in lower case. Empty without one: most names here are release names,
/// whose last word after a dot is anything.
[[nodiscard]] QString FindFormat(QString const& fileName);

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
