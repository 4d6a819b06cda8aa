#include "Support/MediaMaker.h"

#include "Subtitles/Adapters/HostBridge.h"

#include "Proc/MediaInfo.h"

namespace Korvex::Converter::Subtitles
{
namespace
{

TEST(HostBridgeTest, DescribesTheStreamsOfAFilm)
{
    Proc::MediaInfo media;
    Proc::StreamInfo& text = media.streams.emplace_back();
    text.kind = Proc::StreamKind::Subtitle;
    text.codecId = "subrip";
    text.title = "Signs";
    text.isForced = text.isHearingImpaired = true;
    Entities::SubtitleTrack const track = ListMediaTracks(media).begin()->second;
    EXPECT_EQ(track.title + ", " + track.detail, "Signs, Forced SDH");
    EXPECT_FALSE(track.codecName.empty() || track.isExternal || track.encodingEditable);
}

TEST(HostBridgeTest, NotesTheEncodingsOfReadableTextFiles)
{
    Korvex::Testing::TemporaryFolder const folder;
    std::string const cue = "1\n00:00:01,000 --> 00:00:02,000\n";
    folder.Write("a.srt", cue + "Привет\n");
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
}

} // namespace
} // namespace Korvex::Converter::Subtitles
