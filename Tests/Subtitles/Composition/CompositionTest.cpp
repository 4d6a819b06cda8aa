#include "Subtitles/Fakes/FakeTranscoder.h"

#include "Subtitles/Entities/ISubtitleImpl.h"
#include "Subtitles/Subtitles.h"
#include "Subtitles/UseCases/IAdaptersFactory.h"
#include "Subtitles/UseCases/IEditingPresenter.h"
#include "Subtitles/UseCases/IItemPresenter.h"
#include "Subtitles/UseCases/IOnlineDownloaderController.h"
#include "Subtitles/UseCases/IOnlineDownloaderInteractor.h"
#include "Subtitles/UseCases/ISubtitleCollectionPresenter.h"
#include "Subtitles/UseCases/ISubtitleController.h"
#include "Subtitles/UseCases/ISubtitleStreamAdapter.h"

#include "App/GUIContainer.h"

#include "Hypodermic/Container.h"
#include "Hypodermic/ContainerBuilder.h"

namespace Korvex::Converter::Subtitles
{
namespace
{

std::shared_ptr<Hypodermic::Container> BuildModule()
{
    Hypodermic::ContainerBuilder builder;
    builder.registerInstance(std::make_shared<Testing::FakeTranscoder>())
        .as<Transcoder::Entities::ITranscoderInteractor>();
    builder.registerInstance(std::make_shared<Gui::GUIContainer>());
    FillBuilder(builder, nullptr);
    auto container = builder.build();
    InitFactories(container);
    return container;
}

template <typename I>
void ExpectRegisteredOnce(Hypodermic::Container& container)
{
    EXPECT_EQ(container.resolveAll<I>().size(), 1u) << typeid(I).name();
}

TEST(CompositionTest, RegistersEveryInterfaceOnce)
{
    auto const container = BuildModule();
    ExpectRegisteredOnce<Entities::ISubtitleCollectionInteractorPool>(*container);
    ExpectRegisteredOnce<Entities::ISubtitleCollectionInteractor>(*container);
    ExpectRegisteredOnce<Entities::ISubtitlesInteractor>(*container);
    ExpectRegisteredOnce<UseCases::ISubtitleCollectionPresenter>(*container);
    ExpectRegisteredOnce<UseCases::IEditingPresenter>(*container);
    ExpectRegisteredOnce<UseCases::ISubtitleController>(*container);
    ExpectRegisteredOnce<UseCases::IOnlineDownloaderController>(*container);
    ExpectRegisteredOnce<UseCases::ISubtitleStreamAdapter>(*container);
    ExpectRegisteredOnce<UseCases::IOnlineDownloaderInteractor>(*container);
    ExpectRegisteredOnce<UseCases::IItemPresenter>(*container);
    ExpectRegisteredOnce<UseCases::IUseCasesFactory>(*container);
    ExpectRegisteredOnce<UseCases::IAdaptersFactory>(*container);
}

TEST(CompositionTest, SharesSingleInstancesAndMakesTheRestAnew)
{
    auto const container = BuildModule();
    EXPECT_EQ(container->resolve<Entities::ISubtitleCollectionInteractorPool>(),
              container->resolve<Entities::ISubtitleCollectionInteractorPool>());
    EXPECT_EQ(container->resolve<UseCases::IOnlineDownloaderInteractor>(),
              container->resolve<UseCases::IOnlineDownloaderInteractor>());
    EXPECT_NE(container->resolve<Entities::ISubtitleCollectionInteractor>(),
              container->resolve<Entities::ISubtitleCollectionInteractor>());
    auto const factory = container->resolve<UseCases::IAdaptersFactory>();
    EXPECT_NE(factory->CreateEditingPresenter(), factory->CreateEditingPresenter());
    EXPECT_NE(factory->CreateItemPresenter(), factory->CreateItemPresenter());
    EXPECT_NE(container->resolve<UseCases::IUseCasesFactory>()->CreateSubtitlesInteractor(), nullptr);
}

TEST(CompositionTest, PoolUsesAnInteractorAgainOnceItIsFree)
{
    auto const container = BuildModule();
    auto const pool = container->resolve<Entities::ISubtitleCollectionInteractorPool>();
    auto first = pool->GetInteractor();
    auto const* const address = first.get();
    auto const second = pool->GetInteractor();
    EXPECT_NE(first, second);
    first.reset();
    EXPECT_EQ(pool->GetInteractor().get(), address);
}

TEST(CompositionTest, FactoriesDoNotKeepTheContainerAlive)
{
    auto container = BuildModule();
    auto const factory = container->resolve<UseCases::IUseCasesFactory>();
    std::weak_ptr<Hypodermic::Container> const watched = container;
    container.reset();
    EXPECT_TRUE(watched.expired());
    EXPECT_THROW(static_cast<void>(factory->CreateSubtitlesInteractor()), std::logic_error);
}

TEST(CompositionTest, AHostWithoutAQueueIsToldWhatIsMissing)
{
    Hypodermic::ContainerBuilder builder;
    builder.registerInstance(std::make_shared<Gui::GUIContainer>());
    FillBuilder(builder, nullptr);
    auto const container = builder.build();
    try
    {
        container->resolve<Entities::ISubtitleCollectionInteractor>();
        FAIL() << "resolved without a transcoder interactor";
    }
    catch (std::exception const& error)
    {
        EXPECT_THAT(error.what(), testing::HasSubstr("Unable to resolve"));
        EXPECT_THAT(error.what(), testing::HasSubstr("ITranscoderInteractor"));
    }
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
