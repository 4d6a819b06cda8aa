#include "Proc/Warning.h"

namespace Korvex::Proc
{

namespace
{

std::string Quoted(ioPath const& path)
{
    return "\"" + path.utf8string() + "\"";
}

std::string Counted(Warning const& warning, char const* noun)
{
    return std::to_string(warning.count) + " " + noun + (warning.count == 1 ? " of " : "s of ") + Quoted(warning.file);
}

std::string CuesLeftOut(Warning const& warning, char const* reason)
{
    return Counted(warning, "cue") + reason + (warning.count == 1 ? " and was left out." : " and were left out.");
}

std::string TrackLeftOut(Warning const& warning, char const* kind)
{
    bool const isUnreadable = warning.code == WarningCode::UnreadableSoundLeftOut;
    return "Track " + warning.track + " of " + Quoted(warning.file) + ", " + kind + " (" + warning.codec +
           "), is not in the output, because " +
           (isUnreadable ? "nothing in it can be read" : warning.container + " cannot carry it") + ".";
}

} // namespace

std::string ToSentence(Warning const& warning)
{
    switch (warning.code)
    {
    case WarningCode::PictureEncodedAnew:
        return "The picture of " + Quoted(warning.file) + " is encoded anew, because " + warning.container +
               " cannot carry it as it is.";
    case WarningCode::AttachmentsLeftOut:
        return "Files attached to " + Quoted(warning.file) + " (fonts, for example) are not in the output, because " +
               warning.container + " cannot carry them.";
    case WarningCode::SecondPictureLeftOut:
        return TrackLeftOut(warning, "a second picture");
    case WarningCode::CoverPictureLeftOut:
        return TrackLeftOut(warning, "a cover picture");
    case WarningCode::FurtherSoundLeftOut:
        return TrackLeftOut(warning, "a further sound track");
    case WarningCode::UnreadableSoundLeftOut:
        return TrackLeftOut(warning, "a sound track");
    case WarningCode::SubtitlesWithoutFile:
        return "A subtitle track without a file" + (warning.title.empty() ? "" : " (\"" + warning.title + "\")") +
               " is not in the output.";
    case WarningCode::BytesNotDecoded:
        return Counted(warning, "byte") + " did not decode as " + warning.encoding +
               " and show as \"\xEF\xBF\xBD\"; check the encoding.";
    case WarningCode::CuesWithoutTimes:
        return CuesLeftOut(warning, " had no usable times");
    case WarningCode::CuesWithoutDuration:
        return CuesLeftOut(warning, " had no duration");
    case WarningCode::PicturesDamaged:
        return "Some pictures of " + Quoted(warning.file) +
               " are damaged and may be missing or look wrong in the output.";
    case WarningCode::EndsEarly:
        break;
    }
    return Quoted(warning.file) + " ends after " + std::to_string(warning.done.count()) + " of " +
           std::to_string(warning.total.count()) + " seconds, and so does the output.";
}

} // namespace Korvex::Proc
