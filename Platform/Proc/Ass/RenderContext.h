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

/// A renderer with its fonts, set up for pictures of one geometry.
class RenderContext
{
public:
    /// Empty when the libraries refuse.
    [[nodiscard]] static std::unique_ptr<RenderContext> Make(PictureGeometry const& geometry,
                                                             std::vector<FontAttachment> const& fonts);

    /// An empty track with the script's header and styles. Empty when memory is short.
    [[nodiscard]] TrackPtr MakeScriptTrack(std::string const& script) const;

    /// False when the letter A in the first style of the script leaves no ink: there is no font to draw with.
    [[nodiscard]] bool CanDrawLetters(std::string const& script);

    /// The images of a track at a time. They stay valid until the next call, whatever track that one is for.
    [[nodiscard]] ASS_Image* Render(ASS_Track& track, std::int64_t timeMs, int* change);

private:
    RenderContext(LibraryPtr library, RendererPtr renderer);

    LibraryPtr m_library;
    RendererPtr m_renderer;
};

} // namespace Korvex::Proc::Ass
