// The only file of this layer that includes the container, which takes seconds to compile.

#include "Subtitles/UseCases/FactoryAccess.h"
#include "Subtitles/UseCases/IAdaptersFactory.h"
#include "Subtitles/UseCases/IEditingPresenter.h"
#include "Subtitles/UseCases/IMessagesController.h"
#include "Subtitles/UseCases/IOnlineDownloaderController.h"
#include "Subtitles/UseCases/IOnlineSearchMetadataFiller.h"
#include "Subtitles/UseCases/IOnlineSearchPresenter.h"
#include "Subtitles/UseCases/ISubtitleCollectionPresenter.h"
#include "Subtitles/UseCases/ISubtitleController.h"
#include "Subtitles/UseCases/IUseCasesFactory.h"
#include "Subtitles/UseCases/OnlineDownloaderInteractor.h"
#include "Subtitles/UseCases/OnlineSearchInteractor.h"
#include "Subtitles/UseCases/RegistrationGroups.h"
#include "Subtitles/UseCases/SubtitleCollectionInteractor.h"
#include "Subtitles/UseCases/SubtitleCollectionInteractorPool.h"
#include "Subtitles/UseCases/SubtitlesInteractor.h"

#include "Transcoder/ITranscoderInteractor.h"

#include "Hypodermic/Container.h"
#include "Hypodermic/ContainerBuilder.h"

#include <stdexcept>

namespace Korvex::Converter::Subtitles::UseCases
{

namespace
{

class UseCasesFactory final : public IUseCasesFactory
{
public:
    void SetContainer(std::weak_ptr<Hypodermic::Container> container) override { m_container = std::move(container); }

    std::shared_ptr<Entities::ISubtitleCollectionInteractor> CreateSubtitleCollectionInteractor() override
    {
        return LockContainer()->resolve<Entities::ISubtitleCollectionInteractor>();
    }

    std::shared_ptr<Entities::ISubtitlesInteractor> CreateSubtitlesInteractor() override
    {
        return LockContainer()->resolve<Entities::ISubtitlesInteractor>();
    }

private:
    std::shared_ptr<Hypodermic::Container> LockContainer() const
    {
        if (auto container = m_container.lock())
            return container;
        throw std::logic_error("The use case factory has no container: call InitFactories and keep the container");
    }

    std::weak_ptr<Hypodermic::Container> m_container;
};

} // namespace

void RegisterGroupOne(Hypodermic::ContainerBuilder& builder)
{
    builder.registerType<SubtitleCollectionInteractorPool>()
        .as<Entities::ISubtitleCollectionInteractorPool>()
        .singleInstance();
    builder.registerType<SubtitleCollectionInteractor>().as<Entities::ISubtitleCollectionInteractor>();
    builder.registerType<SubtitlesInteractor>().as<Entities::ISubtitlesInteractor>();
}

void RegisterGroupTwo(Hypodermic::ContainerBuilder& builder)
{
    builder.registerType<OnlineDownloaderInteractor>().as<IOnlineDownloaderInteractor>().singleInstance();
}

void RegisterGroupThree(Hypodermic::ContainerBuilder& builder)
{
    builder.registerType<OnlineSearchInteractor>().as<IOnlineSearchInteractor>().singleInstance();
    builder.registerType<UseCasesFactory>().as<IUseCasesFactory>().singleInstance();
}

void GiveContainerToFactories(std::shared_ptr<Hypodermic::Container> const& container)
{
    container->resolve<IUseCasesFactory>()->SetContainer(container);
    container->resolve<IAdaptersFactory>()->SetContainer(container);
}

} // namespace Korvex::Converter::Subtitles::UseCases
