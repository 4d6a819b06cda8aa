#include "Proc/Text/EncodingModels.h"

#include "Proc/Text/Lines.h"

#include <algorithm>

namespace Korvex::Proc::Text
{

std::vector<LanguageModel> const& GetLanguageModels()
{
    // clang-format off
    static std::vector<LanguageModel> const MODELS = {
        {"fr fre fra", Script::Latin, U"éàèêçùôâûîœëïæüÿ", "CP1252",
         "le la les de des est pas que vous je un une et pour dans sur"},
        {"de ger deu", Script::Latin, U"üäößéà", "CP1252",
         "und der die das ist nicht ich sie ein eine zu mit von den werden"},
        {"es spa gl glg ca cat", Script::Latin, U"óáíé¿¡ñúüçàè·ïªº", "CP1252",
         "que de la el en los un una por con para no se es del"},
        {"pt por pob", Script::Latin, U"ãéáçíóêõúàâôü", "CP1252",
         "que de um uma os para com do da em se por no na"},
        {"it ita", Script::Latin, U"èàùòìéÈ", "CP1252",
         "di che il la un una per non sono del con le si da"},
        {"nl dut nld", Script::Latin, U"éëïèüöêó", "CP1252",
         "de het een van ik je niet dat is en voor met in op"},
        {"da dan no nor nb nob", Script::Latin, U"åøæéèüöôó", "CP1252",
         "det er og ikke at jeg en et til af den de som for kan"},
        {"sv swe fi fin", Script::Latin, U"äåöé", "CP1252",
         "och det att en inte som med jag den kan ja on ei se"},
        {"is ice isl fo fao", Script::Latin, U"ðáíöéóþúæýø", "CP1252",
         "og er ekki til sem ekki var fyrir", -2},
        {"et est", Script::Latin, U"äõüöšž", "CP1257",
         "on ja ei see mis ma ning ole et", -1.5},
        {"pl pol", Script::Latin, U"łęążśóćńź", "CP1250",
         "nie to na do jest co w z i si za dla od"},
        {"cs cze ces", Script::Latin, U"íáéěžčšřýůúňťďó", "CP1250",
         "je to na se ne co jsem tak a v pro z"},
        {"sk slo slk", Script::Latin, U"áíčšžýéúľťňäďôóĺŕ", "CP1250",
         "je to na sa nie som ako a v pre z"},
        {"hu hun", Script::Latin, U"éáöóőüíúű", "CP1250",
         "a az nem egy hogy van ez is meg"},
        {"hr hrv scr sr-latn bs bos sl slv", Script::Latin, U"šžčćđ", "CP1250",
         "je da ne se u na to sam si i za nije od"},
        {"ro rum ron", Script::Latin, U"ăîşţâșțșț", "CP1250",
         "nu de un la este ce cu pe nu care din pentru", -0.5},
        {"sq alb sqi", Script::Latin, U"ëç", "CP1250",
         "nuk ka dhe me nga i e per si nga", -1},
        {"tr tur az aze", Script::Latin, U"ışüğçöəİâîû", "CP1254",
         "bir ve bu ne da de mi ile olarak"},
        {"eo epo", Script::Latin, U"ĉĝŝŭĵĥ", "ISO-8859-3",
         "la kaj de estas mi vi ne en al por ne el", -2},
        {"mt mlt", Script::Latin, U"żħġċàù", "ISO-8859-3",
         "il ta li fil din huwa u ma l", -3},
        {"lt lit", Script::Latin, U"ėšųąžįčūę", "CP1257",
         "ir kad yra ne tai su nuo iki", -1.5},
        {"lv lav", Script::Latin, U"āīēšņļūķģčžō", "CP1257",
         "un ir ka uz no par ar vai nav", -1.5},
        {"ru rus", Script::Cyrillic, U"оеаинтсрвлкмдпуяыьгзбчйхжшюцщэфъё", "CP1251"},
        {"uk ukr", Script::Cyrillic, U"оанивіетрслкудмпязьбгчйхцїжюєшщфґ", "CP1251"},
        {"be bel", Script::Cyrillic, U"анірыеоклстяудвмзпцўьбгшчжйхюэёф", "CP1251", {}, -1},
        {"bg bul", Script::Cyrillic, U"аиоетнрсвлдкмпзъугябчщцжйхюшфь", "CP1251"},
        {"sr srp scc mk mac mkd", Script::Cyrillic, U"аоиентрјсудвкмлпзбгчжшцљњхћђџфѓќѕ", "CP1251"},
        {"el gre ell", Script::Greek, U"αοιετσνρκπςμλίηάόυδγέύθήχώωφβξζϊψϋΐΰ", "CP1253"},
        {"he heb iw", Script::Hebrew, U"יוהלאמתרבשנדעםחקפכןגזסטצךףץ", "CP1255"},
        {"ar ara fa per fas ur urd", Script::Arabic, U"اليمنتروبهةدكعسفحقشجصخطأذىضثغزظئءإؤآ،؟گچپژ", "CP1256"},
        {"th tha", Script::Thai, U"านรอกเงมยลวดทสตะปบคหแจพชขใไโซธญถผฉฟณฐศษภ่้็ัีื์ิึุู", "CP874"},
        {"ja jpn", Script::EastAsian, U"日一人大年会中本私事何言思出来見行今時分君前気上手", "CP932"},
        {"zh chi zho zhs zh-cn zht zhe zh-tw zh-hk", Script::EastAsian,
         U"的一是不了在人有我他这个们中来上大为和国地到以说时要就出会可也你对生能而子那得于着下自之年过发后作里用道行所"
         U"然家种事成方多经么去法学如都同现当没动面起看定天分还进好小部其些主样理心她本前开但因只从想实日意无力它与长把机"
         U"情明知全三又关点正外将两高间由问很最手应头文体相见被什等新己身西月话回信给吗呢吧啊您谁爱妈爸谢请让快走真死喜欢先别"
         U"這個們來為國說時會對發後裡學動現當沒還樣開從實無與長機關點將兩間問應頭體見話給嗎誰愛媽著過經麼種進謝請讓歡別",
         "CP936"},
        {"ko kor", Script::EastAsian,
         U"이다는에의가을를은고하지도로서한기사나인어아그자리시들대해라니수있게보만일스부정전제상거내주성음여안우소장조구마"
         U"말면오것려세무신원연공동선화생각모양미계비중문저간적런데너야요습까네잖없었했겠못할",
         "CP949"},
    };
    // clang-format on
    return MODELS;
}

std::vector<EncodingModel> const& GetByteEncodings()
{
    static constexpr std::string_view WESTERN = "fr de es pt it nl da sv is";
    static constexpr std::string_view CENTRAL = "pl cs sk hu hr ro sq de";
    static constexpr std::string_view CYRILLIC = "ru uk be bg sr";
    static std::vector<EncodingModel> const MODELS = {
        {"ISO-8859-15", "fr de es pt it nl da sv is et"},
        {"CP1251", CYRILLIC},
        {"CP1250", CENTRAL},
        {"KOI8-R", "ru bg", -0.7},
        {"KOI8-U", "ru uk be", -0.7},
        {"ISO-8859-9", "tr"},
        {"ISO-8859-7", "el"},
        {"ISO-8859-8", "he"},
        {"ISO-8859-13", "lt lv et pl"},
        {"ISO-8859-3", "eo mt tr", -1.5},
        {"CP1252", WESTERN},
        {"CP1253", "el"},
        {"CP1254", "tr"},
        {"CP1255", "he"},
        {"CP1256", "ar", -1},
        {"CP1257", "lt lv et pl"},
        {"ISO-8859-2", CENTRAL, -1.5},
        {"ISO-8859-5", CYRILLIC, -1.5},
        {"CP866", "ru", -1.5},
        {"ISO-8859-6", "ar", -1.5},
        {"CP874", "th", -2.5},
    };
    return MODELS;
}

std::vector<EncodingModel> const& GetPairEncodings()
{
    static std::vector<EncodingModel> const MODELS = {
        {"CP932", "ja"}, {"CP936", "zh"}, {"BIG-5", "zh"}, {"CP949", "ko"}, {"EUC-JP", "ja"},
    };
    return MODELS;
}

bool HasWord(std::string_view list, std::string_view word)
{
    for (std::size_t start = 0; start <= list.size();)
    {
        std::size_t const end = std::min(list.find(' ', start), list.size());
        if (list.substr(start, end - start) == word)
        {
            return true;
        }
        start = end + 1;
    }
    return false;
}

LanguageModel const* FindLanguage(std::string_view shortName)
{
    auto const find = [](std::string const& name) -> LanguageModel const*
    {
        auto const& models = GetLanguageModels();
        auto const found = std::find_if(models.begin(), models.end(),
                                        [&name](LanguageModel const& model) { return HasWord(model.codes, name); });
        return name.empty() || found == models.end() ? nullptr : &*found;
    };
    std::string name = ToLower(shortName.substr(0, shortName.find('.')));
    std::replace(name.begin(), name.end(), '_', '-');
    LanguageModel const* const exact = find(name);
    return exact != nullptr ? exact : find(name.substr(0, name.find('-')));
}

char32_t ToSmallLetter(char32_t codePoint)
{
    if ((codePoint >= 0xC0 && codePoint <= 0xDE && codePoint != 0xD7) || (codePoint >= 0x391 && codePoint <= 0x3AB) ||
        (codePoint >= 0x410 && codePoint <= 0x42F))
    {
        return codePoint + 0x20;
    }
    if (codePoint >= 0x400 && codePoint <= 0x40F)
    {
        return codePoint + 0x50;
    }
    bool const isOddPair = (codePoint >= 0x139 && codePoint <= 0x148) || (codePoint >= 0x179 && codePoint <= 0x17E);
    bool const isEvenPair = (codePoint >= 0x100 && codePoint <= 0x137 && codePoint != 0x130) ||
                            (codePoint >= 0x14A && codePoint <= 0x177) || (codePoint >= 0x218 && codePoint <= 0x21B) ||
                            codePoint == 0x490;
    if ((isOddPair && codePoint % 2 == 1) || (isEvenPair && codePoint % 2 == 0))
    {
        return codePoint + 1;
    }
    switch (codePoint)
    {
    case 0x178:
        return 0xFF;
    case 0x386:
        return 0x3AC;
    case 0x388:
        return 0x3AD;
    case 0x389:
        return 0x3AE;
    case 0x38A:
        return 0x3AF;
    case 0x38C:
        return 0x3CC;
    case 0x38E:
        return 0x3CD;
    case 0x38F:
        return 0x3CE;
    default:
        return codePoint;
    }
}

std::optional<Script> ScriptOf(char32_t codePoint)
{
    if ((codePoint >= 0xC0 && codePoint <= 0x24F && codePoint != 0xD7 && codePoint != 0xF7))
    {
        return Script::Latin;
    }
    if (codePoint >= 0x386 && codePoint <= 0x3FF && codePoint != 0x387)
    {
        return Script::Greek;
    }
    if (codePoint >= 0x400 && codePoint <= 0x4FF)
    {
        return Script::Cyrillic;
    }
    if (codePoint >= 0x591 && codePoint <= 0x5F4)
    {
        return Script::Hebrew;
    }
    if (codePoint >= 0x600 && codePoint <= 0x6FF)
    {
        return Script::Arabic;
    }
    if (codePoint >= 0xE01 && codePoint <= 0xE5B)
    {
        return Script::Thai;
    }
    return codePoint >= 0x3041 && codePoint <= 0xD7A3 ? std::optional(Script::EastAsian) : std::nullopt;
}

} // namespace Korvex::Proc::Text
