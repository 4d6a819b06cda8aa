#pragma once

#include "Subtitles/Adapters/IOnlineSearchDialog.h"

#include <QFrame>
#include <QPointer>

#include <set>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Korvex::Converter::Subtitles::Details
{

class LanguageSelector;

/// What is searched for: title, season, episode, IMDb id, languages. Setters emit nothing. GUI thread.
class OnlineSearchWindowFields final : public QFrame
{
    Q_OBJECT
public:
    using LanguageID = Entities::Language::LanguageID;

    /// @param title becomes a child; may be null
    explicit OnlineSearchWindowFields(QWidget* title, QWidget* parent = nullptr);
    ~OnlineSearchWindowFields() override;

    void SetFields(Adapters::OnlineSearchFields const& fields);
    [[nodiscard]] Adapters::OnlineSearchFields GetFields() const;
    void SetFileSearchAvailable(bool isAvailable);
    void SetLanguages(std::set<LanguageID> const& languages);
    [[nodiscard]] std::set<LanguageID> const& GetLanguages() const;
    void SetSearchEnabled(bool isEnabled);
    /// What was found are episodes of a series, so that season and episode make sense.
    void SetSeries(bool isSeries);
    /// Whether Enter in this widget asks for a search. The title's widget tells by itself.
    [[nodiscard]] bool IsSearchField(QWidget const* widget) const;

Q_SIGNALS:
    void SearchRequested();
    /// By the user; the title tells by itself.
    void Edited();
    void LanguagesEdited(std::set<Korvex::Converter::Subtitles::Entities::Language::LanguageID> const& languages);

protected:
    void changeEvent(QEvent* event) override;

private:
    void NameWidgets();
    void LayOut();
    void Wire();
    void Retranslate();
    void ShowEpisodeFields();
    /// Marks a wrong IMDb id and says why.
    void JudgeImdbId();

    QPointer<QWidget> m_title; ///< may go on to another parent
    QLabel* m_titleLabel;
    QLabel* m_seasonLabel;
    QLineEdit* m_season;
    QLabel* m_episodeLabel;
    QLineEdit* m_episode;
    QPushButton* m_episodeButton;
    QPushButton* m_search;
    QLabel* m_imdbLabel;
    QLineEdit* m_imdb;
    QAction* m_imdbWarning;
    QLabel* m_imdbReason;
    QLabel* m_languagesLabel;
    LanguageSelector* m_languages;
    QCheckBox* m_file;
    bool m_isFileSearchAvailable = false;
    bool m_isEpisodeWanted = false;
    bool m_isSeries = false;
};

} // namespace Korvex::Converter::Subtitles::Details
