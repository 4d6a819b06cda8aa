#pragma once

#include "Proc/FFmpeg/Handles.h"
#include "Proc/FFmpeg/LanguageCodes.h"

#include "Core/Result.h"

#include <string>
#include <vector>

namespace Korvex::Proc::FFmpeg
{

/// What an output container can do, beyond what its muxer says of itself.
struct ContainerRule
{
    std::string formatId; ///< a Conf::IFormatFile identifier
    char const* muxerName = "";
    char const* displayName = "";
    std::vector<AVCodecID> subtitleCodecs;
    /// Moving pictures and sound that players of this container know. Empty: whatever the muxer takes.
    std::vector<AVCodecID> mediaCodecs;
    /// What the muxer takes although nothing reads it back.
    std::vector<AVCodecID> brokenCodecs;
    int firstSubtitleId = 0; ///< the muxer has no numbers for subtitle streams of its own; 0: it has
    int secondVideoId = 0;   ///< the muxer numbers one video stream alone; further ones from here on. 0: it numbers all
    LanguageForm languageForm = LanguageForm::Bibliographic;
    bool carriesAttachments = false;
    bool carriesCoverPictures = false;
    bool carriesOneStreamPerKind = false;
    bool carriesDisplayMatrix = false;
    bool namesTracksByHandler = false;   ///< players show the handler's name as the track's title
    bool storesPresentationTimes = true; ///< false: pictures are shown in the order and at the rate of the file
    char const* subtitleAdvice = "";     ///< what would work in place of a track that does not fit
};

/// Null for a format that is no output container.
[[nodiscard]] ContainerRule const* FindContainerRule(std::string const& formatId);

/// True when the container can carry a stream with these parameters. Asks the rule, then the muxer itself: it writes
/// the header of a file with this one stream into memory, because some refusals are made nowhere else.
[[nodiscard]] bool CanCarry(ContainerRule const& rule, AVCodecParameters const& parameters);

/// Muxer options that belong to the container and not to one job.
void SetMuxerOptions(ContainerRule const& rule, Dictionary& options);

/// Name of a codec for people: "DVD subtitles (dvd_subtitle)".
[[nodiscard]] std::string CodecDisplayName(AVCodecID codec);

/// Parameters for a stream of another container: without the code by which the old one named the codec.
[[nodiscard]] CodecParameters CopyParametersForOutput(AVCodecParameters const& from, ContainerRule const& rule);

} // namespace Korvex::Proc::FFmpeg
