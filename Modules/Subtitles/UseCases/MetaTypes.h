#pragma once

#include "Subtitles/UseCases/IOnlineSearchController.h"

#include <QMetaType>

/// For whoever sends it through a queued signal. The library registers it under this name when it is loaded.
Q_DECLARE_METATYPE(Korvex::Converter::Subtitles::UseCases::IOnlineSearchController::Status)
