#include "Subtitles/Entities/Language.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>

namespace Korvex::Converter::Subtitles::Entities::Language
{

namespace
{

/// In the order of the identifiers, the first of which is 1. No short name stands twice. Beside the standard codes the
/// short names hold those that subtitle services made up ("at", "ze", "pob").
std::vector<LanguageData> const& Table()
{
    static std::vector<LanguageData> const TABLE = {
        {LanguageID::Afrikaans, "Afrikaans", "af_ZA", {"af", "afr"}},
        {LanguageID::Albanian, "Albanian", "sq_AL", {"sq", "sqi", "alb"}},
        {LanguageID::Arabic, "Arabic", "ar_EG", {"ar", "ara"}},
        {LanguageID::Aragonese, "Aragonese", "an_ES", {"an", "arg"}},
        {LanguageID::Armenian, "Armenian", "hy_AM", {"hy", "hye", "arm"}},
        {LanguageID::Asturian, "Asturian", "ast_ES", {"ast", "at"}},
        {LanguageID::Azerbaijani, "Azerbaijani", "az_AZ", {"az", "aze"}},
        {LanguageID::Basque, "Basque", "eu_ES", {"eu", "eus", "baq"}},
        {LanguageID::Belarusian, "Belarusian", "be_BY", {"be", "bel"}},
        {LanguageID::Bengali, "Bengali", "bn_BD", {"bn", "ben"}},
        {LanguageID::Bosnian, "Bosnian", "bs_BA", {"bs", "bos"}},
        {LanguageID::Breton, "Breton", "br_FR", {"br", "bre"}},
        {LanguageID::Bulgarian, "Bulgarian", "bg_BG", {"bg", "bul"}},
        {LanguageID::Burmese, "Burmese", "my_MM", {"my", "mya", "bur"}},
        {LanguageID::Catalan, "Catalan", "ca_ES", {"ca", "cat"}},
        {LanguageID::ChineseSimplified,
         "Chinese (Simplified)",
         "zh_CN",
         {"zh", "zho", "chi", "cmn", "zh-cn", "zh-hans", "zhs", "chs"}},
        {LanguageID::ChineseTraditional,
         "Chinese (Traditional)",
         "zh_TW",
         {"zh-tw", "zh-hant", "zh-hk", "zh-mo", "zht", "zt", "cht"}},
        {LanguageID::ChineseBilingual, "Chinese (Bilingual)", "zh_CN", {"ze", "zhe"}},
        {LanguageID::Croatian, "Croatian", "hr_HR", {"hr", "hrv", "scr"}},
        {LanguageID::Czech, "Czech", "cs_CZ", {"cs", "ces", "cze"}},
        {LanguageID::Danish, "Danish", "da_DK", {"da", "dan"}},
        {LanguageID::Dutch, "Dutch", "nl_NL", {"nl", "nld", "dut"}},
        {LanguageID::English, "English", "en_US", {"en", "eng"}},
        {LanguageID::Esperanto, "Esperanto", "eo_001", {"eo", "epo"}},
        {LanguageID::Estonian, "Estonian", "et_EE", {"et", "est"}},
        {LanguageID::Extremaduran, "Extremaduran", "ext_ES", {"ext", "ex"}},
        {LanguageID::Finnish, "Finnish", "fi_FI", {"fi", "fin"}},
        {LanguageID::French, "French", "fr_FR", {"fr", "fra", "fre"}},
        {LanguageID::Galician, "Galician", "gl_ES", {"gl", "glg"}},
        {LanguageID::Georgian, "Georgian", "ka_GE", {"ka", "kat", "geo"}},
        {LanguageID::German, "German", "de_DE", {"de", "deu", "ger"}},
        {LanguageID::Greek, "Greek", "el_GR", {"el", "ell", "gre"}},
        {LanguageID::Hebrew, "Hebrew", "he_IL", {"he", "heb", "iw"}},
        {LanguageID::Hindi, "Hindi", "hi_IN", {"hi", "hin"}},
        {LanguageID::Hungarian, "Hungarian", "hu_HU", {"hu", "hun"}},
        {LanguageID::Icelandic, "Icelandic", "is_IS", {"is", "isl", "ice"}},
        {LanguageID::Indonesian, "Indonesian", "id_ID", {"id", "ind"}},
        {LanguageID::Italian, "Italian", "it_IT", {"it", "ita"}},
        {LanguageID::Japanese, "Japanese", "ja_JP", {"ja", "jpn"}},
        {LanguageID::Kannada, "Kannada", "kn_IN", {"kn", "kan"}},
        {LanguageID::Kazakh, "Kazakh", "kk_KZ", {"kk", "kaz"}},
        {LanguageID::Khmer, "Khmer", "km_KH", {"km", "khm"}},
        {LanguageID::Korean, "Korean", "ko_KR", {"ko", "kor"}},
        {LanguageID::Kurdish, "Kurdish", "ku_TR", {"ku", "kur"}},
        {LanguageID::Latvian, "Latvian", "lv_LV", {"lv", "lav"}},
        {LanguageID::Lithuanian, "Lithuanian", "lt_LT", {"lt", "lit"}},
        {LanguageID::Luxembourgish, "Luxembourgish", "lb_LU", {"lb", "ltz"}},
        {LanguageID::Macedonian, "Macedonian", "mk_MK", {"mk", "mkd", "mac"}},
        {LanguageID::Malay, "Malay", "ms_MY", {"ms", "msa", "may"}},
        {LanguageID::Malayalam, "Malayalam", "ml_IN", {"ml", "mal"}},
        {LanguageID::Manipuri, "Manipuri", "mni_IN", {"mni", "ma"}},
        {LanguageID::Mongolian, "Mongolian", "mn_MN", {"mn", "mon"}},
        {LanguageID::Montenegrin, "Montenegrin", "sr_ME", {"cnr", "me", "mne"}},
        {LanguageID::NorthernSami, "Northern Sami", "se_NO", {"se", "sme"}},
        {LanguageID::Norwegian, "Norwegian", "nb_NO", {"no", "nor", "nb", "nob", "nn", "nno"}},
        {LanguageID::Occitan, "Occitan", "oc_FR", {"oc", "oci"}},
        {LanguageID::Persian, "Persian", "fa_IR", {"fa", "fas", "per"}},
        {LanguageID::Polish, "Polish", "pl_PL", {"pl", "pol"}},
        {LanguageID::Portuguese, "Portuguese", "pt_PT", {"pt", "por", "pt-pt"}},
        {LanguageID::PortugueseBR, "Portuguese (Brazil)", "pt_BR", {"pt-br", "pob", "pb"}},
        {LanguageID::PortugueseMZ, "Portuguese (Mozambique)", "pt_MZ", {"pt-mz", "pm", "pom"}},
        {LanguageID::Romanian, "Romanian", "ro_RO", {"ro", "ron", "rum", "mo", "mol"}},
        {LanguageID::Russian, "Russian", "ru_RU", {"ru", "rus"}},
        {LanguageID::Serbian, "Serbian", "sr_RS", {"sr", "srp", "scc"}},
        {LanguageID::Sinhalese, "Sinhalese", "si_LK", {"si", "sin"}},
        {LanguageID::Slovak, "Slovak", "sk_SK", {"sk", "slk", "slo"}},
        {LanguageID::Slovenian, "Slovenian", "sl_SI", {"sl", "slv"}},
        {LanguageID::Spanish, "Spanish", "es_ES", {"es", "spa", "spl"}},
        {LanguageID::Swahili, "Swahili", "sw_KE", {"sw", "swa"}},
        {LanguageID::Swedish, "Swedish", "sv_SE", {"sv", "swe"}},
        {LanguageID::Syriac, "Syriac", "syr_SY", {"syr", "sy"}},
        {LanguageID::Tagalog, "Tagalog", "fil_PH", {"tl", "tgl", "fil"}},
        {LanguageID::Tamil, "Tamil", "ta_IN", {"ta", "tam"}},
        {LanguageID::Telugu, "Telugu", "te_IN", {"te", "tel"}},
        {LanguageID::Thai, "Thai", "th_TH", {"th", "tha"}},
        {LanguageID::Turkish, "Turkish", "tr_TR", {"tr", "tur"}},
        {LanguageID::Ukrainian, "Ukrainian", "uk_UA", {"uk", "ukr"}},
        {LanguageID::Urdu, "Urdu", "ur_PK", {"ur", "urd"}},
        {LanguageID::Uzbek, "Uzbek", "uz_UZ", {"uz", "uzb"}},
        {LanguageID::Vietnamese, "Vietnamese", "vi_VN", {"vi", "vie"}},
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
