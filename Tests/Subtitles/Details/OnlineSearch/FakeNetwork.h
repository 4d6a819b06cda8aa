#pragma once

#include "Subtitles/Details/OnlineSearch/INetworkManager.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrlQuery>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <functional>
#include <utility>

namespace Korvex::Testing
{

/// A reply that ends when and as the test says. Lives on the thread that asked for it.
class FakeReply final : public QNetworkReply
{
public:
    explicit FakeReply(QNetworkRequest const& request, std::atomic<int>& aliveCount) : m_aliveCount(aliveCount)
    {
        setRequest(request);
        setUrl(request.url());
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
        ++m_aliveCount;
    }
    ~FakeReply() override { --m_aliveCount; }

    void SetBody(QByteArray body, int httpStatus = 200)
    {
        m_body = std::move(body);
        setAttribute(QNetworkRequest::HttpStatusCodeAttribute, httpStatus);
    }
    void SetHeader(QByteArray const& name, QByteArray const& value) { setRawHeader(name, value); }
    /// The reply is at its end when the request returns it.
    void BeOver(NetworkError error = NoError)
    {
        setError(error, {});
        setFinished(true);
    }
    /// The reply ends while it is awaited, in the order in which Qt tells it.
    void End(NetworkError error = NoError)
    {
        BeOver(error);
        if (error != NoError)
            Q_EMIT errorOccurred(error);
        Q_EMIT finished();
    }

    void abort() override {}
    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] qint64 bytesAvailable() const override { return m_body.size() + QIODevice::bytesAvailable(); }

protected:
    qint64 readData(char* data, qint64 maximum) override
    {
        auto const count = std::min<qint64>(maximum, m_body.size());
        std::memcpy(data, m_body.constData(), static_cast<std::size_t>(count));
        m_body.remove(0, static_cast<int>(count));
        return count;
    }

private:
    std::atomic<int>& m_aliveCount;
    QByteArray m_body;
};

/// Answers every request by a function, on the thread that asks.
class FakeNetworkManager final : public Converter::Subtitles::Details::INetworkManager
{
public:
    /// What becomes of the reply. Without a function there is no reply at all.
    using Script = std::function<void(FakeReply&)>;

    explicit FakeNetworkManager(Script script) : m_script(std::move(script)) {}

    /// For the next requests, while none is under way.
    void SetScript(Script script) { m_script = std::move(script); }

    [[nodiscard]] bool IsNetworkAccessible() const override { return isAccessible; }
    QNetworkReply* Get(QNetworkRequest const& request) override { return Answer(request); }
    QNetworkReply* Post(QNetworkRequest const& request, QUrlQuery const&) override { return Answer(request); }

    bool isAccessible = true;
    std::atomic<int> requestCount{0};
    std::atomic<int> aliveReplyCount{0};

private:
    QNetworkReply* Answer(QNetworkRequest const& request)
    {
        ++requestCount;
        if (!m_script)
            return nullptr;
        auto* const reply = new FakeReply(request, aliveReplyCount);
        m_script(*reply);
        return reply;
    }

    Script m_script;
};

} // namespace Korvex::Testing
