#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleArchive.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

/// Which file of an archive is meant, told by names alone. Any thread.
namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

/// Whether a file of this name is what archives hold besides subtitles (`.nfo`), an archive within the archive, or what
/// a system leaves in archives for itself. `path` is the whole name in the archive.
[[nodiscard]] bool IsNoCandidate(QString const& path);

/// The index of the wanted one among the names of the candidates (whole names in the archive): of the very name, of
/// that name but for case and for characters that an unknown code page made unreadable, else the one of the wanted
/// format. Several that are equally good are told apart by the disc. Empty when none is the wanted one for certain.
[[nodiscard]] std::optional<std::size_t> ChooseByName(std::vector<QString> const& names, ArchiveWish const& wish);

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
