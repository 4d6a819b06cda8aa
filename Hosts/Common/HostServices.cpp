#include "Common/HostServices.h"

#include "Subtitles/Entities/ISubtitleCollectionInteractorPool.h"
#include "Subtitles/Subtitles.h"
#include "Subtitles/UseCases/IOnlineDownloaderInteractor.h"
#include "Subtitles/UseCases/ISubtitleController.h"

#include "App/Configuration.h"
#include "App/GUIContainer.h"
#include "App/IStatisticTracker.h"
#include "Proc/Register.h"
#include "Transcoder/TranscoderInteractor.h"

#include <Hypodermic/Container.h>
#include <Hypodermic/ContainerBuilder.h>

namespace Korvex::Hosts
{

using Converter::Gui::GUIContainer;
using Converter::Subtitles::Entities::ISubtitleCollectionInteractorPool;
using Converter::Subtitles::UseCases::IOnlineDownloaderInteractor;
using Converter::Subtitles::UseCases::ISubtitleController;
using Converter::Transcoder::TranscoderInteractor;
using Converter::Transcoder::Entities::ITranscoderInteractor;

struct HostServices::Impl
{
    std::shared_ptr<GUIContainer> gui;
    std::shared_ptr<TranscoderInteractor> transcoder;
    std::shared_ptr<Hypodermic::Container> container;
    std::shared_ptr<ISubtitleCollectionInteractorPool> pool;
    std::shared_ptr<ISubtitleController> controller;
};

HostServices::HostServices(App::Configuration const& configuration,
                           std::shared_ptr<App::IStatisticTracker> const& statistics)
    : m_impl(std::make_unique<Impl>())
{
    // Components read it when they are made.
    App::SetActiveConfiguration(configuration);
    Proc::RegisterFactories();
    m_impl->gui = std::make_shared<GUIContainer>();
    m_impl->transcoder = std::make_shared<TranscoderInteractor>();

    Hypodermic::ContainerBuilder builder;
    builder.registerInstance(m_impl->gui);
    builder.registerInstance(m_impl->transcoder).as<ITranscoderInteractor>();
    if (statistics)
        builder.registerInstance(statistics).as<App::IStatisticTracker>();
    Converter::Subtitles::FillBuilder(builder, std::make_shared<App::CustomizationManager>(configuration));
    m_impl->container = builder.build();
    Converter::Subtitles::InitFactories(m_impl->container);

    m_impl->pool = m_impl->container->resolve<ISubtitleCollectionInteractorPool>();
    m_impl->controller = m_impl->container->resolve<ISubtitleController>();
}

HostServices::~HostServices() = default;

ISubtitleCollectionInteractorPool& HostServices::GetPool() const
{
    return *m_impl->pool;
}

ITranscoderInteractor& HostServices::GetTranscoder() const
{
    return *m_impl->transcoder;
}

GUIContainer& HostServices::GetGuiContainer() const
{
    return *m_impl->gui;
}

std::set<std::string> HostServices::GetAllowedSoftCodecIds(std::string const& formatId) const
{
    return m_impl->controller->GetAllowedSoftCodecIds(formatId);
}

std::shared_ptr<IOnlineDownloaderInteractor> HostServices::GetOnlineDownloader() const
{
    return m_impl->container->resolve<IOnlineDownloaderInteractor>();
}

Hypodermic::Container& HostServices::GetContainer() const
{
    return *m_impl->container;
}

} // namespace Korvex::Hosts
