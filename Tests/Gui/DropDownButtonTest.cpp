#include "Support/WidgetSupport.h"

#include "Gui/ComboBoxButton.h"

#include <QSignalSpy>
#include <QTest>

using Korvex::GUI::ComboBoxButton;
using Korvex::Testing::AskForToolTip;
using Korvex::Testing::ShowAndWait;

TEST(DropDownButtonTest, OpensByClickAndByEveryKeyOfAComboBox)
{
    ComboBoxButton button;
    QSignalSpy clicks(&button, &ComboBoxButton::clicked);
    ShowAndWait(button);

    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_TRUE(button.IsOpen());
    button.OnHideDropDown();
    EXPECT_FALSE(button.IsOpen());

    for (Qt::Key const key : {Qt::Key_F4, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
    {
        clicks.clear();
        QTest::keyClick(&button, key);
        EXPECT_EQ(clicks.count(), 1) << key;
        EXPECT_TRUE(button.IsOpen()) << key;
        button.OnHideDropDown();
    }
    clicks.clear();
    QTest::keyClick(&button, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(clicks.count(), 1);
}

TEST(DropDownButtonTest, ShortensALongCaptionAndTellsItInTheToolTip)
{
    QString const caption = QStringLiteral("Tom & Jerry <1940>, the whole first season [English]");
    ComboBoxButton button;
    button.SetButtonText(caption);
    EXPECT_LT(button.minimumSizeHint().width(), 120);
    EXPECT_GT(button.sizeHint().width(), button.fontMetrics().horizontalAdvance(caption));
    EXPECT_TRUE(button.shortcut().isEmpty()); // the ampersand is text
    button.resize(button.sizeHint());
    ShowAndWait(button);
    EXPECT_EQ(AskForToolTip(button), QString());
    button.resize(button.minimumSizeHint());
    EXPECT_EQ(AskForToolTip(button), caption.toHtmlEscaped());
    EXPECT_EQ(button.GetButtonText(), caption);
}
