#include "Proc/Text/HtmlNames.h"

#include "Proc/Text/Lines.h"

#include <algorithm>
#include <iterator>

namespace Korvex::Proc::Text
{

namespace
{

template <typename Value>
struct Named
{
    std::string_view name;
    Value value;
};

template <typename Value, std::size_t COUNT>
std::optional<Value> FindName(Named<Value> const (&table)[COUNT], std::string_view name)
{
    auto const found =
        std::lower_bound(std::begin(table), std::end(table), name,
                         [](Named<Value> const& entry, std::string_view key) { return entry.name < key; });
    return found != std::end(table) && found->name == name ? std::optional(found->value) : std::nullopt;
}

// Both tables are sorted by bytes.
constexpr Named<std::uint32_t> COLOURS[] = {
    {"aliceblue", 0xF0F8FF},
    {"antiquewhite", 0xFAEBD7},
    {"aqua", 0x00FFFF},
    {"aquamarine", 0x7FFFD4},
    {"azure", 0xF0FFFF},
    {"beige", 0xF5F5DC},
    {"bisque", 0xFFE4C4},
    {"black", 0x000000},
    {"blanchedalmond", 0xFFEBCD},
    {"blue", 0x0000FF},
    {"blueviolet", 0x8A2BE2},
    {"brown", 0xA52A2A},
    {"burlywood", 0xDEB887},
    {"cadetblue", 0x5F9EA0},
    {"chartreuse", 0x7FFF00},
    {"chocolate", 0xD2691E},
    {"coral", 0xFF7F50},
    {"cornflowerblue", 0x6495ED},
    {"cornsilk", 0xFFF8DC},
    {"crimson", 0xDC143C},
    {"cyan", 0x00FFFF},
    {"darkblue", 0x00008B},
    {"darkcyan", 0x008B8B},
    {"darkgoldenrod", 0xB8860B},
    {"darkgray", 0xA9A9A9},
    {"darkgreen", 0x006400},
    {"darkgrey", 0xA9A9A9},
    {"darkkhaki", 0xBDB76B},
    {"darkmagenta", 0x8B008B},
    {"darkolivegreen", 0x556B2F},
    {"darkorange", 0xFF8C00},
    {"darkorchid", 0x9932CC},
    {"darkred", 0x8B0000},
    {"darksalmon", 0xE9967A},
    {"darkseagreen", 0x8FBC8F},
    {"darkslateblue", 0x483D8B},
    {"darkslategray", 0x2F4F4F},
    {"darkturquoise", 0x00CED1},
    {"darkviolet", 0x9400D3},
    {"deeppink", 0xFF1493},
    {"deepskyblue", 0x00BFFF},
    {"dimgray", 0x696969},
    {"dimgrey", 0x696969},
    {"dodgerblue", 0x1E90FF},
    {"firebrick", 0xB22222},
    {"floralwhite", 0xFFFAF0},
    {"forestgreen", 0x228B22},
    {"fuchsia", 0xFF00FF},
    {"gainsboro", 0xDCDCDC},
    {"ghostwhite", 0xF8F8FF},
    {"gold", 0xFFD700},
    {"goldenrod", 0xDAA520},
    {"gray", 0x808080},
    {"green", 0x008000},
    {"greenyellow", 0xADFF2F},
    {"grey", 0x808080},
    {"honeydew", 0xF0FFF0},
    {"hotpink", 0xFF69B4},
    {"indianred", 0xCD5C5C},
    {"indigo", 0x4B0082},
    {"ivory", 0xFFFFF0},
    {"khaki", 0xF0E68C},
    {"lavender", 0xE6E6FA},
    {"lavenderblush", 0xFFF0F5},
    {"lawngreen", 0x7CFC00},
    {"lemonchiffon", 0xFFFACD},
    {"lightblue", 0xADD8E6},
    {"lightcoral", 0xF08080},
    {"lightcyan", 0xE0FFFF},
    {"lightgoldenrodyellow", 0xFAFAD2},
    {"lightgray", 0xD3D3D3},
    {"lightgreen", 0x90EE90},
    {"lightgrey", 0xD3D3D3},
    {"lightpink", 0xFFB6C1},
    {"lightsalmon", 0xFFA07A},
    {"lightseagreen", 0x20B2AA},
    {"lightskyblue", 0x87CEFA},
    {"lightslategray", 0x778899},
    {"lightsteelblue", 0xB0C4DE},
    {"lightyellow", 0xFFFFE0},
    {"lime", 0x00FF00},
    {"limegreen", 0x32CD32},
    {"linen", 0xFAF0E6},
    {"magenta", 0xFF00FF},
    {"maroon", 0x800000},
    {"mediumaquamarine", 0x66CDAA},
    {"mediumblue", 0x0000CD},
    {"mediumorchid", 0xBA55D3},
    {"mediumpurple", 0x9370DB},
    {"mediumseagreen", 0x3CB371},
    {"mediumslateblue", 0x7B68EE},
    {"mediumspringgreen", 0x00FA9A},
    {"mediumturquoise", 0x48D1CC},
    {"mediumvioletred", 0xC71585},
    {"midnightblue", 0x191970},
    {"mintcream", 0xF5FFFA},
    {"mistyrose", 0xFFE4E1},
    {"moccasin", 0xFFE4B5},
    {"navajowhite", 0xFFDEAD},
    {"navy", 0x000080},
    {"oldlace", 0xFDF5E6},
    {"olive", 0x808000},
    {"olivedrab", 0x6B8E23},
    {"orange", 0xFFA500},
    {"orangered", 0xFF4500},
    {"orchid", 0xDA70D6},
    {"palegoldenrod", 0xEEE8AA},
    {"palegreen", 0x98FB98},
    {"paleturquoise", 0xAFEEEE},
    {"palevioletred", 0xDB7093},
    {"papayawhip", 0xFFEFD5},
    {"peachpuff", 0xFFDAB9},
    {"peru", 0xCD853F},
    {"pink", 0xFFC0CB},
    {"plum", 0xDDA0DD},
    {"powderblue", 0xB0E0E6},
    {"purple", 0x800080},
    {"rebeccapurple", 0x663399},
    {"red", 0xFF0000},
    {"rosybrown", 0xBC8F8F},
    {"royalblue", 0x4169E1},
    {"saddlebrown", 0x8B4513},
    {"salmon", 0xFA8072},
    {"sandybrown", 0xF4A460},
    {"seagreen", 0x2E8B57},
    {"seashell", 0xFFF5EE},
    {"sienna", 0xA0522D},
    {"silver", 0xC0C0C0},
    {"skyblue", 0x87CEEB},
    {"slateblue", 0x6A5ACD},
    {"slategray", 0x708090},
    {"slategrey", 0x708090},
    {"snow", 0xFFFAFA},
    {"springgreen", 0x00FF7F},
    {"steelblue", 0x4682B4},
    {"tan", 0xD2B48C},
    {"teal", 0x008080},
    {"thistle", 0xD8BFD8},
    {"tomato", 0xFF6347},
    {"turquoise", 0x40E0D0},
    {"violet", 0xEE82EE},
    {"wheat", 0xF5DEB3},
    {"white", 0xFFFFFF},
    {"whitesmoke", 0xF5F5F5},
    {"yellow", 0xFFFF00},
    {"yellowgreen", 0x9ACD32},
};

/// U+00A0 to U+00FF in order.
constexpr std::string_view LATIN_1[] = {
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",    "copy",   "ordf",
    "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn", "sup2",   "sup3",   "acute",  "micro",
    "para",   "middot", "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12", "frac34", "iquest", "Agrave",
    "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil", "Egrave", "Eacute", "Ecirc",  "Euml",
    "Igrave", "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde", "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",
    "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",  "Uuml",   "Yacute", "THORN",  "szlig",  "agrave", "aacute",
    "acirc",  "atilde", "auml",   "aring",  "aelig",  "ccedil", "egrave", "eacute", "ecirc",  "euml",   "igrave",
    "iacute", "icirc",  "iuml",   "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide",
    "oslash", "ugrave", "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml"};

constexpr Named<char32_t> CHARACTERS[] = {
    {"Alpha", 0x0391},   {"Beta", 0x0392},    {"Chi", 0x03A7},    {"Dagger", 0x2021},  {"Delta", 0x0394},
    {"Epsilon", 0x0395}, {"Eta", 0x0397},     {"Gamma", 0x0393},  {"Iota", 0x0399},    {"Kappa", 0x039A},
    {"Lambda", 0x039B},  {"Mu", 0x039C},      {"Nu", 0x039D},     {"OElig", 0x0152},   {"Omega", 0x03A9},
    {"Omicron", 0x039F}, {"Phi", 0x03A6},     {"Pi", 0x03A0},     {"Prime", 0x2033},   {"Psi", 0x03A8},
    {"Rho", 0x03A1},     {"Scaron", 0x0160},  {"Sigma", 0x03A3},  {"Tau", 0x03A4},     {"Theta", 0x0398},
    {"Upsilon", 0x03A5}, {"Xi", 0x039E},      {"Yuml", 0x0178},   {"Zeta", 0x0396},    {"alpha", 0x03B1},
    {"and", 0x2227},     {"ang", 0x2220},     {"asymp", 0x2248},  {"bdquo", 0x201E},   {"beta", 0x03B2},
    {"bull", 0x2022},    {"cap", 0x2229},     {"check", 0x2713},  {"chi", 0x03C7},     {"circ", 0x02C6},
    {"clubs", 0x2663},   {"cong", 0x2245},    {"cross", 0x2717},  {"cup", 0x222A},     {"dagger", 0x2020},
    {"darr", 0x2193},    {"delta", 0x03B4},   {"diams", 0x2666},  {"empty", 0x2205},   {"emsp", 0x2003},
    {"ensp", 0x2002},    {"epsilon", 0x03B5}, {"equiv", 0x2261},  {"eta", 0x03B7},     {"euro", 0x20AC},
    {"exist", 0x2203},   {"female", 0x2640},  {"flat", 0x266D},   {"fnof", 0x0192},    {"forall", 0x2200},
    {"frasl", 0x2044},   {"gamma", 0x03B3},   {"ge", 0x2265},     {"harr", 0x2194},    {"hearts", 0x2665},
    {"hellip", 0x2026},  {"infin", 0x221E},   {"int", 0x222B},    {"iota", 0x03B9},    {"isin", 0x2208},
    {"kappa", 0x03BA},   {"lambda", 0x03BB},  {"larr", 0x2190},   {"ldquo", 0x201C},   {"le", 0x2264},
    {"lowast", 0x2217},  {"loz", 0x25CA},     {"lrm", 0x200E},    {"lsaquo", 0x2039},  {"lsquo", 0x2018},
    {"male", 0x2642},    {"mdash", 0x2014},   {"minus", 0x2212},  {"mu", 0x03BC},      {"nabla", 0x2207},
    {"natural", 0x266E}, {"ndash", 0x2013},   {"ne", 0x2260},     {"ni", 0x220B},      {"nu", 0x03BD},
    {"oelig", 0x0153},   {"oline", 0x203E},   {"omega", 0x03C9},  {"omicron", 0x03BF}, {"or", 0x2228},
    {"part", 0x2202},    {"permil", 0x2030},  {"phi", 0x03C6},    {"phone", 0x260E},   {"pi", 0x03C0},
    {"prime", 0x2032},   {"prod", 0x220F},    {"prop", 0x221D},   {"psi", 0x03C8},     {"radic", 0x221A},
    {"rarr", 0x2192},    {"rdquo", 0x201D},   {"rho", 0x03C1},    {"rlm", 0x200F},     {"rsaquo", 0x203A},
    {"rsquo", 0x2019},   {"sbquo", 0x201A},   {"scaron", 0x0161}, {"sharp", 0x266F},   {"sigma", 0x03C3},
    {"sigmaf", 0x03C2},  {"sim", 0x223C},     {"spades", 0x2660}, {"star", 0x2606},    {"starf", 0x2605},
    {"sum", 0x2211},     {"sung", 0x266A},    {"tau", 0x03C4},    {"theta", 0x03B8},   {"thinsp", 0x2009},
    {"tilde", 0x02DC},   {"trade", 0x2122},   {"uarr", 0x2191},   {"upsilon", 0x03C5}, {"xi", 0x03BE},
    {"zeta", 0x03B6},    {"zwj", 0x200D},     {"zwnj", 0x200C},
};

} // namespace

std::optional<std::uint32_t> FindColourName(std::string_view name)
{
    return FindName(COLOURS, name);
}

std::optional<char32_t> FindCharacterName(std::string_view name)
{
    static constexpr Named<char32_t> MARKUP[] = {{"amp", U'&'}, {"apos", U'\''}, {"gt", U'>'},
                                                 {"lt", U'<'},  {"nbsp", 0xA0},  {"quot", U'"'}};
    if (auto const markup = FindName(MARKUP, ToLower(name)))
    {
        return markup;
    }
    auto const latin = std::find(std::begin(LATIN_1), std::end(LATIN_1), name);
    if (latin != std::end(LATIN_1))
    {
        return static_cast<char32_t>(0xA0 + std::distance(std::begin(LATIN_1), latin));
    }
    return FindName(CHARACTERS, name);
}

} // namespace Korvex::Proc::Text
