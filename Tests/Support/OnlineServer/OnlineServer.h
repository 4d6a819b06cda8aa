#pragma once

#include "Support/OnlineServer/HttpMessage.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

/// A subtitle service on loopback: real sockets, both interfaces of the service, and every way in which a server can
/// disappoint.
namespace Korvex::Testing
{

/// Answers on 127.0.0.1 from a thread of its own, so that tests may block. Any thread may call it. Wants a
/// QCoreApplication. Ends at once, also with clients connected and requests unanswered.
class OnlineServer final
{
public:
    using Handler = std::function<HttpReply(HttpRequest const&)>; ///< called on the server's thread
    using Interceptor = std::function<std::unique_ptr<HttpReply>(HttpRequest const&)>;

    /// Plays both services (`OnlineLibrary.h`).
    OnlineServer();
    /// Answers every request with the handler. Throws std::runtime_error when the port (0: any free one) is taken.
    explicit OnlineServer(Handler handler, quint16 port = 0);
    ~OnlineServer();
    OnlineServer(OnlineServer const&) = delete;
    OnlineServer& operator=(OnlineServer const&) = delete;

    /// "http://127.0.0.1:<port>", which is what `KORVEX_OPENSUBTITLES_LEGACY_URL` wants.
    [[nodiscard]] QString GetUrl() const;
    /// What `KORVEX_OPENSUBTITLES_URL` wants: GetUrl() + "/api/v1".
    [[nodiscard]] QString GetVersion1Url() const;

    /// Every request since the last ForgetRequests(), in order of arrival. Long runs forget now and then.
    [[nodiscard]] std::vector<HttpRequest> GetRequests() const;
    void ForgetRequests();

    /// From now on this comes before the handler: a reply it returns is sent, an empty one leaves the request to the
    /// handler. An empty function ends it; once this has returned, the function before is not running any more.
    void Intercept(Interceptor interceptor);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Testing
