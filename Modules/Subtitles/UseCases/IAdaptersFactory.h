#pragma once

#include <memory>

namespace Hypodermic
{
class Container;
}

namespace Korvex::Converter::Subtitles::UseCases
{

class IEditingPresenter;
class IItemPresenter;

/// Makes the presenters of one media item. User-interface thread only. Throws std::logic_error before it was given a
/// container or after the host let the container go, and what the container throws when a component is missing.
class IAdaptersFactory
{
public:
    /// The container is not kept alive: its owner is the host.
    virtual void SetContainer(std::weak_ptr<Hypodermic::Container> container) = 0;
    [[nodiscard]] virtual std::shared_ptr<IItemPresenter> CreateItemPresenter() = 0;
    [[nodiscard]] virtual std::shared_ptr<IEditingPresenter> CreateEditingPresenter() = 0;
    virtual ~IAdaptersFactory() = default;
};

} // namespace Korvex::Converter::Subtitles::UseCases
