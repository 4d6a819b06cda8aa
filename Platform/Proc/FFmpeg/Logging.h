#pragma once

namespace Korvex::Proc::FFmpeg
{

/// Sends what FFmpeg has to say to the program's log instead of standard error: what stops it as errors, what it only
/// stumbles over (a damaged picture in a film) at verbosity 1, the rest nowhere.
void RouteLibraryLog();

} // namespace Korvex::Proc::FFmpeg
