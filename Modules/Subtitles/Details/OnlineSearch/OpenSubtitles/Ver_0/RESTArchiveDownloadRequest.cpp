#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTArchiveDownloadRequest.h"

#include "Subtitles/Details/OnlineSearch/BodyDecoder.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/NotASubtitle.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleArchive.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleFileName.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleStore.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/ArchiveLink.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchResultData.h"

#include "Subtitles/Entities/SearchTags.h"

#include <QJsonDocument>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

namespace
{

constexpr int LARGEST_SUBTITLE_BYTES = 16 * 1024 * 1024;

QByteArray const GZIP = QByteArrayLiteral("gzip");

bool IsGzip(QByteArray const& bytes)
{
    return bytes.startsWith("\x1F\x8B");
}

bool IsZip(QByteArray const& bytes)
{
    return bytes.startsWith("PK");
}

/// As the search found it, which is how lists show it; lower case.
QString GetFormat(RESTSearchResultData const& result)
{
    auto const format = result.tags.find(Entities::SearchTags::FILE_FORMAT);
    return format == result.tags.end() ? QString() : QString::fromStdString(format->second);
}

} // namespace

RESTArchiveDownloadRequest::RESTArchiveDownloadRequest(RESTNetworkConfiguration const& configuration,
                                                       std::shared_ptr<UseCases::SearchResult> const& result,
                                                       ioPath const& folder)
    : RESTRequest(configuration),
      m_result(std::dynamic_pointer_cast<RESTSearchResultData>(result)),
      m_folder(folder)
{
}

RESTArchiveDownloadRequest::~RESTArchiveDownloadRequest() = default;

QNetworkRequest RESTArchiveDownloadRequest::CreateRequest()
{
    return MakeRequest(CreateQuery(m_configuration.baseUrl));
}

QUrl RESTArchiveDownloadRequest::CreateQuery(QString const& /*baseUrl*/)
{
    QUrl link = m_result ? ReadArchiveLink(m_result->archiveLink) : QUrl();
    return link.isEmpty() ? Refuse(QStringLiteral("Invalid archive link")) : link;
}

RESTArchiveDownloadRequest::Status RESTArchiveDownloadRequest::ParseReply(QNetworkReply& reply)
{
    m_status = Status::Success;
    m_error.clear();
    QByteArray const body = reply.readAll();
    if (IsGzip(body))
        return StorePackedFile(body);
    if (IsZip(body))
        return StoreMember(body);
    if (auto const instead = FindWhatItIsInstead(body))
        return Fail(Status::ServerError, QStringLiteral("The server sent %1 instead of an archive").arg(*instead));
    return StoreMember(body);
}

RESTArchiveDownloadRequest::Status RESTArchiveDownloadRequest::ParseJsonReply(QJsonDocument const& /*document*/)
{
    return Fail(Status::ServerError, QStringLiteral("Invalid server response format: not an archive"));
}

RESTArchiveDownloadRequest::Status RESTArchiveDownloadRequest::StorePackedFile(QByteArray const& body)
{
    BodyDecoder decoder(GZIP, LARGEST_SUBTITLE_BYTES);
    if (decoder.Append(body) != BodyDecoder::Outcome::Accepted || !decoder.IsComplete())
        return Fail(Status::FileError,
                    QStringLiteral("The packed file of %1 cannot be opened").arg(m_result->fileName));
    return Store(decoder.TakeBody());
}

RESTArchiveDownloadRequest::Status RESTArchiveDownloadRequest::StoreMember(QByteArray const& body)
{
    ArchiveWish wish;
    wish.fileName = m_result->fileName;
    wish.format = GetFormat(*m_result);
    wish.md5 = m_result->subtitleHash.toLatin1();
    wish.discNumber = m_result->facts.discNumber;
    wish.discCount = m_result->facts.discCount;
    UnpackedSubtitle const member = UnpackSubtitle(body, wish);
    return member.status == Status::Success ? Store(member.bytes) : Fail(member.status, member.error);
}

/// Under the name that the search gave: those of archive members come in unknown code pages.
RESTArchiveDownloadRequest::Status RESTArchiveDownloadRequest::Store(QByteArray const& subtitle)
{
    StoredFile const stored =
        StoreSubtitle(subtitle, m_folder, CleanFileName(m_result->fileName, GetFormat(*m_result)));
    if (stored.status != Status::Success)
        return Fail(stored.status, stored.error);
    m_file = stored.path;
    return m_status;
}

void RESTArchiveDownloadRequest::NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer)
{
    observer.OnSubtitlesDownloaded(m_result, m_file);
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
