<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n film(s) converted.</source>
        <translation type="unfinished">
            <numerusform>Przekonwertowano %n film.</numerusform>
            <numerusform>Przekonwertowano %n filmy.</numerusform>
            <numerusform>Przekonwertowano %n filmów.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) with remarks: %1</source>
        <translation type="unfinished">
            <numerusform>%n film z uwagami: %1</numerusform>
            <numerusform>%n filmy z uwagami: %1</numerusform>
            <numerusform>%n filmów z uwagami: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) could not be converted: %1</source>
        <translation type="unfinished">
            <numerusform>Nie udało się przekonwertować %n filmu: %1</numerusform>
            <numerusform>Nie udało się przekonwertować %n filmów: %1</numerusform>
            <numerusform>Nie udało się przekonwertować %n filmów: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) cancelled.</source>
        <translation type="unfinished">
            <numerusform>Anulowano %n film.</numerusform>
            <numerusform>Anulowano %n filmy.</numerusform>
            <numerusform>Anulowano %n filmów.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConversionTexts</name>
    <message>
        <source>%1 holds no cues and was left out.</source>
        <translation type="unfinished">%1: brak napisów, ścieżka została pominięta.</translation>
    </message>
    <message>
        <source>%1 goes into %2 as %3.</source>
        <translation type="unfinished">%1 trafia do %2 jako %3.</translation>
    </message>
    <message>
        <source>%1 was read as %2.</source>
        <translation type="unfinished">%1: odczytano jako %2.</translation>
    </message>
    <message>
        <source>%1 was moved by %2 s.</source>
        <translation type="unfinished">%1: przesunięto o %2 s.</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of %1 could not be read as text.</source>
        <translation type="unfinished">
            <numerusform>%n bajtu z %1 nie dało się odczytać jako tekstu.</numerusform>
            <numerusform>%n bajtów z %1 nie dało się odczytać jako tekstu.</numerusform>
            <numerusform>%n bajtów z %1 nie dało się odczytać jako tekstu.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>Pominięto %n napis z %1 bez poprawnych czasów.</numerusform>
            <numerusform>Pominięto %n napisy z %1 bez poprawnych czasów.</numerusform>
            <numerusform>Pominięto %n napisów z %1 bez poprawnych czasów.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 would never be shown and were left out.</source>
        <translation type="unfinished">
            <numerusform>%n napis z %1 nigdy by się nie pojawił i został pominięty.</numerusform>
            <numerusform>%n napisy z %1 nigdy by się nie pojawiły i zostały pominięte.</numerusform>
            <numerusform>%n napisów z %1 nigdy by się nie pojawiło i zostało pominiętych.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EditingPanel</name>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">Napisy</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Wybierz napisy</translation>
    </message>
    <message>
        <source>Subtitles encoding</source>
        <translation type="unfinished">Kodowanie napisów</translation>
    </message>
    <message>
        <source>Aligment</source>
        <translation type="unfinished">Wyrównanie</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation type="unfinished">Synchronizuj</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Dodaj napisy</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">Zachowaj wszystkie ścieżki (softsub)</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">Wybierz plik</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">Znajdź plik</translation>
    </message>
    <message>
        <source>Relocating subtitles saves all subtitle tracks. You can select them in player.&lt;br&gt;&lt;br&gt;Select one of track to hardsub them.</source>
        <translation type="unfinished">Przeniesienie napisów zachowuje wszystkie ścieżki. Można je wybrać w odtwarzaczu.&lt;br&gt;&lt;br&gt;Wybierz jedną ścieżkę, aby wtopić ją w obraz.</translation>
    </message>
    <message>
        <source>Hastened</source>
        <translation type="unfinished">Przyspieszone</translation>
    </message>
    <message>
        <source>Delayed</source>
        <translation type="unfinished">Opóźnione</translation>
    </message>
    <message>
        <source>Help on subtitles</source>
        <translation type="unfinished">Pomoc dotycząca napisów</translation>
    </message>
    <message>
        <source>Position shift</source>
        <translation type="unfinished">Przesunięcie położenia</translation>
    </message>
    <message>
        <source>Synchronization offset in seconds</source>
        <translation type="unfinished">Przesunięcie synchronizacji w sekundach</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation type="unfinished">Kolor tekstu</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation type="unfinished">Kolor obrysu</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation type="unfinished">Czcionka: %1</translation>
    </message>
</context>
<context>
    <name>ErrorClauses</name>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished">to jest folder</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="unfinished">to nie jest plik</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation type="unfinished">jest większy niż %1 bajtów</translation>
    </message>
    <message>
        <source>its header cannot be read</source>
        <translation type="unfinished">nie można odczytać jego nagłówka</translation>
    </message>
    <message>
        <source>nothing in it can be read</source>
        <translation type="unfinished">nie można w nim nic odczytać</translation>
    </message>
    <message>
        <source>it holds no subtitles</source>
        <translation type="unfinished">nie zawiera napisów</translation>
    </message>
    <message>
        <source>it does not hold exactly one subtitle track</source>
        <translation type="unfinished">nie zawiera dokładnie jednej ścieżki napisów</translation>
    </message>
    <message>
        <source>it has no picture</source>
        <translation type="unfinished">nie ma obrazu</translation>
    </message>
    <message>
        <source>it has no picture that subtitles could be drawn into</source>
        <translation type="unfinished">nie ma obrazu, w który można wtopić napisy</translation>
    </message>
    <message>
        <source>the size of its picture is not known</source>
        <translation type="unfinished">nie wiadomo, jaki jest rozmiar jego obrazu</translation>
    </message>
    <message>
        <source>the picture has no usable size</source>
        <translation type="unfinished">obraz nie ma użytecznego rozmiaru</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation type="unfinished">nie można zdekodować żadnego z jego obrazów</translation>
    </message>
    <message>
        <source>there is no decoder for it</source>
        <translation type="unfinished">nie ma dla niego dekodera</translation>
    </message>
    <message>
        <source>there is no decoder for track %1</source>
        <translation type="unfinished">nie ma dekodera dla ścieżki %1</translation>
    </message>
    <message>
        <source>its decoder refuses the stream: %1</source>
        <translation type="unfinished">jego dekoder odrzuca strumień: %1</translation>
    </message>
    <message>
        <source>its decoder does not know the options %1</source>
        <translation type="unfinished">jego dekoder nie zna opcji %1</translation>
    </message>
    <message>
        <source>its encoder refuses the sound: %1</source>
        <translation type="unfinished">jego koder odrzuca dźwięk: %1</translation>
    </message>
    <message>
        <source>its encoder refuses the picture (%1): %2</source>
        <translation type="unfinished">jego koder odrzuca obraz (%1): %2</translation>
    </message>
    <message>
        <source>the encoder here is %1</source>
        <translation type="unfinished">tutaj koderem jest %1</translation>
    </message>
    <message>
        <source>there is no encoder preset &quot;%1&quot;</source>
        <translation type="unfinished">nie ma ustawienia kodera „%1”</translation>
    </message>
    <message>
        <source>the text encoding &quot;%1&quot; is not known</source>
        <translation type="unfinished">kodowanie tekstu „%1” jest nieznane</translation>
    </message>
    <message>
        <source>the text renderer could not be set up</source>
        <translation type="unfinished">nie udało się przygotować rysowania tekstu</translation>
    </message>
    <message>
        <source>it names a folder</source>
        <translation type="unfinished">to jest folder</translation>
    </message>
    <message>
        <source>it is a device or a pipe, not a file</source>
        <translation type="unfinished">to urządzenie lub potok, a nie plik</translation>
    </message>
    <message>
        <source>a .%1 file</source>
        <translation type="unfinished">plik .%1</translation>
    </message>
    <message>
        <source>save it as .%1 instead</source>
        <translation type="unfinished">zapisz to jako .%1</translation>
    </message>
    <message>
        <source>it consists of pictures, so save it as .%1</source>
        <translation type="unfinished">składa się z obrazów, więc zapisz ją jako .%1</translation>
    </message>
    <message>
        <source>the encoder libx264 is missing</source>
        <translation type="unfinished">brakuje kodera libx264</translation>
    </message>
    <message>
        <source>subtitles can be switchable or drawn in, not both</source>
        <translation type="unfinished">napisy mogą być przełączane albo wtopione, nie jedno i drugie</translation>
    </message>
    <message>
        <source>the quality goes from 0 to 51</source>
        <translation type="unfinished">jakość może wynosić od 0 do 51</translation>
    </message>
    <message>
        <source>the chosen format</source>
        <translation type="unfinished">wybrany format</translation>
    </message>
    <message>
        <source>draw it in</source>
        <translation type="unfinished">wtop ją w obraz</translation>
    </message>
    <message>
        <source>choose Matroska or draw it in</source>
        <translation type="unfinished">wybierz Matroska lub wtop ją w obraz</translation>
    </message>
    <message>
        <source>draw it in or leave it out</source>
        <translation type="unfinished">wtop ją w obraz lub pomiń</translation>
    </message>
    <message>
        <source>you may not do this</source>
        <translation type="unfinished">brak uprawnień</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation type="unfinished">dysk jest tylko do odczytu</translation>
    </message>
    <message>
        <source>the disk could not be read or written</source>
        <translation type="unfinished">nie można było czytać z dysku lub zapisywać na nim</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation type="unfinished">nie ma takiego pliku ani folderu</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation type="unfinished">jego nazwa jest za długa</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation type="unfinished">brakuje pamięci</translation>
    </message>
    <message>
        <source>it holds data that make no sense</source>
        <translation type="unfinished">zawiera dane bez sensu</translation>
    </message>
</context>
<context>
    <name>ErrorWords</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation type="unfinished">„%1”</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot;</source>
        <translation type="unfinished">Ścieżka %1 z „%2”</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no track %2: choose another track.</source>
        <translation type="unfinished">Plik „%1” nie ma ścieżki %2: wybierz inną ścieżkę.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no subtitle track: choose another file.</source>
        <translation type="unfinished">Plik „%1” nie ma ścieżki napisów: wybierz inny plik.</translation>
    </message>
    <message>
        <source>choose another format, draw it in or leave it out</source>
        <translation type="unfinished">wybierz inny format, wtop napisy w obraz lub pomiń je</translation>
    </message>
    <message>
        <source>%1 is %2, which %3 cannot hold: %4.</source>
        <extracomment>%1: a track or a file, %2: its codec, %3: a format or a kind of file, %4: what to do</extracomment>
        <translation type="unfinished">%1 ma format %2, którego nie może zawierać %3: %4.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read%2: choose another one, or check that you may open it.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Nie można odczytać pliku „%1”%2: wybierz inny lub sprawdź, czy wolno ci go otworzyć.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is of no kind that can be used here%2: choose another one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Pliku „%1” nie można tu użyć ze względu na jego rodzaj%2: wybierz inny.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged%2: try to get a complete copy.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Plik „%1” jest uszkodzony%2: spróbuj zdobyć pełną kopię.</translation>
    </message>
    <message>
        <source>The text of &quot;%1&quot; cannot be drawn, because no usable font is installed%2: install one, for example DejaVu Sans.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Nie można narysować tekstu z „%1”, bo nie zainstalowano żadnej odpowiedniej czcionki%2: zainstaluj jakąś, na przykład DejaVu Sans.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written%2: choose another folder, or check that you may write to this one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Nie można zapisać pliku „%1”%2: wybierz inny folder lub sprawdź, czy wolno ci zapisywać w tym.</translation>
    </message>
    <message>
        <source>A setting for &quot;%1&quot; is not valid%2: correct it and try again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Ustawienie dla „%1” jest nieprawidłowe%2: popraw je i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; failed%2: try again, and report it if it fails again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Praca nad „%1” nie powiodła się%2: spróbuj ponownie, a jeśli to się powtórzy, zgłoś to.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist any more: choose another one.</source>
        <translation type="unfinished">Plik „%1” już nie istnieje: wybierz inny.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty: choose another one.</source>
        <translation type="unfinished">Plik „%1” jest pusty: wybierz inny.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is not a subtitle track: choose another one.</source>
        <translation type="unfinished">Ścieżka %1 z „%2” nie jest ścieżką napisów: wybierz inną.</translation>
    </message>
    <message>
        <source>The codec of &quot;%1&quot;, %2, cannot be used here%3: choose another file or another format.</source>
        <extracomment>%2: a codec, %3: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Kodeka pliku „%1”, %2, nie można tu użyć%3: wybierz inny plik lub inny format.</translation>
    </message>
    <message>
        <source>The format of &quot;%1&quot; is not known%2: choose another one.</source>
        <extracomment>%2: what was asked for, in brackets, or nothing</extracomment>
        <translation type="unfinished">Format pliku „%1” jest nieznany%2: wybierz inny.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has neither picture nor sound: choose another one.</source>
        <translation type="unfinished">Plik „%1” nie ma ani obrazu, ani dźwięku: wybierz inny.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already: choose another name.</source>
        <translation type="unfinished">Plik „%1” już istnieje: wybierz inną nazwę.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is being read, so it cannot be written: choose another name.</source>
        <translation type="unfinished">Plik „%1” jest właśnie odczytywany, więc nie można go zapisać: wybierz inną nazwę.</translation>
    </message>
    <message>
        <source>The folder of &quot;%1&quot; does not exist: create it, or choose another one.</source>
        <translation type="unfinished">Folder pliku „%1” nie istnieje: utwórz go lub wybierz inny.</translation>
    </message>
    <message>
        <source>The disk is full, so &quot;%1&quot; was not written: free some space, or choose another folder.</source>
        <translation type="unfinished">Dysk jest pełny, więc nie zapisano „%1”: zwolnij miejsce lub wybierz inny folder.</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; was cancelled: start it again if you want it.</source>
        <translation type="unfinished">Pracę nad „%1” anulowano: rozpocznij ją ponownie, jeśli chcesz.</translation>
    </message>
</context>
<context>
    <name>ExternalSubtitlesDialog</name>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Wybierz napisy</translation>
    </message>
    <message>
        <source>Subtitle files (%1)</source>
        <translation type="unfinished">Pliki napisów (%1)</translation>
    </message>
</context>
<context>
    <name>FilmRow</name>
    <message>
        <source>Paused</source>
        <translation type="unfinished">Wstrzymano</translation>
    </message>
    <message>
        <source>Preparing subtitles</source>
        <translation type="unfinished">Przygotowywanie napisów</translation>
    </message>
    <message>
        <source>Converting</source>
        <translation type="unfinished">Konwertowanie</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished">Oczekuje</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation type="unfinished">Przekonwertowano</translation>
    </message>
    <message numerus="yes">
        <source>Converted, with %n remark(s)</source>
        <translation type="unfinished">
            <numerusform>Przekonwertowano, %n uwaga</numerusform>
            <numerusform>Przekonwertowano, %n uwagi</numerusform>
            <numerusform>Przekonwertowano, %n uwag</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished">Anulowano</translation>
    </message>
    <message>
        <source>Reading the film</source>
        <translation type="unfinished">Odczytywanie filmu</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">Pokaż w folderze</translation>
    </message>
    <message>
        <source>Converted, but it breaks off after %1 of %2</source>
        <translation type="unfinished">Przekonwertowano, ale urywa się po %1 z %2</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::AutocompleteField</name>
    <message>
        <source>Film or series</source>
        <translation type="unfinished">Film lub serial</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">Tytuł</translation>
    </message>
    <message>
        <source>Suggested titles</source>
        <translation type="unfinished">Podpowiadane tytuły</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ImdbIdValidator</name>
    <message numerus="yes">
        <source>The IMDb id is too short: it has at least %n digit(s), as in tt0123456.</source>
        <translation type="unfinished">
            <numerusform>Numer IMDb jest za krótki: ma co najmniej %n cyfrę, jak w tt0123456.</numerusform>
            <numerusform>Numer IMDb jest za krótki: ma co najmniej %n cyfry, jak w tt0123456.</numerusform>
            <numerusform>Numer IMDb jest za krótki: ma co najmniej %n cyfr, jak w tt0123456.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The IMDb id is too long: it has at most %n digit(s).</source>
        <translation type="unfinished">
            <numerusform>Numer IMDb jest za długi: ma najwyżej %n cyfrę.</numerusform>
            <numerusform>Numer IMDb jest za długi: ma najwyżej %n cyfry.</numerusform>
            <numerusform>Numer IMDb jest za długi: ma najwyżej %n cyfr.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and a number, or the number alone, as in tt0123456.</source>
        <translation type="unfinished">To nie jest numer IMDb: wpisz „tt” i liczbę lub samą liczbę, jak w tt0123456.</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ItemPanel</name>
    <message>
        <source>Subtitles of this film</source>
        <translation type="unfinished">Napisy tego filmu</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Wybierz napisy</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Dodaj napisy</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">Wybierz plik</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">Znajdź plik</translation>
    </message>
    <message>
        <source>Apply to all files</source>
        <translation type="unfinished">Zastosuj do wszystkich plików</translation>
    </message>
    <message>
        <source>Makes the same choice for every film of the list</source>
        <translation type="unfinished">Dokonuje tego samego wyboru dla każdego filmu z listy</translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished">Gotowe</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelector</name>
    <message>
        <source>Languages: %1</source>
        <translation type="unfinished">Języki: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelectorList</name>
    <message>
        <source>Languages to search in</source>
        <translation type="unfinished">Języki wyszukiwania</translation>
    </message>
    <message>
        <source>Find a language</source>
        <translation type="unfinished">Znajdź język</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindow</name>
    <message>
        <source>Type a title and press &quot;Search&quot;.</source>
        <translation type="unfinished">Wpisz tytuł i naciśnij „Szukaj”.</translation>
    </message>
    <message>
        <source>Find subtitles</source>
        <translation type="unfinished">Znajdź napisy</translation>
    </message>
    <message>
        <source>Find subtitles: %1</source>
        <translation type="unfinished">Znajdź napisy: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowFields</name>
    <message>
        <source>&amp;Title</source>
        <translation type="unfinished">&amp;Tytuł</translation>
    </message>
    <message>
        <source>&amp;Season</source>
        <translation type="unfinished">&amp;Sezon</translation>
    </message>
    <message>
        <source>Season</source>
        <translation type="unfinished">Sezon</translation>
    </message>
    <message>
        <source>&amp;Episode</source>
        <translation type="unfinished">&amp;Odcinek</translation>
    </message>
    <message>
        <source>Episode</source>
        <translation type="unfinished">Odcinek</translation>
    </message>
    <message>
        <source>&amp;Episode...</source>
        <translation type="unfinished">&amp;Odcinek...</translation>
    </message>
    <message>
        <source>Search for an episode of a series</source>
        <translation type="unfinished">Szukaj odcinka serialu</translation>
    </message>
    <message>
        <source>Sea&amp;rch</source>
        <translation type="unfinished">S&amp;zukaj</translation>
    </message>
    <message>
        <source>I&amp;MDb id</source>
        <translation type="unfinished">Numer I&amp;MDb</translation>
    </message>
    <message>
        <source>IMDb id</source>
        <translation type="unfinished">Numer IMDb</translation>
    </message>
    <message>
        <source>The film&apos;s number at IMDb, as in tt0123456</source>
        <translation type="unfinished">Numer filmu w IMDb, jak w tt0123456</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation type="unfinished">&amp;Języki</translation>
    </message>
    <message>
        <source>E&amp;xactly this file</source>
        <translation type="unfinished">&amp;Dokładnie ten plik</translation>
    </message>
    <message>
        <source>Finds subtitles by the fingerprint of the file, whatever its name is</source>
        <translation type="unfinished">Znajduje napisy według odcisku pliku, niezależnie od jego nazwy</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowStatus</name>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">Szukanie...</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation type="unfinished">Pobieranie...</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation type="unfinished">Anulowanie...</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found</source>
        <translation type="unfinished">
            <numerusform>Znaleziono %n napisy</numerusform>
            <numerusform>Znaleziono %n napisy</numerusform>
            <numerusform>Znaleziono %n napisów</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">&amp;Anuluj</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Download %n</source>
        <translation type="unfinished">
            <numerusform>&amp;Pobierz %n</numerusform>
            <numerusform>&amp;Pobierz %n</numerusform>
            <numerusform>&amp;Pobierz %n</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Download</source>
        <translation type="unfinished">&amp;Pobierz</translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished">Zamknij</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ResultList</name>
    <message>
        <source>Smallest first; press to turn it round</source>
        <translation type="unfinished">Od najmniejszych; naciśnij, aby odwrócić</translation>
    </message>
    <message>
        <source>Largest first; press to turn it round</source>
        <translation type="unfinished">Od największych; naciśnij, aby odwrócić</translation>
    </message>
    <message numerus="yes">
        <source>None of the %n subtitle(s) found holds &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>Znaleziono %n napisy, ale bez „%1”.</numerusform>
            <numerusform>Znaleziono %n napisy, ale żadne nie zawierają „%1”.</numerusform>
            <numerusform>Znaleziono %n napisów, ale żadne nie zawierają „%1”.</numerusform>
        </translation>
    </message>
    <message>
        <source>Best match</source>
        <translation type="unfinished">Najlepsze trafienia</translation>
    </message>
    <message>
        <source>Subtitles found</source>
        <translation type="unfinished">Znalezione napisy</translation>
    </message>
    <message>
        <source>Filter the list</source>
        <translation type="unfinished">Filtruj listę</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation type="unfinished">So&amp;rtuj według</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation type="unfinished">Sortuj według</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::AboutDialog</name>
    <message>
        <source>About Korvex Subtitles</source>
        <translation type="unfinished">O programie Korvex Subtitles</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished">Wersja %1</translation>
    </message>
    <message>
        <source>Converts films with their subtitles: as tracks that can be switched on and off, or drawn into the picture.

Free software under the GNU General Public License, version 3 or later. It comes without any warranty.

It is built on Qt, FFmpeg and libass.</source>
        <translation type="unfinished">Konwertuje filmy z napisami: jako ścieżki do włączania i wyłączania albo wtopione w obraz.

Wolne oprogramowanie na licencji GNU General Public License w wersji 3 lub nowszej. Bez żadnej gwarancji.

Zbudowano z użyciem Qt, FFmpeg i libass.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Actions</name>
    <message>
        <source>&amp;Add films...</source>
        <translation type="unfinished">&amp;Dodaj filmy...</translation>
    </message>
    <message>
        <source>Add &amp;subtitles...</source>
        <translation type="unfinished">Dodaj &amp;napisy...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished">Za&amp;kończ</translation>
    </message>
    <message>
        <source>&amp;Subtitles...</source>
        <translation type="unfinished">&amp;Napisy...</translation>
    </message>
    <message>
        <source>Apply these subtitles to &amp;all</source>
        <translation type="unfinished">Zastosuj te napisy do &amp;wszystkich</translation>
    </message>
    <message>
        <source>&amp;Copy as command line</source>
        <translation type="unfinished">&amp;Kopiuj jako wiersz poleceń</translation>
    </message>
    <message>
        <source>Show &amp;output in folder</source>
        <translation type="unfinished">Pokaż &amp;wynik w folderze</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">&amp;Usuń z listy</translation>
    </message>
    <message>
        <source>&amp;Previous film</source>
        <translation type="unfinished">&amp;Poprzedni film</translation>
    </message>
    <message>
        <source>&amp;Next film</source>
        <translation type="unfinished">&amp;Następny film</translation>
    </message>
    <message>
        <source>Convert &amp;all</source>
        <translation type="unfinished">Konwertuj &amp;wszystkie</translation>
    </message>
    <message>
        <source>Convert this &amp;film</source>
        <translation type="unfinished">Konwertuj ten &amp;film</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">W&amp;strzymaj</translation>
    </message>
    <message>
        <source>&amp;Cancel this film</source>
        <translation type="unfinished">&amp;Anuluj ten film</translation>
    </message>
    <message>
        <source>Cancel a&amp;ll</source>
        <translation type="unfinished">Anuluj &amp;wszystkie</translation>
    </message>
    <message>
        <source>Same as &amp;system</source>
        <translation type="unfinished">Jak w &amp;systemie</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished">&amp;Jasny</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished">&amp;Ciemny</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation type="unfinished">&amp;Skróty klawiszowe</translation>
    </message>
    <message>
        <source>&amp;About Korvex Subtitles</source>
        <translation type="unfinished">&amp;O programie Korvex Subtitles</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished">Usuń</translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished">Dodaj</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation type="unfinished">&amp;Ustawienia...</translation>
    </message>
    <message>
        <source>Find subtitles on&amp;line...</source>
        <translation type="unfinished">Znajdź napisy w &amp;internecie...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyReportDialog</name>
    <message>
        <source>Applied to all films</source>
        <translation type="unfinished">Zastosowano do wszystkich filmów</translation>
    </message>
    <message>
        <source>Subtitles as in &quot;%1&quot;</source>
        <translation type="unfinished">Napisy jak w „%1”</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyToAll</name>
    <message>
        <source>&quot;%1&quot;: nothing changed, because the film cannot be read at the moment.</source>
        <translation type="unfinished">„%1”: bez zmian, bo filmu nie da się teraz odczytać.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: nothing changed, because it has no track like %2 and no file of that name.</source>
        <translation type="unfinished">„%1”: bez zmian, bo nie ma tu ścieżki takiej jak %2 ani pliku o tej nazwie.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::CommandLineText</name>
    <message>
        <source>A picture that cannot be copied is encoded with --crf %1 there and %2 here.</source>
        <translation type="unfinished">Obraz, którego nie da się skopiować, jest kodowany tam z --crf %1, a tutaj z %2.</translation>
    </message>
    <message>
        <source>The text cannot be moved by more than %1 lines.</source>
        <translation type="unfinished">Tekstu nie da się przesunąć o więcej niż wiersze: %1.</translation>
    </message>
    <message>
        <source>The font size %1 is not a whole number up to %2: the nearest one stands for it.</source>
        <translation type="unfinished">Rozmiar czcionki %1 nie jest liczbą całkowitą do %2: zastępuje go najbliższa.</translation>
    </message>
    <message>
        <source>%1 keeps its own language, title and forced mark.</source>
        <translation type="unfinished">%1: zachowuje swój język, tytuł i oznaczenie wymuszenia.</translation>
    </message>
    <message>
        <source>%1 keeps the language, title and forced mark that its name states.</source>
        <translation type="unfinished">%1: zachowuje język, tytuł i oznaczenie wymuszenia podane w nazwie.</translation>
    </message>
    <message>
        <source>%1 goes out without its mark for the hard of hearing.</source>
        <translation type="unfinished">%1: zapisywane bez oznaczenia dla niesłyszących.</translation>
    </message>
    <message>
        <source>Which of the film&apos;s own tracks players show by themselves stays as in the film.</source>
        <translation type="unfinished">To, które ścieżki filmu odtwarzacze pokazują same, pozostaje jak w filmie.</translation>
    </message>
    <message>
        <source>The files have different encodings: all are read as they are detected.</source>
        <translation type="unfinished">Pliki mają różne kodowania: wszystkie są odczytywane zgodnie z wykryciem.</translation>
    </message>
    <message>
        <source>The tracks are moved by different offsets: none is moved.</source>
        <translation type="unfinished">Ścieżki mają różne przesunięcia: żadna nie jest przesuwana.</translation>
    </message>
    <message>
        <source>Text cannot be moved by more than a day.</source>
        <translation type="unfinished">Tekstu nie da się przesunąć o więcej niż dzień.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionControl</name>
    <message>
        <source>Quit while converting?</source>
        <translation type="unfinished">Zakończyć podczas konwersji?</translation>
    </message>
    <message>
        <source>Films are still being converted. Quitting cancels them; what is finished stays.</source>
        <translation type="unfinished">Trwa konwersja filmów. Zakończenie ją anuluje; to, co gotowe, pozostanie.</translation>
    </message>
    <message>
        <source>Cancel conversions and quit</source>
        <translation type="unfinished">Anuluj konwersje i zakończ</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">Konwertuj dalej</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionQueue</name>
    <message>
        <source>The subtitles of &quot;%1&quot; cannot go out as chosen: choose them again.</source>
        <translation type="unfinished">Napisów filmu „%1” nie da się zapisać zgodnie z wyborem; wybierz je ponownie.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::DropHighlight</name>
    <message>
        <source>Drop films, folders or subtitle files</source>
        <translation type="unfinished">Upuść filmy, foldery lub pliki napisów</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::EmptyPage</name>
    <message>
        <source>Drop films here or choose files</source>
        <translation type="unfinished">Upuść filmy tutaj lub wybierz pliki</translation>
    </message>
    <message>
        <source>Folders work too. Subtitle files beside a film are found automatically.</source>
        <translation type="unfinished">Foldery też działają. Pliki napisów obok filmu są znajdowane automatycznie.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FetchedSubtitles</name>
    <message>
        <source>&quot;%1&quot; was added to &quot;%2&quot;.</source>
        <translation type="unfinished">Dodano „%1” do „%2”.</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle file(s) were added to &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>Dodano %n plik z napisami do „%1”.</numerusform>
            <numerusform>Dodano %n pliki z napisami do „%1”.</numerusform>
            <numerusform>Dodano %n plików z napisami do „%1”.</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">Cofnij</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FileActions</name>
    <message>
        <source>&quot;%1&quot; needs a film to go with: add the film first.</source>
        <translation type="unfinished">„%1” wymaga filmu: najpierw dodaj film.</translation>
    </message>
    <message>
        <source>No new film was found in &quot;%1&quot;: choose a folder with films.</source>
        <translation type="unfinished">W „%1” nie znaleziono nowych filmów: wybierz folder z filmami.</translation>
    </message>
    <message>
        <source>Add films</source>
        <translation type="unfinished">Dodaj filmy</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">Napisy</translation>
    </message>
    <message>
        <source>All files</source>
        <translation type="unfinished">Wszystkie pliki</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Dodaj napisy</translation>
    </message>
    <message>
        <source>Where is &quot;%1&quot; now?</source>
        <translation type="unfinished">Gdzie teraz jest „%1”?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the list already: show another file, or remove &quot;%2&quot; from the list.</source>
        <translation type="unfinished">„%1” jest już na liście: wskaż inny plik albo usuń „%2” z listy.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Film</name>
    <message>
        <source>The film &quot;%1&quot; is not there any more: show where it is now, or remove it from the list.</source>
        <translation type="unfinished">Filmu „%1” już tam nie ma: wskaż, gdzie teraz jest, lub usuń go z listy.</translation>
    </message>
    <message>
        <source>Locate...</source>
        <translation type="unfinished">Wskaż...</translation>
    </message>
    <message>
        <source>No subtitles, as it stands</source>
        <translation type="unfinished">W tej postaci bez napisów</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmActions</name>
    <message>
        <source>Remove a film that is being converted?</source>
        <translation type="unfinished">Usunąć film, który jest konwertowany?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is being converted. Removing it cancels its conversion.</source>
        <translation type="unfinished">„%1” jest konwertowany. Usunięcie anuluje konwersję.</translation>
    </message>
    <message>
        <source>Cancel conversion and remove</source>
        <translation type="unfinished">Anuluj konwersję i usuń</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation type="unfinished">Zachowaj</translation>
    </message>
    <message>
        <source>No file manager could be started: the film is &quot;%1&quot;.</source>
        <translation type="unfinished">Nie udało się uruchomić menedżera plików: film to „%1”.</translation>
    </message>
    <message>
        <source>The command line is in the clipboard.</source>
        <translation type="unfinished">Wiersz poleceń jest w schowku.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmListPane</name>
    <message numerus="yes">
        <source>%n film(s)</source>
        <translation type="unfinished">
            <numerusform>%n film</numerusform>
            <numerusform>%n filmy</numerusform>
            <numerusform>%n filmów</numerusform>
        </translation>
    </message>
    <message>
        <source>Films</source>
        <translation type="unfinished">Filmy</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmWords</name>
    <message>
        <source>Track %1</source>
        <translation type="unfinished">Ścieżka %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n track(s)</source>
        <translation type="unfinished">
            <numerusform>%n ścieżka</numerusform>
            <numerusform>Wszystkie %n ścieżki</numerusform>
            <numerusform>Wszystkie %n ścieżek</numerusform>
        </translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">Bez napisów</translation>
    </message>
    <message>
        <source>Drawn in: %1</source>
        <translation type="unfinished">Wtopiona: %1</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no subtitles that can be read: remove it.</source>
        <translation type="unfinished">Plik „%1” nie zawiera napisów, które da się odczytać: usuń go.</translation>
    </message>
    <message>
        <source>Remove the file</source>
        <translation type="unfinished">Usuń plik</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: draw it in, or leave it out.</source>
        <translation type="unfinished">%1 nie może trafić do %2: wtop ją w obraz lub pomiń.</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: choose %3, draw it in, or leave it out.</source>
        <translation type="unfinished">%1 nie może trafić do %2: wybierz %3, wtop ją w obraz lub pomiń.</translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation type="unfinished">Wybierz %1</translation>
    </message>
    <message>
        <source>%1 cannot be moved in time while it stays a track: draw it in, set its offset to 0, or leave it out.</source>
        <translation type="unfinished">%1 nie może zostać przesunięta w czasie, dopóki jest ścieżką: wtop ją w obraz, ustaw przesunięcie na 0 lub pomiń.</translation>
    </message>
    <message>
        <source>Set its offset to 0</source>
        <translation type="unfinished">Ustaw przesunięcie na 0</translation>
    </message>
    <message>
        <source>%1 cannot be read in another encoding while it stays a track: draw it in, or leave it out.</source>
        <translation type="unfinished">%1 nie może zostać odczytana w innym kodowaniu, dopóki jest ścieżką: wtop ją w obraz lub pomiń.</translation>
    </message>
    <message>
        <source>Draw it in</source>
        <translation type="unfinished">Wtop w obraz</translation>
    </message>
    <message>
        <source>Leave it out</source>
        <translation type="unfinished">Pomiń</translation>
    </message>
    <message>
        <source>%1 is moved by %2 s.</source>
        <translation type="unfinished">%1: zostanie przesunięte o %2 s.</translation>
    </message>
    <message>
        <source>%1 is read as %2.</source>
        <translation type="unfinished">%1: zostanie odczytane jako %2.</translation>
    </message>
    <message>
        <source>%1 goes into %2 as plain text and loses its styles.</source>
        <translation type="unfinished">%1: trafi do %2 jako zwykły tekst i straci swoje style.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished">&amp;Plik</translation>
    </message>
    <message>
        <source>Fil&amp;m</source>
        <translation type="unfinished">Fil&amp;m</translation>
    </message>
    <message>
        <source>Put left-out tracks &amp;back</source>
        <translation type="unfinished">&amp;Przywróć pominięte ścieżki</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation type="unfinished">&amp;Konwersja</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished">&amp;Widok</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished">&amp;Motyw</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished">&amp;Język</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished">Pomo&amp;c</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::NoticeBar</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished">%1 z %2</translation>
    </message>
    <message>
        <source>Previous notice</source>
        <translation type="unfinished">Poprzedni komunikat</translation>
    </message>
    <message>
        <source>Next notice</source>
        <translation type="unfinished">Następny komunikat</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation type="unfinished">Zamknij ten komunikat</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Notices</name>
    <message>
        <source>Try again</source>
        <translation type="unfinished">Spróbuj ponownie</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">Pokaż w folderze</translation>
    </message>
    <message>
        <source>Show the first that failed</source>
        <translation type="unfinished">Pokaż pierwszy nieudany</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::OutputBar</name>
    <message>
        <source>Same as source</source>
        <translation type="unfinished">Jak źródło</translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished">Wysoka</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished">Średnia</translation>
    </message>
    <message>
        <source>Small</source>
        <translation type="unfinished">Mała</translation>
    </message>
    <message>
        <source>The picture is copied unchanged where nothing is drawn into it and the format can carry it; otherwise it is encoded in high quality.</source>
        <translation type="unfinished">Obraz jest kopiowany bez zmian, jeśli nic nie jest w niego wtapiane i format go obsługuje; w przeciwnym razie jest kodowany w wysokiej jakości.</translation>
    </message>
    <message>
        <source>The picture is encoded anew; differences are next to invisible.</source>
        <translation type="unfinished">Obraz jest kodowany na nowo; różnice są prawie niewidoczne.</translation>
    </message>
    <message>
        <source>The picture is encoded anew; good for watching, in a smaller file.</source>
        <translation type="unfinished">Obraz jest kodowany na nowo; dobry do oglądania, w mniejszym pliku.</translation>
    </message>
    <message>
        <source>The picture is encoded anew into a small file; losses are visible.</source>
        <translation type="unfinished">Obraz jest kodowany na nowo do małego pliku; straty są widoczne.</translation>
    </message>
    <message>
        <source>paused</source>
        <translation type="unfinished">wstrzymano</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished">%1, %2</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation type="unfinished">&amp;Wznów</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">W&amp;strzymaj</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">Konwertuj dalej</translation>
    </message>
    <message>
        <source>Wait until you resume</source>
        <translation type="unfinished">Wstrzymaj do wznowienia</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation type="unfinished">&amp;Format</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation type="unfinished">Format wyjściowy</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation type="unfinished">&amp;Jakość</translation>
    </message>
    <message>
        <source>Quality of the picture</source>
        <translation type="unfinished">Jakość obrazu</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished">&amp;Zapisz</translation>
    </message>
    <message>
        <source>Beside each film</source>
        <translation type="unfinished">Obok każdego filmu</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation type="unfinished">Wybierz folder...</translation>
    </message>
    <message>
        <source>&amp;Convert all</source>
        <translation type="unfinished">&amp;Konwertuj wszystkie</translation>
    </message>
    <message>
        <source>Convert all films that are ready</source>
        <translation type="unfinished">Konwertuj wszystkie gotowe filmy</translation>
    </message>
    <message>
        <source>Only &amp;this film</source>
        <translation type="unfinished">Tylko &amp;ten film</translation>
    </message>
    <message>
        <source>Convert the film that is chosen in the list, and no other</source>
        <translation type="unfinished">Konwertuj tylko film wybrany na liście</translation>
    </message>
    <message>
        <source>Progress of all conversions</source>
        <translation type="unfinished">Postęp wszystkich konwersji</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation type="unfinished">A&amp;nuluj</translation>
    </message>
    <message>
        <source>Stop converting; half-written files are removed</source>
        <translation type="unfinished">Zatrzymaj konwersję; niedokończone pliki są usuwane</translation>
    </message>
    <message>
        <source>Where to save</source>
        <translation type="unfinished">Gdzie zapisać</translation>
    </message>
    <message>
        <source>Output folder: %1</source>
        <translation type="unfinished">Folder wyjściowy: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::PreviewPane</name>
    <message>
        <source>Drop films here.</source>
        <translation type="unfinished">Upuść filmy tutaj.</translation>
    </message>
    <message>
        <source>The film is being read.</source>
        <translation type="unfinished">Trwa odczytywanie filmu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no picture, so there is nothing to see. Its sound can be converted.</source>
        <translation type="unfinished">„%1” nie ma obrazu, więc nie ma czego oglądać. Dźwięk można przekonwertować.</translation>
    </message>
    <message>
        <source>There are no subtitles. Add a subtitle file to see it drawn in.</source>
        <translation type="unfinished">Brak napisów. Dodaj plik z napisami, aby zobaczyć je wtopione.</translation>
    </message>
    <message>
        <source>All tracks stay switchable. Choose one to see it drawn in.</source>
        <translation type="unfinished">Ścieżki pozostają przełączane. Wybierz jedną do podglądu.</translation>
    </message>
    <message>
        <source>Choose a track to see it drawn in.</source>
        <translation type="unfinished">Wybierz ścieżkę, aby zobaczyć ją wtopioną.</translation>
    </message>
    <message>
        <source>All tracks stay switchable.</source>
        <translation type="unfinished">Ścieżki pozostają przełączane.</translation>
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
        <translation type="unfinished">Poprzedni napis</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation type="unfinished">Następny napis</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished">Podgląd</translation>
    </message>
    <message>
        <source>Position in the film</source>
        <translation type="unfinished">Położenie w filmie</translation>
    </message>
    <message>
        <source>Where the cues are</source>
        <translation type="unfinished">Gdzie są napisy</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>position / length</comment>
        <translation type="unfinished">%1 / %2</translation>
    </message>
    <message>
        <source>The subtitles are being read.</source>
        <translation type="unfinished">Trwa odczytywanie napisów.</translation>
    </message>
    <message>
        <source>This track has no lines.</source>
        <translation type="unfinished">Ta ścieżka nie ma żadnych kwestii.</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the next one.</source>
        <comment>keys</comment>
        <translation type="unfinished">Tu nie ma kwestii: %1 przechodzi do następnej.</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the one before.</source>
        <comment>keys</comment>
        <translation type="unfinished">Tu nie ma kwestii: %1 przechodzi do poprzedniej.</translation>
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
        <translation type="unfinished">Napisy Blu-ray (*.sup)</translation>
    </message>
    <message>
        <source>Matroska (*.mkv *.mks)</source>
        <translation type="unfinished">Matroska (*.mkv *.mks)</translation>
    </message>
    <message>
        <source>Save the track as</source>
        <translation type="unfinished">Zapisz ścieżkę jako</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; was saved as %2 with %n cue(s)</source>
        <translation type="unfinished">
            <numerusform>„%1” zapisano jako %2: %n napis</numerusform>
            <numerusform>„%1” zapisano jako %2: %n napisy</numerusform>
            <numerusform>„%1” zapisano jako %2: %n napisów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) could not be read as %1</source>
        <translation type="unfinished">
            <numerusform>%n bajtu nie dało się odczytać jako %1</numerusform>
            <numerusform>%n bajtów nie dało się odczytać jako %1</numerusform>
            <numerusform>%n bajtów nie dało się odczytać jako %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) without usable times were left out</source>
        <translation type="unfinished">
            <numerusform>pominięto %n napis bez poprawnych czasów</numerusform>
            <numerusform>pominięto %n napisy bez poprawnych czasów</numerusform>
            <numerusform>pominięto %n napisów bez poprawnych czasów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of no duration were left out</source>
        <translation type="unfinished">
            <numerusform>pominięto %n napis bez czasu trwania</numerusform>
            <numerusform>pominięto %n napisy bez czasu trwania</numerusform>
            <numerusform>pominięto %n napisów bez czasu trwania</numerusform>
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
        <translation type="unfinished">Nazwa „%1” nie mówi, jak zapisać ścieżkę: niech kończy się na .srt, .ass, .sup lub .mkv.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is %3, which no subtitle file can hold: draw it into the picture instead.</source>
        <translation type="unfinished">Ścieżka %1 z „%2” to %3, czego nie pomieści żaden plik napisów: zamiast tego wtop ją w obraz.</translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation type="unfinished">Zapisywanie „%1”</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Anuluj</translation>
    </message>
    <message>
        <source>Save a track</source>
        <translation type="unfinished">Zapisz ścieżkę</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SessionStore</name>
    <message>
        <source>The last list of films, &quot;%1&quot;, cannot be read, so nothing is saved this time: rename or remove that file.</source>
        <translation type="unfinished">Ostatniej listy w „%1” nie da się odczytać i tym razem nic nie zostanie zapisane: zmień nazwę pliku lub go usuń.</translation>
    </message>
    <message>
        <source>The last list of films was written by a newer version of the program; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">Ostatnią listę zapisała nowsza wersja programu; zachowano ją jako „%1”. Otwórz filmy ponownie.</translation>
    </message>
    <message>
        <source>The last list of films is damaged; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">Ostatnia lista jest uszkodzona; zachowano ją jako „%1”. Otwórz filmy ponownie.</translation>
    </message>
    <message>
        <source>The list of films could not be saved in &quot;%1&quot; (%2): check that you may write there.</source>
        <translation type="unfinished">Listy filmów nie dało się zapisać w „%1” (%2): sprawdź, czy masz tam prawo zapisu.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished">Ustawienia</translation>
    </message>
    <message>
        <source>Online service</source>
        <translation type="unfinished">Usługa internetowa</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished">Statystyki</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Anuluj</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsOnlinePage</name>
    <message>
        <source>version 1 of OpenSubtitles, because an API key is set.</source>
        <translation type="unfinished">wersja 1 OpenSubtitles, bo ustawiono klucz API.</translation>
    </message>
    <message>
        <source>version 1 of OpenSubtitles, because the configuration file says so. It answers nobody without an API key: enter one below.</source>
        <translation type="unfinished">wersja 1 OpenSubtitles, bo tak mówi plik konfiguracyjny. Bez klucza API nie odpowiada nikomu: wpisz go poniżej.</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because the configuration file says so. The API key is not used.</source>
        <translation type="unfinished">starszy interfejs OpenSubtitles, bo tak mówi plik konfiguracyjny. Klucz API nie jest używany.</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because no API key is set.</source>
        <translation type="unfinished">starszy interfejs OpenSubtitles, bo nie ustawiono klucza API.</translation>
    </message>
    <message>
        <source>API &amp;key:</source>
        <translation type="unfinished">&amp;Klucz API:</translation>
    </message>
    <message>
        <source>API key</source>
        <translation type="unfinished">Klucz API</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation type="unfinished">P&amp;okaż</translation>
    </message>
    <message>
        <source>Fetched &amp;files:</source>
        <translation type="unfinished">&amp;Pobrane pliki:</translation>
    </message>
    <message>
        <source>Folder for fetched files</source>
        <translation type="unfinished">Folder na pobrane pliki</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation type="unfinished">&amp;Wybierz...</translation>
    </message>
    <message>
        <source>&amp;Usual folder</source>
        <translation type="unfinished">&amp;Zwykły folder</translation>
    </message>
    <message>
        <source>Version 1:</source>
        <translation type="unfinished">Wersja 1:</translation>
    </message>
    <message>
        <source>Older interface:</source>
        <translation type="unfinished">Starszy interfejs:</translation>
    </message>
    <message>
        <source>The addresses are set in the configuration file &quot;%1&quot;.</source>
        <translation type="unfinished">Adresy ustawia się w pliku konfiguracyjnym „%1”.</translation>
    </message>
    <message>
        <source>In use: %1</source>
        <translation type="unfinished">W użyciu: %1</translation>
    </message>
    <message>
        <source>From the next start of the program on: %1</source>
        <translation type="unfinished">Od następnego uruchomienia programu: %1</translation>
    </message>
    <message>
        <source>Folder for fetched subtitle files</source>
        <translation type="unfinished">Folder na pobrane pliki z napisami</translation>
    </message>
    <message>
        <source>It comes from the account pages of opensubtitles.com, is kept in the configuration file, and is used from the next start on.</source>
        <translation type="unfinished">Pochodzi ze stron konta w opensubtitles.com, jest przechowywany w pliku konfiguracyjnym i używany od następnego uruchomienia.</translation>
    </message>
    <message>
        <source>The variable %1 of the environment sets it.</source>
        <translation type="unfinished">Ustawia go zmienna środowiskowa %1.</translation>
    </message>
    <message>
        <source>This is no API key: a key has no blanks and no special characters. Copy it again.</source>
        <translation type="unfinished">To nie jest klucz API: klucz nie ma spacji ani znaków specjalnych. Skopiuj go jeszcze raz.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsStatisticsPage</name>
    <message>
        <source>If you agree, the program counts how the online search is used: from where it is opened, which fields are filled in, how many searches find something, nothing or fail, and how many files are fetched. Names, folders and what you type are never recorded. The record stays on this computer; it is sent to nobody.</source>
        <translation type="unfinished">Jeśli się zgodzisz, program będzie zliczał, jak używane jest wyszukiwanie w internecie: skąd je otwarto, które pola wypełniono, ile wyszukiwań coś znajduje, nic nie znajduje lub kończy się błędem i ile plików pobrano. Nazwy, foldery i to, co wpisujesz, nigdy nie są zapisywane. Zapis pozostaje na tym komputerze; nie jest nikomu wysyłany.</translation>
    </message>
    <message>
        <source>&amp;Count how the online search is used</source>
        <translation type="unfinished">&amp;Zliczaj, jak używane jest wyszukiwanie w internecie</translation>
    </message>
    <message>
        <source>&amp;Recorded in &quot;%1&quot;:</source>
        <translation type="unfinished">Zapisano &amp;w „%1”:</translation>
    </message>
    <message>
        <source>Nothing has been recorded.</source>
        <translation type="unfinished">Nic nie zapisano.</translation>
    </message>
    <message>
        <source>What has been recorded</source>
        <translation type="unfinished">Co zostało zapisane</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">&amp;Usuń</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ShortcutsDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished">Skróty klawiszowe</translation>
    </message>
    <message>
        <source>In the list: subtitles of the film</source>
        <translation type="unfinished">Na liście: napisy filmu</translation>
    </message>
    <message>
        <source>In the list: menu of the film</source>
        <translation type="unfinished">Na liście: menu filmu</translation>
    </message>
    <message>
        <source>Close what is open</source>
        <translation type="unfinished">Zamknij to, co otwarte</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpPane</name>
    <message>
        <source>Help with the text</source>
        <translation type="unfinished">Pomoc dotycząca tekstu</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpTexts</name>
    <message>
        <source>The file itself says that it is %1.</source>
        <translation type="unfinished">Plik sam podaje, że to %1.</translation>
    </message>
    <message>
        <source>Detected: %1, certain.</source>
        <translation type="unfinished">Wykryto: %1, na pewno.</translation>
    </message>
    <message>
        <source>Nothing tells the encoding; %1 is a guess.</source>
        <translation type="unfinished">Nic nie zdradza kodowania; %1 to przypuszczenie.</translation>
    </message>
    <message>
        <source>Detected: %1, very sure (%2).</source>
        <translation type="unfinished">Wykryto: %1, bardzo pewne (%2).</translation>
    </message>
    <message>
        <source>Detected: %1, fairly sure (%2).</source>
        <translation type="unfinished">Wykryto: %1, dość pewne (%2).</translation>
    </message>
    <message>
        <source>Detected: %1, not sure (%2).</source>
        <translation type="unfinished">Wykryto: %1, niepewne (%2).</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) cannot be read in this encoding and show as &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>%n bajtu nie da się odczytać w tym kodowaniu, widać go jako „%1”.</numerusform>
            <numerusform>%n bajtów nie da się odczytać w tym kodowaniu, widać je jako „%1”.</numerusform>
            <numerusform>%n bajtów nie da się odczytać w tym kodowaniu, widać je jako „%1”.</numerusform>
        </translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; is not installed; &quot;%2&quot; stands in.</source>
        <translation type="unfinished">Czcionka „%1” nie jest zainstalowana; zastępuje ją „%2”.</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">japoński</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation type="unfinished">chiński</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">koreański</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation type="unfinished">cyrylica</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">grecki</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">hebrajski</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">arabski</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">tajski</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation type="unfinished">dewanagari</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; lacks %n character(s) of this text (%2): &quot;%3&quot; stands in.</source>
        <translation type="unfinished">
            <numerusform>W „%1” brakuje %n znaku tego tekstu (%2): zastępuje go „%3”.</numerusform>
            <numerusform>W „%1” brakuje %n znaków tego tekstu (%2): zastępuje je „%3”.</numerusform>
            <numerusform>W „%1” brakuje %n znaków tego tekstu (%2): zastępuje je „%3”.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No installed font has %n character(s) of this text (%1); they show as empty boxes.</source>
        <translation type="unfinished">
            <numerusform>Żadna zainstalowana czcionka nie ma %n znaku tego tekstu (%1); widać go jako puste pole.</numerusform>
            <numerusform>Żadna zainstalowana czcionka nie ma %n znaków tego tekstu (%1); widać je jako puste pola.</numerusform>
            <numerusform>Żadna zainstalowana czcionka nie ma %n znaków tego tekstu (%1); widać je jako puste pola.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpView</name>
    <message>
        <source>It could also read:</source>
        <translation type="unfinished">Można też odczytać:</translation>
    </message>
    <message>
        <source>First lines of the text</source>
        <translation type="unfinished">Pierwsze wiersze tekstu</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackActions</name>
    <message>
        <source>Quit while saving?</source>
        <translation type="unfinished">Zakończyć podczas zapisywania?</translation>
    </message>
    <message>
        <source>A track is still being saved. Quitting cancels that, and no file is written.</source>
        <translation type="unfinished">Trwa zapisywanie ścieżki. Zakończenie je anuluje i żaden plik nie powstanie.</translation>
    </message>
    <message>
        <source>Cancel saving and quit</source>
        <translation type="unfinished">Anuluj zapisywanie i zakończ</translation>
    </message>
    <message>
        <source>Go on saving</source>
        <translation type="unfinished">Zapisuj dalej</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackMenu</name>
    <message>
        <source>&amp;Draw in</source>
        <translation type="unfinished">&amp;Wtop w obraz</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">&amp;Usuń z listy</translation>
    </message>
    <message>
        <source>&amp;Leave out of the output</source>
        <translation type="unfinished">&amp;Pomiń w wyniku</translation>
    </message>
    <message>
        <source>Language, &amp;title and marks...</source>
        <translation type="unfinished">Język, &amp;tytuł i oznaczenia...</translation>
    </message>
    <message>
        <source>&amp;Put back</source>
        <translation type="unfinished">&amp;Przywróć</translation>
    </message>
    <message>
        <source>&amp;Save as a file...</source>
        <translation type="unfinished">&amp;Zapisz jako plik...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackPropertiesDialog</name>
    <message>
        <source>Subtitle track</source>
        <translation type="unfinished">Ścieżka napisów</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished">&amp;Język:</translation>
    </message>
    <message>
        <source>Not stated</source>
        <translation type="unfinished">Nie podano</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">Język</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation type="unfinished">&amp;Tytuł:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">Tytuł</translation>
    </message>
    <message>
        <source>On by &amp;default</source>
        <translation type="unfinished">&amp;Domyślnie włączona</translation>
    </message>
    <message>
        <source>Players show this track unless another one is chosen</source>
        <translation type="unfinished">Odtwarzacze pokazują tę ścieżkę, jeśli nie wybrano innej</translation>
    </message>
    <message>
        <source>&amp;Forced</source>
        <translation type="unfinished">&amp;Wymuszona</translation>
    </message>
    <message>
        <source>Only what has to be read in any case: signs and foreign speech</source>
        <translation type="unfinished">Tylko to, co zawsze trzeba przeczytać: napisy w obrazie i obce wypowiedzi</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Anuluj</translation>
    </message>
    <message>
        <source>This language is not known: choose one from the list, or write its code, such as &quot;en&quot; or &quot;pt-br&quot;.</source>
        <translation type="unfinished">Ten język jest nieznany: wybierz jeden z listy lub wpisz jego kod, na przykład „en” albo „pt-br”.</translation>
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
        <translation type="unfinished">Kolor %1</translation>
    </message>
    <message>
        <source>Choose a color</source>
        <translation type="unfinished">Wybierz kolor</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Afrikaans</source>
        <translation type="unfinished">afrikaans</translation>
    </message>
    <message>
        <source>Albanian</source>
        <translation type="unfinished">albański</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">arabski</translation>
    </message>
    <message>
        <source>Aragonese</source>
        <translation type="unfinished">aragoński</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation type="unfinished">ormiański</translation>
    </message>
    <message>
        <source>Asturian</source>
        <translation type="unfinished">asturyjski</translation>
    </message>
    <message>
        <source>Azerbaijani</source>
        <translation type="unfinished">azerbejdżański</translation>
    </message>
    <message>
        <source>Basque</source>
        <translation type="unfinished">baskijski</translation>
    </message>
    <message>
        <source>Belarusian</source>
        <translation type="unfinished">białoruski</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation type="unfinished">bengalski</translation>
    </message>
    <message>
        <source>Bosnian</source>
        <translation type="unfinished">bośniacki</translation>
    </message>
    <message>
        <source>Breton</source>
        <translation type="unfinished">bretoński</translation>
    </message>
    <message>
        <source>Bulgarian</source>
        <translation type="unfinished">bułgarski</translation>
    </message>
    <message>
        <source>Burmese</source>
        <translation type="unfinished">birmański</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation type="unfinished">kataloński</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation type="unfinished">chiński (uproszczony)</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation type="unfinished">chiński (tradycyjny)</translation>
    </message>
    <message>
        <source>Chinese (Bilingual)</source>
        <translation type="unfinished">chiński (dwujęzyczny)</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation type="unfinished">chorwacki</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation type="unfinished">czeski</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation type="unfinished">duński</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation type="unfinished">niderlandzki</translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished">angielski</translation>
    </message>
    <message>
        <source>Esperanto</source>
        <translation type="unfinished">esperanto</translation>
    </message>
    <message>
        <source>Estonian</source>
        <translation type="unfinished">estoński</translation>
    </message>
    <message>
        <source>Extremaduran</source>
        <translation type="unfinished">estremadurski</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation type="unfinished">fiński</translation>
    </message>
    <message>
        <source>French</source>
        <translation type="unfinished">francuski</translation>
    </message>
    <message>
        <source>Galician</source>
        <translation type="unfinished">galicyjski</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation type="unfinished">gruziński</translation>
    </message>
    <message>
        <source>German</source>
        <translation type="unfinished">niemiecki</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">grecki</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">hebrajski</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation type="unfinished">hindi</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation type="unfinished">węgierski</translation>
    </message>
    <message>
        <source>Icelandic</source>
        <translation type="unfinished">islandzki</translation>
    </message>
    <message>
        <source>Indonesian</source>
        <translation type="unfinished">indonezyjski</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation type="unfinished">włoski</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">japoński</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation type="unfinished">kannada</translation>
    </message>
    <message>
        <source>Kazakh</source>
        <translation type="unfinished">kazachski</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation type="unfinished">khmerski</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">koreański</translation>
    </message>
    <message>
        <source>Kurdish</source>
        <translation type="unfinished">kurdyjski</translation>
    </message>
    <message>
        <source>Latvian</source>
        <translation type="unfinished">łotewski</translation>
    </message>
    <message>
        <source>Lithuanian</source>
        <translation type="unfinished">litewski</translation>
    </message>
    <message>
        <source>Luxembourgish</source>
        <translation type="unfinished">luksemburski</translation>
    </message>
    <message>
        <source>Macedonian</source>
        <translation type="unfinished">macedoński</translation>
    </message>
    <message>
        <source>Malay</source>
        <translation type="unfinished">malajski</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation type="unfinished">malajalam</translation>
    </message>
    <message>
        <source>Manipuri</source>
        <translation type="unfinished">manipuri</translation>
    </message>
    <message>
        <source>Mongolian</source>
        <translation type="unfinished">mongolski</translation>
    </message>
    <message>
        <source>Montenegrin</source>
        <translation type="unfinished">czarnogórski</translation>
    </message>
    <message>
        <source>Northern Sami</source>
        <translation type="unfinished">północnolapoński</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation type="unfinished">norweski</translation>
    </message>
    <message>
        <source>Occitan</source>
        <translation type="unfinished">oksytański</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation type="unfinished">perski</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation type="unfinished">polski</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation type="unfinished">portugalski</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation type="unfinished">portugalski (Brazylia)</translation>
    </message>
    <message>
        <source>Portuguese (Mozambique)</source>
        <translation type="unfinished">portugalski (Mozambik)</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation type="unfinished">rumuński</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation type="unfinished">rosyjski</translation>
    </message>
    <message>
        <source>Serbian</source>
        <translation type="unfinished">serbski</translation>
    </message>
    <message>
        <source>Sinhalese</source>
        <translation type="unfinished">syngaleski</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation type="unfinished">słowacki</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation type="unfinished">słoweński</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation type="unfinished">hiszpański</translation>
    </message>
    <message>
        <source>Swahili</source>
        <translation type="unfinished">suahili</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation type="unfinished">szwedzki</translation>
    </message>
    <message>
        <source>Syriac</source>
        <translation type="unfinished">syryjski</translation>
    </message>
    <message>
        <source>Tagalog</source>
        <translation type="unfinished">tagalski</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation type="unfinished">tamilski</translation>
    </message>
    <message>
        <source>Telugu</source>
        <translation type="unfinished">telugu</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">tajski</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation type="unfinished">turecki</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation type="unfinished">ukraiński</translation>
    </message>
    <message>
        <source>Urdu</source>
        <translation type="unfinished">urdu</translation>
    </message>
    <message>
        <source>Uzbek</source>
        <translation type="unfinished">uzbecki</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation type="unfinished">wietnamski</translation>
    </message>
</context>
<context>
    <name>LanguageSelector</name>
    <message>
        <source>All languages</source>
        <translation type="unfinished">Wszystkie języki</translation>
    </message>
</context>
<context>
    <name>NumberTexts</name>
    <message>
        <source>%1%</source>
        <extracomment>Some languages part the sign from the number by a blank that does not break.</extracomment>
        <translation type="unfinished">%1%</translation>
    </message>
</context>
<context>
    <name>OnlineDownloaderInteractor</name>
    <message>
        <source>No online subtitle service is set up; add its API key to the settings.</source>
        <translation type="unfinished">Nie skonfigurowano internetowej usługi z napisami; dodaj jej klucz API do ustawień.</translation>
    </message>
    <message>
        <source> (it says: &quot;%1&quot;)</source>
        <translation type="unfinished"> (odpowiedział: „%1”)</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again after %3.</source>
        <translation type="unfinished">Limit pobrań w serwisie %1 został wyczerpany%2; pobieraj ponownie po tym czasie: %3.</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again in %3.</source>
        <translation type="unfinished">Limit pobrań w serwisie %1 został wyczerpany%2; pobieraj ponownie po upływie: %3.</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again tomorrow.</source>
        <translation type="unfinished">Limit pobrań w serwisie %1 został wyczerpany%2; pobieraj ponownie jutro.</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; wait %3 s and try again.</source>
        <translation type="unfinished">Serwis %1 otrzymał zbyt wiele zapytań%2; odczekaj %3 s i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; try again in a minute.</source>
        <translation type="unfinished">Serwis %1 otrzymał zbyt wiele zapytań%2; spróbuj ponownie za minutę.</translation>
    </message>
    <message>
        <source>%1 did not accept the API key%2; set a valid one in the settings, as KORVEX_OPENSUBTITLES_API_KEY in the environment or as api_key in the configuration file.</source>
        <translation type="unfinished">Serwis %1 nie przyjął klucza API%2; ustaw prawidłowy w ustawieniach, jako KORVEX_OPENSUBTITLES_API_KEY w środowisku lub jako api_key w pliku konfiguracyjnym.</translation>
    </message>
    <message>
        <source>%1 sent something else in place of the subtitle%2; choose another one, or try again later.</source>
        <translation type="unfinished">Serwis %1 przysłał coś innego zamiast napisów%2; wybierz inne lub spróbuj później.</translation>
    </message>
    <message>
        <source>%1 is down or overloaded at the moment%2; try again later.</source>
        <translation type="unfinished">Serwis %1 jest teraz niedostępny lub przeciążony%2; spróbuj później.</translation>
    </message>
    <message>
        <source>The subtitle could not be unpacked or stored in &quot;%1&quot;%2; choose another subtitle, or make sure that the folder may be written and has room.</source>
        <translation type="unfinished">Nie udało się rozpakować napisów lub zapisać ich w „%1”%2; wybierz inne napisy lub upewnij się, że w folderze wolno zapisywać i jest w nim miejsce.</translation>
    </message>
    <message>
        <source>%1 refused the request%2; ask for something else, or try again later.</source>
        <translation type="unfinished">Serwis %1 odrzucił żądanie%2; poproś o coś innego lub spróbuj później.</translation>
    </message>
    <message>
        <source>%1 points to other addresses without end, or to one that may not be used%2; check the address that is set for it, or try again later.</source>
        <translation type="unfinished">Serwis %1 bez końca odsyła pod inne adresy lub pod taki, którego nie wolno użyć%2; sprawdź ustawiony dla niego adres lub spróbuj później.</translation>
    </message>
    <message>
        <source>The answer of %1 was empty, broke off or was too large; try again later.</source>
        <translation type="unfinished">Odpowiedź serwisu %1 była pusta, urwała się lub była za duża; spróbuj później.</translation>
    </message>
    <message>
        <source>The answer of %1 cannot be used%2; try again later.</source>
        <translation type="unfinished">Odpowiedzi serwisu %1 nie można użyć%2; spróbuj później.</translation>
    </message>
    <message>
        <source>%1 could not answer%2; try again later.</source>
        <translation type="unfinished">Serwis %1 nie mógł odpowiedzieć%2; spróbuj później.</translation>
    </message>
    <message>
        <source>%1 could not answer%2; check the address that is set for it and the proxy, or try again later.</source>
        <translation type="unfinished">Serwis %1 nie mógł odpowiedzieć%2; sprawdź ustawiony dla niego adres i serwer proxy lub spróbuj później.</translation>
    </message>
    <message>
        <source>The connection to %1 failed%2; check the proxy and whether the service&apos;s certificate is valid, or try again later.</source>
        <translation type="unfinished">Połączenie z serwisem %1 nie powiodło się%2; sprawdź serwer proxy i ważność certyfikatu serwisu lub spróbuj później.</translation>
    </message>
    <message>
        <source>Another search or download has not ended yet; try again in a moment.</source>
        <translation type="unfinished">Inne wyszukiwanie lub pobieranie jeszcze trwa; spróbuj ponownie za chwilę.</translation>
    </message>
    <message>
        <source>%1 cannot look for this%2; type a title or an IMDb id.</source>
        <translation type="unfinished">Serwis %1 nie może tego wyszukać%2; wpisz tytuł lub numer IMDb.</translation>
    </message>
    <message>
        <source>%1 cannot search in this way; look for a title or an IMDb id.</source>
        <translation type="unfinished">Serwis %1 nie może szukać w ten sposób; szukaj tytułu lub numeru IMDb.</translation>
    </message>
    <message>
        <source>%1 cannot be reached or did not answer in time; check the connection to the network and try again.</source>
        <translation type="unfinished">Serwis %1 jest nieosiągalny lub nie odpowiedział na czas; sprawdź połączenie z siecią i spróbuj ponownie.</translation>
    </message>
</context>
<context>
    <name>OnlineSearchDialogPresenter</name>
    <message>
        <source>same file</source>
        <translation type="unfinished">ten sam plik</translation>
    </message>
    <message>
        <source>same release group</source>
        <translation type="unfinished">ta sama grupa</translation>
    </message>
    <message>
        <source>same source</source>
        <translation type="unfinished">to samo źródło</translation>
    </message>
    <message>
        <source>same resolution</source>
        <translation type="unfinished">ta sama rozdzielczość</translation>
    </message>
    <message>
        <source>same episode</source>
        <translation type="unfinished">ten sam odcinek</translation>
    </message>
    <message>
        <source>another episode</source>
        <translation type="unfinished">inny odcinek</translation>
    </message>
    <message>
        <source>another film</source>
        <translation type="unfinished">inny film</translation>
    </message>
    <message>
        <source>Type a title or an IMDb id to search for.</source>
        <translation type="unfinished">Wpisz tytuł lub numer IMDb, którego szukasz.</translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and digits, or leave it empty.</source>
        <translation type="unfinished">To nie jest numer IMDb: wpisz „tt” i cyfry lub pozostaw pole puste.</translation>
    </message>
    <message>
        <source>The season is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">Sezon nie jest liczbą: wpisz cyfry lub pozostaw pole puste.</translation>
    </message>
    <message>
        <source>The episode is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">Odcinek nie jest liczbą: wpisz cyfry lub pozostaw pole puste.</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">Szukanie...</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n found so far</source>
        <translation type="unfinished">
            <numerusform>Szukanie... znaleziono dotąd: %n</numerusform>
            <numerusform>Szukanie... znaleziono dotąd: %n</numerusform>
            <numerusform>Szukanie... znaleziono dotąd: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>Znaleziono %n napisy.</numerusform>
            <numerusform>Znaleziono %n napisy.</numerusform>
            <numerusform>Znaleziono %n napisów.</numerusform>
        </translation>
    </message>
    <message>
        <source>check the spelling of the title</source>
        <translation type="unfinished">sprawdź pisownię tytułu</translation>
    </message>
    <message>
        <source>type the title</source>
        <translation type="unfinished">wpisz tytuł</translation>
    </message>
    <message>
        <source>type the film&apos;s IMDb id</source>
        <translation type="unfinished">wpisz numer IMDb filmu</translation>
    </message>
    <message>
        <source>check the IMDb id</source>
        <translation type="unfinished">sprawdź numer IMDb</translation>
    </message>
    <message>
        <source>leave out the season and the episode</source>
        <translation type="unfinished">pomiń sezon i odcinek</translation>
    </message>
    <message>
        <source>choose other languages</source>
        <translation type="unfinished">wybierz inne języki</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished">%1 lub %2</translation>
    </message>
    <message>
        <source>No subtitles were found: %1.</source>
        <translation type="unfinished">Nie znaleziono napisów: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Downloading %n subtitle(s)...</source>
        <translation type="unfinished">
            <numerusform>Pobieranie napisów (%n)...</numerusform>
            <numerusform>Pobieranie napisów (%n)...</numerusform>
            <numerusform>Pobieranie napisów (%n)...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) added to the film.</source>
        <translation type="unfinished">
            <numerusform>Dodano do filmu %n napisy.</numerusform>
            <numerusform>Dodano do filmu %n napisy.</numerusform>
            <numerusform>Dodano do filmu %n napisów.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n download(s) left.</source>
        <translation type="unfinished">
            <numerusform>Zostało %n pobranie.</numerusform>
            <numerusform>Zostały %n pobrania.</numerusform>
            <numerusform>Zostało %n pobrań.</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for the last request to end...</source>
        <translation type="unfinished">Oczekiwanie na koniec ostatniego żądania...</translation>
    </message>
    <message>
        <source>The search was cancelled.</source>
        <translation type="unfinished">Wyszukiwanie anulowano.</translation>
    </message>
    <message numerus="yes">
        <source>The search was cancelled; %n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>Wyszukiwanie anulowano; znaleziono %n napisy.</numerusform>
            <numerusform>Wyszukiwanie anulowano; znaleziono %n napisy.</numerusform>
            <numerusform>Wyszukiwanie anulowano; znaleziono %n napisów.</numerusform>
        </translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation type="unfinished">Pobieranie anulowano.</translation>
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
        <translation type="unfinished">Maszynowe</translation>
    </message>
    <message>
        <source>Translated by a machine</source>
        <translation type="unfinished">Przetłumaczone maszynowo</translation>
    </message>
    <message>
        <source>Foreign</source>
        <comment>short mark</comment>
        <translation type="unfinished">Obcy język</translation>
    </message>
    <message>
        <source>Only what is spoken in a foreign language</source>
        <translation type="unfinished">Tylko to, co mówi się w obcym języku</translation>
    </message>
    <message>
        <source>HI</source>
        <comment>short mark</comment>
        <translation type="unfinished">SDH</translation>
    </message>
    <message>
        <source>For the hearing impaired: sounds are described</source>
        <translation type="unfinished">Dla niesłyszących: dźwięki są opisane</translation>
    </message>
    <message>
        <source>Trusted</source>
        <comment>short mark</comment>
        <translation type="unfinished">Zaufane</translation>
    </message>
    <message>
        <source>From an uploader whom the service trusts</source>
        <translation type="unfinished">Od osoby, której serwis ufa</translation>
    </message>
    <message>
        <source>CD %1/%2</source>
        <comment>short mark</comment>
        <translation type="unfinished">CD %1/%2</translation>
    </message>
    <message>
        <source>Part %1 of %2; all parts are downloaded</source>
        <translation type="unfinished">Część %1 z %2; pobierane są wszystkie części</translation>
    </message>
    <message>
        <source>HD</source>
        <comment>short mark</comment>
        <translation type="unfinished">HD</translation>
    </message>
    <message>
        <source>Made for a release in high definition</source>
        <translation type="unfinished">Do wydania w wysokiej rozdzielczości</translation>
    </message>
    <message>
        <source>Made for this file or release</source>
        <translation type="unfinished">Do tego pliku lub wydania</translation>
    </message>
    <message>
        <source>For this film, perhaps for another cut of it</source>
        <translation type="unfinished">Do tego filmu, może do innej wersji montażowej</translation>
    </message>
    <message>
        <source>For another film or episode</source>
        <translation type="unfinished">Do innego filmu lub odcinka</translation>
    </message>
    <message>
        <source>It is not known how well it fits</source>
        <translation type="unfinished">Nie wiadomo, czy pasują</translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished">Nazwa</translation>
    </message>
    <message>
        <source>Match</source>
        <translation type="unfinished">Zgodność</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">Język</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation type="unfinished">Oznaczenia</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation type="unfinished">Pobrania</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation type="unfinished">Ocena</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation type="unfinished">Przesłano</translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished">Format</translation>
    </message>
    <message>
        <source>Release: %1</source>
        <translation type="unfinished">Wydanie: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of 10, by %n vote(s)</source>
        <translation type="unfinished">
            <numerusform>%1 z 10, %n głos</numerusform>
            <numerusform>%1 z 10, %n głosy</numerusform>
            <numerusform>%1 z 10, %n głosów</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SubtitleCollection</name>
    <message>
        <source>Subtitle tracks</source>
        <translation type="unfinished">Ścieżki napisów</translation>
    </message>
    <message>
        <source>Current choice</source>
        <translation type="unfinished">Bieżący wybór</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">Bez napisów</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">Zachowaj wszystkie ścieżki (softsub)</translation>
    </message>
    <message>
        <source>There are no subtitle tracks yet. Add a subtitle file first.</source>
        <translation type="unfinished">Nie ma jeszcze ścieżek napisów. Najpierw dodaj plik z napisami.</translation>
    </message>
    <message>
        <source>The chosen output format cannot carry these tracks. Choose another format, or burn one track in.</source>
        <translation type="unfinished">Wybrany format wyjściowy nie obsługuje tych ścieżek. Wybierz inny format lub wtop jedną ścieżkę.</translation>
    </message>
    <message>
        <source>Save this track to a file (Ctrl+S)</source>
        <translation type="unfinished">Zapisz tę ścieżkę do pliku (Ctrl+S)</translation>
    </message>
    <message>
        <source>Save to a file: %1</source>
        <translation type="unfinished">Zapisz do pliku: %1</translation>
    </message>
</context>
<context>
    <name>SubtitleCollectionInteractor</name>
    <message>
        <source>No subtitles were found in &quot;%1&quot;: take it out of the list and choose an SRT, ASS or SSA file.</source>
        <translation type="unfinished">W „%1” nie znaleziono napisów: usuń plik z listy i wybierz plik SRT, ASS lub SSA.</translation>
    </message>
</context>
<context>
    <name>SubtitleSettings</name>
    <message>
        <source>Auto</source>
        <translation type="unfinished">Automatycznie</translation>
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
        <translation type="unfinished">Środkowo- i wschodnioeuropejskie (Windows-1250)</translation>
    </message>
    <message>
        <source>Russian (KOI8-R)</source>
        <translation type="unfinished">Rosyjskie (KOI8-R)</translation>
    </message>
    <message>
        <source>Ukrainian, Belarusian (KOI8-U/RU)</source>
        <translation type="unfinished">Ukraińskie, białoruskie (KOI8-U/RU)</translation>
    </message>
    <message>
        <source>Esperanto, Galician, Maltese, Turkish (ISO-8859-3)</source>
        <translation type="unfinished">Esperanto, galicyjskie, maltańskie, tureckie (ISO-8859-3)</translation>
    </message>
    <message>
        <source>Modern Greek (ISO-8859-7)</source>
        <translation type="unfinished">Nowogreckie (ISO-8859-7)</translation>
    </message>
    <message>
        <source>Hebrew charsets (ISO-8859-8)</source>
        <translation type="unfinished">Hebrajskie (ISO-8859-8)</translation>
    </message>
    <message>
        <source>Turkish (ISO-8859-9)</source>
        <translation type="unfinished">Tureckie (ISO-8859-9)</translation>
    </message>
    <message>
        <source>Baltic (ISO-8859-13)</source>
        <translation type="unfinished">Bałtyckie (ISO-8859-13)</translation>
    </message>
    <message>
        <source>Western European Languages with Euro (ISO-8859-15)</source>
        <translation type="unfinished">Zachodnioeuropejskie z euro (ISO-8859-15)</translation>
    </message>
    <message>
        <source>Japanese charsets (SHIFT-JIS/CP932)</source>
        <translation type="unfinished">Japońskie (SHIFT-JIS/CP932)</translation>
    </message>
    <message>
        <source>Simplified Chinese charset (CP936)</source>
        <translation type="unfinished">Chińskie uproszczone (CP936)</translation>
    </message>
    <message>
        <source>Traditional Chinese charset (BIG5)</source>
        <translation type="unfinished">Chińskie tradycyjne (BIG5)</translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished">Domyślnie</translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished">U góry</translation>
    </message>
    <message>
        <source>Vertical center</source>
        <translation type="unfinished">Środek w pionie</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished">U dołu</translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished">Z lewej</translation>
    </message>
    <message>
        <source>Horizontal center</source>
        <translation type="unfinished">Środek w poziomie</translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished">Z prawej</translation>
    </message>
</context>
<context>
    <name>TimeTexts</name>
    <message>
        <source>less than a minute left</source>
        <translation type="unfinished">została mniej niż minuta</translation>
    </message>
    <message numerus="yes">
        <source>%n min left</source>
        <translation type="unfinished">
            <numerusform>zostało %n min</numerusform>
            <numerusform>zostało %n min</numerusform>
            <numerusform>zostało %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h left</source>
        <translation type="unfinished">
            <numerusform>zostało %n godz</numerusform>
            <numerusform>zostało %n godz</numerusform>
            <numerusform>zostało %n godz</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 h %n min left</source>
        <translation type="unfinished">
            <numerusform>zostało %1 godz %n min</numerusform>
            <numerusform>zostało %1 godz %n min</numerusform>
            <numerusform>zostało %1 godz %n min</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WarningWords</name>
    <message>
        <source>Track %1 of &quot;%2&quot; (a second picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">Ścieżkę %1 z „%2” (drugi obraz, %3) pominięto, bo %4 nie może jej zawierać.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a cover picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">Ścieżkę %1 z „%2” (okładka, %3) pominięto, bo %4 nie może jej zawierać.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a further sound track, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">Ścieżkę %1 z „%2” (kolejna ścieżka dźwiękowa, %3) pominięto, bo %4 nie może jej zawierać.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a sound track, %3) was left out, because nothing in it can be read.</source>
        <translation type="unfinished">Ścieżkę %1 z „%2” (ścieżka dźwiękowa, %3) pominięto, bo nie można w niej nic odczytać.</translation>
    </message>
    <message>
        <source>The picture of &quot;%1&quot; was encoded anew, because %2 cannot hold it as it is.</source>
        <translation type="unfinished">Obraz z „%1” zakodowano na nowo, bo %2 nie może go zawierać w obecnej postaci.</translation>
    </message>
    <message>
        <source>Files attached to &quot;%1&quot;, for example fonts, were left out, because %2 cannot hold them.</source>
        <translation type="unfinished">Pliki dołączone do „%1”, na przykład czcionki, pominięto, bo %2 nie może ich zawierać.</translation>
    </message>
    <message>
        <source>A subtitle track was left out, because its file is missing.</source>
        <translation type="unfinished">Pominięto ścieżkę napisów, bo brakuje jej pliku.</translation>
    </message>
    <message>
        <source>The subtitle track &quot;%1&quot; was left out, because its file is missing.</source>
        <translation type="unfinished">Pominięto ścieżkę napisów „%1”, bo brakuje jej pliku.</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of &quot;%1&quot; could not be read as %2 and show as &quot;%3&quot;: check the encoding.</source>
        <translation type="unfinished">
            <numerusform>%n bajtu z „%1” nie udało się odczytać jako %2 i widnieje on jako „%3”: sprawdź kodowanie.</numerusform>
            <numerusform>%n bajtów z „%1” nie udało się odczytać jako %2 i widnieją one jako „%3”: sprawdź kodowanie.</numerusform>
            <numerusform>%n bajtów z „%1” nie udało się odczytać jako %2 i widnieją one jako „%3”: sprawdź kodowanie.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>Pominięto %n napis z „%1” bez użytecznych czasów.</numerusform>
            <numerusform>Pominięto %n napisy z „%1” bez użytecznych czasów.</numerusform>
            <numerusform>Pominięto %n napisów z „%1” bez użytecznych czasów.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; of no duration were left out.</source>
        <translation type="unfinished">
            <numerusform>Pominięto %n napis z „%1” bez czasu trwania.</numerusform>
            <numerusform>Pominięto %n napisy z „%1” bez czasu trwania.</numerusform>
            <numerusform>Pominięto %n napisów z „%1” bez czasu trwania.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some pictures of &quot;%1&quot; are damaged; they may be missing or look wrong.</source>
        <translation type="unfinished">Niektóre obrazy z „%1” są uszkodzone; może ich brakować lub mogą wyglądać źle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; breaks off after %2 of %3, and so does the new film.</source>
        <translation type="unfinished">„%1” urywa się po %2 z %3, a nowy film tak samo.</translation>
    </message>
</context>
</TS>
