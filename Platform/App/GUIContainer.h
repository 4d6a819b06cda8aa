#pragma once

#include "Core/Export.h"

#include <map>
#include <memory>
#include <string>
#include <typeindex>
#include <utility>

namespace Korvex::Converter::Gui
{

/// The host's register of GUI components by interface and name. It holds them weakly: a component that its owner let go
/// is simply not found any more. GUI thread only.
class KORVEX_PLATFORM_API GUIContainer
{
public:
    GUIContainer();
    ~GUIContainer();
    GUIContainer(GUIContainer const&) = delete;
    GUIContainer& operator=(GUIContainer const&) = delete;

    /// Makes `component` the answer for interface `I` under `name`; the empty name is the default registration.
    template <typename I>
    void Register(std::shared_ptr<I> const& component, std::string const& name = {})
    {
        Put(typeid(I), name, std::static_pointer_cast<void>(component));
    }

    /// The registered component, or empty when there is none or it is gone.
    template <typename I>
    [[nodiscard]] std::shared_ptr<I> Resolve(std::string const& name = {}) const
    {
        return std::static_pointer_cast<I>(Get(typeid(I), name));
    }

private:
    void Put(std::type_index type, std::string const& name, std::shared_ptr<void> const& component);
    [[nodiscard]] std::shared_ptr<void> Get(std::type_index type, std::string const& name) const;

    std::map<std::pair<std::type_index, std::string>, std::weak_ptr<void>> m_components;
};

} // namespace Korvex::Converter::Gui
