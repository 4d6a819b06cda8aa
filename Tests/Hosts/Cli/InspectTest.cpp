#include "Hosts/Cli/CliRunner.h"

#include "Support/MediaMaker.h"

#include "Core/FileSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <QJsonArray>
#include <QJsonObject>

namespace Korvex::Testing
{
namespace
{

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// The commands that look at files and convert none.
class InspectTest : public testing::Test
{
protected:
    void SetUp() override
    {
        MadeMedia media;
        media.video = MadeVideo{};
        media.video->sample = [](int, int component, int, int) { return component == 0 ? 40 : 128; };
        media.audios.emplace_back();
        MadeSubtitle text;
        text.cues = MakeTextCues();
        text.language = "ger";
        text.isForced = true;
        MadeSubtitle bitmap;
        bitmap.codecId = "hdmv_pgs_subtitle";
        bitmap.cues = MakeBoxCues();
        media.subtitles = {text, bitmap};
        MakeMedia(m_folder / "film.mkv", media);
        Write("film.uk.srt", "1\n00:00:00,000 --> 00:00:01,000\n\xD0\x87\xD0\xB6\xD0\xB0\xD0\xBA\n");
    }

    std::string Path(std::string const& name) const { return (m_folder / name).utf8string(); }
    void Write(std::string const& name, std::string const& bytes)
    {
        ASSERT_EQ(Core::WriteFile(m_folder / name, bytes, true), Core::SUCCESS);
    }

    /// Pixels that are not of the film's flat grey.
    std::vector<QPoint> Ink(std::string const& name) const
    {
        auto const bytes = Core::ReadFile(m_folder / name, 10'000'000);
        EXPECT_TRUE(bytes);
        QImage image;
        EXPECT_TRUE(image.loadFromData(QByteArray::fromStdString(*bytes), "PNG"));
        EXPECT_EQ(image.size(), QSize(320, 180));
        std::vector<QPoint> points;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qGray(image.pixel(x, y)) > 100)
                    points.emplace_back(x, y);
        return points;
    }

    TemporaryFolder m_folder;
};

TEST_F(InspectTest, TracksListsStreamsAndFilesBesideTheFilm)
{
    auto const text = RunCli({"tracks", Path("film.mkv")});
    EXPECT_EQ(text.exitCode, 0);
    EXPECT_THAT(text.out, AllOf(HasSubstr("Matroska"), HasSubstr("320x180"), HasSubstr("German"), HasSubstr("PGS"),
                                HasSubstr(Path("film.uk.srt")), HasSubstr("Ukrainian")));

    auto const lines = RunCli({"tracks", "--json", Path("film.mkv"), Path("film.uk.srt")}).JsonLines();
    ASSERT_EQ(lines.size(), 2U);
    QJsonArray const tracks = lines[0].value("tracks").toArray();
    ASSERT_EQ(tracks.size(), 5);
    EXPECT_EQ(tracks[2].toObject().value("id").toString(), "2");
    EXPECT_EQ(tracks[2].toObject().value("codec").toString(), "subrip");
    EXPECT_EQ(tracks[2].toObject().value("language").toString(), "ger");
    EXPECT_TRUE(tracks[2].toObject().value("forced").toBool());
    EXPECT_EQ(tracks[4].toObject().value("id").toString().toStdString(), Path("film.uk.srt"));
    EXPECT_TRUE(tracks[4].toObject().value("external").toBool());
    EXPECT_EQ(lines[1].value("tracks").toArray().size(), 1) << "a subtitle file is not beside itself";
}

TEST_F(InspectTest, TracksNamesWhatCannotBeReadAndGoesOn)
{
    Write("empty.mkv", "");
    auto const result = RunCli({"tracks", Path("empty.mkv"), Path("gone.mkv"), Path("film.mkv")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.err,
                AllOf(HasSubstr(Path("empty.mkv") + "\" is empty"), HasSubstr(Path("gone.mkv") + "\" does not exist")));
    EXPECT_THAT(result.out, HasSubstr("German"));
}

TEST_F(InspectTest, PreviewDrawsTheChosenTrackWhereItIsTold)
{
    auto const draw = [this](std::vector<std::string> const& options)
    {
        std::vector<std::string> words{"preview", Path("film.mkv"), "--at", "0.7", "--overwrite", "-o", Path("p.png")};
        words.insert(words.end(), options.begin(), options.end());
        EXPECT_EQ(RunCli(words).exitCode, 0);
        return Ink("p.png");
    };
    EXPECT_TRUE(draw({}).empty());
    EXPECT_TRUE(draw({"--burn=2", "--offset", "5"}).empty());
    auto const high = draw({"--burn=2", "--align", "top"});
    auto const low = draw({"--burn=2"});
    ASSERT_FALSE(low.empty() || high.empty());
    EXPECT_GT(low.front().y(), 90);
    EXPECT_LT(high.back().y(), 90);

    auto const exists = RunCli({"preview", Path("film.mkv"), "--at", "0", "-o", Path("p.png")});
    EXPECT_EQ(exists.exitCode, 1);
    EXPECT_THAT(exists.err, HasSubstr("--overwrite"));
    auto const text = RunCli({"preview", Path("film.uk.srt"), "--at", "0", "-o", Path("x.png")});
    EXPECT_EQ(text.exitCode, 1);
    EXPECT_THAT(text.err, HasSubstr("has no picture to show"));
}

TEST_F(InspectTest, ExtractSavesTracksOfTheFilmAndBesideIt)
{
    auto const own = RunCli({"extract", Path("film.mkv"), "--track", "2", "-o", Path("own.srt")});
    EXPECT_EQ(own.exitCode, 0) << own.err;
    EXPECT_THAT(own.out, HasSubstr("3 cues"));
    EXPECT_THAT(*Core::ReadFile(m_folder / "own.srt", 10000), HasSubstr("00:00:00,500 --> 00:00:01,000"));
    EXPECT_EQ(RunCli({"extract", Path("film.mkv"), "--track", "3", "-o", Path("own.sup")}).exitCode, 0);
    EXPECT_EQ(RunCli({"extract", Path("film.mkv"), "--track", Path("film.uk.srt"), "-o", Path("uk.ass")}).exitCode, 0);

    struct Refusal
    {
        std::string track;
        char const* file;
        int exitCode;
        char const* fragment; ///< of the sentence
    };
    for (Refusal const& refusal : {Refusal{"2", "own.srt", 1, "own.srt"},
                                   {"2", "own.txt", 2, ".srt, .ass, .sup or .mkv"},
                                   {"0", "x.srt", 1, "is not a subtitle track"},
                                   {"99999999999999999999", "x.srt", 1, ""}})
    {
        auto const result = RunCli({"extract", Path("film.mkv"), "--track", refusal.track, "-o", Path(refusal.file)});
        EXPECT_EQ(result.exitCode, refusal.exitCode);
        EXPECT_THAT(result.err, AllOf(HasSubstr(refusal.fragment), Not(HasSubstr("--overwrite"))))
            << "no such option here";
    }
}

TEST_F(InspectTest, FormatsTellsWhatEachContainerCarries)
{
    EXPECT_THAT(RunCli({"formats"}).out, AllOf(HasSubstr("matroska"), HasSubstr("m2ts, mts"), HasSubstr("SubRip")));
    auto const lines = RunCli({"formats", "--json"}).JsonLines();
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines[1].value("id").toString(), "mp4");
    EXPECT_EQ(lines[1].value("subtitleCodecs").toArray(), (QJsonArray{"dvd_subtitle", "mov_text"}));
}

} // namespace
} // namespace Korvex::Testing
