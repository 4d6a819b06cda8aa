#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/TrackMarks.h"

#include <optional>
#include <string>

namespace Korvex::Converter::Subtitles::UseCases
{

/// What the name of a subtitle file beside a film says about the track.
struct SidecarLabels
{
    std::string language; ///< short name, lower case; empty when the name says nothing
    Entities::TrackMarks marks;
};

/// Reads the name of a subtitle file that lies beside a film.
///
/// A name belongs to the film when it is the film's base name, or that name followed by marks that are all understood:
/// a language (a code of the language table, or its English name), "forced", "sdh", "cc", "hi" after a language,
/// "commentary", "sub" and the like, "cd1", a number after a language. Letter case and the way accents are composed do
/// not count. "Movie 2.srt" thus never belongs to "Movie".
class KVSUBTITLES_API SidecarName
{
public:
    /// @param mediaStem the film's file name without its extension, UTF-8
    explicit SidecarName(std::string const& mediaStem);

    /// Empty when the file does not belong to the film.
    /// @param stem the subtitle file's name without its extension, UTF-8
    [[nodiscard]] std::optional<SidecarLabels> Parse(std::string const& stem) const;

    /// Whether `otherStem`, the name of another film, begins with this film's name and so has the better claim to the
    /// subtitle file `stem`.
    [[nodiscard]] bool IsOutdoneBy(std::string const& otherStem, std::string const& stem) const;

private:
    std::string m_mediaStem; ///< folded
};

} // namespace Korvex::Converter::Subtitles::UseCases
