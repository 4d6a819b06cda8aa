<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n film(s) converted.</source>
        <translation type="unfinished">
            <numerusform>%n Film umgewandelt.</numerusform>
            <numerusform>%n Filme umgewandelt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) with remarks: %1</source>
        <translation type="unfinished">
            <numerusform>%n Film mit Hinweisen: %1</numerusform>
            <numerusform>%n Filme mit Hinweisen: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) could not be converted: %1</source>
        <translation type="unfinished">
            <numerusform>%n Film konnte nicht umgewandelt werden: %1</numerusform>
            <numerusform>%n Filme konnten nicht umgewandelt werden: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) cancelled.</source>
        <translation type="unfinished">
            <numerusform>%n Film abgebrochen.</numerusform>
            <numerusform>%n Filme abgebrochen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConversionTexts</name>
    <message>
        <source>%1 holds no cues and was left out.</source>
        <translation type="unfinished">%1 enthält keine Untertitel und wurde weggelassen.</translation>
    </message>
    <message>
        <source>%1 goes into %2 as %3.</source>
        <translation type="unfinished">%1 kommt als %3 in %2.</translation>
    </message>
    <message>
        <source>%1 was read as %2.</source>
        <translation type="unfinished">%1 wurde als %2 gelesen.</translation>
    </message>
    <message>
        <source>%1 was moved by %2 s.</source>
        <translation type="unfinished">%1 wurde um %2 s verschoben.</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of %1 could not be read as text.</source>
        <translation type="unfinished">
            <numerusform>%n Byte von %1 ließ sich nicht als Text lesen.</numerusform>
            <numerusform>%n Bytes von %1 ließen sich nicht als Text lesen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>%n Untertitel von %1 ohne brauchbare Zeiten wurde weggelassen.</numerusform>
            <numerusform>%n Untertitel von %1 ohne brauchbare Zeiten wurden weggelassen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 would never be shown and were left out.</source>
        <translation type="unfinished">
            <numerusform>%n Untertitel von %1 würde nie gezeigt und wurde weggelassen.</numerusform>
            <numerusform>%n Untertitel von %1 würden nie gezeigt und wurden weggelassen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EditingPanel</name>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">Untertitel</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Untertitel wählen</translation>
    </message>
    <message>
        <source>Subtitles encoding</source>
        <translation type="unfinished">Kodierung der Untertitel</translation>
    </message>
    <message>
        <source>Aligment</source>
        <translation type="unfinished">Ausrichtung</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation type="unfinished">Synchronisieren</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Untertitel hinzufügen</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">Alle Spuren behalten (Softsub)</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">Datei wählen</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">Datei suchen</translation>
    </message>
    <message>
        <source>Relocating subtitles saves all subtitle tracks. You can select them in player.&lt;br&gt;&lt;br&gt;Select one of track to hardsub them.</source>
        <translation type="unfinished">Beim Übernehmen bleiben alle Untertitelspuren erhalten. Sie lassen sich im Player auswählen.&lt;br&gt;&lt;br&gt;Wählen Sie eine Spur, um sie fest ins Bild einzubrennen.</translation>
    </message>
    <message>
        <source>Hastened</source>
        <translation type="unfinished">Früher</translation>
    </message>
    <message>
        <source>Delayed</source>
        <translation type="unfinished">Später</translation>
    </message>
    <message>
        <source>Help on subtitles</source>
        <translation type="unfinished">Hilfe zu Untertiteln</translation>
    </message>
    <message>
        <source>Position shift</source>
        <translation type="unfinished">Lage verschieben</translation>
    </message>
    <message>
        <source>Synchronization offset in seconds</source>
        <translation type="unfinished">Zeitversatz in Sekunden</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation type="unfinished">Textfarbe</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation type="unfinished">Konturfarbe</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation type="unfinished">Schriftart: %1</translation>
    </message>
</context>
<context>
    <name>ErrorClauses</name>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished">es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="unfinished">es ist keine Datei</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation type="unfinished">sie ist größer als %1 Bytes</translation>
    </message>
    <message>
        <source>its header cannot be read</source>
        <translation type="unfinished">ihr Kopf ist nicht lesbar</translation>
    </message>
    <message>
        <source>nothing in it can be read</source>
        <translation type="unfinished">nichts darin ist lesbar</translation>
    </message>
    <message>
        <source>it holds no subtitles</source>
        <translation type="unfinished">sie enthält keine Untertitel</translation>
    </message>
    <message>
        <source>it does not hold exactly one subtitle track</source>
        <translation type="unfinished">sie enthält nicht genau eine Untertitelspur</translation>
    </message>
    <message>
        <source>it has no picture</source>
        <translation type="unfinished">sie hat kein Bild</translation>
    </message>
    <message>
        <source>it has no picture that subtitles could be drawn into</source>
        <translation type="unfinished">sie hat kein Bild, in das sich Untertitel einbrennen ließen</translation>
    </message>
    <message>
        <source>the size of its picture is not known</source>
        <translation type="unfinished">die Größe ihres Bildes ist nicht bekannt</translation>
    </message>
    <message>
        <source>the picture has no usable size</source>
        <translation type="unfinished">das Bild hat keine brauchbare Größe</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation type="unfinished">keines ihrer Bilder lässt sich dekodieren</translation>
    </message>
    <message>
        <source>there is no decoder for it</source>
        <translation type="unfinished">es gibt keinen Decoder dafür</translation>
    </message>
    <message>
        <source>there is no decoder for track %1</source>
        <translation type="unfinished">für Spur %1 gibt es keinen Decoder</translation>
    </message>
    <message>
        <source>its decoder refuses the stream: %1</source>
        <translation type="unfinished">sein Decoder nimmt den Datenstrom nicht an: %1</translation>
    </message>
    <message>
        <source>its decoder does not know the options %1</source>
        <translation type="unfinished">sein Decoder kennt die Optionen %1 nicht</translation>
    </message>
    <message>
        <source>its encoder refuses the sound: %1</source>
        <translation type="unfinished">sein Encoder nimmt den Ton nicht an: %1</translation>
    </message>
    <message>
        <source>its encoder refuses the picture (%1): %2</source>
        <translation type="unfinished">sein Encoder nimmt das Bild nicht an (%1): %2</translation>
    </message>
    <message>
        <source>the encoder here is %1</source>
        <translation type="unfinished">der Encoder hier ist %1</translation>
    </message>
    <message>
        <source>there is no encoder preset &quot;%1&quot;</source>
        <translation type="unfinished">es gibt keine Encoder-Vorgabe „%1“</translation>
    </message>
    <message>
        <source>the text encoding &quot;%1&quot; is not known</source>
        <translation type="unfinished">die Textkodierung „%1“ ist nicht bekannt</translation>
    </message>
    <message>
        <source>the text renderer could not be set up</source>
        <translation type="unfinished">der Textzeichner ließ sich nicht einrichten</translation>
    </message>
    <message>
        <source>it names a folder</source>
        <translation type="unfinished">das ist ein Ordner</translation>
    </message>
    <message>
        <source>it is a device or a pipe, not a file</source>
        <translation type="unfinished">das ist ein Gerät oder eine Pipe, keine Datei</translation>
    </message>
    <message>
        <source>a .%1 file</source>
        <translation type="unfinished">eine .%1-Datei</translation>
    </message>
    <message>
        <source>save it as .%1 instead</source>
        <translation type="unfinished">Speichern Sie sie stattdessen als .%1</translation>
    </message>
    <message>
        <source>it consists of pictures, so save it as .%1</source>
        <translation type="unfinished">Sie besteht aus Bildern, speichern Sie sie also als .%1</translation>
    </message>
    <message>
        <source>the encoder libx264 is missing</source>
        <translation type="unfinished">der Encoder libx264 fehlt</translation>
    </message>
    <message>
        <source>subtitles can be switchable or drawn in, not both</source>
        <translation type="unfinished">Untertitel können zuschaltbar oder eingebrannt sein, nicht beides</translation>
    </message>
    <message>
        <source>the quality goes from 0 to 51</source>
        <translation type="unfinished">die Qualität reicht von 0 bis 51</translation>
    </message>
    <message>
        <source>the chosen format</source>
        <translation type="unfinished">das gewählte Format</translation>
    </message>
    <message>
        <source>draw it in</source>
        <translation type="unfinished">Brennen Sie die Spur ein</translation>
    </message>
    <message>
        <source>choose Matroska or draw it in</source>
        <translation type="unfinished">Wählen Sie Matroska, oder brennen Sie die Spur ein</translation>
    </message>
    <message>
        <source>draw it in or leave it out</source>
        <translation type="unfinished">Brennen Sie die Spur ein, oder lassen Sie sie weg</translation>
    </message>
    <message>
        <source>you may not do this</source>
        <translation type="unfinished">Sie dürfen das nicht</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation type="unfinished">der Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the disk could not be read or written</source>
        <translation type="unfinished">der Datenträger ließ sich nicht lesen oder beschreiben</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation type="unfinished">es gibt keine solche Datei und keinen solchen Ordner</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation type="unfinished">ihr Name ist zu lang</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation type="unfinished">der Arbeitsspeicher reicht nicht</translation>
    </message>
    <message>
        <source>it holds data that make no sense</source>
        <translation type="unfinished">sie enthält sinnlose Daten</translation>
    </message>
</context>
<context>
    <name>ErrorWords</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation type="unfinished">„%1“</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot;</source>
        <translation type="unfinished">Spur %1 von „%2“</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no track %2: choose another track.</source>
        <translation type="unfinished">Die Datei „%1“ hat keine Spur %2: Wählen Sie eine andere Spur.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no subtitle track: choose another file.</source>
        <translation type="unfinished">Die Datei „%1“ hat keine Untertitelspur: Wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>choose another format, draw it in or leave it out</source>
        <translation type="unfinished">Wählen Sie ein anderes Format, brennen Sie die Untertitel ein oder lassen Sie sie weg</translation>
    </message>
    <message>
        <source>%1 is %2, which %3 cannot hold: %4.</source>
        <extracomment>%1: a track or a file, %2: its codec, %3: a format or a kind of file, %4: what to do</extracomment>
        <translation type="unfinished">%1 ist %2, was %3 nicht aufnehmen kann: %4.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read%2: choose another one, or check that you may open it.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Die Datei „%1“ ist nicht lesbar%2: Wählen Sie eine andere, oder prüfen Sie, ob Sie sie öffnen dürfen.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is of no kind that can be used here%2: choose another one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Die Datei „%1“ ist von keiner Art, die sich hier verwenden lässt%2: Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged%2: try to get a complete copy.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Die Datei „%1“ ist beschädigt%2: Versuchen Sie, eine vollständige Kopie zu bekommen.</translation>
    </message>
    <message>
        <source>The text of &quot;%1&quot; cannot be drawn, because no usable font is installed%2: install one, for example DejaVu Sans.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Der Text von „%1“ lässt sich nicht zeichnen, weil keine brauchbare Schrift installiert ist%2: Installieren Sie eine, zum Beispiel DejaVu Sans.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written%2: choose another folder, or check that you may write to this one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Die Datei „%1“ lässt sich nicht schreiben%2: Wählen Sie einen anderen Ordner, oder prüfen Sie, ob Sie in diesen schreiben dürfen.</translation>
    </message>
    <message>
        <source>A setting for &quot;%1&quot; is not valid%2: correct it and try again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Eine Einstellung für „%1“ ist ungültig%2: Berichtigen Sie sie, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; failed%2: try again, and report it if it fails again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Die Arbeit an „%1“ ist gescheitert%2: Versuchen Sie es erneut, und melden Sie es, wenn es wieder scheitert.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist any more: choose another one.</source>
        <translation type="unfinished">Die Datei „%1“ gibt es nicht mehr: Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty: choose another one.</source>
        <translation type="unfinished">Die Datei „%1“ ist leer: Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is not a subtitle track: choose another one.</source>
        <translation type="unfinished">Spur %1 von „%2“ ist keine Untertitelspur: Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>The codec of &quot;%1&quot;, %2, cannot be used here%3: choose another file or another format.</source>
        <extracomment>%2: a codec, %3: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Der Codec von „%1“, %2, ist hier nicht verwendbar%3: Wählen Sie eine andere Datei oder ein anderes Format.</translation>
    </message>
    <message>
        <source>The format of &quot;%1&quot; is not known%2: choose another one.</source>
        <extracomment>%2: what was asked for, in brackets, or nothing</extracomment>
        <translation type="unfinished">Das Format von „%1“ ist nicht bekannt%2: Wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has neither picture nor sound: choose another one.</source>
        <translation type="unfinished">Die Datei „%1“ hat weder Bild noch Ton: Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already: choose another name.</source>
        <translation type="unfinished">Die Datei „%1“ gibt es schon: Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is being read, so it cannot be written: choose another name.</source>
        <translation type="unfinished">Die Datei „%1“ wird gelesen, kann also nicht geschrieben werden: Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The folder of &quot;%1&quot; does not exist: create it, or choose another one.</source>
        <translation type="unfinished">Den Ordner von „%1“ gibt es nicht: Legen Sie ihn an, oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The disk is full, so &quot;%1&quot; was not written: free some space, or choose another folder.</source>
        <translation type="unfinished">Der Datenträger ist voll, deshalb wurde „%1“ nicht geschrieben: Schaffen Sie Platz, oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; was cancelled: start it again if you want it.</source>
        <translation type="unfinished">Die Arbeit an „%1“ wurde abgebrochen: Starten Sie sie erneut, wenn Sie sie möchten.</translation>
    </message>
</context>
<context>
    <name>ExternalSubtitlesDialog</name>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Untertitel wählen</translation>
    </message>
    <message>
        <source>Subtitle files (%1)</source>
        <translation type="unfinished">Untertiteldateien (%1)</translation>
    </message>
</context>
<context>
    <name>FilmRow</name>
    <message>
        <source>Paused</source>
        <translation type="unfinished">Angehalten</translation>
    </message>
    <message>
        <source>Preparing subtitles</source>
        <translation type="unfinished">Untertitel werden vorbereitet</translation>
    </message>
    <message>
        <source>Converting</source>
        <translation type="unfinished">Wird umgewandelt</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished">Wartet</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation type="unfinished">Umgewandelt</translation>
    </message>
    <message numerus="yes">
        <source>Converted, with %n remark(s)</source>
        <translation type="unfinished">
            <numerusform>Umgewandelt, mit %n Hinweis</numerusform>
            <numerusform>Umgewandelt, mit %n Hinweisen</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished">Abgebrochen</translation>
    </message>
    <message>
        <source>Reading the film</source>
        <translation type="unfinished">Film wird gelesen</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Converted, but it breaks off after %1 of %2</source>
        <translation type="unfinished">Umgewandelt, bricht aber nach %1 von %2 ab</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::AutocompleteField</name>
    <message>
        <source>Film or series</source>
        <translation type="unfinished">Film oder Serie</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">Titel</translation>
    </message>
    <message>
        <source>Suggested titles</source>
        <translation type="unfinished">Vorgeschlagene Titel</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ImdbIdValidator</name>
    <message numerus="yes">
        <source>The IMDb id is too short: it has at least %n digit(s), as in tt0123456.</source>
        <translation type="unfinished">
            <numerusform>Die IMDb-ID ist zu kurz: Sie hat mindestens %n Ziffer, wie in tt0123456.</numerusform>
            <numerusform>Die IMDb-ID ist zu kurz: Sie hat mindestens %n Ziffern, wie in tt0123456.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The IMDb id is too long: it has at most %n digit(s).</source>
        <translation type="unfinished">
            <numerusform>Die IMDb-ID ist zu lang: Sie hat höchstens %n Ziffer.</numerusform>
            <numerusform>Die IMDb-ID ist zu lang: Sie hat höchstens %n Ziffern.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and a number, or the number alone, as in tt0123456.</source>
        <translation type="unfinished">Das ist keine IMDb-ID: Geben Sie „tt“ und eine Zahl oder nur die Zahl ein, wie in tt0123456.</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ItemPanel</name>
    <message>
        <source>Subtitles of this film</source>
        <translation type="unfinished">Untertitel dieses Films</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Untertitel wählen</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Untertitel hinzufügen</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">Datei wählen</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">Datei suchen</translation>
    </message>
    <message>
        <source>Apply to all files</source>
        <translation type="unfinished">Auf alle Dateien anwenden</translation>
    </message>
    <message>
        <source>Makes the same choice for every film of the list</source>
        <translation type="unfinished">Trifft für jeden Film der Liste dieselbe Wahl</translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished">Fertig</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelector</name>
    <message>
        <source>Languages: %1</source>
        <translation type="unfinished">Sprachen: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelectorList</name>
    <message>
        <source>Languages to search in</source>
        <translation type="unfinished">Sprachen, in denen gesucht wird</translation>
    </message>
    <message>
        <source>Find a language</source>
        <translation type="unfinished">Sprache suchen</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindow</name>
    <message>
        <source>Type a title and press &quot;Search&quot;.</source>
        <translation type="unfinished">Geben Sie einen Titel ein und drücken Sie „Suchen“.</translation>
    </message>
    <message>
        <source>Find subtitles</source>
        <translation type="unfinished">Untertitel suchen</translation>
    </message>
    <message>
        <source>Find subtitles: %1</source>
        <translation type="unfinished">Untertitel suchen: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowFields</name>
    <message>
        <source>&amp;Title</source>
        <translation type="unfinished">&amp;Titel</translation>
    </message>
    <message>
        <source>&amp;Season</source>
        <translation type="unfinished">&amp;Staffel</translation>
    </message>
    <message>
        <source>Season</source>
        <translation type="unfinished">Staffel</translation>
    </message>
    <message>
        <source>&amp;Episode</source>
        <translation type="unfinished">&amp;Folge</translation>
    </message>
    <message>
        <source>Episode</source>
        <translation type="unfinished">Folge</translation>
    </message>
    <message>
        <source>&amp;Episode...</source>
        <translation type="unfinished">&amp;Folge...</translation>
    </message>
    <message>
        <source>Search for an episode of a series</source>
        <translation type="unfinished">Nach einer Folge einer Serie suchen</translation>
    </message>
    <message>
        <source>Sea&amp;rch</source>
        <translation type="unfinished">S&amp;uchen</translation>
    </message>
    <message>
        <source>I&amp;MDb id</source>
        <translation type="unfinished">I&amp;MDb-ID</translation>
    </message>
    <message>
        <source>IMDb id</source>
        <translation type="unfinished">IMDb-ID</translation>
    </message>
    <message>
        <source>The film&apos;s number at IMDb, as in tt0123456</source>
        <translation type="unfinished">Die Nummer des Films bei IMDb, wie in tt0123456</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation type="unfinished">S&amp;prachen</translation>
    </message>
    <message>
        <source>E&amp;xactly this file</source>
        <translation type="unfinished">Genau &amp;diese Datei</translation>
    </message>
    <message>
        <source>Finds subtitles by the fingerprint of the file, whatever its name is</source>
        <translation type="unfinished">Findet Untertitel anhand des Fingerabdrucks der Datei, wie sie auch heißt</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowStatus</name>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">Suche läuft...</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation type="unfinished">Wird heruntergeladen...</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation type="unfinished">Wird abgebrochen...</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found</source>
        <translation type="unfinished">
            <numerusform>%n Untertitel gefunden</numerusform>
            <numerusform>%n Untertitel gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">&amp;Abbrechen</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Download %n</source>
        <translation type="unfinished">
            <numerusform>%n &amp;herunterladen</numerusform>
            <numerusform>%n &amp;herunterladen</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Download</source>
        <translation type="unfinished">&amp;Herunterladen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished">Schließen</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ResultList</name>
    <message>
        <source>Smallest first; press to turn it round</source>
        <translation type="unfinished">Kleinstes zuerst; zum Umkehren drücken</translation>
    </message>
    <message>
        <source>Largest first; press to turn it round</source>
        <translation type="unfinished">Größtes zuerst; zum Umkehren drücken</translation>
    </message>
    <message numerus="yes">
        <source>None of the %n subtitle(s) found holds &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>Der %n gefundene Untertitel enthält „%1“ nicht.</numerusform>
            <numerusform>Keiner der %n gefundenen Untertitel enthält „%1“.</numerusform>
        </translation>
    </message>
    <message>
        <source>Best match</source>
        <translation type="unfinished">Beste Treffer zuerst</translation>
    </message>
    <message>
        <source>Subtitles found</source>
        <translation type="unfinished">Gefundene Untertitel</translation>
    </message>
    <message>
        <source>Filter the list</source>
        <translation type="unfinished">Liste filtern</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation type="unfinished">S&amp;ortieren nach</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation type="unfinished">Sortieren nach</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::AboutDialog</name>
    <message>
        <source>About Korvex Subtitles</source>
        <translation type="unfinished">Über Korvex Subtitles</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished">Version %1</translation>
    </message>
    <message>
        <source>Converts films with their subtitles: as tracks that can be switched on and off, or drawn into the picture.

Free software under the GNU General Public License, version 3 or later. It comes without any warranty.

It is built on Qt, FFmpeg and libass.</source>
        <translation type="unfinished">Wandelt Filme mit ihren Untertiteln um: als Spuren zum Ein- und Ausschalten oder ins Bild eingebrannt.

Freie Software unter der GNU General Public License, Version 3 oder später. Ohne jede Gewährleistung.

Baut auf Qt, FFmpeg und libass auf.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Actions</name>
    <message>
        <source>&amp;Add films...</source>
        <translation type="unfinished">Filme &amp;hinzufügen...</translation>
    </message>
    <message>
        <source>Add &amp;subtitles...</source>
        <translation type="unfinished">&amp;Untertitel hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished">&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Subtitles...</source>
        <translation type="unfinished">&amp;Untertitel...</translation>
    </message>
    <message>
        <source>Apply these subtitles to &amp;all</source>
        <translation type="unfinished">Diese Untertitel auf &amp;alle anwenden</translation>
    </message>
    <message>
        <source>&amp;Copy as command line</source>
        <translation type="unfinished">Als Befehlszeile &amp;kopieren</translation>
    </message>
    <message>
        <source>Show &amp;output in folder</source>
        <translation type="unfinished">Er&amp;gebnis im Ordner zeigen</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">Aus der Liste &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Previous film</source>
        <translation type="unfinished">&amp;Voriger Film</translation>
    </message>
    <message>
        <source>&amp;Next film</source>
        <translation type="unfinished">&amp;Nächster Film</translation>
    </message>
    <message>
        <source>Convert &amp;all</source>
        <translation type="unfinished">&amp;Alle umwandeln</translation>
    </message>
    <message>
        <source>Convert this &amp;film</source>
        <translation type="unfinished">Diesen &amp;Film umwandeln</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">&amp;Anhalten</translation>
    </message>
    <message>
        <source>&amp;Cancel this film</source>
        <translation type="unfinished">Diesen Film a&amp;bbrechen</translation>
    </message>
    <message>
        <source>Cancel a&amp;ll</source>
        <translation type="unfinished">Alles abb&amp;rechen</translation>
    </message>
    <message>
        <source>Same as &amp;system</source>
        <translation type="unfinished">Wie das &amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished">&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished">&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation type="unfinished">&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;About Korvex Subtitles</source>
        <translation type="unfinished">Ü&amp;ber Korvex Subtitles</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished">Entfernen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished">Hinzufügen</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation type="unfinished">&amp;Einstellungen...</translation>
    </message>
    <message>
        <source>Find subtitles on&amp;line...</source>
        <translation type="unfinished">Untertitel &amp;online suchen...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyReportDialog</name>
    <message>
        <source>Applied to all films</source>
        <translation type="unfinished">Auf alle Filme angewandt</translation>
    </message>
    <message>
        <source>Subtitles as in &quot;%1&quot;</source>
        <translation type="unfinished">Untertitel wie in „%1“</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyToAll</name>
    <message>
        <source>&quot;%1&quot;: nothing changed, because the film cannot be read at the moment.</source>
        <translation type="unfinished">„%1“: nichts geändert, weil der Film zurzeit nicht lesbar ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: nothing changed, because it has no track like %2 and no file of that name.</source>
        <translation type="unfinished">„%1“: nichts geändert, weil es keine Spur wie %2 und keine Datei dieses Namens gibt.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::CommandLineText</name>
    <message>
        <source>A picture that cannot be copied is encoded with --crf %1 there and %2 here.</source>
        <translation type="unfinished">Ein Bild, das sich nicht kopieren lässt, wird dort mit --crf %1 kodiert und hier mit %2.</translation>
    </message>
    <message>
        <source>The text cannot be moved by more than %1 lines.</source>
        <translation type="unfinished">Der Text lässt sich um höchstens %1 Zeilen verschieben.</translation>
    </message>
    <message>
        <source>The font size %1 is not a whole number up to %2: the nearest one stands for it.</source>
        <translation type="unfinished">Die Schriftgröße %1 ist keine ganze Zahl bis %2: Die nächste steht dafür.</translation>
    </message>
    <message>
        <source>%1 keeps its own language, title and forced mark.</source>
        <translation type="unfinished">%1 behält Sprache, Titel und Erzwungen-Markierung.</translation>
    </message>
    <message>
        <source>%1 keeps the language, title and forced mark that its name states.</source>
        <translation type="unfinished">%1 behält Sprache, Titel und Erzwungen-Markierung, die der Name nennt.</translation>
    </message>
    <message>
        <source>%1 goes out without its mark for the hard of hearing.</source>
        <translation type="unfinished">%1 geht ohne die Markierung für Hörgeschädigte hinaus.</translation>
    </message>
    <message>
        <source>Which of the film&apos;s own tracks players show by themselves stays as in the film.</source>
        <translation type="unfinished">Welche der eigenen Spuren des Films Player von selbst zeigen, bleibt wie im Film.</translation>
    </message>
    <message>
        <source>The files have different encodings: all are read as they are detected.</source>
        <translation type="unfinished">Die Dateien haben verschiedene Kodierungen: Alle werden so gelesen, wie sie erkannt werden.</translation>
    </message>
    <message>
        <source>The tracks are moved by different offsets: none is moved.</source>
        <translation type="unfinished">Die Spuren sind verschieden weit verschoben: Keine wird verschoben.</translation>
    </message>
    <message>
        <source>Text cannot be moved by more than a day.</source>
        <translation type="unfinished">Text lässt sich um höchstens einen Tag verschieben.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionControl</name>
    <message>
        <source>Quit while converting?</source>
        <translation type="unfinished">Während der Umwandlung beenden?</translation>
    </message>
    <message>
        <source>Films are still being converted. Quitting cancels them; what is finished stays.</source>
        <translation type="unfinished">Es werden noch Filme umgewandelt. Beim Beenden werden sie abgebrochen; was fertig ist, bleibt.</translation>
    </message>
    <message>
        <source>Cancel conversions and quit</source>
        <translation type="unfinished">Umwandlungen abbrechen und beenden</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">Weiter umwandeln</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionQueue</name>
    <message>
        <source>The subtitles of &quot;%1&quot; cannot go out as chosen: choose them again.</source>
        <translation type="unfinished">Die Untertitel von „%1“ lassen sich so nicht ausgeben; wählen Sie sie neu.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::DropHighlight</name>
    <message>
        <source>Drop films, folders or subtitle files</source>
        <translation type="unfinished">Filme, Ordner oder Untertiteldateien ablegen</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::EmptyPage</name>
    <message>
        <source>Drop films here or choose files</source>
        <translation type="unfinished">Filme hier ablegen oder Dateien wählen</translation>
    </message>
    <message>
        <source>Folders work too. Subtitle files beside a film are found automatically.</source>
        <translation type="unfinished">Auch Ordner gehen. Untertiteldateien neben einem Film werden von selbst gefunden.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FetchedSubtitles</name>
    <message>
        <source>&quot;%1&quot; was added to &quot;%2&quot;.</source>
        <translation type="unfinished">„%1“ wurde zu „%2“ hinzugefügt.</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle file(s) were added to &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>%n Untertiteldatei wurde zu „%1“ hinzugefügt.</numerusform>
            <numerusform>%n Untertiteldateien wurden zu „%1“ hinzugefügt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">Rückgängig</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FileActions</name>
    <message>
        <source>&quot;%1&quot; needs a film to go with: add the film first.</source>
        <translation type="unfinished">Zu „%1“ fehlt der Film: Fügen Sie zuerst den Film hinzu.</translation>
    </message>
    <message>
        <source>No new film was found in &quot;%1&quot;: choose a folder with films.</source>
        <translation type="unfinished">In „%1“ wurde kein neuer Film gefunden: Wählen Sie einen Ordner mit Filmen.</translation>
    </message>
    <message>
        <source>Add films</source>
        <translation type="unfinished">Filme hinzufügen</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">Untertitel</translation>
    </message>
    <message>
        <source>All files</source>
        <translation type="unfinished">Alle Dateien</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Untertitel hinzufügen</translation>
    </message>
    <message>
        <source>Where is &quot;%1&quot; now?</source>
        <translation type="unfinished">Wo ist „%1“ jetzt?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the list already: show another file, or remove &quot;%2&quot; from the list.</source>
        <translation type="unfinished">„%1“ ist schon in der Liste: Zeigen Sie eine andere Datei, oder entfernen Sie „%2“ aus der Liste.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Film</name>
    <message>
        <source>The film &quot;%1&quot; is not there any more: show where it is now, or remove it from the list.</source>
        <translation type="unfinished">Der Film „%1“ ist nicht mehr da: Zeigen Sie, wo er jetzt ist, oder entfernen Sie ihn aus der Liste.</translation>
    </message>
    <message>
        <source>Locate...</source>
        <translation type="unfinished">Suchen...</translation>
    </message>
    <message>
        <source>No subtitles, as it stands</source>
        <translation type="unfinished">So keine Untertitel</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmActions</name>
    <message>
        <source>Remove a film that is being converted?</source>
        <translation type="unfinished">Einen Film entfernen, der gerade umgewandelt wird?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is being converted. Removing it cancels its conversion.</source>
        <translation type="unfinished">„%1“ wird gerade umgewandelt. Das Entfernen bricht die Umwandlung ab.</translation>
    </message>
    <message>
        <source>Cancel conversion and remove</source>
        <translation type="unfinished">Umwandlung abbrechen und entfernen</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation type="unfinished">Behalten</translation>
    </message>
    <message>
        <source>No file manager could be started: the film is &quot;%1&quot;.</source>
        <translation type="unfinished">Es ließ sich kein Dateimanager starten: Der Film ist „%1“.</translation>
    </message>
    <message>
        <source>The command line is in the clipboard.</source>
        <translation type="unfinished">Die Befehlszeile liegt in der Zwischenablage.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmListPane</name>
    <message numerus="yes">
        <source>%n film(s)</source>
        <translation type="unfinished">
            <numerusform>%n Film</numerusform>
            <numerusform>%n Filme</numerusform>
        </translation>
    </message>
    <message>
        <source>Films</source>
        <translation type="unfinished">Filme</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmWords</name>
    <message>
        <source>Track %1</source>
        <translation type="unfinished">Spur %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n track(s)</source>
        <translation type="unfinished">
            <numerusform>%n Spur</numerusform>
            <numerusform>Alle %n Spuren</numerusform>
        </translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">Keine Untertitel</translation>
    </message>
    <message>
        <source>Drawn in: %1</source>
        <translation type="unfinished">Eingebrannt: %1</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no subtitles that can be read: remove it.</source>
        <translation type="unfinished">Die Datei „%1“ enthält keine lesbaren Untertitel: Entfernen Sie sie.</translation>
    </message>
    <message>
        <source>Remove the file</source>
        <translation type="unfinished">Datei entfernen</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: draw it in, or leave it out.</source>
        <translation type="unfinished">%1 passt nicht in %2: Brennen Sie die Spur ein oder lassen Sie sie weg.</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: choose %3, draw it in, or leave it out.</source>
        <translation type="unfinished">%1 passt nicht in %2: Wählen Sie %3, brennen Sie die Spur ein oder lassen Sie sie weg.</translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation type="unfinished">%1 wählen</translation>
    </message>
    <message>
        <source>%1 cannot be moved in time while it stays a track: draw it in, set its offset to 0, or leave it out.</source>
        <translation type="unfinished">%1 lässt sich als Spur zeitlich nicht verschieben: Brennen Sie sie ein, setzen Sie ihren Versatz auf 0 oder lassen Sie sie weg.</translation>
    </message>
    <message>
        <source>Set its offset to 0</source>
        <translation type="unfinished">Versatz auf 0 setzen</translation>
    </message>
    <message>
        <source>%1 cannot be read in another encoding while it stays a track: draw it in, or leave it out.</source>
        <translation type="unfinished">%1 lässt sich als Spur nicht in einer anderen Kodierung lesen: Brennen Sie sie ein oder lassen Sie sie weg.</translation>
    </message>
    <message>
        <source>Draw it in</source>
        <translation type="unfinished">Einbrennen</translation>
    </message>
    <message>
        <source>Leave it out</source>
        <translation type="unfinished">Weglassen</translation>
    </message>
    <message>
        <source>%1 is moved by %2 s.</source>
        <translation type="unfinished">%1 wird um %2 s verschoben.</translation>
    </message>
    <message>
        <source>%1 is read as %2.</source>
        <translation type="unfinished">%1 wird als %2 gelesen.</translation>
    </message>
    <message>
        <source>%1 goes into %2 as plain text and loses its styles.</source>
        <translation type="unfinished">%1 kommt als einfacher Text in %2 und verliert dabei seine Gestaltung.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished">&amp;Datei</translation>
    </message>
    <message>
        <source>Fil&amp;m</source>
        <translation type="unfinished">Fil&amp;m</translation>
    </message>
    <message>
        <source>Put left-out tracks &amp;back</source>
        <translation type="unfinished">Weggelassene Spuren &amp;zurückholen</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation type="unfinished">&amp;Umwandeln</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished">&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished">&amp;Farbschema</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished">&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished">&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::NoticeBar</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished">%1 von %2</translation>
    </message>
    <message>
        <source>Previous notice</source>
        <translation type="unfinished">Vorige Meldung</translation>
    </message>
    <message>
        <source>Next notice</source>
        <translation type="unfinished">Nächste Meldung</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation type="unfinished">Diese Meldung schließen</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Notices</name>
    <message>
        <source>Try again</source>
        <translation type="unfinished">Erneut versuchen</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Show the first that failed</source>
        <translation type="unfinished">Den ersten misslungenen zeigen</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::OutputBar</name>
    <message>
        <source>Same as source</source>
        <translation type="unfinished">Wie die Quelle</translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished">Hoch</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished">Mittel</translation>
    </message>
    <message>
        <source>Small</source>
        <translation type="unfinished">Klein</translation>
    </message>
    <message>
        <source>The picture is copied unchanged where nothing is drawn into it and the format can carry it; otherwise it is encoded in high quality.</source>
        <translation type="unfinished">Das Bild wird unverändert kopiert, wo nichts eingebrannt wird und das Format es tragen kann; sonst wird es in hoher Qualität kodiert.</translation>
    </message>
    <message>
        <source>The picture is encoded anew; differences are next to invisible.</source>
        <translation type="unfinished">Das Bild wird neu kodiert; Unterschiede sind so gut wie unsichtbar.</translation>
    </message>
    <message>
        <source>The picture is encoded anew; good for watching, in a smaller file.</source>
        <translation type="unfinished">Das Bild wird neu kodiert; gut zum Ansehen, in einer kleineren Datei.</translation>
    </message>
    <message>
        <source>The picture is encoded anew into a small file; losses are visible.</source>
        <translation type="unfinished">Das Bild wird neu in eine kleine Datei kodiert; Verluste sind sichtbar.</translation>
    </message>
    <message>
        <source>paused</source>
        <translation type="unfinished">angehalten</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished">%1, %2</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation type="unfinished">&amp;Fortsetzen</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">&amp;Anhalten</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">Weiter umwandeln</translation>
    </message>
    <message>
        <source>Wait until you resume</source>
        <translation type="unfinished">Stillstehen, bis Sie fortsetzen</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation type="unfinished">&amp;Format</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation type="unfinished">Ausgabeformat</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation type="unfinished">&amp;Qualität</translation>
    </message>
    <message>
        <source>Quality of the picture</source>
        <translation type="unfinished">Qualität des Bildes</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished">&amp;Speichern</translation>
    </message>
    <message>
        <source>Beside each film</source>
        <translation type="unfinished">Neben jedem Film</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation type="unfinished">Ordner wählen...</translation>
    </message>
    <message>
        <source>&amp;Convert all</source>
        <translation type="unfinished">Alle &amp;umwandeln</translation>
    </message>
    <message>
        <source>Convert all films that are ready</source>
        <translation type="unfinished">Alle Filme umwandeln, die bereit sind</translation>
    </message>
    <message>
        <source>Only &amp;this film</source>
        <translation type="unfinished">Nur &amp;diesen Film</translation>
    </message>
    <message>
        <source>Convert the film that is chosen in the list, and no other</source>
        <translation type="unfinished">Nur den Film umwandeln, der in der Liste gewählt ist</translation>
    </message>
    <message>
        <source>Progress of all conversions</source>
        <translation type="unfinished">Fortschritt aller Umwandlungen</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation type="unfinished">A&amp;bbrechen</translation>
    </message>
    <message>
        <source>Stop converting; half-written files are removed</source>
        <translation type="unfinished">Umwandlung beenden; halb geschriebene Dateien werden entfernt</translation>
    </message>
    <message>
        <source>Where to save</source>
        <translation type="unfinished">Speicherort</translation>
    </message>
    <message>
        <source>Output folder: %1</source>
        <translation type="unfinished">Ausgabeordner: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::PreviewPane</name>
    <message>
        <source>Drop films here.</source>
        <translation type="unfinished">Filme hier ablegen.</translation>
    </message>
    <message>
        <source>The film is being read.</source>
        <translation type="unfinished">Der Film wird gelesen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no picture, so there is nothing to see. Its sound can be converted.</source>
        <translation type="unfinished">„%1“ hat kein Bild, daher gibt es nichts zu sehen. Der Ton lässt sich umwandeln.</translation>
    </message>
    <message>
        <source>There are no subtitles. Add a subtitle file to see it drawn in.</source>
        <translation type="unfinished">Es gibt keine Untertitel. Fügen Sie eine Untertiteldatei hinzu, um sie eingebrannt zu sehen.</translation>
    </message>
    <message>
        <source>All tracks stay switchable. Choose one to see it drawn in.</source>
        <translation type="unfinished">Alle Spuren bleiben zuschaltbar. Wählen Sie eine zur Ansicht.</translation>
    </message>
    <message>
        <source>Choose a track to see it drawn in.</source>
        <translation type="unfinished">Wählen Sie eine Spur, um sie eingebrannt zu sehen.</translation>
    </message>
    <message>
        <source>All tracks stay switchable.</source>
        <translation type="unfinished">Alle Spuren bleiben zuschaltbar.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::PreviewStage</name>
    <message>
        <source>%1 (%2)</source>
        <comment>what a button does (its keys)</comment>
        <translation type="unfinished">%1 (%2)</translation>
    </message>
    <message>
        <source>Previous cue</source>
        <translation type="unfinished">Voriger Untertitel</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation type="unfinished">Nächster Untertitel</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished">Vorschau</translation>
    </message>
    <message>
        <source>Position in the film</source>
        <translation type="unfinished">Stelle im Film</translation>
    </message>
    <message>
        <source>Where the cues are</source>
        <translation type="unfinished">Wo die Untertitel sind</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>position / length</comment>
        <translation type="unfinished">%1 / %2</translation>
    </message>
    <message>
        <source>The subtitles are being read.</source>
        <translation type="unfinished">Die Untertitel werden gelesen.</translation>
    </message>
    <message>
        <source>This track has no lines.</source>
        <translation type="unfinished">Diese Spur enthält keine Zeilen.</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the next one.</source>
        <comment>keys</comment>
        <translation type="unfinished">Hier ist keine Zeile: %1 führt zur nächsten.</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the one before.</source>
        <comment>keys</comment>
        <translation type="unfinished">Hier ist keine Zeile: %1 führt zur vorigen.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SaveTrack</name>
    <message>
        <source>SubRip (*.srt)</source>
        <translation type="unfinished">SubRip (*.srt)</translation>
    </message>
    <message>
        <source>Advanced SubStation Alpha (*.ass)</source>
        <translation type="unfinished">Advanced SubStation Alpha (*.ass)</translation>
    </message>
    <message>
        <source>Blu-ray subtitles (*.sup)</source>
        <translation type="unfinished">Blu-ray-Untertitel (*.sup)</translation>
    </message>
    <message>
        <source>Matroska (*.mkv *.mks)</source>
        <translation type="unfinished">Matroska (*.mkv *.mks)</translation>
    </message>
    <message>
        <source>Save the track as</source>
        <translation type="unfinished">Spur speichern als</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; was saved as %2 with %n cue(s)</source>
        <translation type="unfinished">
            <numerusform>„%1“ wurde als %2 mit %n Untertitel gespeichert</numerusform>
            <numerusform>„%1“ wurde als %2 mit %n Untertiteln gespeichert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) could not be read as %1</source>
        <translation type="unfinished">
            <numerusform>%n Byte ließ sich nicht als %1 lesen</numerusform>
            <numerusform>%n Bytes ließen sich nicht als %1 lesen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) without usable times were left out</source>
        <translation type="unfinished">
            <numerusform>%n Untertitel ohne brauchbare Zeiten wurde weggelassen</numerusform>
            <numerusform>%n Untertitel ohne brauchbare Zeiten wurden weggelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of no duration were left out</source>
        <translation type="unfinished">
            <numerusform>%n Untertitel ohne Dauer wurde weggelassen</numerusform>
            <numerusform>%n Untertitel ohne Dauer wurden weggelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation type="unfinished">%1.</translation>
    </message>
    <message>
        <source>%1; %2.</source>
        <translation type="unfinished">%1; %2.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; does not tell how to save the track: let it end in .srt, .ass, .sup or .mkv.</source>
        <translation type="unfinished">Der Name „%1“ verrät nicht, wie die Spur zu speichern ist: Lassen Sie ihn auf .srt, .ass, .sup oder .mkv enden.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is %3, which no subtitle file can hold: draw it into the picture instead.</source>
        <translation type="unfinished">Spur %1 von „%2“ ist %3, was keine Untertiteldatei aufnehmen kann: Brennen Sie sie stattdessen ins Bild ein.</translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation type="unfinished">„%1“ wird gespeichert</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Abbrechen</translation>
    </message>
    <message>
        <source>Save a track</source>
        <translation type="unfinished">Spur speichern</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SessionStore</name>
    <message>
        <source>The last list of films, &quot;%1&quot;, cannot be read, so nothing is saved this time: rename or remove that file.</source>
        <translation type="unfinished">Die letzte Liste in „%1“ ist nicht lesbar, und diesmal wird nichts gespeichert: Benennen Sie die Datei um oder entfernen Sie sie.</translation>
    </message>
    <message>
        <source>The last list of films was written by a newer version of the program; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">Die letzte Liste stammt von einer neueren Version des Programms; sie liegt als „%1“ bereit. Öffnen Sie Ihre Filme neu.</translation>
    </message>
    <message>
        <source>The last list of films is damaged; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">Die letzte Liste ist beschädigt; sie liegt als „%1“ bereit. Öffnen Sie Ihre Filme neu.</translation>
    </message>
    <message>
        <source>The list of films could not be saved in &quot;%1&quot; (%2): check that you may write there.</source>
        <translation type="unfinished">Die Liste der Filme ließ sich nicht in „%1“ speichern (%2): Prüfen Sie, ob Sie dort schreiben dürfen.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished">Einstellungen</translation>
    </message>
    <message>
        <source>Online service</source>
        <translation type="unfinished">Online-Dienst</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished">Statistik</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Abbrechen</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsOnlinePage</name>
    <message>
        <source>version 1 of OpenSubtitles, because an API key is set.</source>
        <translation type="unfinished">Version 1 von OpenSubtitles, weil ein API-Schlüssel festgelegt ist.</translation>
    </message>
    <message>
        <source>version 1 of OpenSubtitles, because the configuration file says so. It answers nobody without an API key: enter one below.</source>
        <translation type="unfinished">Version 1 von OpenSubtitles, weil die Konfigurationsdatei es so vorgibt. Ohne API-Schlüssel antwortet sie niemandem: Geben Sie unten einen ein.</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because the configuration file says so. The API key is not used.</source>
        <translation type="unfinished">die ältere Schnittstelle von OpenSubtitles, weil die Konfigurationsdatei es so vorgibt. Der API-Schlüssel wird nicht verwendet.</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because no API key is set.</source>
        <translation type="unfinished">die ältere Schnittstelle von OpenSubtitles, weil kein API-Schlüssel festgelegt ist.</translation>
    </message>
    <message>
        <source>API &amp;key:</source>
        <translation type="unfinished">API-&amp;Schlüssel:</translation>
    </message>
    <message>
        <source>API key</source>
        <translation type="unfinished">API-Schlüssel</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation type="unfinished">An&amp;zeigen</translation>
    </message>
    <message>
        <source>Fetched &amp;files:</source>
        <translation type="unfinished">&amp;Download-Ordner:</translation>
    </message>
    <message>
        <source>Folder for fetched files</source>
        <translation type="unfinished">Ordner für heruntergeladene Dateien</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation type="unfinished">&amp;Wählen...</translation>
    </message>
    <message>
        <source>&amp;Usual folder</source>
        <translation type="unfinished">Ü&amp;blicher Ordner</translation>
    </message>
    <message>
        <source>Version 1:</source>
        <translation type="unfinished">Version 1:</translation>
    </message>
    <message>
        <source>Older interface:</source>
        <translation type="unfinished">Ältere Schnittstelle:</translation>
    </message>
    <message>
        <source>The addresses are set in the configuration file &quot;%1&quot;.</source>
        <translation type="unfinished">Die Adressen werden in der Konfigurationsdatei „%1“ festgelegt.</translation>
    </message>
    <message>
        <source>In use: %1</source>
        <translation type="unfinished">In Gebrauch: %1</translation>
    </message>
    <message>
        <source>From the next start of the program on: %1</source>
        <translation type="unfinished">Ab dem nächsten Start des Programms: %1</translation>
    </message>
    <message>
        <source>Folder for fetched subtitle files</source>
        <translation type="unfinished">Ordner für heruntergeladene Untertiteldateien</translation>
    </message>
    <message>
        <source>It comes from the account pages of opensubtitles.com, is kept in the configuration file, and is used from the next start on.</source>
        <translation type="unfinished">Er kommt von den Kontoseiten auf opensubtitles.com, steht in der Konfigurationsdatei und wird ab dem nächsten Start verwendet.</translation>
    </message>
    <message>
        <source>The variable %1 of the environment sets it.</source>
        <translation type="unfinished">Ihn legt die Umgebungsvariable %1 fest.</translation>
    </message>
    <message>
        <source>This is no API key: a key has no blanks and no special characters. Copy it again.</source>
        <translation type="unfinished">Das ist kein API-Schlüssel: Ein Schlüssel hat weder Leerzeichen noch Sonderzeichen. Kopieren Sie ihn noch einmal.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsStatisticsPage</name>
    <message>
        <source>If you agree, the program counts how the online search is used: from where it is opened, which fields are filled in, how many searches find something, nothing or fail, and how many files are fetched. Names, folders and what you type are never recorded. The record stays on this computer; it is sent to nobody.</source>
        <translation type="unfinished">Wenn Sie zustimmen, zählt das Programm, wie die Online-Suche benutzt wird: von wo aus sie geöffnet wird, welche Felder ausgefüllt sind, wie viele Suchen etwas oder nichts finden oder scheitern und wie viele Dateien heruntergeladen werden. Namen, Ordner und Ihre Eingaben werden nie aufgezeichnet. Die Aufzeichnung bleibt auf diesem Computer; sie wird niemandem geschickt.</translation>
    </message>
    <message>
        <source>&amp;Count how the online search is used</source>
        <translation type="unfinished">&amp;Zählen, wie die Online-Suche benutzt wird</translation>
    </message>
    <message>
        <source>&amp;Recorded in &quot;%1&quot;:</source>
        <translation type="unfinished">&amp;Aufgezeichnet in „%1“:</translation>
    </message>
    <message>
        <source>Nothing has been recorded.</source>
        <translation type="unfinished">Es wurde nichts aufgezeichnet.</translation>
    </message>
    <message>
        <source>What has been recorded</source>
        <translation type="unfinished">Was aufgezeichnet wurde</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">&amp;Löschen</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ShortcutsDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished">Tastenkürzel</translation>
    </message>
    <message>
        <source>In the list: subtitles of the film</source>
        <translation type="unfinished">In der Liste: Untertitel des Films</translation>
    </message>
    <message>
        <source>In the list: menu of the film</source>
        <translation type="unfinished">In der Liste: Menü des Films</translation>
    </message>
    <message>
        <source>Close what is open</source>
        <translation type="unfinished">Offenes schließen</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpPane</name>
    <message>
        <source>Help with the text</source>
        <translation type="unfinished">Hilfe zum Text</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpTexts</name>
    <message>
        <source>The file itself says that it is %1.</source>
        <translation type="unfinished">Die Datei selbst sagt, dass sie %1 ist.</translation>
    </message>
    <message>
        <source>Detected: %1, certain.</source>
        <translation type="unfinished">Erkannt: %1, sicher.</translation>
    </message>
    <message>
        <source>Nothing tells the encoding; %1 is a guess.</source>
        <translation type="unfinished">Nichts verrät die Kodierung; %1 ist geraten.</translation>
    </message>
    <message>
        <source>Detected: %1, very sure (%2).</source>
        <translation type="unfinished">Erkannt: %1, sehr sicher (%2).</translation>
    </message>
    <message>
        <source>Detected: %1, fairly sure (%2).</source>
        <translation type="unfinished">Erkannt: %1, ziemlich sicher (%2).</translation>
    </message>
    <message>
        <source>Detected: %1, not sure (%2).</source>
        <translation type="unfinished">Erkannt: %1, unsicher (%2).</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) cannot be read in this encoding and show as &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>%n Byte ist in dieser Kodierung nicht lesbar und erscheint als „%1“.</numerusform>
            <numerusform>%n Bytes sind in dieser Kodierung nicht lesbar und erscheinen als „%1“.</numerusform>
        </translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; is not installed; &quot;%2&quot; stands in.</source>
        <translation type="unfinished">Die Schriftart „%1“ ist nicht installiert; „%2“ springt ein.</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">Japanisch</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation type="unfinished">Chinesisch</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">Koreanisch</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation type="unfinished">Kyrillisch</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">Griechisch</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">Hebräisch</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">Arabisch</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">Thailändisch</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation type="unfinished">Devanagari</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; lacks %n character(s) of this text (%2): &quot;%3&quot; stands in.</source>
        <translation type="unfinished">
            <numerusform>„%1“ fehlt %n Zeichen dieses Textes (%2): „%3“ springt ein.</numerusform>
            <numerusform>„%1“ fehlen %n Zeichen dieses Textes (%2): „%3“ springt ein.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No installed font has %n character(s) of this text (%1); they show as empty boxes.</source>
        <translation type="unfinished">
            <numerusform>Keine installierte Schriftart hat %n Zeichen dieses Textes (%1); es erscheint als leeres Kästchen.</numerusform>
            <numerusform>Keine installierte Schriftart hat %n Zeichen dieses Textes (%1); sie erscheinen als leere Kästchen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpView</name>
    <message>
        <source>It could also read:</source>
        <translation type="unfinished">Es könnte auch heißen:</translation>
    </message>
    <message>
        <source>First lines of the text</source>
        <translation type="unfinished">Erste Zeilen des Textes</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackActions</name>
    <message>
        <source>Quit while saving?</source>
        <translation type="unfinished">Während des Speicherns beenden?</translation>
    </message>
    <message>
        <source>A track is still being saved. Quitting cancels that, and no file is written.</source>
        <translation type="unfinished">Es wird noch eine Spur gespeichert. Beim Beenden wird das abgebrochen, und es entsteht keine Datei.</translation>
    </message>
    <message>
        <source>Cancel saving and quit</source>
        <translation type="unfinished">Speichern abbrechen und beenden</translation>
    </message>
    <message>
        <source>Go on saving</source>
        <translation type="unfinished">Weiter speichern</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackMenu</name>
    <message>
        <source>&amp;Draw in</source>
        <translation type="unfinished">Ein&amp;brennen</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">Aus der Liste &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Leave out of the output</source>
        <translation type="unfinished">Aus der Ausgabe &amp;weglassen</translation>
    </message>
    <message>
        <source>Language, &amp;title and marks...</source>
        <translation type="unfinished">Sprache, &amp;Titel und Markierungen...</translation>
    </message>
    <message>
        <source>&amp;Put back</source>
        <translation type="unfinished">&amp;Zurückholen</translation>
    </message>
    <message>
        <source>&amp;Save as a file...</source>
        <translation type="unfinished">Als Datei &amp;speichern...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackPropertiesDialog</name>
    <message>
        <source>Subtitle track</source>
        <translation type="unfinished">Untertitelspur</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished">&amp;Sprache:</translation>
    </message>
    <message>
        <source>Not stated</source>
        <translation type="unfinished">Nicht angegeben</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">Sprache</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation type="unfinished">&amp;Titel:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">Titel</translation>
    </message>
    <message>
        <source>On by &amp;default</source>
        <translation type="unfinished">Von &amp;selbst eingeschaltet</translation>
    </message>
    <message>
        <source>Players show this track unless another one is chosen</source>
        <translation type="unfinished">Player zeigen diese Spur, solange keine andere gewählt ist</translation>
    </message>
    <message>
        <source>&amp;Forced</source>
        <translation type="unfinished">&amp;Erzwungen</translation>
    </message>
    <message>
        <source>Only what has to be read in any case: signs and foreign speech</source>
        <translation type="unfinished">Nur was in jedem Fall zu lesen sein muss: Schilder und fremde Sprachen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Abbrechen</translation>
    </message>
    <message>
        <source>This language is not known: choose one from the list, or write its code, such as &quot;en&quot; or &quot;pt-br&quot;.</source>
        <translation type="unfinished">Diese Sprache ist nicht bekannt: Wählen Sie eine aus der Liste oder schreiben Sie ihren Code, etwa „en“ oder „pt-br“.</translation>
    </message>
</context>
<context>
    <name>Korvex::GUI::ColorPickerButton</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1: %2</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation type="unfinished">Farbe %1</translation>
    </message>
    <message>
        <source>Choose a color</source>
        <translation type="unfinished">Farbe wählen</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Afrikaans</source>
        <translation type="unfinished">Afrikaans</translation>
    </message>
    <message>
        <source>Albanian</source>
        <translation type="unfinished">Albanisch</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">Arabisch</translation>
    </message>
    <message>
        <source>Aragonese</source>
        <translation type="unfinished">Aragonesisch</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation type="unfinished">Armenisch</translation>
    </message>
    <message>
        <source>Asturian</source>
        <translation type="unfinished">Asturisch</translation>
    </message>
    <message>
        <source>Azerbaijani</source>
        <translation type="unfinished">Aserbaidschanisch</translation>
    </message>
    <message>
        <source>Basque</source>
        <translation type="unfinished">Baskisch</translation>
    </message>
    <message>
        <source>Belarusian</source>
        <translation type="unfinished">Belarussisch</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation type="unfinished">Bengalisch</translation>
    </message>
    <message>
        <source>Bosnian</source>
        <translation type="unfinished">Bosnisch</translation>
    </message>
    <message>
        <source>Breton</source>
        <translation type="unfinished">Bretonisch</translation>
    </message>
    <message>
        <source>Bulgarian</source>
        <translation type="unfinished">Bulgarisch</translation>
    </message>
    <message>
        <source>Burmese</source>
        <translation type="unfinished">Birmanisch</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation type="unfinished">Katalanisch</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation type="unfinished">Chinesisch (vereinfacht)</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation type="unfinished">Chinesisch (traditionell)</translation>
    </message>
    <message>
        <source>Chinese (Bilingual)</source>
        <translation type="unfinished">Chinesisch (zweisprachig)</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation type="unfinished">Kroatisch</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation type="unfinished">Tschechisch</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation type="unfinished">Dänisch</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation type="unfinished">Niederländisch</translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished">Englisch</translation>
    </message>
    <message>
        <source>Esperanto</source>
        <translation type="unfinished">Esperanto</translation>
    </message>
    <message>
        <source>Estonian</source>
        <translation type="unfinished">Estnisch</translation>
    </message>
    <message>
        <source>Extremaduran</source>
        <translation type="unfinished">Extremadurisch</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation type="unfinished">Finnisch</translation>
    </message>
    <message>
        <source>French</source>
        <translation type="unfinished">Französisch</translation>
    </message>
    <message>
        <source>Galician</source>
        <translation type="unfinished">Galicisch</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation type="unfinished">Georgisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation type="unfinished">Deutsch</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">Griechisch</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">Hebräisch</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation type="unfinished">Hindi</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation type="unfinished">Ungarisch</translation>
    </message>
    <message>
        <source>Icelandic</source>
        <translation type="unfinished">Isländisch</translation>
    </message>
    <message>
        <source>Indonesian</source>
        <translation type="unfinished">Indonesisch</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation type="unfinished">Italienisch</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">Japanisch</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation type="unfinished">Kannada</translation>
    </message>
    <message>
        <source>Kazakh</source>
        <translation type="unfinished">Kasachisch</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation type="unfinished">Khmer</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">Koreanisch</translation>
    </message>
    <message>
        <source>Kurdish</source>
        <translation type="unfinished">Kurdisch</translation>
    </message>
    <message>
        <source>Latvian</source>
        <translation type="unfinished">Lettisch</translation>
    </message>
    <message>
        <source>Lithuanian</source>
        <translation type="unfinished">Litauisch</translation>
    </message>
    <message>
        <source>Luxembourgish</source>
        <translation type="unfinished">Luxemburgisch</translation>
    </message>
    <message>
        <source>Macedonian</source>
        <translation type="unfinished">Mazedonisch</translation>
    </message>
    <message>
        <source>Malay</source>
        <translation type="unfinished">Malaiisch</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation type="unfinished">Malayalam</translation>
    </message>
    <message>
        <source>Manipuri</source>
        <translation type="unfinished">Manipuri</translation>
    </message>
    <message>
        <source>Mongolian</source>
        <translation type="unfinished">Mongolisch</translation>
    </message>
    <message>
        <source>Montenegrin</source>
        <translation type="unfinished">Montenegrinisch</translation>
    </message>
    <message>
        <source>Northern Sami</source>
        <translation type="unfinished">Nordsamisch</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation type="unfinished">Norwegisch</translation>
    </message>
    <message>
        <source>Occitan</source>
        <translation type="unfinished">Okzitanisch</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation type="unfinished">Persisch</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation type="unfinished">Polnisch</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation type="unfinished">Portugiesisch</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation type="unfinished">Portugiesisch (Brasilien)</translation>
    </message>
    <message>
        <source>Portuguese (Mozambique)</source>
        <translation type="unfinished">Portugiesisch (Mosambik)</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation type="unfinished">Rumänisch</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation type="unfinished">Russisch</translation>
    </message>
    <message>
        <source>Serbian</source>
        <translation type="unfinished">Serbisch</translation>
    </message>
    <message>
        <source>Sinhalese</source>
        <translation type="unfinished">Singhalesisch</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation type="unfinished">Slowakisch</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation type="unfinished">Slowenisch</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation type="unfinished">Spanisch</translation>
    </message>
    <message>
        <source>Swahili</source>
        <translation type="unfinished">Suaheli</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation type="unfinished">Schwedisch</translation>
    </message>
    <message>
        <source>Syriac</source>
        <translation type="unfinished">Syrisch</translation>
    </message>
    <message>
        <source>Tagalog</source>
        <translation type="unfinished">Tagalog</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation type="unfinished">Tamil</translation>
    </message>
    <message>
        <source>Telugu</source>
        <translation type="unfinished">Telugu</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">Thailändisch</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation type="unfinished">Türkisch</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation type="unfinished">Ukrainisch</translation>
    </message>
    <message>
        <source>Urdu</source>
        <translation type="unfinished">Urdu</translation>
    </message>
    <message>
        <source>Uzbek</source>
        <translation type="unfinished">Usbekisch</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation type="unfinished">Vietnamesisch</translation>
    </message>
</context>
<context>
    <name>LanguageSelector</name>
    <message>
        <source>All languages</source>
        <translation type="unfinished">Alle Sprachen</translation>
    </message>
</context>
<context>
    <name>NumberTexts</name>
    <message>
        <source>%1%</source>
        <extracomment>Some languages part the sign from the number by a blank that does not break.</extracomment>
        <translation type="unfinished">%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>OnlineDownloaderInteractor</name>
    <message>
        <source>No online subtitle service is set up; add its API key to the settings.</source>
        <translation type="unfinished">Es ist kein Online-Dienst für Untertitel eingerichtet; tragen Sie dessen API-Schlüssel in die Einstellungen ein.</translation>
    </message>
    <message>
        <source> (it says: &quot;%1&quot;)</source>
        <translation type="unfinished"> (er meldet: „%1“)</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again after %3.</source>
        <translation type="unfinished">Ihre Downloads beim Dienst %1 sind aufgebraucht%2; laden Sie nach diesem Zeitpunkt wieder herunter: %3.</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again in %3.</source>
        <translation type="unfinished">Ihre Downloads beim Dienst %1 sind aufgebraucht%2; laden Sie nach dieser Wartezeit wieder herunter: %3.</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again tomorrow.</source>
        <translation type="unfinished">Ihre Downloads beim Dienst %1 sind aufgebraucht%2; laden Sie morgen wieder herunter.</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; wait %3 s and try again.</source>
        <translation type="unfinished">Der Dienst %1 wurde zu oft gefragt%2; warten Sie %3 s und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; try again in a minute.</source>
        <translation type="unfinished">Der Dienst %1 wurde zu oft gefragt%2; versuchen Sie es in einer Minute erneut.</translation>
    </message>
    <message>
        <source>%1 did not accept the API key%2; set a valid one in the settings, as KORVEX_OPENSUBTITLES_API_KEY in the environment or as api_key in the configuration file.</source>
        <translation type="unfinished">Der Dienst %1 hat den API-Schlüssel nicht angenommen%2; legen Sie einen gültigen in den Einstellungen, als KORVEX_OPENSUBTITLES_API_KEY in der Umgebung oder als api_key in der Konfigurationsdatei fest.</translation>
    </message>
    <message>
        <source>%1 sent something else in place of the subtitle%2; choose another one, or try again later.</source>
        <translation type="unfinished">Der Dienst %1 hat statt des Untertitels etwas anderes geschickt%2; wählen Sie einen anderen, oder versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>%1 is down or overloaded at the moment%2; try again later.</source>
        <translation type="unfinished">Der Dienst %1 ist zurzeit außer Betrieb oder überlastet%2; versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The subtitle could not be unpacked or stored in &quot;%1&quot;%2; choose another subtitle, or make sure that the folder may be written and has room.</source>
        <translation type="unfinished">Der Untertitel ließ sich nicht entpacken oder nicht in „%1“ speichern%2; wählen Sie einen anderen Untertitel, oder sorgen Sie dafür, dass der Ordner beschreibbar ist und Platz hat.</translation>
    </message>
    <message>
        <source>%1 refused the request%2; ask for something else, or try again later.</source>
        <translation type="unfinished">Der Dienst %1 hat die Anfrage abgelehnt%2; fragen Sie nach etwas anderem, oder versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>%1 points to other addresses without end, or to one that may not be used%2; check the address that is set for it, or try again later.</source>
        <translation type="unfinished">Der Dienst %1 verweist endlos auf andere Adressen oder auf eine, die nicht verwendet werden darf%2; prüfen Sie die für ihn festgelegte Adresse, oder versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The answer of %1 was empty, broke off or was too large; try again later.</source>
        <translation type="unfinished">Die Antwort des Dienstes %1 war leer, brach ab oder war zu groß; versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The answer of %1 cannot be used%2; try again later.</source>
        <translation type="unfinished">Die Antwort des Dienstes %1 ist nicht verwendbar%2; versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>%1 could not answer%2; try again later.</source>
        <translation type="unfinished">Der Dienst %1 konnte nicht antworten%2; versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>%1 could not answer%2; check the address that is set for it and the proxy, or try again later.</source>
        <translation type="unfinished">Der Dienst %1 konnte nicht antworten%2; prüfen Sie die für ihn festgelegte Adresse und den Proxy, oder versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The connection to %1 failed%2; check the proxy and whether the service&apos;s certificate is valid, or try again later.</source>
        <translation type="unfinished">Die Verbindung mit dem Dienst %1 ist gescheitert%2; prüfen Sie den Proxy und ob das Zertifikat des Dienstes gültig ist, oder versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Another search or download has not ended yet; try again in a moment.</source>
        <translation type="unfinished">Eine andere Suche oder ein anderer Download läuft noch; versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>%1 cannot look for this%2; type a title or an IMDb id.</source>
        <translation type="unfinished">Der Dienst %1 kann danach nicht suchen%2; geben Sie einen Titel oder eine IMDb-ID ein.</translation>
    </message>
    <message>
        <source>%1 cannot search in this way; look for a title or an IMDb id.</source>
        <translation type="unfinished">Der Dienst %1 kann so nicht suchen; suchen Sie nach einem Titel oder einer IMDb-ID.</translation>
    </message>
    <message>
        <source>%1 cannot be reached or did not answer in time; check the connection to the network and try again.</source>
        <translation type="unfinished">Der Dienst %1 ist nicht erreichbar oder hat nicht rechtzeitig geantwortet; prüfen Sie die Netzwerkverbindung und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>OnlineSearchDialogPresenter</name>
    <message>
        <source>same file</source>
        <translation type="unfinished">gleiche Datei</translation>
    </message>
    <message>
        <source>same release group</source>
        <translation type="unfinished">gleiche Release-Gruppe</translation>
    </message>
    <message>
        <source>same source</source>
        <translation type="unfinished">gleiche Quelle</translation>
    </message>
    <message>
        <source>same resolution</source>
        <translation type="unfinished">gleiche Auflösung</translation>
    </message>
    <message>
        <source>same episode</source>
        <translation type="unfinished">gleiche Folge</translation>
    </message>
    <message>
        <source>another episode</source>
        <translation type="unfinished">andere Folge</translation>
    </message>
    <message>
        <source>another film</source>
        <translation type="unfinished">anderer Film</translation>
    </message>
    <message>
        <source>Type a title or an IMDb id to search for.</source>
        <translation type="unfinished">Geben Sie einen Titel oder eine IMDb-ID für die Suche ein.</translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and digits, or leave it empty.</source>
        <translation type="unfinished">Das ist keine IMDb-ID: Geben Sie „tt“ und Ziffern ein, oder lassen Sie das Feld leer.</translation>
    </message>
    <message>
        <source>The season is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">Die Staffel ist keine Zahl: Geben Sie Ziffern ein, oder lassen Sie das Feld leer.</translation>
    </message>
    <message>
        <source>The episode is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">Die Folge ist keine Zahl: Geben Sie Ziffern ein, oder lassen Sie das Feld leer.</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">Suche läuft...</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n found so far</source>
        <translation type="unfinished">
            <numerusform>Suche läuft... bisher %n gefunden</numerusform>
            <numerusform>Suche läuft... bisher %n gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>%n Untertitel gefunden.</numerusform>
            <numerusform>%n Untertitel gefunden.</numerusform>
        </translation>
    </message>
    <message>
        <source>check the spelling of the title</source>
        <translation type="unfinished">die Schreibweise des Titels prüfen</translation>
    </message>
    <message>
        <source>type the title</source>
        <translation type="unfinished">den Titel eingeben</translation>
    </message>
    <message>
        <source>type the film&apos;s IMDb id</source>
        <translation type="unfinished">die IMDb-ID des Films eingeben</translation>
    </message>
    <message>
        <source>check the IMDb id</source>
        <translation type="unfinished">die IMDb-ID prüfen</translation>
    </message>
    <message>
        <source>leave out the season and the episode</source>
        <translation type="unfinished">Staffel und Folge weglassen</translation>
    </message>
    <message>
        <source>choose other languages</source>
        <translation type="unfinished">andere Sprachen wählen</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished">%1 oder %2</translation>
    </message>
    <message>
        <source>No subtitles were found: %1.</source>
        <translation type="unfinished">Es wurden keine Untertitel gefunden; bitte %1.</translation>
    </message>
    <message numerus="yes">
        <source>Downloading %n subtitle(s)...</source>
        <translation type="unfinished">
            <numerusform>%n Untertitel wird heruntergeladen...</numerusform>
            <numerusform>%n Untertitel werden heruntergeladen...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) added to the film.</source>
        <translation type="unfinished">
            <numerusform>%n Untertitel zum Film hinzugefügt.</numerusform>
            <numerusform>%n Untertitel zum Film hinzugefügt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n download(s) left.</source>
        <translation type="unfinished">
            <numerusform>Noch %n Download übrig.</numerusform>
            <numerusform>Noch %n Downloads übrig.</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for the last request to end...</source>
        <translation type="unfinished">Das Ende der letzten Anfrage wird abgewartet...</translation>
    </message>
    <message>
        <source>The search was cancelled.</source>
        <translation type="unfinished">Die Suche wurde abgebrochen.</translation>
    </message>
    <message numerus="yes">
        <source>The search was cancelled; %n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>Die Suche wurde abgebrochen; %n Untertitel gefunden.</numerusform>
            <numerusform>Die Suche wurde abgebrochen; %n Untertitel gefunden.</numerusform>
        </translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation type="unfinished">Das Herunterladen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished">%1, %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation type="unfinished">%1 %2</translation>
    </message>
</context>
<context>
    <name>ResultList</name>
    <message>
        <source>Machine</source>
        <comment>short mark</comment>
        <translation type="unfinished">Maschine</translation>
    </message>
    <message>
        <source>Translated by a machine</source>
        <translation type="unfinished">Maschinell übersetzt</translation>
    </message>
    <message>
        <source>Foreign</source>
        <comment>short mark</comment>
        <translation type="unfinished">Fremdteile</translation>
    </message>
    <message>
        <source>Only what is spoken in a foreign language</source>
        <translation type="unfinished">Nur, was in einer fremden Sprache gesprochen wird</translation>
    </message>
    <message>
        <source>HI</source>
        <comment>short mark</comment>
        <translation type="unfinished">HG</translation>
    </message>
    <message>
        <source>For the hearing impaired: sounds are described</source>
        <translation type="unfinished">Für Hörgeschädigte: Geräusche werden beschrieben</translation>
    </message>
    <message>
        <source>Trusted</source>
        <comment>short mark</comment>
        <translation type="unfinished">Bewährt</translation>
    </message>
    <message>
        <source>From an uploader whom the service trusts</source>
        <translation type="unfinished">Von jemandem hochgeladen, dem der Dienst vertraut</translation>
    </message>
    <message>
        <source>CD %1/%2</source>
        <comment>short mark</comment>
        <translation type="unfinished">CD %1/%2</translation>
    </message>
    <message>
        <source>Part %1 of %2; all parts are downloaded</source>
        <translation type="unfinished">Teil %1 von %2; alle Teile werden heruntergeladen</translation>
    </message>
    <message>
        <source>HD</source>
        <comment>short mark</comment>
        <translation type="unfinished">HD</translation>
    </message>
    <message>
        <source>Made for a release in high definition</source>
        <translation type="unfinished">Für eine Ausgabe in hoher Auflösung gemacht</translation>
    </message>
    <message>
        <source>Made for this file or release</source>
        <translation type="unfinished">Für diese Datei oder diesen Release gemacht</translation>
    </message>
    <message>
        <source>For this film, perhaps for another cut of it</source>
        <translation type="unfinished">Für diesen Film, vielleicht für eine andere Schnittfassung</translation>
    </message>
    <message>
        <source>For another film or episode</source>
        <translation type="unfinished">Für einen anderen Film oder eine andere Folge</translation>
    </message>
    <message>
        <source>It is not known how well it fits</source>
        <translation type="unfinished">Wie gut er passt, ist nicht bekannt</translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished">Name</translation>
    </message>
    <message>
        <source>Match</source>
        <translation type="unfinished">Übereinstimmung</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">Sprache</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation type="unfinished">Merkmale</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation type="unfinished">Downloads</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation type="unfinished">Bewertung</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation type="unfinished">Hochgeladen</translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished">Format</translation>
    </message>
    <message>
        <source>Release: %1</source>
        <translation type="unfinished">Release: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of 10, by %n vote(s)</source>
        <translation type="unfinished">
            <numerusform>%1 von 10, bei %n Stimme</numerusform>
            <numerusform>%1 von 10, bei %n Stimmen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SubtitleCollection</name>
    <message>
        <source>Subtitle tracks</source>
        <translation type="unfinished">Untertitelspuren</translation>
    </message>
    <message>
        <source>Current choice</source>
        <translation type="unfinished">Aktuelle Wahl</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">Keine Untertitel</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">Alle Spuren behalten (Softsub)</translation>
    </message>
    <message>
        <source>There are no subtitle tracks yet. Add a subtitle file first.</source>
        <translation type="unfinished">Es gibt noch keine Untertitelspuren. Fügen Sie zuerst eine Untertiteldatei hinzu.</translation>
    </message>
    <message>
        <source>The chosen output format cannot carry these tracks. Choose another format, or burn one track in.</source>
        <translation type="unfinished">Das gewählte Ausgabeformat kann diese Spuren nicht tragen. Wählen Sie ein anderes Format oder brennen Sie eine Spur ein.</translation>
    </message>
    <message>
        <source>Save this track to a file (Ctrl+S)</source>
        <translation type="unfinished">Diese Spur in eine Datei speichern (Strg+S)</translation>
    </message>
    <message>
        <source>Save to a file: %1</source>
        <translation type="unfinished">In eine Datei speichern: %1</translation>
    </message>
</context>
<context>
    <name>SubtitleCollectionInteractor</name>
    <message>
        <source>No subtitles were found in &quot;%1&quot;: take it out of the list and choose an SRT, ASS or SSA file.</source>
        <translation type="unfinished">In „%1“ wurden keine Untertitel gefunden: Nehmen Sie die Datei aus der Liste und wählen Sie eine SRT-, ASS- oder SSA-Datei.</translation>
    </message>
</context>
<context>
    <name>SubtitleSettings</name>
    <message>
        <source>Auto</source>
        <translation type="unfinished">Automatisch</translation>
    </message>
    <message>
        <source>UTF-8</source>
        <translation type="unfinished">UTF-8</translation>
    </message>
    <message>
        <source>Windows-1251</source>
        <translation type="unfinished">Windows-1251</translation>
    </message>
    <message>
        <source>Central and Eastern European (Windows-1250)</source>
        <translation type="unfinished">Mittel- und osteuropäisch (Windows-1250)</translation>
    </message>
    <message>
        <source>Russian (KOI8-R)</source>
        <translation type="unfinished">Russisch (KOI8-R)</translation>
    </message>
    <message>
        <source>Ukrainian, Belarusian (KOI8-U/RU)</source>
        <translation type="unfinished">Ukrainisch, Belarussisch (KOI8-U/RU)</translation>
    </message>
    <message>
        <source>Esperanto, Galician, Maltese, Turkish (ISO-8859-3)</source>
        <translation type="unfinished">Esperanto, Galicisch, Maltesisch, Türkisch (ISO-8859-3)</translation>
    </message>
    <message>
        <source>Modern Greek (ISO-8859-7)</source>
        <translation type="unfinished">Neugriechisch (ISO-8859-7)</translation>
    </message>
    <message>
        <source>Hebrew charsets (ISO-8859-8)</source>
        <translation type="unfinished">Hebräisch (ISO-8859-8)</translation>
    </message>
    <message>
        <source>Turkish (ISO-8859-9)</source>
        <translation type="unfinished">Türkisch (ISO-8859-9)</translation>
    </message>
    <message>
        <source>Baltic (ISO-8859-13)</source>
        <translation type="unfinished">Baltisch (ISO-8859-13)</translation>
    </message>
    <message>
        <source>Western European Languages with Euro (ISO-8859-15)</source>
        <translation type="unfinished">Westeuropäisch mit Euro (ISO-8859-15)</translation>
    </message>
    <message>
        <source>Japanese charsets (SHIFT-JIS/CP932)</source>
        <translation type="unfinished">Japanisch (SHIFT-JIS/CP932)</translation>
    </message>
    <message>
        <source>Simplified Chinese charset (CP936)</source>
        <translation type="unfinished">Vereinfachtes Chinesisch (CP936)</translation>
    </message>
    <message>
        <source>Traditional Chinese charset (BIG5)</source>
        <translation type="unfinished">Traditionelles Chinesisch (BIG5)</translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished">Vorgabe</translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished">Oben</translation>
    </message>
    <message>
        <source>Vertical center</source>
        <translation type="unfinished">Vertikal mittig</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished">Unten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished">Links</translation>
    </message>
    <message>
        <source>Horizontal center</source>
        <translation type="unfinished">Horizontal mittig</translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished">Rechts</translation>
    </message>
</context>
<context>
    <name>TimeTexts</name>
    <message>
        <source>less than a minute left</source>
        <translation type="unfinished">weniger als eine Minute übrig</translation>
    </message>
    <message numerus="yes">
        <source>%n min left</source>
        <translation type="unfinished">
            <numerusform>noch %n min</numerusform>
            <numerusform>noch %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h left</source>
        <translation type="unfinished">
            <numerusform>noch %n h</numerusform>
            <numerusform>noch %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 h %n min left</source>
        <translation type="unfinished">
            <numerusform>noch %1 h %n min</numerusform>
            <numerusform>noch %1 h %n min</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WarningWords</name>
    <message>
        <source>Track %1 of &quot;%2&quot; (a second picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">Spur %1 von „%2“ (ein zweites Bild, %3) wurde weggelassen, weil %4 sie nicht aufnehmen kann.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a cover picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">Spur %1 von „%2“ (ein Titelbild, %3) wurde weggelassen, weil %4 sie nicht aufnehmen kann.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a further sound track, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">Spur %1 von „%2“ (eine weitere Tonspur, %3) wurde weggelassen, weil %4 sie nicht aufnehmen kann.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a sound track, %3) was left out, because nothing in it can be read.</source>
        <translation type="unfinished">Spur %1 von „%2“ (eine Tonspur, %3) wurde weggelassen, weil nichts darin lesbar ist.</translation>
    </message>
    <message>
        <source>The picture of &quot;%1&quot; was encoded anew, because %2 cannot hold it as it is.</source>
        <translation type="unfinished">Das Bild von „%1“ wurde neu kodiert, weil %2 es so, wie es ist, nicht aufnehmen kann.</translation>
    </message>
    <message>
        <source>Files attached to &quot;%1&quot;, for example fonts, were left out, because %2 cannot hold them.</source>
        <translation type="unfinished">Dateien, die „%1“ beigelegt sind, zum Beispiel Schriften, wurden weggelassen, weil %2 sie nicht aufnehmen kann.</translation>
    </message>
    <message>
        <source>A subtitle track was left out, because its file is missing.</source>
        <translation type="unfinished">Eine Untertitelspur wurde weggelassen, weil ihre Datei fehlt.</translation>
    </message>
    <message>
        <source>The subtitle track &quot;%1&quot; was left out, because its file is missing.</source>
        <translation type="unfinished">Die Untertitelspur „%1“ wurde weggelassen, weil ihre Datei fehlt.</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of &quot;%1&quot; could not be read as %2 and show as &quot;%3&quot;: check the encoding.</source>
        <translation type="unfinished">
            <numerusform>%n Byte aus „%1“ ließ sich nicht als %2 lesen und erscheint als „%3“: Prüfen Sie die Kodierung.</numerusform>
            <numerusform>%n Bytes aus „%1“ ließen sich nicht als %2 lesen und erscheinen als „%3“: Prüfen Sie die Kodierung.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>%n Untertitel aus „%1“ ohne brauchbare Zeiten wurde weggelassen.</numerusform>
            <numerusform>%n Untertitel aus „%1“ ohne brauchbare Zeiten wurden weggelassen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; of no duration were left out.</source>
        <translation type="unfinished">
            <numerusform>%n Untertitel aus „%1“ ohne Dauer wurde weggelassen.</numerusform>
            <numerusform>%n Untertitel aus „%1“ ohne Dauer wurden weggelassen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some pictures of &quot;%1&quot; are damaged; they may be missing or look wrong.</source>
        <translation type="unfinished">Einige Bilder von „%1“ sind beschädigt; sie können fehlen oder falsch aussehen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; breaks off after %2 of %3, and so does the new film.</source>
        <translation type="unfinished">„%1“ bricht nach %2 von %3 ab, der neue Film also auch.</translation>
    </message>
</context>
</TS>
