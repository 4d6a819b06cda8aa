#pragma once

#include "Subtitles/Entities/Export.h"

#include <memory>

namespace Korvex::Proc
{
class SettingsSubtitleDrawer;
class SettingsSubtitleMixer;
class SettingsSubtitleSoft;
} // namespace Korvex::Proc

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleCollection;
}

/// Turn a collection into the core's settings.
namespace Korvex::Converter::Subtitles::Adapters
{

/// The current track, burned in; empty when there is no such track.
[[nodiscard]] KVSUBTITLES_API std::shared_ptr<Proc::SettingsSubtitleMixer>
BuildMixerSettings(Entities::SubtitleCollection const& collection);

/// The look of the collection and the time shift of its current track.
[[nodiscard]] KVSUBTITLES_API Proc::SettingsSubtitleDrawer
BuildDrawerSettings(Entities::SubtitleCollection const& collection);

/// Every track as a switchable stream.
[[nodiscard]] KVSUBTITLES_API std::shared_ptr<Proc::SettingsSubtitleSoft>
BuildSoftSettings(Entities::SubtitleCollection const& collection);

} // namespace Korvex::Converter::Subtitles::Adapters
