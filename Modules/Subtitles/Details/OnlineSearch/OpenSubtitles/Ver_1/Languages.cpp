#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/Languages.h"

#include <map>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

using Entities::Language::LanguageID;

namespace
{

using LetterCodes = std::map<LanguageID, QString>;

LetterCodes const& GetLetterCodes()
{
    // The service files Uzbek under Urdu's code.
    static LetterCodes const CODES = {
        {LanguageID::Afrikaans, QStringLiteral("af")},
        {LanguageID::Albanian, QStringLiteral("sq")},
        {LanguageID::Arabic, QStringLiteral("ar")},
        {LanguageID::Aragonese, QStringLiteral("an")},
        {LanguageID::Armenian, QStringLiteral("hy")},
        {LanguageID::Asturian, QStringLiteral("at")},
        {LanguageID::Azerbaijani, QStringLiteral("az")},
        {LanguageID::Basque, QStringLiteral("eu")},
        {LanguageID::Belarusian, QStringLiteral("be")},
        {LanguageID::Bengali, QStringLiteral("bn")},
        {LanguageID::Bosnian, QStringLiteral("bs")},
        {LanguageID::Breton, QStringLiteral("br")},
        {LanguageID::Bulgarian, QStringLiteral("bg")},
        {LanguageID::Burmese, QStringLiteral("my")},
        {LanguageID::Catalan, QStringLiteral("ca")},
        {LanguageID::ChineseSimplified, QStringLiteral("zh-cn")},
        {LanguageID::ChineseTraditional, QStringLiteral("zh-tw")},
        {LanguageID::ChineseBilingual, QStringLiteral("ze")},
        {LanguageID::Croatian, QStringLiteral("hr")},
        {LanguageID::Czech, QStringLiteral("cs")},
        {LanguageID::Danish, QStringLiteral("da")},
        {LanguageID::Dutch, QStringLiteral("nl")},
        {LanguageID::English, QStringLiteral("en")},
        {LanguageID::Esperanto, QStringLiteral("eo")},
        {LanguageID::Estonian, QStringLiteral("et")},
        {LanguageID::Extremaduran, QStringLiteral("ex")},
        {LanguageID::Finnish, QStringLiteral("fi")},
        {LanguageID::French, QStringLiteral("fr")},
        {LanguageID::Galician, QStringLiteral("gl")},
        {LanguageID::Georgian, QStringLiteral("ka")},
        {LanguageID::German, QStringLiteral("de")},
        {LanguageID::Greek, QStringLiteral("el")},
        {LanguageID::Hebrew, QStringLiteral("he")},
        {LanguageID::Hindi, QStringLiteral("hi")},
        {LanguageID::Hungarian, QStringLiteral("hu")},
        {LanguageID::Icelandic, QStringLiteral("is")},
        {LanguageID::Indonesian, QStringLiteral("id")},
        {LanguageID::Italian, QStringLiteral("it")},
        {LanguageID::Japanese, QStringLiteral("ja")},
        {LanguageID::Kannada, QStringLiteral("kn")},
        {LanguageID::Kazakh, QStringLiteral("kk")},
        {LanguageID::Khmer, QStringLiteral("km")},
        {LanguageID::Korean, QStringLiteral("ko")},
        {LanguageID::Kurdish, QStringLiteral("ku")},
        {LanguageID::Latvian, QStringLiteral("lv")},
        {LanguageID::Lithuanian, QStringLiteral("lt")},
        {LanguageID::Luxembourgish, QStringLiteral("lb")},
        {LanguageID::Macedonian, QStringLiteral("mk")},
        {LanguageID::Malay, QStringLiteral("ms")},
        {LanguageID::Malayalam, QStringLiteral("ml")},
        {LanguageID::Manipuri, QStringLiteral("ma")},
        {LanguageID::Mongolian, QStringLiteral("mn")},
        {LanguageID::Montenegrin, QStringLiteral("me")},
        {LanguageID::NorthernSami, QStringLiteral("se")},
        {LanguageID::Norwegian, QStringLiteral("no")},
        {LanguageID::Occitan, QStringLiteral("oc")},
        {LanguageID::Persian, QStringLiteral("fa")},
        {LanguageID::Polish, QStringLiteral("pl")},
        {LanguageID::Portuguese, QStringLiteral("pt-pt")},
        {LanguageID::PortugueseBR, QStringLiteral("pt-br")},
        {LanguageID::PortugueseMZ, QStringLiteral("pm")},
        {LanguageID::Romanian, QStringLiteral("ro")},
        {LanguageID::Russian, QStringLiteral("ru")},
        {LanguageID::Serbian, QStringLiteral("sr")},
        {LanguageID::Sinhalese, QStringLiteral("si")},
        {LanguageID::Slovak, QStringLiteral("sk")},
        {LanguageID::Slovenian, QStringLiteral("sl")},
        {LanguageID::Spanish, QStringLiteral("es")},
        {LanguageID::Swahili, QStringLiteral("sw")},
        {LanguageID::Swedish, QStringLiteral("sv")},
        {LanguageID::Syriac, QStringLiteral("sy")},
        {LanguageID::Tagalog, QStringLiteral("tl")},
        {LanguageID::Tamil, QStringLiteral("ta")},
        {LanguageID::Telugu, QStringLiteral("te")},
        {LanguageID::Thai, QStringLiteral("th")},
        {LanguageID::Turkish, QStringLiteral("tr")},
        {LanguageID::Ukrainian, QStringLiteral("uk")},
        {LanguageID::Urdu, QStringLiteral("ur")},
        {LanguageID::Uzbek, QStringLiteral("ur")},
        {LanguageID::Vietnamese, QStringLiteral("vi")},
    };
    return CODES;
}

/// Where two languages share a code it means the first one.
std::map<QString, LanguageID> const& GetLanguagesByCode()
{
    static std::map<QString, LanguageID> const LANGUAGES = []
    {
        std::map<QString, LanguageID> languages;
        for (auto const& [language, code] : GetLetterCodes())
            languages.emplace(code, language);
        return languages;
    }();
    return LANGUAGES;
}

} // namespace

QString Languages::GetLetterCode(LanguageID language)
{
    auto const found = GetLetterCodes().find(language);
    return found == GetLetterCodes().end() ? QString() : found->second;
}

LanguageID Languages::GetLanguage(QString const& letterCode)
{
    auto const found = GetLanguagesByCode().find(letterCode.toLower());
    return found != GetLanguagesByCode().end() ? found->second
                                               : Entities::Language::GetLanguageFromShortName(letterCode.toStdString());
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
