#include "Support/WidgetSupport.h"

#include "Gui/ComboBoxButton.h"

#include <QSignalSpy>
#include <QTest>

using Korvex::GUI::ComboBoxButton;
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
