#include "Subtitles/UseCases/SearchQuery.h"

#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"
#include "Subtitles/UseCases/ImdbId.h"
#include "Subtitles/UseCases/NfoFile.h"
#include "Subtitles/UseCases/TitleFolding.h"

#include <QSet>

#include <algorithm>

namespace Korvex::Converter::Subtitles::UseCases
{

using Entities::SearchTags;
using Entities::SubtitleSearchMediaInfoSettings;

namespace
{

/// Folders that say where a film is kept, not what it is.
bool IsPlaceName(QString const& folded)
{
    static QSet<QString> const NAMES = {
        QStringLiteral("download"),  QStringLiteral("downloads"), QStringLiteral("video"),
        QStringLiteral("videos"),    QStringLiteral("movie"),     QStringLiteral("movies"),
        QStringLiteral("film"),      QStringLiteral("films"),     QStringLiteral("tv"),
        QStringLiteral("series"),    QStringLiteral("tv series"), QStringLiteral("tv shows"),
        QStringLiteral("shows"),     QStringLiteral("anime"),     QStringLiteral("desktop"),
        QStringLiteral("documents"), QStringLiteral("home"),      QStringLiteral("media"),
        QStringLiteral("tmp"),       QStringLiteral("temp"),      QStringLiteral("new folder"),
        QStringLiteral("complete"),  QStringLiteral("torrents")};
    return folded.isEmpty() || NAMES.contains(folded);
}

/// Folders of a disc's own structure.
bool IsDiscFolder(QString const& folded)
{
    return folded == QLatin1String("video ts") || folded == QLatin1String("bdmv") ||
           folded == QLatin1String("stream") || folded == QLatin1String("dvd") || folded == QLatin1String("disc");
}

/// Titles that tell nothing, as files and title tags have them.
bool IsEmptyTitle(std::string const& title)
{
    static QSet<QString> const NAMES = {
        QStringLiteral("untitled"),    QStringLiteral("no title"),   QStringLiteral("unknown"), QStringLiteral("title"),
        QStringLiteral("new project"), QStringLiteral("dvd video"),  QStringLiteral("main"),    QStringLiteral("index"),
        QStringLiteral("main movie"),  QStringLiteral("main title"), QStringLiteral("sample"),  QStringLiteral("file"),
        QStringLiteral("00000"),       QStringLiteral("00001"),      QStringLiteral("00800")};
    QString const folded = FoldTitle(title);
    for (char const* const beginning :
         {"encoded by", "ripped by", "created by", "made with", "uploaded by", "rip by", "converted by",
          "downloaded from", "vts ", "video ts", "www ", "http", "lavf", "visit "})
    {
        if (folded.startsWith(QLatin1String(beginning)))
            return true;
    }
    return IsPlaceName(folded) || NAMES.contains(folded);
}

bool HasReleaseTags(ReleaseName const& name)
{
    return !name.resolution.empty() || !name.source.empty() || !name.videoCodec.empty();
}

bool IsSeasonFolder(ReleaseName const& folder)
{
    return folder.title.empty() && folder.season && folder.episodes.empty();
}

bool HasEpisode(ReleaseName const& name)
{
    return name.season || !name.episodes.empty();
}

/// The number that a name begins with, of at most three digits: "05 - Pilot", "05.mkv".
std::optional<int> ReadLeadingNumber(std::string const& name)
{
    constexpr std::size_t MOST_DIGITS = 3;
    std::size_t const digits = std::min(name.find_first_not_of("0123456789"), name.size());
    bool const isNumber = digits > 0 && digits <= MOST_DIGITS &&
                          (digits == name.size() || std::string(" ._-").find(name[digits]) != std::string::npos);
    return isNumber ? std::optional(std::stoi(name.substr(0, digits))) : std::nullopt;
}

/// What the names of a file and of the folders around it say together.
class PathReader
{
public:
    explicit PathReader(ioPath const& path) : m_name(path.FileName()), m_file(ParseReleaseName(m_name))
    {
        ioPath folder = path.Parent();
        if (m_name.empty() || IsDiscFolder(FoldTitle(m_name))) // a disc is opened by its folder
            m_file = ReleaseName();
        while (!folder.empty() && IsDiscFolder(FoldTitle(folder.FileName())))
            folder = folder.Parent();
        m_folder = ParseReleaseName(folder.FileName());
        m_outer = ParseReleaseName(folder.Parent().FileName());
    }

    ReleaseName Read()
    {
        if (IsSeasonFolder(m_folder))
            ReadSeasonFolder();
        else if (IsFileNamedForNothing())
            TakeTitle(m_folder);
        else
            TakeMissing(m_folder);
        if (m_file.imdbId.empty() && !HasEpisode(m_file))
            m_file.imdbId = m_folder.imdbId; // of a series' folder it is the series'
        return m_file;
    }

private:
    /// Also true for the short names that some groups give ("spr-wh1080.mkv" in the release's folder).
    [[nodiscard]] bool IsFileNamedForNothing() const
    {
        bool const isBare = !m_file.year && !HasEpisode(m_file) && !HasReleaseTags(m_file);
        return m_file.title.empty() || IsEmptyTitle(m_file.title) ||
               (isBare && HasReleaseTags(m_folder) && (m_folder.year || HasEpisode(m_folder)));
    }

    void ReadSeasonFolder()
    {
        auto const number = ReadLeadingNumber(m_name);
        if (m_file.episodes.empty() && number)
        {
            m_file.episodes = {*number};
            m_file.title.clear();
        }
        if (!m_file.season)
            m_file.season = m_folder.season;
        m_file.isAbsoluteEpisode = false;
        if (m_file.title.empty() || m_file.episodes.empty())
            TakeTitle(m_outer);
        else
            TakeMissing(m_outer);
    }

    void TakeTitle(ReleaseName const& from)
    {
        if (IsPlaceName(FoldTitle(from.title)))
            return;
        m_file.title = from.title;
        AddMissing(from);
    }

    /// From a folder that is called after the same film.
    void TakeMissing(ReleaseName const& from)
    {
        if (IsSameTitle(m_file.title, from.title))
            AddMissing(from);
    }

    void AddMissing(ReleaseName const& from)
    {
        if (!m_file.year)
            m_file.year = from.year;
        if (!m_file.season && from.season)
        {
            m_file.season = from.season;
            m_file.isAbsoluteEpisode = false;
        }
        if (m_file.episodes.empty())
            m_file.episodes = from.episodes;
        for (auto const field :
             {&ReleaseName::resolution, &ReleaseName::source, &ReleaseName::videoCodec, &ReleaseName::group})
        {
            if ((m_file.*field).empty())
                m_file.*field = from.*field;
        }
    }

    std::string m_name;
    ReleaseName m_file;
    ReleaseName m_folder;
    ReleaseName m_outer;
};

/// Whether the title is that of the episode: the file's name goes on with it behind the series' title.
bool IsEpisodeTitle(std::string const& title, ReleaseName const& file, std::string const& fileName)
{
    if (!HasEpisode(file) || file.title.empty())
        return false;
    QString const words = QLatin1Char(' ') + FoldTitle(title) + QLatin1Char(' ');
    // Dots part the words of such names, but belong to abbreviations elsewhere.
    std::string spaced = fileName;
    std::replace_if(
        spaced.begin(), spaced.end(), [](char c) { return c == '.' || c == '_'; }, ' ');
    QString const name = QLatin1Char(' ') + FoldTitle(spaced) + QLatin1Char(' ');
    QString const series = QLatin1Char(' ') + FoldTitle(file.title) + QLatin1Char(' ');
    return name.contains(words) && !series.contains(words);
}

/// Puts the host's title in front of the one that the names give.
void ApplyTitle(SubtitleSearchMediaInfoSettings const& media, SearchedFilm& film)
{
    std::string const fileName = media.path.FileName();
    bool const isGroup = !film.release.group.empty() && IsSameTitle(media.title, film.release.group);
    bool const isUseless = IsEmptyTitle(media.title) || isGroup || IsEpisodeTitle(media.title, film.release, fileName);
    if (isUseless && !film.title.empty())
        return;
    ReleaseName const parsed = ParseReleaseName(media.title);
    bool const isReleaseName = (HasReleaseTags(parsed) || HasEpisode(parsed)) && !parsed.title.empty();
    if (!isReleaseName)
    {
        film.title = media.title;
        return;
    }
    film.title = parsed.title;
    if (!film.year)
        film.year = parsed.year;
    if (!film.season && film.episodes.empty())
    {
        film.season = parsed.season;
        film.episodes = parsed.episodes;
    }
}

} // namespace

SearchedFilm DescribeFilmByName(SubtitleSearchMediaInfoSettings const& media)
{
    SearchedFilm film;
    film.release = PathReader(media.path).Read();
    film.title = film.release.title;
    film.year = film.release.year;
    film.season = film.release.season;
    film.episodes = film.release.episodes;
    if (!media.title.empty())
        ApplyTitle(media, film);
    if (media.year)
        film.year = media.year;
    if (media.season)
        film.season = media.season;
    if (media.episode)
        film.episodes = {*media.episode};
    film.imdbId = CleanImdbId(media.imdbId);
    if (film.imdbId.empty())
        film.imdbId = film.release.imdbId;
    return film;
}

SearchedFilm DescribeFilm(SubtitleSearchMediaInfoSettings const& media)
{
    SearchedFilm film = DescribeFilmByName(media);
    if (film.imdbId.empty() && !media.isDvd)
        film.imdbId = FindImdbIdInNfo(media.path);
    return film;
}

SearchRequest MakeSearchRequest(SearchedFilm const& film)
{
    SearchRequest request;
    if (std::string const title = CleanTitle(film.title); !title.empty())
        request.tags[SearchTags::TITLE] = title;
    if (!film.imdbId.empty())
        request.tags[SearchTags::IMDB_ID] = film.imdbId;
    if (request.tags.empty())
        return request;
    if (film.season)
        request.tags[SearchTags::SEASON_NUMBER] = std::to_string(*film.season);
    if (!film.episodes.empty())
        request.tags[SearchTags::EPISODE_NUMBER] = std::to_string(film.episodes.front());
    return request;
}

std::string CleanTitle(std::string const& title)
{
    static QString const SIGNS = QStringLiteral("&#+%/?\\\"<>");
    constexpr int LONGEST = 200;
    QString text = QString::fromStdString(title);
    for (QChar& c : text)
    {
        bool const isUnseen = c.category() == QChar::Other_Control || c.category() == QChar::Other_Format;
        if (isUnseen || SIGNS.contains(c))
            c = QLatin1Char(' ');
    }
    text = text.simplified();
    if (text.size() > LONGEST)
    {
        int const blank = text.lastIndexOf(QLatin1Char(' '), LONGEST);
        text.truncate(blank > 0 ? blank : LONGEST - (text.at(LONGEST).isLowSurrogate() ? 1 : 0));
    }
    return text.toStdString();
}

} // namespace Korvex::Converter::Subtitles::UseCases
