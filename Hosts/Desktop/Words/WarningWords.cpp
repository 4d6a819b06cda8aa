#include "Desktop/Words/WarningWords.h"
#include "Desktop/Words/ErrorClauses.h"
#include "Desktop/Words/TimeTexts.h"

#include "Proc/Warning.h"

#include <QCoreApplication>

namespace Korvex::Desktop
{

namespace
{

using Proc::WarningCode;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(WarningWords)
};

QString ToText(std::string const& utf8)
{
    return QString::fromStdString(utf8);
}

/// %1: the track's number, %2: the file, %3: the codec, %4: the format.
QString FindTrackSentence(WarningCode code)
{
    switch (code)
    {
    case WarningCode::SecondPictureLeftOut:
        return Texts::tr("Track %1 of \"%2\" (a second picture, %3) was left out, because %4 cannot hold it.");
    case WarningCode::CoverPictureLeftOut:
        return Texts::tr("Track %1 of \"%2\" (a cover picture, %3) was left out, because %4 cannot hold it.");
    case WarningCode::FurtherSoundLeftOut:
        return Texts::tr("Track %1 of \"%2\" (a further sound track, %3) was left out, because %4 cannot hold it.");
    default:
        return Texts::tr("Track %1 of \"%2\" (a sound track, %3) was left out, because nothing in it can be read.");
    }
}

} // namespace

QString Describe(Proc::Warning const& warning)
{
    QString const file = ToText(warning.file.utf8string());
    QString const format = ToText(warning.container);
    int const count = static_cast<int>(warning.count);
    switch (warning.code)
    {
    case WarningCode::PictureEncodedAnew:
        return Texts::tr("The picture of \"%1\" was encoded anew, because %2 cannot hold it as it is.")
            .arg(file, format);
    case WarningCode::AttachmentsLeftOut:
        return Texts::tr("Files attached to \"%1\", for example fonts, were left out, because %2 cannot hold them.")
            .arg(file, format);
    case WarningCode::SecondPictureLeftOut:
    case WarningCode::CoverPictureLeftOut:
    case WarningCode::FurtherSoundLeftOut:
        return FindTrackSentence(warning.code)
            .arg(ToText(warning.track), file, ShortenCodecName(warning.codec), format);
    case WarningCode::UnreadableSoundLeftOut:
        return FindTrackSentence(warning.code).arg(ToText(warning.track), file, ShortenCodecName(warning.codec));
    case WarningCode::SubtitlesWithoutFile:
        return warning.title.empty() ? Texts::tr("A subtitle track was left out, because its file is missing.")
                                     : Texts::tr("The subtitle track \"%1\" was left out, because its file is missing.")
                                           .arg(ToText(warning.title));
    case WarningCode::BytesNotDecoded:
        return Texts::tr("%n byte(s) of \"%1\" could not be read as %2 and show as \"%3\": check the encoding.",
                         nullptr, count)
            .arg(file, ToText(warning.encoding), QString(QChar(QChar::ReplacementCharacter)));
    case WarningCode::CuesWithoutTimes:
        return Texts::tr("%n cue(s) of \"%1\" without usable times were left out.", nullptr, count).arg(file);
    case WarningCode::CuesWithoutDuration:
        return Texts::tr("%n cue(s) of \"%1\" of no duration were left out.", nullptr, count).arg(file);
    case WarningCode::PicturesDamaged:
        return Texts::tr("Some pictures of \"%1\" are damaged; they may be missing or look wrong.").arg(file);
    case WarningCode::EndsEarly:
        break;
    }
    return Texts::tr("\"%1\" breaks off after %2 of %3, and so does the new film.")
        .arg(file, FormatTime(warning.done, warning.total), FormatTime(warning.total, warning.total));
}

} // namespace Korvex::Desktop
