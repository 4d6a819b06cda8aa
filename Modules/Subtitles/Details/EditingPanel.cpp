#include "Subtitles/Details/EditingPanel.h"

#include "Subtitles/Details/EditingPanelForm.h"
#include "Subtitles/Details/ValueComboBox.h"

#include "Gui/ColorPickerButton.h"
#include "Gui/ComboBoxButton.h"
#include "Gui/KComboBox.h"

#include <QDoubleSpinBox>
#include <QEvent>
#include <QFontDialog>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>
#include <QStyleFactory>
#include <QToolButton>

namespace Korvex::Converter::Subtitles::Details
{

using Adapters::ITrackEditorEventObserver;
using Entities::SubtitleAlign;
using Entities::SubtitleEncoding;
using Entities::SubtitleTrackID;

namespace
{

/// A widget does not own the style that is set on it; as its child the style goes with it.
void SetOwnStyle(QWidget& widget, QString const& name)
{
    QStyle* const style = QStyleFactory::create(name);
    style->setParent(&widget);
    widget.setStyle(style);
}

} // namespace

EditingPanel::EditingPanel() : m_form(new Form(*this))
{
    m_form->Arrange();
    m_form->trackList = new SubtitleCollection;
    m_form->trackList->setObjectName(QStringLiteral("subtitleCollection"));
    SetOwnStyle(*m_form->encodingComboBox, QStringLiteral("Windows"));
    SetOwnStyle(*m_form->alignComboBox, QStringLiteral("Windows"));
    m_form->Retranslate();
    WireEditor();
    WireSpinBoxes();
    WireSourceSelector();
    WireTrackList();
    WirePopups();
    SetOwnStyle(*this, QStringLiteral("Fusion"));
}

EditingPanel::~EditingPanel()
{
    if (QFontDialog* const dialog = findChild<QFontDialog*>())
    {
        delete dialog; // looks at its parent while it closes
        // The click that opened the dialog ends only now, and the button looks at itself then.
        m_form->selectFontButton->setParent(nullptr);
        m_form->selectFontButton->deleteLater();
    }
    delete m_form;
}

void EditingPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
    {
        m_form->Retranslate();
        // The track list is nobody's child and hears of the new language on its own, maybe only after the panel.
        QMetaObject::invokeMethod(
            m_form->connections.get(), [this] { RefreshCaption(); }, Qt::QueuedConnection);
    }
    KFrame::changeEvent(event);
}

void EditingPanel::RegisterEventHandler(ITrackEditorEventObserver* observer)
{
    m_editorObservers.RegisterEventHandler(observer);
}

void EditingPanel::UnregisterEventHandler(ITrackEditorEventObserver* observer)
{
    m_editorObservers.UnregisterEventHandler(observer);
}

void EditingPanel::FillEncodingComboBox(std::vector<SubtitleEncoding> const& encodings)
{
    FillWithValues(*m_form->encodingComboBox, encodings);
}

void EditingPanel::FillAligmentComboBox(std::vector<SubtitleAlign> const& aligns)
{
    FillWithValues(*m_form->alignComboBox, aligns);
}

void EditingPanel::SetFont(QFont const& font)
{
    m_form->font = font;
    m_form->ShowFont();
}

void EditingPanel::SetTextColor(QColor const& color)
{
    if (m_form->textColorPicker->Color() != color)
        m_form->textColorPicker->SetColor(color);
}

void EditingPanel::SetOutlineColor(QColor const& color)
{
    if (m_form->outlineColorPicker->Color() != color)
        m_form->outlineColorPicker->SetColor(color);
}

void EditingPanel::SetEncoding(SubtitleEncoding encoding)
{
    SelectValue(*m_form->encodingComboBox, encoding);
}

void EditingPanel::SetAlign(SubtitleAlign align)
{
    SelectValue(*m_form->alignComboBox, align);
    m_editorObservers.Notify([align](auto* observer)
                             { observer->OnAlignChanged(align, ITrackEditorEventObserver::ByPresenter); });
}

void EditingPanel::SetSynchronizationOffset(double offsetSeconds)
{
    m_form->syncSpinBox->setValue(offsetSeconds);
}

void EditingPanel::SetPositionShift(int shiftLines)
{
    m_form->alignSpinBox->setValue(shiftLines);
}

void EditingPanel::FontEnabled(bool enabled)
{
    m_form->selectFontButton->setEnabled(enabled);
}

void EditingPanel::TextColorEnabled(bool enabled)
{
    m_form->textColorPicker->setEnabled(enabled);
}

void EditingPanel::OutlineColorEnabled(bool enabled)
{
    m_form->outlineColorPicker->setEnabled(enabled);
}

void EditingPanel::EncodingEnabled(bool enabled)
{
    m_form->encodingLabel->setEnabled(enabled);
    m_form->encodingComboBox->setEnabled(enabled);
}

void EditingPanel::AlignEnabled(bool enabled)
{
    m_form->alignLabel->setEnabled(enabled);
    m_form->alignComboBox->setEnabled(enabled);
}

void EditingPanel::SynchronizationOffsetEnabled(bool enabled)
{
    m_form->syncLabel->setEnabled(enabled);
    m_form->syncSpinBox->setEnabled(enabled);
}

void EditingPanel::PositionShiftEnabled(bool enabled)
{
    m_form->alignSpinBox->setEnabled(enabled);
    m_form->alignSlider->setEnabled(enabled);
}

void EditingPanel::Hide()
{
    hide();
}

void EditingPanel::Enabled(bool enabled)
{
    setEnabled(enabled);
    if (m_form->disableEditorHandler)
        m_form->disableEditorHandler(enabled);
    if (m_form->disablePlayerControlPanelHandler)
        m_form->disablePlayerControlPanelHandler(enabled);
}

void EditingPanel::HideSubtitleCollectiondWidget(bool hide)
{
    // Outside its popup the list has no place of its own: it counts as shown, but no window appears for it.
    m_form->trackList->setAttribute(Qt::WA_DontShowOnScreen, m_form->trackList->isWindow());
    m_form->trackList->setVisible(!hide);
}

void EditingPanel::RegisterEventHandler(Adapters::ISubtitleCollectionEventObserver* observer)
{
    m_collectionObservers.RegisterEventHandler(observer);
}

void EditingPanel::UnregisterEventHandler(Adapters::ISubtitleCollectionEventObserver* observer)
{
    m_collectionObservers.UnregisterEventHandler(observer);
}

void EditingPanel::AddSubtitleTrack(Entities::SubtitleTrack const& track)
{
    m_form->trackList->AddTrack(track);
}

void EditingPanel::ClearTracks()
{
    m_form->trackList->Clear();
}

void EditingPanel::SetApplyToAllFiles(bool /*apply*/) {}

void EditingPanel::SetCurrentTrack(SubtitleTrackID const& id)
{
    m_form->trackList->SetCurrentTrack(id);
    RefreshCaption();
}

void EditingPanel::SetWithoutSubtitles()
{
    m_form->trackList->SetWithoutSubtitles();
    RefreshCaption();
}

void EditingPanel::SetAllSoftSubtitles()
{
    m_form->trackList->SetAllSoftSubtitles();
    RefreshCaption();
}

void EditingPanel::SetSoftSubAvailable(bool available)
{
    if (m_form->trackList)
        m_form->trackList->SetSoftSubAvailable(available);
}

bool EditingPanel::GetApplyToAllFiles()
{
    return false;
}

std::string EditingPanel::GetCurrentTitle()
{
    return m_form->trackList ? m_form->trackList->GetTitleOfChoice().toStdString() : std::string();
}

void EditingPanel::SetDisableEditorHandler(std::function<void(bool)> const& handler)
{
    m_form->disableEditorHandler = handler;
}

void EditingPanel::SetDisablePlayerControlPanelHandler(std::function<void(bool)> const& handler)
{
    m_form->disablePlayerControlPanelHandler = handler;
}

void EditingPanel::SetTrackMenuHandler(SubtitleCollection::TrackMenuHandler const& handler)
{
    m_form->trackList->SetTrackMenuHandler(handler);
}

} // namespace Korvex::Converter::Subtitles::Details
