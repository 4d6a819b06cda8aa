#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/Languages.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTArchiveDownloadRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTAutoSuggestRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTProtocol.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchResultData.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/SearchMetadataFiller.h"

#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"
#include "Subtitles/UseCases/IOnlineDownloaderController.h"

#include "Subtitles/Details/OnlineSearch/RecordedReplies.h"
#include "Subtitles/Fakes/LogCatcher.h"

#include <QNetworkRequest>
#include <QUrl>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{
namespace
{

using Entities::SearchTags;
using Entities::Language::LanguageID;
using testing::ElementsAre;
using Status = UseCases::IOnlineSearchController::Status;
using Tags = std::map<std::string, std::string>;

RESTNetworkConfiguration Configure(char const* baseUrl)
{
    RESTNetworkConfiguration configuration;
    configuration.baseUrl = QString::fromUtf8(baseUrl);
    configuration.userAgent = RESTProtocol::USER_AGENT;
    return configuration;
}

/// What goes onto the wire for a search; empty for one that is refused.
std::string SearchAddress(Tags const& tags, std::set<LanguageID> const& languages = {})
{
    RESTSearchRequest request(Configure("https://REST.example.org"), UseCases::SearchRequest{tags, languages});
    QNetworkRequest const sent = request.CreateRequest();
    EXPECT_EQ(request.GetStatus(), sent.url().isEmpty() ? Status::InvalidRequest : Status::Success);
    return sent.url().toEncoded().toStdString();
}

std::string SuggestAddress(char const* baseUrl, QString const& text)
{
    RESTAutoSuggestRequest request(Configure(baseUrl), text);
    return request.CreateRequest().url().toEncoded().toStdString();
}

TEST(LegacyRequestAddressTest, WritesSearchesAsPathsInTheOrderOfTheirKeys)
{
    std::string const base = "https://rest.example.org/search/";
    EXPECT_EQ(SearchAddress({{SearchTags::TITLE, "  Man of  STEEL "}}), base + "query-man%20of%20steel");
    EXPECT_EQ(
        SearchAddress(
            {{SearchTags::IMDB_ID, "tt0944947"}, {SearchTags::SEASON_NUMBER, "01"}, {SearchTags::EPISODE_NUMBER, "2"}},
            {LanguageID::PortugueseBR}),
        base + "episode-2/imdbid-0944947/season-1/sublanguageid-pob");
    EXPECT_EQ(
        SearchAddress({{SearchTags::MOVIE_HASH_OS, "8E245D9679D31E12"}, {SearchTags::MOVIE_BYTE_SIZE, "12909756"}}),
        base + "moviebytesize-12909756/moviehash-8e245d9679d31e12");
    EXPECT_EQ(SearchAddress({{SearchTags::TITLE, "x"}, {SearchTags::SEASON_NUMBER, "0"}}, {LanguageID::German}),
              base + "query-x/season-0/sublanguageid-ger");
    EXPECT_EQ(SearchAddress({{SearchTags::IMDB_ID, "12345678"}}), base + "imdbid-12345678");
    EXPECT_EQ(SearchAddress({{SearchTags::IMDB_ID, "86998"}}), base + "imdbid-0086998");
}

TEST(LegacyRequestAddressTest, NoCharacterOfATitleLeavesItsPartOfThePath)
{
    std::string const base = "https://rest.example.org/search/query-";
    EXPECT_EQ(SearchAddress({{SearchTags::TITLE, "Tom & Jerry + #Alive?"}}),
              base + "tom%20%26%20jerry%20%2B%20%23alive%3F");
    EXPECT_EQ(SearchAddress({{SearchTags::TITLE, "Face/Off 100% [%2F] a=b:c;d,e@f!"}}),
              base + "face%2Foff%20100%25%20%5B%252f%5D%20a%3Db%3Ac%3Bd%2Ce%40f%21");
    EXPECT_EQ(SearchAddress({{SearchTags::TITLE, "../Ö\\ÀÉ—Ю\n\"<x>`{|}^"}}),
              base + "..%2F%C3%B6%5C%C3%A0%C3%A9%E2%80%94%D1%8E%20%22%3Cx%3E%60%7B%7C%7D%5E");
}

TEST(LegacyRequestAddressTest, RefusesWhatTheServiceCannotSearchBy)
{
    Testing::LogCatcher log;
    std::vector<Tags> const refused = {
        {},
        {{SearchTags::TITLE, "x"}, {SearchTags::RELEASE_YEAR, "2013"}},
        {{SearchTags::TITLE, " \t"}},
        {{SearchTags::IMDB_ID, "0000"}},
        {{SearchTags::IMDB_ID, "12/34"}},
        {{SearchTags::TITLE, "x"}, {SearchTags::SEASON_NUMBER, "-1"}},
        {{SearchTags::MOVIE_HASH_OS, "8e245d9679d31e12"}},
        {{SearchTags::TITLE, "x"}, {SearchTags::MOVIE_BYTE_SIZE, "12909756"}},
        {{SearchTags::MOVIE_HASH_OS, "8e245d9679d31e1"}, {SearchTags::MOVIE_BYTE_SIZE, "12909756"}},
    };
    for (Tags const& tags : refused)
        EXPECT_EQ(SearchAddress(tags), "") << testing::PrintToString(tags);
    EXPECT_EQ(log.lines, std::vector<std::string>(refused.size(),
                                                  "RESTRequest.cpp: Invalid or unsupported search tags were provided"));
}

TEST(LegacyRequestAddressTest, SuggestionsComeFromTheWebSiteOfTheService)
{
    EXPECT_EQ(
        SuggestAddress("https://Rest.example.org", " Ö & Tom+Jerry 50%#? "),
        "https://www.example.org/libs/suggest.php?format=json3&moviename=%C3%B6%20%26%20tom%2Bjerry%2050%25%23%3F");
    EXPECT_EQ(SuggestAddress("http://127.0.0.1:8080/os", "up"),
              "http://127.0.0.1:8080/os/libs/suggest.php?format=json3&moviename=up");
    EXPECT_EQ(SuggestAddress("https://rest.example.org", " \n"), "");
}

TEST(LegacyRequestAddressTest, SendsTheLinkOfAnArchiveAsItWasGiven)
{
    auto const result = std::make_shared<RESTSearchResultData>();
    result->archiveLink =
        QStringLiteral("https://dl.example.org/en/download/src-api/vrf-19dE/sid-aBcD%2F,Q/subad/4167735");
    RESTArchiveDownloadRequest request(Configure("https://rest.example.org"), result, "folder");
    QNetworkRequest const sent = request.CreateRequest();
    EXPECT_EQ(sent.url().toEncoded().toStdString(), result->archiveLink.toStdString());
    EXPECT_EQ(sent.header(QNetworkRequest::UserAgentHeader).toString(), QStringLiteral("Korvex_Videoconverter"));
    EXPECT_EQ(request.GetType(), INetworkOperation::Type::HttpGet);

    for (char const* const link : {"", "file:///etc/passwd", "ftp://dl.example.org/x", "/subad/1", "https:///subad/1"})
    {
        result->archiveLink = QString::fromLatin1(link);
        RESTArchiveDownloadRequest refused(Configure("https://rest.example.org"), result, "folder");
        EXPECT_TRUE(refused.CreateRequest().url().isEmpty()) << link;
        EXPECT_EQ(refused.GetStatus(), Status::InvalidRequest) << link;
    }
    RESTArchiveDownloadRequest foreign(Configure("https://rest.example.org"),
                                       std::make_shared<UseCases::SearchResult>(), "folder");
    EXPECT_TRUE(foreign.CreateRequest().url().isEmpty());
    EXPECT_EQ(foreign.GetStatus(), Status::InvalidRequest);
}

TEST(LegacyRequestAddressTest, AsksForOneLanguageAtATime)
{
    using Set = std::set<LanguageID>;
    auto const split = [](Set const& languages)
    {
        std::vector<Set> parts;
        for (auto const& part : RESTProtocol::SplitLanguageRequests({{{SearchTags::TITLE, "x"}}, languages}))
            parts.push_back(part.languages);
        return parts;
    };
    EXPECT_THAT(split({LanguageID::None}), ElementsAre(Set{}));
    auto const& all = Entities::Language::GetAllLanguages();
    EXPECT_THAT(split(Set(all.begin(), all.end())), ElementsAre(Set{}));
    EXPECT_EQ(split(Set(all.begin() + 1, all.end())).size(), 79u);
}

TEST(LegacyRequestAddressTest, KnowsTheServicesOwnLetters)
{
    EXPECT_EQ(Languages::GetLetterCode(LanguageID::None), QString());
    EXPECT_EQ(Languages::GetLanguage(QStringLiteral("POB")), LanguageID::PortugueseBR);
    EXPECT_EQ(Languages::GetLanguage(QStringLiteral("xxx")), LanguageID::None);
    EXPECT_EQ(Languages::GetLanguage(QString()), LanguageID::None);

    if (!Korvex::Testing::HasReplies())
        GTEST_SKIP() << Korvex::Testing::NO_REPLIES;
    auto const rows = Korvex::Testing::LoadReply("languages.tsv").trimmed().split('\n').mid(1);
    EXPECT_EQ(rows.size(), 80);
    int number = 0;
    for (QByteArray const& row : rows)
    {
        QString const code = QString::fromUtf8(row.split('\t').value(1));
        auto const language = static_cast<LanguageID>(++number);
        EXPECT_EQ(Languages::GetLetterCode(language), code);
        EXPECT_EQ(Languages::GetLanguage(code), language);
    }
}

class FakeFingerprints final : public UseCases::IOnlineDownloaderController
{
public:
    std::optional<UseCases::MediaFingerprint> DetermineFingerprint(ioPath const& path) const override
    {
        return path == "film.mkv" ? std::make_optional(UseCases::MediaFingerprint{"8e245d9679d31e12", 12909756})
                                  : std::nullopt;
    }
};

TEST(LegacyRequestAddressTest, AddsFingerprintsToQueries)
{
    SearchMetadataFiller filler(std::make_shared<FakeFingerprints>());
    UseCases::SearchRequest request{{{SearchTags::TITLE, "x"}}, {}};
    Entities::SubtitleSearchMediaInfoSettings media;
    media.path = "short.mkv";
    filler.FillMetadata(media, request);
    EXPECT_EQ(request.tags.size(), 1u);
    media.path = "film.mkv";
    filler.FillMetadata(media, request);
    EXPECT_EQ(SearchAddress(request.tags),
              "https://rest.example.org/search/moviebytesize-12909756/moviehash-8e245d9679d31e12/query-x");
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
