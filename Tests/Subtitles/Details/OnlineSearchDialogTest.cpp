#include "Hosts/Desktop/LayoutLint.h"
#include "Support/LongerTexts.h"
#include "Support/WidgetSupport.h"

#include "Subtitles/Details/AutocompleteControl.h"
#include "Subtitles/Details/OnlineSearchDialog.h"
#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/UseCases/SearchResult.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <gmock/gmock.h>

#include <algorithm>
#include <ctime>

namespace Korvex::Converter::Subtitles::Details
{
namespace
{

using Adapters::MatchLevel;
using Adapters::OnlineSearchFields;
using Adapters::OnlineSearchMark;
using Adapters::OnlineSearchRow;
using Adapters::OnlineSearchState;
using Entities::Language::LanguageID;
using testing::ElementsAre;
using testing::IsEmpty;
using UseCases::SearchResult;

class Listener final : public Adapters::IOnlineSearchDialogEventObserver
{
public:
    void OnSearchRequested() override { log.push_back("search"); }
    void OnFieldsEdited() override { log.push_back("edited"); }
    void OnLanguagesChanged(std::set<LanguageID> const& languages) override
    {
        std::string text = "languages";
        for (LanguageID const language : languages)
            text += " " + Entities::Language::GetLanguageData(language).shortNames.front();
        log.push_back(text);
    }
    void OnDownloadRequested(std::vector<std::shared_ptr<SearchResult>> const& results) override
    {
        std::string text = "download";
        for (auto const& result : results)
            text += " " + result->fileName.toStdString();
        log.push_back(text);
    }
    void OnCancelRequested() override { log.push_back("cancel"); }
    void OnDialogClosed() override { log.push_back("closed"); }

    [[nodiscard]] std::vector<std::string> Take() { return std::exchange(log, {}); }

    std::vector<std::string> log;
};

OnlineSearchRow MakeRow(QString const& name, MatchLevel level = MatchLevel::Likely)
{
    OnlineSearchRow row;
    row.result = std::make_shared<SearchResult>();
    row.result->fileName = name;
    row.level = level;
    return row;
}

/// Rows as a service gives them: long names, all marks, gaps.
std::vector<OnlineSearchRow> MakeManyRows(int count)
{
    std::vector<OnlineSearchRow> rows;
    LanguageID const languages[] = {LanguageID::English, LanguageID::PortugueseBR, LanguageID::German,
                                    LanguageID::ChineseTraditional};
    char const* const matches[] = {"Same file, same release", "Same source, same resolution", "Same episode",
                                   "Wrong episode"};
    for (int i = 0; i < count; ++i)
    {
        int const part = i * 4 / count;
        auto row = MakeRow(QString("The.Longest.Night.Of.The.Year.S02E%1.1080p.BluRay.x264.DTS-GROUP%2.srt")
                               .arg(i % 12 + 1, 2, 10, QChar('0'))
                               .arg(i),
                           static_cast<MatchLevel>(part));
        row.match = matches[part];
        auto& facts = row.result->facts;
        facts.language = languages[i % 4];
        facts.title = "The Longest Night of the Year";
        facts.season = 2;
        facts.episode = i % 12 + 1;
        facts.release = row.result->fileName;
        if (i % 7 != 3)
            facts.downloadCount = (i * 7919) % 250000;
        if (i % 3 != 1)
            facts.rating = (i * 13 % 101) / 10.0;
        facts.voteCount = i % 40;
        facts.uploaded = QDateTime(QDate(2012, 1, 1).addDays(i * 37 % 4000), QTime(12, 0), Qt::UTC);
        facts.isHearingImpaired = i % 3 == 0;
        facts.isForeignPartsOnly = i % 11 == 5;
        facts.isMachineTranslated = i % 9 == 4;
        facts.isFromTrusted = i % 4 == 0;
        facts.isHighDefinition = i % 2 == 0;
        facts.discCount = i % 10 == 7 ? 2 : 1;
        row.result->tags[Entities::SearchTags::FILE_FORMAT] = i % 5 ? "srt" : "ssa";
        rows.push_back(row);
    }
    return rows;
}

class OnlineSearchDialogTest : public testing::Test
{
protected:
    OnlineSearchDialogTest()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
        dialog->RegisterEventHandler(&listener);
        window->resize(1000, 700);
        Testing::ShowAndWait(*window);
    }

    void Open()
    {
        dialog->Open("Film.mkv");
        ASSERT_NE(Window(), nullptr);
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow() == Window(); }));
    }

    /// Null while the dialog is closed.
    [[nodiscard]] static QDialog* Window()
    {
        for (QWidget* const candidate : QApplication::topLevelWidgets())
            if (candidate->objectName() == "onlineSearchWindow" && candidate->isVisible())
                return qobject_cast<QDialog*>(candidate);
        return nullptr;
    }

    template <typename Widget = QWidget>
    [[nodiscard]] static Widget& Get(char const* name)
    {
        auto* const widget = Window()->findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }

    static void Click(char const* name) { QTest::mouseClick(&Get(name), Qt::LeftButton); }
    [[nodiscard]] static QTreeView& View() { return Get<QTreeView>("resultListView"); }
    static void ClickRow(int row, Qt::KeyboardModifiers modifiers = {})
    {
        QPoint const place = View().visualRect(View().model()->index(row, 1)).center();
        QTest::mouseClick(View().viewport(), Qt::LeftButton, modifiers, place);
    }
    [[nodiscard]] static std::vector<std::string> Names()
    {
        std::vector<std::string> names;
        for (int row = 0; row < View().model()->rowCount(); ++row)
            names.push_back(View().model()->index(row, 0).data().toString().toStdString());
        return names;
    }
    void SetState(OnlineSearchState state, QString const& sentence = {}, OnlineSearchMark mark = OnlineSearchMark::None)
    {
        dialog->SetState(state, sentence, mark);
    }

    QTemporaryDir settings;
    std::unique_ptr<QMainWindow> window = std::make_unique<QMainWindow>();
    std::shared_ptr<AutocompleteControl> title = std::make_shared<AutocompleteControl>();
    Listener listener;
    std::unique_ptr<OnlineSearchDialog> dialog = std::make_unique<OnlineSearchDialog>(title);
};

TEST_F(OnlineSearchDialogTest, AsksForASearchOnceByButtonAndByEnterInAField)
{
    Open();
    EXPECT_EQ(Window()->parentWidget(), window.get());
    EXPECT_FALSE(Window()->isModal()) << "the preview stays alive";
    EXPECT_TRUE(Get("autocompleteField").hasFocus());
    EXPECT_FALSE(Get("seasonEdit").isVisible());
    QTest::keyClicks(&Get("autocompleteField"), "ab");
    QTest::keyClick(&Get("autocompleteField"), Qt::Key_Return);
    Click("showEpisodeButton");
    EXPECT_TRUE(Get("seasonEdit").hasFocus());
    EXPECT_FALSE(Get("showEpisodeButton").isVisible());
    QTest::keyClicks(&Get("seasonEdit"), "x2");
    QTest::keyClick(&Get("seasonEdit"), Qt::Key_Enter);
    QTest::keyClick(&Get("seasonEdit"), Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return listener.log.size() == 5; })) << "the button goes down and up";
    EXPECT_THAT(listener.Take(), ElementsAre("edited", "edited", "edited", "search", "search"))
        << "the title tells of Enter by itself";

    SetState(OnlineSearchState::Searching);
    QTest::keyClick(&Get("autocompleteField"), Qt::Key_Return);
    QTest::keyClick(&Get("seasonEdit"), Qt::Key_Return);
    Click("searchButton");
    EXPECT_THAT(listener.Take(), IsEmpty());
    OnlineSearchFields const fields = dialog->GetFields();
    EXPECT_EQ(fields.season + "|" + fields.episode + "|" + fields.imdbId, "2||");
}

TEST_F(OnlineSearchDialogTest, ShowsTheFieldsOfTheQueryAndOffersTheFileOnlyWhereItCan)
{
    Open();
    EXPECT_FALSE(Get("exactFileCheckBox").isVisible());
    dialog->SetFields({"1", "", "tt0944947", true});
    EXPECT_TRUE(Get("episodeEdit").isVisible());
    EXPECT_FALSE(dialog->GetFields().isFileSearched) << "not offered";
    dialog->SetFileSearchAvailable(true);
    EXPECT_TRUE(dialog->GetFields().isFileSearched);
    dialog->SetFields({});
    EXPECT_FALSE(Get("episodeEdit").isVisible());
    auto episodes = MakeManyRows(1);
    dialog->SetResults(episodes);
    EXPECT_TRUE(Get("episodeEdit").isVisible()) << "what was found is a series";
    EXPECT_THAT(listener.Take(), IsEmpty());
    QTest::keyClick(&Get("exactFileCheckBox"), Qt::Key_Space);
    EXPECT_THAT(listener.Take(), ElementsAre("edited"));
    EXPECT_TRUE(dialog->GetFields().isFileSearched);
}

TEST_F(OnlineSearchDialogTest, SaysInWordsWhatIsWrongWithAnImdbId)
{
    Open();
    auto& field = Get<QLineEdit>("imdbEdit");
    auto const reasonFor = [&](QString const& typed)
    {
        field.clear();
        QTest::keyClicks(&field, typed);
        auto const& reason = Get<QLabel>("imdbReasonLabel");
        EXPECT_EQ(field.accessibleDescription(), reason.text());
        return reason.isVisible() ? reason.property("role").toString() + ": " + reason.text() : QString();
    };
    field.setFocus();
    for (char const* const right : {"", "tt0133093", "0133093", "TT1234567890", " tt0133093 "})
        EXPECT_EQ(reasonFor(right), "") << right;
    EXPECT_TRUE(reasonFor("tt013309").startsWith("dim: The IMDb id is too short")) << "perhaps still being typed";
    Get("autocompleteField").setFocus();
    EXPECT_EQ(Get("imdbReasonLabel").property("role"), "error");
    field.setFocus();
    EXPECT_TRUE(reasonFor("12345678901").startsWith("error: The IMDb id is too long"));
    EXPECT_TRUE(reasonFor("nm0000206").startsWith("error: This is no IMDb id"));
    EXPECT_TRUE(reasonFor("tt01a3093").startsWith("error: This is no IMDb id"));
    (void)listener.Take();
    field.clear();
    field.insert("https://www.imdb.com/title/tt0133093/?ref_=fn_al");
    EXPECT_EQ(dialog->GetFields().imdbId, "tt0133093");
}

TEST_F(OnlineSearchDialogTest, RemembersTheLanguagesThatTheUserChooses)
{
    Open();
    EXPECT_THAT(dialog->GetLanguages(), IsEmpty());
    Click("languagesButton");
    EXPECT_TRUE(Get("languageSearchEdit").hasFocus());
    QTest::keyClicks(&Get("languageSearchEdit"), "GERM");
    QTest::keyClick(&Get("languageSearchEdit"), Qt::Key_Return);
    auto& search = Get<QLineEdit>("languageSearchEdit");
    search.clear();
    QTest::keyClicks(&search, "pt-br");
    auto& list = Get<QListView>("languageListView");
    ASSERT_EQ(list.model()->rowCount(), 1);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(0, 0)).center());
    EXPECT_THAT(listener.Take(), IsEmpty()) << "the choice goes on";
    QTest::keyClick(&search, Qt::Key_Escape);
    ASSERT_NE(Window(), nullptr) << "only the list is closed";
    EXPECT_THAT(listener.Take(), ElementsAre("languages de pt-br"));
    EXPECT_EQ(Get<QPushButton>("languagesButton").text(), "German, Portuguese (Brazil)");
    dialog->Close();

    dialog = std::make_unique<OnlineSearchDialog>(title);
    dialog->RegisterEventHandler(&listener);
    EXPECT_THAT(dialog->GetLanguages(), ElementsAre(LanguageID::German, LanguageID::PortugueseBR)) << "before it opens";
    (void)listener.Take();
    Open();
    Click("languagesButton");
    auto const textAt = [](int row)
    { return Get<QListView>("languageListView").model()->index(row, 0).data().toString().toStdString(); };
    EXPECT_THAT((std::vector{textAt(0), textAt(1), textAt(2), textAt(3)}),
                ElementsAre("All languages", "German", "Portuguese (Brazil)", "Afrikaans"));
    QTest::keyClick(&Get("languageListView"), Qt::Key_Space);
    QTest::keyClick(&Get("languageListView"), Qt::Key_Escape);
    EXPECT_THAT(listener.Take(), ElementsAre("languages"));
    EXPECT_EQ(Get<QPushButton>("languagesButton").text(), "All languages");
}

TEST_F(OnlineSearchDialogTest, SortsByEveryColumnWithTiesInTheOrderOfTheRanking)
{
    Open();
    std::vector<OnlineSearchRow> rows{MakeRow("b10", MatchLevel::Exact), MakeRow("A", MatchLevel::Wrong),
                                      MakeRow("b9", MatchLevel::Exact), MakeRow("c")};
    char const* const formats[] = {"srt", "ass", "srt", ""};
    LanguageID const languages[] = {LanguageID::German, LanguageID::Czech, LanguageID::German, LanguageID::None};
    for (std::size_t i = 0; i < 4; ++i)
    {
        auto& facts = rows[i].result->facts;
        facts.language = languages[i];
        if (i < 3)
        {
            facts.downloadCount = i == 1 ? 100 : 9;
            facts.rating = i == 1 ? 9.5 : 10.0;
            facts.uploaded = QDateTime(QDate(i == 1 ? 2020 : 2019, 12, 2), {}, Qt::UTC);
            facts.isHearingImpaired = i != 1;
            facts.isHighDefinition = i == 1;
            rows[i].result->tags[Entities::SearchTags::FILE_FORMAT] = formats[i];
        }
    }
    dialog->SetResults(rows);
    using Order = std::vector<std::string>;
    Order const ranking{"b10", "A", "b9", "c"};
    struct Case
    {
        char const* column;
        Order first;
        Order second;
    };
    Order const oneFirst{"A", "b10", "b9", "c"};
    Order const oneLast{"b10", "b9", "A", "c"};
    QHeaderView& header = *View().header();
    for (Case const& column :
         {Case{"Name", {"A", "b9", "b10", "c"}, {"c", "b10", "b9", "A"}},
          Case{"Match", {"b10", "b9", "c", "A"}, {"A", "c", "b10", "b9"}}, Case{"Language", oneFirst, oneLast},
          Case{"Marks", oneFirst, oneLast}, Case{"Downloads", oneFirst, oneLast}, Case{"Rating", oneLast, oneFirst},
          Case{"Uploaded", oneFirst, oneLast}, Case{"Format", oneFirst, oneLast}})
    {
        SCOPED_TRACE(column.column);
        int section = 0;
        while (header.model()->headerData(section, Qt::Horizontal).toString() != column.column)
            ASSERT_LT(++section, header.count());
        View().horizontalScrollBar()->setValue(header.sectionPosition(section));
        QPoint const place(header.sectionViewportPosition(section) + header.sectionSize(section) / 2, 10);
        for (Order const& expected : {column.first, column.second, ranking})
        {
            QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
            EXPECT_EQ(Names(), expected);
            EXPECT_EQ(Get<QComboBox>("resultOrderComboBox").currentText(),
                      expected == ranking ? "Best match" : column.column);
        }
    }
    QTest::keyClicks(&Get("resultOrderComboBox"), "N");
    EXPECT_EQ(Names().front(), "A");
    Click("resultDirectionButton");
    EXPECT_EQ(Names().front(), "c");
    dialog->SetResults({rows[1], rows[2]});
    EXPECT_THAT(Names(), ElementsAre("b9", "A")) << "the user's order stays";
}

TEST_F(OnlineSearchDialogTest, DownloadsWhatIsSelected)
{
    Open();
    std::vector<OnlineSearchRow> rows{MakeRow("one"), MakeRow("two"), MakeRow("Ünder.three"), MakeRow("four")};
    rows[3].result->facts.isHearingImpaired = true;
    dialog->SetResults(rows);
    auto const& button = Get<QPushButton>("downloadButton");
    EXPECT_EQ(button.text(), "&Download");
    Click("downloadButton");
    std::rotate(rows.begin(), rows.begin() + 1, rows.end());
    dialog->SetResults(rows);
    QTest::keyClick(&View(), Qt::Key_Return);
    EXPECT_THAT(listener.Take(), ElementsAre("download one", "download two")) << "the first row unless the user chose";

    ClickRow(2);
    ClickRow(0, Qt::ControlModifier);
    EXPECT_EQ(button.text(), "&Download 2");
    std::reverse(rows.begin(), rows.end());
    dialog->SetResults(rows);
    Click("downloadButton");
    EXPECT_THAT(listener.Take(), ElementsAre("download four two")) << "the same ones, in the new order";
    ClickRow(0);
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, View().visualRect(View().model()->index(0, 1)).center());
    EXPECT_THAT(listener.Take(), ElementsAre("download one"));

    for (OnlineSearchState const busy :
         {OnlineSearchState::Searching, OnlineSearchState::Downloading, OnlineSearchState::Cancelling})
    {
        SetState(busy);
        QTest::keyClick(&View(), Qt::Key_Return);
        Click("downloadButton");
    }
    EXPECT_THAT(listener.Take(), IsEmpty());
    EXPECT_EQ(Names().size(), 4U) << "the list stays while it is busy";
    SetState(OnlineSearchState::Ready);

    auto& filter = Get<QLineEdit>("resultFilterEdit");
    QTest::keyClicks(&filter, "THREE under");
    EXPECT_THAT(Names(), ElementsAre("Ünder.three"));
    EXPECT_TRUE(button.isEnabled());
    filter.clear();
    QTest::keyClicks(&filter, "impaired");
    EXPECT_THAT(Names(), ElementsAre("four"));
    QTest::keyClicks(&filter, "x");
    EXPECT_FALSE(button.isEnabled());
    EXPECT_TRUE(Get("resultEmptyLabel").isVisible());
    filter.setFocus();
    QTest::keyClick(&filter, Qt::Key_Escape);
    EXPECT_FALSE(Get("resultEmptyLabel").isVisible());
    EXPECT_EQ(Names().size(), 4U);
    QTest::keyClick(&filter, Qt::Key_Down);
    EXPECT_TRUE(View().hasFocus());
    dialog->SetResults({});
    EXPECT_FALSE(button.isEnabled());
}

TEST_F(OnlineSearchDialogTest, SaysWhatItIsAbout)
{
    Open();
    auto const& label = Get<QLabel>("searchStateLabel");
    SetState(OnlineSearchState::Ready, "Nothing found. Try another title.", OnlineSearchMark::Hint);
    EXPECT_EQ(Get<QLabel>("resultEmptyLabel").text(), "Nothing found. Try another title.");
    EXPECT_EQ(label.text(), "");
    dialog->SetResults(MakeManyRows(3));
    EXPECT_FALSE(Get("resultEmptyLabel").isVisible());
    EXPECT_EQ(label.text(), "Nothing found. Try another title.");
    SetState(OnlineSearchState::Ready, "<b>No</b> connection", OnlineSearchMark::Error);
    EXPECT_EQ(label.text(), "<b>No</b> connection");
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_TRUE(Get("searchStateSign").isVisible());
    EXPECT_EQ(Names().size(), 3U);
    EXPECT_FALSE(Get("searchCancelButton").isVisible());

    SetState(OnlineSearchState::Downloading);
    EXPECT_EQ(label.text(), "Downloading...");
    EXPECT_FALSE(Get("searchStateSign").isVisible());
    EXPECT_TRUE(Get("searchBusyBar").isVisible());
    Click("searchCancelButton");
    SetState(OnlineSearchState::Cancelling);
    Click("searchCancelButton");
    EXPECT_THAT(listener.Take(), ElementsAre("cancel"));
}

TEST_F(OnlineSearchDialogTest, TellsOnceThatItIsClosedHoweverThatComes)
{
    QWidget* const early = window.get();
    Open();
    SetState(OnlineSearchState::Searching);
    QTest::keyClick(&Get("autocompleteField"), Qt::Key_Escape);
    EXPECT_EQ(Window(), nullptr);
    dialog->Close();
    dialog->SetResults(MakeManyRows(2));
    SetState(OnlineSearchState::Ready, "too late", OnlineSearchMark::Error);
    EXPECT_THAT(listener.Take(), ElementsAre("closed"));

    Open(); // while the last window is still about to be deleted
    EXPECT_EQ(Window()->parentWidget(), early);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_NE(Window(), nullptr);
    QTest::keyClicks(&Get("autocompleteField"), "a");
    EXPECT_THAT(listener.Take(), ElementsAre("edited"));
    Window()->resize(700, 500);
    Window()->close();
    EXPECT_THAT(listener.Take(), ElementsAre("closed"));

    Open();
    EXPECT_EQ(Window()->size(), QSize(700, 500)) << "as it was left";
    Open();
    EXPECT_THAT(listener.Take(), ElementsAre("closed")) << "one at a time";
    Click("languagesButton");
    window.reset();
    EXPECT_THAT(listener.Take(), ElementsAre("closed"));
    EXPECT_EQ(Window(), nullptr);

    Open();
    EXPECT_EQ(title->GetText(), "");
    dialog.reset();
    EXPECT_EQ(Window(), nullptr);
    EXPECT_THAT(listener.Take(), IsEmpty()) << "nobody to tell";
}

TEST_F(OnlineSearchDialogTest, IsDrivenByKeysAndNamedForScreenReaders)
{
    Open();
    dialog->SetFileSearchAvailable(true);
    dialog->SetResults(MakeManyRows(4));
    Get("autocompleteField").setFocus();
    std::vector<std::string> stops;
    do
    {
        QWidget const* const widget = QApplication::focusWidget();
        stops.push_back(widget->objectName().toStdString());
        auto const* const button = qobject_cast<QAbstractButton const*>(widget);
        bool const hasText = button != nullptr && !button->text().isEmpty();
        EXPECT_TRUE(hasText || !widget->accessibleName().isEmpty()) << stops.back();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget()->objectName() != "autocompleteField" && stops.size() < 30);
    EXPECT_THAT(stops, ElementsAre("autocompleteField", "seasonEdit", "episodeEdit", "searchButton", "imdbEdit",
                                   "languagesButton", "exactFileCheckBox", "resultFilterEdit", "resultOrderComboBox",
                                   "resultListView", "downloadButton", "searchCloseButton"));
    QModelIndex const match = View().model()->index(0, 1);
    EXPECT_EQ(match.data(Qt::AccessibleTextRole), "Made for this file or release: Same file, same release");
    EXPECT_TRUE(match.siblingAtColumn(3).data(Qt::ToolTipRole).toString().contains("hearing impaired"));
    Get("searchCloseButton").setFocus();
    QTest::keyClick(&Get("searchCloseButton"), Qt::Key_Return);
    EXPECT_EQ(Window(), nullptr);
}

TEST_F(OnlineSearchDialogTest, KeepsUpWithManyResults)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    constexpr double LONGEST_MS = 500;
#else
    constexpr double LONGEST_MS = 50;
#endif
    Open();
    auto const rows = MakeManyRows(500);
    auto const measure = [&](std::string const& what, auto const& step)
    {
        std::clock_t const begin = std::clock(); // of the processor: the machine may be busy
        step();
        QCoreApplication::processEvents();
        double const taken = 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
        EXPECT_LT(taken, LONGEST_MS) << what;
    };
    measure("show", [&] { dialog->SetResults(rows); });
    measure("show again", [&] { dialog->SetResults(rows); });
    for (int column = 0; column < View().model()->columnCount(); ++column)
        measure("sort", [&] { QTest::keyClick(&Get("resultOrderComboBox"), Qt::Key_Down); });
    measure("scroll a page", [&] { QTest::keyClick(&View(), Qt::Key_PageDown); });
    measure("scroll to the end", [&] { QTest::keyClick(&View(), Qt::Key_End); });
    measure("select all", [&] { QTest::keyClick(&View(), Qt::Key_A, Qt::ControlModifier); });
    measure("filter", [&] { QTest::keyClicks(&Get("resultFilterEdit"), "9"); });
}

/// All that a person reads or hears of the window.
QStringList ListTexts(QWidget& window)
{
    QStringList texts{window.windowTitle()};
    for (QWidget* const widget : window.findChildren<QWidget*>())
    {
        texts << widget->toolTip() << widget->accessibleName() << widget->accessibleDescription();
        for (char const* const property : {"text", "placeholderText"})
            texts << widget->property(property).toString();
        if (auto const* const box = qobject_cast<QComboBox*>(widget))
            for (int i = 0; i < box->count(); ++i)
                texts << box->itemText(i);
        auto const* const view = qobject_cast<QAbstractItemView*>(widget);
        if (view == nullptr || view->model() == nullptr)
            continue;
        auto const& model = *view->model();
        for (int column = 0; column < model.columnCount(); ++column)
        {
            texts << model.headerData(column, Qt::Horizontal).toString();
            for (int row = 0; row < model.rowCount(); ++row)
                for (int const role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole})
                    texts << model.index(row, column).data(role).toString();
        }
    }
    texts.sort();
    return texts;
}

TEST_F(OnlineSearchDialogTest, ChangesItsLanguageWhileItIsOpen)
{
    auto const rows = MakeManyRows(12);
    auto const openWithEverything = [&]
    {
        Open();
        dialog->SetFields({"2", "", "12", false});
        dialog->SetFileSearchAvailable(true);
        dialog->SetResults(rows);
        QTest::keyClick(&View(), Qt::Key_A, Qt::ControlModifier);
        SetState(OnlineSearchState::Searching);
    };
    Testing::LongerTexts longer;
    openWithEverything();
    Click("languagesButton");
    QStringList const before = ListTexts(*Window());
    QCoreApplication::installTranslator(&longer);
    QCoreApplication::processEvents();
    QStringList const changed = ListTexts(*Window());
    dialog->Close();
    openWithEverything();
    Click("languagesButton");
    EXPECT_EQ(changed, ListTexts(*Window())) << "as if it had been opened in that language";
    EXPECT_NE(changed, before);
    QCoreApplication::removeTranslator(&longer);
    QCoreApplication::processEvents();
    EXPECT_EQ(ListTexts(*Window()), before);
}

TEST_F(OnlineSearchDialogTest, HasRoomForEverythingInBothThemesAndLongLanguages)
{
    Testing::LongerTexts longer;
    auto const lookAt = [&](QString const& what)
    {
        QTest::qWait(20); // the layout comes to rest in a few rounds
        (void)QTest::qWaitFor([] { return Testing::FindLayoutFaults(*Window()).empty(); }, 1000);
        Testing::SaveScreenshot(*Window(), what);
        for (std::string const& fault : Testing::FindLayoutFaults(*Window()))
            ADD_FAILURE() << qPrintable(what) << ": " << fault;
    };
    auto const lookAtAll = [&](QString const& name)
    {
        Open();
        Window()->resize(760, 480);
        lookAt(name + "-empty");
        title->SetText("The Longest Night of the Year");
        dialog->SetFileSearchAvailable(true);
        SetState(OnlineSearchState::Searching);
        lookAt(name + "-searching");
        SetState(OnlineSearchState::Ready,
                 "OpenSubtitles has nothing for this. Try the title without the year, or another language.",
                 OnlineSearchMark::Hint);
        lookAt(name + "-nothing");
        dialog->SetResults(MakeManyRows(60));
        SetState(OnlineSearchState::Ready);
        lookAt(name + "-results");
        QTest::keyClicks(&Get("imdbEdit"), "tt12x");
        SetState(
            OnlineSearchState::Ready,
            "Your downloads at OpenSubtitles are used up (it says: \"You have downloaded your allowed 20 subtitles "
            "for 24h\"); download again after 22.11.26 00:00.",
            OnlineSearchMark::Error);
        lookAt(name + "-error");
        Window()->resize(1000, 640);
        QTest::keyClick(&View(), Qt::Key_A, Qt::ControlModifier);
        lookAt(name + "-large");
        Click("languagesButton");
        lookAt(name + "-languages");
        dialog->Close();
    };
    Testing::ForEachTheme(
        [&](QString const& theme)
        {
            lookAtAll("dialog-" + theme);
            QCoreApplication::installTranslator(&longer);
            lookAtAll("dialog-long-" + theme);
            QCoreApplication::removeTranslator(&longer);
        });
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Details
