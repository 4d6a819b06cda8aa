#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/Languages.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTNetworkConfiguration.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTRequestFactory.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchResultData.h"

#include "Subtitles/Details/OnlineSearch/INetworkOperation.h"
#include "Subtitles/Entities/SearchTags.h"

#include "Core/ioPath.h"

#include <gtest/gtest.h>

#include <QNetworkRequest>
#include <QUrl>
#include <QUrlQuery>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

namespace
{

using Entities::SearchTags;
using Entities::Language::LanguageID;
using Status = INetworkOperation::Status;
using Tags = std::map<std::string, std::string>;
using LanguageSet = std::set<LanguageID>;

RESTNetworkConfiguration MakeConfiguration()
{
    RESTNetworkConfiguration configuration;
    configuration.baseUrl = QStringLiteral("https://Subtitles.Example/api/V1");
    configuration.apiKey = "SecretKey";
    return configuration;
}

/// What goes over the wire after the base address; the text of the failure where nothing does.
std::string AskFor(std::shared_ptr<INetworkOperation> const& operation)
{
    QNetworkRequest const request = operation->CreateRequest();
    if (operation->GetStatus() != Status::Success)
    {
        EXPECT_EQ(operation->GetStatus(), Status::InvalidRequest);
        EXPECT_TRUE(request.url().isEmpty());
        return operation->GetError().toStdString();
    }
    std::string const base = "https://subtitles.example/api/v1/";
    std::string const url = request.url().toEncoded().toStdString();
    EXPECT_EQ(url.substr(0, base.size()), base);
    EXPECT_EQ(request.rawHeader("Api-Key"), "SecretKey");
    EXPECT_EQ(request.rawHeader("Accept"), "application/json");
    EXPECT_EQ(request.header(QNetworkRequest::ContentTypeHeader).toByteArray(), "application/json");
    return url.substr(base.size());
}

std::string Search(Tags const& tags, LanguageSet const& languages = {})
{
    UseCases::SearchRequest const request{tags, languages};
    return AskFor(RESTRequestFactory().CreateSearchRequest(MakeConfiguration(), request));
}

std::string Suggest(char const* text)
{
    return AskFor(RESTRequestFactory().CreateAutoSuggestRequest(MakeConfiguration(), QString::fromUtf8(text)));
}

TEST(OpenSubtitlesVer1, AsksForSubtitles)
{
    EXPECT_EQ(Search({{SearchTags::TITLE, "Man of Steel"}}, {LanguageID::French, LanguageID::English}),
              "subtitles?languages=en,fr&query=man%20of%20steel");
    EXPECT_EQ(Search({{SearchTags::TITLE, "The Fall"},
                      {SearchTags::IMDB_ID, "4516230"},
                      {SearchTags::SEASON_NUMBER, "3"},
                      {SearchTags::EPISODE_NUMBER, "10"}},
                     {LanguageID::PortugueseBR}),
              "subtitles?episode_number=10&imdb_id=4516230&languages=pt-br&query=the%20fall&season_number=3");
    EXPECT_EQ(Search({{SearchTags::TITLE, "ÄON 007"}, {SearchTags::SEASON_NUMBER, "0"}}),
              "subtitles?query=%C3%A4on%20007&season_number=0");
    EXPECT_EQ(Search({{SearchTags::IMDB_ID, "110912"}}, {LanguageID::None, LanguageID::Urdu, LanguageID::Uzbek}),
              "subtitles?imdb_id=110912&languages=ur,ur");
    for (std::string const& tag : {SearchTags::MOVIE_HASH_OS, SearchTags::RELEASE_YEAR, std::string("OTHER")})
        EXPECT_EQ(Search({{tag, "1"}, {SearchTags::TITLE, "x"}}), "Invalid or unsupported search tags were provided");
}

TEST(OpenSubtitlesVer1, NoValueBreaksOutOfItsParameter)
{
    EXPECT_EQ(Search({{SearchTags::TITLE, "Tom & Jerry&page=9#top\r\nApi-Key: x"}}),
              "subtitles?query=tom%20jerry%20page=9%20top%20api-key:%20x");
    EXPECT_EQ(Search({{SearchTags::IMDB_ID, "tt12&order_by=x"}, {SearchTags::SEASON_NUMBER, "1#"}}),
              "subtitles?imdb_id=tt12%20order_by=x&season_number=1");
    EXPECT_EQ(Search({{SearchTags::TITLE, " \t"}, {SearchTags::EPISODE_NUMBER, "2"}}), "subtitles?episode_number=2");
    EXPECT_EQ(Search({{SearchTags::TITLE, "&#"}, {SearchTags::IMDB_ID, " "}}, {LanguageID::English}),
              "Empty user query");
    EXPECT_EQ(Suggest("AC/DC? &x=%1 #1;y"), "features?query=ac/dc?%20x=%251%201%20y");
    EXPECT_EQ(Suggest("Tom %26 Jerry + Co"), "features?query=tom%20%26%20jerry%20+%20co");
    EXPECT_EQ(Suggest("100% Wolf"), "features?query=100%25%20wolf");
    for (char const* nothing : {"", "  ", "\n", "&#"})
        EXPECT_EQ(Suggest(nothing), "Empty user query");
}

TEST(OpenSubtitlesVer1, AsksForALinkByFormAndFetchesItAsItWasGiven)
{
    RESTNetworkConfiguration const configuration = MakeConfiguration();
    RESTRequestFactory const factory;
    auto const result = std::make_shared<RESTSearchResultData>();
    EXPECT_EQ(AskFor(factory.CreateDownloadRequest(configuration, result)), "Invalid file_id param");
    auto const foreign = std::make_shared<UseCases::SearchResult>();
    EXPECT_EQ(AskFor(factory.CreateDownloadRequest(configuration, foreign)), "Invalid file_id param");
    EXPECT_EQ(AskFor(factory.CreateUploadFileRequest(configuration, foreign, {})), "No download link");
    EXPECT_EQ(AskFor(factory.CreateUploadFileRequest(configuration, result, {})), "No download link");

    result->fileId = 2147483647;
    auto const linkRequest = factory.CreateDownloadRequest(configuration, result);
    EXPECT_EQ(AskFor(linkRequest), "download");
    EXPECT_EQ(linkRequest->GetType(), INetworkOperation::Type::HttpPost);
    EXPECT_EQ(linkRequest->GetQueryParams().toString(QUrl::FullyDecoded), QStringLiteral("file_id=2147483647"));

    for (auto const& [link, mayHaveKey] :
         std::map<QByteArray, bool>{{"https://subtitles.example/Download/A%2FbC?Sig=X%2By&E=1", true},
                                    {"https://cdn.example/Download/AbC", false},
                                    {"https://subtitles.example:8443/AbC", false},
                                    {"http://subtitles.example/AbC", false}})
    {
        result->link = QUrl::fromEncoded(link);
        auto const fetch = factory.CreateUploadFileRequest(configuration, result, "/nowhere");
        QNetworkRequest const request = fetch->CreateRequest();
        EXPECT_EQ(request.url().toEncoded(), link);
        EXPECT_EQ(request.hasRawHeader("Api-Key"), mayHaveKey) << link.toStdString();
        EXPECT_EQ(fetch->GetType(), INetworkOperation::Type::HttpGet);
        EXPECT_TRUE(fetch->GetQueryParams().isEmpty());
    }
}

TEST(OpenSubtitlesVer1, KnowsTheServicesLanguageCodes)
{
    for (LanguageID const language : Entities::Language::GetAllLanguages())
    {
        QString const code = Languages::GetLetterCode(language);
        LanguageID const expected = language == LanguageID::Uzbek ? LanguageID::Urdu : language;
        EXPECT_EQ(Languages::GetLanguage(code.toUpper()), expected) << code.toStdString();
    }
    EXPECT_TRUE(Languages::GetLetterCode(LanguageID::None).isEmpty());
    EXPECT_EQ(Languages::GetLanguage(QStringLiteral("uz")), LanguageID::Uzbek);
    EXPECT_EQ(Languages::GetLanguage(QStringLiteral("?")), LanguageID::None);
}

} // namespace

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
