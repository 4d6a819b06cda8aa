#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/SubtitleTrack.h"
#include "Subtitles/Entities/SubtitleTrackID.h"

#include <QFrame>

#include <functional>
#include <memory>

namespace Korvex::Converter::Subtitles::Details
{

/// The track list: a row "No subtitles", a row "Leave all tracks (softsub)", then the tracks in the order in which they
/// were added, each with a button that asks for its extraction. Exactly one row is the current one, at first the
/// second. Setters emit nothing; signals come from the user alone. As the content of a `ModalPopup` it closes that
/// popup after a choice. GUI thread.
class KVSUBTITLES_API SubtitleCollection : public QFrame
{
    Q_OBJECT
public:
    /// Opens a menu for a track at a place of the screen.
    using TrackMenuHandler = std::function<void(Entities::SubtitleTrackID const&, QPoint const& globalPosition)>;

    explicit SubtitleCollection(QWidget* parent = nullptr);
    ~SubtitleCollection() override;

    void AddTrack(Entities::SubtitleTrack const& track);
    /// Removes the tracks; the current row is "No subtitles" then.
    void Clear();
    /// A track that is not in the list leaves the current row as it is.
    void SetCurrentTrack(Entities::SubtitleTrackID const& id);
    void SetWithoutSubtitles();
    void SetAllSoftSubtitles();
    /// The second row can be chosen; where it cannot, its tool tip says why.
    void SetSoftSubAvailable(bool available);

    [[nodiscard]] bool IsSetWithoutSubtitles() const;
    [[nodiscard]] bool IsSetAllSoftSubtitles() const;
    [[nodiscard]] QString GetTitleWithoutSubtitles() const;
    [[nodiscard]] QString GetTitleAllSoftSub() const;
    /// The label of the current track; empty when the current row is none.
    [[nodiscard]] QString GetTitleCurrentTrack() const;
    /// Of the current row, whichever of the three kinds it is.
    [[nodiscard]] QString GetTitleOfChoice() const;

    /// What the menu key and the right mouse button do on a track's row; nothing without a handler.
    void SetTrackMenuHandler(TrackMenuHandler handler);

Q_SIGNALS:
    void NoSubtitlesSelected();
    void AllSoftSubtitlesSelected();
    void SubtitleTrackSelected(Entities::SubtitleTrackID const& id);
    void ExtractSubtitleRequested(Entities::SubtitleTrackID const& id);

protected:
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();

    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::Details
