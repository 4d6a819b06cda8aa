#pragma once

#include "Hosts/Desktop/WindowFixture.h"
#include "Support/OnlineServer/OnlineServer.h"

#include <memory>
#include <string>

namespace Korvex::Converter::Subtitles::UseCases
{
struct SearchResult;
} // namespace Korvex::Converter::Subtitles::UseCases

namespace Korvex::Testing
{

/// Which of the service's interfaces a window goes to.
enum class Client
{
    Version1,
    Legacy,
};

/// Lives before the window, which is told where it is.
class OnlineServerHolder
{
protected:
    OnlineServer m_server;
};

/// The window beside a service on loopback. Fetched files go into "fetched" of the test's folder.
class OnlineWindowFixture : private OnlineServerHolder, public WindowFixture
{
protected:
    /// @param fault in front of the service's paths: "/faults/stall"; empty: none
    explicit OnlineWindowFixture(Client client = Client::Version1, std::string const& fault = {});

    [[nodiscard]] OnlineServer& GetServer() { return m_server; }
    [[nodiscard]] ioPath GetFetched() const { return m_folder / "fetched"; }
};

} // namespace Korvex::Testing
