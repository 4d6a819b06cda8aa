#include "Cli/ConfigCommand.h"

#include "Cli/Json.h"
#include "Cli/TextWidth.h"

#include "App/Configuration.h"
#include "Core/FileSystem.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <ostream>

namespace Korvex::Cli
{

using App::Configuration;
using App::ConfigurationSource;
using App::ConfiguredValue;

namespace
{

char const* SourceName(ConfigurationSource source)
{
    switch (source)
    {
    case ConfigurationSource::File:
        return "file";
    case ConfigurationSource::Environment:
        return "environment";
    case ConfigurationSource::Default:
        break;
    }
    return "default";
}

char const* ServiceName(Configuration const& configuration)
{
    return App::UsesOpenSubtitlesVersion1(configuration) ? "version 1" : "legacy";
}

char const* DescribeService(Configuration const& configuration)
{
    if (App::UsesOpenSubtitlesVersion1(configuration))
        return "version 1, at opensubtitles/url";
    return configuration.openSubtitlesApiKey.empty() ? "legacy, at opensubtitles/legacy_url, because no API key is set"
                                                     : "legacy, at opensubtitles/legacy_url, because the file says so";
}

QString ShowText(ConfiguredValue const& value)
{
    return value.text.empty() ? QStringLiteral("(none)") : ToJsonText(value.text);
}

void PrintText(ioPath const& file, Configuration const& configuration, std::ostream& out)
{
    out << "Configuration file: " << file.utf8string() << (Core::PathExists(file) ? "" : " (does not exist)") << '\n'
        << "Online service: " << DescribeService(configuration) << "\n\n";
    int nameWidth = 0;
    int textWidth = 0;
    for (ConfiguredValue const& value : configuration.values)
    {
        nameWidth = std::max(nameWidth, DisplayWidth(ToJsonText(value.name)));
        textWidth = std::max(textWidth, DisplayWidth(ShowText(value)));
    }
    for (ConfiguredValue const& value : configuration.values)
    {
        bool const isVariableSet = value.source == ConfigurationSource::Environment;
        out << "  " << Padded(ToJsonText(value.name), nameWidth, Alignment::Left).toStdString() << "  "
            << Padded(ShowText(value), textWidth, Alignment::Left).toStdString() << "  " << SourceName(value.source)
            << (isVariableSet ? ", " + value.variable : std::string()) << '\n';
    }
}

void PrintJson(ioPath const& file, Configuration const& configuration, std::ostream& out)
{
    QJsonArray values;
    for (ConfiguredValue const& value : configuration.values)
        values.append(QJsonObject{{QStringLiteral("name"), ToJsonText(value.name)},
                                  {QStringLiteral("value"), ToJsonText(value.text)},
                                  {QStringLiteral("source"), SourceName(value.source)},
                                  {QStringLiteral("variable"), ToJsonText(value.variable)}});
    QJsonArray problems;
    for (std::string const& problem : configuration.problems)
        problems.append(ToJsonText(problem));
    WriteJsonLine(out, {{QStringLiteral("file"), ToJsonText(file.utf8string())},
                        {QStringLiteral("fileExists"), Core::PathExists(file)},
                        {QStringLiteral("service"), ServiceName(configuration)},
                        {QStringLiteral("values"), values},
                        {QStringLiteral("problems"), problems}});
}

} // namespace

std::vector<OptionGroup> ConfigCommand::Options() const
{
    return {{"Options", {{"--json", OptionValue::None, {}, "One JSON object."}}}};
}

std::string_view ConfigCommand::Notes() const
{
    return "An API key is shown by its last four characters at most. The file looks like\n"
           "this; KORVEX_CONFIG names another one:\n"
           "\n"
           "  [opensubtitles]\n"
           "  api_key = 0123456789abcdef\n"
           "  timeout = 30\n"
           "  [features]\n"
           "  USE_OPENSUBTITLES_VER_1 = true\n"
           "\n"
           "These variables go over it: KORVEX_OPENSUBTITLES_URL, ..._API_KEY,\n"
           "..._LEGACY_URL, ..._TIMEOUT, ..._JSON_BODY. docs/online.md explains each.\n"
           "With an API key version 1 of the service is asked, without one the older one.\n";
}

ExitCode ConfigCommand::Run(Arguments const& arguments, Console& console)
{
    if (!arguments.inputs.empty())
        throw UsageError("\"korvex config\" takes no files.");
    ioPath const file = App::FindConfigurationFile(&App::LookUpEnvironment);
    Configuration const configuration = App::LoadConfiguration(file, &App::LookUpEnvironment);
    (arguments.Find("--json") != nullptr ? PrintJson : PrintText)(file, configuration, console.out);
    for (std::string const& problem : configuration.problems)
        console.err << "korvex: " << ToSafeLine(ToJsonText(problem)).toStdString() << '\n';
    return ExitCode::Done;
}

} // namespace Korvex::Cli
