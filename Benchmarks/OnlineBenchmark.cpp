// What the online search costs on this side of the wire: reading a page of hits, from the start of a search to its
// observer against a server on loopback, and what a thousand searches leave behind.

#include "Support/OnlineServer/OnlineServer.h"

#include "Subtitles/Details/OnlineSearch/NetworkManagerQt.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTNetworkConfiguration.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTRequestFactory.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchEngine.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchRequest.h"
#include "Subtitles/Entities/SearchTags.h"

#include "App/Configuration.h"
#include "Core/ScopedObservation.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <stdexcept>
#include <vector>

using namespace Korvex;
using namespace Korvex::Converter::Subtitles;
namespace Ver_1 = Details::OpenSubtitles::Ver_1;
using UseCases::IOnlineSearchController;
using UseCases::SearchRequest;

namespace
{

double Median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2), values.end());
    return values[values.size() / 2];
}

/// A page of hits in the service's shape; the one that KORVEX_TEST_REPLIES holds when it is set.
QByteArray MakePage()
{
    QFile recorded(qEnvironmentVariable("KORVEX_TEST_REPLIES") + QStringLiteral("/v1/subtitles-matrix-58-per60.json"));
    if (recorded.open(QIODevice::ReadOnly))
        return recorded.readAll();
    QByteArray page = R"({"total_pages":1,"total_count":50,"per_page":50,"page":1,"data":[)";
    for (int i = 0; i < 50; ++i)
    {
        QByteArray const number = QByteArray::number(1000 + i);
        page +=
            (i == 0 ? "" : ",") + QByteArray(R"({"id":")") + number +
            R"(","type":"subtitle","attributes":{"subtitle_id":")" + number +
            R"(","language":"en","download_count":12345,"new_download_count":67,"hearing_impaired":false,"hd":true,)"
            R"("fps":23.976,"votes":4,"ratings":8.5,"from_trusted":true,"foreign_parts_only":false,)"
            R"("upload_date":"2020-01-02T03:04:05Z","ai_translated":false,"machine_translated":false,"nb_cd":1,)"
            R"("release":"A.Long.Voyage.2020.1080p.BluRay.x264-GROUP","comments":"None","feature_details":)"
            R"({"feature_id":7,"feature_type":"Movie","year":2020,"title":"A Long Voyage","imdb_id":1234567},)"
            R"("files":[{"file_id":)" +
            number + R"(,"cd_number":1,"file_name":"A.Long.Voyage.2020.1080p.BluRay.x264-GROUP"}]}})";
    }
    return page + "]}";
}

/// What the process holds, in KiB, and how many handles and threads it has.
struct Holdings
{
    long residentKiB = 0;
    int handles = 0;
    int threads = 0;

    static Holdings Take()
    {
        Holdings holdings;
        QFile pages(QStringLiteral("/proc/self/statm"));
        if (!pages.open(QIODevice::ReadOnly))
            throw std::runtime_error("this system does not tell what a process holds");
        holdings.residentKiB = pages.readAll().split(' ').value(1).toLong() * (sysconf(_SC_PAGESIZE) / 1024);
        holdings.handles = static_cast<int>(QDir(QStringLiteral("/proc/self/fd"))
                                                .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                                                .size());
        holdings.threads = static_cast<int>(
            QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size());
        return holdings;
    }
};

class Searcher final : public UseCases::IOnlineSearchControllerObserver
{
public:
    explicit Searcher(QString const& url)
        : m_engine(Configure(url), std::make_shared<Ver_1::RESTRequestFactory>()),
          m_observation(m_engine, *this)
    {
        m_request.tags[Entities::SearchTags::TITLE] = "voyage";
        m_request.languages = {Entities::Language::LanguageID::English};
    }

    /// Milliseconds from the start to the hits.
    double Search()
    {
        QElapsedTimer passed;
        passed.start();
        m_hitsAfterMs.reset();
        m_isDone = false;
        if (m_engine.StartSearch(m_request) != IOnlineSearchController::Success)
            throw std::runtime_error("the search did not start");
        while (!m_isDone)
        {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            if (m_hitCount > 0 && !m_hitsAfterMs)
                m_hitsAfterMs = static_cast<double>(passed.nsecsElapsed()) / 1e6;
        }
        if (!m_hitsAfterMs)
            throw std::runtime_error("the search found nothing");
        m_hitCount = 0;
        return *m_hitsAfterMs;
    }

    void OnSearchResults(std::vector<std::shared_ptr<UseCases::SearchResult>> const& results) override
    {
        m_hitCount = results.size();
    }
    void OnAutoSuggestResults(std::vector<QString> const&) override {}
    void OnSubtitlesDownloaded(std::shared_ptr<UseCases::SearchResult> const&, ioPath const&) override {}
    void OnOperationFinished() override { m_isDone = true; }
    void OnOperationFailed(IOnlineSearchController::Status status, QString const& message) override
    {
        std::fprintf(stderr, "the search failed with %d %s\n", status, qPrintable(message));
        m_isDone = true;
    }

private:
    static std::shared_ptr<Details::INetworkManager> Configure(QString const& url)
    {
        App::Configuration configuration;
        configuration.openSubtitlesUrl = url.toStdString();
        configuration.openSubtitlesApiKey = "benchmark";
        App::SetActiveConfiguration(configuration);
        return std::make_shared<Details::NetworkManagerQt>();
    }

    Ver_1::RESTSearchEngine m_engine;
    Core::ScopedObservation<UseCases::IOnlineSearchControllerObserver> m_observation;
    SearchRequest m_request;
    std::optional<double> m_hitsAfterMs;
    std::size_t m_hitCount = 0;
    bool m_isDone = false;
};

void MeasureParsing(QByteArray const& page)
{
    std::vector<double> times;
    for (int i = 0; i < 200; ++i)
    {
        Ver_1::RESTSearchRequest request({}, {});
        QElapsedTimer passed;
        passed.start();
        request.ParseJsonReply(QJsonDocument::fromJson(page));
        times.push_back(static_cast<double>(passed.nsecsElapsed()) / 1e6);
    }
    std::printf("reading a page of %d KiB: median %.2f ms\n", page.size() / 1024, Median(times));
}

int MeasureSearches(QByteArray const& page)
{
    Testing::HttpReply reply;
    reply.body = page;
    Testing::OnlineServer server([&](Testing::HttpRequest const&) { return reply; });
    Searcher searcher(server.GetVersion1Url());
    std::vector<double> times;
    Holdings afterHundred;
    for (int i = 1; i <= 1000; ++i)
    {
        times.push_back(searcher.Search());
        if (i % 100 == 0)
            server.ForgetRequests();
        if (i == 100)
            afterHundred = Holdings::Take();
    }
    Holdings const afterThousand = Holdings::Take();
    std::printf("from the start of a search to its hits: median %.2f ms\n", Median(times));
    std::printf("after 100 searches:  %ld KiB, %d handles, %d threads\n", afterHundred.residentKiB,
                afterHundred.handles, afterHundred.threads);
    std::printf("after 1000 searches: %ld KiB, %d handles, %d threads\n", afterThousand.residentKiB,
                afterThousand.handles, afterThousand.threads);
    bool const isKept = afterThousand.residentKiB <= afterHundred.residentKiB + 2048 &&
                        afterThousand.handles == afterHundred.handles && afterThousand.threads == afterHundred.threads;
    return isKept ? 0 : 1;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    QCoreApplication const application(argumentCount, arguments);
    try
    {
        QByteArray const page = MakePage();
        MeasureParsing(page);
        return MeasureSearches(page);
    }
    catch (std::exception const& failure)
    {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
