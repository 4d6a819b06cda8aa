#include "Subtitles/UseCases/ReleaseTags.h"

#include "Subtitles/Entities/Language.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace Korvex::Converter::Subtitles::UseCases
{

namespace
{

namespace Language = Entities::Language;
using Kind = ReleaseTag::Kind;
using Strength = ReleaseTag::Strength;

/// Keys that mean the same; a hyphen stands for whatever parts two words.
struct TagRow
{
    Kind kind;
    Strength strength;
    char const* value;
    std::vector<char const*> keys;
};

std::vector<TagRow> const& GetTagRows()
{
    static std::vector<TagRow> const ROWS = {
        {Kind::Resolution, Strength::Sure, "2160p", {"4k", "ultrahd", "ultra-hd"}},
        {Kind::Resolution, Strength::Sure, "4320p", {"8k"}},
        {Kind::Source,
         Strength::Sure,
         "BluRay",
         {"bluray", "blu-ray", "bdrip", "bd-rip", "brrip", "br-rip", "bdremux", "bd-remux", "bdmv", "bd25", "bd50",
          "bd66", "bd100", "uhdrip", "bd1080p", "bd720p", "hddvd", "hd-dvd"}},
        {Kind::Source, Strength::UpperTail, "BluRay", {"bd"}},
        {Kind::Source, Strength::Sure, "WEB-DL", {"web-dl", "webdl", "web-hd", "webhd"}},
        {Kind::Source, Strength::UpperTail, "WEB-DL", {"web"}},
        {Kind::Source, Strength::Sure, "WEBRip", {"webrip", "web-rip", "web-cap", "webcap"}},
        {Kind::Source,
         Strength::Sure,
         "HDTV",
         {"hdtv", "hd-tv", "hdtvrip", "hdtv-rip", "pdtv", "sdtv", "dvbrip", "tvrip", "tv-rip", "satrip", "sat-rip",
          "dsr", "dsrip", "uhdtv", "dtvrip", "iptvrip"}},
        {Kind::Source, Strength::Sure, "HDRip", {"hdrip", "hd-rip", "microhd", "hdlight"}},
        {Kind::Source,
         Strength::Sure,
         "DVD",
         {"dvdrip", "dvd-rip", "dvd5", "dvd-5", "dvd9", "dvd-9", "dvdr", "dvd-r", "dvdremux", "dvdmux"}},
        {Kind::Source, Strength::UpperTail, "DVD", {"dvd"}},
        {Kind::Source, Strength::Sure, "VHS", {"vhsrip", "vhs-rip"}},
        {Kind::Source, Strength::UpperTail, "VHS", {"vhs"}},
        {Kind::Source, Strength::Sure, "CAM", {"hdcam", "hd-cam", "camrip", "cam-rip"}},
        {Kind::Source, Strength::UpperTail, "CAM", {"cam"}},
        {Kind::Source, Strength::Sure, "TS", {"telesync", "hdts", "hd-ts", "tsrip"}},
        {Kind::Source, Strength::UpperTail, "TS", {"ts"}},
        {Kind::Source, Strength::Sure, "TC", {"telecine", "hdtc", "hd-tc"}},
        {Kind::Source, Strength::UpperTail, "TC", {"tc"}},
        {Kind::Source, Strength::Sure, "SCR", {"dvdscr", "dvd-scr", "screener", "bdscr", "webscreener", "dvdscreener"}},
        {Kind::Source, Strength::UpperTail, "SCR", {"scr"}},
        {Kind::Source, Strength::Sure, "VOD", {"vodrip", "vod-rip", "ppvrip"}},
        {Kind::Source, Strength::UpperTail, "VOD", {"vod", "ppv"}},
        {Kind::Source, Strength::UpperTail, "R5", {"r5"}},
        {Kind::VideoCodec, Strength::Sure, "x264", {"x264", "x-264", "h264", "h-264", "avc"}},
        {Kind::VideoCodec, Strength::Sure, "x265", {"x265", "x-265", "h265", "h-265", "hevc"}},
        {Kind::VideoCodec, Strength::Sure, "x266", {"x266", "h266", "h-266", "vvc"}},
        {Kind::VideoCodec, Strength::Sure, "AV1", {"av1"}},
        {Kind::VideoCodec, Strength::Sure, "VP9", {"vp9"}},
        {Kind::VideoCodec, Strength::Sure, "VC-1", {"vc1", "vc-1"}},
        {Kind::VideoCodec, Strength::Sure, "XviD", {"xvid"}},
        {Kind::VideoCodec, Strength::Sure, "DivX", {"divx", "divx5", "divx6"}},
        {Kind::VideoCodec, Strength::Sure, "MPEG-2", {"mpeg2", "mpeg-2"}},
        {Kind::VideoCodec, Strength::Sure, "MPEG-4", {"mpeg4", "mpeg-4"}},
        {Kind::Other,
         Strength::Sure,
         "",
         {"remux",       "hdr",      "hdr10",     "hdr10+",     "hdr10plus", "dovi",      "dolby-vision", "10bit",
          "10-bit",      "8bit",     "8-bit",     "12bit",      "hi10p",     "hi10",      "hi444pp",      "dual-audio",
          "multi-audio", "multisub", "multisubs", "multi-subs", "multi-sub", "esub",      "esubs",        "msubs",
          "dts",         "dts-hd",   "dts-hd-ma", "dts-hd-hra", "dts-es",    "dts-x",     "dtsx",         "dtshd",
          "truehd",      "true-hd",  "atmos",     "ac3",        "eac3",      "e-ac-3",    "e-ac3",        "aac",
          "he-aac",      "flac",     "mp3",       "lpcm",       "vostfr",    "subfrench", "truefrench",   "vff",
          "vfq",         "amzn",     "dsnp",      "hmax",       "atvp",      "pcok",      "pmtp",         "itunes",
          "readnfo",     "nfofix",   "dirfix",    "korsub",     "hsbs",      "h-sbs",     "half-sbs",     "hou",
          "half-ou",     "uhd",      "fullhd",    "full-hd",    "50fps",     "60fps",     "dublado",      "legendado"}},
        {Kind::Other,
         Strength::Edition,
         "",
         {"extended",
          "extended-cut",
          "extended-edition",
          "unrated",
          "uncut",
          "uncensored",
          "remastered",
          "directors-cut",
          "director's-cut",
          "theatrical",
          "theatrical-cut",
          "final-cut",
          "special-edition",
          "ultimate-edition",
          "collectors-edition",
          "collector's-edition",
          "anniversary-edition",
          "criterion",
          "criterion-collection",
          "open-matte",
          "proper",
          "repack",
          "rerip",
          "despecialized"}},
        {Kind::Other,
         Strength::Tail,
         "",
         {"internal", "limited", "complete", "hybrid", "multi", "dual", "dubbed", "subbed", "sample", "opus", "nordic",
          "latino", "castellano", "batch", "colorized"}},
        {Kind::Other, Strength::UpperTail, "", {"3d",     "dl",   "ml",   "hd",  "fhd", "sd",   "dv",   "sdr", "hlg",
                                                "nf",     "max",  "hulu", "cr",  "dc",  "imax", "real", "int", "retail",
                                                "ws",     "fs",   "hc",   "sbs", "vf",  "vo",   "vost", "pcm", "read",
                                                "web-3d", "ntsc", "pal",  "se",  "rip", "ita",  "eng"}},
    };
    return ROWS;
}

struct TagTable
{
    QHash<QString, ReleaseTag> tags;
    QSet<QString> firstParts; ///< of tags of several words
};

TagTable const& GetTagTable()
{
    static TagTable const TABLE = []
    {
        TagTable table;
        for (TagRow const& row : GetTagRows())
        {
            for (char const* const text : row.keys)
            {
                QString const key = QString::fromUtf8(text);
                auto const size = static_cast<std::size_t>(key.count(QLatin1Char('-'))) + 1;
                table.tags.insert(key, ReleaseTag{row.kind, row.strength, QString::fromUtf8(row.value), size});
                if (size > 1)
                    table.firstParts.insert(key.section(QLatin1Char('-'), 0, 0));
            }
        }
        return table;
    }();
    return TABLE;
}

bool IsWrittenInCapitals(QString const& text)
{
    return text == text.toUpper() && text != text.toLower();
}

/// Whether the word at `index` goes on from the one before it within one tag.
bool Continues(std::vector<ReleaseAtom> const& atoms, std::size_t index)
{
    return index > 0 && index < atoms.size() && atoms[index].bracket == atoms[index - 1].bracket &&
           atoms[index].before != Joint::Dash && atoms[index].before != Joint::Alternative;
}

std::optional<ReleaseTag> FindListedTag(std::vector<ReleaseAtom> const& atoms, std::size_t index)
{
    constexpr std::size_t MOST_WORDS = 3;
    TagTable const& table = GetTagTable();
    std::optional<ReleaseTag> best;
    QString key = atoms[index].key;
    std::size_t const mostWords = table.firstParts.contains(key) ? MOST_WORDS : 1;
    if (mostWords == 1 && key.size() == 1)
        return std::nullopt;
    for (std::size_t size = 1;;)
    {
        auto const found = table.tags.constFind(key);
        if (found != table.tags.constEnd())
            best = *found;
        if (size == mostWords || !Continues(atoms, index + size))
            break;
        key += QLatin1Char('-') + atoms[index + size++].key;
    }
    if (best && best->strength == Strength::UpperTail && !IsWrittenInCapitals(atoms[index].text))
        return std::nullopt;
    return best;
}

ReleaseTag MakeResolution(int lines, QChar scan)
{
    return {Kind::Resolution, Strength::Sure, QString::number(lines) + scan, 1};
}

/// "1080p", "576i", "720p60", "1920x1080".
std::optional<ReleaseTag> FindResolution(QString const& key)
{
    int digits = 0;
    while (digits < key.size() && key.at(digits).isDigit())
        ++digits;
    if (digits < 3 || digits > 4 || digits == key.size())
        return std::nullopt;
    QChar const mark = key.at(digits);
    QString const rest = key.mid(digits + 1);
    int const first = ParseSmallNumber(key.left(digits));
    int const second = ParseSmallNumber(rest);
    if ((mark == QLatin1Char('p') || mark == QLatin1Char('i')) && (rest.isEmpty() || (second >= 24 && second <= 240)))
        return MakeResolution(first, mark);
    constexpr int FEWEST_LINES = 200;
    if (mark != QLatin1Char('x') || second < FEWEST_LINES || first < second)
        return std::nullopt;
    // Wide pictures have fewer lines than their class: 1920x800 is 1080p.
    for (auto const& [width, lines] : {std::pair(3800, 2160), std::pair(1900, 1080), std::pair(1270, 720)})
    {
        if (first >= width)
            return MakeResolution(lines, QLatin1Char('p'));
    }
    return MakeResolution(second, QLatin1Char('p'));
}

/// The last digit of "5.1": whether the word at `index` is one that follows a dot.
bool IsChannelFraction(std::vector<ReleaseAtom> const& atoms, std::size_t index)
{
    return Continues(atoms, index) && atoms[index].before == Joint::Dot &&
           (atoms[index].key == QLatin1String("0") || atoms[index].key == QLatin1String("1"));
}

/// "AAC2.0", "DDP5.1", "DD+5.1", "DTS5.1", "FLAC".
std::optional<ReleaseTag> FindAudioWithChannels(std::vector<ReleaseAtom> const& atoms, std::size_t index)
{
    constexpr int SHORTEST = 3;
    QString const& key = atoms[index].key;
    if (key.size() < SHORTEST)
        return std::nullopt;
    for (char const* const codec : {"ddpa", "ddp", "dd+", "dd", "eac3", "ac3", "aac", "dts", "truehd", "flac", "opus"})
    {
        QLatin1String const name(codec);
        if (!key.startsWith(name) || key.size() == name.size())
            continue;
        QString const channels = key.mid(name.size());
        if (channels.size() == 1 && channels.at(0).isDigit() && IsChannelFraction(atoms, index + 1))
            return ReleaseTag{Kind::Other, Strength::Sure, {}, 2};
        if (channels == QLatin1String("51") || channels == QLatin1String("71") || channels == QLatin1String("20"))
            return ReleaseTag{};
    }
    return std::nullopt;
}

bool IsNumberBetween(QString const& text, QLatin1String prefix, QLatin1String suffix)
{
    return text.size() > prefix.size() + suffix.size() && text.startsWith(prefix) && text.endsWith(suffix) &&
           ParseSmallNumber(text.mid(prefix.size(), text.size() - prefix.size() - suffix.size())) >= 0;
}

/// "CD1", "700MB", "tt0133093": never part of a title.
bool IsNumberedTag(QString const& key)
{
    constexpr int SHORTEST = 3;
    constexpr int SHORTEST_ID = 9;
    if (key.size() < SHORTEST)
        return false;
    bool const isId = key.size() >= SHORTEST_ID && key.startsWith(QLatin1String("tt")) &&
                      std::all_of(key.begin() + 2, key.end(), [](QChar c) { return c.isDigit(); });
    return isId || IsNumberBetween(key, QLatin1String("cd"), {}) || IsNumberBetween(key, QLatin1String("disc"), {}) ||
           IsNumberBetween(key, QLatin1String("disk"), {}) || IsNumberBetween(key, QLatin1String("dvd"), {}) ||
           IsNumberBetween(key, {}, QLatin1String("mb")) || IsNumberBetween(key, {}, QLatin1String("gb")) ||
           IsNumberBetween(key, {}, QLatin1String("fps")) || IsNumberBetween(key, {}, QLatin1String("kbps"));
}

bool IsDiscWord(QString const& key)
{
    return key == QLatin1String("cd") || key == QLatin1String("disc") || key == QLatin1String("disk");
}

/// A checksum alone in square brackets, as anime releases end in.
bool IsChecksum(ReleaseAtom const& atom)
{
    constexpr int DIGITS = 8;
    return atom.bracketKind == QLatin1Char('[') && atom.key.size() == DIGITS &&
           std::all_of(atom.key.begin(), atom.key.end(),
                       [](QChar c) { return c.isDigit() || (c >= QLatin1Char('a') && c <= QLatin1Char('f')); });
}

} // namespace

std::optional<ReleaseTag> FindReleaseTag(std::vector<ReleaseAtom> const& atoms, std::size_t index, bool followsTag)
{
    constexpr int LONGEST = 16;
    ReleaseAtom const& atom = atoms[index];
    if (atom.key.isEmpty() || atom.key.size() > LONGEST)
        return std::nullopt;
    if (auto tag = FindAudioWithChannels(atoms, index))
        return tag;
    if (auto tag = FindListedTag(atoms, index))
        return tag;
    if (auto tag = FindResolution(atom.key))
        return tag;
    if (IsNumberedTag(atom.key) || IsChecksum(atom))
        return ReleaseTag{};
    if (IsDiscWord(atom.key) && Continues(atoms, index + 1) && ParseSmallNumber(atoms[index + 1].key) >= 0)
        return ReleaseTag{Kind::Other, Strength::Sure, {}, 2};
    bool const mayBeChannels = followsTag || atom.bracket != 0;
    if (mayBeChannels && atom.key.size() == 1 && atom.key.at(0).isDigit() && IsChannelFraction(atoms, index + 1))
        return ReleaseTag{Kind::Other, Strength::Sure, {}, 2};
    return std::nullopt;
}

bool IsLanguageTag(ReleaseAtom const& atom)
{
    static QSet<QString> const NAMES = []
    {
        QSet<QString> names;
        for (Language::LanguageID const id : Language::GetAllLanguages())
            names.insert(QString::fromStdString(Language::GetLanguageData(id).displayName).toLower());
        return names;
    }();
    constexpr int CODE_LENGTH = 3;
    if (NAMES.contains(atom.key))
        return true;
    return atom.key.size() == CODE_LENGTH && IsWrittenInCapitals(atom.text) &&
           Language::GetLanguageFromShortName(atom.key.toStdString()) != Language::LanguageID::None;
}

bool IsSubtitleMark(ReleaseAtom const& atom)
{
    static QSet<QString> const MARKS = {
        QStringLiteral("forced"),    QStringLiteral("sdh"),     QStringLiteral("cc"),        QStringLiteral("hi"),
        QStringLiteral("default"),   QStringLiteral("full"),    QStringLiteral("sub"),       QStringLiteral("subs"),
        QStringLiteral("subtitles"), QStringLiteral("foreign"), QStringLiteral("commentary")};
    constexpr int LONGEST_CODE = 3;
    if (MARKS.contains(atom.key) || IsLanguageTag(atom))
        return true;
    return atom.key.size() <= LONGEST_CODE && atom.key.size() > 1 &&
           Language::GetLanguageFromShortName(atom.key.toStdString()) != Language::LanguageID::None;
}

} // namespace Korvex::Converter::Subtitles::UseCases
