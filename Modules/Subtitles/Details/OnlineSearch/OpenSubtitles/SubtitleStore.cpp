#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleStore.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/NotASubtitle.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleFileName.h"

#include "Core/FileSystem.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

namespace
{

using Status = UseCases::IOnlineSearchController::Status;

StoredFile Fail(Status status, QString const& error)
{
    StoredFile failed;
    failed.status = status;
    failed.error = error;
    return failed;
}

/// What the system says of the call that has just failed.
QString LastError()
{
    int const number = errno;
    return QString::fromStdString(std::generic_category().message(number != 0 ? number : EIO));
}

/// The file that is being written, gone with this object unless it has got its name.
class TemporaryFile final
{
public:
    explicit TemporaryFile(ioPath const& target) : m_path(Core::MakeTemporaryPath(target)) {}
    ~TemporaryFile()
    {
        if (m_isMade)
            Core::RemoveFile(m_path);
    }
    TemporaryFile(TemporaryFile const&) = delete;
    TemporaryFile& operator=(TemporaryFile const&) = delete;

    [[nodiscard]] bool OpenFile()
    {
        errno = 0;
        m_stream.open(std::filesystem::u8path(m_path.utf8string()), std::ios::binary | std::ios::trunc);
        m_isMade = m_stream.is_open();
        return m_isMade;
    }
    [[nodiscard]] bool Write(QByteArray const& bytes)
    {
        errno = 0;
        m_stream.write(bytes.constData(), bytes.size());
        m_stream.flush();
        bool const isWritten = m_stream.good();
        int const number = errno;
        m_stream.close();
        if (!isWritten)
            errno = number;
        return isWritten && m_stream.good();
    }
    [[nodiscard]] Core::Result<ioPath> Commit(ioPath const& target)
    {
        auto name = Core::CommitFile(m_path, target, Core::TakenName::NextFree);
        m_isMade = !name;
        return name;
    }

private:
    ioPath m_path;
    std::ofstream m_stream;
    bool m_isMade = false;
};

} // namespace

StoredFile StoreSubtitle(QByteArray const& bytes, ioPath const& folder, QString const& fileName)
{
    if (auto const instead = FindWhatItIsInstead(bytes))
        return Fail(Status::ServerError, QStringLiteral("The server sent %1 instead of a subtitle file").arg(*instead));
    if (Core::CreateFolders(folder) || !Core::FolderExists(folder))
        return Fail(Status::FileError, QStringLiteral("Failed to create temp directory"));

    ioPath const target = folder / CleanFileName(fileName, QString()).toStdString();
    TemporaryFile file(target);
    if (!file.OpenFile())
        return Fail(Status::FileError,
                    QStringLiteral("Failed to open file in mode WriteOnly because: %1").arg(LastError()));
    QString const name = QString::fromStdString(target.utf8string());
    if (!file.Write(bytes))
        return Fail(Status::FileError, QStringLiteral("Failed to write %1 because: %2").arg(name, LastError()));
    auto const stored = file.Commit(target);
    if (!stored)
        return Fail(Status::FileError, QString::fromStdString(Core::ToSentence(stored.GetError())));
    StoredFile done;
    done.path = *stored;
    return done;
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
