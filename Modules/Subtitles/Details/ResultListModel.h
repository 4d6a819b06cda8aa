#pragma once

#include "Subtitles/Adapters/IOnlineSearchDialog.h"
#include "Subtitles/Details/ResultListMarks.h"

#include <QAbstractTableModel>
#include <QCoreApplication>

#include <vector>

namespace Korvex::Converter::Subtitles::Details
{

/// The hits of a search in the order in which they come, which is their rank. Texts are made when the rows are set and
/// again by `Retranslate`, because painting and filtering ask for them all the time. GUI thread.
class ResultListModel final : public QAbstractTableModel
{
    Q_DECLARE_TR_FUNCTIONS(ResultList)

public:
    enum Column
    {
        NAME,
        MATCH,
        LANGUAGE,
        MARKS,
        DOWNLOADS,
        RATING,
        UPLOADED,
        FORMAT,
        COLUMN_COUNT,
    };

    struct Line
    {
        Adapters::OnlineSearchRow row;
        QString film;   ///< "Title (2010)", "Series S02E05"; empty when unknown
        QString format; ///< "SRT"
        QString language;
        QString downloads;
        QString rating;
        QString uploaded;
        std::vector<ResultMark> marks;
        QString foldedText; ///< all that the filter looks through
    };

    explicit ResultListModel(QObject* parent = nullptr);
    ~ResultListModel() override;

    /// Rows without a result are left out.
    void SetRows(std::vector<Adapters::OnlineSearchRow> const& rows);
    void Retranslate();
    [[nodiscard]] Line const& GetLine(int row) const { return m_lines[static_cast<std::size_t>(row)]; }
    [[nodiscard]] static QString GetTitle(int column);

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] static QString GetText(Line const& line, int column);
    [[nodiscard]] static QString GetToolTip(Line const& line, int column);
    [[nodiscard]] static QString GetSpokenText(Line const& line, int column);

    std::vector<Line> m_lines;
};

} // namespace Korvex::Converter::Subtitles::Details
