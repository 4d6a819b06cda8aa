#pragma once

#include "Subtitles/Adapters/ISubtitleImplRead.h"

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/ISubtitleImpl.h"

#include <cstdint>

namespace Korvex::Converter::Subtitles::Adapters
{

/// Holds the core settings of one media item. The settings are replaced and never changed, so a conversion that took
/// them is not disturbed.
class KVSUBTITLES_API SubtitleImpl final : public Entities::ISubtitleImpl, public ISubtitleImplRead
{
public:
    enum TypeSettings : std::int32_t
    {
        Mixer = 0,
        Soft = 1,
    };

    SubtitleImpl();
    ~SubtitleImpl() override;

    std::string GetImpl() const override;
    std::shared_ptr<Proc::SettingsSubtitleSoft> GetSubtitleSoftSettings() override;
    std::shared_ptr<Proc::SettingsSubtitleMixer> GetSubtitleMixerSettings() override;

    void SetSubtitleMixerSettings(std::shared_ptr<Proc::SettingsSubtitleMixer> const& settings);
    void SetSubtitleSoftSettings(std::shared_ptr<Proc::SettingsSubtitleSoft> const& settings);
    void ClearSubtitleSettings(TypeSettings type);

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::Adapters
