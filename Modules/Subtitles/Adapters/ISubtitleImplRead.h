#pragma once

#include "Subtitles/Entities/Export.h"

#include <memory>
#include <string>

namespace Korvex::Proc
{
class SettingsSubtitleMixer;
class SettingsSubtitleSoft;
} // namespace Korvex::Proc

namespace Korvex::Converter::Subtitles::Adapters
{

/// Where the conversion reads the core settings of a media item. An empty pointer: no subtitles of this kind.
class KVSUBTITLES_API ISubtitleImplRead
{
public:
    /// Name by which an implementation object of this kind is recognised.
    static std::string const IMPL_NAME;

    [[nodiscard]] virtual std::shared_ptr<Proc::SettingsSubtitleSoft> GetSubtitleSoftSettings() = 0;
    [[nodiscard]] virtual std::shared_ptr<Proc::SettingsSubtitleMixer> GetSubtitleMixerSettings() = 0;
    virtual ~ISubtitleImplRead();
};

} // namespace Korvex::Converter::Subtitles::Adapters
