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
