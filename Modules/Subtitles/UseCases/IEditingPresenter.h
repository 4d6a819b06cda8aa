#pragma once

#include "Subtitles/Entities/EventPublishing.h"
#include "Subtitles/Entities/SubtitleAlign.h"
#include "Subtitles/Entities/SubtitleEncoding.h"

class QColor;
class QFont;

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitlePresenterSettings;
}

namespace Korvex::Converter::Subtitles::UseCases
{

/// Hears of the user's edits in the editing panel. Values that were pushed into the panel are not reported.
class IEditingPresenterEventObserver
{
public:
    virtual void OnFontChanged(QFont const& font) = 0;
    virtual void OnTextColorChanged(QColor const& color) = 0;
    virtual void OnOutlineColorChanged(QColor const& color) = 0;
    virtual void OnEncodingChanged(Entities::SubtitleEncoding encoding) = 0;
    virtual void OnAlignChanged(Entities::SubtitleAlign align) = 0;
    virtual void OnSynchronizationOffsetChanged(double offsetSeconds) = 0;
    virtual void OnPositionShiftChanged(int shiftLines) = 0;
    virtual ~IEditingPresenterEventObserver() = default;
};

/// The handle on the editing panel that is connected now; without one every call does nothing. It decides nothing
/// itself. User-interface thread only.
class IEditingPresenter : public Core::EventPublisher<IEditingPresenterEventObserver>
{
public:
    virtual void FillEncodingComboBox() = 0;
    virtual void FillAligmentComboBox() = 0;
    /// Takes the host's editing panel when the settings show it; else the connection stays as it is.
    virtual void ReconnectToWidgets(Entities::SubtitlePresenterSettings const& settings) = 0;
    virtual void ClearConnectToWidgets() = 0;
    virtual void SetFont(QFont const& font) = 0;
    virtual void SetTextColor(QColor const& color) = 0;
    virtual void SetOutlineColor(QColor const& color) = 0;
    virtual void SetEncoding(Entities::SubtitleEncoding encoding) = 0;
    virtual void SetAlign(Entities::SubtitleAlign align) = 0;
    virtual void SetSynchronizationOffset(double offsetSeconds) = 0;
    virtual void SetPositionShift(int shiftLines) = 0;
    virtual void FontEnabled(bool enabled) = 0;
    virtual void TextColorEnabled(bool enabled) = 0;
    virtual void OutlineColorEnabled(bool enabled) = 0;
    virtual void EncodingEnabled(bool enabled) = 0;
    virtual void AlignEnabled(bool enabled) = 0;
    virtual void SynchronizationOffsetEnabled(bool enabled) = 0;
    virtual void PositionShiftEnabled(bool enabled) = 0;
    virtual void HideSubtitleCollectiondWidget(bool hide) = 0;
};

} // namespace Korvex::Converter::Subtitles::UseCases
