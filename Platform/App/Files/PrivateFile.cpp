#include "App/Files/PrivateFile.h"

#include "Core/FileSystem.h"

#include <QFile>
#include <QFileInfo>
#include <QString>

namespace Korvex::App
{

namespace
{

ioPath FollowLink(ioPath const& path)
{
    QFileInfo const info(QString::fromStdString(path.utf8string()));
    QString const target = info.isSymLink() ? info.canonicalFilePath() : QString();
    return target.isEmpty() ? path : ioPath(target.toStdString());
}

Core::Status WriteAside(ioPath const& path, std::string const& bytes)
{
    QFile file(QString::fromStdString(path.utf8string()));
    // The permissions come before the bytes, so that nobody can read them in between.
    bool const isWritten =
        file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
        file.write(bytes.data(), static_cast<qint64>(bytes.size())) == static_cast<qint64>(bytes.size()) &&
        file.flush();
    if (isWritten)
        return Core::SUCCESS;
    Core::Error error;
    error.code = Core::ErrorCode::OutputNotWritable;
    error.detail = file.errorString().toStdString();
    return error;
}

} // namespace

Core::Status WritePrivateFile(ioPath const& target, std::string const& bytes)
{
    ioPath const file = FollowLink(target);
    if (Core::Status const failure = Core::CreateFolders(file.Parent()))
        return failure;
    ioPath const aside = Core::MakeTemporaryPath(file);
    if (Core::Status failure = WriteAside(aside, bytes))
    {
        Core::RemoveFile(aside);
        failure->file = target;
        return failure;
    }
    Core::Status const failure = Core::CommitFile(aside, file, true);
    if (failure)
        Core::RemoveFile(aside);
    return failure;
}

} // namespace Korvex::App
