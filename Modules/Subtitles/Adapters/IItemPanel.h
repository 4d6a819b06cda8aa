#pragma once

#include "Subtitles/Adapters/ISubtitleCollection.h"

#include "App/IExternalWidget.h"

namespace Korvex::Converter::Subtitles::Adapters
{

/// The track list of one film in the host's queue. The host registers it in its `GUIContainer` under the number of the
/// film's collection, or without a name when one panel serves all films, and owns it.
class IItemPanel : public ISubtitleCollection, public virtual Gui::IExternalWidget
{
public:
    virtual void Hide() = 0;
};

} // namespace Korvex::Converter::Subtitles::Adapters
