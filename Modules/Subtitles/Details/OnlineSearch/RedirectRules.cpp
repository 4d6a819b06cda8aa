#include "Subtitles/Details/OnlineSearch/RedirectRules.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <array>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr std::array<char const*, 3> SECRET_HEADERS{"Api-Key", "Authorization", "Cookie"};

bool IsHttps(QUrl const& url)
{
    return url.scheme() == QLatin1String("https");
}

int GetPort(QUrl const& url)
{
    return url.port(IsHttps(url) ? 443 : 80);
}

Redirect Refuse(QNetworkReply::NetworkError error, char const* text)
{
    return {{}, error, QString::fromLatin1(text)};
}

} // namespace

bool IsRedirect(int httpStatus)
{
    return (httpStatus >= 301 && httpStatus <= 303) || httpStatus == 307 || httpStatus == 308;
}

bool IsHttp(QUrl const& url)
{
    return IsHttps(url) || url.scheme() == QLatin1String("http");
}

bool IsWebAddress(QUrl const& url)
{
    return url.isValid() && IsHttp(url) && !url.host().isEmpty();
}

bool IsSameOrigin(QUrl const& left, QUrl const& right)
{
    return left.scheme() == right.scheme() && left.host() == right.host() && GetPort(left) == GetPort(right);
}

Redirect FollowRedirect(QNetworkRequest const& request, QByteArray const& location)
{
    QUrl const target = QUrl::fromEncoded(location.trimmed());
    if (target.isEmpty() || !target.isValid())
        return Refuse(QNetworkReply::ProtocolFailure, "The server redirected the request without a usable address.");
    QUrl next = request.url().resolved(target);
    if (!IsHttp(next))
        return Refuse(QNetworkReply::ProtocolUnknownError,
                      "The server redirected the request to an address that is neither http nor https.");
    if (next.host().isEmpty())
        return Refuse(QNetworkReply::ProtocolFailure,
                      "The server redirected the request to an address without a host.");
    if (IsHttps(request.url()) && !IsHttps(next))
        return Refuse(QNetworkReply::InsecureRedirectError,
                      "The server redirected the request from an encrypted connection to an open one.");

    next.setUserInfo(QString{});
    Redirect redirect{request, QNetworkReply::NoError, {}};
    redirect.request.setUrl(next);
    if (!IsSameOrigin(request.url(), next))
    {
        for (char const* const header : SECRET_HEADERS)
            redirect.request.setRawHeader(header, QByteArray{});
    }
    return redirect;
}

} // namespace Korvex::Converter::Subtitles::Details
