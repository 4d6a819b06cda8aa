#include "Hosts/Desktop/FilmFixture.h"

#include "Desktop/Films/ConversionJob.h"
#include "Desktop/Window/ModulePanels.h"

#include "Subtitles/Details/EditingPanel.h"
#include "Subtitles/Subtitles.h"

#include "Proc/Settings.h"

#include <QSignalSpy>
#include <QSlider>

#include <gmock/gmock.h>

#include <optional>

namespace Korvex::Testing
{
namespace
{

using Converter::Subtitles::ReadCoreSettings;
using Converter::Subtitles::Entities::SubtitleCollectionMode;
using Converter::Subtitles::Entities::SubtitleEncoding;
using Desktop::Film;
using Desktop::FilmState;
using Desktop::Remedy;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class FilmTest : public FilmFixture
{
protected:
    static std::optional<Remedy> FindRemedy(Film const& film, Remedy::Kind kind)
    {
        for (Desktop::FilmProblem const& problem : film.ListProblems())
            for (Remedy const& remedy : problem.remedies)
                if (remedy.kind == kind)
                    return remedy;
        return std::nullopt;
    }
};

TEST_F(FilmTest, TheWishForAllTracksOutlivesAContainerThatCannotCarryThem)
{
    Film& film = Open(MakeFilm("film.mkv", {MakeSubtitle("subrip", "ger"), MakeSubtitle("hdmv_pgs_subtitle", "eng")}));
    EXPECT_TRUE(film.IsConvertible());
    EXPECT_EQ(film.DescribeChoice().toStdString(), "All 2 track(s)");

    SetFormat("mp4");
    EXPECT_THAT(
        ListSentences(film),
        ElementsAre("Track 3 (PGS, English) cannot go into MP4: choose Matroska, draw it in, or leave it out."));
    EXPECT_EQ(film.DescribeChoice().toStdString(), "No subtitles, as it stands") << "which is what the panels show";
    auto const format = FindRemedy(film, Remedy::Kind::ChooseFormat);
    ASSERT_TRUE(format);
    EXPECT_EQ(format->formatId, "matroska");
    EXPECT_FALSE(film.GetDrawnTrack()) << "nothing is drawn in unasked";

    SetFormat("matroska");
    EXPECT_TRUE(film.IsConvertible());
    EXPECT_NE(ReadCoreSettings(film.GetCollection()).soft, nullptr);

    SetFormat("mp4");
    auto const leaveOut = FindRemedy(film, Remedy::Kind::LeaveOut);
    ASSERT_TRUE(leaveOut);
    film.Apply(*leaveOut);
    EXPECT_TRUE(film.IsConvertible());
    ASSERT_NE(ReadCoreSettings(film.GetCollection()).soft, nullptr);
    EXPECT_EQ(film.ListLeftOut().size(), 1U);

    film.PutBack(leaveOut->track);
    EXPECT_FALSE(film.IsConvertible());
    auto const burn = FindRemedy(film, Remedy::Kind::BurnTrack);
    ASSERT_TRUE(burn);
    film.Apply(*burn);
    EXPECT_TRUE(film.IsConvertible());
    EXPECT_EQ(film.DescribeChoice().toStdString(), "Drawn in: [English]");
}

TEST_F(FilmTest, BurningAndNoneAreNeverTakenBackByAFormat)
{
    Film& film = Open(MakeFilm("film.mkv", {MakeSubtitle("subrip", "ger"), MakeSubtitle("hdmv_pgs_subtitle", "eng")}));
    film.ChooseTrack(SubtitleTrackID(3U));
    SetFormat("mp4");
    EXPECT_TRUE(film.IsConvertible());
    ASSERT_TRUE(film.GetDrawnTrack());
    EXPECT_EQ(film.GetDrawnTrack()->codecId, "hdmv_pgs_subtitle");
    ASSERT_NE(film.GetMixerSettings(), nullptr);
    film.LeaveOut(SubtitleTrackID(3U));
    EXPECT_FALSE(film.GetDrawnTrack());
    EXPECT_EQ(film.DescribeChoice().toStdString(), "No subtitles");
    SetFormat("matroska");
    EXPECT_EQ(film.DescribeChoice().toStdString(), "No subtitles");
    EXPECT_TRUE(film.IsConvertible());
}

TEST_F(FilmTest, TextThatWillBeWrittenAnewKeepsItsOwnNameAndCodec)
{
    SetFormat("mp4");
    WriteText("film.ru.srt", RUSSIAN_SRT);
    Film& film = Open(MakeFilm("film.mkv", {MakeSubtitle("subrip", "ger"), MakeSubtitle("ass", "fre")}));
    EXPECT_TRUE(film.IsConvertible());
    EXPECT_EQ(film.DescribeChoice().toStdString(), "All 3 track(s)");
    film.AddSubtitleFiles({WriteText("added.srt", HELLO_SRT)});
    EXPECT_EQ(film.DescribeChoice().toStdString(), "Drawn in: added.srt");
    film.ChooseAllSoft();
    EXPECT_TRUE(film.IsConvertible());

    Desktop::ConversionJob const job = film.MakeJob(m_list.GetOutput());
    EXPECT_EQ(job.collection.impl, nullptr);
    EXPECT_NE(job.collection.collectionId, film.GetCollection().collectionId);
    EXPECT_EQ(job.collection.mode, SubtitleCollectionMode::AllSoftSubtitles);
    std::vector<std::string> codecs;
    for (auto const& [id, track] : job.collection.tracks)
        codecs.push_back(track.codecId + " " + track.codecName);
    EXPECT_THAT(codecs, testing::UnorderedElementsAre("subrip SubRip", "ass ASS", "subrip SubRip", "subrip SubRip"));
    EXPECT_EQ(job.output.FileName(), "film.mp4");

    SubtitleTrackID const russian(m_folder / "film.ru.srt");
    WaitUntil([&] { return film.GetCollection().tracks.at(russian).extra == "CP1251"; });
}

TEST_F(FilmTest, AFileWithoutSubtitlesIsAProblemAndItsRemovalBringsTheChoiceBack)
{
    Film& film = Open(MakeFilm("film.mkv", {MakeSubtitle("subrip", "ger")}));
    QSignalSpy changed(&film, &Film::Changed);
    film.AddSubtitleFiles({WriteText("broken.srt", std::string(200, '\x01'))});
    EXPECT_FALSE(film.IsConvertible());
    WaitUntil([&] { return ListSentences(film).front().find("broken.srt\" is of no kind") != std::string::npos; });
    EXPECT_GE(changed.count(), 1);
    film.ChooseAllSoft();
    EXPECT_THAT(ListSentences(film), ElementsAre(HasSubstr("broken.srt")));
    film.ChooseTrack(SubtitleTrackID(m_folder / "broken.srt"));
    auto const remove = FindRemedy(film, Remedy::Kind::LeaveOut);
    ASSERT_TRUE(remove);
    film.Apply(*remove);
    EXPECT_TRUE(film.IsConvertible());
    EXPECT_EQ(film.DescribeChoice().toStdString(), "All 1 track(s)");
    EXPECT_THAT(film.ListLeftOut(), IsEmpty());
}

TEST_F(FilmTest, PropertiesGoOutWithTheTrack)
{
    MadeSubtitle own = MakeSubtitle("subrip", "ger");
    own.isDefault = true;
    Film& film = Open(MakeFilm("film.mkv", {own}));
    SubtitleTrackID const ownId(2U);
    SubtitleTrackID const added(WriteText("added.srt", HELLO_SRT));
    film.AddSubtitleFiles({m_folder / "added.srt", m_folder.Path() / "./added.srt"});
    film.ChooseAllSoft();
    EXPECT_EQ(film.GetCollection().tracks.size(), 2U) << "one file under two spellings";
    EXPECT_TRUE(film.GetTrackProperties(ownId).isDefault);
    EXPECT_EQ(film.GetTrackProperties(added).title, "");

    film.SetTrackProperties(added, {"ru", "First", true, true});
    auto const soft = ReadCoreSettings(film.GetCollection()).soft;
    ASSERT_NE(soft, nullptr);
    ASSERT_EQ(soft->GetTracksInfo().size(), 2U);
    for (Proc::SubtitleTrack const& track : soft->GetTracksInfo())
    {
        bool const isAdded = track.kind == Proc::SubtitleTrack::Kind::File;
        EXPECT_EQ(track.isDefault, isAdded) << "what the user marked is the only one on by default";
        EXPECT_EQ(track.isForced, isAdded);
        EXPECT_EQ(track.language, isAdded ? "ru" : "ger");
        EXPECT_EQ(track.title, isAdded ? "First" : "");
    }
    film.SetTrackProperties(added, {"ru", "", false, false});
    EXPECT_TRUE(film.GetTrackProperties(ownId).isDefault);
    EXPECT_EQ(film.GetCollection().tracks.at(added).title, "added.srt");
    EXPECT_EQ(film.GetCollection().tracks.at(added).detail, "");

    film.SetTrackProperties(added, {"ru", "", true, false});
    EXPECT_FALSE(film.GetTrackProperties(ownId).isDefault);
    film.LeaveOut(added);
    film.SetTrackProperties(added, {"ru", "", true, false});
    EXPECT_TRUE(film.GetTrackProperties(ownId).isDefault) << "the mark goes with the file that had it";
}

TEST_F(FilmTest, AnOffsetThatABitmapCannotCarryIsSaidAndTakenBack)
{
    Film& film = Open(MakeFilm("film.mkv", {MakeSubtitle("hdmv_pgs_subtitle", "eng")}));
    film.SetOffset(SubtitleTrackID(2U), 1.5);
    EXPECT_THAT(ListSentences(film), ElementsAre(AllOf(HasSubstr("Track 2 (PGS, English)"), HasSubstr("offset to 0"))));
    auto const reset = FindRemedy(film, Remedy::Kind::ResetOffset);
    ASSERT_TRUE(reset);
    film.Apply(*reset);
    EXPECT_TRUE(film.IsConvertible());
}

TEST_F(FilmTest, WhatWritingTracksAnewChangesIsSaidBeforeItIsDone)
{
    Film& film = Open(MakeFilm("film.mkv", {MakeSubtitle("subrip", "ger"), MakeSubtitle("ass", "fre")}));
    ioPath const russian = WriteText("added.srt", RUSSIAN_SRT);
    film.AddSubtitleFiles({russian});
    film.SetEncoding(SubtitleTrackID(russian), SubtitleEncoding::Windows1251);
    film.SetOffset(SubtitleTrackID(2U), -2.5);
    EXPECT_THAT(film.ListRemarks(), IsEmpty()) << "what is drawn in loses nothing";
    film.ChooseAllSoft();
    SetFormat("mp4");
    EXPECT_TRUE(film.IsConvertible());
    auto const say = [&film]
    {
        std::vector<std::string> sentences;
        for (Desktop::FilmRemark const& remark : film.ListRemarks())
            sentences.push_back((remark.isLoss ? "loss: " : "") + remark.sentence.toStdString());
        return sentences;
    };
    EXPECT_THAT(say(), ElementsAre("loss: Track 3 (ASS, French) goes into MP4 as plain text and loses its styles.",
                                   "Track 2 (SubRip, German) is moved by -2.5 s.",
                                   AllOf(HasSubstr("added.srt (SubRip) is read as"), HasSubstr("1251"))));
    EXPECT_THAT(m_list.index(0).data(Qt::ToolTipRole).toString().toStdString(), HasSubstr("loses its styles"));
    ASSERT_EQ(film.ListRemarks().at(0).remedies.size(), 2U);
    EXPECT_EQ(film.ListRemarks().at(0).remedies.at(0).formatId, "matroska");

    film.Apply(film.ListRemarks().at(1).remedies.at(0));
    film.SetEncoding(SubtitleTrackID(russian), SubtitleEncoding::Auto);
    EXPECT_THAT(say(), ElementsAre(HasSubstr("loss: "))) << "plain text comes whole into MP4";
    SetFormat("matroska");
    EXPECT_THAT(say(), IsEmpty());
}

TEST_F(FilmTest, ThePanelsEditTheFilmThatTheyShowAndNoOther)
{
    Film& first = Open(MakeFilm("first.mkv", {MakeSubtitle("subrip", "ger")}));
    Film& second = Open(MakeFilm("second.mkv", {MakeSubtitle("subrip", "eng")}));
    Desktop::ModulePanels const panels(m_services);
    auto* const shift = panels.GetEditingPanel().findChild<QSlider*>();
    ASSERT_NE(shift, nullptr);
    auto const shiftOf = [](Film const& film) { return film.GetCollection().textSettings.positionShift; };
    first.ChooseTrack(SubtitleTrackID(2U));
    second.ChooseTrack(SubtitleTrackID(2U));
    first.ShowInPanels();
    shift->setValue(10);
    second.ShowInPanels();
    EXPECT_EQ(shift->value(), 0);
    SetFormat("mp4");
    first.SetOffset(SubtitleTrackID(2U), 1.0);
    shift->setValue(20);
    EXPECT_EQ(shiftOf(first), 10) << "the change of a film that is not shown does not take the panel";
    EXPECT_EQ(shiftOf(second), 20);
    QSignalSpy changed(&second, &Film::Changed);
    EXPECT_TRUE(changed.wait());

    // A film that goes lets go of the panels, and the next one takes them.
    m_list.Remove(second.GetId());
    shift->setValue(30);
    first.ShowInPanels();
    EXPECT_EQ(shift->value(), 10);
}

} // namespace
} // namespace Korvex::Testing
