#include "Proc/FFmpeg/StreamFacts.h"

#include "Proc/FFmpeg/LibraryVersions.h"
#include "Proc/FFmpeg/MediaTimes.h"

#include "Proc/Text/TextDecoder.h"

extern "C"
{
#include <libavutil/display.h>
#include <libavutil/parseutils.h>
}

#include <algorithm>
#include <array>
#include <cmath>

namespace Korvex::Proc::FFmpeg
{

namespace
{

using std::chrono::microseconds;

std::string Trimmed(std::string const& text)
{
    char const* const blanks = " \t\r\n";
    std::size_t const first = text.find_first_not_of(blanks);
    return first == std::string::npos ? std::string() : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string LowerAscii(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

/// MP4 has a handler name in every track. Some programs write the track's title there, most write what they are.
bool IsHandlerTitle(std::string const& name)
{
    constexpr std::array<char const*, 9> NO_TITLES{"handler", "media", "gpac",  "l-smash",  "mainconcept",
                                                   "bento",   "sbtl",  "track", "subtitles"};
    std::string const lower = LowerAscii(name);
    return std::none_of(NO_TITLES.begin(), NO_TITLES.end(),
                        [&](char const* junk) { return lower.find(junk) != std::string::npos; });
}

std::string StreamTitle(AVStream const& stream)
{
    for (char const* key : {"title", "name"})
    {
        std::string const title = MetadataText(stream.metadata, key);
        if (!title.empty())
            return title;
    }
    std::string const handler = MetadataText(stream.metadata, "handler_name");
    return stream.codecpar->codec_type == AVMEDIA_TYPE_SUBTITLE && IsHandlerTitle(handler) ? handler : std::string();
}

std::string StreamLanguage(AVStream const& stream)
{
    std::string const language = MetadataText(stream.metadata, "language");
    return LowerAscii(language) == "und" ? std::string() : language;
}

StreamKind KindOf(AVStream const& stream)
{
    switch (stream.codecpar->codec_type)
    {
    case AVMEDIA_TYPE_VIDEO:
        return StreamKind::Video;
    case AVMEDIA_TYPE_AUDIO:
        return StreamKind::Audio;
    case AVMEDIA_TYPE_SUBTITLE:
        return StreamKind::Subtitle;
    case AVMEDIA_TYPE_ATTACHMENT:
        return StreamKind::Attachment;
    default:
        return StreamKind::Other;
    }
}

int RotationOf(AVStream const& stream)
{
    auto const* matrix =
        reinterpret_cast<std::int32_t const*>(av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, nullptr));
    double const clockwise = matrix ? -av_display_rotation_get(matrix) : 0.0;
    if (std::isnan(clockwise))
        return 0;
    int const quarters = static_cast<int>(std::lround(clockwise / 90.0)) % 4;
    return (quarters + 4) % 4 * 90;
}

void DescribePicture(AVFormatContext& context, AVStream& stream, StreamInfo& info)
{
    info.width = stream.codecpar->width;
    info.height = stream.codecpar->height;
    AVRational const aspect = av_guess_sample_aspect_ratio(&context, &stream, nullptr);
    if (aspect.num > 0 && aspect.den > 0)
    {
        info.sampleAspectNumerator = aspect.num;
        info.sampleAspectDenominator = aspect.den;
    }
    info.rotationDegrees = RotationOf(stream);
    AVRational const rate = av_guess_frame_rate(&context, &stream, nullptr);
    if (rate.num > 0 && rate.den > 0)
        info.framesPerSecond = av_q2d(rate);
}

/// What a stream states of its own duration; Matroska does it in a tag. Zero when it does not.
microseconds StatedDuration(AVStream const& stream)
{
    if (std::int64_t const stated = DurationInUs(stream.duration, stream.time_base); stated > 0)
        return microseconds(stated);
    AVDictionaryEntry const* tag = av_dict_get(stream.metadata, "DURATION", nullptr, AV_DICT_IGNORE_SUFFIX);
    std::int64_t duration = 0;
    bool const isStated = tag && av_parse_time(&duration, tag->value, 1) >= 0;
    return microseconds(isStated ? DurationInUs(duration, AV_TIME_BASE_Q) : 0);
}

microseconds DurationOf(AVFormatContext const& context, AVStream const& stream)
{
    AVMediaType const type = stream.codecpar->codec_type;
    if (type != AVMEDIA_TYPE_ATTACHMENT && stream.duration != AV_NOPTS_VALUE && stream.duration > 0)
        return microseconds(av_rescale_q(stream.duration, stream.time_base, AV_TIME_BASE_Q));
    bool const lastsAsLongAsTheFile = type == AVMEDIA_TYPE_VIDEO || type == AVMEDIA_TYPE_AUDIO;
    return microseconds(lastsAsLongAsTheFile ? DurationInUs(context.duration, AV_TIME_BASE_Q) : 0);
}

bool HasProperty(AVCodecID codec, int property)
{
    AVCodecDescriptor const* descriptor = avcodec_descriptor_get(codec);
    return descriptor && (descriptor->props & property);
}

} // namespace

std::string MetadataText(AVDictionary const* metadata, char const* key)
{
    AVDictionaryEntry const* entry = av_dict_get(metadata, key, nullptr, 0);
    std::size_t replaced = 0;
    return entry ? Trimmed(Text::RepairUtf8(entry->value, replaced)) : std::string();
}

std::string CodecName(AVCodecID codec)
{
    return codec == AV_CODEC_ID_NONE ? std::string() : std::string(avcodec_get_name(codec));
}

bool IsTextSubtitle(AVCodecID codec)
{
    // The library's tables give teletext neither property; it is read as text here.
    return codec == AV_CODEC_ID_DVB_TELETEXT || HasProperty(codec, AV_CODEC_PROP_TEXT_SUB);
}

bool IsBitmapSubtitle(AVCodecID codec)
{
    return HasProperty(codec, AV_CODEC_PROP_BITMAP_SUB);
}

bool IsFont(AVStream const& stream)
{
    if (stream.codecpar->codec_type != AVMEDIA_TYPE_ATTACHMENT || stream.codecpar->extradata_size <= 0)
        return false;
    std::string const name = MetadataText(stream.metadata, "filename");
    std::string const extension = LowerAscii(ioPath(name).Extension());
    constexpr std::array<char const*, 4> EXTENSIONS{"ttf", "otf", "ttc", "otc"};
    if (std::find(EXTENSIONS.begin(), EXTENSIONS.end(), extension) != EXTENSIONS.end())
        return true;
    std::string const type = MetadataText(stream.metadata, "mimetype");
    return type.find("font") != std::string::npos || type.find("truetype") != std::string::npos ||
           type.find("opentype") != std::string::npos;
}

bool IsOpenType(std::string const& fontName)
{
    return LowerAscii(ioPath(fontName).Extension()) == "otf";
}

char const* FontMimeType(std::string const& fontName)
{
    return IsOpenType(fontName) ? "application/vnd.ms-opentype" : "application/x-truetype-font";
}

StreamInfo DescribeStream(InputFile const& file, std::uint32_t index)
{
    AVFormatContext& context = file.Context();
    AVStream& stream = *context.streams[index];
    AVCodecID const codec = stream.codecpar->codec_id;
    StreamInfo info;
    info.index = index;
    info.kind = KindOf(stream);
    info.codecId = CodecName(codec);
    info.language = StreamLanguage(stream);
    info.title = StreamTitle(stream);
    info.isDefault = (stream.disposition & AV_DISPOSITION_DEFAULT) != 0;
    info.isForced = (stream.disposition & AV_DISPOSITION_FORCED) != 0;
    info.isHearingImpaired = (stream.disposition & AV_DISPOSITION_HEARING_IMPAIRED) != 0;
    info.isCommentary = (stream.disposition & AV_DISPOSITION_COMMENT) != 0;
    info.isAttachedPicture = (stream.disposition & AV_DISPOSITION_ATTACHED_PIC) != 0;
    info.duration = DurationOf(context, stream);
    if (info.kind == StreamKind::Subtitle)
    {
        info.isTextSubtitle = IsTextSubtitle(codec);
        info.isBitmapSubtitle = IsBitmapSubtitle(codec);
    }
    if (info.kind == StreamKind::Video)
        DescribePicture(context, stream, info);
    return info;
}

microseconds PlayingTime(AVFormatContext const& file)
{
    microseconds const whole(DurationInUs(file.duration, AV_TIME_BASE_Q));
    microseconds longest{0};
    for (unsigned i = 0; i < file.nb_streams; ++i)
    {
        AVStream const& stream = *file.streams[i];
        AVMediaType const type = stream.codecpar->codec_type;
        bool const isPlayed = (type == AVMEDIA_TYPE_VIDEO && !(stream.disposition & AV_DISPOSITION_ATTACHED_PIC)) ||
                              type == AVMEDIA_TYPE_AUDIO;
        if (isPlayed)
            longest = std::max(longest, StatedDuration(stream));
    }
    return longest.count() > 0 ? std::min(longest, whole) : whole;
}

MediaInfo DescribeFile(InputFile const& file)
{
    AVFormatContext& context = file.Context();
    MediaInfo info;
    info.path = file.Path();
    info.formatId = context.iformat->name;
    info.title = MetadataText(context.metadata, "title");
    info.duration = microseconds(DurationInUs(context.duration, AV_TIME_BASE_Q));
    info.startTime = file.StartTime();
    for (std::uint32_t i = 0; i < context.nb_streams; ++i)
        info.streams.push_back(DescribeStream(file, i));
    return info;
}

} // namespace Korvex::Proc::FFmpeg
