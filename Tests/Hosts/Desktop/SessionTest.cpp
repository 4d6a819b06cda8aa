#include "Hosts/Desktop/FilmFixture.h"

#include "Desktop/Films/Session.h"
#include "Desktop/Films/SessionStore.h"

#include "Core/FileSystem.h"

#include <QFile>
#include <QSignalSpy>

#include <gmock/gmock.h>

namespace Korvex::Testing
{
namespace
{

using Converter::Subtitles::Entities::SubtitleAlign;
using Converter::Subtitles::Entities::SubtitleEncoding;
using Desktop::Film;
using Desktop::FilmList;
using Desktop::FilmState;
using Desktop::SessionStore;
using testing::ElementsAre;
using testing::HasSubstr;

class SessionTest : public FilmFixture
{
protected:
    [[nodiscard]] ioPath File() const { return m_folder / "session.json"; }
};

TEST_F(SessionTest, TheListAndAllChoicesSurviveARestart)
{
    ioPath const path = MakeFilm("film.mkv", {MakeSubtitle("subrip", "ger"), MakeSubtitle("ass", "fre")});
    SubtitleTrackID const sidecar(WriteText("film.en.srt", HELLO_SRT));
    SubtitleTrackID const added(WriteText("added.srt", RUSSIAN_SRT));
    ioPath const gone = MakeFilm("gone.mkv", {MakeSubtitle("subrip", "ger")});
    QByteArray stored;
    {
        SessionStore store(m_list, File());
        EXPECT_EQ(store.Restore(), "");
        Film& film = Open(path);
        film.AddSubtitleFiles({ioPath(added.ToString())});
        film.SetEncoding(added, SubtitleEncoding::Windows1251);
        film.SetTrackProperties(added, {"ru", "First", true, true});
        film.SetOffset(added, -0.25);
        film.SetOffset(SubtitleTrackID(2U), 2.0);
        film.LeaveOut(SubtitleTrackID(2U));
        film.LeaveOut(sidecar);
        auto look = film.GetCollection().textSettings;
        look.align = SubtitleAlign::Top;
        look.font.setPointSizeF(22.5);
        look.font.setBold(true);
        look.textColor = QColor("#ffcc00");
        film.SetLook(look);
        Open(gone).ChooseNone();
        m_list.SetOutput({"mp4", Desktop::Quality::Medium, m_folder.Path()});
        store.SetExtra("geometry", QByteArray("\0\xFF", 2));
        // Written while the program runs, not only when it ends.
        WaitUntil([this] { return Core::FileExists(File()); });
    }
    ASSERT_TRUE(QFile::remove(QString::fromStdString(gone.utf8string())));

    FilmList list(m_services);
    SessionStore store(list, File());
    EXPECT_EQ(store.Restore(), "");
    EXPECT_EQ(store.GetExtra("geometry"), QByteArray("\0\xFF", 2));
    EXPECT_EQ(list.GetOutput().formatId, "mp4");
    ASSERT_EQ(list.rowCount(), 2);
    Film const& film = *list.GetFilms().front();
    Film const& missing = *list.GetFilms().back();
    WaitUntil([&] { return missing.GetState() == FilmState::Missing; });
    ASSERT_EQ(film.GetState(), FilmState::Ready);
    Film const& before = *m_list.GetFilms().front();
    auto restored = film.GetCollection();
    auto expected = before.GetCollection();
    for (auto* collection : {&restored, &expected})
    {
        collection->collectionId = missing.GetCollection().collectionId;
        collection->impl.reset();
        collection->implCollection = 0;
        collection->tracks.at(added).extra.clear();
    }
    EXPECT_EQ(restored, expected);
    EXPECT_EQ(restored.tracks.size(), 2U) << "what was left out and what was removed stay away";
    EXPECT_EQ(film.ListLeftOut(), before.ListLeftOut());

    MakeFilm("gone.mkv", {MakeSubtitle("subrip", "ger")});
    list.CheckFiles();
    WaitUntil([&] { return missing.GetState() == FilmState::Ready; });
    EXPECT_EQ(missing.DescribeChoice().toStdString(), "No subtitles");
}

TEST_F(SessionTest, AFileThatCannotBeUsedIsSetAsideAndNotLost)
{
    for (std::string const& bytes : {std::string("{\"version\": 1, \"films"), std::string("{\"version\": 99}")})
    {
        WriteText("session.json", bytes);
        FilmList list(m_services);
        SessionStore store(list, File());
        EXPECT_THAT(store.Restore().toStdString(), HasSubstr("session.json."));
        EXPECT_EQ(list.rowCount(), 0);
    }
    EXPECT_EQ(*Core::ReadFile(m_folder / "session.json.2", 100), "{\"version\": 99}");
    FilmList list(m_services);
    SessionStore store(list, File());
    EXPECT_EQ(store.Restore(), "") << "said once";
}

TEST_F(SessionTest, AFailureToWriteIsSaidOnce)
{
    WriteText("file", "no folder");
    SessionStore store(m_list, m_folder / "file" / "session.json");
    EXPECT_EQ(store.Restore(), "");
    QSignalSpy failed(&store, &SessionStore::SavingFailed);
    store.SetExtra("a", "1");
    WaitUntil([&] { return failed.count() == 1; });
    store.SetExtra("a", "2");
    EXPECT_FALSE(failed.wait(1500));
}

} // namespace
} // namespace Korvex::Testing
