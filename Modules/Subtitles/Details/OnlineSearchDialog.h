#pragma once

#include "Subtitles/Adapters/IOnlineSearchDialog.h"
#include "Subtitles/Entities/Export.h"

#include <memory>

namespace Korvex::Converter::Subtitles::Details
{

/// The search dialog. Making it needs no display; `Open` does. Its window is not modal, so that the film and its
/// preview stay in reach, and stays above the window that was active. It goes when it is closed, with that window, or
/// with this object; in the last case nobody is told. The languages and the size are remembered in later runs of the
/// program, too (settings "onlineSearch/..." of the organisation "korvex", application "subtitles").
class KVSUBTITLES_API OnlineSearchDialog final : public Adapters::IOnlineSearchDialog
{
public:
    explicit OnlineSearchDialog(std::shared_ptr<Adapters::IAutocompleteControl> title);
    ~OnlineSearchDialog() override;

    void RegisterEventHandler(Adapters::IOnlineSearchDialogEventObserver* observer) override;
    void UnregisterEventHandler(Adapters::IOnlineSearchDialogEventObserver* observer) override;

    void Open(QString const& filmName) override;
    void Raise() override;
    void Close() override;
    [[nodiscard]] std::shared_ptr<Adapters::IAutocompleteControl> GetTitleControl() override;
    void SetFields(Adapters::OnlineSearchFields const& fields) override;
    [[nodiscard]] Adapters::OnlineSearchFields GetFields() const override;
    void SetFileSearchAvailable(bool isAvailable) override;
    [[nodiscard]] std::set<Entities::Language::LanguageID> GetLanguages() const override;
    void SetResults(std::vector<Adapters::OnlineSearchRow> const& rows) override;
    void SetState(Adapters::OnlineSearchState state, QString const& sentence, Adapters::OnlineSearchMark mark) override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::Details
