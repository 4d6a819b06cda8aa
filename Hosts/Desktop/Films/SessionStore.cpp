#include "Desktop/Films/SessionStore.h"

#include "Desktop/Films/FileThread.h"
#include "Desktop/Films/FilmList.h"
#include "Desktop/Films/Session.h"

#include "App/Configuration.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTimer>

#include <utility>

namespace Korvex::Desktop
{

namespace
{

constexpr int SAVING_DELAY_MS = 1000;

/// Empty when it worked, else the reason.
QString WriteFile(QString const& path, QByteArray const& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    bool const isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return isWritten ? QString() : file.errorString();
}

/// Gives the name under which the file is kept now; empty when it could not be renamed.
QString SetAside(QString const& path)
{
    constexpr int MOST_NAMES = 1000;
    for (int number = 1; number <= MOST_NAMES; ++number)
    {
        QString const name = path + QLatin1Char('.') + QString::number(number);
        if (QFileInfo::exists(name))
            continue;
        return QFile::rename(path, name) ? name : QString();
    }
    return {};
}

} // namespace

ioPath FindSessionFile()
{
    if (auto const named = App::LookUpEnvironment("KORVEX_SESSION"); named && !named->empty())
        return *named;
    QString const folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return ioPath((folder + QStringLiteral("/session.json")).toStdString());
}

class SessionStore::Impl
{
public:
    Impl(SessionStore& owner, FilmList& list, ioPath const& file)
        : m_owner(owner),
          m_list(list),
          m_file(QString::fromStdString(file.utf8string())),
          m_fileThread(std::make_unique<FileThread>())
    {
        m_timer.setSingleShot(true);
        m_timer.setInterval(SAVING_DELAY_MS);
        connect(&m_timer, &QTimer::timeout, &owner, [this] { SaveAside(); });
    }

    ~Impl()
    {
        m_fileThread.reset();
        if (!m_isKeeping)
            return;
        QByteArray const bytes = Collect();
        // What was asked for last may have been written without anybody's having heard of it.
        if (bytes != m_written || m_requested != m_written)
            WriteFile(m_file, bytes);
    }

    QString Restore()
    {
        m_isKeeping = true;
        QString const failure = ReadStored();
        if (m_isKeeping)
            Follow();
        return failure;
    }

    void NoteChange()
    {
        if (m_isKeeping && !m_timer.isActive())
            m_timer.start();
    }

    std::map<std::string, QByteArray> extras;

private:
    QString ReadStored()
    {
        QFile file(m_file);
        if (!file.exists())
            return {};
        bool const isOpen = file.open(QIODevice::ReadOnly);
        QByteArray const bytes = isOpen ? file.readAll() : QByteArray();
        file.close();
        ReadSessionResult const stored = ReadSession(bytes);
        if (stored.failure)
            return GiveUp(*stored.failure);
        m_written = m_requested = bytes;
        extras = stored.session.extras;
        m_list.SetOutput(stored.session.output);
        for (Session::Entry const& entry : stored.session.films)
            m_list.Add({entry.path}).front()->SetChoice(entry.choice);
        return {};
    }

    QString GiveUp(SessionFailure failure)
    {
        QString const aside = SetAside(m_file);
        if (aside.isEmpty())
        {
            // Writing would destroy it.
            m_isKeeping = false;
            return tr("The last list of films, \"%1\", cannot be read, so nothing is saved this time: rename or remove "
                      "that file.")
                .arg(m_file);
        }
        if (failure == SessionFailure::Newer)
            return tr("The last list of films was written by a newer version of the program; it is kept as \"%1\". "
                      "Open your films again.")
                .arg(aside);
        return tr("The last list of films is damaged; it is kept as \"%1\". Open your films again.").arg(aside);
    }

    void Follow()
    {
        auto const note = [this] { NoteChange(); };
        connect(&m_list, &FilmList::FilmChanged, &m_owner, note);
        connect(&m_list, &FilmList::OutputChanged, &m_owner, note);
        connect(&m_list, &QAbstractItemModel::rowsInserted, &m_owner, note);
        connect(&m_list, &QAbstractItemModel::rowsRemoved, &m_owner, note);
    }

    [[nodiscard]] QByteArray Collect() const
    {
        Session session;
        session.output = m_list.GetOutput();
        for (Film const* film : m_list.GetFilms())
            session.films.push_back({film->GetPath(), film->GetChoice()});
        session.extras = extras;
        return WriteSession(session);
    }

    void SaveAside()
    {
        QByteArray const bytes = Collect();
        if (bytes == m_requested)
            return;
        m_requested = bytes;
        m_fileThread->Add(FileThread::Urgency::Soon,
                          [this, path = m_file, bytes]() -> FileThread::Delivery
                          { return [this, bytes, reason = WriteFile(path, bytes)] { NoteWritten(bytes, reason); }; });
    }

    void NoteWritten(QByteArray const& bytes, QString const& reason)
    {
        bool const failedBefore = std::exchange(m_hasFailed, !reason.isEmpty());
        if (reason.isEmpty())
        {
            m_written = bytes;
            return;
        }
        m_requested.clear(); // the next change tries again
        if (!failedBefore)
            Q_EMIT m_owner.SavingFailed(
                tr("The list of films could not be saved in \"%1\" (%2): check that you may write there.")
                    .arg(m_file, reason));
    }

    SessionStore& m_owner;
    FilmList& m_list;
    QString m_file;
    QTimer m_timer;
    QByteArray m_written;   ///< what the file holds
    QByteArray m_requested; ///< what it will hold when the last writing is through
    bool m_isKeeping = false;
    bool m_hasFailed = false;
    std::unique_ptr<FileThread> m_fileThread;
};

SessionStore::SessionStore(FilmList& list, ioPath file, QObject* parent)
    : QObject(parent),
      m_impl(std::make_unique<Impl>(*this, list, file))
{
}

SessionStore::~SessionStore() = default;

QString SessionStore::Restore()
{
    return m_impl->Restore();
}

void SessionStore::SetExtra(std::string const& name, QByteArray const& bytes)
{
    m_impl->extras[name] = bytes;
    m_impl->NoteChange();
}

QByteArray SessionStore::GetExtra(std::string const& name) const
{
    auto const found = m_impl->extras.find(name);
    return found == m_impl->extras.end() ? QByteArray() : found->second;
}

} // namespace Korvex::Desktop
