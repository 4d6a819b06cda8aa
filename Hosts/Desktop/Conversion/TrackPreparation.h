#pragma once

#include "Common/SoftPlan.h"
#include "Common/WorkFolder.h"

#include <atomic>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <vector>

namespace Korvex::Desktop
{

/// Writes the working files of one film's soft tracks on a thread of its own, which may have to read the whole film.
/// The files live as long as this object.
class TrackPreparation
{
public:
    using Result = Core::Result<std::vector<Hosts::RewrittenTrack>>;

    /// `onDone` is called once, on that thread, when the result can be taken.
    TrackPreparation(Hosts::SoftPlan plan, std::function<void()> onDone);
    /// Cancels and waits.
    ~TrackPreparation();
    TrackPreparation(TrackPreparation const&) = delete;
    TrackPreparation& operator=(TrackPreparation const&) = delete;

    /// The result then is ErrorCode::Cancelled, unless it came first.
    void Cancel();
    /// The result, once, as soon as it is there.
    [[nodiscard]] std::optional<Result> TakeResult();

private:
    [[nodiscard]] Result Run(Hosts::SoftPlan const& plan);

    Hosts::WorkFolder m_folder;
    std::shared_ptr<std::atomic<bool>> const m_isCancelled;
    std::atomic<bool> m_isDone{false};
    std::future<Result> m_result; ///< goes first: it waits for the thread
};

} // namespace Korvex::Desktop
