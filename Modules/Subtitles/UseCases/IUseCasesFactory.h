#pragma once

#include <memory>

namespace Hypodermic
{
class Container;
}

namespace Korvex::Converter::Subtitles::Entities
{
class ISubtitleCollectionInteractor;
class ISubtitlesInteractor;
} // namespace Korvex::Converter::Subtitles::Entities

namespace Korvex::Converter::Subtitles::UseCases
{

/// Makes the interactors of one media item. User-interface thread only. Throws std::logic_error before it was given a
/// container or after the host let the container go, and what the container throws when a component is missing.
class IUseCasesFactory
{
public:
    /// The container is not kept alive: its owner is the host.
    virtual void SetContainer(std::weak_ptr<Hypodermic::Container> container) = 0;
    [[nodiscard]] virtual std::shared_ptr<Entities::ISubtitleCollectionInteractor>
    CreateSubtitleCollectionInteractor() = 0;
    [[nodiscard]] virtual std::shared_ptr<Entities::ISubtitlesInteractor> CreateSubtitlesInteractor() = 0;
    virtual ~IUseCasesFactory() = default;
};

} // namespace Korvex::Converter::Subtitles::UseCases
