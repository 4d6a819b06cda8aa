#pragma once

#include "Subtitles/UseCases/ReleaseAtoms.h"

#include <optional>

namespace Korvex::Converter::Subtitles::UseCases
{

/// What a word of a release name tells about the release.
struct ReleaseTag
{
    enum class Kind
    {
        Resolution,
        Source,
        VideoCodec,
        Other,
    };
    /// How far the word can be trusted to be a tag and not part of the title.
    enum class Strength
    {
        Sure,     ///< wherever it stands
        Edition,  ///< at the end of the title, in front of the year, too ("EXTENDED")
        Tail,     ///< between the title and other tags
        UpperTail ///< the same, and only in capitals ("WEB", not "Charlotte's Web")
    };

    Kind kind = Kind::Other;
    Strength strength = Strength::Sure;
    QString value;        ///< in the spelling that `ReleaseName` uses
    std::size_t size = 1; ///< words that it consists of
};

/// The longest tag that begins with the word at `index`; none when the word is not one.
/// @param followsTag whether the word before is a tag, which makes "5.1" one
[[nodiscard]] std::optional<ReleaseTag> FindReleaseTag(std::vector<ReleaseAtom> const& atoms, std::size_t index,
                                                       bool followsTag);

/// A language as release names mention it: its English name, or a code of three letters in capitals.
[[nodiscard]] bool IsLanguageTag(ReleaseAtom const& atom);

/// What stands behind the name of a subtitle file: a language in any form, "forced", "sdh" and the like.
[[nodiscard]] bool IsSubtitleMark(ReleaseAtom const& atom);

} // namespace Korvex::Converter::Subtitles::UseCases
