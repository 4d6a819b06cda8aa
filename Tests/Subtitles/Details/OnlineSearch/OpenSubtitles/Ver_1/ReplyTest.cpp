#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServiceFixture.h"
#include "Subtitles/Details/OnlineSearch/RecordedReplies.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTAutoSuggestRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTDownloadRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchResultData.h"

#include "Subtitles/Entities/SearchTags.h"

#include "Subtitles/UseCases/ResultRanking.h"

#include <QJsonDocument>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

namespace
{

using Entities::SearchTags;
using Entities::Language::LanguageID;
using Status = INetworkOperation::Status;
using Testing::Listener;

/// The text of the failure, if it is one; else the observer hears of the success.
template <class Request>
std::string Read(Request& request, QByteArray const& json, Listener& listener)
{
    Status const status = request.ParseJsonReply(QJsonDocument::fromJson(json));
    if (status == Status::Success)
        request.NotifySuccess(listener);
    EXPECT_TRUE(status == Status::Success || status == Status::ServerError);
    return status == Status::Success ? std::string() : request.GetError().toStdString();
}

std::vector<std::shared_ptr<UseCases::SearchResult>> ReadHits(QByteArray const& json)
{
    RESTSearchRequest request({}, {});
    Listener listener;
    EXPECT_EQ(Read(request, json, listener), "");
    return listener.results;
}

std::vector<QString> ReadSuggestions(QByteArray const& json)
{
    RESTAutoSuggestRequest request({}, QStringLiteral("x"));
    Listener listener;
    EXPECT_EQ(Read(request, json, listener), "");
    return listener.suggestions;
}

/// A reply with one element whose attributes are these and whose file is a good one.
std::shared_ptr<UseCases::SearchResult> ReadHit(QByteArray const& attributes)
{
    auto const hits =
        ReadHits(R"({"data":[{"attributes":{"files":[{"file_id":7,"file_name":"a"}],)" + attributes + "}}]}");
    EXPECT_EQ(hits.size(), 1U) << attributes.toStdString();
    return hits.empty() ? std::make_shared<UseCases::SearchResult>() : hits.front();
}

TEST(OpenSubtitlesVer1, ReadsAllThatAHitTells)
{
    auto const hits = ReadHits(R"({"data":[{"id":"1","attributes":{"language":"pt-BR","download_count":40,
        "new_download_count":2,"hearing_impaired":true,"hd":true,"fps":23.976,"votes":3,"ratings":8.5,
        "from_trusted":null,"foreign_parts_only":true,"upload_date":"2021-03-04T05:06:07Z","ai_translated":false,
        "machine_translated":true,"moviehash_match":true,"nb_cd":2,"release":"Harbour.S02E03-GROUP",
        "comments":"Line &lt;one&gt;\r\nLine<br/>two",
        "feature_details":{"feature_type":"Episode","year":2014,"title":"Low Tide","imdb_id":"tt0040785",
        "season_number":2,"episode_number":3,"parent_title":"Harbour &amp; Sea","parent_imdb_id":23645},
        "files":[{"file_id":815,"cd_number":2,"file_name":"Harbour.S02E03.SRT"},{"file_id":816,"cd_number":1},{}]}}]})");
    ASSERT_EQ(hits.size(), 1U);
    auto const* const hit = dynamic_cast<RESTSearchResultData const*>(hits.front().get());
    ASSERT_NE(hit, nullptr);
    EXPECT_EQ(hit->fileId, 815);
    EXPECT_EQ(hit->fileName, QStringLiteral("Harbour.S02E03.SRT"));
    EXPECT_EQ(hit->tags, (std::map<std::string, std::string>{{SearchTags::FILE_FORMAT, "srt"},
                                                             {SearchTags::HEARING_IMPAIRED, "1"}}));
    UseCases::SearchResultFacts const& facts = hit->facts;
    EXPECT_EQ(facts.language, LanguageID::PortugueseBR);
    EXPECT_EQ(facts.languageCode, QStringLiteral("pt-BR"));
    EXPECT_EQ(facts.release, QStringLiteral("Harbour.S02E03-GROUP"));
    EXPECT_EQ(facts.comment, QStringLiteral("Line <one> Line two"));
    EXPECT_EQ(facts.downloadCount, 42);
    EXPECT_EQ(facts.rating, 8.5);
    EXPECT_EQ(facts.voteCount, 3);
    EXPECT_EQ(facts.uploaded, QDateTime({2021, 3, 4}, {5, 6, 7}, Qt::UTC));
    EXPECT_EQ(facts.framesPerSecond, 23.976);
    EXPECT_TRUE(facts.isHearingImpaired && facts.isForeignPartsOnly && facts.isMachineTranslated &&
                facts.isHighDefinition && facts.isHashMatch && !facts.isFromTrusted);
    EXPECT_EQ(std::make_pair(facts.discNumber, facts.discCount), std::make_pair(2, 2));
    ASSERT_EQ(hit->otherParts.size(), 1U);
    EXPECT_EQ(UseCases::FindSet(hits.front(), hits), (std::vector{hit->otherParts.front(), hits.front()}));
    EXPECT_EQ(hit->otherParts.front()->facts.serviceId, QStringLiteral("816"));
    EXPECT_EQ(facts.title, QStringLiteral("Harbour & Sea"));
    EXPECT_EQ(facts.year, 2014);
    EXPECT_EQ(std::make_pair(facts.season, facts.episode), std::make_pair(std::optional(2), std::optional(3)));
    EXPECT_EQ(facts.imdbId, "40785");
    EXPECT_EQ(facts.serviceId, QStringLiteral("815"));
}

TEST(OpenSubtitlesVer1, TakesNothingForWhatIsNotSaid)
{
    auto const film = ReadHit(R"("ratings":0.0,"votes":0,"fps":0.0,"language":"at","ai_translated":true,
        "upload_date":"soon","feature_details":{"feature_type":"Movie","title":"Quay","year":null,"season_number":0,
        "imdb_id":0})");
    EXPECT_FALSE(film->facts.rating || film->facts.framesPerSecond || film->facts.downloadCount);
    EXPECT_FALSE(film->facts.year || film->facts.season);
    EXPECT_EQ(film->facts.imdbId, "");
    EXPECT_FALSE(film->facts.uploaded.isValid());
    EXPECT_EQ(film->facts.language, LanguageID::Asturian);
    EXPECT_TRUE(film->facts.isMachineTranslated);
    EXPECT_EQ(film->tags.count(SearchTags::FILE_FORMAT), 0U);
    EXPECT_EQ(ReadHit(R"("format":"SUB")")->tags.at(SearchTags::FILE_FORMAT), "sub");
    EXPECT_EQ(ReadHit(R"("new_download_count":5,"download_count":"7")")->facts.downloadCount, 12);
    EXPECT_EQ(
        ReadHit(R"("new_download_count":9007199254740993,"download_count":"9223372036854775807")")->facts.downloadCount,
        std::nullopt);
}

/// A good element among bad ones is found, whatever the bad ones hold.
TEST(OpenSubtitlesVer1, KeepsGoodElementsAmongBadOnes)
{
    for (char const* odd : {"null", "true", "-1", "1e300", R"("x")", "[]", "[[[]]]", R"({"a":{}})"})
    {
        QByteArray every;
        for (char const* member :
             {"language", "download_count", "hearing_impaired", "fps", "votes", "ratings", "upload_date", "nb_cd",
              "release", "comments", "feature_details", "moviehash_match", "format"})
            every += QByteArray(R"(")") + member + R"(":)" + odd + ",";
        QByteArray const badFile = QByteArray(R"({"file_name":"a","file_id":)") + odd + "}";
        auto const hits =
            ReadHits(QByteArray(R"({"data":[)") + odd + R"(,{"attributes":)" + odd + R"(},{"attributes":{"files":)" +
                     odd + R"(}},{"attributes":{"files":[)" + badFile + R"(]}},{"attributes":{)" + every +
                     R"("files":[{"file_id":3,"file_name":"good"}]}}]})");
        ASSERT_EQ(hits.size(), 1U) << odd;
        EXPECT_EQ(hits.front()->fileName, QStringLiteral("good"));
    }
    auto const hits = ReadHits(R"({"data":[{"attributes":{"release":"R","files":[]}},
        {"attributes":{"release":"R","files":[{"file_id":4294967297}]}},
        {"attributes":{"release":"R","files":[{"file_id":1.5}]}}, {"attributes":{"files":[{"file_id":5}]}},
        {"attributes":{"release":"From.Release","files":[{"file_id":6,"file_name":" "}]}}]})");
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(hits.front()->fileName, QStringLiteral("From.Release"));

    EXPECT_TRUE(ReadHits("[]").empty());
    RESTSearchRequest search({}, {});
    RESTAutoSuggestRequest suggest({}, QStringLiteral("x"));
    Listener listener;
    for (char const* reply : {"{}", R"({"data":{}})", "[1]", R"({"data":null})"})
    {
        EXPECT_EQ(Read(search, reply, listener), "Invalid server response format: not an array");
        EXPECT_EQ(Read(suggest, reply, listener), "Invalid server response format: not an array");
    }
    EXPECT_EQ(ReadSuggestions(R"({"data":[null,{"attributes":{"title":7}},{"attributes":{"title":"Salt &amp; Sea"}},
        {"attributes":[]},{"attributes":{"title":"Harbour"}},{"attributes":{"title":"Salt & Sea"}}]})"),
              (std::vector<QString>{QStringLiteral("Salt & Sea"), QStringLiteral("Harbour")}));
}

TEST(OpenSubtitlesVer1, TakesOnlyWebAddressesForDownloadLinks)
{
    auto const result = std::make_shared<RESTSearchResultData>();
    RESTDownloadRequest request({}, result);
    Listener listener;
    EXPECT_EQ(Read(request, R"({"link":"https://files.example/Ab/x.srt","file_name":"x.srt","remaining":0})", listener),
              "");
    EXPECT_EQ(result->link, QUrl(QStringLiteral("https://files.example/Ab/x.srt")));
    EXPECT_EQ(result->linkFileName, QStringLiteral("x.srt"));
    for (char const* link : {R"("file:///etc/passwd")", R"("ftp://a/b")", R"("/relative")", R"("https:///x")",
                             R"("data:text/plain,x")", R"("javascript:x")"})
    {
        EXPECT_EQ(Read(request, QByteArray(R"({"link":)") + link + "}", listener),
                  "The server's download link is no web address")
            << link;
        EXPECT_TRUE(result->link.isEmpty());
    }
    EXPECT_EQ(Read(request, R"({"link":null,"message":"Quota\nused &amp; gone"})", listener),
              "The server gave no download link: Quota used & gone");
    EXPECT_EQ(Read(request, "[]", listener), "The server gave no download link");
    RESTNetworkConfiguration configuration;
    configuration.apiKey = "SecretKey";
    RESTDownloadRequest refused(configuration, result);
    EXPECT_EQ(Read(refused, R"({"errors":["Bad key secretkey"]})", listener),
              "The server gave no download link: Bad key ***");
}

/// Figures as the recorded replies hold them.
TEST(OpenSubtitlesVer1, ReadsWhatTheServiceReallySent)
{
    if (!Testing::HasReplies())
        GTEST_SKIP() << Testing::NO_REPLIES;
    auto const load = [](QString const& name) { return Testing::LoadReply("v1/" + name); };
    std::size_t hitCount = 0;
    qint64 downloadCount = 0;
    for (QString const& name : Testing::GetReplies("v1").entryList({QStringLiteral("subtitles-*.json")}))
    {
        for (auto const& hit : ReadHits(load(name)))
        {
            ++hitCount;
            downloadCount += hit->facts.downloadCount.value_or(0);
            EXPECT_TRUE(hit->facts.uploaded.isValid() && hit->facts.year && !hit->facts.title.isEmpty());
            EXPECT_TRUE(hit->facts.language != LanguageID::None && !hit->facts.imdbId.empty());
        }
    }
    EXPECT_EQ(hitCount, 228U);
    EXPECT_EQ(downloadCount, 4045640);
    EXPECT_EQ(ReadHits(load("subtitles-query-ptbr-11.json")).front()->facts.language, LanguageID::PortugueseBR);
    EXPECT_EQ(ReadSuggestions(load("features-query-12.json")).size(), 12U);
    EXPECT_EQ(ReadSuggestions(load("features-discover-popular.json")).front(), QStringLiteral("Doom: Annihilation"));

    auto const result = std::make_shared<RESTSearchResultData>();
    RESTDownloadRequest request({}, result);
    Listener listener;
    EXPECT_EQ(Read(request, load("download-200.json"), listener), "");
    EXPECT_EQ(result->link.host(), QStringLiteral("www.opensubtitles.com"));
    EXPECT_EQ(result->linkFileName, QStringLiteral("man.of.steel.2013.720p.bluray.x264-felony.www.subsynchro.com.srt"));
    EXPECT_NE(Read(request, load("error-406-quota-anonymous.json"), listener).find("allowed 5 subtitles"),
              std::string::npos);
}

} // namespace

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
