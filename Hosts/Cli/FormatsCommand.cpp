#include "Cli/FormatsCommand.h"

#include "Cli/Json.h"
#include "Cli/Services.h"
#include "Common/OutputFormats.h"
#include "Common/Sentences.h"

#include <QJsonArray>
#include <QJsonObject>

#include <ostream>

namespace Korvex::Cli
{

namespace
{

std::string Pad(std::string text, std::size_t width)
{
    text.resize(std::max(width, text.size() + 1), ' ');
    return text;
}

std::string JoinWithComma(std::vector<std::string> const& words)
{
    std::string text;
    for (std::string const& word : words)
        text.append(text.empty() ? "" : ", ").append(word);
    return text;
}

} // namespace

std::vector<OptionGroup> FormatsCommand::Options() const
{
    return {{"Options", {{"--json", OptionValue::None, {}, "One JSON object a line for each container."}}}};
}

ExitCode FormatsCommand::Run(Arguments const& arguments, Console& console)
{
    if (!arguments.inputs.empty())
        throw UsageError("\"korvex formats\" takes no files.");
    bool const isJson = arguments.Find("--json") != nullptr;
    Services const services;
    if (!isJson)
        console.out << Pad("ID", 10) << Pad("Name", 10) << Pad("Extensions", 12) << "Subtitle tracks\n";
    for (Hosts::OutputFormat const& format : Hosts::GetOutputFormats())
    {
        auto const codecs = services.GetAllowedSoftCodecIds(format.id);
        if (isJson)
        {
            QJsonArray extensions;
            for (std::string const& extension : format.extensions)
                extensions.append(ToJsonText(extension));
            QJsonArray ids;
            for (std::string const& codec : codecs)
                ids.append(ToJsonText(codec));
            WriteJsonLine(console.out, {{"id", ToJsonText(format.id)},
                                        {"name", ToJsonText(Hosts::DisplayName(format.id))},
                                        {"extensions", extensions},
                                        {"subtitleCodecs", ids}});
            continue;
        }
        std::vector<std::string> names;
        names.reserve(codecs.size());
        for (std::string const& codec : codecs)
            names.push_back(Hosts::DisplayName(codec));
        console.out << Pad(format.id, 10) << Pad(Hosts::DisplayName(format.id), 10)
                    << Pad(JoinWithComma(format.extensions), 12) << JoinWithComma(names) << '\n';
    }
    if (!isJson)
        console.out
            << "\nOther text goes into Matroska, MP4 and MOV written anew as a kind that they carry; any track can be\n"
               "drawn into the picture.\n";
    return ExitCode::Done;
}

} // namespace Korvex::Cli
