#include "Proc/FFmpeg/MediaFile.h"

#include "Proc/FFmpeg/RawStream.h"
#include "Proc/FFmpeg/StreamFacts.h"
#include "Proc/FFmpeg/StreamLoader.h"

namespace Korvex::Proc::FFmpeg
{

namespace
{

using Core::ErrorCode;

Core::Error NoTrack(ioPath const& path, std::string track)
{
    Core::Error error = MakeError(ErrorCode::NoSuchTrack, path);
    error.track = std::move(track);
    return error;
}

} // namespace

Core::Result<MediaInfo> ProbeMediaFile(ioPath const& path)
{
    Core::Result<InputFile> const file = InputFile::Open(path, {StreamAnalysis::Quick});
    if (!file)
        return file.GetError();
    return DescribeFile(*file);
}

Core::Result<SubtitleDocument> LoadMediaSubtitles(ioPath const& path, std::optional<std::uint32_t> streamIndex,
                                                  std::atomic<bool> const* cancelled)
{
    Core::Result<InputFile> const file = InputFile::Open(path, {StreamAnalysis::Quick, cancelled});
    if (!file)
        return file.GetError();
    if (streamIndex)
        return LoadStream(*file, *streamIndex);
    AVStream const* first = file->FindFirstSubtitle();
    if (!first)
        return NoTrack(path, "of subtitles");
    return LoadStream(*file, static_cast<std::uint32_t>(first->index));
}

Core::Result<boost::intrusive_ptr<IStreamRaw>> OpenRawStream(ioPath const& path, std::uint32_t streamIndex)
{
    Core::Result<InputFile> file = InputFile::Open(path, {StreamAnalysis::Quick});
    if (!file)
        return file.GetError();
    if (!file->FindStream(streamIndex))
        return NoTrack(path, std::to_string(streamIndex));
    return boost::intrusive_ptr<IStreamRaw>(new RawStream(std::move(file).Value(), streamIndex));
}

Core::Result<TextDocument> ReadForeignText(std::string utf8, ioPath const& path, std::string& formatId)
{
    Core::Result<InputFile> const file = InputFile::OpenText(std::move(utf8), path);
    if (!file)
        return file.GetError();
    Core::Result<SubtitleDocument> document = LoadStream(*file, 0);
    if (!document)
        return document.GetError();
    auto* text = std::get_if<TextDocument>(&*document);
    if (!text || text->cues.empty())
        return MakeError(ErrorCode::FormatUnknown, path);
    formatId = file->Context().iformat->name;
    return std::move(*text);
}

Core::Result<boost::intrusive_ptr<IStreamRaw>> OpenForeignText(std::string utf8, ioPath const& path)
{
    Core::Result<InputFile> file = InputFile::OpenText(std::move(utf8), path);
    if (!file)
        return file.GetError();
    return boost::intrusive_ptr<IStreamRaw>(new RawStream(std::move(file).Value(), 0));
}

} // namespace Korvex::Proc::FFmpeg
