#pragma once

#include "Subtitles/Entities/Export.h"

#include "Subtitles/UseCases/IOnlineSearchController.h"

#include <QByteArray>
#include <QString>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

/// By what the right member of an archive is known; each may be empty.
struct ArchiveWish
{
    QString fileName;   ///< as the search said
    QString format;     ///< "srt", "sub", ...
    QByteArray md5;     ///< of the member's bytes, 32 hexadecimal digits; decides alone where a member has it
    int discNumber = 1; ///< for sets whose names tell nothing else
    int discCount = 1;
};

struct UnpackedSubtitle
{
    UseCases::IOnlineSearchController::Status status = UseCases::IOnlineSearchController::Success;
    QString error;    ///< empty on success
    QString fileName; ///< of the member, not cleaned
    QByteArray bytes;
};

/// Takes the one wanted subtitle file out of a ZIP archive in memory: by its MD5, else by name, else by format.
/// Folders, links, encrypted members, archives within the archive and `.nfo` files are no candidates. Nothing is
/// written, and what a member's header says of its size is not believed: unpacking stops at a limit. An archive that
/// cannot be opened is a FileError, one without the wanted file a ServerError. Any thread; never throws.
[[nodiscard]] KVSUBTITLES_API UnpackedSubtitle UnpackSubtitle(QByteArray const& archive, ArchiveWish const& wish);

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
