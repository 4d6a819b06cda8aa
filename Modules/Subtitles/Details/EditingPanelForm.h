#pragma once

#include "Subtitles/Details/EditingPanel.h"
#include "Subtitles/Details/SubtitleSourceSelector.h"

#include "Gui/ModalPopup.h"

#include <QCoreApplication>
#include <QFont>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>

class KComboBox;
class QDoubleSpinBox;
class QLabel;
class QPushButton;
class QSlider;
class QSpinBox;
class QToolButton;

namespace Korvex::GUI
{
class ColorPickerButton;
class ComboBoxButton;
} // namespace Korvex::GUI

namespace Korvex::Converter::Subtitles::Details
{

/// What the panel is made of: its widgets, their layout and their texts. The host's style sheet finds the widgets by
/// their object names.
struct EditingPanel::Form
{
    Q_DECLARE_TR_FUNCTIONS(EditingPanel)

public:
    explicit Form(EditingPanel& owner);
    /// Deletes what may have no parent: the contents of the popups.
    ~Form();
    Form(Form const&) = delete;
    Form& operator=(Form const&) = delete;

    void Arrange();
    void Retranslate();
    /// Shows the font's name on its button.
    void ShowFont();
    /// Takes the content out of the popup, so that it outlives it.
    void ReleaseContent();

    // Children of the panel, which deletes them.
    QLabel* headerLabel;
    QPushButton* outputSubsInfoButton;
    GUI::ComboBoxButton* addSubtitlesButton;
    QLabel* selectTrackLabel;
    GUI::ComboBoxButton* selectSubtitlesTrackButton;
    GUI::ColorPickerButton* textColorPicker;
    GUI::ColorPickerButton* outlineColorPicker;
    QToolButton* selectFontButton;
    QLabel* encodingLabel;
    KComboBox* encodingComboBox;
    QLabel* alignLabel;
    KComboBox* alignComboBox;
    QSlider* alignSlider;
    QSpinBox* alignSpinBox;
    QLabel* syncLabel;
    QDoubleSpinBox* syncSpinBox;
    QLabel* hastenLabel;

    // Children of the popup while they are shown there, and nobody's otherwise.
    QPointer<SubtitleSourceSelector> sourceSelector;
    QPointer<SubtitleCollection> trackList;

    QPointer<GUI::ModalPopup> popup; ///< the last one opened; at most one exists
    QPointer<EditingPanel> panel;
    QFont font;
    QString hastenedText;
    QString delayedText;
    std::function<void(bool)> enabledHandler; ///< nobody sets it yet
    std::function<void(bool)> disableEditorHandler;
    std::function<void(bool)> disablePlayerControlPanelHandler;

    std::unique_ptr<QObject> connections; ///< context of every connection: no signal arrives once the form is going

private:
    void SetRanges();
    void Describe();
};

} // namespace Korvex::Converter::Subtitles::Details
