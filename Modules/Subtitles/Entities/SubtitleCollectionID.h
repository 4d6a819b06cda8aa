#pragma once

#include "Subtitles/Entities/Export.h"

#include <cstdint>
#include <string>

namespace Korvex::Converter::Subtitles::Entities
{

/// Identifies the collection of one media item within the process. A value type.
class KVSUBTITLES_API SubtitleCollectionID
{
public:
    /// Takes a fresh number: 1, 2, and so on. Only on the user-interface thread.
    SubtitleCollectionID();

    explicit operator std::uint32_t() const noexcept { return m_number; }
    /// Decimal digits.
    explicit operator std::string() const;

    friend bool operator==(SubtitleCollectionID a, SubtitleCollectionID b) noexcept { return a.m_number == b.m_number; }
    friend bool operator!=(SubtitleCollectionID a, SubtitleCollectionID b) noexcept { return a.m_number != b.m_number; }
    friend bool operator<(SubtitleCollectionID a, SubtitleCollectionID b) noexcept { return a.m_number < b.m_number; }

private:
    std::uint32_t m_number;
};

} // namespace Korvex::Converter::Subtitles::Entities
