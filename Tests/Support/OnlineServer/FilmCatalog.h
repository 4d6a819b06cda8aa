#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

namespace Korvex::Testing
{

/// A language in the spellings of both interfaces.
struct CatalogLanguage
{
    QByteArray threeLetters; ///< legacy `SubLanguageID`
    QByteArray twoLetters;   ///< legacy `ISO639`
    QByteArray version1;     ///< as version 1 replies: "pt-BR"
    QByteArray name;
};

enum class FilmKind
{
    Movie,
    Series,
    Episode
};

struct Film
{
    int featureId = 0;
    FilmKind kind = FilmKind::Movie;
    QString title;
    QString originalTitle; ///< null where the service has none
    QString year;          ///< as the service writes it, at times empty or no number
    int imdbId = 0;
    int season = 0;
    int episode = 0;
    Film const* series = nullptr; ///< of an episode
    QByteArray movieHash = {};    ///< of the one known video file; empty: none
    qint64 movieBytes = 0;
};

struct SubtitleFile
{
    int fileId = 0;       ///< of version 1
    int legacyFileId = 0; ///< `IDSubtitleFile`
    int discNumber = 1;
    QString fileName; ///< with its extension
    QByteArray bytes;
};

/// One upload: a file, or one a disc.
struct Subtitle
{
    int id = 0;       ///< of version 1
    int legacyId = 0; ///< `IDSubtitle`
    Film const* film = nullptr;
    CatalogLanguage const* language = nullptr;
    QString release;
    QString group;
    QByteArray format;
    QByteArray statedEncoding; ///< what the legacy interface says, which need not be true
    int downloads = 0;
    std::optional<QString> comment;  ///< null in the replies when missing
    std::optional<QString> uploader; ///< the same
    double rating = 0.0;
    int votes = 0;
    double framesPerSecond = 0.0;
    QDateTime uploaded;
    unsigned marks = 0; ///< SubtitleMark values
    std::vector<SubtitleFile> files;

    [[nodiscard]] bool Has(unsigned mark) const { return (marks & mark) != 0; }
};

/// Marks of a subtitle, to be combined.
enum SubtitleMark : unsigned
{
    MARK_HEARING_IMPAIRED = 1U << 0U,
    MARK_FOREIGN_PARTS = 1U << 1U,
    MARK_MACHINE = 1U << 2U,    ///< machine translated
    MARK_ARTIFICIAL = 1U << 3U, ///< translated by an artificial intelligence
    MARK_TRUSTED = 1U << 4U,
    MARK_TRUST_UNKNOWN = 1U << 5U, ///< null in version 1
    MARK_HIGH_DEFINITION = 1U << 6U,
    MARK_NO_LEGACY_ID = 1U << 7U, ///< null in version 1
    MARK_NO_UPLOADER = 1U << 8U,
    MARK_TWO_DISCS = 1U << 9U,
    MARK_ALTERNATE = 1U << 10U,     ///< the legacy archive holds a second version of the file
    MARK_NO_FILE_NAME = 1U << 11U,  ///< version 1 gives an empty file name
    MARK_WITH_EXTENSION = 1U << 12U ///< version 1 gives the file name with its extension, which it rarely does
};

enum class LastWord
{
    IsWhole,
    MayBeBegun ///< as while somebody types
};

struct Upload;

/// The made-up films and what was uploaded for them. Built once; never changes.
class FilmCatalog
{
public:
    [[nodiscard]] static FilmCatalog const& Get();

    [[nodiscard]] std::vector<Film> const& GetFilms() const { return m_films; }
    /// In the order of the services' replies: most downloads first.
    [[nodiscard]] std::vector<Subtitle> const& GetSubtitles() const { return m_subtitles; }

    /// Whether every word is in the titles (the series' too), the year, or the release. No words: false.
    [[nodiscard]] static bool MatchesWords(Film const& film, QString const& release, QString const& words,
                                           LastWord lastWord = LastWord::IsWhole);

private:
    FilmCatalog();

    void AddFilms();
    void AddUploads();
    void AddLongCatalogue();
    void AddUpload(Upload const& upload);

    std::vector<Film> m_films;
    std::vector<Subtitle> m_subtitles;
};

} // namespace Korvex::Testing
