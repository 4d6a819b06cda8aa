#pragma once

#include <QPoint>
#include <QString>

#include <functional>
#include <memory>
#include <string>

namespace Korvex::Testing
{

/// A person at the mouse and keyboard of an X display: every event goes through the X server, as from real devices, and
/// what is seen is what the server shows. It lives on a thread of its own beside the GUI thread (`RunBesideGui`), so
/// that a dialog that waits for an answer can be given one. The display has no window manager: whenever the person acts
/// or waits, the newest window gets the keyboard, as a window manager would give it. Throws std::runtime_error when the
/// display cannot be driven or something does not come to pass.
class DisplayPerson
{
public:
    /// Before the application object: two threads are going to talk to the display.
    static void ShareDisplay();

    DisplayPerson();
    ~DisplayPerson();
    DisplayPerson(DisplayPerson const&) = delete;
    DisplayPerson& operator=(DisplayPerson const&) = delete;

    void MoveTo(QPoint const& screenPosition);
    /// A click of the left button.
    void Click(QPoint const& screenPosition);
    void Press(QPoint const& screenPosition);
    /// Moves in steps with the button as it is.
    void Glide(QPoint const& from, QPoint const& to);
    void Release();

    /// Latin letters, digits and the punctuation of paths.
    void Type(QString const& text);
    /// "Return", "ctrl+a", "alt+F4", "shift+Tab": names of X key symbols after modifiers.
    void PressKey(QString const& keys);

    /// Until the condition, which is asked on the GUI thread, holds. `what` completes the sentence of the failure:
    /// "Waited in vain for the film to be read".
    void WaitFor(std::string const& what, std::function<bool()> const& condition);

    /// Saves what the display shows as `name`.png into the folder that KORVEX_SCREENSHOTS names and prints its path;
    /// nothing without it.
    void Photograph(QString const& name);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Testing
