#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/IEditingPresenter.h"

#include <memory>

namespace Korvex::Converter::Gui
{
class GUIContainer;
}

namespace Korvex::Converter::Subtitles::Adapters
{

class KVSUBTITLES_API EditingPresenter final : public UseCases::IEditingPresenter
{
public:
    /// @param container where the host registers its editing panel
    explicit EditingPresenter(std::shared_ptr<Gui::GUIContainer> const& container);
    ~EditingPresenter() override;

    void RegisterEventHandler(UseCases::IEditingPresenterEventObserver* observer) override;
    void UnregisterEventHandler(UseCases::IEditingPresenterEventObserver* observer) override;
    void FillEncodingComboBox() override;
    void FillAligmentComboBox() override;
    void ReconnectToWidgets(Entities::SubtitlePresenterSettings const& settings) override;
    void ClearConnectToWidgets() override;
    void SetFont(QFont const& font) override;
    void SetTextColor(QColor const& color) override;
    void SetOutlineColor(QColor const& color) override;
    void SetEncoding(Entities::SubtitleEncoding encoding) override;
    void SetAlign(Entities::SubtitleAlign align) override;
    void SetSynchronizationOffset(double offsetSeconds) override;
    void SetPositionShift(int shiftLines) override;
    void FontEnabled(bool enabled) override;
    void TextColorEnabled(bool enabled) override;
    void OutlineColorEnabled(bool enabled) override;
    void EncodingEnabled(bool enabled) override;
    void AlignEnabled(bool enabled) override;
    void SynchronizationOffsetEnabled(bool enabled) override;
    void PositionShiftEnabled(bool enabled) override;
    void HideSubtitleCollectiondWidget(bool hide) override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::Adapters
