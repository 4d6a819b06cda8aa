#include "Subtitles/UseCases/SubtitleCollectionInteractorPool.h"

#include "Subtitles/UseCases/IUseCasesFactory.h"

#include "Subtitles/Entities/ISubtitleCollectionInteractor.h"

#include <algorithm>

namespace Korvex::Converter::Subtitles::UseCases
{

SubtitleCollectionInteractorPool::SubtitleCollectionInteractorPool(std::shared_ptr<IUseCasesFactory> const& factory)
    : m_factory(factory)
{
}

SubtitleCollectionInteractorPool::~SubtitleCollectionInteractorPool() = default;

std::shared_ptr<Entities::ISubtitleCollectionInteractor> SubtitleCollectionInteractorPool::GetInteractor()
{
    auto const idle = std::find_if(m_interactors.begin(), m_interactors.end(),
                                   [](auto const& interactor) { return interactor.use_count() < 2; });
    if (idle != m_interactors.end())
        return *idle;
    return m_interactors.emplace_back(m_factory->CreateSubtitleCollectionInteractor());
}

} // namespace Korvex::Converter::Subtitles::UseCases
