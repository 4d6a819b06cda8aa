#include "Proc/SubtitleExport.h"

#include "Support/MediaMaker.h"

#include "Core/FileSystem.h"
#include "Proc/MediaInfo.h"
#include "Proc/Register.h"
#include "Proc/SubtitleLoader.h"

#include <atomic>
#include <future>
#include <thread>

namespace Korvex::Proc
{

namespace
{

using Core::ErrorCode;
using std::chrono::milliseconds;
using Testing::MadeCue;
using Testing::MadeMedia;
using Testing::TemporaryFolder;

class ExportTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite() { RegisterFactories(); }

    ioPath Make(std::string const& name, std::string const& format, std::vector<std::string> const& codecs,
                milliseconds startTime = milliseconds(0))
    {
        MadeMedia media;
        media.formatId = format;
        media.video = Testing::MadeVideo{};
        media.startTime = startTime;
        for (std::string const& codec : codecs)
            media.subtitles.push_back(Testing::MakeSubtitle(codec, "eng"));
        ioPath path = m_folder / name;
        Testing::MakeMedia(path, media);
        return path;
    }

    TemporaryFolder m_folder;
};

SubtitleSource StreamOf(ioPath const& path, std::uint32_t index)
{
    SubtitleSource source;
    source.path = path;
    source.streamIndex = index;
    return source;
}

SubtitleSource FileOf(ioPath const& path)
{
    SubtitleSource source;
    source.path = path;
    return source;
}

std::string BytesOf(ioPath const& path)
{
    return Testing::ValueOf(Core::ReadFile(path, 1'000'000));
}

template <typename Document>
Document Load(ioPath const& path)
{
    return std::get<Document>(Testing::ValueOf(LoadSubtitleFile(path, {})));
}

} // namespace

TEST_F(ExportTest, TextComesOutAsItIsInTheFile)
{
    ioPath const film = Make("film.mkv", "matroska", {"subrip", "ass"});
    auto const srt = Testing::ValueOf(ExtractSubtitle(StreamOf(film, 1), m_folder / "out.srt"));
    EXPECT_EQ(srt.cueCount, 3U);
    EXPECT_EQ(BytesOf(srt.path), "1\n00:00:00,500 --> 00:00:01,000\nFirst\n\n2\n00:00:01,000 --> 00:00:01,500\n"
                                 "Second \xC3\xBC\n\n3\n00:00:01,600 --> 00:00:01,900\nThird\n\n");
    auto const ass = Testing::ValueOf(ExtractSubtitle(StreamOf(film, 2), m_folder / "out.ass"));
    EXPECT_NE(BytesOf(ass.path).find("PlayResY: 180"), std::string::npos) << "the script's own header";
    EXPECT_NE(BytesOf(ass.path).find("Dialogue: 0,0:00:00.50,0:00:01.00,Default,,0,0,0,,First"), std::string::npos);

    EXPECT_EQ(ExtractSubtitle(StreamOf(film, 1), m_folder / "out.srt").GetError().code, ErrorCode::OutputExists);
    EXPECT_EQ(ExtractSubtitle(StreamOf(film, 0), m_folder / "x.srt").GetError().code, ErrorCode::TrackNotSubtitle);
    EXPECT_EQ(ExtractSubtitle(StreamOf(film, 1), m_folder / "x.sup").GetError().code, ErrorCode::ContainerCannotCarry);
    Core::Error const textFile = ExtractSubtitle(FileOf(srt.path), m_folder / "x.sup").GetError();
    EXPECT_THAT(Core::ToSentence(textFile), testing::EndsWith("is SubRip, which a .sup file cannot carry: save it as "
                                                              ".srt instead."));
    EXPECT_EQ(ExtractSubtitle(StreamOf(film, 1), m_folder / "x.doc").GetError().code, ErrorCode::ContainerUnknown);
    EXPECT_EQ(ExtractSubtitle(StreamOf(film, 1), m_folder / "no folder/x.srt").GetError().code,
              ErrorCode::OutputFolderMissing);
    EXPECT_EQ(Core::ListFolder(m_folder.Path()), (std::vector<std::string>{"film.mkv", "out.ass", "out.srt"}))
        << "refusals leave nothing behind";
}

TEST_F(ExportTest, BluRayTracksAreTheSameInAFileOfTheirOwn)
{
    // The stamps of the source begin at an hour.
    ioPath const film = Make("film.m2ts", "m2ts", {"hdmv_pgs_subtitle"}, milliseconds(3'601'000));
    auto const source = Testing::ValueOf(LoadSubtitleStream(film, 1));
    auto const sup = Testing::ValueOf(ExtractSubtitle(StreamOf(film, 1), m_folder / "out.sup"));
    EXPECT_EQ(sup.cueCount, 3U);
    std::string const bytes = BytesOf(sup.path);
    ASSERT_GT(bytes.size(), 13U);
    EXPECT_EQ(bytes.substr(0, 6), (std::string{'P', 'G', 0, 0, '\xAF', '\xC8'})) << "0.5 s in units of 90 kHz";

    auto const before = std::get<BitmapDocument>(source);
    auto const after = Load<BitmapDocument>(sup.path);
    ASSERT_EQ(after.cues.size(), before.cues.size());
    for (std::size_t i = 0; i < after.cues.size(); ++i)
    {
        EXPECT_EQ(after.cues[i].start, before.cues[i].start);
        EXPECT_EQ(after.cues[i].end, before.cues[i].end);
        EXPECT_EQ(*after.cues[i].rects[0].Pixels(), *before.cues[i].rects[0].Pixels());
    }
    EXPECT_EQ(ExtractSubtitle(StreamOf(film, 1), m_folder / "x.srt").GetError().code, ErrorCode::ContainerCannotCarry);
}

TEST_F(ExportTest, AnyTrackFitsIntoMatroska)
{
    ioPath const film = Make("film.mkv", "matroska", {"dvd_subtitle", "ass"});
    auto const bitmaps = Testing::ValueOf(ExtractSubtitle(StreamOf(film, 1), m_folder / "dvd.mkv"));
    EXPECT_EQ(Load<BitmapDocument>(bitmaps.path).cues.at(2).start, milliseconds(1600));
    auto const info = Testing::ValueOf(ProbeMedia(bitmaps.path));
    ASSERT_EQ(info.streams.size(), 1U);
    EXPECT_EQ(info.streams[0].language, "eng");
    EXPECT_TRUE(Load<TextDocument>(Testing::ValueOf(ExtractSubtitle(StreamOf(film, 2), m_folder / "ass.mkv")).path)
                    .HasOwnLook());
    // Matroska has no mov_text.
    ioPath const mp4 = Make("film.mp4", "mp4", {"mov_text"});
    auto const text = Testing::ValueOf(ExtractSubtitle(StreamOf(mp4, 1), m_folder / "text.mkv"));
    EXPECT_EQ(text.codecId, "subrip");
    EXPECT_EQ(Load<TextDocument>(text.path).cues.at(1).text, "Second \xC3\xBC");
}

TEST_F(ExportTest, AMovTextFileGivesBackTheCues)
{
    // CP1251; the second and the third overlap.
    ioPath const srt =
        m_folder.Write("a.srt", "1\n00:00:10,000 --> 00:00:12,000\n<i>\xCF\xF0\xE8\xE2\xE5\xF2</i>, \xEC\xE8\xF0\n\n"
                                "2\n00:00:20,000 --> 00:00:24,000\nTwo\nlines\n\n"
                                "3\n00:00:22,000 --> 00:00:26,000\nOver\n");
    SubtitleSource source = FileOf(srt);
    source.encoding = "CP1251";
    source.timeShift = milliseconds(-1500);
    auto const prepared =
        Testing::ValueOf(PrepareSubtitle(source, {"dvd_subtitle", "mov_text"}, m_folder.Path(), "work"));
    EXPECT_EQ(prepared.path.FileName(), "work.mp4");
    EXPECT_EQ(prepared.codecId, "mov_text");
    EXPECT_EQ(prepared.cueCount, 3U);

    auto const document = Load<TextDocument>(prepared.path);
    ASSERT_EQ(document.cues.size(), 4U);
    EXPECT_EQ(document.cues[0].start, milliseconds(8500)) << "counted from zero, not from the first text";
    EXPECT_EQ(document.cues[0].end, milliseconds(10500));
    EXPECT_NE(document.cues[0].text.find("\xD0\x9F\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82"), std::string::npos);
    EXPECT_NE(document.cues[0].text.find("\\i1"), std::string::npos);
    EXPECT_EQ(document.cues[1].text, "Two\\Nlines");
    EXPECT_EQ(document.cues[2].text, "Two\\Nlines\\NOver");
    EXPECT_EQ(document.cues[3].text, "Over");
    EXPECT_EQ(document.cues[3].end, milliseconds(24500));
}

TEST_F(ExportTest, WhatMovTextCannotHoldIsCounted)
{
    ioPath const srt = m_folder.Write("long.srt", "1\n00:00:01,000 --> 00:00:02,000\n" + std::string(70000, 'x') +
                                                      "\n\n2\n00:00:03,000 --> 00:00:04,000\nHello\n\n"
                                                      "3\n999:00:00,000 --> 999:00:01,000\nLate\n\n"
                                                      "4\n00:00:05,000 --> 00:00:05,000\nNever\n");
    auto const prepared = Testing::ValueOf(PrepareSubtitle(FileOf(srt), {"mov_text"}, m_folder.Path(), "w"));
    EXPECT_EQ(prepared.cueCount, 1U);
    EXPECT_EQ(prepared.leftOutCues, 3U);
    EXPECT_EQ(Load<TextDocument>(prepared.path).cues.at(0).text, "Hello");
}

TEST_F(ExportTest, PreparingPicksWhatLosesLeast)
{
    ioPath const film = Make("film.mkv", "matroska", {"ass", "hdmv_pgs_subtitle"});
    ioPath const mp4 = Make("film.mp4", "mp4", {"mov_text"});
    std::vector<std::string> const matroska{"ass", "hdmv_pgs_subtitle", "ssa", "subrip", "text"};
    Core::Result<ExportedSubtitle> const script = PrepareSubtitle(StreamOf(film, 1), matroska, m_folder.Path(), "w");
    Core::Result<ExportedSubtitle> const plain = PrepareSubtitle(StreamOf(mp4, 1), matroska, m_folder.Path(), "w");
    Core::Result<ExportedSubtitle> const again = PrepareSubtitle(StreamOf(mp4, 1), matroska, m_folder.Path(), "w");
    ASSERT_TRUE(script && plain && again);
    EXPECT_EQ(script->path.FileName(), "w.ass");
    EXPECT_EQ(plain->path.FileName(), "w.srt");
    EXPECT_EQ(again->path.FileName(), "w-2.srt") << "a taken name is left alone";

    EXPECT_EQ(PrepareSubtitle(StreamOf(film, 2), matroska, m_folder.Path(), "w").GetError().code,
              ErrorCode::ContainerCannotCarry);
    EXPECT_EQ(PrepareSubtitle(StreamOf(film, 1), {"dvb_subtitle"}, m_folder.Path(), "w").GetError().code,
              ErrorCode::ContainerCannotCarry);
}

TEST_F(ExportTest, AClassOfSamiAndAShiftBeforeZero)
{
    ioPath const smi =
        m_folder.Write("a.smi", "<SAMI><HEAD><STYLE><!-- .ENCC {lang: en-US;} .KRCC {lang: ko-KR;} --></STYLE>"
                                "</HEAD><BODY><SYNC Start=1000><P Class=ENCC>Hello<P Class=KRCC>Annyeong"
                                "<SYNC Start=5000><P Class=ENCC>World<P Class=KRCC>Segye"
                                "<SYNC Start=9000><P Class=ENCC>&nbsp;<P Class=KRCC>&nbsp;</BODY></SAMI>");
    SubtitleSource source = FileOf(smi);
    source.samiClass = "KRCC";
    source.timeShift = milliseconds(-6000);
    auto const prepared = Testing::ValueOf(PrepareSubtitle(source, {"subrip"}, m_folder.Path(), "w"));
    EXPECT_EQ(BytesOf(prepared.path), "1\n00:00:00,000 --> 00:00:03,000\nSegye\n\n");
    EXPECT_EQ(prepared.leftOutCues, 1U) << "the cue that would end before the film begins";
    EXPECT_EQ(prepared.sourceCodecId, "sami");
}

TEST_F(ExportTest, ACancelEndsTheReadingAtAnyMomentAndLeavesNoFile)
{
    MadeMedia media;
    media.audios.resize(1);
    media.audios[0].duration = std::chrono::minutes(3);
    media.audios[0].sampleRate = 8000;
    MadeCue cue = Testing::MakeBoxCues().front();
    cue.text = "Cue";
    std::vector<MadeCue> cues(179, cue);
    for (std::size_t second = 0; second < cues.size(); ++second)
    {
        cues[second].start = std::chrono::seconds(second);
        cues[second].end = cues[second].start + milliseconds(700);
    }
    media.subtitles = {Testing::MakeSubtitle("subrip"), Testing::MakeSubtitle("hdmv_pgs_subtitle")};
    media.subtitles[0].cues = media.subtitles[1].cues = cues;
    ioPath const film = m_folder / "film.mkv";
    Testing::MakeMedia(film, media);

    auto const run = [&](int kind, std::shared_ptr<std::atomic<bool> const> cancelled)
    {
        SubtitleSource source = StreamOf(film, kind == 2 ? 2 : 1);
        source.cancelled = std::move(cancelled);
        if (kind == 0)
            return PrepareSubtitle(source, {"mov_text"}, m_folder.Path(), "out");
        return ExtractSubtitle(source, m_folder / (kind == 1 ? "out.srt" : "out.sup"));
    };
    for (int kind = 0; kind < 3; ++kind)
    {
        SCOPED_TRACE(kind);
        auto const begin = std::chrono::steady_clock::now();
        Core::Result<ExportedSubtitle> const whole = run(kind, nullptr);
        auto const time = std::chrono::steady_clock::now() - begin;
        ASSERT_TRUE(whole) << Core::ToSentence(whole.GetError());
        Core::RemoveFile(whole->path);
        for (int eighths = 0; eighths < 8; ++eighths)
        {
            auto const cancelled = std::make_shared<std::atomic<bool>>(eighths == 0);
            auto pending = std::async(std::launch::async, run, kind, cancelled);
            std::this_thread::sleep_for(time * eighths / 8);
            *cancelled = true;
            Core::Result<ExportedSubtitle> const exported = pending.get();
            EXPECT_TRUE(exported ? eighths > 0 : exported.GetError().code == ErrorCode::Cancelled);
            EXPECT_EQ(Core::ListFolder(m_folder.Path()).size(), exported ? 2U : 1U);
            if (exported)
                Core::RemoveFile(exported->path);
        }
    }
}

} // namespace Korvex::Proc
