#pragma once

#include "Hosts/Desktop/WindowFixture.h"
#include "Support/OnlineServer/OnlineServer.h"

#include <QStringList>

#include <string>

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

/// The window beside a service on loopback. Fetched files go into "fetched" of the test's folder, and the languages to
/// search for are `languages`.
class OnlineWindowFixture : private OnlineServerHolder, public WindowFixture
{
protected:
    /// @param fault in front of the service's paths: "/faults/stall"; empty: none
    explicit OnlineWindowFixture(Client client = Client::Version1, std::string const& fault = {},
                                 QStringList const& languages = {QStringLiteral("en")});

    [[nodiscard]] OnlineServer& GetServer() { return m_server; }
    [[nodiscard]] ioPath GetFetched() const { return m_folder / "fetched"; }

    /// By the panel's "Find file", as a person gets there.
    void OpenSearch();
    /// Until the search has ended in one way or another.
    void WaitForSearch();
    [[nodiscard]] bool IsSearchOpen();
    /// What the dialog says at its foot, or in the list's place.
    [[nodiscard]] std::string GetSearchSentence();
};

} // namespace Korvex::Testing
