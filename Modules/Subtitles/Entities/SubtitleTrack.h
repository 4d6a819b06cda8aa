#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/SubtitleEncoding.h"
#include "Subtitles/Entities/SubtitleTrackID.h"

#include "Core/ioPath.h"

#include <cstdint>
#include <string>

namespace Korvex::Converter::Subtitles::Entities
{

/// One subtitle track: a stream inside the media file, or an external subtitle file. Texts are UTF-8. A value type.
struct KVSUBTITLES_API SubtitleTrack
{
    /// The stream index of every track that is not a stream of the media file.
    static constexpr std::uint32_t NO_STREAM = 0xFFFFFFFFU;

    SubtitleTrack() = default;
    explicit SubtitleTrack(std::uint32_t streamNumber);
    explicit SubtitleTrack(ioPath const& file);

    [[nodiscard]] bool IsEmpty() const noexcept { return id.IsEmpty(); }

    SubtitleTrackID id;
    std::string title; ///< for an external file its file name
    ioPath path;       ///< of the external file; empty for a stream
    std::uint32_t streamIndex = NO_STREAM;
    SubtitleEncoding encoding = SubtitleEncoding::Auto;
    std::string language;               ///< short name as the core or a service reports it; may be empty
    double synchronizationOffset = 0.0; ///< seconds; positive shows the text later
    std::string detail;                 ///< tells tracks of one language apart: "Forced", "SDH", "Commentary"
    std::string codecId;                ///< the core's identifier
    std::string codecName;              ///< for display
    std::string extra;                  ///< of an external file: the character encoding that was detected
    bool isExternal = false;            ///< comes from an external subtitle file
    bool isForced = false;              ///< the container or the file name marks it as forced
    bool encodingEditable = false;      ///< its character encoding can be chosen
    bool styleEditable = false;         ///< its look can be restyled
};

/// Field by field; offsets compare as numbers.
[[nodiscard]] KVSUBTITLES_API bool operator==(SubtitleTrack const& a, SubtitleTrack const& b);
[[nodiscard]] inline bool operator!=(SubtitleTrack const& a, SubtitleTrack const& b)
{
    return !(a == b);
}

/// The text shown for a track in lists: title, [language], detail, (codec). UTF-8. The language is named in the
/// application's present language, so a list asks again when that changes.
[[nodiscard]] KVSUBTITLES_API std::string GenerateLabel(SubtitleTrack const& track);

} // namespace Korvex::Converter::Subtitles::Entities
