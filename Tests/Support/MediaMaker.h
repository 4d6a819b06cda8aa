#pragma once

#include "Core/Result.h"
#include "Core/ioPath.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

/// Real media files for tests, a second or two long and a few kilobytes in size, made where the test runs.
namespace Korvex::Testing
{

/// A folder of its own that goes with everything in it.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(TemporaryFolder const&) = delete;
    TemporaryFolder& operator=(TemporaryFolder const&) = delete;

    [[nodiscard]] ioPath const& Path() const { return m_path; }
    [[nodiscard]] ioPath operator/(std::string const& name) const { return m_path / name; }
    /// Puts the file there, over one of that name, and gives its path.
    ioPath Write(std::string const& name, std::string const& bytes) const;

private:
    ioPath m_path;
};

struct MadeVideo
{
    std::string encoder = "libx264"; ///< FFmpeg's encoder name
    std::string pixelFormat = "yuv420p";
    int width = 320;
    int height = 180;
    int frameCount = 50;
    int repetitions = 1; ///< of these frames, one behind the other: hours of film that cost seconds to make
    int framesPerSecond = 25;
    /// When each frame begins, one more entry than frames for the end of the last; empty: evenly by `framesPerSecond`.
    std::vector<std::chrono::milliseconds> frameTimes;
    int keyFrameInterval = 25;
    int bFrames = 0;
    int crf = 23;
    int sampleAspectNumerator = 1;
    int sampleAspectDenominator = 1;
    int rotationDegrees = 0; ///< clockwise, to show the picture upright
    bool isInterlaced = false;
    std::string matrix;    ///< "bt709", "smpte170m", "bt2020nc"; empty: not stated. Likewise below
    std::string primaries; ///< "bt709", "bt2020"
    std::string transfer;  ///< "bt709", "smpte2084", "arib-std-b67"
    std::string range;     ///< "tv", "pc"
    bool hasMasteringData = false;
    /// The sample of a component (0 Y or R, 1 U or G, 2 V or B) at a place of its own plane, 0..255 whatever the depth.
    /// Empty: a gradient that moves.
    std::function<int(int frame, int component, int x, int y)> sample;
};

struct MadeAudio
{
    std::string encoder = "aac";
    std::chrono::milliseconds duration{2000};
    int sampleRate = 48000;
    std::string language;
    std::string title;
};

/// One event: text in the codec's own form, or a filled box for bitmap codecs.
struct MadeCue
{
    std::chrono::milliseconds start{0};
    std::chrono::milliseconds end{0};
    std::string text; ///< for ASS the event's text field; any bytes, valid UTF-8 or not
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    std::uint32_t rgba = 0xFFFFFFFFU;
};

struct MadeSubtitle
{
    /// subrip, ass, webvtt, mov_text, text, hdmv_pgs_subtitle, dvd_subtitle or dvb_subtitle
    std::string codecId = "subrip";
    std::vector<MadeCue> cues;
    std::string language;
    std::string title;
    bool isDefault = false;
    bool isForced = false;
    bool isHearingImpaired = false;
};

struct MadeAttachment
{
    std::string name;
    std::string mimeType;
    std::string bytes;
};

struct MadeChapter
{
    std::chrono::milliseconds start{0};
    std::chrono::milliseconds end{0};
    std::string title;
};

/// Streams come in this order: video, audio, subtitles, attachments.
struct MadeMedia
{
    std::string formatId = "matroska"; ///< FFmpeg's muxer name, or "m2ts"
    std::optional<MadeVideo> video;
    std::vector<MadeAudio> audios;
    std::vector<MadeSubtitle> subtitles;
    std::vector<MadeAttachment> attachments;
    std::vector<MadeChapter> chapters;
    std::string title;
    std::chrono::milliseconds startTime{0}; ///< added to every time in the file
};

/// Writes the file. Throws std::runtime_error that names the failing call.
void MakeMedia(ioPath const& path, MadeMedia const& media);

/// The three cues that most tests use: 0.5 to 1, 1 to 1.5 and 1.6 to 1.9 seconds.
[[nodiscard]] std::vector<MadeCue> MakeTextCues();
[[nodiscard]] std::vector<MadeCue> MakeBoxCues();
/// With these cues, boxes where the codec's are bitmaps.
[[nodiscard]] MadeSubtitle MakeSubtitle(std::string const& codecId, std::string const& language = {});

/// What succeeded; throws the sentence of what failed.
template <typename T>
[[nodiscard]] T ValueOf(Core::Result<T> result)
{
    if (!result)
        throw std::runtime_error(Core::ToSentence(result.GetError()));
    return std::move(result).Value();
}

} // namespace Korvex::Testing
