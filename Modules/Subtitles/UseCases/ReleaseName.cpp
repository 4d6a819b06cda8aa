#include "Subtitles/UseCases/ReleaseName.h"

#include "Subtitles/UseCases/ImdbId.h"
#include "Subtitles/UseCases/ReleaseAtoms.h"
#include "Subtitles/UseCases/ReleaseEpisode.h"
#include "Subtitles/UseCases/ReleaseTags.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace Korvex::Converter::Subtitles::UseCases
{

namespace
{

using Kind = ReleaseTag::Kind;
using Strength = ReleaseTag::Strength;

bool IsArticle(QString const& key)
{
    static QSet<QString> const ARTICLES = {QStringLiteral("the"), QStringLiteral("a"),   QStringLiteral("an"),
                                           QStringLiteral("le"),  QStringLiteral("la"),  QStringLiteral("les"),
                                           QStringLiteral("der"), QStringLiteral("die"), QStringLiteral("das"),
                                           QStringLiteral("el"),  QStringLiteral("il"),  QStringLiteral("los"),
                                           QStringLiteral("las")};
    return ARTICLES.contains(key);
}

bool IsWebsite(QString const& text)
{
    return text.startsWith(QLatin1String("www"), Qt::CaseInsensitive);
}

class Parser
{
public:
    explicit Parser(std::string const& name) : m_split(SplitReleaseName(name)), m_atoms(m_split.atoms) {}

    ReleaseName Run()
    {
        DropSubtitleMarks();
        FindTags();
        FindBegin();
        m_episode = FindEpisodeMark(m_atoms, m_begin, m_isTag, !m_leadingGroup.isEmpty());
        FindTitleEnd();
        ReadTags();
        FindGroup();
        ReadTitle();
        if (m_episode)
        {
            m_result.season = m_episode->season;
            m_result.episodes = m_episode->episodes;
            m_result.isAbsoluteEpisode = m_episode->isAbsolute;
        }
        return std::move(m_result);
    }

private:
    /// "Movie.en.forced.srt": what stands at the end of a subtitle file's name is about the file.
    void DropSubtitleMarks()
    {
        if (m_split.kind != NameKind::Subtitle)
            return;
        while (m_atoms.size() > 1 && m_atoms.back().before != Joint::Dash && IsSubtitleMark(m_atoms.back()))
            m_atoms.pop_back();
    }

    void FindTags()
    {
        m_isTag.assign(m_atoms.size(), false);
        m_tagAt.assign(m_atoms.size(), std::nullopt);
        bool followsTag = false;
        for (std::size_t i = 0; i < m_atoms.size();)
        {
            auto tag = FindReleaseTag(m_atoms, i, followsTag);
            followsTag = tag.has_value();
            std::size_t const size = tag ? tag->size : 1;
            if (tag && tag->strength == Strength::Sure)
                std::fill_n(m_isTag.begin() + static_cast<std::ptrdiff_t>(i), size, true);
            m_tagAt[i] = std::move(tag);
            i += size;
        }
        TrustWholeBrackets();
    }

    /// "(Extended Edition)", "[English]": a bracket with nothing but tags holds tags, however weak each is.
    void TrustWholeBrackets()
    {
        for (std::size_t i = 0; i < m_atoms.size();)
        {
            std::size_t const end = EndOfBracket(i);
            if (m_atoms[i].bracket != 0 && i > 0 && FindTailBegin(end, i, Strength::UpperTail) == i)
                std::fill(m_isTag.begin() + static_cast<std::ptrdiff_t>(i),
                          m_isTag.begin() + static_cast<std::ptrdiff_t>(end), true);
            i = end;
        }
    }

    [[nodiscard]] std::size_t EndOfBracket(std::size_t index) const
    {
        std::size_t end = index + 1;
        while (m_atoms[index].bracket != 0 && end < m_atoms.size() && m_atoms[end].bracket == m_atoms[index].bracket)
            ++end;
        return end;
    }

    /// Where the unbroken row of tags in front of `end` begins, not before `begin`.
    /// @param weakest what still counts; languages count as `Tail`
    [[nodiscard]] std::size_t FindTailBegin(std::size_t end, std::size_t begin, Strength weakest) const
    {
        while (end > begin)
        {
            std::size_t start = end - 1;
            while (start > begin && !m_tagAt[start] && IsInsideTag(start, end))
                --start;
            auto const& tag = m_tagAt[start];
            bool const isTag = tag && start + tag->size == end && tag->strength <= weakest;
            if (!isTag && !(weakest >= Strength::Tail && IsLanguageTag(m_atoms[end - 1])))
                return end;
            end = isTag ? start : end - 1;
        }
        return end;
    }

    /// Whether a tag of several words may still begin before `start`.
    [[nodiscard]] static bool IsInsideTag(std::size_t start, std::size_t end)
    {
        constexpr std::size_t MOST_WORDS = 4;
        return end - start < MOST_WORDS;
    }

    /// Skips the group in brackets, tags and a year in front of the title.
    void FindBegin()
    {
        while (m_begin < m_atoms.size())
        {
            std::size_t const end = EndOfBracket(m_begin);
            if (m_isTag[m_begin])
            {
                ++m_begin;
                continue;
            }
            if (end == m_atoms.size() || m_atoms[m_begin].bracket == 0)
                return;
            bool const isYear = end == m_begin + 1 && IsFilmYear(m_atoms[m_begin].key);
            bool const isRoundTitle = m_atoms[m_begin].bracketKind == QLatin1Char('(');
            if (!isYear && (isRoundTitle || IsTitleInBrackets(end)))
                return;
            if (isYear)
                m_leadingYear = ParseSmallNumber(m_atoms[m_begin].key);
            else if (m_leadingGroup.isEmpty() && !IsWebsite(m_atoms[m_begin].text))
                m_leadingGroup = TextBetween(m_begin, end);
            m_begin = end;
        }
    }

    /// "[REC].2007.DVDRip": nothing but the year stands between a bracket and the tags.
    [[nodiscard]] bool IsTitleInBrackets(std::size_t next) const
    {
        return IsFilmYear(m_atoms[next].key) && m_atoms[next].bracket == 0 &&
               (next + 1 == m_atoms.size() || m_isTag[next + 1]);
    }

    void FindTitleEnd()
    {
        std::size_t end = m_episode ? m_episode->begin : m_atoms.size();
        for (std::size_t i = m_begin; i < end; ++i)
        {
            bool const isOtherTitle =
                i > m_begin && (m_atoms[i].before == Joint::Alternative || m_atoms[i].key == QLatin1String("aka"));
            if (m_isTag[i] || isOtherTitle)
                end = i;
        }
        Strength weakest = Strength::Tail;
        if (auto const year = FindYear(end))
        {
            end = std::min(end, *year);
            weakest = Strength::Edition;
        }
        else if (end < m_atoms.size())
        {
            weakest = Strength::UpperTail;
        }
        m_titleEnd = ShortenTitle(end, weakest);
    }

    /// Takes weak tags off the title's end, but never the title itself.
    [[nodiscard]] std::size_t ShortenTitle(std::size_t end, Strength weakest) const
    {
        if (end <= m_begin + 1)
            return end;
        // Without any mark behind it, only what is written as a tag is one ("Movie HD"), not a language ("The Good
        // German").
        bool const isWholeName = end == m_atoms.size();
        std::size_t shortened = end;
        if (isWholeName)
        {
            while (shortened > m_begin + 1 && m_tagAt[shortened - 1] &&
                   m_tagAt[shortened - 1]->strength == Strength::UpperTail)
                --shortened;
        }
        else
        {
            shortened = FindTailBegin(end, m_begin + 1, weakest);
        }
        bool const isArticleLeft = shortened == m_begin + 1 && IsArticle(m_atoms[m_begin].key);
        return isArticleLeft ? end : shortened;
    }

    /// The word that is the film's year. Sets the year.
    /// @param mark where the first certain tag or the episode stands
    std::optional<std::size_t> FindYear(std::size_t mark)
    {
        std::optional<std::size_t> bare;
        for (std::size_t i = m_begin; i < m_atoms.size(); ++i)
        {
            bool const isFirstOfBracket =
                m_atoms[i].bracket != 0 && (i == 0 || m_atoms[i - 1].bracket != m_atoms[i].bracket);
            if (!IsFilmYear(m_atoms[i].key) || (i == m_begin && m_atoms[i].bracket == 0))
                continue;
            if (isFirstOfBracket && i > m_begin)
            {
                bare = i;
                break;
            }
            bool const isInTitle = i < mark && m_atoms[i].bracket == 0 && IsFollowedLikeYear(i, mark);
            bool const isLate = i > mark && !m_episode && !bare;
            if (isInTitle || isLate)
                bare = i;
        }
        if (bare)
            m_result.year = ParseSmallNumber(m_atoms[*bare].key);
        else if (m_episode && m_episode->year)
            m_result.year = m_episode->year;
        else
            m_result.year = m_leadingYear;
        return bare;
    }

    /// With nothing but words behind it a number belongs to the title ("Class of 1999 II The Substitute").
    [[nodiscard]] bool IsFollowedLikeYear(std::size_t index, std::size_t mark) const
    {
        std::size_t const next = index + 1;
        if (next >= m_atoms.size() || mark < m_atoms.size())
            return true;
        return m_tagAt[next].has_value() || IsLanguageTag(m_atoms[next]) || m_atoms[next].bracket != 0 ||
               m_atoms[next].before == Joint::Dash || m_atoms[next].before == Joint::Hyphen;
    }

    void ReadTags()
    {
        for (std::size_t i = 0; i < m_atoms.size(); ++i)
        {
            bool const isPartOfTitle = i >= m_begin && i < m_titleEnd && m_atoms[i].bracket == 0;
            if (!m_tagAt[i] || (isPartOfTitle && !m_isTag[i]))
                continue;
            std::string& field = m_tagAt[i]->kind == Kind::Resolution   ? m_result.resolution
                                 : m_tagAt[i]->kind == Kind::Source     ? m_result.source
                                 : m_tagAt[i]->kind == Kind::VideoCodec ? m_result.videoCodec
                                                                        : m_unused;
            if (field.empty())
                field = m_tagAt[i]->value.toStdString();
        }
    }

    void FindGroup()
    {
        QString group = FindGroupAfterHyphen();
        if (group.isEmpty())
            group = m_leadingGroup;
        if (group.isEmpty())
            group = FindGroupInBrackets();
        m_result.group = group.toStdString();
    }

    /// Whether the word tells something about the release or the episode.
    [[nodiscard]] bool IsMark(std::size_t index) const
    {
        bool const isEpisode = m_episode && index >= m_episode->begin && index < m_episode->end;
        return isEpisode || m_isTag[index] || (index >= m_titleEnd && IsFilmYear(m_atoms[index].key)) ||
               (index > m_titleEnd && (m_tagAt[index] || IsLanguageTag(m_atoms[index])));
    }

    [[nodiscard]] QString FindGroupAfterHyphen() const
    {
        std::size_t end = m_atoms.size();
        while (end > m_begin && m_atoms[end - 1].bracket != 0)
            --end;
        std::size_t start = end;
        bool hasMark = false;
        for (std::size_t i = m_begin; i < end; ++i)
        {
            hasMark = hasMark || IsMark(i);
            // A group of several words ("D-Z0N3") begins at the first hyphen behind the tags.
            if (i > m_begin && hasMark && m_atoms[i].before == Joint::Hyphen && !IsMark(i) &&
                (start == end || IsMark(i - 1) || m_atoms[i - 1].before != Joint::Hyphen))
                start = i;
        }
        while (end > start + 1 && m_atoms[end - 1].before == Joint::Dot && IsSubtitleMark(m_atoms[end - 1]))
            --end; // names of subtitle releases go on with the language
        constexpr std::size_t MOST_WORDS = 3;
        if (start == end || end - start > MOST_WORDS)
            return {};
        bool const isEpisodeTitle = m_episode && start > m_episode->end && !HasTagBetween(m_episode->end, start);
        return isEpisodeTitle ? QString() : TextBetween(start, end);
    }

    [[nodiscard]] bool HasTagBetween(std::size_t begin, std::size_t end) const
    {
        return std::any_of(m_tagAt.begin() + static_cast<std::ptrdiff_t>(begin),
                           m_tagAt.begin() + static_cast<std::ptrdiff_t>(end),
                           [](auto const& tag) { return tag.has_value(); });
    }

    /// "[1080p] [GROUP]", or the last word of "(1080p BluRay x265 GROUP)".
    [[nodiscard]] QString FindGroupInBrackets() const
    {
        if (m_atoms.empty() || m_atoms.back().bracket == 0)
            return {};
        std::size_t begin = m_atoms.size() - 1;
        while (begin > 0 && m_atoms[begin - 1].bracket == m_atoms.back().bracket)
            --begin;
        std::size_t const last = m_atoms.size() - 1;
        if (begin < m_begin || begin == 0 || m_isTag[last] || IsFilmYear(m_atoms[last].key) ||
            IsLanguageTag(m_atoms[last]) || m_atoms[last].bracketKind == QLatin1Char('{'))
            return {};
        if (m_isTag[begin] && last > begin)
            return m_atoms[last].text;
        bool const isAlone = m_atoms[last].bracketKind == QLatin1Char('[') && HasTagBetween(m_titleEnd, begin);
        return isAlone ? TextBetween(begin, last + 1) : QString();
    }

    void ReadTitle()
    {
        QString title = JoinAsTitle(m_split, m_begin, m_titleEnd);
        bool const isGroup =
            m_begin > 0 && m_begin < m_atoms.size() && m_isTag[m_begin - 1] && m_atoms[m_begin].before == Joint::Hyphen;
        if (isGroup) // nothing but tags and the group
            m_result.group = std::exchange(title, {}).toStdString();
        if (title.isEmpty() && !m_episode && !m_leadingGroup.isEmpty())
            title = m_leadingGroup;
        int const comma = title.lastIndexOf(QLatin1String(", "));
        if (comma > 0 && IsArticle(title.mid(comma + 2).toLower()))
            title = title.mid(comma + 2) + QLatin1Char(' ') + title.left(comma);
        static QString const PUNCTUATION = QStringLiteral(" -,:;~");
        while (!title.isEmpty() && PUNCTUATION.contains(title.at(title.size() - 1)))
            title.chop(1);
        m_result.title = title.toStdString();
    }

    [[nodiscard]] QString TextBetween(std::size_t begin, std::size_t end) const
    {
        return JoinAsWritten(m_split, begin, end);
    }

    ReleaseAtoms m_split;
    std::vector<ReleaseAtom>& m_atoms;
    std::vector<bool> m_isTag;                      ///< words that are tags for certain
    std::vector<std::optional<ReleaseTag>> m_tagAt; ///< at each tag's first word, weak ones included
    std::optional<EpisodeMark> m_episode;
    QString m_leadingGroup;
    std::optional<int> m_leadingYear;
    std::size_t m_begin = 0; ///< of the title
    std::size_t m_titleEnd = 0;
    std::string m_unused;
    ReleaseName m_result;
};

} // namespace

ReleaseName ParseReleaseName(std::string const& name)
{
    ReleaseName result = Parser(name).Run();
    result.imdbId = FindImdbId(name);
    return result;
}

} // namespace Korvex::Converter::Subtitles::UseCases
