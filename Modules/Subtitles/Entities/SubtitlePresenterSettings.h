#pragma once

#include <cstdint>

namespace Korvex::Converter::Subtitles::Entities
{

/// Which widgets of the host show a collection.
enum class SubtitlePresenterKind : std::int32_t
{
    None = 0,
    EditingPanel = 1,
    ItemPanel = 2,
    Both = 3,
};

/// How a collection is shown; set by the host.
struct SubtitlePresenterSettings
{
    SubtitlePresenterKind kind = SubtitlePresenterKind::None;

    [[nodiscard]] bool ShowsEditingPanel() const
    {
        return kind == SubtitlePresenterKind::EditingPanel || kind == SubtitlePresenterKind::Both;
    }
    [[nodiscard]] bool ShowsItemPanel() const
    {
        return kind == SubtitlePresenterKind::ItemPanel || kind == SubtitlePresenterKind::Both;
    }
};

} // namespace Korvex::Converter::Subtitles::Entities
