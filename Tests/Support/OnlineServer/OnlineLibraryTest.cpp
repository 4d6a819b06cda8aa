#include "Support/OnlineServer/OnlineLibrary.h"
#include "Support/OnlineServer/FilmCatalog.h"

#include <gtest/gtest.h>

#include <quazip.h>
#include <quazipfile.h>

#include <QBuffer>
#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <set>

namespace Korvex::Testing
{

namespace
{

class OnlineLibraryTest : public ::testing::Test
{
protected:
    HttpReply Ask(QByteArray const& target, QByteArray const& form = {})
    {
        HttpRequest request;
        request.method = form.isEmpty() ? "GET" : "POST";
        request.target = target;
        request.body = form;
        request.headers = {{"Host", "127.0.0.1:80"}, {"Api-Key", "korvex-test-key"}, {"User-Agent", "Korvex v1.0"}};
        return m_library.Answer(request);
    }

    QJsonObject AskForObject(QByteArray const& target, QByteArray const& form = {})
    {
        return QJsonDocument::fromJson(Ask(target, form).body).object();
    }

private:
    OnlineLibrarySettings const m_settings = []
    {
        OnlineLibrarySettings settings;
        settings.downloadQuota = 1;
        return settings;
    }();
    OnlineLibrary m_library{m_settings};
};

TEST_F(OnlineLibraryTest, SendsAFileOnceAndThenNoMoreThanTheQuota)
{
    QJsonArray const rows =
        AskForObject("/api/v1/subtitles?languages=en&query=the%20lantern%20keeper")["data"].toArray();
    QJsonObject const first = rows.first().toObject()["attributes"].toObject();
    EXPECT_EQ(first["files"].toArray().first().toObject()["file_id"].toInt(), 8'200'001);
    QJsonObject const granted = AskForObject("/api/v1/download", R"({"file_id":8200001})");
    EXPECT_EQ(granted["remaining"].toInt(-1), 0);
    QByteArray const path = QUrl(granted["link"].toString()).toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority);
    EXPECT_EQ(Ask(path.toLower()).status, 404);
    EXPECT_TRUE(Ask(path).body.contains("The Lantern Keeper\r\n"));
    EXPECT_EQ(Ask(path).status, 410);

    HttpReply const refused = Ask("/api/v1/download", "file_id=8200001");
    EXPECT_EQ(refused.status, 406);
    EXPECT_TRUE(refused.body.contains("reset_time_utc") && !refused.body.contains("\"link\""));
    EXPECT_EQ(Ask("/api/v1/download", "file_id=1").status, 400);
}

TEST_F(OnlineLibraryTest, PagesLongRepliesAndRedirectsToTheOneSpellingOfARequest)
{
    QJsonObject const last = AskForObject("/api/v1/subtitles?page=3&query=catalogue");
    EXPECT_EQ(last["total_pages"].toInt(), 3);
    EXPECT_EQ(last["data"].toArray().size(), 20);

    HttpReply const redirect = Ask("/faults/late/api/v1/subtitles?query=%C3%96lberg&page=1&imdb_id=tt0051987");
    EXPECT_EQ(redirect.status, 301);
    EXPECT_EQ(FindHeader(redirect.headers, "Location"),
              "/faults/late/api/v1/subtitles?imdb_id=51987&query=%C3%B6lberg");
    EXPECT_EQ(redirect.delayMs, 2'000);
    EXPECT_EQ(FindHeader(Ask("/search/sublanguageid-eng/query-Io").headers, "Location"),
              "http://127.0.0.1:80/search/query-io/sublanguageid-eng");
    EXPECT_EQ(Ask("/search/query-io/sublanguageid-eng,fre").status, 400);
}

TEST_F(OnlineLibraryTest, PacksWhatTheRowsOfASetPromise)
{
    HttpReply const found = Ask("/search/query-harbour%20lights/sublanguageid-ger");
    EXPECT_TRUE(found.body.contains("http:\\/\\/127.0.0.1:80\\/en\\/download\\/"));
    QJsonArray const rows = QJsonDocument::fromJson(found.body).array();
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0].toObject()["SubActualCD"].toString(), "2");
    EXPECT_EQ(rows[0].toObject()["ZipDownloadLink"], rows[1].toObject()["ZipDownloadLink"]);

    HttpReply reply = Ask(QUrl(rows[0].toObject()["ZipDownloadLink"].toString()).path().toUtf8());
    QBuffer buffer(&reply.body);
    QuaZip archive(&buffer);
    ASSERT_TRUE(archive.open(QuaZip::mdUnzip));
    for (QJsonValue const row : rows)
    {
        ASSERT_TRUE(archive.setCurrentFile(row.toObject()["SubFileName"].toString()));
        QuaZipFile file(&archive);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(QCryptographicHash::hash(file.readAll(), QCryptographicHash::Md5).toHex(),
                  row.toObject()["SubHash"].toString().toLatin1());
    }
    EXPECT_EQ(Ask("/download/filead/1950000001.gz").status, 429);
}

TEST_F(OnlineLibraryTest, NoTwoFilesAreAlike)
{
    std::set<QByteArray> texts;
    std::size_t count = 0;
    for (Subtitle const& subtitle : FilmCatalog::Get().GetSubtitles())
    {
        for (SubtitleFile const& file : subtitle.files)
        {
            texts.insert(file.bytes);
            ++count;
        }
    }
    EXPECT_EQ(texts.size(), count);
}

} // namespace

} // namespace Korvex::Testing
