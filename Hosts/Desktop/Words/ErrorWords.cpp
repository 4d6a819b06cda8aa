#include "Desktop/Words/ErrorWords.h"

#include "Desktop/Films/FileKinds.h"
#include "Desktop/Words/ErrorClauses.h"

#include "Core/Error.h"

#include <QCoreApplication>

namespace Korvex::Desktop
{

namespace
{

using Core::ErrorCode;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(ErrorWords)
};

QString ToText(std::string const& utf8)
{
    return QString::fromStdString(utf8);
}

/// The clause in brackets, to stand behind a word; nothing where there is none.
QString InBrackets(QString const& clause)
{
    return clause.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(clause);
}

/// The core counts the one text of a subtitle file as track 0.
QString NameTrack(Core::Error const& error)
{
    QString const file = ToText(error.file.utf8string());
    if (error.track.empty() || (error.track == "0" && IsSubtitleFileName(error.file)))
        return Texts::tr("\"%1\"").arg(file);
    return Texts::tr("Track %1 of \"%2\"").arg(ToText(error.track), file);
}

QString DescribeMissingTrack(Core::Error const& error)
{
    bool const isNumber = !error.track.empty() && error.track.front() >= '0' && error.track.front() <= '9';
    QString const file = ToText(error.file.utf8string());
    return isNumber ? Texts::tr("The file \"%1\" has no track %2: choose another track.").arg(file, ToText(error.track))
                    : Texts::tr("The file \"%1\" has no subtitle track: choose another file.").arg(file);
}

QString DescribeCannotCarry(Core::Error const& error)
{
    QString const advice = error.detail.empty() ? Texts::tr("choose another format, draw it in or leave it out")
                                                : TranslateClause(error.detail);
    //: %1: a track or a file, %2: its codec, %3: a format or a kind of file, %4: what to do
    return Texts::tr("%1 is %2, which %3 cannot hold: %4.")
        .arg(NameTrack(error), ShortenCodecName(error.codec), TranslateClause(error.container), advice);
}

/// Sentences with room for a reason in brackets as %2.
QString FindReasonedSentence(ErrorCode code)
{
    switch (code)
    {
    case ErrorCode::FileUnreadable:
        //: %2: a reason in brackets or nothing
        return Texts::tr("The file \"%1\" cannot be read%2: choose another one, or check that you may open it.");
    case ErrorCode::FormatUnknown:
        //: %2: a reason in brackets or nothing
        return Texts::tr("The file \"%1\" is of no kind that can be used here%2: choose another one.");
    case ErrorCode::FileDamaged:
        //: %2: a reason in brackets or nothing
        return Texts::tr("The file \"%1\" is damaged%2: try to get a complete copy.");
    case ErrorCode::NoUsableFont:
        //: %2: a reason in brackets or nothing
        return Texts::tr("The text of \"%1\" cannot be drawn, because no usable font is installed%2: install one, for "
                         "example DejaVu Sans.");
    case ErrorCode::OutputNotWritable:
        //: %2: a reason in brackets or nothing
        return Texts::tr("The file \"%1\" cannot be written%2: choose another folder, or check that you may write to "
                         "this one.");
    case ErrorCode::InvalidSetting:
        //: %2: a reason in brackets or nothing
        return Texts::tr("A setting for \"%1\" is not valid%2: correct it and try again.");
    default:
        //: %2: a reason in brackets or nothing
        return Texts::tr("Work on \"%1\" failed%2: try again, and report it if it fails again.");
    }
}

} // namespace

QString Describe(Core::Error const& error)
{
    QString const file = ToText(error.file.utf8string());
    QString const reason = InBrackets(TranslateClause(error.detail));
    switch (error.code)
    {
    case ErrorCode::FileNotFound:
        return Texts::tr("The file \"%1\" does not exist any more: choose another one.").arg(file);
    case ErrorCode::FileEmpty:
        return Texts::tr("The file \"%1\" is empty: choose another one.").arg(file);
    case ErrorCode::NoSuchTrack:
        return DescribeMissingTrack(error);
    case ErrorCode::TrackNotSubtitle:
        return Texts::tr("Track %1 of \"%2\" is not a subtitle track: choose another one.")
            .arg(ToText(error.track), file);
    case ErrorCode::CodecNotSupported:
        //: %2: a codec, %3: a reason in brackets or nothing
        return Texts::tr("The codec of \"%1\", %2, cannot be used here%3: choose another file or another format.")
            .arg(file, ShortenCodecName(error.codec), reason);
    case ErrorCode::ContainerUnknown:
        //: %2: what was asked for, in brackets, or nothing
        return Texts::tr("The format of \"%1\" is not known%2: choose another one.")
            .arg(file, InBrackets(ToText(error.container)));
    case ErrorCode::ContainerCannotCarry:
        return DescribeCannotCarry(error);
    case ErrorCode::NothingToConvert:
        return Texts::tr("The file \"%1\" has neither picture nor sound: choose another one.").arg(file);
    case ErrorCode::OutputExists:
        return Texts::tr("The file \"%1\" exists already: choose another name.").arg(file);
    case ErrorCode::OutputIsInput:
        return Texts::tr("The file \"%1\" is being read, so it cannot be written: choose another name.").arg(file);
    case ErrorCode::OutputFolderMissing:
        return Texts::tr("The folder of \"%1\" does not exist: create it, or choose another one.").arg(file);
    case ErrorCode::DiskFull:
        return Texts::tr("The disk is full, so \"%1\" was not written: free some space, or choose another folder.")
            .arg(file);
    case ErrorCode::Cancelled:
        return Texts::tr("Work on \"%1\" was cancelled: start it again if you want it.").arg(file);
    case ErrorCode::FileUnreadable:
    case ErrorCode::FormatUnknown:
    case ErrorCode::FileDamaged:
    case ErrorCode::NoUsableFont:
    case ErrorCode::OutputNotWritable:
    case ErrorCode::InvalidSetting:
    case ErrorCode::Internal:
        break;
    }
    return FindReasonedSentence(error.code).arg(file, reason);
}

} // namespace Korvex::Desktop
