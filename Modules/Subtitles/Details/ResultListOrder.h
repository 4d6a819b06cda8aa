#pragma once

#include "Subtitles/Details/TypedWords.h"

#include <QCollator>
#include <QSortFilterProxyModel>

#include <vector>

namespace Korvex::Converter::Subtitles::Details
{

class ResultListModel;

/// The hits that the filter leaves, in the order that the user chose: by rank or by a column. Hits that a column says
/// the same of keep their rank; those that it says nothing of come last, whichever way it is sorted.
class ResultListOrder final : public QSortFilterProxyModel
{
public:
    static constexpr int BY_RANK = -1; ///< in place of a column

    /// The model is not owned.
    explicit ResultListOrder(ResultListModel& model, QObject* parent = nullptr);
    ~ResultListOrder() override;

    void SetFilter(QString const& typed);
    [[nodiscard]] bool IsFiltered() const { return !m_words.IsEmpty(); }
    /// The direction that one wants first: large numbers and late dates, but names from A.
    [[nodiscard]] static Qt::SortOrder GetFirstDirection(int column);

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, QModelIndex const& parent) const override;
    [[nodiscard]] bool lessThan(QModelIndex const& left, QModelIndex const& right) const override;

private:
    ResultListModel& m_model;
    TypedWords m_words;
    QCollator m_collator;
};

} // namespace Korvex::Converter::Subtitles::Details
