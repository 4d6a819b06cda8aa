#pragma once

#include "Subtitles/Entities/SubtitleTrack.h"
#include "Subtitles/Entities/SubtitleTrackID.h"

#include <QAbstractListModel>
#include <QCoreApplication>

#include <optional>
#include <vector>

namespace Korvex::Converter::Subtitles::Details
{

/// The rows of a track list and which of them is the choice. The labels of tracks are made once and again by
/// `Retranslate`, all other texts when they are asked for. GUI thread.
class TrackListModel final : public QAbstractListModel
{
    Q_DECLARE_TR_FUNCTIONS(SubtitleCollection)

public:
    static constexpr int WITHOUT_SUBTITLES_ROW = 0;
    static constexpr int ALL_SOFT_ROW = 1;
    static constexpr int FIRST_TRACK_ROW = 2;

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(QModelIndex const& index) const override;

    /// A track that is in the list already takes the place of the old one.
    void AddTrack(Entities::SubtitleTrack const& track);
    /// Removes the tracks; the choice is "No subtitles" then.
    void ClearTracks();
    void SetSoftSubAvailable(bool available);
    void SetChosenRow(int row);
    [[nodiscard]] int GetChosenRow() const { return m_chosenRow; }
    /// Makes the labels anew, in the present language, and tells the views to ask for all texts again.
    void Retranslate();

    [[nodiscard]] QString GetTitle(int row) const;
    /// The track of a row; none for the first two rows.
    [[nodiscard]] std::optional<Entities::SubtitleTrackID> GetTrackAt(int row) const;
    [[nodiscard]] std::optional<int> FindTrack(Entities::SubtitleTrackID const& id) const;

private:
    struct Track
    {
        Entities::SubtitleTrack track;
        QString label;
    };

    [[nodiscard]] Track const& TrackOfRow(int row) const;
    [[nodiscard]] QString ExplainWhyNotSoft() const;
    void ReportChange(int row);

    std::vector<Track> m_tracks;
    int m_chosenRow = ALL_SOFT_ROW;
    bool m_isSoftSubAvailable = true;
};

} // namespace Korvex::Converter::Subtitles::Details
