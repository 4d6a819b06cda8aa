#include "Proc/Text/TextSubtitles.h"

#include "Proc/Text/AssFonts.h"
#include "Proc/Text/AssStyles.h"
#include "Proc/Text/AssText.h"
#include "Proc/Text/Lines.h"
#include "Proc/Text/TimeStamp.h"

#include <algorithm>

namespace Korvex::Proc::Text
{

namespace
{

/// Lines without text would end the cue for other readers.
std::string DropBlankLines(std::string const& text)
{
    std::string result;
    for (std::string_view const line : SplitLines(text))
    {
        if (!Trim(line).empty())
        {
            result += line;
            result += '\n';
        }
    }
    return result;
}

/// A comma would end the field.
std::string MakeField(std::string const& value)
{
    std::string result = value;
    std::replace_if(
        result.begin(), result.end(), [](char letter) { return letter == ',' || letter == '\n' || letter == '\r'; },
        ' ');
    return result;
}

} // namespace

std::string WriteSubRip(TextDocument const& document)
{
    std::vector<TextCue const*> cues;
    for (TextCue const& cue : document.cues)
    {
        cues.push_back(&cue);
    }
    std::stable_sort(cues.begin(), cues.end(), [](auto a, auto b) { return a->start < b->start; });
    std::string file;
    int number = 0;
    for (TextCue const* const cue : cues)
    {
        std::string const text = DropBlankLines(ToSubRipText(cue->text, document.markup));
        if (!text.empty())
        {
            file += std::to_string(++number) + '\n' + FormatSubRipTime(cue->start) + " --> " +
                    FormatSubRipTime(cue->end) + '\n' + text + '\n';
        }
    }
    return file;
}

std::string WriteAss(TextDocument const& document)
{
    std::string file = document.scriptHeader;
    if (file.empty())
    {
        file = "[Script Info]\nScriptType: v4.00+\n\n[V4+ Styles]\nFormat: " + std::string(STYLE_FORMAT) +
               "\nStyle: " + std::string(DEFAULT_STYLE) + '\n';
    }
    file += file.back() == '\n' ? "" : "\n";
    if (!document.fonts.empty())
    {
        file += "\n[Fonts]\n";
        for (FontAttachment const& font : document.fonts)
        {
            file += "fontname: " + MakeField(font.name) + '\n' + EncodeAttachment(*font.data) + '\n';
        }
    }
    file += EventSection();
    for (TextCue const& cue : document.cues)
    {
        file += "Dialogue: " + std::to_string(cue.layer) + ',' + FormatAssTime(cue.start) + ',' +
                FormatAssTime(cue.end) + ',' + MakeField(cue.style) + ',' + MakeField(cue.name) + ',' +
                std::to_string(cue.marginLeft) + ',' + std::to_string(cue.marginRight) + ',' +
                std::to_string(cue.marginVertical) + ',' + MakeField(cue.effect) + ',' +
                ToAssText(cue.text, document.markup) + '\n';
    }
    return file;
}

} // namespace Korvex::Proc::Text
