#include "Subtitles/Details/ResultListModel.h"

#include "Subtitles/Details/TypedWords.h"
#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/UseCases/SearchResult.h"

#include <QLocale>
#include <QStringList>

namespace Korvex::Converter::Subtitles::Details
{

using Adapters::OnlineSearchRow;
using UseCases::SearchResult;
using UseCases::SearchResultFacts;

namespace
{

QString NameLanguage(SearchResultFacts const& facts)
{
    QString const name = QString::fromStdString(Entities::Language::GetDisplayText(facts.language));
    return name.isEmpty() ? facts.languageCode : name;
}

QString NameFilm(SearchResultFacts const& facts)
{
    QString name = facts.title;
    if (facts.season && facts.episode)
        return QStringLiteral("%1 S%2E%3")
            .arg(name)
            .arg(*facts.season, 2, 10, QLatin1Char('0'))
            .arg(*facts.episode, 2, 10, QLatin1Char('0'))
            .trimmed();
    if (!name.isEmpty() && facts.year)
        name += QStringLiteral(" (%1)").arg(*facts.year);
    return name;
}

QString NameFormat(SearchResult const& result)
{
    auto const tag = result.tags.find(Entities::SearchTags::FILE_FORMAT);
    return tag == result.tags.end() ? QString() : QString::fromStdString(tag->second).toUpper();
}

/// Figures below each other.
int GetAlignment(int column)
{
    bool const isFigure = column == ResultListModel::DOWNLOADS || column == ResultListModel::RATING;
    return static_cast<int>((isFigure ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

QStringList DescribeMarks(std::vector<ResultMark> const& marks)
{
    QStringList texts;
    for (ResultMark const& mark : marks)
        texts << mark.description;
    return texts;
}

ResultListModel::Line MakeLine(OnlineSearchRow const& row)
{
    SearchResultFacts const& facts = row.result->facts;
    QLocale const locale;
    ResultListModel::Line line;
    line.row = row;
    line.film = NameFilm(facts);
    line.format = NameFormat(*row.result);
    line.language = NameLanguage(facts);
    if (facts.downloadCount)
        line.downloads = locale.toString(static_cast<qlonglong>(*facts.downloadCount));
    if (facts.rating)
        line.rating = locale.toString(*facts.rating, 'f', 1);
    if (facts.uploaded.isValid())
        line.uploaded = locale.toString(facts.uploaded.toLocalTime().date(), QLocale::ShortFormat);
    line.marks = ListMarks(facts);

    QStringList texts{row.result->fileName, facts.release, facts.comment,     line.film,
                      line.format,          line.language, row.match,         line.downloads,
                      line.rating,          line.uploaded, facts.languageCode};
    for (ResultMark const& mark : line.marks)
        texts << mark.shortText << mark.description;
    line.foldedText = TypedWords::Fold(texts.join(QLatin1Char('\n')));
    return line;
}

} // namespace

ResultListModel::ResultListModel(QObject* parent) : QAbstractTableModel(parent) {}

ResultListModel::~ResultListModel() = default;

void ResultListModel::SetRows(std::vector<OnlineSearchRow> const& rows)
{
    beginResetModel();
    m_lines.clear();
    m_lines.reserve(rows.size());
    for (OnlineSearchRow const& row : rows)
        if (row.result != nullptr)
            m_lines.push_back(MakeLine(row));
    endResetModel();
}

void ResultListModel::Retranslate()
{
    for (Line& line : m_lines)
        line = MakeLine(line.row);
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, COLUMN_COUNT - 1);
    if (!m_lines.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, COLUMN_COUNT - 1));
}

QString ResultListModel::GetTitle(int column)
{
    switch (column)
    {
    case NAME:
        return tr("Name");
    case MATCH:
        return tr("Match");
    case LANGUAGE:
        return tr("Language");
    case MARKS:
        return tr("Marks");
    case DOWNLOADS:
        return tr("Downloads");
    case RATING:
        return tr("Rating");
    case UPLOADED:
        return tr("Uploaded");
    case FORMAT:
        return tr("Format");
    default:
        return {};
    }
}

QString ResultListModel::GetText(Line const& line, int column)
{
    switch (column)
    {
    case NAME:
        return line.row.result->fileName;
    case MATCH:
        return line.row.match;
    case LANGUAGE:
        return line.language;
    case DOWNLOADS:
        return line.downloads;
    case RATING:
        return line.rating;
    case UPLOADED:
        return line.uploaded;
    case FORMAT:
        return line.format;
    default:
        return {};
    }
}

QString ResultListModel::GetToolTip(Line const& line, int column)
{
    SearchResultFacts const& facts = line.row.result->facts;
    QStringList lines;
    switch (column)
    {
    case NAME:
        lines << line.row.result->fileName << line.film;
        if (!facts.release.isEmpty() && facts.release != line.row.result->fileName)
            lines << tr("Release: %1").arg(facts.release);
        lines << facts.comment;
        break;
    case MATCH:
        lines << line.row.match << Describe(line.row.level);
        break;
    case MARKS:
        lines << DescribeMarks(line.marks);
        break;
    case RATING:
        if (!line.rating.isEmpty() && facts.voteCount)
            lines << tr("%1 of 10, by %n vote(s)", nullptr, *facts.voteCount).arg(line.rating);
        break;
    case UPLOADED:
        if (facts.uploaded.isValid())
            lines << QLocale().toString(facts.uploaded.toLocalTime(), QLocale::LongFormat);
        break;
    default:
        lines << GetText(line, column);
    }
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n')).toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

QString ResultListModel::GetSpokenText(Line const& line, int column)
{
    switch (column)
    {
    case NAME:
        return line.film.isEmpty() ? line.row.result->fileName
                                   : QStringLiteral("%1, %2").arg(line.row.result->fileName, line.film);
    case MATCH:
        return QStringLiteral("%1: %2").arg(Describe(line.row.level), line.row.match);
    case MARKS:
        return DescribeMarks(line.marks).join(QLatin1String(", "));
    default:
        return GetText(line, column);
    }
}

int ResultListModel::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

int ResultListModel::columnCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

QVariant ResultListModel::data(QModelIndex const& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    Line const& line = GetLine(index.row());
    switch (role)
    {
    case Qt::DisplayRole:
        return GetText(line, index.column());
    case Qt::TextAlignmentRole:
        return GetAlignment(index.column());
    case Qt::ToolTipRole:
        return GetToolTip(line, index.column());
    case Qt::AccessibleTextRole:
        return GetSpokenText(line, index.column());
    default:
        return {};
    }
}

QVariant ResultListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return GetAlignment(section);
    return role == Qt::DisplayRole ? GetTitle(section) : QVariant();
}

} // namespace Korvex::Converter::Subtitles::Details
