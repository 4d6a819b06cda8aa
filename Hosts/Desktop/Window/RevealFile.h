#pragma once

namespace Korvex
{
class ioPath;
} // namespace Korvex

namespace Korvex::Desktop
{

/// Opens the folder of the file in the desktop's file manager. False when there is no file manager.
bool RevealFile(ioPath const& file);

} // namespace Korvex::Desktop
