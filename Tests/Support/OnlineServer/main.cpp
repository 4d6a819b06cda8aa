#include "Support/OnlineServer/FilmCatalog.h"
#include "Support/OnlineServer/OnlineLibrary.h"
#include "Support/OnlineServer/OnlineServer.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTime>
#include <QTimer>

#include <csignal>
#include <exception>
#include <iostream>
#include <optional>

using namespace Korvex::Testing;

namespace
{

constexpr int WRONG_USAGE = 2;
constexpr int INTERRUPT_LOOK_MS = 50;

volatile std::sig_atomic_t interruptRequested = 0;

void OnSignal(int)
{
    interruptRequested = 1;
}

QString DescribeFaults()
{
    QString text = QStringLiteral(
        "Plays both interfaces of the subtitle service on this machine, with made-up films. Ends on Ctrl-C.\n\n"
        "Put /faults/NAME in front of a path for the same service with a fault, as in\n"
        "  KORVEX_OPENSUBTITLES_URL=http://127.0.0.1:PORT/faults/stall/api/v1\n"
        "  KORVEX_OPENSUBTITLES_LEGACY_URL=http://127.0.0.1:PORT/faults/file-drop\n"
        "\"search-\", \"link-\" or \"file-\" before the name limits it to searches, to the request for a link, or to "
        "the\n"
        "download itself. The names:\n");
    for (Fault const& fault : GetFaults())
        text +=
            QStringLiteral("  %1 %2\n").arg(QString::fromLatin1(fault.name), -18).arg(QString::fromLatin1(fault.help));
    return text;
}

QString DescribeFilms()
{
    QString text;
    for (Film const& film : FilmCatalog::Get().GetFilms())
    {
        QString const title = film.series ? QStringLiteral("  S%1E%2 %3")
                                                .arg(film.season, 2, 10, QLatin1Char('0'))
                                                .arg(film.episode, 2, 10, QLatin1Char('0'))
                                                .arg(film.title)
                                          : film.title;
        text += QStringLiteral("  %1 %2 tt%3\n")
                    .arg(title, -26)
                    .arg(film.year, -9)
                    .arg(film.imdbId, 7, 10, QLatin1Char('0'));
    }
    return text;
}

/// An option's number; nothing, with a message, when it is none.
std::optional<int> GetNumber(QCommandLineParser const& parser, QString const& option, int highest)
{
    bool isNumber = false;
    int const number = parser.value(option).toInt(&isNumber);
    if (isNumber && number >= 0 && number <= highest)
        return number;
    std::cerr << "korvex-testserver: --" << option.toStdString() << " wants a number from 0 to " << highest
              << ", not \"" << parser.value(option).toStdString() << "\".\n";
    return std::nullopt;
}

int Serve(OnlineLibrarySettings const& settings, quint16 port)
{
    auto const library = std::make_shared<OnlineLibrary>(settings);
    OnlineServer const server(
        [library](HttpRequest const& request)
        {
            HttpReply reply = library->Answer(request);
            std::cout << QTime::currentTime().toString("HH:mm:ss.zzz").toStdString() << ' ' << reply.status << ' '
                      << request.method.toStdString() << ' ' << request.target.toStdString()
                      << (request.body.isEmpty() ? "" : "  ") << request.body.left(200).toStdString() << std::endl;
            return reply;
        },
        port);
    std::cout << "export KORVEX_OPENSUBTITLES_URL=" << server.GetVersion1Url().toStdString() << '\n'
              << "export KORVEX_OPENSUBTITLES_API_KEY=" << settings.apiKey.toStdString() << '\n'
              << "export KORVEX_OPENSUBTITLES_LEGACY_URL=" << server.GetLegacyUrl().toStdString() << "\n\n"
              << "Films to ask for:\n"
              << DescribeFilms().toStdString() << '\n'
              << "Ctrl-C ends it; --help lists the faults." << std::endl;

    QTimer interruptTimer;
    QObject::connect(&interruptTimer, &QTimer::timeout, &interruptTimer,
                     []
                     {
                         if (interruptRequested)
                             QCoreApplication::quit();
                     });
    interruptTimer.start(INTERRUPT_LOOK_MS);
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("korvex-testserver"));
    OnlineLibrarySettings settings;
    QCommandLineParser parser;
    parser.setApplicationDescription(DescribeFaults());
    parser.addHelpOption();
    parser.addOptions({{"port", "Port to listen on; 0, the default, takes any free one.", "N", "0"},
                       {"quota", "Downloads that each interface grants.", "N", QString::number(settings.downloadQuota)},
                       {"rate", "Requests that version 1 takes in a second; 0, the default: any number.", "N", "0"},
                       {"redirect-blanks", "Version 1 answers %20 in a query with a redirect to +."}});
    parser.process(application);
    std::optional<int> const port = GetNumber(parser, "port", 65'535);
    std::optional<int> const quota = GetNumber(parser, "quota", 1'000'000);
    std::optional<int> const rate = GetNumber(parser, "rate", 1'000'000);
    if (!port || !quota || !rate)
        return WRONG_USAGE;
    settings.downloadQuota = *quota;
    settings.requestsPerSecond = *rate;
    settings.redirectsEncodedBlanks = parser.isSet("redirect-blanks");
    std::signal(SIGINT, &OnSignal);
    std::signal(SIGTERM, &OnSignal);
    try
    {
        return Serve(settings, static_cast<quint16>(*port));
    }
    catch (std::exception const& error)
    {
        std::cerr << "korvex-testserver: " << error.what() << ". Choose another port with --port.\n";
        return 1;
    }
}
