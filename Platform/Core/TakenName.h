#pragma once

namespace Korvex::Core
{

/// What becomes of a finished file when another one stands under its name by then.
enum class TakenName
{
    Refuse,   ///< fail with OutputExists
    Replace,  ///< take its place
    NextFree, ///< stand beside it, under the next name that is free: "film (2).mkv"
};

} // namespace Korvex::Core
