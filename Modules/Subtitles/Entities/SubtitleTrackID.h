#pragma once

#include "Subtitles/Entities/Export.h"

#include "Core/ioPath.h"

#include <cstdint>
#include <string>

namespace Korvex::Converter::Subtitles::Entities
{

/// The identity of a track inside one collection: the stream number for a stream of the media file, the path for an
/// external file. A value type.
///
/// Identifiers are ordered by their bytes and not by number, so 10 comes before 9; whoever shows or writes tracks in
/// the order of the file sorts them with `ListOrder` (TrackOrder.h).
class KVSUBTITLES_API SubtitleTrackID
{
public:
    /// Names no track.
    SubtitleTrackID() = default;
    explicit SubtitleTrackID(std::uint32_t streamNumber);
    explicit SubtitleTrackID(ioPath const& path);

    [[nodiscard]] bool IsEmpty() const noexcept { return m_text.empty(); }
    void Clear() noexcept { m_text.clear(); }

    /// The identifier as text, UTF-8.
    [[nodiscard]] std::string const& ToString() const noexcept { return m_text; }

    friend bool operator==(SubtitleTrackID const& a, SubtitleTrackID const& b) noexcept { return a.m_text == b.m_text; }
    friend bool operator!=(SubtitleTrackID const& a, SubtitleTrackID const& b) noexcept { return a.m_text != b.m_text; }
    friend bool operator<(SubtitleTrackID const& a, SubtitleTrackID const& b) noexcept { return a.m_text < b.m_text; }
    friend bool operator>(SubtitleTrackID const& a, SubtitleTrackID const& b) noexcept { return b.m_text < a.m_text; }

private:
    std::string m_text;
};

} // namespace Korvex::Converter::Subtitles::Entities
