#include "Subtitles/Adapters/SubtitleFormats.h"

#include "Conf/IFormatCodecSubtitle.h"
#include "Conf/IFormatFile.h"

namespace Korvex::Converter::Subtitles::Adapters
{

using Conf::IFormatCodecSubtitle;
using Conf::IFormatFile;

std::set<std::string> AllowedSoftCodecs(std::string const& formatId)
{
    if (formatId == IFormatFile::FORMAT_MATROSKA)
    {
        return {IFormatCodecSubtitle::CODEC_ID_DVB_SUBTITLE,
                IFormatCodecSubtitle::CODEC_ID_DVD_SUBTITLE,
                IFormatCodecSubtitle::CODEC_ID_HDMV_PGS_SUBTITLE,
                IFormatCodecSubtitle::CODEC_ID_SUBRIP,
                IFormatCodecSubtitle::CODEC_ID_TEXT,
                IFormatCodecSubtitle::CODEC_ID_ASS,
                IFormatCodecSubtitle::CODEC_ID_SSA};
    }
    if (formatId == IFormatFile::FORMAT_MP4 || formatId == IFormatFile::FORMAT_MOV)
        return {IFormatCodecSubtitle::CODEC_ID_DVD_SUBTITLE, IFormatCodecSubtitle::CODEC_ID_MOV_TEXT};
    if (formatId == IFormatFile::FORMAT_MPEG2TS || formatId == IFormatFile::FORMAT_MPEGTS)
        return {IFormatCodecSubtitle::CODEC_ID_DVB_SUBTITLE, IFormatCodecSubtitle::CODEC_ID_DVB_TELETEXT};
    if (formatId == IFormatFile::FORMAT_AVI)
        return {IFormatCodecSubtitle::CODEC_ID_XSUB};
    if (formatId == IFormatFile::FORMAT_FLV)
        return {IFormatCodecSubtitle::CODEC_ID_TEXT};
    return {};
}

std::vector<std::string> ExternalFormats()
{
    return {IFormatFile::FORMAT_SRT, IFormatFile::FORMAT_ASS, IFormatFile::FORMAT_SSA};
}

} // namespace Korvex::Converter::Subtitles::Adapters
