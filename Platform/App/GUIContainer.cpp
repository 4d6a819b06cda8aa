#include "App/GUIContainer.h"

namespace Korvex::Converter::Gui
{

GUIContainer::GUIContainer() = default;
GUIContainer::~GUIContainer() = default;

void GUIContainer::Put(std::type_index type, std::string const& name, std::shared_ptr<void> const& component)
{
    m_components[{type, name}] = component;
}

std::shared_ptr<void> GUIContainer::Get(std::type_index type, std::string const& name) const
{
    auto const found = m_components.find({type, name});
    return found == m_components.end() ? nullptr : found->second.lock();
}

} // namespace Korvex::Converter::Gui
