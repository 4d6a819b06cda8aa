#include "Subtitles/Adapters/SubtitleImpl.h"

namespace Korvex::Converter::Subtitles::Adapters
{

std::string const ISubtitleImplRead::IMPL_NAME = "SUBTITLEBUILDER_MM_CORE";

ISubtitleImplRead::~ISubtitleImplRead() = default;

struct SubtitleImpl::Impl
{
    std::shared_ptr<Proc::SettingsSubtitleMixer> mixer;
    std::shared_ptr<Proc::SettingsSubtitleSoft> soft;
};

SubtitleImpl::SubtitleImpl() : m_impl(std::make_unique<Impl>()) {}

SubtitleImpl::~SubtitleImpl() = default;

std::string SubtitleImpl::GetImpl() const
{
    return IMPL_NAME;
}

std::shared_ptr<Proc::SettingsSubtitleSoft> SubtitleImpl::GetSubtitleSoftSettings()
{
    return m_impl->soft;
}

std::shared_ptr<Proc::SettingsSubtitleMixer> SubtitleImpl::GetSubtitleMixerSettings()
{
    return m_impl->mixer;
}

void SubtitleImpl::SetSubtitleMixerSettings(std::shared_ptr<Proc::SettingsSubtitleMixer> const& settings)
{
    m_impl->mixer = settings;
}

void SubtitleImpl::SetSubtitleSoftSettings(std::shared_ptr<Proc::SettingsSubtitleSoft> const& settings)
{
    m_impl->soft = settings;
}

void SubtitleImpl::ClearSubtitleSettings(TypeSettings type)
{
    if (type == Mixer)
        m_impl->mixer.reset();
    else if (type == Soft)
        m_impl->soft.reset();
}

} // namespace Korvex::Converter::Subtitles::Adapters
