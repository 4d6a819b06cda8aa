#pragma once

#include "Subtitles/Details/OnlineSearch/INetworkOperation.h"

#include "Subtitles/Entities/Export.h"

#include <QByteArray>
#include <QString>

class QJsonDocument;
class QUrl;

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

/// What all requests with a JSON reply share, whatever the version of the service. Versions add the headers.
class KVSUBTITLES_API RESTRequest : public INetworkOperation
{
public:
    RESTRequest();
    ~RESTRequest() override;

    /// A GET without form fields unless a request says otherwise.
    [[nodiscard]] QUrlQuery GetQueryParams() const override;
    [[nodiscard]] Type GetType() const override;
    [[nodiscard]] Status GetStatus() const override;
    [[nodiscard]] QString GetError() const override;
    /// The HTTP status of the reply is not looked at: what the transport refused never comes here.
    Status ParseReply(QNetworkReply& reply) override;

    /// The whole address of this request; empty when the request makes none.
    [[nodiscard]] virtual QUrl CreateQuery(QString const& baseUrl) = 0;
    virtual Status ParseJsonReply(QJsonDocument const& document) = 0;

    /// The address in lower case, values included: the service answers anything else with a redirect. It is the text
    /// that is lowered, not its percent-encoded bytes, so that letters beyond ASCII are, too.
    [[nodiscard]] static QUrl DowncaseUrl(QUrl const& url);

protected:
    /// Reads a whole body; its outcome takes the place of what was kept before.
    Status ParseBody(QByteArray const& body);

    /// Every request follows redirects.
    static void FollowRedirects(QNetworkRequest& request);

    /// Logs the reason and returns the empty address that makes the request an invalid one.
    QUrl Refuse(QString const& reason);
    /// Keeps the outcome and returns the status; a failure's text is logged.
    Status Fail(Status status, QString const& error);

    Status m_status = Status::Success;
    QString m_error;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
