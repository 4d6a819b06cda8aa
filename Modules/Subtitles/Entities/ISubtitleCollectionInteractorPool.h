#pragma once

#include <memory>

namespace Korvex::Converter::Subtitles::Entities
{

class ISubtitleCollectionInteractor;

/// Hands out collection interactors and uses again those that nobody holds any more. User-interface thread only.
class ISubtitleCollectionInteractorPool
{
public:
    /// Never null. It keeps what its last holder set until it is given a new collection. Throws what the container
    /// throws when a component is missing.
    [[nodiscard]] virtual std::shared_ptr<ISubtitleCollectionInteractor> GetInteractor() = 0;
    virtual ~ISubtitleCollectionInteractorPool() = default;
};

} // namespace Korvex::Converter::Subtitles::Entities
