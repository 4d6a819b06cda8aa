#include "Common/SubtitleFiles.h"

#include "Proc/SubtitleLoader.h"

namespace Korvex::Hosts
{

Core::Error ExplainUnreadable(ioPath const& path)
{
    auto const document = Proc::LoadSubtitleFile(path, {});
    if (!document)
        return document.GetError();
    Core::Error error;
    error.code = Core::ErrorCode::FormatUnknown;
    error.file = path;
    error.detail = "it does not hold exactly one subtitle track";
    return error;
}

} // namespace Korvex::Hosts
