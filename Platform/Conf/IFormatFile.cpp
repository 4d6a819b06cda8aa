#include "Conf/IFormatFile.h"

namespace Korvex::Conf
{

std::string const IFormatFile::FORMAT_MATROSKA = "matroska";
std::string const IFormatFile::FORMAT_MP4 = "mp4";
std::string const IFormatFile::FORMAT_MOV = "mov";
std::string const IFormatFile::FORMAT_MPEGTS = "mpegts";
std::string const IFormatFile::FORMAT_MPEG2TS = "m2ts";
std::string const IFormatFile::FORMAT_AVI = "avi";
std::string const IFormatFile::FORMAT_FLV = "flv";
std::string const IFormatFile::FORMAT_SRT = "srt";
std::string const IFormatFile::FORMAT_ASS = "ass";
std::string const IFormatFile::FORMAT_SSA = "ssa";

} // namespace Korvex::Conf
