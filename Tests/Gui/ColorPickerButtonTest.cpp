#include "Support/WidgetSupport.h"

#include "Gui/ColorPickerButton.h"

#include <QColorDialog>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

using Korvex::GUI::ColorPickerButton;
using Korvex::Testing::ForEachTheme;
using Korvex::Testing::ShowAndWait;

namespace
{

QColorDialog* FindDialog(ColorPickerButton const& button)
{
    return button.findChild<QColorDialog*>();
}

class GermanTranslator final : public QTranslator
{
public:
    QString translate(char const* /*context*/, char const* text, char const* /*comment*/, int /*n*/) const override
    {
        return qstrcmp(text, "Color %1") == 0 ? QStringLiteral("Farbe %1") : QString();
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
};

QList<QColor> ListColors(QSignalSpy const& spy)
{
    QList<QColor> colors;
    for (QList<QVariant> const& arguments : spy)
        colors.append(arguments.front().value<QColor>());
    return colors;
}

} // namespace

TEST(ColorPickerButtonTest, TellsItsColorInWords)
{
    ColorPickerButton button;
    QSignalSpy const changes(&button, &ColorPickerButton::ColorChanged);
    button.SetColor(QColor(0x12, 0xab, 0xef));
    button.SetColor(QColor(0x12, 0xab, 0xef));
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(button.text(), QStringLiteral("#12abef"));
    EXPECT_TRUE(button.accessibleName().contains(QStringLiteral("#12abef")));
    button.SetCaption(QStringLiteral("Text & outline"));
    EXPECT_EQ(button.accessibleName(), QStringLiteral("Text & outline: #12abef"));
    EXPECT_EQ(button.toolTip(), QStringLiteral("Text &amp; outline: #12abef"));
    button.SetCaption({});
    GermanTranslator german;
    QCoreApplication::installTranslator(&german);
    QCoreApplication::processEvents();
    EXPECT_EQ(button.accessibleName(), QStringLiteral("Farbe #12abef"));
}

TEST(ColorPickerButtonTest, ReportsColorsWhileTheDialogIsOpenAndGoesBackOnCancel)
{
    ColorPickerButton button;
    button.SetColor(Qt::red);
    ShowAndWait(button);
    QSignalSpy changes(&button, &ColorPickerButton::ColorChanged);

    QTest::keyClick(&button, Qt::Key_Return);
    QColorDialog* dialog = FindDialog(button);
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(dialog->testOption(QColorDialog::ShowAlphaChannel));
    EXPECT_TRUE(dialog->testOption(QColorDialog::DontUseNativeDialog));
    EXPECT_FALSE(dialog->windowTitle().isEmpty());
    EXPECT_EQ(dialog->currentColor(), QColor(Qt::red));
    dialog->setCurrentColor(Qt::green);
    dialog->setCurrentColor(Qt::blue);
    EXPECT_EQ(ListColors(changes), (QList<QColor>{Qt::green, Qt::blue}));
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_EQ(button.Color(), QColor(Qt::red));
    EXPECT_EQ(changes.count(), 3);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(FindDialog(button), nullptr);

    QTest::mouseClick(&button, Qt::LeftButton);
    dialog = FindDialog(button);
    ASSERT_NE(dialog, nullptr);
    dialog->setCurrentColor(Qt::blue);
    dialog->accept();
    EXPECT_EQ(button.Color(), QColor(Qt::blue));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QTest::mouseClick(&button, Qt::LeftButton);
    dialog = FindDialog(button);
    ASSERT_NE(dialog, nullptr);
    dialog->setCurrentColor(Qt::green);
    button.SetColor(Qt::yellow);
    dialog->reject();
    EXPECT_EQ(button.Color(), QColor(Qt::yellow)) << "the button stands for something else since";
}

TEST(ColorPickerButtonTest, ItsDialogStandsInTheCornerOfTheWindow)
{
    QWidget window;
    ColorPickerButton button(&window);
    ShowAndWait(window);
    QRect const screen = window.screen()->availableGeometry();
    window.resize(screen.width() - 100, screen.height() - 200);
    for (int const left : {50, 400, 200 - screen.width()}) // the window sticks out of the screen on either side
    {
        window.move(left, 80);
        QTest::mouseClick(&button, Qt::LeftButton);
        QColorDialog* const dialog = FindDialog(button);
        ASSERT_NE(dialog, nullptr);
        int const right = qBound(dialog->frameGeometry().width() - 1, window.frameGeometry().right(), screen.right());
        EXPECT_EQ(dialog->frameGeometry().topRight(), QPoint(right, window.frameGeometry().top())) << left;
        dialog->reject();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST(ColorPickerButtonTest, SwatchStandsOutFromEveryColor)
{
    ForEachTheme(
        [](QString const&)
        {
            for (QColor const& color : {QColor(Qt::white), QColor(Qt::black), QColor(0x87, 0x93, 0x9a)})
            {
                ColorPickerButton button;
                button.SetColor(color);
                ShowAndWait(button);
                QImage const picture = button.grab().toImage();
                QRgb const center = picture.pixel(picture.rect().center());
                EXPECT_EQ(center, color.rgb());
                // On the way out to the button's edge there is a line that differs clearly from the colour.
                int largest = 0;
                for (int x = 4; x < picture.width() / 2; ++x)
                    largest = qMax(largest, qAbs(qGray(picture.pixel(x, picture.height() / 2)) - qGray(center)));
                EXPECT_GT(largest, 60) << qPrintable(color.name());
            }
        });
}
