<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n film(s) converted.</source>
        <translation type="unfinished">
            <numerusform>Перетворено %n фільм.</numerusform>
            <numerusform>Перетворено %n фільми.</numerusform>
            <numerusform>Перетворено %n фільмів.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) with remarks: %1</source>
        <translation type="unfinished">
            <numerusform>%n фільм із зауваженнями: %1</numerusform>
            <numerusform>%n фільми із зауваженнями: %1</numerusform>
            <numerusform>%n фільмів із зауваженнями: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) could not be converted: %1</source>
        <translation type="unfinished">
            <numerusform>Не вдалося перетворити %n фільм: %1</numerusform>
            <numerusform>Не вдалося перетворити %n фільми: %1</numerusform>
            <numerusform>Не вдалося перетворити %n фільмів: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) cancelled.</source>
        <translation type="unfinished">
            <numerusform>Скасовано %n фільм.</numerusform>
            <numerusform>Скасовано %n фільми.</numerusform>
            <numerusform>Скасовано %n фільмів.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConversionTexts</name>
    <message>
        <source>%1 holds no cues and was left out.</source>
        <translation type="unfinished">%1: немає субтитрів, доріжку вилучено.</translation>
    </message>
    <message>
        <source>%1 goes into %2 as %3.</source>
        <translation type="unfinished">%1 поміщається в %2 як %3.</translation>
    </message>
    <message>
        <source>%1 was read as %2.</source>
        <translation type="unfinished">%1: прочитано як %2.</translation>
    </message>
    <message>
        <source>%1 was moved by %2 s.</source>
        <translation type="unfinished">%1: зсунуто на %2 с.</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of %1 could not be read as text.</source>
        <translation type="unfinished">
            <numerusform>%n байт з %1 не вдалося прочитати як текст.</numerusform>
            <numerusform>%n байти з %1 не вдалося прочитати як текст.</numerusform>
            <numerusform>%n байтів з %1 не вдалося прочитати як текст.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>Пропущено %n субтитр з %1 без придатного часу.</numerusform>
            <numerusform>Пропущено %n субтитри з %1 без придатного часу.</numerusform>
            <numerusform>Пропущено %n субтитрів з %1 без придатного часу.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 would never be shown and were left out.</source>
        <translation type="unfinished">
            <numerusform>%n субтитр з %1 ніколи не було б показано, його пропущено.</numerusform>
            <numerusform>%n субтитри з %1 ніколи не було б показано, їх пропущено.</numerusform>
            <numerusform>%n субтитрів з %1 ніколи не було б показано, їх пропущено.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EditingPanel</name>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">Субтитри</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Вибрати субтитри</translation>
    </message>
    <message>
        <source>Subtitles encoding</source>
        <translation type="unfinished">Кодування субтитрів</translation>
    </message>
    <message>
        <source>Aligment</source>
        <translation type="unfinished">Вирівнювання</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation type="unfinished">Синхронізація</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Додати субтитри</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">Залишити всі доріжки (softsub)</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">Вибрати файл</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">Знайти файл</translation>
    </message>
    <message>
        <source>Relocating subtitles saves all subtitle tracks. You can select them in player.&lt;br&gt;&lt;br&gt;Select one of track to hardsub them.</source>
        <translation type="unfinished">Під час перенесення зберігаються всі доріжки субтитрів. Їх можна вибрати у програвачі.&lt;br&gt;&lt;br&gt;Виберіть одну з доріжок, щоб вшити її в зображення.</translation>
    </message>
    <message>
        <source>Hastened</source>
        <translation type="unfinished">Раніше</translation>
    </message>
    <message>
        <source>Delayed</source>
        <translation type="unfinished">Пізніше</translation>
    </message>
    <message>
        <source>Help on subtitles</source>
        <translation type="unfinished">Довідка про субтитри</translation>
    </message>
    <message>
        <source>Position shift</source>
        <translation type="unfinished">Зсув положення</translation>
    </message>
    <message>
        <source>Synchronization offset in seconds</source>
        <translation type="unfinished">Зсув синхронізації в секундах</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation type="unfinished">Колір тексту</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation type="unfinished">Колір контуру</translation>
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
        <translation type="unfinished">це тека</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="unfinished">це не файл</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation type="unfinished">його розмір більший за %1 байтів</translation>
    </message>
    <message>
        <source>its header cannot be read</source>
        <translation type="unfinished">його заголовок не читається</translation>
    </message>
    <message>
        <source>nothing in it can be read</source>
        <translation type="unfinished">у ньому нічого не можна прочитати</translation>
    </message>
    <message>
        <source>it holds no subtitles</source>
        <translation type="unfinished">у ньому немає субтитрів</translation>
    </message>
    <message>
        <source>it does not hold exactly one subtitle track</source>
        <translation type="unfinished">у ньому не рівно одна доріжка субтитрів</translation>
    </message>
    <message>
        <source>it has no picture</source>
        <translation type="unfinished">у ньому немає зображення</translation>
    </message>
    <message>
        <source>it has no picture that subtitles could be drawn into</source>
        <translation type="unfinished">у ньому немає зображення, у яке можна вшити субтитри</translation>
    </message>
    <message>
        <source>the size of its picture is not known</source>
        <translation type="unfinished">розмір його зображення невідомий</translation>
    </message>
    <message>
        <source>the picture has no usable size</source>
        <translation type="unfinished">розмір зображення непридатний</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation type="unfinished">жодного кадру не вдається декодувати</translation>
    </message>
    <message>
        <source>there is no decoder for it</source>
        <translation type="unfinished">для нього немає декодера</translation>
    </message>
    <message>
        <source>there is no decoder for track %1</source>
        <translation type="unfinished">для доріжки %1 немає декодера</translation>
    </message>
    <message>
        <source>its decoder refuses the stream: %1</source>
        <translation type="unfinished">його декодер не приймає потік: %1</translation>
    </message>
    <message>
        <source>its decoder does not know the options %1</source>
        <translation type="unfinished">його декодер не знає параметрів %1</translation>
    </message>
    <message>
        <source>its encoder refuses the sound: %1</source>
        <translation type="unfinished">його кодувальник не приймає звук: %1</translation>
    </message>
    <message>
        <source>its encoder refuses the picture (%1): %2</source>
        <translation type="unfinished">його кодувальник не приймає зображення (%1): %2</translation>
    </message>
    <message>
        <source>the encoder here is %1</source>
        <translation type="unfinished">тут кодувальник — %1</translation>
    </message>
    <message>
        <source>there is no encoder preset &quot;%1&quot;</source>
        <translation type="unfinished">немає набору налаштувань кодувальника «%1»</translation>
    </message>
    <message>
        <source>the text encoding &quot;%1&quot; is not known</source>
        <translation type="unfinished">кодування тексту «%1» невідоме</translation>
    </message>
    <message>
        <source>the text renderer could not be set up</source>
        <translation type="unfinished">не вдалося підготувати малювання тексту</translation>
    </message>
    <message>
        <source>it names a folder</source>
        <translation type="unfinished">це тека</translation>
    </message>
    <message>
        <source>it is a device or a pipe, not a file</source>
        <translation type="unfinished">це пристрій або канал, а не файл</translation>
    </message>
    <message>
        <source>a .%1 file</source>
        <translation type="unfinished">файл .%1</translation>
    </message>
    <message>
        <source>save it as .%1 instead</source>
        <translation type="unfinished">збережіть як .%1</translation>
    </message>
    <message>
        <source>it consists of pictures, so save it as .%1</source>
        <translation type="unfinished">вона складається з картинок, тому збережіть її як .%1</translation>
    </message>
    <message>
        <source>the encoder libx264 is missing</source>
        <translation type="unfinished">немає кодувальника libx264</translation>
    </message>
    <message>
        <source>subtitles can be switchable or drawn in, not both</source>
        <translation type="unfinished">субтитри можуть бути вимиканими або вшитими, але не тим і тим одразу</translation>
    </message>
    <message>
        <source>the quality goes from 0 to 51</source>
        <translation type="unfinished">якість — від 0 до 51</translation>
    </message>
    <message>
        <source>the chosen format</source>
        <translation type="unfinished">вибраний формат</translation>
    </message>
    <message>
        <source>draw it in</source>
        <translation type="unfinished">вшийте її в зображення</translation>
    </message>
    <message>
        <source>choose Matroska or draw it in</source>
        <translation type="unfinished">виберіть Matroska або вшийте її в зображення</translation>
    </message>
    <message>
        <source>draw it in or leave it out</source>
        <translation type="unfinished">вшийте її в зображення або вилучіть</translation>
    </message>
    <message>
        <source>you may not do this</source>
        <translation type="unfinished">немає прав доступу</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation type="unfinished">диск доступний лише для читання</translation>
    </message>
    <message>
        <source>the disk could not be read or written</source>
        <translation type="unfinished">не вдалося прочитати або записати дані на диск</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation type="unfinished">такого файлу або теки немає</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation type="unfinished">його назва задовга</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation type="unfinished">бракує пам&apos;яті</translation>
    </message>
    <message>
        <source>it holds data that make no sense</source>
        <translation type="unfinished">у ньому безглузді дані</translation>
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
        <translation type="unfinished">Доріжка %1 з «%2»</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no track %2: choose another track.</source>
        <translation type="unfinished">У файлі «%1» немає доріжки %2: виберіть іншу доріжку.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no subtitle track: choose another file.</source>
        <translation type="unfinished">У файлі «%1» немає доріжки субтитрів: виберіть інший файл.</translation>
    </message>
    <message>
        <source>choose another format, draw it in or leave it out</source>
        <translation type="unfinished">виберіть інший формат, вшийте субтитри в зображення або вилучіть їх</translation>
    </message>
    <message>
        <source>%1 is %2, which %3 cannot hold: %4.</source>
        <extracomment>%1: a track or a file, %2: its codec, %3: a format or a kind of file, %4: what to do</extracomment>
        <translation type="unfinished">%1 — це %2, а таке не може містити %3: %4.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read%2: choose another one, or check that you may open it.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Файл «%1» не читається%2: виберіть інший або перевірте, чи маєте право його відкривати.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is of no kind that can be used here%2: choose another one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Файл «%1» не того виду, який можна тут використати%2: виберіть інший.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged%2: try to get a complete copy.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Файл «%1» пошкоджено%2: спробуйте дістати цілу копію.</translation>
    </message>
    <message>
        <source>The text of &quot;%1&quot; cannot be drawn, because no usable font is installed%2: install one, for example DejaVu Sans.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Текст із «%1» не можна намалювати, бо не встановлено жодного придатного шрифту%2: установіть якийсь, наприклад DejaVu Sans.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written%2: choose another folder, or check that you may write to this one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Файл «%1» не можна записати%2: виберіть іншу теку або перевірте, чи маєте право запису в цю.</translation>
    </message>
    <message>
        <source>A setting for &quot;%1&quot; is not valid%2: correct it and try again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Неприпустиме налаштування для «%1»%2: виправте його і спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; failed%2: try again, and report it if it fails again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Не вдалося обробити «%1»%2: спробуйте ще раз і повідомте, якщо помилка повториться.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist any more: choose another one.</source>
        <translation type="unfinished">Файлу «%1» більше немає: виберіть інший.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty: choose another one.</source>
        <translation type="unfinished">Файл «%1» порожній: виберіть інший.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is not a subtitle track: choose another one.</source>
        <translation type="unfinished">Доріжка %1 з «%2» — не доріжка субтитрів: виберіть іншу.</translation>
    </message>
    <message>
        <source>The codec of &quot;%1&quot;, %2, cannot be used here%3: choose another file or another format.</source>
        <extracomment>%2: a codec, %3: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Кодек файлу «%1», %2, тут використати не можна%3: виберіть інший файл або інший формат.</translation>
    </message>
    <message>
        <source>The format of &quot;%1&quot; is not known%2: choose another one.</source>
        <extracomment>%2: what was asked for, in brackets, or nothing</extracomment>
        <translation type="unfinished">Формат файлу «%1» невідомий%2: виберіть інший.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has neither picture nor sound: choose another one.</source>
        <translation type="unfinished">У файлі «%1» немає ні зображення, ні звуку: виберіть інший.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already: choose another name.</source>
        <translation type="unfinished">Файл «%1» уже існує: виберіть іншу назву.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is being read, so it cannot be written: choose another name.</source>
        <translation type="unfinished">Файл «%1» саме читається, тому записати його не можна: виберіть іншу назву.</translation>
    </message>
    <message>
        <source>The folder of &quot;%1&quot; does not exist: create it, or choose another one.</source>
        <translation type="unfinished">Теки для «%1» не існує: створіть її або виберіть іншу.</translation>
    </message>
    <message>
        <source>The disk is full, so &quot;%1&quot; was not written: free some space, or choose another folder.</source>
        <translation type="unfinished">Диск заповнено, тому «%1» не записано: звільніть місце або виберіть іншу теку.</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; was cancelled: start it again if you want it.</source>
        <translation type="unfinished">Обробку «%1» скасовано: запустіть її знову, якщо потрібно.</translation>
    </message>
</context>
<context>
    <name>ExternalSubtitlesDialog</name>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Вибрати субтитри</translation>
    </message>
    <message>
        <source>Subtitle files (%1)</source>
        <translation type="unfinished">Файли субтитрів (%1)</translation>
    </message>
</context>
<context>
    <name>FilmRow</name>
    <message>
        <source>Paused</source>
        <translation type="unfinished">Призупинено</translation>
    </message>
    <message>
        <source>Preparing subtitles</source>
        <translation type="unfinished">Підготовка субтитрів</translation>
    </message>
    <message>
        <source>Converting</source>
        <translation type="unfinished">Перетворення</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished">У черзі</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation type="unfinished">Перетворено</translation>
    </message>
    <message numerus="yes">
        <source>Converted, with %n remark(s)</source>
        <translation type="unfinished">
            <numerusform>Перетворено, %n зауваження</numerusform>
            <numerusform>Перетворено, %n зауваження</numerusform>
            <numerusform>Перетворено, %n зауважень</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished">Скасовано</translation>
    </message>
    <message>
        <source>Reading the film</source>
        <translation type="unfinished">Читання фільму</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">Показати в теці</translation>
    </message>
    <message>
        <source>Converted, but it breaks off after %1 of %2</source>
        <translation type="unfinished">Перетворено, але обривається після %1 із %2</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::AutocompleteField</name>
    <message>
        <source>Film or series</source>
        <translation type="unfinished">Фільм або серіал</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">Назва</translation>
    </message>
    <message>
        <source>Suggested titles</source>
        <translation type="unfinished">Підказані назви</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ImdbIdValidator</name>
    <message numerus="yes">
        <source>The IMDb id is too short: it has at least %n digit(s), as in tt0123456.</source>
        <translation type="unfinished">
            <numerusform>Номер IMDb закороткий: у ньому не менше %n цифри, як у tt0123456.</numerusform>
            <numerusform>Номер IMDb закороткий: у ньому не менше %n цифр, як у tt0123456.</numerusform>
            <numerusform>Номер IMDb закороткий: у ньому не менше %n цифр, як у tt0123456.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The IMDb id is too long: it has at most %n digit(s).</source>
        <translation type="unfinished">
            <numerusform>Номер IMDb задовгий: у ньому не більше %n цифри.</numerusform>
            <numerusform>Номер IMDb задовгий: у ньому не більше %n цифр.</numerusform>
            <numerusform>Номер IMDb задовгий: у ньому не більше %n цифр.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and a number, or the number alone, as in tt0123456.</source>
        <translation type="unfinished">Це не номер IMDb: введіть «tt» і число або тільки число, як у tt0123456.</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ItemPanel</name>
    <message>
        <source>Subtitles of this film</source>
        <translation type="unfinished">Субтитри цього фільму</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Вибрати субтитри</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Додати субтитри</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">Вибрати файл</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">Знайти файл</translation>
    </message>
    <message>
        <source>Apply to all files</source>
        <translation type="unfinished">Застосувати до всіх файлів</translation>
    </message>
    <message>
        <source>Makes the same choice for every film of the list</source>
        <translation type="unfinished">Робить такий самий вибір для кожного фільму у списку</translation>
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
        <translation type="unfinished">Мови: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelectorList</name>
    <message>
        <source>Languages to search in</source>
        <translation type="unfinished">Мови пошуку</translation>
    </message>
    <message>
        <source>Find a language</source>
        <translation type="unfinished">Знайти мову</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindow</name>
    <message>
        <source>Type a title and press &quot;Search&quot;.</source>
        <translation type="unfinished">Введіть назву й натисніть «Знайти».</translation>
    </message>
    <message>
        <source>Find subtitles</source>
        <translation type="unfinished">Знайти субтитри</translation>
    </message>
    <message>
        <source>Find subtitles: %1</source>
        <translation type="unfinished">Знайти субтитри: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowFields</name>
    <message>
        <source>&amp;Title</source>
        <translation type="unfinished">&amp;Назва</translation>
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
        <translation type="unfinished">Сер&amp;ія</translation>
    </message>
    <message>
        <source>Episode</source>
        <translation type="unfinished">Серія</translation>
    </message>
    <message>
        <source>&amp;Episode...</source>
        <translation type="unfinished">Сер&amp;ія...</translation>
    </message>
    <message>
        <source>Search for an episode of a series</source>
        <translation type="unfinished">Шукати серію серіалу</translation>
    </message>
    <message>
        <source>Sea&amp;rch</source>
        <translation type="unfinished">Зна&amp;йти</translation>
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
        <translation type="unfinished">Номер фільму в IMDb, як у tt0123456</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation type="unfinished">&amp;Мови</translation>
    </message>
    <message>
        <source>E&amp;xactly this file</source>
        <translation type="unfinished">Саме &amp;цей файл</translation>
    </message>
    <message>
        <source>Finds subtitles by the fingerprint of the file, whatever its name is</source>
        <translation type="unfinished">Знаходить субтитри за відбитком файлу, хоч би як він називався</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowStatus</name>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">Пошук...</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation type="unfinished">Завантаження...</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation type="unfinished">Скасування...</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found</source>
        <translation type="unfinished">
            <numerusform>Знайдено %n субтитри</numerusform>
            <numerusform>Знайдено %n субтитри</numerusform>
            <numerusform>Знайдено %n субтитрів</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">Ск&amp;асувати</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Download %n</source>
        <translation type="unfinished">
            <numerusform>&amp;Завантажити %n</numerusform>
            <numerusform>&amp;Завантажити %n</numerusform>
            <numerusform>&amp;Завантажити %n</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Download</source>
        <translation type="unfinished">&amp;Завантажити</translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished">Закрити</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ResultList</name>
    <message>
        <source>Smallest first; press to turn it round</source>
        <translation type="unfinished">Спочатку менші; натисніть, щоб обернути порядок</translation>
    </message>
    <message>
        <source>Largest first; press to turn it round</source>
        <translation type="unfinished">Спочатку більші; натисніть, щоб обернути порядок</translation>
    </message>
    <message numerus="yes">
        <source>None of the %n subtitle(s) found holds &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>Знайдено %n субтитри, але без «%1».</numerusform>
            <numerusform>Знайдено %n субтитри, але в жодних немає «%1».</numerusform>
            <numerusform>Знайдено %n субтитрів, але в жодних немає «%1».</numerusform>
        </translation>
    </message>
    <message>
        <source>Best match</source>
        <translation type="unfinished">Найкращий збіг</translation>
    </message>
    <message>
        <source>Subtitles found</source>
        <translation type="unfinished">Знайдені субтитри</translation>
    </message>
    <message>
        <source>Filter the list</source>
        <translation type="unfinished">Відфільтрувати список</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation type="unfinished">Сор&amp;тування</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation type="unfinished">Сортування</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::AboutDialog</name>
    <message>
        <source>About Korvex Subtitles</source>
        <translation type="unfinished">Про програму Korvex Subtitles</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished">Версія %1</translation>
    </message>
    <message>
        <source>Converts films with their subtitles: as tracks that can be switched on and off, or drawn into the picture.

Free software under the GNU General Public License, version 3 or later. It comes without any warranty.

It is built on Qt, FFmpeg and libass.</source>
        <translation type="unfinished">Перетворює фільми із субтитрами: вимиканими доріжками або вшитими в зображення.

Вільна програма за ліцензією GNU General Public License версії 3 або новішої. Без жодних гарантій.

Побудована на Qt, FFmpeg та libass.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Actions</name>
    <message>
        <source>&amp;Add films...</source>
        <translation type="unfinished">&amp;Додати фільми...</translation>
    </message>
    <message>
        <source>Add &amp;subtitles...</source>
        <translation type="unfinished">Додати &amp;субтитри...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished">Ви&amp;йти</translation>
    </message>
    <message>
        <source>&amp;Subtitles...</source>
        <translation type="unfinished">&amp;Субтитри...</translation>
    </message>
    <message>
        <source>Apply these subtitles to &amp;all</source>
        <translation type="unfinished">Застосувати ці субтитри до &amp;всіх</translation>
    </message>
    <message>
        <source>&amp;Copy as command line</source>
        <translation type="unfinished">&amp;Копіювати як командний рядок</translation>
    </message>
    <message>
        <source>Show &amp;output in folder</source>
        <translation type="unfinished">Показати &amp;результат у теці</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">&amp;Прибрати зі списку</translation>
    </message>
    <message>
        <source>&amp;Previous film</source>
        <translation type="unfinished">&amp;Попередній фільм</translation>
    </message>
    <message>
        <source>&amp;Next film</source>
        <translation type="unfinished">&amp;Наступний фільм</translation>
    </message>
    <message>
        <source>Convert &amp;all</source>
        <translation type="unfinished">Перетворити &amp;всі</translation>
    </message>
    <message>
        <source>Convert this &amp;film</source>
        <translation type="unfinished">Перетворити цей &amp;фільм</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">&amp;Призупинити</translation>
    </message>
    <message>
        <source>&amp;Cancel this film</source>
        <translation type="unfinished">&amp;Скасувати цей фільм</translation>
    </message>
    <message>
        <source>Cancel a&amp;ll</source>
        <translation type="unfinished">Скасувати &amp;все</translation>
    </message>
    <message>
        <source>Same as &amp;system</source>
        <translation type="unfinished">Як у &amp;системі</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished">&amp;Світла</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished">&amp;Темна</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation type="unfinished">&amp;Комбінації клавіш</translation>
    </message>
    <message>
        <source>&amp;About Korvex Subtitles</source>
        <translation type="unfinished">&amp;Про програму Korvex Subtitles</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished">Прибрати</translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished">Додати</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation type="unfinished">На&amp;лаштування...</translation>
    </message>
    <message>
        <source>Find subtitles on&amp;line...</source>
        <translation type="unfinished">&amp;Знайти субтитри в інтернеті...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyReportDialog</name>
    <message>
        <source>Applied to all films</source>
        <translation type="unfinished">Застосовано до всіх фільмів</translation>
    </message>
    <message>
        <source>Subtitles as in &quot;%1&quot;</source>
        <translation type="unfinished">Субтитри як у «%1»</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyToAll</name>
    <message>
        <source>&quot;%1&quot;: nothing changed, because the film cannot be read at the moment.</source>
        <translation type="unfinished">«%1»: нічого не змінено, бо фільм зараз не читається.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: nothing changed, because it has no track like %2 and no file of that name.</source>
        <translation type="unfinished">«%1»: нічого не змінено, бо немає ні доріжки на кшталт %2, ні файлу з такою назвою.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::CommandLineText</name>
    <message>
        <source>A picture that cannot be copied is encoded with --crf %1 there and %2 here.</source>
        <translation type="unfinished">Зображення, яке не можна скопіювати, кодується там із --crf %1, а тут із %2.</translation>
    </message>
    <message>
        <source>The text cannot be moved by more than %1 lines.</source>
        <translation type="unfinished">Текст не можна зсунути більш ніж на стільки рядків: %1.</translation>
    </message>
    <message>
        <source>The font size %1 is not a whole number up to %2: the nearest one stands for it.</source>
        <translation type="unfinished">Розмір шрифту %1 — не ціле число до %2: береться найближче.</translation>
    </message>
    <message>
        <source>%1 keeps its own language, title and forced mark.</source>
        <translation type="unfinished">%1: зберігає свою мову, назву й позначку примусових.</translation>
    </message>
    <message>
        <source>%1 keeps the language, title and forced mark that its name states.</source>
        <translation type="unfinished">%1: зберігає мову, назву й позначку примусових з назви файлу.</translation>
    </message>
    <message>
        <source>%1 goes out without its mark for the hard of hearing.</source>
        <translation type="unfinished">%1: виводиться без позначки для людей із вадами слуху.</translation>
    </message>
    <message>
        <source>Which of the film&apos;s own tracks players show by themselves stays as in the film.</source>
        <translation type="unfinished">Які власні доріжки фільму програвачі показують самі, залишається як у фільмі.</translation>
    </message>
    <message>
        <source>The files have different encodings: all are read as they are detected.</source>
        <translation type="unfinished">Кодування файлів різні: усі читаються так, як визначено.</translation>
    </message>
    <message>
        <source>The tracks are moved by different offsets: none is moved.</source>
        <translation type="unfinished">Зсуви доріжок різні: жодна не зсувається.</translation>
    </message>
    <message>
        <source>Text cannot be moved by more than a day.</source>
        <translation type="unfinished">Текст не можна зсунути більш ніж на добу.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionControl</name>
    <message>
        <source>Quit while converting?</source>
        <translation type="unfinished">Вийти під час перетворення?</translation>
    </message>
    <message>
        <source>Films are still being converted. Quitting cancels them; what is finished stays.</source>
        <translation type="unfinished">Фільми ще перетворюються. Вихід це скасує; готове залишиться.</translation>
    </message>
    <message>
        <source>Cancel conversions and quit</source>
        <translation type="unfinished">Скасувати перетворення й вийти</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">Продовжити перетворення</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionQueue</name>
    <message>
        <source>The subtitles of &quot;%1&quot; cannot go out as chosen: choose them again.</source>
        <translation type="unfinished">Субтитри «%1» не можна вивести так, як вибрано; виберіть їх наново.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::DropHighlight</name>
    <message>
        <source>Drop films, folders or subtitle files</source>
        <translation type="unfinished">Перетягніть фільми, теки або файли субтитрів</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::EmptyPage</name>
    <message>
        <source>Drop films here or choose files</source>
        <translation type="unfinished">Перетягніть фільми сюди або виберіть файли</translation>
    </message>
    <message>
        <source>Folders work too. Subtitle files beside a film are found automatically.</source>
        <translation type="unfinished">Можна й теки. Файли субтитрів поруч із фільмом знаходяться самі.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FetchedSubtitles</name>
    <message>
        <source>&quot;%1&quot; was added to &quot;%2&quot;.</source>
        <translation type="unfinished">«%1» додано до «%2».</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle file(s) were added to &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>До «%1» додано %n файл субтитрів.</numerusform>
            <numerusform>До «%1» додано %n файли субтитрів.</numerusform>
            <numerusform>До «%1» додано %n файлів субтитрів.</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">Скасувати</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FileActions</name>
    <message>
        <source>&quot;%1&quot; needs a film to go with: add the film first.</source>
        <translation type="unfinished">Для «%1» потрібен фільм: спершу додайте фільм.</translation>
    </message>
    <message>
        <source>No new film was found in &quot;%1&quot;: choose a folder with films.</source>
        <translation type="unfinished">У «%1» не знайдено нових фільмів: виберіть теку з фільмами.</translation>
    </message>
    <message>
        <source>Add films</source>
        <translation type="unfinished">Додати фільми</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">Субтитри</translation>
    </message>
    <message>
        <source>All files</source>
        <translation type="unfinished">Усі файли</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Додати субтитри</translation>
    </message>
    <message>
        <source>Where is &quot;%1&quot; now?</source>
        <translation type="unfinished">Де тепер «%1»?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the list already: show another file, or remove &quot;%2&quot; from the list.</source>
        <translation type="unfinished">«%1» вже є у списку: вкажіть інший файл або приберіть «%2» зі списку.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Film</name>
    <message>
        <source>The film &quot;%1&quot; is not there any more: show where it is now, or remove it from the list.</source>
        <translation type="unfinished">Фільму «%1» більше немає на місці: вкажіть, де він тепер, або приберіть його зі списку.</translation>
    </message>
    <message>
        <source>Locate...</source>
        <translation type="unfinished">Вказати...</translation>
    </message>
    <message>
        <source>No subtitles, as it stands</source>
        <translation type="unfinished">Поки без субтитрів</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmActions</name>
    <message>
        <source>Remove a film that is being converted?</source>
        <translation type="unfinished">Прибрати фільм, який перетворюється?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is being converted. Removing it cancels its conversion.</source>
        <translation type="unfinished">«%1» перетворюється. Вилучення зі списку це скасує.</translation>
    </message>
    <message>
        <source>Cancel conversion and remove</source>
        <translation type="unfinished">Скасувати перетворення й прибрати</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation type="unfinished">Залишити</translation>
    </message>
    <message>
        <source>No file manager could be started: the film is &quot;%1&quot;.</source>
        <translation type="unfinished">Не вдалося запустити файловий менеджер: фільм — «%1».</translation>
    </message>
    <message>
        <source>The command line is in the clipboard.</source>
        <translation type="unfinished">Командний рядок скопійовано до буфера обміну.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmListPane</name>
    <message numerus="yes">
        <source>%n film(s)</source>
        <translation type="unfinished">
            <numerusform>%n фільм</numerusform>
            <numerusform>%n фільми</numerusform>
            <numerusform>%n фільмів</numerusform>
        </translation>
    </message>
    <message>
        <source>Films</source>
        <translation type="unfinished">Фільми</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmWords</name>
    <message>
        <source>Track %1</source>
        <translation type="unfinished">Доріжка %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n track(s)</source>
        <translation type="unfinished">
            <numerusform>%n доріжка</numerusform>
            <numerusform>Усі %n доріжки</numerusform>
            <numerusform>Усі %n доріжок</numerusform>
        </translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">Без субтитрів</translation>
    </message>
    <message>
        <source>Drawn in: %1</source>
        <translation type="unfinished">Вшито: %1</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no subtitles that can be read: remove it.</source>
        <translation type="unfinished">У файлі «%1» немає субтитрів, які можна прочитати: приберіть його.</translation>
    </message>
    <message>
        <source>Remove the file</source>
        <translation type="unfinished">Прибрати файл</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: draw it in, or leave it out.</source>
        <translation type="unfinished">%1: не можна помістити в %2; вшийте доріжку в зображення або вилучіть.</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: choose %3, draw it in, or leave it out.</source>
        <translation type="unfinished">%1: не можна помістити в %2; виберіть %3, вшийте доріжку в зображення або вилучіть.</translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation type="unfinished">Вибрати %1</translation>
    </message>
    <message>
        <source>%1 cannot be moved in time while it stays a track: draw it in, set its offset to 0, or leave it out.</source>
        <translation type="unfinished">%1: доріжку не можна зсунути в часі; вшийте її в зображення, установіть зсув 0 або вилучіть.</translation>
    </message>
    <message>
        <source>Set its offset to 0</source>
        <translation type="unfinished">Установити зсув 0</translation>
    </message>
    <message>
        <source>%1 cannot be read in another encoding while it stays a track: draw it in, or leave it out.</source>
        <translation type="unfinished">%1: доріжку не можна прочитати в іншому кодуванні; вшийте її в зображення або вилучіть.</translation>
    </message>
    <message>
        <source>Draw it in</source>
        <translation type="unfinished">Вшити в зображення</translation>
    </message>
    <message>
        <source>Leave it out</source>
        <translation type="unfinished">Вилучити</translation>
    </message>
    <message>
        <source>%1 is moved by %2 s.</source>
        <translation type="unfinished">%1: буде зсунуто на %2 с.</translation>
    </message>
    <message>
        <source>%1 is read as %2.</source>
        <translation type="unfinished">%1: буде прочитано як %2.</translation>
    </message>
    <message>
        <source>%1 goes into %2 as plain text and loses its styles.</source>
        <translation type="unfinished">%1: увійде до %2 простим текстом і втратить оформлення.</translation>
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
        <translation type="unfinished">Філ&amp;ьм</translation>
    </message>
    <message>
        <source>Put left-out tracks &amp;back</source>
        <translation type="unfinished">&amp;Повернути вилучені доріжки</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation type="unfinished">&amp;Перетворення</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished">&amp;Вигляд</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished">&amp;Тема</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished">&amp;Мова</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished">&amp;Довідка</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::NoticeBar</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished">%1 з %2</translation>
    </message>
    <message>
        <source>Previous notice</source>
        <translation type="unfinished">Попереднє повідомлення</translation>
    </message>
    <message>
        <source>Next notice</source>
        <translation type="unfinished">Наступне повідомлення</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation type="unfinished">Закрити це повідомлення</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Notices</name>
    <message>
        <source>Try again</source>
        <translation type="unfinished">Повторити</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">Показати в теці</translation>
    </message>
    <message>
        <source>Show the first that failed</source>
        <translation type="unfinished">Показати перший невдалий</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::OutputBar</name>
    <message>
        <source>Same as source</source>
        <translation type="unfinished">Як джерело</translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished">Висока</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished">Середня</translation>
    </message>
    <message>
        <source>Small</source>
        <translation type="unfinished">Малий файл</translation>
    </message>
    <message>
        <source>The picture is copied unchanged where nothing is drawn into it and the format can carry it; otherwise it is encoded in high quality.</source>
        <translation type="unfinished">Зображення копіюється без змін, якщо в нього нічого не вшивається і формат його підтримує; інакше воно кодується у високій якості.</translation>
    </message>
    <message>
        <source>The picture is encoded anew; differences are next to invisible.</source>
        <translation type="unfinished">Зображення кодується наново; відмінності майже непомітні.</translation>
    </message>
    <message>
        <source>The picture is encoded anew; good for watching, in a smaller file.</source>
        <translation type="unfinished">Зображення кодується наново; добре для перегляду, файл менший.</translation>
    </message>
    <message>
        <source>The picture is encoded anew into a small file; losses are visible.</source>
        <translation type="unfinished">Зображення кодується наново в невеликий файл; втрати помітні.</translation>
    </message>
    <message>
        <source>paused</source>
        <translation type="unfinished">призупинено</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished">%1, %2</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation type="unfinished">&amp;Продовжити</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">&amp;Призупинити</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">Продовжити перетворення</translation>
    </message>
    <message>
        <source>Wait until you resume</source>
        <translation type="unfinished">Зупинити до продовження</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation type="unfinished">&amp;Формат</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation type="unfinished">Формат виводу</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation type="unfinished">&amp;Якість</translation>
    </message>
    <message>
        <source>Quality of the picture</source>
        <translation type="unfinished">Якість зображення</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished">&amp;Зберегти</translation>
    </message>
    <message>
        <source>Beside each film</source>
        <translation type="unfinished">Поруч із кожним фільмом</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation type="unfinished">Вибрати теку...</translation>
    </message>
    <message>
        <source>&amp;Convert all</source>
        <translation type="unfinished">&amp;Перетворити всі</translation>
    </message>
    <message>
        <source>Convert all films that are ready</source>
        <translation type="unfinished">Перетворити всі готові фільми</translation>
    </message>
    <message>
        <source>Only &amp;this film</source>
        <translation type="unfinished">Тільки &amp;цей фільм</translation>
    </message>
    <message>
        <source>Convert the film that is chosen in the list, and no other</source>
        <translation type="unfinished">Перетворити тільки фільм, вибраний у списку</translation>
    </message>
    <message>
        <source>Progress of all conversions</source>
        <translation type="unfinished">Перебіг усіх перетворень</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation type="unfinished">&amp;Скасувати</translation>
    </message>
    <message>
        <source>Stop converting; half-written files are removed</source>
        <translation type="unfinished">Зупинити перетворення; недописані файли видаляються</translation>
    </message>
    <message>
        <source>Where to save</source>
        <translation type="unfinished">Де зберегти</translation>
    </message>
    <message>
        <source>Output folder: %1</source>
        <translation type="unfinished">Тека виводу: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::PreviewPane</name>
    <message>
        <source>Drop films here.</source>
        <translation type="unfinished">Перетягніть фільми сюди.</translation>
    </message>
    <message>
        <source>The film is being read.</source>
        <translation type="unfinished">Фільм читається.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no picture, so there is nothing to see. Its sound can be converted.</source>
        <translation type="unfinished">У «%1» немає зображення, тож дивитися нема на що. Звук можна перетворити.</translation>
    </message>
    <message>
        <source>There are no subtitles. Add a subtitle file to see it drawn in.</source>
        <translation type="unfinished">Субтитрів немає. Додайте файл субтитрів, щоб побачити їх вшитими.</translation>
    </message>
    <message>
        <source>All tracks stay switchable. Choose one to see it drawn in.</source>
        <translation type="unfinished">Доріжки лишаються вимиканими. Виберіть одну для перегляду.</translation>
    </message>
    <message>
        <source>Choose a track to see it drawn in.</source>
        <translation type="unfinished">Виберіть доріжку, щоб побачити її вшитою.</translation>
    </message>
    <message>
        <source>All tracks stay switchable.</source>
        <translation type="unfinished">Доріжки лишаються вимиканими.</translation>
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
        <translation type="unfinished">Попередній субтитр</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation type="unfinished">Наступний субтитр</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished">Попередній перегляд</translation>
    </message>
    <message>
        <source>Position in the film</source>
        <translation type="unfinished">Місце у фільмі</translation>
    </message>
    <message>
        <source>Where the cues are</source>
        <translation type="unfinished">Де розташовані субтитри</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>position / length</comment>
        <translation type="unfinished">%1 / %2</translation>
    </message>
    <message>
        <source>The subtitles are being read.</source>
        <translation type="unfinished">Субтитри читаються.</translation>
    </message>
    <message>
        <source>This track has no lines.</source>
        <translation type="unfinished">У цій доріжці немає реплік.</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the next one.</source>
        <comment>keys</comment>
        <translation type="unfinished">Тут немає репліки: %1 — перейти до наступної.</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the one before.</source>
        <comment>keys</comment>
        <translation type="unfinished">Тут немає репліки: %1 — перейти до попередньої.</translation>
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
        <translation type="unfinished">Субтитри Blu-ray (*.sup)</translation>
    </message>
    <message>
        <source>Matroska (*.mkv *.mks)</source>
        <translation type="unfinished">Matroska (*.mkv *.mks)</translation>
    </message>
    <message>
        <source>Save the track as</source>
        <translation type="unfinished">Зберегти доріжку як</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; was saved as %2 with %n cue(s)</source>
        <translation type="unfinished">
            <numerusform>«%1» збережено як %2: %n субтитр</numerusform>
            <numerusform>«%1» збережено як %2: %n субтитри</numerusform>
            <numerusform>«%1» збережено як %2: %n субтитрів</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) could not be read as %1</source>
        <translation type="unfinished">
            <numerusform>%n байт не вдалося прочитати як %1</numerusform>
            <numerusform>%n байти не вдалося прочитати як %1</numerusform>
            <numerusform>%n байтів не вдалося прочитати як %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) without usable times were left out</source>
        <translation type="unfinished">
            <numerusform>пропущено %n субтитр без придатного часу</numerusform>
            <numerusform>пропущено %n субтитри без придатного часу</numerusform>
            <numerusform>пропущено %n субтитрів без придатного часу</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of no duration were left out</source>
        <translation type="unfinished">
            <numerusform>пропущено %n субтитр без тривалості</numerusform>
            <numerusform>пропущено %n субтитри без тривалості</numerusform>
            <numerusform>пропущено %n субтитрів без тривалості</numerusform>
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
        <translation type="unfinished">З назви «%1» не зрозуміло, як зберегти доріжку: нехай вона закінчується на .srt, .ass, .sup або .mkv.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is %3, which no subtitle file can hold: draw it into the picture instead.</source>
        <translation type="unfinished">Доріжка %1 з «%2» — %3, її не можна зберегти у файл субтитрів: вшийте її в зображення.</translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation type="unfinished">Збереження «%1»</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Скасувати</translation>
    </message>
    <message>
        <source>Save a track</source>
        <translation type="unfinished">Зберегти доріжку</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SessionStore</name>
    <message>
        <source>The last list of films, &quot;%1&quot;, cannot be read, so nothing is saved this time: rename or remove that file.</source>
        <translation type="unfinished">Попередній список у «%1» не читається, і цього разу нічого не зберігається: перейменуйте або видаліть цей файл.</translation>
    </message>
    <message>
        <source>The last list of films was written by a newer version of the program; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">Попередній список записано новішою версією програми; його збережено як «%1». Відкрийте фільми наново.</translation>
    </message>
    <message>
        <source>The last list of films is damaged; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">Попередній список пошкоджено; його збережено як «%1». Відкрийте фільми наново.</translation>
    </message>
    <message>
        <source>The list of films could not be saved in &quot;%1&quot; (%2): check that you may write there.</source>
        <translation type="unfinished">Список фільмів не вдалося зберегти в «%1» (%2): перевірте, чи можна туди писати.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished">Налаштування</translation>
    </message>
    <message>
        <source>Online service</source>
        <translation type="unfinished">Онлайн-сервіс</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished">Статистика</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">Гаразд</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Скасувати</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsOnlinePage</name>
    <message>
        <source>version 1 of OpenSubtitles, because an API key is set.</source>
        <translation type="unfinished">версія 1 OpenSubtitles, бо ключ API задано.</translation>
    </message>
    <message>
        <source>version 1 of OpenSubtitles, because the configuration file says so. It answers nobody without an API key: enter one below.</source>
        <translation type="unfinished">версія 1 OpenSubtitles, бо так указано у файлі конфігурації. Без ключа API вона нікому не відповідає: введіть його нижче.</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because the configuration file says so. The API key is not used.</source>
        <translation type="unfinished">старий інтерфейс OpenSubtitles, бо так указано у файлі конфігурації. Ключ API не використовується.</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because no API key is set.</source>
        <translation type="unfinished">старий інтерфейс OpenSubtitles, бо ключ API не задано.</translation>
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
        <translation type="unfinished">&amp;Показати</translation>
    </message>
    <message>
        <source>Fetched &amp;files:</source>
        <translation type="unfinished">&amp;Завантажені файли:</translation>
    </message>
    <message>
        <source>Folder for fetched files</source>
        <translation type="unfinished">Тека для завантажених файлів</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation type="unfinished">&amp;Вибрати...</translation>
    </message>
    <message>
        <source>&amp;Usual folder</source>
        <translation type="unfinished">Звича&amp;йна тека</translation>
    </message>
    <message>
        <source>Version 1:</source>
        <translation type="unfinished">Версія 1:</translation>
    </message>
    <message>
        <source>Older interface:</source>
        <translation type="unfinished">Старий інтерфейс:</translation>
    </message>
    <message>
        <source>The addresses are set in the configuration file &quot;%1&quot;.</source>
        <translation type="unfinished">Адреси задаються у файлі конфігурації «%1».</translation>
    </message>
    <message>
        <source>In use: %1</source>
        <translation type="unfinished">Використовується: %1</translation>
    </message>
    <message>
        <source>From the next start of the program on: %1</source>
        <translation type="unfinished">З наступного запуску програми: %1</translation>
    </message>
    <message>
        <source>Folder for fetched subtitle files</source>
        <translation type="unfinished">Тека для завантажених файлів субтитрів</translation>
    </message>
    <message>
        <source>It comes from the account pages of opensubtitles.com, is kept in the configuration file, and is used from the next start on.</source>
        <translation type="unfinished">Його дають на сторінках облікового запису opensubtitles.com; він зберігається у файлі конфігурації та діє з наступного запуску.</translation>
    </message>
    <message>
        <source>The variable %1 of the environment sets it.</source>
        <translation type="unfinished">Його задає змінна середовища %1.</translation>
    </message>
    <message>
        <source>This is no API key: a key has no blanks and no special characters. Copy it again.</source>
        <translation type="unfinished">Це не ключ API: у ключі немає ані пробілів, ані спеціальних знаків. Скопіюйте його ще раз.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsStatisticsPage</name>
    <message>
        <source>If you agree, the program counts how the online search is used: from where it is opened, which fields are filled in, how many searches find something, nothing or fail, and how many files are fetched. Names, folders and what you type are never recorded. The record stays on this computer; it is sent to nobody.</source>
        <translation type="unfinished">Якщо ви згодні, програма рахує, як використовується онлайн-пошук: звідки його відкрито, які поля заповнено, скільки пошуків щось знаходять, нічого не знаходять або не вдаються і скільки файлів завантажено. Назви, теки й те, що ви вводите, ніколи не записуються. Запис лишається на цьому комп&apos;ютері й нікому не надсилається.</translation>
    </message>
    <message>
        <source>&amp;Count how the online search is used</source>
        <translation type="unfinished">&amp;Рахувати, як використовується онлайн-пошук</translation>
    </message>
    <message>
        <source>&amp;Recorded in &quot;%1&quot;:</source>
        <translation type="unfinished">&amp;Записано в «%1»:</translation>
    </message>
    <message>
        <source>Nothing has been recorded.</source>
        <translation type="unfinished">Нічого не записано.</translation>
    </message>
    <message>
        <source>What has been recorded</source>
        <translation type="unfinished">Що записано</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">&amp;Видалити</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ShortcutsDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished">Комбінації клавіш</translation>
    </message>
    <message>
        <source>In the list: subtitles of the film</source>
        <translation type="unfinished">У списку: субтитри фільму</translation>
    </message>
    <message>
        <source>In the list: menu of the film</source>
        <translation type="unfinished">У списку: меню фільму</translation>
    </message>
    <message>
        <source>Close what is open</source>
        <translation type="unfinished">Закрити відкрите</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpPane</name>
    <message>
        <source>Help with the text</source>
        <translation type="unfinished">Довідка щодо тексту</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpTexts</name>
    <message>
        <source>The file itself says that it is %1.</source>
        <translation type="unfinished">Сам файл указує, що це %1.</translation>
    </message>
    <message>
        <source>Detected: %1, certain.</source>
        <translation type="unfinished">Визначено: %1, точно.</translation>
    </message>
    <message>
        <source>Nothing tells the encoding; %1 is a guess.</source>
        <translation type="unfinished">Ніщо не вказує на кодування; %1 — припущення.</translation>
    </message>
    <message>
        <source>Detected: %1, very sure (%2).</source>
        <translation type="unfinished">Визначено: %1, дуже впевнено (%2).</translation>
    </message>
    <message>
        <source>Detected: %1, fairly sure (%2).</source>
        <translation type="unfinished">Визначено: %1, досить упевнено (%2).</translation>
    </message>
    <message>
        <source>Detected: %1, not sure (%2).</source>
        <translation type="unfinished">Визначено: %1, невпевнено (%2).</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) cannot be read in this encoding and show as &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>%n байт не читається в цьому кодуванні й показаний як «%1».</numerusform>
            <numerusform>%n байти не читаються в цьому кодуванні й показані як «%1».</numerusform>
            <numerusform>%n байтів не читаються в цьому кодуванні й показані як «%1».</numerusform>
        </translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; is not installed; &quot;%2&quot; stands in.</source>
        <translation type="unfinished">Шрифт «%1» не встановлено; його замінює «%2».</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">японські</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation type="unfinished">китайські</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">корейські</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation type="unfinished">кирилиця</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">грецькі</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">єврейські</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">арабські</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">тайські</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation type="unfinished">деванагарі</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; lacks %n character(s) of this text (%2): &quot;%3&quot; stands in.</source>
        <translation type="unfinished">
            <numerusform>У «%1» немає %n символу цього тексту (%2): його замінює «%3».</numerusform>
            <numerusform>У «%1» немає %n символів цього тексту (%2): їх замінює «%3».</numerusform>
            <numerusform>У «%1» немає %n символів цього тексту (%2): їх замінює «%3».</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No installed font has %n character(s) of this text (%1); they show as empty boxes.</source>
        <translation type="unfinished">
            <numerusform>У жодному встановленому шрифті немає %n символу цього тексту (%1); він показаний порожнім квадратом.</numerusform>
            <numerusform>У жодному встановленому шрифті немає %n символів цього тексту (%1); вони показані порожніми квадратами.</numerusform>
            <numerusform>У жодному встановленому шрифті немає %n символів цього тексту (%1); вони показані порожніми квадратами.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpView</name>
    <message>
        <source>It could also read:</source>
        <translation type="unfinished">Можна прочитати й так:</translation>
    </message>
    <message>
        <source>First lines of the text</source>
        <translation type="unfinished">Перші рядки тексту</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackActions</name>
    <message>
        <source>Quit while saving?</source>
        <translation type="unfinished">Вийти під час збереження?</translation>
    </message>
    <message>
        <source>A track is still being saved. Quitting cancels that, and no file is written.</source>
        <translation type="unfinished">Доріжка ще зберігається. Вихід це скасує, і файл не буде записано.</translation>
    </message>
    <message>
        <source>Cancel saving and quit</source>
        <translation type="unfinished">Скасувати збереження й вийти</translation>
    </message>
    <message>
        <source>Go on saving</source>
        <translation type="unfinished">Продовжити збереження</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackMenu</name>
    <message>
        <source>&amp;Draw in</source>
        <translation type="unfinished">&amp;Вшити в зображення</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">&amp;Прибрати зі списку</translation>
    </message>
    <message>
        <source>&amp;Leave out of the output</source>
        <translation type="unfinished">&amp;Вилучити з виводу</translation>
    </message>
    <message>
        <source>Language, &amp;title and marks...</source>
        <translation type="unfinished">Мова, &amp;назва та позначки...</translation>
    </message>
    <message>
        <source>&amp;Put back</source>
        <translation type="unfinished">&amp;Повернути</translation>
    </message>
    <message>
        <source>&amp;Save as a file...</source>
        <translation type="unfinished">&amp;Зберегти у файл...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackPropertiesDialog</name>
    <message>
        <source>Subtitle track</source>
        <translation type="unfinished">Доріжка субтитрів</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished">&amp;Мова:</translation>
    </message>
    <message>
        <source>Not stated</source>
        <translation type="unfinished">Не вказано</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">Мова</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation type="unfinished">&amp;Назва:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">Назва</translation>
    </message>
    <message>
        <source>On by &amp;default</source>
        <translation type="unfinished">Увімкнена &amp;типово</translation>
    </message>
    <message>
        <source>Players show this track unless another one is chosen</source>
        <translation type="unfinished">Програвачі показують цю доріжку, якщо не вибрано іншу</translation>
    </message>
    <message>
        <source>&amp;Forced</source>
        <translation type="unfinished">&amp;Примусова</translation>
    </message>
    <message>
        <source>Only what has to be read in any case: signs and foreign speech</source>
        <translation type="unfinished">Лише те, що треба прочитати в будь-якому разі: написи та іноземна мова</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">Гаразд</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Скасувати</translation>
    </message>
    <message>
        <source>This language is not known: choose one from the list, or write its code, such as &quot;en&quot; or &quot;pt-br&quot;.</source>
        <translation type="unfinished">Ця мова невідома: виберіть мову зі списку або напишіть її код, наприклад «en» чи «pt-br».</translation>
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
        <translation type="unfinished">Колір %1</translation>
    </message>
    <message>
        <source>Choose a color</source>
        <translation type="unfinished">Вибрати колір</translation>
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
        <translation type="unfinished">албанська</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">арабські</translation>
    </message>
    <message>
        <source>Aragonese</source>
        <translation type="unfinished">арагонська</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation type="unfinished">вірменська</translation>
    </message>
    <message>
        <source>Asturian</source>
        <translation type="unfinished">астурійська</translation>
    </message>
    <message>
        <source>Azerbaijani</source>
        <translation type="unfinished">азербайджанська</translation>
    </message>
    <message>
        <source>Basque</source>
        <translation type="unfinished">баскська</translation>
    </message>
    <message>
        <source>Belarusian</source>
        <translation type="unfinished">білоруська</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation type="unfinished">бенгальська</translation>
    </message>
    <message>
        <source>Bosnian</source>
        <translation type="unfinished">боснійська</translation>
    </message>
    <message>
        <source>Breton</source>
        <translation type="unfinished">бретонська</translation>
    </message>
    <message>
        <source>Bulgarian</source>
        <translation type="unfinished">болгарська</translation>
    </message>
    <message>
        <source>Burmese</source>
        <translation type="unfinished">бірманська</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation type="unfinished">каталонська</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation type="unfinished">китайська (спрощена)</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation type="unfinished">китайська (традиційна)</translation>
    </message>
    <message>
        <source>Chinese (Bilingual)</source>
        <translation type="unfinished">китайська (двомовна)</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation type="unfinished">хорватська</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation type="unfinished">чеська</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation type="unfinished">данська</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation type="unfinished">нідерландська</translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished">англійська</translation>
    </message>
    <message>
        <source>Esperanto</source>
        <translation type="unfinished">есперанто</translation>
    </message>
    <message>
        <source>Estonian</source>
        <translation type="unfinished">естонська</translation>
    </message>
    <message>
        <source>Extremaduran</source>
        <translation type="unfinished">екстремадурська</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation type="unfinished">фінська</translation>
    </message>
    <message>
        <source>French</source>
        <translation type="unfinished">французька</translation>
    </message>
    <message>
        <source>Galician</source>
        <translation type="unfinished">галісійська</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation type="unfinished">грузинська</translation>
    </message>
    <message>
        <source>German</source>
        <translation type="unfinished">німецька</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">грецькі</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">єврейські</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation type="unfinished">гінді</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation type="unfinished">угорська</translation>
    </message>
    <message>
        <source>Icelandic</source>
        <translation type="unfinished">ісландська</translation>
    </message>
    <message>
        <source>Indonesian</source>
        <translation type="unfinished">індонезійська</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation type="unfinished">італійська</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">японські</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation type="unfinished">каннада</translation>
    </message>
    <message>
        <source>Kazakh</source>
        <translation type="unfinished">казахська</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation type="unfinished">кхмерська</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">корейські</translation>
    </message>
    <message>
        <source>Kurdish</source>
        <translation type="unfinished">курдська</translation>
    </message>
    <message>
        <source>Latvian</source>
        <translation type="unfinished">латиська</translation>
    </message>
    <message>
        <source>Lithuanian</source>
        <translation type="unfinished">литовська</translation>
    </message>
    <message>
        <source>Luxembourgish</source>
        <translation type="unfinished">люксембурзька</translation>
    </message>
    <message>
        <source>Macedonian</source>
        <translation type="unfinished">македонська</translation>
    </message>
    <message>
        <source>Malay</source>
        <translation type="unfinished">малайська</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation type="unfinished">малаялам</translation>
    </message>
    <message>
        <source>Manipuri</source>
        <translation type="unfinished">маніпурі</translation>
    </message>
    <message>
        <source>Mongolian</source>
        <translation type="unfinished">монгольська</translation>
    </message>
    <message>
        <source>Montenegrin</source>
        <translation type="unfinished">чорногорська</translation>
    </message>
    <message>
        <source>Northern Sami</source>
        <translation type="unfinished">північносаамська</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation type="unfinished">норвезька</translation>
    </message>
    <message>
        <source>Occitan</source>
        <translation type="unfinished">окситанська</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation type="unfinished">перська</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation type="unfinished">польська</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation type="unfinished">португальська</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation type="unfinished">португальська (Бразилія)</translation>
    </message>
    <message>
        <source>Portuguese (Mozambique)</source>
        <translation type="unfinished">португальська (Мозамбік)</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation type="unfinished">румунська</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation type="unfinished">російська</translation>
    </message>
    <message>
        <source>Serbian</source>
        <translation type="unfinished">сербська</translation>
    </message>
    <message>
        <source>Sinhalese</source>
        <translation type="unfinished">сингальська</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation type="unfinished">словацька</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation type="unfinished">словенська</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation type="unfinished">іспанська</translation>
    </message>
    <message>
        <source>Swahili</source>
        <translation type="unfinished">суахілі</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation type="unfinished">шведська</translation>
    </message>
    <message>
        <source>Syriac</source>
        <translation type="unfinished">сирійська</translation>
    </message>
    <message>
        <source>Tagalog</source>
        <translation type="unfinished">тагальська</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation type="unfinished">тамільська</translation>
    </message>
    <message>
        <source>Telugu</source>
        <translation type="unfinished">телугу</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">тайські</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation type="unfinished">турецька</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation type="unfinished">українська</translation>
    </message>
    <message>
        <source>Urdu</source>
        <translation type="unfinished">урду</translation>
    </message>
    <message>
        <source>Uzbek</source>
        <translation type="unfinished">узбецька</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation type="unfinished">в’єтнамська</translation>
    </message>
</context>
<context>
    <name>LanguageSelector</name>
    <message>
        <source>All languages</source>
        <translation type="unfinished">Усі мови</translation>
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
        <translation type="unfinished">Службу субтитрів в інтернеті не налаштовано; додайте її ключ API до налаштувань.</translation>
    </message>
    <message>
        <source> (it says: &quot;%1&quot;)</source>
        <translation type="unfinished"> (він повідомляє: «%1»)</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again after %3.</source>
        <translation type="unfinished">Ваші завантаження в сервісі %1 вичерпано%2; завантажуйте знову після цього часу: %3.</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again in %3.</source>
        <translation type="unfinished">Ваші завантаження в сервісі %1 вичерпано%2; завантажуйте знову, коли мине: %3.</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again tomorrow.</source>
        <translation type="unfinished">Ваші завантаження в сервісі %1 вичерпано%2; завантажуйте знову завтра.</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; wait %3 s and try again.</source>
        <translation type="unfinished">Сервіс %1 отримав забагато запитів%2; зачекайте %3 с і спробуйте ще раз.</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; try again in a minute.</source>
        <translation type="unfinished">Сервіс %1 отримав забагато запитів%2; спробуйте ще раз за хвилину.</translation>
    </message>
    <message>
        <source>%1 did not accept the API key%2; set a valid one in the settings, as KORVEX_OPENSUBTITLES_API_KEY in the environment or as api_key in the configuration file.</source>
        <translation type="unfinished">Сервіс %1 не прийняв ключ API%2; задайте правильний у налаштуваннях, як KORVEX_OPENSUBTITLES_API_KEY у середовищі або як api_key у файлі конфігурації.</translation>
    </message>
    <message>
        <source>%1 sent something else in place of the subtitle%2; choose another one, or try again later.</source>
        <translation type="unfinished">Сервіс %1 надіслав замість субтитрів щось інше%2; виберіть інші або спробуйте пізніше.</translation>
    </message>
    <message>
        <source>%1 is down or overloaded at the moment%2; try again later.</source>
        <translation type="unfinished">Сервіс %1 зараз не працює або перевантажений%2; спробуйте пізніше.</translation>
    </message>
    <message>
        <source>The subtitle could not be unpacked or stored in &quot;%1&quot;%2; choose another subtitle, or make sure that the folder may be written and has room.</source>
        <translation type="unfinished">Не вдалося розпакувати субтитри або зберегти їх у «%1»%2; виберіть інші субтитри або переконайтеся, що в теку можна писати і в ній є місце.</translation>
    </message>
    <message>
        <source>%1 refused the request%2; ask for something else, or try again later.</source>
        <translation type="unfinished">Сервіс %1 відхилив запит%2; запитайте щось інше або спробуйте пізніше.</translation>
    </message>
    <message>
        <source>%1 points to other addresses without end, or to one that may not be used%2; check the address that is set for it, or try again later.</source>
        <translation type="unfinished">Сервіс %1 без кінця відсилає до інших адрес або до такої, яку використовувати не можна%2; перевірте задану для нього адресу або спробуйте пізніше.</translation>
    </message>
    <message>
        <source>The answer of %1 was empty, broke off or was too large; try again later.</source>
        <translation type="unfinished">Відповідь сервісу %1 була порожня, обірвалася або завелика; спробуйте пізніше.</translation>
    </message>
    <message>
        <source>The answer of %1 cannot be used%2; try again later.</source>
        <translation type="unfinished">Відповідь сервісу %1 непридатна%2; спробуйте пізніше.</translation>
    </message>
    <message>
        <source>%1 could not answer%2; try again later.</source>
        <translation type="unfinished">Сервіс %1 не зміг відповісти%2; спробуйте пізніше.</translation>
    </message>
    <message>
        <source>%1 could not answer%2; check the address that is set for it and the proxy, or try again later.</source>
        <translation type="unfinished">Сервіс %1 не зміг відповісти%2; перевірте задану для нього адресу і проксі або спробуйте пізніше.</translation>
    </message>
    <message>
        <source>The connection to %1 failed%2; check the proxy and whether the service&apos;s certificate is valid, or try again later.</source>
        <translation type="unfinished">Не вдалося з&apos;єднатися із сервісом %1%2; перевірте проксі та чи дійсний сертифікат сервісу або спробуйте пізніше.</translation>
    </message>
    <message>
        <source>Another search or download has not ended yet; try again in a moment.</source>
        <translation type="unfinished">Інший пошук або інше завантаження ще не закінчено; спробуйте ще раз трохи згодом.</translation>
    </message>
    <message>
        <source>%1 cannot look for this%2; type a title or an IMDb id.</source>
        <translation type="unfinished">Сервіс %1 не може це знайти%2; введіть назву або номер IMDb.</translation>
    </message>
    <message>
        <source>%1 cannot search in this way; look for a title or an IMDb id.</source>
        <translation type="unfinished">Сервіс %1 не вміє шукати в такий спосіб; шукайте за назвою або номером IMDb.</translation>
    </message>
    <message>
        <source>%1 cannot be reached or did not answer in time; check the connection to the network and try again.</source>
        <translation type="unfinished">Сервіс %1 недоступний або не відповів вчасно; перевірте з&apos;єднання з мережею і спробуйте ще раз.</translation>
    </message>
</context>
<context>
    <name>OnlineSearchDialogPresenter</name>
    <message>
        <source>same file</source>
        <translation type="unfinished">той самий файл</translation>
    </message>
    <message>
        <source>same release group</source>
        <translation type="unfinished">та сама реліз-група</translation>
    </message>
    <message>
        <source>same source</source>
        <translation type="unfinished">те саме джерело</translation>
    </message>
    <message>
        <source>same resolution</source>
        <translation type="unfinished">та ж роздільність</translation>
    </message>
    <message>
        <source>same episode</source>
        <translation type="unfinished">та сама серія</translation>
    </message>
    <message>
        <source>another episode</source>
        <translation type="unfinished">інша серія</translation>
    </message>
    <message>
        <source>another film</source>
        <translation type="unfinished">інший фільм</translation>
    </message>
    <message>
        <source>Type a title or an IMDb id to search for.</source>
        <translation type="unfinished">Введіть назву або номер IMDb для пошуку.</translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and digits, or leave it empty.</source>
        <translation type="unfinished">Це не номер IMDb: введіть «tt» і цифри або залиште поле порожнім.</translation>
    </message>
    <message>
        <source>The season is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">Номер сезону — не число: введіть цифри або залиште поле порожнім.</translation>
    </message>
    <message>
        <source>The episode is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">Номер серії — не число: введіть цифри або залиште поле порожнім.</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">Пошук...</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n found so far</source>
        <translation type="unfinished">
            <numerusform>Пошук... поки знайдено: %n</numerusform>
            <numerusform>Пошук... поки знайдено: %n</numerusform>
            <numerusform>Пошук... поки знайдено: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>Знайдено %n субтитри.</numerusform>
            <numerusform>Знайдено %n субтитри.</numerusform>
            <numerusform>Знайдено %n субтитрів.</numerusform>
        </translation>
    </message>
    <message>
        <source>check the spelling of the title</source>
        <translation type="unfinished">перевірте написання назви</translation>
    </message>
    <message>
        <source>type the title</source>
        <translation type="unfinished">введіть назву</translation>
    </message>
    <message>
        <source>type the film&apos;s IMDb id</source>
        <translation type="unfinished">введіть номер IMDb фільму</translation>
    </message>
    <message>
        <source>check the IMDb id</source>
        <translation type="unfinished">перевірте номер IMDb</translation>
    </message>
    <message>
        <source>leave out the season and the episode</source>
        <translation type="unfinished">не вказуйте сезон і серію</translation>
    </message>
    <message>
        <source>choose other languages</source>
        <translation type="unfinished">виберіть інші мови</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished">%1 або %2</translation>
    </message>
    <message>
        <source>No subtitles were found: %1.</source>
        <translation type="unfinished">Субтитрів не знайдено: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Downloading %n subtitle(s)...</source>
        <translation type="unfinished">
            <numerusform>Завантаження субтитрів (%n)...</numerusform>
            <numerusform>Завантаження субтитрів (%n)...</numerusform>
            <numerusform>Завантаження субтитрів (%n)...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) added to the film.</source>
        <translation type="unfinished">
            <numerusform>До фільму додано %n субтитри.</numerusform>
            <numerusform>До фільму додано %n субтитри.</numerusform>
            <numerusform>До фільму додано %n субтитрів.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n download(s) left.</source>
        <translation type="unfinished">
            <numerusform>Лишилося %n завантаження.</numerusform>
            <numerusform>Лишилося %n завантаження.</numerusform>
            <numerusform>Лишилося %n завантажень.</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for the last request to end...</source>
        <translation type="unfinished">Очікування кінця останнього запиту...</translation>
    </message>
    <message>
        <source>The search was cancelled.</source>
        <translation type="unfinished">Пошук скасовано.</translation>
    </message>
    <message numerus="yes">
        <source>The search was cancelled; %n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>Пошук скасовано; знайдено %n субтитри.</numerusform>
            <numerusform>Пошук скасовано; знайдено %n субтитри.</numerusform>
            <numerusform>Пошук скасовано; знайдено %n субтитрів.</numerusform>
        </translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation type="unfinished">Завантаження скасовано.</translation>
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
        <translation type="unfinished">Машинний</translation>
    </message>
    <message>
        <source>Translated by a machine</source>
        <translation type="unfinished">Перекладено машиною</translation>
    </message>
    <message>
        <source>Foreign</source>
        <comment>short mark</comment>
        <translation type="unfinished">Чужа мова</translation>
    </message>
    <message>
        <source>Only what is spoken in a foreign language</source>
        <translation type="unfinished">Тільки те, що говорять чужою мовою</translation>
    </message>
    <message>
        <source>HI</source>
        <comment>short mark</comment>
        <translation type="unfinished">Глухим</translation>
    </message>
    <message>
        <source>For the hearing impaired: sounds are described</source>
        <translation type="unfinished">Для глухих і слабочутних: звуки описано</translation>
    </message>
    <message>
        <source>Trusted</source>
        <comment>short mark</comment>
        <translation type="unfinished">Надійний</translation>
    </message>
    <message>
        <source>From an uploader whom the service trusts</source>
        <translation type="unfinished">Від учасника, якому сервіс довіряє</translation>
    </message>
    <message>
        <source>CD %1/%2</source>
        <comment>short mark</comment>
        <translation type="unfinished">CD %1/%2</translation>
    </message>
    <message>
        <source>Part %1 of %2; all parts are downloaded</source>
        <translation type="unfinished">Частина %1 з %2; завантажуються всі частини</translation>
    </message>
    <message>
        <source>HD</source>
        <comment>short mark</comment>
        <translation type="unfinished">HD</translation>
    </message>
    <message>
        <source>Made for a release in high definition</source>
        <translation type="unfinished">Для видання у високій роздільності</translation>
    </message>
    <message>
        <source>Made for this file or release</source>
        <translation type="unfinished">Для цього файлу або релізу</translation>
    </message>
    <message>
        <source>For this film, perhaps for another cut of it</source>
        <translation type="unfinished">Для цього фільму, можливо, для іншої монтажної версії</translation>
    </message>
    <message>
        <source>For another film or episode</source>
        <translation type="unfinished">Для іншого фільму або серії</translation>
    </message>
    <message>
        <source>It is not known how well it fits</source>
        <translation type="unfinished">Невідомо, наскільки підходять</translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished">Назва</translation>
    </message>
    <message>
        <source>Match</source>
        <translation type="unfinished">Збіг</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">Мова</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation type="unfinished">Позначки</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation type="unfinished">Завантаження</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation type="unfinished">Оцінка</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation type="unfinished">Вивантажено</translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished">Формат</translation>
    </message>
    <message>
        <source>Release: %1</source>
        <translation type="unfinished">Реліз: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of 10, by %n vote(s)</source>
        <translation type="unfinished">
            <numerusform>%1 з 10, %n голос</numerusform>
            <numerusform>%1 з 10, %n голоси</numerusform>
            <numerusform>%1 з 10, %n голосів</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SubtitleCollection</name>
    <message>
        <source>Subtitle tracks</source>
        <translation type="unfinished">Доріжки субтитрів</translation>
    </message>
    <message>
        <source>Current choice</source>
        <translation type="unfinished">Поточний вибір</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">Без субтитрів</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">Залишити всі доріжки (softsub)</translation>
    </message>
    <message>
        <source>There are no subtitle tracks yet. Add a subtitle file first.</source>
        <translation type="unfinished">Доріжок субтитрів поки немає. Спершу додайте файл субтитрів.</translation>
    </message>
    <message>
        <source>The chosen output format cannot carry these tracks. Choose another format, or burn one track in.</source>
        <translation type="unfinished">Вибраний формат виводу не підтримує ці доріжки. Виберіть інший формат або вшийте одну доріжку.</translation>
    </message>
    <message>
        <source>Save this track to a file (Ctrl+S)</source>
        <translation type="unfinished">Зберегти цю доріжку у файл (Ctrl+S)</translation>
    </message>
    <message>
        <source>Save to a file: %1</source>
        <translation type="unfinished">Зберегти у файл: %1</translation>
    </message>
</context>
<context>
    <name>SubtitleCollectionInteractor</name>
    <message>
        <source>No subtitles were found in &quot;%1&quot;: take it out of the list and choose an SRT, ASS or SSA file.</source>
        <translation type="unfinished">У «%1» не знайдено субтитрів: приберіть файл зі списку й виберіть файл SRT, ASS або SSA.</translation>
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
        <translation type="unfinished">Центрально- та східноєвропейське (Windows-1250)</translation>
    </message>
    <message>
        <source>Russian (KOI8-R)</source>
        <translation type="unfinished">Російське (KOI8-R)</translation>
    </message>
    <message>
        <source>Ukrainian, Belarusian (KOI8-U/RU)</source>
        <translation type="unfinished">Українське, білоруське (KOI8-U/RU)</translation>
    </message>
    <message>
        <source>Esperanto, Galician, Maltese, Turkish (ISO-8859-3)</source>
        <translation type="unfinished">Есперанто, галісійське, мальтійське, турецьке (ISO-8859-3)</translation>
    </message>
    <message>
        <source>Modern Greek (ISO-8859-7)</source>
        <translation type="unfinished">Новогрецьке (ISO-8859-7)</translation>
    </message>
    <message>
        <source>Hebrew charsets (ISO-8859-8)</source>
        <translation type="unfinished">Іврит (ISO-8859-8)</translation>
    </message>
    <message>
        <source>Turkish (ISO-8859-9)</source>
        <translation type="unfinished">Турецьке (ISO-8859-9)</translation>
    </message>
    <message>
        <source>Baltic (ISO-8859-13)</source>
        <translation type="unfinished">Балтійське (ISO-8859-13)</translation>
    </message>
    <message>
        <source>Western European Languages with Euro (ISO-8859-15)</source>
        <translation type="unfinished">Західноєвропейське з євро (ISO-8859-15)</translation>
    </message>
    <message>
        <source>Japanese charsets (SHIFT-JIS/CP932)</source>
        <translation type="unfinished">Японське (SHIFT-JIS/CP932)</translation>
    </message>
    <message>
        <source>Simplified Chinese charset (CP936)</source>
        <translation type="unfinished">Китайське спрощене (CP936)</translation>
    </message>
    <message>
        <source>Traditional Chinese charset (BIG5)</source>
        <translation type="unfinished">Китайське традиційне (BIG5)</translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished">Типово</translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished">Угорі</translation>
    </message>
    <message>
        <source>Vertical center</source>
        <translation type="unfinished">По центру вертикалі</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished">Унизу</translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished">Ліворуч</translation>
    </message>
    <message>
        <source>Horizontal center</source>
        <translation type="unfinished">По центру горизонталі</translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished">Праворуч</translation>
    </message>
</context>
<context>
    <name>TimeTexts</name>
    <message>
        <source>less than a minute left</source>
        <translation type="unfinished">залишилося менше хвилини</translation>
    </message>
    <message numerus="yes">
        <source>%n min left</source>
        <translation type="unfinished">
            <numerusform>залишилося %n хв</numerusform>
            <numerusform>залишилося %n хв</numerusform>
            <numerusform>залишилося %n хв</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h left</source>
        <translation type="unfinished">
            <numerusform>залишилося %n год</numerusform>
            <numerusform>залишилося %n год</numerusform>
            <numerusform>залишилося %n год</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 h %n min left</source>
        <translation type="unfinished">
            <numerusform>залишилося %1 год %n хв</numerusform>
            <numerusform>залишилося %1 год %n хв</numerusform>
            <numerusform>залишилося %1 год %n хв</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WarningWords</name>
    <message>
        <source>Track %1 of &quot;%2&quot; (a second picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">Доріжку %1 з «%2» (друге зображення, %3) вилучено, бо %4 не може її містити.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a cover picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">Доріжку %1 з «%2» (обкладинка, %3) вилучено, бо %4 не може її містити.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a further sound track, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">Доріжку %1 з «%2» (ще одна звукова, %3) вилучено, бо %4 не може її містити.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a sound track, %3) was left out, because nothing in it can be read.</source>
        <translation type="unfinished">Доріжку %1 з «%2» (звукова, %3) вилучено, бо в ній нічого не можна прочитати.</translation>
    </message>
    <message>
        <source>The picture of &quot;%1&quot; was encoded anew, because %2 cannot hold it as it is.</source>
        <translation type="unfinished">Зображення з «%1» перекодовано, бо %2 не може містити його як є.</translation>
    </message>
    <message>
        <source>Files attached to &quot;%1&quot;, for example fonts, were left out, because %2 cannot hold them.</source>
        <translation type="unfinished">Файли, вкладені в «%1», наприклад шрифти, вилучено, бо %2 не може їх містити.</translation>
    </message>
    <message>
        <source>A subtitle track was left out, because its file is missing.</source>
        <translation type="unfinished">Доріжку субтитрів вилучено, бо її файлу немає.</translation>
    </message>
    <message>
        <source>The subtitle track &quot;%1&quot; was left out, because its file is missing.</source>
        <translation type="unfinished">Доріжку субтитрів «%1» вилучено, бо її файлу немає.</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of &quot;%1&quot; could not be read as %2 and show as &quot;%3&quot;: check the encoding.</source>
        <translation type="unfinished">
            <numerusform>%n байт із «%1» не читається як %2 і показаний як «%3»: перевірте кодування.</numerusform>
            <numerusform>%n байти з «%1» не читаються як %2 і показані як «%3»: перевірте кодування.</numerusform>
            <numerusform>%n байтів із «%1» не читаються як %2 і показані як «%3»: перевірте кодування.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>Вилучено %n субтитр з «%1» без придатних часів.</numerusform>
            <numerusform>Вилучено %n субтитри з «%1» без придатних часів.</numerusform>
            <numerusform>Вилучено %n субтитрів із «%1» без придатних часів.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; of no duration were left out.</source>
        <translation type="unfinished">
            <numerusform>Вилучено %n субтитр з «%1» нульової тривалості.</numerusform>
            <numerusform>Вилучено %n субтитри з «%1» нульової тривалості.</numerusform>
            <numerusform>Вилучено %n субтитрів із «%1» нульової тривалості.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some pictures of &quot;%1&quot; are damaged; they may be missing or look wrong.</source>
        <translation type="unfinished">Деякі кадри з «%1» пошкоджено: вони можуть бути відсутні або мати неправильний вигляд.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; breaks off after %2 of %3, and so does the new film.</source>
        <translation type="unfinished">«%1» уривається через %2 з %3, і новий фільм теж.</translation>
    </message>
</context>
</TS>
