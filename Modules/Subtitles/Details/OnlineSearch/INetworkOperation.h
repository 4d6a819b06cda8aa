#pragma once

#include "Subtitles/UseCases/IOnlineSearchController.h"

#include <QMetaType>

#include <cstdint>
#include <memory>

class QNetworkReply;
class QNetworkRequest;
class QString;
class QUrlQuery;

namespace Korvex::Converter::Subtitles::Details
{

/// One exchange with a server: builds its own request, reads its own reply, keeps its own outcome and knows which
/// observer operation tells of its success.
///
/// Thread: `CreateRequest`, `GetType`, `GetQueryParams` and `ParseReply` run on the worker's thread, `NotifySuccess` on
/// the owner's; the hand-over between the two is the caller's. Never throws: a failure is its status and error text.
class INetworkOperation
{
public:
    using Status = UseCases::IOnlineSearchController::Status;

    /// Numbers are part of the interface.
    enum class Type : std::int32_t
    {
        HttpGet = 0,
        HttpPost = 1,
    };

    /// A request that could not be built shows in `GetStatus`; nothing is sent then.
    virtual QNetworkRequest CreateRequest() = 0;
    /// Reads a reply that arrived without a transport error.
    virtual Status ParseReply(QNetworkReply& reply) = 0;
    /// The form fields of a POST.
    [[nodiscard]] virtual QUrlQuery GetQueryParams() const = 0;
    [[nodiscard]] virtual Type GetType() const = 0;
    [[nodiscard]] virtual Status GetStatus() const = 0;
    [[nodiscard]] virtual QString GetError() const = 0;
    /// Calls the one operation of the observer that carries this operation's outcome.
    virtual void NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer) = 0;
    virtual ~INetworkOperation() = default;
};

} // namespace Korvex::Converter::Subtitles::Details

Q_DECLARE_METATYPE(std::shared_ptr<Korvex::Converter::Subtitles::Details::INetworkOperation>)
