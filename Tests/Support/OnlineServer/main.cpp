#include "Support/OnlineServer/Faults.h"
#include "Support/OnlineServer/FilmCatalog.h"
#include "Support/OnlineServer/OnlineLibrary.h"
#include "Support/OnlineServer/OnlineServer.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTime>

#include <exception>
#include <iostream>

using namespace Korvex::Testing;

namespace
{

constexpr char DESCRIPTION[] =
    "Plays both interfaces of the subtitle service on this machine, with made-up films. Ends on Ctrl-C.\n\n"
    "Put /faults/NAME in front of a path for the same service with a fault, as in\n"
    "  KORVEX_OPENSUBTITLES_URL=http://127.0.0.1:PORT/faults/stall/api/v1\n"
    "  KORVEX_OPENSUBTITLES_LEGACY_URL=http://127.0.0.1:PORT/faults/file-drop\n"
    "\"file-\" before the name limits it to the download itself. The names:\n";

int Serve(quint16 port)
{
    OnlineLibrary library;
    OnlineServer const server(
        [&library](HttpRequest const& request)
        {
            HttpReply reply = library.Answer(request);
            std::cout << QTime::currentTime().toString("HH:mm:ss.zzz").toStdString() << ' ' << reply.status << ' '
                      << request.method.toStdString() << ' ' << request.target.toStdString() << ' '
                      << request.body.toStdString() << std::endl;
            return reply;
        },
        port);
    std::cout << "export KORVEX_OPENSUBTITLES_URL=" << server.GetVersion1Url().toStdString() << '\n'
              << "export KORVEX_OPENSUBTITLES_API_KEY=" << Version1Service::API_KEY << '\n'
              << "export KORVEX_OPENSUBTITLES_LEGACY_URL=" << server.GetUrl().toStdString()
              << "\n\nFilms to ask for:\n";
    for (Film const& film : GetFilms())
    {
        QString const part = QStringLiteral(", season %1 episode %2").arg(film.season).arg(film.episode);
        std::cout << "  tt" << film.imdbId << ' ' << film.year << ' '
                  << (film.series.isEmpty() ? film.title : film.series + part).toStdString() << '\n';
    }
    std::cout << "\nCtrl-C ends it; --help lists the faults." << std::endl;
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    QString description = DESCRIPTION;
    for (Fault const& fault : GetFaults())
        description += QStringLiteral("  %1 %2\n").arg(QString(fault.name), -18).arg(QString(fault.help));
    parser.setApplicationDescription(description);
    parser.addHelpOption();
    parser.addOption({"port", "Port to listen on; 0, the default, takes any free one.", "N", "0"});
    parser.process(application);
    bool isPort = false;
    quint16 const port = parser.value("port").toUShort(&isPort);
    try
    {
        if (isPort)
            return Serve(port);
        std::cerr << "korvex-testserver: --port wants a number from 0 to 65535.\n";
    }
    catch (std::exception const& error)
    {
        std::cerr << "korvex-testserver: " << error.what() << ". Choose another port with --port.\n";
    }
    return 2;
}
