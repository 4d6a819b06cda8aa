#pragma once

#include "Subtitles/Entities/Export.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korvex::Converter::Subtitles::Entities::Language
{

/// The languages that subtitles are looked for in. Numbers are part of the interface.
enum class LanguageID : std::int32_t
{
    None = 0,
    Afrikaans = 1,
    Albanian = 2,
    Arabic = 3,
    Aragonese = 4,
    Armenian = 5,
    Asturian = 6,
    Azerbaijani = 7,
    Basque = 8,
    Belarusian = 9,
    Bengali = 10,
    Bosnian = 11,
    Breton = 12,
    Bulgarian = 13,
    Burmese = 14,
    Catalan = 15,
    ChineseSimplified = 16,
    ChineseTraditional = 17,
    ChineseBilingual = 18,
    Croatian = 19,
    Czech = 20,
    Danish = 21,
    Dutch = 22,
    English = 23,
    Esperanto = 24,
    Estonian = 25,
    Extremaduran = 26,
    Finnish = 27,
    French = 28,
    Galician = 29,
    Georgian = 30,
    German = 31,
    Greek = 32,
    Hebrew = 33,
    Hindi = 34,
    Hungarian = 35,
    Icelandic = 36,
    Indonesian = 37,
    Italian = 38,
    Japanese = 39,
    Kannada = 40,
    Kazakh = 41,
    Khmer = 42,
    Korean = 43,
    Kurdish = 44,
    Latvian = 45,
    Lithuanian = 46,
    Luxembourgish = 47,
    Macedonian = 48,
    Malay = 49,
    Malayalam = 50,
    Manipuri = 51,
    Mongolian = 52,
    Montenegrin = 53,
    NorthernSami = 54,
    Norwegian = 55,
    Occitan = 56,
    Persian = 57,
    Polish = 58,
    Portuguese = 59,
    PortugueseBR = 60,
    PortugueseMZ = 61,
    Romanian = 62,
    Russian = 63,
    Serbian = 64,
    Sinhalese = 65,
    Slovak = 66,
    Slovenian = 67,
    Spanish = 68,
    Swahili = 69,
    Swedish = 70,
    Syriac = 71,
    Tagalog = 72,
    Tamil = 73,
    Telugu = 74,
    Thai = 75,
    Turkish = 76,
    Ukrainian = 77,
    Urdu = 78,
    Uzbek = 79,
    Vietnamese = 80,
};

/// What is known of one language. Texts are UTF-8 and stay empty for `LanguageID::None`.
struct LanguageData
{
    LanguageID id = LanguageID::None;
    std::string displayName;             ///< English in every language of the application: "Portuguese (Brazil)"
    std::string locale;                  ///< "pt_BR"; empty where no locale exists
    std::vector<std::string> shortNames; ///< lower case, the preferred one (ISO 639-1 where there is one) first
};

/// The language that a short name stands for: ISO 639-1, 639-2 (B and T), and the regional forms that containers,
/// file names and services use ("pt-br", "pob", "zht"), in any letter case, with "-" or "_". An unknown region leaves
/// the language itself ("en-AU" is English). `None` for an unknown name.
[[nodiscard]] KVSUBTITLES_API LanguageID GetLanguageFromShortName(std::string const& shortName);

/// An unknown identifier gives the data of `None`. Lives until the process ends.
[[nodiscard]] KVSUBTITLES_API LanguageData const& GetLanguageData(LanguageID id);

/// The display name in the application's present language: "Portugiesisch (Brasilien)"; in English where it has no
/// translation. UTF-8; empty for `None`.
[[nodiscard]] KVSUBTITLES_API std::string GetDisplayText(LanguageID id);

/// Every language, in the order of the identifiers, without `None`.
[[nodiscard]] KVSUBTITLES_API std::vector<LanguageID> const& GetAllLanguages();

} // namespace Korvex::Converter::Subtitles::Entities::Language
