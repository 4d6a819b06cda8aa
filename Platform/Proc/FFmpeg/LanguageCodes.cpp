#include "Proc/FFmpeg/LanguageCodes.h"

#include <algorithm>
#include <cctype>

namespace Korvex::Proc::FFmpeg
{

namespace
{

struct Language
{
    std::string_view shortName; ///< ISO 639-1, or what subtitle services use in its place
    std::string_view bibliographic;
    std::string_view terminology;
};

constexpr Language LANGUAGES[] = {
    {"aa", "aar", "aar"},  {"ab", "abk", "abk"},  {"ae", "ave", "ave"},  {"af", "afr", "afr"},  {"ak", "aka", "aka"},
    {"am", "amh", "amh"},  {"an", "arg", "arg"},  {"ar", "ara", "ara"},  {"as", "asm", "asm"},  {"av", "ava", "ava"},
    {"ay", "aym", "aym"},  {"az", "aze", "aze"},  {"ba", "bak", "bak"},  {"be", "bel", "bel"},  {"bg", "bul", "bul"},
    {"bh", "bih", "bih"},  {"bi", "bis", "bis"},  {"bm", "bam", "bam"},  {"bn", "ben", "ben"},  {"bo", "tib", "bod"},
    {"br", "bre", "bre"},  {"bs", "bos", "bos"},  {"ca", "cat", "cat"},  {"ce", "che", "che"},  {"ch", "cha", "cha"},
    {"co", "cos", "cos"},  {"cr", "cre", "cre"},  {"cs", "cze", "ces"},  {"cu", "chu", "chu"},  {"cv", "chv", "chv"},
    {"cy", "wel", "cym"},  {"da", "dan", "dan"},  {"de", "ger", "deu"},  {"dv", "div", "div"},  {"dz", "dzo", "dzo"},
    {"ee", "ewe", "ewe"},  {"el", "gre", "ell"},  {"en", "eng", "eng"},  {"eo", "epo", "epo"},  {"es", "spa", "spa"},
    {"et", "est", "est"},  {"eu", "baq", "eus"},  {"fa", "per", "fas"},  {"ff", "ful", "ful"},  {"fi", "fin", "fin"},
    {"fj", "fij", "fij"},  {"fo", "fao", "fao"},  {"fr", "fre", "fra"},  {"fy", "fry", "fry"},  {"ga", "gle", "gle"},
    {"gd", "gla", "gla"},  {"gl", "glg", "glg"},  {"gn", "grn", "grn"},  {"gu", "guj", "guj"},  {"gv", "glv", "glv"},
    {"ha", "hau", "hau"},  {"he", "heb", "heb"},  {"hi", "hin", "hin"},  {"ho", "hmo", "hmo"},  {"hr", "hrv", "hrv"},
    {"ht", "hat", "hat"},  {"hu", "hun", "hun"},  {"hy", "arm", "hye"},  {"hz", "her", "her"},  {"ia", "ina", "ina"},
    {"id", "ind", "ind"},  {"ie", "ile", "ile"},  {"ig", "ibo", "ibo"},  {"ii", "iii", "iii"},  {"ik", "ipk", "ipk"},
    {"io", "ido", "ido"},  {"is", "ice", "isl"},  {"it", "ita", "ita"},  {"iu", "iku", "iku"},  {"ja", "jpn", "jpn"},
    {"jv", "jav", "jav"},  {"ka", "geo", "kat"},  {"kg", "kon", "kon"},  {"ki", "kik", "kik"},  {"kj", "kua", "kua"},
    {"kk", "kaz", "kaz"},  {"kl", "kal", "kal"},  {"km", "khm", "khm"},  {"kn", "kan", "kan"},  {"ko", "kor", "kor"},
    {"kr", "kau", "kau"},  {"ks", "kas", "kas"},  {"ku", "kur", "kur"},  {"kv", "kom", "kom"},  {"kw", "cor", "cor"},
    {"ky", "kir", "kir"},  {"la", "lat", "lat"},  {"lb", "ltz", "ltz"},  {"lg", "lug", "lug"},  {"li", "lim", "lim"},
    {"ln", "lin", "lin"},  {"lo", "lao", "lao"},  {"lt", "lit", "lit"},  {"lu", "lub", "lub"},  {"lv", "lav", "lav"},
    {"mg", "mlg", "mlg"},  {"mh", "mah", "mah"},  {"mi", "mao", "mri"},  {"mk", "mac", "mkd"},  {"ml", "mal", "mal"},
    {"mn", "mon", "mon"},  {"mr", "mar", "mar"},  {"ms", "may", "msa"},  {"mt", "mlt", "mlt"},  {"my", "bur", "mya"},
    {"na", "nau", "nau"},  {"nb", "nob", "nob"},  {"nd", "nde", "nde"},  {"ne", "nep", "nep"},  {"ng", "ndo", "ndo"},
    {"nl", "dut", "nld"},  {"nn", "nno", "nno"},  {"no", "nor", "nor"},  {"nr", "nbl", "nbl"},  {"nv", "nav", "nav"},
    {"ny", "nya", "nya"},  {"oc", "oci", "oci"},  {"oj", "oji", "oji"},  {"om", "orm", "orm"},  {"or", "ori", "ori"},
    {"os", "oss", "oss"},  {"pa", "pan", "pan"},  {"pi", "pli", "pli"},  {"pl", "pol", "pol"},  {"ps", "pus", "pus"},
    {"pt", "por", "por"},  {"qu", "que", "que"},  {"rm", "roh", "roh"},  {"rn", "run", "run"},  {"ro", "rum", "ron"},
    {"ru", "rus", "rus"},  {"rw", "kin", "kin"},  {"sa", "san", "san"},  {"sc", "srd", "srd"},  {"sd", "snd", "snd"},
    {"se", "sme", "sme"},  {"sg", "sag", "sag"},  {"si", "sin", "sin"},  {"sk", "slo", "slk"},  {"sl", "slv", "slv"},
    {"sm", "smo", "smo"},  {"sn", "sna", "sna"},  {"so", "som", "som"},  {"sq", "alb", "sqi"},  {"sr", "srp", "srp"},
    {"ss", "ssw", "ssw"},  {"st", "sot", "sot"},  {"su", "sun", "sun"},  {"sv", "swe", "swe"},  {"sw", "swa", "swa"},
    {"ta", "tam", "tam"},  {"te", "tel", "tel"},  {"tg", "tgk", "tgk"},  {"th", "tha", "tha"},  {"ti", "tir", "tir"},
    {"tk", "tuk", "tuk"},  {"tl", "tgl", "tgl"},  {"tn", "tsn", "tsn"},  {"to", "ton", "ton"},  {"tr", "tur", "tur"},
    {"ts", "tso", "tso"},  {"tt", "tat", "tat"},  {"tw", "twi", "twi"},  {"ty", "tah", "tah"},  {"ug", "uig", "uig"},
    {"uk", "ukr", "ukr"},  {"ur", "urd", "urd"},  {"uz", "uzb", "uzb"},  {"ve", "ven", "ven"},  {"vi", "vie", "vie"},
    {"vo", "vol", "vol"},  {"wa", "wln", "wln"},  {"wo", "wol", "wol"},  {"xh", "xho", "xho"},  {"yi", "yid", "yid"},
    {"yo", "yor", "yor"},  {"za", "zha", "zha"},  {"zh", "chi", "zho"},  {"zu", "zul", "zul"},  {"iw", "heb", "heb"},
    {"in", "ind", "ind"},  {"ji", "yid", "yid"},  {"pob", "por", "por"}, {"pb", "por", "por"},  {"zht", "chi", "zho"},
    {"zhe", "chi", "zho"}, {"zhs", "chi", "zho"}, {"scc", "srp", "srp"}, {"scr", "hrv", "hrv"}, {"sve", "swe", "swe"},
};

/// MOV's table of languages was filled with names of both kinds.
std::string_view QuickTimeName(Language const& language)
{
    if (language.bibliographic == "swe")
        return "sve";
    bool const hasTerminology = language.terminology == "fra" || language.terminology == "ron" ||
                                language.terminology == "ces" || language.terminology == "slk";
    return hasTerminology ? language.terminology : language.bibliographic;
}

bool IsThreeLetters(std::string_view name)
{
    return name.size() == 3 && std::all_of(name.begin(), name.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

} // namespace

std::string ToIso6392(std::string_view shortName, LanguageForm form)
{
    // "pt-BR", "zh_Hans": the region or script has no place in a three-letter name.
    std::string name(shortName.substr(0, shortName.find_first_of("-_")));
    std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) { return std::tolower(c); });
    auto const* const found = std::find_if(std::begin(LANGUAGES), std::end(LANGUAGES),
                                           [&](Language const& language) {
                                               return name == language.shortName || name == language.bibliographic ||
                                                      name == language.terminology;
                                           });
    if (found != std::end(LANGUAGES))
        return std::string(form == LanguageForm::QuickTime       ? QuickTimeName(*found)
                           : form == LanguageForm::Bibliographic ? found->bibliographic
                                                                 : found->terminology);
    return IsThreeLetters(name) ? name : std::string();
}

} // namespace Korvex::Proc::FFmpeg
