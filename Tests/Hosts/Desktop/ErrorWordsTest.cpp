#include "Desktop/Words/ErrorWords.h"

#include "Core/Error.h"
#include "Core/FileSystem.h"
#include "Desktop/Words/Languages.h"
#include "Desktop/Words/WarningWords.h"
#include "Proc/SubtitleExport.h"
#include "Proc/TextSample.h"
#include "Proc/Warning.h"
#include "Support/MediaMaker.h"

#include <gmock/gmock.h>

namespace Korvex::Desktop
{
namespace
{

using Core::ErrorCode;
using testing::HasSubstr;
using testing::Not;

std::string Say(Core::Error const& error)
{
    return Describe(error).toStdString();
}

Core::Error MakeError(ErrorCode code, std::string const& detail)
{
    return {code, ioPath("Der Film.mkv"), "3", "PGS", "MP4", detail};
}

class ErrorWordsTest : public testing::Test
{
protected:
    /// What the core says of a try to save text as a file of pictures.
    [[nodiscard]] Core::Error SaveTextAsPictures() const
    {
        Testing::MadeMedia film;
        film.video.emplace();
        film.subtitles = {Testing::MakeSubtitle("subrip")};
        Testing::MakeMedia(m_folder / "film.mkv", film);
        Proc::SubtitleSource source;
        source.path = m_folder / "film.mkv";
        source.streamIndex = 1;
        return Proc::ExtractSubtitle(source, m_folder / "film.sup").GetError();
    }

    Testing::TemporaryFolder m_folder;
    Languages m_languages;
};

TEST_F(ErrorWordsTest, NameTheFileAndNoOptionInEveryLanguage)
{
    for (Language const& language : Languages::List())
    {
        m_languages.Switch(language.code);
        for (int code = 0; code <= static_cast<int>(ErrorCode::Internal); ++code)
            for (std::string const detail : {"", "it is a folder"})
            {
                std::string const sentence = Say(MakeError(static_cast<ErrorCode>(code), detail));
                SCOPED_TRACE(language.code.toStdString() + ": " + sentence);
                EXPECT_THAT(sentence, HasSubstr("Der Film.mkv"));
                EXPECT_THAT(sentence, testing::AnyOf(testing::EndsWith("."), testing::EndsWith("\u3002")));
                EXPECT_THAT(sentence, Not(testing::ContainsRegex("korvex|--|%[0-9n]")));
            }
    }
}

// The clauses are known by their wording alone, which belongs to the core.
TEST_F(ErrorWordsTest, KnowTheClausesThatTheCoreReallyUses)
{
    m_languages.Switch("de");
    ASSERT_FALSE(Core::WriteFile(m_folder / "film.srt", "1\n00:00:01,000 --> 00:00:02,000\nText\n", false));
    EXPECT_THAT(Say(Core::ReadFile(m_folder.Path(), 1).GetError()), HasSubstr("(es ist ein Ordner)"));
    EXPECT_THAT(Say(Core::ReadFile(m_folder / "film.srt", 9).GetError()), HasSubstr("(sie ist größer als 9 Bytes)"));
    EXPECT_THAT(Say(*Core::CheckOutput(m_folder.Path(), {}, true)), HasSubstr("(das ist ein Ordner)"));
    EXPECT_THAT(Say(*Core::CheckOutput("/dev/null", {}, true)), HasSubstr("(das ist ein Gerät"));
    EXPECT_THAT(Say(Proc::ReadTextSample(m_folder / "film.srt", "CP9999").GetError()),
                HasSubstr("(die Textkodierung „CP9999“ ist nicht bekannt)"));
    EXPECT_EQ(Say(SaveTextAsPictures()),
              "Spur 1 von „" + (m_folder / "film.mkv").utf8string() +
                  "“ ist SubRip, was eine .sup-Datei nicht aufnehmen kann: Speichern Sie sie "
                  "stattdessen als .srt.");
    EXPECT_EQ(
        Say(MakeError(ErrorCode::CodecNotSupported, "its encoder refuses the picture (4x2): Permission denied")),
        "Der Codec von „Der Film.mkv“, PGS, ist hier nicht verwendbar (sein Encoder nimmt das Bild nicht an (4x2): "
        "Sie dürfen das nicht): Wählen Sie eine andere Datei oder ein anderes Format.");
    Proc::Warning leftOut;
    leftOut.code = Proc::WarningCode::FurtherSoundLeftOut;
    leftOut.file = "Der Film.mkv";
    leftOut.track = "2";
    leftOut.codec = "AAC (Advanced Audio Coding) (aac)";
    leftOut.container = "FLV";
    EXPECT_EQ(Describe(leftOut).toStdString(),
              "Spur 2 von „Der Film.mkv“ (eine weitere Tonspur, AAC) wurde weggelassen, "
              "weil FLV sie nicht aufnehmen kann.");
    EXPECT_THAT(Say(MakeError(ErrorCode::Internal, "av_seek_frame: no idea")), HasSubstr("(av_seek_frame: no idea)"));
}

} // namespace
} // namespace Korvex::Desktop
