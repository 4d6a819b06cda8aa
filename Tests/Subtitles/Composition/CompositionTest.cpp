#include "Subtitles/Adapters/IAutocompleteControl.h"
#include "Subtitles/Adapters/IEditingPanel.h"
#include "Subtitles/Adapters/IExternalSubtitlesDialog.h"
#include "Subtitles/Adapters/IItemPanel.h"
#include "Subtitles/Adapters/IOnlineSearchDialog.h"
#include "Subtitles/Composition/BuiltModule.h"
#include "Subtitles/Details/OnlineSearch/INetworkManager.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/IRESTRequestFactory.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchEngine.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchEngine.h"
#include "Subtitles/Entities/ISubtitleImpl.h"
#include "Subtitles/UseCases/IAdaptersFactory.h"
#include "Subtitles/UseCases/IAutocompletePresenter.h"
#include "Subtitles/UseCases/IEditingPresenter.h"
#include "Subtitles/UseCases/IItemPresenter.h"
#include "Subtitles/UseCases/IMessagesController.h"
#include "Subtitles/UseCases/IOnlineDownloaderController.h"
#include "Subtitles/UseCases/IOnlineDownloaderInteractor.h"
#include "Subtitles/UseCases/IOnlineSearchInteractor.h"
#include "Subtitles/UseCases/IOnlineSearchMetadataFiller.h"
#include "Subtitles/UseCases/IOnlineSearchPresenter.h"
#include "Subtitles/UseCases/ISubtitleCollectionPresenter.h"
#include "Subtitles/UseCases/ISubtitleController.h"
#include "Subtitles/UseCases/ISubtitleStreamAdapter.h"

#include "App/Configuration.h"

namespace Korvex::Converter::Subtitles
{
namespace
{

using Testing::BuildModule;

enum class Lifetime
{
    Shared,
    EachAnew,
};

template <typename I>
void ExpectOne(Hypodermic::Container& container, Lifetime lifetime)
{
    EXPECT_EQ(container.resolveAll<I>().size(), 1u) << typeid(I).name();
    EXPECT_EQ(container.resolve<I>() == container.resolve<I>(), lifetime == Lifetime::Shared) << typeid(I).name();
}

template <typename... I>
void ExpectOneOfEach(Hypodermic::Container& container, Lifetime lifetime)
{
    (ExpectOne<I>(container, lifetime), ...);
}

TEST(CompositionTest, RegistersEveryInterfaceOnce)
{
    auto const container = BuildModule();
    ExpectOneOfEach<Entities::ISubtitleCollectionInteractorPool, UseCases::IOnlineDownloaderInteractor,
                    UseCases::IOnlineSearchInteractor, UseCases::IOnlineSearchPresenter, UseCases::IUseCasesFactory,
                    UseCases::IAdaptersFactory>(*container, Lifetime::Shared);
    ExpectOneOfEach<Entities::ISubtitleCollectionInteractor, Entities::ISubtitlesInteractor,
                    UseCases::ISubtitleCollectionPresenter, UseCases::IEditingPresenter, UseCases::ISubtitleController,
                    UseCases::IOnlineDownloaderController, UseCases::ISubtitleStreamAdapter, UseCases::IItemPresenter,
                    UseCases::IMessagesController, UseCases::IAutocompletePresenter, Adapters::IExternalSubtitlesDialog,
                    Adapters::IOnlineSearchDialog, Adapters::IAutocompleteControl, Adapters::IEditingPanel,
                    Adapters::IItemPanel>(*container, Lifetime::EachAnew);
    auto const factory = container->resolve<UseCases::IAdaptersFactory>();
    EXPECT_NE(factory->CreateEditingPresenter(), factory->CreateEditingPresenter());
    EXPECT_NE(factory->CreateItemPresenter(), factory->CreateItemPresenter());
}

TEST(CompositionTest, TheFeatureChoosesTheOnlineClient)
{
    using namespace Details::OpenSubtitles;
    auto const build = [](std::map<std::string, bool> const& features)
    {
        App::Configuration configuration;
        configuration.features = features;
        return BuildModule(std::make_shared<App::CustomizationManager>(configuration));
    };
    for (auto const& legacy : {BuildModule(), build({}), build({{"USE_OPENSUBTITLES_VER_1", false}})})
    {
        ExpectOneOfEach<UseCases::IOnlineSearchController, UseCases::IOnlineSearchMetadataFiller, IRESTRequestFactory>(
            *legacy, Lifetime::EachAnew);
        ExpectOne<Details::INetworkManager>(*legacy, Lifetime::Shared);
        auto const engine = legacy->resolve<UseCases::IOnlineSearchController>();
        EXPECT_NE(dynamic_cast<Ver_0::RESTSearchEngine*>(engine.get()), nullptr);
    }
    auto const version1 = build({{"USE_OPENSUBTITLES_VER_1", true}});
    ExpectOneOfEach<UseCases::IOnlineSearchController, IRESTRequestFactory>(*version1, Lifetime::EachAnew);
    ExpectOne<Details::INetworkManager>(*version1, Lifetime::Shared);
    auto const engine = version1->resolve<UseCases::IOnlineSearchController>();
    EXPECT_NE(dynamic_cast<Ver_1::RESTSearchEngine*>(engine.get()), nullptr);
    EXPECT_TRUE(version1->resolveAll<UseCases::IOnlineSearchMetadataFiller>().empty());
    EXPECT_TRUE(version1->resolve<UseCases::IOnlineDownloaderInteractor>()->IsAvailable());
}

TEST(CompositionTest, PoolUsesAnInteractorAgainOnceItIsFree)
{
    auto const pool = BuildModule()->resolve<Entities::ISubtitleCollectionInteractorPool>();
    EXPECT_THROW(static_cast<void>(pool->GetInteractor()), std::logic_error) << "the container is gone";

    auto const container = BuildModule();
    auto const living = container->resolve<Entities::ISubtitleCollectionInteractorPool>();
    auto first = living->GetInteractor();
    auto const* const address = first.get();
    auto const second = living->GetInteractor();
    EXPECT_NE(first, second);
    first.reset();
    EXPECT_EQ(living->GetInteractor().get(), address);
}

TEST(CompositionTest, AnItemsCopyOfACollectionGetsSettingsOfItsOwn)
{
    auto const container = BuildModule();
    auto const pool = container->resolve<Entities::ISubtitleCollectionInteractorPool>();
    auto const first = pool->GetInteractor();
    auto const second = pool->GetInteractor();

    Entities::SubtitleCollection collection;
    collection.tracks.emplace(Entities::SubtitleTrackID(2u), Entities::SubtitleTrack(2u));
    first->SetSubtitleCollection(collection, true);
    Entities::SubtitleCollection const edited = first->GetSubtitleCollection();
    ASSERT_NE(edited.impl, nullptr);

    Entities::SubtitleCollection copy = edited;
    copy.collectionId = Entities::SubtitleCollectionID();
    second->SetSubtitleCollection(copy, true);
    EXPECT_NE(second->GetSubtitleCollection().impl, nullptr);
    EXPECT_NE(second->GetSubtitleCollection().impl, edited.impl);

    second->SetSubtitleCollection(edited, true);
    EXPECT_EQ(second->GetSubtitleCollection().impl, edited.impl) << "the item itself keeps its settings";
}

} // namespace
} // namespace Korvex::Converter::Subtitles
