#include "Proc/Ass/RenderContext.h"

#include "Proc/Text/AssText.h"

#include <limits>

namespace Korvex::Proc::Ass
{
namespace
{

constexpr int PROBE_SIDE = 288;

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

std::unique_ptr<RenderContext> RenderContext::Make(std::vector<FontAttachment> const& fonts)
{
    LibraryPtr library = MakeLibrary();
    if (!library)
        return nullptr;
    AddFonts(*library, fonts);
    RendererPtr renderer = MakeRenderer(*library);
    if (!renderer)
        return nullptr;
    ass_set_fonts(renderer.get(), nullptr, FALLBACK_FAMILY, ASS_FONTPROVIDER_AUTODETECT, nullptr, 1);
    return std::unique_ptr<RenderContext>(new RenderContext(std::move(library), std::move(renderer)));
}

void RenderContext::SetGeometry(PictureGeometry const& geometry, GlyphShape shape)
{
    ass_set_frame_size(m_renderer.get(), geometry.width, geometry.height);
    ass_set_storage_size(m_renderer.get(), geometry.width, geometry.height);
    // What the renderer is told is how much wider than high it draws letters in samples.
    ass_set_pixel_aspect(m_renderer.get(),
                         shape == GlyphShape::AsShown
                             ? static_cast<double>(geometry.sampleAspectDenominator) / geometry.sampleAspectNumerator
                             : 1.0);
}

TrackPtr RenderContext::MakeScriptTrack(std::string const& script, LayoutRules rules) const
{
    TrackPtr track = MakeTrack(*m_library);
    if (!track)
        return nullptr;
    // The parser writes into the text while it reads.
    std::string text = script + Text::EventSection();
    ass_process_codec_private(track.get(), text.data(), static_cast<int>(text.size()));
    ass_set_check_readorder(track.get(), 0);
    if (rules == LayoutRules::Modern)
    {
        // What the renderer was built without it goes without; see CanBreakCjk.
        for (ASS_Feature const feature :
             {ASS_FEATURE_WRAP_UNICODE, ASS_FEATURE_BIDI_BRACKETS, ASS_FEATURE_WHOLE_TEXT_LAYOUT})
            ass_track_set_feature(track.get(), feature, 1);
    }
    return track;
}

bool RenderContext::CanBreakCjk() const
{
    TrackPtr const track = MakeTrack(*m_library);
    return track && ass_track_set_feature(track.get(), ASS_FEATURE_WRAP_UNICODE, 1) == 0;
}

bool RenderContext::CanDrawLetters(std::string const& script)
{
    TrackPtr const track = MakeScriptTrack(script, LayoutRules::Modern);
    if (!track)
        return false;
    // A picture of any size will do, provided that letters have room on it.
    SetGeometry({PROBE_SIDE, PROBE_SIDE, 1, 1}, GlyphShape::AsShown);
    std::string event = "0,0,Default,,0,0,0,,{\\fs72}A";
    ass_process_chunk(track.get(), event.data(), static_cast<int>(event.size()), 0, 1);
    return Render(*track, 0, nullptr) != nullptr;
}

ASS_Image* RenderContext::Render(ASS_Track& track, std::int64_t timeMs, int* change)
{
    return ass_render_frame(m_renderer.get(), &track, timeMs, change);
}

} // namespace Korvex::Proc::Ass
