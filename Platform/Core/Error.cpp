#include "Core/Error.h"

namespace Korvex::Core
{

namespace
{

std::string Quoted(ioPath const& path)
{
    return "\"" + path.utf8string() + "\"";
}

/// `head`, then the detail in brackets where there is one, then `tail`.
std::string WithDetail(std::string head, Error const& error, std::string const& tail)
{
    if (!error.detail.empty())
        head += " (" + error.detail + ")";
    return head + tail;
}

std::string CannotCarry(Error const& error)
{
    std::string sentence = "Track " + error.track + " of " + Quoted(error.file) + " is " + error.codec + ", which " +
                           error.container + " cannot carry";
    return sentence + (error.detail.empty() ? std::string(".") : ": " + error.detail + ".");
}

} // namespace

std::string ToSentence(Error const& error)
{
    std::string const file = Quoted(error.file);
    switch (error.code)
    {
    case ErrorCode::FileNotFound:
        return "The file " + file + " does not exist; check its name.";
    case ErrorCode::FileUnreadable:
        return WithDetail("The file " + file + " cannot be read", error, "; check that you may open it.");
    case ErrorCode::FileEmpty:
        return "The file " + file + " is empty; choose another one.";
    case ErrorCode::FormatUnknown:
        return WithDetail("The file " + file + " is in no format that is known here", error, "; choose another file.");
    case ErrorCode::FileDamaged:
        return WithDetail("The file " + file + " is damaged", error, "; try to get a complete copy.");
    case ErrorCode::NoSuchTrack:
        return "The file " + file + " has no track " + error.track + "; \"korvex tracks\" lists the tracks it has.";
    case ErrorCode::TrackNotSubtitle:
        return "Track " + error.track + " of " + file +
               " is not a subtitle track; \"korvex tracks\" lists those it has.";
    case ErrorCode::CodecNotSupported:
        return WithDetail("The codec " + error.codec + " of " + file + " is not supported here", error,
                          "; choose another one.");
    case ErrorCode::ContainerUnknown:
        return "The output format of " + file + " is not known (" + error.container +
               "); \"korvex formats\" lists those that are.";
    case ErrorCode::ContainerCannotCarry:
        return CannotCarry(error);
    case ErrorCode::NothingToConvert:
        return "The file " + file + " has neither picture nor sound to convert; choose another file.";
    case ErrorCode::NoUsableFont:
        return WithDetail("No usable font is installed, so the text of " + file + " cannot be drawn", error,
                          "; install one, for example the package fonts-dejavu-core.");
    case ErrorCode::OutputExists:
        return "The output " + file + " exists already; choose another name or allow overwriting.";
    case ErrorCode::OutputIsInput:
        return "The output " + file + " is also an input; choose another name for the output.";
    case ErrorCode::OutputFolderMissing:
        return "The folder of the output " + file + " does not exist; create it first.";
    case ErrorCode::OutputNotWritable:
        return WithDetail("The output " + file + " cannot be written", error,
                          "; check that you may write to its folder.");
    case ErrorCode::DiskFull:
        return "The disk is full, so " + file + " could not be written; free some space or choose another folder.";
    case ErrorCode::InvalidSetting:
        return WithDetail("A setting for " + file + " is not valid", error, "; correct it and try again.");
    case ErrorCode::Cancelled:
        return "The conversion of " + file + " was cancelled; nothing was written.";
    case ErrorCode::Internal:
        break;
    }
    return WithDetail("Working on " + file + " failed", error, "; please report this with the file's kind.");
}

} // namespace Korvex::Core
