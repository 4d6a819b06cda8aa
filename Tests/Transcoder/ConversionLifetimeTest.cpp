#include "Transcoder/TranscoderInteractor.h"

#include "Proc/Settings.h"
#include "Proc/Transcode.h"
#include "Support/MediaMaker.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>

#include <array>
#include <map>
#include <random>

namespace Korvex::Converter::Transcoder
{
namespace
{

struct Listener final : Entities::IConversionObserver
{
    void OnConversionProgress(Entities::ConversionId id, Proc::TranscodeProgress const&) override
    {
        EXPECT_EQ(finished.count(id), 0U) << "progress after the report";
    }
    void OnConversionFinished(Entities::ConversionId id, Proc::TranscodeReport const& report) override
    {
        EXPECT_TRUE(!report.error || report.error->code == Core::ErrorCode::Cancelled);
        ++finished[id];
    }
    std::map<Entities::ConversionId, int> finished;
};

TEST(ConversionLifetimeTest, RealConversionsMayBeCancelledAndDestroyedAtAnyMoment)
{
    int count = 1;
    std::array<char, 5> name{"test"};
    std::array<char*, 2> arguments{name.data(), nullptr};
    QCoreApplication const application(count, arguments.data());
    Testing::TemporaryFolder const folder;
    Testing::MadeMedia film;
    film.video.emplace();
    film.video->width = 64;
    film.video->height = 48;
    film.video->frameCount = 10;
    Testing::MakeMedia(folder / "in.mkv", film);
    Entities::ConversionRequest request;
    request.item.path = folder / "in.mkv";
    request.preset.formatId = "matroska";
    request.takenName = Core::TakenName::Replace;

    std::mt19937 random(1); // NOLINT(cert-msc51-cpp): the same moments each time; threads bring the variety
    for (int round = 0; round < 24; ++round)
    {
        SCOPED_TRACE(round);
        Listener listener;
        std::vector<Entities::ConversionId> ids;
        {
            TranscoderInteractor interactor;
            for (int i = 0; i < 3; ++i)
            {
                request.output = folder / ("out" + std::to_string(i) + ".mkv");
                auto const id = interactor.StartConversion(request, listener);
                ASSERT_TRUE(id);
                ids.push_back(*id);
                QTest::qWait(static_cast<int>(random() % 10));
                if (random() % 2 == 0)
                    interactor.CancelConversion(ids[random() % ids.size()]);
            }
            if (round % 2 == 0)
            {
                EXPECT_TRUE(QTest::qWaitFor([&] { return listener.finished.size() == ids.size(); }));
            }
        }
        auto const heard = listener.finished;
        QCoreApplication::processEvents();
        EXPECT_EQ(listener.finished, heard) << "news from an interactor that is gone";
        for (auto const& [id, times] : heard)
            EXPECT_EQ(times, 1) << id;
    }
}

} // namespace
} // namespace Korvex::Converter::Transcoder
