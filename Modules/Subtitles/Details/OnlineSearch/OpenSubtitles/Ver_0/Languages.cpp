#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/Languages.h"

#include <algorithm>
#include <iterator>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

using Entities::Language::LanguageID;

namespace
{

struct LetterCode
{
    LanguageID language;
    char const* letters;
};

constexpr LetterCode LETTER_CODES[] = {
    {LanguageID::Afrikaans, "afr"},
    {LanguageID::Albanian, "alb"},
    {LanguageID::Arabic, "ara"},
    {LanguageID::Aragonese, "arg"},
    {LanguageID::Armenian, "arm"},
    {LanguageID::Asturian, "ast"},
    {LanguageID::Azerbaijani, "aze"},
    {LanguageID::Basque, "baq"},
    {LanguageID::Belarusian, "bel"},
    {LanguageID::Bengali, "ben"},
    {LanguageID::Bosnian, "bos"},
    {LanguageID::Breton, "bre"},
    {LanguageID::Bulgarian, "bul"},
    {LanguageID::Burmese, "bur"},
    {LanguageID::Catalan, "cat"},
    {LanguageID::ChineseSimplified, "chi"},
    {LanguageID::ChineseTraditional, "zht"},
    {LanguageID::ChineseBilingual, "zhe"},
    {LanguageID::Croatian, "hrv"},
    {LanguageID::Czech, "cze"},
    {LanguageID::Danish, "dan"},
    {LanguageID::Dutch, "dut"},
    {LanguageID::English, "eng"},
    {LanguageID::Esperanto, "epo"},
    {LanguageID::Estonian, "est"},
    {LanguageID::Extremaduran, "ext"},
    {LanguageID::Finnish, "fin"},
    {LanguageID::French, "fre"},
    {LanguageID::Galician, "glg"},
    {LanguageID::Georgian, "geo"},
    {LanguageID::German, "ger"},
    {LanguageID::Greek, "ell"},
    {LanguageID::Hebrew, "heb"},
    {LanguageID::Hindi, "hin"},
    {LanguageID::Hungarian, "hun"},
    {LanguageID::Icelandic, "ice"},
    {LanguageID::Indonesian, "ind"},
    {LanguageID::Italian, "ita"},
    {LanguageID::Japanese, "jpn"},
    {LanguageID::Kannada, "kan"},
    {LanguageID::Kazakh, "kaz"},
    {LanguageID::Khmer, "khm"},
    {LanguageID::Korean, "kor"},
    {LanguageID::Kurdish, "kur"},
    {LanguageID::Latvian, "lav"},
    {LanguageID::Lithuanian, "lit"},
    {LanguageID::Luxembourgish, "ltz"},
    {LanguageID::Macedonian, "mac"},
    {LanguageID::Malay, "may"},
    {LanguageID::Malayalam, "mal"},
    {LanguageID::Manipuri, "mni"},
    {LanguageID::Mongolian, "mon"},
    {LanguageID::Montenegrin, "mne"},
    {LanguageID::NorthernSami, "sme"},
    {LanguageID::Norwegian, "nor"},
    {LanguageID::Occitan, "oci"},
    {LanguageID::Persian, "per"},
    {LanguageID::Polish, "pol"},
    {LanguageID::Portuguese, "por"},
    {LanguageID::PortugueseBR, "pob"},
    {LanguageID::PortugueseMZ, "pom"},
    {LanguageID::Romanian, "rum"},
    {LanguageID::Russian, "rus"},
    {LanguageID::Serbian, "scc"},
    {LanguageID::Sinhalese, "sin"},
    {LanguageID::Slovak, "slo"},
    {LanguageID::Slovenian, "slv"},
    {LanguageID::Spanish, "spa"},
    {LanguageID::Swahili, "swa"},
    {LanguageID::Swedish, "swe"},
    {LanguageID::Syriac, "syr"},
    {LanguageID::Tagalog, "tgl"},
    {LanguageID::Tamil, "tam"},
    {LanguageID::Telugu, "tel"},
    {LanguageID::Thai, "tha"},
    {LanguageID::Turkish, "tur"},
    {LanguageID::Ukrainian, "ukr"},
    {LanguageID::Urdu, "urd"},
    {LanguageID::Uzbek, "uzb"},
    {LanguageID::Vietnamese, "vie"},
};

} // namespace

QString Languages::GetLetterCode(LanguageID language)
{
    auto const found = std::find_if(std::begin(LETTER_CODES), std::end(LETTER_CODES),
                                    [&](LetterCode const& code) { return code.language == language; });
    return found == std::end(LETTER_CODES) ? QString() : QString::fromLatin1(found->letters);
}

LanguageID Languages::GetLanguage(QString const& letterCode)
{
    auto const found =
        std::find_if(std::begin(LETTER_CODES), std::end(LETTER_CODES),
                     [&](LetterCode const& code)
                     { return letterCode.compare(QLatin1String(code.letters), Qt::CaseInsensitive) == 0; });
    return found == std::end(LETTER_CODES) ? LanguageID::None : found->language;
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
