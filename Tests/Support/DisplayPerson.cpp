#include "Support/DisplayPerson.h"

#include <QDir>
#include <QGuiApplication>
#include <QHash>
#include <QPixmap>
#include <QScreen>
#include <QStringList>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

// Last: its macros have the names of other people's enumerators.
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

namespace Korvex::Testing
{

namespace
{

constexpr int LEFT_BUTTON = 1;
constexpr int RIGHT_BUTTON = 3;
/// Long enough for the program to hear of one event before the next.
constexpr std::chrono::milliseconds REACTION(30);

QHash<QString, KeySym> const MODIFIERS{
    {QStringLiteral("ctrl"), XK_Control_L}, {QStringLiteral("alt"), XK_Alt_L}, {QStringLiteral("shift"), XK_Shift_L}};

} // namespace

class DisplayPerson::Impl
{
public:
    Impl() : m_display(XOpenDisplay(nullptr))
    {
        int unused = 0;
        if (m_display == nullptr || !XTestQueryExtension(m_display, &unused, &unused, &unused, &unused))
            throw std::runtime_error("The display cannot be driven: no X server with the XTEST extension");
    }
    ~Impl() { XCloseDisplay(m_display); }
    Impl(Impl const&) = delete;
    Impl& operator=(Impl const&) = delete;

    void Move(QPoint const& place)
    {
        XTestFakeMotionEvent(m_display, -1, place.x(), place.y(), CurrentTime);
        Settle();
    }

    void Button(int button, bool isDown)
    {
        XTestFakeButtonEvent(m_display, static_cast<unsigned>(button), isDown ? True : False, CurrentTime);
        Settle();
    }

    void Key(KeySym symbol, bool isDown)
    {
        KeyCode const code = XKeysymToKeycode(m_display, symbol);
        if (code == 0)
            throw std::runtime_error("The keyboard has no key for symbol " + std::to_string(symbol));
        XTestFakeKeyEvent(m_display, code, isDown ? True : False, CurrentTime);
        XFlush(m_display);
    }

    /// The key that makes the symbol, with shift where the symbol stands on its second level.
    void Stroke(KeySym symbol)
    {
        KeyCode const code = XKeysymToKeycode(m_display, symbol);
        bool const isShifted = XKeycodeToKeysymOfLevel(code, 0) != symbol && XKeycodeToKeysymOfLevel(code, 1) == symbol;
        if (isShifted)
            Key(XK_Shift_L, true);
        Key(symbol, true);
        Key(symbol, false);
        if (isShifted)
            Key(XK_Shift_L, false);
        Settle();
    }

    void Settle()
    {
        XSync(m_display, False);
        Wait(REACTION);
    }

private:
    KeySym XKeycodeToKeysymOfLevel(KeyCode code, int level) const
    {
        int symbolsOfKey = 0;
        KeySym* const symbols = XGetKeyboardMapping(m_display, code, 1, &symbolsOfKey);
        KeySym const symbol = level < symbolsOfKey ? symbols[level] : NoSymbol;
        XFree(symbols);
        return symbol;
    }

    Display* const m_display;
};

DisplayPerson::DisplayPerson() : m_impl(std::make_unique<Impl>()) {}

DisplayPerson::~DisplayPerson() = default;

void DisplayPerson::MoveTo(QPoint const& screenPosition)
{
    m_impl->Move(screenPosition);
}

void DisplayPerson::Click(QPoint const& screenPosition)
{
    Press(screenPosition);
    Release();
}

void DisplayPerson::RightClick(QPoint const& screenPosition)
{
    m_impl->Move(screenPosition);
    m_impl->Button(RIGHT_BUTTON, true);
    m_impl->Button(RIGHT_BUTTON, false);
}

void DisplayPerson::Click(QWidget const& widget)
{
    Click(widget, widget.rect().center());
}

void DisplayPerson::Click(QWidget const& widget, QPoint const& position)
{
    Click(widget.mapToGlobal(position));
}

void DisplayPerson::Press(QPoint const& screenPosition)
{
    m_impl->Move(screenPosition);
    m_impl->Button(LEFT_BUTTON, true);
}

void DisplayPerson::Release()
{
    m_impl->Button(LEFT_BUTTON, false);
}

void DisplayPerson::Drag(QPoint const& from, QPoint const& to)
{
    constexpr int steps = 20;
    Press(from);
    for (int step = 1; step <= steps; ++step)
        m_impl->Move(from + (to - from) * step / steps);
    Release();
}

void DisplayPerson::Type(QString const& text)
{
    // Latin-1 characters are their own key symbols.
    for (QChar const character : text)
        m_impl->Stroke(static_cast<KeySym>(character.unicode()));
}

void DisplayPerson::PressKey(QString const& keys)
{
    QStringList names = keys.split(QLatin1Char('+'));
    std::string const key = names.takeLast().toStdString();
    KeySym const symbol = XStringToKeysym(key.c_str());
    if (symbol == NoSymbol)
        throw std::runtime_error("No key is called " + key);
    std::vector<KeySym> held;
    for (QString const& name : names)
        held.push_back(MODIFIERS.value(name));
    for (KeySym const modifier : held)
        m_impl->Key(modifier, true);
    m_impl->Stroke(symbol);
    for (auto modifier = held.rbegin(); modifier != held.rend(); ++modifier)
        m_impl->Key(*modifier, false);
    m_impl->Settle();
}

bool DisplayPerson::WaitFor(std::function<bool()> const& condition, std::chrono::milliseconds limit)
{
    return QTest::qWaitFor(condition, static_cast<int>(limit.count()));
}

void DisplayPerson::Wait(std::chrono::milliseconds time)
{
    QTest::qWait(static_cast<int>(time.count()));
}

void DisplayPerson::Photograph(QString const& name)
{
    QString const folder = qEnvironmentVariable("KORVEX_SCREENSHOTS");
    if (folder.isEmpty())
        return;
    Wait(std::chrono::milliseconds(200));
    QString const path = QDir(folder).filePath(name + QStringLiteral(".png"));
    EXPECT_TRUE(QDir().mkpath(folder) && QGuiApplication::primaryScreen()->grabWindow(0).save(path))
        << "Cannot write " << qPrintable(path);
}

} // namespace Korvex::Testing
