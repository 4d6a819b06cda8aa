#include "Cli/Reporter.h"

#include "Cli/Console.h"
#include "Cli/Format.h"
#include "Cli/Json.h"

#include "Proc/Transcode.h"

#include <QJsonObject>

#include <algorithm>
#include <ostream>

namespace Korvex::Cli
{

namespace
{

using SecondsAsDouble = std::chrono::duration<double>;

/// Sentences only.
class PlainReporter : public Reporter
{
public:
    explicit PlainReporter(Console& console) : m_console(console) {}

    void Begin(ioPath const&, ioPath const& output) override { m_output = output; }
    void Progress(Proc::TranscodeProgress const&) override {}
    void Note(std::string const& sentence) override { m_console.err << "korvex: " << sentence << std::endl; }
    void Done(Proc::TranscodeReport const& report) override
    {
        m_console.out << "Wrote " << m_output.utf8string() << " (" << FormatClock(report.duration) << ")." << std::endl;
    }
    void Failed(std::string const& sentence, int) override { m_console.err << "korvex: " << sentence << std::endl; }

protected:
    Console& m_console;

private:
    ioPath m_output;
};

/// A line that is drawn again and again, below which sentences appear.
class BarReporter final : public PlainReporter
{
public:
    using PlainReporter::PlainReporter;

    void Begin(ioPath const& input, ioPath const& output) override
    {
        PlainReporter::Begin(input, output);
        m_console.err << input.utf8string() << " -> " << output.utf8string() << std::endl;
    }

    void Progress(Proc::TranscodeProgress const& progress) override
    {
        std::string line = progress.total.count() > 0 ? Bar(progress) : FormatClock(Seconds(progress.done)) + " done";
        line += "  " + FormatDecimal(progress.speed) + "x";
        if (progress.remaining)
            line += "  " + FormatClock(*progress.remaining) + " left";
        Draw(line);
    }

    void Note(std::string const& sentence) override
    {
        Draw({});
        PlainReporter::Note(sentence);
    }
    void Done(Proc::TranscodeReport const& report) override
    {
        Draw({});
        PlainReporter::Done(report);
    }
    void Failed(std::string const& sentence, int exitCode) override
    {
        Draw({});
        PlainReporter::Failed(sentence, exitCode);
    }

private:
    static constexpr std::size_t BAR_WIDTH = 40;

    static std::chrono::seconds Seconds(std::chrono::microseconds time)
    {
        return std::chrono::duration_cast<std::chrono::seconds>(time);
    }

    static std::string Bar(Proc::TranscodeProgress const& progress)
    {
        double const part = std::clamp(SecondsAsDouble(progress.done) / SecondsAsDouble(progress.total), 0.0, 1.0);
        auto const filled = static_cast<std::size_t>(part * BAR_WIDTH);
        std::string const percent = std::to_string(static_cast<int>(part * 100.0));
        return std::string(3 - std::min<std::size_t>(3, percent.size()), ' ') + percent + " % [" +
               std::string(filled, '#') + std::string(BAR_WIDTH - filled, '.') + "]";
    }

    /// An empty line takes the last one away.
    void Draw(std::string const& line)
    {
        if (line.empty() && m_drawn == 0)
            return;
        std::size_t const blanks = m_drawn > line.size() ? m_drawn - line.size() : 0;
        m_console.err << '\r' << line << std::string(blanks, ' ') << (line.empty() ? "\r" : "") << std::flush;
        m_drawn = line.size();
    }

    std::size_t m_drawn = 0;
};

class JsonReporter final : public Reporter
{
public:
    explicit JsonReporter(Console& console) : m_console(console) {}

    void Begin(ioPath const& input, ioPath const& output) override
    {
        m_input = ToJsonText(input.utf8string());
        m_output = ToJsonText(output.utf8string());
        Write("started", {{"output", m_output}});
    }

    void Progress(Proc::TranscodeProgress const& progress) override
    {
        QJsonObject fields{{"doneSeconds", SecondsAsDouble(progress.done).count()}, {"speed", progress.speed}};
        if (progress.total.count() > 0)
            fields.insert("totalSeconds", SecondsAsDouble(progress.total).count());
        if (progress.remaining)
            fields.insert("remainingSeconds", static_cast<double>(progress.remaining->count()));
        Write("progress", fields);
    }

    void Note(std::string const& sentence) override
    {
        m_console.err << "korvex: " << sentence << std::endl;
        Write("note", {{"text", ToJsonText(sentence)}});
    }

    void Done(Proc::TranscodeReport const& report) override
    {
        Write("done", {{"output", m_output}, {"durationSeconds", SecondsAsDouble(report.duration).count()}});
    }

    void Failed(std::string const& sentence, int exitCode) override
    {
        m_console.err << "korvex: " << sentence << std::endl;
        Write("failed", {{"exitCode", exitCode}, {"text", ToJsonText(sentence)}});
    }

private:
    void Write(char const* event, QJsonObject fields)
    {
        fields.insert("event", event);
        fields.insert("input", m_input);
        WriteJsonLine(m_console.out, fields);
    }

    Console& m_console;
    QString m_input;
    QString m_output;
};

} // namespace

std::unique_ptr<Reporter> MakeReporter(ProgressKind kind, Console& console)
{
    switch (kind)
    {
    case ProgressKind::Bar:
        return std::make_unique<BarReporter>(console);
    case ProgressKind::Json:
        return std::make_unique<JsonReporter>(console);
    case ProgressKind::None:
        break;
    }
    return std::make_unique<PlainReporter>(console);
}

} // namespace Korvex::Cli
