#include "Proc/Text/TextSubtitles.h"

#include "Proc/Text/Html.h"
#include "Proc/Text/Lines.h"
#include "Proc/Text/Utf8.h"

#include "Conf/IFormatCodecSubtitle.h"

#include <algorithm>

namespace Korvex::Proc::Text
{

namespace
{

using std::chrono::microseconds;

/// The text of one class at one point of time.
struct Paragraph
{
    microseconds time{0};
    std::optional<microseconds> end;
    std::string samiClass; ///< lower case; empty: of no class, so of all
    std::string text;      ///< HTML
};

bool HasVisibleText(std::string_view html)
{
    while (!html.empty())
    {
        if (html[0] == '<')
        {
            auto const tag = ParseTag(html, 0);
            if (tag)
            {
                html.remove_prefix(tag->length);
                continue;
            }
        }
        if (html[0] == '&')
        {
            auto const codePoint = TakeCharacterReference(html, Semicolon::Optional);
            if (codePoint && (*codePoint == 0xA0 || *codePoint == ' '))
            {
                continue;
            }
            return true;
        }
        std::string_view const rest = TrimStart(html);
        if (rest.size() == html.size())
        {
            return true;
        }
        html = rest;
    }
    return false;
}

bool IsTag(std::string_view text, std::size_t position, std::string_view name)
{
    std::string_view const rest = text.substr(position + 1, name.size() + 1);
    return rest.size() > name.size() && StartsWithIgnoreCase(rest, name) && !IsLetter(rest[name.size()]);
}

/// Splits a SAMI text into paragraphs by walking over its tags once.
class Scanner
{
public:
    explicit Scanner(std::string_view text) : m_text(text) {}

    std::vector<Paragraph> Scan()
    {
        std::size_t position = FindIgnoreCase(m_text, "<sync");
        while (position < m_text.size())
        {
            position = m_text[position] == '<' ? TakeTag(position) : TakeText(position);
        }
        FinishSync();
        return std::move(m_paragraphs);
    }

private:
    std::size_t TakeText(std::size_t position)
    {
        std::size_t const end = std::min(m_text.find('<', position), m_text.size());
        m_current.text += m_text.substr(position, end - position);
        return end;
    }

    std::size_t TakeTag(std::size_t position)
    {
        if (m_text.substr(position, 4) == "<!--")
        {
            return TakeComment(position);
        }
        bool const isSync = IsTag(m_text, position, "sync");
        bool const isParagraph = IsTag(m_text, position, "p");
        if (isSync || isParagraph)
        {
            std::size_t end = position;
            std::string_view const attributes = TakeAttributes(position, end);
            isSync ? BeginSync(attributes) : BeginParagraph(attributes);
            return end;
        }
        for (char const* const name : {"/sync", "/p", "/body", "/sami", "body"})
        {
            if (IsTag(m_text, position, name))
            {
                std::size_t end = position;
                TakeAttributes(position, end);
                return end;
            }
        }
        m_current.text += '<';
        return position + 1;
    }

    std::size_t TakeComment(std::size_t position)
    {
        // Looked up once for all comments that are not closed.
        if (m_commentEnd <= position)
        {
            m_commentEnd = std::min(m_text.find("-->", position), m_text.size());
        }
        return m_commentEnd == m_text.size() ? position + 4 : m_commentEnd + 3;
    }

    /// The attributes of the tag at `position`; `end` is set behind it. A tag that is not closed ends where its
    /// attributes stop looking like some, so that the text behind them stays.
    std::string_view TakeAttributes(std::size_t position, std::size_t& end) const
    {
        std::size_t const stop = std::min(m_text.find_first_of("<>", position + 1), m_text.size());
        std::size_t const nameEnd = std::min(m_text.find_first_of(" \t\r\n<>", position + 1), stop);
        if (stop < m_text.size() && m_text[stop] == '>')
        {
            end = stop + 1;
            return m_text.substr(nameEnd, stop - nameEnd);
        }
        std::size_t cursor = nameEnd;
        for (std::size_t last = position; cursor != last;)
        {
            last = cursor;
            cursor = SkipAttribute(cursor, stop);
        }
        end = cursor;
        return m_text.substr(nameEnd, cursor - nameEnd);
    }

    /// Behind `name=value` at `cursor`; `cursor` itself when there is none. The value is of ASCII letters or digits,
    /// and a number ends where its digits do.
    std::size_t SkipAttribute(std::size_t cursor, std::size_t stop) const
    {
        auto const skip = [&](std::size_t from, auto&& isPart)
        {
            while (from < stop && isPart(m_text[from]))
            {
                ++from;
            }
            return from;
        };
        auto const isWord = [](char letter)
        { return IsLetter(letter) || IsDigit(letter) || letter == '-' || letter == '_'; };
        std::size_t const name = skip(cursor, IsBlank);
        std::size_t const nameEnd = skip(name, isWord);
        std::size_t const equals = skip(nameEnd, IsBlank);
        if (nameEnd == name || equals >= stop || m_text[equals] != '=')
        {
            return cursor;
        }
        std::size_t const value =
            skip(equals + 1, [](char letter) { return IsBlank(letter) || letter == '"' || letter == '\''; });
        bool const isNumber = value < stop && IsDigit(m_text[value]);
        std::size_t const valueEnd = isNumber ? skip(value, IsDigit) : skip(value, isWord);
        return skip(valueEnd, [](char letter) { return letter == '"' || letter == '\''; });
    }

    static std::optional<microseconds> ParseTime(std::string_view attributes, std::string_view name)
    {
        static constexpr std::int64_t LARGEST_MS = 100'000LL * 3600 * 1000;
        auto const value = FindAttribute(attributes, name);
        if (!value)
        {
            return std::nullopt;
        }
        std::size_t const digits = std::min(value->find_first_not_of("0123456789"), value->size());
        auto const number = ParseWholeNumber(value->substr(0, digits));
        return number ? std::optional<microseconds>(std::chrono::milliseconds(std::min(*number, LARGEST_MS)))
                      : std::nullopt;
    }

    void BeginSync(std::string_view attributes)
    {
        FinishSync();
        m_current = {};
        m_isInSync = true;
        auto const time = ParseTime(attributes, "start");
        m_current.time = time.value_or(m_lastTime);
        m_current.end = ParseTime(attributes, "end");
        m_lastTime = m_current.time;
    }

    /// A SYNC with nothing in it clears as well.
    void FinishSync()
    {
        if (m_isInSync && !m_hasParagraph && Trim(m_current.text).empty())
        {
            m_paragraphs.push_back(m_current);
        }
        Flush();
        m_hasParagraph = false;
    }

    void BeginParagraph(std::string_view attributes)
    {
        Flush();
        m_current.text.clear();
        m_current.samiClass = FindAttribute(attributes, "class").value_or(std::string_view());
        m_hasParagraph = true;
    }

    /// Stores the paragraph read so far. White space alone between a SYNC and its first P is none; an empty P clears.
    void Flush()
    {
        bool const isNamed = !m_current.samiClass.empty();
        if (isNamed || !Trim(m_current.text).empty())
        {
            m_paragraphs.push_back(m_current);
        }
        m_current.text.clear();
        m_current.samiClass.clear();
    }

    std::string_view m_text;
    Paragraph m_current;
    std::size_t m_commentEnd = 0;
    microseconds m_lastTime{0};
    bool m_isInSync = false;
    bool m_hasParagraph = false;
    std::vector<Paragraph> m_paragraphs;
};

std::vector<std::string> CollectClasses(std::vector<Paragraph> const& paragraphs)
{
    std::vector<std::string> classes;
    for (Paragraph const& paragraph : paragraphs)
    {
        static constexpr std::size_t MOST_CLASSES = 100;
        if (!paragraph.samiClass.empty() && classes.size() < MOST_CLASSES &&
            std::none_of(classes.begin(), classes.end(),
                         [&](std::string const& known) { return EqualsIgnoreCase(known, paragraph.samiClass); }))
        {
            classes.push_back(paragraph.samiClass);
        }
    }
    return classes;
}

std::string ChooseClass(std::vector<Paragraph> const& paragraphs, std::string const& wanted)
{
    if (!wanted.empty())
    {
        return wanted;
    }
    auto const first = std::find_if(paragraphs.begin(), paragraphs.end(),
                                    [](Paragraph const& paragraph)
                                    { return !paragraph.samiClass.empty() && HasVisibleText(paragraph.text); });
    return first == paragraphs.end() ? std::string() : first->samiClass;
}

/// The other classes in which somebody would miss text.
std::vector<std::string> FindOmittedClasses(std::vector<Paragraph> const& paragraphs, std::string const& chosen)
{
    std::vector<std::string> omitted = CollectClasses(paragraphs);
    auto isNotMissed = [&](std::string const& name)
    {
        return EqualsIgnoreCase(name, chosen) ||
               std::none_of(paragraphs.begin(), paragraphs.end(),
                            [&](Paragraph const& paragraph)
                            { return EqualsIgnoreCase(paragraph.samiClass, name) && HasVisibleText(paragraph.text); });
    };
    omitted.erase(std::remove_if(omitted.begin(), omitted.end(), isNotMissed), omitted.end());
    return omitted;
}

/// Joins paragraphs of one time, so that what stays is one entry a point of time, in the order of the file.
std::vector<Paragraph> SelectClass(std::vector<Paragraph>& paragraphs, std::string const& samiClass)
{
    std::vector<Paragraph> selected;
    for (Paragraph& paragraph : paragraphs)
    {
        if (!paragraph.samiClass.empty() && !EqualsIgnoreCase(paragraph.samiClass, samiClass))
        {
            continue;
        }
        if (!selected.empty() && selected.back().time == paragraph.time)
        {
            bool const joins = HasVisibleText(selected.back().text) && HasVisibleText(paragraph.text);
            selected.back().text += joins ? "<br>" : "";
            selected.back().text += paragraph.text;
        }
        else
        {
            selected.push_back(std::move(paragraph));
        }
    }
    return selected;
}

/// For every entry the time of the next later one in the order of the file: files exist whose times step back.
std::vector<std::optional<microseconds>> FindEnds(std::vector<Paragraph> const& paragraphs)
{
    std::vector<std::optional<microseconds>> ends(paragraphs.size());
    std::vector<microseconds> later;
    for (std::size_t i = paragraphs.size(); i-- > 0;)
    {
        while (!later.empty() && later.back() <= paragraphs[i].time)
        {
            later.pop_back();
        }
        if (!later.empty())
        {
            ends[i] = later.back();
        }
        later.push_back(paragraphs[i].time);
    }
    return ends;
}

} // namespace

TextDocument ReadSami(std::string_view utf8, std::string const& samiClass)
{
    static constexpr microseconds LAST_CUE_DURATION = std::chrono::seconds(5);
    TextDocument document;
    document.codecId = Conf::IFormatCodecSubtitle::CODEC_ID_SAMI;
    document.markup = TextMarkup::Sami;
    auto paragraphs = Scanner(utf8).Scan();
    document.samiClass = ChooseClass(paragraphs, samiClass);
    document.omittedSamiClasses = FindOmittedClasses(paragraphs, document.samiClass);
    auto const selected = SelectClass(paragraphs, document.samiClass);
    auto const ends = FindEnds(selected);
    for (std::size_t i = 0; i < selected.size(); ++i)
    {
        Paragraph const& paragraph = selected[i];
        if (!HasVisibleText(paragraph.text))
        {
            continue;
        }
        TextCue cue;
        cue.start = paragraph.time;
        cue.end = ends[i].value_or(cue.start + LAST_CUE_DURATION);
        if (paragraph.end && *paragraph.end > cue.start && (!ends[i] || *paragraph.end < cue.end))
        {
            cue.end = *paragraph.end;
        }
        cue.text = Trim(paragraph.text);
        document.cues.push_back(std::move(cue));
    }
    return document;
}

std::vector<std::string> ListSamiClasses(std::string_view utf8)
{
    return CollectClasses(Scanner(utf8).Scan());
}

} // namespace Korvex::Proc::Text
