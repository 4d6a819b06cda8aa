<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>ConversionTexts</name>
    <message>
        <source>&quot;%1&quot; (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of &quot;%2&quot; cannot be written anew in its encoding for %3: choose another format, draw it in or leave it out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of &quot;%2&quot; cannot be moved in time as a switchable track of %3: set its offset to 0, draw it in or leave it out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of &quot;%2&quot; cannot go into %3: draw it in or leave it out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of &quot;%2&quot; cannot go into %3: choose %4, draw it in or leave it out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> or </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 holds no cues and was left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 goes into %2 as %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was read as %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was moved by %2 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of %1 could not be read as text.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 made no sense and were left out.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 would never be shown and were left out.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EditingPanel</name>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitles encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aligment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Relocating subtitles saves all subtitle tracks. You can select them in player.&lt;br&gt;&lt;br&gt;Select one of track to hardsub them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hastened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delayed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help on subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Synchronization offset in seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExternalSubtitlesDialog</name>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitle files (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilmRow</name>
    <message>
        <source>Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converted</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Converted, with %n remark(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ItemPanel</name>
    <message>
        <source>Subtitles of this film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply to all files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes the same choice for every film of the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::AboutDialog</name>
    <message>
        <source>About Korvex Subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converts films with their subtitles: as tracks that can be switched on and off, or drawn into the picture.

Free software under the GNU General Public License, version 3 or later. It comes without any warranty.

It is built on Qt, FFmpeg and libass.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Actions</name>
    <message>
        <source>&amp;Add films...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;subtitles...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Subtitles...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply these subtitles to &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy as command line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;output in folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert this &amp;film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel this film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel a&amp;ll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the &amp;system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Korvex Subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionControl</name>
    <message>
        <source>Quit while converting?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Films are still being converted. Quitting cancels them; what is finished stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel conversions and quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionQueue</name>
    <message>
        <source>The subtitles of &quot;%1&quot; cannot go out as chosen; choose them again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::DropHighlight</name>
    <message>
        <source>Drop films, folders or subtitle files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::EmptyPage</name>
    <message>
        <source>Drop films here or choose files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders work too. Subtitle files beside a film are found by themselves.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FileActions</name>
    <message>
        <source>&quot;%1&quot; needs a film to go with: add the film first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No new film was found in &quot;%1&quot;: choose a folder with films.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add films</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where is &quot;%1&quot; now?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Film</name>
    <message>
        <source>The film &quot;%1&quot; is not there any more: show where it is now, or remove it from the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locate...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmActions</name>
    <message>
        <source>Remove a film that is being converted?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is being converted. Removing it cancels its conversion.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel conversion and remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file manager could be started: the film is &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmListPane</name>
    <message numerus="yes">
        <source>%n film(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Films</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmWords</name>
    <message>
        <source>Track %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>All %n track(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawn in: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no subtitles that can be read: remove it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot go into %2: draw it in, or leave it out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot go into %2: choose %3, draw it in, or leave it out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be moved in time while it stays a track: draw it in, set its offset to 0, or leave it out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set its offset to 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read in another encoding while it stays a track: draw it in, or leave it out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw it in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave it out</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fil&amp;m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put &amp;back left-out tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::NoticeBar</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Notices</name>
    <message>
        <source>Try again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::OutputBar</name>
    <message>
        <source>As the source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is copied unchanged where nothing is drawn into it and the format can carry it; otherwise it is encoded in high quality.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is encoded anew; differences are next to invisible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is encoded anew; good for watching, in a smaller file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is encoded anew into a small file; losses are visible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stand still until you resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality of the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beside each film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Convert all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert all films that are ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only &amp;this film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert the film that is chosen in the list, and no other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of all conversions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop converting; half-written files are removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where to save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output folder: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SessionStore</name>
    <message>
        <source>The list of last time in &quot;%1&quot; cannot be read, and nothing is kept this time: rename or remove that file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of last time was written by a newer version of the program; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of last time is damaged; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of films could not be kept in &quot;%1&quot; (%2): check that you may write there.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ShortcutsDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the list: subtitles of the film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the list: menu of the film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close what is open</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpPane</name>
    <message>
        <source>Help with the text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpTexts</name>
    <message>
        <source>The file itself says that it is %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detected: %1 (certain).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing tells the encoding; %1 is a guess.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detected: %1 (very sure, %2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detected: %1 (fairly sure, %2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detected: %1 (not sure, %2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) cannot be read in this encoding and show as &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; is not installed; &quot;%2&quot; stands in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; lacks %n character(s) of this text (%2): &quot;%3&quot; stands in.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No installed font has %n character(s) of this text (%1); they show as empty boxes.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpView</name>
    <message>
        <source>It could also read:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First lines of the text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvex::GUI::ColorPickerButton</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a color</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnlineDownloaderInteractor</name>
    <message>
        <source>No online subtitle service is set up; add its API key to the settings.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SubtitleCollection</name>
    <message>
        <source>Subtitle tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current choice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no subtitle tracks yet. Add a subtitle file first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chosen output format cannot carry these tracks. Choose another format, or burn one track in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save this track to a file (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save to a file: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SubtitleCollectionInteractor</name>
    <message>
        <source>No subtitles were found in &quot;%1&quot;: take it out of the list and choose an SRT, ASS or SSA file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SubtitleSettings</name>
    <message>
        <source>Auto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows-1251</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Central and Eastern European (Windows-1250)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Russian (KOI8-R)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ukrainian, Belarusian (KOI8-U/RU)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esperanto, Galician, Maltese, Turkish (ISO-8859-3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modern Greek (ISO-8859-7)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hebrew charsets (ISO-8859-8)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turkish (ISO-8859-9)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Baltic (ISO-8859-13)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Western European Languages with Euro (ISO-8859-15)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Japanese charsets (SHIFT-JIS/CP932)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simplified Chinese charset (CP936)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Traditional Chinese charset (BIG5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TimeTexts</name>
    <message>
        <source>less than a minute left</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n min left</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h left</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 h %n min left</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TimeWords</name>
    <message>
        <source>%1 s left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
