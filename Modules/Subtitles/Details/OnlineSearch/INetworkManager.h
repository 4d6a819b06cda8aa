#pragma once

class QNetworkReply;
class QNetworkRequest;
class QUrlQuery;

namespace Korvex::Converter::Subtitles::Details
{

/// The HTTP stack as the online search sees it. The caller owns a returned reply and deletes it later.
class INetworkManager
{
public:
    [[nodiscard]] virtual bool IsNetworkAccessible() const = 0;
    /// Null when no reply can be made.
    virtual QNetworkReply* Get(QNetworkRequest const& request) = 0;
    virtual QNetworkReply* Post(QNetworkRequest const& request, QUrlQuery const& form) = 0;
    virtual ~INetworkManager() = default;
};

} // namespace Korvex::Converter::Subtitles::Details
