#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ArchiveChoice.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleFileName.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

namespace
{

struct Candidate
{
    std::size_t index = 0;
    QString name; ///< without folders
    QString format;
};
using Candidates = std::vector<Candidate>;

/// One spelling for extensions that mean the same format.
QString FormatOf(QString const& extension)
{
    QString const lower = extension.toLower();
    if (lower == QLatin1String("sami"))
        return QStringLiteral("smi");
    if (lower == QLatin1String("webvtt"))
        return QStringLiteral("vtt");
    if (lower == QLatin1String("mpl2"))
        return QStringLiteral("mpl");
    return lower;
}

QString Folded(QString const& name)
{
    return name.normalized(QString::NormalizationForm_C).toCaseFolded();
}

/// What every code page leaves of a name: ASCII letters and digits. Empty when that is too little to tell names apart.
QString ReadablePart(QString const& name)
{
    constexpr int FEWEST_CHARACTERS = 4;
    QString readable;
    for (QChar const character : name.left(name.lastIndexOf(QLatin1Char('.'))).toLower())
    {
        if (character.unicode() < 0x80 && character.isLetterOrNumber())
            readable += character;
    }
    return readable.size() < FEWEST_CHARACTERS ? QString() : readable + QLatin1Char('.') + FormatOf(ExtensionOf(name));
}

template <typename Predicate>
Candidates Filtered(Candidates const& candidates, Predicate const& predicate)
{
    Candidates filtered;
    std::copy_if(candidates.begin(), candidates.end(), std::back_inserter(filtered), predicate);
    return filtered;
}

/// "Movie.CD2.srt", "movie-disc 02.srt", "Movie (2of3).srt"; 0 when the name says nothing.
int DiscOf(QString const& name)
{
    static QRegularExpression const DISC(
        QStringLiteral(
            "(?<![a-z])(?:cd|disc|disk|dvd|part|pt)[\\s._-]*0*(\\d{1,2})(?!\\d)|(?<!\\d)0*(\\d{1,2}) ?of ?\\d"),
        QRegularExpression::CaseInsensitiveOption);
    auto const match = DISC.match(name);
    return match.captured(1).isEmpty() ? match.captured(2).toInt() : match.captured(1).toInt();
}

std::optional<std::size_t> ChooseByDisc(Candidates candidates, ArchiveWish const& wish)
{
    if (candidates.size() == 1)
        return candidates.front().index;
    if (wish.discCount < 2 || wish.discNumber < 1)
        return std::nullopt;
    auto const ofDisc =
        Filtered(candidates, [&wish](Candidate const& candidate) { return DiscOf(candidate.name) == wish.discNumber; });
    if (ofDisc.size() == 1)
        return ofDisc.front().index;
    bool const isNumbered = std::any_of(candidates.begin(), candidates.end(),
                                        [](Candidate const& candidate) { return DiscOf(candidate.name) != 0; });
    auto const disc = static_cast<std::size_t>(wish.discNumber);
    if (isNumbered || candidates.size() != static_cast<std::size_t>(wish.discCount) || disc > candidates.size())
        return std::nullopt;
    std::sort(candidates.begin(), candidates.end(),
              [](Candidate const& a, Candidate const& b) { return Folded(a.name) < Folded(b.name); });
    return candidates[disc - 1].index;
}

/// The format that the wish states, or else its name.
QString WantedFormat(ArchiveWish const& wish)
{
    if (!wish.format.isEmpty())
        return FormatOf(wish.format);
    QString const extension = ExtensionOf(wish.fileName);
    return IsSubtitleExtension(extension) ? FormatOf(extension) : QString();
}

std::optional<std::size_t> ChooseByFormat(Candidates const& candidates, ArchiveWish const& wish)
{
    QString const format = WantedFormat(wish);
    auto const ofFormat =
        Filtered(candidates, [&format](Candidate const& candidate)
                 { return format.isEmpty() ? IsSubtitleExtension(candidate.format) : candidate.format == format; });
    if (!ofFormat.empty())
        return ChooseByDisc(ofFormat, wish);
    // Nothing says what the only file is, or its format was stated wrongly. A lone text may be anything, though.
    bool const isText = candidates.front().format == QLatin1String("txt");
    return candidates.size() == 1 && !isText ? std::optional(candidates.front().index) : std::nullopt;
}

} // namespace

bool IsNoCandidate(QString const& path)
{
    static QStringList const OTHERS = {"nfo", "zip", "rar", "7z",   "gz",  "tgz", "bz2", "xz",  "zst",
                                       "tar", "cab", "arj", "lzh",  "lha", "ace", "iso", "jar", "exe",
                                       "com", "bat", "scr", "cmd",  "msi", "dll", "url", "lnk", "jpg",
                                       "png", "gif", "htm", "html", "db",  "ini", "diz", "sfv", "md5"};
    static QRegularExpression const SYSTEM(QStringLiteral("(?:^|[/\\\\])(?:__MACOSX[/\\\\]|\\._|\\.DS_Store$)"));
    return OTHERS.contains(ExtensionOf(path)) || SYSTEM.match(path).hasMatch();
}

std::optional<std::size_t> ChooseByName(std::vector<QString> const& names, ArchiveWish const& wish)
{
    Candidates candidates;
    for (QString const& path : names)
    {
        QString const name = LastComponent(path);
        candidates.push_back({candidates.size(), name, FormatOf(ExtensionOf(name))});
    }
    if (candidates.empty())
        return std::nullopt;
    QString const wanted = LastComponent(wish.fileName);
    if (!wanted.isEmpty())
    {
        auto const exact = std::find_if(candidates.begin(), candidates.end(),
                                        [&wanted](Candidate const& candidate) { return candidate.name == wanted; });
        if (exact != candidates.end())
            return exact->index;
        for (auto const spelling : {Folded, ReadablePart})
        {
            QString const spelled = spelling(wanted);
            auto const alike = Filtered(candidates, [&spelled, spelling](Candidate const& candidate)
                                        { return !spelled.isEmpty() && spelling(candidate.name) == spelled; });
            if (!alike.empty())
                return ChooseByDisc(alike, wish);
        }
    }
    return ChooseByFormat(candidates, wish);
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
