// korvex-portrait FILM SUBTITLES FOLDER
// Opens the film in the desktop program, draws the subtitles in and saves what the window looks like in both themes as
// desktop-light.png and desktop-dark.png. The display should be as large as the window.

#include "Hosts/Desktop/Drive/DrivenMain.h"
#include "Hosts/Desktop/Drive/DrivenProgram.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

#include <cstdio>
#include <exception>

using namespace Korvex;
using namespace Korvex::Testing;

namespace
{

void Choose(DisplayPerson& person, char const* keys, DrivenProgram& program, char const* path)
{
    person.PressKey(QString::fromLatin1(keys));
    program.WaitUntilShown("fileNameEdit");
    person.Type(QFileInfo(QString::fromLocal8Bit(path)).absoluteFilePath());
    program.Accept("QFileDialog");
}

void Photograph(char const* film, char const* subtitles, ioPath const& session)
{
    DrivenProgram program(session);
    DisplayPerson& person = program.GetPerson();
    Choose(person, "ctrl+o", program, film);
    Desktop::Film const* opened = program.WaitForFilm(QFileInfo(QString::fromLocal8Bit(film)).fileName());
    Choose(person, "ctrl+shift+o", program, subtitles);
    person.WaitFor("the subtitles to be drawn in", [opened] { return opened->GetDrawnTrack().has_value(); });
    program.WaitUntilShown("textSample");
    program.Click("textColorPicker");
    program.EnterInto("QColorDialog", QStringLiteral("#ffe08a"));
    program.Accept("QColorDialog");
    program.ClickRow("filmListView", 0);
    for (auto const& [keys, name] : {std::pair("ctrl+alt+1", "desktop-light"), {"ctrl+alt+2", "desktop-dark"}})
    {
        person.PressKey(QString::fromLatin1(keys));
        person.WaitFor(std::string(name) + " on the screen",
                       [isDark = QLatin1String(name) == QLatin1String("desktop-dark")]
                       {
                           QRect const corners = QGuiApplication::primaryScreen()->geometry();
                           QImage const screen = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
                           auto const looksDark = [&screen](QPoint const& place)
                           { return screen.pixelColor(place).lightness() < 128; };
                           return looksDark(corners.topLeft()) == isDark && looksDark(corners.bottomRight()) == isDark;
                       });
        person.Photograph(QString::fromLatin1(name));
    }
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 4)
    {
        std::fputs("Usage: korvex-portrait FILM SUBTITLES FOLDER\n", stderr);
        return 2;
    }
    qputenv("KORVEX_SCREENSHOTS", arguments[3]);
    auto const body = [film = arguments[1], subtitles = arguments[2]]
    {
        try
        {
            TemporaryFolder const folder;
            Photograph(film, subtitles, folder / "session.json");
            return 0;
        }
        catch (std::exception const& error)
        {
            std::fprintf(stderr, "The window could not be photographed: %s.\n", error.what());
            return 1;
        }
    };
    return RunDriven(argumentCount, arguments, body);
}
