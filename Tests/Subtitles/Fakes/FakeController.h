#pragma once

#include "Subtitles/Entities/ISubtitleImpl.h"
#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/UseCases/ISubtitleController.h"

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace Korvex::Converter::Subtitles::Testing
{

/// Answers from tables and writes down in `calls` what it was asked to do.
class FakeController final : public UseCases::ISubtitleController
{
public:
    using Observer = UseCases::ISubtitleControllerEventObserver;

    void RegisterEventHandler(Observer* observer) override { m_observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { m_observers.UnregisterEventHandler(observer); }
    void SetSubtitleCollection(std::shared_ptr<Entities::SubtitleCollection> const& value) override
    {
        collection = value;
        calls.push_back("set");
    }
    std::set<std::string> GetAllowedSoftCodecIds(std::string const& formatId) const override
    {
        return formatId == "matroska" ? std::set<std::string>{"subrip", "ass"} : std::set<std::string>{};
    }
    std::string DetermineSubtitleCodec(ioPath const& path) const override
    {
        auto const found = codecs.find(path.Extension());
        return found == codecs.end() ? std::string() : found->second;
    }
    std::string GetCodecName(std::string const& codecId) const override { return "name of " + codecId; }
    std::vector<std::string> GetValidExternalFormats() const override { return {"srt"}; }
    bool IsFileExtensionSupported(std::string const& extension) override
    {
        if (isBroken)
            throw std::runtime_error("the disk is gone");
        return extension == "srt" || extension == "SRT" || extension == "ass" || extension == "ssa";
    }
    bool PathIsDVD(ioPath const& path) const override { return path.utf8string().find("dvd://") != std::string::npos; }
    void ApplySettings() override { calls.push_back("apply"); }
    void ClearSettings() override { calls.push_back("clear"); }
    void RefreshSettings() override
    {
        calls.push_back("refresh");
        m_observers.Notify([](auto* observer) { observer->OnSettingsRefreshed(); });
    }

    std::shared_ptr<Entities::SubtitleCollection> collection;
    std::map<std::string, std::string> codecs = {{"srt", "subrip"}, {"SRT", "subrip"}, {"ass", "ass"}, {"sup", "pgs"}};
    std::vector<std::string> calls;
    bool isBroken = false; ///< the question about extensions throws

private:
    Core::EventHandlerList<Observer> m_observers;
};

/// A change of the collection: the settings are made, and once more in answer to the refresh.
inline std::vector<std::string> const SETTINGS_MADE = {"set", "apply", "refresh", "set", "apply"};

} // namespace Korvex::Converter::Subtitles::Testing
