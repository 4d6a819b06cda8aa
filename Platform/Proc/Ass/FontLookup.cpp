#include "Proc/Fonts.h"

#include <fontconfig/fontconfig.h>

#include <memory>

namespace Korvex::Proc
{
namespace
{

struct PatternDeleter
{
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using PatternPtr = std::unique_ptr<FcPattern, PatternDeleter>;

FcChar8 const* ToFontconfig(std::string const& text)
{
    return reinterpret_cast<FcChar8 const*>(text.c_str());
}

/// True when one of the font's names of this kind is `name`.
bool HasName(FcPattern const& font, char const* kind, std::string const& name)
{
    FcChar8* value = nullptr;
    for (int i = 0; FcPatternGetString(&font, kind, i, &value) == FcResultMatch; ++i)
    {
        if (FcStrCmpIgnoreCase(value, ToFontconfig(name)) == 0)
            return true;
    }
    return false;
}

/// The names under which the text renderer finds a font.
bool IsInstalled(std::string const& name)
{
    FcFontSet const* const fonts = FcConfigGetFonts(nullptr, FcSetSystem);
    for (int i = 0; fonts != nullptr && i < fonts->nfont; ++i)
    {
        for (char const* kind : {FC_FAMILY, FC_FULLNAME, FC_POSTSCRIPT_NAME})
        {
            if (HasName(*fonts->fonts[i], kind, name))
                return true;
        }
    }
    return false;
}

} // namespace

std::string FindStandInFont(std::string const& family)
{
    if (!FcInit() || IsInstalled(family))
        return {};
    PatternPtr const wanted(FcPatternCreate());
    if (!wanted || !FcPatternAddString(wanted.get(), FC_FAMILY, ToFontconfig(family)))
        return {};
    FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    PatternPtr const found(FcFontMatch(nullptr, wanted.get(), &result));
    FcChar8* standIn = nullptr;
    if (!found || FcPatternGetString(found.get(), FC_FAMILY, 0, &standIn) != FcResultMatch)
        return {};
    return reinterpret_cast<char const*>(standIn);
}

} // namespace Korvex::Proc
