#include "Hosts/Desktop/OnlineWindowFixture.h"
#include "Support/WidgetSupport.h"

#include "Core/FileSystem.h"
#include "Proc/MediaInfo.h"
#include "Subtitles/Entities/SubtitleCollection.h"

#include <QAbstractButton>
#include <QDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>

namespace Korvex::Testing
{

namespace
{

using Desktop::ConversionState;
using Desktop::Film;
using testing::HasSubstr;

constexpr char const* FILM = "The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL.mkv";

std::string NameClient(Client client)
{
    return client == Client::Version1 ? "Version1" : "Legacy";
}

/// A whole way in French, by which interface soever.
class OnlineSearchTest : public OnlineWindowFixture, public testing::WithParamInterface<Client>
{
protected:
    OnlineSearchTest() : OnlineWindowFixture(GetParam(), {}, {QStringLiteral("fr")}) {}

    [[nodiscard]] int CountRows() { return Get<QTreeView>("resultListView").model()->rowCount(); }
};

} // namespace

TEST_P(OnlineSearchTest, FromFindFileToAFilmWithTheSubtitleAndBack)
{
    Film& film = AddFilm(MakeFilm(FILM));
    SetFormat("matroska");
    OpenSearch();
    WaitForSearch();
    EXPECT_EQ(CountRows(), 2) << GetSearchSentence();
    ForEachTheme([this](QString const& theme)
                 { SaveScreenshot(Get<QDialog>("onlineSearchWindow"), QStringLiteral("online-search-") + theme); });
    Click("downloadButton");
    WaitUntil([&film] { return film.GetDrawnTrack().has_value(); });
    WaitForSearch();
    EXPECT_EQ(film.GetDrawnTrack()->language, "fr");
    EXPECT_THAT(film.GetDrawnTrack()->path.utf8string(), testing::StartsWith(GetFetched().utf8string()));
    EXPECT_THAT(Get<QLabel>("noticeSentence").text().toStdString(), HasSubstr(std::string("was added to \"") + FILM));
    Click("searchCloseButton");
    EXPECT_FALSE(IsSearchOpen());

    // It survives a restart like any added file.
    Restart();
    Film& again = WaitForFilm(m_folder / FILM);
    WaitUntil([&again] { return again.GetDrawnTrack().has_value(); });
    EXPECT_EQ(again.GetDrawnTrack()->language, "fr");

    again.ChooseAllSoft();
    Trigger("convertAllAction");
    WaitUntil([&] { return GetState(again) == ConversionState::Done; });
    auto const output = GetQueue().FindStatus(again.GetId())->output;
    auto const written = Proc::ProbeMedia(output);
    ASSERT_TRUE(written);
    std::vector<std::string> languages;
    for (Proc::StreamInfo const& stream : written->streams)
        if (stream.kind == Proc::StreamKind::Subtitle)
            languages.push_back(stream.language);
    EXPECT_THAT(languages, testing::ElementsAre(testing::AnyOf("fr", "fre", "fra")));

    // Fetched once more it comes from the disk, and is not said to be new.
    GetServer().ForgetRequests();
    OpenSearch();
    WaitForSearch();
    std::size_t const searched = GetServer().GetRequests().size();
    Click("downloadButton");
    WaitUntil([&again] { return again.GetDrawnTrack().has_value(); });
    WaitForSearch();
    EXPECT_EQ(GetServer().GetRequests().size(), searched);
    EXPECT_EQ(again.GetCollection().tracks.size(), 1U);
    EXPECT_FALSE(Get<QWidget>("noticeBar").isVisible() &&
                 Get<QLabel>("noticeSentence").text().contains(QStringLiteral("was added")));
}

INSTANTIATE_TEST_SUITE_P(OfEveryClient, OnlineSearchTest, testing::Values(Client::Version1, Client::Legacy),
                         [](auto const& client) { return NameClient(client.param); });

namespace
{

/// One way in which the service fails, and what is said of it.
struct Failing
{
    Client client;
    std::string fault;
    std::string name;
    std::string sentence;
    bool isOfDownload = false;
};

class OnlineFailureTest : public OnlineWindowFixture, public testing::WithParamInterface<Failing>
{
protected:
    OnlineFailureTest() : OnlineWindowFixture(GetParam().client, GetParam().fault) {}
};

} // namespace

TEST_P(OnlineFailureTest, IsToldInTheDialog)
{
    Film const& film = AddFilm(MakeFilm(FILM));
    OpenSearch();
    WaitForSearch();
    if (GetParam().isOfDownload)
    {
        Click("downloadButton");
        WaitUntil([this] { return GetSearchSentence().find(GetParam().sentence) != std::string::npos; });
        WaitForSearch();
    }
    EXPECT_THAT(GetSearchSentence(), HasSubstr(GetParam().sentence));
    EXPECT_THAT(GetSearchSentence(), testing::Not(HasSubstr("korvex-test-key")));
    EXPECT_TRUE(film.GetCollection().tracks.empty());
    QTest::qWait(60); // a long sentence takes its room
    SaveScreenshot(Get<QDialog>("onlineSearchWindow"), QString::fromStdString("online-" + GetParam().name));
}

INSTANTIATE_TEST_SUITE_P(
    OfEveryKind, OnlineFailureTest,
    testing::Values(Failing{Client::Version1, "/faults/wrong-key", "WrongKey", "did not accept the API key"},
                    Failing{Client::Version1, "/faults/quota", "Quota", "are used up", true},
                    Failing{Client::Legacy, "/faults/quota", "LegacyQuota", "are used up", true},
                    Failing{Client::Version1, "/faults/hang-up", "NoConnection", "try again"},
                    Failing{Client::Legacy, "/faults/unavailable", "Unavailable", "down or overloaded"},
                    Failing{Client::Version1, "/faults/html-file", "NoSubtitle", "in place of the subtitle", true}),
    [](auto const& failing) { return failing.param.name; });

namespace
{

class StalledSearchTest : public OnlineWindowFixture
{
protected:
    StalledSearchTest() : OnlineWindowFixture(Client::Version1, "/faults/stall") {}
};

class SearchInWindowTest : public OnlineWindowFixture
{
protected:
    /// The events that were recorded, each with its parameters: "NAME key=value ...".
    std::vector<std::string> ReadEvents()
    {
        std::vector<std::string> events;
        for (QByteArray const& line : QByteArray::fromStdString(*m_statistics->Read()).split('\n'))
        {
            QJsonObject const event = QJsonDocument::fromJson(line).object();
            if (event.isEmpty())
                continue;
            QString text = event["event"].toString();
            QJsonObject const parameters = event["parameters"].toObject();
            for (QString const& key : parameters.keys())
                text += QStringLiteral(" %1=%2").arg(key, parameters[key].toString());
            events.push_back(text.toStdString());
        }
        return events;
    }
};

} // namespace

TEST_F(StalledSearchTest, IsCancelledAndClosedWithoutAnythingArrivingLater)
{
    AddFilm(MakeFilm(FILM));
    OpenSearch();
    WaitUntil([this] { return !GetServer().GetRequests().empty(); });
    Click("searchCancelButton");
    WaitForSearch();
    EXPECT_EQ(GetSearchSentence(), "The search was cancelled.");
    QTest::mouseClick(&Get<QWidget>("searchButton"), Qt::LeftButton);
    QTest::keyClick(&Get<QDialog>("onlineSearchWindow"), Qt::Key_Escape);
    EXPECT_FALSE(IsSearchOpen());
    // The window closes in the middle of one, too.
    Trigger("findSubtitlesAction");
    WaitUntil([this] { return IsSearchOpen(); });
    EXPECT_TRUE(GetWindow().close());
    EXPECT_FALSE(IsSearchOpen());
}

TEST_F(SearchInWindowTest, NothingFoundSaysWhatToTry)
{
    AddFilm(MakeFilm("Nobody.Made.This.Film.1971.mkv"));
    OpenSearch();
    WaitForSearch();
    EXPECT_THAT(GetSearchSentence(), HasSubstr("No subtitles were found"));
    SaveScreenshot(Get<QDialog>("onlineSearchWindow"), QStringLiteral("online-nothing"));
}

TEST_F(SearchInWindowTest, GoesWithItsFilm)
{
    Film const& film = AddFilm(MakeFilm(FILM));
    Film const& other = AddFilm(MakeFilm("Other.mkv"));
    Show(film);
    Trigger("findSubtitlesAction");
    WaitUntil([this] { return IsSearchOpen(); });
    Show(other);
    EXPECT_TRUE(IsSearchOpen());
    m_list.Remove(other.GetId());
    EXPECT_TRUE(IsSearchOpen());
    m_list.Remove(film.GetId());
    EXPECT_FALSE(IsSearchOpen());
}

TEST_F(SearchInWindowTest, CountsWhatWasDoneAndNeverNames)
{
    m_statistics->SetEnabled(true);
    AddFilm(MakeFilm(FILM));
    OpenSearch();
    WaitForSearch();
    Click("downloadButton");
    WaitUntil([this] { return Get<QWidget>("noticeBar").isVisible(); });
    WaitForSearch();
    auto& title = Get<QLineEdit>("autocompleteField");
    title.selectAll();
    QTest::keyClicks(&title, QStringLiteral("Nobody Made This"));
    Click("searchButton");
    WaitForSearch();
    Click("searchCloseButton");

    std::vector<std::string> const events = ReadEvents();
    std::string const query = " SEARCH_QUERY_EPISODE=False SEARCH_QUERY_IMDBID=False SEARCH_QUERY_LANGUAGE=False"
                              " SEARCH_QUERY_NAME=True SEARCH_QUERY_SEASON=False SUBS_FOUND=";
    EXPECT_THAT(events,
                testing::ElementsAre("SUBTITLES_SEARCH_OPENED SUB_SEARCH_CLICKED=editingPanel",
                                     "SUBTITLES_SEARCH_QUERY SEARCH_QUERY_AUTO=True" + query + "0",
                                     "SUBTITLES_SEARCH_QUERY SEARCH_QUERY_AUTO=False" + query + "4",
                                     "SUBTITLES_SEARCH_CLOSED SEARCH_QUERIES_ERRORS=0 SEARCH_QUERIES_SENT=2 "
                                     "SEARCH_QUERIES_SUCCESS=1 SEARCH_QUERIES_WITHOUT_RESULTS=1 SUBS_DOWNLOADED=1"));
    std::string const recorded = *m_statistics->Read();
    for (char const* const said : {"Lantern", "lantern", "Nobody", "korvex-", ".mkv", ".srt", "/"})
        EXPECT_THAT(recorded, testing::Not(HasSubstr(said)));
}

} // namespace Korvex::Testing
