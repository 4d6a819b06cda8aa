#include "Proc/SubtitleExport.h"

#include "Proc/ExternalText.h"
#include "Proc/FFmpeg/SubtitleMuxer.h"
#include "Proc/SubtitleLoader.h"
#include "Proc/Text/TextSubtitles.h"

#include "Conf/IFormatCodecSubtitle.h"
#include "Core/CoreManager.h"
#include "Core/FileSystem.h"
#include "Core/Localization.h"

#include <algorithm>
#include <functional>

namespace Korvex::Proc
{

namespace
{

using Codec = Conf::IFormatCodecSubtitle;
using Core::ErrorCode;
using std::chrono::microseconds;

Core::Error MakeError(ErrorCode code, SubtitleSource const& source, std::string const& codecId, std::string detail)
{
    Core::Error error;
    error.code = code;
    error.file = source.path;
    error.track = source.streamIndex ? std::to_string(*source.streamIndex) : "0";
    error.codec = Core::GetLocalizationManagerForDomain(Core::CoreManager::MESSAGE_DOMAIN).Translate(codecId);
    error.detail = std::move(detail);
    return error;
}

Core::Result<SubtitleDocument> LoadWhole(SubtitleSource const& source)
{
    if (source.streamIndex)
        return LoadSubtitleStream(source.path, *source.streamIndex, source.cancelled.get());
    if (source.samiClass.empty())
        return LoadSubtitleFile(source.path, source.encoding, source.cancelled.get());
    Core::Result<std::optional<ExternalText>> text = LoadExternalText(source.path, source.encoding, source.samiClass);
    if (!text)
        return text.GetError();
    return *text ? SubtitleDocument(std::move((*text)->document))
                 : LoadSubtitleFile(source.path, source.encoding, source.cancelled.get());
}

/// The last look at the flag: from here on nothing takes long.
Core::Result<SubtitleDocument> Load(SubtitleSource const& source)
{
    Core::Result<SubtitleDocument> document = LoadWhole(source);
    if (document && source.cancelled && *source.cancelled)
        return MakeError(ErrorCode::Cancelled, source, {}, {});
    return document;
}

template <typename Predicate>
std::size_t DropCues(TextDocument& document, Predicate const& isDropped)
{
    std::size_t const before = document.cues.size();
    document.cues.erase(std::remove_if(document.cues.begin(), document.cues.end(), isDropped), document.cues.end());
    return before - document.cues.size();
}

/// Moves all cues; gives the number of those left out because they would end before the start of the media.
std::size_t ShiftCues(TextDocument& document, microseconds shift)
{
    for (TextCue& cue : document.cues)
    {
        cue.start = std::max(cue.start + shift, microseconds::zero());
        cue.end += shift;
    }
    if (shift >= microseconds::zero())
        return 0;
    return DropCues(document, [](TextCue const& cue) { return cue.end <= microseconds::zero(); });
}

/// Containers keep durations, and one of nothing means to players that the text stays until the next one.
std::size_t DropCuesWithoutDuration(TextDocument& document)
{
    return DropCues(document, [](TextCue const& cue) { return cue.end <= cue.start; });
}

/// mov_text counts milliseconds in 31 bits and the bytes of a text in 16.
std::size_t DropWhatMovTextCannotHold(TextDocument& document)
{
    static constexpr microseconds LATEST = std::chrono::hours(500);
    static constexpr std::size_t LONGEST = 60'000;
    return DropCues(document, [](TextCue const& cue) { return cue.end > LATEST || cue.text.size() > LONGEST; });
}

std::string CodecOf(SubtitleDocument const& document)
{
    return std::visit([](auto const& kind) { return kind.codecId; }, document);
}

ExportedSubtitle Describe(TextDocument const& document, std::string codecId)
{
    ExportedSubtitle exported;
    exported.sourceCodecId = document.codecId;
    exported.codecId = std::move(codecId);
    exported.encoding = document.decoding.encoding;
    exported.cueCount = document.cues.size();
    exported.replacedBytes = document.decoding.replacedBytes;
    exported.skippedCues = document.skippedCues;
    return exported;
}

/// Has a file written under a temporary name and gives it its own only when it is whole.
Core::Status WriteAside(ioPath const& target, std::function<Core::Status(ioPath const&)> const& write)
{
    ioPath const temporary = Core::MakeTemporaryPath(target);
    Core::Status result = write(temporary);
    if (!result)
        result = Core::CommitFile(temporary, target, false);
    if (result)
    {
        Core::RemoveFile(temporary);
        result->file = target;
    }
    return result;
}

std::string LowerExtension(ioPath const& path)
{
    std::string extension = path.Extension();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return extension;
}

Core::Status WriteText(TextDocument const& document, std::string const& extension, ioPath const& target)
{
    if (extension == "srt")
        return Core::WriteFile(target, Text::WriteSubRip(document), false);
    if (extension == "ass")
        return Core::WriteFile(target, Text::WriteAss(document), false);
    return WriteAside(target,
                      [&](ioPath const& file) -> Core::Status
                      {
                          Core::Result<std::size_t> const written = extension == "mp4"
                                                                        ? FFmpeg::WriteMovText(document, file)
                                                                        : FFmpeg::WriteMatroskaText(document, file);
                          return written ? Core::SUCCESS : Core::Status(written.GetError());
                      });
}

Core::Result<ExportedSubtitle> ExtractPackets(SubtitleSource const& source, ioPath const& target,
                                              FFmpeg::SubtitleContainer container)
{
    ExportedSubtitle exported;
    std::optional<Core::Error> readError;
    Core::Status const failure = WriteAside(target,
                                            [&](ioPath const& file) -> Core::Status
                                            {
                                                Core::Result<std::size_t> const count = FFmpeg::CopySubtitleStream(
                                                    source, container, file, exported.sourceCodecId);
                                                if (count)
                                                {
                                                    exported.cueCount = *count;
                                                    return Core::SUCCESS;
                                                }
                                                // What is wrong with the source is not to be told of the target.
                                                if (count.GetError().file == source.path)
                                                    readError = count.GetError();
                                                return count.GetError();
                                            });
    if (readError)
    {
        if (readError->code == ErrorCode::ContainerCannotCarry)
            readError->codec = MakeError(readError->code, source, readError->codec, {}).codec;
        return *readError;
    }
    if (failure)
        return *failure;
    exported.path = target;
    exported.codecId = exported.sourceCodecId;
    return exported;
}

/// The codecs that a working file can have, best first.
std::vector<std::string> PreferredCodecs(TextDocument const& document)
{
    if (document.HasOwnLook())
        return {Codec::CODEC_ID_ASS, Codec::CODEC_ID_SUBRIP, Codec::CODEC_ID_MOV_TEXT};
    return {Codec::CODEC_ID_SUBRIP, Codec::CODEC_ID_MOV_TEXT, Codec::CODEC_ID_ASS};
}

std::string ExtensionOf(std::string const& codecId)
{
    if (codecId == Codec::CODEC_ID_SUBRIP)
        return "srt";
    return codecId == Codec::CODEC_ID_ASS ? "ass" : "mp4";
}

/// Writes under the first free name; another process may take one meanwhile.
Core::Result<ioPath> WriteUnderFreeName(TextDocument const& document, std::string const& extension,
                                        ioPath const& folder, std::string const& baseName)
{
    constexpr int MOST_NAMES = 10000;
    for (int number = 1; number <= MOST_NAMES; ++number)
    {
        std::string const suffix = number == 1 ? std::string() : "-" + std::to_string(number);
        ioPath const target = folder / (baseName + suffix + "." + extension);
        if (Core::PathExists(target))
            continue;
        Core::Status const failure = WriteText(document, extension, target);
        if (!failure)
            return target;
        if (failure->code != ErrorCode::OutputExists)
            return *failure;
    }
    Core::Error error;
    error.code = ErrorCode::OutputExists;
    error.file = folder / (baseName + "." + extension);
    return error;
}

bool IsMatroskaExtension(std::string const& extension)
{
    return extension == "mkv" || extension == "mks";
}

constexpr char const* DRAW_IT_IN = "draw it into the picture";

/// No text that the container takes can be made of this track.
Core::Error NothingFits(SubtitleSource const& source, std::string const& codecId)
{
    Core::Error error =
        MakeError(ErrorCode::ContainerCannotCarry, source, codecId, std::string("choose Matroska or ") + DRAW_IT_IN);
    error.container = "the chosen container";
    return error;
}

Core::Error PicturesAreNoText(SubtitleSource const& source, std::string const& codecId, std::string const& extension)
{
    std::string const better = SuggestExtractExtension(codecId);
    Core::Error error = MakeError(ErrorCode::ContainerCannotCarry, source, codecId,
                                  better.empty() ? DRAW_IT_IN : "it consists of pictures, so save it as ." + better);
    error.container = "a ." + extension + " file";
    return error;
}

/// A Blu-ray file holds pictures. Text files are told from those by reading them: their demuxers are not allowed.
Core::Result<ExportedSubtitle> ExtractPictures(SubtitleSource const& source, ioPath const& target)
{
    if (source.streamIndex)
        return ExtractPackets(source, target, FFmpeg::SubtitleContainer::BluRay);
    Core::Result<std::optional<ExternalText>> const text = LoadExternalText(source.path, source.encoding, {});
    if (!text)
        return text.GetError();
    if (!*text)
        return ExtractPackets(source, target, FFmpeg::SubtitleContainer::BluRay);
    std::string const& codecId = (*text)->document.codecId;
    Core::Error error = MakeError(ErrorCode::ContainerCannotCarry, source, codecId,
                                  "save it as ." + SuggestExtractExtension(codecId) + " instead");
    error.container = "a .sup file";
    return error;
}

/// Through the core's own form of the cues: for the text formats, and for text that Matroska cannot carry as it is.
Core::Result<ExportedSubtitle> ExtractCues(SubtitleSource const& source, ioPath const& target,
                                           std::string const& extension)
{
    bool const isMatroska = IsMatroskaExtension(extension);
    Core::Result<SubtitleDocument> document = Load(source);
    if (!document)
        return document.GetError();
    auto* text = std::get_if<TextDocument>(&*document);
    if (!text && isMatroska)
        return ExtractPackets(source, target, FFmpeg::SubtitleContainer::Matroska);
    if (!text)
        return PicturesAreNoText(source, CodecOf(*document), extension);

    std::size_t leftOut = ShiftCues(*text, source.timeShift);
    if (isMatroska)
        leftOut += DropCuesWithoutDuration(*text);
    if (Core::Status const failure = WriteText(*text, isMatroska ? "mkv" : extension, target))
        return *failure;
    bool const isScript = extension == "ass" || (isMatroska && text->HasOwnLook());
    ExportedSubtitle exported = Describe(*text, isScript ? Codec::CODEC_ID_ASS : Codec::CODEC_ID_SUBRIP);
    exported.leftOutCues = leftOut;
    exported.path = target;
    return exported;
}

} // namespace

Core::Result<ExportedSubtitle> ExtractSubtitle(SubtitleSource const& source, ioPath const& target)
{
    std::string const extension = LowerExtension(target);
    if (extension != "srt" && extension != "ass" && extension != "sup" && !IsMatroskaExtension(extension))
    {
        Core::Error error;
        error.code = ErrorCode::ContainerUnknown;
        error.file = target;
        error.container = extension;
        return error;
    }
    if (Core::Status const refused = Core::CheckOutput(target, {source.path}, false))
        return *refused;
    if (extension == "sup")
        return ExtractPictures(source, target);
    if (IsMatroskaExtension(extension) && source.streamIndex)
    {
        Core::Result<ExportedSubtitle> copied = ExtractPackets(source, target, FFmpeg::SubtitleContainer::Matroska);
        if (copied || copied.GetError().code != ErrorCode::ContainerCannotCarry)
            return copied;
    }
    return ExtractCues(source, target, extension);
}

Core::Result<ExportedSubtitle> PrepareSubtitle(SubtitleSource const& source,
                                               std::vector<std::string> const& allowedCodecIds, ioPath const& folder,
                                               std::string const& baseName)
{
    Core::Result<SubtitleDocument> document = Load(source);
    if (!document)
        return document.GetError();
    auto* text = std::get_if<TextDocument>(&*document);
    if (!text)
        return NothingFits(source, CodecOf(*document));
    std::vector<std::string> const preferred = PreferredCodecs(*text);
    auto const codec =
        std::find_if(preferred.begin(), preferred.end(),
                     [&](std::string const& id) {
                         return std::find(allowedCodecIds.begin(), allowedCodecIds.end(), id) != allowedCodecIds.end();
                     });
    if (codec == preferred.end())
        return NothingFits(source, text->codecId);

    std::size_t leftOut = ShiftCues(*text, source.timeShift) + DropCuesWithoutDuration(*text);
    if (*codec == Codec::CODEC_ID_MOV_TEXT)
        leftOut += DropWhatMovTextCannotHold(*text);
    Core::Result<ioPath> const path = WriteUnderFreeName(*text, ExtensionOf(*codec), folder, baseName);
    if (!path)
        return path.GetError();
    ExportedSubtitle exported = Describe(*text, *codec);
    exported.leftOutCues = leftOut;
    exported.path = *path;
    return exported;
}

std::string SuggestExtractExtension(std::string const& codecId)
{
    if (codecId == Codec::CODEC_ID_ASS || codecId == Codec::CODEC_ID_SSA)
        return "ass";
    if (codecId == Codec::CODEC_ID_HDMV_PGS_SUBTITLE)
        return "sup";
    if (codecId == Codec::CODEC_ID_XSUB)
        return {};
    bool const isBitmap = codecId == Codec::CODEC_ID_DVD_SUBTITLE || codecId == Codec::CODEC_ID_DVB_SUBTITLE;
    return isBitmap ? "mkv" : "srt";
}

} // namespace Korvex::Proc
