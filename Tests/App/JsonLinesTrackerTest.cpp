#include "Support/MediaMaker.h"

#include "App/JsonLinesTracker.h"

#include "Core/FileSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDateTime>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <thread>

namespace Korvex::App
{
namespace
{

class JsonLinesTrackerTest : public testing::Test
{
protected:
    Testing::TemporaryFolder const m_folder;
    ioPath const m_file = m_folder / "kept/statistics.jsonl";
};

TEST_F(JsonLinesTrackerTest, NothingIsKeptUntilItIsSwitchedOn)
{
    {
        JsonLinesTracker tracker(m_file);
        tracker.TrackEvent("BEFORE", {});
        EXPECT_EQ(*tracker.Read(), "");
        EXPECT_FALSE(Core::FolderExists(m_file.Parent()));
        tracker.SetEnabled(true);
        tracker.TrackEvent("DURING", {{"SAID", "a \"b\"\n"}});
        tracker.SetEnabled(false);
        tracker.TrackEvent("AFTER", {});
    } // writes what waits
    std::string const line = std::move(Core::ReadFile(m_file, 1000)).Value();
    EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 1);
    QJsonObject const event = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
    EXPECT_EQ(event["event"].toString(), "DURING");
    EXPECT_EQ(event["parameters"].toObject()["SAID"].toString(), "a \"b\"\n");
    EXPECT_TRUE(QDateTime::fromString(event["time"].toString(), Qt::ISODate).isValid());
    EXPECT_EQ(QFileInfo(QString::fromStdString(m_file.utf8string())).permissions() &
                  (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
              QFile::Permissions());
}

TEST_F(JsonLinesTrackerTest, TheNewestLinesStayWhereTheyBecomeTooMany)
{
    constexpr int EVENTS = 6000;
    JsonLinesTracker tracker(m_file);
    tracker.SetEnabled(true);
    std::thread reader([&tracker] { EXPECT_TRUE(tracker.Read()); });
    for (int number = 1; number <= EVENTS; ++number)
    {
        tracker.TrackEvent("EVENT", {{"NUMBER", std::to_string(number)}});
        if (number % 1000 == 0)
        {
            EXPECT_TRUE(tracker.Read()); // also writes
        }
    }
    reader.join();
    std::string const lines = *tracker.Read();
    EXPECT_LE(lines.size(), JsonLinesTracker::MOST_FILE_BYTES);
    EXPECT_GT(lines.size(), JsonLinesTracker::MOST_FILE_BYTES / 4);
    EXPECT_EQ(lines.front(), '{');
    EXPECT_THAT(lines, testing::HasSubstr("\"NUMBER\":\"" + std::to_string(EVENTS) + "\""));
    EXPECT_THAT(lines, testing::Not(testing::HasSubstr("\"NUMBER\":\"1\"")));

    tracker.TrackEvent("WAITING", {});
    EXPECT_EQ(tracker.Delete(), Core::SUCCESS);
    EXPECT_EQ(*tracker.Read(), "");
    EXPECT_FALSE(Core::PathExists(m_file));
    EXPECT_EQ(tracker.Delete(), Core::SUCCESS);
}

TEST_F(JsonLinesTrackerTest, AFolderInItsPlaceIsToldAndEndsInNothingWorse)
{
    ASSERT_EQ(Core::CreateFolders(m_file / "within"), Core::SUCCESS);
    JsonLinesTracker tracker(m_file);
    tracker.SetEnabled(true);
    tracker.TrackEvent("EVENT", {});
    EXPECT_FALSE(tracker.Read());
    EXPECT_NE(tracker.Delete(), Core::SUCCESS);
}

} // namespace
} // namespace Korvex::App
