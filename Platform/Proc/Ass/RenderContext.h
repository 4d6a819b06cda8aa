#pragma once

#include "Core/Result.h"
#include "Proc/Ass/AssHandles.h"
#include "Proc/Picture.h"
#include "Proc/SubtitleContent.h"

#include <memory>
#include <string>
#include <vector>

namespace Korvex::Proc::Ass
{

/// The family to fall back on where the one asked for is not installed and nothing near it either.
inline constexpr char const* FALLBACK_FAMILY = "sans-serif";

/// How wide letters are on pictures whose samples are not square.
enum class GlyphShape
{
    AsShown, ///< the font's shape once the picture is shown
    /// The font's shape in samples, so that they are stretched with the picture: what the authors of scripts saw.
    /// Scripts with LayoutResX and LayoutResY say themselves, whatever is chosen here.
    AsStored,
};

/// How lines are broken and text of both directions is ordered.
enum class LayoutRules
{
    Script, ///< as ASS always did, which scripts count on
    Modern, ///< as Unicode says: lines of Chinese and Japanese break without spaces, brackets follow their text
};

/// A renderer with its fonts.
class RenderContext
{
public:
    /// Empty when the libraries refuse. The geometry is still to be set.
    [[nodiscard]] static std::unique_ptr<RenderContext> Make(std::vector<FontAttachment> const& fonts);

    void SetGeometry(PictureGeometry const& geometry, GlyphShape shape);

    /// An empty track with the script's header and styles. Empty when memory is short.
    [[nodiscard]] TrackPtr MakeScriptTrack(std::string const& script, LayoutRules rules) const;

    /// True when lines of Chinese and Japanese break where they have to under modern rules.
    [[nodiscard]] bool CanBreakCjk() const;

    /// False when the letter A in the style "Default" of the script leaves no ink: there is no font to draw with.
    /// Leaves the geometry changed.
    [[nodiscard]] bool CanDrawLetters(std::string const& script);

    /// The images of a track at a time. They stay valid until the next call, whatever track that one is for.
    [[nodiscard]] ASS_Image* Render(ASS_Track& track, std::int64_t timeMs, int* change);

private:
    RenderContext(LibraryPtr library, RendererPtr renderer);

    LibraryPtr m_library;
    RendererPtr m_renderer;
};

} // namespace Korvex::Proc::Ass
