#include "Subtitles/Details/EditingPanelForm.h"

#include "Subtitles/Details/ValueComboBox.h"

#include "Gui/ColorPickerButton.h"
#include "Gui/ComboBoxButton.h"
#include "Gui/KComboBox.h"
#include "Gui/Style.h"

#include <QBoxLayout>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>

#include <initializer_list>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr int PANEL_MARGIN = 16;
constexpr int GROUP_SPACING = 8;
constexpr int FONT_NAME_WIDTH = 96;
constexpr int HELP_BUTTON_SIZE = 28;

template <typename Widget>
Widget* Make(char const* objectName)
{
    auto* const widget = new Widget;
    widget->setObjectName(QLatin1String(objectName));
    return widget;
}

/// A group: a frame with a layout of its own.
struct Group
{
    explicit Group(char const* objectName, QBoxLayout::Direction direction = QBoxLayout::LeftToRight)
        : frame(Make<KFrame>(objectName)),
          layout(new QBoxLayout(direction, frame))
    {
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(GROUP_SPACING);
    }

    KFrame* frame;
    QBoxLayout* layout;
};

KFrame* MakeRow(char const* objectName, QWidget* widget)
{
    Group const row(objectName);
    row.layout->addWidget(widget);
    return row.frame;
}

/// A caption may be longer than the panel is wide, in some languages.
void MakeCaption(QLabel& label, QWidget& buddy)
{
    label.setBuddy(&buddy);
    label.setWordWrap(true);
}

} // namespace

EditingPanel::Form::Form(EditingPanel& owner)
    : headerLabel(Make<QLabel>("headerLabel")),
      outputSubsInfoButton(Make<QPushButton>("outputSubsInfoButton")),
      addSubtitlesButton(Make<GUI::ComboBoxButton>("addSubtitlesButton")),
      selectTrackLabel(Make<QLabel>("selectTrackLabel")),
      selectSubtitlesTrackButton(Make<GUI::ComboBoxButton>("selectSubtitlesTrackButton")),
      textColorPicker(Make<GUI::ColorPickerButton>("textColorPicker")),
      outlineColorPicker(Make<GUI::ColorPickerButton>("outlineColorPicker")),
      selectFontButton(Make<QToolButton>("selectFontButton")),
      encodingLabel(Make<QLabel>("encodingLabel")),
      encodingComboBox(Make<KComboBox>("encodingComboBox")),
      alignLabel(Make<QLabel>("alignLabel")),
      alignComboBox(Make<KComboBox>("alignComboBox")),
      alignSlider(Make<QSlider>("alignSlider")),
      alignSpinBox(Make<QSpinBox>("alignSpinBox")),
      syncLabel(Make<QLabel>("syncLabel")),
      syncSpinBox(Make<QDoubleSpinBox>("syncSpinBox")),
      hastenLabel(Make<QLabel>("hastenLabel")),
      sourceSelector(new SubtitleSourceSelector),
      panel(&owner),
      connections(std::make_unique<QObject>())
{
    Util::ApplyWidgetStyle(outputSubsInfoButton, QStringLiteral("helpButton"), "styleHint");
    Util::ApplyWidgetStyle(addSubtitlesButton, QStringLiteral("accentColorComboBoxButton"), "styleHint");
    Util::ApplyWidgetStyle(selectFontButton, QStringLiteral("selectFont"), "styleHint");
    outputSubsInfoButton->setFixedSize(HELP_BUTTON_SIZE, HELP_BUTTON_SIZE);
    SetRanges();
}

EditingPanel::Form::~Form()
{
    connections.reset();
    delete sourceSelector;
    delete trackList;
}

void EditingPanel::Form::SetRanges()
{
    alignSlider->setOrientation(Qt::Horizontal);
    alignSlider->setRange(-100, 100);
    alignSpinBox->setRange(-100, 100);
    alignSpinBox->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    syncSpinBox->setRange(-600.0, 600.0);
    syncSpinBox->setSingleStep(0.1);
    syncSpinBox->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void EditingPanel::Form::Arrange()
{
    Group const header("headerFrame");
    header.layout->addWidget(headerLabel);
    header.layout->addStretch();
    header.layout->addWidget(MakeRow("outputSubsInfoFramne", outputSubsInfoButton));

    Group const colors("editColorFrame");
    colors.layout->addWidget(selectFontButton);
    colors.layout->addStretch();
    colors.layout->addWidget(textColorPicker);
    colors.layout->addStretch();
    colors.layout->addWidget(outlineColorPicker);

    Group const slider("sliderFrame");
    slider.layout->addWidget(alignSlider, 1);
    slider.layout->addStretch();
    slider.layout->addWidget(alignSpinBox);

    Group const align("alignSubtitlesFrame", QBoxLayout::TopToBottom);
    align.layout->addWidget(alignLabel);
    align.layout->addWidget(MakeRow("alignFrame", alignComboBox));
    align.layout->addWidget(slider.frame);

    Group const sync("syncFrame");
    sync.layout->addWidget(syncSpinBox);
    sync.layout->addWidget(hastenLabel, 1);

    Group const main("mainFrame", QBoxLayout::TopToBottom);
    main.layout->setContentsMargins(PANEL_MARGIN, PANEL_MARGIN, PANEL_MARGIN, PANEL_MARGIN);
    for (QWidget* widget : std::initializer_list<QWidget*>{
             header.frame, MakeRow("addSubtitlesFrame", addSubtitlesButton), selectTrackLabel,
             MakeRow("selectSubtitlesFrame", selectSubtitlesTrackButton), colors.frame, encodingLabel,
             MakeRow("encodingFrame", encodingComboBox), align.frame, syncLabel, sync.frame})
        main.layout->addWidget(widget);
    main.layout->addStretch();

    auto* const layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(main.frame);

    MakeCaption(*selectTrackLabel, *selectSubtitlesTrackButton);
    MakeCaption(*encodingLabel, *encodingComboBox);
    MakeCaption(*alignLabel, *alignComboBox);
    MakeCaption(*syncLabel, *syncSpinBox);
}

void EditingPanel::Form::Retranslate()
{
    headerLabel->setText(tr("Subtitles"));
    selectTrackLabel->setText(tr("Choose subtitles"));
    encodingLabel->setText(tr("Subtitles encoding"));
    alignLabel->setText(tr("Aligment"));
    syncLabel->setText(tr("Synchronize"));
    addSubtitlesButton->SetButtonText(tr("Add subtitles"));
    selectSubtitlesTrackButton->SetButtonText(tr("Leave all tracks (softsub)"));
    sourceSelector->SetChooseButtonText(tr("Choose file"));
    sourceSelector->SetFindButtonText(tr("Find file"));
    outputSubsInfoButton->setToolTip(
        tr("Relocating subtitles saves all subtitle tracks. You can select them in player.<br><br>Select one of track "
           "to hardsub them."));
    hastenedText = tr("Hastened");
    delayedText = tr("Delayed");

    RetranslateValues<Entities::SubtitleEncoding>(*encodingComboBox);
    RetranslateValues<Entities::SubtitleAlign>(*alignComboBox);
    Describe();
    ShowFont();
}

/// What screen readers say of the controls; tool tips for those that show no words.
void EditingPanel::Form::Describe()
{
    outputSubsInfoButton->setAccessibleName(tr("Help on subtitles"));
    selectSubtitlesTrackButton->setAccessibleName(tr("Choose subtitles"));
    encodingComboBox->setAccessibleName(tr("Subtitles encoding"));
    alignComboBox->setAccessibleName(tr("Aligment"));
    alignSlider->setAccessibleName(tr("Position shift"));
    alignSlider->setToolTip(tr("Position shift"));
    alignSpinBox->setAccessibleName(tr("Position shift"));
    alignSpinBox->setToolTip(tr("Position shift"));
    syncSpinBox->setAccessibleName(tr("Synchronization offset in seconds"));
    syncSpinBox->setToolTip(tr("Synchronization offset in seconds"));
    textColorPicker->SetCaption(tr("Text color"));
    outlineColorPicker->SetCaption(tr("Outline color"));
}

void EditingPanel::Form::ShowFont()
{
    QString const family = font.family();
    QString const whole = font.pointSize() > 0 ? QStringLiteral("%1, %2").arg(family).arg(font.pointSize()) : family;
    selectFontButton->setText(GUI::ElideText(FONT_NAME_WIDTH, family, selectFontButton->font(), Qt::ElideRight));
    selectFontButton->setToolTip(tr("Font: %1").arg(whole));
    selectFontButton->setAccessibleName(tr("Font: %1").arg(whole));
}

void EditingPanel::Form::ReleaseContent()
{
    for (QWidget* content : std::initializer_list<QWidget*>{sourceSelector, trackList})
        if (content != nullptr && popup && content->parentWidget() == popup)
            content->setParent(nullptr);
}

} // namespace Korvex::Converter::Subtitles::Details
