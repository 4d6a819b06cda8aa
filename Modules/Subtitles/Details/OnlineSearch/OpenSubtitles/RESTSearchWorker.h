#pragma once

#include "Subtitles/UseCases/MetaTypes.h"

#include <QByteArray>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>

#include <memory>

namespace Korvex::Converter::Subtitles::Details
{
class INetworkManager;
class INetworkOperation;
} // namespace Korvex::Converter::Subtitles::Details

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

class RESTSearchEngine;

/// Runs the engine's operations on its own thread, one at a time. The engine sets an operation and asks for work by a
/// queued signal; the outcome comes back by queued signals: `Reported` when the server said something, then exactly one
/// of `Finished` and `Error` (nothing at all for a reply that ended as a cancelled one).
///
/// Made on the engine's thread and moved to its own before the first request; every slot runs there.
class RESTSearchWorker final : public QObject
{
    Q_OBJECT

public:
    RESTSearchWorker(RESTSearchEngine& engine, std::shared_ptr<INetworkManager> const& networkManager);
    ~RESTSearchWorker() override;

    /// Engine's thread, and only while no request runs.
    void SetRequest(std::shared_ptr<INetworkOperation> operation);
    [[nodiscard]] std::shared_ptr<INetworkOperation> GetRequest() const;

Q_SIGNALS:
    void Finished(std::shared_ptr<Korvex::Converter::Subtitles::Details::INetworkOperation> const& operation);
    void Error(Korvex::Converter::Subtitles::UseCases::IOnlineSearchController::Status status);
    void Reported(Korvex::Converter::Subtitles::UseCases::ServerReport const& report);

public Q_SLOTS:
    void DoWork();
    /// The last thing on the worker's thread: gives up the reply that is still awaited, in silence.
    void OnThreadFinished();

private:
    void OnReplyReady(QNetworkReply* reply);
    void OnReplyError(QNetworkReply* reply);
    /// True for the reply that is awaited, once: a reply that tells of its end twice is heard once.
    bool TakeReply(QNetworkReply* reply);

    void EmitReported(UseCases::ServerReport const& report);
    void EmitFinished();
    void EmitError(UseCases::IOnlineSearchController::Status status);

    RESTSearchEngine& m_engine;
    std::shared_ptr<INetworkManager> m_networkManager;
    std::shared_ptr<INetworkOperation> m_operation;
    QPointer<QNetworkReply> m_reply; ///< awaited
    bool m_isPost = false;           ///< as the current operation said
    QByteArray m_secret;             ///< the key that the request carried, which no report may show
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
