#pragma once

#include "Subtitles/Adapters/IEditingPanel.h"
#include "Subtitles/Fakes/FakeTrackList.h"

#include <QColor>
#include <QFont>

#include <map>

namespace Korvex::Converter::Subtitles::Testing
{

/// Behaves as the panel does towards its observers: an alignment that is pushed in is reported as the presenter's; a
/// position shift, an offset or a colour that is pushed in and differs comes back as if the user had set it.
class FakeEditingPanel final : public FakeTrackList<Adapters::IEditingPanel>
{
public:
    using Editor = Adapters::ITrackEditorEventObserver;
    using FakeTrackList::RegisterEventHandler;
    using FakeTrackList::UnregisterEventHandler;

    void RegisterEventHandler(Editor* observer) override { m_editorObservers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Editor* observer) override { m_editorObservers.UnregisterEventHandler(observer); }
    void FillEncodingComboBox(std::vector<Entities::SubtitleEncoding> const& values) override { encodings = values; }
    void FillAligmentComboBox(std::vector<Entities::SubtitleAlign> const& values) override { aligns = values; }
    void SetFont(QFont const& value) override { font = value; }
    void SetTextColor(QColor const& value) override
    {
        Show(textColor, value, [](Editor* observer, QColor const& c) { observer->OnTextColorChanged(c); });
    }
    void SetOutlineColor(QColor const& value) override
    {
        Show(outlineColor, value, [](Editor* observer, QColor const& c) { observer->OnOutlineColorChanged(c); });
    }
    void SetEncoding(Entities::SubtitleEncoding value) override { encoding = value; }
    void SetAlign(Entities::SubtitleAlign value) override
    {
        align = value;
        m_editorObservers.Notify([&](Editor* observer) { observer->OnAlignChanged(value, Editor::ByPresenter); });
    }
    void SetSynchronizationOffset(double value) override
    {
        Show(offset, value, [](Editor* observer, double v) { observer->OnSynchronizationOffsetChanged(v); });
    }
    void SetPositionShift(int value) override
    {
        Show(shift, value, [](Editor* observer, int v) { observer->OnPositionShiftChanged(v); });
    }
    void FontEnabled(bool value) override { enabled["font"] = value; }
    void TextColorEnabled(bool value) override { enabled["text"] = value; }
    void OutlineColorEnabled(bool value) override { enabled["outline"] = value; }
    void EncodingEnabled(bool value) override { enabled["encoding"] = value; }
    void AlignEnabled(bool value) override { enabled["align"] = value; }
    void SynchronizationOffsetEnabled(bool value) override { enabled["offset"] = value; }
    void PositionShiftEnabled(bool value) override { enabled["shift"] = value; }
    void Hide() override {}
    void Enabled(bool /*value*/) override {}
    void HideSubtitleCollectiondWidget(bool value) override { isListHidden = value; }

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
        Edit([&](Editor* observer) { observer->OnAlignChanged(value, Editor::ByUser); });
    }

    std::vector<Entities::SubtitleEncoding> encodings;
    std::vector<Entities::SubtitleAlign> aligns;
    QFont font;
    QColor textColor;
    QColor outlineColor;
    Entities::SubtitleEncoding encoding = Entities::SubtitleEncoding::Auto;
    Entities::SubtitleAlign align = Entities::SubtitleAlign::Default;
    double offset = 0.0;
    int shift = 0;
    std::map<std::string, bool> enabled;
    bool isListHidden = false;

private:
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
