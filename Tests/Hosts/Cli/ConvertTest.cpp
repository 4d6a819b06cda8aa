#include "Hosts/Cli/CliRunner.h"

#include "Support/MediaMaker.h"

#include "Core/FileSystem.h"
#include "Proc/MediaInfo.h"
#include "Proc/SubtitleLoader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QByteArray>
#include <QJsonObject>
#include <QScopeGuard>

namespace Korvex::Testing
{
namespace
{

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// "Привет" and a line break in CP1251, long enough to be told from other encodings.
constexpr char const* CP1251_SRT = "1\r\n00:00:00,200 --> 00:00:00,800\r\n"
                                   "\xCF\xF0\xE8\xE2\xE5\xF2, \xFD\xF2\xEE \xEF\xE5\xF0\xE2\xE0\xFF "
                                   "\xF1\xF2\xF0\xEE\xEA\xE0 \xF4\xE8\xEB\xFC\xEC\xE0.\r\n"
                                   "\r\n2\r\n00:00:01,000 --> 00:00:01,800\r\n"
                                   "\xC0 \xFD\xF2\xEE \xE2\xF2\xEE\xF0\xE0\xFF, \xE8 \xE1\xEE\xEB\xFC\xF8\xE5 "
                                   "\xED\xE8\xF7\xE5\xE3\xEE \xED\xE5\xF2.\r\n";
constexpr char const* HELLO_IN_UTF8 = "\xD0\x9F\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82";

class ConvertTest : public testing::Test
{
protected:
    ioPath MakeFilm(std::string const& name, std::vector<MadeSubtitle> subtitles = {}, int frameCount = 50)
    {
        MadeMedia media;
        media.video = MadeVideo{};
        media.video->frameCount = frameCount;
        media.audios.emplace_back();
        media.subtitles = std::move(subtitles);
        MakeMedia(m_folder / name, media);
        return m_folder / name;
    }

    static MadeSubtitle Subtitle(std::string const& codecId, std::string const& language)
    {
        MadeSubtitle subtitle;
        subtitle.codecId = codecId;
        subtitle.cues = codecId == "hdmv_pgs_subtitle" ? MakeBoxCues() : MakeTextCues();
        subtitle.language = language;
        return subtitle;
    }

    std::string Path(std::string const& name) const { return (m_folder / name).utf8string(); }

    std::string WriteText(std::string const& name, std::string const& bytes)
    {
        EXPECT_EQ(Core::WriteFile(m_folder / name, bytes, true), Core::SUCCESS);
        return Path(name);
    }

    CliResult Convert(std::string const& output, std::vector<std::string> const& options = {}) const
    {
        std::vector<std::string> words{"convert", Path("film.mkv"), "-o", Path(output)};
        words.insert(words.end(), options.begin(), options.end());
        return RunCli(words);
    }

    /// The subtitle streams of a file that was written.
    std::vector<Proc::StreamInfo> Subtitles(std::string const& name) const
    {
        auto const info = Proc::ProbeMedia(m_folder / name);
        EXPECT_TRUE(info) << name;
        std::vector<Proc::StreamInfo> streams;
        for (Proc::StreamInfo const& stream : info ? info->streams : std::vector<Proc::StreamInfo>())
            if (stream.kind == Proc::StreamKind::Subtitle)
                streams.push_back(stream);
        return streams;
    }

    Proc::TextDocument Text(std::string const& name, std::uint32_t stream) const
    {
        auto document = Proc::LoadSubtitleStream(m_folder / name, stream);
        EXPECT_TRUE(document);
        return document ? std::get<Proc::TextDocument>(*document) : Proc::TextDocument();
    }

    TemporaryFolder m_folder;
};

TEST_F(ConvertTest, SoftTracksKeepTheirOrderNamesAndMarksAndTextArrivesInUtf8)
{
    MadeSubtitle own = Subtitle("subrip", "ger");
    own.isDefault = true;
    MakeFilm("film.mkv", {own, Subtitle("ass", "fre")});
    std::string const added = WriteText("added.srt", CP1251_SRT);

    auto const result =
        Convert("out.mkv", {"--add", added, "--language", "ru", "--title", "First", "--default", "--forced"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("Wrote " + Path("out.mkv")));
    EXPECT_THAT(result.err, HasSubstr("CP1251"));

    auto const streams = Subtitles("out.mkv");
    ASSERT_EQ(streams.size(), 3U);
    EXPECT_EQ(streams[0].language, "ger");
    EXPECT_FALSE(streams[0].isDefault) << "the file that the user marked is the only one on by default";
    EXPECT_EQ(streams[1].codecId, "ass");
    EXPECT_EQ(streams[2].language, "rus");
    EXPECT_EQ(streams[2].title, "First");
    EXPECT_TRUE(streams[2].isDefault);
    EXPECT_TRUE(streams[2].isForced);
    Proc::TextDocument const text = Text("out.mkv", streams[2].index);
    ASSERT_EQ(text.cues.size(), 2U);
    EXPECT_THAT(text.cues[0].text, HasSubstr(HELLO_IN_UTF8));
}

TEST_F(ConvertTest, OnlyTheListedTracksGoOut)
{
    MakeFilm("film.mkv", {Subtitle("subrip", "ger"), Subtitle("subrip", "fre")});
    ASSERT_EQ(Convert("one.mkv", {"--tracks", "3"}).exitCode, 0);
    auto const streams = Subtitles("one.mkv");
    ASSERT_EQ(streams.size(), 1U);
    EXPECT_EQ(streams[0].language, "fre");

    ASSERT_EQ(Convert("no.mkv", {"--no-subtitles"}).exitCode, 0);
    EXPECT_TRUE(Subtitles("no.mkv").empty());

    for (auto const& [track, sentence] : {std::pair("1", "is not a subtitle track"), {"9", "no track 9"}})
    {
        auto const refused = Convert("x.mkv", {"--tracks", track});
        EXPECT_EQ(refused.exitCode, 1);
        EXPECT_THAT(refused.err, HasSubstr(sentence));
    }
}

TEST_F(ConvertTest, TracksWrittenAnewKeepTheirPlacesAndMarks)
{
    MadeSubtitle sounds = Subtitle("webvtt", "eng");
    sounds.isHearingImpaired = true;
    sounds.isDefault = true;
    MakeFilm("film.mkv", {Subtitle("subrip", "ger"), sounds, Subtitle("subrip", "fre")});
    std::string const sami = "<SAMI><BODY><SYNC Start=500><P>One<SYNC Start=900><P>&nbsp;</BODY></SAMI>";
    std::string const subRip = "1\n00:00:00,500 --> 00:00:01,000\nOne\n";
    ASSERT_FALSE(Core::WriteFile(Path("film.en.srt"), subRip, false));
    ASSERT_FALSE(Core::WriteFile(Path("film.fr.sdh.smi"), sami, false));
    ASSERT_FALSE(Core::WriteFile(Path("film.it.srt"), subRip, false));
    ASSERT_EQ(Convert("out.mkv").exitCode, 0);
    std::vector<std::string> languages;
    std::vector<bool> marks;
    for (auto const& stream : Subtitles("out.mkv"))
    {
        languages.push_back(stream.language);
        marks.push_back(stream.isHearingImpaired);
        EXPECT_EQ(stream.isDefault, languages.size() == 2);
        EXPECT_EQ(stream.title, "");
    }
    EXPECT_EQ(languages, (std::vector<std::string>{"ger", "eng", "fre", "eng", "fre", "ita"}));
    EXPECT_EQ(marks, (std::vector<bool>{false, true, false, false, true, false}));
}

TEST_F(ConvertTest, TextIsWrittenAnewWhereTheContainerNeedsItAndTheUserIsTold)
{
    // Working files go where the system has its temporary files: here they can be counted.
    ASSERT_EQ(Core::CreateFolders(m_folder / "temporary"), Core::SUCCESS);
    bool const wasSet = qEnvironmentVariableIsSet("TMPDIR");
    QByteArray const before = qgetenv("TMPDIR");
    qputenv("TMPDIR", QByteArray::fromStdString(Path("temporary")));
    auto const restore = qScopeGuard([&] { wasSet ? qputenv("TMPDIR", before) : qunsetenv("TMPDIR"); });
    MadeSubtitle named = Subtitle("subrip", "ger");
    named.title = "Deutsch";
    MakeFilm("film.mkv", {named, Subtitle("ass", "fre")});
    auto const result = Convert("out.mp4");
    ASSERT_EQ(result.exitCode, 0) << result.err;
    EXPECT_THAT(result.err, HasSubstr("Track 2 (SubRip) goes into MP4 as MP4 text."));
    auto const streams = Subtitles("out.mp4");
    ASSERT_EQ(streams.size(), 2U);
    EXPECT_EQ(streams[0].codecId, "mov_text");
    EXPECT_EQ(streams[0].language, "deu") << "MP4 has the terminological codes";
    EXPECT_EQ(Text("out.mp4", streams[0].index).cues.size(), MakeTextCues().size());

    ASSERT_EQ(RunCli({"convert", Path("out.mp4"), "-o", Path("back.mkv")}).exitCode, 0);
    EXPECT_EQ(Subtitles("back.mkv").at(0).codecId, "subrip");
    auto const refused = Convert("no.mp4", {"--no-prepare"});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_THAT(refused.err, AllOf(HasSubstr("Track 2"), HasSubstr("SubRip"), HasSubstr("MP4"),
                                   HasSubstr("choose Matroska"), HasSubstr("leave out --no-prepare")));
    EXPECT_FALSE(Core::PathExists(m_folder / "no.mp4"));
    EXPECT_TRUE(ListNames(m_folder / "temporary").empty());
}

TEST_F(ConvertTest, BitmapsAndTextThatNoWritingMakesFitAreRefusedByName)
{
    MakeFilm("film.mkv", {Subtitle("hdmv_pgs_subtitle", "ger")});
    auto const bitmap = Convert("out.mp4");
    EXPECT_EQ(bitmap.exitCode, 1);
    EXPECT_THAT(bitmap.err, AllOf(HasSubstr("Track 2"), HasSubstr("PGS"), HasSubstr("MP4"), HasSubstr("--burn=2"),
                                  Not(HasSubstr("--no-prepare"))));

    std::string const added = WriteText("added.srt", CP1251_SRT);
    MakeFilm("plain.mkv");
    auto const text = RunCli({"convert", Path("plain.mkv"), "-o", Path("out.avi"), "--add", added});
    EXPECT_EQ(text.exitCode, 1);
    EXPECT_THAT(text.err, AllOf(HasSubstr(added), HasSubstr("SubRip"), HasSubstr("AVI"), HasSubstr("Matroska")));
    EXPECT_THAT(ListNames(m_folder.Path()), ElementsAre("added.srt", "film.mkv", "plain.mkv"));
}

TEST_F(ConvertTest, EncodingAndOffsetReachSoftTracks)
{
    MakeFilm("film.mkv", {Subtitle("subrip", "ger")});
    std::string const added = WriteText("added.srt", CP1251_SRT);
    // The wrong encoding on purpose: that it shows proves that the option reached the text.
    auto const result = Convert("out.mkv", {"--add", added, "--encoding", "KOI8-R", "--offset", "0.25"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    EXPECT_THAT(result.err, HasSubstr("read as KOI8-R, moved by 0.25 s."));
    auto const streams = Subtitles("out.mkv");
    ASSERT_EQ(streams.size(), 2U);
    EXPECT_EQ(Text("out.mkv", streams[0].index).cues[0].start, MakeTextCues()[0].start)
        << "the film's own track keeps its times";
    Proc::TextDocument const text = Text("out.mkv", streams[1].index);
    EXPECT_EQ(text.cues[0].start, std::chrono::milliseconds(450));
    EXPECT_THAT(text.cues[0].text, AllOf(Not(HasSubstr(HELLO_IN_UTF8)), HasSubstr("\xD0\xBE\xD0\x9F")));

    ASSERT_EQ(Convert("own.mkv", {"--offset", "0.1"}).exitCode, 0);
    EXPECT_EQ(Text("own.mkv", Subtitles("own.mkv")[0].index).cues[0].start,
              MakeTextCues()[0].start + std::chrono::milliseconds(100));

    std::string const empty = WriteText("empty.smi", "<SAMI><BODY><!-- nothing --></BODY></SAMI>");
    auto const nothing = Convert("empty.mkv", {"--add", empty});
    EXPECT_EQ(nothing.exitCode, 0) << nothing.err;
    EXPECT_THAT(nothing.err, HasSubstr("holds no cues and was left out"));
    EXPECT_EQ(Subtitles("empty.mkv").size(), 1U);

    EXPECT_EQ(Convert("x.mkv", {"--encoding", "CP1251"}).exitCode, 2);
    EXPECT_EQ(Convert("x.mkv", {"--add", added, "--offset", "1", "--no-prepare"}).exitCode, 2);
}

TEST_F(ConvertTest, BytesThatDoNotDecodeAreTold)
{
    MakeFilm("film.mkv");
    std::string const added = WriteText("added.srt", "1\n00:00:00,200 --> 00:00:01,000\n" + std::string(HELLO_IN_UTF8) +
                                                         " \xFF\xFE " + HELLO_IN_UTF8 + "\n");
    for (std::vector<std::string> const& mode :
         {std::vector<std::string>{"--soft"}, {"--soft", "--encoding", "UTF-8"}, {"--burn", "--encoding", "UTF-8"}})
    {
        std::vector<std::string> words{"--add", added, "--preset", "ultrafast", "--overwrite"};
        words.insert(words.end(), mode.begin(), mode.end());
        auto const result = Convert("out.mkv", words);
        ASSERT_EQ(result.exitCode, 0) << result.err;
        std::size_t const told = result.err.find("2 bytes");
        EXPECT_NE(told, std::string::npos) << mode.back();
        EXPECT_EQ(result.err.find("2 bytes", told + 1), std::string::npos) << "once is enough: " << result.err;
    }
}

TEST_F(ConvertTest, BurningFindsItsTrackOrAsksForIt)
{
    MakeFilm("film.mkv", {Subtitle("subrip", "ger"), Subtitle("ass", "fre")});
    std::string const added = WriteText("added.srt", CP1251_SRT);
    auto const with = [this](std::vector<std::string> more)
    {
        more.insert(more.end(), {"--preset", "ultrafast", "--overwrite"});
        return Convert("out.mp4", more);
    };
    auto const named = with({"--burn=2", "--bold", "--text-color", "yellow"});
    ASSERT_EQ(named.exitCode, 0) << named.err;
    EXPECT_TRUE(Subtitles("out.mp4").empty());
    EXPECT_THAT(with({"--burn=2", "--font", "No Such Font"}).err, HasSubstr("\"No Such Font\" is not installed"));
    EXPECT_THAT(with({"--burn=2", "--font", "dejavu sans bold"}).err, Not(HasSubstr("installed")));
    EXPECT_EQ(with({"--burn", "--add", added}).exitCode, 0);
    EXPECT_EQ(with({"--burn=" + m_folder.Path().utf8string() + "/./added.srt", "--add", added}).exitCode, 0);

    auto const unclear = with({"--burn"});
    EXPECT_EQ(unclear.exitCode, 2);
    EXPECT_THAT(unclear.err, HasSubstr("--burn=TRACK"));
    EXPECT_EQ(with({"--burn=7"}).exitCode, 1);
    auto const styled = with({"--burn=3", "--font-size", "30"});
    EXPECT_EQ(styled.exitCode, 2);
    EXPECT_THAT(styled.err, HasSubstr("ASS and has a look of its own"));
    EXPECT_EQ(with({"--burn=3", "--shift", "10"}).exitCode, 0);
    EXPECT_EQ(with({"--burn=2", "--encoding", "CP1251"}).exitCode, 2);
}

TEST_F(ConvertTest, FilesBesideTheFilmGoAlongUnlessUnwanted)
{
    MakeFilm("film.mkv");
    WriteText("film.ru.srt", CP1251_SRT);
    WriteText("film.broken.srt", "");
    auto const result = RunCli(
        {"convert", Path("film.mkv"), "--add", Path("./film.ru.srt"), "--title", "Added", "-o", Path("out.mkv")});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    auto const streams = Subtitles("out.mkv");
    ASSERT_EQ(streams.size(), 1U) << "the same file is one track, and an empty one none";
    EXPECT_EQ(streams[0].language, "rus");
    EXPECT_EQ(streams[0].title, "Added");

    ASSERT_EQ(Convert("no.mkv", {"--no-lookup"}).exitCode, 0);
    EXPECT_TRUE(Subtitles("no.mkv").empty());
}

TEST_F(ConvertTest, OneFailureDoesNotStopTheOthersAndTheExitCodeTells)
{
    MakeFilm("a.mkv", {Subtitle("subrip", "ger")});
    MakeFilm("c.mkv");
    WriteText("b.mkv", "this is no film");
    ASSERT_EQ(Core::CreateFolders(m_folder / "done"), Core::SUCCESS);
    auto const result = RunCli({"convert", Path("a.mkv"), Path("b.mkv"), Path("c.mkv"), "--output-dir", Path("done"),
                                "--format", "mp4", "--progress", "json"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(ListNames(m_folder / "done"), ElementsAre("a.mp4", "c.mp4"));
    EXPECT_THAT(result.err, HasSubstr(Path("b.mkv")));

    std::vector<std::string> events;
    for (QJsonObject const& line : result.JsonLines())
    {
        std::string const event = line.value("event").toString().toStdString();
        EXPECT_TRUE(line.value("input").isString()) << event;
        if (event != "progress")
            events.push_back(event);
    }
    EXPECT_THAT(events, ElementsAre("started", "note", "done", "started", "failed", "started", "done"));
}

TEST_F(ConvertTest, OutputsThatMustNotBeWrittenAreRefused)
{
    MakeFilm("film.mkv");
    std::string const added = WriteText("added.srt", CP1251_SRT);
    auto const exists = RunCli({"convert", Path("film.mkv"), "-o", added, "--format", "matroska"});
    EXPECT_EQ(exists.exitCode, 1);
    EXPECT_THAT(exists.err, HasSubstr("--overwrite"));
    for (std::string const& output : {Path("film.mkv"), added, Path("missing/out.mkv")})
    {
        auto const refused =
            RunCli({"convert", Path("film.mkv"), "--add", added, "--overwrite", "--format", "matroska", "-o", output});
        EXPECT_EQ(refused.exitCode, 1);
        EXPECT_THAT(refused.err, HasSubstr(output));
    }
    EXPECT_EQ(*Core::ReadFile(added, 10000), CP1251_SRT);
    EXPECT_EQ(RunCli({"convert", Path("gone.mkv"), "-o", Path("out.mkv")}).exitCode, 1);
    auto const noFilm = RunCli({"convert", added, "-o", Path("out.mkv")});
    EXPECT_EQ(noFilm.exitCode, 1);
    EXPECT_THAT(noFilm.err, HasSubstr("neither picture nor sound"));
    EXPECT_EQ(RunCli({"convert", Path("film.mkv"), "--add", Path("gone.srt"), "-o", Path("out.mkv")}).exitCode, 1);
    EXPECT_THAT(ListNames(m_folder.Path()), ElementsAre("added.srt", "film.mkv"));
}

TEST_F(ConvertTest, AnInterruptedConversionLeavesNothingAndEndsWith130)
{
    MakeFilm("film.mkv", {}, 3000);
    int asked = 0;
    auto const result = RunCli({"convert", Path("film.mkv"), "-o", Path("out.mp4"), "--preset", "slow", "--overwrite"},
                               [&asked] { return ++asked > 3; });
    EXPECT_EQ(result.exitCode, 130);
    EXPECT_THAT(result.err, HasSubstr("Interrupted"));
    EXPECT_THAT(ListNames(m_folder.Path()), ElementsAre("film.mkv"));
}

} // namespace
} // namespace Korvex::Testing
