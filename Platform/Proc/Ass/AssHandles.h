#pragma once

#include <ass/ass.h>

#include <memory>

/// libass objects that free themselves. A renderer and a track hold on to their library, which has to outlive them.
namespace Korvex::Proc::Ass
{

struct LibraryDeleter
{
    void operator()(ASS_Library* library) const { ass_library_done(library); }
};
struct RendererDeleter
{
    void operator()(ASS_Renderer* renderer) const { ass_renderer_done(renderer); }
};
struct TrackDeleter
{
    void operator()(ASS_Track* track) const { ass_free_track(track); }
};

using LibraryPtr = std::unique_ptr<ASS_Library, LibraryDeleter>;
using RendererPtr = std::unique_ptr<ASS_Renderer, RendererDeleter>;
using TrackPtr = std::unique_ptr<ASS_Track, TrackDeleter>;

/// Messages of the library go nowhere: what they warn of (fonts replaced, tags not understood) belongs to the scripts.
[[nodiscard]] inline LibraryPtr MakeLibrary()
{
    LibraryPtr library(ass_library_init());
    if (library)
        ass_set_message_cb(
            library.get(), [](int, char const*, va_list, void*) {}, nullptr);
    return library;
}

[[nodiscard]] inline RendererPtr MakeRenderer(ASS_Library& library)
{
    return RendererPtr(ass_renderer_init(&library));
}

[[nodiscard]] inline TrackPtr MakeTrack(ASS_Library& library)
{
    return TrackPtr(ass_new_track(&library));
}

} // namespace Korvex::Proc::Ass
