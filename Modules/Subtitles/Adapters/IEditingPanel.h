#pragma once

#include "Subtitles/Adapters/ISubtitleCollection.h"
#include "Subtitles/Adapters/ITrackEditor.h"

#include "App/IExternalWidget.h"

namespace Korvex::Converter::Subtitles::Adapters
{

/// The side panel with a track list and the controls for its look. The host registers it in its `GUIContainer` without
/// a name and owns it.
class IEditingPanel : public ITrackEditor, public ISubtitleCollection, public virtual Gui::IExternalWidget
{
public:
    // Both bases publish; without these their registrations would be ambiguous.
    using ISubtitleCollection::RegisterEventHandler;
    using ISubtitleCollection::UnregisterEventHandler;
    using ITrackEditor::RegisterEventHandler;
    using ITrackEditor::UnregisterEventHandler;

    virtual void Hide() = 0;
    virtual void Enabled(bool enabled) = 0;
    virtual void HideSubtitleCollectiondWidget(bool hide) = 0;
};

} // namespace Korvex::Converter::Subtitles::Adapters
