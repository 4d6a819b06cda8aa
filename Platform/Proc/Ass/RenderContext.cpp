#include "Proc/Ass/RenderContext.h"

#include "Proc/Ass/Look.h"

#include <limits>

namespace Korvex::Proc::Ass
{
namespace
{

/// The family to fall back on where the one asked for is not installed and nothing near it either.
constexpr char const* FALLBACK_FAMILY = "sans-serif";

void AddFonts(ASS_Library& library, std::vector<FontAttachment> const& fonts)
{
    for (FontAttachment const& font : fonts)
    {
        if (font.data && !font.data->empty() && font.data->size() <= std::numeric_limits<int>::max())
        {
            ass_add_font(&library, font.name.c_str(), reinterpret_cast<char const*>(font.data->data()),
                         static_cast<int>(font.data->size()));
        }
    }
}

} // namespace

RenderContext::RenderContext(LibraryPtr library, RendererPtr renderer)
    : m_library(std::move(library)),
      m_renderer(std::move(renderer))
{
}

std::unique_ptr<RenderContext> RenderContext::Make(PictureGeometry const& geometry,
                                                   std::vector<FontAttachment> const& fonts)
{
    LibraryPtr library = MakeLibrary();
    if (!library)
        return nullptr;
    AddFonts(*library, fonts);
    RendererPtr renderer = MakeRenderer(*library);
    if (!renderer)
        return nullptr;
    ass_set_frame_size(renderer.get(), geometry.width, geometry.height);
    ass_set_storage_size(renderer.get(), geometry.width, geometry.height);
    ass_set_pixel_aspect(renderer.get(),
                         static_cast<double>(geometry.sampleAspectNumerator) / geometry.sampleAspectDenominator);
    ass_set_fonts(renderer.get(), nullptr, FALLBACK_FAMILY, ASS_FONTPROVIDER_AUTODETECT, nullptr, 1);
    return std::unique_ptr<RenderContext>(new RenderContext(std::move(library), std::move(renderer)));
}

TrackPtr RenderContext::MakeScriptTrack(std::string const& script) const
{
    TrackPtr track = MakeTrack(*m_library);
    if (!track)
        return nullptr;
    // The parser writes into the text while it reads.
    std::string text = script + EventSection();
    ass_process_codec_private(track.get(), text.data(), static_cast<int>(text.size()));
    ass_set_check_readorder(track.get(), 0);
    return track;
}

bool RenderContext::CanDrawLetters(std::string const& script)
{
    TrackPtr const track = MakeScriptTrack(script);
    if (!track)
        return false;
    std::string const style = track->n_styles > 0 ? track->styles[0].Name : "Default";
    std::string event = "0,0," + style + ",,0,0,0,,{\\alpha&H00&}A";
    ass_process_chunk(track.get(), event.data(), static_cast<int>(event.size()), 0, 1);
    return Render(*track, 0, nullptr) != nullptr;
}

ASS_Image* RenderContext::Render(ASS_Track& track, std::int64_t timeMs, int* change)
{
    return ass_render_frame(m_renderer.get(), &track, timeMs, change);
}

} // namespace Korvex::Proc::Ass
