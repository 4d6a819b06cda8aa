#include "Hosts/Desktop/LayoutLint.h"
#include "Hosts/Desktop/WindowFixture.h"
#include "Support/LongerTexts.h"
#include "Support/WidgetSupport.h"

#include "Desktop/Window/OutputBar.h"
#include "Desktop/Window/TrackPropertiesDialog.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QTabWidget>
#include <QTimer>

namespace Korvex::Testing
{

using Desktop::Film;

namespace
{

char const* const LONGER = "longer";

class LayoutTest : public WindowFixture, public testing::WithParamInterface<std::string>
{
protected:
    LayoutTest()
    {
        if (GetParam() == LONGER)
            QCoreApplication::installTranslator(&m_longer);
        else
            Trigger(("language_" + GetParam()).c_str());
        Settle();
    }
    ~LayoutTest() override { QCoreApplication::removeTranslator(&m_longer); }

    static void Settle()
    {
        QTest::qWait(60);
        QCoreApplication::processEvents();
    }

    void LookAt(QWidget& window, std::string const& what)
    {
        Settle();
        std::string const name = "layout-" + GetParam() + "-" + m_place + "-" + what;
        SaveScreenshot(window, QString::fromStdString(name));
        for (std::string const& fault : FindLayoutFaults(window))
            ADD_FAILURE() << what << ", " << GetParam() << ", " << m_place << ": " << fault;
    }

    /// What opens a dialog and waits for it: looks at the dialog meanwhile and closes it.
    template <typename Open>
    void LookAtDialog(std::string const& what, Open const& open)
    {
        bool isSeen = false;
        QTimer::singleShot(0, &GetWindow(),
                           [&]
                           {
                               WaitUntil([] { return QApplication::activeModalWidget() != nullptr; });
                               auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                               ASSERT_NE(dialog, nullptr) << what;
                               LookAt(*dialog, what);
                               isSeen = true;
                               dialog->reject();
                           });
        open();
        WaitUntil([&isSeen] { return isSeen; });
    }

    void LookAtPopup(char const* button, char const* content)
    {
        Click(button);
        WaitUntil([&] { return Get<QWidget>(content).isVisible(); });
        LookAt(GetWindow(), content);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        Settle();
    }

    /// Two films: one with a text drawn in that the encoding help has much to say of, one with a notice.
    void AddFilms()
    {
        ioPath const first = MakeFilm("Voyage.mkv", {MakeSubtitle("subrip", "en"), MakeSubtitle("subrip", "de")});
        m_drawn = &AddFilm(first);
        ioPath const file = WriteText("russian.srt", RUSSIAN_SRT);
        m_drawn->AddSubtitleFiles({file});
        WaitUntil([this] { return m_drawn->GetCollection().tracks.size() == 3; });
        m_drawn->ChooseTrack(SubtitleTrackID(file));
        m_noticed = &AddFilm(MakeFilm("A film with a rather long name that nobody can shorten (2024) [1080p].mkv",
                                      {MakeSubtitle("hdmv_pgs_subtitle", "de"), MakeSubtitle("dvd_subtitle", "en")}));
        SetFormat("mp4");
        WaitUntil([this] { return m_drawn->GetMixerSettings() != nullptr && !m_noticed->ListProblems().empty(); });
    }

    void LookAtWindow()
    {
        Show(*m_noticed);
        WaitUntil([this] { return Get<QWidget>("noticeBar").isVisible(); });
        auto& bar = *GetWindow().findChild<Desktop::OutputBar*>();
        bar.ShowConversion(Desktop::ConversionSummary{0.42, std::chrono::minutes(83), false});
        LookAt(GetWindow(), "notice");
        bar.ShowConversion(std::nullopt);
        Show(*m_drawn);
        WaitUntil([this] { return Get<QWidget>("textSample").isVisible(); });
        LookAt(GetWindow(), "text");
    }

    void LookAtPopups()
    {
        GetWindow().activateWindow(); // dialogs took the keyboard
        ASSERT_TRUE(QTest::qWaitForWindowActive(&GetWindow()));
        LookAtPopup("addSubtitlesButton", "chooseButton");
        LookAtPopup("selectSubtitlesTrackButton", "subtitleCollection");
        auto& list = Get<QWidget>("filmListView");
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Return);
        LookAt(GetWindow(), "item-panel");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        Settle();
    }

    void LookAtDialogs()
    {
        LookAtDialog("about", [this] { Trigger("showAboutAction"); });
        LookAtDialog("shortcuts", [this] { Trigger("showShortcutsAction"); });
        LookAtDialog("settings-online", [this] { Trigger("settingsAction"); });
        LookAtDialog("settings-statistics",
                     [this]
                     {
                         QTimer::singleShot(0, &GetWindow(),
                                            [this] { Get<QTabWidget>("settingsTabs").setCurrentIndex(1); });
                         Trigger("settingsAction");
                     });
        LookAtDialog("apply-report", [this] { Trigger("applyToAllAction"); });
        LookAtDialog("font", [this] { Click("selectFontButton"); });
        LookAtDialog("color", [this] { Click("textColorPicker"); });
        LookAtDialog(
            "properties",
            [this] {
                Desktop::TrackPropertiesDialog("russian.srt", {"ru", "Русский", true, false}, &GetWindow()).exec();
            });
    }

    Film* m_drawn = nullptr;
    Film* m_noticed = nullptr;
    std::string m_place; ///< theme and size

private:
    LongerTexts m_longer;
};

std::vector<std::string> ListParameters()
{
    std::vector<std::string> codes{LONGER};
    for (Desktop::Language const& language : Desktop::Languages::List())
        codes.push_back(language.code.toStdString());
    return codes;
}

} // namespace

TEST_P(LayoutTest, TextsHaveRoomAndContrast)
{
    GetWindow().resize(900, 600);
    LookAt(GetWindow(), "empty");
    AddFilms();
    ForEachTheme(
        [this](QString const& theme)
        {
            for (QSize const size : {QSize(1280, 800), QSize(900, 600)})
            {
                m_place = theme.toStdString() + "-" + std::to_string(size.width());
                GetWindow().resize(size);
                LookAtWindow();
            }
            LookAtPopups();
            LookAtDialogs();
        });
}

INSTANTIATE_TEST_SUITE_P(OfEveryLanguage, LayoutTest, testing::ValuesIn(ListParameters()),
                         [](auto const& language) { return language.param; });

} // namespace Korvex::Testing
