#pragma once

#include <memory>

class QJsonObject;

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

struct RESTSearchResultData;

/// One row of a search reply. The service sends nearly every value as text, and not every row has every value; what is
/// missing or makes no sense leaves its field as it was made. Never null.
[[nodiscard]] std::shared_ptr<RESTSearchResultData> ReadSearchRow(QJsonObject const& row);

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
