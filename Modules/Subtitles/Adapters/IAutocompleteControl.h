#pragma once

#include "Core/EventPublisher.h"

#include <QString>

#include <vector>

class QWidget;

namespace Korvex::Converter::Subtitles::Adapters
{

/// Hears what the user does in the field.
class IAutocompleteControlEventObserver
{
public:
    /// By the user's typing only, not by `SetText` and not by a chosen suggestion.
    virtual void OnTextEdited(QString const& text) = 0;
    virtual void OnSuggestionChosen(QString const& title) = 0;
    /// Enter was pressed with no suggestion marked.
    virtual void OnConfirmed() = 0;
    virtual ~IAutocompleteControlEventObserver() = default;
};

/// A text field that offers titles to go on with: down, up, Enter and Escape work while the list is open, and the field
/// keeps the focus.
class IAutocompleteControl : public Core::EventPublisher<IAutocompleteControlEventObserver>
{
public:
    virtual void SetText(QString const& text) = 0;
    [[nodiscard]] virtual QString GetText() const = 0;
    /// Shows the list under the field; empty closes it. Nothing is shown while the field has not the focus.
    virtual void ShowSuggestions(std::vector<QString> const& titles) = 0;
    /// Made at the first call and owned by whoever gives it a parent; the control goes on when it is gone.
    virtual QWidget* GetWidget() = 0;
};

} // namespace Korvex::Converter::Subtitles::Adapters
