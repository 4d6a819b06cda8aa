#include "Subtitles/Adapters/HostBridge.h"

#include "Core/FileSystem.h"
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

TEST(HostBridgeTest, NotesTheEncodingsOfReadableTextFiles)
{
    ioPath const folder = std::move(Core::CreateWorkFolder()).Value();
    std::string const cue = "1\n00:00:01,000 --> 00:00:02,000\n";
    ASSERT_FALSE(Core::WriteFile(folder / "a.srt", cue + "Привет\n", false));
    Entities::SubtitleCollection collection;
    for (char const* name : {"a.srt", "missing.srt"})
    {
        Entities::SubtitleTrack track(folder / name);
        track.isExternal = track.encodingEditable = true;
        collection.tracks.emplace(track.id, track);
    }
    collection.tracks.emplace(Entities::SubtitleTrackID(2u), Entities::SubtitleTrack(2u));
    NoteDetectedEncodings(collection);
    EXPECT_EQ(collection.tracks.at(Entities::SubtitleTrackID(folder / "a.srt")).extra, "UTF-8");
    EXPECT_EQ(collection.tracks.at(Entities::SubtitleTrackID(folder / "missing.srt")).extra, "");
    EXPECT_EQ(collection.tracks.at(Entities::SubtitleTrackID(2u)).extra, "");
    Core::RemoveWorkFolder(folder);
}

} // namespace
} // namespace Korvex::Converter::Subtitles
