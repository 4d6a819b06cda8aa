#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>

class QWidget;

namespace Korvex::Testing
{

/// A person at the mouse and keyboard of an X display: every event goes through the X server, as from real devices, and
/// what is seen is what the server shows. Runs the event loop while waiting. Throws std::runtime_error when the display
/// cannot be driven.
class DisplayPerson
{
public:
    DisplayPerson();
    ~DisplayPerson();
    DisplayPerson(DisplayPerson const&) = delete;
    DisplayPerson& operator=(DisplayPerson const&) = delete;

    void MoveTo(QPoint const& screenPosition);
    /// A click of the left button.
    void Click(QPoint const& screenPosition);
    void RightClick(QPoint const& screenPosition);
    /// In the middle of the widget, or at a place in it.
    void Click(QWidget const& widget);
    void Click(QWidget const& widget, QPoint const& position);
    /// Presses at one place, moves to the other in steps and releases there.
    void Drag(QPoint const& from, QPoint const& to);
    void Press(QPoint const& screenPosition);
    void Release();

    /// Latin letters, digits and the punctuation of paths.
    void Type(QString const& text);
    /// "Return", "ctrl+a", "alt+F4", "shift+Tab": names of X key symbols after modifiers.
    void PressKey(QString const& keys);

    /// Lets the program run until the condition holds; false when it does not within the time.
    [[nodiscard]] static bool WaitFor(std::function<bool()> const& condition,
                                      std::chrono::milliseconds limit = std::chrono::seconds(10));
    static void Wait(std::chrono::milliseconds time);

    /// Saves what the display shows as `name`.png into the folder that KORVEX_SCREENSHOTS names; nothing without it.
    static void Photograph(QString const& name);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Testing
