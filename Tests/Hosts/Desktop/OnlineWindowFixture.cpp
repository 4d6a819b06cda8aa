#include "Hosts/Desktop/OnlineWindowFixture.h"

#include "App/Configuration.h"

#include <QLabel>
#include <QSettings>

namespace Korvex::Testing
{

namespace
{

App::Configuration MakeConfiguration(OnlineServer const& server, Client client, std::string const& fault)
{
    std::string const root = server.GetUrl().toStdString() + fault;
    App::Configuration configuration;
    configuration.openSubtitlesUrl = root + "/api/v1";
    configuration.openSubtitlesLegacyUrl = root;
    if (client == Client::Version1)
    {
        configuration.openSubtitlesApiKey = "korvex-test-key";
        configuration.features["USE_OPENSUBTITLES_VER_1"] = true;
    }
    return configuration;
}

} // namespace

OnlineWindowFixture::OnlineWindowFixture(Client client, std::string const& fault, QStringList const& languages)
    : WindowFixture(MakeConfiguration(m_server, client, fault))
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       QString::fromStdString((m_folder / "settings").utf8string()));
    QSettings(QStringLiteral("korvex"), QStringLiteral("subtitles"))
        .setValue(QStringLiteral("onlineSearch/languages"), languages);
}

void OnlineWindowFixture::OpenSearch()
{
    GetWindow().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&GetWindow()));
    Click("addSubtitlesButton");
    Click("findButton");
    WaitUntil([this] { return IsSearchOpen(); });
}

void OnlineWindowFixture::WaitForSearch()
{
    WaitUntil([this] { return !Get<QWidget>("searchCancelButton").isVisible(); });
}

bool OnlineWindowFixture::IsSearchOpen()
{
    auto const* window = GetWindow().findChild<QWidget*>(QStringLiteral("onlineSearchWindow"));
    return window != nullptr && window->isVisible();
}

std::string OnlineWindowFixture::GetSearchSentence()
{
    auto const& inPlace = Get<QLabel>("resultEmptyLabel");
    return (inPlace.isVisible() && !inPlace.text().isEmpty() ? inPlace : Get<QLabel>("searchStateLabel"))
        .text()
        .toStdString();
}

} // namespace Korvex::Testing
