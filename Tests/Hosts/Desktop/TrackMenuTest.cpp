#include "Hosts/Desktop/FilmFixture.h"

#include "Support/WidgetSupport.h"

#include "Desktop/Window/SaveTrack.h"
#include "Desktop/Window/TrackMenu.h"
#include "Desktop/Window/TrackPropertiesDialog.h"
#include "Desktop/Words/LanguageNames.h"

#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/Entities/SubtitleTrack.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include <optional>

namespace Korvex::Testing
{
namespace
{

using Desktop::FilmState;
using Desktop::FindLanguage;
using Desktop::SaveTrack;
using Desktop::TrackMenu;
using Desktop::TrackProperties;
using Desktop::TrackPropertiesDialog;

class TrackMenuTest : public FilmFixture
{
protected:
    TrackMenuTest()
    {
        m_file = WriteText("film.en.srt", HELLO_SRT);
        m_film = &Open(MakeFilm("film.mkv", {MakeSubtitle("subrip", "eng"), MakeSubtitle("subrip", "ger")}));
        ShowAndWait(m_window);
    }

    /// The names of a menu's entries; a tick behind those that are ticked.
    std::vector<std::string> List(SubtitleTrackID const& id)
    {
        std::vector<std::string> names;
        TrackMenu const menu(*m_film, id, m_saving, &m_window);
        for (QAction const* action : menu.actions())
        {
            if (!action->isSeparator())
                names.push_back(action->objectName().toStdString() + (action->isChecked() ? " ✓" : ""));
        }
        return names;
    }

    void Trigger(SubtitleTrackID const& id, char const* name)
    {
        TrackMenu menu(*m_film, id, m_saving, &m_window);
        auto* const action = menu.findChild<QAction*>(name);
        ASSERT_NE(action, nullptr) << name;
        action->trigger();
    }

    ioPath m_file;
    Desktop::Film* m_film = nullptr;
    QWidget m_window;
    int m_askedCount = 0;
    SaveTrack m_saving{&m_window, [this](QWidget*, Desktop::SaveQuestion const&)
                       {
                           ++m_askedCount;
                           return QString();
                       }};
};

using Names = std::vector<std::string>;

TEST_F(TrackMenuTest, DoesWithATrackWhatItsEntriesSay)
{
    SubtitleTrackID const german(3U);
    SubtitleTrackID const file(m_file);
    EXPECT_EQ(List(german), (Names{"drawIn", "leaveOut", "saveAs"}));
    EXPECT_EQ(List(file), (Names{"drawIn", "leaveOut", "properties", "saveAs"}));

    Trigger(german, "drawIn");
    EXPECT_EQ(m_film->GetDrawnTrack()->id, german);
    EXPECT_EQ(List(german), (Names{"drawIn ✓", "leaveOut", "saveAs"}));

    Trigger(german, "leaveOut");
    EXPECT_EQ(m_film->GetCollection().tracks.count(german), 0U);
    EXPECT_EQ(List(german), (Names{"putBack", "saveAs"}));
    EXPECT_EQ(List(file), (Names{"drawIn", "leaveOut", "properties", "saveAs", "putBackMenu"}));
    Trigger(german, "saveAs");
    WaitUntil([&] { return m_askedCount == 1; });
    Trigger(file, "putBack");
    EXPECT_EQ(m_film->GetCollection().tracks.count(german), 1U);

    Trigger(file, "leaveOut");
    EXPECT_EQ(m_film->GetCollection().tracks.count(file), 0U);
    EXPECT_TRUE(m_film->ListLeftOut().empty()) << "a removed file is not kept";
}

TEST_F(TrackMenuTest, TakesWhatTheUserWritesOfAnAddedFile)
{
    Trigger(SubtitleTrackID(m_file), "properties");
    QPointer<TrackPropertiesDialog> const dialog = m_window.findChild<TrackPropertiesDialog*>();
    ASSERT_NE(dialog, nullptr);
    ShowAndWait(*dialog);
    auto* const language = dialog->findChild<QComboBox*>("languageComboBox")->lineEdit();
    EXPECT_EQ(language->text().toStdString(), "English");
    EXPECT_TRUE(language->hasFocus());
    QTest::keyClicks(language, "Klingon");
    auto const* const hint = dialog->findChild<QLabel*>("languageHint");
    EXPECT_TRUE(hint->isVisible());
    QTest::keyClick(language, Qt::Key_Return);
    ASSERT_TRUE(dialog && dialog->isVisible()) << "a language that is none cannot be accepted";

    language->selectAll();
    QTest::keyClicks(language, "deutsch");
    dialog->findChild<QLineEdit*>("titleEdit")->insert(QStringLiteral(" Für  Kinder "));
    QTest::keyClick(dialog->findChild<QCheckBox*>("defaultCheckBox"), Qt::Key_Space);
    QTest::keyClick(dialog->findChild<QCheckBox*>("forcedCheckBox"), Qt::Key_Space);
    QTest::keyClick(dialog->findChild<QLineEdit*>("titleEdit"), Qt::Key_Return);
    WaitUntil([&] { return !dialog; });
    TrackProperties const properties = m_film->GetTrackProperties(SubtitleTrackID(m_file));
    EXPECT_EQ(properties.language, "de");
    EXPECT_EQ(properties.title, "Für Kinder");
    EXPECT_TRUE(properties.isDefault && properties.isForced);
}

TEST_F(TrackMenuTest, ItsDialogGoesWithTheFilm)
{
    Trigger(SubtitleTrackID(m_file), "properties");
    QPointer<TrackPropertiesDialog> const dialog = m_window.findChild<TrackPropertiesDialog*>();
    ASSERT_NE(dialog, nullptr);
    m_list.Remove(m_film->GetId());
    WaitUntil([&] { return !dialog; });
}

TEST(LanguageNamesTest, FindsALanguageByAnyOfItsNames)
{
    std::vector<std::pair<char const*, std::optional<std::string>>> const table = {
        {"", ""},           {"  ", ""},
        {"German", "de"},   {"DEUTSCH", "de"},
        {"ger", "de"},      {"German – Deutsch", "de"},
        {"pt-br", "pt-br"}, {"Portuguese (Brazil)", "pt-br"},
        {"tlh", "tlh"},     {"klingon", {}},
        {"x", {}},          {"русский", "ru"},
        {"español", "es"},  {"简体中文", "zh"}};
    for (auto const& [written, shortName] : table)
        EXPECT_EQ(FindLanguage(QString::fromUtf8(written)), shortName) << written;
}

} // namespace
} // namespace Korvex::Testing
