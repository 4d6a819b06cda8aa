#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/IOnlineDownloaderController.h"

namespace Korvex::Converter::Subtitles::Adapters
{

class KVSUBTITLES_API OnlineDownloaderController final : public UseCases::IOnlineDownloaderController
{
public:
    std::optional<UseCases::MediaFingerprint> DetermineFingerprint(ioPath const& path) const override;
};

} // namespace Korvex::Converter::Subtitles::Adapters
