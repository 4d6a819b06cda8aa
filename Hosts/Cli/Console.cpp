#include "Cli/Console.h"

#include "Core/Error.h"

namespace Korvex::Cli
{

std::string ToSentence(Core::Error const& error)
{
    if (error.code == Core::ErrorCode::OutputExists)
        return "The output \"" + error.file.utf8string() + "\" exists already; choose another name or add --overwrite.";
    return Core::ToSentence(error);
}

} // namespace Korvex::Cli
