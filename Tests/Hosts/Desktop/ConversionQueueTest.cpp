#include "Desktop/Conversion/ConversionQueue.h"

#include "Desktop/Conversion/ConversionTotals.h"
#include "Desktop/Films/ConversionJob.h"
#include "Desktop/Films/OutputSettings.h"

#include "Common/HostServices.h"
#include "Subtitles/Subtitles.h"

#include "Support/Environment.h"
#include "Support/MediaMaker.h"

#include "App/Configuration.h"
#include "Core/FileSystem.h"

#include <QTest>

#include <functional>
#include <map>
#include <utility>

namespace Korvex::Desktop
{
namespace
{

using namespace std::chrono_literals;
using Converter::Subtitles::Entities::SubtitleCollectionMode;

constexpr int LONGEST_MS = 60'000;

class ConversionQueueTest : public testing::Test
{
protected:
    ConversionQueueTest()
    {
        for (char const* name : {"out", "work"})
            EXPECT_FALSE(Core::CreateFolders(m_folder / name));
        Listen();
    }

    void Listen()
    {
        QObject::connect(m_queue.get(), &ConversionQueue::StatusChanged, m_queue.get(),
                         [this](FilmId film)
                         {
                             auto const status = m_queue->FindStatus(film);
                             ASSERT_TRUE(status);
                             auto& states = m_states[film];
                             if (states.empty() || states.back() != status->state)
                                 states.push_back(status->state);
                             if (m_onStatus)
                                 m_onStatus(film, *status);
                         });
        QObject::connect(m_queue.get(), &ConversionQueue::Finished, m_queue.get(), [this] { ++m_finishedCount; });
    }

    /// A film of mpeg4 pictures with these subtitle codecs; `seconds` of one second each are encoded anew in about 50
    /// ms.
    ioPath MakeFilm(std::string const& name, int seconds, std::vector<std::string> const& codecs)
    {
        Testing::MadeMedia film;
        film.video.emplace();
        film.video->encoder = "mpeg4";
        film.video->frameCount = 25 * seconds;
        for (std::string const& codec : codecs)
            film.subtitles.push_back(Testing::MakeSubtitle(codec));
        ioPath path = m_folder / name;
        Testing::MakeMedia(path, film);
        return path;
    }

    /// ModeNone: as a user chooses it, who does not want the film's tracks.
    ConversionJob MakeJob(FilmId id, ioPath const& film, OutputSettings settings, SubtitleCollectionMode mode)
    {
        ConversionJob job;
        job.film = id;
        job.media = Testing::ValueOf(Proc::ProbeMedia(film));
        job.collection.tracks = Converter::Subtitles::ListMediaTracks(job.media);
        job.collection.mode = mode;
        if (mode == SubtitleCollectionMode::SelectedTrack)
            job.collection.currentTrack = job.collection.tracks.begin()->first;
        if (mode == SubtitleCollectionMode::ModeNone && !job.collection.tracks.empty())
        {
            job.collection.mode = SubtitleCollectionMode::SelectedTrack;
            job.collection.withoutSubtitles = 1;
        }
        if (!settings.folder)
            settings.folder = m_folder / "out";
        job.preset = MakePreset(settings);
        job.output = MakeOutputPath(film, settings);
        return job;
    }

    bool RunToEnd()
    {
        return QTest::qWaitFor([this] { return !m_queue->IsActive(); }, LONGEST_MS);
    }

    ConversionState StateOf(FilmId film) const { return m_queue->FindStatus(film)->state; }
    std::vector<std::string> ListOutputs() const { return Core::ListFolder(m_folder / "out"); }

    static std::vector<std::string> CodecsOf(ioPath const& file)
    {
        std::vector<std::string> codecs;
        for (Proc::StreamInfo const& stream : Testing::ValueOf(Proc::ProbeMedia(file)).streams)
            codecs.push_back(stream.codecId);
        return codecs;
    }

    using Codecs = std::vector<std::string>;
    using States = std::vector<ConversionState>;

    Testing::TemporaryFolder m_folder;
    Testing::ScopedVariable m_workPlace{"TMPDIR", (m_folder / "work").utf8string()};
    Hosts::HostServices m_services{App::Configuration{}};
    std::unique_ptr<ConversionQueue> m_queue = std::make_unique<ConversionQueue>(m_services);
    std::map<FilmId, States> m_states;
    std::function<void(FilmId, ConversionStatus const&)> m_onStatus;
    int m_finishedCount = 0;
};

TEST_F(ConversionQueueTest, EachFilmGetsTheSubtitlesThatWereChosenAndAFailedOneStopsNobody)
{
    using Mode = SubtitleCollectionMode;
    OutputSettings mp4;
    mp4.formatId = "mp4";
    m_queue->Add(MakeJob(1, MakeFilm("soft.mkv", 2, {"subrip"}), mp4, Mode::AllSoftSubtitles));
    m_queue->Add(MakeJob(2, MakeFilm("pictures.mkv", 2, {"subrip", "hdmv_pgs_subtitle"}), mp4, Mode::AllSoftSubtitles));
    m_queue->Add(MakeJob(3, MakeFilm("drawn.mkv", 2, {"subrip"}), mp4, Mode::SelectedTrack));
    ConversionJob gone = MakeJob(4, MakeFilm("gone.mkv", 2, {}), mp4, Mode::ModeNone);
    Core::RemoveFile(m_folder / "gone.mkv");
    m_queue->Add(gone);
    ConversionJob homeless = MakeJob(5, MakeFilm("homeless.mkv", 2, {}), mp4, Mode::ModeNone);
    homeless.output = m_folder / "no folder/x.mp4";
    m_queue->Add(homeless);
    m_queue->Add(MakeJob(6, MakeFilm("plain.mkv", 2, {"subrip"}), {}, Mode::ModeNone));
    EXPECT_EQ(StateOf(6), ConversionState::Waiting);

    double last = 0.0;
    m_onStatus = [&](FilmId, ConversionStatus const&)
    {
        EXPECT_GE(*m_queue->GetTotalFraction(), last);
        last = *m_queue->GetTotalFraction();
    };
    ASSERT_TRUE(RunToEnd());
    EXPECT_EQ(m_finishedCount, 1);
    EXPECT_DOUBLE_EQ(last, 1.0);
    EXPECT_EQ(m_states[1], (States{ConversionState::Waiting, ConversionState::Preparing, ConversionState::Running,
                                   ConversionState::Done}));
    EXPECT_EQ(m_states[2], (States{ConversionState::Waiting, ConversionState::Failed}));
    EXPECT_EQ(m_states[3], (States{ConversionState::Waiting, ConversionState::Running, ConversionState::Done}));
    EXPECT_EQ(StateOf(4), ConversionState::Failed);
    EXPECT_EQ(StateOf(5), ConversionState::Failed);
    EXPECT_EQ(StateOf(6), ConversionState::Done);

    EXPECT_EQ(ListOutputs(), (std::vector<std::string>{"drawn.mp4", "plain.mkv", "soft.mp4"}));
    EXPECT_EQ(CodecsOf(m_folder / "out/soft.mp4"), (Codecs{"mpeg4", "mov_text"}));
    EXPECT_EQ(CodecsOf(m_folder / "out/drawn.mp4"), (Codecs{"h264"}));
    EXPECT_EQ(CodecsOf(m_folder / "out/plain.mkv"), (Codecs{"mpeg4"}));
    EXPECT_EQ(m_queue->FindStatus(1)->notes.size(), 1);
    EXPECT_FALSE(m_queue->FindStatus(1)->hasLosses) << "another form is no loss";
    EXPECT_EQ(m_queue->FindStatus(1)->output, m_folder / "out/soft.mp4");
    QString const cannotCarry = m_queue->FindStatus(2)->sentence;
    EXPECT_TRUE(cannotCarry.contains("pictures.mkv") && cannotCarry.contains("Matroska")) << cannotCarry.toStdString();
    EXPECT_TRUE(m_queue->FindStatus(4)->sentence.contains("gone.mkv"));
    EXPECT_TRUE(m_queue->FindStatus(5)->sentence.contains("no folder"));
    EXPECT_TRUE(Core::ListFolder(m_folder / "work").empty()) << "working files stay behind";
}

TEST_F(ConversionQueueTest, AnOutputThatExistsByNowIsNeverOverwritten)
{
    ASSERT_FALSE(Core::CreateFolders(m_folder / "other"));
    ioPath const film = MakeFilm("film.mkv", 1, {});
    ioPath const namesake = MakeFilm("other/film.mkv", 1, {});
    m_queue->Add(MakeJob(1, film, {}, SubtitleCollectionMode::ModeNone));
    m_queue->Add(MakeJob(2, namesake, {}, SubtitleCollectionMode::ModeNone));
    ASSERT_FALSE(Core::WriteFile(m_folder / "out/film.mkv", "somebody else's", false));
    ASSERT_TRUE(RunToEnd());
    EXPECT_EQ(ListOutputs(), (std::vector<std::string>{"film (2).mkv", "film (3).mkv", "film.mkv"}));
    EXPECT_EQ(*Core::ReadFile(m_folder / "out/film.mkv", 100), "somebody else's");
    EXPECT_EQ(m_queue->FindStatus(2)->output, m_folder / "out/film (3).mkv");

    // Somebody is quicker while it is being converted: the work is kept.
    m_onStatus = [&](FilmId, ConversionStatus const& status)
    {
        if (status.state == ConversionState::Running)
            static_cast<void>(Core::WriteFile(m_folder / "out/film (4).mkv", "somebody else's", false));
    };
    m_queue->Add(MakeJob(3, film, {}, SubtitleCollectionMode::ModeNone));
    ASSERT_TRUE(RunToEnd());
    EXPECT_EQ(StateOf(3), ConversionState::Done) << qPrintable(m_queue->FindStatus(3)->sentence);
    EXPECT_EQ(m_queue->FindStatus(3)->output, m_folder / "out/film (5).mkv");
    EXPECT_EQ(*Core::ReadFile(m_folder / "out/film (4).mkv", 100), "somebody else's");
}

TEST_F(ConversionQueueTest, AFilmThatBreaksOffIsDoneAndSaysWhere)
{
    ioPath const film = MakeFilm("film.mkv", 20, {});
    ConversionJob const job = MakeJob(1, film, {}, SubtitleCollectionMode::ModeNone);
    auto const bytes = Core::ReadFile(film, 100'000'000);
    ASSERT_TRUE(bytes);
    ASSERT_FALSE(Core::WriteFile(film, bytes->substr(0, bytes->size() / 2), true));
    m_queue->Add(job);
    m_queue->Add(MakeJob(2, MakeFilm("whole.mkv", 2, {}), {}, SubtitleCollectionMode::ModeNone));
    ASSERT_TRUE(RunToEnd());
    ConversionStatus const status = *m_queue->FindStatus(1);
    EXPECT_EQ(status.state, ConversionState::Done) << status.sentence.toStdString();
    ASSERT_TRUE(status.earlyEnd);
    EXPECT_TRUE(status.hasLosses);
    EXPECT_EQ(status.earlyEnd->total, 20s);
    EXPECT_TRUE(status.earlyEnd->done > 2s && status.earlyEnd->done < 18s);
    EXPECT_FALSE(m_queue->FindStatus(2)->earlyEnd);
    EXPECT_EQ(m_queue->GetBatch(), (std::set<FilmId>{1, 2}));
}

TEST_F(ConversionQueueTest, AFilmIsCancelledInWhateverStateAndLeavesNothing)
{
    OutputSettings mp4;
    mp4.formatId = "mp4";
    mp4.quality = Quality::High;
    ioPath const film = MakeFilm("long.mkv", 20, {"subrip"});
    for (FilmId id = 1; id <= 4; ++id)
        m_queue->Add(MakeJob(id, film, mp4, SubtitleCollectionMode::AllSoftSubtitles));
    m_queue->Add(MakeJob(5, MakeFilm("short.mkv", 1, {}), {}, SubtitleCollectionMode::ModeNone));
    m_onStatus = [&](FilmId id, ConversionStatus const& status)
    {
        if (id == 1 && status.state == ConversionState::Preparing)
        {
            m_queue->Cancel(2);
            m_queue->Cancel(1);
        }
        if (id == 3 && status.fraction.value_or(0.0) > 0.0)
            m_queue->Cancel(3);
        if (id == 4 && status.fraction.value_or(0.0) > 0.0)
            m_queue->Cancel(4);
    };
    ASSERT_TRUE(RunToEnd());
    EXPECT_EQ(m_states[1].back(), ConversionState::Cancelled);
    EXPECT_EQ(m_states[2], (States{ConversionState::Waiting, ConversionState::Cancelled}));
    EXPECT_EQ(m_states[3], (States{ConversionState::Waiting, ConversionState::Preparing, ConversionState::Running,
                                   ConversionState::Cancelled}));
    EXPECT_EQ(StateOf(4), ConversionState::Cancelled);
    EXPECT_EQ(StateOf(5), ConversionState::Done);
    EXPECT_EQ(ListOutputs(), std::vector<std::string>{"short.mkv"});
    EXPECT_EQ(m_finishedCount, 1);
    EXPECT_TRUE(Core::ListFolder(m_folder / "work").empty());
}

TEST_F(ConversionQueueTest, APausedQueueStandsStillAndForgetsThePauseWhenItRunsEmpty)
{
    OutputSettings settings;
    settings.quality = Quality::High;
    ioPath const film = MakeFilm("film.mkv", 40, {});
    m_queue->Add(MakeJob(1, film, settings, SubtitleCollectionMode::ModeNone));
    m_queue->Add(MakeJob(2, MakeFilm("next.mkv", 1, {}), {}, SubtitleCollectionMode::ModeNone));
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_queue->FindStatus(1)->fraction.has_value(); }, LONGEST_MS));
    m_queue->SetPaused(true);
    // What was read already is still written; a film that does not stand still comes to its end.
    std::optional<double> fraction;
    while (std::exchange(fraction, m_queue->GetTotalFraction()) != m_queue->GetTotalFraction())
        QTest::qWait(600);
    auto const remaining = m_queue->GetTotalRemaining();
    QTest::qWait(600);
    EXPECT_EQ(m_queue->GetTotalFraction(), fraction);
    EXPECT_TRUE(remaining && m_queue->GetTotalRemaining() == remaining);
    EXPECT_EQ(StateOf(1), ConversionState::Running);

    m_queue->Cancel(1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return StateOf(1) == ConversionState::Cancelled; }, LONGEST_MS));
    QTest::qWait(100);
    EXPECT_EQ(StateOf(2), ConversionState::Waiting) << "the next one begins although paused";
    m_queue->SetPaused(false);
    ASSERT_TRUE(RunToEnd());
    EXPECT_EQ(StateOf(2), ConversionState::Done);

    m_queue->Add(MakeJob(1, film, settings, SubtitleCollectionMode::ModeNone));
    m_queue->SetPaused(true);
    EXPECT_TRUE(m_queue->IsPaused());
    m_queue->CancelAll();
    EXPECT_FALSE(m_queue->IsPaused());
    EXPECT_FALSE(m_queue->IsActive());
}

TEST_F(ConversionQueueTest, DestroyingItEndsWhatIsPreparedOrRuns)
{
    OutputSettings mp4;
    mp4.formatId = "mp4";
    mp4.quality = Quality::High;
    ioPath const film = MakeFilm("film.mkv", 20, {"subrip"});
    for (ConversionState const state : {ConversionState::Preparing, ConversionState::Running})
    {
        m_queue->Add(MakeJob(1, film, mp4, SubtitleCollectionMode::AllSoftSubtitles));
        ASSERT_TRUE(QTest::qWaitFor([&] { return StateOf(1) == state; }, LONGEST_MS));
        m_queue.reset();
        EXPECT_TRUE(ListOutputs().empty());
        EXPECT_TRUE(Core::ListFolder(m_folder / "work").empty());
        QTest::qWait(20); // what was on its way finds nobody
        m_queue = std::make_unique<ConversionQueue>(m_services);
        Listen();
    }
}

TEST(ConversionTotalsTest, FilmsWeighByTheirWorkAndTimeIsSaidOnlyWhereItIsKnown)
{
    ConversionStatus ended;
    ended.state = ConversionState::Failed;
    ConversionStatus running;
    running.state = ConversionState::Running;
    running.fraction = 0.5;
    running.remaining = 20s;
    ConversionStatus const waiting;
    std::vector<ConversionShare> shares{{30s, PictureWork::Encoded, &ended},
                                        {60s, PictureWork::Encoded, &running},
                                        {90s, PictureWork::Encoded, &waiting}};
    EXPECT_DOUBLE_EQ(*SumFraction(shares), (30.0 + 30.0) / 180.0);
    EXPECT_EQ(SumRemaining(shares, {0.0, 1.5}), 80s);
    EXPECT_EQ(SumRemaining(shares, {}), std::nullopt);
    shares[2].duration = 0s;
    EXPECT_EQ(SumRemaining(shares, {0.0, 1.5}), std::nullopt) << "nobody knows how long that film is";
    EXPECT_EQ(SumRemaining({{30s, PictureWork::Encoded, &ended}}, {0.0, 1.5}), std::nullopt);
    EXPECT_EQ(SumFraction({}), std::nullopt);

    // Two hours that are copied are nothing beside some minutes that are encoded, whichever comes first.
    shares = {{2h, PictureWork::Copied, &waiting}, {15min, PictureWork::Encoded, &running}};
    EXPECT_NEAR(*SumFraction(shares), 0.5, 0.05);
    EXPECT_LT(SumRemaining(shares, {0.0, 1.0}), 120s);
    EXPECT_EQ(SumRemaining(shares, {720.0, 1.0}), 30s) << "what was measured counts";
}

} // namespace
} // namespace Korvex::Desktop
