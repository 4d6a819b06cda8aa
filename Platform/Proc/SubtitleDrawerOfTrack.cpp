#include "Proc/Settings.h"
#include "Proc/SubtitleDrawer.h"
#include "Proc/SubtitleLoader.h"

#include <utility>

namespace Korvex::Proc
{

Core::Result<boost::intrusive_ptr<ISubtitleDrawer>>
MakeSubtitleDrawer(SettingsSubtitleMixer const& settings, ioPath const& mediaPath, PictureGeometry const& geometry)
{
    auto const stream = settings.GetSubtitleStreamIndex();
    auto document = stream ? LoadSubtitleStream(mediaPath, *stream)
                           : LoadSubtitleFile(settings.GetFilename(), settings.GetEncoding());
    if (!document)
        return document.GetError();
    auto drawer = MakeSubtitleDrawer(settings.GetDrawerSettings(), std::move(document).Value(), geometry);
    if (drawer)
        return drawer;
    Core::Error error = drawer.GetError();
    if (error.file.empty())
        error.file = stream ? mediaPath : settings.GetFilename();
    return error;
}

} // namespace Korvex::Proc
