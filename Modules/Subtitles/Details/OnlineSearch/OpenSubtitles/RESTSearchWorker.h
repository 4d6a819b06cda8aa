#pragma once

#include "Subtitles/UseCases/IOnlineSearchController.h"
#include "Subtitles/UseCases/IServerReportSource.h"

#include <QObject>

#include <memory>

class QNetworkReply;

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
/// of `Finished` and `Error` (none for a reply that ended as a cancelled one).
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

private:
    void OnReplyReady(QNetworkReply* reply);
    void OnReplyError(QNetworkReply* reply);

    RESTSearchEngine& m_engine;
    std::shared_ptr<INetworkManager> m_networkManager;
    std::shared_ptr<INetworkOperation> m_operation;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
