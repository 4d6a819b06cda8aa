#pragma once

#include <string>

namespace Korvex::Converter::Transcoder::Entities
{

/// What the user chose for the output, apart from subtitles.
struct Preset
{
    std::string formatId;                 ///< a Conf::IFormatFile container
    std::string videoCodecId;             ///< empty: copy when possible, else H.264
    std::string audioCodecId;             ///< empty: copy when possible, else AAC
    int crf = 20;                         ///< libx264's constant rate factor, 0 (lossless) to 51
    std::string encoderPreset = "medium"; ///< libx264's name
};

} // namespace Korvex::Converter::Transcoder::Entities
