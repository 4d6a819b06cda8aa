#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/ArchiveLink.h"

#include "Subtitles/Details/OnlineSearch/RedirectRules.h"

#include <QString>
#include <QUrl>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

QUrl ReadArchiveLink(QString const& link)
{
    QUrl const url(link, QUrl::TolerantMode);
    return IsWebAddress(url) ? url : QUrl();
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
