#pragma once

#include "Subtitles/Entities/EventPublishing.h"
#include "Subtitles/Entities/SubtitleAlign.h"
#include "Subtitles/Entities/SubtitleEncoding.h"

#include <cstdint>
#include <vector>

class QColor;
class QFont;

namespace Korvex::Converter::Subtitles::Adapters
{

/// Hears of edits in a track editor.
class ITrackEditorEventObserver
{
public:
    enum ChangeType : std::int32_t
    {
        ByUser = 0,
        ByPresenter = 1, ///< the value was pushed into the editor
    };

    virtual void OnFontChanged(QFont const& font) = 0;
    virtual void OnTextColorChanged(QColor const& color) = 0;
    virtual void OnOutlineColorChanged(QColor const& color) = 0;
    virtual void OnEncodingChanged(Entities::SubtitleEncoding encoding) = 0;
    virtual void OnAlignChanged(Entities::SubtitleAlign align, ChangeType type) = 0;
    virtual void OnSynchronizationOffsetChanged(double offsetSeconds) = 0;
    virtual void OnPositionShiftChanged(int shiftLines) = 0;
    virtual ~ITrackEditorEventObserver() = default;
};

/// The controls for the look, the encoding and the times of a track. A passive view: a value that is pushed in and
/// differs from the one shown may come back to the observers like a user's edit.
class ITrackEditor : public Core::EventPublisher<ITrackEditorEventObserver>
{
public:
    virtual void FillEncodingComboBox(std::vector<Entities::SubtitleEncoding> const& encodings) = 0;
    virtual void FillAligmentComboBox(std::vector<Entities::SubtitleAlign> const& aligns) = 0;
    virtual void SetFont(QFont const& font) = 0;
    virtual void SetTextColor(QColor const& color) = 0;
    virtual void SetOutlineColor(QColor const& color) = 0;
    virtual void SetEncoding(Entities::SubtitleEncoding encoding) = 0;
    /// Reported to the observers as `ByPresenter`, whether or not the value is new.
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
};

} // namespace Korvex::Converter::Subtitles::Adapters
