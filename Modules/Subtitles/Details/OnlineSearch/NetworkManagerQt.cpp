#include "Subtitles/Details/OnlineSearch/NetworkManagerQt.h"

#include "Subtitles/Details/OnlineSearch/NetworkReply.h"

#include "App/Configuration.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QThread>
#include <QThreadStorage>
#include <QUrlQuery>

#include <exception>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr char const* USER_AGENT = "Korvex " KORVEX_VERSION;

/// A thread's access manager for as long as the thread lives.
class ThreadAccess final
{
public:
    ThreadAccess() : m_manager(new QNetworkAccessManager) {}
    /// The manager of a terminated thread is left alone: it may have been stopped in the middle of anything. Such a
    /// thread unwinds as from an exception; where it does not, another thread cleans up after it.
    ~ThreadAccess()
    {
        if (std::uncaught_exceptions() == 0 && m_manager->thread() == QThread::currentThread())
            delete m_manager;
    }
    ThreadAccess(ThreadAccess const&) = delete;
    ThreadAccess& operator=(ThreadAccess const&) = delete;

    [[nodiscard]] QNetworkAccessManager& GetManager() const { return *m_manager; }

private:
    QNetworkAccessManager* const m_manager;
};

QNetworkAccessManager& GetThreadManager()
{
    // Never destroyed: a thread, or the application object on the main one, may end after the static objects.
    static auto* const storage = new QThreadStorage<ThreadAccess*>;
    if (!storage->hasLocalData())
        storage->setLocalData(new ThreadAccess);
    return storage->localData()->GetManager();
}

QNetworkRequest SignRequest(QNetworkRequest const& request)
{
    QNetworkRequest signedRequest = request;
    if (request.rawHeader("User-Agent").isEmpty())
        signedRequest.setRawHeader("User-Agent", USER_AGENT);
    return signedRequest;
}

/// "17" becomes a number; "017" and "1.0" stay text, and so does what JSON's numbers do not hold exactly.
QJsonValue MakeJsonValue(QString const& text)
{
    constexpr qint64 MOST_EXACT = qint64{1} << 53;
    bool isNumber = false;
    qint64 const number = text.toLongLong(&isNumber);
    bool const isExact = isNumber && number >= -MOST_EXACT && number <= MOST_EXACT;
    return isExact && QString::number(number) == text ? QJsonValue{number} : QJsonValue{text};
}

QByteArray MakeJsonBody(QUrlQuery const& form)
{
    QJsonObject fields;
    for (auto const& [name, value] : form.queryItems(QUrl::FullyDecoded))
        fields.insert(name, MakeJsonValue(value));
    return QJsonDocument{fields}.toJson(QJsonDocument::Compact);
}

NetworkLimits ReadLimits(App::Configuration const& configuration)
{
    NetworkLimits limits;
    limits.timeout = configuration.openSubtitlesTimeout;
    return limits;
}

} // namespace

NetworkManagerQt::NetworkManagerQt() : NetworkManagerQt(App::GetActiveConfiguration()) {}

NetworkManagerQt::NetworkManagerQt(App::Configuration const& configuration)
    : NetworkManagerQt(ReadLimits(configuration),
                       configuration.isOpenSubtitlesBodyJson ? PostBody::Json : PostBody::Form)
{
}

NetworkManagerQt::NetworkManagerQt(NetworkLimits const& limits, PostBody postBody)
    : m_limits(limits),
      m_postBody(postBody)
{
}

NetworkManagerQt::~NetworkManagerQt() = default;

bool NetworkManagerQt::IsNetworkAccessible() const
{
    return true;
}

QNetworkReply* NetworkManagerQt::Get(QNetworkRequest const& request)
{
    return new NetworkReply(GetThreadManager(), QNetworkAccessManager::GetOperation, SignRequest(request), {},
                            m_limits);
}

QNetworkReply* NetworkManagerQt::Post(QNetworkRequest const& request, QUrlQuery const& form)
{
    bool const isJson = m_postBody == PostBody::Json;
    QNetworkRequest signedRequest = SignRequest(request);
    if (!request.header(QNetworkRequest::ContentTypeHeader).isValid())
    {
        signedRequest.setHeader(QNetworkRequest::ContentTypeHeader,
                                isJson ? "application/json" : "application/x-www-form-urlencoded");
    }
    QByteArray const body = isJson ? MakeJsonBody(form) : form.toString(QUrl::FullyDecoded).toUtf8();
    return new NetworkReply(GetThreadManager(), QNetworkAccessManager::PostOperation, signedRequest, body, m_limits);
}

} // namespace Korvex::Converter::Subtitles::Details
