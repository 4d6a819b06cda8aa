#include "Desktop/Conversion/TrackPreparation.h"

#include <exception>
#include <utility>

namespace Korvex::Desktop
{

TrackPreparation::TrackPreparation(Hosts::SoftPlan plan, std::function<void()> onDone)
    : m_isCancelled(std::make_shared<std::atomic<bool>>(false))
{
    for (Hosts::SoftRewrite& rewrite : plan.rewrites)
        rewrite.source.cancelled = m_isCancelled;
    m_result = std::async(std::launch::async,
                          [this, plan = std::move(plan), onDone = std::move(onDone)]
                          {
                              Result result = Run(plan);
                              m_isDone = true;
                              onDone();
                              return result;
                          });
}

TrackPreparation::~TrackPreparation()
{
    Cancel();
}

void TrackPreparation::Cancel()
{
    *m_isCancelled = true;
}

std::optional<TrackPreparation::Result> TrackPreparation::TakeResult()
{
    if (!m_isDone || !m_result.valid())
        return std::nullopt;
    return m_result.get();
}

TrackPreparation::Result TrackPreparation::Run(Hosts::SoftPlan const& plan)
{
    try
    {
        return Hosts::CarryOut(plan, m_folder);
    }
    catch (std::exception const& error)
    {
        Core::Error failure;
        failure.code = Core::ErrorCode::Internal;
        failure.file = plan.rewrites.empty() ? ioPath() : plan.rewrites.front().source.path;
        failure.detail = error.what();
        return failure;
    }
}

} // namespace Korvex::Desktop
