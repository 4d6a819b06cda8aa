#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/Language.h"

#include <QString>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

/// The three letters by which the legacy service knows a language: mostly ISO 639-2/B, and some of its own.
class KVSUBTITLES_API Languages
{
public:
    /// Empty for a language that the service does not know.
    [[nodiscard]] static QString GetLetterCode(Entities::Language::LanguageID language);
    /// In any letter case; `None` for an unknown code.
    [[nodiscard]] static Entities::Language::LanguageID GetLanguage(QString const& letterCode);
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
