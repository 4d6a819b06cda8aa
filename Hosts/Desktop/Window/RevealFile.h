#pragma once

#include <functional>

class QObject;

namespace Korvex
{
class ioPath;
} // namespace Korvex

namespace Korvex::Desktop
{

/// Shows the file in the desktop's file manager: selected where the file manager can do that, else its folder. Waits
/// for nobody. GUI thread.
/// @param onFailure there is no file manager; from the event loop or at once, and not after `context` has gone
void RevealFile(ioPath const& file, QObject& context, std::function<void()> const& onFailure);

} // namespace Korvex::Desktop
