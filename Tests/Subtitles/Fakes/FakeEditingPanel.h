#pragma once

#include "Subtitles/Adapters/IEditingPanel.h"
#include "Subtitles/Fakes/FakeTrackList.h"

#include <QColor>

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
    void SetFont(QFont const&) override {}
    void SetTextColor(QColor const& value) override
    {
        Show(textColor, value, [](Editor* observer, QColor const& c) { observer->OnTextColorChanged(c); });
    }
    void SetOutlineColor(QColor const&) override {}
    void SetEncoding(Entities::SubtitleEncoding) override {}
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
    void FontEnabled(bool) override {}
    void TextColorEnabled(bool) override {}
    void OutlineColorEnabled(bool) override {}
    void EncodingEnabled(bool) override {}
    void AlignEnabled(bool) override {}
    void SynchronizationOffsetEnabled(bool) override {}
    void PositionShiftEnabled(bool) override {}
    void Hide() override {}
    void Enabled(bool) override {}
    void HideSubtitleCollectiondWidget(bool) override {}

    void UserSetsShift(int value) { SetPositionShift(value); }
    void UserSetsOffset(double value) { SetSynchronizationOffset(value); }
    void UserSetsTextColor(QColor const& value) { SetTextColor(value); }
    void UserSetsAlign(Entities::SubtitleAlign value)
    {
        align = value;
        m_editorObservers.Notify([&](Editor* observer) { observer->OnAlignChanged(value, Editor::ByUser); });
    }

    std::vector<Entities::SubtitleEncoding> encodings;
    std::vector<Entities::SubtitleAlign> aligns;
    QColor textColor;
    Entities::SubtitleAlign align = Entities::SubtitleAlign::Default;
    double offset = 0.0;
    int shift = 0;

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
