#pragma once

#include "Check.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTRequest.h"

#include <glog/logging.h>

#include <QNetworkReply>

#include <algorithm>
#include <cstdint>
#include <cstring>

/// Qt's JSON parser loses the first of two containers that an object holds under the same name.
extern "C" [[gnu::used]] inline char const* __lsan_default_suppressions()
{
    return "leak:libQt5Core";
}

namespace Korvex::Fuzz
{

/// A reply with this body, arrived whole.
class Reply final : public QNetworkReply
{
public:
    Reply(std::uint8_t const* data, std::size_t size)
        : m_rest(reinterpret_cast<char const*>(data), static_cast<int>(size))
    {
        setOpenMode(QIODevice::ReadOnly);
        setFinished(true);
    }
    void abort() override {}
    qint64 bytesAvailable() const override { return m_rest.size() + QNetworkReply::bytesAvailable(); }

protected:
    qint64 readData(char* target, qint64 maximum) override
    {
        int const size = static_cast<int>(std::min<qint64>(maximum, m_rest.size()));
        std::memcpy(target, m_rest.constData(), static_cast<std::size_t>(size));
        m_rest.remove(0, size);
        return size;
    }

private:
    QByteArray m_rest;
};

/// Gives the request a reply with this body. Says whether it was taken.
inline bool Parse(Converter::Subtitles::Details::OpenSubtitles::RESTRequest& request, std::uint8_t const* data,
                  std::size_t size)
{
    using Status = Converter::Subtitles::Details::INetworkOperation::Status;
    static bool const IS_QUIET = FLAGS_minloglevel = google::GLOG_FATAL;
    static_cast<void>(IS_QUIET);
    Reply reply(data, size);
    Status const status = request.ParseReply(reply);
    Require(status == Status::Success || status == Status::ServerError);
    Require(status == request.GetStatus());
    Require(status != Status::Success || request.GetError().isEmpty());
    return status == Status::Success;
}

/// Shown in lists: one line, nothing that steers a terminal.
inline bool IsLine(QString const& text)
{
    return std::none_of(text.begin(), text.end(),
                        [](QChar character) { return character.category() == QChar::Other_Control; });
}

/// An observer of whose operations a target wants some.
struct Observer : Converter::Subtitles::UseCases::IOnlineSearchControllerObserver
{
    using Result = Converter::Subtitles::UseCases::SearchResult;

    void OnSearchResults(std::vector<std::shared_ptr<Result>> const& /*results*/) override {}
    void OnAutoSuggestResults(std::vector<QString> const& /*suggestions*/) override {}
    void OnSubtitlesDownloaded(std::shared_ptr<Result> const& /*result*/, ioPath const& /*file*/) override {}
    void OnOperationFinished() override {}
    void OnOperationFailed(Converter::Subtitles::UseCases::IOnlineSearchController::Status /*status*/,
                           QString const& /*message*/) override
    {
    }
};

} // namespace Korvex::Fuzz
