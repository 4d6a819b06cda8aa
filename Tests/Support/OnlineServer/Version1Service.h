#pragma once

#include "Support/OnlineServer/ServiceContext.h"

#include <map>
#include <optional>

namespace Korvex::Testing
{

struct SubtitleFile;

/// The interface under /api/v1 and the file links that it hands out.
class Version1Service
{
public:
    /// The one that it accepts.
    static constexpr char API_KEY[] = "korvex-test-key";

    [[nodiscard]] static bool IsFileLink(HttpRequest const& request);

    [[nodiscard]] HttpReply Answer(HttpRequest const& request, ServiceContext const& context);

private:
    [[nodiscard]] HttpReply MakeLink(HttpRequest const& request, ServiceContext const& context);
    [[nodiscard]] HttpReply FetchFile(HttpRequest const& request) const;

    std::map<QByteArray, SubtitleFile const*> m_links; ///< by path
    int m_downloads = 0;
};

} // namespace Korvex::Testing
