#include "Hosts/Desktop/FilmFixture.h"

#include "Desktop/Window/SaveDialog.h"
#include "Desktop/Window/SaveTrack.h"

#include "Subtitles/Entities/SubtitleCollection.h"

#include "Core/FileSystem.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <gmock/gmock.h>

#include <optional>

namespace Korvex::Testing
{
namespace
{

using Converter::Subtitles::Entities::SubtitleEncoding;
using Desktop::Film;
using Desktop::SaveQuestion;
using Desktop::SaveTrack;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class SaveTrackTest : public FilmFixture
{
protected:
    SaveTrackTest()
    {
        QObject::connect(&*m_saving, &SaveTrack::Saved, &m_window,
                         [this](QString const& sentence) { m_said.push_back("saved: " + sentence.toStdString()); });
        QObject::connect(&*m_saving, &SaveTrack::Failed, &m_window,
                         [this](QString const& sentence) { m_said.push_back("failed: " + sentence.toStdString()); });
    }

    /// Answers every question with the name in `m_folder`, "#" being the question's number, or as suggested.
    QString Answer(SaveQuestion const& question)
    {
        m_questions.push_back(question);
        if (m_questions.size() == m_cancelledQuestion)
            QMetaObject::invokeMethod(
                &m_window, [this] { CancelNewest(); }, Qt::QueuedConnection);
        if (!m_answer)
            return question.path;
        return QString::fromStdString((m_folder / *m_answer).utf8string())
            .replace('#', QString::number(m_questions.size()));
    }

    /// Saves under this name and gives what was said.
    std::string Save(Film const& film, SubtitleTrackID const& id, std::optional<std::string> name = {})
    {
        m_answer = std::move(name);
        std::size_t const before = m_said.size();
        m_saving->Save(film, id);
        WaitUntil([&] { return m_said.size() > before; });
        return m_said.size() > before ? m_said.back() : std::string();
    }

    std::string Read(std::string const& name) const
    {
        auto bytes = Core::ReadFile(m_folder / name, 1 << 20);
        return bytes ? *bytes : "cannot be read: " + name;
    }

    /// So many cues that reading them takes longer than anything else here.
    ioPath WriteLongFile()
    {
        std::string text;
        for (int number = 1; number <= 8'000; ++number)
            text += std::to_string(number) + "\n01:00:00,000 --> 01:00:01,000\nOne of very many lines\n\n";
        return WriteText("long.srt", text);
    }

    /// Presses the button of the window that belongs to the newest save.
    void CancelNewest()
    {
        auto const progress = m_window.findChildren<QProgressDialog*>("saveTrackProgress");
        ASSERT_FALSE(progress.isEmpty());
        progress.back()->findChild<QPushButton*>()->click();
    }

    QWidget m_window;
    std::optional<std::string> m_answer;
    std::vector<SaveQuestion> m_questions;
    std::vector<std::string> m_said;
    std::size_t m_cancelledQuestion = 0;
    std::optional<SaveTrack> m_saving{std::in_place, &m_window,
                                      [this](QWidget*, SaveQuestion const& question) { return Answer(question); }};
};

TEST_F(SaveTrackTest, WritesEveryKindUnderANameOfItsOwn)
{
    ioPath const russian = WriteText("film.ru.srt", RUSSIAN_SRT);
    WriteText("film.eng.srt", HELLO_SRT);
    Film& film = Open(MakeFilm("film.mkv", {MakeSubtitle("subrip", "eng"), MakeSubtitle("hdmv_pgs_subtitle", "ger")}));
    WaitUntil([&] { return film.GetCollection().tracks.size() == 4; });

    EXPECT_EQ(Save(film, SubtitleTrackID(2U)), "saved: \"film.eng (2).srt\" was saved as SubRip with 3 cue(s).");
    EXPECT_THAT(Read("film.eng (2).srt"), StartsWith("1\n00:00:00,500 --> 00:00:01,000\n"));
    EXPECT_EQ(m_questions.back().extensions, (QStringList{"srt", "ass"}));

    EXPECT_THAT(Save(film, SubtitleTrackID(3U)), HasSubstr("\"film.ger.sup\""));
    EXPECT_EQ(m_questions.back().extensions, QStringList{"sup"});
    film.SetTrackProperties(SubtitleTrackID(2U), {"zh/tw:\\", "", false, false});
    Save(film, SubtitleTrackID(2U), "named.srt");
    EXPECT_THAT(m_questions.back().path.toStdString(), EndsWith("/film.zhtw.srt")) << "no folder that is not there";

    film.SetEncoding(SubtitleTrackID(russian), SubtitleEncoding::UTF8);
    EXPECT_THAT(Save(film, SubtitleTrackID(russian), "wrong.srt"), HasSubstr("; 27 byte(s) could not be read as UTF-8"))
        << "in the encoding that was chosen";
}

TEST_F(SaveTrackTest, ReplacesAFileOnlyByAWholeOneAndNeverASource)
{
    Film& film = Open(MakeFilm("film.mkv", {MakeSubtitle("subrip", "eng")}));
    WriteText("old.srt", "old");
    EXPECT_THAT(Save(film, SubtitleTrackID(2U), "old.txt"), AllOf(StartsWith("failed: "), HasSubstr("\"old.txt\"")));
    EXPECT_THAT(Save(film, SubtitleTrackID(2U), "film.mkv"), AllOf(StartsWith("failed: "), HasSubstr("film.mkv")));
    WriteText("old.sup", "old");
    EXPECT_THAT(Save(film, SubtitleTrackID(2U), "old.sup"), StartsWith("failed: "));
    EXPECT_EQ(Read("old.sup"), "old");
    EXPECT_THAT(Save(film, SubtitleTrackID(2U), "old.srt"), StartsWith("saved: "));
    EXPECT_THAT(Read("old.srt"), EndsWith("\n\n"));
    EXPECT_EQ(Core::ListFolder(m_folder.Path()), (std::vector<std::string>{"film.mkv", "old.srt", "old.sup"}));
}

TEST_F(SaveTrackTest, CancelledSavesLeaveNothingAndSayNothing)
{
    Film& film = Open(MakeFilm("film.mkv", {}));
    SubtitleTrackID const track(WriteLongFile());
    film.AddSubtitleFiles({m_folder / "long.srt"});
    for (int number = 1; number <= 3; ++number)
        m_saving->Save(film, track);
    EXPECT_TRUE(m_questions.empty()) << "no dialog inside the call";
    m_answer = "#.srt";
    m_cancelledQuestion = 3;
    WaitUntil([&] { return m_said.size() == 2 && !m_saving->IsActive(); });
    EXPECT_EQ(Core::ListFolder(m_folder.Path()), (std::vector<std::string>{"1.srt", "2.srt", "film.mkv", "long.srt"}));
    EXPECT_TRUE(m_window.findChildren<QProgressDialog*>().isEmpty());

    m_saving->Save(film, track);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_questions.size(), 4U);
    m_saving.reset();
    for (std::string const& name : Core::ListFolder(m_folder.Path()))
        EXPECT_THAT(name, testing::Not(HasSubstr(".part"))) << "the end of the program leaves no half file";
}

TEST(SaveDialogTest, GivesTheNameTheEndingOfTheKindThatTheUserPicks)
{
    TemporaryFolder const folder;
    QWidget window;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll,
                     [&]
                     {
                         auto* const dialog = window.findChild<QFileDialog*>("saveTrackDialog");
                         auto* const kind = dialog ? dialog->findChild<QComboBox*>("fileTypeCombo") : nullptr;
                         if (kind == nullptr)
                             return;
                         poll.stop();
                         QTest::keyClick(kind, Qt::Key_Down);
                         QTest::keyClick(dialog->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
                     });
    poll.start(10);
    QString const path = QString::fromStdString((folder / "film.v2.en.srt").utf8string());
    QString const answer = Desktop::AskWithDialog(&window, {path, {"srt", "ass"}});
    EXPECT_EQ(answer.toStdString(), (folder / "film.v2.en.ass").utf8string());
    EXPECT_TRUE(window.children().isEmpty());
}

} // namespace
} // namespace Korvex::Testing
