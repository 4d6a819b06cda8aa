#pragma once

#include "Subtitles/Entities/Language.h"

#include "Core/EventPublisher.h"

#include <QString>

#include <memory>
#include <set>
#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{
struct SearchResult;
}

namespace Korvex::Converter::Subtitles::Adapters
{

class IAutocompleteControl;

/// What the fields of the dialog hold besides the title, which is in its autocomplete control. Texts as typed.
struct OnlineSearchFields
{
    QString season;
    QString episode;
    QString imdbId;
    bool isFileSearched = false; ///< also look for exactly this file, by its fingerprint
};

/// How a line of the result list is shown.
enum class MatchLevel
{
    Exact,  ///< made for this file or this release
    Likely, ///< the right film or episode, perhaps another cut
    Unsure,
    Wrong, ///< another film or episode; listed last
};

/// One line of the result list.
struct OnlineSearchRow
{
    std::shared_ptr<UseCases::SearchResult> result;
    QString match; ///< why it is where it is: "Same file, same release"
    MatchLevel level = MatchLevel::Unsure;
};

/// What the dialog is about now.
enum class OnlineSearchState
{
    Ready,
    Searching,
    Downloading,
    Cancelling, ///< the running request is waited for
};

/// How the sentence beside the state is marked.
enum class OnlineSearchMark
{
    None,
    Hint,
    Error,
};

/// Hears what the user does in the dialog.
class IOnlineSearchDialogEventObserver
{
public:
    /// By the button or Enter in a field. Enter in the title is told by its autocomplete control alone.
    virtual void OnSearchRequested() = 0;
    /// The user changed a field, the title included.
    virtual void OnFieldsEdited() = 0;
    /// Once the list of languages has closed, if others are chosen than before.
    virtual void OnLanguagesChanged(std::set<Entities::Language::LanguageID> const& languages) = 0;
    /// Never empty; in the order of the list.
    virtual void OnDownloadRequested(std::vector<std::shared_ptr<UseCases::SearchResult>> const& results) = 0;
    virtual void OnCancelRequested() = 0;
    /// The dialog is closed, by the user or by `Close`.
    virtual void OnDialogClosed() = 0;
    virtual ~IOnlineSearchDialogEventObserver() = default;
};

/// The search dialog: passive, shows what it is told and tells what the user does. Its widgets are made when it is
/// opened and gone when it is closed, so it can be made without a display. User-interface thread only. Setters emit
/// nothing; while it is closed they do nothing.
class IOnlineSearchDialog : public Core::EventPublisher<IOnlineSearchDialogEventObserver>
{
public:
    /// Shows the dialog for a film, empty, in front of the window that is active, and returns at once.
    virtual void Open(QString const& filmName) = 0;
    virtual void Raise() = 0;
    virtual void Close() = 0;

    [[nodiscard]] virtual std::shared_ptr<IAutocompleteControl> GetTitleControl() = 0;
    virtual void SetFields(OnlineSearchFields const& fields) = 0;
    [[nodiscard]] virtual OnlineSearchFields GetFields() const = 0;
    /// Whether the switch for the file's fingerprint is offered.
    virtual void SetFileSearchAvailable(bool isAvailable) = 0;
    /// What is chosen; remembered from one opening to the next. Empty: every language.
    [[nodiscard]] virtual std::set<Entities::Language::LanguageID> GetLanguages() const = 0;
    /// Replaces the list. The first line is selected unless the user has selected something that is still there.
    virtual void SetResults(std::vector<OnlineSearchRow> const& rows) = 0;
    /// @param sentence for the user; empty where the state says it all
    virtual void SetState(OnlineSearchState state, QString const& sentence, OnlineSearchMark mark) = 0;
};

} // namespace Korvex::Converter::Subtitles::Adapters
