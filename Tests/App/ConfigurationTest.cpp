#include "App/Configuration.h"

#include "Core/FileSystem.h"

#include <gtest/gtest.h>

namespace Korvex::App
{
namespace
{

class ConfigurationTest : public testing::Test
{
protected:
    void SetUp() override
    {
        auto folder = Core::CreateWorkFolder();
        ASSERT_TRUE(folder);
        m_folder = *folder;
        m_file = m_folder / "korvex.conf";
    }
    void TearDown() override { Core::RemoveWorkFolder(m_folder); }

    Configuration Load(std::string const& text, std::map<std::string, std::string> const& variables = {})
    {
        EXPECT_EQ(Core::WriteFile(m_file, text, true), Core::SUCCESS);
        return LoadConfiguration(m_file,
                                 [&](std::string const& name) -> std::optional<std::string>
                                 {
                                     auto const found = variables.find(name);
                                     if (found == variables.end())
                                         return std::nullopt;
                                     return found->second;
                                 });
    }

    static bool IsVersion1(Configuration const& configuration, bool defaultValue = false)
    {
        return CustomizationManager(configuration)
            .GetFeatureSettings()
            ->QueryBool("USE_OPENSUBTITLES_VER_1", defaultValue);
    }

    ioPath m_folder;
    ioPath m_file;
};

TEST_F(ConfigurationTest, TheEnvironmentGoesOverTheFile)
{
    std::string const text = "[opensubtitles]\nurl = https://file.example/api\nlegacy_url = https://old.example\n";
    Configuration const configuration = Load(text, {{"KORVEX_OPENSUBTITLES_URL", "http://127.0.0.1:8/\xC3\xA9"}});

    EXPECT_EQ(configuration.openSubtitlesUrl, "http://127.0.0.1:8/\xC3\xA9");
    EXPECT_EQ(configuration.openSubtitlesLegacyUrl, "https://old.example");
    EXPECT_EQ(configuration.openSubtitlesApiKey, "");
}

TEST_F(ConfigurationTest, AnApiKeyTurnsTheNewServiceOnUnlessTheFileSaysNo)
{
    EXPECT_FALSE(IsVersion1(Load("")));
    EXPECT_TRUE(IsVersion1(Load(""), true)) << "what the deployment does not mention keeps the caller's default";
    EXPECT_TRUE(IsVersion1(Load("[opensubtitles]\napi_key = k\n")));
    EXPECT_TRUE(IsVersion1(Load("", {{"KORVEX_OPENSUBTITLES_API_KEY", "k"}})));
    EXPECT_FALSE(IsVersion1(Load("[opensubtitles]\napi_key=k\n[features]\nUSE_OPENSUBTITLES_VER_1 = false\n"), true));
}

} // namespace
} // namespace Korvex::App
