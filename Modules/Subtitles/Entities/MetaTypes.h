#pragma once

#include "Subtitles/Entities/SubtitleAlign.h"
#include "Subtitles/Entities/SubtitleEncoding.h"

#include <QMetaType>

/// For whoever puts these into a `QVariant` or sends them through a queued signal. The library registers them under
/// these names when it is loaded.
Q_DECLARE_METATYPE(Korvex::Converter::Subtitles::Entities::SubtitleEncoding)
Q_DECLARE_METATYPE(Korvex::Converter::Subtitles::Entities::SubtitleAlign)
