#include "Desktop/Preview/PreviewThread.h"

#include "Support/MediaMaker.h"

#include <QTest>

#include <chrono>

using namespace Korvex;
using namespace Korvex::Testing;
using Desktop::PreviewAnswer;
using Desktop::PreviewRequest;
using Desktop::PreviewThread;
using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace
{

class PreviewThreadTest : public testing::Test
{
protected:
    PreviewThreadTest() { Listen(); }

    void Listen()
    {
        QObject::connect(m_thread.get(), &PreviewThread::Answered, m_thread.get(),
                         [this](PreviewAnswer const& answer) { m_answers.push_back(answer); });
    }

    /// `name` is a film of pictures of which only the first can be decoded alone, so that everything far in costs time.
    static ioPath MakeFilm(TemporaryFolder const& folder, std::string const& name, int frames)
    {
        MadeMedia film;
        film.video.emplace();
        film.video->width = 480;
        film.video->height = 270;
        film.video->frameCount = frames;
        film.video->keyFrameInterval = frames;
        film.video->sample = [frames](int frame, int component, int x, int y)
        { return component == 0 ? (x * y / 8 + frame * 3) % 200 : frames % 200; };
        MakeMedia(folder / name, film);
        return folder / name;
    }

    ioPath MakeFilm(std::string const& name) const { return MakeFilm(m_folder, name, 60); }

    /// 24 seconds, the last of which take some hundred milliseconds to get to; made once.
    static ioPath LongFilm()
    {
        static TemporaryFolder const folder;
        static ioPath const film = MakeFilm(folder, "long.mkv", 600);
        return film;
    }

    std::uint64_t Ask(ioPath const& film, microseconds time)
    {
        PreviewRequest request;
        request.film = film;
        request.time = time;
        return m_thread->Request(request);
    }

    bool WaitFor(std::uint64_t number)
    {
        return QTest::qWaitFor(
            [&]
            { return !m_answers.empty() && m_answers.back().request.number == number && m_answers.back().isComplete; },
            20'000);
    }

    TemporaryFolder m_folder;
    std::unique_ptr<PreviewThread> m_thread = std::make_unique<PreviewThread>();
    std::vector<PreviewAnswer> m_answers;
};

} // namespace

TEST_F(PreviewThreadTest, TheNewestOfManyRequestsIsAnsweredAndOvertakenOnesAreNotWaitedFor)
{
    ioPath const film = LongFilm();
    std::uint64_t newest = 0;
    for (int i = 0; i < 100; ++i)
        newest = Ask(film, milliseconds(i % 2 == 0 ? 23'000 - i * 40 : 100));
    ASSERT_TRUE(WaitFor(newest));
    EXPECT_LT(m_answers.size(), 5U);
    EXPECT_EQ(m_answers.back().time, milliseconds(80));

    // A search that a newer time has overtaken is soon given up, not run to its end.
    auto const begin = steady_clock::now();
    ASSERT_TRUE(WaitFor(Ask(film, milliseconds(23'900))));
    auto const whole = steady_clock::now() - begin;
    ASSERT_TRUE(WaitFor(Ask(film, milliseconds(0))));
    Ask(film, milliseconds(23'900));
    QTest::qWait(20);
    auto const overtaken = steady_clock::now();
    ASSERT_TRUE(WaitFor(Ask(film, milliseconds(40))));
    constexpr milliseconds PATIENCE_AND_NOISE{450};
    EXPECT_LT(steady_clock::now() - overtaken, std::max<steady_clock::duration>(PATIENCE_AND_NOISE, whole / 2));
}

TEST_F(PreviewThreadTest, AnswersAreAboutTheFilmThatIsWantedHoweverQuicklyItChanges)
{
    ioPath const films[]{MakeFilm("one.mkv"), MakeFilm("other.mkv")};
    ioPath wanted;
    QObject::connect(m_thread.get(), &PreviewThread::Answered, m_thread.get(),
                     [&](PreviewAnswer const& answer) { EXPECT_EQ(answer.request.film, wanted); });
    std::uint64_t newest = 0;
    for (int i = 0; i < 50; ++i)
    {
        wanted = films[i % 2];
        newest = Ask(wanted, milliseconds(i * 40));
        QTest::qWait(i % 5);
    }
    ASSERT_TRUE(WaitFor(newest));
    EXPECT_FALSE(m_answers.back().failure);
    EXPECT_EQ(m_answers.back().time, milliseconds(49 * 40));

    wanted = m_folder / "gone.mkv";
    ASSERT_TRUE(WaitFor(Ask(wanted, milliseconds(0))));
    ASSERT_TRUE(m_answers.back().failure);
    EXPECT_EQ(m_answers.back().failure->file.FileName(), "gone.mkv");
    EXPECT_TRUE(m_answers.back().picture.isNull());

    m_answers.clear();
    wanted = films[0];
    Ask(wanted, milliseconds(0));
    m_thread->Clear();
    QTest::qWait(100);
    EXPECT_TRUE(m_answers.empty());
}

TEST_F(PreviewThreadTest, GoesAwayQuicklyWhileItDecodes)
{
    ioPath const film = LongFilm();
    for (int const wait : {0, 1, 30, 60})
    {
        Ask(film, std::chrono::seconds(23));
        QTest::qWait(wait);
        auto const begin = steady_clock::now();
        m_thread.reset();
        EXPECT_LT(steady_clock::now() - begin, milliseconds(400));
        m_thread = std::make_unique<PreviewThread>();
    }
}
