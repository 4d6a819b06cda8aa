#pragma once

#include "Support/OnlineServer/HttpMessage.h"
#include "Support/OnlineServer/OnlineLibrarySettings.h"
#include "Support/OnlineServer/RequestTarget.h"
#include "Support/OnlineServer/ServiceContext.h"

#include <QDateTime>

#include <map>
#include <optional>

namespace Korvex::Testing
{

struct SubtitleFile;

/// The interface under /api/v1 and the file links that it hands out.
class Version1Service
{
public:
    explicit Version1Service(OnlineLibrarySettings settings);

    [[nodiscard]] static bool IsFileLink(QByteArray const& path);

    [[nodiscard]] HttpReply Answer(HttpRequest const& request, RequestTarget const& target,
                                   ServiceContext const& context);

private:
    struct Link
    {
        SubtitleFile const* file = nullptr;
        bool isUsed = false;
    };

    /// Why the client is not served at all.
    [[nodiscard]] std::optional<HttpReply> Refuse(HttpRequest const& request);
    [[nodiscard]] std::optional<HttpReply> RedirectToCanonical(RequestTarget const& target,
                                                               ServiceContext const& context) const;
    [[nodiscard]] HttpReply Suggest(RequestTarget const& target, ServiceContext const& context) const;
    [[nodiscard]] HttpReply Search(RequestTarget const& target, ServiceContext const& context) const;
    [[nodiscard]] HttpReply MakeLink(HttpRequest const& request, ServiceContext const& context);
    [[nodiscard]] HttpReply FetchFile(QByteArray const& path);
    void AddRateHeaders(HttpReply& reply) const;

    OnlineLibrarySettings const m_settings;
    std::map<QByteArray, Link> m_links; ///< by token
    int m_downloads = 0;
    qint64 m_second = 0; ///< since 1970; of which the requests are counted
    int m_requestsInSecond = 0;
};

} // namespace Korvex::Testing
