#pragma once

#include "Subtitles/Details/OnlineSearch/INetworkManager.h"

#include "Subtitles/Entities/Export.h"

#include <QtGlobal>

#include <chrono>
#include <memory>

namespace Korvex::Converter::Subtitles::Details
{

/// What the network manager holds every exchange to.
struct NetworkLimits
{
    std::chrono::milliseconds timeout{30000}; ///< for one exchange, from sending to the last byte, redirects included
    qint64 replyBytes = 16 * 1024 * 1024;     ///< of a body, after decompression
    int redirects = 5;
};

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
/// Thread: any. Each thread that asks has an access manager of its own, made at its first request and deleted when the
/// thread ends; a reply lives on the thread that asked.
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
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::Details
