#include "Hosts/Desktop/OnlineWindowFixture.h"

#include "App/Configuration.h"

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

OnlineWindowFixture::OnlineWindowFixture(Client client, std::string const& fault)
    : WindowFixture(MakeConfiguration(m_server, client, fault))
{
}

} // namespace Korvex::Testing
