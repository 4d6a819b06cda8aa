#include "Subtitles/Entities/Language.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstddef>
#include <unordered_map>

namespace Korvex::Converter::Subtitles::Entities::Language
{

namespace
{

constexpr char const* CONTEXT = "Language";

/// In the order of the identifiers, the first of which is 1. No short name stands twice. Beside the standard codes the
/// short names hold those that subtitle services made up ("at", "ze", "pob").
std::vector<LanguageData> const& Table()
{
    static std::vector<LanguageData> const TABLE = {
        {LanguageID::Afrikaans, QT_TRANSLATE_NOOP("Language", "Afrikaans"), "af_ZA", {"af", "afr"}},
        {LanguageID::Albanian, QT_TRANSLATE_NOOP("Language", "Albanian"), "sq_AL", {"sq", "sqi", "alb"}},
        {LanguageID::Arabic, QT_TRANSLATE_NOOP("Language", "Arabic"), "ar_EG", {"ar", "ara"}},
        {LanguageID::Aragonese, QT_TRANSLATE_NOOP("Language", "Aragonese"), "an_ES", {"an", "arg"}},
        {LanguageID::Armenian, QT_TRANSLATE_NOOP("Language", "Armenian"), "hy_AM", {"hy", "hye", "arm"}},
        {LanguageID::Asturian, QT_TRANSLATE_NOOP("Language", "Asturian"), "ast_ES", {"ast", "at"}},
        {LanguageID::Azerbaijani, QT_TRANSLATE_NOOP("Language", "Azerbaijani"), "az_AZ", {"az", "aze"}},
        {LanguageID::Basque, QT_TRANSLATE_NOOP("Language", "Basque"), "eu_ES", {"eu", "eus", "baq"}},
        {LanguageID::Belarusian, QT_TRANSLATE_NOOP("Language", "Belarusian"), "be_BY", {"be", "bel"}},
        {LanguageID::Bengali, QT_TRANSLATE_NOOP("Language", "Bengali"), "bn_BD", {"bn", "ben"}},
        {LanguageID::Bosnian, QT_TRANSLATE_NOOP("Language", "Bosnian"), "bs_BA", {"bs", "bos"}},
        {LanguageID::Breton, QT_TRANSLATE_NOOP("Language", "Breton"), "br_FR", {"br", "bre"}},
        {LanguageID::Bulgarian, QT_TRANSLATE_NOOP("Language", "Bulgarian"), "bg_BG", {"bg", "bul"}},
        {LanguageID::Burmese, QT_TRANSLATE_NOOP("Language", "Burmese"), "my_MM", {"my", "mya", "bur"}},
        {LanguageID::Catalan, QT_TRANSLATE_NOOP("Language", "Catalan"), "ca_ES", {"ca", "cat"}},
        {LanguageID::ChineseSimplified,
         QT_TRANSLATE_NOOP("Language", "Chinese (Simplified)"),
         "zh_CN",
         {"zh", "zho", "chi", "cmn", "zh-cn", "zh-hans", "zhs", "chs"}},
        {LanguageID::ChineseTraditional,
         QT_TRANSLATE_NOOP("Language", "Chinese (Traditional)"),
         "zh_TW",
         {"zh-tw", "zh-hant", "zh-hk", "zh-mo", "zht", "zt", "cht"}},
        {LanguageID::ChineseBilingual, QT_TRANSLATE_NOOP("Language", "Chinese (Bilingual)"), "zh_CN", {"ze", "zhe"}},
        {LanguageID::Croatian, QT_TRANSLATE_NOOP("Language", "Croatian"), "hr_HR", {"hr", "hrv", "scr"}},
        {LanguageID::Czech, QT_TRANSLATE_NOOP("Language", "Czech"), "cs_CZ", {"cs", "ces", "cze"}},
        {LanguageID::Danish, QT_TRANSLATE_NOOP("Language", "Danish"), "da_DK", {"da", "dan"}},
        {LanguageID::Dutch, QT_TRANSLATE_NOOP("Language", "Dutch"), "nl_NL", {"nl", "nld", "dut"}},
        {LanguageID::English, QT_TRANSLATE_NOOP("Language", "English"), "en_US", {"en", "eng"}},
        {LanguageID::Esperanto, QT_TRANSLATE_NOOP("Language", "Esperanto"), "eo_001", {"eo", "epo"}},
        {LanguageID::Estonian, QT_TRANSLATE_NOOP("Language", "Estonian"), "et_EE", {"et", "est"}},
        {LanguageID::Extremaduran, QT_TRANSLATE_NOOP("Language", "Extremaduran"), "ext_ES", {"ext", "ex"}},
        {LanguageID::Finnish, QT_TRANSLATE_NOOP("Language", "Finnish"), "fi_FI", {"fi", "fin"}},
        {LanguageID::French, QT_TRANSLATE_NOOP("Language", "French"), "fr_FR", {"fr", "fra", "fre"}},
        {LanguageID::Galician, QT_TRANSLATE_NOOP("Language", "Galician"), "gl_ES", {"gl", "glg"}},
        {LanguageID::Georgian, QT_TRANSLATE_NOOP("Language", "Georgian"), "ka_GE", {"ka", "kat", "geo"}},
        {LanguageID::German, QT_TRANSLATE_NOOP("Language", "German"), "de_DE", {"de", "deu", "ger"}},
        {LanguageID::Greek, QT_TRANSLATE_NOOP("Language", "Greek"), "el_GR", {"el", "ell", "gre"}},
        {LanguageID::Hebrew, QT_TRANSLATE_NOOP("Language", "Hebrew"), "he_IL", {"he", "heb", "iw"}},
        {LanguageID::Hindi, QT_TRANSLATE_NOOP("Language", "Hindi"), "hi_IN", {"hi", "hin"}},
        {LanguageID::Hungarian, QT_TRANSLATE_NOOP("Language", "Hungarian"), "hu_HU", {"hu", "hun"}},
        {LanguageID::Icelandic, QT_TRANSLATE_NOOP("Language", "Icelandic"), "is_IS", {"is", "isl", "ice"}},
        {LanguageID::Indonesian, QT_TRANSLATE_NOOP("Language", "Indonesian"), "id_ID", {"id", "ind"}},
        {LanguageID::Italian, QT_TRANSLATE_NOOP("Language", "Italian"), "it_IT", {"it", "ita"}},
        {LanguageID::Japanese, QT_TRANSLATE_NOOP("Language", "Japanese"), "ja_JP", {"ja", "jpn"}},
        {LanguageID::Kannada, QT_TRANSLATE_NOOP("Language", "Kannada"), "kn_IN", {"kn", "kan"}},
        {LanguageID::Kazakh, QT_TRANSLATE_NOOP("Language", "Kazakh"), "kk_KZ", {"kk", "kaz"}},
        {LanguageID::Khmer, QT_TRANSLATE_NOOP("Language", "Khmer"), "km_KH", {"km", "khm"}},
        {LanguageID::Korean, QT_TRANSLATE_NOOP("Language", "Korean"), "ko_KR", {"ko", "kor"}},
        {LanguageID::Kurdish, QT_TRANSLATE_NOOP("Language", "Kurdish"), "ku_TR", {"ku", "kur"}},
        {LanguageID::Latvian, QT_TRANSLATE_NOOP("Language", "Latvian"), "lv_LV", {"lv", "lav"}},
        {LanguageID::Lithuanian, QT_TRANSLATE_NOOP("Language", "Lithuanian"), "lt_LT", {"lt", "lit"}},
        {LanguageID::Luxembourgish, QT_TRANSLATE_NOOP("Language", "Luxembourgish"), "lb_LU", {"lb", "ltz"}},
        {LanguageID::Macedonian, QT_TRANSLATE_NOOP("Language", "Macedonian"), "mk_MK", {"mk", "mkd", "mac"}},
        {LanguageID::Malay, QT_TRANSLATE_NOOP("Language", "Malay"), "ms_MY", {"ms", "msa", "may"}},
        {LanguageID::Malayalam, QT_TRANSLATE_NOOP("Language", "Malayalam"), "ml_IN", {"ml", "mal"}},
        {LanguageID::Manipuri, QT_TRANSLATE_NOOP("Language", "Manipuri"), "mni_IN", {"mni", "ma"}},
        {LanguageID::Mongolian, QT_TRANSLATE_NOOP("Language", "Mongolian"), "mn_MN", {"mn", "mon"}},
        {LanguageID::Montenegrin, QT_TRANSLATE_NOOP("Language", "Montenegrin"), "sr_ME", {"cnr", "me", "mne"}},
        {LanguageID::NorthernSami, QT_TRANSLATE_NOOP("Language", "Northern Sami"), "se_NO", {"se", "sme"}},
        {LanguageID::Norwegian,
         QT_TRANSLATE_NOOP("Language", "Norwegian"),
         "nb_NO",
         {"no", "nor", "nb", "nob", "nn", "nno"}},
        {LanguageID::Occitan, QT_TRANSLATE_NOOP("Language", "Occitan"), "oc_FR", {"oc", "oci"}},
        {LanguageID::Persian, QT_TRANSLATE_NOOP("Language", "Persian"), "fa_IR", {"fa", "fas", "per"}},
        {LanguageID::Polish, QT_TRANSLATE_NOOP("Language", "Polish"), "pl_PL", {"pl", "pol"}},
        {LanguageID::Portuguese, QT_TRANSLATE_NOOP("Language", "Portuguese"), "pt_PT", {"pt", "por", "pt-pt"}},
        {LanguageID::PortugueseBR,
         QT_TRANSLATE_NOOP("Language", "Portuguese (Brazil)"),
         "pt_BR",
         {"pt-br", "pob", "pb"}},
        {LanguageID::PortugueseMZ,
         QT_TRANSLATE_NOOP("Language", "Portuguese (Mozambique)"),
         "pt_MZ",
         {"pt-mz", "pm", "pom"}},
        {LanguageID::Romanian, QT_TRANSLATE_NOOP("Language", "Romanian"), "ro_RO", {"ro", "ron", "rum", "mo", "mol"}},
        {LanguageID::Russian, QT_TRANSLATE_NOOP("Language", "Russian"), "ru_RU", {"ru", "rus"}},
        {LanguageID::Serbian, QT_TRANSLATE_NOOP("Language", "Serbian"), "sr_RS", {"sr", "srp", "scc"}},
        {LanguageID::Sinhalese, QT_TRANSLATE_NOOP("Language", "Sinhalese"), "si_LK", {"si", "sin"}},
        {LanguageID::Slovak, QT_TRANSLATE_NOOP("Language", "Slovak"), "sk_SK", {"sk", "slk", "slo"}},
        {LanguageID::Slovenian, QT_TRANSLATE_NOOP("Language", "Slovenian"), "sl_SI", {"sl", "slv"}},
        {LanguageID::Spanish, QT_TRANSLATE_NOOP("Language", "Spanish"), "es_ES", {"es", "spa", "spl"}},
        {LanguageID::Swahili, QT_TRANSLATE_NOOP("Language", "Swahili"), "sw_KE", {"sw", "swa"}},
        {LanguageID::Swedish, QT_TRANSLATE_NOOP("Language", "Swedish"), "sv_SE", {"sv", "swe"}},
        {LanguageID::Syriac, QT_TRANSLATE_NOOP("Language", "Syriac"), "syr_SY", {"syr", "sy"}},
        {LanguageID::Tagalog, QT_TRANSLATE_NOOP("Language", "Tagalog"), "fil_PH", {"tl", "tgl", "fil"}},
        {LanguageID::Tamil, QT_TRANSLATE_NOOP("Language", "Tamil"), "ta_IN", {"ta", "tam"}},
        {LanguageID::Telugu, QT_TRANSLATE_NOOP("Language", "Telugu"), "te_IN", {"te", "tel"}},
        {LanguageID::Thai, QT_TRANSLATE_NOOP("Language", "Thai"), "th_TH", {"th", "tha"}},
        {LanguageID::Turkish, QT_TRANSLATE_NOOP("Language", "Turkish"), "tr_TR", {"tr", "tur"}},
        {LanguageID::Ukrainian, QT_TRANSLATE_NOOP("Language", "Ukrainian"), "uk_UA", {"uk", "ukr"}},
        {LanguageID::Urdu, QT_TRANSLATE_NOOP("Language", "Urdu"), "ur_PK", {"ur", "urd"}},
        {LanguageID::Uzbek, QT_TRANSLATE_NOOP("Language", "Uzbek"), "uz_UZ", {"uz", "uzb"}},
        {LanguageID::Vietnamese, QT_TRANSLATE_NOOP("Language", "Vietnamese"), "vi_VN", {"vi", "vie"}},
    };
    return TABLE;
}

using ShortNames = std::unordered_map<std::string, LanguageID>;

ShortNames const& ShortNameIndex()
{
    static ShortNames const INDEX = []
    {
        ShortNames index;
        for (LanguageData const& language : Table())
        {
            for (std::string const& shortName : language.shortNames)
                index.emplace(shortName, language.id);
        }
        return index;
    }();
    return INDEX;
}

/// Lower case with "-" between the parts, whatever the process's locale is.
std::string Normalise(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c)
                   {
                       if (c >= 'A' && c <= 'Z')
                           return static_cast<char>(c - 'A' + 'a');
                       return c == '_' ? '-' : c;
                   });
    return text;
}

} // namespace

LanguageID GetLanguageFromShortName(std::string const& shortName)
{
    ShortNames const& index = ShortNameIndex();
    std::string name = Normalise(shortName);
    while (true)
    {
        if (auto const found = index.find(name); found != index.end())
            return found->second;
        auto const lastPart = name.rfind('-');
        if (lastPart == std::string::npos)
            return LanguageID::None;
        name.erase(lastPart);
    }
}

LanguageData const& GetLanguageData(LanguageID id)
{
    static LanguageData const NONE;
    auto const number = static_cast<std::int32_t>(id);
    if (number < 1 || static_cast<std::size_t>(number) > Table().size())
        return NONE;
    return Table()[static_cast<std::size_t>(number) - 1];
}

std::string GetDisplayText(LanguageID id)
{
    std::string const& english = GetLanguageData(id).displayName;
    return english.empty() ? english : QCoreApplication::translate(CONTEXT, english.c_str()).toStdString();
}

std::vector<LanguageID> const& GetAllLanguages()
{
    static std::vector<LanguageID> const ALL = []
    {
        std::vector<LanguageID> all;
        for (LanguageData const& language : Table())
            all.push_back(language.id);
        return all;
    }();
    return ALL;
}

} // namespace Korvex::Converter::Subtitles::Entities::Language
