#pragma once

#include "Subtitles/Entities/Export.h"

#include <QNetworkReply>
#include <QNetworkRequest>

class QByteArray;

namespace Korvex::Converter::Subtitles::Details
{

/// Where a redirect leads, or why it is not followed.
struct Redirect
{
    QNetworkRequest request;
    QNetworkReply::NetworkError error = QNetworkReply::NoError;
    QString errorText; ///< names no address: it may carry a token
};

/// 301, 302, 303, 307 and 308, which all keep the method here.
[[nodiscard]] KVSUBTITLES_API bool IsRedirect(int httpStatus);

/// The request that follows `request` to the Location header of its reply: to http or https only and never from https
/// down to http. On the way to another scheme, host or port the key, the authorization and the cookies stay behind;
/// user name and password of the address always do.
[[nodiscard]] KVSUBTITLES_API Redirect FollowRedirect(QNetworkRequest const& request, QByteArray const& location);

/// Whether addresses of this scheme are asked for at all.
[[nodiscard]] KVSUBTITLES_API bool IsHttp(QUrl const& url);

/// Whether this is a whole http or https address.
[[nodiscard]] KVSUBTITLES_API bool IsWebAddress(QUrl const& url);

/// The same scheme, host and port: whom a key for the one may be told to.
[[nodiscard]] KVSUBTITLES_API bool IsSameOrigin(QUrl const& left, QUrl const& right);

} // namespace Korvex::Converter::Subtitles::Details
