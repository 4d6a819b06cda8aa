#include "FakeNetwork.h"
#include "TestedEngine.h"

#include "Subtitles/Details/OnlineSearch/INetworkOperation.h"

#include "Subtitles/Entities/SearchTags.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <mutex>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{
namespace
{

using Status = UseCases::IOnlineSearchController::Status;
using Korvex::Testing::FakeNetworkManager;
using Korvex::Testing::FakeReply;
using Korvex::Testing::TestedEngine;
using testing::ElementsAre;
using testing::IsEmpty;

using Reply = QNetworkReply;

constexpr int AT_ONCE = -1;

/// The text of everything that happened, from both threads, in order.
class Diary
{
public:
    void Write(std::string line)
    {
        std::lock_guard const lock(m_mutex);
        m_lines.push_back(std::move(line));
    }
    [[nodiscard]] std::vector<std::string> Take()
    {
        std::lock_guard const lock(m_mutex);
        return std::exchange(m_lines, {});
    }

private:
    std::mutex m_mutex;
    std::vector<std::string> m_lines;
};

class FakeOperation final : public INetworkOperation
{
public:
    FakeOperation(Diary& diary, std::string name) : m_diary(diary), m_name(std::move(name)) {}

    QNetworkRequest CreateRequest() override
    {
        Note("request");
        status = builtStatus;
        QNetworkRequest request(QUrl(QString::fromStdString("http://127.0.0.1/" + m_name)));
        request.setRawHeader("Api-Key", "SecretKey");
        return request;
    }
    Status ParseReply(QNetworkReply& reply) override
    {
        Note("parse " + reply.readAll().toStdString());
        return status = parsedStatus;
    }
    [[nodiscard]] QUrlQuery GetQueryParams() const override
    {
        Note("form");
        return {};
    }
    [[nodiscard]] Type GetType() const override
    {
        Note("type");
        return type;
    }
    [[nodiscard]] Status GetStatus() const override
    {
        Note("status");
        return status;
    }
    [[nodiscard]] QString GetError() const override { return QStringLiteral("error of ") + m_name.c_str(); }
    void NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer) override
    {
        observer.OnAutoSuggestResults({QString::fromStdString(m_name)});
    }

    Type type = Type::HttpGet;
    Status status = Status::Success;
    Status builtStatus = Status::Success;
    Status parsedStatus = Status::Success;
    bool isNoted = false;

private:
    void Note(std::string const& call) const
    {
        if (isNoted)
            m_diary.Write(m_name + ": " + call);
    }

    Diary& m_diary;
    std::string m_name;
};

class RecordingObserver final : public UseCases::IOnlineSearchControllerObserver
{
public:
    RecordingObserver(Diary& diary, std::string name) : m_diary(diary), m_name(std::move(name)) {}

    void OnSearchResults(std::vector<std::shared_ptr<UseCases::SearchResult>> const&) override { Note("results"); }
    void OnAutoSuggestResults(std::vector<QString> const& suggestions) override
    {
        Note("hears of " + suggestions.at(0).toStdString());
    }
    void OnSubtitlesDownloaded(std::shared_ptr<UseCases::SearchResult> const&, ioPath const&) override { Note("file"); }
    void OnOperationFinished() override { Note("finished"); }
    void OnOperationFailed(Status status, QString const& message) override
    {
        Note("failed " + std::to_string(status) + (message.isEmpty() ? "" : " " + message.toStdString()));
    }

    std::function<void(std::string const& event)> reaction; ///< called once

private:
    void Note(std::string const& event)
    {
        EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
        m_diary.Write(m_name + " " + event);
        if (reaction)
            std::exchange(reaction, nullptr)(event);
    }

    Diary& m_diary;
    std::string m_name;
};

class SearchEngineTest : public testing::Test
{
protected:
    void Create(FakeNetworkManager::Script script)
    {
        network = std::make_shared<FakeNetworkManager>(std::move(script));
        engine = std::make_unique<TestedEngine>(network);
        engine->RegisterEventHandler(&first);
        engine->RegisterEventHandler(&second);
    }

    std::shared_ptr<FakeOperation> Queue(std::string name)
    {
        auto operation = std::make_shared<FakeOperation>(diary, std::move(name));
        engine->next.push_back(operation);
        return operation;
    }

    [[nodiscard]] bool WaitUntilIdle()
    {
        return QTest::qWaitFor([this] { return engine == nullptr || !engine->HasPendingRequest(); });
    }

    /// Runs one operation and returns what was heard until the engine was idle and its worker had nothing left to say.
    std::vector<std::string> RunOne()
    {
        EXPECT_EQ(engine->StartSearch({}), Status::Success);
        EXPECT_TRUE(WaitUntilIdle());
        QTest::qWait(5);
        return diary.Take();
    }

    int argumentCount = 0;
    QCoreApplication application{argumentCount, nullptr};
    Diary diary;
    RecordingObserver first{diary, "first"};
    RecordingObserver second{diary, "second"};
    std::shared_ptr<FakeNetworkManager> network;
    std::unique_ptr<TestedEngine> engine;
};

FakeNetworkManager::Script EndLater(int delayMs, Reply::NetworkError error = Reply::NoError)
{
    return [delayMs, error](FakeReply& reply)
    {
        reply.SetBody("[]");
        if (delayMs == AT_ONCE)
            return reply.BeOver(error);
        QTimer::singleShot(delayMs, &reply, [&reply, error] { reply.End(error); });
    };
}

TEST_F(SearchEngineTest, RunsTheOperationsOneAfterTheOtherInAFixedOrderOfCalls)
{
    Create(EndLater(1));
    auto const link = Queue("link");
    auto const file = Queue("file");
    link->type = INetworkOperation::Type::HttpPost;
    link->isNoted = file->isNoted = true;

    EXPECT_THAT(RunOne(), ElementsAre("link: request", "link: status", "link: type", "link: form", "link: parse []",
                                      "link: status", "first hears of link", "second hears of link", //
                                      "file: request", "file: status", "file: type", "file: parse []", "file: status",
                                      "first hears of file", "second hears of file", //
                                      "first finished", "second finished"));
    EXPECT_EQ(network->aliveReplyCount, 0);
}

TEST_F(SearchEngineTest, StartsOnlyWhatItCan)
{
    Create(EndLater(20));
    EXPECT_FALSE(engine->CancelOperation());
    EXPECT_EQ(engine->DownloadSubtitles({}, {}), Status::Success);
    EXPECT_EQ(engine->AutoSuggest("title", {}), Status::UnsupportedSearch);
    EXPECT_FALSE(engine->HasPendingRequest());

    Queue("a");
    EXPECT_EQ(engine->AutoSuggest(Entities::SearchTags::TITLE, {}), Status::Success);
    Queue("rejected");
    EXPECT_EQ(engine->AutoSuggest("title", {}), Status::Busy);
    EXPECT_EQ(engine->StartSearch({}), Status::Busy);
    EXPECT_EQ(engine->DownloadSubtitles({nullptr}, {}), Status::Busy);
    EXPECT_EQ(engine->next.size(), 1U);
    ASSERT_TRUE(WaitUntilIdle());
}

TEST_F(SearchEngineTest, SendsNothingForWhatCannotBeAsked)
{
    Create(EndLater(1));
    network->isAccessible = false;
    Queue("b")->builtStatus = Status::InvalidRequest;
    EXPECT_THAT(RunOne(), ElementsAre("first failed 3", "second failed 3"));
    EXPECT_EQ(network->requestCount, 0);

    Create(nullptr);
    Queue("c");
    EXPECT_THAT(RunOne(), ElementsAre("first failed 1", "second failed 1"));
}

TEST_F(SearchEngineTest, ReportsEachTransportErrorOnceWhetherItComesAtOnceOrLater)
{
    std::vector<std::pair<Status, std::vector<Reply::NetworkError>>> const kinds{
        {Status::NoConnection,
         {Reply::HostNotFoundError, Reply::TimeoutError, Reply::TemporaryNetworkFailureError,
          Reply::NetworkSessionFailedError, Reply::UnknownNetworkError}},
        {Status::ServerError,
         {Reply::ConnectionRefusedError, Reply::RemoteHostClosedError, Reply::ContentNotFoundError,
          Reply::ContentGoneError, Reply::InternalServerError, Reply::OperationNotImplementedError,
          Reply::ServiceUnavailableError, Reply::UnknownServerError}},
        {Status::NetworkError,
         {Reply::SslHandshakeFailedError, Reply::TooManyRedirectsError, Reply::InsecureRedirectError,
          Reply::ContentAccessDenied, Reply::AuthenticationRequiredError, Reply::UnknownContentError,
          Reply::ProtocolUnknownError, Reply::ProxyNotFoundError}}};
    for (auto const& [status, errors] : kinds)
        for (auto const error : errors)
            for (int const delayMs : {AT_ONCE, 0})
            {
                SCOPED_TRACE(error);
                Create(EndLater(delayMs, error));
                Queue("a");
                Queue("b");
                auto const failed = "failed " + std::to_string(status);
                EXPECT_THAT(RunOne(), ElementsAre("first " + failed, "second " + failed));
                EXPECT_EQ(network->aliveReplyCount, 0);
                EXPECT_EQ(network->requestCount, 1);
            }
    Create(EndLater(AT_ONCE));
    Queue("over without an error");
    EXPECT_EQ(RunOne().size(), 4U);
}

TEST_F(SearchEngineTest, TheServersWordsAreThereWhenTheFailureIsTold)
{
    using Reason = UseCases::ServerReport::Reason;
    QByteArray body;
    QByteArray quota = "5";
    UseCases::ServerReport told;
    auto const run = [&](int httpStatus, Reply::NetworkError error, Status parsed)
    {
        network->SetScript(
            [&, httpStatus, error](FakeReply& reply)
            {
                reply.SetBody(body, httpStatus);
                reply.SetHeader("Download-Quota", quota);
                QTimer::singleShot(0, &reply, [&reply, error] { reply.End(error); });
            });
        told = {};
        Queue("a")->parsedStatus = parsed;
        first.reaction = [&](auto&) { told = engine->GetServerReport(); };
        RunOne();
    };

    Create(nullptr);
    body = R"({"message":"no more for SecretKey"})";
    run(406, Reply::UnknownContentError, Status::Success);
    EXPECT_EQ(told.reason, Reason::QuotaUsedUp);
    EXPECT_EQ(told.message, QStringLiteral("no more for ***"));
    run(200, Reply::NoError, Status::Success);
    EXPECT_EQ(told.message, QString()) << "what was understood is not read again";
    EXPECT_EQ(told.remainingDownloads, 5);

    // A page in place of what was asked for.
    body = "<html><title>Maintenance</title>";
    run(200, Reply::NoError, Status::ServerError);
    EXPECT_EQ(told.message, QStringLiteral("Maintenance"));
    EXPECT_EQ(told.reason, Reason::None);
    body = "PK"; // an archive whose file is not the wanted one
    Queue("file")->parsedStatus = Status::ServerError;
    ASSERT_EQ(engine->DownloadSubtitles({nullptr}, {}), Status::Success);
    ASSERT_TRUE(WaitUntilIdle());
    EXPECT_EQ(engine->GetServerReport().reason, Reason::NotASubtitle);

    // The answers to a POST speak of the quota, which the fetch of the file after it does not make forgotten.
    body = R"({"link":"x","remaining":3,"message":"3 more"})";
    quota.clear();
    Queue("link")->type = INetworkOperation::Type::HttpPost;
    Queue("file");
    RunOne();
    EXPECT_EQ(engine->GetServerReport().remainingDownloads, 3);
    EXPECT_EQ(engine->GetServerReport().message, QString());

    EXPECT_EQ(engine->DownloadSubtitles({}, {}), Status::Success);
    EXPECT_EQ(engine->GetServerReport().httpStatus, 0) << "an accepted start forgets";
    run(0, Reply::ConnectionRefusedError, Status::Success);
    EXPECT_EQ(told.remainingDownloads, std::nullopt);
}

TEST_F(SearchEngineTest, AReplyThatEndsAsCancelledSaysNothingAndLeavesTheQueueAsItIs)
{
    Create(EndLater(0, Reply::OperationCanceledError));
    Queue("a");
    ASSERT_EQ(engine->StartSearch({}), Status::Success);
    ASSERT_TRUE(QTest::qWaitFor([this] { return network->requestCount == 1 && network->aliveReplyCount == 0; }));
    QTest::qWait(5);
    EXPECT_THAT(diary.Take(), IsEmpty());
    EXPECT_TRUE(engine->HasPendingRequest());
    EXPECT_EQ(engine->StartSearch({}), Status::Busy);
}

TEST_F(SearchEngineTest, ObserversMayUnregisterAndStartFromWithin)
{
    Create(EndLater(1));
    Queue("a");
    first.reaction = [this](auto&)
    {
        engine->UnregisterEventHandler(&second);
        first.reaction = [this](auto& event)
        {
            EXPECT_EQ(event, "finished");
            Queue("b");
            EXPECT_EQ(engine->StartSearch({}), Status::Success);
        };
    };
    EXPECT_THAT(RunOne(), ElementsAre("first hears of a", "second hears of a", "first finished", "first hears of b",
                                      "first finished"));
}

TEST_F(SearchEngineTest, AnObserverMayDeleteTheEngine)
{
    for (auto const& [error, events] : std::map<Reply::NetworkError, std::string>{
             {Reply::NoError, "first hears of a"}, {Reply::HostNotFoundError, "first failed 3"}})
    {
        Create(EndLater(1, error));
        Queue("a");
        first.reaction = [this](auto&) { engine.reset(); };
        ASSERT_EQ(engine->StartSearch({}), Status::Success);
        ASSERT_TRUE(WaitUntilIdle());
        EXPECT_THAT(diary.Take(), ElementsAre(events));
    }
}

TEST_F(SearchEngineTest, GoesAtOnceWhenARequestHangsAndTakesItsReplyAlong)
{
    std::atomic<QThread*> replyThread{nullptr};
    std::atomic<QThread*> deletingThread{nullptr};
    Create(
        [&](FakeReply& reply)
        {
            replyThread = QThread::currentThread();
            QObject::connect(
                &reply, &QObject::destroyed, &reply, [&] { deletingThread = QThread::currentThread(); },
                Qt::DirectConnection);
        });
    Queue("a");
    ASSERT_EQ(engine->StartSearch({}), Status::Success);
    ASSERT_TRUE(QTest::qWaitFor([this] { return network->requestCount == 1; }));

    QElapsedTimer timer;
    timer.start();
    engine.reset();
    EXPECT_LT(timer.elapsed(), 1000);
    EXPECT_EQ(network->aliveReplyCount, 0);
    EXPECT_EQ(deletingThread.load(), replyThread.load());
    EXPECT_NE(deletingThread.load(), QCoreApplication::instance()->thread());
    EXPECT_EQ(network.use_count(), 1);
}

TEST_F(SearchEngineTest, GivesUpAWorkerThatDoesNotComeToAnEnd)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "what a terminated thread had in its hands is lost, and a sanitizer reports it";
#endif
    Create([](FakeReply&) { QThread::sleep(7); });
    Queue("a");
    ASSERT_EQ(engine->StartSearch({}), Status::Success);
    ASSERT_TRUE(QTest::qWaitFor([this] { return network->requestCount == 1; }));
    QPointer<QThread> const thread = engine->findChild<QThread*>();
    ASSERT_NE(thread, nullptr);

    QElapsedTimer timer;
    timer.start();
    testing::internal::CaptureStderr();
    engine.reset();
    auto const log = testing::internal::GetCapturedStderr();
    EXPECT_THAT(log, testing::HasSubstr("Worker thread is not responding and will be terminated."));
    EXPECT_GE(timer.elapsed(), 4900);
    EXPECT_LT(timer.elapsed(), 6500);
    EXPECT_TRUE(QTest::qWaitFor([&] { return thread == nullptr; })) << "the thread object deletes itself";
    EXPECT_EQ(network.use_count(), 1) << "the worker went with its thread";
    EXPECT_THAT(diary.Take(), IsEmpty());
}

TEST_F(SearchEngineTest, ItsTypesTravelByName)
{
    Create(nullptr);
    for (char const* const name :
         {"Details::INetworkOperation>", "UseCases::IOnlineSearchController::Status", "UseCases::ServerReport"})
    {
        QByteArray const full = QByteArray("Korvex::Converter::Subtitles::") + name;
        EXPECT_TRUE(QMetaType::isRegistered(QMetaType::type(full.endsWith('>') ? "std::shared_ptr<" + full : full)));
    }
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
