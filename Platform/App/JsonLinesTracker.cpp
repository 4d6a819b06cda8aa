#include "App/JsonLinesTracker.h"

#include "App/Files/PrivateFile.h"

#include "Core/FileSystem.h"

#include <glog/logging.h>

#include <QDateTime>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace Korvex::App
{

namespace
{

std::string MakeLine(std::string const& name, std::map<std::string, std::string> const& parameters)
{
    QJsonObject values;
    for (auto const& [key, value] : parameters)
        values.insert(QString::fromStdString(key), QString::fromStdString(value));
    QJsonObject const event{{"time", QDateTime::currentDateTimeUtc().toString(Qt::ISODate)},
                            {"event", QString::fromStdString(name)},
                            {"parameters", values}};
    return QJsonDocument(event).toJson(QJsonDocument::Compact).toStdString() + '\n';
}

/// The newest whole lines that fit.
std::string TakeNewest(std::string const& lines, std::size_t mostBytes)
{
    if (lines.size() <= mostBytes)
        return lines;
    std::size_t const end = lines.find('\n', lines.size() - mostBytes - 1);
    return end == std::string::npos ? std::string() : lines.substr(end + 1);
}

} // namespace

class JsonLinesTracker::Impl
{
public:
    explicit Impl(ioPath path) : file(std::move(path)) {}

    ~Impl()
    {
        {
            std::lock_guard const lock(m_mutex);
            m_isStopping = true;
        }
        m_hasWork.notify_one();
        if (m_thread.joinable())
            m_thread.join();
    }

    void SetEnabled(bool isEnabled)
    {
        std::lock_guard const lock(m_mutex);
        m_isEnabled = isEnabled;
    }

    [[nodiscard]] bool IsEnabled() const
    {
        std::lock_guard const lock(m_mutex);
        return m_isEnabled;
    }

    void Add(std::string const& name, std::map<std::string, std::string> const& parameters)
    {
        {
            std::lock_guard const lock(m_mutex);
            if (!m_isEnabled)
                return;
            m_waiting += MakeLine(name, parameters);
            if (!m_thread.joinable())
                m_thread = std::thread([this] { Run(); });
        }
        m_hasWork.notify_one();
    }

    Core::Result<std::string> Read()
    {
        std::lock_guard const lock(m_fileMutex);
        if (Core::Status const failure = WriteWaiting())
            return *failure;
        auto lines = Core::ReadFile(file, 2 * MOST_FILE_BYTES);
        if (!lines && lines.GetError().code == Core::ErrorCode::FileNotFound)
            return std::string();
        return lines;
    }

    Core::Status Delete()
    {
        std::lock_guard const lock(m_fileMutex);
        TakeWaiting();
        Core::RemoveFile(file);
        if (!Core::PathExists(file))
            return Core::SUCCESS;
        Core::Error error;
        error.code = Core::ErrorCode::OutputNotWritable;
        error.file = file;
        return error;
    }

    ioPath const file;

private:
    void Run()
    {
        bool hasFailed = false;
        for (bool isLast = false; !isLast;)
        {
            {
                std::unique_lock lock(m_mutex);
                m_hasWork.wait(lock, [this] { return m_isStopping || !m_waiting.empty(); });
                isLast = m_isStopping;
            }
            std::lock_guard const lock(m_fileMutex);
            Core::Status const failure = WriteWaiting();
            if (failure && !hasFailed)
                LOG(ERROR) << "Usage statistics are lost: " << Core::ToSentence(*failure);
            hasFailed = failure.has_value();
        }
    }

    std::string TakeWaiting()
    {
        std::lock_guard const lock(m_mutex);
        return std::exchange(m_waiting, {});
    }

    /// What cannot be written is lost: it is not worth memory. With the file's mutex.
    Core::Status WriteWaiting()
    {
        std::string const lines = TakeWaiting();
        return lines.empty() ? Core::SUCCESS : Append(lines);
    }

    [[nodiscard]] Core::Status Append(std::string const& lines) const
    {
        auto const stamp = Core::FindFileStamp(file);
        if (!stamp || stamp->size + lines.size() > MOST_FILE_BYTES)
            return Shorten(lines);
        QFile target(QString::fromStdString(file.utf8string()));
        bool const isWritten =
            target.open(QIODevice::WriteOnly | QIODevice::Append) &&
            target.write(lines.data(), static_cast<qint64>(lines.size())) == static_cast<qint64>(lines.size()) &&
            target.flush();
        if (isWritten)
            return Core::SUCCESS;
        Core::Error error;
        error.code = Core::ErrorCode::OutputNotWritable;
        error.file = file;
        error.detail = target.errorString().toStdString();
        return error;
    }

    /// Half of the room is free afterwards, so that this is rare. Makes the file where it is missing.
    [[nodiscard]] Core::Status Shorten(std::string const& lines) const
    {
        auto const before = Core::ReadFile(file, 2 * MOST_FILE_BYTES);
        return WritePrivateFile(file, TakeNewest((before ? *before : std::string()) + lines, MOST_FILE_BYTES / 2));
    }

    mutable std::mutex m_mutex;
    std::condition_variable m_hasWork;
    bool m_isEnabled = false;
    bool m_isStopping = false;
    std::string m_waiting; ///< lines
    std::mutex m_fileMutex;
    std::thread m_thread; ///< started with the first event
};

JsonLinesTracker::JsonLinesTracker(ioPath file) : m_impl(std::make_unique<Impl>(std::move(file))) {}

JsonLinesTracker::~JsonLinesTracker() = default;

ioPath const& JsonLinesTracker::GetFile() const
{
    return m_impl->file;
}

void JsonLinesTracker::SetEnabled(bool isEnabled)
{
    m_impl->SetEnabled(isEnabled);
}

bool JsonLinesTracker::IsEnabled() const
{
    return m_impl->IsEnabled();
}

void JsonLinesTracker::TrackEvent(std::string const& name, std::map<std::string, std::string> const& parameters)
{
    m_impl->Add(name, parameters);
}

Core::Result<std::string> JsonLinesTracker::Read()
{
    return m_impl->Read();
}

Core::Status JsonLinesTracker::Delete()
{
    return m_impl->Delete();
}

} // namespace Korvex::App
