#include "Subtitles/Adapters/EditingPresenter.h"

#include "Subtitles/Adapters/IEditingPanel.h"
#include "Subtitles/Adapters/ViewConnection.h"

#include "Subtitles/Entities/SubtitlePresenterSettings.h"

#include "App/GUIContainer.h"

#include <QColor>
#include <QFont>

#include <cstdint>
#include <utility>
#include <vector>

namespace Korvex::Converter::Subtitles::Adapters
{

using Entities::SubtitleAlign;
using Entities::SubtitleEncoding;

namespace
{

/// The values of an enumeration from 0 to `last`.
template <typename Enumeration>
std::vector<Enumeration> ListValues(Enumeration last)
{
    std::vector<Enumeration> values;
    for (std::int32_t value = 0; value <= static_cast<std::int32_t>(last); ++value)
        values.push_back(static_cast<Enumeration>(value));
    return values;
}

std::vector<SubtitleEncoding> const ENCODINGS = ListValues(SubtitleEncoding::BIG5);
std::vector<SubtitleAlign> const ALIGNS = ListValues(SubtitleAlign::Right);

} // namespace

/// The panel reports values that were pushed into it as if the user had set them. Nothing is passed on while a value is
/// being pushed, else a refresh would write what is shown (defaults, for example) over what the user had set.
class EditingPresenter::Impl final : public ITrackEditorEventObserver
{
public:
    explicit Impl(std::shared_ptr<Gui::GUIContainer> const& container) : m_container(container), m_panel(*this) {}

    using Observers = Core::EventHandlerList<UseCases::IEditingPresenterEventObserver, Core::SyncExecutePolicy>;
    Observers& GetObservers() { return m_observers; }

    void Reconnect(Entities::SubtitlePresenterSettings const& settings)
    {
        if (!settings.ShowsEditingPanel())
            return;
        m_panel.Disconnect();
        m_panel.Connect(m_container->Resolve<IEditingPanel>());
    }

    void Disconnect() { m_panel.Disconnect(); }

    /// Does `operation` with the connected panel, if there is one.
    template <typename Operation>
    void Push(Operation const& operation)
    {
        auto const panel = m_panel.Lock();
        if (!panel)
            return;
        PushScope const scope(m_pushDepth);
        operation(*panel);
    }

    void OnFontChanged(QFont const& font) override
    {
        Forward([font](auto* observer) { observer->OnFontChanged(font); });
    }
    void OnTextColorChanged(QColor const& color) override
    {
        Forward([color](auto* observer) { observer->OnTextColorChanged(color); });
    }
    void OnOutlineColorChanged(QColor const& color) override
    {
        Forward([color](auto* observer) { observer->OnOutlineColorChanged(color); });
    }
    void OnEncodingChanged(SubtitleEncoding encoding) override
    {
        Forward([encoding](auto* observer) { observer->OnEncodingChanged(encoding); });
    }
    void OnAlignChanged(SubtitleAlign align, ChangeType type) override
    {
        if (type == ByUser)
            Forward([align](auto* observer) { observer->OnAlignChanged(align); });
    }
    void OnSynchronizationOffsetChanged(double offsetSeconds) override
    {
        Forward([offsetSeconds](auto* observer) { observer->OnSynchronizationOffsetChanged(offsetSeconds); });
    }
    void OnPositionShiftChanged(int shiftLines) override
    {
        Forward([shiftLines](auto* observer) { observer->OnPositionShiftChanged(shiftLines); });
    }

private:
    class PushScope
    {
    public:
        explicit PushScope(int& depth) : m_depth(depth) { ++m_depth; }
        ~PushScope() { --m_depth; }
        PushScope(PushScope const&) = delete;
        PushScope& operator=(PushScope const&) = delete;

    private:
        int& m_depth;
    };

    template <typename Event>
    void Forward(Event const& event)
    {
        if (m_pushDepth == 0)
            m_observers.Notify(event);
    }

    std::shared_ptr<Gui::GUIContainer> m_container;
    ViewConnection<IEditingPanel, ITrackEditorEventObserver> m_panel;
    Observers m_observers;
    int m_pushDepth = 0;
};

EditingPresenter::EditingPresenter(std::shared_ptr<Gui::GUIContainer> const& container)
    : m_impl(std::make_unique<Impl>(container))
{
}

EditingPresenter::~EditingPresenter() = default;

void EditingPresenter::RegisterEventHandler(UseCases::IEditingPresenterEventObserver* observer)
{
    m_impl->GetObservers().RegisterEventHandler(observer);
}

void EditingPresenter::UnregisterEventHandler(UseCases::IEditingPresenterEventObserver* observer)
{
    m_impl->GetObservers().UnregisterEventHandler(observer);
}

void EditingPresenter::FillEncodingComboBox()
{
    m_impl->Push([](IEditingPanel& panel) { panel.FillEncodingComboBox(ENCODINGS); });
}

void EditingPresenter::FillAligmentComboBox()
{
    m_impl->Push([](IEditingPanel& panel) { panel.FillAligmentComboBox(ALIGNS); });
}

void EditingPresenter::ReconnectToWidgets(Entities::SubtitlePresenterSettings const& settings)
{
    m_impl->Reconnect(settings);
}

void EditingPresenter::ClearConnectToWidgets()
{
    m_impl->Disconnect();
}

void EditingPresenter::SetFont(QFont const& font)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.SetFont(font); });
}

void EditingPresenter::SetTextColor(QColor const& color)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.SetTextColor(color); });
}

void EditingPresenter::SetOutlineColor(QColor const& color)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.SetOutlineColor(color); });
}

void EditingPresenter::SetEncoding(SubtitleEncoding encoding)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.SetEncoding(encoding); });
}

void EditingPresenter::SetAlign(SubtitleAlign align)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.SetAlign(align); });
}

void EditingPresenter::SetSynchronizationOffset(double offsetSeconds)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.SetSynchronizationOffset(offsetSeconds); });
}

void EditingPresenter::SetPositionShift(int shiftLines)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.SetPositionShift(shiftLines); });
}

void EditingPresenter::FontEnabled(bool enabled)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.FontEnabled(enabled); });
}

void EditingPresenter::TextColorEnabled(bool enabled)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.TextColorEnabled(enabled); });
}

void EditingPresenter::OutlineColorEnabled(bool enabled)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.OutlineColorEnabled(enabled); });
}

void EditingPresenter::EncodingEnabled(bool enabled)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.EncodingEnabled(enabled); });
}

void EditingPresenter::AlignEnabled(bool enabled)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.AlignEnabled(enabled); });
}

void EditingPresenter::SynchronizationOffsetEnabled(bool enabled)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.SynchronizationOffsetEnabled(enabled); });
}

void EditingPresenter::PositionShiftEnabled(bool enabled)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.PositionShiftEnabled(enabled); });
}

void EditingPresenter::HideSubtitleCollectiondWidget(bool hide)
{
    m_impl->Push([&](IEditingPanel& panel) { panel.HideSubtitleCollectiondWidget(hide); });
}

} // namespace Korvex::Converter::Subtitles::Adapters
