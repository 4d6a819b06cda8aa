#include "Support/OnlineServer/OnlineServer.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTcpSocket>

#include <stdexcept>
#include <thread>

namespace Korvex::Testing
{

namespace
{

using namespace std::chrono_literals;

constexpr int LIMIT_MS = 10'000;

/// A client that sees every byte.
class RawClient
{
public:
    explicit RawClient(OnlineServer const& server)
    {
        m_socket.connectToHost(QStringLiteral("127.0.0.1"), static_cast<quint16>(QUrl(server.GetUrl()).port()));
        EXPECT_TRUE(m_socket.waitForConnected(LIMIT_MS));
    }

    void Send(QByteArray const& bytes)
    {
        m_socket.write(bytes);
        while (m_socket.bytesToWrite() > 0 && m_socket.waitForBytesWritten(LIMIT_MS))
        {
        }
    }

    /// Everything until the text has come, or the connection ends.
    QByteArray ReadUntil(QByteArray const& text)
    {
        QByteArray bytes;
        while (!bytes.contains(text) && (m_socket.bytesAvailable() > 0 || m_socket.waitForReadyRead(LIMIT_MS)))
            bytes += m_socket.read(1);
        return bytes;
    }

    /// Everything until the server closes the connection; empty as well when it never does.
    QByteArray ReadToEnd()
    {
        if (m_socket.state() == QAbstractSocket::ConnectedState && !m_socket.waitForDisconnected(LIMIT_MS))
            return {};
        return m_socket.readAll();
    }

private:
    QTcpSocket m_socket;
};

class OnlineServerTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char name[] = "OnlineServerTest";
        static char* argv[] = {name, nullptr};
        s_application = std::make_unique<QCoreApplication>(argc, argv);
    }
    static void TearDownTestSuite() { s_application.reset(); }

private:
    inline static std::unique_ptr<QCoreApplication> s_application;
};

TEST_F(OnlineServerTest, ReadsRequestsHoweverTheirBytesArriveAndKeepsTheConnection)
{
    OnlineServer server([](HttpRequest const& request) { return HttpReply{200, request.target + '|' + request.body}; });
    RawClient client(server);
    for (char const byte : QByteArray("POST /one HTTP/1.1\r\nHost: x\r\ncontent-LENGTH: 5\r\n\r\nfirst"))
    {
        client.Send(QByteArray(1, byte));
        std::this_thread::sleep_for(1ms);
    }
    EXPECT_TRUE(client.ReadUntil("/one|first").contains("Connection: keep-alive"));

    client.Send("GET /two?Q=%20 HTTP/1.1\r\n\r\nGET /three HTTP/1.1\r\nConnection: close\r\n\r\n");
    QByteArray const rest = client.ReadToEnd();
    EXPECT_TRUE(rest.contains("/two?Q=%20|HTTP/1.1 200 OK\r\n")) << rest.toStdString();
    EXPECT_TRUE(rest.endsWith("/three|")) << rest.toStdString();

    std::vector<HttpRequest> const requests = server.GetRequests();
    ASSERT_EQ(requests.size(), 3U);
    EXPECT_EQ(requests[0].method, "POST");
    EXPECT_EQ(requests[0].Header("Content-Length"), "5");
    EXPECT_EQ(requests[1].target, "/two?Q=%20");

    RawClient broken(server);
    broken.Send("nonsense\r\n\r\n");
    EXPECT_TRUE(broken.ReadToEnd().startsWith("HTTP/1.1 400 "));
}

TEST_F(OnlineServerTest, SpeaksWhatAnHttpClientUnderstands)
{
    QByteArray const text = QByteArray("A line of some length.\n").repeated(5'000);
    OnlineServer server(
        [&text](HttpRequest const& request)
        {
            HttpReply reply{200, text};
            reply.isGzip = request.target == "/gzip";
            reply.isDeflate = request.target == "/deflate";
            reply.isChunked = request.target == "/chunked";
            reply.pieceBytes = 7'001;
            reply.pauseMs = request.target == "/chunked" ? 1 : 0;
            return reply;
        });
    QNetworkAccessManager manager;
    for (QString const path : {"/plain", "/gzip", "/deflate", "/chunked"})
    {
        QNetworkReply* const reply = manager.get(QNetworkRequest(QUrl(server.GetUrl() + path)));
        QEventLoop loop;
        QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec();
        EXPECT_EQ(reply->error(), QNetworkReply::NoError) << path.toStdString();
        EXPECT_TRUE(reply->readAll() == text) << path.toStdString();
        delete reply;
    }
}

TEST_F(OnlineServerTest, FailsAsAsked)
{
    OnlineServer server([](HttpRequest const&) { return HttpReply{200, "0123456789"}; });
    auto const ask = [&server](HttpReply const& wanted)
    {
        server.Intercept([wanted](HttpRequest const&) { return std::make_unique<HttpReply>(wanted); });
        RawClient client(server);
        client.Send("GET / HTTP/1.1\r\n\r\n");
        return client.ReadToEnd();
    };
    HttpReply reply{200, "0123456789"};
    reply.dropAfterBytes = 4;
    QByteArray const cutOff = ask(reply);
    EXPECT_TRUE(cutOff.contains("Content-Length: 10\r\n") && cutOff.endsWith("\r\n\r\n0123")) << cutOff.toStdString();

    reply.dropsInsteadOfAnswer = true;
    reply.delayMs = 60;
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(ask(reply), "");
    EXPECT_GE(clock.elapsed(), 60);

    server.Intercept({});
    RawClient client(server);
    client.Send("GET / HTTP/1.1\r\nConnection: close\r\n\r\n");
    EXPECT_TRUE(client.ReadToEnd().endsWith("0123456789"));
}

TEST_F(OnlineServerTest, EndsAtOnceWhileClientsWait)
{
    auto server = std::make_unique<OnlineServer>(
        [](HttpRequest const& request)
        {
            HttpReply reply{200, QByteArray(1'000'000, 'x')};
            reply.neverAnswers = request.target == "/never";
            reply.pieceBytes = 10;
            reply.pauseMs = 20;
            reply.delayMs = request.target == "/late" ? 60'000 : 0;
            return reply;
        });
    EXPECT_THROW(OnlineServer([](HttpRequest const&) { return HttpReply(); },
                              static_cast<quint16>(QUrl(server->GetUrl()).port())),
                 std::runtime_error);
    EXPECT_FALSE(server->WaitForRequests(1, 1ms));
    RawClient never(*server);
    RawClient late(*server);
    RawClient slow(*server);
    RawClient silent(*server);
    never.Send("GET /never HTTP/1.1\r\n\r\n");
    late.Send("GET /late HTTP/1.1\r\n\r\n");
    slow.Send("GET /slow HTTP/1.1\r\n\r\n");
    EXPECT_TRUE(server->WaitForRequests(3, 10s));
    QElapsedTimer clock;
    clock.start();
    server.reset();
    EXPECT_LT(clock.elapsed(), 1'000);
}

TEST_F(OnlineServerTest, ServesManyShortRequestsOfSeveralClients)
{
    constexpr int CLIENTS = 4;
    constexpr int REQUESTS = 250;
    OnlineServer server([](HttpRequest const& request) { return HttpReply{200, request.target}; });
    auto const work = [&server](int client)
    {
        for (int request = 0; request < REQUESTS; ++request)
        {
            QByteArray const target = "/" + QByteArray::number(client) + '/' + QByteArray::number(request);
            RawClient raw(server);
            raw.Send("GET " + target + " HTTP/1.1\r\nConnection: close\r\n\r\n");
            EXPECT_TRUE(raw.ReadToEnd().endsWith(target));
            server.Intercept([](HttpRequest const&) { return nullptr; });
        }
    };
    std::vector<std::thread> threads;
    for (int client = 0; client < CLIENTS; ++client)
        threads.emplace_back(work, client);
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(server.GetRequests().size(), static_cast<std::size_t>(CLIENTS * REQUESTS));
}

} // namespace

} // namespace Korvex::Testing
