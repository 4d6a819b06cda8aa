#pragma once

#include "Subtitles/Adapters/IEditingPanel.h"
#include "Subtitles/Details/SubtitleCollection.h"
#include "Subtitles/Entities/Export.h"

#include "Gui/KFrame.h"

#include <functional>

namespace Korvex::GUI
{
class DropDownButton;
}

namespace Korvex::Converter::Subtitles::Details
{

/// The side panel in which the user chooses which subtitles of one film go out and how drawn text looks. A passive
/// view: presenters push values in, every edit goes out to the observers, synchronously, and then as `Changed`. Whoever
/// hears of an edit may change anything in the panel but not destroy it: the widget that is just being used is a part
/// of it. GUI thread.
class KVSUBTITLES_API EditingPanel : public KFrame, public Adapters::IEditingPanel
{
    Q_OBJECT
public:
    EditingPanel();
    ~EditingPanel() override;

    // ITrackEditor
    void RegisterEventHandler(Adapters::ITrackEditorEventObserver* observer) override;
    void UnregisterEventHandler(Adapters::ITrackEditorEventObserver* observer) override;
    void FillEncodingComboBox(std::vector<Entities::SubtitleEncoding> const& encodings) override;
    void FillAligmentComboBox(std::vector<Entities::SubtitleAlign> const& aligns) override;
    void SetFont(QFont const& font) override;
    void SetTextColor(QColor const& color) override;
    void SetOutlineColor(QColor const& color) override;
    void SetEncoding(Entities::SubtitleEncoding encoding) override;
    void SetAlign(Entities::SubtitleAlign align) override;
    void SetSynchronizationOffset(double offsetSeconds) override;
    void SetPositionShift(int shiftLines) override;
    void FontEnabled(bool enabled) override;
    void TextColorEnabled(bool enabled) override;
    void OutlineColorEnabled(bool enabled) override;
    void EncodingEnabled(bool enabled) override;
    void AlignEnabled(bool enabled) override;
    void SynchronizationOffsetEnabled(bool enabled) override;
    void PositionShiftEnabled(bool enabled) override;
    void Hide() override;
    void Enabled(bool enabled) override;
    void HideSubtitleCollectiondWidget(bool hide) override;

    // ISubtitleCollection
    void RegisterEventHandler(Adapters::ISubtitleCollectionEventObserver* observer) override;
    void UnregisterEventHandler(Adapters::ISubtitleCollectionEventObserver* observer) override;
    void AddSubtitleTrack(Entities::SubtitleTrack const& track) override;
    void ClearTracks() override;
    void SetApplyToAllFiles(bool apply) override;
    void SetCurrentTrack(Entities::SubtitleTrackID const& id) override;
    void SetWithoutSubtitles() override;
    void SetAllSoftSubtitles() override;
    void SetSoftSubAvailable(bool available) override;
    [[nodiscard]] bool GetApplyToAllFiles() override;
    [[nodiscard]] std::string GetCurrentTitle() override;

    /// Called by `Enabled` with its flag; replaces the handler that was there.
    void SetDisableEditorHandler(std::function<void(bool)> const& handler);
    /// Called by `Enabled` after the other one.
    void SetDisablePlayerControlPanelHandler(std::function<void(bool)> const& handler);
    /// A menu for the tracks in the list; none without a handler.
    void SetTrackMenuHandler(SubtitleCollection::TrackMenuHandler const& handler);

Q_SIGNALS:
    /// The user opened the track list.
    void AddSubtitleTrackRequested();
    /// After every edit by the user that reached the observers.
    void Changed();

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Form;

    /// An edit by the user: the observers hear of it first, then everybody else.
    template <typename Event>
    void ReportEdit(Event const& event);
    template <typename Event>
    void ReportChoice(Event const& event);

    void WireEditor();
    void WireSpinBoxes();
    void WireTrackList();
    void WireSourceSelector();
    void WirePopups();
    void SelectFont();
    void RefreshCaption();
    void ShowPopup(QWidget& content, QString const& objectName, GUI::DropDownButton& anchor);
    void PlacePopup(QWidget const& anchor);

    Form* m_form; ///< owned
    Core::EventHandlerList<Adapters::ITrackEditorEventObserver, Core::SyncExecutePolicy> m_editorObservers;
    Core::EventHandlerList<Adapters::ISubtitleCollectionEventObserver, Core::SyncExecutePolicy> m_collectionObservers;
};

} // namespace Korvex::Converter::Subtitles::Details
