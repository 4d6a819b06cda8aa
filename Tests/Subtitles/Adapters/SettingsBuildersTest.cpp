#include "Subtitles/Adapters/SettingsBuilders.h"
#include "Subtitles/Adapters/SubtitleEncodingNames.h"

#include "Subtitles/Entities/ISubtitleImpl.h"
#include "Subtitles/Entities/SubtitleCollection.h"

#include "Proc/Settings.h"

#include <limits>

namespace Korvex::Converter::Subtitles::Adapters
{
namespace
{

using Entities::SubtitleAlign;
using Entities::SubtitleCollection;
using Entities::SubtitleEncoding;
using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;

SubtitleCollection MakeCollection(SubtitleTrack const& track)
{
    SubtitleCollection collection;
    collection.tracks.emplace(track.id, track);
    collection.currentTrack = track.id;
    return collection;
}

SubtitleTrack MakeFile(ioPath const& path)
{
    SubtitleTrack track(path);
    track.title = path.FileName();
    track.isExternal = true;
    return track;
}

Proc::AssRendererSettings RendererFor(QFont const& font)
{
    SubtitleCollection collection;
    collection.textSettings.font = font;
    return BuildDrawerSettings(collection).GetAssRendererSettings();
}

TEST(EncodingNamesTest, MapBothWaysExactly)
{
    for (int value = 0; value <= 14; ++value)
    {
        auto const encoding = static_cast<SubtitleEncoding>(value);
        EXPECT_EQ(EncodingFromCoreString(EncodingToCoreString(encoding)), encoding) << value;
    }
    EXPECT_EQ(EncodingToCoreString(static_cast<SubtitleEncoding>(15)), "");
    EXPECT_EQ(EncodingFromCoreString("BIG-5"), SubtitleEncoding::BIG5);
    EXPECT_EQ(EncodingFromCoreString("utf-8"), SubtitleEncoding::Auto);
}

TEST(MixerSettingsTest, NameTheTrackByStreamOrByFile)
{
    EXPECT_EQ(BuildMixerSettings(MakeCollection(SubtitleTrack(3u)))->GetSubtitleStreamIndex(), 3u);
    SubtitleTrack file = MakeFile("Movie.srt");
    file.encoding = SubtitleEncoding::Windows1251;
    file.streamIndex = 0;
    auto const external = BuildMixerSettings(MakeCollection(file));
    EXPECT_EQ(external->GetFilename(), ioPath("Movie.srt")) << "a file goes by its path, whatever its stream index";
    EXPECT_FALSE(external->GetSubtitleStreamIndex());
    EXPECT_EQ(external->GetEncoding(), "CP1251");

    SubtitleTrack unmarked(ioPath("Movie.ass"));
    EXPECT_EQ(BuildMixerSettings(MakeCollection(unmarked))->GetFilename(), ioPath("Movie.ass"));
    EXPECT_EQ(BuildMixerSettings(SubtitleCollection()), nullptr);
}

TEST(DrawerSettingsTest, CarryTheLookAndOneAxisOfTheAlignment)
{
    SubtitleCollection collection = MakeCollection(SubtitleTrack(3u));
    collection.textSettings =
        Entities::SubtitleTextSettings(9, QFont("Arial", 31), QColor(1, 2, 3), QColor(4, 5, 6), SubtitleAlign::Default);
    auto const drawer = BuildDrawerSettings(collection);
    auto const& renderer = drawer.GetAssRendererSettings();
    EXPECT_EQ(renderer.GetPrimaryColour().blue, 3);
    EXPECT_EQ(renderer.GetOutlineColour().red, 4);
    EXPECT_EQ(renderer.GetFontName(), "Arial");
    EXPECT_EQ(renderer.GetFontSize(), 31.0);
    int const axes[][2] = {{3, 3}, {3, 2}, {3, 0}, {3, 1}, {1, 3}, {0, 3}, {2, 3}, {3, 3}};
    for (int align = 0; align < 8; ++align)
    {
        collection.textSettings.align = static_cast<SubtitleAlign>(align);
        auto const aligned = BuildDrawerSettings(collection);
        EXPECT_EQ(static_cast<int>(aligned.GetHorizontalAlignment()), axes[align][0]) << align;
        EXPECT_EQ(static_cast<int>(aligned.GetVerticalAligment()), axes[align][1]) << align;
    }
    collection.tracks.begin()->second.synchronizationOffset = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(BuildDrawerSettings(collection).GetTimeShift(), 0);
}

TEST(DrawerSettingsTest, TranslateTheFontsStyle)
{
    QFont font("Arial", 20);
    font.setWeight(57);
    EXPECT_EQ(RendererFor(font).GetFlags(), 0u) << "medium is regular";
    font.setWeight(58);
    font.setItalic(true);
    font.setUnderline(true);
    EXPECT_EQ(RendererFor(font).GetFlags(), 14u);
    font.setStrikeOut(true);
    EXPECT_EQ(RendererFor(font).GetFlags(), 15u);

    QFont pixels;
    pixels.setFamily(QString());
    pixels.setPixelSize(40);
    Proc::AssRendererSettings const defaults;
    EXPECT_EQ(RendererFor(pixels).GetFontSize(), defaults.GetFontSize());
    EXPECT_EQ(RendererFor(pixels).GetFontName(), defaults.GetFontName());
}

TEST(SoftSettingsTest, ListEveryTrackInKeyOrder)
{
    SubtitleCollection collection;
    SubtitleTrack const named = MakeFile("Movie.de.srt");
    for (SubtitleTrack const& track : {SubtitleTrack(9u), SubtitleTrack(12u), named})
        collection.tracks.emplace(track.id, track);

    auto const tracks = BuildSoftSettings(collection)->GetTracksInfo();
    ASSERT_EQ(tracks.size(), 3u);
    EXPECT_EQ(tracks[0].streamIndex, 12u);
    EXPECT_EQ(tracks[1].isDefault, std::nullopt) << "as in the source";
    EXPECT_EQ(tracks[2].title, "") << "nobody wants a file name as a title";

    collection.defaultTracks = {named.id};
    auto const marked = BuildSoftSettings(collection)->GetTracksInfo();
    EXPECT_EQ(marked[1].isDefault, std::make_optional(false));
    EXPECT_EQ(marked[2].isDefault, std::make_optional(true));
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Adapters
