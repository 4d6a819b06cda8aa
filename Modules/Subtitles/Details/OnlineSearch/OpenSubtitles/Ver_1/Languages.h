#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/Language.h"

#include <QString>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

/// The language codes of version 1 of the service.
class KVSUBTITLES_API Languages
{
public:
    /// In lower case, as the service wants them in a query; empty for a language that it has not.
    [[nodiscard]] static QString GetLetterCode(Entities::Language::LanguageID language);
    /// The language that a reply means by a code, in whatever letter case; `None` when nobody knows.
    [[nodiscard]] static Entities::Language::LanguageID GetLanguage(QString const& letterCode);
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
