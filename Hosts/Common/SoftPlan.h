#pragma once

#include "Subtitles/Entities/SubtitleTrack.h"
#include "Subtitles/Entities/SubtitleTrackID.h"

#include "Core/Result.h"
#include "Proc/SubtitleExport.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Korvex::Proc
{
struct MediaInfo;
} // namespace Korvex::Proc

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleCollection;
} // namespace Korvex::Converter::Subtitles::Entities

namespace Korvex::Hosts
{

class HostServices;
class WorkFolder;

/// A text track that has to be written anew before it can go out as a switchable stream: the container takes only some
/// codecs, and soft tracks carry neither encoding nor offset.
struct SoftRewrite
{
    Converter::Subtitles::Entities::SubtitleTrack track;
    Proc::SubtitleSource source; ///< with the track's encoding and offset
    bool isCodecRefused = false;
    std::vector<std::string> formatIds; ///< where its codec is refused: the containers that could carry it as it is
    bool hasEncoding = false;
    bool hasShift = false;
};

/// Why a track cannot go out as a switchable stream.
enum class CarryObstacle
{
    Codec,    ///< the container takes neither it nor what could be made of it
    Encoding, ///< its encoding was chosen, and it cannot be written anew
    Offset,   ///< it is to be moved, and cannot be written anew
};

/// A track that the container cannot carry, whatever is written anew.
struct CarryProblem
{
    Converter::Subtitles::Entities::SubtitleTrack track;
    CarryObstacle obstacle = CarryObstacle::Codec;
    std::vector<std::string> formatIds; ///< the containers that could carry it as it is
};

/// What has to happen to a collection's tracks before all of them go out as switchable streams. In the order of the
/// lists.
struct SoftPlan
{
    std::string formatId;
    std::vector<std::string> allowedCodecIds;
    std::vector<SoftRewrite> rewrites;
    std::vector<CarryProblem> problems; ///< with any of these the conversion has to be refused
};

/// Looks at codecs, encodings and offsets alone; reads nothing. The tracks have to bear the codecs of their sources.
/// GUI thread.
[[nodiscard]] SoftPlan MakeSoftPlan(HostServices const& services, Proc::MediaInfo const& film,
                                    Converter::Subtitles::Entities::SubtitleCollection const& collection,
                                    std::string const& formatId);

/// Why a track that is to be written anew may have to be refused: the strongest of its reasons.
[[nodiscard]] CarryObstacle FindObstacle(SoftRewrite const& rewrite);

/// The containers that carry this codec as it is, in the order in which they are offered.
[[nodiscard]] std::vector<std::string> ListFormatsThatCarry(HostServices const& services, std::string const& codecId);

/// Text of any kind, as opposed to bitmaps: only text can be written anew.
[[nodiscard]] bool IsTextTrack(Proc::MediaInfo const& film, Converter::Subtitles::Entities::SubtitleTrack const& track);

/// The codec that a track of this codec goes out as: itself where the container takes it, else what its text is written
/// anew as; empty when the container takes neither. `isText`: it is text of any kind.
[[nodiscard]] std::string FindOutputCodec(std::string const& codecId, bool isText,
                                          std::vector<std::string> const& allowedCodecIds);

/// A track after it was written anew; without `track` it held no cues and goes out not at all.
struct RewrittenTrack
{
    SoftRewrite rewrite;
    std::optional<Converter::Subtitles::Entities::SubtitleTrack> track;
    Proc::ExportedSubtitle written;
};

/// Writes the working files of the plan. Any thread; takes as long as reading the film does.
[[nodiscard]] Core::Result<std::vector<RewrittenTrack>> CarryOut(SoftPlan const& plan, WorkFolder& folder);

/// Puts the written tracks into the collection in place of those that they were made of.
void PutIn(std::vector<RewrittenTrack> const& tracks, Converter::Subtitles::Entities::SubtitleCollection& collection);

} // namespace Korvex::Hosts
