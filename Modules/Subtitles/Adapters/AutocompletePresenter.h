#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/IAutocompletePresenter.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{
class IOnlineSearchController;
}

namespace Korvex::Converter::Subtitles::Adapters
{

/// One question at a time. While a service is busy with an older text the newest one waits, and what comes for the
/// older one is dropped. A text is asked about as services understand titles (`UseCases::CleanTitle`), and not again as
/// long as its answer is the last one. Observers may call back and even destroy the presenter from inside a
/// notification.
class KVSUBTITLES_API AutocompletePresenter final : public UseCases::IAutocompletePresenter
{
public:
    static constexpr std::chrono::milliseconds DELAY{300};
    static constexpr std::size_t MOST_TITLES = 20;

    /// @param services used by nobody else; the first one serves, none is allowed
    explicit AutocompletePresenter(std::vector<std::shared_ptr<UseCases::IOnlineSearchController>> const& services);
    ~AutocompletePresenter() override;

    void RegisterEventHandler(UseCases::IAutocompletePresenterEventObserver* observer) override;
    void UnregisterEventHandler(UseCases::IAutocompletePresenterEventObserver* observer) override;
    void SetText(QString const& text) override;
    void Stop() override;

    /// How long a text has to rest before it is asked about, and how long a busy service is left alone.
    void SetDelay(std::chrono::milliseconds delay);

private:
    class Impl;
    std::shared_ptr<Impl> m_impl; ///< lives on until a notification of its own has ended
};

} // namespace Korvex::Converter::Subtitles::Adapters
