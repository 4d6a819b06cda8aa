#include "Cli/System.h"

#include <atomic>
#include <cstdio>
#include <memory>

#include <windows.h>

#include <io.h>
#include <shellapi.h>

namespace Korvex::Cli
{

namespace
{

std::atomic<bool> interruptRequested{false};

BOOL WINAPI OnConsoleEvent(DWORD)
{
    // False hands a second request on to the default handler, which ends the process.
    return interruptRequested.exchange(true) ? FALSE : TRUE;
}

std::string ToUtf8(wchar_t const* text)
{
    int const length = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    if (length <= 1)
        return {};
    std::string utf8(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), length, nullptr, nullptr);
    utf8.pop_back();
    return utf8;
}

struct LocalFreeDeleter
{
    void operator()(wchar_t** words) const { LocalFree(words); }
};

} // namespace

void CatchInterrupts()
{
    SetConsoleCtrlHandler(&OnConsoleEvent, TRUE);
}

bool IsInterruptRequested()
{
    return interruptRequested;
}

bool IsStandardErrorTerminal()
{
    return _isatty(_fileno(stderr)) != 0;
}

int GetStandardOutputColumns()
{
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    bool const isConsole = GetConsoleScreenBufferInfo(GetStdHandle(STD_OUTPUT_HANDLE), &info) != 0;
    return isConsole ? info.srWindow.Right - info.srWindow.Left + 1 : 0;
}

std::vector<std::string> GetWords(int, char**)
{
    int count = 0;
    std::unique_ptr<wchar_t*, LocalFreeDeleter> const wide(CommandLineToArgvW(GetCommandLineW(), &count));
    std::vector<std::string> words;
    for (int i = 1; wide && i < count; ++i)
        words.push_back(ToUtf8(wide.get()[i]));
    return words;
}

void PrepareStreams()
{
    SetConsoleOutputCP(CP_UTF8);
}

} // namespace Korvex::Cli
