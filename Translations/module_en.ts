<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>EditingPanel</name>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">Subtitles</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Choose subtitles</translation>
    </message>
    <message>
        <source>Subtitles encoding</source>
        <translation type="unfinished">Encoding</translation>
    </message>
    <message>
        <source>Aligment</source>
        <translation type="unfinished">Alignment</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation type="unfinished">Time offset</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Add subtitles</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">Keep all tracks switchable</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">Choose a file</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">Find a file</translation>
    </message>
    <message>
        <source>Relocating subtitles saves all subtitle tracks. You can select them in player.&lt;br&gt;&lt;br&gt;Select one of track to hardsub them.</source>
        <translation type="unfinished">All subtitle tracks are kept, to be switched on and off in the player.&lt;br&gt;&lt;br&gt;Choose one track to draw it into the picture instead.</translation>
    </message>
    <message>
        <source>Hastened</source>
        <translation type="unfinished">Earlier</translation>
    </message>
    <message>
        <source>Delayed</source>
        <translation type="unfinished">Later</translation>
    </message>
    <message>
        <source>Help on subtitles</source>
        <translation type="unfinished">Help on subtitles</translation>
    </message>
    <message>
        <source>Position shift</source>
        <translation type="unfinished">Position shift</translation>
    </message>
    <message>
        <source>Synchronization offset in seconds</source>
        <translation type="unfinished">Time offset in seconds</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation type="unfinished">Text color</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation type="unfinished">Outline color</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation type="unfinished">Font: %1</translation>
    </message>
</context>
<context>
    <name>ExternalSubtitlesDialog</name>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Choose subtitles</translation>
    </message>
    <message>
        <source>Subtitle files (%1)</source>
        <translation type="unfinished">Subtitle files (%1)</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ItemPanel</name>
    <message>
        <source>Subtitles of this film</source>
        <translation type="unfinished">Subtitles of this film</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Choose subtitles</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Add subtitles</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">Choose a file</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">Find a file</translation>
    </message>
    <message>
        <source>Apply to all files</source>
        <translation type="unfinished">Apply to all films</translation>
    </message>
    <message>
        <source>Makes the same choice for every film of the list</source>
        <translation type="unfinished">Make the same choice for every film in the list</translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished">Done</translation>
    </message>
</context>
<context>
    <name>OnlineDownloaderInteractor</name>
    <message>
        <source>No online subtitle service is set up; add its API key to the settings.</source>
        <translation type="unfinished">No online subtitle service is set up; add its API key to the settings.</translation>
    </message>
</context>
<context>
    <name>SubtitleCollection</name>
    <message>
        <source>Subtitle tracks</source>
        <translation type="unfinished">Subtitle tracks</translation>
    </message>
    <message>
        <source>Current choice</source>
        <translation type="unfinished">Current choice</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">No subtitles</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">Keep all tracks switchable</translation>
    </message>
    <message>
        <source>There are no subtitle tracks yet. Add a subtitle file first.</source>
        <translation type="unfinished">There are no subtitle tracks yet. Add a subtitle file first.</translation>
    </message>
    <message>
        <source>The chosen output format cannot carry these tracks. Choose another format, or burn one track in.</source>
        <translation type="unfinished">The chosen output format cannot hold these tracks. Choose another format, or draw one track in.</translation>
    </message>
    <message>
        <source>Save this track to a file (Ctrl+S)</source>
        <translation type="unfinished">Save this track to a file (Ctrl+S)</translation>
    </message>
    <message>
        <source>Save to a file: %1</source>
        <translation type="unfinished">Save to a file: %1</translation>
    </message>
</context>
<context>
    <name>SubtitleCollectionInteractor</name>
    <message>
        <source>No subtitles were found in &quot;%1&quot;: take it out of the list and choose an SRT, ASS or SSA file.</source>
        <translation type="unfinished">No subtitles were found in &quot;%1&quot;: remove it from the list and choose an SRT, ASS or SSA file.</translation>
    </message>
</context>
<context>
    <name>SubtitleSettings</name>
    <message>
        <source>Auto</source>
        <translation type="unfinished">Auto</translation>
    </message>
    <message>
        <source>UTF-8</source>
        <translation type="unfinished">UTF-8</translation>
    </message>
    <message>
        <source>Windows-1251</source>
        <translation type="unfinished">Cyrillic (Windows-1251)</translation>
    </message>
    <message>
        <source>Central and Eastern European (Windows-1250)</source>
        <translation type="unfinished">Central and Eastern European (Windows-1250)</translation>
    </message>
    <message>
        <source>Russian (KOI8-R)</source>
        <translation type="unfinished">Russian (KOI8-R)</translation>
    </message>
    <message>
        <source>Ukrainian, Belarusian (KOI8-U/RU)</source>
        <translation type="unfinished">Ukrainian, Belarusian (KOI8-U/RU)</translation>
    </message>
    <message>
        <source>Esperanto, Galician, Maltese, Turkish (ISO-8859-3)</source>
        <translation type="unfinished">Esperanto, Galician, Maltese, Turkish (ISO-8859-3)</translation>
    </message>
    <message>
        <source>Modern Greek (ISO-8859-7)</source>
        <translation type="unfinished">Greek (ISO-8859-7)</translation>
    </message>
    <message>
        <source>Hebrew charsets (ISO-8859-8)</source>
        <translation type="unfinished">Hebrew (ISO-8859-8)</translation>
    </message>
    <message>
        <source>Turkish (ISO-8859-9)</source>
        <translation type="unfinished">Turkish (ISO-8859-9)</translation>
    </message>
    <message>
        <source>Baltic (ISO-8859-13)</source>
        <translation type="unfinished">Baltic (ISO-8859-13)</translation>
    </message>
    <message>
        <source>Western European Languages with Euro (ISO-8859-15)</source>
        <translation type="unfinished">Western European with euro (ISO-8859-15)</translation>
    </message>
    <message>
        <source>Japanese charsets (SHIFT-JIS/CP932)</source>
        <translation type="unfinished">Japanese (Shift-JIS/CP932)</translation>
    </message>
    <message>
        <source>Simplified Chinese charset (CP936)</source>
        <translation type="unfinished">Simplified Chinese (CP936)</translation>
    </message>
    <message>
        <source>Traditional Chinese charset (BIG5)</source>
        <translation type="unfinished">Traditional Chinese (Big5)</translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished">Default</translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished">Top</translation>
    </message>
    <message>
        <source>Vertical center</source>
        <translation type="unfinished">Vertical center</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished">Bottom</translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished">Left</translation>
    </message>
    <message>
        <source>Horizontal center</source>
        <translation type="unfinished">Horizontal center</translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished">Right</translation>
    </message>
</context>
</TS>
