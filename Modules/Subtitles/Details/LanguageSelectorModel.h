#pragma once

#include "Subtitles/Entities/Language.h"

#include <QAbstractListModel>
#include <QCoreApplication>
#include <QString>

#include <set>
#include <vector>

namespace Korvex::Converter::Subtitles::Details
{

/// The rows of the list of languages, each with a check box: "All languages", those that the user is likely to want,
/// then the others by their names. GUI thread.
class LanguageSelectorModel final : public QAbstractListModel
{
    Q_DECLARE_TR_FUNCTIONS(LanguageSelector)

public:
    using LanguageID = Entities::Language::LanguageID;

    LanguageSelectorModel(std::vector<LanguageID> const& likely, std::set<LanguageID> const& chosen, QObject* parent);
    ~LanguageSelectorModel() override;

    /// Empty: every language.
    [[nodiscard]] std::set<LanguageID> const& GetChosen() const { return m_chosen; }
    /// Leaves the languages whose names or codes hold what was typed.
    void SetFilter(QString const& typed);
    /// The row above which a line sets the likely languages apart; -1 for none.
    [[nodiscard]] int GetFirstOtherRow() const { return m_firstOtherRow; }
    void Retranslate();

    [[nodiscard]] static QString GetAllLanguagesText() { return tr("All languages"); }

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    bool setData(QModelIndex const& index, QVariant const& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(QModelIndex const& index) const override;

private:
    struct Entry
    {
        LanguageID language; ///< `None` stands for all of them
        QString text;
        QString foldedText;
    };

    void MakeEntries();
    void MakeRows();

    std::vector<LanguageID> const m_likely;
    std::set<LanguageID> m_chosen;
    std::vector<Entry> m_entries;
    std::vector<std::size_t> m_rows; ///< the entries that the filter leaves
    QString m_typed;
    int m_firstOtherRow = -1;
};

} // namespace Korvex::Converter::Subtitles::Details
