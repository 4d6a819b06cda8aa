// What the panel does when the user acts: reports, the font dialog and the popups.

#include "Subtitles/Details/EditingPanelForm.h"
#include "Subtitles/Details/ValueComboBox.h"

#include "Gui/ColorPickerButton.h"
#include "Gui/ComboBoxButton.h"
#include "Gui/DialogPlace.h"
#include "Gui/KComboBox.h"
#include "Gui/Style.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>
#include <QToolTip>

namespace Korvex::Converter::Subtitles::Details
{

using Adapters::ITrackEditorEventObserver;
using Entities::SubtitleAlign;
using Entities::SubtitleEncoding;
using Entities::SubtitleTrackID;

namespace
{

/// What a request to find subtitles says of where it comes from.
constexpr char const* FIND_FILE_SOURCE = "editingPanel";
/// Between a button and its drop-down, in pixels.
constexpr int DROP_DOWN_GAP = 3;

/// The font, or where its family is not installed the one that stands in for it.
QFont FindInstalledFont(QFont font)
{
    if (!QFontDatabase().families().contains(font.family()))
        font.setFamily(QFontInfo(font).family());
    return font;
}

} // namespace

template <typename Event>
void EditingPanel::ReportEdit(Event const& event)
{
    m_editorObservers.Notify(event);
    Q_EMIT Changed();
}

template <typename Event>
void EditingPanel::ReportChoice(Event const& event)
{
    m_collectionObservers.Notify(event);
    RefreshCaption();
    Q_EMIT Changed();
}

void EditingPanel::WireEditor()
{
    QObject* const context = m_form->connections.get();
    QPushButton* const info = m_form->outputSubsInfoButton;
    connect(info, &QPushButton::clicked, context,
            [info] { QToolTip::showText(info->mapToGlobal(QPoint(0, 0)), info->toolTip(), info); });
    connect(m_form->selectFontButton, &QToolButton::clicked, context, [this] { SelectFont(); });
    connect(m_form->encodingComboBox, qOverload<int>(&QComboBox::currentIndexChanged), context,
            [this](int index)
            {
                auto const encoding = GetValueAt<SubtitleEncoding>(*m_form->encodingComboBox, index);
                ReportEdit([encoding](auto* observer) { observer->OnEncodingChanged(encoding); });
            });
    connect(m_form->alignComboBox, qOverload<int>(&QComboBox::currentIndexChanged), context,
            [this](int index)
            {
                auto const align = GetValueAt<SubtitleAlign>(*m_form->alignComboBox, index);
                ReportEdit([align](auto* observer)
                           { observer->OnAlignChanged(align, ITrackEditorEventObserver::ByUser); });
            });
    connect(m_form->textColorPicker, &GUI::ColorPickerButton::ColorChanged, context,
            [this](QColor const& color)
            { ReportEdit([color](auto* observer) { observer->OnTextColorChanged(color); }); });
    connect(m_form->outlineColorPicker, &GUI::ColorPickerButton::ColorChanged, context,
            [this](QColor const& color)
            { ReportEdit([color](auto* observer) { observer->OnOutlineColorChanged(color); }); });
}

void EditingPanel::WireSpinBoxes()
{
    QObject* const context = m_form->connections.get();
    connect(m_form->alignSlider, &QSlider::valueChanged, m_form->alignSpinBox, &QSpinBox::setValue);
    connect(m_form->alignSpinBox, qOverload<int>(&QSpinBox::valueChanged), context,
            [this](int shiftLines)
            {
                {
                    QSignalBlocker const blocker(m_form->alignSlider);
                    m_form->alignSlider->setValue(shiftLines);
                }
                ReportEdit([shiftLines](auto* observer) { observer->OnPositionShiftChanged(shiftLines); });
            });
    connect(m_form->syncSpinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), context,
            [this](double offsetSeconds)
            {
                QString text;
                if (offsetSeconds < 0.0)
                    text = m_form->hastenedText;
                else if (offsetSeconds > 0.0)
                    text = m_form->delayedText;
                m_form->hastenLabel->setText(text);
                ReportEdit([offsetSeconds](auto* observer)
                           { observer->OnSynchronizationOffsetChanged(offsetSeconds); });
            });
}

void EditingPanel::WireTrackList()
{
    QObject* const context = m_form->connections.get();
    SubtitleCollection* const list = m_form->trackList;
    connect(list, &SubtitleCollection::NoSubtitlesSelected, context,
            [this] { ReportChoice([](auto* observer) { observer->OnNoSubtitlesSelected(); }); });
    connect(list, &SubtitleCollection::AllSoftSubtitlesSelected, context,
            [this] { ReportChoice([](auto* observer) { observer->OnAllSoftSubtitlesSelected(); }); });
    connect(list, &SubtitleCollection::SubtitleTrackSelected, context,
            [this](SubtitleTrackID const& id)
            { ReportChoice([id](auto* observer) { observer->OnSubtitleTrackSelected(id); }); });
    connect(list, &SubtitleCollection::ExtractSubtitleRequested, context,
            [this](SubtitleTrackID const& id)
            { m_collectionObservers.Notify([id](auto* observer) { observer->OnExtractSubtitleRequested(id); }); });
}

void EditingPanel::WireSourceSelector()
{
    QObject* const context = m_form->connections.get();
    auto const hidePopup = [this]
    {
        if (m_form->popup)
            m_form->popup->hide();
    };
    connect(m_form->sourceSelector, &SubtitleSourceSelector::ChooseFileRequested, context,
            [this, hidePopup]
            {
                m_collectionObservers.Notify([](auto* observer) { observer->OnChooseFileRequested(); });
                hidePopup();
            });
    connect(m_form->sourceSelector, &SubtitleSourceSelector::FindFileRequested, context,
            [this, hidePopup]
            {
                m_collectionObservers.Notify([](auto* observer) { observer->OnFindFileRequested(FIND_FILE_SOURCE); });
                hidePopup();
            });
}

void EditingPanel::WirePopups()
{
    QObject* const context = m_form->connections.get();
    connect(m_form->addSubtitlesButton, &GUI::ComboBoxButton::clicked, context,
            [this]
            {
                ShowPopup(*m_form->sourceSelector, QStringLiteral("selectSubtitleFileMenu"),
                          *m_form->addSubtitlesButton);
                PlacePopup(*m_form->addSubtitlesButton);
            });
    connect(m_form->selectSubtitlesTrackButton, &GUI::ComboBoxButton::clicked, context,
            [this]
            {
                ShowPopup(*m_form->trackList, QStringLiteral("subtitleCollection"),
                          *m_form->selectSubtitlesTrackButton);
                Q_EMIT AddSubtitleTrackRequested();
                PlacePopup(*m_form->selectSubtitlesTrackButton);
            });
}

/// The observers are told also when the user cancels: a report on every click is part of the contract.
void EditingPanel::SelectFont()
{
    QPointer<EditingPanel> const self = m_form->panel;
    QPointer<QFontDialog> const dialog = new QFontDialog(this);
    auto* const buttons = dialog->findChild<QDialogButtonBox*>();
    dialog->setOption(QFontDialog::DontUseNativeDialog);
    dialog->setWindowFlags(dialog->windowFlags() | Qt::WindowCloseButtonHint);
    Util::ApplyWidgetStyle(buttons->button(QDialogButtonBox::Ok), QStringLiteral("activeButton"), "styleHint");
    Util::ApplyWidgetStyle(buttons->button(QDialogButtonBox::Cancel), QStringLiteral("rejectButton"), "styleHint");
    for (QAbstractButton* button : buttons->buttons())
        button->setIcon({}); // some desktops want one, in the style of this panel
    GUI::RoundWidgetCorners(dialog);
    dialog->setCurrentFont(FindInstalledFont(m_form->font));
    GUI::PlaceInCorner(*dialog);
    QString const shownFamily = dialog->currentFont().family();
    int const result = dialog->exec();
    if (!self || !dialog) // the host may close the window below the dialog
        return;
    if (result == QDialog::Accepted)
    {
        QFont chosen = dialog->selectedFont();
        if (chosen.family() == shownFamily) // what stands in was not chosen
            chosen.setFamily(m_form->font.family());
        SetFont(chosen);
    }
    delete dialog;
    ReportEdit([font = m_form->font](auto* observer) { observer->OnFontChanged(font); });
}

void EditingPanel::RefreshCaption()
{
    m_form->selectSubtitlesTrackButton->SetButtonText(QString::fromStdString(GetCurrentTitle()));
}

void EditingPanel::ShowPopup(QWidget& content, QString const& objectName, GUI::DropDownButton& anchor)
{
    content.setObjectName(objectName);
    content.setWindowFlags(Qt::Popup);
    if (m_form->popup)
    {
        m_form->popup->hide();
        m_form->ReleaseContent(); // a popup in a hidden window closes in silence
        delete m_form->popup;
    }
    content.setAttribute(Qt::WA_DontShowOnScreen, false);
    // As wide as the button, or wider where its words need it; long track names are shortened instead.
    content.setMinimumWidth(anchor.width());
    if (&content == m_form->trackList)
        content.setMaximumWidth(anchor.width());
    m_form->popup = new GUI::ModalPopup(this);
    m_form->popup->SetPopup(&content);
    connect(m_form->popup, &GUI::ModalPopup::Closed, m_form->connections.get(),
            [this, button = &anchor]
            {
                m_form->ReleaseContent();
                button->OnHideDropDown();
            });
    GUI::SetRoundedProperty(m_form->popup);
    GUI::RoundWidgetCorners(m_form->popup);
}

void EditingPanel::PlacePopup(QWidget const& anchor)
{
    GUI::ModalPopup& popup = *m_form->popup;
    popup.show();
    popup.raise();
    popup.setGeometry(0, 0, width(), height());
    QPoint const corner = anchor.mapTo(this, QPoint(anchor.width(), anchor.height()));
    popup.SetPopupPosition({corner.x() - popup.GetPopupGeometry().width(), corner.y() + DROP_DOWN_GAP});
}

} // namespace Korvex::Converter::Subtitles::Details
