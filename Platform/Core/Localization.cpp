#include "Core/Localization.h"

#include "Core/CoreManager.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace Korvex::Core
{

ILocalizationManager::~ILocalizationManager() = default;

namespace
{

using Entry = std::pair<std::string_view, std::string_view>;

/// Display names of codecs and containers: names of formats, alike in every language. Sorted by identifier.
constexpr std::array CORE_TEXTS{
    Entry{"aac", "AAC"},
    Entry{"ac3", "Dolby Digital"},
    Entry{"ass", "ASS"},
    Entry{"av1", "AV1"},
    Entry{"avi", "AVI"},
    Entry{"dts", "DTS"},
    Entry{"dvb_subtitle", "DVB"},
    Entry{"dvb_teletext", "Teletext"},
    Entry{"dvd_subtitle", "VobSub"},
    Entry{"eac3", "Dolby Digital Plus"},
    Entry{"eia_608", "CEA-608"},
    Entry{"flac", "FLAC"},
    Entry{"flv", "FLV"},
    Entry{"h264", "H.264"},
    Entry{"hdmv_pgs_subtitle", "PGS"},
    Entry{"hdmv_text_subtitle", "HDMV text"},
    Entry{"hevc", "HEVC"},
    Entry{"m2ts", "M2TS"},
    Entry{"matroska", "Matroska"},
    Entry{"microdvd", "MicroDVD"},
    Entry{"mov", "MOV"},
    Entry{"mov_text", "MP4 text"},
    Entry{"mp3", "MP3"},
    Entry{"mp4", "MP4"},
    Entry{"mpeg2video", "MPEG-2"},
    Entry{"mpeg4", "MPEG-4"},
    Entry{"mpegts", "MPEG-TS"},
    Entry{"opus", "Opus"},
    Entry{"sami", "SAMI"},
    Entry{"ssa", "SSA"},
    Entry{"subrip", "SubRip"},
    Entry{"subviewer", "SubViewer"},
    Entry{"text", "Text"},
    Entry{"ttml", "TTML"},
    Entry{"vorbis", "Vorbis"},
    Entry{"vp8", "VP8"},
    Entry{"vp9", "VP9"},
    Entry{"webvtt", "WebVTT"},
    Entry{"xsub", "XSUB"},
};

class CoreTexts final : public ILocalizationManager
{
public:
    [[nodiscard]] std::string Translate(std::string const& text) const override
    {
        auto const found = std::lower_bound(CORE_TEXTS.begin(), CORE_TEXTS.end(), std::string_view(text),
                                            [](Entry const& entry, std::string_view id) { return entry.first < id; });
        return found != CORE_TEXTS.end() && found->first == text ? std::string(found->second) : text;
    }
};

class NoTexts final : public ILocalizationManager
{
public:
    [[nodiscard]] std::string Translate(std::string const& text) const override { return text; }
};

} // namespace

ILocalizationManager const& GetLocalizationManagerForDomain(std::string const& domain)
{
    static CoreTexts const CORE;
    static NoTexts const NONE;
    if (domain == CoreManager::MESSAGE_DOMAIN)
        return CORE;
    return NONE;
}

} // namespace Korvex::Core
