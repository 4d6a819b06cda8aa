#pragma once

#include "Subtitles/Adapters/IOnlineSearchDialog.h"

#include <QDialog>

#include <memory>
#include <set>
#include <vector>

namespace Korvex::Converter::Subtitles::Details
{

class OnlineSearchWindowFields;
class OnlineSearchWindowStatus;
class ResultList;

/// The window of the online search: what to search for, the list of hits, what is going on. It stays above its parent
/// and leaves the parent to the user. Setters emit nothing. GUI thread.
class OnlineSearchWindow final : public QDialog
{
    Q_OBJECT
public:
    using LanguageID = Entities::Language::LanguageID;
    using Results = std::vector<std::shared_ptr<UseCases::SearchResult>>;

    /// @param title becomes a child; may be null
    OnlineSearchWindow(QString const& filmName, QWidget* title, QWidget* parent);
    ~OnlineSearchWindow() override;

    [[nodiscard]] OnlineSearchWindowFields& GetFields() const { return *m_fields; }
    void SetResults(std::vector<Adapters::OnlineSearchRow> const& rows);
    void SetState(Adapters::OnlineSearchState state, QString const& sentence, Adapters::OnlineSearchMark mark);

Q_SIGNALS:
    void SearchRequested();
    void DownloadRequested(std::vector<std::shared_ptr<Korvex::Converter::Subtitles::UseCases::SearchResult>> const&);
    void CancelRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Wire();
    void Retranslate();
    void RequestSearch();
    void RequestDownload();
    /// The sentence stands in the list's place where there is nothing to list, and below the list else.
    void ShowState();

    QString const m_filmName;
    OnlineSearchWindowFields* m_fields;
    ResultList* m_results;
    OnlineSearchWindowStatus* m_status;
    Adapters::OnlineSearchState m_state = Adapters::OnlineSearchState::Ready;
    Adapters::OnlineSearchMark m_mark = Adapters::OnlineSearchMark::None;
    QString m_sentence;
};

} // namespace Korvex::Converter::Subtitles::Details
