#pragma once

#include "Support/OnlineServer/HttpMessage.h"
#include "Support/OnlineServer/OnlineLibrarySettings.h"
#include "Support/OnlineServer/RequestTarget.h"
#include "Support/OnlineServer/ServiceContext.h"

#include <optional>

namespace Korvex::Testing
{

struct Subtitle;

/// The path-style interface with its suggestions and downloads.
class LegacyService
{
public:
    explicit LegacyService(OnlineLibrarySettings settings);

    /// A ZIP archive, or a compressed file.
    [[nodiscard]] static bool IsDownload(QByteArray const& path);

    [[nodiscard]] HttpReply Answer(HttpRequest const& request, RequestTarget const& target,
                                   ServiceContext const& context);

    /// What the download path leads to, without counting a download; null when it leads nowhere.
    [[nodiscard]] static Subtitle const* FindSubtitle(QByteArray const& path);

private:
    [[nodiscard]] HttpReply Search(QByteArray const& path, ServiceContext const& context) const;
    [[nodiscard]] HttpReply Suggest(RequestTarget const& target) const;
    [[nodiscard]] HttpReply Download(QByteArray const& path);

    OnlineLibrarySettings const m_settings;
    int m_downloads = 0;
};

} // namespace Korvex::Testing
