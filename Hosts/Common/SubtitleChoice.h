#pragma once

#include "Core/ioPath.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Korvex::Hosts
{

/// A subtitle file that the user adds to a film.
struct AddedFile
{
    ioPath path;
    std::string language; ///< short name; empty: not stated
    std::string title;    ///< empty: none
    bool isDefault = false;
    bool isForced = false;
};

enum class SubtitleOutput
{
    Soft, ///< every listed track goes out as a switchable stream
    Burn, ///< one track is drawn into the picture
    None, ///< no subtitles go out
};

enum class SidecarLookUp
{
    BesideFilm,
    Off,
};

/// What becomes of tracks that a container cannot carry as they are.
enum class Preparation
{
    WriteWorkingFiles,
    Refuse,
};

/// How drawn text looks. What is not set stays as the module's defaults have it.
struct LookChoice
{
    std::optional<std::string> fontFamily;
    std::optional<int> fontSize; ///< lines of the 288-line frame
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruckOut = false;
    std::optional<std::string> textColor;    ///< "#rrggbb" or a name
    std::optional<std::string> outlineColor; ///< likewise
    std::optional<std::int32_t> align;       ///< a value of the module's SubtitleAlign
    std::optional<int> shiftLines;           ///< lines of the 288-line frame, positive moves up

    /// True when a font, its style or a colour is set: what only text without a look of its own takes.
    [[nodiscard]] bool HasStyle() const
    {
        return fontFamily || fontSize || isBold || isItalic || isUnderlined || isStruckOut || textColor || outlineColor;
    }
};

/// Everything that a user decides about the subtitles of a film.
struct SubtitleChoice
{
    std::optional<std::vector<std::string>> ownTracks; ///< identifiers of the film's own tracks; not set: all
    std::vector<AddedFile> added;
    SidecarLookUp lookUp = SidecarLookUp::BesideFilm;
    Preparation preparation = Preparation::WriteWorkingFiles;
    SubtitleOutput output = SubtitleOutput::Soft;
    std::string burnTrack;                ///< identifier; empty: the only candidate there is
    std::optional<std::int32_t> encoding; ///< a value of the module's SubtitleEncoding, for external text
    double offsetSeconds = 0.0;           ///< positive shows the text later
    LookChoice look;
};

} // namespace Korvex::Hosts
