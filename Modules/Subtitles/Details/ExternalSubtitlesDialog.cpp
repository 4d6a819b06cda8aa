#include "Subtitles/Details/ExternalSubtitlesDialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QPointer>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr char const* FOLDER_KEY = "externalSubtitles/folder";

/// Every pattern in both cases, because some systems' dialogs compare them letter by letter.
QString MakePatterns(std::vector<std::string> const& formats)
{
    QStringList patterns;
    for (std::string const& format : formats)
    {
        QString const pattern = QStringLiteral("*.") + QString::fromStdString(format);
        patterns << pattern << pattern.toUpper();
    }
    return patterns.join(QLatin1Char(' '));
}

/// Each film has a dialog of its own, so the folder is kept in the settings alone.
struct Settings : QSettings
{
    Settings() : QSettings(QStringLiteral("korvex"), QStringLiteral("subtitles")) {}
};

QString FindFolder()
{
    QString const movies = QStandardPaths::writableLocation(QStandardPaths::MoviesLocation);
    for (QString const& folder : {Settings().value(FOLDER_KEY).toString(), movies})
    {
        if (!folder.isEmpty() && QDir(folder).exists())
            return folder;
    }
    return QDir::homePath();
}

} // namespace

ExternalSubtitlesDialog::ExternalSubtitlesDialog() = default;

ExternalSubtitlesDialog::~ExternalSubtitlesDialog() = default;

std::vector<ioPath> ExternalSubtitlesDialog::ChooseFiles(std::vector<std::string> const& formats)
{
    // The window may be closed, and its children deleted, while the dialog runs.
    QPointer<QFileDialog> const dialog =
        new QFileDialog(QApplication::activeWindow(), tr("Choose subtitles"), FindFolder(),
                        tr("Subtitle files (%1)").arg(MakePatterns(formats)));
    dialog->setObjectName(QStringLiteral("externalSubtitlesDialog"));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    bool const isAccepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return {};
    std::vector<ioPath> paths;
    if (isAccepted)
    {
        for (QString const& path : dialog->selectedFiles())
            paths.emplace_back(path.toStdString());
        Settings().setValue(FOLDER_KEY, dialog->directory().absolutePath());
    }
    delete dialog;
    return paths;
}

} // namespace Korvex::Converter::Subtitles::Details
