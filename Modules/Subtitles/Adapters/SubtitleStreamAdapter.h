#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/ISubtitleStreamAdapter.h"

#include <memory>

namespace Korvex::Converter::Subtitles::Adapters
{

class KVSUBTITLES_API SubtitleStreamAdapter final : public UseCases::ISubtitleStreamAdapter
{
public:
    SubtitleStreamAdapter();
    ~SubtitleStreamAdapter() override;

    void RegisterEventHandler(UseCases::ISubtitleStreamAdapterObserver* observer) override;
    void UnregisterEventHandler(UseCases::ISubtitleStreamAdapterObserver* observer) override;
    void SetStreamReader(boost::intrusive_ptr<Proc::IStreamReader> const& reader) override;
    boost::intrusive_ptr<Proc::IStreamSubtitle>
    GetSubtitleStreamFromTrack(Entities::SubtitleTrack const& track) override;
    boost::intrusive_ptr<Proc::IStreamRaw> GetRawSubtitleStreamFromTrack(Entities::SubtitleTrack const& track) override;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::Adapters
