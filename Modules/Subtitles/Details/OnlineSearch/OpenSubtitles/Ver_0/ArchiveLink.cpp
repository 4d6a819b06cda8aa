#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/ArchiveLink.h"

#include <QString>
#include <QUrl>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

QUrl ReadArchiveLink(QString const& link)
{
    QUrl const url(link, QUrl::TolerantMode);
    bool const isHttp = url.scheme() == QStringLiteral("http") || url.scheme() == QStringLiteral("https");
    return url.isValid() && isHttp && !url.host().isEmpty() ? url : QUrl();
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
