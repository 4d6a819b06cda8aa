#include "FakeNetwork.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTRequest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{
namespace
{

class TestedRequest final : public RESTRequest
{
public:
    QNetworkRequest CreateRequest() override { return {}; }
    QUrl CreateQuery(QString const&) override { return {}; }
    void NotifySuccess(UseCases::IOnlineSearchControllerObserver&) override {}
    Status ParseJsonReply(QJsonDocument const& document) override
    {
        parsed = document;
        return document.array().contains(QJsonValue(7)) ? Fail(Status::ServerError, QStringLiteral("seven"))
                                                        : Status::Success;
    }

    QJsonDocument parsed;
};

class RESTRequestTest : public testing::Test
{
protected:
    /// Returns the log.
    std::string Parse(QByteArray const& body)
    {
        std::atomic<int> aliveCount{0};
        Korvex::Testing::FakeReply reply(QNetworkRequest(), aliveCount);
        reply.SetBody(body);
        testing::internal::CaptureStderr();
        auto const status = request.ParseReply(reply);
        EXPECT_EQ(status, request.GetStatus());
        return testing::internal::GetCapturedStderr();
    }

    TestedRequest request;
};

TEST_F(RESTRequestTest, ReadsJsonAndNothingElse)
{
    using Status = INetworkOperation::Status;
    EXPECT_EQ(Parse("null"), "");
    EXPECT_TRUE(request.parsed.isArray());
    EXPECT_EQ(request.GetStatus(), Status::Success);

    EXPECT_THAT(Parse(""), testing::HasSubstr("Empty server response"));
    EXPECT_EQ(request.GetStatus(), Status::ServerError);
    EXPECT_EQ(request.GetError(), QString());

    EXPECT_THAT(Parse("[1,"), testing::ContainsRegex("RESTRequest.cpp.*Invalid server JSON: [0-9]+ [a-z]"));
    EXPECT_EQ(request.GetStatus(), Status::ServerError);
    EXPECT_NE(request.GetError(), QString());

    Parse("[7]");
    EXPECT_EQ(request.GetStatus(), Status::ServerError);
    EXPECT_EQ(request.GetError(), QStringLiteral("seven"));
    Parse("[]");
    EXPECT_EQ(request.GetStatus(), Status::Success) << "an operation may be asked again";
    EXPECT_EQ(request.GetError(), QString());
}

TEST_F(RESTRequestTest, LowersTheTextOfAnAddressAndNotItsBytes)
{
    auto const lower = [](char const* url)
    { return RESTRequest::DowncaseUrl(QUrl(QString::fromUtf8(url))).toEncoded().toStdString(); };
    EXPECT_EQ(lower("HTTPS://Host/API/Query-Tom%20%26%20Jerry"), "https://host/api/query-tom%20%26%20jerry");
    EXPECT_EQ(lower("https://h/p?Query=%C3%96L&B=%2FX"), "https://h/p?query=%C3%B6l&b=%2Fx");
    EXPECT_EQ(lower("https://h/\xC3\x96%25%23%2B%3F"), "https://h/%C3%B6%25%23%2B%3F");
    EXPECT_TRUE(RESTRequest::DowncaseUrl(QUrl()).isEmpty());
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
