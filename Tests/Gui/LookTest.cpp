#include "Support/WidgetSupport.h"

#include "Gui/ColorPickerButton.h"
#include "Gui/DropDownButton.h"
#include "Gui/Icons.h"
#include "Gui/KComboBox.h"
#include "Gui/KLabel.h"
#include "Gui/LookAndFeelManager.h"
#include "Gui/Style.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStyle>
#include <QStyleFactory>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <cmath>
#include <memory>

using namespace Korvex;
using GUI::ColorRole;
using GUI::IconKind;
using Korvex::Testing::AskForToolTip;
using Korvex::Testing::ForEachTheme;
using Korvex::Testing::ShowAndWait;

namespace
{

/// As the accessibility guidelines define it, 1 to 21.
double MeasureContrast(QColor const& first, QColor const& second)
{
    auto const luminance = [](QColor const& color)
    {
        auto const linear = [](double value)
        { return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    };
    double const one = luminance(first);
    double const other = luminance(second);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

/// Shown on the host's window in a parent with another base style, where one is named.
QImage GrabWithBaseStyle(QWidget* widget, QString const& panelStyle, QString const& ownStyle)
{
    std::unique_ptr<QStyle> const styleOfPanel(QStyleFactory::create(panelStyle)); // null for no name
    std::unique_ptr<QStyle> const styleOfWidget(QStyleFactory::create(ownStyle));
    QWidget window;
    auto* const panel = new QFrame;
    (new QVBoxLayout(&window))->addWidget(panel);
    (new QVBoxLayout(panel))->addWidget(widget);
    if (styleOfWidget != nullptr)
        widget->setStyle(styleOfWidget.get());
    if (styleOfPanel != nullptr)
        panel->setStyle(styleOfPanel.get());
    widget->setFixedSize(200, 32);
    widget->setFocusPolicy(Qt::NoFocus);
    ShowAndWait(window);
    return widget->grab().toImage();
}

KComboBox* MakeComboBox()
{
    auto* const box = new KComboBox;
    box->addItems({QStringLiteral("Unicode (UTF-8)"), QStringLiteral("Cyrillic")});
    GUI::FixComboBox(box);
    return box;
}

/// One of each control that shows a text and can have the focus.
std::vector<QWidget*> MakeControls()
{
    std::vector<QWidget*> controls = {MakeComboBox(), new QCheckBox(QStringLiteral("Check")),
                                      new QRadioButton(QStringLiteral("Radio")), new QLineEdit, new QSpinBox};
    for (QString const hint : {"", "primaryButton", "flatButton", "activeButton", "accentColorComboBoxButton"})
    {
        controls.push_back(new QPushButton(QStringLiteral("Convert all")));
        Util::ApplyWidgetStyle(controls.back(), hint, "styleHint");
    }
    for (QString const hint : {"", "selectFont"})
    {
        auto* const tool = new QToolButton;
        tool->setText(QStringLiteral("DejaVu Sans, 20"));
        tool->setFocusPolicy(Qt::StrongFocus);
        Util::ApplyWidgetStyle(tool, hint, "styleHint");
        controls.push_back(tool);
    }
    auto* const dropDown = new GUI::DropDownButton;
    dropDown->setText(QStringLiteral("Tracks"));
    controls.push_back(dropDown);
    controls.push_back(new GUI::ColorPickerButton);
    return controls;
}

class ThemeListener final : public App::ILookAndFeelManagerObserver
{
public:
    void OnThemeChanged(App::Theme theme) override
    {
        themes.push_back(theme);
        windowColors.push_back(QApplication::palette().color(QPalette::Window));
    }

    std::vector<App::Theme> themes;
    std::vector<QColor> windowColors;
};

} // namespace

TEST(LookTest, TextIsReadableOnEverythingThatItStandsOn)
{
    using Role = ColorRole;
    using Roles = std::vector<Role>;
    Roles const plain = {Role::Window, Role::Surface, Role::Raised};
    auto const join = [](Roles grounds, Roles const& more)
    {
        grounds.insert(grounds.end(), more.begin(), more.end());
        return grounds;
    };
    Roles const rows = join(plain, {Role::Hover, Role::Selection, Role::WarningFill});
    Roles const all = join(rows, {Role::Pressed, Role::ErrorFill, Role::DisabledFill});
    auto const expectContrast = [](double least, Roles const& texts, Roles const& grounds)
    {
        for (Role const text : texts)
            for (Role const ground : grounds)
                EXPECT_GE(MeasureContrast(GUI::GetColor(text), GUI::GetColor(ground)), least)
                    << "role " << static_cast<int>(text) << " on role " << static_cast<int>(ground);
    };
    ForEachTheme(
        [&](QString const&)
        {
            expectContrast(4.5, {Role::Text, Role::DimText, Role::AccentHover}, all);
            expectContrast(4.5, {Role::Accent, Role::Warning, Role::Error, Role::Success}, rows);
            expectContrast(4.5, {Role::Error}, {Role::ErrorFill});
            expectContrast(4.5, {Role::DisabledText}, join(plain, {Role::DisabledFill}));
            expectContrast(4.5, {Role::AccentText}, {Role::Accent, Role::AccentHover, Role::AccentPressed});
            expectContrast(3.0, {Role::FieldBorder}, plain);
        });
}

TEST(LookTest, SwitchingTheThemeRestylesWhatIsOnTheScreenAndTells)
{
    ThemeListener listener;
    App::ILookAndFeelManager& look = Testing::GetLookAndFeel();
    look.RegisterEventHandler(&listener);
    QPushButton button(GUI::MakeIcon(IconKind::Play), QString());
    button.setFocusPolicy(Qt::NoFocus);
    ShowAndWait(button);
    QImage const light = button.grab().toImage();
    look.SetTheme(App::Theme::Dark);
    QImage const dark = button.grab().toImage();
    look.SetTheme(App::Theme::Dark);
    look.SetTheme(App::Theme::Light);
    look.UnregisterEventHandler(&listener);

    QLineEdit field;
    ShowAndWait(field);
    for (App::Theme const theme : {App::Theme::Dark, App::Theme::Light})
    {
        look.SetTheme(theme);
        EXPECT_EQ(field.palette().color(QPalette::PlaceholderText), GUI::GetColor(GUI::ColorRole::DimText));
    }

    EXPECT_EQ(listener.themes, (std::vector{App::Theme::Dark, App::Theme::Light}));
    EXPECT_LT(listener.windowColors.front().lightness(), 64);
    EXPECT_EQ(button.grab().toImage(), light);
    // The icon in the middle is dark on light, and light on dark.
    EXPECT_LT(qGray(light.pixel(light.rect().center())), 64);
    EXPECT_GT(qGray(dark.pixel(dark.rect().center())), 192);
}

TEST(LookTest, BaseStylesOfPanelsAndBoxesDoNotShow)
{
    ForEachTheme(
        [](QString const&)
        {
            QImage const box = GrabWithBaseStyle(MakeComboBox(), {}, {});
            QImage const spin = GrabWithBaseStyle(new QSpinBox, {}, {});
            for (QString const style : {"Fusion", "Windows"})
            {
                EXPECT_EQ(GrabWithBaseStyle(MakeComboBox(), style, QStringLiteral("Windows")), box);
                EXPECT_EQ(GrabWithBaseStyle(new QSpinBox, style, {}), spin);
            }
            EXPECT_EQ(GrabWithBaseStyle(MakeComboBox(), QStringLiteral("Windows"), {}), box);

            // The arrow that the style sheet names has come out.
            QColor const arrow = GUI::GetColor(ColorRole::DimText);
            bool isFound = false;
            for (int x = box.width() - 32; x < box.width() - 4; ++x)
                for (int y = 8; y < box.height() - 8; ++y)
                    isFound = isFound || box.pixel(x, y) == arrow.rgb();
            EXPECT_TRUE(isFound);
        });
}

TEST(LookTest, IconsAreSharpAtEverySizeAndDifferFromEachOther)
{
    std::vector<QImage> pictures;
    for (int i = 0; i <= static_cast<int>(IconKind::Dot); ++i)
    {
        auto const kind = static_cast<IconKind>(i);
        QImage const small = GUI::MakeIcon(kind).pixmap(16, 16).toImage();
        QImage const large = GUI::MakeIcon(kind).pixmap(64, 64).toImage();
        ASSERT_EQ(large.size() / large.devicePixelRatio(), QSize(64, 64)) << i;
        QImage const blurred = small.scaled(large.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        EXPECT_NE(large, blurred) << i;
        bool const isMinusAgain = kind == IconKind::PartlyChecked;
        EXPECT_EQ(std::count(pictures.begin(), pictures.end(), large), isMinusAgain ? 1 : 0) << i;
        pictures.push_back(large);
    }
    QImage const enabled = GUI::MakeIcon(IconKind::Stop).pixmap(16, 16, QIcon::Normal).toImage();
    QImage const disabled = GUI::MakeIcon(IconKind::Stop).pixmap(16, 16, QIcon::Disabled).toImage();
    EXPECT_EQ(enabled.pixelColor(enabled.rect().center()), GUI::GetColor(ColorRole::Text));
    EXPECT_EQ(disabled.pixelColor(disabled.rect().center()), GUI::GetColor(ColorRole::DisabledText));
}

TEST(LookTest, LabelsAndBoxesGetNarrowWithoutLosingTheirText)
{
    QString const text = QStringLiteral("A subtitle track with a long name [English]");
    KLabel label(text);
    EXPECT_LT(label.minimumSizeHint().width(), 80);
    label.setFixedSize(90, 24);
    ShowAndWait(label);
    QImage const shortened = label.grab().toImage();
    label.SetElideMode(Qt::ElideLeft);
    EXPECT_NE(label.grab().toImage(), shortened);
    EXPECT_EQ(label.text(), text);
    EXPECT_EQ(AskForToolTip(label), text);
    label.setFixedWidth(label.sizeHint().width());
    EXPECT_EQ(AskForToolTip(label), QString());

    KComboBox* const box = MakeComboBox();
    box->addItem(text);
    GUI::FixComboBox(box);
    QWidget window;
    (new QVBoxLayout(&window))->addWidget(box);
    box->setFixedWidth(box->minimumSizeHint().width());
    ShowAndWait(window);
    EXPECT_LT(box->width(), box->fontMetrics().horizontalAdvance(text));
    box->setCurrentText(QStringLiteral("Cyrillic"));
    EXPECT_EQ(AskForToolTip(*box), QString());
    box->setCurrentText(text);
    EXPECT_EQ(AskForToolTip(*box), text);
    box->setItemData(box->currentIndex(), QStringLiteral("Tip"), Qt::ToolTipRole);
    EXPECT_EQ(AskForToolTip(*box), QStringLiteral("Tip"));
    box->showPopup();
    QCoreApplication::processEvents();
    EXPECT_GE(box->view()->viewport()->width(), box->fontMetrics().horizontalAdvance(text));
    box->hidePopup();
}

TEST(LookTest, NoLeastSizeOfTheStyleSheetLetsLayoutsCutTexts)
{
    QWidget window;
    auto* const row = new QHBoxLayout(&window);
    std::vector<QWidget*> const controls = MakeControls();
    for (QWidget* const control : controls)
        row->addWidget(control);
    ShowAndWait(window);
    window.resize(1, 1);
    QCoreApplication::processEvents();
    for (QWidget* const control : controls)
        EXPECT_EQ(control->size().expandedTo(control->minimumSizeHint()), control->size())
            << control->metaObject()->className();
}

TEST(LookTest, AFocusRingShowsAndMovesNothing)
{
    ForEachTheme(
        [](QString const&)
        {
            QWidget window;
            auto* const column = new QVBoxLayout(&window);
            auto* const elsewhere = new QPushButton;
            column->addWidget(elsewhere);
            std::vector<QWidget*> const controls = MakeControls();
            for (QWidget* const control : controls)
                column->addWidget(control);
            ShowAndWait(window);
            for (QWidget* const control : controls)
            {
                SCOPED_TRACE(control->metaObject()->className() +
                             control->property("styleHint").toString().toStdString());
                auto const inside = [control](QImage const& picture)
                { return picture.copy(control->rect().adjusted(6, 6, -6, -6)); };
                elsewhere->setFocus();
                QImage const without = control->grab().toImage();
                QSize const hint = control->sizeHint();
                QVariant const cursor = control->inputMethodQuery(Qt::ImCursorRectangle);
                control->setFocus();
                QImage const with = control->grab().toImage();
                EXPECT_NE(with, without);
                EXPECT_EQ(control->sizeHint(), hint);
                EXPECT_EQ(control->inputMethodQuery(Qt::ImCursorRectangle), cursor);
                bool const hasCursor = control->testAttribute(Qt::WA_InputMethodEnabled);
                EXPECT_TRUE(hasCursor || inside(with) == inside(without));
            }
        });
}

TEST(LookTest, QtUnderstandsEveryWordOfTheStyleSheet)
{
    ForEachTheme(
        [](QString const&)
        {
            QString sheet = qApp->styleSheet();
            sheet.remove(
                QRegularExpression(QStringLiteral("/\\*.*?\\*/"), QRegularExpression::DotMatchesEverythingOption));
            // Qt complains of a property only when it paints a widget that the rule is for: here all are for one.
            QString declarations;
            for (auto found = QRegularExpression(QStringLiteral("[{;]\\s*([a-z-]+:[^;{}]+)(?=;)")).globalMatch(sheet);
                 found.hasNext();)
                declarations += found.next().captured(1) + QLatin1Char(';');
            EXPECT_GT(declarations.size(), 1000);
            QPushButton button;
            button.setStyleSheet(declarations);
            ShowAndWait(button);
            // It says nothing of a picture that is not there.
            for (auto found = QRegularExpression(QStringLiteral("url\\((.*?)\\)")).globalMatch(sheet); found.hasNext();)
            {
                QString const address = found.next().captured(1);
                EXPECT_FALSE(QIcon(address).pixmap(16, 16).isNull()) << qPrintable(address);
            }
        });
}

TEST(LookTest, AWheelOverABoxWithoutFocusLeavesItAlone)
{
    KComboBox* const box = MakeComboBox();
    auto* const other = new QPushButton;
    QWidget window;
    auto* const column = new QVBoxLayout(&window);
    column->addWidget(box);
    column->addWidget(other);
    ShowAndWait(window);
    auto const turn = [box]
    {
        QWheelEvent event(QPointF(5, 5), box->mapToGlobal(QPoint(5, 5)), {}, QPoint(0, -120), Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(box, &event);
    };
    other->setFocus();
    turn();
    EXPECT_EQ(box->currentIndex(), 0);
    box->setFocus();
    turn();
    EXPECT_EQ(box->currentIndex(), 1);
}
