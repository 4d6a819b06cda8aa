#pragma once

#include "Subtitles/Details/OnlineSearch/INetworkManager.h"
#include "Subtitles/Details/OnlineSearch/NetworkLimits.h"

#include "Subtitles/Entities/Export.h"

namespace Korvex::App
{
struct Configuration;
}

namespace Korvex::Converter::Subtitles::Details
{

enum class PostBody
{
    Form, ///< the fields as form text, not percent-encoded
    Json, ///< the fields as one JSON object; whole numbers as numbers
};

/// HTTP through Qt's access manager. Its replies are its own: a time-out, a body over the limit and too many redirects
/// end as such and never as a cancelled operation, redirects go to the same scheme or a better one, keep a POST a POST
/// and take no key to another host, and a request without a user agent names the program and its version. A broken
/// certificate is a failure.
///
/// Thread: any. Each thread that asks has an access manager of its own, made at its first request and deleted there
/// when the thread ends (left alone when it is terminated); a reply lives on the thread that asked, which needs an
/// event loop. Replies are the caller's and may outlive this object.
class KVSUBTITLES_API NetworkManagerQt final : public INetworkManager
{
public:
    /// With the limits and the body that the configuration in force asks for.
    NetworkManagerQt();
    NetworkManagerQt(NetworkLimits const& limits, PostBody postBody);
    ~NetworkManagerQt() override;
    NetworkManagerQt(NetworkManagerQt const&) = delete;
    NetworkManagerQt& operator=(NetworkManagerQt const&) = delete;

    /// Always true: what cannot be reached shows in the reply.
    [[nodiscard]] bool IsNetworkAccessible() const override;
    QNetworkReply* Get(QNetworkRequest const& request) override;
    QNetworkReply* Post(QNetworkRequest const& request, QUrlQuery const& form) override;

private:
    explicit NetworkManagerQt(App::Configuration const& configuration);

    NetworkLimits const m_limits;
    PostBody const m_postBody;
};

} // namespace Korvex::Converter::Subtitles::Details
