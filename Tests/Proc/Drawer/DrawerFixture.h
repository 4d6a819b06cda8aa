#pragma once

#include "Proc/Blend/TestPicture.h"
#include "Proc/Settings.h"
#include "Proc/SubtitleDrawer.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <chrono>
#include <string>
#include <vector>

namespace Korvex::Proc::Tests
{

using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::seconds;
using DrawerPtr = boost::intrusive_ptr<ISubtitleDrawer>;

/// Settings with a font that the tests name, so that pictures do not depend on what else is installed.
[[nodiscard]] SettingsSubtitleDrawer DejaVu(double size = 20.0);

[[nodiscard]] TextCue MakeCue(milliseconds start, milliseconds end, std::string const& text);

/// Text without a look of its own, one cue from 1 s to 2 s for every text given.
[[nodiscard]] TextDocument PlainText(std::vector<std::string> const& texts);

/// A script of 384 x 288 with a style for each of the nine alignments ("An1" .. "An9") and events from 1 s to 2 s.
[[nodiscard]] TextDocument Script(std::vector<std::string> const& texts, std::string const& style = "An2",
                                  std::string const& headerLines = "");

[[nodiscard]] DrawerPtr MakeDrawer(SettingsSubtitleDrawer const& settings, SubtitleDocument document,
                                   PictureGeometry const& geometry);

/// Where the ink is on a picture of the geometry at a time; empty where there is none.
[[nodiscard]] InkBox DrawnBox(SettingsSubtitleDrawer const& settings, SubtitleDocument document,
                              PictureGeometry const& geometry, microseconds time = milliseconds(1500));

/// The bytes of a picture of 640 x 360 after drawing on it.
[[nodiscard]] std::vector<std::uint8_t> DrawnBytes(ISubtitleDrawer& drawer, microseconds time);

} // namespace Korvex::Proc::Tests
