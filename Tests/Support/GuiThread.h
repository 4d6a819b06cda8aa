#pragma once

#include <QCoreApplication>
#include <QMetaObject>
#include <QThread>

#include <exception>
#include <functional>
#include <optional>
#include <type_traits>

namespace Korvex::Testing
{

/// Calls it on the GUI thread, from inside whatever event loop runs there, and waits for it. What it returns comes
/// back by value, what it throws is thrown here.
template <typename Call>
auto OnGui(Call const& call) -> std::invoke_result_t<Call const&>
{
    using Result = std::invoke_result_t<Call const&>;
    std::exception_ptr failure;
    std::conditional_t<std::is_void_v<Result>, std::optional<char>, std::optional<Result>> result;
    auto const guarded = [&]
    {
        try
        {
            if constexpr (std::is_void_v<Result>)
                call();
            else
                result.emplace(call());
        }
        catch (...)
        {
            failure = std::current_exception();
        }
    };
    if (QThread::currentThread() == QCoreApplication::instance()->thread())
        guarded();
    else
        QMetaObject::invokeMethod(QCoreApplication::instance(), guarded, Qt::BlockingQueuedConnection);
    if (failure)
        std::rethrow_exception(failure);
    if constexpr (!std::is_void_v<Result>)
        return *std::move(result);
}

/// Runs the application's event loop until `body`, which runs on a thread of its own beside it, has returned; gives
/// what it returned.
int RunBesideGui(std::function<int()> const& body);

} // namespace Korvex::Testing
