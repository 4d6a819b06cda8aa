#include "Subtitles/Composition/BuiltModule.h"
#include "Support/OnlineServer/OnlineServer.h"
#include "Support/WidgetSupport.h"

#include "Subtitles/Entities/ISubtitleCollectionInteractorPool.h"
#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"
#include "Subtitles/UseCases/IOnlineSearchInteractor.h"

#include "App/Configuration.h"
#include "Core/FileSystem.h"
#include "Proc/Register.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QSettings>
#include <QTest>

namespace Korvex::Converter::Subtitles
{
namespace
{

/// The whole module against a service on loopback, with the real dialog.
class OnlineSearchFlowTest : public testing::TestWithParam<bool>
{
protected:
    void SetUp() override
    {
        m_folder = std::move(Core::CreateWorkFolder()).Value();
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           QString::fromStdString((m_folder / "settings").utf8string()));
        Proc::RegisterFactories();
        App::Configuration configuration;
        configuration.openSubtitlesUrl = m_server.GetVersion1Url().toStdString();
        configuration.openSubtitlesLegacyUrl = m_server.GetUrl().toStdString();
        configuration.openSubtitlesApiKey = "korvex-test-key";
        configuration.features["USE_OPENSUBTITLES_VER_1"] = GetParam();
        App::SetActiveConfiguration(configuration);
        m_container = Testing::BuildModule(std::make_shared<App::CustomizationManager>(configuration));
    }
    void TearDown() override
    {
        m_container.reset();
        App::SetActiveConfiguration({});
        Core::RemoveWorkFolder(m_folder);
    }

    static QWidget* FindWindow()
    {
        for (QWidget* const window : QApplication::topLevelWidgets())
        {
            if (window->objectName() == "onlineSearchWindow" && window->isVisible())
                return window;
        }
        return nullptr;
    }
    static bool WaitForSentence(QString const& part)
    {
        return QTest::qWaitFor(
            [&]
            {
                QWidget* const window = FindWindow();
                auto const* const label = window ? window->findChild<QLabel*>("searchStateLabel") : nullptr;
                return label != nullptr && label->text().contains(part);
            },
            20000);
    }
    static void Click(char const* button)
    {
        QTest::mouseClick(FindWindow()->findChild<QAbstractButton*>(button), Qt::LeftButton);
    }

    Korvex::Testing::OnlineServer m_server;
    ioPath m_folder;
    std::shared_ptr<Hypodermic::Container> m_container;
};

TEST_P(OnlineSearchFlowTest, TheBestSubtitleIsTwoClicksAwayAndCostsNothingTheSecondTime)
{
    ioPath const film = m_folder / "The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL.mkv";
    ASSERT_FALSE(Core::WriteFile(film, std::string(131072, '\0'), false));
    auto const interactor = m_container->resolve<Entities::ISubtitleCollectionInteractorPool>()->GetInteractor();
    Entities::SubtitleCollection const fresh;
    interactor->SetSubtitleCollection(fresh, true);
    auto const search = m_container->resolve<UseCases::IOnlineSearchInteractor>();
    search->SetDownloadFolder(m_folder / "kept");

    Entities::SubtitleSearchMediaInfoSettings media;
    media.path = film;
    search->Open(fresh.collectionId, media, "itemPanel");
    ASSERT_TRUE(WaitForSentence("found."));
    Korvex::Testing::SaveScreenshot(*FindWindow(), GetParam() ? "online-flow-1" : "online-flow-0");
    Click("downloadButton");
    ASSERT_TRUE(WaitForSentence("added to the film."));
    Entities::SubtitleCollection const collection = interactor->GetSubtitleCollection();
    ASSERT_EQ(collection.tracks.size(), 1U);
    Entities::SubtitleTrack const track = collection.tracks.begin()->second;
    EXPECT_EQ(track.language, "en");
    EXPECT_EQ(track.codecId, "subrip");
    EXPECT_THAT(track.title, testing::StartsWith("The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL"));
    EXPECT_EQ(collection.currentTrack, track.id);

    m_server.ForgetRequests();
    interactor->SetSubtitleCollection(fresh, true);
    Click("downloadButton");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !interactor->GetSubtitleCollection().tracks.empty(); }));
    EXPECT_EQ(interactor->GetSubtitleCollection().tracks.begin()->second, track);
    EXPECT_TRUE(m_server.GetRequests().empty()) << "it was there already";

    Click("searchButton");
    Click("searchCloseButton");
    EXPECT_EQ(FindWindow(), nullptr);
    search->Open(fresh.collectionId, media, "itemPanel");
    ASSERT_TRUE(WaitForSentence("found.")) << "the service that was still busy was waited for";
    search->Close();
    EXPECT_EQ(FindWindow(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(BothClients, OnlineSearchFlowTest, testing::Bool());

} // namespace
} // namespace Korvex::Converter::Subtitles
