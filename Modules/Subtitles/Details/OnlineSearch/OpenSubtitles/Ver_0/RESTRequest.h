#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTNetworkConfiguration.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

/// A request to the legacy service: in lower case, under the program's own name, which the service insists on.
class KVSUBTITLES_API RESTRequest : public OpenSubtitles::RESTRequest
{
public:
    explicit RESTRequest(RESTNetworkConfiguration const& configuration);
    ~RESTRequest() override;

    QNetworkRequest CreateRequest() override;
    /// Warnings of the server's own scripts may stand before the array. Letters in a broken encoding are replaced, so
    /// that one of them does not cost the whole reply.
    Status ParseReply(QNetworkReply& reply) override;

protected:
    /// The request for an address as it is. An empty address is an invalid request.
    [[nodiscard]] QNetworkRequest MakeRequest(QUrl const& url);

    RESTNetworkConfiguration const m_configuration;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
