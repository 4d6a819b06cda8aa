#include "Desktop/Films/FilmList.h"

#include "Desktop/Films/FileKinds.h"
#include "Desktop/Films/FileStamp.h"
#include "Desktop/Films/FileThread.h"
#include "Desktop/Films/MediaReading.h"

#include "Core/Error.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace Korvex::Desktop
{

using Urgency = FileThread::Urgency;
using Delivery = FileThread::Delivery;

namespace
{

/// What may stand between a film's name and the rest of a subtitle file's: "Film.en.srt", "Film_forced.srt",
/// "Film - German.srt", but neither "Film 2.srt" nor "Film.2.srt" nor "Film Returns.srt".
bool IsAddition(QString const& rest)
{
    static QRegularExpression const ADDITION(QStringLiteral("^([._-]| -| [\\[(])\\W*+\\D"),
                                             QRegularExpression::UseUnicodePropertiesOption);
    return rest.isEmpty() || ADDITION.match(rest).hasMatch();
}

/// How much of the subtitle file's name is the film's: the longest has the best claim. 0: it is not the film's.
int MatchName(ioPath const& film, ioPath const& subtitles)
{
    QString const filmName = QString::fromStdString(film.Stem()).toCaseFolded();
    QString const name = QString::fromStdString(subtitles.Stem()).toCaseFolded();
    bool const isOf = name.startsWith(filmName) && IsAddition(name.mid(filmName.size()));
    return isOf ? filmName.size() : 0;
}

/// The same for all spellings of a path and all links to it; the path itself where there is no such file.
QString FindPlace(ioPath const& path)
{
    QString const given = QString::fromStdString(path.utf8string());
    QString const place = QFileInfo(given).canonicalFilePath();
    return place.isEmpty() ? given : place;
}

} // namespace

/// Answers of the reading thread name films by number: a film may be gone when they arrive.
class FilmList::Impl
{
public:
    Impl(FilmList& owner, Hosts::HostServices& services)
        : m_owner(owner),
          m_services(services),
          m_fileThread(std::make_shared<FileThread>())
    {
    }

    Film& Append(ioPath const& path)
    {
        auto film = std::make_unique<Film>(m_services, ++m_lastId, path, m_fileThread);
        FilmId const id = film->GetId();
        m_places[id] = FindPlace(path);
        film->SetOutput(output);
        connect(film.get(), &Film::Changed, &m_owner, [this, id] { NoteChange(id); });
        connect(film.get(), &Film::ApplyToAllRequested, &m_owner,
                [this, id] { Q_EMIT m_owner.ApplyToAllRequested(id); });
        int const row = static_cast<int>(films.size());
        m_owner.beginInsertRows({}, row, row);
        films.push_back(std::move(film));
        m_owner.endInsertRows();
        Read(*films.back());
        return *films.back();
    }

    void Read(Film const& film)
    {
        m_fileThread->Add(Urgency::Soon,
                          [this, id = film.GetId(), path = film.GetPath()]() -> Delivery
                          {
                              FileStamp const stamp = ReadStamp(path); // before: what is written meanwhile shows later
                              return [this, id, path, stamp, media = ReadHeaders(path)]
                              { NoteHeaders(id, path, stamp, media); };
                          });
    }

    void Move(Film& film, ioPath const& path)
    {
        m_places[film.GetId()] = FindPlace(path);
        film.SetReading(path);
        Read(film);
    }

    void Check(Film const& film)
    {
        m_fileThread->Add(
            Urgency::Soon,
            [this, id = film.GetId(), path = film.GetPath(), files = film.ListUnreadableFiles()]() -> Delivery
            {
                bool const isAnyOther = std::any_of(
                    files.begin(), files.end(), [](auto const& file) { return ReadStamp(file.first) != file.second; });
                auto const subtitles = isAnyOther ? SubtitleFiles::Changed : SubtitleFiles::AsBefore;
                return [this, id, path, stamp = ReadStamp(path), subtitles] { NoteFile(id, path, stamp, subtitles); };
            });
    }

    [[nodiscard]] std::vector<std::unique_ptr<Film>> TakeOut(int row, int count)
    {
        std::vector<std::unique_ptr<Film>> taken;
        auto const first = films.begin() + row;
        std::move(first, first + count, std::back_inserter(taken));
        films.erase(first, first + count);
        for (auto const& film : taken)
        {
            m_stamps.erase(film->GetId());
            m_places.erase(film->GetId());
        }
        return taken;
    }

    [[nodiscard]] Film* FindSame(ioPath const& path) const
    {
        QString const place = FindPlace(path);
        auto const isSame = [&](auto const& film)
        { return film->GetPath() == path || m_places.at(film->GetId()) == place; };
        auto const found = std::find_if(films.begin(), films.end(), isSame);
        return found == films.end() ? nullptr : found->get();
    }

    [[nodiscard]] Film* FindByName(ioPath const& subtitles) const
    {
        Film* best = nullptr;
        int bestLength = 0;
        for (auto const& film : films)
        {
            int const length = MatchName(film->GetPath(), subtitles);
            if (length <= bestLength)
                continue;
            best = film.get();
            bestLength = length;
        }
        return best;
    }

    std::vector<std::unique_ptr<Film>> films;
    OutputSettings output;

private:
    /// Those that could not be read.
    enum class SubtitleFiles
    {
        AsBefore,
        Changed,
    };

    /// The film, unless it went or moved meanwhile.
    [[nodiscard]] Film* FindRead(FilmId id, ioPath const& path) const
    {
        Film* film = m_owner.Find(id);
        return film != nullptr && film->GetPath() == path ? film : nullptr;
    }

    void NoteHeaders(FilmId id, ioPath const& path, FileStamp const& stamp, Core::Result<Proc::MediaInfo> const& media)
    {
        Film* film = FindRead(id, path);
        if (film == nullptr)
            return;
        m_stamps[id] = stamp;
        if (!media)
        {
            film->SetFailure(media.GetError());
            return;
        }
        film->SetMedia(*media);
        m_fileThread->Add(Urgency::Later,
                          [this, id, read = *media]() -> Delivery
                          {
                              return [this, id, path = read.path, thumbnail = ReadThumbnail(read)]
                              {
                                  if (Film* shown = FindRead(id, path))
                                      shown->SetThumbnail(thumbnail);
                              };
                          });
    }

    void NoteFile(FilmId id, ioPath const& path, FileStamp const& stamp, SubtitleFiles subtitles)
    {
        Film* film = FindRead(id, path);
        if (film == nullptr || film->GetState() == FilmState::Reading)
            return;
        bool const isMissing = film->GetState() == FilmState::Missing;
        if (stamp.IsThere() && (isMissing || stamp != m_stamps[id] || subtitles == SubtitleFiles::Changed))
        {
            film->SetReading(path);
            Read(*film);
        }
        else if (!stamp.IsThere() && !isMissing)
        {
            Core::Error error;
            error.code = Core::ErrorCode::FileNotFound;
            error.file = path;
            film->SetFailure(error);
        }
    }

    void NoteChange(FilmId id)
    {
        QModelIndex const index = m_owner.index(m_owner.FindRow(id));
        Q_EMIT m_owner.dataChanged(index, index);
        Q_EMIT m_owner.FilmChanged(id);
    }

    FilmList& m_owner;
    Hosts::HostServices& m_services;
    FilmId m_lastId = 0;
    std::map<FilmId, FileStamp> m_stamps; ///< of the films' files when they were read
    std::map<FilmId, QString> m_places;   ///< so that a new film is compared with the others without asking the disk
    std::shared_ptr<FileThread> m_fileThread; ///< shared with the films; what it delivers comes from the event loop
};

FilmList::FilmList(Hosts::HostServices& services, QObject* parent)
    : QAbstractListModel(parent),
      m_impl(std::make_unique<Impl>(*this, services))
{
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state)
            {
                if (state == Qt::ApplicationActive)
                    CheckFiles();
            });
}

FilmList::~FilmList() = default;

std::vector<Film*> FilmList::Add(std::vector<ioPath> const& paths)
{
    std::vector<Film*> films;
    for (ioPath const& given : paths)
    {
        ioPath const path = MakeAbsolute(given);
        Film* const known = m_impl->FindSame(path);
        films.push_back(known != nullptr ? known : &m_impl->Append(path));
    }
    return films;
}

std::vector<ioPath> FilmList::AddSubtitleFiles(std::vector<ioPath> const& files, Film* current)
{
    std::vector<ioPath> homeless;
    for (ioPath const& file : files)
    {
        Film* const named = m_impl->FindByName(file);
        Film* const film = named != nullptr ? named : current;
        if (film != nullptr)
            film->AddSubtitleFiles({file});
        else
            homeless.push_back(file);
    }
    return homeless;
}

void FilmList::Remove(FilmId id)
{
    if (int const row = FindRow(id); row >= 0)
        removeRows(row, 1);
}

bool FilmList::Locate(FilmId id, ioPath const& path)
{
    Film* const film = Find(id);
    ioPath const place = MakeAbsolute(path);
    Film const* const there = m_impl->FindSame(place);
    if (there != nullptr && there != film)
        return false;
    if (film != nullptr)
        m_impl->Move(*film, place);
    return true;
}

void FilmList::CheckFiles()
{
    for (auto const& film : m_impl->films)
        m_impl->Check(*film);
}

Film* FilmList::Find(FilmId id) const
{
    int const row = FindRow(id);
    return row < 0 ? nullptr : m_impl->films[static_cast<std::size_t>(row)].get();
}

std::vector<Film*> FilmList::GetFilms() const
{
    std::vector<Film*> films;
    for (auto const& film : m_impl->films)
        films.push_back(film.get());
    return films;
}

int FilmList::FindRow(FilmId id) const
{
    auto const& films = m_impl->films;
    auto const found = std::find_if(films.begin(), films.end(), [id](auto const& film) { return film->GetId() == id; });
    return found == films.end() ? -1 : static_cast<int>(found - films.begin());
}

OutputSettings const& FilmList::GetOutput() const
{
    return m_impl->output;
}

void FilmList::SetOutput(OutputSettings const& settings)
{
    m_impl->output = settings;
    for (auto const& film : m_impl->films)
        film->SetOutput(settings);
    Q_EMIT OutputChanged();
}

int FilmList::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_impl->films.size());
}

QVariant FilmList::data(QModelIndex const& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    Film& film = *m_impl->films[static_cast<std::size_t>(index.row())];
    switch (role)
    {
    case Qt::DisplayRole:
        return QString::fromStdString(film.GetPath().FileName());
    case Qt::DecorationRole:
        return film.GetThumbnail().isNull() ? QVariant() : QVariant(film.GetThumbnail());
    case Qt::ToolTipRole:
    {
        QStringList lines{QString::fromStdString(film.GetPath().utf8string())};
        for (FilmProblem const& problem : film.ListProblems())
            lines << problem.sentence;
        for (FilmRemark const& remark : film.ListRemarks())
            lines << remark.sentence;
        return lines.join(QLatin1Char('\n'));
    }
    case Qt::AccessibleDescriptionRole:
    {
        QStringList sentences{film.DescribeChoice()};
        for (FilmProblem const& problem : film.ListProblems())
            sentences << problem.sentence;
        for (FilmRemark const& remark : film.ListRemarks())
            sentences << remark.sentence;
        return sentences.join(QLatin1Char('\n'));
    }
    case FilmRole:
        return QVariant::fromValue(&film);
    default:
        return {};
    }
}

bool FilmList::removeRows(int row, int count, QModelIndex const& parent)
{
    if (parent.isValid() || row < 0 || count < 1 || row + count > rowCount())
        return false;
    beginRemoveRows(parent, row, row + count - 1);
    auto const removed = m_impl->TakeOut(row, count); // they go when nobody finds them here any more
    endRemoveRows();
    return true;
}

} // namespace Korvex::Desktop
