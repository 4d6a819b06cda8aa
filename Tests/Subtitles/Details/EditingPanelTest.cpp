#include "Support/WidgetSupport.h"

#include "Subtitles/Details/EditingPanel.h"
#include "Subtitles/Entities/MetaTypes.h"

#include "Gui/ColorPickerButton.h"
#include "Gui/ComboBoxButton.h"
#include "Gui/ModalPopup.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFontDialog>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSlider>
#include <QStyle>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QTranslator>

namespace Korvex::Converter::Subtitles::Details
{
namespace
{

using Entities::SubtitleAlign;
using Entities::SubtitleEncoding;
using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;
using testing::ElementsAre;
using testing::IsEmpty;

using Log = std::vector<std::string>;

/// Writes down what it hears.
class Listener final : public Adapters::ITrackEditorEventObserver, public Adapters::ISubtitleCollectionEventObserver
{
public:
    explicit Listener(EditingPanel& panel)
    {
        panel.RegisterEventHandler(static_cast<ITrackEditorEventObserver*>(this));
        panel.RegisterEventHandler(static_cast<ISubtitleCollectionEventObserver*>(this));
        QObject::connect(&panel, &EditingPanel::Changed, &panel, [this] { log.emplace_back("Changed"); });
        QObject::connect(&panel, &EditingPanel::AddSubtitleTrackRequested, &panel,
                         [this] { log.emplace_back("AddSubtitleTrackRequested"); });
    }

    void OnFontChanged(QFont const& font) override { Add("font " + font.family().toStdString()); }
    void OnTextColorChanged(QColor const& color) override { Add("text " + color.name().toStdString()); }
    void OnOutlineColorChanged(QColor const& color) override { Add("outline " + color.name().toStdString()); }
    void OnEncodingChanged(SubtitleEncoding encoding) override
    {
        Add("encoding " + std::to_string(static_cast<int>(encoding)));
    }
    void OnAlignChanged(SubtitleAlign align, ChangeType type) override
    {
        Add("align " + std::to_string(static_cast<int>(align)) + (type == ByUser ? " by user" : " by presenter"));
    }
    void OnSynchronizationOffsetChanged(double offsetSeconds) override
    {
        Add("offset " + std::to_string(qRound(offsetSeconds * 100)));
    }
    void OnPositionShiftChanged(int shiftLines) override { Add("shift " + std::to_string(shiftLines)); }
    void OnChooseFileRequested() override { Add("choose file"); }
    void OnFindFileRequested(std::string const& source) override { Add("find file from " + source); }
    void OnSubtitleTrackSelected(SubtitleTrackID const& id) override { Add("track " + id.ToString()); }
    void OnExtractSubtitleRequested(SubtitleTrackID const& id) override { Add("extract " + id.ToString()); }
    void OnApplyToAllFilesChanged(bool /*apply*/) override { Add("apply to all"); }
    void OnChoiceFinished() override { Add("finished"); }
    void OnNoSubtitlesSelected() override { Add("none"); }
    void OnAllSoftSubtitlesSelected() override { Add("all soft"); }

    [[nodiscard]] Log Take() { return std::exchange(log, {}); }

    Log log;

private:
    void Add(std::string const& entry) { log.push_back(entry); }
};

/// Every text of one context between brackets.
class Bracketing final : public QTranslator
{
public:
    explicit Bracketing(char const* context) : m_context(context) {}
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(char const* context, char const* text, char const*, int) const override
    {
        return m_context == context ? "<" + QString(text) + ">" : QString();
    }

private:
    std::string m_context;
};

class EditingPanelTest : public testing::Test
{
protected:
    void SetUp() override
    {
        panel->FillEncodingComboBox({SubtitleEncoding::Auto, SubtitleEncoding::UTF8, SubtitleEncoding::Windows1250});
        panel->FillAligmentComboBox({SubtitleAlign::Default, SubtitleAlign::Top});
        for (std::uint32_t const stream : {2U, 11U})
            panel->AddSubtitleTrack(SubtitleTrack(stream));
        panel->resize(320, 640);
        Testing::ShowAndWait(*panel);
        EXPECT_THAT(listener.Take(), IsEmpty()) << "filling is silent";
    }

    template <typename Widget>
    [[nodiscard]] Widget& Get(char const* name)
    {
        auto* const widget = panel->findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
    void Click(char const* name) { QTest::mouseClick(&Get<QWidget>(name), Qt::LeftButton); }
    [[nodiscard]] QString Caption() { return Get<GUI::ComboBoxButton>("selectSubtitlesTrackButton").GetButtonText(); }
    [[nodiscard]] GUI::ModalPopup* Popup()
    {
        auto const popups = panel->findChildren<GUI::ModalPopup*>();
        EXPECT_LE(popups.size(), 1);
        return popups.isEmpty() || !popups.front()->isVisible() ? nullptr : popups.front();
    }
    /// Opens the font dialog by a click and ends it by `answer`.
    void AnswerFontDialog(std::function<void(QFontDialog&)> const& answer)
    {
        bool wasUp = false;
        QTimer::singleShot(0, panel.get(),
                           [&]
                           {
                               auto* const dialog = qobject_cast<QFontDialog*>(QApplication::activeModalWidget());
                               ASSERT_NE(dialog, nullptr);
                               wasUp = true;
                               answer(*dialog);
                           });
        Click("selectFontButton");
        EXPECT_TRUE(wasUp);
    }

    std::unique_ptr<EditingPanel> panel = std::make_unique<EditingPanel>();
    Listener listener{*panel};
};

TEST_F(EditingPanelTest, HasTheNamesThatStyleSheetsAndHostsKnow)
{
    QString const names =
        "headerLabel outputSubsInfoButton addSubtitlesButton selectTrackLabel selectSubtitlesTrackButton "
        "textColorPicker outlineColorPicker selectFontButton encodingLabel encodingComboBox alignLabel alignComboBox "
        "alignSlider alignSpinBox syncLabel syncSpinBox hastenLabel headerFrame outputSubsInfoFramne addSubtitlesFrame "
        "selectSubtitlesFrame editColorFrame encodingFrame alignSubtitlesFrame alignFrame sliderFrame syncFrame "
        "mainFrame";
    for (QString const& name : names.split(' '))
        EXPECT_EQ(panel->findChildren<QWidget*>(name).size(), 1) << qPrintable(name);
    EXPECT_NE(panel->findChild<QStyle*>("fusion", Qt::FindDirectChildrenOnly), nullptr);
    for (char const* box : {"encodingComboBox", "alignComboBox"})
        EXPECT_NE(Get<QComboBox>(box).findChild<QStyle*>("windows", Qt::FindDirectChildrenOnly), nullptr) << box;
    QMetaObject const* const meta = panel->metaObject();
    EXPECT_STREQ(meta->method(meta->methodOffset()).name(), "AddSubtitleTrackRequested");
    EXPECT_STREQ(meta->method(meta->methodOffset() + 1).name(), "Changed");
}

TEST_F(EditingPanelTest, LetsTabGoDownThePanel)
{
    Get<QWidget>("outputSubsInfoButton").setFocus();
    Log stops;
    for (int stop = 0; stop < 11; ++stop)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        stops.push_back(QApplication::focusWidget()->objectName().toStdString());
        EXPECT_FALSE(stop != 0 && QApplication::focusWidget()->accessibleName().isEmpty()) << stops.back();
    }
    EXPECT_THAT(stops, ElementsAre("addSubtitlesButton", "selectSubtitlesTrackButton", "selectFontButton",
                                   "textColorPicker", "outlineColorPicker", "encodingComboBox", "alignComboBox",
                                   "alignSlider", "alignSpinBox", "syncSpinBox", "outputSubsInfoButton"));
}

TEST_F(EditingPanelTest, ReportsEachEditOnceToTheObserversAndThenAsChanged)
{
    QTest::keyClick(&Get<QWidget>("encodingComboBox"), Qt::Key_End);
    EXPECT_THAT(listener.Take(), ElementsAre("encoding 3", "Changed"));
    QTest::keyClick(&Get<QWidget>("alignComboBox"), Qt::Key_Down);
    EXPECT_THAT(listener.Take(), ElementsAre("align 1 by user", "Changed"));
    Get<QSlider>("alignSlider").setValue(37);
    EXPECT_THAT(listener.Take(), ElementsAre("shift 37", "Changed"));
    QTest::keyClick(&Get<QWidget>("alignSpinBox"), Qt::Key_Down);
    EXPECT_THAT(listener.Take(), ElementsAre("shift 36", "Changed"));
    EXPECT_EQ(Get<QSlider>("alignSlider").value(), 36);
    QTest::keyClick(&Get<QWidget>("syncSpinBox"), Qt::Key_Up);
    EXPECT_THAT(listener.Take(), ElementsAre("offset 10", "Changed"));
    Get<GUI::ColorPickerButton>("textColorPicker").SetColor("#102030");
    Get<GUI::ColorPickerButton>("outlineColorPicker").SetColor("#405060");
    EXPECT_THAT(listener.Take(), ElementsAre("text #102030", "Changed", "outline #405060", "Changed"));
}

TEST_F(EditingPanelTest, SaysWhetherTheTextComesEarlierOrLater)
{
    for (auto const& [offset, text] : {std::pair(-0.1, "Hastened"), {0.1, "Delayed"}, {0.0, ""}})
    {
        panel->SetSynchronizationOffset(offset);
        EXPECT_EQ(Get<QLabel>("hastenLabel").text(), text);
    }
}

TEST_F(EditingPanelTest, NeverSendsWhatIsTypedBeyondARange)
{
    for (char const* name : {"syncSpinBox", "alignSpinBox"})
    {
        auto& box = Get<QAbstractSpinBox>(name);
        box.selectAll();
        QTest::keyClicks(&box, "-6001");
        QTest::keyClick(&box, Qt::Key_Return);
    }
    panel->SetSynchronizationOffset(1000.0);
    panel->SetPositionShift(-1000);
    int values = 0;
    for (std::string const& entry : listener.Take())
    {
        bool const isOffset = entry.rfind("offset ", 0) == 0;
        if (!isOffset && entry.rfind("shift ", 0) != 0)
            continue;
        EXPECT_LE(std::abs(std::stoi(entry.substr(entry.find(' ')))), isOffset ? 60000 : 100) << entry;
        ++values;
    }
    EXPECT_GE(values, 6) << "both boxes sent what could be typed";
    EXPECT_EQ(Get<QDoubleSpinBox>("syncSpinBox").value(), 600.0);
    EXPECT_EQ(Get<QSpinBox>("alignSpinBox").value(), -100);
}

TEST_F(EditingPanelTest, EchoesNewShiftsOffsetsAndColorsAndOnlyReportsAlignsAsThePresenters)
{
    panel->SetPositionShift(5);
    EXPECT_THAT(listener.Take(), ElementsAre("shift 5", "Changed"));
    panel->SetSynchronizationOffset(2.5);
    EXPECT_THAT(listener.Take(), ElementsAre("offset 250", "Changed"));
    panel->SetTextColor("#010203");
    EXPECT_THAT(listener.Take(), ElementsAre("text #010203", "Changed"));
    panel->SetPositionShift(5);
    panel->SetSynchronizationOffset(2.5);
    panel->SetTextColor("#010203");
    panel->SetFont(QFont("Serif"));
    panel->SetEncoding(SubtitleEncoding::UTF8);
    panel->SetEncoding(SubtitleEncoding::BIG5);
    EXPECT_THAT(listener.Take(), IsEmpty());
    EXPECT_EQ(Get<QComboBox>("encodingComboBox").currentIndex(), 1) << "BIG5 is not in the box";

    panel->SetAlign(SubtitleAlign::Top);
    panel->SetAlign(SubtitleAlign::Right);
    EXPECT_THAT(listener.Take(), ElementsAre("align 1 by presenter", "align 6 by presenter"));
    EXPECT_EQ(Get<QComboBox>("alignComboBox").currentIndex(), 1) << "Right is not in the box";
}

TEST_F(EditingPanelTest, ReportsTheFontWhetherItIsAcceptedOrNot)
{
    panel->SetFont(QFont("DejaVu Serif", 17));
    AnswerFontDialog(
        [](QFontDialog& dialog)
        {
            EXPECT_EQ(dialog.currentFont().family(), "DejaVu Serif");
            dialog.setCurrentFont(QFont("DejaVu Sans", 22));
            auto* const buttons = dialog.findChild<QDialogButtonBox*>();
            EXPECT_EQ(buttons->button(QDialogButtonBox::Ok)->property("styleHint"), "activeButton");
            EXPECT_EQ(buttons->button(QDialogButtonBox::Cancel)->property("styleHint"), "rejectButton");
            QTest::mouseClick(buttons->button(QDialogButtonBox::Cancel), Qt::LeftButton);
        });
    EXPECT_THAT(listener.Take(), ElementsAre("font DejaVu Serif", "Changed"));
    AnswerFontDialog(
        [](QFontDialog& dialog)
        {
            dialog.setCurrentFont(QFont("DejaVu Sans", 22));
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
    EXPECT_THAT(listener.Take(), ElementsAre("font DejaVu Sans", "Changed"));

    QPointer<QWidget> const button = panel->findChild<QWidget*>("selectFontButton");
    AnswerFontDialog(
        [&](QFontDialog&)
        {
            panel.reset();
            EXPECT_NE(button, nullptr) << "it is still being clicked";
        });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(button, nullptr);
    EXPECT_THAT(listener.Take(), IsEmpty()) << "the panel went while its dialog was open";
}

TEST_F(EditingPanelTest, ShortensLongItemsAndKeepsTheirValues)
{
    auto const& box = Get<QComboBox>("encodingComboBox");
    QString const whole = "Central and Eastern European (Windows-1250)";
    EXPECT_NE(box.itemText(2), whole);
    EXPECT_EQ(box.itemData(2, Qt::ToolTipRole), whole);
    EXPECT_EQ(box.itemData(2).value<SubtitleEncoding>(), SubtitleEncoding::Windows1250);
    EXPECT_EQ(box.itemText(1), "UTF-8");
}

TEST_F(EditingPanelTest, OpensOneDropDownAtATimeUnderItsButton)
{
    auto& add = Get<GUI::ComboBoxButton>("addSubtitlesButton");
    auto& select = Get<GUI::ComboBoxButton>("selectSubtitlesTrackButton");
    Click("addSubtitlesButton");
    ASSERT_NE(Popup(), nullptr);
    EXPECT_EQ(Popup()->geometry(), panel->rect());
    QPoint const corner = add.mapTo(panel.get(), QPoint(add.width(), add.height()));
    EXPECT_EQ(Popup()->GetPopupGeometry().topRight() + QPoint(1, 0), corner + QPoint(0, 3));
    QPointer<QWidget> const selector = Get<QPushButton>("chooseButton").window() == panel.get()
                                           ? panel->findChild<QWidget*>("selectSubtitleFileMenu")
                                           : nullptr;
    ASSERT_NE(selector, nullptr);

    select.click();
    ASSERT_NE(Popup(), nullptr);
    EXPECT_THAT(listener.Take(), ElementsAre("AddSubtitleTrackRequested"));
    EXPECT_FALSE(add.IsOpen());
    EXPECT_TRUE(select.IsOpen());
    ASSERT_NE(selector, nullptr) << "a content outlives its popup";
    EXPECT_EQ(selector->parent(), nullptr);
    auto const* const list = panel->findChild<QWidget*>("subtitleCollection");
    ASSERT_NE(list, nullptr);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(Popup(), nullptr);
    EXPECT_FALSE(select.IsOpen());
    EXPECT_EQ(list->parent(), nullptr);

    Click("addSubtitlesButton");
    EXPECT_EQ(panel->findChild<QWidget*>("selectSubtitleFileMenu"), selector);
    Click("findButton");
    EXPECT_EQ(Popup(), nullptr);
    Click("addSubtitlesButton");
    Click("chooseButton");
    EXPECT_EQ(Popup(), nullptr);
    EXPECT_THAT(listener.Take(), ElementsAre("find file from editingPanel", "choose file"));
}

TEST_F(EditingPanelTest, ClosesItsDropDownWithItself)
{
    Click("selectSubtitlesTrackButton");
    panel->hide();
    panel->show();
    EXPECT_EQ(Popup(), nullptr) << "a veil without content";
    Click("selectSubtitlesTrackButton");
    ASSERT_NE(Popup(), nullptr);
    panel->HideSubtitleCollectiondWidget(true);
    panel->HideSubtitleCollectiondWidget(false);
    for (QWidget* window : QApplication::topLevelWidgets())
        EXPECT_TRUE(window == panel.get() || !window->isVisible() || window->testAttribute(Qt::WA_DontShowOnScreen));

    Click("selectSubtitlesTrackButton");
    QPointer<QWidget> const list = panel->findChild<QWidget*>("subtitleCollection");
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(list->isVisible());
    panel.reset();
    EXPECT_EQ(list, nullptr);
}

TEST_F(EditingPanelTest, ShowsTheChoiceOnItsButton)
{
    auto const choose = [this](Qt::Key key)
    {
        Click("selectSubtitlesTrackButton");
        QTest::keyClick(QApplication::focusWidget(), key);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(Popup(), nullptr);
        Log log = listener.Take();
        log.erase(log.begin());
        return log;
    };
    EXPECT_EQ(Caption(), "Leave all tracks (softsub)");
    EXPECT_THAT(choose(Qt::Key_End), ElementsAre("track 11", "Changed"));
    EXPECT_EQ(Caption(), "Subtitles #11");
    EXPECT_THAT(choose(Qt::Key_Home), ElementsAre("none", "Changed"));
    EXPECT_EQ(Caption(), "No subtitles");
    EXPECT_THAT(choose(Qt::Key_Down), ElementsAre("all soft", "Changed"));
    EXPECT_EQ(Caption(), "Leave all tracks (softsub)");
    panel->SetCurrentTrack(SubtitleTrackID(2));
    EXPECT_EQ(panel->GetCurrentTitle(), "Subtitles #2");
    panel->SetWithoutSubtitles();
    EXPECT_EQ(Caption(), "No subtitles");
    EXPECT_THAT(listener.Take(), IsEmpty());
}

TEST_F(EditingPanelTest, FollowsTheLanguage)
{
    panel->SetSynchronizationOffset(1.0);
    panel->SetCurrentTrack(SubtitleTrackID(2));
    listener.log.clear();
    Bracketing texts("EditingPanel");
    Bracketing rows("SubtitleCollection");
    for (QTranslator* translator : {&texts, &rows})
        QCoreApplication::installTranslator(translator);
    QCoreApplication::processEvents();

    EXPECT_EQ(Get<QLabel>("alignLabel").text(), "<Aligment>");
    EXPECT_EQ(Get<QLabel>("hastenLabel").text(), "Delayed") << "until the offset changes";
    EXPECT_TRUE(QTest::qWaitFor([this] { return Caption() == "Subtitles #2"; }));
    panel->SetSynchronizationOffset(2.0);
    EXPECT_EQ(Get<QLabel>("hastenLabel").text(), "<Delayed>");
    panel->SetWithoutSubtitles();
    EXPECT_EQ(Caption(), "<No subtitles>");
    Click("outputSubsInfoButton");
    EXPECT_TRUE(QToolTip::text().startsWith("<Relocating"));
}

TEST_F(EditingPanelTest, TellsItsHandlersWhenItIsEnabledOrDisabled)
{
    panel->Enabled(false);
    EXPECT_FALSE(panel->isEnabled());
    Log calls;
    panel->SetDisablePlayerControlPanelHandler([&](bool on) { calls.push_back(on ? "player on" : "player off"); });
    panel->SetDisableEditorHandler([&](bool on) { calls.push_back(on ? "editor on" : "editor off"); });
    panel->Enabled(true);
    panel->Enabled(false);
    EXPECT_THAT(calls, ElementsAre("editor on", "player on", "editor off", "player off"));
    panel->SetApplyToAllFiles(true);
    EXPECT_FALSE(panel->GetApplyToAllFiles());
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Details
