#include "Subtitles/Details/ResultListOrder.h"

#include "Subtitles/Details/ResultListModel.h"
#include "Subtitles/UseCases/SearchResult.h"

#include <QLocale>

namespace Korvex::Converter::Subtitles::Details
{

using Line = ResultListModel::Line;

namespace
{

/// Below zero where the first comes before the second, zero where the column does not tell them apart.
using Comparison = int;

template <typename Value>
Comparison Compare(Value const& left, Value const& right)
{
    return left < right ? -1 : right < left ? 1 : 0;
}

bool IsKnown(Line const& line, int column)
{
    UseCases::SearchResultFacts const& facts = line.row.result->facts;
    switch (column)
    {
    case ResultListModel::MATCH:
        return true;
    case ResultListModel::NAME:
        return !line.row.result->fileName.isEmpty();
    case ResultListModel::LANGUAGE:
        return !line.language.isEmpty();
    case ResultListModel::MARKS:
        return !line.marks.empty();
    case ResultListModel::DOWNLOADS:
        return facts.downloadCount.has_value();
    case ResultListModel::RATING:
        return facts.rating.has_value();
    case ResultListModel::UPLOADED:
        return facts.uploaded.isValid();
    default:
        return !line.format.isEmpty();
    }
}

/// The first mark decides, then the next.
Comparison CompareMarks(Line const& left, Line const& right)
{
    for (std::size_t i = 0; i < left.marks.size() && i < right.marks.size(); ++i)
        if (Comparison const comparison = QString::compare(left.marks[i].shortText, right.marks[i].shortText))
            return comparison;
    return Compare(left.marks.size(), right.marks.size());
}

Comparison CompareKnown(Line const& left, Line const& right, int column, QCollator const& collator)
{
    UseCases::SearchResultFacts const& leftFacts = left.row.result->facts;
    UseCases::SearchResultFacts const& rightFacts = right.row.result->facts;
    switch (column)
    {
    case ResultListModel::NAME:
        return collator.compare(left.row.result->fileName, right.row.result->fileName);
    case ResultListModel::MATCH:
        return Compare(left.row.level, right.row.level);
    case ResultListModel::LANGUAGE:
        return collator.compare(left.language, right.language);
    case ResultListModel::MARKS:
        return CompareMarks(left, right);
    case ResultListModel::DOWNLOADS:
        return Compare(*leftFacts.downloadCount, *rightFacts.downloadCount);
    case ResultListModel::RATING:
        return Compare(*leftFacts.rating, *rightFacts.rating);
    case ResultListModel::UPLOADED:
        return Compare(leftFacts.uploaded, rightFacts.uploaded);
    default:
        return QString::compare(left.format, right.format);
    }
}

/// The plain locale compares letter by letter and knows no numbers.
QLocale FindCollation()
{
    QLocale const locale;
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

} // namespace

ResultListOrder::ResultListOrder(ResultListModel& model, QObject* parent)
    : QSortFilterProxyModel(parent),
      m_model(model),
      m_collator(FindCollation())
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    setSourceModel(&model);
}

ResultListOrder::~ResultListOrder() = default;

void ResultListOrder::SetFilter(QString const& typed)
{
    m_words = TypedWords(typed);
    invalidateFilter();
}

Qt::SortOrder ResultListOrder::GetFirstDirection(int column)
{
    bool const isFigure = column == ResultListModel::DOWNLOADS || column == ResultListModel::RATING ||
                          column == ResultListModel::UPLOADED;
    return isFigure ? Qt::DescendingOrder : Qt::AscendingOrder;
}

bool ResultListOrder::filterAcceptsRow(int row, QModelIndex const& /*parent*/) const
{
    return m_words.AreIn(m_model.GetLine(row).foldedText);
}

/// The base sorts stably and asks with the sides exchanged where it sorts downwards.
bool ResultListOrder::lessThan(QModelIndex const& left, QModelIndex const& right) const
{
    Line const& leftLine = m_model.GetLine(left.row());
    Line const& rightLine = m_model.GetLine(right.row());
    bool const isLeftKnown = IsKnown(leftLine, left.column());
    if (isLeftKnown != IsKnown(rightLine, right.column()))
        return isLeftKnown == (sortOrder() == Qt::AscendingOrder);
    return isLeftKnown && CompareKnown(leftLine, rightLine, left.column(), m_collator) < 0;
}

} // namespace Korvex::Converter::Subtitles::Details
