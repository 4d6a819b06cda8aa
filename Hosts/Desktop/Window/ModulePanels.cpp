#include "Desktop/Window/ModulePanels.h"

#include "Common/HostServices.h"

#include "Subtitles/Adapters/IEditingPanel.h"
#include "Subtitles/Adapters/IItemPanel.h"
#include "Subtitles/Details/EditingPanel.h"
#include "Subtitles/Details/ItemPanel.h"

#include "App/GUIContainer.h"

#include <Hypodermic/Container.h>

#include <stdexcept>
#include <string>

namespace Korvex::Desktop
{

namespace Adapters = Converter::Subtitles::Adapters;
namespace Details = Converter::Subtitles::Details;

namespace
{

template <typename Panel, typename Interface>
std::shared_ptr<Panel> Make(Hosts::HostServices& services, char const* name)
{
    auto const view = services.GetContainer().resolve<Interface>();
    services.GetGuiContainer().Register<Interface>(view);
    auto panel = std::dynamic_pointer_cast<Panel>(view);
    if (!panel)
        throw std::logic_error(std::string("the module has another ") + name + " than this host knows");
    return panel;
}

} // namespace

ModulePanels::ModulePanels(Hosts::HostServices& services)
    : m_editing(Make<Details::EditingPanel, Adapters::IEditingPanel>(services, "editing panel")),
      m_item(Make<Details::ItemPanel, Adapters::IItemPanel>(services, "item panel"))
{
}

ModulePanels::~ModulePanels()
{
    m_editing->setParent(nullptr);
    m_item->setParent(nullptr);
}

} // namespace Korvex::Desktop
