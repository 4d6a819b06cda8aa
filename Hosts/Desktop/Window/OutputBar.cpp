#include "Desktop/Window/OutputBar.h"

#include "Desktop/Words/NumberTexts.h"
#include "Desktop/Words/TimeTexts.h"

#include "Common/OutputFormats.h"
#include "Common/Sentences.h"

#include "Gui/ComboBoxButton.h"
#include "Gui/KComboBox.h"
#include "Gui/KLabel.h"
#include "Gui/Style.h"

#include <QAction>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>

namespace Korvex::Desktop
{

namespace
{

constexpr int PROGRESS_STEPS = 1000;
constexpr int GROUP_SPACING = 12; ///< pixels, between a field and the next label
constexpr int NARROWEST_FOLDER = 140;
constexpr int WIDEST_FOLDER = 320;
constexpr std::array<Quality, 4> QUALITIES{Quality::AsSource, Quality::High, Quality::Medium, Quality::Small};

QString ToText(std::string const& utf8)
{
    return QString::fromStdString(utf8);
}

QString QualityName(Quality quality)
{
    switch (quality)
    {
    case Quality::AsSource:
        return OutputBar::tr("Same as source");
    case Quality::High:
        return OutputBar::tr("High");
    case Quality::Medium:
        return OutputBar::tr("Medium");
    case Quality::Small:
        return OutputBar::tr("Small");
    }
    return {};
}

QString QualityHelp(Quality quality)
{
    switch (quality)
    {
    case Quality::AsSource:
        return OutputBar::tr("The picture is copied unchanged where nothing is drawn into it and the format can carry "
                             "it; otherwise it is encoded in high quality.");
    case Quality::High:
        return OutputBar::tr("The picture is encoded anew; differences are next to invisible.");
    case Quality::Medium:
        return OutputBar::tr("The picture is encoded anew; good for watching, in a smaller file.");
    case Quality::Small:
        return OutputBar::tr("The picture is encoded anew into a small file; losses are visible.");
    }
    return {};
}

/// Makes the box wide enough for each of its texts: all of them are short.
void FitBox(QComboBox& box)
{
    GUI::FixComboBox(&box);
    int longest = 0;
    for (int row = 0; row < box.count(); ++row)
        longest = std::max(longest, box.itemText(row).size());
    box.setMinimumContentsLength(longest);
}

} // namespace

class OutputBar::Impl
{
public:
    explicit Impl(OutputBar& bar) : m_bar(bar)
    {
        MakeWidgets();
        LayOut();
        Connect();
        Retranslate();
        ShowSettings({});
        SetConvertible(false, false);
        ShowConversion(std::nullopt);
    }

    void ShowSettings(OutputSettings const& settings)
    {
        m_settings = settings;
        m_format->setCurrentIndex(m_format->findData(ToText(settings.formatId)));
        m_quality->setCurrentIndex(m_quality->findData(static_cast<int>(settings.quality)));
        m_quality->setToolTip(QualityHelp(settings.quality));
        ShowFolder();
    }

    [[nodiscard]] OutputSettings const& GetSettings() const { return m_settings; }

    void SetConvertible(bool isAnyFilm, bool isChosenFilm)
    {
        m_convertAll->setEnabled(isAnyFilm);
        m_convertCurrent->setEnabled(isChosenFilm);
    }

    void ShowConversion(std::optional<ConversionSummary> const& summary)
    {
        m_summary = summary;
        m_conversion->setVisible(summary.has_value());
        ChooseRows();
        if (!summary)
            return;
        m_progress->setValue(static_cast<int>(std::floor(summary->fraction * PROGRESS_STEPS)));
        QString const percent = FormatPercent(summary->fraction);
        QString words;
        if (summary->isPaused)
            words = OutputBar::tr("paused");
        else if (summary->remaining)
            words = FormatTimeLeft(*summary->remaining);
        m_progressText->setText(words.isEmpty() ? percent : OutputBar::tr("%1, %2").arg(percent, words));
        m_pause->setText(summary->isPaused ? OutputBar::tr("&Resume") : OutputBar::tr("&Pause"));
        m_pause->setToolTip(summary->isPaused ? OutputBar::tr("Go on converting")
                                              : OutputBar::tr("Wait until you resume"));
    }

    void Retranslate()
    {
        m_formatLabel->setText(OutputBar::tr("&Format"));
        m_format->setAccessibleName(OutputBar::tr("Output format"));
        m_qualityLabel->setText(OutputBar::tr("&Quality"));
        m_quality->setAccessibleName(OutputBar::tr("Quality of the picture"));
        for (int row = 0; row < m_quality->count(); ++row)
        {
            auto const quality = static_cast<Quality>(m_quality->itemData(row).toInt());
            m_quality->setItemText(row, QualityName(quality));
            m_quality->setItemData(row, QualityHelp(quality), Qt::ToolTipRole);
        }
        m_quality->setToolTip(QualityHelp(m_settings.quality));
        FitBox(*m_format);
        FitBox(*m_quality);
        m_folderLabel->setText(OutputBar::tr("&Save"));
        m_beside->setText(OutputBar::tr("Beside each film"));
        m_choose->setText(OutputBar::tr("Choose a folder..."));
        m_convertAll->setText(OutputBar::tr("&Convert all"));
        m_convertAll->setToolTip(OutputBar::tr("Convert all films that are ready"));
        m_convertCurrent->setText(OutputBar::tr("Only &this film"));
        m_convertCurrent->setToolTip(OutputBar::tr("Convert the film that is chosen in the list, and no other"));
        m_progress->setAccessibleName(OutputBar::tr("Progress of all conversions"));
        m_progressText->setAccessibleName(m_progress->accessibleName());
        m_cancel->setText(OutputBar::tr("Ca&ncel"));
        m_cancel->setToolTip(OutputBar::tr("Stop converting; half-written files are removed"));
        ShowFolder();
        ShowConversion(m_summary);
        FitTexts();
    }

    void FitTexts()
    {
        FitProgress();
        ChooseRows();
    }

    /// One row where everything that is shown has room in it.
    void ChooseRows()
    {
        int const spacing = m_rows->spacing();
        QMargins const margins = m_rows->contentsMargins();
        int const folderWidth = m_folder->sizeHint().boundedTo(m_folder->maximumSize()).width();
        int wanted = margins.left() + m_settingsRow->sizeHint().width() - folderWidth + NARROWEST_FOLDER +
                     GROUP_SPACING + 2 * spacing + m_convertCurrent->sizeHint().width() + spacing +
                     m_convertAll->sizeHint().width() + margins.right();
        if (m_summary)
            wanted += m_progressWidth + m_pause->sizeHint().width() + m_cancel->sizeHint().width() + 3 * spacing;
        auto const direction =
            wanted <= m_bar.contentsRect().width() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
        if (direction == m_rows->direction())
            return;
        m_rows->setDirection(direction);
        m_gap->changeSize(direction == QBoxLayout::LeftToRight ? GROUP_SPACING : 0, 0);
        m_rows->invalidate();
    }

    /// In two rows, however it lies at the moment.
    [[nodiscard]] int NarrowestWidth() const
    {
        QMargins const margins = m_rows->contentsMargins() + m_bar.contentsMargins();
        return margins.left() + margins.right() +
               std::max(m_settingsRow->minimumSize().width(), m_actionsRow->minimumSize().width());
    }

private:
    void MakeWidgets()
    {
        m_format = new KComboBox(&m_bar);
        m_format->setObjectName(QStringLiteral("formatCombo"));
        for (Hosts::OutputFormat const& format : Hosts::GetOutputFormats())
            m_format->addItem(ToText(Hosts::DisplayName(format.id)), ToText(format.id));
        m_quality = new KComboBox(&m_bar);
        m_quality->setObjectName(QStringLiteral("qualityCombo"));
        for (Quality const quality : QUALITIES)
            m_quality->addItem(QualityName(quality), static_cast<int>(quality));

        m_folder = new GUI::ComboBoxButton(&m_bar);
        m_folder->setObjectName(QStringLiteral("outputFolderButton"));
        m_folder->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        m_folder->setMaximumWidth(WIDEST_FOLDER);
        m_folderMenu = new QMenu(m_folder);
        m_folderMenu->setObjectName(QStringLiteral("outputFolderMenu"));
        m_beside = m_folderMenu->addAction(QString());
        m_beside->setCheckable(true);
        m_choose = m_folderMenu->addAction(QString());

        m_convertAll = MakeButton("convertAllButton");
        m_convertCurrent = MakeButton("convertCurrentButton");
        Util::ApplyWidgetStyle(m_convertAll, QStringLiteral("primaryButton"), "styleHint");

        m_conversion = new QWidget(&m_bar);
        m_progress = new QProgressBar(m_conversion);
        m_progress->setObjectName(QStringLiteral("totalProgress"));
        m_progress->setRange(0, PROGRESS_STEPS);
        m_progress->setTextVisible(false);
        m_progressText = new KLabel(m_conversion);
        m_progressText->setObjectName(QStringLiteral("totalProgressLabel"));
        m_progressText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        m_pause = MakeButton("pauseButton");
        m_cancel = MakeButton("cancelButton");

        m_formatLabel = MakeLabel(m_format);
        m_qualityLabel = MakeLabel(m_quality);
        m_folderLabel = MakeLabel(m_folder);
    }

    QPushButton* MakeButton(char const* name)
    {
        auto* button = new QPushButton(&m_bar);
        button->setObjectName(QString::fromLatin1(name));
        return button;
    }

    /// Its letter takes the keyboard to what it labels.
    QLabel* MakeLabel(QWidget* labelled)
    {
        auto* label = new QLabel(&m_bar);
        label->setBuddy(labelled);
        return label;
    }

    void LayOut()
    {
        auto* conversion = new QHBoxLayout(m_conversion);
        conversion->setContentsMargins(0, 0, 0, 0);
        auto* progress = new QVBoxLayout;
        progress->setSpacing(2);
        progress->addWidget(m_progressText);
        progress->addWidget(m_progress);
        conversion->addLayout(progress, 1);
        conversion->addWidget(m_pause);
        conversion->addWidget(m_cancel);

        m_settingsRow = new QHBoxLayout;
        for (auto const& [label, field] : {std::pair<QLabel*, QWidget*>{m_formatLabel, m_format},
                                           {m_qualityLabel, m_quality},
                                           {m_folderLabel, m_folder}})
        {
            m_settingsRow->addWidget(label);
            m_settingsRow->addWidget(field, field == m_folder ? 1 : 0);
            if (field != m_folder)
                m_settingsRow->addSpacing(GROUP_SPACING);
        }

        m_settingsRow->addStretch();
        m_actionsRow = new QHBoxLayout;
        m_actionsRow->addWidget(m_conversion, 1);
        m_actionsRow->addStretch();
        m_actionsRow->addWidget(m_convertCurrent);
        m_actionsRow->addWidget(m_convertAll);

        m_rows = new QVBoxLayout(&m_bar);
        m_rows->addLayout(m_settingsRow);
        m_gap = new QSpacerItem(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed);
        m_rows->addItem(m_gap);
        m_rows->addLayout(m_actionsRow, 1);

        std::array<QWidget*, 7> const order{m_format, m_quality,        m_folder,    m_pause,
                                            m_cancel, m_convertCurrent, m_convertAll};
        for (std::size_t i = 1; i < order.size(); ++i)
            QWidget::setTabOrder(order[i - 1], order[i]);
    }

    void Connect()
    {
        QObject::connect(m_format, QOverload<int>::of(&QComboBox::activated), &m_bar,
                         [this](int row)
                         { Change([&] { m_settings.formatId = m_format->itemData(row).toString().toStdString(); }); });
        QObject::connect(
            m_quality, QOverload<int>::of(&QComboBox::activated), &m_bar,
            [this](int row)
            { Change([&] { m_settings.quality = static_cast<Quality>(m_quality->itemData(row).toInt()); }); });
        QObject::connect(m_beside, &QAction::triggered, &m_bar, [this] { Change([&] { m_settings.folder.reset(); }); });
        QObject::connect(m_choose, &QAction::triggered, &m_bar, [this] { AskForFolder(); });
        QObject::connect(m_folder, &QAbstractButton::clicked, &m_bar,
                         [this] { m_folderMenu->popup(m_folder->mapToGlobal(m_folder->rect().bottomLeft())); });
        QObject::connect(m_folderMenu, &QMenu::aboutToHide, m_folder, &GUI::ComboBoxButton::OnHideDropDown);
        QObject::connect(m_convertAll, &QAbstractButton::clicked, &m_bar, &OutputBar::ConvertAllRequested);
        QObject::connect(m_convertCurrent, &QAbstractButton::clicked, &m_bar, &OutputBar::ConvertCurrentRequested);
        QObject::connect(m_cancel, &QAbstractButton::clicked, &m_bar, &OutputBar::CancelRequested);
        QObject::connect(m_pause, &QAbstractButton::clicked, &m_bar,
                         [this] { Q_EMIT m_bar.PauseToggled(!(m_summary && m_summary->isPaused)); });
    }

    template <typename Edit>
    void Change(Edit const& edit)
    {
        OutputSettings const before = m_settings;
        edit();
        bool const isOther = before.formatId != m_settings.formatId || before.quality != m_settings.quality ||
                             before.folder != m_settings.folder;
        ShowSettings(OutputSettings(m_settings));
        if (isOther)
            Q_EMIT m_bar.SettingsChanged(m_settings);
    }

    void AskForFolder()
    {
        auto* dialog = new QFileDialog(&m_bar, OutputBar::tr("Where to save"));
        dialog->setObjectName(QStringLiteral("outputFolderDialog"));
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        if (m_settings.folder)
            dialog->setDirectory(ToText(m_settings.folder->utf8string()));
        QObject::connect(dialog, &QFileDialog::fileSelected, &m_bar,
                         [this](QString const& folder)
                         { Change([&] { m_settings.folder = ioPath(folder.toStdString()); }); });
        dialog->open();
    }

    /// By its name, which is the end of a path and would be the first thing to be cut off.
    void ShowFolder()
    {
        QString const path =
            m_settings.folder ? QDir::toNativeSeparators(ToText(m_settings.folder->utf8string())) : QString();
        QString const name = m_settings.folder ? ToText(m_settings.folder->FileName()) : m_beside->text();
        m_folder->SetButtonText(name.isEmpty() ? path : name);
        m_folder->setToolTip(path);
        m_folder->setAccessibleName(OutputBar::tr("Output folder: %1").arg(path.isEmpty() ? name : path));
        m_beside->setChecked(!m_settings.folder);
    }

    /// For the longest text, so that the bar does not change with every minute.
    void FitProgress()
    {
        constexpr std::chrono::minutes LONG_TIME{11 * 60 + 39};
        constexpr std::chrono::seconds SHORT_TIME{1};
        int widest = 0;
        for (std::chrono::seconds const left : {std::chrono::seconds(LONG_TIME), SHORT_TIME})
            widest = std::max(widest, m_progressText->fontMetrics().horizontalAdvance(
                                          OutputBar::tr("%1, %2").arg(FormatPercent(1.0), FormatTimeLeft(left))));
        m_progressWidth = widest;
    }

    OutputBar& m_bar;
    OutputSettings m_settings;
    std::optional<ConversionSummary> m_summary;

    // Children of the bar.
    QBoxLayout* m_rows = nullptr;
    QHBoxLayout* m_settingsRow = nullptr;
    QHBoxLayout* m_actionsRow = nullptr;
    int m_progressWidth = 0;      ///< that is wanted for it in one row
    QSpacerItem* m_gap = nullptr; ///< between the two where they are one row
    QLabel* m_formatLabel = nullptr;
    KComboBox* m_format = nullptr;
    QLabel* m_qualityLabel = nullptr;
    KComboBox* m_quality = nullptr;
    QLabel* m_folderLabel = nullptr;
    GUI::ComboBoxButton* m_folder = nullptr;
    QMenu* m_folderMenu = nullptr;
    QAction* m_beside = nullptr;
    QAction* m_choose = nullptr;
    QPushButton* m_convertAll = nullptr;
    QPushButton* m_convertCurrent = nullptr;
    QWidget* m_conversion = nullptr;
    QProgressBar* m_progress = nullptr;
    KLabel* m_progressText = nullptr;
    QPushButton* m_pause = nullptr;
    QPushButton* m_cancel = nullptr;
};

OutputBar::OutputBar(QWidget* parent) : KFrame(parent)
{
    setObjectName(QStringLiteral("outputBar"));
    m_impl = std::make_unique<Impl>(*this);
}

OutputBar::~OutputBar() = default;

void OutputBar::ShowSettings(OutputSettings const& settings)
{
    m_impl->ShowSettings(settings);
}

OutputSettings const& OutputBar::GetSettings() const
{
    return m_impl->GetSettings();
}

void OutputBar::SetConvertible(bool isAnyFilm, bool isChosenFilm)
{
    m_impl->SetConvertible(isAnyFilm, isChosenFilm);
}

void OutputBar::ShowConversion(std::optional<ConversionSummary> const& summary)
{
    m_impl->ShowConversion(summary);
}

QSize OutputBar::minimumSizeHint() const
{
    return {m_impl ? m_impl->NarrowestWidth() : 0, KFrame::minimumSizeHint().height()};
}

void OutputBar::resizeEvent(QResizeEvent* event)
{
    KFrame::resizeEvent(event);
    m_impl->ChooseRows();
}

void OutputBar::changeEvent(QEvent* event)
{
    KFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && m_impl)
        m_impl->Retranslate();
    bool const isOtherFont = event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange;
    if (isOtherFont && m_impl)
        m_impl->FitTexts();
}

} // namespace Korvex::Desktop
