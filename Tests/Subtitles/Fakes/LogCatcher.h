#pragma once

#include <glog/logging.h>

#include <string>
#include <vector>

namespace Korvex::Converter::Subtitles::Testing
{

/// Collects error lines while it lives, each after the name of its source file.
class LogCatcher final : public google::LogSink
{
public:
    LogCatcher() { google::AddLogSink(this); }
    ~LogCatcher() override { google::RemoveLogSink(this); }
    void send(google::LogSeverity severity, char const* /*path*/, char const* fileName, int /*line*/,
              struct ::tm const* /*time*/, char const* message, size_t length) override
    {
        if (severity == google::GLOG_ERROR)
            lines.push_back(std::string(fileName) + ": " + std::string(message, length));
    }

    std::vector<std::string> lines;
};

} // namespace Korvex::Converter::Subtitles::Testing
