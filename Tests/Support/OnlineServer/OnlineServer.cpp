#include "Support/OnlineServer/OnlineServer.h"

#include "Support/OnlineServer/HttpConnection.h"
#include "Support/OnlineServer/OnlineLibrary.h"

#include <QHostAddress>
#include <QTcpServer>
#include <QThread>

#include <condition_variable>
#include <future>
#include <mutex>
#include <stdexcept>
#include <utility>

namespace Korvex::Testing
{

namespace
{

class Listener final : public QTcpServer
{
public:
    explicit Listener(HttpConnection::Answer answer) : m_answer(std::move(answer)) {}

protected:
    void incomingConnection(qintptr socketHandle) override { new HttpConnection(socketHandle, m_answer, this); }

private:
    HttpConnection::Answer const m_answer;
};

} // namespace

class OnlineServer::Impl final : public QThread
{
public:
    Impl(Handler handler, quint16 port) : m_handler(std::move(handler)), m_wantedPort(port)
    {
        std::future<quint16> started = m_started.get_future();
        start();
        try
        {
            m_port = started.get();
        }
        catch (...)
        {
            End();
            throw;
        }
    }

    ~Impl() override { End(); }

    [[nodiscard]] quint16 GetPort() const { return m_port; }

    [[nodiscard]] std::vector<HttpRequest> GetRequests() const
    {
        std::lock_guard const lock(m_requestsMutex);
        return m_requests;
    }

    void ForgetRequests()
    {
        std::lock_guard const lock(m_requestsMutex);
        m_requests.clear();
    }

    [[nodiscard]] bool WaitForRequests(std::size_t count, std::chrono::milliseconds limit) const
    {
        std::unique_lock lock(m_requestsMutex);
        return m_requestArrived.wait_for(lock, limit, [this, count] { return m_requests.size() >= count; });
    }

    void Intercept(Interceptor interceptor)
    {
        std::lock_guard const lock(m_interceptorMutex);
        m_interceptor = std::make_shared<Interceptor const>(std::move(interceptor));
    }

protected:
    void run() override
    {
        {
            Listener listener([this](HttpRequest const& request) { return Answer(request); });
            if (listener.listen(QHostAddress::LocalHost, m_wantedPort))
            {
                m_started.set_value(listener.serverPort());
                exec();
            }
            else
            {
                m_started.set_exception(std::make_exception_ptr(
                    std::runtime_error("cannot listen on 127.0.0.1: " + listener.errorString().toStdString())));
            }
        }
        m_ended.set_value();
    }

private:
    void End()
    {
        quit();
        // Besides QThread's own hand-over, one that the thread sanitizer can see.
        m_ended.get_future().wait();
        wait();
    }

    HttpReply Answer(HttpRequest const& request)
    {
        {
            std::lock_guard const lock(m_requestsMutex);
            m_requests.push_back(request);
        }
        m_requestArrived.notify_all();
        {
            std::lock_guard const lock(m_interceptorMutex);
            // Held here: the function may replace itself.
            if (auto const interceptor = m_interceptor; interceptor && *interceptor)
            {
                if (std::unique_ptr<HttpReply> reply = (*interceptor)(request))
                    return std::move(*reply);
            }
        }
        return m_handler(request);
    }

    Handler const m_handler;
    quint16 const m_wantedPort;
    quint16 m_port = 0;
    std::promise<quint16> m_started;
    std::promise<void> m_ended;

    mutable std::mutex m_requestsMutex;
    mutable std::condition_variable m_requestArrived;
    std::vector<HttpRequest> m_requests;

    std::recursive_mutex m_interceptorMutex;
    std::shared_ptr<Interceptor const> m_interceptor;
};

OnlineServer::OnlineServer() : OnlineServer(OnlineLibrarySettings()) {}

OnlineServer::OnlineServer(OnlineLibrarySettings const& settings, quint16 port)
    : OnlineServer([library = std::make_shared<OnlineLibrary>(settings)](HttpRequest const& request)
                   { return library->Answer(request); },
                   port)
{
}

OnlineServer::OnlineServer(Handler handler, quint16 port) : m_impl(std::make_unique<Impl>(std::move(handler), port)) {}

OnlineServer::~OnlineServer() = default;

QString OnlineServer::GetUrl() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(m_impl->GetPort());
}

QString OnlineServer::GetVersion1Url() const
{
    return GetUrl() + QStringLiteral("/api/v1");
}

QString OnlineServer::GetLegacyUrl() const
{
    return GetUrl();
}

std::vector<HttpRequest> OnlineServer::GetRequests() const
{
    return m_impl->GetRequests();
}

void OnlineServer::ForgetRequests()
{
    m_impl->ForgetRequests();
}

bool OnlineServer::WaitForRequests(std::size_t count, std::chrono::milliseconds limit) const
{
    return m_impl->WaitForRequests(count, limit);
}

void OnlineServer::Intercept(Interceptor interceptor)
{
    m_impl->Intercept(std::move(interceptor));
}

} // namespace Korvex::Testing
