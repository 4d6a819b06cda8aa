#pragma once

#include "Subtitles/Entities/Export.h"

#include "Subtitles/UseCases/IOnlineSearchController.h"

#include "Core/ioPath.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// From the bytes that a service sent to a file on disk. Any thread; nothing throws.
namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

/// A file name that every system takes, made of the last component of what a server calls a file: no separators, no
/// control characters, no device names, no dots or blanks at the ends, at most 200 bytes of UTF-8. `extension` (without
/// a dot) is added where the name has no extension of a subtitle file. Never empty.
[[nodiscard]] KVSUBTITLES_API QString CleanFileName(QString const& serverName, QString const& extension);

/// Why these bytes are no subtitle file: empty, an HTML page, JSON, an archive, or nothing but an advertisement of the
/// service. Empty when they may be one, in whatever encoding. The text is a short phrase for a sentence: "an HTML page
/// (\"Service unavailable\")".
[[nodiscard]] KVSUBTITLES_API std::optional<QString> FindWhatItIsInstead(QByteArray const& bytes);

/// How storing a file ended.
struct StoredFile
{
    UseCases::IOnlineSearchController::Status status = UseCases::IOnlineSearchController::Success;
    QString error; ///< empty on success
    ioPath path;   ///< where the file really is
};

/// Writes the bytes aside and gives them their name in one step; a name that is taken gets a number. Makes the folder
/// where it is missing. What is no subtitle is refused as a server error and not stored.
[[nodiscard]] KVSUBTITLES_API StoredFile StoreSubtitle(QByteArray const& bytes, ioPath const& folder,
                                                       QString const& fileName);

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
