#include "Support/WidgetSupport.h"

#include "Gui/Icons.h"
#include "Gui/KComboBox.h"
#include "Gui/KLabel.h"
#include "Gui/LookAndFeelManager.h"
#include "Gui/Style.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
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
    struct Pair
    {
        ColorRole text;
        std::vector<ColorRole> grounds;
        double least;
    };
    constexpr double TEXT = 4.5;
    constexpr double SHAPE = 3.0;
    std::vector<ColorRole> const plain = {ColorRole::Window, ColorRole::Surface, ColorRole::Raised};
    std::vector<ColorRole> const rows = {ColorRole::Window, ColorRole::Surface,   ColorRole::Raised,
                                         ColorRole::Hover,  ColorRole::Selection, ColorRole::WarningFill};
    std::vector<ColorRole> const all = {ColorRole::Window,    ColorRole::Surface,     ColorRole::Raised,
                                        ColorRole::Hover,     ColorRole::Pressed,     ColorRole::Selection,
                                        ColorRole::ErrorFill, ColorRole::WarningFill, ColorRole::DisabledFill};
    std::vector<Pair> const pairs = {
        {ColorRole::Text, all, TEXT},
        {ColorRole::DimText, all, TEXT},
        {ColorRole::DisabledText,
         {ColorRole::Window, ColorRole::Surface, ColorRole::Raised, ColorRole::DisabledFill},
         TEXT},
        {ColorRole::AccentText, {ColorRole::Accent, ColorRole::AccentHover, ColorRole::AccentPressed}, TEXT},
        {ColorRole::Accent, rows, TEXT},
        {ColorRole::AccentHover, all, TEXT},
        {ColorRole::Warning, rows, TEXT},
        {ColorRole::Error, rows, TEXT},
        {ColorRole::Error, {ColorRole::ErrorFill}, TEXT},
        {ColorRole::Success, rows, TEXT},
        {ColorRole::FieldBorder, plain, SHAPE},
    };
    ForEachTheme(
        [&pairs](QString const&)
        {
            for (Pair const& pair : pairs)
                for (ColorRole const ground : pair.grounds)
                    EXPECT_GE(MeasureContrast(GUI::GetColor(pair.text), GUI::GetColor(ground)), pair.least)
                        << "role " << static_cast<int>(pair.text) << " on role " << static_cast<int>(ground);
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
            EXPECT_EQ(GrabWithBaseStyle(MakeComboBox(), QStringLiteral("Fusion"), QStringLiteral("Windows")), box);
            EXPECT_EQ(GrabWithBaseStyle(MakeComboBox(), QStringLiteral("Windows"), {}), box);
            QImage const spin = GrabWithBaseStyle(new QSpinBox, {}, {});
            EXPECT_EQ(GrabWithBaseStyle(new QSpinBox, QStringLiteral("Fusion"), {}), spin);
            EXPECT_EQ(GrabWithBaseStyle(new QSpinBox, QStringLiteral("Windows"), {}), spin);

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
    auto* const tool = new QToolButton;
    tool->setText(QStringLiteral("DejaVu Sans, 20"));
    std::vector<QWidget*> const widgets = {new QPushButton(QStringLiteral("Convert all")),
                                           tool,
                                           new QLineEdit,
                                           new QSpinBox,
                                           new QLabel(QStringLiteral("Label")),
                                           MakeComboBox()};
    for (QWidget* const widget : widgets)
        row->addWidget(widget);
    ShowAndWait(window);
    window.resize(1, 1);
    QCoreApplication::processEvents();
    for (QWidget* const widget : widgets)
    {
        EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << widget->metaObject()->className();
        EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << widget->metaObject()->className();
    }
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
