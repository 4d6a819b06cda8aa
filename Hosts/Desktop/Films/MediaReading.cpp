#include "Desktop/Films/MediaReading.h"

#include "Proc/Preview.h"

#include <QSize>

#include <algorithm>

namespace Korvex::Desktop
{

namespace
{

constexpr QSize LARGEST_THUMBNAIL{160, 120};

QImage MakeThumbnail(Proc::RgbaImage const& picture)
{
    QImage const view(picture.rgba.data(), picture.width, picture.height, picture.width * 4, QImage::Format_RGBA8888);
    QSize shown(picture.width, picture.height);
    if (picture.sampleAspectNumerator > 0 && picture.sampleAspectDenominator > 0)
        shown.setWidth(std::max(1, static_cast<int>(static_cast<std::int64_t>(picture.width) *
                                                    picture.sampleAspectNumerator / picture.sampleAspectDenominator)));
    shown.scale(LARGEST_THUMBNAIL, Qt::KeepAspectRatio);
    // The copy owns its pixels, the view does not.
    return view.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32)
        .copy();
}

} // namespace

Core::Result<Proc::MediaInfo> ReadHeaders(ioPath const& path)
{
    auto media = Proc::ProbeMedia(path);
    if (!media)
        return media;
    bool const isFilm =
        std::any_of(media->streams.begin(), media->streams.end(),
                    [](Proc::StreamInfo const& stream)
                    { return stream.kind == Proc::StreamKind::Video || stream.kind == Proc::StreamKind::Audio; });
    if (isFilm)
        return media;
    Core::Error error;
    error.code = Core::ErrorCode::NothingToConvert;
    error.file = path;
    return error;
}

QImage ReadThumbnail(Proc::MediaInfo const& media)
{
    if (media.FindMainVideo() == nullptr)
        return {};
    auto const preview = Proc::MakePreview(media.path);
    if (!preview)
        return {};
    auto const picture = (*preview)->Render(media.duration / 10);
    return picture ? MakeThumbnail(*picture) : QImage();
}

} // namespace Korvex::Desktop
