#include "Desktop/Window/SaveDialog.h"

#include "Desktop/Window/SaveTrack.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

namespace Korvex::Desktop
{

namespace
{

QString DescribeExtension(QString const& extension)
{
    if (extension == QLatin1String("srt"))
        return SaveTrack::tr("SubRip (*.srt)");
    if (extension == QLatin1String("ass"))
        return SaveTrack::tr("Advanced SubStation Alpha (*.ass)");
    if (extension == QLatin1String("sup"))
        return SaveTrack::tr("Blu-ray subtitles (*.sup)");
    return SaveTrack::tr("Matroska (*.mkv *.mks)");
}

/// The name's ending says how the track is written, so it has to follow the kind that the user picks.
void FollowFilter(QFileDialog& dialog, QStringList const& extensions, QString const& filter)
{
    int const index = dialog.nameFilters().indexOf(filter);
    if (index < 0)
        return;
    QString const& extension = extensions[index];
    dialog.setDefaultSuffix(extension);
    QStringList const chosen = dialog.selectedFiles();
    if (chosen.isEmpty())
        return;
    QFileInfo const file(chosen.front());
    if (extensions.contains(file.suffix(), Qt::CaseInsensitive))
        dialog.selectFile(file.completeBaseName() + QLatin1Char('.') + extension);
}

} // namespace

QString AskWithDialog(QWidget* window, SaveQuestion const& question)
{
    QStringList filters;
    for (QString const& extension : question.extensions)
        filters += DescribeExtension(extension);
    QFileInfo const suggested(question.path);
    // The window may be closed, and its children deleted, while the dialog runs.
    QPointer<QFileDialog> const dialog =
        new QFileDialog(window, SaveTrack::tr("Save the track as"), suggested.absolutePath());
    dialog->setObjectName(QStringLiteral("saveTrackDialog"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters(filters);
    dialog->setDefaultSuffix(question.extensions.front());
    dialog->selectFile(suggested.fileName());
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog,
                     [&](QString const& filter) { FollowFilter(*dialog, question.extensions, filter); });
    bool const isAccepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return {};
    QStringList const chosen = dialog->selectedFiles();
    delete dialog;
    return isAccepted && !chosen.isEmpty() ? chosen.front() : QString();
}

} // namespace Korvex::Desktop
