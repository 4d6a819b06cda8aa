#include "Hosts/Desktop/FilmFixture.h"

#include "Desktop/Conversion/ConversionQueue.h"
#include "Desktop/Films/SessionStore.h"
#include "Desktop/Window/MainWindow.h"
#include "Desktop/Window/TrackPropertiesDialog.h"
#include "Desktop/Words/LanguageNames.h"
#include "Desktop/Words/Languages.h"
#include "Support/WidgetSupport.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTranslator>

#include <set>
#include <tuple>

namespace Korvex::Desktop
{
namespace
{

/// What the program asks translations for; it answers nothing itself.
class Recorder final : public QTranslator
{
public:
    using Request = std::tuple<std::string, std::string, std::string, int>; ///< context, source, comment, number

    Recorder() { QCoreApplication::installTranslator(this); }
    ~Recorder() override { QCoreApplication::removeTranslator(this); }

    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(char const* context, char const* source, char const* comment,
                                    int number) const override
    {
        // The toolkit has translations of its own; its contexts are its classes.
        if (context[0] != 'Q' && source[0] != '\0')
            m_requests.emplace(context, source, comment != nullptr ? comment : "", number);
        return {};
    }

    [[nodiscard]] std::set<Request> const& GetRequests() const { return m_requests; }

private:
    mutable std::set<Request> m_requests;
};

/// Everything that can be read on the screen or by a screen reader.
std::set<std::string> ListTexts()
{
    std::set<std::string> texts;
    auto const add = [&texts](QString const& text) { texts.insert(text.toStdString()); };
    for (QWidget const* widget : QApplication::allWidgets())
    {
        add(widget->toolTip());
        add(widget->accessibleName());
        add(widget->windowTitle());
        if (auto const* const label = qobject_cast<QLabel const*>(widget))
            add(label->text());
        if (auto const* const button = qobject_cast<QAbstractButton const*>(widget))
            add(button->text());
        for (QAction const* action : widget->actions())
            add(action->text());
        auto const* const box = qobject_cast<QComboBox const*>(widget);
        for (int i = 0; box != nullptr && i < box->count(); ++i)
            add(box->itemText(i));
    }
    return texts;
}

/// The first tracks of the lists that have any.
std::set<std::string> ListFirstTracks()
{
    std::set<std::string> tracks;
    for (QWidget const* widget : QApplication::allWidgets())
    {
        auto const* const list = qobject_cast<QListView const*>(widget);
        if (list != nullptr && list->objectName() == "trackListView" && list->model()->rowCount() > 2)
            tracks.insert(list->model()->index(2, 0).data().toString().toStdString());
    }
    return tracks;
}

class LanguagesTest : public Testing::FilmFixture
{
protected:
    ~LanguagesTest() override { QLocale::setDefault(QLocale::c()); }
};

// The tool that extracts texts and the program have to agree on contexts, and every widget has to follow a switch.
TEST_F(LanguagesTest, EveryTextOfTheWindowFollowsASwitchToGerman)
{
    Languages languages;
    Recorder const recorder;
    ConversionQueue queue(m_services);
    Film& film = Open(MakeFilm(
        "film.mkv", {Testing::MakeSubtitle("subrip", "ger"), Testing::MakeSubtitle("hdmv_pgs_subtitle", "fre")}));
    ioPath const added = WriteText("other.srt", Testing::RUSSIAN_SRT);
    film.AddSubtitleFiles({added});
    film.ChooseTrack(Testing::SubtitleTrackID(added));
    SetFormat("mp4");
    SessionStore store(m_list, m_folder / "session.json");
    MainWindow window({m_services, m_list, queue, store, Testing::GetLookAndFeel(), languages, *m_statistics});
    window.resize(1200, 800);
    Testing::ShowAndWait(window);
    ASSERT_GT(recorder.GetRequests().size(), 50U);
    EXPECT_EQ(ListFirstTracks(), std::set<std::string>{"[German] (SubRip)"});

    languages.Switch("de");
    EXPECT_EQ(languages.GetCurrent(), "de");
    QTest::qWait(300);
    std::set<std::string> const texts = ListTexts();
    QTranslator german;
    ASSERT_TRUE(german.load(":/korvex/translations/korvex_de"));
    for (auto const& [context, source, comment, number] : recorder.GetRequests())
    {
        QString const text = german.translate(context.c_str(), source.c_str(), comment.c_str(), number);
        EXPECT_FALSE(text.isEmpty()) << context << " has no \"" << source << '"';
        EXPECT_TRUE(text.toStdString() == source || texts.count(source) == 0)
            << '"' << source << "\" of " << context << " stays as it is";
    }
    EXPECT_EQ(ListFirstTracks(), std::set<std::string>{"[Deutsch] (SubRip)"});
    EXPECT_EQ(QLocale().toString(1.5), "1,5");
    EXPECT_EQ(window.findChild<QDoubleSpinBox*>("syncSpinBox")->text(), "0,00");
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Abbrechen");

    languages.Switch("no such language");
    EXPECT_EQ(languages.GetCurrent(), "en");
}

TEST_F(LanguagesTest, TheBoxOfLanguagesFollowsASwitch)
{
    Languages languages;
    TrackPropertiesDialog dialog("film.srt", {"fr", {}, false, false});
    Testing::ShowAndWait(dialog);
    auto const* const box = dialog.findChild<QComboBox*>("languageComboBox");
    EXPECT_EQ(box->currentText(), QStringLiteral("French \u2013 fran\u00E7ais"));

    languages.Switch("de");
    QTest::qWait(0);
    EXPECT_EQ(box->currentText(), QStringLiteral("Franz\u00F6sisch \u2013 fran\u00E7ais"));
    EXPECT_EQ(dialog.GetProperties().language, "fr");
    for (char const* name : {"Französisch", "french", "Français", "FR", "Französisch – français"})
        EXPECT_EQ(FindLanguage(QString::fromUtf8(name)), "fr") << name;
    int const danish = box->findText("Dänisch", Qt::MatchStartsWith);
    EXPECT_LT(danish, box->findText("Deutsch")) << "in the order of the German alphabet";
    EXPECT_GT(danish, box->findText("Chinesisch", Qt::MatchStartsWith));
}

} // namespace
} // namespace Korvex::Desktop
