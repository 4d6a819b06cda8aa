#include "Subtitles/Adapters/HostBridge.h"

#include "Subtitles/Entities/ISubtitleImpl.h"

#include "Proc/MediaInfo.h"

namespace Korvex::Converter::Subtitles
{
namespace
{

TEST(HostBridgeTest, ListsTheSubtitleStreamsOfAFilm)
{
    Proc::MediaInfo media;
    Proc::StreamInfo video;
    video.kind = Proc::StreamKind::Video;
    Proc::StreamInfo text;
    text.index = 1;
    text.kind = Proc::StreamKind::Subtitle;
    text.codecId = "subrip";
    text.language = "eng";
    text.title = "Signs";
    text.isForced = true;
    text.isHearingImpaired = true;
    Proc::StreamInfo styled = text;
    styled.index = 10;
    styled.codecId = "ass";
    styled.isForced = false;
    media.streams = {video, text, styled};

    auto const tracks = ListMediaTracks(media);
    ASSERT_EQ(tracks.size(), 2u);
    Entities::SubtitleTrack const& track = tracks.at(Entities::SubtitleTrackID(1u));
    EXPECT_EQ(track.streamIndex, 1u);
    EXPECT_EQ(track.detail, "Forced SDH");
    EXPECT_EQ(track.title, "Signs");
    EXPECT_FALSE(track.codecName.empty());
    EXPECT_TRUE(track.isForced && track.styleEditable);
    EXPECT_FALSE(track.isExternal || track.encodingEditable);
    EXPECT_FALSE(tracks.at(Entities::SubtitleTrackID(10u)).styleEditable);
    EXPECT_FALSE(tracks.at(Entities::SubtitleTrackID(10u)).isForced);
}

TEST(HostBridgeTest, ReadsNothingFromAnEmptySlot)
{
    CoreSettings const settings = ReadCoreSettings({});
    EXPECT_EQ(settings.soft, nullptr);
    EXPECT_EQ(settings.mixer, nullptr);
}

} // namespace
} // namespace Korvex::Converter::Subtitles
