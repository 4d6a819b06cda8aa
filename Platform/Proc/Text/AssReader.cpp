#include "Proc/Text/TextSubtitles.h"

#include "Proc/Text/AssFonts.h"
#include "Proc/Text/AssStyles.h"
#include "Proc/Text/AssText.h"
#include "Proc/Text/Lines.h"
#include "Proc/Text/TimeStamp.h"

#include "Conf/IFormatCodecSubtitle.h"

#include <algorithm>

namespace Korvex::Proc::Text
{

namespace
{

enum class Section
{
    None, ///< before the first header
    Info,
    Styles,
    Events,
    Fonts,
    Other,
};

/// The value of a "Name: value" line when it has this name.
std::optional<std::string_view> ValueOf(std::string_view line, std::string_view name)
{
    if (!StartsWithIgnoreCase(line, name))
    {
        return std::nullopt;
    }
    line = TrimStart(line.substr(name.size()));
    return line.substr(0, 1) == ":" ? std::optional(line.substr(1)) : std::nullopt;
}

int ParseMargin(std::string_view field)
{
    static constexpr std::int64_t LARGEST = 100'000;
    return static_cast<int>(std::clamp<std::int64_t>(ParseWholeNumber(field).value_or(0), -LARGEST, LARGEST));
}

class Reader
{
public:
    TextDocument Read(std::string_view text)
    {
        for (std::string_view const line : SplitLines(text))
        {
            ReadLine(TrimStart(line));
        }
        FinishFont();
        m_document.markup = TextMarkup::Ass;
        m_document.scriptHeader = MakeHeader();
        m_document.codecId =
            m_isVersion4 ? Conf::IFormatCodecSubtitle::CODEC_ID_SSA : Conf::IFormatCodecSubtitle::CODEC_ID_ASS;
        return std::move(m_document);
    }

private:
    void ReadLine(std::string_view line)
    {
        if (EnterSection(line))
        {
            return;
        }
        // Encoded data has no small letters, so these two are never a part of it.
        if (auto const event = ValueOf(line, "Dialogue"))
        {
            ReadEvent(*event);
        }
        else if (auto const style = ValueOf(line, "Style"); style && m_section != Section::Info)
        {
            m_styles.emplace_back(Trim(*style));
        }
        else if (m_section == Section::Fonts)
        {
            ReadFontLine(Trim(line));
        }
        else if (auto const format = ValueOf(line, "Format"))
        {
            ReadFormat(*format);
        }
        else if (m_section == Section::Info || m_section == Section::None)
        {
            ReadInfo(Trim(line));
        }
    }

    bool EnterSection(std::string_view line)
    {
        std::size_t const end = line.find(']');
        if (line.substr(0, 1) != "[" || end == std::string_view::npos)
        {
            return false;
        }
        std::string const name = ToLower(Trim(line.substr(1, end - 1)));
        // Encoded data may begin with a bracket; it has no small letters.
        if (m_section == Section::Fonts && line.find_first_of("abcdefghijklmnopqrstuvwxyz") == std::string_view::npos)
        {
            return false;
        }
        bool const isStyles = name.size() > 6 && name.compare(name.size() - 6, 6, "styles") == 0;
        if (name == "script info")
        {
            m_section = Section::Info;
        }
        else if (isStyles)
        {
            m_section = Section::Styles;
            m_stylesAreVersion4 = name.find('+') == std::string::npos;
            m_hasStylesSection = true;
        }
        else if (name == "events")
        {
            m_section = Section::Events;
        }
        else if (name == "fonts")
        {
            m_section = Section::Fonts;
        }
        else
        {
            m_section = Section::Other;
        }
        if (m_section != Section::Fonts)
        {
            FinishFont();
        }
        return true;
    }

    void ReadFormat(std::string_view fields)
    {
        auto names = ParseFormat(fields);
        bool const hasText = std::find(names.begin(), names.end(), "text") != names.end();
        if (hasText)
        {
            m_eventFormat = std::move(names);
        }
        else if (m_section == Section::Styles || m_section == Section::None)
        {
            m_styleFormatLine = std::string(Trim(fields));
            m_styleFormat = std::move(names);
        }
    }

    void ReadInfo(std::string_view line)
    {
        if (auto const type = ValueOf(line, "ScriptType"))
        {
            m_isVersion4 = type->find('+') == std::string_view::npos;
            m_hasScriptType = true;
        }
        else if (line.substr(0, 1) == ";" || (line.find(':') != std::string_view::npos && line.substr(0, 1) != "!"))
        {
            m_info.emplace_back(line);
        }
    }

    void ReadFontLine(std::string_view line)
    {
        if (auto const name = ValueOf(line, "fontname"))
        {
            FinishFont();
            m_fontName = Trim(*name);
        }
        else if (line.empty())
        {
            FinishFont();
        }
        else if (!m_fontName.empty())
        {
            m_fontData += line;
        }
    }

    void FinishFont()
    {
        if (!m_fontName.empty() && !m_fontData.empty())
        {
            m_document.fonts.push_back(
                {m_fontName, std::make_shared<std::vector<std::uint8_t> const>(DecodeAttachment(m_fontData))});
        }
        m_fontName.clear();
        m_fontData.clear();
    }

    /// Splits an event by the format in force: the fields before the text from the left, those behind it from the
    /// right.
    void ReadEvent(std::string_view event)
    {
        static std::vector<std::string> const USUAL = ParseFormat(EVENT_FORMAT);
        auto const& format = m_eventFormat.empty() ? USUAL : m_eventFormat;
        auto const text = std::find(format.begin(), format.end(), "text");
        TextCue cue;
        std::optional<TimeStamp> start;
        std::optional<TimeStamp> end;
        auto const store = [&](std::string const& name, std::string_view value)
        { StoreField(name, value, cue, start, end); };
        for (auto name = format.begin(); name != text; ++name)
        {
            std::size_t const comma = event.find(',');
            if (comma == std::string_view::npos)
            {
                break;
            }
            store(*name, event.substr(0, comma));
            event.remove_prefix(comma + 1);
        }
        for (auto name = format.end(); text != format.end() && name != text + 1; --name)
        {
            std::size_t const comma = event.rfind(',');
            if (comma == std::string_view::npos)
            {
                break;
            }
            store(*(name - 1), event.substr(comma + 1));
            event = event.substr(0, comma);
        }
        if (!start || !end)
        {
            ++m_document.skippedCues;
            return;
        }
        cue.start = start->time;
        cue.end = std::max(start->time, end->time);
        cue.text = event;
        m_document.cues.push_back(std::move(cue));
    }

    void StoreField(std::string const& name, std::string_view value, TextCue& cue, std::optional<TimeStamp>& start,
                    std::optional<TimeStamp>& end)
    {
        value = Trim(value);
        if (name == "start")
        {
            start = TakeTimeStamp(value);
        }
        else if (name == "end")
        {
            end = TakeTimeStamp(value);
        }
        else if (name == "layer" || name == "marked")
        {
            m_hasMarked = m_hasMarked || StartsWithIgnoreCase(value, "marked");
            cue.layer = name == "layer" ? ParseMargin(value) : 0;
        }
        else if (name == "style")
        {
            value.remove_prefix(std::min(value.find_first_not_of('*'), value.size()));
            cue.style = value.empty() ? "Default" : std::string(value);
        }
        else if (name == "name" || name == "actor")
        {
            cue.name = value;
        }
        else if (name == "marginl")
        {
            cue.marginLeft = ParseMargin(value);
        }
        else if (name == "marginr")
        {
            cue.marginRight = ParseMargin(value);
        }
        else if (name == "marginv")
        {
            cue.marginVertical = ParseMargin(value);
        }
        else if (name == "effect")
        {
            cue.effect = value;
        }
    }

    /// Decides by the section's name, then by the fields: what a script claims to be is often wrong.
    bool StylesAreVersion4() const
    {
        auto const has = [this](char const* name)
        { return std::find(m_styleFormat.begin(), m_styleFormat.end(), name) != m_styleFormat.end(); };
        if (m_hasStylesSection)
        {
            return m_stylesAreVersion4;
        }
        if (!m_styleFormat.empty())
        {
            return has("tertiarycolour") || has("alphalevel");
        }
        static constexpr std::ptrdiff_t LEAST_COMMAS = 20;
        return !m_styles.empty() && std::count(m_styles[0].begin(), m_styles[0].end(), ',') < LEAST_COMMAS;
    }

    std::string MakeHeader()
    {
        bool const upgrade = StylesAreVersion4();
        m_isVersion4 =
            m_hasStylesSection ? m_stylesAreVersion4 : (m_hasScriptType ? m_isVersion4 : upgrade || m_hasMarked);
        std::string header = "[Script Info]\n";
        for (std::string const& line : m_info)
        {
            header += line + '\n';
        }
        header += "ScriptType: v4.00+\n\n[V4+ Styles]\nFormat: ";
        header += upgrade || m_styleFormatLine.empty() ? std::string(STYLE_FORMAT) : m_styleFormatLine;
        header += '\n';
        for (std::string const& style : m_styles)
        {
            header += "Style: " + (upgrade ? UpgradeStyle(style, m_styleFormat) : style) + '\n';
        }
        if (m_styles.empty())
        {
            header += "Style: " + std::string(DEFAULT_STYLE) + '\n';
        }
        return header;
    }

    TextDocument m_document;
    Section m_section = Section::None;
    std::vector<std::string> m_info;
    std::vector<std::string> m_styles;
    std::string m_styleFormatLine;
    std::vector<std::string> m_styleFormat;
    std::vector<std::string> m_eventFormat;
    std::string m_fontName;
    std::string m_fontData;
    bool m_isVersion4 = false;
    bool m_hasScriptType = false;
    bool m_hasStylesSection = false;
    bool m_stylesAreVersion4 = false;
    bool m_hasMarked = false;
};

} // namespace

TextDocument ReadAss(std::string_view utf8)
{
    return Reader().Read(utf8);
}

} // namespace Korvex::Proc::Text
