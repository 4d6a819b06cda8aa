#include "Proc/SubtitleLoader.h"

#include "Proc/ExternalText.h"
#include "Proc/FFmpeg/MediaFile.h"

namespace Korvex::Proc
{

Core::Result<SubtitleDocument> LoadSubtitleStream(ioPath const& mediaPath, std::uint32_t streamIndex,
                                                  std::atomic<bool> const* cancelled)
{
    Core::Result<std::optional<ExternalText>> text = LoadExternalText(mediaPath, {});
    if (!text)
        return text.GetError();
    if (!*text)
        return FFmpeg::LoadMediaSubtitles(mediaPath, streamIndex, cancelled);
    if (streamIndex == 0)
        return SubtitleDocument(std::move((*text)->document));
    Core::Error error;
    error.code = Core::ErrorCode::NoSuchTrack;
    error.file = mediaPath;
    error.track = std::to_string(streamIndex);
    return error;
}

Core::Result<SubtitleDocument> LoadSubtitleFile(ioPath const& path, std::string const& encoding,
                                                std::atomic<bool> const* cancelled)
{
    Core::Result<std::optional<ExternalText>> text = LoadExternalText(path, encoding);
    if (!text)
        return text.GetError();
    if (*text)
        return SubtitleDocument(std::move((*text)->document));
    return FFmpeg::LoadMediaSubtitles(path, std::nullopt, cancelled);
}

} // namespace Korvex::Proc
