#pragma once

#include "Subtitles/UseCases/IOnlineSearchController.h"
#include "Subtitles/UseCases/IServerReportSource.h"

#include <QMetaType>

/// For whoever sends them through a queued signal. The library registers them under these names when it is loaded.
Q_DECLARE_METATYPE(Korvex::Converter::Subtitles::UseCases::IOnlineSearchController::Status)
Q_DECLARE_METATYPE(Korvex::Converter::Subtitles::UseCases::ServerReport)
