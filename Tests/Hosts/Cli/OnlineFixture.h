#pragma once

#include "Hosts/Cli/CliRunner.h"
#include "Support/OnlineServer/OnlineServer.h"

#include "Core/ioPath.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace Korvex::Testing
{

enum class Service
{
    Legacy,
    Version1,
};

/// Commands against one of the two services on loopback, set up through the environment as a user would.
class OnlineFixture : public testing::Test
{
protected:
    OnlineFixture();
    ~OnlineFixture() override;

    /// Which service is asked from now on, and with which of the server's faults.
    void Use(Service service, std::string const& fault = {});
    /// An address of one's own in place of the server's.
    void UseAddress(std::string const& url);

    /// Fails the test when the API key shows anywhere.
    CliResult Run(
        std::vector<std::string> const& words, std::function<bool()> isInterrupted = [] { return false; });
    /// `korvex search` for JSON; fails the test when it fails.
    std::vector<QJsonObject> Search(std::vector<std::string> words);

    /// A film that both services know by its fingerprint, whatever it is called.
    ioPath MakeFilm(std::string const& name);
    /// Where downloads go.
    [[nodiscard]] ioPath GetFolder() const;
    /// How many downloads the server was asked for: each costs quota.
    [[nodiscard]] int CountDownloads() const;

    void SetVariable(char const* name, std::string const& value);

private:
    std::vector<std::pair<QByteArray, QByteArray>> m_oldVariables;
    ioPath m_home; ///< made first, with the application that the server's thread needs

protected:
    OnlineServer m_server;
};

} // namespace Korvex::Testing
