#include "Subtitles/UseCases/ReleaseEpisode.h"

#include <QSet>

#include <algorithm>

namespace Korvex::Converter::Subtitles::UseCases
{

namespace
{

constexpr int MOST_SEASONS_IN_WORDS = 99;

bool IsSeasonWord(QString const& key)
{
    static QSet<QString> const WORDS = {
        QStringLiteral("season"),   QStringLiteral("saison"), QStringLiteral("staffel"), QStringLiteral("temporada"),
        QStringLiteral("stagione"), QStringLiteral("sezon"),  QStringLiteral("сезон"),   QStringLiteral("seizoen"),
        QStringLiteral("säsong"),   QStringLiteral("sæson"),  QStringLiteral("kausi"),   QStringLiteral("évad"),
        QStringLiteral("sezonul"),  QStringLiteral("sesong")};
    return WORDS.contains(key);
}

bool IsEpisodeWord(QString const& key)
{
    static QSet<QString> const WORDS = {
        QStringLiteral("episode"),  QStringLiteral("episodes"), QStringLiteral("ep"),
        QStringLiteral("eps"),      QStringLiteral("épisode"),  QStringLiteral("folge"),
        QStringLiteral("episodio"), QStringLiteral("episódio"), QStringLiteral("capitulo"),
        QStringLiteral("capítulo"), QStringLiteral("odcinek"),  QStringLiteral("серия"),
        QStringLiteral("серии"),    QStringLiteral("эпизод"),   QStringLiteral("aflevering"),
        QStringLiteral("avsnitt"),  QStringLiteral("afsnit"),   QStringLiteral("jakso"),
        QStringLiteral("puntata"),  QStringLiteral("bölüm")};
    return WORDS.contains(key);
}

/// Reads one key from its beginning on.
class KeyReader
{
public:
    explicit KeyReader(QString const& key) : m_key(key) {}

    bool Take(char const* prefix)
    {
        QLatin1String const text(prefix);
        if (m_key.midRef(m_position).startsWith(text))
        {
            m_position += text.size();
            return true;
        }
        return false;
    }

    std::optional<int> TakeNumber(int fewestDigits, int mostDigits)
    {
        int end = m_position;
        while (end < m_key.size() && end - m_position < mostDigits && m_key.at(end) >= QLatin1Char('0') &&
               m_key.at(end) <= QLatin1Char('9'))
            ++end;
        if (end - m_position < fewestDigits)
            return std::nullopt;
        int const number = ParseSmallNumber(m_key.mid(m_position, end - m_position));
        m_position = end;
        return number;
    }

    /// At the end, but for the number of a corrected version ("v2") or the letter of half an episode ("a").
    bool IsAtEnd()
    {
        if (Take("v"))
            return TakeNumber(1, 1).has_value() && m_position == m_key.size();
        bool const hasPart = m_position + 1 == m_key.size() && m_key.at(m_position) >= QLatin1Char('a') &&
                             m_key.at(m_position) <= QLatin1Char('d');
        return hasPart || m_position == m_key.size();
    }

private:
    QString const& m_key;
    int m_position = 0;
};

/// Adds `last`, and what lies between it and the episode before.
void AddRange(std::vector<int>& episodes, int last)
{
    constexpr int MOST = 200;
    if (episodes.empty() || last <= episodes.back() || last - episodes.back() > MOST)
        return;
    for (int episode = episodes.back() + 1; episode <= last; ++episode)
        episodes.push_back(episode);
}

/// "e05", "ep05", "e01e02", and, with a season in front, "x05"; true when the key ends there.
bool ReadEpisodes(KeyReader& reader, std::vector<int>& episodes)
{
    while (reader.Take("ep") || reader.Take("xe") || reader.Take("+e") || reader.Take("&e") || reader.Take("e") ||
           (!episodes.empty() && reader.Take("x")))
    {
        auto const episode = reader.TakeNumber(1, 4);
        if (!episode)
            return false;
        episodes.push_back(*episode);
    }
    return reader.IsAtEnd();
}

/// Finds the mark that begins at one word.
class MarkFinder
{
public:
    MarkFinder(std::vector<ReleaseAtom> const& atoms, std::vector<bool> const& isTag) : m_atoms(atoms), m_isTag(isTag)
    {
    }

    std::optional<EpisodeMark> FindAt(std::size_t index, std::size_t begin)
    {
        QString const& key = m_atoms[index].key;
        if (key.isEmpty() || (key.size() == 1 && !key.at(0).isDigit()))
            return std::nullopt;
        m_mark = EpisodeMark();
        m_mark.begin = index;
        m_mark.end = index + 1;
        bool const isFound = FindSeasonLetter(index, begin) || FindCross(index) || FindSeasonInWords(index) ||
                             FindEpisodeInWords(index) || FindEpisodeLetter(index) || FindAsianEpisode(index) ||
                             FindDay(index);
        if (!isFound)
            return std::nullopt;
        if (!m_mark.episodes.empty())
            ReadFurtherEpisodes();
        return m_mark;
    }

private:
    [[nodiscard]] QString Key(std::size_t index) const
    {
        return index < m_atoms.size() ? m_atoms[index].key : QString();
    }
    [[nodiscard]] int Number(std::size_t index) const { return ParseSmallNumber(Key(index)); }

    /// "S02E05", "s2 e5", "S01E01E02", "S02" alone.
    bool FindSeasonLetter(std::size_t index, std::size_t begin)
    {
        QString const key = Key(index);
        KeyReader reader(key);
        if (!reader.Take("s"))
            return false;
        m_mark.season = reader.TakeNumber(1, 4);
        if (!m_mark.season || !ReadEpisodes(reader, m_mark.episodes))
            return false;
        if (!m_mark.episodes.empty() || FindEpisodeInWords(index + 1) || FindEpisodeLetter(index + 1))
            return true;
        // A season alone: in a title of its own only as "S01", since films are called "S1m0ne" and worse.
        constexpr int SHORTEST = 2;
        return key.size() <= SHORTEST + 1 && (index > begin || m_atoms.size() == index + 1);
    }

    /// "2x05", "1x01x02".
    bool FindCross(std::size_t index)
    {
        QString const key = Key(index);
        KeyReader reader(key);
        auto const season = reader.TakeNumber(1, 2);
        if (!season || !reader.Take("x"))
            return false;
        auto const episode = reader.TakeNumber(2, 3);
        if (!episode)
            return false;
        m_mark.season = season;
        m_mark.episodes = {*episode};
        return ReadEpisodes(reader, m_mark.episodes);
    }

    /// "Season 2 Episode 5", "2nd Season", "2 сезон 5 серия".
    bool FindSeasonInWords(std::size_t index)
    {
        int season = -1;
        if (IsSeasonWord(Key(index)))
            season = Number(index + 1);
        else if (IsSeasonWord(Key(index + 1)) && !IsSeasonNumber(index + 2))
            season = ReadOrdinal(Key(index));
        if (season < 0 || season > MOST_SEASONS_IN_WORDS)
            return false;
        m_mark.season = season;
        m_mark.end = index + 2;
        std::size_t const next = m_mark.end;
        if (IsEpisodeWord(Key(next + 1)) && Number(next) >= 0)
        {
            m_mark.episodes = {Number(next)};
            m_mark.end = next + 2;
        }
        else if (!FindEpisodeInWords(next))
        {
            FindEpisodeLetter(next);
        }
        return true;
    }

    /// Whether a number belongs to the season word in front of it, not to an episode word behind it.
    [[nodiscard]] bool IsSeasonNumber(std::size_t index) const
    {
        return Number(index) >= 0 && m_atoms[index].before != Joint::Dash &&
               !(IsEpisodeWord(Key(index + 1)) && Number(index + 2) < 0);
    }

    static int ReadOrdinal(QString const& key)
    {
        for (char const* const suffix : {"st", "nd", "rd", "th"})
        {
            if (key.endsWith(QLatin1String(suffix)))
                return ParseSmallNumber(key.left(key.size() - 2));
        }
        return ParseSmallNumber(key);
    }

    bool FindEpisodeInWords(std::size_t index)
    {
        int const episode = Number(index + 1);
        if (!IsEpisodeWord(Key(index)) || episode < 0)
            return false;
        if (!m_mark.season && IsPartOfFilmTitle(index + 2))
            return false;
        m_mark.episodes = {episode};
        m_mark.end = index + 2;
        return true;
    }

    /// "Episode 4 A New Hope (1977)": words go on up to a year.
    [[nodiscard]] bool IsPartOfFilmTitle(std::size_t next) const
    {
        constexpr std::size_t LONGEST_SUBTITLE = 12;
        bool hasWords = false;
        std::size_t const end = std::min(m_atoms.size(), next + LONGEST_SUBTITLE);
        for (; next < end && !m_isTag[next] && m_atoms[next].before != Joint::Dash; ++next)
        {
            if (IsFilmYear(Key(next)))
                return hasWords;
            hasWords = true;
        }
        return false;
    }

    /// "E05" or "Ep05" without a season.
    bool FindEpisodeLetter(std::size_t index)
    {
        constexpr int SHORTEST = 3;
        QString const key = Key(index);
        if (key.size() < (m_mark.season ? SHORTEST - 1 : SHORTEST) || !key.startsWith(QLatin1Char('e')))
            return false;
        std::vector<int> episodes;
        KeyReader reader(key);
        if (!ReadEpisodes(reader, episodes) || episodes.empty())
            return false;
        m_mark.episodes = std::move(episodes);
        m_mark.end = index + 1;
        return true;
    }

    /// U+7B2C, a number, and one of the signs for an episode.
    bool FindAsianEpisode(std::size_t index)
    {
        static QString const EPISODE_SIGNS = QStringLiteral("話话集回");
        constexpr ushort ORDINAL_SIGN = 0x7B2C;
        QString const key = Key(index);
        if (key.size() < 3 || key.at(0).unicode() != ORDINAL_SIGN || !EPISODE_SIGNS.contains(key.at(key.size() - 1)))
            return false;
        int const episode = ParseSmallNumber(key.mid(1, key.size() - 2));
        if (episode < 0)
            return false;
        m_mark.episodes = {episode};
        m_mark.isAbsolute = true;
        return true;
    }

    /// "2020.03.04", "04.03.2020", "20200304".
    bool FindDay(std::size_t index)
    {
        QString const key = Key(index);
        constexpr int COMPACT_LENGTH = 8;
        if (key.size() == COMPACT_LENGTH)
            return TakeDay(key.left(4), key.mid(4, 2), key.mid(6, 2), index + 1);
        if (index + 2 >= m_atoms.size())
            return false;
        return TakeDay(key, Key(index + 1), Key(index + 2), index + 3) ||
               TakeDay(Key(index + 2), Key(index + 1), key, index + 3);
    }

    bool TakeDay(QString const& year, QString const& month, QString const& day, std::size_t end)
    {
        auto const isTwoDigitsUpTo = [](QString const& text, int most)
        { return text.size() == 2 && ParseSmallNumber(text) >= 1 && ParseSmallNumber(text) <= most; };
        if (!IsFilmYear(year) || !isTwoDigitsUpTo(month, 12) || !isTwoDigitsUpTo(day, 31))
            return false;
        m_mark.year = ParseSmallNumber(year);
        m_mark.end = end;
        return true;
    }

    /// "-E03", "-03", "-S01E03", ".E02" behind the first episode.
    void ReadFurtherEpisodes()
    {
        while (m_mark.end < m_atoms.size() && m_atoms[m_mark.end].before != Joint::Dash)
        {
            bool const isRange = m_atoms[m_mark.end].before == Joint::Hyphen;
            std::optional<int> const next = ReadFurther(Key(m_mark.end), isRange);
            if (!next)
                return;
            if (isRange)
                AddRange(m_mark.episodes, *next);
            else
                m_mark.episodes.push_back(*next);
            ++m_mark.end;
        }
    }

    std::optional<int> ReadFurther(QString const& key, bool isRange) const
    {
        constexpr int MOST_AT_ONCE = 99;
        KeyReader reader(key);
        if (reader.Take("s"))
            reader.TakeNumber(1, 4);
        std::vector<int> episodes;
        if (ReadEpisodes(reader, episodes) && episodes.size() == 1)
            return episodes.front();
        int const number = ParseSmallNumber(key);
        bool const isNext = number > m_mark.episodes.back() && number - m_mark.episodes.back() <= MOST_AT_ONCE;
        return isRange && isNext && key.size() <= 3 ? std::optional(number) : std::nullopt;
    }

    std::vector<ReleaseAtom> const& m_atoms;
    std::vector<bool> const& m_isTag;
    EpisodeMark m_mark;
};

/// The number of "12", "12v2"; none for years and anything else.
std::optional<int> ReadAbsolute(QString const& key)
{
    KeyReader reader(key);
    auto const number = reader.TakeNumber(1, 4);
    if (!number || !reader.IsAtEnd() || IsFilmYear(key))
        return std::nullopt;
    return number;
}

/// "Title - 12", "[Group] Title 12 [1080p]".
std::optional<EpisodeMark> FindAbsolute(std::vector<ReleaseAtom> const& atoms, std::size_t begin,
                                        std::vector<bool> const& isTag, bool hasLeadingGroup)
{
    for (std::size_t i = begin + 1; i < atoms.size() && !isTag[i]; ++i)
    {
        auto const number = ReadAbsolute(atoms[i].key);
        bool const isLast = i + 1 == atoms.size() || isTag[i + 1] || atoms[i + 1].bracket != 0;
        bool const isFree = isLast || atoms[i + 1].before == Joint::Dash || atoms[i + 1].before == Joint::Hyphen;
        if (!number || !isFree || atoms[i].bracket != 0)
            continue;
        bool const isLongEnough = atoms[i].key.size() > 1;
        bool const followsDash = atoms[i].before == Joint::Dash && (isLongEnough || hasLeadingGroup);
        bool const isZeroed = atoms[i].key.startsWith(QLatin1Char('0'));
        bool const endsAnimeTitle = hasLeadingGroup && isLast && isLongEnough && (isZeroed || atoms[i].key.size() == 2);
        if (!followsDash && !endsAnimeTitle)
            continue;
        EpisodeMark mark;
        mark.begin = i;
        mark.end = i + 1;
        mark.episodes = {*number};
        mark.isAbsolute = true;
        if (mark.end < atoms.size() && atoms[mark.end].before == Joint::Hyphen && ReadAbsolute(atoms[mark.end].key))
            AddRange(mark.episodes, *ReadAbsolute(atoms[mark.end++].key));
        return mark;
    }
    return std::nullopt;
}

} // namespace

bool IsFilmYear(QString const& key)
{
    // Later numbers are part of titles ("Blade Runner 2049").
    constexpr int FIRST = 1900;
    constexpr int LAST = 2039;
    int const year = ParseSmallNumber(key);
    return year >= FIRST && year <= LAST;
}

std::optional<EpisodeMark> FindEpisodeMark(std::vector<ReleaseAtom> const& atoms, std::size_t begin,
                                           std::vector<bool> const& isTag, bool hasLeadingGroup)
{
    MarkFinder finder(atoms, isTag);
    for (std::size_t i = begin; i < atoms.size(); ++i)
    {
        if (isTag[i])
            continue;
        auto mark = finder.FindAt(i, begin);
        if (!mark)
            continue;
        if (!mark->episodes.empty() || mark->year)
            return mark;
        // A season alone: anime counts its episodes behind it ("Title S2 - 05").
        if (auto const episode = FindAbsolute(atoms, mark->end - 1, isTag, true); episode)
        {
            if (episode->begin == mark->end)
            {
                mark->episodes = episode->episodes;
                mark->end = episode->end;
            }
        }
        return mark;
    }
    return FindAbsolute(atoms, begin, isTag, hasLeadingGroup);
}

} // namespace Korvex::Converter::Subtitles::UseCases
