#include "Hosts/Desktop/FilmFixture.h"

#include "Cli/CommandLine.h"
#include "Cli/Console.h"
#include "Cli/ConvertCommand.h"
#include "Cli/SubtitleOptions.h"
#include "Common/MediaItemSession.h"
#include "Common/SoftPlan.h"
#include "Common/WorkFolder.h"
#include "Desktop/Conversion/ConversionSetup.h"
#include "Desktop/Films/CommandLineText.h"
#include "Desktop/Films/ConversionJob.h"

#include "Core/FileSystem.h"
#include "Proc/Settings.h"
#include "Transcoder/ITranscoderInteractor.h"

#include <QProcess>

#include <gmock/gmock.h>

#include <sstream>

namespace Korvex::Testing
{
namespace
{

using Converter::Subtitles::Entities::SubtitleAlign;
using Converter::Subtitles::Entities::SubtitleEncoding;
using Converter::Transcoder::Entities::ConversionRequest;
using Converter::Transcoder::Entities::Preset;
using Desktop::CommandLineText;
using Desktop::Film;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

/// All that the settings say, as text. Of files their contents: working files lie elsewhere each time.
std::string Describe(ConversionRequest const& request)
{
    std::ostringstream text;
    if (request.mixer)
    {
        auto const& drawer = request.mixer->GetDrawerSettings();
        auto const& look = drawer.GetAssRendererSettings();
        text << "drawn: " << request.mixer->GetSubtitleStreamIndex().value_or(99) << ' '
             << request.mixer->GetFilename().utf8string() << ' ' << request.mixer->GetEncoding() << ' '
             << static_cast<int>(drawer.GetHorizontalAlignment()) << static_cast<int>(drawer.GetVerticalAligment())
             << ' ' << drawer.GetTimeShift() << ' ' << drawer.GetMoveUp() << ' ' << look.GetFontName() << ' '
             << look.GetFontSize() << ' ' << look.GetFlags();
        for (auto const& color : {look.GetPrimaryColour(), look.GetOutlineColour()})
            text << ' ' << +color.red << ',' << +color.green << ',' << +color.blue;
    }
    if (request.soft)
        for (Proc::SubtitleTrack const& track : request.soft->GetTracksInfo())
        {
            bool const isFile = track.kind == Proc::SubtitleTrack::Kind::File;
            text << "track: " << static_cast<int>(track.kind) << ' ' << track.streamIndex << ' ' << track.language
                 << " '" << track.title << "' " << track.isDefault.value_or(false) << track.isForced.value_or(false)
                 << track.isHearingImpaired.value_or(false) << ' ' << track.standsForStream.value_or(99) << ' '
                 << (isFile ? *Core::ReadFile(track.path, 100'000) : std::string()) << '\n';
        }
    return text.str();
}

class CommandLineTextTest : public FilmFixture
{
protected:
    /// What the desktop's own conversion would be given.
    std::string DescribeFilm(Film const& film)
    {
        Desktop::ConversionJob job = film.MakeJob(m_list.GetOutput());
        if (Desktop::AsksForAllSoft(job))
        {
            auto const plan = Hosts::MakeSoftPlan(m_services, job.media, job.collection, job.preset.formatId);
            auto const written = Hosts::CarryOut(plan, m_work);
            EXPECT_TRUE(written);
            Hosts::PutIn(*written, job.collection);
        }
        auto const request = Desktop::MakeConversionRequest(m_services, job);
        EXPECT_TRUE(request);
        return request ? Describe(*request) : std::string();
    }

    /// What the command line makes of the words.
    std::string DescribeWords(CommandLineText const& line)
    {
        std::vector<std::string> const words(line.words.begin() + 2, line.words.end());
        auto const arguments = Cli::ParseArguments(words, Cli::ConvertCommand().Options());
        auto const choice = Cli::ReadSubtitleOptions(arguments, Cli::SubtitlePurpose::Convert);
        Preset preset;
        preset.formatId = m_list.GetOutput().formatId;
        Hosts::MediaItemSession session(m_services);
        session.Open(arguments.inputs.front(), preset, choice);
        session.Apply(choice);
        return Describe(session.MakeRequest());
    }

    CommandLineText Check(Film const& film, std::size_t unsaid = 0)
    {
        CommandLineText line = Desktop::MakeCommandLine(film, m_list.GetOutput());
        EXPECT_EQ(line.unsaid.size(), static_cast<int>(unsaid)) << line.unsaid.join("\n").toStdString();
        EXPECT_EQ(DescribeWords(line), DescribeFilm(film)) << Desktop::QuoteWords(line.words, Desktop::Shell::Posix);
        return line;
    }

    Hosts::WorkFolder m_work;
};

TEST_F(CommandLineTextTest, TracksFilesAndTheirMarksArriveAsTheyAre)
{
    MadeSubtitle own = MakeSubtitle("subrip", "ger");
    own.isDefault = true;
    SubtitleTrackID const beside(WriteText("film.en.sdh.srt", HELLO_SRT));
    SubtitleTrackID const added(WriteText("it's added.srt", RUSSIAN_SRT));
    Film& film = Open(MakeFilm("film.mkv", {own, MakeSubtitle("ass", "fre"), MakeSubtitle("subrip", "ita")}));
    EXPECT_EQ(Check(film).words.size(), 5U) << "what goes without saying is not said";

    film.AddSubtitleFiles({ioPath(added.ToString())});
    film.ChooseAllSoft();
    film.LeaveOut(SubtitleTrackID(3U));
    film.SetTrackProperties(added, {"ru", "First; second", true, true});
    film.SetTrackProperties(beside, {"en", "Better", false, false});
    EXPECT_THAT(Check(film).words, Contains("2,4"));

    for (SubtitleTrackID const& id : {beside, added})
    {
        film.SetOffset(id, -0.125);
        film.SetEncoding(id, SubtitleEncoding::KOI8R);
    }
    SetFormat("mp4");
    EXPECT_THAT(Check(film).words, Contains("KOI8-R"));

    film.LeaveOut(beside);
    EXPECT_THAT(Check(film).words, Contains("--no-lookup"));
    film.ChooseNone();
    EXPECT_THAT(Check(film).words, Contains("--no-subtitles"));
}

TEST_F(CommandLineTextTest, ADrawnTrackArrivesWithItsLook)
{
    Film& film = Open(MakeFilm("film.mkv", {MakeSubtitle("subrip", "ger"), MakeSubtitle("ass", "fre")}));
    film.ChooseTrack(SubtitleTrackID(2U));
    auto look = film.GetCollection().textSettings;
    look.font = QFont("DejaVu Serif", 31);
    look.font.setBold(true);
    look.font.setItalic(true);
    look.font.setUnderline(true);
    look.font.setStrikeOut(true);
    look.textColor = QColor("#ffcc00");
    look.outlineColor = QColor("navy");
    look.align = SubtitleAlign::VerticalCenter;
    look.positionShift = -7;
    film.SetLook(look);
    film.SetOffset(SubtitleTrackID(2U), 1.234567);
    EXPECT_THAT(Check(film).words, Contains("1.234567"));

    ioPath const file = WriteText("-odd $name's \"file\".srt", RUSSIAN_SRT);
    film.AddSubtitleFiles({file});
    film.SetEncoding(SubtitleTrackID(file), SubtitleEncoding::Windows1251);
    Check(film);

    film.SetLook({});
    film.ChooseTrack(SubtitleTrackID(3U));
    EXPECT_THAT(Check(film).words, Contains("--burn=3"));
}

TEST_F(CommandLineTextTest, WhatCannotBeSaidIsTold)
{
    SubtitleTrackID const beside(WriteText("film.en.srt", HELLO_SRT));
    Film& film = Open(MakeFilm("film.mkv", {MakeSubtitle("subrip", "ger")}));
    film.SetTrackProperties(SubtitleTrackID(2U), {"ger", "Named", true, false});
    film.SetTrackProperties(beside, {"", "", false, false});
    film.SetOffset(beside, 1.0);
    film.SetOffset(SubtitleTrackID(2U), 2.0);
    CommandLineText const line = Desktop::MakeCommandLine(film, m_list.GetOutput());
    EXPECT_EQ(line.unsaid.size(), 4) << line.unsaid.join("\n").toStdString();
    EXPECT_THAT(line.words, Not(Contains("--offset")));
}

TEST_F(CommandLineTextTest, TheLineConvertsWhenItIsPastedIntoAShell)
{
    ioPath const file = WriteText("it's $HOME; \xD0\xB0 `x`.srt", HELLO_SRT);
    Film& film = Open(MakeFilm("film.mkv", {MakeSubtitle("subrip", "ger")}));
    film.AddSubtitleFiles({file});
    film.ChooseAllSoft();
    m_list.SetOutput({"mp4", Desktop::Quality::Small, {}});
    CommandLineText const line = Check(film);
    QProcess shell;
    QString const quoted = QString::fromStdString(Desktop::QuoteWords(line.words, Desktop::Shell::Posix));
    shell.start("sh", {"-c", "printf '%s\\n' " + quoted});
    ASSERT_TRUE(shell.waitForFinished());
    std::string joined;
    for (std::string const& word : line.words)
        joined += word + "\n";
    EXPECT_EQ(shell.readAllStandardOutput().toStdString(), joined);
    EXPECT_EQ(Desktop::QuoteWords({"korvex", "C:\\My films\\", "50% \"a\""}, Desktop::Shell::WindowsCommand),
              "korvex ^\"C:\\My films\\\\^\" ^\"50^% \\^\"a\\^\"^\"");

    std::ostringstream out;
    std::ostringstream err;
    Cli::Console console{out, err, false, [] { return false; }};
    EXPECT_EQ(Cli::Run({line.words.begin() + 1, line.words.end()}, console), 0) << err.str();
    auto const written = Proc::ProbeMedia(m_folder / "film.mp4");
    ASSERT_TRUE(written);
    EXPECT_EQ(written->streams.size(), 4U);
}

} // namespace
} // namespace Korvex::Testing
