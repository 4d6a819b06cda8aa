#include "Hosts/Desktop/WindowFixture.h"
#include "Support/Environment.h"
#include "Support/WidgetSupport.h"

#include "Desktop/Window/OnlineSettings.h"

#include "Core/FileSystem.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>

namespace Korvex::Testing
{

namespace
{

using testing::HasSubstr;

class SettingsDialogTest : public WindowFixture
{
protected:
    SettingsDialogTest() : m_variable("KORVEX_CONFIG", (m_folder / "korvex.conf").utf8string()) {}

    /// Opens the dialog by its key and does something in it; it has to be closed then.
    template <typename Act>
    void InDialog(Act const& act)
    {
        bool isDone = false;
        QTimer::singleShot(0, &GetWindow(),
                           [&]
                           {
                               WaitUntil([] { return QApplication::activeModalWidget() != nullptr; });
                               m_dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                               ASSERT_NE(m_dialog, nullptr);
                               WaitUntil([this] { return !Text("clientLabel").empty(); });
                               QTest::qWait(20); // the texts take their room
                               act();
                               WaitUntil([this] { return !m_dialog->isVisible(); });
                               isDone = true;
                           });
        Trigger("settingsAction");
        EXPECT_TRUE(isDone);
    }

    template <typename Widget>
    Widget& In(char const* name)
    {
        auto* widget = m_dialog->findChild<Widget*>(QLatin1String(name));
        if (widget == nullptr)
            throw std::logic_error(std::string("the dialog has no ") + name);
        return *widget;
    }
    std::string Text(char const* label) { return In<QLabel>(label).text().toStdString(); }
    QPushButton& Button(QDialogButtonBox::StandardButton button)
    {
        return *m_dialog->findChild<QDialogButtonBox*>()->button(button);
    }
    void Press(QAbstractButton& button) { QTest::mouseClick(&button, Qt::LeftButton); }
    void Type(char const* field, QString const& text)
    {
        auto& edit = In<QLineEdit>(field);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }

    [[nodiscard]] std::string ReadConfiguration() const
    {
        auto const bytes = Core::ReadFile(m_folder / "korvex.conf", 10'000);
        return bytes ? *bytes : std::string();
    }

    ScopedVariable m_variable;
    QDialog* m_dialog = nullptr;
};

} // namespace

TEST_F(SettingsDialogTest, ApiKeyIsStoredForTheNextStart)
{
    WriteText("korvex.conf", "; mine\n[opensubtitles]\ntimeout = 12\n");
    InDialog(
        [this]
        {
            EXPECT_THAT(Text("clientLabel"), HasSubstr("no API key is set"));
            EXPECT_EQ(In<QLineEdit>("apiKeyEdit").echoMode(), QLineEdit::Password);
            SaveScreenshot(*m_dialog, QStringLiteral("settings-online"));
            Type("apiKeyEdit", QStringLiteral("wrong key"));
            EXPECT_FALSE(Button(QDialogButtonBox::Ok).isEnabled());
            EXPECT_THAT(Text("apiKeyHint"), HasSubstr("no API key"));
            Type("apiKeyEdit", QStringLiteral(" 0123-key "));
            EXPECT_TRUE(Button(QDialogButtonBox::Ok).isEnabled());
            Press(In<QCheckBox>("showKeyCheckBox"));
            EXPECT_EQ(In<QLineEdit>("apiKeyEdit").echoMode(), QLineEdit::Normal);
            Press(Button(QDialogButtonBox::Ok));
        });
    EXPECT_EQ(ReadConfiguration(), "; mine\n[opensubtitles]\napi_key = 0123-key\ntimeout = 12\n");

    InDialog(
        [this]
        {
            EXPECT_EQ(In<QLineEdit>("apiKeyEdit").text(), "0123-key");
            EXPECT_THAT(Text("clientLabel"), HasSubstr("older"));
            EXPECT_THAT(Text("nextClientLabel"), HasSubstr("because an API key is set"));
            Type("apiKeyEdit", QStringLiteral("unwanted"));
            Press(Button(QDialogButtonBox::Cancel));
        });
    EXPECT_THAT(ReadConfiguration(), HasSubstr("api_key = 0123-key\n"));

    ScopedVariable const variable("KORVEX_OPENSUBTITLES_API_KEY", "from-outside");
    InDialog(
        [this]
        {
            EXPECT_FALSE(In<QLineEdit>("apiKeyEdit").isEnabled());
            EXPECT_EQ(In<QLineEdit>("apiKeyEdit").text(), "");
            EXPECT_THAT(Text("apiKeyHint"), HasSubstr("KORVEX_OPENSUBTITLES_API_KEY"));
            Press(Button(QDialogButtonBox::Ok));
        });
    EXPECT_THAT(ReadConfiguration(), HasSubstr("api_key = 0123-key\n"));
}

TEST_F(SettingsDialogTest, AKeyThatCannotBeStoredIsNotLost)
{
    ASSERT_EQ(Core::CreateFolders(m_folder / "korvex.conf"), Core::SUCCESS);
    InDialog(
        [this]
        {
            EXPECT_THAT(Text("configurationProblems"), HasSubstr("korvex.conf"));
            Type("apiKeyEdit", QStringLiteral("0123-key"));
            Press(Button(QDialogButtonBox::Ok));
            WaitUntil([this] { return In<QLabel>("settingsFailure").isVisible(); });
            EXPECT_THAT(Text("settingsFailure"), HasSubstr("korvex.conf"));
            EXPECT_EQ(In<QLineEdit>("apiKeyEdit").text(), "0123-key");
            Press(Button(QDialogButtonBox::Cancel));
        });
}

TEST_F(SettingsDialogTest, StatisticsAreShownAndDeletedAndOffAtFirst)
{
    m_statistics->TrackEvent("TOO_EARLY", {});
    InDialog(
        [this]
        {
            In<QTabWidget>("settingsTabs").setCurrentIndex(1);
            EXPECT_FALSE(In<QCheckBox>("statisticsCheckBox").isChecked());
            EXPECT_FALSE(In<QPushButton>("deleteStatisticsButton").isEnabled());
            Press(In<QCheckBox>("statisticsCheckBox"));
            Press(Button(QDialogButtonBox::Ok));
        });
    Restart();
    m_statistics->TrackEvent("SOMETHING_COUNTED", {{"FOUND", "3"}});
    InDialog(
        [this]
        {
            In<QTabWidget>("settingsTabs").setCurrentIndex(1);
            EXPECT_TRUE(In<QCheckBox>("statisticsCheckBox").isChecked());
            auto& lines = In<QPlainTextEdit>("statisticsLines");
            WaitUntil([&lines] { return !lines.toPlainText().isEmpty(); });
            EXPECT_THAT(lines.toPlainText().toStdString(), HasSubstr("SOMETHING_COUNTED"));
            EXPECT_THAT(lines.toPlainText().toStdString(), testing::Not(HasSubstr("TOO_EARLY")));
            SaveScreenshot(*m_dialog, QStringLiteral("settings-statistics"));
            Press(In<QPushButton>("deleteStatisticsButton"));
            WaitUntil([&lines] { return lines.toPlainText().isEmpty(); });
            EXPECT_FALSE(Core::PathExists(m_statistics->GetFile()));
            Press(In<QCheckBox>("statisticsCheckBox"));
            Press(Button(QDialogButtonBox::Ok));
        });
    EXPECT_FALSE(m_statistics->IsEnabled());
}

} // namespace Korvex::Testing
