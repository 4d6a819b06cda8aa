#include "Support/OnlineServer/FilmCatalog.h"

#include "Support/OnlineServer/SubtitleTexts.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <stdexcept>

namespace Korvex::Testing
{

/// A row of the table of uploads.
struct Upload
{
    int imdbId;
    char const* language; ///< as version 1 writes it
    char const* release;
    int downloads;
    unsigned marks = 0;
    char const* format = "srt";
    char const* encoding = "UTF-8";
    char const* statedEncoding = nullptr; ///< empty: the true one
    char const* comment = nullptr;
};

namespace
{

constexpr int FIRST_SUBTITLE_ID = 7'100'001;
constexpr int FIRST_FILE_ID = 8'200'001;
constexpr int FIRST_LEGACY_ID = 3'300'001;
constexpr int FIRST_LEGACY_FILE_ID = 1'950'000'001;
constexpr int LONG_CATALOGUE_ID = 99'000'113;
constexpr int LONG_CATALOGUE_ROWS = 120;

CatalogLanguage const& FindLanguage(QByteArray const& version1)
{
    static std::vector<CatalogLanguage> const LANGUAGES = {
        {"eng", "en", "en", "English"},      {"fre", "fr", "fr", "French"},
        {"ger", "de", "de", "German"},       {"spa", "es", "es", "Spanish"},
        {"pob", "pb", "pt-BR", "Brazilian"}, {"rus", "ru", "ru", "Russian"},
        {"jpn", "ja", "ja", "Japanese"},     {"chi", "zh", "zh-CN", "Chinese (simplified)"},
    };
    auto const found =
        std::find_if(LANGUAGES.begin(), LANGUAGES.end(),
                     [&version1](CatalogLanguage const& language) { return language.version1 == version1; });
    if (found == LANGUAGES.end())
        throw std::invalid_argument("no such language in the film library: " + version1.toStdString());
    return *found;
}

/// Every word in lower case; all that is neither letter nor digit separates.
QStringList SplitWords(QString const& text)
{
    static QRegularExpression const SEPARATOR(QStringLiteral("[^\\p{L}\\p{N}]+"),
                                              QRegularExpression::UseUnicodePropertiesOption);
    return text.toLower().split(SEPARATOR, Qt::SkipEmptyParts);
}

} // namespace

FilmCatalog const& FilmCatalog::Get()
{
    static FilmCatalog const CATALOG;
    return CATALOG;
}

FilmCatalog::FilmCatalog()
{
    AddFilms();
    AddUploads();
    AddLongCatalogue();
    std::stable_sort(m_subtitles.begin(), m_subtitles.end(),
                     [](Subtitle const& left, Subtitle const& right) { return left.downloads > right.downloads; });
}

void FilmCatalog::AddFilms()
{
    // The hashes are those of 131,072 zero bytes, and of 131,072 bytes of which byte i is i & 255.
    m_films = {
        {500'101, FilmKind::Movie, "The Lantern Keeper", "The Lantern Keeper", "2014", 99'000'101, 0, 0, nullptr,
         "0000000000020000", 131'072},
        {500'102, FilmKind::Movie, "Salt & Ember", "Salt & Ember", "2019", 99'000'102, 0, 0, nullptr,
         "a0601fdf9f610000", 131'072},
        {500'103,
         FilmKind::Movie,
         "Harbour Lights",
         {},
         "2008",
         99'000'103,
         0,
         0,
         nullptr,
         "0000000000020000",
         131'072},
        {500'104, FilmKind::Movie, "Ölberg", "Ölberg", "2016", 99'000'104},
        {500'105, FilmKind::Movie, "Northern Beacon", "Северный маяк", "1987", 99'000'105},
        {500'106, FilmKind::Movie, "Night Ferry", "夜行フェリー", "2003", 99'000'106},
        {500'107, FilmKind::Movie, "Io", {}, "", 99'000'107},
        {500'108, FilmKind::Movie, "Café Meridian", "Café Méridien", "2011", 99'000'108},
        {500'109, FilmKind::Movie, "The Quiet Orchard", {}, "1961", 51'987},
        {500'110, FilmKind::Movie, "50% Chance of Rain", "50% Chance of Rain", "2017", 99'000'110},
        {500'111, FilmKind::Movie, "Étude in C#", "Étude in C#", "2013", 99'000'111},
        {500'112, FilmKind::Movie, "Paper Moons, Paper Seas", {}, "2005-2007", 99'000'112},
        {500'113, FilmKind::Movie, "The Long Catalogue", {}, "1999", LONG_CATALOGUE_ID},
        {500'200, FilmKind::Series, "Signal Hill", "Signal Hill", "2015", 99'000'200},
        {500'201, FilmKind::Episode, "Static", {}, "2015", 99'000'201, 1, 1},
        {500'202, FilmKind::Episode, "Carrier", {}, "2015", 99'000'202, 1, 2},
        {500'203, FilmKind::Episode, "Noise Floor", {}, "2015", 99'000'203, 1, 3},
        {500'204, FilmKind::Episode, "Episode #2.1", {}, "2016", 99'000'204, 2, 1},
        {500'300, FilmKind::Series, "Die Werft", "Die Werft", "2020", 99'000'300},
        {500'301, FilmKind::Episode, "Stapellauf", {}, "2020", 99'000'301, 1, 1},
        {500'302, FilmKind::Episode, "Werftruhe", {}, "2020", 99'000'302, 1, 2},
    };
    Film const* series = nullptr;
    for (Film& film : m_films)
    {
        if (film.kind == FilmKind::Series)
            series = &film;
        else if (film.kind == FilmKind::Episode)
            film.series = series;
    }
}

void FilmCatalog::AddUploads()
{
    // Identifiers are given in this order: new rows go to the end.
    static Upload const UPLOADS[] = {
        {99'000'101, "en", "The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL", 41'205,
         MARK_TRUSTED | MARK_HIGH_DEFINITION},
        {99'000'101, "en", "The.Lantern.Keeper.2014.720p.WEB-DL.H264-QUAY", 18'630,
         MARK_HIGH_DEFINITION | MARK_ALTERNATE},
        {99'000'101, "en", "The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL", 9'004,
         MARK_HEARING_IMPAIRED | MARK_HIGH_DEFINITION, "srt", "UTF-8", nullptr,
         "For the hearing impaired.\nSynced by ear."},
        {99'000'101, "en", "The.Lantern.Keeper.2014.DVDRip.XviD-MOOR", 2'210, MARK_FOREIGN_PARTS | MARK_NO_UPLOADER},
        {99'000'101, "fr", "The.Lantern.Keeper.2014.FRENCH.1080p.BluRay.x264-PHARE", 7'512, MARK_HIGH_DEFINITION, "srt",
         "windows-1252", "CP1252"},
        {99'000'101, "fr", "The.Lantern.Keeper.2014.720p.WEB-DL.H264-QUAY", 310, MARK_ARTIFICIAL | MARK_MACHINE},
        {99'000'101, "de", "The.Lantern.Keeper.2014.German.DL.1080p.BluRay.x264-KOGGE", 6'044, MARK_TRUSTED, "srt",
         "UTF-8", "CP1252|ISO-8859-"},
        {99'000'101, "es", "The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL", 5'120, MARK_TRUST_UNKNOWN, "ass"},
        {99'000'101, "pt-BR", "The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL", 8'877, MARK_WITH_EXTENSION, "srt",
         "UTF-8", nullptr, "Tradução &amp; revisão"},
        {99'000'101, "ru", "The.Lantern.Keeper.2014.BDRip.1080p", 3'901, MARK_NO_UPLOADER, "srt", "windows-1251",
         "CP1251"},
        {99'000'101, "ja", "The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL", 990, 0, "ass"},
        {99'000'101, "zh-CN", "The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL", 1'240, MARK_MACHINE, "srt", "GB18030",
         "CP936"},
        {99'000'102, "en", "Salt.and.Ember.2019.2160p.WEB.h265-CINDER", 12'400, MARK_TRUSTED | MARK_HIGH_DEFINITION},
        {99'000'102, "fr", "Salt.and.Ember.2019.2160p.WEB.h265-CINDER", 2'040, MARK_NO_FILE_NAME},
        {99'000'102, "de", "Salt.and.Ember.2019.German.1080p.WEB.h264-ASCHE", 1'880, MARK_MACHINE},
        {99'000'103, "en", "Harbour.Lights.2008.DVDRip.XviD.2CD-MOOR", 15'720, MARK_TWO_DISCS},
        {99'000'103, "en", "Harbour.Lights.2008.720p.BluRay.x264-TIDAL", 4'411, MARK_HIGH_DEFINITION},
        {99'000'103, "de", "Harbour.Lights.2008.DVDRip.XviD.2CD-MOOR", 803, MARK_TWO_DISCS | MARK_ALTERNATE, "srt",
         "windows-1252", "CP1252"},
        {99'000'104, "de", "Ölberg.2016.German.1080p.WEB-DL.H264-KOGGE", 2'700, MARK_HIGH_DEFINITION},
        {99'000'104, "en", "Olberg.2016.1080p.WEB-DL.H264-KOGGE", 1'105, 0, "srt", "UTF-8", "CP1252"},
        {99'000'105, "ru", "Северный маяк (1987) DVDRip", 640, MARK_NO_UPLOADER, "srt", "windows-1251", "CP1251"},
        {99'000'105, "en", "Northern.Beacon.1987.DVDRip.XviD-MOOR", 512, MARK_NO_LEGACY_ID},
        {99'000'106, "ja", "夜行フェリー.2003.720p.BluRay", 301, 0, "ass"},
        {99'000'106, "en", "Night.Ferry.2003.720p.BluRay.x264-AOMORI", 1'604, MARK_HIGH_DEFINITION},
        {99'000'107, "en", "Io.2021.1080p.WEB.H264-JOVIAN", 777, MARK_TRUST_UNKNOWN | MARK_NO_LEGACY_ID},
        {99'000'108, "fr", "Cafe.Meridian.2011.FRENCH.DVDRip.XviD-PHARE", 3'015, 0, "srt", "windows-1252", "CP1252"},
        {99'000'108, "en", "Cafe.Meridian.2011.720p.BluRay.x264-QUAY", 2'990, MARK_HEARING_IMPAIRED},
        {51'987, "en", "The.Quiet.Orchard.1961.RESTORED.1080p.BluRay.x264-PIPPIN", 450, MARK_HEARING_IMPAIRED},
        {51'987, "fr", "The.Quiet.Orchard.1961.RESTORED.1080p.BluRay.x264-PIPPIN", 120, MARK_NO_LEGACY_ID},
        {99'000'110, "en", "50.Percent.Chance.of.Rain.2017.1080p.WEB-DL-NIMBUS", 2'222},
        {99'000'111, "en", "Etude.in.C.Sharp.2013.720p.BluRay.x264-OPUS", 1'313},
        {99'000'112, "en", "Paper.Moons.Paper.Seas.DVDRip.XviD-ORIGAMI", 606, MARK_NO_UPLOADER},
        {99'000'201, "en", "Signal.Hill.S01E01.720p.HDTV.x264-RELAY", 22'840, MARK_TRUSTED | MARK_HIGH_DEFINITION},
        {99'000'201, "en", "Signal.Hill.S01E01.1080p.WEB-DL.H264-QUAY", 12'019, MARK_HEARING_IMPAIRED},
        {99'000'201, "fr", "Signal.Hill.S01E01.720p.HDTV.x264-RELAY", 3'388},
        {99'000'202, "en", "Signal.Hill.S01E02.720p.HDTV.x264-RELAY", 21'002, MARK_TRUSTED | MARK_HIGH_DEFINITION},
        {99'000'202, "de", "Signal.Hill.S01E02.German.720p.HDTV.x264-KOGGE", 901},
        {99'000'203, "en", "Signal.Hill.S01E03.720p.HDTV.x264-RELAY", 19'777, MARK_HIGH_DEFINITION},
        {99'000'204, "en", "Signal.Hill.S02E01.720p.HDTV.x264-RELAY", 15'040, MARK_HIGH_DEFINITION},
        {99'000'301, "de", "Die.Werft.S01E01.German.1080p.WEB.H264-KOGGE", 4'004, MARK_HIGH_DEFINITION},
        {99'000'302, "de", "Die.Werft.S01E02.German.1080p.WEB.H264-KOGGE", 3'777, MARK_HEARING_IMPAIRED},
        {99'000'302, "en", "Die.Werft.S01E02.1080p.WEB.H264-KOGGE", 288, MARK_ARTIFICIAL},
    };
    for (Upload const& upload : UPLOADS)
        AddUpload(upload);
}

void FilmCatalog::AddLongCatalogue()
{
    for (int row = 0; row < LONG_CATALOGUE_ROWS; ++row)
    {
        QByteArray const release = QStringLiteral("The.Long.Catalogue.1999.Reel.%1.DVDRip-INDEX")
                                       .arg(row + 1, 3, 10, QLatin1Char('0'))
                                       .toUtf8();
        AddUpload({LONG_CATALOGUE_ID, "en", release.constData(), LONG_CATALOGUE_ROWS - row});
    }
}

void FilmCatalog::AddUpload(Upload const& upload)
{
    int const number = static_cast<int>(m_subtitles.size());
    Subtitle subtitle;
    subtitle.id = FIRST_SUBTITLE_ID + number;
    subtitle.legacyId = FIRST_LEGACY_ID + number;
    auto const film = std::find_if(m_films.begin(), m_films.end(),
                                   [&upload](Film const& candidate) { return candidate.imdbId == upload.imdbId; });
    if (film == m_films.end())
        throw std::invalid_argument("no such film in the film library");
    subtitle.film = &*film;
    subtitle.language = &FindLanguage(upload.language);
    subtitle.release = QString::fromUtf8(upload.release);
    subtitle.group = subtitle.release.contains('-') ? subtitle.release.section('-', -1) : QString();
    subtitle.format = upload.format;
    subtitle.statedEncoding = upload.statedEncoding ? upload.statedEncoding : upload.encoding;
    subtitle.downloads = upload.downloads;
    subtitle.marks = upload.marks;
    if (upload.comment)
        subtitle.comment = QString::fromUtf8(upload.comment);
    else if (number % 2 == 0)
        subtitle.comment = QString();
    if (!subtitle.Has(MARK_NO_UPLOADER))
        subtitle.uploader = QStringLiteral("reader-%1").arg(number % 7 + 1);
    subtitle.votes = number % 5;
    subtitle.rating = subtitle.votes == 0 ? 0.0 : 6.0 + subtitle.votes * 0.8;
    subtitle.framesPerSecond = number % 3 == 0 ? 0.0 : number % 3 == 1 ? 23.976 : 25.0;
    subtitle.uploaded = QDateTime(QDate(2021, 1, 5), QTime(13, 19, 24), Qt::UTC).addSecs(number * 86'477LL);

    int const discs = subtitle.Has(MARK_TWO_DISCS) ? 2 : 1;
    for (int disc = 1; disc <= discs; ++disc)
    {
        SubtitleFile file;
        // Two numbers for each upload, whether or not it has two files.
        file.fileId = FIRST_FILE_ID + 2 * number + disc - 1;
        file.legacyFileId = FIRST_LEGACY_FILE_ID + 2 * number + disc - 1;
        file.discNumber = disc;
        file.fileName = subtitle.release + (discs > 1 ? QStringLiteral(".CD%1.").arg(disc) : QStringLiteral(".")) +
                        QString::fromLatin1(subtitle.format);
        file.bytes = MakeSubtitleText({film->title, subtitle.language->version1, subtitle.format, upload.encoding, disc,
                                       number, subtitle.Has(MARK_HEARING_IMPAIRED)});
        subtitle.files.push_back(std::move(file));
    }
    m_subtitles.push_back(std::move(subtitle));
}

bool FilmCatalog::MatchesWords(Film const& film, QString const& release, QString const& words, LastWord lastWord)
{
    QString const known = film.title + ' ' + film.originalTitle + ' ' + film.year + ' ' + release + ' ' +
                          (film.series ? film.series->title : QString());
    QStringList const knownWords = SplitWords(known);
    QStringList wanted = SplitWords(words);
    if (wanted.isEmpty())
        return false;
    if (lastWord == LastWord::MayBeBegun)
    {
        QString const begun = wanted.takeLast();
        if (std::none_of(knownWords.begin(), knownWords.end(),
                         [&begun](QString const& word) { return word.startsWith(begun); }))
            return false;
    }
    return std::all_of(wanted.begin(), wanted.end(),
                       [&knownWords](QString const& word) { return knownWords.contains(word); });
}

} // namespace Korvex::Testing
