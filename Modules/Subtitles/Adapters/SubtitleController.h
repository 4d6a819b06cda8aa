#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/ISubtitleController.h"

namespace Korvex::Converter::Subtitles::Adapters
{

class KVSUBTITLES_API SubtitleController final : public UseCases::ISubtitleController
{
public:
    SubtitleController();
    ~SubtitleController() override;

    void RegisterEventHandler(UseCases::ISubtitleControllerEventObserver* observer) override;
    void UnregisterEventHandler(UseCases::ISubtitleControllerEventObserver* observer) override;
    void SetSubtitleCollection(std::shared_ptr<Entities::SubtitleCollection> const& collection) override;
    std::set<std::string> GetAllowedSoftCodecIds(std::string const& formatId) const override;
    std::string DetermineSubtitleCodec(ioPath const& path) const override;
    std::string GetCodecName(std::string const& codecId) const override;
    std::vector<std::string> GetValidExternalFormats() const override;
    bool IsFileExtensionSupported(std::string const& extension) override;
    bool PathIsDVD(ioPath const& path) const override;
    void ApplySettings() override;
    void ClearSettings() override;
    void RefreshSettings() override;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::Adapters
