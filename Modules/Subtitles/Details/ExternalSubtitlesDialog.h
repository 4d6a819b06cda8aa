#pragma once

#include "Subtitles/Adapters/IExternalSubtitlesDialog.h"
#include "Subtitles/Entities/Export.h"

#include <QCoreApplication>

namespace Korvex::Converter::Subtitles::Details
{

/// The system's file dialog for one or several subtitle files, over the active window. Making the object makes no
/// widget; choosing needs a QApplication and runs an event loop of its own. GUI thread.
///
/// The folder of the last choice is where the next one begins, in later runs of the program too (setting
/// "externalSubtitles/folder" of the organisation "korvex", application "subtitles").
class KVSUBTITLES_API ExternalSubtitlesDialog final : public Adapters::IExternalSubtitlesDialog
{
    Q_DECLARE_TR_FUNCTIONS(ExternalSubtitlesDialog)
public:
    ExternalSubtitlesDialog();
    ~ExternalSubtitlesDialog() override;

    [[nodiscard]] std::vector<ioPath> ChooseFiles(std::vector<std::string> const& formats) override;
};

} // namespace Korvex::Converter::Subtitles::Details
