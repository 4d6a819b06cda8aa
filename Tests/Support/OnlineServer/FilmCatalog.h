#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <vector>

namespace Korvex::Testing
{

/// A language in the spellings of both interfaces.
struct CatalogLanguage
{
    char const* threeLetters; ///< legacy `SubLanguageID`
    char const* version1;     ///< as version 1 replies: "pt-BR"
};

/// A film, or an episode of a series.
struct Film
{
    int imdbId = 0;
    QString title;
    int year = 0;
    QString movieHash = {}; ///< of the one known video file of 131,072 bytes; empty: none
    QString series = {};    ///< empty for a film
    int season = 0;
    int episode = 0;
};

/// A mark of a subtitle, to be combined.
enum SubtitleMark : unsigned
{
    MARK_HEARING_IMPAIRED = 1U << 0U,
    MARK_FOREIGN_PARTS = 1U << 1U,
    MARK_MACHINE = 1U << 2U, ///< machine translated
    MARK_TRUSTED = 1U << 3U,
    MARK_HIGH_DEFINITION = 1U << 4U,
    MARK_TWO_DISCS = 1U << 5U
};

struct SubtitleFile
{
    int fileId = 0;       ///< of version 1
    int legacyFileId = 0; ///< `IDSubtitleFile`
    int discNumber = 1;
    QString name; ///< with its extension
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
    QString format; ///< "srt" or "ass"
    int downloads = 0;
    unsigned marks = 0; ///< SubtitleMark values
    QDateTime uploaded;
    std::vector<SubtitleFile> files;

    [[nodiscard]] bool Has(unsigned mark) const { return (marks & mark) != 0; }
};

/// The made-up films.
[[nodiscard]] std::vector<Film> const& GetFilms();

/// What was uploaded for them, in the order of the services' replies: most downloads first.
[[nodiscard]] std::vector<Subtitle> const& GetSubtitles();

/// Whether every word is in the titles (the series' too), the year, or the release. No words: false.
[[nodiscard]] bool MatchesWords(Film const& film, QString const& release, QString const& words);

/// Titles of films and series for somebody who has typed so far.
[[nodiscard]] QStringList FindTitles(QString const& begun);

} // namespace Korvex::Testing
