#include "TestedEngine.h"

#include "Support/OnlineServer/OnlineServer.h"

#include "Subtitles/Details/OnlineSearch/NetworkManagerQt.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTRequest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QNetworkRequest>
#include <QTest>
#include <QThread>
#include <QUrl>
#include <QUrlQuery>

#include <algorithm>
#include <deque>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <random>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{
namespace
{

using namespace std::chrono_literals;

using Status = UseCases::IOnlineSearchController::Status;
using Korvex::Testing::HttpReply;
using Korvex::Testing::HttpRequest;

/// How one request goes: what the server does, and what has to be heard of it.
struct Fate
{
    QByteArray path;
    std::optional<Status> outcome; ///< none: nothing at all is heard, the engine stays busy until it is destroyed
    HttpReply reply;
    std::string words = {}; ///< in the engine's report when the failure is told
};

HttpReply MakeGood(int delayMs = 0, int pieceBytes = 0, int dropAfterBytes = -1)
{
    HttpReply reply(200, R"([{"title":"up"}])");
    reply.delayMs = delayMs;
    reply.pieceBytes = pieceBytes;
    reply.pauseMs = pieceBytes > 0 ? 1 : 0;
    reply.dropAfterBytes = dropAfterBytes;
    return reply;
}

std::vector<Fate> MakeFates()
{
    QByteArray const refusal = R"({"message":"No"})";
    return {{"/at-once", Status::Success, MakeGood()},
            {"/late", Status::Success, MakeGood(2)},
            {"/later", Status::Success, MakeGood(9)},
            {"/in-pieces", Status::Success, MakeGood(0, 5)},
            {"/broken", Status::ServerError, HttpReply(200, "[{")},
            {"/empty", Status::ServerError, HttpReply(200)},
            {"/page", Status::ServerError, HttpReply(200, "<html><title>Down</title></html>"), "Down"},
            {"/drop", Status::ServerError, MakeGood(0, 0, 3)},
            {"/401", Status::NetworkError, HttpReply(401, refusal), "No"},
            {"/404", Status::ServerError, HttpReply(404, refusal), "No"},
            {"/429", Status::NetworkError, HttpReply(429, refusal), "No"},
            {"/503", Status::ServerError, HttpReply(503, refusal), "No"},
            {"/refused", Status::ServerError, HttpReply(0)},
            {"/invalid", Status::InvalidRequest, HttpReply(0)},
            {"/silence", std::nullopt, MakeGood(600'000)}};
}

constexpr int GOOD_FATES = 4; ///< the first ones

class FatedRequest final : public RESTRequest
{
public:
    FatedRequest(Fate const& fate, QString const& baseUrl)
        : m_path(QString::fromLatin1(fate.path)),
          m_baseUrl(m_path == QLatin1String("/refused") ? QStringLiteral("http://127.0.0.1:9") : baseUrl)
    {
    }

    QUrl CreateQuery(QString const& baseUrl) override { return QUrl(baseUrl + m_path); }
    QNetworkRequest CreateRequest() override
    {
        if (m_path == QLatin1String("/invalid"))
            Fail(Status::InvalidRequest, {});
        return QNetworkRequest(CreateQuery(m_baseUrl));
    }
    Status ParseJsonReply(QJsonDocument const&) override { return Status::Success; }
    void NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer) override
    {
        observer.OnAutoSuggestResults({m_path});
    }

private:
    QString const m_path;
    QString const m_baseUrl;
};

/// What the whole run counts, so that it is seen to have tried everything.
using Counts = std::map<std::string, int>;

/// One engine after the other, and what still has to be heard of the current one.
class Player final : public UseCases::IOnlineSearchControllerObserver
{
public:
    Player(std::shared_ptr<INetworkManager> network, std::vector<Fate> fates, QString baseUrl, std::mt19937& random,
           Counts& counts)
        : m_network(std::move(network)),
          m_fates(std::move(fates)),
          m_baseUrl(std::move(baseUrl)),
          m_random(random),
          m_counts(counts)
    {
    }

    /// One random step.
    void Act()
    {
        if (m_engine == nullptr)
        {
            m_engine = std::make_unique<Korvex::Testing::TestedEngine>(m_network);
            m_engine->RegisterEventHandler(this);
        }
        CheckIdle();
        switch (Draw(m_isHanging ? 6 : 12))
        {
        case 0:
            return Destroy();
        case 1:
        case 2:
            return Cancel();
        default:
            return Start();
        }
    }

    /// What is heard when nothing is done any more. Engines that wait for ever are destroyed.
    void Settle()
    {
        if (m_isHanging)
            return Destroy();
        EXPECT_TRUE(QTest::qWaitFor([this] { return m_engine == nullptr || !m_engine->HasPendingRequest(); }));
        QTest::qWait(2);
        CheckIdle();
    }

    void Destroy()
    {
        if (m_engine == nullptr)
            return;
        ++m_counts[m_engine->HasPendingRequest() ? "destroyed running" : "destroyed idle"];
        m_expected.clear();
        m_isHanging = false;
        QElapsedTimer timer;
        timer.start();
        m_engine.reset();
        EXPECT_LT(timer.elapsed(), 4000) << "an event loop that is free ends at once";
    }

    void OnSearchResults(std::vector<std::shared_ptr<UseCases::SearchResult>> const&) override { Hear("results"); }
    void OnSubtitlesDownloaded(std::shared_ptr<UseCases::SearchResult> const&, ioPath const&) override { Hear("file"); }
    void OnAutoSuggestResults(std::vector<QString> const& suggestions) override
    {
        Hear(suggestions.at(0).toStdString());
    }
    void OnOperationFinished() override
    {
        ++m_counts["finished"];
        Hear("finished");
    }
    void OnOperationFailed(Status status, QString const&) override
    {
        ++m_counts["failed"];
        auto const report = m_engine->GetServerReport();
        Hear(DescribeFailure(status, report.httpStatus, report.message.toStdString()));
    }

private:
    int Draw(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }

    /// Half of them good ones, or hardly any operation would come to its end.
    Fate DrawFate()
    {
        auto const count = static_cast<int>(m_fates.size());
        return m_fates[static_cast<std::size_t>(Draw(Draw(2) == 0 ? count : std::min(count, GOOD_FATES)))];
    }

    void Start()
    {
        std::vector<Fate> fates(1 + static_cast<std::size_t>(Draw(3)));
        for (auto& fate : fates)
            fate = DrawFate();
        bool const isBusy = m_engine->HasPendingRequest();
        m_engine->next.clear();
        for (Fate const& fate : fates)
            m_engine->next.push_back(std::make_shared<FatedRequest>(fate, m_baseUrl));
        EXPECT_EQ(m_engine->StartSearch({}), isBusy ? Status::Busy : Status::Success);
        if (isBusy)
        {
            ++m_counts["rejected"];
            return;
        }
        ++m_counts["started"];
        EXPECT_TRUE(m_expected.empty());
        Expect(fates);
    }

    static std::string DescribeFailure(Status status, int httpStatus, std::string const& words)
    {
        return "failed " + std::to_string(status) + ' ' + std::to_string(httpStatus) + ' ' + words;
    }

    void Expect(std::vector<Fate> const& fates)
    {
        for (auto const& fate : fates)
        {
            m_isHanging = !fate.outcome;
            if (m_isHanging)
                return;
            if (fate.outcome != Status::Success)
            {
                m_expected.push_back(DescribeFailure(*fate.outcome, fate.reply.status, fate.words));
                return;
            }
            m_expected.push_back(fate.path.toStdString());
        }
        m_expected.emplace_back("finished");
    }

    void Cancel()
    {
        bool const isBusy = m_engine->HasPendingRequest();
        EXPECT_EQ(m_engine->CancelOperation(), isBusy);
        m_expected.clear();
        if (isBusy)
            ++m_counts["cancelled"];
    }

    void CheckIdle()
    {
        bool const isIdle = m_engine != nullptr && !m_engine->HasPendingRequest();
        EXPECT_TRUE(!isIdle || m_expected.empty()) << "never told: " << m_expected.front();
    }

    void Hear(std::string const& event)
    {
        EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
        if (m_expected.empty() || m_expected.front() != event)
        {
            ADD_FAILURE() << "heard \"" << event << "\" in place of "
                          << (m_expected.empty() ? "nothing" : m_expected.front());
            return;
        }
        m_expected.pop_front();
        React();
    }

    /// What observers do from inside a notification.
    void React()
    {
        switch (Draw(20))
        {
        case 0:
            ++m_counts["destroyed from within"];
            return Destroy();
        case 1:
            return Cancel();
        case 2:
            return Start();
        default:
            return;
        }
    }

    std::shared_ptr<INetworkManager> const m_network;
    std::vector<Fate> const m_fates;
    QString const m_baseUrl;
    std::mt19937& m_random;
    Counts& m_counts;
    std::unique_ptr<Korvex::Testing::TestedEngine> m_engine;
    std::deque<std::string> m_expected;
    bool m_isHanging = false; ///< a request that the server never answers is queued
};

int ReadNumber(char const* variable, int fallback)
{
    return qEnvironmentVariableIsSet(variable) ? qEnvironmentVariableIntValue(variable) : fallback;
}

/// The number of steps and the seed can be set from outside.
TEST(EngineStressTest, EveryOutcomeIsToldOnceAndACancelledOneNever)
{
    int argumentCount = 0;
    QCoreApplication const application(argumentCount, nullptr);
    int const stepCount = ReadNumber("KORVEX_STRESS_STEPS", 5000);
    int const seed = ReadNumber("KORVEX_STRESS_SEED", static_cast<int>(std::random_device()() & 0xFFFFFF));
    SCOPED_TRACE("KORVEX_STRESS_SEED=" + std::to_string(seed));

    std::mt19937 random(static_cast<std::mt19937::result_type>(seed));
    std::vector<Fate> const fates = MakeFates();
    Korvex::Testing::OnlineServer const server(
        [&fates](HttpRequest const& request)
        {
            return std::find_if(fates.begin(), fates.end(),
                                [&](Fate const& fate) { return fate.path == request.target; })
                ->reply;
        });
    // Engines are many, the network manager is one; the impatient one is for time-outs alone, so that a machine under
    // load makes no others.
    auto const patient = std::make_shared<NetworkManagerQt>(NetworkLimits{120s}, PostBody::Form);
    auto const impatient = std::make_shared<NetworkManagerQt>(NetworkLimits{15ms}, PostBody::Form);
    std::vector<Fate> const timeOut{{"/silence", Status::NoConnection, HttpReply(0)}};
    Counts counts;
    std::vector<std::unique_ptr<Player>> players;
    for (int i = 0; i < 5; ++i)
        players.push_back(std::make_unique<Player>(patient, fates, server.GetUrl(), random, counts));
    players.push_back(std::make_unique<Player>(impatient, timeOut, server.GetUrl(), random, counts));

    std::uniform_int_distribution<std::size_t> anyPlayer(0, players.size() - 1);
    std::uniform_int_distribution<int> pauseMs(-3, 2);
    for (int step = 0; step < stepCount && !testing::Test::HasFailure(); ++step)
    {
        players[anyPlayer(random)]->Act();
        if (int const pause = pauseMs(random); pause > 0)
            QTest::qWait(pause);
        else
            QCoreApplication::processEvents();
    }
    for (auto const& player : players)
        player->Settle();
    for (auto const& player : players)
        player->Destroy();

    EXPECT_EQ(patient.use_count(), 1 + 5);
    for (auto const& [what, count] : counts)
        std::cout << what << ' ' << count << '\n';
    EXPECT_EQ(counts.size(), 8U) << "something was never tried";
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
