#include "Cli/SubtitleOptions.h"

#include "Cli/Console.h"
#include "Cli/Values.h"

#include <initializer_list>
#include <utility>

namespace Korvex::Cli
{

using Hosts::SubtitleChoice;
using Hosts::SubtitleOutput;

namespace
{

constexpr int MAXIMUM_LINES = 288;
constexpr char const* NO_TRACKS = "none"; ///< of --tracks; identifiers of a film's own tracks are numbers

OptionGroup TrackGroup()
{
    return {
        "Which subtitles",
        {
            {"--tracks", OptionValue::Required, "ID,...",
             "Only these of the film's own subtitle tracks, or none; all of them without this option. \"korvex "
             "tracks\" prints the IDs."},
            {"--add", OptionValue::Required, "FILE",
             "Add a subtitle file (srt, ass, ssa, smi, vtt and others). The next four options describe the file added "
             "last.",
             Repetition::Any},
            {"--language", OptionValue::Required, "L", "Its language, for example en, rus or pt-BR.", Repetition::Any},
            {"--title", OptionValue::Required, "T", "Its title.", Repetition::Any},
            {"--default", OptionValue::None, {}, "Players show it unless told otherwise.", Repetition::Any},
            {"--forced", OptionValue::None, {}, "It holds only what has to be shown always.", Repetition::Any},
            {"--no-lookup",
             OptionValue::None,
             {},
             "Do not look for subtitle files beside the film (Film.srt, Film.en.srt, Subs/Film.srt)."},
        }};
}

OptionGroup ModeGroup(SubtitlePurpose purpose)
{
    bool const isConvert = purpose == SubtitlePurpose::Convert;
    return {"What becomes of them",
            {
                {"--soft",
                 OptionValue::None,
                 {},
                 isConvert ? "Every track goes out as a stream that can be switched on and off (this is the default)."
                           : "Tracks would go out as streams: the picture is shown without text."},
                {"--burn", OptionValue::Optional, "TRACK",
                 isConvert ? "Draw one track into the picture: the ID that \"korvex tracks\" prints, which is the "
                             "path for a file of its own. Without TRACK: the only file added, or the only track "
                             "there is."
                           : "Draw this track: the ID that \"korvex tracks\" prints, which is the path for a file "
                             "of its own. Without TRACK, and by default with --add: the only file added."},
                {"--no-subtitles", OptionValue::None, {}, "No subtitles."},
                {"--no-prepare",
                 OptionValue::None,
                 {},
                 "With --soft: refuse tracks that the container cannot carry as they are, instead of writing them "
                 "anew as a kind that fits."},
            }};
}

OptionGroup TextGroup()
{
    return {"Text and times",
            {
                {"--encoding", OptionValue::Required, "NAME",
                 "Character encoding of subtitle files (UTF-8, CP1251, CP1250, KOI8-R, KOI8-U, ISO-8859-3, -7, -8, "
                 "-9, -13, -15, CP932, CP936, BIG-5); detected without this option."},
                {"--offset", OptionValue::Required, "SECONDS",
                 "Show the text later by this much, earlier when negative. With --soft it moves the subtitle files, "
                 "or, where there are none, the film's own text tracks."},
            }};
}

OptionGroup LookGroup()
{
    return {"Look of drawn text (--burn)",
            {
                {"--font", OptionValue::Required, "FAMILY", "Font family (default Verdana or what replaces it)."},
                {"--font-size", OptionValue::Required, "N",
                 "Size in lines of a 288-line picture, whatever the real one's height (default 20)."},
                {"--bold", OptionValue::None, {}, "Bold."},
                {"--italic", OptionValue::None, {}, "Slanted."},
                {"--underline", OptionValue::None, {}, "Underlined."},
                {"--strike-out", OptionValue::None, {}, "Struck out."},
                {"--text-color", OptionValue::Required, "C", "Colour as #rrggbb or by name (default white)."},
                {"--outline-color", OptionValue::Required, "C", "Colour of the outline (default black)."},
                {"--align", OptionValue::Required, "A",
                 "default, top, vertical-center, bottom, left, horizontal-center or right."},
                {"--shift", OptionValue::Required, "LINES",
                 "Move the text up by lines of a 288-line picture, down when negative."},
            }};
}

/// Reads one option after the other.
class Reader
{
public:
    SubtitleChoice Read(Arguments const& arguments)
    {
        for (GivenOption const& option : arguments.options)
            if (!TakeTrackOption(option) && !TakeModeOption(option) && !TakeFontOption(option))
                TakeOtherOption(option);
        return std::move(m_choice);
    }

private:
    bool TakeTrackOption(GivenOption const& option)
    {
        if (option.name == "--tracks")
            m_choice.ownTracks = option.Value() == NO_TRACKS ? std::vector<std::string>() : ReadList(option);
        else if (option.name == "--add")
            m_choice.added.push_back({option.Value(), {}, {}, false, false});
        else if (option.name == "--language")
            SetOnce(option, LastAdded(option).language, ReadLanguage(option));
        else if (option.name == "--title")
            SetOnce(option, LastAdded(option).title, option.Value());
        else if (option.name == "--default")
            LastAdded(option).isDefault = true;
        else if (option.name == "--forced")
            LastAdded(option).isForced = true;
        else if (option.name == "--no-lookup")
            m_choice.lookUp = Hosts::SidecarLookUp::Off;
        else
            return false;
        return true;
    }

    bool TakeModeOption(GivenOption const& option)
    {
        if (option.name == "--soft")
            m_choice.output = SubtitleOutput::Soft;
        else if (option.name == "--burn")
        {
            m_choice.output = SubtitleOutput::Burn;
            m_choice.burnTrack = option.value.value_or(std::string());
        }
        else if (option.name == "--no-subtitles")
            m_choice.output = SubtitleOutput::None;
        else if (option.name == "--no-prepare")
            m_choice.preparation = Hosts::Preparation::Refuse;
        else
            return false;
        return true;
    }

    bool TakeFontOption(GivenOption const& option)
    {
        if (option.name == "--font")
            m_choice.look.fontFamily = option.Value();
        else if (option.name == "--font-size")
            m_choice.look.fontSize = ReadInteger(option, 1, MAXIMUM_LINES);
        else if (option.name == "--bold")
            m_choice.look.isBold = true;
        else if (option.name == "--italic")
            m_choice.look.isItalic = true;
        else if (option.name == "--underline")
            m_choice.look.isUnderlined = true;
        else if (option.name == "--strike-out")
            m_choice.look.isStruckOut = true;
        else
            return false;
        return true;
    }

    void TakeOtherOption(GivenOption const& option)
    {
        if (option.name == "--encoding")
            m_choice.encoding = ReadEncoding(option);
        else if (option.name == "--offset")
            m_choice.offsetSeconds = ReadSeconds(option);
        else if (option.name == "--text-color")
            m_choice.look.textColor = ReadColor(option);
        else if (option.name == "--outline-color")
            m_choice.look.outlineColor = ReadColor(option);
        else if (option.name == "--align")
            m_choice.look.align = ReadAlign(option);
        else if (option.name == "--shift")
            m_choice.look.shiftLines = ReadInteger(option, -MAXIMUM_LINES, MAXIMUM_LINES);
    }

    Hosts::AddedFile& LastAdded(GivenOption const& option)
    {
        if (m_choice.added.empty())
            throw UsageError("The option " + std::string(option.name) +
                             " describes a file that was added: put it after its --add.");
        return m_choice.added.back();
    }

    static void SetOnce(GivenOption const& option, std::string& field, std::string value)
    {
        if (!field.empty())
            throw UsageError("The option " + std::string(option.name) + " was given more than once for one file.");
        field = std::move(value);
    }

    SubtitleChoice m_choice;
};

void RefuseAny(Arguments const& arguments, std::initializer_list<std::string_view> names, std::string const& reason)
{
    for (std::string_view const name : names)
        if (arguments.Find(name) != nullptr)
            throw UsageError("The option " + std::string(name) + " has no effect " + reason + ".");
}

void CheckModes(Arguments const& arguments)
{
    std::string_view first;
    for (std::string_view const mode : {"--soft", "--burn", "--no-subtitles"})
    {
        if (arguments.Find(mode) == nullptr)
            continue;
        if (!first.empty())
            throw UsageError("The options " + std::string(first) + " and " + std::string(mode) +
                             " exclude each other.");
        first = mode;
    }
}

void CheckEffects(Arguments const& arguments, SubtitleOutput output, SubtitlePurpose purpose)
{
    if (output == SubtitleOutput::Burn)
    {
        RefuseAny(arguments, {"--language", "--title", "--default", "--forced", "--no-prepare"},
                  "on subtitles that are drawn into the picture");
        return;
    }
    std::string const reason = output == SubtitleOutput::Soft ? "without --burn" : "with --no-subtitles";
    RefuseAny(arguments,
              {"--font", "--font-size", "--bold", "--italic", "--underline", "--strike-out", "--text-color",
               "--outline-color", "--align", "--shift"},
              reason);
    if (purpose == SubtitlePurpose::Preview)
        RefuseAny(arguments, {"--encoding", "--offset", "--no-prepare"}, "on a picture " + reason);
    if (output == SubtitleOutput::None)
        RefuseAny(arguments, {"--tracks", "--add", "--encoding", "--offset", "--no-prepare"}, reason);
}

} // namespace

std::vector<OptionGroup> SubtitleOptionGroups(SubtitlePurpose purpose)
{
    return {TrackGroup(), ModeGroup(purpose), TextGroup(), LookGroup()};
}

SubtitleChoice ReadSubtitleOptions(Arguments const& arguments, SubtitlePurpose purpose)
{
    CheckModes(arguments);
    SubtitleChoice choice = Reader().Read(arguments);
    bool const isModeNamed = arguments.Find("--soft") || arguments.Find("--burn") || arguments.Find("--no-subtitles");
    if (!isModeNamed && purpose == SubtitlePurpose::Preview)
        choice.output = choice.added.empty() ? SubtitleOutput::Soft : SubtitleOutput::Burn;
    CheckEffects(arguments, choice.output, purpose);
    return choice;
}

} // namespace Korvex::Cli
