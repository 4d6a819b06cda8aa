#pragma once

#include "Subtitles/Entities/Export.h"

#include "Subtitles/UseCases/IOnlineSearchMetadataFiller.h"

#include <memory>

namespace Korvex::Converter::Subtitles::UseCases
{
class IOnlineDownloaderController;
}

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

/// Adds the file's fingerprint and size, by which the legacy service knows files whatever their names. A file without a
/// fingerprint leaves the request as it is.
class KVSUBTITLES_API SearchMetadataFiller final : public UseCases::IOnlineSearchMetadataFiller
{
public:
    explicit SearchMetadataFiller(std::shared_ptr<UseCases::IOnlineDownloaderController> const& controller);
    ~SearchMetadataFiller() override;

    void FillMetadata(Entities::SubtitleSearchMediaInfoSettings const& media,
                      UseCases::SearchRequest& request) override;

private:
    std::shared_ptr<UseCases::IOnlineDownloaderController> const m_controller;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
