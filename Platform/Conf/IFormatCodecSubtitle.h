#pragma once

#include "Core/Export.h"

#include <string>

namespace Korvex::Conf
{

/// Identifiers of subtitle codecs, FFmpeg's own names.
struct KORVEX_PLATFORM_API IFormatCodecSubtitle
{
    static std::string const CODEC_ID_DVB_SUBTITLE;      ///< "dvb_subtitle"
    static std::string const CODEC_ID_DVB_TELETEXT;      ///< "dvb_teletext"
    static std::string const CODEC_ID_DVD_SUBTITLE;      ///< "dvd_subtitle"
    static std::string const CODEC_ID_HDMV_PGS_SUBTITLE; ///< "hdmv_pgs_subtitle"
    static std::string const CODEC_ID_XSUB;              ///< "xsub"
    static std::string const CODEC_ID_SUBRIP;            ///< "subrip"
    static std::string const CODEC_ID_TEXT;              ///< "text"
    static std::string const CODEC_ID_ASS;               ///< "ass"
    static std::string const CODEC_ID_SSA;               ///< "ssa"
    static std::string const CODEC_ID_MOV_TEXT;          ///< "mov_text"
    static std::string const CODEC_ID_WEBVTT;            ///< "webvtt"
    static std::string const CODEC_ID_SAMI;              ///< "sami"
};

} // namespace Korvex::Conf
