#include "Desktop/Window/OutputBar.h"
#include "Desktop/Words/TimeTexts.h"

#include "Support/WidgetSupport.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTest>

namespace Korvex::Desktop
{
namespace
{

using namespace std::chrono_literals;

class OutputBarTest : public testing::Test
{
protected:
    OutputBarTest()
    {
        QObject::connect(&m_bar, &OutputBar::SettingsChanged, &m_bar,
                         [this](OutputSettings const& settings) { m_changes.push_back(settings); });
        QObject::connect(&m_bar, &OutputBar::ConvertAllRequested, &m_bar, [this] { m_asked += "all "; });
        QObject::connect(&m_bar, &OutputBar::ConvertCurrentRequested, &m_bar, [this] { m_asked += "current "; });
        QObject::connect(&m_bar, &OutputBar::CancelRequested, &m_bar, [this] { m_asked += "cancel "; });
        QObject::connect(&m_bar, &OutputBar::PauseToggled, &m_bar,
                         [this](bool isPaused) { m_asked += isPaused ? "pause " : "resume "; });
    }

    template <typename Widget>
    Widget& Find(char const* name)
    {
        auto* widget = m_bar.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
    QPushButton& Button(char const* name) { return Find<QPushButton>(name); }

    OutputBar m_bar;
    std::vector<OutputSettings> m_changes;
    std::string m_asked;
};

TEST_F(OutputBarTest, ALongFolderDoesNotWidenItAndAWideWindowHasOneRow)
{
    OutputSettings settings;
    settings.folder = ioPath("/home/somebody/Films/Converted for the living room & the train");
    Testing::ShowAndWait(m_bar);
    for (int const width : {900, 1280, 1700})
    {
        m_bar.ShowSettings(settings);
        m_bar.ShowConversion(ConversionSummary{0.37, 11h + 39min, false});
        m_bar.resize(width, m_bar.sizeHint().height());
        QApplication::processEvents();
        EXPECT_EQ(m_bar.width(), width);
        EXPECT_LE(Button("outputFolderButton").width(), 320);
    }
    EXPECT_LT(Button("convertAllButton").y(), Find<QComboBox>("formatCombo").geometry().bottom());
}

TEST_F(OutputBarTest, TellsWhatTheUserDoesAndNothingElse)
{
    OutputSettings settings;
    settings.quality = Quality::Small;
    settings.folder = ioPath("/somewhere");
    m_bar.ShowSettings(settings);
    Testing::ShowAndWait(m_bar);
    EXPECT_TRUE(m_changes.empty());
    EXPECT_FALSE(Button("convertAllButton").isEnabled());
    EXPECT_FALSE(Button("pauseButton").isVisible());

    QTest::keyClick(&Find<QComboBox>("formatCombo"), Qt::Key_Down);
    QTest::keyClick(&Find<QComboBox>("qualityCombo"), Qt::Key_Home);
    Button("outputFolderButton").click();
    auto& menu = Find<QMenu>("outputFolderMenu");
    ASSERT_TRUE(menu.isVisible());
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
    ASSERT_EQ(m_changes.size(), 3U);
    EXPECT_EQ(m_changes[0].formatId, "mp4");
    EXPECT_EQ(m_changes[1].quality, Quality::AsSource);
    EXPECT_EQ(m_changes[2].folder, std::nullopt);

    menu.actions().back()->trigger();
    auto& dialog = Find<QFileDialog>("outputFolderDialog");
    Q_EMIT dialog.fileSelected(QStringLiteral("/elsewhere"));
    dialog.close();
    EXPECT_EQ(m_changes.back().folder, ioPath("/elsewhere"));
    EXPECT_EQ(m_bar.GetSettings().formatId, "mp4");

    m_bar.SetConvertible(true, true);
    QTest::keyClick(&Button("convertAllButton"), Qt::Key_Space);
    QTest::keyClick(&Button("convertCurrentButton"), Qt::Key_Space);
    m_bar.ShowConversion(ConversionSummary{0.999, 59s, false});
    EXPECT_EQ(Find<QLabel>("totalProgressLabel").text(), QStringLiteral("99%, less than a minute left"));
    QTest::keyClick(&Button("pauseButton"), Qt::Key_Space);
    m_bar.ShowConversion(ConversionSummary{0.999, 59s, true});
    QTest::keyClick(&Button("pauseButton"), Qt::Key_Space);
    QTest::keyClick(&Button("cancelButton"), Qt::Key_Space);
    EXPECT_EQ(m_asked, "all current pause resume cancel ");
    m_bar.ShowConversion(std::nullopt);
    EXPECT_FALSE(Button("cancelButton").isVisible());
}

TEST(TimeTextsTest, NoMoreExactThanAnybodyCanKnow)
{
    EXPECT_EQ(FormatTimeLeft(59s), QStringLiteral("less than a minute left"));
    EXPECT_EQ(FormatTimeLeft(89s), QStringLiteral("1 min left"));
    EXPECT_EQ(FormatTimeLeft(59min + 40s), QStringLiteral("1 h left"));
    EXPECT_EQ(FormatTimeLeft(2h + 5min + 10s), QStringLiteral("2 h 5 min left"));
    EXPECT_EQ(FormatTimeLeft(30h), QStringLiteral("30 h left"));
    EXPECT_EQ(FormatTime(65s, 600s), QStringLiteral("01:05"));
    EXPECT_EQ(FormatTime(65s, 2h), QStringLiteral("0:01:05"));
}

} // namespace
} // namespace Korvex::Desktop
