#include "Subtitles/Details/LanguageSelectorModel.h"

#include "Subtitles/Details/TypedWords.h"

#include <QCollator>

#include <algorithm>

namespace Korvex::Converter::Subtitles::Details
{

using Entities::Language::LanguageID;

LanguageSelectorModel::LanguageSelectorModel(std::vector<LanguageID> const& likely, std::set<LanguageID> const& chosen,
                                             QObject* parent)
    : QAbstractListModel(parent),
      m_likely(likely),
      m_chosen(chosen)
{
    MakeEntries();
    MakeRows();
}

LanguageSelectorModel::~LanguageSelectorModel() = default;

void LanguageSelectorModel::MakeEntries()
{
    auto const makeEntry = [](LanguageID language) -> Entry
    {
        auto const& data = Entities::Language::GetLanguageData(language);
        QString const text = QString::fromStdString(Entities::Language::GetDisplayText(language));
        QString searched = text + QLatin1Char('\n') + QString::fromStdString(data.displayName);
        for (std::string const& name : data.shortNames)
            searched += QLatin1Char('\n') + QString::fromStdString(name);
        return {language, text, TypedWords::Fold(searched)};
    };
    m_entries.clear();
    m_entries.push_back({LanguageID::None, GetAllLanguagesText(), TypedWords::Fold(GetAllLanguagesText())});
    for (LanguageID const language : m_likely)
        m_entries.push_back(makeEntry(language));
    auto const firstOther = static_cast<std::ptrdiff_t>(m_entries.size());
    for (LanguageID const language : Entities::Language::GetAllLanguages())
        if (std::find(m_likely.begin(), m_likely.end(), language) == m_likely.end())
            m_entries.push_back(makeEntry(language));
    QCollator const collator;
    std::sort(m_entries.begin() + firstOther, m_entries.end(),
              [&](Entry const& left, Entry const& right) { return collator.compare(left.text, right.text) < 0; });
}

void LanguageSelectorModel::MakeRows()
{
    TypedWords const words(m_typed);
    m_rows.clear();
    for (std::size_t entry = 0; entry < m_entries.size(); ++entry)
        if (words.AreIn(m_entries[entry].foldedText))
            m_rows.push_back(entry);
    m_firstOtherRow = words.IsEmpty() ? static_cast<int>(m_likely.size()) + 1 : -1;
}

void LanguageSelectorModel::SetFilter(QString const& typed)
{
    beginResetModel();
    m_typed = typed;
    MakeRows();
    endResetModel();
}

void LanguageSelectorModel::Retranslate()
{
    beginResetModel();
    MakeEntries();
    MakeRows();
    endResetModel();
}

int LanguageSelectorModel::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant LanguageSelectorModel::data(QModelIndex const& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    Entry const& entry = m_entries[m_rows[static_cast<std::size_t>(index.row())]];
    if (role == Qt::DisplayRole)
        return entry.text;
    if (role == Qt::CheckStateRole)
    {
        bool const isChecked =
            entry.language == LanguageID::None ? m_chosen.empty() : m_chosen.count(entry.language) > 0;
        return isChecked ? Qt::Checked : Qt::Unchecked;
    }
    return {};
}

/// To search in no language makes no sense: without any, it is all of them again.
bool LanguageSelectorModel::setData(QModelIndex const& index, QVariant const& value, int role)
{
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    LanguageID const language = m_entries[m_rows[static_cast<std::size_t>(index.row())]].language;
    if (language == LanguageID::None)
        m_chosen.clear();
    else if (value.toInt() == Qt::Checked)
        m_chosen.insert(language);
    else
        m_chosen.erase(language);
    Q_EMIT dataChanged(this->index(0), this->index(rowCount() - 1), {Qt::CheckStateRole});
    return true;
}

Qt::ItemFlags LanguageSelectorModel::flags(QModelIndex const& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable | Qt::ItemNeverHasChildren;
}

} // namespace Korvex::Converter::Subtitles::Details
