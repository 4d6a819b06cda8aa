#pragma once

#include "Desktop/Window/Notice.h"

#include "Gui/KFrame.h"

#include <QStringList>

#include <vector>

class QLabel;
class QTimer;
class QToolButton;

namespace Korvex::Desktop
{

class FlowLayout;
class MarkLabel;

/// One notice at a time above the preview, with a pager where there are several; hidden without any. Notices that pass
/// are closed some seconds after the user could see them, but not while the pointer or the focus is in the bar. A
/// passive view. GUI thread.
class NoticeBar final : public KFrame
{
    Q_OBJECT
public:
    explicit NoticeBar(QWidget* parent = nullptr);
    ~NoticeBar() override;

    /// Replaces all. The page stays where its sentence is still among them.
    void SetNotices(std::vector<Notice> notices);
    /// Turns to the notice that says so; stays where none does.
    void ShowNotice(QString const& sentence);
    /// Turns to the most pressing one.
    void ShowFirst();

protected:
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void Retranslate();
    void ShowPage(int page);
    void ShowCurrent();
    [[nodiscard]] Notice const& GetCurrent() const;
    void FillButtons();
    void Press(std::size_t button);
    /// The user reads or uses it, or is somewhere else and cannot have seen it.
    [[nodiscard]] bool HasToStay() const;
    void ClosePassing();

    std::vector<Notice> m_notices;
    int m_page = 0;
    QTimer* m_passing; ///< runs while there is a notice that passes
    MarkLabel* m_mark;
    QLabel* m_sentence;
    FlowLayout* m_buttons;
    QStringList m_labels; ///< of the buttons that are there
    KFrame* m_pager;
    QToolButton* m_previous;
    QLabel* m_pageLabel;
    QToolButton* m_next;
    QToolButton* m_close;
};

} // namespace Korvex::Desktop
