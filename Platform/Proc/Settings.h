#pragma once

#include "Core/Export.h"
#include "Core/ioPath.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The records by which the subtitles module tells the core what to do with subtitles. Plain values without behaviour:
/// the core reads them once when a job or a preview is made, and never changes them.
namespace Korvex::Proc
{

/// How a file is opened for parsing. The default reads headers and as much of the streams as their parameters need.
struct SettingsParser
{
    /// Character encoding of a text subtitle file by the core's name; empty: detect.
    std::string encoding;
};

/// Where text stands across the picture. Numbers are part of the interface.
enum class AlignmentHorizontal : std::int32_t
{
    Center = 0,
    Left = 1,
    Right = 2,
    Default = 3, ///< as the track's own style says, centred where it says nothing
};

/// Where text stands down the picture. Numbers are part of the interface.
enum class AlignmentVertical : std::int32_t
{
    Center = 0,
    Bottom = 1,
    Top = 2,
    Default = 3, ///< as the track's own style says, at the bottom where it says nothing
};

/// Colour of 8 bits a component, without transparency.
struct RgbColor
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

/// The look of text that has none of its own (SubRip, SAMI, WebVTT, mov_text, plain text).
class AssRendererSettings
{
public:
    static constexpr unsigned STRIKE_OUT = 1;
    static constexpr unsigned UNDERLINE = 2;
    static constexpr unsigned ITALIC = 4;
    static constexpr unsigned BOLD = 8;

    void SetPrimaryColour(int red, int green, int blue) { m_primary = MakeColor(red, green, blue); }
    [[nodiscard]] RgbColor GetPrimaryColour() const { return m_primary; }

    void SetOutlineColour(int red, int green, int blue) { m_outline = MakeColor(red, green, blue); }
    [[nodiscard]] RgbColor GetOutlineColour() const { return m_outline; }

    /// In lines of the 288-line frame in which text is laid out, whatever the picture's height.
    void SetFontSize(double lines) { m_fontSize = lines; }
    [[nodiscard]] double GetFontSize() const { return m_fontSize; }

    /// Any sum of `STRIKE_OUT`, `UNDERLINE`, `ITALIC` and `BOLD`.
    void SetFlags(unsigned flags) { m_flags = flags; }
    [[nodiscard]] unsigned GetFlags() const { return m_flags; }

    /// Family name, UTF-8. A family that is not installed is replaced by the system's nearest.
    void SetFontName(std::string family) { m_fontName = std::move(family); }
    [[nodiscard]] std::string const& GetFontName() const { return m_fontName; }

private:
    static RgbColor MakeColor(int red, int green, int blue)
    {
        return {static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green), static_cast<std::uint8_t>(blue)};
    }

    RgbColor m_primary{255, 255, 255};
    RgbColor m_outline{0, 0, 0};
    double m_fontSize = 20.0;
    unsigned m_flags = 0;
    std::string m_fontName = "Verdana";
};

/// Everything about how one burned-in track is drawn.
class SettingsSubtitleDrawer
{
public:
    void SetHorizontalAlignment(AlignmentHorizontal alignment) { m_horizontal = alignment; }
    [[nodiscard]] AlignmentHorizontal GetHorizontalAlignment() const { return m_horizontal; }

    void SetVerticalAligment(AlignmentVertical alignment) { m_vertical = alignment; }
    [[nodiscard]] AlignmentVertical GetVerticalAligment() const { return m_vertical; }

    /// Microseconds added to every time of the track: positive shows it later.
    void SetTimeShift(std::int64_t timeShiftUs) { m_timeShiftUs = timeShiftUs; }
    [[nodiscard]] std::int64_t GetTimeShift() const { return m_timeShiftUs; }

    /// Moves the subtitles by lines of the 288-line frame: `up` positive towards the top, `right` positive towards the
    /// right. Nothing is moved out of the frame.
    void SetMoveSubtitles(int up, int right)
    {
        m_moveUp = up;
        m_moveRight = right;
    }
    [[nodiscard]] int GetMoveUp() const { return m_moveUp; }
    [[nodiscard]] int GetMoveRight() const { return m_moveRight; }

    void SetAssRendererSettings(AssRendererSettings settings) { m_renderer = std::move(settings); }
    [[nodiscard]] AssRendererSettings const& GetAssRendererSettings() const { return m_renderer; }

private:
    AlignmentHorizontal m_horizontal = AlignmentHorizontal::Default;
    AlignmentVertical m_vertical = AlignmentVertical::Default;
    std::int64_t m_timeShiftUs = 0;
    int m_moveUp = 0;
    int m_moveRight = 0;
    AssRendererSettings m_renderer;
};

/// One track that is drawn into the picture: a stream of the converted file, or a file of its own.
class SettingsSubtitleMixer
{
public:
    /// Character encoding by the core's name; empty: detect. Only text from an external file has one.
    void SetEncoding(std::string name) { m_encoding = std::move(name); }
    [[nodiscard]] std::string const& GetEncoding() const { return m_encoding; }

    void SetDrawerSettings(SettingsSubtitleDrawer settings) { m_drawer = std::move(settings); }
    [[nodiscard]] SettingsSubtitleDrawer const& GetDrawerSettings() const { return m_drawer; }

    void SetSubtitleStreamIndex(std::uint32_t index) { m_streamIndex = index; }
    /// Set exactly when the track is a stream of the converted file.
    [[nodiscard]] std::optional<std::uint32_t> GetSubtitleStreamIndex() const { return m_streamIndex; }

    void SetFilename(ioPath path) { m_filename = std::move(path); }
    [[nodiscard]] ioPath const& GetFilename() const { return m_filename; }

private:
    std::string m_encoding;
    SettingsSubtitleDrawer m_drawer;
    std::optional<std::uint32_t> m_streamIndex;
    ioPath m_filename;
};

/// One track that goes out as a switchable stream.
struct SubtitleTrack
{
    enum class Kind : std::int32_t
    {
        Stream = 0, ///< stream `streamIndex` of the converted file
        File = 1,   ///< the first subtitle stream of the file `path`
    };

    Kind kind = Kind::Stream;
    ioPath path;
    std::uint32_t streamIndex = 0;
    std::string language;          ///< short name as the source gave it; empty: not stated
    std::string title;             ///< empty: none
    std::optional<bool> isDefault; ///< not set: as in the source; a file of its own is then not default
    std::optional<bool> isForced;  ///< likewise
    /// Of a file: it tells sounds in words too; not set: as the file says itself.
    std::optional<bool> isHearingImpaired;
    /// Of a file: the stream of the converted file in whose place it goes out.
    std::optional<std::uint32_t> standsForStream;
};

/// The tracks that go out as switchable streams, in the order in which they were listed.
class SettingsSubtitleSoft
{
public:
    void SetTracksInfo(std::vector<SubtitleTrack> tracks) { m_tracks = std::move(tracks); }
    [[nodiscard]] std::vector<SubtitleTrack> const& GetTracksInfo() const { return m_tracks; }

private:
    std::vector<SubtitleTrack> m_tracks;
};

} // namespace Korvex::Proc
