#include "Hosts/Cli/OnlineFixture.h"

#include "Core/FileSystem.h"

#include <QJsonObject>

#include <algorithm>

namespace Korvex::Testing
{

namespace
{

/// The one that the server's library accepts.
constexpr char const* API_KEY = "korvex-test-key";

ioPath MakeHome()
{
    EnsureApplication();
    auto const folder = Core::CreateWorkFolder();
    EXPECT_TRUE(folder);
    return folder ? *folder : ioPath();
}

} // namespace

OnlineFixture::OnlineFixture() : m_home(MakeHome())
{
    EXPECT_EQ(Core::WriteFile(m_home / "korvex.conf", "", true), Core::SUCCESS);
    SetVariable("KORVEX_CONFIG", (m_home / "korvex.conf").utf8string());
    SetVariable("KORVEX_OPENSUBTITLES_TIMEOUT", "");
    SetVariable("KORVEX_OPENSUBTITLES_JSON_BODY", "");
    Use(Service::Legacy);
}

OnlineFixture::~OnlineFixture()
{
    for (auto const& [name, value] : m_oldVariables)
        qputenv(name.constData(), value);
    Core::RemoveWorkFolder(m_home);
}

void OnlineFixture::SetVariable(char const* name, std::string const& value)
{
    bool const isKept = std::any_of(m_oldVariables.begin(), m_oldVariables.end(),
                                    [&](auto const& variable) { return variable.first == name; });
    if (!isKept)
        m_oldVariables.emplace_back(name, qgetenv(name));
    qputenv(name, QByteArray::fromStdString(value));
}

void OnlineFixture::Use(Service service, std::string const& fault)
{
    std::string const root = m_server.GetUrl().toStdString() + (fault.empty() ? "" : "/faults/" + fault);
    SetVariable("KORVEX_OPENSUBTITLES_URL", root + "/api/v1");
    SetVariable("KORVEX_OPENSUBTITLES_LEGACY_URL", root);
    SetVariable("KORVEX_OPENSUBTITLES_API_KEY", service == Service::Version1 ? API_KEY : "");
}

void OnlineFixture::UseAddress(std::string const& url)
{
    SetVariable("KORVEX_OPENSUBTITLES_URL", url);
    SetVariable("KORVEX_OPENSUBTITLES_LEGACY_URL", url);
}

CliResult OnlineFixture::Run(std::vector<std::string> const& words, std::function<bool()> isInterrupted)
{
    CliResult result = RunCli(words, std::move(isInterrupted));
    EXPECT_EQ((result.out + result.err).find(API_KEY), std::string::npos) << result.out << result.err;
    return result;
}

std::vector<QJsonObject> OnlineFixture::Search(std::vector<std::string> words)
{
    words.insert(words.begin(), "search");
    words.emplace_back("--json");
    CliResult const result = Run(words);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    return result.JsonLines();
}

ioPath OnlineFixture::MakeFilm(std::string const& name)
{
    constexpr std::size_t KNOWN_BYTES = 131072;
    ioPath const film = m_home / name;
    EXPECT_EQ(Core::WriteFile(film, std::string(KNOWN_BYTES, '\0'), true), Core::SUCCESS);
    return film;
}

ioPath OnlineFixture::GetFolder() const
{
    return m_home / "subtitles";
}

int OnlineFixture::CountDownloads() const
{
    auto const requests = m_server.GetRequests();
    return static_cast<int>(std::count_if(
        requests.begin(), requests.end(),
        [](HttpRequest const& request) { return request.method == "POST" || request.target.contains("/download/"); }));
}

} // namespace Korvex::Testing
