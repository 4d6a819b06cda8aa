<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n film(s) converted.</source>
        <translation type="unfinished">
            <numerusform>Преобразован %n фильм.</numerusform>
            <numerusform>Преобразовано %n фильма.</numerusform>
            <numerusform>Преобразовано %n фильмов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) with remarks: %1</source>
        <translation type="unfinished">
            <numerusform>%n фильм с замечаниями: %1</numerusform>
            <numerusform>%n фильма с замечаниями: %1</numerusform>
            <numerusform>%n фильмов с замечаниями: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) could not be converted: %1</source>
        <translation type="unfinished">
            <numerusform>Не удалось преобразовать %n фильм: %1</numerusform>
            <numerusform>Не удалось преобразовать %n фильма: %1</numerusform>
            <numerusform>Не удалось преобразовать %n фильмов: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) cancelled.</source>
        <translation type="unfinished">
            <numerusform>Отменён %n фильм.</numerusform>
            <numerusform>Отменено %n фильма.</numerusform>
            <numerusform>Отменено %n фильмов.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConversionTexts</name>
    <message>
        <source>%1 holds no cues and was left out.</source>
        <translation type="unfinished">%1: нет субтитров, дорожка исключена.</translation>
    </message>
    <message>
        <source>%1 goes into %2 as %3.</source>
        <translation type="unfinished">%1 помещается в %2 как %3.</translation>
    </message>
    <message>
        <source>%1 was read as %2.</source>
        <translation type="unfinished">%1: прочитано как %2.</translation>
    </message>
    <message>
        <source>%1 was moved by %2 s.</source>
        <translation type="unfinished">%1: сдвинуто на %2 с.</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of %1 could not be read as text.</source>
        <translation type="unfinished">
            <numerusform>%n байт из %1 не удалось прочитать как текст.</numerusform>
            <numerusform>%n байта из %1 не удалось прочитать как текст.</numerusform>
            <numerusform>%n байт из %1 не удалось прочитать как текст.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>Пропущен %n субтитр из %1 без пригодного времени.</numerusform>
            <numerusform>Пропущены %n субтитра из %1 без пригодного времени.</numerusform>
            <numerusform>Пропущены %n субтитров из %1 без пригодного времени.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 would never be shown and were left out.</source>
        <translation type="unfinished">
            <numerusform>%n субтитр из %1 никогда не был бы показан и пропущен.</numerusform>
            <numerusform>%n субтитра из %1 никогда не были бы показаны и пропущены.</numerusform>
            <numerusform>%n субтитров из %1 никогда не были бы показаны и пропущены.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EditingPanel</name>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">Субтитры</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Выбрать субтитры</translation>
    </message>
    <message>
        <source>Subtitles encoding</source>
        <translation type="unfinished">Кодировка субтитров</translation>
    </message>
    <message>
        <source>Aligment</source>
        <translation type="unfinished">Выравнивание</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation type="unfinished">Синхронизация</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Добавить субтитры</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">Оставить все дорожки (softsub)</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">Выбрать файл</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">Найти файл</translation>
    </message>
    <message>
        <source>Relocating subtitles saves all subtitle tracks. You can select them in player.&lt;br&gt;&lt;br&gt;Select one of track to hardsub them.</source>
        <translation type="unfinished">При переносе сохраняются все дорожки субтитров. Их можно выбрать в проигрывателе.&lt;br&gt;&lt;br&gt;Выберите одну из дорожек, чтобы вшить её в изображение.</translation>
    </message>
    <message>
        <source>Hastened</source>
        <translation type="unfinished">Раньше</translation>
    </message>
    <message>
        <source>Delayed</source>
        <translation type="unfinished">Позже</translation>
    </message>
    <message>
        <source>Help on subtitles</source>
        <translation type="unfinished">Справка о субтитрах</translation>
    </message>
    <message>
        <source>Position shift</source>
        <translation type="unfinished">Сдвиг положения</translation>
    </message>
    <message>
        <source>Synchronization offset in seconds</source>
        <translation type="unfinished">Сдвиг синхронизации в секундах</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation type="unfinished">Цвет текста</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation type="unfinished">Цвет контура</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation type="unfinished">Шрифт: %1</translation>
    </message>
</context>
<context>
    <name>ErrorClauses</name>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished">это папка</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="unfinished">это не файл</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation type="unfinished">его размер больше %1 байт</translation>
    </message>
    <message>
        <source>its header cannot be read</source>
        <translation type="unfinished">его заголовок не читается</translation>
    </message>
    <message>
        <source>nothing in it can be read</source>
        <translation type="unfinished">в нём ничего нельзя прочитать</translation>
    </message>
    <message>
        <source>it holds no subtitles</source>
        <translation type="unfinished">в нём нет субтитров</translation>
    </message>
    <message>
        <source>it does not hold exactly one subtitle track</source>
        <translation type="unfinished">в нём не ровно одна дорожка субтитров</translation>
    </message>
    <message>
        <source>it has no picture</source>
        <translation type="unfinished">в нём нет изображения</translation>
    </message>
    <message>
        <source>it has no picture that subtitles could be drawn into</source>
        <translation type="unfinished">в нём нет изображения, в которое можно вшить субтитры</translation>
    </message>
    <message>
        <source>the size of its picture is not known</source>
        <translation type="unfinished">размер его изображения неизвестен</translation>
    </message>
    <message>
        <source>the picture has no usable size</source>
        <translation type="unfinished">размер изображения непригоден</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation type="unfinished">ни один кадр не удаётся декодировать</translation>
    </message>
    <message>
        <source>there is no decoder for it</source>
        <translation type="unfinished">для него нет декодера</translation>
    </message>
    <message>
        <source>there is no decoder for track %1</source>
        <translation type="unfinished">для дорожки %1 нет декодера</translation>
    </message>
    <message>
        <source>its decoder refuses the stream: %1</source>
        <translation type="unfinished">его декодер не принимает поток: %1</translation>
    </message>
    <message>
        <source>its decoder does not know the options %1</source>
        <translation type="unfinished">его декодер не знает параметров %1</translation>
    </message>
    <message>
        <source>its encoder refuses the sound: %1</source>
        <translation type="unfinished">его кодировщик не принимает звук: %1</translation>
    </message>
    <message>
        <source>its encoder refuses the picture (%1): %2</source>
        <translation type="unfinished">его кодировщик не принимает изображение (%1): %2</translation>
    </message>
    <message>
        <source>the encoder here is %1</source>
        <translation type="unfinished">здесь кодировщик — %1</translation>
    </message>
    <message>
        <source>there is no encoder preset &quot;%1&quot;</source>
        <translation type="unfinished">нет набора настроек кодировщика «%1»</translation>
    </message>
    <message>
        <source>the text encoding &quot;%1&quot; is not known</source>
        <translation type="unfinished">кодировка текста «%1» неизвестна</translation>
    </message>
    <message>
        <source>the text renderer could not be set up</source>
        <translation type="unfinished">не удалось подготовить рисование текста</translation>
    </message>
    <message>
        <source>it names a folder</source>
        <translation type="unfinished">это папка</translation>
    </message>
    <message>
        <source>it is a device or a pipe, not a file</source>
        <translation type="unfinished">это устройство или канал, а не файл</translation>
    </message>
    <message>
        <source>a .%1 file</source>
        <translation type="unfinished">файл .%1</translation>
    </message>
    <message>
        <source>save it as .%1 instead</source>
        <translation type="unfinished">сохраните как .%1</translation>
    </message>
    <message>
        <source>it consists of pictures, so save it as .%1</source>
        <translation type="unfinished">она состоит из картинок, поэтому сохраните её как .%1</translation>
    </message>
    <message>
        <source>the encoder libx264 is missing</source>
        <translation type="unfinished">нет кодировщика libx264</translation>
    </message>
    <message>
        <source>subtitles can be switchable or drawn in, not both</source>
        <translation type="unfinished">субтитры могут быть отключаемыми или вшитыми, но не тем и другим сразу</translation>
    </message>
    <message>
        <source>the quality goes from 0 to 51</source>
        <translation type="unfinished">качество — от 0 до 51</translation>
    </message>
    <message>
        <source>the chosen format</source>
        <translation type="unfinished">выбранный формат</translation>
    </message>
    <message>
        <source>draw it in</source>
        <translation type="unfinished">вшейте её в изображение</translation>
    </message>
    <message>
        <source>choose Matroska or draw it in</source>
        <translation type="unfinished">выберите Matroska или вшейте её в изображение</translation>
    </message>
    <message>
        <source>draw it in or leave it out</source>
        <translation type="unfinished">вшейте её в изображение или исключите</translation>
    </message>
    <message>
        <source>you may not do this</source>
        <translation type="unfinished">нет прав доступа</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation type="unfinished">диск доступен только для чтения</translation>
    </message>
    <message>
        <source>the disk could not be read or written</source>
        <translation type="unfinished">не удалось прочитать или записать данные на диск</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation type="unfinished">такого файла или папки нет</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation type="unfinished">его имя слишком длинное</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation type="unfinished">не хватает памяти</translation>
    </message>
    <message>
        <source>it holds data that make no sense</source>
        <translation type="unfinished">в нём бессмысленные данные</translation>
    </message>
</context>
<context>
    <name>ErrorWords</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation type="unfinished">«%1»</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot;</source>
        <translation type="unfinished">Дорожка %1 из «%2»</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no track %2: choose another track.</source>
        <translation type="unfinished">В файле «%1» нет дорожки %2: выберите другую дорожку.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no subtitle track: choose another file.</source>
        <translation type="unfinished">В файле «%1» нет дорожки субтитров: выберите другой файл.</translation>
    </message>
    <message>
        <source>choose another format, draw it in or leave it out</source>
        <translation type="unfinished">выберите другой формат, вшейте субтитры в изображение или исключите их</translation>
    </message>
    <message>
        <source>%1 is %2, which %3 cannot hold: %4.</source>
        <extracomment>%1: a track or a file, %2: its codec, %3: a format or a kind of file, %4: what to do</extracomment>
        <translation type="unfinished">%1 — это %2, а такое не может содержать %3: %4.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read%2: choose another one, or check that you may open it.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Файл «%1» не читается%2: выберите другой или проверьте, есть ли у вас право его открывать.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is of no kind that can be used here%2: choose another one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Файл «%1» не того вида, который можно здесь использовать%2: выберите другой.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged%2: try to get a complete copy.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Файл «%1» повреждён%2: попробуйте получить целую копию.</translation>
    </message>
    <message>
        <source>The text of &quot;%1&quot; cannot be drawn, because no usable font is installed%2: install one, for example DejaVu Sans.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Текст из «%1» нельзя нарисовать, потому что не установлено ни одного подходящего шрифта%2: установите какой-нибудь, например DejaVu Sans.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written%2: choose another folder, or check that you may write to this one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Файл «%1» нельзя записать%2: выберите другую папку или проверьте, есть ли у вас право записи в эту.</translation>
    </message>
    <message>
        <source>A setting for &quot;%1&quot; is not valid%2: correct it and try again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Недопустимая настройка для «%1»%2: исправьте её и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; failed%2: try again, and report it if it fails again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Не удалось обработать «%1»%2: попробуйте ещё раз и сообщите, если ошибка повторится.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist any more: choose another one.</source>
        <translation type="unfinished">Файла «%1» больше нет: выберите другой.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty: choose another one.</source>
        <translation type="unfinished">Файл «%1» пуст: выберите другой.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is not a subtitle track: choose another one.</source>
        <translation type="unfinished">Дорожка %1 из «%2» — не дорожка субтитров: выберите другую.</translation>
    </message>
    <message>
        <source>The codec of &quot;%1&quot;, %2, cannot be used here%3: choose another file or another format.</source>
        <extracomment>%2: a codec, %3: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Кодек файла «%1», %2, здесь использовать нельзя%3: выберите другой файл или другой формат.</translation>
    </message>
    <message>
        <source>The format of &quot;%1&quot; is not known%2: choose another one.</source>
        <extracomment>%2: what was asked for, in brackets, or nothing</extracomment>
        <translation type="unfinished">Формат файла «%1» неизвестен%2: выберите другой.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has neither picture nor sound: choose another one.</source>
        <translation type="unfinished">В файле «%1» нет ни изображения, ни звука: выберите другой.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already: choose another name.</source>
        <translation type="unfinished">Файл «%1» уже существует: выберите другое имя.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is being read, so it cannot be written: choose another name.</source>
        <translation type="unfinished">Файл «%1» сейчас читается, поэтому записать его нельзя: выберите другое имя.</translation>
    </message>
    <message>
        <source>The folder of &quot;%1&quot; does not exist: create it, or choose another one.</source>
        <translation type="unfinished">Папки для «%1» не существует: создайте её или выберите другую.</translation>
    </message>
    <message>
        <source>The disk is full, so &quot;%1&quot; was not written: free some space, or choose another folder.</source>
        <translation type="unfinished">Диск заполнен, поэтому «%1» не записан: освободите место или выберите другую папку.</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; was cancelled: start it again if you want it.</source>
        <translation type="unfinished">Обработка «%1» отменена: запустите её снова, если нужно.</translation>
    </message>
</context>
<context>
    <name>ExternalSubtitlesDialog</name>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Выбрать субтитры</translation>
    </message>
    <message>
        <source>Subtitle files (%1)</source>
        <translation type="unfinished">Файлы субтитров (%1)</translation>
    </message>
</context>
<context>
    <name>FilmRow</name>
    <message>
        <source>Paused</source>
        <translation type="unfinished">Приостановлено</translation>
    </message>
    <message>
        <source>Preparing subtitles</source>
        <translation type="unfinished">Подготовка субтитров</translation>
    </message>
    <message>
        <source>Converting</source>
        <translation type="unfinished">Преобразование</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished">В очереди</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation type="unfinished">Преобразовано</translation>
    </message>
    <message numerus="yes">
        <source>Converted, with %n remark(s)</source>
        <translation type="unfinished">
            <numerusform>Преобразовано, %n замечание</numerusform>
            <numerusform>Преобразовано, %n замечания</numerusform>
            <numerusform>Преобразовано, %n замечаний</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished">Отменено</translation>
    </message>
    <message>
        <source>Reading the film</source>
        <translation type="unfinished">Чтение фильма</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">Показать в папке</translation>
    </message>
    <message>
        <source>Converted, but it breaks off after %1 of %2</source>
        <translation type="unfinished">Преобразовано, но обрывается после %1 из %2</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::AutocompleteField</name>
    <message>
        <source>Film or series</source>
        <translation type="unfinished">Фильм или сериал</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">Название</translation>
    </message>
    <message>
        <source>Suggested titles</source>
        <translation type="unfinished">Подсказанные названия</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ImdbIdValidator</name>
    <message numerus="yes">
        <source>The IMDb id is too short: it has at least %n digit(s), as in tt0123456.</source>
        <translation type="unfinished">
            <numerusform>Номер IMDb слишком короткий: в нём не меньше %n цифры, как в tt0123456.</numerusform>
            <numerusform>Номер IMDb слишком короткий: в нём не меньше %n цифр, как в tt0123456.</numerusform>
            <numerusform>Номер IMDb слишком короткий: в нём не меньше %n цифр, как в tt0123456.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The IMDb id is too long: it has at most %n digit(s).</source>
        <translation type="unfinished">
            <numerusform>Номер IMDb слишком длинный: в нём не больше %n цифры.</numerusform>
            <numerusform>Номер IMDb слишком длинный: в нём не больше %n цифр.</numerusform>
            <numerusform>Номер IMDb слишком длинный: в нём не больше %n цифр.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and a number, or the number alone, as in tt0123456.</source>
        <translation type="unfinished">Это не номер IMDb: введите «tt» и число или только число, как в tt0123456.</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ItemPanel</name>
    <message>
        <source>Subtitles of this film</source>
        <translation type="unfinished">Субтитры этого фильма</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Выбрать субтитры</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Добавить субтитры</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">Выбрать файл</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">Найти файл</translation>
    </message>
    <message>
        <source>Apply to all files</source>
        <translation type="unfinished">Применить ко всем файлам</translation>
    </message>
    <message>
        <source>Makes the same choice for every film of the list</source>
        <translation type="unfinished">Делает тот же выбор для каждого фильма в списке</translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished">Готово</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelector</name>
    <message>
        <source>Languages: %1</source>
        <translation type="unfinished">Языки: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelectorList</name>
    <message>
        <source>Languages to search in</source>
        <translation type="unfinished">Языки поиска</translation>
    </message>
    <message>
        <source>Find a language</source>
        <translation type="unfinished">Найти язык</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindow</name>
    <message>
        <source>Type a title and press &quot;Search&quot;.</source>
        <translation type="unfinished">Введите название и нажмите «Найти».</translation>
    </message>
    <message>
        <source>Find subtitles</source>
        <translation type="unfinished">Найти субтитры</translation>
    </message>
    <message>
        <source>Find subtitles: %1</source>
        <translation type="unfinished">Найти субтитры: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowFields</name>
    <message>
        <source>&amp;Title</source>
        <translation type="unfinished">&amp;Название</translation>
    </message>
    <message>
        <source>&amp;Season</source>
        <translation type="unfinished">&amp;Сезон</translation>
    </message>
    <message>
        <source>Season</source>
        <translation type="unfinished">Сезон</translation>
    </message>
    <message>
        <source>&amp;Episode</source>
        <translation type="unfinished">Сер&amp;ия</translation>
    </message>
    <message>
        <source>Episode</source>
        <translation type="unfinished">Серия</translation>
    </message>
    <message>
        <source>&amp;Episode...</source>
        <translation type="unfinished">Сер&amp;ия...</translation>
    </message>
    <message>
        <source>Search for an episode of a series</source>
        <translation type="unfinished">Искать серию сериала</translation>
    </message>
    <message>
        <source>Sea&amp;rch</source>
        <translation type="unfinished">На&amp;йти</translation>
    </message>
    <message>
        <source>I&amp;MDb id</source>
        <translation type="unfinished">Номе&amp;р IMDb</translation>
    </message>
    <message>
        <source>IMDb id</source>
        <translation type="unfinished">Номер IMDb</translation>
    </message>
    <message>
        <source>The film&apos;s number at IMDb, as in tt0123456</source>
        <translation type="unfinished">Номер фильма в IMDb, как в tt0123456</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation type="unfinished">&amp;Языки</translation>
    </message>
    <message>
        <source>E&amp;xactly this file</source>
        <translation type="unfinished">И&amp;менно этот файл</translation>
    </message>
    <message>
        <source>Finds subtitles by the fingerprint of the file, whatever its name is</source>
        <translation type="unfinished">Находит субтитры по отпечатку файла, как бы он ни назывался</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowStatus</name>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">Поиск...</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation type="unfinished">Скачивание...</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation type="unfinished">Отмена...</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found</source>
        <translation type="unfinished">
            <numerusform>Найдены %n субтитры</numerusform>
            <numerusform>Найдено %n субтитра</numerusform>
            <numerusform>Найдено %n субтитров</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">&amp;Отмена</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Download %n</source>
        <translation type="unfinished">
            <numerusform>С&amp;качать %n</numerusform>
            <numerusform>С&amp;качать %n</numerusform>
            <numerusform>С&amp;качать %n</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Download</source>
        <translation type="unfinished">С&amp;качать</translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished">Закрыть</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ResultList</name>
    <message>
        <source>Smallest first; press to turn it round</source>
        <translation type="unfinished">Сначала меньшие; нажмите, чтобы обратить порядок</translation>
    </message>
    <message>
        <source>Largest first; press to turn it round</source>
        <translation type="unfinished">Сначала большие; нажмите, чтобы обратить порядок</translation>
    </message>
    <message numerus="yes">
        <source>None of the %n subtitle(s) found holds &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>Найдены %n субтитры, но без «%1».</numerusform>
            <numerusform>Найдено %n субтитра, но ни в одном нет «%1».</numerusform>
            <numerusform>Найдено %n субтитров, но ни в одном нет «%1».</numerusform>
        </translation>
    </message>
    <message>
        <source>Best match</source>
        <translation type="unfinished">Лучшее совпадение</translation>
    </message>
    <message>
        <source>Subtitles found</source>
        <translation type="unfinished">Найденные субтитры</translation>
    </message>
    <message>
        <source>Filter the list</source>
        <translation type="unfinished">Отфильтровать список</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation type="unfinished">Сор&amp;тировка</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation type="unfinished">Сортировка</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::AboutDialog</name>
    <message>
        <source>About Korvex Subtitles</source>
        <translation type="unfinished">О программе Korvex Subtitles</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished">Версия %1</translation>
    </message>
    <message>
        <source>Converts films with their subtitles: as tracks that can be switched on and off, or drawn into the picture.

Free software under the GNU General Public License, version 3 or later. It comes without any warranty.

It is built on Qt, FFmpeg and libass.</source>
        <translation type="unfinished">Преобразует фильмы с субтитрами: отключаемыми дорожками или вшитыми в изображение.

Свободная программа под лицензией GNU General Public License версии 3 или более поздней. Без каких-либо гарантий.

Основана на Qt, FFmpeg и libass.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Actions</name>
    <message>
        <source>&amp;Add films...</source>
        <translation type="unfinished">&amp;Добавить фильмы...</translation>
    </message>
    <message>
        <source>Add &amp;subtitles...</source>
        <translation type="unfinished">Добавить &amp;субтитры...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished">В&amp;ыход</translation>
    </message>
    <message>
        <source>&amp;Subtitles...</source>
        <translation type="unfinished">&amp;Субтитры...</translation>
    </message>
    <message>
        <source>Apply these subtitles to &amp;all</source>
        <translation type="unfinished">Применить эти субтитры ко &amp;всем</translation>
    </message>
    <message>
        <source>&amp;Copy as command line</source>
        <translation type="unfinished">&amp;Копировать как командную строку</translation>
    </message>
    <message>
        <source>Show &amp;output in folder</source>
        <translation type="unfinished">Показать &amp;результат в папке</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">&amp;Убрать из списка</translation>
    </message>
    <message>
        <source>&amp;Previous film</source>
        <translation type="unfinished">&amp;Предыдущий фильм</translation>
    </message>
    <message>
        <source>&amp;Next film</source>
        <translation type="unfinished">&amp;Следующий фильм</translation>
    </message>
    <message>
        <source>Convert &amp;all</source>
        <translation type="unfinished">Преобразовать &amp;все</translation>
    </message>
    <message>
        <source>Convert this &amp;film</source>
        <translation type="unfinished">Преобразовать этот &amp;фильм</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">&amp;Приостановить</translation>
    </message>
    <message>
        <source>&amp;Cancel this film</source>
        <translation type="unfinished">&amp;Отменить этот фильм</translation>
    </message>
    <message>
        <source>Cancel a&amp;ll</source>
        <translation type="unfinished">Отменить &amp;всё</translation>
    </message>
    <message>
        <source>Same as &amp;system</source>
        <translation type="unfinished">Как в &amp;системе</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished">&amp;Светлая</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished">&amp;Тёмная</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation type="unfinished">&amp;Сочетания клавиш</translation>
    </message>
    <message>
        <source>&amp;About Korvex Subtitles</source>
        <translation type="unfinished">&amp;О программе Korvex Subtitles</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished">Убрать</translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished">Добавить</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation type="unfinished">&amp;Настройки...</translation>
    </message>
    <message>
        <source>Find subtitles on&amp;line...</source>
        <translation type="unfinished">&amp;Найти субтитры в интернете...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyReportDialog</name>
    <message>
        <source>Applied to all films</source>
        <translation type="unfinished">Применено ко всем фильмам</translation>
    </message>
    <message>
        <source>Subtitles as in &quot;%1&quot;</source>
        <translation type="unfinished">Субтитры как в «%1»</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyToAll</name>
    <message>
        <source>&quot;%1&quot;: nothing changed, because the film cannot be read at the moment.</source>
        <translation type="unfinished">«%1»: ничего не изменено, потому что фильм сейчас не читается.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: nothing changed, because it has no track like %2 and no file of that name.</source>
        <translation type="unfinished">«%1»: ничего не изменено, потому что нет ни дорожки вроде %2, ни файла с таким именем.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::CommandLineText</name>
    <message>
        <source>A picture that cannot be copied is encoded with --crf %1 there and %2 here.</source>
        <translation type="unfinished">Изображение, которое нельзя скопировать, кодируется там с --crf %1, а здесь с %2.</translation>
    </message>
    <message>
        <source>The text cannot be moved by more than %1 lines.</source>
        <translation type="unfinished">Текст нельзя сдвинуть больше чем на столько строк: %1.</translation>
    </message>
    <message>
        <source>The font size %1 is not a whole number up to %2: the nearest one stands for it.</source>
        <translation type="unfinished">Размер шрифта %1 — не целое число до %2: берётся ближайшее.</translation>
    </message>
    <message>
        <source>%1 keeps its own language, title and forced mark.</source>
        <translation type="unfinished">%1: сохраняет свой язык, название и пометку принудительных.</translation>
    </message>
    <message>
        <source>%1 keeps the language, title and forced mark that its name states.</source>
        <translation type="unfinished">%1: сохраняет язык, название и пометку принудительных из имени файла.</translation>
    </message>
    <message>
        <source>%1 goes out without its mark for the hard of hearing.</source>
        <translation type="unfinished">%1: выводится без пометки для слабослышащих.</translation>
    </message>
    <message>
        <source>Which of the film&apos;s own tracks players show by themselves stays as in the film.</source>
        <translation type="unfinished">Какие собственные дорожки фильма проигрыватели показывают сами, остаётся как в фильме.</translation>
    </message>
    <message>
        <source>The files have different encodings: all are read as they are detected.</source>
        <translation type="unfinished">Кодировки файлов различаются: все читаются так, как определено.</translation>
    </message>
    <message>
        <source>The tracks are moved by different offsets: none is moved.</source>
        <translation type="unfinished">Сдвиги дорожек различаются: ни одна не сдвигается.</translation>
    </message>
    <message>
        <source>Text cannot be moved by more than a day.</source>
        <translation type="unfinished">Текст нельзя сдвинуть больше чем на сутки.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionControl</name>
    <message>
        <source>Quit while converting?</source>
        <translation type="unfinished">Выйти во время преобразования?</translation>
    </message>
    <message>
        <source>Films are still being converted. Quitting cancels them; what is finished stays.</source>
        <translation type="unfinished">Фильмы ещё преобразуются. При выходе это будет отменено; готовое сохранится.</translation>
    </message>
    <message>
        <source>Cancel conversions and quit</source>
        <translation type="unfinished">Отменить преобразования и выйти</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">Продолжить преобразование</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionQueue</name>
    <message>
        <source>The subtitles of &quot;%1&quot; cannot go out as chosen: choose them again.</source>
        <translation type="unfinished">Субтитры «%1» нельзя вывести так, как выбрано; выберите их заново.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::DropHighlight</name>
    <message>
        <source>Drop films, folders or subtitle files</source>
        <translation type="unfinished">Перетащите фильмы, папки или файлы субтитров</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::EmptyPage</name>
    <message>
        <source>Drop films here or choose files</source>
        <translation type="unfinished">Перетащите фильмы сюда или выберите файлы</translation>
    </message>
    <message>
        <source>Folders work too. Subtitle files beside a film are found automatically.</source>
        <translation type="unfinished">Можно и папки. Файлы субтитров рядом с фильмом находятся сами.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FetchedSubtitles</name>
    <message>
        <source>&quot;%1&quot; was added to &quot;%2&quot;.</source>
        <translation type="unfinished">«%1» добавлен к «%2».</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle file(s) were added to &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>К «%1» добавлен %n файл субтитров.</numerusform>
            <numerusform>К «%1» добавлено %n файла субтитров.</numerusform>
            <numerusform>К «%1» добавлено %n файлов субтитров.</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">Отменить</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FileActions</name>
    <message>
        <source>&quot;%1&quot; needs a film to go with: add the film first.</source>
        <translation type="unfinished">Для «%1» нужен фильм: сначала добавьте фильм.</translation>
    </message>
    <message>
        <source>No new film was found in &quot;%1&quot;: choose a folder with films.</source>
        <translation type="unfinished">В «%1» не найдено новых фильмов: выберите папку с фильмами.</translation>
    </message>
    <message>
        <source>Add films</source>
        <translation type="unfinished">Добавить фильмы</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">Субтитры</translation>
    </message>
    <message>
        <source>All files</source>
        <translation type="unfinished">Все файлы</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Добавить субтитры</translation>
    </message>
    <message>
        <source>Where is &quot;%1&quot; now?</source>
        <translation type="unfinished">Где теперь «%1»?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the list already: show another file, or remove &quot;%2&quot; from the list.</source>
        <translation type="unfinished">«%1» уже есть в списке: укажите другой файл или уберите «%2» из списка.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Film</name>
    <message>
        <source>The film &quot;%1&quot; is not there any more: show where it is now, or remove it from the list.</source>
        <translation type="unfinished">Фильма «%1» больше нет на месте: укажите, где он теперь, или уберите его из списка.</translation>
    </message>
    <message>
        <source>Locate...</source>
        <translation type="unfinished">Указать...</translation>
    </message>
    <message>
        <source>No subtitles, as it stands</source>
        <translation type="unfinished">Пока без субтитров</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmActions</name>
    <message>
        <source>Remove a film that is being converted?</source>
        <translation type="unfinished">Убрать фильм, который преобразуется?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is being converted. Removing it cancels its conversion.</source>
        <translation type="unfinished">«%1» преобразуется. При удалении из списка это будет отменено.</translation>
    </message>
    <message>
        <source>Cancel conversion and remove</source>
        <translation type="unfinished">Отменить преобразование и убрать</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation type="unfinished">Оставить</translation>
    </message>
    <message>
        <source>No file manager could be started: the film is &quot;%1&quot;.</source>
        <translation type="unfinished">Не удалось запустить файловый менеджер: фильм — «%1».</translation>
    </message>
    <message>
        <source>The command line is in the clipboard.</source>
        <translation type="unfinished">Командная строка скопирована в буфер обмена.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmListPane</name>
    <message numerus="yes">
        <source>%n film(s)</source>
        <translation type="unfinished">
            <numerusform>%n фильм</numerusform>
            <numerusform>%n фильма</numerusform>
            <numerusform>%n фильмов</numerusform>
        </translation>
    </message>
    <message>
        <source>Films</source>
        <translation type="unfinished">Фильмы</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmWords</name>
    <message>
        <source>Track %1</source>
        <translation type="unfinished">Дорожка %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n track(s)</source>
        <translation type="unfinished">
            <numerusform>%n дорожка</numerusform>
            <numerusform>Все %n дорожки</numerusform>
            <numerusform>Все %n дорожек</numerusform>
        </translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">Без субтитров</translation>
    </message>
    <message>
        <source>Drawn in: %1</source>
        <translation type="unfinished">Вшито: %1</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no subtitles that can be read: remove it.</source>
        <translation type="unfinished">В файле «%1» нет читаемых субтитров: уберите его.</translation>
    </message>
    <message>
        <source>Remove the file</source>
        <translation type="unfinished">Убрать файл</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: draw it in, or leave it out.</source>
        <translation type="unfinished">%1: нельзя поместить в %2; вшейте дорожку в изображение или исключите.</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: choose %3, draw it in, or leave it out.</source>
        <translation type="unfinished">%1: нельзя поместить в %2; выберите %3, вшейте дорожку в изображение или исключите.</translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation type="unfinished">Выбрать %1</translation>
    </message>
    <message>
        <source>%1 cannot be moved in time while it stays a track: draw it in, set its offset to 0, or leave it out.</source>
        <translation type="unfinished">%1: дорожку нельзя сдвинуть во времени; вшейте её в изображение, установите сдвиг 0 или исключите.</translation>
    </message>
    <message>
        <source>Set its offset to 0</source>
        <translation type="unfinished">Установить сдвиг 0</translation>
    </message>
    <message>
        <source>%1 cannot be read in another encoding while it stays a track: draw it in, or leave it out.</source>
        <translation type="unfinished">%1: дорожку нельзя прочитать в другой кодировке; вшейте её в изображение или исключите.</translation>
    </message>
    <message>
        <source>Draw it in</source>
        <translation type="unfinished">Вшить в изображение</translation>
    </message>
    <message>
        <source>Leave it out</source>
        <translation type="unfinished">Исключить</translation>
    </message>
    <message>
        <source>%1 is moved by %2 s.</source>
        <translation type="unfinished">%1: будет сдвинуто на %2 с.</translation>
    </message>
    <message>
        <source>%1 is read as %2.</source>
        <translation type="unfinished">%1: будет прочитано как %2.</translation>
    </message>
    <message>
        <source>%1 goes into %2 as plain text and loses its styles.</source>
        <translation type="unfinished">%1: войдёт в %2 простым текстом и потеряет оформление.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished">&amp;Файл</translation>
    </message>
    <message>
        <source>Fil&amp;m</source>
        <translation type="unfinished">Фил&amp;ьм</translation>
    </message>
    <message>
        <source>Put left-out tracks &amp;back</source>
        <translation type="unfinished">&amp;Вернуть исключённые дорожки</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation type="unfinished">&amp;Преобразование</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished">&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished">&amp;Тема</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished">&amp;Язык</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished">&amp;Справка</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::NoticeBar</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished">%1 из %2</translation>
    </message>
    <message>
        <source>Previous notice</source>
        <translation type="unfinished">Предыдущее сообщение</translation>
    </message>
    <message>
        <source>Next notice</source>
        <translation type="unfinished">Следующее сообщение</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation type="unfinished">Закрыть это сообщение</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Notices</name>
    <message>
        <source>Try again</source>
        <translation type="unfinished">Повторить</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">Показать в папке</translation>
    </message>
    <message>
        <source>Show the first that failed</source>
        <translation type="unfinished">Показать первый неудавшийся</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::OutputBar</name>
    <message>
        <source>Same as source</source>
        <translation type="unfinished">Как источник</translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished">Высокое</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished">Среднее</translation>
    </message>
    <message>
        <source>Small</source>
        <translation type="unfinished">Малый файл</translation>
    </message>
    <message>
        <source>The picture is copied unchanged where nothing is drawn into it and the format can carry it; otherwise it is encoded in high quality.</source>
        <translation type="unfinished">Изображение копируется без изменений, если в него ничего не вшивается и формат его поддерживает; иначе оно кодируется в высоком качестве.</translation>
    </message>
    <message>
        <source>The picture is encoded anew; differences are next to invisible.</source>
        <translation type="unfinished">Изображение кодируется заново; различия почти незаметны.</translation>
    </message>
    <message>
        <source>The picture is encoded anew; good for watching, in a smaller file.</source>
        <translation type="unfinished">Изображение кодируется заново; хорошо для просмотра, файл меньше.</translation>
    </message>
    <message>
        <source>The picture is encoded anew into a small file; losses are visible.</source>
        <translation type="unfinished">Изображение кодируется заново в небольшой файл; потери заметны.</translation>
    </message>
    <message>
        <source>paused</source>
        <translation type="unfinished">приостановлено</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished">%1, %2</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation type="unfinished">&amp;Продолжить</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">&amp;Приостановить</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">Продолжить преобразование</translation>
    </message>
    <message>
        <source>Wait until you resume</source>
        <translation type="unfinished">Остановить до продолжения</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation type="unfinished">&amp;Формат</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation type="unfinished">Формат вывода</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation type="unfinished">&amp;Качество</translation>
    </message>
    <message>
        <source>Quality of the picture</source>
        <translation type="unfinished">Качество изображения</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished">&amp;Сохранить</translation>
    </message>
    <message>
        <source>Beside each film</source>
        <translation type="unfinished">Рядом с каждым фильмом</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation type="unfinished">Выбрать папку...</translation>
    </message>
    <message>
        <source>&amp;Convert all</source>
        <translation type="unfinished">&amp;Преобразовать все</translation>
    </message>
    <message>
        <source>Convert all films that are ready</source>
        <translation type="unfinished">Преобразовать все готовые фильмы</translation>
    </message>
    <message>
        <source>Only &amp;this film</source>
        <translation type="unfinished">Только &amp;этот фильм</translation>
    </message>
    <message>
        <source>Convert the film that is chosen in the list, and no other</source>
        <translation type="unfinished">Преобразовать только фильм, выбранный в списке</translation>
    </message>
    <message>
        <source>Progress of all conversions</source>
        <translation type="unfinished">Ход всех преобразований</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation type="unfinished">&amp;Отмена</translation>
    </message>
    <message>
        <source>Stop converting; half-written files are removed</source>
        <translation type="unfinished">Остановить преобразование; недописанные файлы удаляются</translation>
    </message>
    <message>
        <source>Where to save</source>
        <translation type="unfinished">Где сохранить</translation>
    </message>
    <message>
        <source>Output folder: %1</source>
        <translation type="unfinished">Папка вывода: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::PreviewPane</name>
    <message>
        <source>Drop films here.</source>
        <translation type="unfinished">Перетащите фильмы сюда.</translation>
    </message>
    <message>
        <source>The film is being read.</source>
        <translation type="unfinished">Фильм читается.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no picture, so there is nothing to see. Its sound can be converted.</source>
        <translation type="unfinished">В «%1» нет изображения, поэтому смотреть нечего. Звук можно преобразовать.</translation>
    </message>
    <message>
        <source>There are no subtitles. Add a subtitle file to see it drawn in.</source>
        <translation type="unfinished">Субтитров нет. Добавьте файл субтитров, чтобы увидеть их вшитыми.</translation>
    </message>
    <message>
        <source>All tracks stay switchable. Choose one to see it drawn in.</source>
        <translation type="unfinished">Дорожки остаются отключаемыми. Выберите одну для просмотра.</translation>
    </message>
    <message>
        <source>Choose a track to see it drawn in.</source>
        <translation type="unfinished">Выберите дорожку, чтобы увидеть её вшитой.</translation>
    </message>
    <message>
        <source>All tracks stay switchable.</source>
        <translation type="unfinished">Дорожки остаются отключаемыми.</translation>
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
        <translation type="unfinished">Предыдущий субтитр</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation type="unfinished">Следующий субтитр</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished">Предпросмотр</translation>
    </message>
    <message>
        <source>Position in the film</source>
        <translation type="unfinished">Место в фильме</translation>
    </message>
    <message>
        <source>Where the cues are</source>
        <translation type="unfinished">Где находятся субтитры</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>position / length</comment>
        <translation type="unfinished">%1 / %2</translation>
    </message>
    <message>
        <source>The subtitles are being read.</source>
        <translation type="unfinished">Субтитры читаются.</translation>
    </message>
    <message>
        <source>This track has no lines.</source>
        <translation type="unfinished">В этой дорожке нет реплик.</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the next one.</source>
        <comment>keys</comment>
        <translation type="unfinished">Здесь нет реплики: %1 — перейти к следующей.</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the one before.</source>
        <comment>keys</comment>
        <translation type="unfinished">Здесь нет реплики: %1 — перейти к предыдущей.</translation>
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
        <translation type="unfinished">Субтитры Blu-ray (*.sup)</translation>
    </message>
    <message>
        <source>Matroska (*.mkv *.mks)</source>
        <translation type="unfinished">Matroska (*.mkv *.mks)</translation>
    </message>
    <message>
        <source>Save the track as</source>
        <translation type="unfinished">Сохранить дорожку как</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; was saved as %2 with %n cue(s)</source>
        <translation type="unfinished">
            <numerusform>«%1» сохранён как %2: %n субтитр</numerusform>
            <numerusform>«%1» сохранён как %2: %n субтитра</numerusform>
            <numerusform>«%1» сохранён как %2: %n субтитров</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) could not be read as %1</source>
        <translation type="unfinished">
            <numerusform>%n байт не удалось прочитать как %1</numerusform>
            <numerusform>%n байта не удалось прочитать как %1</numerusform>
            <numerusform>%n байт не удалось прочитать как %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) without usable times were left out</source>
        <translation type="unfinished">
            <numerusform>пропущен %n субтитр без пригодного времени</numerusform>
            <numerusform>пропущены %n субтитра без пригодного времени</numerusform>
            <numerusform>пропущены %n субтитров без пригодного времени</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of no duration were left out</source>
        <translation type="unfinished">
            <numerusform>пропущен %n субтитр без длительности</numerusform>
            <numerusform>пропущены %n субтитра без длительности</numerusform>
            <numerusform>пропущены %n субтитров без длительности</numerusform>
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
        <translation type="unfinished">По имени «%1» не ясно, как сохранить дорожку: пусть оно оканчивается на .srt, .ass, .sup или .mkv.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is %3, which no subtitle file can hold: draw it into the picture instead.</source>
        <translation type="unfinished">Дорожка %1 из «%2» — %3, её нельзя сохранить в файл субтитров: вшейте её в изображение.</translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation type="unfinished">Сохранение «%1»</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Отмена</translation>
    </message>
    <message>
        <source>Save a track</source>
        <translation type="unfinished">Сохранить дорожку</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SessionStore</name>
    <message>
        <source>The last list of films, &quot;%1&quot;, cannot be read, so nothing is saved this time: rename or remove that file.</source>
        <translation type="unfinished">Прошлый список в «%1» не читается, и в этот раз ничего не сохраняется: переименуйте или удалите этот файл.</translation>
    </message>
    <message>
        <source>The last list of films was written by a newer version of the program; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">Прошлый список записан более новой версией программы; он сохранён как «%1». Откройте фильмы заново.</translation>
    </message>
    <message>
        <source>The last list of films is damaged; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">Прошлый список повреждён; он сохранён как «%1». Откройте фильмы заново.</translation>
    </message>
    <message>
        <source>The list of films could not be saved in &quot;%1&quot; (%2): check that you may write there.</source>
        <translation type="unfinished">Список фильмов не удалось сохранить в «%1» (%2): проверьте, можно ли туда писать.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished">Настройки</translation>
    </message>
    <message>
        <source>Online service</source>
        <translation type="unfinished">Онлайн-сервис</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished">Статистика</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Отмена</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsOnlinePage</name>
    <message>
        <source>version 1 of OpenSubtitles, because an API key is set.</source>
        <translation type="unfinished">версия 1 OpenSubtitles, потому что ключ API задан.</translation>
    </message>
    <message>
        <source>version 1 of OpenSubtitles, because the configuration file says so. It answers nobody without an API key: enter one below.</source>
        <translation type="unfinished">версия 1 OpenSubtitles, потому что так указано в файле конфигурации. Без ключа API она никому не отвечает: введите его ниже.</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because the configuration file says so. The API key is not used.</source>
        <translation type="unfinished">старый интерфейс OpenSubtitles, потому что так указано в файле конфигурации. Ключ API не используется.</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because no API key is set.</source>
        <translation type="unfinished">старый интерфейс OpenSubtitles, потому что ключ API не задан.</translation>
    </message>
    <message>
        <source>API &amp;key:</source>
        <translation type="unfinished">&amp;Ключ API:</translation>
    </message>
    <message>
        <source>API key</source>
        <translation type="unfinished">Ключ API</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation type="unfinished">&amp;Показать</translation>
    </message>
    <message>
        <source>Fetched &amp;files:</source>
        <translation type="unfinished">&amp;Скачанные файлы:</translation>
    </message>
    <message>
        <source>Folder for fetched files</source>
        <translation type="unfinished">Папка для скачанных файлов</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation type="unfinished">&amp;Выбрать...</translation>
    </message>
    <message>
        <source>&amp;Usual folder</source>
        <translation type="unfinished">&amp;Обычная папка</translation>
    </message>
    <message>
        <source>Version 1:</source>
        <translation type="unfinished">Версия 1:</translation>
    </message>
    <message>
        <source>Older interface:</source>
        <translation type="unfinished">Старый интерфейс:</translation>
    </message>
    <message>
        <source>The addresses are set in the configuration file &quot;%1&quot;.</source>
        <translation type="unfinished">Адреса задаются в файле конфигурации «%1».</translation>
    </message>
    <message>
        <source>In use: %1</source>
        <translation type="unfinished">Используется: %1</translation>
    </message>
    <message>
        <source>From the next start of the program on: %1</source>
        <translation type="unfinished">Со следующего запуска программы: %1</translation>
    </message>
    <message>
        <source>Folder for fetched subtitle files</source>
        <translation type="unfinished">Папка для скачанных файлов субтитров</translation>
    </message>
    <message>
        <source>It comes from the account pages of opensubtitles.com, is kept in the configuration file, and is used from the next start on.</source>
        <translation type="unfinished">Его дают на страницах учётной записи opensubtitles.com; он хранится в файле конфигурации и действует со следующего запуска.</translation>
    </message>
    <message>
        <source>The variable %1 of the environment sets it.</source>
        <translation type="unfinished">Его задаёт переменная окружения %1.</translation>
    </message>
    <message>
        <source>This is no API key: a key has no blanks and no special characters. Copy it again.</source>
        <translation type="unfinished">Это не ключ API: в ключе нет ни пробелов, ни специальных знаков. Скопируйте его ещё раз.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsStatisticsPage</name>
    <message>
        <source>If you agree, the program counts how the online search is used: from where it is opened, which fields are filled in, how many searches find something, nothing or fail, and how many files are fetched. Names, folders and what you type are never recorded. The record stays on this computer; it is sent to nobody.</source>
        <translation type="unfinished">Если вы согласны, программа считает, как используется онлайн-поиск: откуда он открыт, какие поля заполнены, сколько поисков что-то находят, ничего не находят или не удаются и сколько файлов скачано. Имена, папки и то, что вы вводите, никогда не записываются. Запись остаётся на этом компьютере и никому не отправляется.</translation>
    </message>
    <message>
        <source>&amp;Count how the online search is used</source>
        <translation type="unfinished">&amp;Считать, как используется онлайн-поиск</translation>
    </message>
    <message>
        <source>&amp;Recorded in &quot;%1&quot;:</source>
        <translation type="unfinished">&amp;Записано в «%1»:</translation>
    </message>
    <message>
        <source>Nothing has been recorded.</source>
        <translation type="unfinished">Ничего не записано.</translation>
    </message>
    <message>
        <source>What has been recorded</source>
        <translation type="unfinished">Что записано</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">&amp;Удалить</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ShortcutsDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished">Сочетания клавиш</translation>
    </message>
    <message>
        <source>In the list: subtitles of the film</source>
        <translation type="unfinished">В списке: субтитры фильма</translation>
    </message>
    <message>
        <source>In the list: menu of the film</source>
        <translation type="unfinished">В списке: меню фильма</translation>
    </message>
    <message>
        <source>Close what is open</source>
        <translation type="unfinished">Закрыть открытое</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpPane</name>
    <message>
        <source>Help with the text</source>
        <translation type="unfinished">Справка по тексту</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpTexts</name>
    <message>
        <source>The file itself says that it is %1.</source>
        <translation type="unfinished">Сам файл указывает, что это %1.</translation>
    </message>
    <message>
        <source>Detected: %1, certain.</source>
        <translation type="unfinished">Определено: %1, точно.</translation>
    </message>
    <message>
        <source>Nothing tells the encoding; %1 is a guess.</source>
        <translation type="unfinished">Ничто не указывает на кодировку; %1 — догадка.</translation>
    </message>
    <message>
        <source>Detected: %1, very sure (%2).</source>
        <translation type="unfinished">Определено: %1, очень уверенно (%2).</translation>
    </message>
    <message>
        <source>Detected: %1, fairly sure (%2).</source>
        <translation type="unfinished">Определено: %1, довольно уверенно (%2).</translation>
    </message>
    <message>
        <source>Detected: %1, not sure (%2).</source>
        <translation type="unfinished">Определено: %1, неуверенно (%2).</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) cannot be read in this encoding and show as &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>%n байт не читается в этой кодировке и показан как «%1».</numerusform>
            <numerusform>%n байта не читаются в этой кодировке и показаны как «%1».</numerusform>
            <numerusform>%n байт не читаются в этой кодировке и показаны как «%1».</numerusform>
        </translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; is not installed; &quot;%2&quot; stands in.</source>
        <translation type="unfinished">Шрифт «%1» не установлен; его заменяет «%2».</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">японские</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation type="unfinished">китайские</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">корейские</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation type="unfinished">кириллица</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">греческие</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">еврейские</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">арабские</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">тайские</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation type="unfinished">деванагари</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; lacks %n character(s) of this text (%2): &quot;%3&quot; stands in.</source>
        <translation type="unfinished">
            <numerusform>В «%1» нет %n символа этого текста (%2): его заменяет «%3».</numerusform>
            <numerusform>В «%1» нет %n символов этого текста (%2): их заменяет «%3».</numerusform>
            <numerusform>В «%1» нет %n символов этого текста (%2): их заменяет «%3».</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No installed font has %n character(s) of this text (%1); they show as empty boxes.</source>
        <translation type="unfinished">
            <numerusform>Ни в одном установленном шрифте нет %n символа этого текста (%1); он показан пустым квадратом.</numerusform>
            <numerusform>Ни в одном установленном шрифте нет %n символов этого текста (%1); они показаны пустыми квадратами.</numerusform>
            <numerusform>Ни в одном установленном шрифте нет %n символов этого текста (%1); они показаны пустыми квадратами.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpView</name>
    <message>
        <source>It could also read:</source>
        <translation type="unfinished">Можно прочитать и так:</translation>
    </message>
    <message>
        <source>First lines of the text</source>
        <translation type="unfinished">Первые строки текста</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackActions</name>
    <message>
        <source>Quit while saving?</source>
        <translation type="unfinished">Выйти во время сохранения?</translation>
    </message>
    <message>
        <source>A track is still being saved. Quitting cancels that, and no file is written.</source>
        <translation type="unfinished">Дорожка ещё сохраняется. При выходе это будет отменено, и файл не будет записан.</translation>
    </message>
    <message>
        <source>Cancel saving and quit</source>
        <translation type="unfinished">Отменить сохранение и выйти</translation>
    </message>
    <message>
        <source>Go on saving</source>
        <translation type="unfinished">Продолжить сохранение</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackMenu</name>
    <message>
        <source>&amp;Draw in</source>
        <translation type="unfinished">&amp;Вшить в изображение</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">&amp;Убрать из списка</translation>
    </message>
    <message>
        <source>&amp;Leave out of the output</source>
        <translation type="unfinished">&amp;Исключить из вывода</translation>
    </message>
    <message>
        <source>Language, &amp;title and marks...</source>
        <translation type="unfinished">Язык, &amp;название и пометки...</translation>
    </message>
    <message>
        <source>&amp;Put back</source>
        <translation type="unfinished">&amp;Вернуть</translation>
    </message>
    <message>
        <source>&amp;Save as a file...</source>
        <translation type="unfinished">&amp;Сохранить в файл...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackPropertiesDialog</name>
    <message>
        <source>Subtitle track</source>
        <translation type="unfinished">Дорожка субтитров</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished">&amp;Язык:</translation>
    </message>
    <message>
        <source>Not stated</source>
        <translation type="unfinished">Не указан</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">Язык</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation type="unfinished">&amp;Название:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">Название</translation>
    </message>
    <message>
        <source>On by &amp;default</source>
        <translation type="unfinished">Включена по &amp;умолчанию</translation>
    </message>
    <message>
        <source>Players show this track unless another one is chosen</source>
        <translation type="unfinished">Проигрыватели показывают эту дорожку, если не выбрана другая</translation>
    </message>
    <message>
        <source>&amp;Forced</source>
        <translation type="unfinished">&amp;Принудительная</translation>
    </message>
    <message>
        <source>Only what has to be read in any case: signs and foreign speech</source>
        <translation type="unfinished">Только то, что нужно прочесть в любом случае: надписи и иностранная речь</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Отмена</translation>
    </message>
    <message>
        <source>This language is not known: choose one from the list, or write its code, such as &quot;en&quot; or &quot;pt-br&quot;.</source>
        <translation type="unfinished">Этот язык неизвестен: выберите язык из списка или напишите его код, например «en» или «pt-br».</translation>
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
        <translation type="unfinished">Цвет %1</translation>
    </message>
    <message>
        <source>Choose a color</source>
        <translation type="unfinished">Выбрать цвет</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Afrikaans</source>
        <translation type="unfinished">африкаанс</translation>
    </message>
    <message>
        <source>Albanian</source>
        <translation type="unfinished">албанский</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">арабские</translation>
    </message>
    <message>
        <source>Aragonese</source>
        <translation type="unfinished">арагонский</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation type="unfinished">армянский</translation>
    </message>
    <message>
        <source>Asturian</source>
        <translation type="unfinished">астурийский</translation>
    </message>
    <message>
        <source>Azerbaijani</source>
        <translation type="unfinished">азербайджанский</translation>
    </message>
    <message>
        <source>Basque</source>
        <translation type="unfinished">баскский</translation>
    </message>
    <message>
        <source>Belarusian</source>
        <translation type="unfinished">белорусский</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation type="unfinished">бенгальский</translation>
    </message>
    <message>
        <source>Bosnian</source>
        <translation type="unfinished">боснийский</translation>
    </message>
    <message>
        <source>Breton</source>
        <translation type="unfinished">бретонский</translation>
    </message>
    <message>
        <source>Bulgarian</source>
        <translation type="unfinished">болгарский</translation>
    </message>
    <message>
        <source>Burmese</source>
        <translation type="unfinished">бирманский</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation type="unfinished">каталанский</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation type="unfinished">китайский (упрощённый)</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation type="unfinished">китайский (традиционный)</translation>
    </message>
    <message>
        <source>Chinese (Bilingual)</source>
        <translation type="unfinished">китайский (двуязычный)</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation type="unfinished">хорватский</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation type="unfinished">чешский</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation type="unfinished">датский</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation type="unfinished">нидерландский</translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished">английский</translation>
    </message>
    <message>
        <source>Esperanto</source>
        <translation type="unfinished">эсперанто</translation>
    </message>
    <message>
        <source>Estonian</source>
        <translation type="unfinished">эстонский</translation>
    </message>
    <message>
        <source>Extremaduran</source>
        <translation type="unfinished">эстремадурский</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation type="unfinished">финский</translation>
    </message>
    <message>
        <source>French</source>
        <translation type="unfinished">французский</translation>
    </message>
    <message>
        <source>Galician</source>
        <translation type="unfinished">галисийский</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation type="unfinished">грузинский</translation>
    </message>
    <message>
        <source>German</source>
        <translation type="unfinished">немецкий</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">греческие</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">еврейские</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation type="unfinished">хинди</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation type="unfinished">венгерский</translation>
    </message>
    <message>
        <source>Icelandic</source>
        <translation type="unfinished">исландский</translation>
    </message>
    <message>
        <source>Indonesian</source>
        <translation type="unfinished">индонезийский</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation type="unfinished">итальянский</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">японские</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation type="unfinished">каннада</translation>
    </message>
    <message>
        <source>Kazakh</source>
        <translation type="unfinished">казахский</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation type="unfinished">кхмерский</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">корейские</translation>
    </message>
    <message>
        <source>Kurdish</source>
        <translation type="unfinished">курдский</translation>
    </message>
    <message>
        <source>Latvian</source>
        <translation type="unfinished">латышский</translation>
    </message>
    <message>
        <source>Lithuanian</source>
        <translation type="unfinished">литовский</translation>
    </message>
    <message>
        <source>Luxembourgish</source>
        <translation type="unfinished">люксембургский</translation>
    </message>
    <message>
        <source>Macedonian</source>
        <translation type="unfinished">македонский</translation>
    </message>
    <message>
        <source>Malay</source>
        <translation type="unfinished">малайский</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation type="unfinished">малаялам</translation>
    </message>
    <message>
        <source>Manipuri</source>
        <translation type="unfinished">манипури</translation>
    </message>
    <message>
        <source>Mongolian</source>
        <translation type="unfinished">монгольский</translation>
    </message>
    <message>
        <source>Montenegrin</source>
        <translation type="unfinished">черногорский</translation>
    </message>
    <message>
        <source>Northern Sami</source>
        <translation type="unfinished">северносаамский</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation type="unfinished">норвежский</translation>
    </message>
    <message>
        <source>Occitan</source>
        <translation type="unfinished">окситанский</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation type="unfinished">персидский</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation type="unfinished">польский</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation type="unfinished">португальский</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation type="unfinished">португальский (Бразилия)</translation>
    </message>
    <message>
        <source>Portuguese (Mozambique)</source>
        <translation type="unfinished">португальский (Мозамбик)</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation type="unfinished">румынский</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation type="unfinished">русский</translation>
    </message>
    <message>
        <source>Serbian</source>
        <translation type="unfinished">сербский</translation>
    </message>
    <message>
        <source>Sinhalese</source>
        <translation type="unfinished">сингальский</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation type="unfinished">словацкий</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation type="unfinished">словенский</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation type="unfinished">испанский</translation>
    </message>
    <message>
        <source>Swahili</source>
        <translation type="unfinished">суахили</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation type="unfinished">шведский</translation>
    </message>
    <message>
        <source>Syriac</source>
        <translation type="unfinished">сирийский</translation>
    </message>
    <message>
        <source>Tagalog</source>
        <translation type="unfinished">тагальский</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation type="unfinished">тамильский</translation>
    </message>
    <message>
        <source>Telugu</source>
        <translation type="unfinished">телугу</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">тайские</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation type="unfinished">турецкий</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation type="unfinished">украинский</translation>
    </message>
    <message>
        <source>Urdu</source>
        <translation type="unfinished">урду</translation>
    </message>
    <message>
        <source>Uzbek</source>
        <translation type="unfinished">узбекский</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation type="unfinished">вьетнамский</translation>
    </message>
</context>
<context>
    <name>LanguageSelector</name>
    <message>
        <source>All languages</source>
        <translation type="unfinished">Все языки</translation>
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
        <translation type="unfinished">Служба субтитров в интернете не настроена; добавьте её ключ API в настройки.</translation>
    </message>
    <message>
        <source> (it says: &quot;%1&quot;)</source>
        <translation type="unfinished"> (он сообщает: «%1»)</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again after %3.</source>
        <translation type="unfinished">Ваши скачивания в сервисе %1 исчерпаны%2; скачивайте снова после этого времени: %3.</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again in %3.</source>
        <translation type="unfinished">Ваши скачивания в сервисе %1 исчерпаны%2; скачивайте снова, когда пройдёт: %3.</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again tomorrow.</source>
        <translation type="unfinished">Ваши скачивания в сервисе %1 исчерпаны%2; скачивайте снова завтра.</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; wait %3 s and try again.</source>
        <translation type="unfinished">Сервис %1 получил слишком много запросов%2; подождите %3 с и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; try again in a minute.</source>
        <translation type="unfinished">Сервис %1 получил слишком много запросов%2; попробуйте ещё раз через минуту.</translation>
    </message>
    <message>
        <source>%1 did not accept the API key%2; set a valid one in the settings, as KORVEX_OPENSUBTITLES_API_KEY in the environment or as api_key in the configuration file.</source>
        <translation type="unfinished">Сервис %1 не принял ключ API%2; задайте верный в настройках, как KORVEX_OPENSUBTITLES_API_KEY в окружении или как api_key в файле конфигурации.</translation>
    </message>
    <message>
        <source>%1 sent something else in place of the subtitle%2; choose another one, or try again later.</source>
        <translation type="unfinished">Сервис %1 прислал вместо субтитров что-то другое%2; выберите другие или попробуйте позже.</translation>
    </message>
    <message>
        <source>%1 is down or overloaded at the moment%2; try again later.</source>
        <translation type="unfinished">Сервис %1 сейчас не работает или перегружен%2; попробуйте позже.</translation>
    </message>
    <message>
        <source>The subtitle could not be unpacked or stored in &quot;%1&quot;%2; choose another subtitle, or make sure that the folder may be written and has room.</source>
        <translation type="unfinished">Не удалось распаковать субтитры или сохранить их в «%1»%2; выберите другие субтитры или убедитесь, что в папку можно писать и в ней есть место.</translation>
    </message>
    <message>
        <source>%1 refused the request%2; ask for something else, or try again later.</source>
        <translation type="unfinished">Сервис %1 отклонил запрос%2; запросите что-нибудь другое или попробуйте позже.</translation>
    </message>
    <message>
        <source>%1 points to other addresses without end, or to one that may not be used%2; check the address that is set for it, or try again later.</source>
        <translation type="unfinished">Сервис %1 без конца отсылает к другим адресам или к такому, который использовать нельзя%2; проверьте заданный для него адрес или попробуйте позже.</translation>
    </message>
    <message>
        <source>The answer of %1 was empty, broke off or was too large; try again later.</source>
        <translation type="unfinished">Ответ сервиса %1 оказался пустым, оборвался или слишком велик; попробуйте позже.</translation>
    </message>
    <message>
        <source>The answer of %1 cannot be used%2; try again later.</source>
        <translation type="unfinished">Ответ сервиса %1 непригоден%2; попробуйте позже.</translation>
    </message>
    <message>
        <source>%1 could not answer%2; try again later.</source>
        <translation type="unfinished">Сервис %1 не смог ответить%2; попробуйте позже.</translation>
    </message>
    <message>
        <source>%1 could not answer%2; check the address that is set for it and the proxy, or try again later.</source>
        <translation type="unfinished">Сервис %1 не смог ответить%2; проверьте заданный для него адрес и прокси или попробуйте позже.</translation>
    </message>
    <message>
        <source>The connection to %1 failed%2; check the proxy and whether the service&apos;s certificate is valid, or try again later.</source>
        <translation type="unfinished">Не удалось подключиться к сервису %1%2; проверьте прокси и действителен ли сертификат сервиса или попробуйте позже.</translation>
    </message>
    <message>
        <source>Another search or download has not ended yet; try again in a moment.</source>
        <translation type="unfinished">Другой поиск или другое скачивание ещё не закончены; попробуйте ещё раз чуть позже.</translation>
    </message>
    <message>
        <source>%1 cannot look for this%2; type a title or an IMDb id.</source>
        <translation type="unfinished">Сервис %1 не может это найти%2; введите название или номер IMDb.</translation>
    </message>
    <message>
        <source>%1 cannot search in this way; look for a title or an IMDb id.</source>
        <translation type="unfinished">Сервис %1 не умеет искать таким способом; ищите по названию или номеру IMDb.</translation>
    </message>
    <message>
        <source>%1 cannot be reached or did not answer in time; check the connection to the network and try again.</source>
        <translation type="unfinished">Сервис %1 недоступен или не ответил вовремя; проверьте подключение к сети и попробуйте ещё раз.</translation>
    </message>
</context>
<context>
    <name>OnlineSearchDialogPresenter</name>
    <message>
        <source>same file</source>
        <translation type="unfinished">тот же файл</translation>
    </message>
    <message>
        <source>same release group</source>
        <translation type="unfinished">та же релиз-группа</translation>
    </message>
    <message>
        <source>same source</source>
        <translation type="unfinished">тот же источник</translation>
    </message>
    <message>
        <source>same resolution</source>
        <translation type="unfinished">то же разрешение</translation>
    </message>
    <message>
        <source>same episode</source>
        <translation type="unfinished">та же серия</translation>
    </message>
    <message>
        <source>another episode</source>
        <translation type="unfinished">другая серия</translation>
    </message>
    <message>
        <source>another film</source>
        <translation type="unfinished">другой фильм</translation>
    </message>
    <message>
        <source>Type a title or an IMDb id to search for.</source>
        <translation type="unfinished">Введите название или номер IMDb для поиска.</translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and digits, or leave it empty.</source>
        <translation type="unfinished">Это не номер IMDb: введите «tt» и цифры или оставьте поле пустым.</translation>
    </message>
    <message>
        <source>The season is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">Номер сезона — не число: введите цифры или оставьте поле пустым.</translation>
    </message>
    <message>
        <source>The episode is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">Номер серии — не число: введите цифры или оставьте поле пустым.</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">Поиск...</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n found so far</source>
        <translation type="unfinished">
            <numerusform>Поиск... пока найдено: %n</numerusform>
            <numerusform>Поиск... пока найдено: %n</numerusform>
            <numerusform>Поиск... пока найдено: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>Найдены %n субтитры.</numerusform>
            <numerusform>Найдено %n субтитра.</numerusform>
            <numerusform>Найдено %n субтитров.</numerusform>
        </translation>
    </message>
    <message>
        <source>check the spelling of the title</source>
        <translation type="unfinished">проверьте написание названия</translation>
    </message>
    <message>
        <source>type the title</source>
        <translation type="unfinished">введите название</translation>
    </message>
    <message>
        <source>type the film&apos;s IMDb id</source>
        <translation type="unfinished">введите номер IMDb фильма</translation>
    </message>
    <message>
        <source>check the IMDb id</source>
        <translation type="unfinished">проверьте номер IMDb</translation>
    </message>
    <message>
        <source>leave out the season and the episode</source>
        <translation type="unfinished">не указывайте сезон и серию</translation>
    </message>
    <message>
        <source>choose other languages</source>
        <translation type="unfinished">выберите другие языки</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished">%1 или %2</translation>
    </message>
    <message>
        <source>No subtitles were found: %1.</source>
        <translation type="unfinished">Субтитры не найдены: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Downloading %n subtitle(s)...</source>
        <translation type="unfinished">
            <numerusform>Скачивание субтитров (%n)...</numerusform>
            <numerusform>Скачивание субтитров (%n)...</numerusform>
            <numerusform>Скачивание субтитров (%n)...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) added to the film.</source>
        <translation type="unfinished">
            <numerusform>К фильму добавлены %n субтитры.</numerusform>
            <numerusform>К фильму добавлено %n субтитра.</numerusform>
            <numerusform>К фильму добавлено %n субтитров.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n download(s) left.</source>
        <translation type="unfinished">
            <numerusform>Осталось %n скачивание.</numerusform>
            <numerusform>Осталось %n скачивания.</numerusform>
            <numerusform>Осталось %n скачиваний.</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for the last request to end...</source>
        <translation type="unfinished">Ожидание конца последнего запроса...</translation>
    </message>
    <message>
        <source>The search was cancelled.</source>
        <translation type="unfinished">Поиск отменён.</translation>
    </message>
    <message numerus="yes">
        <source>The search was cancelled; %n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>Поиск отменён; найдены %n субтитры.</numerusform>
            <numerusform>Поиск отменён; найдено %n субтитра.</numerusform>
            <numerusform>Поиск отменён; найдено %n субтитров.</numerusform>
        </translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation type="unfinished">Скачивание отменено.</translation>
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
        <translation type="unfinished">Машинный</translation>
    </message>
    <message>
        <source>Translated by a machine</source>
        <translation type="unfinished">Переведено машиной</translation>
    </message>
    <message>
        <source>Foreign</source>
        <comment>short mark</comment>
        <translation type="unfinished">Чужой язык</translation>
    </message>
    <message>
        <source>Only what is spoken in a foreign language</source>
        <translation type="unfinished">Только то, что говорят на чужом языке</translation>
    </message>
    <message>
        <source>HI</source>
        <comment>short mark</comment>
        <translation type="unfinished">Глухим</translation>
    </message>
    <message>
        <source>For the hearing impaired: sounds are described</source>
        <translation type="unfinished">Для глухих и слабослышащих: звуки описаны</translation>
    </message>
    <message>
        <source>Trusted</source>
        <comment>short mark</comment>
        <translation type="unfinished">Надёжно</translation>
    </message>
    <message>
        <source>From an uploader whom the service trusts</source>
        <translation type="unfinished">От участника, которому сервис доверяет</translation>
    </message>
    <message>
        <source>CD %1/%2</source>
        <comment>short mark</comment>
        <translation type="unfinished">CD %1/%2</translation>
    </message>
    <message>
        <source>Part %1 of %2; all parts are downloaded</source>
        <translation type="unfinished">Часть %1 из %2; скачиваются все части</translation>
    </message>
    <message>
        <source>HD</source>
        <comment>short mark</comment>
        <translation type="unfinished">HD</translation>
    </message>
    <message>
        <source>Made for a release in high definition</source>
        <translation type="unfinished">Для издания в высоком разрешении</translation>
    </message>
    <message>
        <source>Made for this file or release</source>
        <translation type="unfinished">Для этого файла или релиза</translation>
    </message>
    <message>
        <source>For this film, perhaps for another cut of it</source>
        <translation type="unfinished">Для этого фильма, возможно, для другой монтажной версии</translation>
    </message>
    <message>
        <source>For another film or episode</source>
        <translation type="unfinished">Для другого фильма или серии</translation>
    </message>
    <message>
        <source>It is not known how well it fits</source>
        <translation type="unfinished">Неизвестно, насколько подходят</translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished">Имя</translation>
    </message>
    <message>
        <source>Match</source>
        <translation type="unfinished">Совпадение</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">Язык</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation type="unfinished">Пометки</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation type="unfinished">Скачивания</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation type="unfinished">Оценка</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation type="unfinished">Загружено</translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished">Формат</translation>
    </message>
    <message>
        <source>Release: %1</source>
        <translation type="unfinished">Релиз: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of 10, by %n vote(s)</source>
        <translation type="unfinished">
            <numerusform>%1 из 10, %n голос</numerusform>
            <numerusform>%1 из 10, %n голоса</numerusform>
            <numerusform>%1 из 10, %n голосов</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SubtitleCollection</name>
    <message>
        <source>Subtitle tracks</source>
        <translation type="unfinished">Дорожки субтитров</translation>
    </message>
    <message>
        <source>Current choice</source>
        <translation type="unfinished">Текущий выбор</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">Без субтитров</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">Оставить все дорожки (softsub)</translation>
    </message>
    <message>
        <source>There are no subtitle tracks yet. Add a subtitle file first.</source>
        <translation type="unfinished">Дорожек субтитров пока нет. Сначала добавьте файл субтитров.</translation>
    </message>
    <message>
        <source>The chosen output format cannot carry these tracks. Choose another format, or burn one track in.</source>
        <translation type="unfinished">Выбранный формат вывода не поддерживает эти дорожки. Выберите другой формат или вшейте одну дорожку.</translation>
    </message>
    <message>
        <source>Save this track to a file (Ctrl+S)</source>
        <translation type="unfinished">Сохранить эту дорожку в файл (Ctrl+S)</translation>
    </message>
    <message>
        <source>Save to a file: %1</source>
        <translation type="unfinished">Сохранить в файл: %1</translation>
    </message>
</context>
<context>
    <name>SubtitleCollectionInteractor</name>
    <message>
        <source>No subtitles were found in &quot;%1&quot;: take it out of the list and choose an SRT, ASS or SSA file.</source>
        <translation type="unfinished">В «%1» не найдено субтитров: уберите файл из списка и выберите файл SRT, ASS или SSA.</translation>
    </message>
</context>
<context>
    <name>SubtitleSettings</name>
    <message>
        <source>Auto</source>
        <translation type="unfinished">Авто</translation>
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
        <translation type="unfinished">Центрально- и восточноевропейская (Windows-1250)</translation>
    </message>
    <message>
        <source>Russian (KOI8-R)</source>
        <translation type="unfinished">Русская (KOI8-R)</translation>
    </message>
    <message>
        <source>Ukrainian, Belarusian (KOI8-U/RU)</source>
        <translation type="unfinished">Украинская, белорусская (KOI8-U/RU)</translation>
    </message>
    <message>
        <source>Esperanto, Galician, Maltese, Turkish (ISO-8859-3)</source>
        <translation type="unfinished">Эсперанто, галисийская, мальтийская, турецкая (ISO-8859-3)</translation>
    </message>
    <message>
        <source>Modern Greek (ISO-8859-7)</source>
        <translation type="unfinished">Новогреческая (ISO-8859-7)</translation>
    </message>
    <message>
        <source>Hebrew charsets (ISO-8859-8)</source>
        <translation type="unfinished">Иврит (ISO-8859-8)</translation>
    </message>
    <message>
        <source>Turkish (ISO-8859-9)</source>
        <translation type="unfinished">Турецкая (ISO-8859-9)</translation>
    </message>
    <message>
        <source>Baltic (ISO-8859-13)</source>
        <translation type="unfinished">Балтийская (ISO-8859-13)</translation>
    </message>
    <message>
        <source>Western European Languages with Euro (ISO-8859-15)</source>
        <translation type="unfinished">Западноевропейская с евро (ISO-8859-15)</translation>
    </message>
    <message>
        <source>Japanese charsets (SHIFT-JIS/CP932)</source>
        <translation type="unfinished">Японская (SHIFT-JIS/CP932)</translation>
    </message>
    <message>
        <source>Simplified Chinese charset (CP936)</source>
        <translation type="unfinished">Китайская упрощённая (CP936)</translation>
    </message>
    <message>
        <source>Traditional Chinese charset (BIG5)</source>
        <translation type="unfinished">Китайская традиционная (BIG5)</translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished">По умолчанию</translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished">Сверху</translation>
    </message>
    <message>
        <source>Vertical center</source>
        <translation type="unfinished">По центру вертикали</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished">Снизу</translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished">Слева</translation>
    </message>
    <message>
        <source>Horizontal center</source>
        <translation type="unfinished">По центру горизонтали</translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished">Справа</translation>
    </message>
</context>
<context>
    <name>TimeTexts</name>
    <message>
        <source>less than a minute left</source>
        <translation type="unfinished">осталось меньше минуты</translation>
    </message>
    <message numerus="yes">
        <source>%n min left</source>
        <translation type="unfinished">
            <numerusform>осталось %n мин</numerusform>
            <numerusform>осталось %n мин</numerusform>
            <numerusform>осталось %n мин</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h left</source>
        <translation type="unfinished">
            <numerusform>осталось %n ч</numerusform>
            <numerusform>осталось %n ч</numerusform>
            <numerusform>осталось %n ч</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 h %n min left</source>
        <translation type="unfinished">
            <numerusform>осталось %1 ч %n мин</numerusform>
            <numerusform>осталось %1 ч %n мин</numerusform>
            <numerusform>осталось %1 ч %n мин</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WarningWords</name>
    <message>
        <source>Track %1 of &quot;%2&quot; (a second picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">Дорожка %1 из «%2» (второе изображение, %3) исключена, потому что %4 не может её содержать.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a cover picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">Дорожка %1 из «%2» (обложка, %3) исключена, потому что %4 не может её содержать.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a further sound track, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">Дорожка %1 из «%2» (ещё одна звуковая, %3) исключена, потому что %4 не может её содержать.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a sound track, %3) was left out, because nothing in it can be read.</source>
        <translation type="unfinished">Дорожка %1 из «%2» (звуковая, %3) исключена, потому что в ней ничего нельзя прочитать.</translation>
    </message>
    <message>
        <source>The picture of &quot;%1&quot; was encoded anew, because %2 cannot hold it as it is.</source>
        <translation type="unfinished">Изображение из «%1» перекодировано, потому что %2 не может содержать его как есть.</translation>
    </message>
    <message>
        <source>Files attached to &quot;%1&quot;, for example fonts, were left out, because %2 cannot hold them.</source>
        <translation type="unfinished">Файлы, вложенные в «%1», например шрифты, исключены, потому что %2 не может их содержать.</translation>
    </message>
    <message>
        <source>A subtitle track was left out, because its file is missing.</source>
        <translation type="unfinished">Дорожка субтитров исключена, потому что её файла нет.</translation>
    </message>
    <message>
        <source>The subtitle track &quot;%1&quot; was left out, because its file is missing.</source>
        <translation type="unfinished">Дорожка субтитров «%1» исключена, потому что её файла нет.</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of &quot;%1&quot; could not be read as %2 and show as &quot;%3&quot;: check the encoding.</source>
        <translation type="unfinished">
            <numerusform>%n байт из «%1» не читается как %2 и показан как «%3»: проверьте кодировку.</numerusform>
            <numerusform>%n байта из «%1» не читаются как %2 и показаны как «%3»: проверьте кодировку.</numerusform>
            <numerusform>%n байт из «%1» не читаются как %2 и показаны как «%3»: проверьте кодировку.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>Исключён %n субтитр из «%1» без пригодных времён.</numerusform>
            <numerusform>Исключены %n субтитра из «%1» без пригодных времён.</numerusform>
            <numerusform>Исключено %n субтитров из «%1» без пригодных времён.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; of no duration were left out.</source>
        <translation type="unfinished">
            <numerusform>Исключён %n субтитр из «%1» нулевой длительности.</numerusform>
            <numerusform>Исключены %n субтитра из «%1» нулевой длительности.</numerusform>
            <numerusform>Исключено %n субтитров из «%1» нулевой длительности.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some pictures of &quot;%1&quot; are damaged; they may be missing or look wrong.</source>
        <translation type="unfinished">Некоторые кадры из «%1» повреждены: они могут отсутствовать или выглядеть неправильно.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; breaks off after %2 of %3, and so does the new film.</source>
        <translation type="unfinished">«%1» обрывается через %2 из %3, и новый фильм тоже.</translation>
    </message>
</context>
</TS>
