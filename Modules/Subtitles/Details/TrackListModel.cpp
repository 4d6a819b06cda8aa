#include "Subtitles/Details/TrackListModel.h"

#include <algorithm>
#include <utility>

namespace Korvex::Converter::Subtitles::Details
{

using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;

namespace
{

QString MakeLabel(SubtitleTrack const& track)
{
    return QString::fromStdString(GenerateLabel(track));
}

} // namespace

int TrackListModel::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : FIRST_TRACK_ROW + static_cast<int>(m_tracks.size());
}

QVariant TrackListModel::data(QModelIndex const& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    bool const isRefused = index.row() == ALL_SOFT_ROW && !m_isSoftSubAvailable;
    switch (role)
    {
    case Qt::DisplayRole:
        return GetTitle(index.row());
    case Qt::ToolTipRole:
        return isRefused ? ExplainWhyNotSoft() : GetTitle(index.row());
    case Qt::AccessibleDescriptionRole:
        if (isRefused)
            return ExplainWhyNotSoft();
        return index.row() == m_chosenRow ? tr("Current choice") : QString();
    default:
        return {};
    }
}

Qt::ItemFlags TrackListModel::flags(QModelIndex const& index) const
{
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    flags.setFlag(Qt::ItemIsEnabled, index.row() != ALL_SOFT_ROW || m_isSoftSubAvailable);
    return flags;
}

void TrackListModel::AddTrack(SubtitleTrack const& track)
{
    if (auto const row = FindTrack(track.id))
    {
        m_tracks[static_cast<std::size_t>(*row - FIRST_TRACK_ROW)] = {track, MakeLabel(track)};
        ReportChange(*row);
        return;
    }
    beginInsertRows({}, rowCount(), rowCount());
    m_tracks.push_back({track, MakeLabel(track)});
    endInsertRows();
}

void TrackListModel::ClearTracks()
{
    SetChosenRow(WITHOUT_SUBTITLES_ROW);
    if (m_tracks.empty())
        return;
    beginRemoveRows({}, FIRST_TRACK_ROW, rowCount() - 1);
    m_tracks.clear();
    endRemoveRows();
}

void TrackListModel::SetSoftSubAvailable(bool available)
{
    m_isSoftSubAvailable = available;
    ReportChange(ALL_SOFT_ROW);
}

void TrackListModel::SetChosenRow(int row)
{
    int const before = std::exchange(m_chosenRow, row);
    ReportChange(before);
    ReportChange(row);
}

void TrackListModel::Retranslate()
{
    for (Track& entry : m_tracks)
        entry.label = MakeLabel(entry.track);
    Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

QString TrackListModel::GetTitle(int row) const
{
    if (row == WITHOUT_SUBTITLES_ROW)
        return tr("No subtitles");
    if (row == ALL_SOFT_ROW)
        return tr("Leave all tracks (softsub)");
    return TrackOfRow(row).label;
}

std::optional<SubtitleTrackID> TrackListModel::GetTrackAt(int row) const
{
    if (row < FIRST_TRACK_ROW || row >= rowCount())
        return std::nullopt;
    return TrackOfRow(row).track.id;
}

std::optional<int> TrackListModel::FindTrack(SubtitleTrackID const& id) const
{
    auto const found =
        std::find_if(m_tracks.begin(), m_tracks.end(), [&](Track const& entry) { return entry.track.id == id; });
    if (found == m_tracks.end())
        return std::nullopt;
    return FIRST_TRACK_ROW + static_cast<int>(found - m_tracks.begin());
}

TrackListModel::Track const& TrackListModel::TrackOfRow(int row) const
{
    return m_tracks[static_cast<std::size_t>(row - FIRST_TRACK_ROW)];
}

QString TrackListModel::ExplainWhyNotSoft() const
{
    if (m_tracks.empty())
        return tr("There are no subtitle tracks yet. Add a subtitle file first.");
    return tr("The chosen output format cannot carry these tracks. Choose another format, or burn one track in.");
}

void TrackListModel::ReportChange(int row)
{
    Q_EMIT dataChanged(index(row), index(row));
}

} // namespace Korvex::Converter::Subtitles::Details
