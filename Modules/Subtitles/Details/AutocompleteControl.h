#pragma once

#include "Subtitles/Adapters/IAutocompleteControl.h"
#include "Subtitles/Entities/Export.h"

#include <memory>

namespace Korvex::Converter::Subtitles::Details
{

/// Making the object makes no widget, so it can be made without a display. GUI thread.
class KVSUBTITLES_API AutocompleteControl final : public Adapters::IAutocompleteControl
{
public:
    AutocompleteControl();
    /// Deletes the widget if nobody has given it a parent.
    ~AutocompleteControl() override;

    void RegisterEventHandler(Adapters::IAutocompleteControlEventObserver* observer) override;
    void UnregisterEventHandler(Adapters::IAutocompleteControlEventObserver* observer) override;
    void SetText(QString const& text) override;
    [[nodiscard]] QString GetText() const override;
    void ShowSuggestions(std::vector<QString> const& titles) override;
    QWidget* GetWidget() override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::Details
