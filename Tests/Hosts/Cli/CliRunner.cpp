#include "Hosts/Cli/CliRunner.h"

#include "Cli/CommandLine.h"
#include "Cli/Console.h"

#include "Core/FileSystem.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <sstream>

namespace Korvex::Testing
{

void EnsureApplication()
{
    static int count = 1;
    static char name[] = "korvex";
    static char* arguments[] = {name, nullptr};
    static QCoreApplication const application(count, arguments);
}

std::vector<QJsonObject> CliResult::JsonLines() const
{
    std::vector<QJsonObject> objects;
    std::istringstream lines(out);
    for (std::string line; std::getline(lines, line);)
    {
        QJsonDocument const document = QJsonDocument::fromJson(QByteArray::fromStdString(line));
        EXPECT_TRUE(document.isObject()) << line;
        objects.push_back(document.object());
    }
    return objects;
}

CliResult RunCli(std::vector<std::string> const& words)
{
    return RunCli(words, [] { return false; });
}

CliResult RunCli(std::vector<std::string> const& words, std::function<bool()> isInterrupted)
{
    EnsureApplication();
    std::ostringstream out;
    std::ostringstream err;
    Cli::Console console{out, err, false, std::move(isInterrupted)};
    CliResult result;
    result.exitCode = Cli::Run(words, console);
    result.out = out.str();
    result.err = err.str();
    return result;
}

std::vector<std::string> ListNames(ioPath const& folder)
{
    return Core::ListFolder(folder);
}

} // namespace Korvex::Testing
