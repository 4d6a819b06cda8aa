#pragma once

#include "Subtitles/Entities/EventPublishing.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>

namespace Korvex::Proc
{
class IStreamRaw;
class IStreamReader;
class IStreamSubtitle;
} // namespace Korvex::Proc

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleTrack;
}

namespace Korvex::Converter::Subtitles::UseCases
{

/// Reserved: nothing is reported yet.
class ISubtitleStreamAdapterObserver
{
public:
    virtual ~ISubtitleStreamAdapterObserver() = default;
};

/// The subtitle streams inside a media file. Callers include Proc/Streams.h for the types that come back.
/// User-interface thread only; nothing throws, failures are logged.
class ISubtitleStreamAdapter : public Core::EventPublisher<ISubtitleStreamAdapterObserver>
{
public:
    /// The file to read from; empty for none.
    virtual void SetStreamReader(boost::intrusive_ptr<Proc::IStreamReader> const& reader) = 0;
    /// The track's stream, decoded; empty when it cannot be had.
    [[nodiscard]] virtual boost::intrusive_ptr<Proc::IStreamSubtitle>
    GetSubtitleStreamFromTrack(Entities::SubtitleTrack const& track) = 0;
    /// The track's stream, still encoded; empty when it cannot be had.
    [[nodiscard]] virtual boost::intrusive_ptr<Proc::IStreamRaw>
    GetRawSubtitleStreamFromTrack(Entities::SubtitleTrack const& track) = 0;
};

} // namespace Korvex::Converter::Subtitles::UseCases
