#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/ISubtitleCollectionInteractorPool.h"

#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{

class IUseCasesFactory;

class KVSUBTITLES_API SubtitleCollectionInteractorPool final : public Entities::ISubtitleCollectionInteractorPool
{
public:
    explicit SubtitleCollectionInteractorPool(std::shared_ptr<IUseCasesFactory> const& factory);
    ~SubtitleCollectionInteractorPool() override;

    std::shared_ptr<Entities::ISubtitleCollectionInteractor> GetInteractor() override;

private:
    std::shared_ptr<IUseCasesFactory> m_factory;
    std::vector<std::shared_ptr<Entities::ISubtitleCollectionInteractor>> m_interactors;
};

} // namespace Korvex::Converter::Subtitles::UseCases
