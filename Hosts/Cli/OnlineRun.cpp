#include "Cli/OnlineRun.h"

#include "Cli/Console.h"
#include "Cli/OnlineOptions.h"
#include "Cli/TextWidth.h"
#include "Common/Sentences.h"

#include "Subtitles/UseCases/SearchQuery.h"

#include <QEventLoop>
#include <QTimer>

namespace Korvex::Cli
{

using Converter::Subtitles::UseCases::SearchRequest;
using Converter::Subtitles::UseCases::ServerReport;

namespace
{

/// How soon an interrupt is noticed. A signal handler may do next to nothing, so the loop looks.
constexpr int INTERRUPT_CHECK_MS = 50;

} // namespace

OnlineRun::OnlineRun(std::shared_ptr<Interactor> interactor, std::function<bool()> isInterrupted)
    : m_interactor(std::move(interactor)),
      m_isInterrupted(std::move(isInterrupted)),
      m_observation(*m_interactor, *this)
{
}

OnlineRun::~OnlineRun() = default;

SearchRequest OnlineRun::MakeRequest(OnlineQuery const& query) const
{
    SearchRequest request = m_interactor->MakeQuery(query.media);
    if (request.tags.empty() && query.media.path.empty())
        throw UsageError("Nothing in " + Hosts::Quoted(query.media.title) +
                         " can be looked for; write the title in letters or digits, or add --imdb ID.");
    if (request.tags.empty())
        throw UsageError("Nothing tells which film " + Hosts::Quoted(query.media.path) +
                         " is; add --title TITLE or --imdb ID.");
    request.languages.insert(query.languages.begin(), query.languages.end());
    return request;
}

SearchOutcome OnlineRun::Search(OnlineQuery const& query, SearchRequest const& request)
{
    m_results.clear();
    Await([&] { m_interactor->StartSearch(m_collection, request); });
    return {Converter::Subtitles::UseCases::RankResults(
                m_results, Converter::Subtitles::UseCases::DescribeFilm(query.media), query.languages),
            m_error};
}

std::vector<QString> OnlineRun::Suggest(QString const& text)
{
    m_suggestions.clear();
    Await([&] { m_interactor->StartSuggest(m_collection, text); });
    if (m_error)
        throw OnlineError(*m_error);
    return std::move(m_suggestions);
}

DownloadOutcome OnlineRun::Download(std::vector<std::shared_ptr<SearchResult>> const& results, ioPath const& folder)
{
    m_files.clear();
    DownloadOutcome outcome;
    try
    {
        Await([&] { m_interactor->Download(m_collection, results, folder); });
    }
    catch (Interrupted const&)
    {
        outcome.isInterrupted = true;
    }
    outcome.files = std::move(m_files);
    outcome.error = m_error;
    return outcome;
}

ServerReport OnlineRun::GetServerReport() const
{
    return m_interactor->GetServerReport();
}

void OnlineRun::Await(std::function<void()> const& start)
{
    if (m_isInterrupted())
        throw Interrupted();
    QEventLoop loop;
    m_loop = &loop;
    m_isEnded = false;
    m_error.reset();
    start();

    QTimer timer;
    bool isInterrupted = false;
    QObject::connect(&timer, &QTimer::timeout, &loop,
                     [&]
                     {
                         isInterrupted = m_isInterrupted();
                         if (isInterrupted)
                             loop.quit();
                     });
    timer.start(INTERRUPT_CHECK_MS);
    // A refusal has been reported before the start call returned.
    if (!m_isEnded)
        loop.exec();
    m_loop = nullptr;
    if (m_isEnded)
        return;
    m_interactor->Cancel();
    throw Interrupted();
}

void OnlineRun::End()
{
    m_isEnded = true;
    if (m_loop != nullptr)
        m_loop->quit();
}

void OnlineRun::OnSearchResults(CollectionID collection, std::vector<std::shared_ptr<SearchResult>> const& results)
{
    if (collection == m_collection)
        m_results.insert(m_results.end(), results.begin(), results.end());
}

void OnlineRun::OnSuggestions(CollectionID collection, std::vector<QString> const& titles)
{
    if (collection == m_collection)
        m_suggestions = titles;
}

void OnlineRun::OnSubtitlesDownloaded(CollectionID collection, std::shared_ptr<SearchResult> const& result,
                                      ioPath const& file)
{
    if (collection == m_collection)
        m_files.push_back({result, file});
}

void OnlineRun::OnOperationFinished(CollectionID collection)
{
    if (collection == m_collection)
        End();
}

void OnlineRun::OnOperationFailed(CollectionID collection, Status, QString const& message)
{
    if (collection != m_collection)
        return;
    // The server's words may be in it.
    m_error = OnlineError(ToSafeLine(message).toStdString());
    End();
}

} // namespace Korvex::Cli
