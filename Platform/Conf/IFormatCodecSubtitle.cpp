#include "Conf/IFormatCodecSubtitle.h"

namespace Korvex::Conf
{

std::string const IFormatCodecSubtitle::CODEC_ID_DVB_SUBTITLE = "dvb_subtitle";
std::string const IFormatCodecSubtitle::CODEC_ID_DVB_TELETEXT = "dvb_teletext";
std::string const IFormatCodecSubtitle::CODEC_ID_DVD_SUBTITLE = "dvd_subtitle";
std::string const IFormatCodecSubtitle::CODEC_ID_HDMV_PGS_SUBTITLE = "hdmv_pgs_subtitle";
std::string const IFormatCodecSubtitle::CODEC_ID_XSUB = "xsub";
std::string const IFormatCodecSubtitle::CODEC_ID_SUBRIP = "subrip";
std::string const IFormatCodecSubtitle::CODEC_ID_TEXT = "text";
std::string const IFormatCodecSubtitle::CODEC_ID_ASS = "ass";
std::string const IFormatCodecSubtitle::CODEC_ID_SSA = "ssa";
std::string const IFormatCodecSubtitle::CODEC_ID_MOV_TEXT = "mov_text";
std::string const IFormatCodecSubtitle::CODEC_ID_WEBVTT = "webvtt";
std::string const IFormatCodecSubtitle::CODEC_ID_SAMI = "sami";

} // namespace Korvex::Conf
