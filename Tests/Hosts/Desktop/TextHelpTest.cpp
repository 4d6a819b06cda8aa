#include "Desktop/TextHelp/TextHelp.h"

#include "Hosts/Desktop/FilmFixture.h"

#include "Desktop/TextHelp/AlternativeButton.h"
#include "Desktop/TextHelp/TextHelpPane.h"
#include "Desktop/TextHelp/TextHelpView.h"

#include "Subtitles/Entities/SubtitleCollection.h"

#include "Gui/KLabel.h"
#include "Proc/Text/SystemEncoder.h"
#include "Support/WidgetSupport.h"

#include <QSignalSpy>
#include <QTest>

namespace Korvex::Desktop
{
namespace
{

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

class TextHelpTest : public testing::Test
{
protected:
    ioPath Write(std::string const& name, std::string const& bytes) const { return m_folder.Write(name, bytes); }

    /// What the reader answers; fails the test when nothing comes.
    TextHelp Read(TextHelpRequest const& request)
    {
        std::optional<TextHelp> answer;
        auto const connection = QObject::connect(&m_reader, &TextHelpReader::Finished, &m_reader,
                                                 [&answer](TextHelp const& help) { answer = help; });
        m_reader.Request(request);
        EXPECT_TRUE(QTest::qWaitFor([&] { return answer.has_value(); }, 20'000));
        QObject::disconnect(connection);
        return answer.value_or(TextHelp());
    }

    Testing::TemporaryFolder const m_folder;
    TextHelpReader m_reader;
};

std::string MakeSubRip(std::vector<std::string> const& texts)
{
    std::string file;
    for (std::size_t i = 0; i < texts.size(); ++i)
        file += "1\n00:00:0" + std::to_string(i) + ",000 --> 00:00:0" + std::to_string(i + 1) + ",000\n" + texts[i] +
                "\n\n";
    return file;
}

std::vector<std::string> VisibleTexts(QWidget const& widget)
{
    std::vector<std::string> texts;
    for (QLabel const* label : widget.findChildren<QLabel*>())
    {
        if (label->isVisible())
            texts.push_back(label->text().toStdString());
    }
    return texts;
}

std::vector<std::string> const RUSSIAN = {"Ты опять опоздал на поезд?", "Я ждал тебя целый час.",
                                          "Ничего, завтра поедем вместе, если только ты не забудешь ключи."};

TEST_F(TextHelpTest, SaysWhatCannotBeReadAndWhichFontsStandIn)
{
    TextHelpView view;
    view.resize(280, 10);
    Testing::ShowAndWait(view);
    ioPath const russian = Write("film.srt", Testing::EncodeText(MakeSubRip(RUSSIAN), "CP1251"));
    view.Show(Read({russian, std::nullopt, "UTF-8", "No Such Font"}));
    EXPECT_TRUE(view.findChild<QLabel*>("replacedBytesLabel")->text().startsWith("89 byte"));
    EXPECT_THAT(view.findChild<QLabel*>("missingFontLabel")->text().toStdString(),
                HasSubstr("\"No Such Font\" is not installed; \""));
    EXPECT_EQ(view.findChild<QLabel*>("missingFontLabel")->property("role"), "warning");
    TextHelp usual;
    usual.fontFamily = "Verdana";
    usual.fontStandIn = "DejaVu Sans";
    view.Show(usual);
    EXPECT_EQ(view.findChild<QLabel*>("missingFontLabel")->property("role"), "dim") << "nobody chose it";

    ioPath const japanese = Write("film.ja.srt", MakeSubRip({"昨日の夜は\U000F1234"}));
    view.Show(Read({japanese, std::nullopt, "", "DejaVu Sans"}));
    EXPECT_THAT(view.findChild<QLabel*>("standInsLabel")->text().toStdString(),
                AllOf(HasSubstr("\"DejaVu Sans\" lacks 5 "), HasSubstr("(Japanese): \"Noto Sans CJK JP\"")));
    EXPECT_TRUE(view.findChild<QLabel*>("unavailableLabel")->isVisible());
    EXPECT_FALSE(view.findChild<QLabel*>("missingFontLabel")->isVisible());

    // A script has fonts of its own: they are not the user's choice.
    view.Show(Read({japanese, std::nullopt, "", ""}));
    EXPECT_FALSE(view.findChild<QLabel*>("standInsLabel")->isVisible());

    view.Show(Read({m_folder / "gone.srt", std::nullopt, "", "DejaVu Sans"}));
    EXPECT_THAT(VisibleTexts(view), ElementsAre(HasSubstr("gone.srt")));
    view.Clear();
    EXPECT_FALSE(view.isVisible());
}

TEST_F(TextHelpTest, AnswersTheNewestRequestOnly)
{
    std::string longText;
    for (int i = 0; i < 5'000; ++i)
        longText += MakeSubRip({"Подожди " + std::to_string(i)});
    ioPath const longFile = Write("long.srt", Testing::EncodeText(longText, "CP1251"));
    ioPath const shortFile = Write("short.srt", MakeSubRip({"Short."}));
    std::vector<std::string> answers;
    QObject::connect(&m_reader, &TextHelpReader::Finished, &m_reader,
                     [&](TextHelp const& help) { answers.push_back(help.sample->lines[0]); });
    for (char const* const encoding : {"", "CP1251", "KOI8-R"})
        m_reader.Request({longFile, std::nullopt, encoding, "DejaVu Sans"});
    m_reader.Request({shortFile, std::nullopt, "", "DejaVu Sans"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !answers.empty(); }, 20'000));
    QTest::qWait(200);
    EXPECT_THAT(answers, ElementsAre("Short."));

    // What is dropped is not reported, and a reader may go in the middle of a read.
    TextHelpReader dropped;
    bool isReported = false;
    QObject::connect(&dropped, &TextHelpReader::Finished, &dropped, [&isReported] { isReported = true; });
    dropped.Request({longFile, std::nullopt, "", "DejaVu Sans"});
    dropped.Drop();
    QTest::qWait(400);
    EXPECT_FALSE(isReported);
    dropped.Request({longFile, std::nullopt, "", "DejaVu Sans"});
}

class TextHelpPaneTest : public Testing::FilmFixture
{
};

TEST_F(TextHelpPaneTest, FollowsTheDrawnTrackAndSetsItsEncoding)
{
    using Converter::Subtitles::Entities::SubtitleEncoding;
    Film& film = Open(MakeFilm("film.mkv", {Testing::MakeSubtitle("subrip", "ger")}));
    ioPath const russian = WriteText("other.srt", Testing::RUSSIAN_SRT);
    Testing::SubtitleTrackID const added(russian);
    film.AddSubtitleFiles({russian});
    film.ChooseTrack(added);
    film.SetEncoding(added, SubtitleEncoding::KOI8R);

    TextHelpPane pane;
    EXPECT_FALSE(pane.isVisible());
    pane.ShowFilm(&film);
    auto const* const line = pane.findChild<KLabel*>();
    WaitUntil([&] { return pane.isVisible(); });
    EXPECT_NE(line->text(), "Привет, это первая строка фильма.");

    QTest::mouseClick(pane.findChild<AlternativeButton*>(), Qt::LeftButton);
    EXPECT_EQ(film.GetDrawnTrack()->encoding, SubtitleEncoding::Windows1251);
    WaitUntil([&] { return line->text() == "Привет, это первая строка фильма."; });

    // The film's own track is in UTF-8; only its font may be worth a word.
    auto const* const sample = pane.findChild<QFrame*>("textSample");
    film.ChooseTrack(Testing::SubtitleTrackID(2));
    WaitUntil([&] { return !sample->isVisible(); });
    // Nor has a container an encoding to choose, whatever it holds.
    ioPath const other = MakeFilm("other.mks", {Testing::MakeSubtitle("subrip", "fre")});
    film.AddSubtitleFiles({other});
    film.ChooseTrack(Testing::SubtitleTrackID(other));
    WaitUntil([&] { return film.GetDrawnTrack() && film.GetDrawnTrack()->path.utf8string() == other.utf8string(); });
    QTest::qWait(300);
    EXPECT_FALSE(sample->isVisible());
    EXPECT_FALSE(pane.findChild<QLabel*>("failureLabel")->isVisible());

    film.ChooseNone();
    WaitUntil([&] { return !pane.isVisible(); });
    film.ChooseTrack(added);
    WaitUntil([&] { return sample->isVisible(); });
    m_list.Remove(film.GetId());
    WaitUntil([&] { return !pane.isVisible(); });
}

} // namespace
} // namespace Korvex::Desktop
