#pragma once

#include "Subtitles/Entities/Export.h"

#include "Core/ioPath.h"

#include <QString>

#include <string>

/// How fetched subtitles are kept: each in a folder of its own, so that it is found again whatever it is called.
namespace Korvex::Converter::Subtitles::UseCases
{

/// The name of the folder for one subtitle of a service. It is allowed on every file system, and another id never gets
/// the same name, also where letter case does not count.
/// @param serviceId not empty
[[nodiscard]] KVSUBTITLES_API std::string MakeStorageName(std::string const& serviceName, QString const& serviceId);

/// The subtitle file that lies in such a folder; empty when there is none, or more than one. Files that are being
/// written and what file managers leave behind do not count.
[[nodiscard]] KVSUBTITLES_API ioPath FindStoredSubtitle(ioPath const& folder);

} // namespace Korvex::Converter::Subtitles::UseCases
