#include "Subtitles/Details/OnlineSearch/FakeNetwork.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServiceFixture.h"
#include "Subtitles/Details/OnlineSearch/RecordedReplies.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTAutoSuggestRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchResultData.h"

#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/Fakes/LogCatcher.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{
namespace
{

using Entities::SearchTags;
using Entities::Language::LanguageID;
using testing::ElementsAre;
using Status = UseCases::IOnlineSearchController::Status;
using Result = std::shared_ptr<RESTSearchResultData>;

/// What an operation makes of a body, and tells of it.
struct Reading final : Korvex::Testing::Listener
{
    Reading(RESTRequest& request, QByteArray const& body)
    {
        std::atomic<int> aliveCount{0};
        Korvex::Testing::FakeReply reply(QNetworkRequest(), aliveCount);
        reply.SetBody(body);
        status = request.ParseReply(reply);
        error = request.GetError();
        request.NotifySuccess(*this);
        for (auto const& hit : results)
            data.push_back(std::dynamic_pointer_cast<RESTSearchResultData>(hit));
    }

    Status status = Status::Success;
    QString error;
    std::vector<std::shared_ptr<RESTSearchResultData>> data;
};

Reading ReadSearch(QByteArray const& body)
{
    RESTSearchRequest request({}, UseCases::SearchRequest{{{SearchTags::TITLE, "x"}}, {}});
    return Reading(request, body);
}

/// A row of the least that can be shown and downloaded, with other members added or put in place of its own.
QByteArray Row(QByteArray const& members = {})
{
    QJsonObject row =
        QJsonDocument::fromJson(R"({"SubFileName":"a.srt","ZipDownloadLink":"https:\/\/dl\/1"})").object();
    QJsonObject const added = QJsonDocument::fromJson('{' + members + '}').object();
    for (auto member = added.begin(); member != added.end(); ++member)
        row.insert(member.key(), member.value());
    return QJsonDocument(row).toJson(QJsonDocument::Compact);
}

TEST(LegacyReplyTest, FindsTheArrayInWhatServersSend)
{
    for (QByteArray const& body : {QByteArray("null"), QByteArray("[]"), QByteArray(" null\r\n"),
                                   QByteArray("<b>Warning</b>: Undefined offset $rows[0][]\n[ ]\n")})
    {
        EXPECT_EQ(ReadSearch(body).status, Status::Success) << body.toStdString();
        EXPECT_TRUE(ReadSearch(body).results.empty());
    }
    for (QByteArray const& before :
         {QByteArray(), QByteArray("\xEF\xBB\xBF \n"), QByteArray("<br />\n<b>Notice</b>: $row[3] in {main} [x]\n")})
    {
        auto const reading = ReadSearch(before + "[ " + Row() + "]");
        EXPECT_EQ(reading.status, Status::Success) << before.toStdString();
        EXPECT_EQ(reading.results.size(), 1u);
    }
    Testing::LogCatcher log;
    QByteArray const whole = "[" + Row() + "," + Row() + "]";
    for (QByteArray const& body : {whole.left(whole.size() - 1), whole.left(whole.size() / 2),
                                   QByteArray("<html><title>Down</title></html>"), QByteArray("[1,"), QByteArray("{}"),
                                   QByteArray(R"({"error":"unauthorized"})"), QByteArray("\"text\""), QByteArray()})
    {
        auto const reading = ReadSearch(body);
        EXPECT_EQ(reading.status, Status::ServerError) << body.toStdString();
        EXPECT_TRUE(reading.results.empty());
        EXPECT_EQ(reading.error.isEmpty(), body.isEmpty()) << body.toStdString();
    }
    EXPECT_EQ(log.lines.size(), 8u);
    EXPECT_THAT(log.lines.front(), testing::StartsWith("RESTRequest.cpp: Invalid server JSON: "));
    EXPECT_EQ(log.lines.back(), "RESTRequest.cpp: Empty server response");
}

TEST(LegacyReplyTest, KeepsEveryGoodRowBesideBadOnes)
{
    auto const reading = ReadSearch(
        "[null,7,\"x\",[],{},true," + Row(R"("SubFileName":"")") + "," + Row(R"("SubFileName":null)") + "," +
        Row(R"("ZipDownloadLink":"file:\/\/\/etc\/passwd")") + "," + Row(R"("ZipDownloadLink":["https:\/\/dl\/1"])") +
        "," + Row(R"("SubFileName":"gz.srt","ZipDownloadLink":"","SubDownloadLink":"http:\/\/dl\/2.gz")") + "," +
        Row(R"("SubFileName":"odd","SubDownloadsCnt":{},"SubRating":"inf","SubSumVotes":-1,"SubAddDate":"0000-00-00 00:00:00",
                "MovieFPS":"0.000","MovieYear":1e300,"SubActualCD":"3","SubSumCD":"2","SubHD":[1],"MovieName":12,
                "MovieKind":"episode","SeriesSeason":"x","SeriesEpisode":-2,"IDMovieImdb":0.5,"SubFormat":null,
                "SubLanguageID":"xyz","ISO639":"PB","IDSubtitleFile":1952848198,"SubHearingImpaired":1,"SubFromTrusted":true)") +
        ",{\"SubFileName\":\"\xE9.srt\",\"ZipDownloadLink\":\"https://dl/1\"}]");
    EXPECT_EQ(reading.status, Status::Success);
    ASSERT_EQ(reading.results.size(), 3u);
    EXPECT_EQ(reading.data[0]->archiveLink, QStringLiteral("http://dl/2.gz"));
    EXPECT_EQ(reading.results[2]->fileName, QStringLiteral("\uFFFD.srt"));

    auto const& odd = *reading.data[1];
    auto const& facts = odd.facts;
    EXPECT_EQ(odd.tags, (std::map<std::string, std::string>{{"HEARING_IMPAIRED", "1"}}));
    EXPECT_FALSE(facts.downloadCount || facts.rating || facts.voteCount || facts.framesPerSecond || facts.year ||
                 facts.season || facts.episode || facts.uploaded.isValid() || facts.isHighDefinition);
    EXPECT_TRUE(facts.isHearingImpaired && facts.isFromTrusted);
    EXPECT_EQ(facts.discNumber, 1);
    EXPECT_EQ(facts.discCount, 1);
    EXPECT_EQ(facts.title, QStringLiteral("12"));
    EXPECT_EQ(facts.imdbId, "");
    EXPECT_EQ(facts.language, LanguageID::PortugueseBR);
    EXPECT_EQ(facts.languageCode, QStringLiteral("xyz"));
    EXPECT_EQ(facts.serviceId, QStringLiteral("1952848198"));
}

TEST(LegacyReplyTest, ReadsTextsAsTheyAreMeant)
{
    auto const results =
        ReadSearch(
            "[" + Row(R"("SubFileName":"a.SrT","MovieName":"Tom &amp; J&eacute;rry&#039;s &#x22;&#0;Tale&quot;",
        "MovieKind":"movie","SubAuthorComment":"one\r\n\ttwo &amp;lt;","MovieReleaseName":" Up.2009 ")") +
            "," +
            Row(R"("MovieName":"&quot;Game of Thrones&quot; The Kingsroad","MovieKind":"episode","SeriesSeason":"0",
        "SeriesEpisode":"2","IDMovieImdb":"0","SeriesIMDBParent":"0944947","SubFormat":"SUB")") +
            "]")
            .results;
    ASSERT_EQ(results.size(), 2u);
    EXPECT_EQ(results[0]->facts.title, QStringLiteral("Tom & J&eacute;rry's \" Tale\""));
    EXPECT_EQ(results[0]->facts.comment, QStringLiteral("one two &lt;"));
    EXPECT_EQ(results[0]->facts.release, QStringLiteral("Up.2009"));
    EXPECT_EQ(results[0]->tags.at(SearchTags::FILE_FORMAT), "srt");
    EXPECT_EQ(results[1]->facts.title, QStringLiteral("Game of Thrones"));
    EXPECT_EQ(results[1]->facts.season, 0);
    EXPECT_EQ(results[1]->facts.imdbId, "944947");
    EXPECT_EQ(results[1]->tags.at(SearchTags::FILE_FORMAT), "sub");
}

TEST(LegacyReplyTest, FoldsSuggestions)
{
    RESTAutoSuggestRequest request({}, QStringLiteral("up"));
    Reading const reading(request, R"(Notice: x[1] [{"name":"Up","year":"2009","id":1},{"name":"Up"},{"name":7},{},
        "Up there",{"name":"Tom &amp; Jerry","kind":"tv"},{"name":" "}])");
    EXPECT_EQ(reading.status, Status::Success);
    EXPECT_THAT(reading.suggestions, ElementsAre(QStringLiteral("Up"), QStringLiteral("Tom & Jerry")));
    EXPECT_EQ(Reading(request, "<html></html>").status, Status::ServerError);
    EXPECT_EQ(Reading(request, "[]").error, QString()) << "an operation may be asked again";
    EXPECT_TRUE(Reading(request, "{\"name\":\"Up\"}").suggestions.empty());
}

TEST(LegacyReplyTest, ReadsEveryRecordedReply)
{
    if (!Korvex::Testing::HasReplies())
        GTEST_SKIP() << Korvex::Testing::NO_REPLIES;
    std::vector<Result> all;
    for (QJsonValue const& entry : QJsonDocument::fromJson(Korvex::Testing::LoadReply("INDEX.json")).array())
    {
        QString const name = entry.toObject().value(QStringLiteral("file")).toString();
        if (!name.startsWith(QStringLiteral("v0/")))
            continue;
        auto const reading = ReadSearch(Korvex::Testing::LoadReply(name));
        EXPECT_EQ(reading.status, Status::Success) << name.toStdString();
        EXPECT_EQ(static_cast<int>(reading.results.size()), entry.toObject().value(QStringLiteral("rows")).toInt());
        all.insert(all.end(), reading.data.begin(), reading.data.end());
    }

    using Data = RESTSearchResultData;
    using Facts = UseCases::SearchResultFacts;
    EXPECT_EQ(all.size(), 66u);
    std::vector<std::pair<char const*, bool (*)(Data const&, Facts const&)>> const counts = {
        {"65 srt", [](auto const& data, auto const&) { return data.tags.at(SearchTags::FILE_FORMAT) == "srt"; }},
        {"66 hashes", [](auto const& data, auto const&) { return data.subtitleHash.size() == 32; }},
        {"8 CP1250", [](auto const& data, auto const&) { return data.encoding == QStringLiteral("CP1250"); }},
        {"0 unknown", [](auto const&, auto const& facts) { return facts.language == LanguageID::None; }},
        {"23 English", [](auto const&, auto const& facts) { return facts.language == LanguageID::English; }},
        {"11 impaired", [](auto const&, auto const& facts) { return facts.isHearingImpaired; }},
        {"22 matches", [](auto const&, auto const& facts) { return facts.isHashMatch; }},
        {"44 HD", [](auto const&, auto const& facts) { return facts.isHighDefinition; }},
        {"16 trusted", [](auto const&, auto const& facts) { return facts.isFromTrusted; }},
        {"17 rated", [](auto const&, auto const& facts) { return facts.rating.has_value(); }},
        {"49 rates", [](auto const&, auto const& facts) { return facts.framesPerSecond.has_value(); }},
        {"18 episodes", [](auto const&, auto const& facts) { return facts.season && facts.episode; }},
        {"3 discs", [](auto const&, auto const& facts) { return facts.discCount == 3; }},
        {"66 titles", [](auto const&, auto const& facts) { return !facts.title.isEmpty() && facts.title[0] != u'"'; }},
        {"66 dates", [](auto const&, auto const& facts) { return facts.uploaded.isValid() && facts.year; }},
        {"66 ids", [](auto const&, auto const& facts) { return facts.downloadCount && !facts.imdbId.empty(); }},
    };
    for (auto const& [expected, holds] : counts)
        EXPECT_EQ(std::count_if(all.begin(), all.end(),
                                [test = holds](auto const& result) { return test(*result, result->facts); }),
                  std::atoi(expected))
            << expected;

    auto const kingsroad =
        std::find_if(all.begin(), all.end(),
                     [](Result const& result) { return result->facts.serviceId == QStringLiteral("1952848198"); });
    ASSERT_NE(kingsroad, all.end());
    Facts const& facts = (*kingsroad)->facts;
    EXPECT_EQ(facts.title, QStringLiteral("Game of Thrones"));
    EXPECT_EQ(facts.season, 1);
    EXPECT_EQ(facts.episode, 2);
    EXPECT_EQ(facts.imdbId, "1668746");
    EXPECT_EQ(facts.downloadCount, 2339161);
    EXPECT_EQ(facts.rating, 6.9);
    EXPECT_EQ(facts.voteCount, 8);
    EXPECT_EQ(facts.uploaded, QDateTime(QDate(2011, 4, 25), QTime(6, 39, 10), Qt::UTC));
    EXPECT_EQ((*kingsroad)->archiveLink,
              QStringLiteral("https://dl.opensubtitles.org/en/download/src-api/vrf-f5450bba/subad/4167735"));
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
