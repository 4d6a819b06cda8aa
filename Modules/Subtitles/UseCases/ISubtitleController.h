#pragma once

#include "Subtitles/Entities/EventPublishing.h"

#include "Core/ioPath.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleCollection;
}

namespace Korvex::Converter::Subtitles::UseCases
{

/// Hears when core settings are to be made anew.
class ISubtitleControllerEventObserver
{
public:
    /// Answer with `SetSubtitleCollection` and `ApplySettings`, never with `RefreshSettings`.
    virtual void OnSettingsRefreshed() = 0;
    virtual ~ISubtitleControllerEventObserver() = default;
};

/// The module's way to the transcoding core: questions about formats, and the core's subtitle settings. Nothing throws;
/// user-interface thread only.
class ISubtitleController : public Core::EventPublisher<ISubtitleControllerEventObserver>
{
public:
    /// The collection that the next calls are about, and its settings holder: the object in its implementation slot,
    /// which is filled when it is empty.
    virtual void SetSubtitleCollection(std::shared_ptr<Entities::SubtitleCollection> const& collection) = 0;
    /// Codecs that a container may carry as switchable streams; empty for a container that carries none.
    [[nodiscard]] virtual std::set<std::string> GetAllowedSoftCodecIds(std::string const& formatId) const = 0;
    /// The codec of a subtitle file; the core's "no codec" for anything else.
    [[nodiscard]] virtual std::string DetermineSubtitleCodec(ioPath const& path) const = 0;
    /// Display name, UTF-8.
    [[nodiscard]] virtual std::string GetCodecName(std::string const& codecId) const = 0;
    /// Formats in which subtitle files may be added from disk.
    [[nodiscard]] virtual std::vector<std::string> GetValidExternalFormats() const = 0;
    /// The extension without its dot, in any letter case.
    virtual bool IsFileExtensionSupported(std::string const& extension) = 0;
    [[nodiscard]] virtual bool PathIsDVD(ioPath const& path) const = 0;
    /// Makes the core settings that the collection asks for: soft, burned in, or none.
    virtual void ApplySettings() = 0;
    virtual void ClearSettings() = 0;
    /// Notifies the observers.
    virtual void RefreshSettings() = 0;
};

} // namespace Korvex::Converter::Subtitles::UseCases
