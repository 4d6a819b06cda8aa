#include "Hosts/Cli/CliRunner.h"

#include "Cli/Command.h"
#include "Cli/SubtitleOptions.h"
#include "Cli/Values.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Korvex::Cli
{
namespace
{

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using Testing::RunCli;
using testing::StartsWith;

struct WrongLine
{
    std::vector<std::string> words;
    std::string fragment; ///< of the sentence that explains it
};

TEST(UsageTest, WrongCommandLinesEndWithCode2AndASentenceThatSaysWhatIsWrong)
{
    std::vector<WrongLine> const lines{
        {{}, "Usage:"},
        {{"transmute", "a.mkv"}, "There is no command \"transmute\""},
        {{"help", "transmute"}, "no help on \"transmute\""},
        {{"tracks"}, "at least one file"},
        {{"tracks", "--colour", "a.mkv"}, "--colour does not exist"},
        {{"tracks", "--json=yes", "a.mkv"}, "--json takes no value"},
        {{"formats", "a.mkv"}, "takes no files"},
        {{"convert", "a.mkv"}, "either -o OUTPUT or --output-dir DIR"},
        {{"convert", "-o", "b.mkv"}, "at least one input"},
        {{"convert", "a.mkv", "-o", "b.mkv", "--output-dir", "d"}, "either -o OUTPUT or --output-dir DIR"},
        {{"convert", "a.mkv", "c.mkv", "-o", "b.mkv"}, "--output-dir DIR"},
        {{"convert", "a/x.mkv", "b/x.avi", "--output-dir", "d"}, "would become \"d/x.mkv\""},
        {{"convert", "a.mkv", "-o", "b.xyz"}, "add --format matroska, mp4"},
        {{"convert", "a.mkv", "-o", "b.mkv", "--crf", "--soft"}, "--crf needs a value"},
        {{"convert", "a.mkv", "-o", "b.mkv", "--crf", "52"}, "from 0 to 51, not \"52\""},
        {{"convert", "a.mkv", "-o", "b.mkv", "--crf", "9", "--crf", "8"}, "--crf was given more than once"},
        {{"convert", "a.mkv", "-o", "b.mkv", "--progress", "dots"}, "bar, json or none"},
        {{"convert", "a.mkv", "-o", "b.mkv", "--soft", "--burn"}, "exclude each other"},
        {{"convert", "a.mkv", "-o", "b.mkv", "--title", "T", "--add", "s.srt"}, "put it after its --add"},
        {{"convert", "a.mkv", "-o", "b.mkv", "--bold"}, "--bold has no effect without --burn"},
        {{"convert", "a.mkv", "-o", "b.mkv", "--no-subtitles", "--add", "s.srt"}, "--add has no effect"},
        {{"convert", "a.mkv", "-o", "b.mkv", "--burn", "--no-prepare"}, "--no-prepare has no effect"},
        {{"convert", "a.mkv", "-o", "b.mkv", "--add", "s.srt", "--forced", "--burn"}, "--forced has no effect"},
        {{"convert", "a.mkv", "-o", "b.mkv", "--add", "s.srt", "--language", "klingon"}, "not \"klingon\""},
        {{"convert", "a.mkv", "-o", "b.mkv", "--add", "s.srt", "--title", "A", "--title", "B"}, "more than once"},
        {{"convert", "a.mkv", "-o", "b.mkv", "--video-codec", "vp12"}, "takes h264, not \"vp12\""},
        {{"convert", "a.mkv", "-o", "b.mkv", "--tracks", "2,,3"}, "separated by commas"},
        {{"convert", "a.mkv", "-o", "b.mkv", "--offset", "1s"}, "seconds such as 1.5"},
        {{"convert", "a.mkv", "-o", "b.mkv", "--burn", "--text-color", "#12345"}, "#ffcc00"},
        {{"preview", "a.mkv", "-o", "b.png"}, "--at TIME"},
        {{"preview", "a.mkv", "--at", "1:75", "-o", "b.png"}, "1:02:03.5"},
        {{"preview", "a.mkv", "--at", "1", "-o", "b.jpg"}, "end in .png"},
        {{"preview", "a.mkv", "--at", "1", "-o", "b.png", "--offset", "2"}, "no effect on a picture without --burn"},
        {{"extract", "a.mkv", "-o", "b.srt"}, "--track ID"},
        {{"extract", "a.mkv", "b.mkv", "--track", "2", "-o", "b.srt"}, "exactly one input"},
        {{"search"}, "what to look for"},
        {{"search", "--season", "1", "--episode", "2"}, "what to look for"},
        {{"search", "a.mkv", "b.mkv"}, "quotation marks"},
        {{"search", "--title", " "}, "--title needs a title"},
        {{"search", "--title", "Up", "--language", "en,klingon"}, "\"klingon\" is none"},
        {{"search", "--title", "Up", "--season", "1"}, "--season and --episode go together"},
        {{"search", "--title", "Up", "--year", "99"}, "from 1870 to 2200"},
        {{"search", "--imdb", "nm0133093"}, "such as tt0133093, not \"nm0133093\""},
        {{"search", "--imdb", "tt0000000"}, "such as tt0133093"},
        {{"search", "--title", "Up", "--timeout", "0"}, "from 1 to 3600, not \"0\""},
        {{"search", "--title", "Up", "--episode", "1"}, "--season and --episode go together"},
        {{"suggest", " "}, "how the title begins"},
        {{"download", "--title", "Up", "--output-dir", "d"}, "--pick N"},
        {{"download", "--title", "Up", "--pick", "1"}, "--output-dir DIR"},
    };
    for (WrongLine const& line : lines)
    {
        auto const result = RunCli(line.words);
        EXPECT_EQ(result.exitCode, 2) << line.fragment;
        EXPECT_EQ(result.out, "") << line.fragment;
        EXPECT_THAT(result.err, HasSubstr(line.fragment));
    }
}

TEST(UsageTest, HelpNamesEveryOptionOfEveryCommand)
{
    auto const overview = RunCli({"help"});
    EXPECT_EQ(overview.exitCode, 0);
    for (auto const& command : MakeCommands())
    {
        std::string const name(command->Name());
        auto const help = RunCli({"help", name});
        EXPECT_EQ(help.exitCode, 0);
        EXPECT_EQ(help.out, RunCli({name, "--help"}).out);
        EXPECT_THAT(overview.out, HasSubstr("korvex " + name + " " + std::string(command->Synopsis()) + "\n"));
        for (OptionGroup const& group : command->Options())
            for (Option const& option : group.options)
                EXPECT_THAT(help.out, HasSubstr("\n  " + std::string(option.name))) << name;
        std::size_t begin = 0;
        for (std::size_t end; (end = help.out.find('\n', begin)) != std::string::npos; begin = end + 1)
            EXPECT_LE(end - begin, 80U) << help.out.substr(begin, end - begin);
    }
    EXPECT_THAT(RunCli({"--version"}).out, AllOf(StartsWith("korvex "), EndsWith("\n")));
}

GivenOption Given(std::string value)
{
    return {"--option", std::move(value)};
}

TEST(UsageTest, ValuesAreReadAsPeopleWriteThem)
{
    using namespace std::chrono_literals;
    EXPECT_EQ(ReadTime(Given("12.5")), 12500ms);
    EXPECT_EQ(ReadTime(Given("1:02.5")), 62500ms);
    EXPECT_EQ(ReadTime(Given("90:00")), 90min);
    EXPECT_EQ(ReadTime(Given("01:02:03.004")), 3723004ms);
    EXPECT_EQ(ReadSeconds(Given("-0.75")), -0.75);
    EXPECT_EQ(ReadSeconds(Given("+2")), 2.0);
    EXPECT_EQ(ReadColor(Given("#FFcc00")), "#FFcc00");
    EXPECT_EQ(ReadColor(Given("yellow")), "yellow");
    EXPECT_EQ(ReadAlign(Given("horizontal-center")), 5);
    EXPECT_EQ(ReadEncoding(Given("Windows-1251")), ReadEncoding(Given("cp1251")));
    EXPECT_EQ(ReadEncoding(Given("iso8859-15")), 11);
    for (char const* const wrong : {"", "1:2:3:4", "1.5:00", "-1", "1e3", "0x10", "1:", "1,5", "nan"})
        EXPECT_THROW((void)ReadTime(Given(wrong)), UsageError) << wrong;
    for (char const* const wrong : {"#ffcc0", "#aaffcc00", "transparent", "no colour"})
        EXPECT_THROW((void)ReadColor(Given(wrong)), UsageError) << wrong;
}

Hosts::SubtitleChoice Read(std::vector<std::string> const& words, SubtitlePurpose purpose = SubtitlePurpose::Convert)
{
    return ReadSubtitleOptions(ParseArguments(words, SubtitleOptionGroups(purpose)), purpose);
}

TEST(UsageTest, OptionsOfAddedFilesFollowTheirFile)
{
    auto const choice = Read({"--add", "a.srt", "--language=ru", "--default", "--add=b.ass", "--title", "- B -",
                              "--forced", "--tracks", "10,2", "--offset", "-1.5"});
    ASSERT_EQ(choice.added.size(), 2U);
    EXPECT_EQ(choice.added[0].language, "ru");
    EXPECT_TRUE(choice.added[0].isDefault);
    EXPECT_FALSE(choice.added[0].isForced);
    EXPECT_EQ(choice.added[1].path, ioPath("b.ass"));
    EXPECT_EQ(choice.added[1].title, "- B -");
    EXPECT_TRUE(choice.added[1].isForced);
    EXPECT_EQ(choice.ownTracks, (std::vector<std::string>{"10", "2"}));
    EXPECT_EQ(choice.offsetSeconds, -1.5);
    EXPECT_EQ(choice.output, Hosts::SubtitleOutput::Soft);
}

TEST(UsageTest, BurnTakesItsTrackOnlyBehindAnEqualsSign)
{
    Arguments const arguments =
        ParseArguments({"--burn", "film.mkv", "--", "--soft"}, SubtitleOptionGroups(SubtitlePurpose::Convert));
    EXPECT_EQ(arguments.inputs, (std::vector<std::string>{"film.mkv", "--soft"}));
    EXPECT_EQ(Read({"--burn=subs/a=b.srt"}).burnTrack, "subs/a=b.srt");
    EXPECT_EQ(Read({"--add", "a.srt"}, SubtitlePurpose::Preview).output, Hosts::SubtitleOutput::Burn);
    EXPECT_EQ(Read({}, SubtitlePurpose::Preview).output, Hosts::SubtitleOutput::Soft);
}

} // namespace
} // namespace Korvex::Cli
