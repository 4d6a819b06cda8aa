#include "Desktop/Window/RevealFile.h"

#include "Core/ioPath.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

#if defined(Q_OS_WIN)
#include <QProcess>
#elif !defined(Q_OS_MACOS)
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#endif

namespace Korvex::Desktop
{

namespace
{

/// Asks the file manager to select the file; false when nobody can be asked. `orElse` hears later that it did not.
#if defined(Q_OS_WIN)

bool Select(QFileInfo const& file, QObject& /*context*/, std::function<void()> const& /*orElse*/)
{
    // The program wants the quotation marks around the path alone, which a list of arguments cannot say.
    QProcess process;
    process.setProgram(QStringLiteral("explorer.exe"));
    process.setNativeArguments(QStringLiteral("/select,\"%1\"").arg(QDir::toNativeSeparators(file.absoluteFilePath())));
    return process.startDetached();
}

#elif defined(Q_OS_MACOS)

bool Select(QFileInfo const& /*file*/, QObject& /*context*/, std::function<void()> const& /*orElse*/)
{
    return false;
}

#else

bool Select(QFileInfo const& file, QObject& context, std::function<void()> const& orElse)
{
    constexpr int LONGEST_MS = 3000;
    // Without an address the library would start a bus of its own and wait for it.
    QString const runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    bool const hasBus = !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
                        (!runtimeFolder.isEmpty() && QFileInfo::exists(runtimeFolder + QStringLiteral("/bus")));
    if (!hasBus || !QDBusConnection::sessionBus().isConnected())
        return false;
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    message << QStringList(QUrl::fromLocalFile(file.absoluteFilePath()).toString(QUrl::FullyEncoded)) << QString();
    auto* const watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message, LONGEST_MS), &context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context,
                     [watcher, orElse]
                     {
                         watcher->deleteLater();
                         if (watcher->isError())
                             orElse();
                     });
    return true;
}

#endif

} // namespace

void RevealFile(ioPath const& file, QObject& context, std::function<void()> const& onFailure)
{
    QFileInfo const info(QString::fromStdString(file.utf8string()));
    auto const openFolder = [folder = QUrl::fromLocalFile(info.absolutePath()), onFailure]
    {
        if (!QDesktopServices::openUrl(folder))
            onFailure();
    };
    if (!Select(info, context, openFolder))
        openFolder();
}

} // namespace Korvex::Desktop
