#include "Support/OnlineServer/FilmCatalog.h"

#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>
#include <map>

namespace Korvex::Testing
{

namespace
{

constexpr int FIRST_SUBTITLE_ID = 7'100'001;
constexpr int FIRST_FILE_ID = 8'200'001;
constexpr int FIRST_LEGACY_ID = 3'300'001;
constexpr int FIRST_LEGACY_FILE_ID = 1'950'000'001;

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
};

// Identifiers are given in this order: new rows go to the end.
constexpr Upload UPLOADS[] = {
    {99'000'101, "en", "The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL", 41'205, MARK_TRUSTED | MARK_HIGH_DEFINITION},
    {99'000'101, "en", "The.Lantern.Keeper.2014.720p.WEB-DL.H264-QUAY", 18'630, MARK_HIGH_DEFINITION},
    {99'000'101, "en", "The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL", 9'004, MARK_HEARING_IMPAIRED},
    {99'000'101, "en", "The.Lantern.Keeper.2014.DVDRip.XviD-MOOR", 2'210, MARK_FOREIGN_PARTS},
    {99'000'101, "fr", "The.Lantern.Keeper.2014.FRENCH.1080p.BluRay.x264-PHARE", 7'512, 0, "srt", "windows-1252"},
    {99'000'101, "fr", "The.Lantern.Keeper.2014.720p.WEB-DL.H264-QUAY", 310, MARK_MACHINE},
    {99'000'101, "de", "The.Lantern.Keeper.2014.German.DL.1080p.BluRay.x264-KOGGE", 6'044, MARK_TRUSTED},
    {99'000'101, "pt-BR", "The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL", 8'877},
    {99'000'101, "ru", "The.Lantern.Keeper.2014.BDRip.1080p", 3'901, 0, "srt", "windows-1251"},
    {99'000'101, "ja", "The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL", 990, 0, "ass"},
    {99'000'102, "en", "Salt.and.Ember.2019.2160p.WEB.h265-CINDER", 12'400, MARK_TRUSTED | MARK_HIGH_DEFINITION},
    {99'000'102, "fr", "Salt.and.Ember.2019.2160p.WEB.h265-CINDER", 2'040},
    {99'000'103, "en", "Harbour.Lights.2008.DVDRip.XviD.2CD-MOOR", 15'720, MARK_TWO_DISCS},
    {99'000'103, "de", "Harbour.Lights.2008.DVDRip.XviD.2CD-MOOR", 803, MARK_TWO_DISCS},
    {99'000'104, "de", "Ölberg.2016.German.1080p.WEB-DL.H264-KOGGE", 2'700, MARK_HIGH_DEFINITION},
    {99'000'105, "ru", "Северный маяк (1987) DVDRip", 640, 0, "srt", "windows-1251"},
    {99'000'105, "en", "Northern.Beacon.1987.DVDRip.XviD-MOOR", 512},
    {99'000'108, "fr", "Cafe.Meridian.2011.FRENCH.DVDRip.XviD-PHARE", 3'015, 0, "srt", "windows-1252"},
    {99'000'108, "en", "Cafe.Meridian.2011.720p.BluRay.x264-QUAY", 2'990, MARK_HEARING_IMPAIRED},
    {99'000'110, "en", "50.Percent.Chance.of.Rain.2017.1080p.WEB-DL-NIMBUS", 2'222},
    {99'000'111, "en", "Etude.in.C.Sharp.2013.720p.BluRay.x264-OPUS", 1'313},
    {99'000'201, "en", "Signal.Hill.S01E01.720p.HDTV.x264-RELAY", 22'840, MARK_TRUSTED | MARK_HIGH_DEFINITION},
    {99'000'201, "fr", "Signal.Hill.S01E01.720p.HDTV.x264-RELAY", 3'388},
    {99'000'202, "en", "Signal.Hill.S01E02.720p.HDTV.x264-RELAY", 21'002, MARK_TRUSTED | MARK_HIGH_DEFINITION},
    {99'000'202, "de", "Signal.Hill.S01E02.German.720p.HDTV.x264-KOGGE", 901},
};

CatalogLanguage const& FindLanguage(QByteArray const& version1)
{
    static CatalogLanguage const LANGUAGES[] = {{"eng", "en"},    {"fre", "fr"}, {"ger", "de"},
                                                {"pob", "pt-BR"}, {"rus", "ru"}, {"jpn", "ja"}};
    return *std::find_if(std::begin(LANGUAGES), std::end(LANGUAGES),
                         [&version1](CatalogLanguage const& language) { return language.version1 == version1; });
}

Film const& FindFilm(int imdbId)
{
    return *std::find_if(GetFilms().begin(), GetFilms().end(),
                         [imdbId](Film const& film) { return film.imdbId == imdbId; });
}

QStringList const& GetLines(QByteArray const& language)
{
    static std::map<QByteArray, QStringList> const LINES = {
        {"en", {"You kept the light burning all night.", "The tide turns at four.", "Not one letter arrived."}},
        {"fr", {"Tu as gardé la lampe allumée.", "La marée tourne à quatre heures.", "Aucune lettre n'est arrivée."}},
        {"de", {"Du hast das Licht brennen lassen.", "Um vier kommt die Flut.", "Hast du das gehört?"}},
        {"pt-BR", {"Você deixou a luz acesa a noite toda.", "A maré vira às quatro.", "É só o vento nos fios."}},
        {"ru", {"Ты всю ночь не гасил свет.", "В четыре начнётся прилив.", "Ни одно письмо не дошло."}},
        {"ja", {"一晩中、明かりを灯していたのね。", "潮は四時に変わる。", "一通も届かなかった。"}},
    };
    return LINES.at(language);
}

/// Lines end in CR LF, as most uploaded files' do. Different first seconds make different files.
QByteArray MakeText(Upload const& upload, QString const& title, int firstSecond)
{
    constexpr int CUE_COUNT = 24;
    constexpr int CUE_SECONDS = 5;
    bool const isAss = upload.format == QByteArray("ass");
    QString const cuePattern =
        isAss ? "Dialogue: 0,%2,%3,Default,,0,0,0,,%4%1\n" : QStringLiteral("%1\n%2 --> %3\n%4\n\n");
    QString const timePattern = isAss ? "h:mm:ss.00" : "hh:mm:ss,zzz";
    QString file = isAss ? "[Script Info]\nScriptType: v4.00+\n\n[V4+ Styles]\nFormat: Name, Fontname, Fontsize\n"
                           "Style: Default,Sans,48\n\n[Events]\nFormat: Layer, Start, End, Style, Name, MarginL, "
                           "MarginR, MarginV, Effect, Text\n"
                         : "";
    QStringList const& lines = GetLines(upload.language);
    for (int cue = 0; cue < CUE_COUNT; ++cue)
    {
        QTime const start = QTime(0, 0).addSecs(firstSecond + cue * CUE_SECONDS);
        file += cuePattern.arg(isAss ? QString() : QString::number(cue + 1), start.toString(timePattern),
                               start.addSecs(3).toString(timePattern), cue == 0 ? title : lines[cue % lines.size()]);
    }
    return QTextCodec::codecForName(upload.encoding)->fromUnicode(file.replace('\n', QLatin1String("\r\n")));
}

Subtitle MakeSubtitle(Upload const& upload, int number)
{
    Subtitle subtitle;
    subtitle.id = FIRST_SUBTITLE_ID + number;
    subtitle.legacyId = FIRST_LEGACY_ID + number;
    subtitle.film = &FindFilm(upload.imdbId);
    subtitle.language = &FindLanguage(upload.language);
    subtitle.release = QString::fromUtf8(upload.release);
    subtitle.format = QString::fromLatin1(upload.format);
    subtitle.downloads = upload.downloads;
    subtitle.marks = upload.marks;
    subtitle.uploaded = QDateTime(QDate(2021, 1, 5), QTime(13, 19, 24), Qt::UTC).addSecs(number * 86'477LL);
    int const discs = subtitle.Has(MARK_TWO_DISCS) ? 2 : 1;
    for (int disc = 1; disc <= discs; ++disc)
    {
        // Two numbers for each upload, whether or not it has two files.
        int const offset = 2 * number + disc - 1;
        QString const part = discs > 1 ? QStringLiteral(".CD%1.").arg(disc) : QStringLiteral(".");
        subtitle.files.push_back({FIRST_FILE_ID + offset, FIRST_LEGACY_FILE_ID + offset, disc,
                                  subtitle.release + part + subtitle.format,
                                  MakeText(upload, subtitle.film->title, offset)});
    }
    return subtitle;
}

/// Every word in lower case; all that is neither letter nor digit separates.
QStringList SplitWords(QString const& text)
{
    static QRegularExpression const SEPARATOR(QStringLiteral("[^\\p{L}\\p{N}]+"),
                                              QRegularExpression::UseUnicodePropertiesOption);
    return text.toLower().split(SEPARATOR, Qt::SkipEmptyParts);
}

} // namespace

std::vector<Film> const& GetFilms()
{
    // The hashes are those of 131,072 zero bytes, and of 131,072 bytes of which byte i is i & 255.
    static std::vector<Film> const FILMS = {
        {99'000'101, "The Lantern Keeper", 2014, "0000000000020000"},
        {99'000'102, "Salt & Ember", 2019, "a0601fdf9f610000"},
        {99'000'103, "Harbour Lights", 2008, "0000000000020000"},
        {99'000'104, "Ölberg", 2016},
        {99'000'105, "Northern Beacon", 1987},
        {99'000'108, "Café Meridian", 2011},
        {99'000'110, "50% Chance of Rain", 2017},
        {99'000'111, "Étude in C#", 2013},
        {99'000'201, "Static", 2015, {}, "Signal Hill", 1, 1},
        {99'000'202, "Carrier", 2015, {}, "Signal Hill", 1, 2},
    };
    return FILMS;
}

std::vector<Subtitle> const& GetSubtitles()
{
    static std::vector<Subtitle> const SUBTITLES = []
    {
        std::vector<Subtitle> subtitles;
        for (Upload const& upload : UPLOADS)
            subtitles.push_back(MakeSubtitle(upload, static_cast<int>(subtitles.size())));
        std::stable_sort(subtitles.begin(), subtitles.end(),
                         [](Subtitle const& left, Subtitle const& right) { return left.downloads > right.downloads; });
        return subtitles;
    }();
    return SUBTITLES;
}

bool MatchesWords(Film const& film, QString const& release, QString const& words)
{
    QStringList const known =
        SplitWords(film.title + ' ' + film.series + ' ' + QString::number(film.year) + ' ' + release);
    QStringList const wanted = SplitWords(words);
    return !wanted.isEmpty() &&
           std::all_of(wanted.begin(), wanted.end(), [&known](QString const& word) { return known.contains(word); });
}

QStringList FindTitles(QString const& begun)
{
    QStringList titles;
    for (Film const& film : GetFilms())
    {
        QString const& title = film.series.isEmpty() ? film.title : film.series;
        if (title.contains(begun, Qt::CaseInsensitive) && !titles.contains(title))
            titles.append(title);
    }
    return titles;
}

} // namespace Korvex::Testing
