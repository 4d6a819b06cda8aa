<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n film(s) converted.</source>
        <translation type="unfinished">
            <numerusform>%n film converted.</numerusform>
            <numerusform>%n films converted.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) with remarks: %1</source>
        <translation type="unfinished">
            <numerusform>%n film with remarks: %1</numerusform>
            <numerusform>%n films with remarks: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) could not be converted: %1</source>
        <translation type="unfinished">
            <numerusform>%n film could not be converted: %1</numerusform>
            <numerusform>%n films could not be converted: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) cancelled.</source>
        <translation type="unfinished">
            <numerusform>%n film cancelled.</numerusform>
            <numerusform>%n films cancelled.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConversionTexts</name>
    <message numerus="yes">
        <source>%n byte(s) of %1 could not be read as text.</source>
        <translation type="unfinished">
            <numerusform>%n byte of %1 could not be read as text.</numerusform>
            <numerusform>%n bytes of %1 could not be read as text.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>%n cue of %1 without usable times was left out.</numerusform>
            <numerusform>%n cues of %1 without usable times were left out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 would never be shown and were left out.</source>
        <translation type="unfinished">
            <numerusform>%n cue of %1 would never be shown and was left out.</numerusform>
            <numerusform>%n cues of %1 would never be shown and were left out.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilmRow</name>
    <message numerus="yes">
        <source>Converted, with %n remark(s)</source>
        <translation type="unfinished">
            <numerusform>Converted, with %n remark</numerusform>
            <numerusform>Converted, with %n remarks</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ImdbIdValidator</name>
    <message numerus="yes">
        <source>The IMDb id is too short: it has at least %n digit(s), as in tt0123456.</source>
        <translation type="unfinished">
            <numerusform>The IMDb id is too short: it has at least %n digit, as in tt0123456.</numerusform>
            <numerusform>The IMDb id is too short: it has at least %n digits, as in tt0123456.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The IMDb id is too long: it has at most %n digit(s).</source>
        <translation type="unfinished">
            <numerusform>The IMDb id is too long: it has at most %n digit.</numerusform>
            <numerusform>The IMDb id is too long: it has at most %n digits.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowStatus</name>
    <message numerus="yes">
        <source>%n subtitle(s) found</source>
        <translation type="unfinished">
            <numerusform>%n subtitle found</numerusform>
            <numerusform>%n subtitles found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Download %n</source>
        <translation type="unfinished">
            <numerusform>&amp;Download %n</numerusform>
            <numerusform>&amp;Download %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ResultList</name>
    <message numerus="yes">
        <source>None of the %n subtitle(s) found holds &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>The %n subtitle found does not hold &quot;%1&quot;.</numerusform>
            <numerusform>None of the %n subtitles found holds &quot;%1&quot;.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FetchedSubtitles</name>
    <message numerus="yes">
        <source>%n subtitle file(s) were added to &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>%n subtitle file was added to &quot;%1&quot;.</numerusform>
            <numerusform>%n subtitle files were added to &quot;%1&quot;.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmListPane</name>
    <message numerus="yes">
        <source>%n film(s)</source>
        <translation type="unfinished">
            <numerusform>%n film</numerusform>
            <numerusform>%n films</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmWords</name>
    <message numerus="yes">
        <source>All %n track(s)</source>
        <translation type="unfinished">
            <numerusform>%n track</numerusform>
            <numerusform>All %n tracks</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SaveTrack</name>
    <message numerus="yes">
        <source>&quot;%1&quot; was saved as %2 with %n cue(s)</source>
        <translation type="unfinished">
            <numerusform>&quot;%1&quot; was saved as %2 with %n cue</numerusform>
            <numerusform>&quot;%1&quot; was saved as %2 with %n cues</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) could not be read as %1</source>
        <translation type="unfinished">
            <numerusform>%n byte could not be read as %1</numerusform>
            <numerusform>%n bytes could not be read as %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) without usable times were left out</source>
        <translation type="unfinished">
            <numerusform>%n cue without usable times was left out</numerusform>
            <numerusform>%n cues without usable times were left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of no duration were left out</source>
        <translation type="unfinished">
            <numerusform>%n cue of no duration was left out</numerusform>
            <numerusform>%n cues of no duration were left out</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpTexts</name>
    <message numerus="yes">
        <source>%n byte(s) cannot be read in this encoding and show as &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>%n byte cannot be read in this encoding and shows as &quot;%1&quot;.</numerusform>
            <numerusform>%n bytes cannot be read in this encoding and show as &quot;%1&quot;.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; lacks %n character(s) of this text (%2): &quot;%3&quot; stands in.</source>
        <translation type="unfinished">
            <numerusform>&quot;%1&quot; lacks %n character of this text (%2): &quot;%3&quot; stands in.</numerusform>
            <numerusform>&quot;%1&quot; lacks %n characters of this text (%2): &quot;%3&quot; stands in.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No installed font has %n character(s) of this text (%1); they show as empty boxes.</source>
        <translation type="unfinished">
            <numerusform>No installed font has %n character of this text (%1); it shows as an empty box.</numerusform>
            <numerusform>No installed font has %n characters of this text (%1); they show as empty boxes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OnlineSearchDialogPresenter</name>
    <message numerus="yes">
        <source>Searching... %n found so far</source>
        <translation type="unfinished">
            <numerusform>Searching... %n found so far</numerusform>
            <numerusform>Searching... %n found so far</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>%n subtitle found.</numerusform>
            <numerusform>%n subtitles found.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Downloading %n subtitle(s)...</source>
        <translation type="unfinished">
            <numerusform>Downloading %n subtitle...</numerusform>
            <numerusform>Downloading %n subtitles...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) added to the film.</source>
        <translation type="unfinished">
            <numerusform>%n subtitle added to the film.</numerusform>
            <numerusform>%n subtitles added to the film.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n download(s) left.</source>
        <translation type="unfinished">
            <numerusform>%n download left.</numerusform>
            <numerusform>%n downloads left.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The search was cancelled; %n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>The search was cancelled; %n subtitle found.</numerusform>
            <numerusform>The search was cancelled; %n subtitles found.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResultList</name>
    <message numerus="yes">
        <source>%1 of 10, by %n vote(s)</source>
        <translation type="unfinished">
            <numerusform>%1 of 10, by %n vote</numerusform>
            <numerusform>%1 of 10, by %n votes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TimeTexts</name>
    <message numerus="yes">
        <source>%n min left</source>
        <translation type="unfinished">
            <numerusform>%n min left</numerusform>
            <numerusform>%n min left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h left</source>
        <translation type="unfinished">
            <numerusform>%n h left</numerusform>
            <numerusform>%n h left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 h %n min left</source>
        <translation type="unfinished">
            <numerusform>%1 h %n min left</numerusform>
            <numerusform>%1 h %n min left</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WarningWords</name>
    <message numerus="yes">
        <source>%n byte(s) of &quot;%1&quot; could not be read as %2 and show as &quot;%3&quot;: check the encoding.</source>
        <translation type="unfinished">
            <numerusform>%n byte of &quot;%1&quot; could not be read as %2 and shows as &quot;%3&quot;: check the encoding.</numerusform>
            <numerusform>%n bytes of &quot;%1&quot; could not be read as %2 and show as &quot;%3&quot;: check the encoding.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>%n cue of &quot;%1&quot; without usable times was left out.</numerusform>
            <numerusform>%n cues of &quot;%1&quot; without usable times were left out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; of no duration were left out.</source>
        <translation type="unfinished">
            <numerusform>%n cue of &quot;%1&quot; of no duration was left out.</numerusform>
            <numerusform>%n cues of &quot;%1&quot; of no duration were left out.</numerusform>
        </translation>
    </message>
</context>
</TS>
