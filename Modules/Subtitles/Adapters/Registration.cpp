// The only file of this layer that includes the container, which takes seconds to compile.

#include "Subtitles/Adapters/AutocompletePresenter.h"
#include "Subtitles/Adapters/EditingPresenter.h"
#include "Subtitles/Adapters/IAutocompleteControl.h"
#include "Subtitles/Adapters/IExternalSubtitlesDialog.h"
#include "Subtitles/Adapters/IOnlineSearchDialog.h"
#include "Subtitles/Adapters/ItemPresenter.h"
#include "Subtitles/Adapters/MessagesController.h"
#include "Subtitles/Adapters/OnlineDownloaderController.h"
#include "Subtitles/Adapters/OnlineSearchDialogPresenter.h"
#include "Subtitles/Adapters/SearchDialogStatisticHandler.h"
#include "Subtitles/Adapters/StatisticTrackerAdapter.h"
#include "Subtitles/Adapters/SubtitleCollectionPresenter.h"
#include "Subtitles/Adapters/SubtitleController.h"
#include "Subtitles/Adapters/SubtitleStreamAdapter.h"

#include "Subtitles/UseCases/IAdaptersFactory.h"
#include "Subtitles/UseCases/IOnlineSearchController.h"
#include "Subtitles/UseCases/RegistrationGroups.h"

#include "App/GUIContainer.h"
#include "App/IStatisticTracker.h"

#include "Hypodermic/Container.h"
#include "Hypodermic/ContainerBuilder.h"

#include <stdexcept>

namespace Korvex::Converter::Subtitles::Adapters
{

namespace
{

class AdaptersFactory final : public UseCases::IAdaptersFactory
{
public:
    void SetContainer(std::weak_ptr<Hypodermic::Container> container) override { m_container = std::move(container); }

    std::shared_ptr<UseCases::IItemPresenter> CreateItemPresenter() override
    {
        return LockContainer()->resolve<UseCases::IItemPresenter>();
    }

    std::shared_ptr<UseCases::IEditingPresenter> CreateEditingPresenter() override
    {
        return LockContainer()->resolve<UseCases::IEditingPresenter>();
    }

private:
    std::shared_ptr<Hypodermic::Container> LockContainer() const
    {
        if (auto container = m_container.lock())
            return container;
        throw std::logic_error("The adapters factory has no container: call InitFactories and keep the container");
    }

    std::weak_ptr<Hypodermic::Container> m_container;
};

} // namespace

void RegisterGroupOne(Hypodermic::ContainerBuilder& builder)
{
    builder.registerType<SubtitleCollectionPresenter>().as<UseCases::ISubtitleCollectionPresenter>();
    builder.registerType<EditingPresenter>().as<UseCases::IEditingPresenter>();
    builder.registerType<SubtitleController>().as<UseCases::ISubtitleController>();
    builder.registerType<AutocompletePresenter>().as<UseCases::IAutocompletePresenter>();
    builder.registerType<OnlineSearchDialogPresenter>().as<UseCases::IOnlineSearchPresenter>().singleInstance();
    builder.registerType<MessagesController>().as<UseCases::IMessagesController>();
    builder.registerType<OnlineDownloaderController>().as<UseCases::IOnlineDownloaderController>();
    builder.registerType<SubtitleStreamAdapter>().as<UseCases::ISubtitleStreamAdapter>();
    builder.registerType<StatisticTrackerAdapter>().as<IStatisticTrackerAdapter>().singleInstance();
}

void RegisterGroupTwo(Hypodermic::ContainerBuilder& builder)
{
    builder.registerType<SearchDialogStatisticHandler>().as<ISearchDialogStatisticHandler>().singleInstance();
}

void RegisterGroupThree(Hypodermic::ContainerBuilder& builder)
{
    builder.registerType<ItemPresenter>().as<UseCases::IItemPresenter>();
    builder.registerType<AdaptersFactory>().as<UseCases::IAdaptersFactory>().singleInstance();
}

} // namespace Korvex::Converter::Subtitles::Adapters
