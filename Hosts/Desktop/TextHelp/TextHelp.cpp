#include "Desktop/TextHelp/TextHelp.h"

#include "Proc/SubtitleLoader.h"

#include <QCoreApplication>
#include <QEvent>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <tuple>
#include <utility>

namespace Korvex::Desktop
{

namespace
{

/// What has to be read anew when it changes.
auto DocumentKey(TextHelpRequest const& request)
{
    return std::make_tuple(request.path.utf8string(), request.stream, request.encoding, request.hasEncoding);
}

/// Answers requests one after the other. The text that was read last is kept, because fonts are tried out on it. The
/// reader's thread only.
class TextHelpWorker
{
public:
    /// Empty when `cancelled` was set meanwhile.
    std::optional<TextHelp> Answer(TextHelpRequest const& request, std::atomic<bool> const& cancelled)
    {
        TextHelp help;
        Core::Status const status = Fill(request, cancelled, help);
        if (cancelled)
            return std::nullopt;
        if (status)
        {
            help = {};
            help.failure = *status;
        }
        return help;
    }

private:
    Core::Status Fill(TextHelpRequest const& request, std::atomic<bool> const& cancelled, TextHelp& help)
    {
        if (!m_request || DocumentKey(*m_request) != DocumentKey(request))
        {
            m_request.reset();
            if (Core::Status const status = Read(request, cancelled))
                return status;
            m_request = request;
        }
        help.sample = m_sample;
        // Fonts that come with a text are known to the renderer alone.
        if (request.fontFamily.empty() || !m_document.fonts.empty())
            return Core::SUCCESS;
        help.fontFamily = request.fontFamily;
        help.fontStandIn = Proc::FindStandInFont(request.fontFamily);
        help.fonts = Proc::CheckFontCoverage(request.fontFamily, m_document);
        return Core::SUCCESS;
    }

    Core::Status Read(TextHelpRequest const& request, std::atomic<bool> const& cancelled)
    {
        m_sample.reset();
        m_document = {};
        if (!request.stream && request.hasEncoding)
        {
            Core::Result<Proc::TextSample> sample = Proc::ReadTextSample(request.path, request.encoding);
            if (!sample)
                return sample.GetError();
            m_sample = std::move(*sample);
        }
        if (request.fontFamily.empty())
            return Core::SUCCESS;
        Core::Result<Proc::SubtitleDocument> document =
            request.stream ? Proc::LoadSubtitleStream(request.path, *request.stream, &cancelled)
                           : Proc::LoadSubtitleFile(request.path, request.encoding, &cancelled);
        if (!document)
            return document.GetError();
        if (auto* const text = std::get_if<Proc::TextDocument>(&*document))
            m_document = std::move(*text);
        return Core::SUCCESS;
    }

    std::optional<TextHelpRequest> m_request; ///< for which the next two were read
    std::optional<Proc::TextSample> m_sample;
    Proc::TextDocument m_document;
};

} // namespace

bool operator==(TextHelpRequest const& a, TextHelpRequest const& b)
{
    return DocumentKey(a) == DocumentKey(b) && a.fontFamily == b.fontFamily;
}

class TextHelpReader::Impl
{
public:
    explicit Impl(TextHelpReader& owner) : m_owner(owner), m_thread([this] { Run(); }) {}

    ~Impl()
    {
        {
            std::lock_guard const lock(m_mutex);
            m_isStopping = true;
            m_cancelled = true;
        }
        m_wake.notify_one();
        m_thread.join();
    }

    void Ask(std::optional<TextHelpRequest> request)
    {
        std::lock_guard const lock(m_mutex);
        // A text that is being read is finished when only the font has changed.
        m_cancelled = !request || !m_reading || DocumentKey(*request) != DocumentKey(*m_reading);
        m_next = std::move(request);
        m_answer.reset();
        ++m_number;
        m_wake.notify_one();
    }

    /// To the newest request; empty when it came too late.
    std::optional<TextHelp> TakeAnswer()
    {
        std::lock_guard const lock(m_mutex);
        return std::exchange(m_answer, std::nullopt);
    }

private:
    void Run()
    {
        TextHelpWorker worker;
        std::unique_lock lock(m_mutex);
        for (;;)
        {
            m_wake.wait(lock, [this] { return m_isStopping || m_next; });
            if (m_isStopping)
                return;
            TextHelpRequest const request = *std::exchange(m_next, std::nullopt);
            std::uint64_t const number = m_number;
            m_reading = request;
            m_cancelled = false;
            lock.unlock();
            if (std::optional<TextHelp> help = worker.Answer(request, m_cancelled))
                Report(std::move(*help), number);
            lock.lock();
            m_reading.reset();
        }
    }

    void Report(TextHelp help, std::uint64_t number)
    {
        {
            std::lock_guard const lock(m_mutex);
            if (number != m_number)
                return;
            m_answer = std::move(help);
        }
        QCoreApplication::postEvent(&m_owner, new QEvent(QEvent::User));
    }

    TextHelpReader& m_owner;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::optional<TextHelpRequest> m_next;
    std::optional<TextHelpRequest> m_reading;
    std::optional<TextHelp> m_answer; ///< to the newest request, until it is told
    std::uint64_t m_number = 0;       ///< of the newest request
    bool m_isStopping = false;
    std::atomic<bool> m_cancelled{false};
    std::thread m_thread; ///< last: it uses all the others
};

TextHelpReader::TextHelpReader(QObject* parent) : QObject(parent), m_impl(std::make_unique<Impl>(*this)) {}

TextHelpReader::~TextHelpReader() = default;

void TextHelpReader::Request(TextHelpRequest request)
{
    m_impl->Ask(std::move(request));
}

void TextHelpReader::Drop()
{
    m_impl->Ask(std::nullopt);
}

bool TextHelpReader::event(QEvent* event)
{
    if (event->type() != QEvent::User)
        return QObject::event(event);
    if (std::optional<TextHelp> const answer = m_impl->TakeAnswer())
        Q_EMIT Finished(*answer);
    return true;
}

} // namespace Korvex::Desktop
