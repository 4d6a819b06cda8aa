#include "Subtitles/Details/ResultListDelegate.h"

#include "Subtitles/Details/ResultListModel.h"
#include "Subtitles/UseCases/SearchResult.h"

#include <QAbstractProxyModel>
#include <QApplication>
#include <QHash>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr int MARGIN = 6;
constexpr int FIGURE_MARGIN = 20; ///< at the side where figures end, as wide as the arrow in the head
constexpr int VERTICAL_MARGIN = 4;
constexpr int ICON_SIDE = 16;
constexpr int MARK_PADDING = 4; ///< between a mark's frame and its text
constexpr int MARK_GAP = 4;
constexpr double MARK_RADIUS = 3.0;

QColor FindTextColor(QStyleOptionViewItem const& option)
{
    bool const isEnabled = option.state.testFlag(QStyle::State_Enabled);
    return GUI::GetColor(isEnabled ? GUI::ColorRole::Text : GUI::ColorRole::DisabledText);
}

QColor FindDimColor(QStyleOptionViewItem const& option)
{
    bool const isEnabled = option.state.testFlag(QStyle::State_Enabled);
    return GUI::GetColor(isEnabled ? GUI::ColorRole::DimText : GUI::ColorRole::DisabledText);
}

/// One line where the text fits, else two, the second one shortened.
QStringList BreakIntoLines(QString const& text, QFont const& font, int width)
{
    QFontMetrics const metrics(font);
    if (metrics.horizontalAdvance(text) <= width)
        return {text};
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine first = layout.createLine();
    first.setLineWidth(width);
    layout.endLayout();
    int const firstLength = first.textLength();
    return {metrics.elidedText(text.left(firstLength).trimmed(), Qt::ElideRight, width),
            metrics.elidedText(text.mid(firstLength), Qt::ElideRight, width)};
}

void PaintLines(QPainter& painter, QRect const& place, QStringList const& lines, Qt::Alignment side)
{
    int const lineHeight = painter.fontMetrics().height();
    int top = place.top() + (place.height() - lineHeight * lines.size()) / 2;
    for (QString const& line : lines)
    {
        QRect const linePlace(place.left(), top, place.width(), lineHeight);
        painter.drawText(linePlace, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine, line);
        top += lineHeight;
    }
}

void PaintName(QPainter& painter, QStyleOptionViewItem const& option, QRect const& place,
               ResultListModel::Line const& line)
{
    UseCases::SearchResult const& result = *line.row.result;
    QString const second = line.film.isEmpty() ? result.facts.release : line.film;
    QString const name = option.fontMetrics.elidedText(result.fileName, Qt::ElideMiddle, place.width());
    int const flags = static_cast<int>(QStyle::visualAlignment(option.direction, Qt::AlignLeft)) | Qt::TextSingleLine;
    if (second.isEmpty())
    {
        painter.drawText(place, flags | Qt::AlignVCenter, name);
        return;
    }
    int const middle = place.center().y();
    painter.drawText(
        QRect(place.left(), middle - option.fontMetrics.height(), place.width(), option.fontMetrics.height()), flags,
        name);
    painter.setPen(FindDimColor(option));
    painter.drawText(QRect(place.left(), middle, place.width(), option.fontMetrics.height()), flags,
                     option.fontMetrics.elidedText(second, Qt::ElideRight, place.width()));
}

void PaintMatch(QPainter& painter, QStyleOptionViewItem const& option, QRect const& place,
                ResultListModel::Line const& line)
{
    LevelSign const sign = GetSign(line.row.level);
    QRect const icon =
        QStyle::alignedRect(option.direction, Qt::AlignLeft | Qt::AlignVCenter, {ICON_SIDE, ICON_SIDE}, place);
    GUI::PaintIcon(painter, sign.icon, icon, GUI::GetColor(sign.color));
    QRect const text = QStyle::visualRect(option.direction, place, place.adjusted(ICON_SIDE + MARGIN, 0, 0, 0));
    PaintLines(painter, text, BreakIntoLines(line.row.match, option.font, text.width()),
               QStyle::visualAlignment(option.direction, Qt::AlignLeft));
}

int FindMarkWidth(QFontMetrics const& metrics, QString const& text)
{
    return metrics.horizontalAdvance(text) + 2 * MARK_PADDING;
}

struct PlacedMark
{
    QRect place; ///< in a cell that begins at 0, 0 and is as high as the marks need
    QString text;
    QColor color;
};

std::vector<PlacedMark> PlaceMarks(std::vector<ResultMark> const& marks, QFontMetrics const& metrics, int width,
                                   QColor const& ordinaryColor)
{
    QString const ellipsis = QStringLiteral("…");
    int const ellipsisWidth = FindMarkWidth(metrics, ellipsis);
    std::vector<PlacedMark> placed;
    QPoint next;
    for (std::size_t i = 0; i < marks.size(); ++i)
    {
        int const markWidth = FindMarkWidth(metrics, marks[i].shortText);
        bool const isFirstLine = next.y() == 0;
        bool const isLast = i + 1 == marks.size();
        int const reserved = isFirstLine || isLast ? 0 : MARK_GAP + ellipsisWidth;
        if (isFirstLine && next.x() > 0 && next.x() + markWidth > width)
            next = {0, metrics.height() + MARK_GAP / 2};
        else if (!isFirstLine && next.x() + markWidth + reserved > width)
        {
            placed.push_back({{next, QSize(ellipsisWidth, metrics.height())}, ellipsis, ordinaryColor});
            break;
        }
        QString const text = metrics.elidedText(marks[i].shortText, Qt::ElideRight, width - 2 * MARK_PADDING);
        placed.push_back({{next, QSize(std::min(markWidth, width), metrics.height())},
                          text,
                          marks[i].isWarning ? GUI::GetColor(GUI::ColorRole::Warning) : ordinaryColor});
        next.rx() += markWidth + MARK_GAP;
    }
    return placed;
}

/// Measures texts that come again and again.
class MarkMeter final
{
public:
    explicit MarkMeter(QFontMetrics const& metrics) : m_metrics(metrics) {}

    /// The least width at which two lines hold all marks.
    [[nodiscard]] int FindWidth(std::vector<ResultMark> const& marks)
    {
        int whole = 0;
        for (ResultMark const& mark : marks)
            whole += FindWidth(mark);
        int least = whole;
        int first = 0;
        for (ResultMark const& mark : marks)
        {
            first += FindWidth(mark);
            least = std::min(least, std::max(first, whole - first));
        }
        return least;
    }

private:
    [[nodiscard]] int FindWidth(ResultMark const& mark)
    {
        int& width = m_widths[mark.shortText];
        if (width == 0)
            width = FindMarkWidth(m_metrics, mark.shortText) + MARK_GAP;
        return width;
    }

    QFontMetrics const& m_metrics;
    QHash<QString, int> m_widths;
};

} // namespace

ResultListDelegate::ResultListDelegate(ResultListModel const& model, QObject* parent)
    : QStyledItemDelegate(parent),
      m_model(model)
{
}

ResultListDelegate::~ResultListDelegate() = default;

void ResultListDelegate::paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    QString const text = std::exchange(cell.text, QString());
    QStyle const& style = cell.widget != nullptr ? *cell.widget->style() : *QApplication::style();
    style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

    int const row = static_cast<QAbstractProxyModel const*>(index.model())->mapToSource(index).row();
    ResultListModel::Line const& line = m_model.GetLine(row);
    QRect const place = cell.rect.adjusted(MARGIN, 0, -MARGIN, 0);
    painter->save();
    painter->setClipRect(cell.rect);
    painter->setFont(cell.font);
    painter->setPen(FindTextColor(cell));
    switch (index.column())
    {
    case ResultListModel::NAME:
        PaintName(*painter, cell, place, line);
        break;
    case ResultListModel::MATCH:
        PaintMatch(*painter, cell, place, line);
        break;
    case ResultListModel::MARKS:
        PaintMarks(*painter, cell, place, row);
        break;
    case ResultListModel::DOWNLOADS:
    case ResultListModel::RATING:
    {
        QRect const figure = place.adjusted(0, 0, MARGIN - FIGURE_MARGIN, 0);
        int const side = static_cast<int>(QStyle::visualAlignment(cell.direction, cell.displayAlignment));
        painter->drawText(QStyle::visualRect(cell.direction, cell.rect, figure), side | Qt::TextSingleLine, text);
        break;
    }
    default:
        PaintLines(*painter, place, BreakIntoLines(text, cell.font, place.width()),
                   QStyle::visualAlignment(cell.direction, Qt::AlignLeft));
    }
    painter->restore();
}

/// As many as two lines hold; an ellipsis stands for the rest.
void ResultListDelegate::PaintMarks(QPainter& painter, QStyleOptionViewItem const& option, QRect const& place,
                                    int row) const
{
    std::vector<PlacedMark> const marks =
        PlaceMarks(m_model.GetLine(row).marks, option.fontMetrics, place.width(), FindDimColor(option));
    if (marks.empty())
        return;
    int const top = place.top() + (place.height() - marks.back().place.bottom() - 1) / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    for (PlacedMark const& mark : marks)
    {
        QRect const frame = QStyle::visualRect(option.direction, place, mark.place.translated(place.left(), top));
        painter.setPen(mark.color);
        painter.drawRoundedRect(QRectF(frame).adjusted(0.5, 0.5, -0.5, -0.5), MARK_RADIUS, MARK_RADIUS);
        painter.drawText(frame, Qt::AlignCenter | Qt::TextSingleLine, mark.text);
    }
}

/// The height alone: the view asks at each layout, and the columns have their widths.
QSize ResultListDelegate::sizeHint(QStyleOptionViewItem const& option, QModelIndex const& /*index*/) const
{
    return {1, 2 * option.fontMetrics.height() + MARK_GAP / 2 + 2 * VERTICAL_MARGIN};
}

int ResultListDelegate::FindColumnWidth(QFontMetrics const& metrics, int column) const
{
    struct Limits
    {
        int least;
        int most;
    };
    // In average characters: enough for two lines of most texts.
    static constexpr Limits LIMITS[ResultListModel::COLUMN_COUNT] = {{25, 25}, {10, 20}, {6, 13}, {4, 12},
                                                                     {4, 10},  {3, 6},   {6, 10}, {3, 6}};
    Limits const& limits = LIMITS[column];
    int const character = metrics.averageCharWidth();
    bool const isFigure = column == ResultListModel::DOWNLOADS || column == ResultListModel::RATING;
    int const more = column == ResultListModel::MATCH ? ICON_SIDE + MARGIN : isFigure ? FIGURE_MARGIN - MARGIN : 0;
    int const most = limits.most * character;
    MarkMeter marks(metrics);
    int widest = 0;
    for (int row = 0; row < m_model.rowCount() && widest < most; ++row)
    {
        QString const text = m_model.index(row, column).data().toString();
        if (column == ResultListModel::MARKS)
            widest = std::max(widest, marks.FindWidth(m_model.GetLine(row).marks));
        // Measuring takes time, and there may be hundreds of rows: what is surely narrower is left out.
        else if (text.size() * character * 2 > widest)
            widest = std::max(widest, metrics.horizontalAdvance(text));
    }
    return std::clamp(widest, limits.least * character, most) + more + 2 * MARGIN;
}

} // namespace Korvex::Converter::Subtitles::Details
