#include "Hosts/Desktop/WindowFixture.h"
#include "Subtitles/Fakes/TrackListClicks.h"
#include "Support/WidgetSupport.h"

#include "Core/FileSystem.h"
#include "Proc/MediaInfo.h"
#include "Proc/Settings.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>
#include <QtTest/QTest>

namespace Korvex::Testing
{

using Converter::Subtitles::Testing::ClickTrackRow;
using Desktop::ConversionState;
using Desktop::Film;

namespace
{

class MainWindowTest : public WindowFixture
{
protected:
    /// In the editing panel: opens the track list and clicks a row of it.
    void ChooseInPanel(int row)
    {
        Click("selectSubtitlesTrackButton");
        ClickTrackRow(Get<QWidget>("subtitleCollection"), row);
    }

    void TypeInto(char const* spinBox, QString const& text)
    {
        auto& box = Get<QAbstractSpinBox>(spinBox);
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, text);
        QTest::keyClick(&box, Qt::Key_Return);
    }

    /// Presses the button of that role once a question stands.
    void AnswerNextQuestion(QMessageBox::ButtonRole role)
    {
        QTimer::singleShot(0, &GetWindow(),
                           [role]
                           {
                               auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                               ASSERT_NE(box, nullptr);
                               for (QAbstractButton* button : box->buttons())
                                   if (box->buttonRole(button) == role)
                                       return QTest::mouseClick(button, Qt::LeftButton);
                               FAIL() << "the question has no such answer";
                           });
    }

    /// With the keyboard, as a person does who knows what it is called.
    void ChooseFormat(QString const& name)
    {
        auto& box = Get<QComboBox>("formatCombo");
        box.setFocus();
        QTest::keyClicks(&box, name);
        ASSERT_EQ(box.currentText(), name);
    }

    /// Neither over each other nor apart.
    void ExpectRowsInLine()
    {
        auto const& list = Get<QListView>("filmListView");
        for (int row = 1; row < list.model()->rowCount(); ++row)
            EXPECT_EQ(list.visualRect(list.model()->index(row, 0)).top(),
                      list.visualRect(list.model()->index(row - 1, 0)).bottom() + 1)
                << "row " << row;
    }

    [[nodiscard]] QStringList ListNoticeButtons()
    {
        QStringList labels;
        for (QPushButton const* button : GetWindow().findChildren<QPushButton*>(QStringLiteral("noticeButton")))
            if (button->isVisible())
                labels << button->text();
        return labels;
    }

    void PressNoticeButton(QString const& label)
    {
        for (QPushButton* button : GetWindow().findChildren<QPushButton*>(QStringLiteral("noticeButton")))
            if (button->isVisible() && button->text() == label)
                return QTest::mouseClick(button, Qt::LeftButton);
        FAIL() << "no button " << qPrintable(label);
    }
};

} // namespace

TEST_F(MainWindowTest, FromDropToConvertedFilm)
{
    ioPath const path = MakeFilm("Voyage.mkv", {MakeSubtitle("subrip", "en")});
    ioPath const russian = WriteText("elsewhere.srt", RUSSIAN_SRT);
    EXPECT_EQ(Get<QStackedWidget>("pages").currentIndex(), 0);

    Drop({path}, GetWindow());
    Film& film = WaitForFilm(path);
    EXPECT_EQ(Get<QStackedWidget>("pages").currentIndex(), 1);
    for (QWidget const* part : GetWindow().findChildren<QWidget*>())
        EXPECT_FALSE(part->acceptDrops()) << qPrintable(part->objectName()) << " would take the file's name as text";
    Drop({russian}, *Get<QAbstractSpinBox>("syncSpinBox").findChild<QLineEdit*>());
    WaitUntil([&film] { return film.GetCollection().tracks.size() == 2; });
    Film& other = AddFilm(MakeFilm("Other.mkv"));
    Show(film);
    DropOntoFilm({russian}, other);
    WaitUntil([&other] { return other.GetCollection().tracks.size() == 1; });
    Show(film);

    ChooseInPanel(3); // after "no subtitles", "all tracks" and the film's own
    WaitUntil([&film] { return film.GetMixerSettings() != nullptr; });
    TypeInto("alignSpinBox", QStringLiteral("40"));
    TypeInto("syncSpinBox", QLocale().toString(1.5));

    auto const settings = film.GetMixerSettings();
    ASSERT_NE(settings, nullptr);
    EXPECT_EQ(settings->GetFilename(), russian);
    Proc::SettingsSubtitleDrawer const& drawer = settings->GetDrawerSettings();
    EXPECT_EQ(drawer.GetMoveUp(), 40);
    EXPECT_EQ(drawer.GetTimeShift(), 1'500'000);

    Click("convertAllButton");
    WaitUntil([this, &film] { return GetState(film) == ConversionState::Done; });
    ioPath const output = GetQueue().FindStatus(film.GetId())->output;
    auto const converted = Proc::ProbeMedia(output);
    ASSERT_TRUE(converted) << output.utf8string();
    EXPECT_NE(output, path);
    EXPECT_NE(converted->FindMainVideo(), nullptr);

    // To look at a film does not make it one to be converted.
    WaitUntil([this, &other] { return GetState(other) == ConversionState::Done; });
    Show(other);
    Show(film);
    Film& late = AddFilm(MakeFilm("Late.mkv"));
    Click("convertAllButton");
    WaitUntil([this, &late] { return GetState(late) == ConversionState::Done; });
    EXPECT_EQ(GetQueue().FindStatus(film.GetId())->output, output);
    ExpectRowsInLine(); // with a line about its conversion, each of them needs another height
    TypeInto("alignSpinBox", QStringLiteral("30"));
    Click("convertAllButton");
    WaitUntil([&] { return GetQueue().FindStatus(film.GetId())->output != output; });
}

TEST_F(MainWindowTest, FilesThatComeLateLeaveTheChosenFilm)
{
    Film& first = AddFilm(MakeFilm("First.mkv"));
    Film& second = AddFilm(MakeFilm("Second.mkv"));
    auto const& list = Get<QListView>("filmListView");
    Show(first);
    GetWindow().AddFiles({second.GetPath(), MakeFilm("Third.mkv")});
    Show(second);
    WaitUntil([&list] { return list.model()->rowCount() == 3; });
    GetWindow().AddFiles({first.GetPath()});
    QTest::qWait(50);
    EXPECT_EQ(list.currentIndex().row(), 1);
    GetWindow().AddFiles({MakeFilm("Fourth.mkv")});
    WaitUntil([&list] { return list.currentIndex().row() == 3; });
}

TEST_F(MainWindowTest, NoticeOffersWaysOutThatWork)
{
    Film& first = AddFilm(MakeFilm("First.mkv", {MakeSubtitle("hdmv_pgs_subtitle", "en")}));
    Film& second = AddFilm(MakeFilm("Second.mkv", {MakeSubtitle("hdmv_pgs_subtitle", "de")}));
    Film& fine = AddFilm(MakeFilm("Fine.mkv"));
    Show(fine);
    auto& notice = Get<QWidget>("noticeBar");
    EXPECT_FALSE(notice.isVisible());

    ChooseFormat(QStringLiteral("MP4"));
    Click("convertAllButton");
    WaitUntil([this, &fine] { return GetState(fine) == ConversionState::Done; });
    // What can be converted is, the first one that cannot is shown.
    EXPECT_EQ(GetState(first), std::nullopt);
    EXPECT_EQ(GetState(second), std::nullopt);
    auto const& sentence = Get<QLabel>("noticeSentence");
    WaitUntil([&sentence] { return sentence.text().contains(QLatin1String("1 film converted.")); });
    EXPECT_TRUE(sentence.text().endsWith(QLatin1String("First.mkv, Second.mkv"))) << qPrintable(sentence.text());
    Show(fine);
    PressNoticeButton(QStringLiteral("Show the first that failed"));
    WaitUntil([&sentence] { return sentence.text().contains(QLatin1String("PGS")); });
    WaitUntil([this] { return ListNoticeButtons().size() == 3; });

    PressNoticeButton(QStringLiteral("Draw it in"));
    WaitUntil([&sentence] { return sentence.text().contains(QLatin1String("1 film converted.")); });
    Click("noticeCloseButton");
    EXPECT_FALSE(notice.isVisible());
    EXPECT_NE(first.GetMixerSettings(), nullptr);
    EXPECT_TRUE(first.IsConvertible());

    Show(second);
    PressNoticeButton(QStringLiteral("Choose Matroska"));
    WaitUntil([&second] { return second.IsConvertible(); });
    EXPECT_EQ(Get<QComboBox>("formatCombo").currentText(), QStringLiteral("Matroska"));
    EXPECT_EQ(second.GetMixerSettings(), nullptr);

    Trigger("copyCommandAction");
    WaitUntil([&notice] { return notice.isVisible(); });
    QTest::keyClick(&Get<QComboBox>("formatCombo"), Qt::Key_Down);
    WaitUntil([&sentence] { return sentence.text().contains(QLatin1String("PGS")); }); // not behind the news
}

TEST_F(MainWindowTest, OnlyWhatTellsOfSuccessGoesByItself)
{
    Film& whole = AddFilm(MakeFilm("Whole.mkv"));
    ioPath const brokenPath = MakeFilm("Broken.mp4");
    Film& broken = AddFilm(brokenPath);
    auto& notice = Get<QWidget>("noticeBar");
    auto const& sentence = Get<QLabel>("noticeSentence");
    auto& timer = Get<QTimer>("noticePassingTimer");

    GetWindow().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&GetWindow()));
    Show(whole);
    Click("convertCurrentButton");
    WaitUntil([&sentence] { return sentence.text() == QLatin1String("1 film converted."); });
    EXPECT_TRUE(timer.isActive());
    timer.setInterval(50);
    GetWindow().findChild<QPushButton*>(QStringLiteral("noticeButton"))->setFocus();
    QTest::qWait(200);
    EXPECT_TRUE(notice.isVisible()) << "the focus is in it";
    Get<QListView>("filmListView").setFocus();
    WaitUntil([&notice] { return !notice.isVisible(); });

    Show(broken);
    Core::RemoveFile(brokenPath);
    Click("convertCurrentButton");
    WaitUntil([&sentence] { return sentence.text() == QLatin1String("1 film could not be converted: Broken.mp4"); });
    EXPECT_FALSE(timer.isActive());
    QTest::qWait(200);
    EXPECT_TRUE(notice.isVisible());
}

TEST_F(MainWindowTest, WhatAConversionChangesOrMissesIsToldAtOnce)
{
    Film& film = AddFilm(MakeFilm("Film.mkv", {MakeSubtitle("ass", "en")}));
    Show(film);
    ChooseFormat(QStringLiteral("MP4"));
    auto const& sentence = Get<QLabel>("noticeSentence");
    WaitUntil([&sentence] { return sentence.text().contains(QLatin1String("loses its styles")); });
    WaitUntil([this] { return Get<QLabel>("previewHint").text().contains(QLatin1String("loses its styles")); });
    WaitUntil([this] { return ListNoticeButtons().size() == 2; });
    PressNoticeButton(QStringLiteral("Choose Matroska"));
    WaitUntil([this] { return !Get<QWidget>("noticeBar").isVisible(); });

    ASSERT_TRUE(QFile::remove(QString::fromStdString(film.GetPath().utf8string())));
    Click("convertAllButton");
    WaitUntil([&film] { return film.GetState() == Desktop::FilmState::Missing; });
    WaitUntil([this] { return ListNoticeButtons() == QStringList{QStringLiteral("Locate...")}; });
}

TEST_F(MainWindowTest, FilmsObeyTheKeyboard)
{
    Film& first = AddFilm(MakeFilm("First.mkv", {MakeSubtitle("subrip", "en")}));
    Film& second = AddFilm(MakeFilm("Second.mkv", {MakeSubtitle("subrip", "en")}));
    auto& list = Get<QListView>("filmListView");
    Show(first);
    list.setFocus();

    ChooseInPanel(2);
    WaitUntil([&first] { return first.GetMixerSettings() != nullptr; });
    EXPECT_EQ(second.GetMixerSettings(), nullptr);
    list.setFocus();

    // The panel follows the list, so the second film is edited now.
    QTest::keyClick(&list, Qt::Key_Down);
    ChooseInPanel(0);
    WaitUntil([&second] { return second.GetCollection().withoutSubtitles != 0; });
    EXPECT_NE(first.GetMixerSettings(), nullptr);

    // Shortcuts that move through the list leave nothing selected behind them, which the next key would remove, too.
    for (auto const key : {Qt::Key_PageUp, Qt::Key_PageDown})
    {
        QTest::keyClick(GetWindow().windowHandle(), key, Qt::ControlModifier);
        EXPECT_EQ(list.currentIndex().row(), key == Qt::Key_PageUp ? 0 : 1);
        EXPECT_EQ(list.selectionModel()->selectedIndexes(), QModelIndexList{list.currentIndex()});
    }

    // In a field of the panel the key belongs to the field.
    QTest::keyClick(&Get<QComboBox>("formatCombo"), Qt::Key_Delete);
    EXPECT_EQ(m_list.rowCount(), 2);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(m_list.rowCount(), 1);
    EXPECT_EQ(m_list.GetFilms().front(), &first);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(m_list.rowCount(), 0);
    EXPECT_EQ(Get<QStackedWidget>("pages").currentIndex(), 0);
}

TEST_F(MainWindowTest, RestartBringsBackListChoiceThemeAndLanguage)
{
    ioPath const path = MakeFilm("Voyage.mkv", {MakeSubtitle("subrip", "en"), MakeSubtitle("subrip", "de")});
    Film& film = AddFilm(path);
    Show(film);
    ChooseInPanel(3);
    WaitUntil([&film] { return film.GetMixerSettings() != nullptr; });
    Trigger("themeDarkAction");
    Trigger("language_de");
    EXPECT_EQ(GetLookAndFeel().GetTheme(), App::Theme::Dark);
    GetWindow().resize(1000, 700);
    GetWindow().close();

    GetLookAndFeel().SetTheme(App::Theme::Light);
    Restart();
    EXPECT_EQ(GetLookAndFeel().GetTheme(), App::Theme::Dark);
    EXPECT_EQ(GetLanguage(), QStringLiteral("de"));
    EXPECT_EQ(GetWindow().size(), QSize(1000, 700));
    Film& again = WaitForFilm(path);
    WaitUntil([&again] { return again.GetMixerSettings() != nullptr; });
    EXPECT_EQ(again.GetMixerSettings()->GetSubtitleStreamIndex(), 3U);
    WaitUntil([this] { return Get<QWidget>("selectSubtitlesTrackButton").isEnabled(); });
    EXPECT_TRUE(Get<QAction>("removeFilmsAction").isEnabled()); // it is shown and selected, too
    Trigger("themeLightAction");
}

TEST_F(MainWindowTest, ClosingAsksWhileFilmsAreConverted)
{
    AddFilm(MakeFilm("Voyage.mkv"));
    Trigger("convertAllAction");
    Trigger("pauseAction");
    ASSERT_TRUE(GetQueue().IsActive());

    AnswerNextQuestion(QMessageBox::RejectRole);
    EXPECT_FALSE(GetWindow().close());
    EXPECT_TRUE(GetWindow().isVisible());

    Trigger("cancelAllAction");
    WaitUntil([this] { return !GetQueue().IsActive(); });
    EXPECT_FALSE(Get<QAction>("pauseAction").isChecked()) << "a pause ends with what was paused";
    Trigger("convertAllAction");
    Trigger("pauseAction");
    EXPECT_TRUE(GetQueue().IsPaused());
    AnswerNextQuestion(QMessageBox::DestructiveRole);
    EXPECT_TRUE(GetWindow().close());
}

} // namespace Korvex::Testing
