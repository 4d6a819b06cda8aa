#include "Support/WidgetSupport.h"

#include "Gui/ModalPopup.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

using Korvex::GUI::ModalPopup;
using Korvex::Testing::ShowAndWait;

namespace
{

/// A panel with two buttons beside a field that is not under the veil, and a content with two buttons.
class ModalPopupTest : public testing::Test
{
protected:
    ModalPopupTest()
    {
        m_window.resize(600, 400);
        auto* const row = new QHBoxLayout(&m_window);
        row->addWidget(m_panel);
        row->addWidget(m_outside);
        auto* const column = new QVBoxLayout(m_panel);
        column->addWidget(m_anchor);
        column->addWidget(m_covered);
        column->addStretch();
        auto* const contentColumn = new QVBoxLayout(m_content.get());
        contentColumn->addWidget(m_first);
        contentColumn->addWidget(m_second);
        ShowAndWait(m_window);
        m_anchor->setFocus();

        m_popup = new ModalPopup(m_panel);
        m_closed = std::make_unique<QSignalSpy>(m_popup.data(), &ModalPopup::Closed);
    }

    void Open(QPoint const& topLeft = {20, 60})
    {
        m_content->setWindowFlags(Qt::Popup); // as callers do that show it on its own elsewhere
        m_popup->SetPopup(m_content.get());
        m_popup->show();
        m_popup->raise();
        m_popup->setGeometry(m_panel->rect());
        m_popup->SetPopupPosition(topLeft);
        QCoreApplication::processEvents();
    }

    /// The content leaves the popup as soon as that has closed.
    void TakeOutOnClose()
    {
        QObject::connect(m_popup, &ModalPopup::Closed, m_content.get(), [this] { m_content->setParent(nullptr); });
    }

    void ExpectClosedOnce(QWidget* focus)
    {
        EXPECT_EQ(m_closed->count(), 1);
        EXPECT_TRUE(m_popup->isHidden());
        EXPECT_EQ(m_window.focusWidget(), focus);
        m_closed->clear();
    }

    QWidget m_window;
    QFrame* m_panel = new QFrame;
    QLineEdit* m_outside = new QLineEdit;
    QPushButton* m_anchor = new QPushButton(QStringLiteral("Anchor"));
    QPushButton* m_covered = new QPushButton(QStringLiteral("Covered"));
    QPushButton* m_first = new QPushButton(QStringLiteral("First"));
    QPushButton* m_second = new QPushButton(QStringLiteral("Second"));
    std::unique_ptr<QFrame> m_content = std::make_unique<QFrame>(); // before the popup goes, or taken out
    QPointer<ModalPopup> m_popup;
    std::unique_ptr<QSignalSpy> m_closed;
};

} // namespace

TEST_F(ModalPopupTest, EveryWayOfClosingTellsOnceAndGivesTheFocusBack)
{
    QShortcut const escapeOfTheWindow(QKeySequence(Qt::Key_Escape), &m_window);
    QSignalSpy const shortcuts(&escapeOfTheWindow, &QShortcut::activated);
    Open();
    EXPECT_EQ(m_window.focusWidget(), m_first);
    QTest::keyClick(m_first, Qt::Key_Escape);
    ExpectClosedOnce(m_anchor);
    EXPECT_EQ(shortcuts.count(), 0);

    Open();
    QTest::mouseClick(m_popup, Qt::LeftButton, {}, m_popup->rect().bottomRight() - QPoint(3, 3));
    ExpectClosedOnce(m_anchor);

    Open();
    m_content->hide();
    ExpectClosedOnce(m_anchor);

    Open();
    m_popup->hide();
    ExpectClosedOnce(m_anchor);

    Open();
    QTest::mouseClick(m_outside, Qt::LeftButton);
    ExpectClosedOnce(m_outside);

    m_anchor->setFocus();
    Open();
    m_panel->hide();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_closed->count(), 1);
    m_panel->show();
    EXPECT_FALSE(m_popup->isVisible());
    m_closed->clear();

    Open();
    m_content->setParent(nullptr);
    EXPECT_EQ(m_closed->count(), 1);
}

TEST_F(ModalPopupTest, NothingReachesWhatLiesUnderTheVeil)
{
    QSignalSpy const clicks(m_covered, &QPushButton::clicked);
    Open({120, 160});
    QPoint const overCovered = m_covered->mapTo(m_panel, m_covered->rect().center());
    ASSERT_EQ(m_panel->childAt(overCovered), m_popup);
    QTest::mouseClick(m_content.get(), Qt::LeftButton, {}, QPoint(1, 1)); // its margin
    EXPECT_EQ(m_closed->count(), 0);

    QTest::keyClick(m_first, Qt::Key_Tab);
    EXPECT_EQ(m_window.focusWidget(), m_second);
    QTest::keyClick(m_second, Qt::Key_Tab);
    EXPECT_EQ(m_window.focusWidget(), m_first);
    QTest::keyClick(m_first, Qt::Key_Backtab);
    EXPECT_EQ(m_window.focusWidget(), m_second);
    m_second->setEnabled(false);
    m_first->setFocus();
    QTest::keyClick(m_first, Qt::Key_Tab);
    EXPECT_EQ(m_window.focusWidget(), m_first);
    QTest::keyClick(m_first, Qt::Key_Down);
    EXPECT_TRUE(m_popup->isAncestorOf(m_window.focusWidget()));
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ModalPopupTest, ContentStaysInsideTheVeilWhileEitherChangesItsSize)
{
    Open({10'000, 10'000});
    QRect const veil = m_popup->rect();
    EXPECT_EQ(m_popup->GetPopupGeometry().bottomRight(), veil.bottomRight());
    EXPECT_EQ(m_popup->GetPopupGeometry(), m_content->geometry());

    auto* const tall = new QListWidget;
    tall->setMinimumHeight(veil.height() + 500);
    m_content->layout()->addWidget(tall);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_content->geometry().top(), 0);
    EXPECT_EQ(m_content->height(), veil.height());
    delete tall;

    m_window.resize(400, 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_popup->rect(), m_panel->rect());
    EXPECT_TRUE(m_popup->rect().contains(m_content->geometry()));
}

TEST_F(ModalPopupTest, KeysWorkWithoutAnythingToFocusInside)
{
    m_first->hide();
    m_second->hide();
    Open();
    EXPECT_EQ(m_window.focusWidget(), m_popup);
    QTest::keyClick(m_popup, Qt::Key_Tab);
    EXPECT_EQ(m_window.focusWidget(), m_popup);
    QTest::keyClick(m_popup, Qt::Key_Escape);
    ExpectClosedOnce(m_anchor);
}

TEST_F(ModalPopupTest, DeletingItWhileOpenClosesItFirst)
{
    TakeOutOnClose();
    Open();
    delete m_popup;
    EXPECT_EQ(m_closed->count(), 1);
    EXPECT_EQ(m_content->parent(), nullptr);
    EXPECT_EQ(m_window.focusWidget(), m_anchor);

    // Another one takes the same content, and goes inside the notification of its own closing.
    m_popup = new ModalPopup(m_panel);
    TakeOutOnClose();
    QObject::connect(m_popup, &ModalPopup::Closed, m_panel, [this] { delete m_popup; });
    Open();
    QTest::keyClick(m_first, Qt::Key_Escape);
    EXPECT_EQ(m_popup, nullptr);
    EXPECT_EQ(m_content->parent(), nullptr);
}

TEST_F(ModalPopupTest, SaysNothingToAParentThatIsBeingDestroyed)
{
    Open();
    QPointer<QFrame> const content = m_content.release();
    delete m_panel;
    EXPECT_EQ(m_closed->count(), 0);
    EXPECT_EQ(content, nullptr);
    EXPECT_EQ(m_popup, nullptr);

    // A window hides its children before it says that it goes.
    auto window = std::make_unique<QWidget>();
    auto* const popup = new ModalPopup(window.get());
    popup->SetPopup(new QPushButton);
    QSignalSpy const closed(popup, &ModalPopup::Closed);
    ShowAndWait(*window);
    popup->show();
    window.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(closed.count(), 0);
}

TEST_F(ModalPopupTest, SurvivesItsContentAndChangesItWhileOpen)
{
    Open();
    m_content.reset();
    ExpectClosedOnce(m_anchor);

    auto* const first = new QPushButton(QStringLiteral("One"));
    auto* const second = new QPushButton(QStringLiteral("Two"));
    m_popup->SetPopup(first);
    m_popup->show();
    m_popup->SetPopup(second);
    EXPECT_EQ(m_closed->count(), 0);
    EXPECT_EQ(m_window.focusWidget(), second);
    EXPECT_EQ(first->parent(), nullptr);
    delete first;
}
