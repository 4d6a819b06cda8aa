#include "Hosts/Desktop/FilmFixture.h"

#include "Desktop/Films/FileKinds.h"

#include "Core/FileSystem.h"
#include "Proc/MediaInfo.h"

#include <QFile>
#include <QSignalSpy>

#include <gmock/gmock.h>

namespace Korvex::Testing
{
namespace
{

using Desktop::Film;
using Desktop::FilmId;
using Desktop::FilmState;
using testing::ElementsAre;
using testing::HasSubstr;

class FilmListTest : public FilmFixture
{
protected:
    /// Returns the subtitle files that found no film.
    std::vector<ioPath> AddDropped(std::vector<ioPath> const& paths, Film* current)
    {
        Desktop::DroppedFiles const dropped = Desktop::SortDropped(paths);
        m_list.Add(dropped.films);
        return m_list.AddSubtitleFiles(dropped.subtitles, current);
    }
};

TEST_F(FilmListTest, FilmsAreReadAsideOnceEachAndShowTheirPicture)
{
    MadeMedia wide;
    wide.video = MadeVideo{};
    wide.video->width = 180;
    wide.video->height = 144;
    wide.video->sampleAspectNumerator = 2;
    MakeMedia(m_folder / "wide.mkv", wide);
    ASSERT_EQ(Core::CreateFolders(m_folder / "folder"), Core::SUCCESS);
    MakeFilm("folder/a.mkv");
    WriteText("folder/note.txt", "no film");
    QString const link = QString::fromStdString((m_folder / "link.mkv").utf8string());
    ASSERT_TRUE(QFile::link(QString::fromStdString((m_folder / "wide.mkv").utf8string()), link));

    QSignalSpy inserted(&m_list, &QAbstractItemModel::rowsInserted);
    AddDropped({m_folder / "wide.mkv", m_folder / "folder", m_folder / "link.mkv"}, nullptr);
    EXPECT_EQ(inserted.count(), 2);
    ASSERT_EQ(m_list.rowCount(), 2);
    EXPECT_EQ(m_list.GetFilms().front()->GetState(), FilmState::Reading) << "adding waits for nothing";
    WaitUntil([this] { return !m_list.GetFilms().back()->GetThumbnail().isNull(); });
    EXPECT_EQ(m_list.GetFilms().front()->GetThumbnail().size(), QSize(160, 64));
    EXPECT_EQ(m_list.GetFilms().back()->GetThumbnail().size(), QSize(160, 90));
    QModelIndex const last = m_list.index(1);
    EXPECT_EQ(last.data().toString(), "a.mkv");
    EXPECT_EQ(last.data(Desktop::FilmList::FilmRole).value<Film*>(), m_list.GetFilms().back());
}

TEST_F(FilmListTest, RemovalWhileReadingAndUnreadableFiles)
{
    ioPath const broken = WriteText("broken.mkv", "this is no film");
    std::vector<Film*> const films = m_list.Add({MakeFilm("a.mkv"), broken, WriteText("text.mkv", HELLO_SRT)});
    m_list.Remove(films.front()->GetId());
    ASSERT_EQ(m_list.rowCount(), 2);
    WaitUntil([this] { return m_list.GetFilms().back()->GetState() != FilmState::Reading; });
    Film const& unreadable = *m_list.Find(2);
    EXPECT_EQ(unreadable.GetState(), FilmState::Unreadable);
    EXPECT_THAT(ListSentences(unreadable), ElementsAre(HasSubstr("broken.mkv")));
    EXPECT_THAT(ListSentences(*m_list.Find(3)), ElementsAre(HasSubstr("neither picture nor sound")));
    EXPECT_THAT(m_list.index(0).data(Qt::ToolTipRole).toString().toStdString(), HasSubstr("broken.mkv\n"));
}

TEST_F(FilmListTest, DroppedSubtitlesGoToTheFilmOfTheirNameElseToTheCurrentOne)
{
    ASSERT_EQ(Core::CreateFolders(m_folder / "elsewhere"), Core::SUCCESS);
    MakeFilm("film.mkv");
    MakeFilm("film two.mkv");
    ioPath const named = WriteText("elsewhere/film two.en.srt", HELLO_SRT);
    ioPath const other = WriteText("elsewhere/other.srt", HELLO_SRT);
    // The films are still being read when their files come.
    auto const films = m_list.Add({m_folder / "film.mkv", m_folder / "film two.mkv"});
    EXPECT_THAT(AddDropped({named, other}, films.front()), testing::IsEmpty());
    ioPath const sequel = WriteText("elsewhere/film 2.srt", HELLO_SRT);
    ioPath const part = WriteText("elsewhere/film - 2.srt", HELLO_SRT);
    EXPECT_THAT(AddDropped({other, sequel, part}, nullptr), ElementsAre(other, sequel, part));
    EXPECT_THAT(AddDropped({WriteText("elsewhere/FILM - my [own].ass", "")}, nullptr), testing::IsEmpty());
    WaitUntil([&] { return films.back()->GetState() == FilmState::Ready; });
    EXPECT_EQ(films.front()->GetCollection().tracks.count(SubtitleTrackID(other)), 1U);
    EXPECT_EQ(films.front()->GetCollection().tracks.size(), 2U);
    ASSERT_TRUE(films.back()->GetDrawnTrack());
    EXPECT_EQ(films.back()->GetDrawnTrack()->path, named);
}

TEST_F(FilmListTest, AFilmThatGoesKeepsItsChoiceUntilItIsThereAgain)
{
    ioPath const path = MakeFilm("film.mkv", {MakeSubtitle("subrip", "ger"), MakeSubtitle("ass", "fre")});
    Film& film = Open(path);
    film.LeaveOut(SubtitleTrackID(2U));
    film.ChooseTrack(SubtitleTrackID(3U));
    film.SetOffset(SubtitleTrackID(3U), 0.5);
    QString const from = QString::fromStdString(path.utf8string());
    ASSERT_TRUE(QFile::rename(from, from + ".away"));
    m_list.CheckFiles();
    WaitUntil([&] { return film.GetState() == FilmState::Missing; });
    EXPECT_THAT(ListSentences(film), ElementsAre(HasSubstr("show where it is now")));
    EXPECT_FALSE(film.IsConvertible());

    EXPECT_FALSE(m_list.Locate(film.GetId(), Open(MakeFilm("other.mkv")).GetPath())) << "two entries for one film";
    EXPECT_TRUE(m_list.Locate(film.GetId(), path.utf8string() + ".away"));
    WaitUntil([&] { return film.GetState() == FilmState::Ready; });
    EXPECT_EQ(film.GetMedia().path, film.GetPath());
    ASSERT_TRUE(film.GetDrawnTrack());
    EXPECT_EQ(film.GetDrawnTrack()->synchronizationOffset, 0.5);
    EXPECT_EQ(film.ListLeftOut().size(), 1U);
    EXPECT_TRUE(film.IsConvertible());
}

TEST_F(FilmListTest, SubtitleFilesThatMovedWithTheFilmAreTakenFromThere)
{
    ASSERT_EQ(Core::CreateFolders(m_folder / "old/Subs"), Core::SUCCESS);
    WriteText("old/film.en.srt", HELLO_SRT);
    WriteText("old/film.de.srt", HELLO_SRT);
    ioPath const stays = WriteText("stays.srt", HELLO_SRT);
    Film& film = Open(MakeFilm("old/film.mkv"));
    film.LeaveOut(SubtitleTrackID(m_folder / "old/film.de.srt"));
    film.AddSubtitleFiles({stays, WriteText("old/Subs/film.ru.srt", RUSSIAN_SRT)});
    film.SetOffset(SubtitleTrackID(m_folder / "old/Subs/film.ru.srt"), 0.5);
    QString const folder = QString::fromStdString(m_folder.Path().utf8string());
    ASSERT_TRUE(QFile::rename(folder + "/old", folder + "/new"));
    m_list.CheckFiles();
    WaitUntil([&] { return film.GetState() == FilmState::Missing; });

    EXPECT_TRUE(m_list.Locate(film.GetId(), m_folder / "new/film.mkv"));
    WaitUntil([&] { return film.IsConvertible(); });
    ASSERT_TRUE(film.GetDrawnTrack());
    EXPECT_EQ(film.GetDrawnTrack()->path, m_folder / "new/Subs/film.ru.srt");
    EXPECT_EQ(film.GetDrawnTrack()->synchronizationOffset, 0.5);
    auto const tracks = film.GetCollection().tracks;
    EXPECT_EQ(tracks.size(), 3U) << "what was removed stays away";
    EXPECT_EQ(tracks.count(SubtitleTrackID(m_folder / "new/film.en.srt")), 1U);
    EXPECT_EQ(tracks.count(SubtitleTrackID(stays)), 1U);
}

TEST_F(FilmListTest, FilmsAndSubtitlesThatAreNotWhatTheyWereAreReadAnew)
{
    ioPath const path = WriteText("film.mkv", "half a copy");
    Film& film = Open(path);
    EXPECT_EQ(film.GetState(), FilmState::Unreadable);
    MakeFilm("film.mkv", {MakeSubtitle("subrip", "ger")});
    ioPath const subtitles = WriteText("late.srt", "still empty");
    film.AddSubtitleFiles({subtitles});
    m_list.CheckFiles();
    WaitUntil([&] { return film.ListUnreadableFiles().size() == 1; });
    EXPECT_EQ(film.GetState(), FilmState::Ready);
    EXPECT_FALSE(film.IsConvertible());

    WriteText("late.srt", HELLO_SRT);
    m_list.CheckFiles();
    WaitUntil([&] { return film.IsConvertible(); });
    ASSERT_TRUE(film.GetDrawnTrack());
    EXPECT_EQ(film.GetDrawnTrack()->path, subtitles);

    MakeFilm("film.mkv", {MakeSubtitle("ass", "fre"), MakeSubtitle("subrip", "ger")});
    m_list.CheckFiles();
    WaitUntil([&] { return film.GetCollection().tracks.size() == 3; });
    EXPECT_EQ(film.GetDrawnTrack()->path, subtitles);
    m_list.CheckFiles();
    m_list.Remove(film.GetId());
}

TEST_F(FilmListTest, OutputsOfFilmsWithTheLongestNamesCanBeWritten)
{
    std::string name;
    while (name.size() < 250)
        name += "\xF0\x9F\x8E\xA5"; // one character that takes two in the toolkit
    ioPath const film = WriteText(name + ".ts", "film");
    Desktop::OutputSettings settings;
    settings.formatId = "m2ts";
    for (int number = 1; number <= 2; ++number)
    {
        ioPath const output = MakeOutputPath(film, settings);
        EXPECT_EQ(Core::WriteFile(output, "output", false), Core::SUCCESS) << output.utf8string();
    }
    EXPECT_EQ(Core::ListFolder(m_folder.Path()).size(), 3U);
}

} // namespace
} // namespace Korvex::Testing
