#include "Proc/FFmpeg/ContainerRules.h"

#include "Conf/IFormatFile.h"

#include <algorithm>
#include <mutex>

namespace Korvex::Proc::FFmpeg
{

namespace
{

// Text in FLV is not text in the sense of the other containers: FFmpeg's muxer takes AV_CODEC_ID_TEXT alone.
std::vector<ContainerRule> MakeRules()
{
    using Conf::IFormatFile;
    ContainerRule matroska;
    matroska.formatId = IFormatFile::FORMAT_MATROSKA;
    matroska.muxerName = "matroska";
    matroska.displayName = "Matroska";
    matroska.subtitleCodecs = {AV_CODEC_ID_DVB_SUBTITLE, AV_CODEC_ID_DVD_SUBTITLE, AV_CODEC_ID_HDMV_PGS_SUBTITLE,
                               AV_CODEC_ID_SUBRIP,       AV_CODEC_ID_TEXT,         AV_CODEC_ID_ASS,
                               AV_CODEC_ID_WEBVTT};
    matroska.carriesAttachments = true;
    matroska.carriesCoverPictures = true;
    matroska.subtitleAdvice = "let it be converted to SubRip, or burn it into the picture";

    ContainerRule mp4;
    mp4.formatId = IFormatFile::FORMAT_MP4;
    mp4.muxerName = "mp4";
    mp4.displayName = "MP4";
    mp4.subtitleCodecs = {AV_CODEC_ID_DVD_SUBTITLE, AV_CODEC_ID_MOV_TEXT};
    mp4.languageForm = LanguageForm::Terminology;
    mp4.carriesCoverPictures = true;
    mp4.carriesDisplayMatrix = true;
    mp4.namesTracksByHandler = true;
    mp4.subtitleAdvice = "let text be converted to MOV text, burn the track into the picture, or choose Matroska";

    ContainerRule mov = mp4;
    mov.formatId = IFormatFile::FORMAT_MOV;
    mov.muxerName = "mov";
    mov.displayName = "MOV";
    mov.carriesCoverPictures = false;
    mov.languageForm = LanguageForm::QuickTime;

    ContainerRule mpegts;
    mpegts.formatId = IFormatFile::FORMAT_MPEGTS;
    mpegts.muxerName = "mpegts";
    mpegts.displayName = "MPEG-TS";
    mpegts.subtitleCodecs = {AV_CODEC_ID_DVB_SUBTITLE, AV_CODEC_ID_DVB_TELETEXT};
    // The muxer takes anything and files what it does not know as private data that no player finds.
    mpegts.mediaCodecs = {AV_CODEC_ID_MPEG1VIDEO, AV_CODEC_ID_MPEG2VIDEO, AV_CODEC_ID_MPEG4, AV_CODEC_ID_H264,
                          AV_CODEC_ID_HEVC,       AV_CODEC_ID_MP2,        AV_CODEC_ID_MP3,   AV_CODEC_ID_AAC,
                          AV_CODEC_ID_AAC_LATM,   AV_CODEC_ID_AC3,        AV_CODEC_ID_EAC3,  AV_CODEC_ID_DTS,
                          AV_CODEC_ID_OPUS};
    mpegts.subtitleAdvice = "burn it into the picture, or choose Matroska";

    ContainerRule m2ts = mpegts;
    m2ts.formatId = IFormatFile::FORMAT_MPEG2TS;
    m2ts.displayName = "M2TS";
    m2ts.mediaCodecs = {AV_CODEC_ID_MPEG2VIDEO, AV_CODEC_ID_H264, AV_CODEC_ID_HEVC, AV_CODEC_ID_AC3,
                        AV_CODEC_ID_EAC3,       AV_CODEC_ID_DTS,  AV_CODEC_ID_AAC,  AV_CODEC_ID_TRUEHD};
    m2ts.secondVideoId = 0x1B00;   // what discs give to a picture in the picture
    m2ts.firstSubtitleId = 0x1300; // between the numbers that discs give to their own kinds of streams

    ContainerRule avi;
    avi.formatId = IFormatFile::FORMAT_AVI;
    avi.muxerName = "avi";
    avi.displayName = "AVI";
    avi.subtitleCodecs = {AV_CODEC_ID_XSUB};
    avi.brokenCodecs = {AV_CODEC_ID_FLAC};
    avi.storesPresentationTimes = false;
    avi.subtitleAdvice = "burn it into the picture, or choose Matroska";

    ContainerRule flv;
    flv.formatId = IFormatFile::FORMAT_FLV;
    flv.muxerName = "flv";
    flv.displayName = "FLV";
    flv.subtitleCodecs = {AV_CODEC_ID_TEXT};
    flv.carriesOneStreamPerKind = true;
    flv.subtitleAdvice = "burn it into the picture, or choose Matroska";
    return {matroska, mp4, mov, mpegts, m2ts, avi, flv};
}

bool Contains(std::vector<AVCodecID> const& codecs, AVCodecID codec)
{
    return std::find(codecs.begin(), codecs.end(), codec) != codecs.end();
}

bool IsAllowed(ContainerRule const& rule, AVCodecParameters const& parameters)
{
    if (parameters.codec_type == AVMEDIA_TYPE_SUBTITLE)
        return Contains(rule.subtitleCodecs, parameters.codec_id);
    if (parameters.codec_type == AVMEDIA_TYPE_VIDEO || parameters.codec_type == AVMEDIA_TYPE_AUDIO)
        return (rule.mediaCodecs.empty() || Contains(rule.mediaCodecs, parameters.codec_id)) &&
               !Contains(rule.brokenCodecs, parameters.codec_id);
    return false;
}

/// Writes a header with this stream into memory. A muxer that needs a picture beside subtitles gets none: none of ours
/// does.
bool TryHeader(ContainerRule const& rule, AVCodecParameters const& parameters)
{
    OutputContext const output = MakeOutputContext(rule.muxerName, {});
    if (!output || avio_open_dyn_buf(&output->pb) < 0)
        return false;
    AVStream* stream = avformat_new_stream(output.get(), nullptr);
    bool accepted = stream && avcodec_parameters_copy(stream->codecpar, &parameters) >= 0;
    if (accepted)
    {
        stream->time_base = parameters.codec_type == AVMEDIA_TYPE_AUDIO && parameters.sample_rate > 0
                                ? AVRational{1, parameters.sample_rate}
                                : AVRational{1, 1000};
        stream->avg_frame_rate = {25, 1};
        if (parameters.codec_type == AVMEDIA_TYPE_SUBTITLE)
            stream->id = rule.firstSubtitleId;
        output->strict_std_compliance = FF_COMPLIANCE_NORMAL;
        // A refusal is an answer here, not a failure. The level is the whole process's, so one at a time.
        static std::mutex s_logLevel;
        std::lock_guard const lock(s_logLevel);
        int const level = av_log_get_level();
        av_log_set_level(AV_LOG_QUIET);
        accepted = avformat_write_header(output.get(), nullptr) >= 0;
        av_log_set_level(level);
    }
    std::uint8_t* bytes = nullptr;
    avio_close_dyn_buf(output->pb, &bytes);
    output->pb = nullptr;
    av_free(bytes);
    return accepted;
}

} // namespace

ContainerRule const* FindContainerRule(std::string const& formatId)
{
    static std::vector<ContainerRule> const RULES = MakeRules();
    auto const found =
        std::find_if(RULES.begin(), RULES.end(), [&](ContainerRule const& rule) { return rule.formatId == formatId; });
    return found == RULES.end() ? nullptr : &*found;
}

bool CanCarry(ContainerRule const& rule, AVCodecParameters const& parameters)
{
    if (!IsAllowed(rule, parameters))
        return false;
    CodecParameters const adapted = CopyParametersForOutput(parameters, rule);
    AVOutputFormat const* muxer = av_guess_format(rule.muxerName, nullptr, nullptr);
    if (!muxer)
        return false;
    // A negative answer means that the muxer does not know; then its header decides. Of subtitles its lists know less
    // than it does itself (XSUB in AVI).
    bool const mayFit = parameters.codec_type == AVMEDIA_TYPE_SUBTITLE ||
                        avformat_query_codec(muxer, adapted->codec_id, FF_COMPLIANCE_NORMAL) != 0;
    return mayFit && TryHeader(rule, *adapted);
}

void SetMuxerOptions(ContainerRule const& rule, Dictionary& options)
{
    std::string const& format = rule.formatId;
    if (format == Conf::IFormatFile::FORMAT_MPEG2TS)
        options.Set("mpegts_m2ts_mode", "1");
    if (format == Conf::IFormatFile::FORMAT_MP4 || format == Conf::IFormatFile::FORMAT_MOV)
        options.Set("movflags", "+faststart");
    if (format == Conf::IFormatFile::FORMAT_MATROSKA)
        options.Set("default_mode", "passthrough"); // the default marks are ours to set
}

std::string CodecDisplayName(AVCodecID codec)
{
    AVCodecDescriptor const* descriptor = avcodec_descriptor_get(codec);
    if (!descriptor)
        return "an unknown codec";
    if (!descriptor->long_name)
        return descriptor->name;
    return std::string(descriptor->long_name) + " (" + descriptor->name + ")";
}

CodecParameters CopyParametersForOutput(AVCodecParameters const& from, ContainerRule const& rule)
{
    CodecParameters copy = MakeCodecParameters(from);
    AVOutputFormat const* muxer = av_guess_format(rule.muxerName, nullptr, nullptr);
    // The old code may stay where the new container uses the same ones (so "hev1" stays "hev1" from MP4 to MP4).
    if (!muxer || !muxer->codec_tag || av_codec_get_id(muxer->codec_tag, copy->codec_tag) != copy->codec_id)
        copy->codec_tag = 0;
    // AVI's lists of codes leave out the one that its own reader goes by.
    if (copy->codec_id == AV_CODEC_ID_XSUB)
        copy->codec_tag = MKTAG('D', 'X', 'S', 'B');
    return copy;
}

} // namespace Korvex::Proc::FFmpeg
