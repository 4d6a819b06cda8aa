#include "Subtitles/Entities/ISubtitleImpl.h"
#include "Subtitles/Entities/MetaTypes.h"
#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/Entities/TrackOrder.h"

#include <QMetaType>

namespace Korvex::Converter::Subtitles::Entities
{
namespace
{

TEST(SubtitleTrackIDTest, IsOrderedByText)
{
    EXPECT_LT(SubtitleTrackID(12u), SubtitleTrackID(9u));
    EXPECT_GT(SubtitleTrackID(ioPath("/films/b.srt")), SubtitleTrackID(ioPath("/films/b")));
    EXPECT_FALSE(SubtitleTrackID(0u).IsEmpty());
}

TEST(SubtitleCollectionIDTest, NeverUsesANumberTwice)
{
    SubtitleCollectionID const first;
    SubtitleCollectionID const second;
    EXPECT_EQ(static_cast<std::uint32_t>(second), static_cast<std::uint32_t>(first) + 1);
}

TEST(SubtitleTrackTest, KnowsItsSourceAndComparesWhatUsersChange)
{
    SubtitleTrack const file(ioPath("/films/Movie.srt"));
    EXPECT_EQ(file.streamIndex, 4294967295u);
    EXPECT_FALSE(file.isExternal) << "set by whoever adds the file";

    SubtitleTrack other = file;
    other.synchronizationOffset = -0.0;
    EXPECT_EQ(file, other);
    other.synchronizationOffset = 0.1;
    EXPECT_NE(file, other);
    other = file;
    other.encodingEditable = true; // the last one compared
    EXPECT_NE(file, other);
}

TEST(SubtitleTextSettingsTest, HasOneDefaultLook)
{
    SubtitleTextSettings const defaults;
    EXPECT_EQ(defaults.font.family(), "Verdana");
    SubtitleTextSettings changed(5, QFont("Arial", 12), Qt::red, Qt::blue, SubtitleAlign::Top);
    EXPECT_NE(changed, defaults);
    changed.ResetToDefault();
    EXPECT_EQ(changed, defaults);
}

TEST(TrackOrderTest, ListsStreamsByNumberThenFiles)
{
    std::map<SubtitleTrackID, SubtitleTrack> tracks;
    for (std::uint32_t const index : {10u, 2u, 3u})
        tracks.emplace(SubtitleTrackID(index), SubtitleTrack(index));
    SubtitleTrack file(ioPath("1.srt"));
    file.isExternal = true;
    tracks.emplace(file.id, file);

    std::vector<std::string> rows;
    for (SubtitleTrack const* track : ListOrder(tracks))
        rows.push_back(track->id.ToString());
    EXPECT_EQ(rows, (std::vector<std::string>{"2", "3", "10", "1.srt"}));
    EXPECT_EQ(FindListRow(tracks, SubtitleTrackID(10u)), 2);
    EXPECT_EQ(FindListRow(tracks, SubtitleTrackID()), SubtitleCollection::NO_INDEX);
}

TEST(DisplayTextTest, UnknownValuesReadAsTheFirst)
{
    EXPECT_EQ(GetDisplayText(SubtitleEncoding::BIG5), "Traditional Chinese charset (BIG5)");
    EXPECT_EQ(GetDisplayText(static_cast<SubtitleEncoding>(-1)), "Auto");
    EXPECT_EQ(GetDisplayText(static_cast<SubtitleAlign>(7)), "Default");
}

TEST(MetaTypesTest, AreKnownByTheirFullNames)
{
    EXPECT_EQ(QMetaType::type("Korvex::Converter::Subtitles::Entities::SubtitleEncoding"),
              qMetaTypeId<SubtitleEncoding>());
    EXPECT_EQ(QMetaType::type("Korvex::Converter::Subtitles::Entities::SubtitleAlign"), qMetaTypeId<SubtitleAlign>());
    EXPECT_NE(QMetaType::type("Korvex::Converter::Subtitles::UseCases::IOnlineSearchController::Status"),
              static_cast<int>(QMetaType::UnknownType));
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Entities
