#include "Support/WidgetSupport.h"

#include "Subtitles/Details/AutocompleteControl.h"

#include <QDialog>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

namespace Korvex::Converter::Subtitles::Details
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

QString const LONG_TITLE = QStringLiteral("A & B: ") + QStringLiteral("a title <without> an end, ").repeated(60);

class AutocompleteControlTest : public testing::Test, public Adapters::IAutocompleteControlEventObserver
{
protected:
    AutocompleteControlTest() : m_window(std::make_unique<QDialog>()), m_field(MakeField())
    {
        auto* const column = new QVBoxLayout(m_window.get());
        for (QWidget* const widget : std::initializer_list<QWidget*>{m_label, m_field, m_next, m_default})
            column->addWidget(widget);
        column->addStretch();
        m_default->setDefault(true);
        m_window->resize(420, 420);
        Korvex::Testing::ShowAndWait(*m_window);
        m_field->setFocus();
        m_control.RegisterEventHandler(this);
    }
    ~AutocompleteControlTest() override { m_control.UnregisterEventHandler(this); }

    void OnTextEdited(QString const& text) override { log.push_back("edited " + text.toStdString()); }
    void OnSuggestionChosen(QString const& title) override { log.push_back("chosen " + title.toStdString()); }
    void OnConfirmed() override { log.push_back("confirmed"); }

    QLineEdit* MakeField() { return qobject_cast<QLineEdit*>(m_control.GetWidget()); }
    void Offer(std::vector<QString> const& titles = {"Alien", "Aliens", "Alien 3"})
    {
        m_control.ShowSuggestions(titles);
    }
    void OfferMany()
    {
        std::vector<QString> titles = {LONG_TITLE};
        for (int i = 1; i < 20; ++i)
            titles.push_back(QStringLiteral("Title %1").arg(i));
        Offer(titles);
    }
    void Press(Qt::Key key) { QTest::keyClick(m_field, key); }
    [[nodiscard]] QListView* List() { return m_window->findChild<QListView*>("autocompleteList"); }
    [[nodiscard]] bool IsOpen() { return List() != nullptr && List()->isVisible(); }
    [[nodiscard]] std::string Marked() { return List()->currentIndex().data().toString().toStdString(); }
    [[nodiscard]] QRect Row(int row) { return List()->visualRect(List()->model()->index(row, 0)); }

    AutocompleteControl m_control;
    std::unique_ptr<QDialog> m_window;
    QLabel* m_label = new QLabel("Title");
    QLineEdit* m_field;
    QLineEdit* m_next = new QLineEdit;
    QPushButton* m_default = new QPushButton("Search");
    std::vector<std::string> log;
};

TEST_F(AutocompleteControlTest, KeysMoveTheMarkAndEnterDecides)
{
    QSignalSpy const defaultClicks(m_default, &QPushButton::clicked);
    QTest::keyClicks(m_field, "al");
    EXPECT_THAT(log, ElementsAre("edited a", "edited al"));
    log.clear();
    Offer();
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(Marked(), "Aliens");
    EXPECT_EQ(m_control.GetText(), "al") << "marking is not taking";
    Offer({"Alien Nation", "Alien", "Aliens"});
    EXPECT_EQ(Marked(), "Aliens") << "newer suggestions leave the mark where it was";
    Press(Qt::Key_Down);
    EXPECT_EQ(Marked(), "") << "beyond the end";
    Press(Qt::Key_Up);
    EXPECT_EQ(Marked(), "Aliens");
    Press(Qt::Key_Return);
    EXPECT_THAT(log, ElementsAre("chosen Aliens"));
    EXPECT_EQ(m_field->text(), "Aliens");
    EXPECT_TRUE(m_field->hasFocus());
    Offer();
    EXPECT_FALSE(IsOpen()) << "an answer that comes after the choice";

    QTest::keyClick(m_field, Qt::Key_Backspace);
    Offer();
    EXPECT_TRUE(IsOpen());
    Press(Qt::Key_Enter);
    EXPECT_FALSE(IsOpen());
    Press(Qt::Key_Return);
    EXPECT_THAT(log, ElementsAre("chosen Aliens", "edited Alien", "confirmed", "confirmed"));
    EXPECT_EQ(defaultClicks.count(), 0);

    m_control.SetText("Heat");
    EXPECT_EQ(m_field->text(), "Heat");
    EXPECT_EQ(log.size(), 4u) << "set by the program";
}

TEST_F(AutocompleteControlTest, PagesMoveByWhatIsInViewAndEscapeClosesTheListFirst)
{
    OfferMany();
    int const rows = List()->viewport()->height() / Row(0).height();
    Press(Qt::Key_PageDown);
    EXPECT_EQ(List()->currentIndex().row(), rows - 1);
    Press(Qt::Key_PageDown);
    EXPECT_TRUE(List()->viewport()->rect().contains(Row(List()->currentIndex().row())));
    Press(Qt::Key_PageDown);
    EXPECT_EQ(Marked(), "Title 19");
    Press(Qt::Key_PageUp);
    EXPECT_EQ(List()->currentIndex().row(), 19 - rows);

    Press(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(m_window->isVisible());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(m_window->isVisible()) << "now it is the dialog's key";
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(AutocompleteControlTest, AClickTakesATitleAndTheFieldKeepsTheFocus)
{
    Offer();
    QTest::mouseClick(List()->viewport(), Qt::RightButton, {}, Row(1).center());
    QTest::mouseClick(List(), Qt::LeftButton, {}, QPoint(1, 1)); // its frame
    EXPECT_THAT(log, IsEmpty());
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, Row(2).center());
    EXPECT_THAT(log, ElementsAre("chosen Alien 3"));
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(m_field->hasFocus());
}

TEST_F(AutocompleteControlTest, WhateverTheUserTurnsToClosesTheList)
{
    QWidget other;
    std::vector<std::pair<char const*, std::function<void()>>> const turns = {
        {"a click beside it", [&] { QTest::mouseClick(m_label, Qt::LeftButton); }},
        {"the window moves", [&] { m_window->move(m_window->pos() + QPoint(20, 20)); }},
        {"the window grows", [&] { m_window->resize(460, 440); }},
        {"the field moves", [&] { m_label->setMinimumHeight(60), m_window->layout()->activate(); }},
        {"the field grows", [&] { m_field->setMinimumHeight(60), m_window->layout()->activate(); }},
        {"the focus goes", [&] { m_next->setFocus(); }},
        {"another window", [&] { Korvex::Testing::ShowAndWait(other); }},
        {"Tab", [&] { Press(Qt::Key_Tab); }},
    };
    for (auto const& [name, turn] : turns)
    {
        Korvex::Testing::ShowAndWait(*m_window);
        m_field->setFocus();
        Offer();
        ASSERT_TRUE(IsOpen()) << name;
        turn();
        QCoreApplication::processEvents();
        EXPECT_FALSE(IsOpen()) << name;
    }
    EXPECT_TRUE(m_next->hasFocus()) << "Tab goes on";
    Offer();
    EXPECT_FALSE(IsOpen()) << "without the focus";
    m_field->setFocus();
    Offer({});
    EXPECT_FALSE(IsOpen());
}

TEST_F(AutocompleteControlTest, TheListStaysInsideAndShortensWhatHasNoRoom)
{
    Offer();
    EXPECT_EQ(List()->geometry().left(), m_field->geometry().left());
    EXPECT_EQ(List()->width(), m_field->width());
    EXPECT_EQ(List()->verticalScrollBar()->maximum(), 0);
    OfferMany();
    EXPECT_TRUE(m_window->rect().contains(List()->geometry()));
    EXPECT_GT(List()->geometry().top(), m_field->geometry().bottom());
    EXPECT_EQ(List()->horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(List()->viewport()->height(), 10 * Row(0).height());
    QPoint const place = Row(0).center();
    QHelpEvent question(QEvent::ToolTip, place, List()->viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(List()->viewport(), &question);
    EXPECT_EQ(QToolTip::text(), LONG_TITLE.toHtmlEscaped());
    QToolTip::hideText();

    QRect const screen = m_window->screen()->availableGeometry();
    m_window->move(m_window->x(), screen.bottom() - 200);
    QCoreApplication::processEvents();
    OfferMany();
    EXPECT_TRUE(screen.contains(QRect(List()->mapToGlobal(QPoint()), List()->size())));
    EXPECT_GT(List()->viewport()->height(), 2 * Row(0).height());

    m_window->move(screen.topLeft());
    m_label->setMinimumHeight(250); // more room above the field than under it
    QCoreApplication::processEvents();
    OfferMany();
    EXPECT_LT(List()->geometry().bottom(), m_field->geometry().top());
    EXPECT_TRUE(m_window->rect().contains(List()->geometry()));
}

TEST_F(AutocompleteControlTest, TextInCompositionIsToldWhenItIsSettled)
{
    m_control.SetText("old");
    m_field->selectAll();
    Offer();
    auto const compose = [this](QString const& preedit, QString const& commit)
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(m_field, &event);
    };
    compose("に", "");
    EXPECT_FALSE(IsOpen());
    compose("にほ", "");
    Offer();
    EXPECT_FALSE(IsOpen()) << "over the input method's own window";
    EXPECT_THAT(log, IsEmpty());
    compose("", "日本");
    EXPECT_THAT(log, ElementsAre("edited 日本"));
    Offer();
    EXPECT_TRUE(IsOpen());
}

TEST_F(AutocompleteControlTest, GoesOnWithANewFieldWhenTheWindowIsGone)
{
    QTest::keyClicks(m_field, "heat");
    Offer();
    m_window.reset();
    Offer();
    EXPECT_EQ(m_control.GetText(), "heat");
    m_control.SetText("Ronin");
    EXPECT_EQ(MakeField()->text(), "Ronin");
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Details
