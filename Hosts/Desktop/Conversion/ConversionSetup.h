#pragma once

#include "Core/Result.h"
#include "Core/ioPath.h"
#include "Transcoder/ITranscoderInteractor.h"

#include <optional>

namespace Korvex::Hosts
{
class HostServices;
} // namespace Korvex::Hosts

namespace Korvex::Desktop
{

struct ConversionJob;
enum class PictureWork;

/// Tracks are to go out, all of them switchable.
[[nodiscard]] bool AsksForAllSoft(ConversionJob const& job);

/// One of the tracks is drawn into the picture.
[[nodiscard]] bool AsksForDrawing(ConversionJob const& job);

/// As far as the job says: a format that cannot hold the film's picture has it encoded all the same.
[[nodiscard]] PictureWork FindPictureWork(ConversionJob const& job);

/// The job's output, or the film's own name with the next free number: a name that was free when the job was made may
/// be taken by now, and films of one name may go into one folder.
[[nodiscard]] ioPath FindFreeOutput(ConversionJob const& job);

/// What can be said of the output before anything is read. Looks at directories alone.
[[nodiscard]] Core::Status CheckOutput(ConversionJob const& job);

/// Has the module make the core's settings, by an interactor that shows nothing, so that the film's own one and its
/// panels stay as they are. None when the module would do something else with the tracks than the job says: nothing is
/// drawn in or left out unless the user has seen it. GUI thread.
[[nodiscard]] std::optional<Converter::Transcoder::Entities::ConversionRequest>
MakeConversionRequest(Hosts::HostServices& services, ConversionJob const& job);

} // namespace Korvex::Desktop
