// The only file of this layer that includes the container, which takes seconds to compile.

#include "Subtitles/Details/AutocompleteControl.h"
#include "Subtitles/Details/EditingPanel.h"
#include "Subtitles/Details/ExternalSubtitlesDialog.h"
#include "Subtitles/Details/ItemPanel.h"
#include "Subtitles/Details/OnlineSearchDialog.h"

#include "Subtitles/UseCases/RegistrationGroups.h"

#include "Hypodermic/ContainerBuilder.h"

namespace Korvex::Converter::Subtitles::Details
{

void RegisterGroupOne(Hypodermic::ContainerBuilder& builder)
{
    builder.registerType<EditingPanel>().as<Adapters::IEditingPanel>();
    builder.registerType<ExternalSubtitlesDialog>().as<Adapters::IExternalSubtitlesDialog>();
}

void RegisterGroupTwo(Hypodermic::ContainerBuilder& builder)
{
    builder.registerType<OnlineSearchDialog>().as<Adapters::IOnlineSearchDialog>();
    builder.registerType<AutocompleteControl>().as<Adapters::IAutocompleteControl>();
}

void RegisterGroupThree(Hypodermic::ContainerBuilder& builder)
{
    builder.registerType<ItemPanel>().as<Adapters::IItemPanel>();
}

} // namespace Korvex::Converter::Subtitles::Details
