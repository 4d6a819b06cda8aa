#include "Proc/FFmpeg/PacketMerger.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <thread>

using namespace Korvex::Proc::FFmpeg;
using Pace = PacketMerger::Pace;

namespace
{

Packet MakeTimed(std::int64_t dtsMs, int size = 100)
{
    Packet packet(av_packet_alloc());
    av_new_packet(packet.get(), size);
    packet->pts = packet->dts = dtsMs;
    packet->time_base = {1, 1000};
    return packet;
}

} // namespace

TEST(PacketMergerTest, MergesByTimeAcrossTimeBasesAndNeverWaitsForSubtitles)
{
    PacketMerger merger({Pace::Gating, Pace::Gating, Pace::Sparse}, {});
    for (int ms : {0, 40, 80})
        merger.Push(0, MakeTimed(ms));
    Packet other = MakeTimed(50 * 90);
    other->time_base = {1, 90000};
    merger.Push(1, std::move(other));
    merger.Push(2, MakeTimed(20));
    merger.Finish(0);
    merger.Finish(1);
    // The subtitle stream is still open: what is there goes out all the same.
    std::vector<std::size_t> order;
    for (int i = 0; i < 5; ++i)
        order.push_back(merger.Pop()->stream);
    EXPECT_EQ(order, (std::vector<std::size_t>{0, 2, 0, 1, 0}));
    merger.Finish(2);
    EXPECT_FALSE(merger.Pop());
}

TEST(PacketMergerTest, AFileWithAllSoundAtItsEndNeitherDeadlocksNorFillsTheMemory)
{
    // One thread reads both, as a demuxer does: the whole picture first, half a minute of it, then the sound.
    PacketMerger::Limits limits;
    limits.bytes = 20000;
    PacketMerger merger({Pace::Gating, Pace::Gating}, limits);
    std::atomic<int> inside{0};
    std::atomic<int> most{0};
    std::thread producer(
        [&]
        {
            for (std::size_t stream : {std::size_t{0}, std::size_t{1}})
            {
                for (int i = 0; i < 750; ++i)
                {
                    most = std::max<int>(most, ++inside);
                    merger.Push(stream, MakeTimed(i * 40, 1000));
                }
                if (stream == 0)
                    continue;
                merger.Finish(0);
                merger.Finish(1);
            }
        });
    auto popped = std::async(std::launch::async,
                             [&]
                             {
                                 int count = 0;
                                 while (merger.Pop())
                                 {
                                     --inside;
                                     ++count;
                                 }
                                 return count;
                             });
    ASSERT_EQ(popped.wait_for(std::chrono::seconds(20)), std::future_status::ready) << "deadlock";
    producer.join();
    EXPECT_EQ(popped.get(), 1500);
    EXPECT_LT(most, 600) << "no more than the patience of ten seconds may queue up";
}

TEST(PacketMergerTest, CancelWakesBothSides)
{
    PacketMerger::Limits limits;
    limits.bytes = 1;
    PacketMerger full({Pace::Gating}, limits);
    full.Push(0, MakeTimed(0));
    PacketMerger empty({Pace::Gating}, limits);
    auto push = std::async(std::launch::async, [&] { return full.Push(0, MakeTimed(1)); });
    auto pop = std::async(std::launch::async, [&] { return empty.Pop().has_value(); });
    EXPECT_EQ(push.wait_for(std::chrono::milliseconds(30)), std::future_status::timeout);
    EXPECT_EQ(pop.wait_for(std::chrono::milliseconds(30)), std::future_status::timeout);
    full.Cancel();
    empty.Cancel();
    EXPECT_FALSE(push.get());
    EXPECT_FALSE(pop.get());
}
