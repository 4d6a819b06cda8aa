#pragma once

#include "Core/Export.h"

#include <string>

namespace Korvex::Conf
{

/// Identifiers of container and subtitle file formats. They are FFmpeg's own muxer or demuxer names where FFmpeg has
/// one; compare them exactly.
struct KORVEX_PLATFORM_API IFormatFile
{
    static std::string const FORMAT_MATROSKA; ///< "matroska"
    static std::string const FORMAT_MP4;      ///< "mp4"
    static std::string const FORMAT_MOV;      ///< "mov"
    static std::string const FORMAT_MPEGTS;   ///< "mpegts"
    static std::string const FORMAT_MPEG2TS;  ///< "m2ts", FFmpeg's mpegts muxer in its 192-byte packet mode
    static std::string const FORMAT_AVI;      ///< "avi"
    static std::string const FORMAT_FLV;      ///< "flv"
    static std::string const FORMAT_SRT;      ///< "srt"
    static std::string const FORMAT_ASS;      ///< "ass"
    static std::string const FORMAT_SSA;      ///< "ssa", no FFmpeg name: SubStation Alpha version 4 and older
};

} // namespace Korvex::Conf
