#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTNetworkConfiguration.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

/// A request as version 1 of the service wants it addressed: JSON headers and the API key.
class KVSUBTITLES_API RESTRequest : public OpenSubtitles::RESTRequest
{
public:
    explicit RESTRequest(RESTNetworkConfiguration const& configuration);
    ~RESTRequest() override;

    QNetworkRequest CreateRequest() override;

protected:
    /// The headers of every request; the key only where the address belongs to the service itself.
    [[nodiscard]] QNetworkRequest AddressTo(QUrl const& url) const;

    /// What a server says may repeat the key; neither an error text nor the log may.
    [[nodiscard]] QString WithoutKey(QString const& text) const;

    /// A text as the value of one parameter. It is not encoded, but loses what would end it or begin another parameter;
    /// control characters and runs of blanks become single blanks.
    [[nodiscard]] static QString ToValue(QString const& text);

private:
    RESTNetworkConfiguration m_configuration;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
