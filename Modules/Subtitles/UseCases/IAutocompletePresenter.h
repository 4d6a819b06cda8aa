#pragma once

#include "Core/EventPublisher.h"

#include <QString>

#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{

/// Hears of title suggestions.
class IAutocompletePresenterEventObserver
{
public:
    /// Suggestions for the text that was set last; answers to older texts never come. Empty: there are none.
    virtual void OnSuggestions(QString const& text, std::vector<QString> const& titles) = 0;
    virtual ~IAutocompletePresenterEventObserver() = default;
};

/// Finds titles that go on from what the user types, by an online service of its own, so that a search is not kept
/// waiting. Failures are silent: suggestions are a help, not a result. User-interface thread only.
class IAutocompletePresenter : public Core::EventPublisher<IAutocompletePresenterEventObserver>
{
public:
    /// What the user has typed so far. The service is asked a moment after the last change, and not for texts of less
    /// than two letters.
    virtual void SetText(QString const& text) = 0;
    /// Nothing arrives after this until the next text.
    virtual void Stop() = 0;
};

} // namespace Korvex::Converter::Subtitles::UseCases
