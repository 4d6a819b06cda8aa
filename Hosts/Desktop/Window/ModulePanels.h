#pragma once

#include <memory>

namespace Korvex::Hosts
{
class HostServices;
} // namespace Korvex::Hosts

namespace Korvex::Converter::Subtitles::Details
{
class EditingPanel;
class ItemPanel;
} // namespace Korvex::Converter::Subtitles::Details

namespace Korvex::Desktop
{

/// The subtitles module's panels, made by its container and registered in the host's GUI container, which holds them
/// weakly: they live here. GUI thread.
class ModulePanels final
{
public:
    explicit ModulePanels(Hosts::HostServices& services);
    /// Takes the panels out of whatever window they are in, so that it does not delete them.
    ~ModulePanels();
    ModulePanels(ModulePanels const&) = delete;
    ModulePanels& operator=(ModulePanels const&) = delete;

    [[nodiscard]] Converter::Subtitles::Details::EditingPanel& GetEditingPanel() const { return *m_editing; }
    [[nodiscard]] Converter::Subtitles::Details::ItemPanel& GetItemPanel() const { return *m_item; }

private:
    std::shared_ptr<Converter::Subtitles::Details::EditingPanel> m_editing;
    std::shared_ptr<Converter::Subtitles::Details::ItemPanel> m_item;
};

} // namespace Korvex::Desktop
