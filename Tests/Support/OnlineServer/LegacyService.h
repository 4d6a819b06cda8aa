#pragma once

#include "Support/OnlineServer/ServiceContext.h"

namespace Korvex::Testing
{

struct Subtitle;

/// The path-style interface with its suggestions and downloads.
class LegacyService
{
public:
    [[nodiscard]] static bool IsDownload(HttpRequest const& request);
    /// What the download leads to; null when it leads nowhere.
    [[nodiscard]] static Subtitle const* FindSubtitle(HttpRequest const& request);

    [[nodiscard]] HttpReply Answer(HttpRequest const& request, ServiceContext const& context);

private:
    [[nodiscard]] HttpReply Download(HttpRequest const& request, ServiceContext const& context);

    int m_downloads = 0;
};

} // namespace Korvex::Testing
