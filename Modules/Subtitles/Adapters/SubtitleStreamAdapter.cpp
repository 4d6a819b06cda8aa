#include "Subtitles/Adapters/SubtitleStreamAdapter.h"

#include "Subtitles/Entities/SubtitleTrack.h"

#include "Core/CoreManager.h"
#include "Proc/Streams.h"

#include <glog/logging.h>

namespace Korvex::Converter::Subtitles::Adapters
{

struct SubtitleStreamAdapter::Impl
{
    boost::intrusive_ptr<Proc::IStreamReader> reader;
    Core::EventHandlerList<UseCases::ISubtitleStreamAdapterObserver, Core::SyncExecutePolicy> observers;
};

SubtitleStreamAdapter::SubtitleStreamAdapter() : m_impl(std::make_unique<Impl>()) {}

SubtitleStreamAdapter::~SubtitleStreamAdapter() = default;

void SubtitleStreamAdapter::RegisterEventHandler(UseCases::ISubtitleStreamAdapterObserver* observer)
{
    m_impl->observers.RegisterEventHandler(observer);
}

void SubtitleStreamAdapter::UnregisterEventHandler(UseCases::ISubtitleStreamAdapterObserver* observer)
{
    m_impl->observers.UnregisterEventHandler(observer);
}

void SubtitleStreamAdapter::SetStreamReader(boost::intrusive_ptr<Proc::IStreamReader> const& reader)
{
    m_impl->reader = reader;
}

boost::intrusive_ptr<Proc::IStreamSubtitle>
SubtitleStreamAdapter::GetSubtitleStreamFromTrack(Entities::SubtitleTrack const& track)
{
    auto const raw = GetRawSubtitleStreamFromTrack(track);
    if (!raw)
        return nullptr;
    auto const factory = Core::CoreManager::Instance().GetCodecFactory();
    if (!factory)
    {
        LOG(ERROR) << "Failed to create codec factory";
        return nullptr;
    }
    try
    {
        return factory->CreateSubtitleStream(raw, std::string());
    }
    catch (...)
    {
        LOG(ERROR) << "Failed to open subtitle from file";
        return nullptr;
    }
}

boost::intrusive_ptr<Proc::IStreamRaw>
SubtitleStreamAdapter::GetRawSubtitleStreamFromTrack(Entities::SubtitleTrack const& track)
{
    if (!m_impl->reader)
        return nullptr;
    try
    {
        return m_impl->reader->GetRawStream(track.streamIndex);
    }
    catch (...)
    {
        LOG(ERROR) << "Failed to open subtitle from file";
        return nullptr;
    }
}

} // namespace Korvex::Converter::Subtitles::Adapters
