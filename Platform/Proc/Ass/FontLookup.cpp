#include "Proc/Fonts.h"

#include "Proc/Ass/RenderContext.h"
#include "Proc/SubtitleContent.h"
#include "Proc/Text/PlainText.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <memory>

namespace Korvex::Proc
{
namespace
{

struct PatternDeleter
{
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
struct FontSetDeleter
{
    void operator()(FcFontSet* set) const { FcFontSetDestroy(set); }
};
struct ConfigDeleter
{
    void operator()(FcConfig* config) const { FcConfigDestroy(config); }
};

using PatternPtr = std::unique_ptr<FcPattern, PatternDeleter>;
using FontSetPtr = std::unique_ptr<FcFontSet, FontSetDeleter>;
using ConfigPtr = std::unique_ptr<FcConfig, ConfigDeleter>; // holds a reference

FcChar8 const* ToFontconfig(char const* text)
{
    return reinterpret_cast<FcChar8 const*>(text);
}

/// True when the text renderer finds the font under this name.
bool IsFontCalled(FcPattern const& font, FcChar8 const* name)
{
    for (char const* kind : {FC_FAMILY, FC_FULLNAME, FC_POSTSCRIPT_NAME})
    {
        FcChar8* value = nullptr;
        for (int i = 0; FcPatternGetString(&font, kind, i, &value) == FcResultMatch; ++i)
        {
            if (FcStrCmpIgnoreCase(value, name) == 0)
                return true;
        }
    }
    return false;
}

/// The first name of its family; empty when it has none.
std::string GetFamily(FcPattern const& font)
{
    FcChar8* family = nullptr;
    return FcPatternGetString(&font, FC_FAMILY, 0, &family) == FcResultMatch ? reinterpret_cast<char const*>(family)
                                                                             : std::string();
}

struct Range
{
    char32_t first;
    char32_t last;
};

/// Characters that leave no ink whatever the font: controls, spaces, fillers, joiners, marks of direction, selectors;
/// and U+FFFD, which stands for what did not decode.
bool IsNeverDrawn(char32_t character)
{
    static constexpr std::array RANGES{
        Range{0x0000, 0x0020},   Range{0x007F, 0x00A0},   Range{0x00AD, 0x00AD}, Range{0x034F, 0x034F},
        Range{0x061C, 0x061C},   Range{0x115F, 0x1160},   Range{0x1680, 0x1680}, Range{0x17B4, 0x17B5},
        Range{0x180B, 0x180F},   Range{0x2000, 0x200F},   Range{0x2028, 0x202F}, Range{0x205F, 0x206F},
        Range{0x3000, 0x3000},   Range{0x3164, 0x3164},   Range{0xFE00, 0xFE0F}, Range{0xFEFF, 0xFEFF},
        Range{0xFFA0, 0xFFA0},   Range{0xFFF0, 0xFFFB},   Range{0xFFFD, 0xFFFF}, Range{0x1BCA0, 0x1BCA3},
        Range{0x1D173, 0x1D17A}, Range{0xE0000, 0xE0FFF},
    };
    return std::any_of(RANGES.begin(), RANGES.end(),
                       [character](Range range) { return character >= range.first && character <= range.last; });
}

bool HasCharacter(FcPattern const& font, char32_t character)
{
    FcCharSet* characters = nullptr;
    return FcPatternGetCharSet(&font, FC_CHARSET, 0, &characters) == FcResultMatch &&
           FcCharSetHasChar(characters, character) == FcTrue;
}

/// Between the families that the system's configuration puts in the place of one and those that it falls back on where
/// nothing else is known.
constexpr char const* END_OF_SUBSTITUTES = "no such family: end of substitutes";

/// The pattern that families stand for after the system's configuration has had its say.
PatternPtr MakeFamilyPattern(FcConfig* config, std::initializer_list<char const*> families)
{
    PatternPtr pattern(FcPatternCreate());
    if (!pattern || !FcPatternAddBool(pattern.get(), FC_OUTLINE, FcTrue))
        return nullptr;
    for (char const* family : families)
    {
        if (!FcPatternAddString(pattern.get(), FC_FAMILY, ToFontconfig(family)))
            return nullptr;
    }
    return FcConfigSubstitute(config, pattern.get(), FcMatchPattern) ? std::move(pattern) : nullptr;
}

/// Finds fonts in the order in which the text renderer does: what is installed of the family, of the families that the
/// configuration puts in its place, of the renderer's default family; then any font that has the character.
class FontSearch
{
public:
    explicit FontSearch(std::string const& family) : m_config(FcConfigReference(nullptr))
    {
        AddFamilies(family);
        AddFamilies(Ass::FALLBACK_FAMILY);
    }

    /// What text is drawn with as long as it has the characters; null when no font is installed.
    FcPattern const* GetFirst() { return !m_fonts.empty() ? m_fonts.front() : FindAny(U'A'); }

    /// Null when no font has the character.
    FcPattern const* Find(char32_t character)
    {
        auto const found = std::find_if(m_fonts.begin(), m_fonts.end(),
                                        [&](FcPattern const* font) { return HasCharacter(*font, character); });
        return found != m_fonts.end() ? *found : FindAny(character);
    }

private:
    void AddFamilies(std::string const& family)
    {
        PatternPtr const pattern = MakeFamilyPattern(m_config.get(), {family.c_str(), END_OF_SUBSTITUTES});
        FcChar8* name = nullptr;
        for (int i = 0; pattern && FcPatternGetString(pattern.get(), FC_FAMILY, i, &name) == FcResultMatch &&
                        FcStrCmp(name, ToFontconfig(END_OF_SUBSTITUTES)) != 0;
             ++i)
            AddInstalled(name);
    }

    void AddInstalled(FcChar8 const* name)
    {
        FcFontSet const* const installed = FcConfigGetFonts(m_config.get(), FcSetSystem);
        for (int i = 0; installed != nullptr && i < installed->nfont; ++i)
        {
            FcBool isOutline = FcFalse;
            if (FcPatternGetBool(installed->fonts[i], FC_OUTLINE, 0, &isOutline) == FcResultMatch &&
                isOutline == FcTrue && IsFontCalled(*installed->fonts[i], name))
                m_fonts.push_back(installed->fonts[i]);
        }
    }

    FcPattern const* FindAny(char32_t character)
    {
        if (!m_all)
            SortAll();
        for (int i = 0; m_all && i < m_all->nfont; ++i)
        {
            if (HasCharacter(*m_all->fonts[i], character))
                return m_all->fonts[i];
        }
        return nullptr;
    }

    void SortAll()
    {
        PatternPtr const pattern = MakeFamilyPattern(m_config.get(), {Ass::FALLBACK_FAMILY});
        if (!pattern)
            return;
        FcDefaultSubstitute(pattern.get());
        // The language of the user's machine says nothing about that of the text.
        FcPatternDel(pattern.get(), FC_LANG);
        FcResult result = FcResultNoMatch;
        m_all.reset(FcFontSort(m_config.get(), pattern.get(), FcTrue, nullptr, &result));
    }

    ConfigPtr m_config;                    ///< owns the installed fonts
    std::vector<FcPattern const*> m_fonts; ///< in the order of preference
    FontSetPtr m_all;                      ///< made when needed: slow
};

/// Collects which font draws what. A font that had to be found for one character draws all later ones that it has.
class CoverageBuilder
{
public:
    explicit CoverageBuilder(std::string const& family) : m_search(family)
    {
        if (FcPattern const* const first = m_search.GetFirst())
        {
            m_used.push_back(first);
            m_coverage.family = GetFamily(*first);
        }
    }

    void Add(char32_t character)
    {
        auto const used = std::find_if(m_used.begin(), m_used.end(),
                                       [&](FcPattern const* font) { return HasCharacter(*font, character); });
        FcPattern const* const font = used != m_used.end() ? *used : m_search.Find(character);
        if (font == nullptr)
        {
            m_coverage.unavailable += character;
            return;
        }
        if (used == m_used.end())
            m_used.push_back(font);
        AddStandIn(GetFamily(*font), character);
    }

    FontCoverage Take()
    {
        std::stable_sort(m_coverage.standIns.begin(), m_coverage.standIns.end(),
                         [](FontStandIn const& a, FontStandIn const& b)
                         { return a.characters.size() > b.characters.size(); });
        return std::move(m_coverage);
    }

private:
    void AddStandIn(std::string const& family, char32_t character)
    {
        if (family == m_coverage.family)
            return;
        auto const found = std::find_if(m_coverage.standIns.begin(), m_coverage.standIns.end(),
                                        [&](FontStandIn const& standIn) { return standIn.family == family; });
        if (found != m_coverage.standIns.end())
            found->characters += character;
        else
            m_coverage.standIns.push_back({family, std::u32string(1, character)});
    }

    FontSearch m_search;
    std::vector<FcPattern const*> m_used;
    FontCoverage m_coverage;
};

} // namespace

std::string FindStandInFont(std::string const& family)
{
    if (!FcInit())
        return {};
    FontSearch search(family);
    FcPattern const* const first = search.GetFirst();
    return first == nullptr || IsFontCalled(*first, ToFontconfig(family.c_str())) ? std::string() : GetFamily(*first);
}

FontCoverage CheckFontCoverage(std::string const& family, TextDocument const& document)
{
    if (!FcInit())
        return {};
    CoverageBuilder builder(family);
    for (char32_t const character : Text::ListCharacters(document))
    {
        if (!IsNeverDrawn(character))
            builder.Add(character);
    }
    return builder.Take();
}

} // namespace Korvex::Proc
