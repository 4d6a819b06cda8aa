#include "Support/DisplayPerson.h"

#include "Support/GuiThread.h"

#include <QDir>
#include <QGuiApplication>
#include <QHash>
#include <QPixmap>
#include <QScreen>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <stdexcept>
#include <thread>
#include <vector>

// Last: its macros have the names of other people's enumerators.
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

namespace Korvex::Testing
{

namespace
{

using std::chrono::milliseconds;

constexpr int LEFT_BUTTON = 1;
/// Long enough for the program to hear of one event before the next.
constexpr milliseconds REACTION(30);
/// A slow machine that builds something else meanwhile.
constexpr std::chrono::seconds PATIENCE(60);

QHash<QString, KeySym> const MODIFIERS{
    {QStringLiteral("ctrl"), XK_Control_L}, {QStringLiteral("alt"), XK_Alt_L}, {QStringLiteral("shift"), XK_Shift_L}};

/// A window may be gone by the time it gets the keyboard; then the next one gets it.
int IgnoreError(Display* /*display*/, XErrorEvent* /*error*/)
{
    return 0;
}

} // namespace

class DisplayPerson::Impl
{
public:
    Impl() : m_display(XOpenDisplay(nullptr))
    {
        int unused = 0;
        if (m_display == nullptr || !XTestQueryExtension(m_display, &unused, &unused, &unused, &unused))
            throw std::runtime_error("The display cannot be driven: no X server with the XTEST extension");
        XSetErrorHandler(&IgnoreError);
        XSelectInput(m_display, DefaultRootWindow(m_display), SubstructureNotifyMask);
        XSync(m_display, False);
    }
    ~Impl() { XCloseDisplay(m_display); }
    Impl(Impl const&) = delete;
    Impl& operator=(Impl const&) = delete;

    void Move(QPoint const& place)
    {
        QPoint const pixel = (QPointF(place) * m_pixelRatio).toPoint();
        XTestFakeMotionEvent(m_display, -1, pixel.x(), pixel.y(), CurrentTime);
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
        bool const isShifted = FindSymbol(code, 0) != symbol && FindSymbol(code, 1) == symbol;
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
        std::this_thread::sleep_for(REACTION);
        TendFocus();
    }

    /// Gives the keyboard to the newest window that is there.
    void TendFocus()
    {
        bool isOther = false;
        while (XPending(m_display) > 0)
        {
            XEvent event;
            XNextEvent(m_display, &event);
            if (event.type == UnmapNotify)
                m_windows.erase(std::remove(m_windows.begin(), m_windows.end(), event.xunmap.window), m_windows.end());
            else if (event.type == MapNotify && event.xmap.override_redirect == False)
                m_windows.push_back(event.xmap.window);
            else
                continue;
            isOther = true;
        }
        if (!isOther || m_windows.empty())
            return;
        XSetInputFocus(m_display, m_windows.back(), RevertToParent, CurrentTime);
        XSync(m_display, False);
    }

private:
    KeySym FindSymbol(KeyCode code, int level) const
    {
        int symbolsOfKey = 0;
        KeySym* const symbols = XGetKeyboardMapping(m_display, code, 1, &symbolsOfKey);
        KeySym const symbol = level < symbolsOfKey ? symbols[level] : NoSymbol;
        XFree(symbols);
        return symbol;
    }

    Display* const m_display;
    qreal const m_pixelRatio = OnGui([] { return QGuiApplication::primaryScreen()->devicePixelRatio(); });
    std::vector<Window> m_windows; ///< those that a window manager would care for, the newest last
};

void DisplayPerson::ShareDisplay()
{
    XInitThreads();
}

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

void DisplayPerson::Press(QPoint const& screenPosition)
{
    m_impl->Move(screenPosition);
    m_impl->Button(LEFT_BUTTON, true);
}

void DisplayPerson::Glide(QPoint const& from, QPoint const& to)
{
    constexpr int STEPS = 12;
    for (int step = 1; step <= STEPS; ++step)
        m_impl->Move(from + (to - from) * step / STEPS);
}

void DisplayPerson::Release()
{
    m_impl->Button(LEFT_BUTTON, false);
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

void DisplayPerson::WaitFor(std::string const& what, std::function<bool()> const& condition)
{
    auto const end = std::chrono::steady_clock::now() + PATIENCE;
    while (!OnGui(condition))
    {
        if (std::chrono::steady_clock::now() > end)
        {
            Photograph(QStringLiteral("in-vain"));
            throw std::runtime_error("Waited in vain for " + what);
        }
        m_impl->Settle();
    }
}

void DisplayPerson::Photograph(QString const& name)
{
    QString const folder = qEnvironmentVariable("KORVEX_SCREENSHOTS");
    if (folder.isEmpty())
        return;
    m_impl->Settle();
    QString const path = QDir(folder).filePath(name + QStringLiteral(".png"));
    bool const isSaved =
        QDir().mkpath(folder) && OnGui([&path] { return QGuiApplication::primaryScreen()->grabWindow(0).save(path); });
    if (!isSaved)
        throw std::runtime_error("Cannot write " + path.toStdString());
    std::cout << "Photograph: " << path.toStdString() << std::endl;
}

} // namespace Korvex::Testing
