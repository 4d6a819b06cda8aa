#include "Support/OnlineServer/OnlineServer.h"

#include "Support/OnlineServer/HttpConnection.h"
#include "Support/OnlineServer/OnlineLibrary.h"

#include <QHostAddress>
#include <QTcpServer>
#include <QThread>

#include <future>
#include <mutex>
#include <stdexcept>
#include <utility>

namespace Korvex::Testing
{

class OnlineServer::Impl final : public QThread
{
public:
    Impl(Handler handler, quint16 wantedPort) : m_handler(std::move(handler)), m_port(wantedPort)
    {
        std::future<quint16> started = m_started.get_future();
        start();
        m_port = started.get();
    }

    ~Impl() override
    {
        quit();
        // Besides QThread's own hand-over, one that the thread sanitizer can see.
        m_ended.get_future().wait();
        wait();
    }

    [[nodiscard]] HttpReply Answer(HttpRequest const& request)
    {
        {
            std::lock_guard const lock(requestsMutex);
            requests.push_back(request);
        }
        {
            std::lock_guard const lock(interceptorMutex);
            if (std::unique_ptr<HttpReply> reply = interceptor ? interceptor(request) : nullptr)
                return std::move(*reply);
        }
        return m_handler(request);
    }

    [[nodiscard]] quint16 GetPort() const { return m_port; }

    std::mutex requestsMutex;
    std::vector<HttpRequest> requests;
    std::mutex interceptorMutex;
    Interceptor interceptor;

protected:
    void run() override
    {
        {
            QTcpServer listener;
            connect(&listener, &QTcpServer::newConnection, &listener,
                    [this, &listener]
                    {
                        while (QTcpSocket* const socket = listener.nextPendingConnection())
                            new HttpConnection(*socket, [this](HttpRequest const& request) { return Answer(request); });
                    });
            bool const isListening = listener.listen(QHostAddress::LocalHost, m_port);
            m_started.set_value(isListening ? listener.serverPort() : 0);
            if (isListening)
                exec();
        }
        m_ended.set_value();
    }

private:
    Handler const m_handler;
    quint16 m_port; ///< 0 when the wanted one is taken
    std::promise<quint16> m_started;
    std::promise<void> m_ended;
};

OnlineServer::OnlineServer()
    : OnlineServer([library = std::make_shared<OnlineLibrary>()](HttpRequest const& request)
                   { return library->Answer(request); })
{
}

OnlineServer::OnlineServer(Handler handler, quint16 port) : m_impl(std::make_unique<Impl>(std::move(handler), port))
{
    if (m_impl->GetPort() == 0)
        throw std::runtime_error("cannot listen on 127.0.0.1");
}

OnlineServer::~OnlineServer() = default;

QString OnlineServer::GetUrl() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(m_impl->GetPort());
}

QString OnlineServer::GetVersion1Url() const
{
    return GetUrl() + QStringLiteral("/api/v1");
}

std::vector<HttpRequest> OnlineServer::GetRequests() const
{
    std::lock_guard const lock(m_impl->requestsMutex);
    return m_impl->requests;
}

void OnlineServer::ForgetRequests()
{
    std::lock_guard const lock(m_impl->requestsMutex);
    m_impl->requests.clear();
}

void OnlineServer::Intercept(Interceptor interceptor)
{
    std::lock_guard const lock(m_impl->interceptorMutex);
    m_impl->interceptor = std::move(interceptor);
}

} // namespace Korvex::Testing
