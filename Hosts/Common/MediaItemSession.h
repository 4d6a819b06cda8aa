#pragma once

#include "Common/SubtitleChoice.h"

#include "Core/ioPath.h"

#include <memory>
#include <string>
#include <vector>

namespace Korvex::Proc
{
struct MediaInfo;
class SettingsSubtitleMixer;
} // namespace Korvex::Proc

namespace Korvex::Converter::Transcoder::Entities
{
struct ConversionRequest;
struct Preset;
} // namespace Korvex::Converter::Transcoder::Entities

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleCollection;
struct SubtitleTrack;
} // namespace Korvex::Converter::Subtitles::Entities

namespace Korvex::Hosts
{

class HostServices;

/// One film on its way through the module: its own tracks, the files beside it, the files that the user added, and what
/// is to become of them. It holds an interactor of its own; working files that it wrote go when it goes, so it has to
/// outlive the conversion. User-interface thread. Failures are thrown as FileError or ChoiceError.
class MediaItemSession
{
public:
    /// `services` has to outlive the session.
    explicit MediaItemSession(HostServices& services);
    ~MediaItemSession();
    MediaItemSession(MediaItemSession const&) = delete;
    MediaItemSession& operator=(MediaItemSession const&) = delete;

    /// Reads the film's headers and lists its subtitles: its own tracks, then those beside it, then the added files.
    void Open(ioPath const& film, Converter::Transcoder::Entities::Preset const& preset, SubtitleChoice const& choice);

    /// Carries the choice out on the tracks that were listed. For soft tracks this is where files are prepared.
    void Apply(SubtitleChoice const& choice);

    [[nodiscard]] Proc::MediaInfo const& GetMediaInfo() const;
    [[nodiscard]] Converter::Subtitles::Entities::SubtitleCollection GetCollection() const;
    /// The listed track that is called so: by its identifier, or by its path however that is spelled.
    [[nodiscard]] Converter::Subtitles::Entities::SubtitleTrack FindTrack(std::string const& id) const;
    /// The track to draw; null when none is.
    [[nodiscard]] std::shared_ptr<Proc::SettingsSubtitleMixer const> GetMixerSettings() const;
    /// Everything that the conversion needs but the output's name.
    [[nodiscard]] Converter::Transcoder::Entities::ConversionRequest MakeRequest() const;

    /// Sentences about what was found or done otherwise than one might expect; each is given out once.
    [[nodiscard]] std::vector<std::string> TakeNotes();

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Hosts
