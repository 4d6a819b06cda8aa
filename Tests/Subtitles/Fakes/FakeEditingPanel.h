#pragma once

#include "Subtitles/Adapters/IEditingPanel.h"
#include "Subtitles/Fakes/FakeTrackList.h"

#include <QColor>
#include <QFont>

#include <utility>

namespace Korvex::Converter::Subtitles::Testing
{

/// Writes down in `calls` what is pushed in, and behaves as the panel does towards its observers: an alignment that is
/// pushed in is reported as the presenter's; a position shift, an offset or a colour that is pushed in and differs
/// comes back as if the user had set it.
class FakeEditingPanel final : public FakeTrackList<Adapters::IEditingPanel>
{
public:
    using Editor = Adapters::ITrackEditorEventObserver;
    using FakeTrackList::RegisterEventHandler;
    using FakeTrackList::UnregisterEventHandler;

    void RegisterEventHandler(Editor* observer) override { m_editorObservers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Editor* observer) override { m_editorObservers.UnregisterEventHandler(observer); }
    void FillEncodingComboBox(std::vector<Entities::SubtitleEncoding> const& values) override
    {
        calls += "encodings ";
        encodings = values;
    }
    void FillAligmentComboBox(std::vector<Entities::SubtitleAlign> const& values) override
    {
        calls += "aligns ";
        aligns = values;
    }
    void SetFont(QFont const& value) override { Note("font=", value.pointSize()); }
    void SetTextColor(QColor const& value) override
    {
        calls += "text=" + value.name().toStdString() + ' ';
        Show(textColor, value, [](Editor* observer, QColor const& c) { observer->OnTextColorChanged(c); });
    }
    void SetOutlineColor(QColor const& value) override { calls += "outline=" + value.name().toStdString() + ' '; }
    void SetEncoding(Entities::SubtitleEncoding value) override { Note("encoding=", static_cast<int>(value)); }
    void SetAlign(Entities::SubtitleAlign value) override
    {
        Note("align=", static_cast<int>(value));
        align = value;
        m_editorObservers.Notify([&](Editor* observer) { observer->OnAlignChanged(value, Editor::ByPresenter); });
    }
    void SetSynchronizationOffset(double value) override
    {
        Note("offset=", static_cast<int>(value * 10));
        Show(offset, value, [](Editor* observer, double v) { observer->OnSynchronizationOffsetChanged(v); });
    }
    void SetPositionShift(int value) override
    {
        Note("shift=", value);
        Show(shift, value, [](Editor* observer, int v) { observer->OnPositionShiftChanged(v); });
    }
    void FontEnabled(bool value) override { Note("font", value); }
    void TextColorEnabled(bool value) override { Note("text", value); }
    void OutlineColorEnabled(bool value) override { Note("outline", value); }
    void EncodingEnabled(bool value) override { Note("encoding", value); }
    void AlignEnabled(bool value) override { Note("align", value); }
    void SynchronizationOffsetEnabled(bool value) override { Note("offset", value); }
    void PositionShiftEnabled(bool value) override { Note("shift", value); }
    void Hide() override {}
    void Enabled(bool) override {}
    void HideSubtitleCollectiondWidget(bool value) override { Note("hide", value); }

    std::string TakeCalls() { return std::exchange(calls, {}); }

    /// The user edits a control.
    template <typename Event>
    void Edit(Event const& event)
    {
        m_editorObservers.Notify(event);
    }

    void UserSetsShift(int value) { SetPositionShift(value); }
    void UserSetsOffset(double value) { SetSynchronizationOffset(value); }
    void UserSetsTextColor(QColor const& value) { SetTextColor(value); }
    void UserSetsAlign(Entities::SubtitleAlign value)
    {
        align = value;
        m_editorObservers.Notify([&](Editor* observer) { observer->OnAlignChanged(value, Editor::ByUser); });
    }

    std::string calls; ///< what was pushed in, offsets in tenths of a second
    std::vector<Entities::SubtitleEncoding> encodings;
    std::vector<Entities::SubtitleAlign> aligns;
    QColor textColor;
    Entities::SubtitleAlign align = Entities::SubtitleAlign::Default;
    double offset = 0.0;
    int shift = 0;

private:
    void Note(char const* what, int value) { calls += what + std::to_string(value) + ' '; }

    template <typename Value, typename Report>
    void Show(Value& shownValue, Value const& value, Report const& report)
    {
        if (shownValue == value)
            return;
        shownValue = value;
        m_editorObservers.Notify([&](Editor* observer) { report(observer, value); });
    }

    Core::EventHandlerList<Editor> m_editorObservers;
};

} // namespace Korvex::Converter::Subtitles::Testing
