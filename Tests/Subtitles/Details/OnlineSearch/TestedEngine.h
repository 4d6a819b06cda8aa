#pragma once

#include "Subtitles/Details/OnlineSearch/INetworkOperation.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTSearchEngine.h"

#include <utility>
#include <vector>

namespace Korvex::Testing
{

/// The engine that both services share, with operations of the test's own.
class TestedEngine final : public Converter::Subtitles::Details::OpenSubtitles::RESTSearchEngine
{
public:
    using RESTSearchEngine::RESTSearchEngine;

    /// What the next start call queues.
    std::vector<std::shared_ptr<Converter::Subtitles::Details::INetworkOperation>> next;

protected:
    void AddSearchRequest(Converter::Subtitles::UseCases::SearchRequest const&) override { AppendNext(); }
    void AddAutoSuggestRequest(QString const&) override { AppendNext(); }
    void AddDownloadRequest(std::shared_ptr<Converter::Subtitles::UseCases::SearchResult> const&,
                            ioPath const&) override
    {
        AppendNext();
    }

private:
    void AppendNext()
    {
        for (auto& operation : std::exchange(next, {}))
            Append(std::move(operation));
    }
};

} // namespace Korvex::Testing
