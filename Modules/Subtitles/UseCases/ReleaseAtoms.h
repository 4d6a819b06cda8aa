#pragma once

#include <QString>

#include <string>
#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{

/// What stood between a word of a release name and the one before it.
enum class Joint
{
    Blank,       ///< blanks, underscores, a bracket; also in front of the first word
    Dot,         ///< dots alone
    Hyphen,      ///< hyphens alone, as in "x264-GROUP"
    Dash,        ///< a hyphen with room at a side, as in "Title - 12"
    Alternative, ///< a slash or bar: another title follows
};

/// One word of a release name.
struct ReleaseAtom
{
    QString text; ///< as written; may keep a dot at its end ("Mr.")
    QString key;  ///< lower case, without punctuation at its ends
    Joint before = Joint::Blank;
    int bracket = 0; ///< number of the outermost bracket around it, from 1; 0 outside
    QChar bracketKind;
};

enum class NameKind
{
    Plain, ///< no extension that is known
    Film,
    Subtitle,
    Other,
};

struct ReleaseAtoms
{
    NameKind kind = NameKind::Plain;
    std::vector<ReleaseAtom> atoms;
    bool hasBlanks = false; ///< words outside of brackets are set apart by blanks, so dots may belong to them
};

/// Cuts a name into words. Bytes that are not UTF-8 are taken for Latin-1. Time is linear in the name's length.
[[nodiscard]] ReleaseAtoms SplitReleaseName(std::string const& name);

/// The words from `begin` to `end` with the dots and hyphens that stood between them.
[[nodiscard]] QString JoinAsWritten(ReleaseAtoms const& name, std::size_t begin, std::size_t end);

/// The same for a title: with blanks, but "Spider-Man" and "S.W.A.T." as they are; without what stands in square and
/// curly brackets, unless the title begins in them.
[[nodiscard]] QString JoinAsTitle(ReleaseAtoms const& name, std::size_t begin, std::size_t end);

/// The number that a text consists of; -1 when it has anything but one to four ASCII digits.
[[nodiscard]] int ParseSmallNumber(QString const& text);

} // namespace Korvex::Converter::Subtitles::UseCases
