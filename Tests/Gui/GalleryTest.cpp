#include "Support/WidgetSupport.h"

#include "Gui/ColorPickerButton.h"
#include "Gui/ComboBoxButton.h"
#include "Gui/Icons.h"
#include "Gui/KComboBox.h"
#include "Gui/KFrame.h"
#include "Gui/KLabel.h"
#include "Gui/ModalPopup.h"
#include "Gui/Style.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QProgressBar>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>
#include <QToolTip>
#include <QTreeWidget>

using namespace Korvex;
using Korvex::Testing::ForEachTheme;
using Korvex::Testing::SaveScreenshot;
using Korvex::Testing::ShowAndWait;

namespace
{

QStringList* collectedWarnings = nullptr;

/// What Qt complains about, a style sheet that it cannot read above all.
class WarningCollector
{
public:
    WarningCollector()
    {
        collectedWarnings = &m_warnings;
        m_before = qInstallMessageHandler(
            [](QtMsgType type, QMessageLogContext const&, QString const& text)
            {
                bool const isOfThePlatform = text.startsWith(QLatin1String("This plugin does not support"));
                if (type != QtDebugMsg && type != QtInfoMsg && !isOfThePlatform)
                    collectedWarnings->append(text);
            });
    }
    ~WarningCollector() { qInstallMessageHandler(m_before); }
    [[nodiscard]] std::string Join() const { return m_warnings.join(QLatin1Char('\n')).toStdString(); }

private:
    QStringList m_warnings;
    QtMessageHandler m_before = nullptr;
};

template <typename Widget>
Widget* Hint(Widget* widget, char const* hint)
{
    Util::ApplyWidgetStyle(widget, QString::fromLatin1(hint), "styleHint");
    return widget;
}

QWidget* Disabled(QWidget* widget)
{
    widget->setEnabled(false);
    return widget;
}

KComboBox* MakeComboBox()
{
    auto* const box = new KComboBox;
    box->addItems({QStringLiteral("Unicode (UTF-8)"), QStringLiteral("Cyrillic (Windows-1251)"),
                   QStringLiteral("A name of an encoding that has no room at all in the box")});
    GUI::FixComboBox(box);
    return box;
}

GUI::ComboBoxButton* MakeDropDown(QString const& caption)
{
    auto* const button = new GUI::ComboBoxButton;
    button->SetButtonText(caption);
    return button;
}

QWidget* MakeButtons()
{
    auto* const page = new QWidget;
    auto* const grid = new QGridLayout(page);
    int row = 0;
    for (char const* const hint : {"", "primaryButton", "flatButton", "activeButton", "rejectButton"})
    {
        grid->addWidget(Hint(new QPushButton(QString::fromLatin1(*hint != 0 ? hint : "Button")), hint), row, 0);
        grid->addWidget(Disabled(Hint(new QPushButton(QStringLiteral("Disabled")), hint)), row, 1);
        auto* const down = Hint(new QPushButton(QStringLiteral("Pressed")), hint);
        down->setDown(true);
        grid->addWidget(down, row++, 2);
    }
    auto* const open = MakeDropDown(QStringLiteral("Open"));
    grid->addWidget(Hint(MakeDropDown(QStringLiteral("Add subtitles")), "accentColorComboBoxButton"), row, 0);
    grid->addWidget(MakeDropDown(QStringLiteral("Tom & Jerry [English] and much more text than fits")), row, 1);
    grid->addWidget(open, row++, 2);
    open->click();
    auto* const tool = new QToolButton;
    tool->setIcon(GUI::MakeIcon(GUI::IconKind::Folder));
    auto* const font = Hint(new QToolButton, "selectFont");
    font->setText(QStringLiteral("DejaVu Sans, 20"));
    grid->addWidget(tool, row, 0);
    grid->addWidget(font, row, 1);
    grid->addWidget(Hint(new QPushButton, "helpButton"), row++, 2, Qt::AlignLeft);
    auto* const icon = Hint(new QPushButton, "iconButton");
    icon->setIcon(GUI::MakeIcon(GUI::IconKind::Extract));
    auto* const picker = new GUI::ColorPickerButton;
    picker->SetColor(QColor(0xff, 0xd8, 0x00));
    grid->addWidget(icon, row, 0, Qt::AlignLeft);
    grid->addWidget(picker, row, 1, Qt::AlignLeft);
    grid->addWidget(Disabled(new GUI::ColorPickerButton), row++, 2, Qt::AlignLeft);
    return page;
}

QWidget* MakeFields()
{
    auto* const page = new QWidget;
    auto* const grid = new QGridLayout(page);
    auto* const edit = new QLineEdit(QStringLiteral("Text"));
    edit->setClearButtonEnabled(true);
    auto* const shift = new QSpinBox;
    shift->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    shift->setRange(-100, 100);
    auto* const sync = new QDoubleSpinBox;
    sync->setRange(-600, 600);
    sync->setValue(-600);
    sync->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* const slider = new QSlider(Qt::Horizontal);
    slider->setRange(-100, 100);
    auto* const windowsBox = MakeComboBox();
    QStyle* const windowsStyle = QStyleFactory::create(QStringLiteral("Windows"));
    windowsStyle->setParent(windowsBox);
    windowsBox->setStyle(windowsStyle);
    auto* const longBox = MakeComboBox();
    longBox->setCurrentIndex(2);
    auto* const progress = new QProgressBar;
    progress->setValue(40);
    auto* const check = new QCheckBox(QStringLiteral("Apply to all files"));
    check->setChecked(true);
    auto* const partly = new QCheckBox(QStringLiteral("Partly"));
    partly->setTristate(true);
    partly->setCheckState(Qt::PartiallyChecked);
    auto* const radio = new QRadioButton(QStringLiteral("Radio"));
    radio->setChecked(true);
    auto* const disabledCheck = new QCheckBox(QStringLiteral("Disabled"));
    disabledCheck->setChecked(true);

    grid->addWidget(edit, 0, 0);
    grid->addWidget(Disabled(new QLineEdit(QStringLiteral("Disabled"))), 0, 1);
    grid->addWidget(shift, 1, 0);
    grid->addWidget(sync, 1, 1);
    grid->addWidget(Disabled(new QSpinBox), 2, 0);
    grid->addWidget(slider, 2, 1);
    grid->addWidget(MakeComboBox(), 3, 0);
    grid->addWidget(windowsBox, 3, 1);
    grid->addWidget(longBox, 4, 0);
    grid->addWidget(Disabled(MakeComboBox()), 4, 1);
    grid->addWidget(progress, 5, 0);
    grid->addWidget(Disabled(new QSlider(Qt::Horizontal)), 5, 1);
    grid->addWidget(check, 6, 0);
    grid->addWidget(partly, 6, 1);
    grid->addWidget(radio, 7, 0);
    grid->addWidget(Disabled(disabledCheck), 7, 1);
    return page;
}

QWidget* MakeLists()
{
    auto* const page = new QWidget;
    auto* const grid = new QGridLayout(page);
    auto* const list = new QListWidget;
    for (int i = 0; i < 20; ++i)
        list->addItem(QStringLiteral("Row %1").arg(i));
    list->setCurrentRow(1);
    auto* const tree = new QTreeWidget;
    tree->setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Size")});
    auto* const parent = new QTreeWidgetItem(tree, {QStringLiteral("Folder"), QStringLiteral("2")});
    new QTreeWidgetItem(parent, {QStringLiteral("File"), QStringLiteral("17")});
    tree->expandAll();
    auto* const tabs = new QTabWidget;
    tabs->addTab(list, QStringLiteral("List"));
    tabs->addTab(new QWidget, QStringLiteral("Other"));
    grid->addWidget(tabs, 0, 0);
    grid->addWidget(tree, 0, 1);
    return page;
}

QWidget* MakeTexts()
{
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    for (char const* const role : {"", "title", "dim", "warning", "error", "success"})
    {
        auto* const label = new KLabel(QStringLiteral("Text as %1").arg(QLatin1String(role)));
        Util::ApplyWidgetStyle(label, QString::fromLatin1(role), "role");
        column->addWidget(label);
    }
    column->addWidget(Disabled(new KLabel(QStringLiteral("Disabled text"))));
    auto* const shortened = new KLabel(QStringLiteral("A label that is much longer than the room that it has here"));
    shortened->setFixedWidth(160);
    column->addWidget(shortened);
    for (char const* const name : {"noticeBar", "textHelpPane", "previewPane", "outputBar"})
    {
        auto* const frame = new KFrame;
        frame->setObjectName(QString::fromLatin1(name));
        auto* const row = new QHBoxLayout(frame);
        row->addWidget(new QLabel(QString::fromLatin1(name)));
        row->addStretch();
        row->addWidget(new QPushButton(QStringLiteral("Remedy")));
        column->addWidget(frame);
    }
    return page;
}

/// Every icon in two sizes.
class IconSheet final : public QWidget
{
public:
    IconSheet() { setFixedSize(14 * 40, 4 * 40 + 80); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        constexpr int COUNT = static_cast<int>(GUI::IconKind::Dot) + 1;
        for (int i = 0; i < COUNT; ++i)
        {
            QPoint const place(i % 14 * 40 + 8, i / 14 * 80 + 8);
            auto const kind = static_cast<GUI::IconKind>(i);
            GUI::MakeIcon(kind).paint(&painter, QRect(place, QSize(16, 16)));
            GUI::MakeIcon(kind, GUI::ColorRole::Accent).paint(&painter, QRect(place + QPoint(0, 32), QSize(24, 24)));
        }
        GUI::PaintIcon(painter, GUI::IconKind::Film, QRectF(8, 170, 64, 64), GUI::GetColor(GUI::ColorRole::DimText));
        GUI::PaintIcon(painter, GUI::IconKind::Warning, QRectF(88, 170, 64, 64),
                       GUI::GetColor(GUI::ColorRole::Warning));
    }
};

void ShowDialog(QDialog& dialog, QString const& name)
{
    dialog.show();
    QCoreApplication::processEvents();
    SaveScreenshot(dialog, name);
}

} // namespace

TEST(GalleryTest, ShowsEverythingInBothThemesWithoutComplaints)
{
    WarningCollector const warnings;
    ForEachTheme(
        [](QString const& theme)
        {
            QWidget gallery;
            auto* const grid = new QGridLayout(&gallery);
            auto* const menuBar = new QMenuBar;
            menuBar->addMenu(QStringLiteral("File"));
            menuBar->addMenu(QStringLiteral("Subtitles"));
            grid->setMenuBar(menuBar);
            grid->addWidget(MakeButtons(), 0, 0);
            grid->addWidget(MakeFields(), 0, 1);
            grid->addWidget(MakeLists(), 1, 0);
            grid->addWidget(MakeTexts(), 1, 1);
            ShowAndWait(gallery);
            SaveScreenshot(gallery, QStringLiteral("gallery-") + theme);

            IconSheet icons;
            ShowAndWait(icons);
            SaveScreenshot(icons, QStringLiteral("icons-") + theme);

            QMenu menu;
            menu.addAction(GUI::MakeIcon(GUI::IconKind::Add), QStringLiteral("Add films"))
                ->setShortcut(QKeySequence(QStringLiteral("Ctrl+O")));
            QAction* const checked = menu.addAction(QStringLiteral("Checked"));
            checked->setCheckable(true);
            checked->setChecked(true);
            menu.addSeparator();
            menu.addAction(QStringLiteral("Disabled"))->setEnabled(false);
            menu.addMenu(QStringLiteral("More"));
            menu.popup(QPoint());
            menu.setActiveAction(checked);
            SaveScreenshot(menu, QStringLiteral("menu-") + theme);
            menu.close();
        });
    EXPECT_EQ(warnings.Join(), "");
}

TEST(GalleryTest, ShowsQtsOwnDialogs)
{
    WarningCollector const warnings;
    ForEachTheme(
        [](QString const& theme)
        {
            QFontDialog fonts(QFont(QStringLiteral("DejaVu Sans"), 12));
            fonts.setOption(QFontDialog::DontUseNativeDialog);
            ShowDialog(fonts, QStringLiteral("font-dialog-") + theme);
            QColorDialog colors(Qt::red);
            colors.setOption(QColorDialog::DontUseNativeDialog);
            ShowDialog(colors, QStringLiteral("color-dialog-") + theme);
            QFileDialog files(nullptr, QStringLiteral("Add films"), QDir::rootPath());
            files.setOption(QFileDialog::DontUseNativeDialog);
            ShowDialog(files, QStringLiteral("file-dialog-") + theme);
            QMessageBox message(QMessageBox::Warning, QStringLiteral("Korvex"),
                                QStringLiteral("film.mp4 exists. Replace it?"), QMessageBox::Yes | QMessageBox::No);
            ShowDialog(message, QStringLiteral("message-") + theme);
        });
    EXPECT_EQ(warnings.Join(), "");
}
