#pragma once

#include <memory>
#include <set>
#include <string>

namespace Hypodermic
{
class Container;
}

namespace Korvex::App
{
struct Configuration;
class IStatisticTracker;
} // namespace Korvex::App

namespace Korvex::Converter::Gui
{
class GUIContainer;
} // namespace Korvex::Converter::Gui

namespace Korvex::Converter::Transcoder::Entities
{
class ITranscoderInteractor;
} // namespace Korvex::Converter::Transcoder::Entities

namespace Korvex::Converter::Subtitles::Entities
{
class ISubtitleCollectionInteractorPool;
} // namespace Korvex::Converter::Subtitles::Entities

namespace Korvex::Converter::Subtitles::UseCases
{
class IOnlineDownloaderInteractor;
} // namespace Korvex::Converter::Subtitles::UseCases

namespace Korvex::Hosts
{

/// What a host builds once at start-up: the core's factories, the container with the host's own instances and the
/// module's components, and the two services that everything else goes through. The thread that makes it is the
/// user-interface thread; an application object has to exist.
class HostServices
{
public:
    /// The configuration becomes the one in force in this process.
    /// @param statistics hears what the module counts; null: nothing is counted
    explicit HostServices(App::Configuration const& configuration,
                          std::shared_ptr<App::IStatisticTracker> const& statistics = nullptr);
    ~HostServices();
    HostServices(HostServices const&) = delete;
    HostServices& operator=(HostServices const&) = delete;

    [[nodiscard]] Converter::Subtitles::Entities::ISubtitleCollectionInteractorPool& GetPool() const;
    [[nodiscard]] Converter::Transcoder::Entities::ITranscoderInteractor& GetTranscoder() const;
    [[nodiscard]] Converter::Gui::GUIContainer& GetGuiContainer() const;
    /// The subtitle codecs that a container may carry as switchable streams, as the module has it.
    [[nodiscard]] std::set<std::string> GetAllowedSoftCodecIds(std::string const& formatId) const;
    /// The one that the whole process shares; the service under it starts when it is first asked for.
    [[nodiscard]] std::shared_ptr<Converter::Subtitles::UseCases::IOnlineDownloaderInteractor>
    GetOnlineDownloader() const;
    /// For components that only some hosts need.
    [[nodiscard]] Hypodermic::Container& GetContainer() const;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Hosts
