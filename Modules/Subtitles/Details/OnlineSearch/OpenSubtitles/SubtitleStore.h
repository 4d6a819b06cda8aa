#pragma once

#include "Subtitles/Entities/Export.h"

#include "Subtitles/UseCases/IOnlineSearchController.h"

#include "Core/ioPath.h"

#include <QByteArray>
#include <QString>

/// From the bytes that a service sent to a file on disk. Any thread; nothing throws.
namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

/// How storing a file ended.
struct StoredFile
{
    UseCases::IOnlineSearchController::Status status = UseCases::IOnlineSearchController::Success;
    QString error; ///< empty on success
    ioPath path;   ///< where the file really is
};

/// Writes the bytes aside and gives them their name (cleaned) in one step; a name that is taken gets a number. Makes
/// the folder where it is missing. What is no subtitle is refused as a server error and not stored. Failures
/// leave nothing behind.
[[nodiscard]] KVSUBTITLES_API StoredFile StoreSubtitle(QByteArray const& bytes, ioPath const& folder,
                                                       QString const& fileName);

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
