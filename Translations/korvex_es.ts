<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n film(s) converted.</source>
        <translation type="unfinished">
            <numerusform>%n película convertida.</numerusform>
            <numerusform>%n películas convertidas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) with remarks: %1</source>
        <translation type="unfinished">
            <numerusform>%n película con observaciones: %1</numerusform>
            <numerusform>%n películas con observaciones: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) could not be converted: %1</source>
        <translation type="unfinished">
            <numerusform>No se pudo convertir %n película: %1</numerusform>
            <numerusform>No se pudieron convertir %n películas: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) cancelled.</source>
        <translation type="unfinished">
            <numerusform>%n película cancelada.</numerusform>
            <numerusform>%n películas canceladas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConversionTexts</name>
    <message>
        <source>%1 holds no cues and was left out.</source>
        <translation type="unfinished">%1 no contiene subtítulos y se dejó fuera.</translation>
    </message>
    <message>
        <source>%1 goes into %2 as %3.</source>
        <translation type="unfinished">%1 se incluye en %2 como %3.</translation>
    </message>
    <message>
        <source>%1 was read as %2.</source>
        <translation type="unfinished">%1 se leyó como %2.</translation>
    </message>
    <message>
        <source>%1 was moved by %2 s.</source>
        <translation type="unfinished">%1 se desplazó %2 s.</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of %1 could not be read as text.</source>
        <translation type="unfinished">
            <numerusform>%n byte de %1 no se pudo leer como texto.</numerusform>
            <numerusform>%n bytes de %1 no se pudieron leer como texto.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>%n subtítulo de %1 sin tiempos utilizables se dejó fuera.</numerusform>
            <numerusform>%n subtítulos de %1 sin tiempos utilizables se dejaron fuera.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 would never be shown and were left out.</source>
        <translation type="unfinished">
            <numerusform>%n subtítulo de %1 no se mostraría nunca y se dejó fuera.</numerusform>
            <numerusform>%n subtítulos de %1 no se mostrarían nunca y se dejaron fuera.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EditingPanel</name>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">Subtítulos</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Elegir subtítulos</translation>
    </message>
    <message>
        <source>Subtitles encoding</source>
        <translation type="unfinished">Codificación de los subtítulos</translation>
    </message>
    <message>
        <source>Aligment</source>
        <translation type="unfinished">Alineación</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation type="unfinished">Sincronizar</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Añadir subtítulos</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">Conservar todas las pistas (softsub)</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">Elegir archivo</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">Buscar archivo</translation>
    </message>
    <message>
        <source>Relocating subtitles saves all subtitle tracks. You can select them in player.&lt;br&gt;&lt;br&gt;Select one of track to hardsub them.</source>
        <translation type="unfinished">Al trasladar los subtítulos se conservan todas las pistas. Puede elegirlas en el reproductor.&lt;br&gt;&lt;br&gt;Elija una de las pistas para incrustarla en la imagen.</translation>
    </message>
    <message>
        <source>Hastened</source>
        <translation type="unfinished">Adelantado</translation>
    </message>
    <message>
        <source>Delayed</source>
        <translation type="unfinished">Retrasado</translation>
    </message>
    <message>
        <source>Help on subtitles</source>
        <translation type="unfinished">Ayuda sobre los subtítulos</translation>
    </message>
    <message>
        <source>Position shift</source>
        <translation type="unfinished">Desplazamiento de la posición</translation>
    </message>
    <message>
        <source>Synchronization offset in seconds</source>
        <translation type="unfinished">Desfase de sincronización en segundos</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation type="unfinished">Color del texto</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation type="unfinished">Color del contorno</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation type="unfinished">Fuente: %1</translation>
    </message>
</context>
<context>
    <name>ErrorClauses</name>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished">es una carpeta</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="unfinished">no es un archivo</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation type="unfinished">ocupa más de %1 bytes</translation>
    </message>
    <message>
        <source>its header cannot be read</source>
        <translation type="unfinished">no se puede leer su cabecera</translation>
    </message>
    <message>
        <source>nothing in it can be read</source>
        <translation type="unfinished">no se puede leer nada de él</translation>
    </message>
    <message>
        <source>it holds no subtitles</source>
        <translation type="unfinished">no contiene subtítulos</translation>
    </message>
    <message>
        <source>it does not hold exactly one subtitle track</source>
        <translation type="unfinished">no contiene exactamente una pista de subtítulos</translation>
    </message>
    <message>
        <source>it has no picture</source>
        <translation type="unfinished">no tiene imagen</translation>
    </message>
    <message>
        <source>it has no picture that subtitles could be drawn into</source>
        <translation type="unfinished">no tiene imagen en la que incrustar subtítulos</translation>
    </message>
    <message>
        <source>the size of its picture is not known</source>
        <translation type="unfinished">no se conoce el tamaño de su imagen</translation>
    </message>
    <message>
        <source>the picture has no usable size</source>
        <translation type="unfinished">la imagen no tiene un tamaño utilizable</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation type="unfinished">no se puede decodificar ninguna de sus imágenes</translation>
    </message>
    <message>
        <source>there is no decoder for it</source>
        <translation type="unfinished">no hay decodificador para él</translation>
    </message>
    <message>
        <source>there is no decoder for track %1</source>
        <translation type="unfinished">no hay decodificador para la pista %1</translation>
    </message>
    <message>
        <source>its decoder refuses the stream: %1</source>
        <translation type="unfinished">su decodificador rechaza el flujo: %1</translation>
    </message>
    <message>
        <source>its decoder does not know the options %1</source>
        <translation type="unfinished">su decodificador no conoce las opciones %1</translation>
    </message>
    <message>
        <source>its encoder refuses the sound: %1</source>
        <translation type="unfinished">su codificador rechaza el sonido: %1</translation>
    </message>
    <message>
        <source>its encoder refuses the picture (%1): %2</source>
        <translation type="unfinished">su codificador rechaza la imagen (%1): %2</translation>
    </message>
    <message>
        <source>the encoder here is %1</source>
        <translation type="unfinished">aquí el codificador es %1</translation>
    </message>
    <message>
        <source>there is no encoder preset &quot;%1&quot;</source>
        <translation type="unfinished">no existe el ajuste de codificador «%1»</translation>
    </message>
    <message>
        <source>the text encoding &quot;%1&quot; is not known</source>
        <translation type="unfinished">no se conoce la codificación de texto «%1»</translation>
    </message>
    <message>
        <source>the text renderer could not be set up</source>
        <translation type="unfinished">no se pudo preparar el motor de dibujo de texto</translation>
    </message>
    <message>
        <source>it names a folder</source>
        <translation type="unfinished">es una carpeta</translation>
    </message>
    <message>
        <source>it is a device or a pipe, not a file</source>
        <translation type="unfinished">es un dispositivo o una tubería, no un archivo</translation>
    </message>
    <message>
        <source>a .%1 file</source>
        <translation type="unfinished">un archivo .%1</translation>
    </message>
    <message>
        <source>save it as .%1 instead</source>
        <translation type="unfinished">guárdelo como .%1</translation>
    </message>
    <message>
        <source>it consists of pictures, so save it as .%1</source>
        <translation type="unfinished">se compone de imágenes, así que guárdelo como .%1</translation>
    </message>
    <message>
        <source>the encoder libx264 is missing</source>
        <translation type="unfinished">falta el codificador libx264</translation>
    </message>
    <message>
        <source>subtitles can be switchable or drawn in, not both</source>
        <translation type="unfinished">los subtítulos pueden ser activables o incrustados, no ambas cosas</translation>
    </message>
    <message>
        <source>the quality goes from 0 to 51</source>
        <translation type="unfinished">la calidad va de 0 a 51</translation>
    </message>
    <message>
        <source>the chosen format</source>
        <translation type="unfinished">el formato elegido</translation>
    </message>
    <message>
        <source>draw it in</source>
        <translation type="unfinished">incrústela en la imagen</translation>
    </message>
    <message>
        <source>choose Matroska or draw it in</source>
        <translation type="unfinished">elija Matroska o incrústela en la imagen</translation>
    </message>
    <message>
        <source>draw it in or leave it out</source>
        <translation type="unfinished">incrústela en la imagen o déjela fuera</translation>
    </message>
    <message>
        <source>you may not do this</source>
        <translation type="unfinished">no tiene permiso</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation type="unfinished">el disco es de solo lectura</translation>
    </message>
    <message>
        <source>the disk could not be read or written</source>
        <translation type="unfinished">no se pudo leer o escribir en el disco</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation type="unfinished">no existe tal archivo o carpeta</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation type="unfinished">su nombre es demasiado largo</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation type="unfinished">no hay memoria suficiente</translation>
    </message>
    <message>
        <source>it holds data that make no sense</source>
        <translation type="unfinished">contiene datos sin sentido</translation>
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
        <translation type="unfinished">La pista %1 de «%2»</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no track %2: choose another track.</source>
        <translation type="unfinished">El archivo «%1» no tiene la pista %2: elija otra pista.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no subtitle track: choose another file.</source>
        <translation type="unfinished">El archivo «%1» no tiene ninguna pista de subtítulos: elija otro archivo.</translation>
    </message>
    <message>
        <source>choose another format, draw it in or leave it out</source>
        <translation type="unfinished">elija otro formato, incruste los subtítulos en la imagen o déjelos fuera</translation>
    </message>
    <message>
        <source>%1 is %2, which %3 cannot hold: %4.</source>
        <extracomment>%1: a track or a file, %2: its codec, %3: a format or a kind of file, %4: what to do</extracomment>
        <translation type="unfinished">%1 es %2, que no cabe en %3: %4.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read%2: choose another one, or check that you may open it.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">El archivo «%1» no se puede leer%2: elija otro o compruebe que tiene permiso para abrirlo.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is of no kind that can be used here%2: choose another one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">El archivo «%1» no es de ningún tipo que se pueda usar aquí%2: elija otro.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged%2: try to get a complete copy.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">El archivo «%1» está dañado%2: intente conseguir una copia completa.</translation>
    </message>
    <message>
        <source>The text of &quot;%1&quot; cannot be drawn, because no usable font is installed%2: install one, for example DejaVu Sans.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">El texto de «%1» no se puede dibujar porque no hay ninguna fuente utilizable instalada%2: instale una, por ejemplo DejaVu Sans.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written%2: choose another folder, or check that you may write to this one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">El archivo «%1» no se puede escribir%2: elija otra carpeta o compruebe que tiene permiso para escribir en esta.</translation>
    </message>
    <message>
        <source>A setting for &quot;%1&quot; is not valid%2: correct it and try again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Un ajuste de «%1» no es válido%2: corríjalo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; failed%2: try again, and report it if it fails again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Falló el trabajo con «%1»%2: inténtelo de nuevo y avise si vuelve a fallar.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist any more: choose another one.</source>
        <translation type="unfinished">El archivo «%1» ya no existe: elija otro.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty: choose another one.</source>
        <translation type="unfinished">El archivo «%1» está vacío: elija otro.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is not a subtitle track: choose another one.</source>
        <translation type="unfinished">La pista %1 de «%2» no es de subtítulos: elija otra.</translation>
    </message>
    <message>
        <source>The codec of &quot;%1&quot;, %2, cannot be used here%3: choose another file or another format.</source>
        <extracomment>%2: a codec, %3: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">El códec de «%1», %2, no se puede usar aquí%3: elija otro archivo u otro formato.</translation>
    </message>
    <message>
        <source>The format of &quot;%1&quot; is not known%2: choose another one.</source>
        <extracomment>%2: what was asked for, in brackets, or nothing</extracomment>
        <translation type="unfinished">El formato de «%1» no se conoce%2: elija otro.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has neither picture nor sound: choose another one.</source>
        <translation type="unfinished">El archivo «%1» no tiene ni imagen ni sonido: elija otro.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already: choose another name.</source>
        <translation type="unfinished">El archivo «%1» ya existe: elija otro nombre.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is being read, so it cannot be written: choose another name.</source>
        <translation type="unfinished">El archivo «%1» se está leyendo, así que no se puede escribir: elija otro nombre.</translation>
    </message>
    <message>
        <source>The folder of &quot;%1&quot; does not exist: create it, or choose another one.</source>
        <translation type="unfinished">La carpeta de «%1» no existe: créela o elija otra.</translation>
    </message>
    <message>
        <source>The disk is full, so &quot;%1&quot; was not written: free some space, or choose another folder.</source>
        <translation type="unfinished">El disco está lleno, así que «%1» no se escribió: libere espacio o elija otra carpeta.</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; was cancelled: start it again if you want it.</source>
        <translation type="unfinished">Se canceló el trabajo con «%1»: inícielo de nuevo si lo desea.</translation>
    </message>
</context>
<context>
    <name>ExternalSubtitlesDialog</name>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Elegir subtítulos</translation>
    </message>
    <message>
        <source>Subtitle files (%1)</source>
        <translation type="unfinished">Archivos de subtítulos (%1)</translation>
    </message>
</context>
<context>
    <name>FilmRow</name>
    <message>
        <source>Paused</source>
        <translation type="unfinished">En pausa</translation>
    </message>
    <message>
        <source>Preparing subtitles</source>
        <translation type="unfinished">Preparando los subtítulos</translation>
    </message>
    <message>
        <source>Converting</source>
        <translation type="unfinished">Convirtiendo</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished">En espera</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation type="unfinished">Convertida</translation>
    </message>
    <message numerus="yes">
        <source>Converted, with %n remark(s)</source>
        <translation type="unfinished">
            <numerusform>Convertida, con %n observación</numerusform>
            <numerusform>Convertida, con %n observaciones</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished">Cancelada</translation>
    </message>
    <message>
        <source>Reading the film</source>
        <translation type="unfinished">Leyendo la película</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Converted, but it breaks off after %1 of %2</source>
        <translation type="unfinished">Convertida, pero se corta tras %1 de %2</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::AutocompleteField</name>
    <message>
        <source>Film or series</source>
        <translation type="unfinished">Película o serie</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">Título</translation>
    </message>
    <message>
        <source>Suggested titles</source>
        <translation type="unfinished">Títulos sugeridos</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ImdbIdValidator</name>
    <message numerus="yes">
        <source>The IMDb id is too short: it has at least %n digit(s), as in tt0123456.</source>
        <translation type="unfinished">
            <numerusform>El ID de IMDb es demasiado corto: tiene al menos %n cifra, como en tt0123456.</numerusform>
            <numerusform>El ID de IMDb es demasiado corto: tiene al menos %n cifras, como en tt0123456.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The IMDb id is too long: it has at most %n digit(s).</source>
        <translation type="unfinished">
            <numerusform>El ID de IMDb es demasiado largo: tiene como mucho %n cifra.</numerusform>
            <numerusform>El ID de IMDb es demasiado largo: tiene como mucho %n cifras.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and a number, or the number alone, as in tt0123456.</source>
        <translation type="unfinished">Esto no es un ID de IMDb: escriba «tt» y un número, o solo el número, como en tt0123456.</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ItemPanel</name>
    <message>
        <source>Subtitles of this film</source>
        <translation type="unfinished">Subtítulos de esta película</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Elegir subtítulos</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Añadir subtítulos</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">Elegir archivo</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">Buscar archivo</translation>
    </message>
    <message>
        <source>Apply to all files</source>
        <translation type="unfinished">Aplicar a todos los archivos</translation>
    </message>
    <message>
        <source>Makes the same choice for every film of the list</source>
        <translation type="unfinished">Hace la misma elección para cada película de la lista</translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished">Listo</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelector</name>
    <message>
        <source>Languages: %1</source>
        <translation type="unfinished">Idiomas: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelectorList</name>
    <message>
        <source>Languages to search in</source>
        <translation type="unfinished">Idiomas en los que buscar</translation>
    </message>
    <message>
        <source>Find a language</source>
        <translation type="unfinished">Buscar un idioma</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindow</name>
    <message>
        <source>Type a title and press &quot;Search&quot;.</source>
        <translation type="unfinished">Escriba un título y pulse «Buscar».</translation>
    </message>
    <message>
        <source>Find subtitles</source>
        <translation type="unfinished">Buscar subtítulos</translation>
    </message>
    <message>
        <source>Find subtitles: %1</source>
        <translation type="unfinished">Buscar subtítulos: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowFields</name>
    <message>
        <source>&amp;Title</source>
        <translation type="unfinished">&amp;Título</translation>
    </message>
    <message>
        <source>&amp;Season</source>
        <translation type="unfinished">T&amp;emporada</translation>
    </message>
    <message>
        <source>Season</source>
        <translation type="unfinished">Temporada</translation>
    </message>
    <message>
        <source>&amp;Episode</source>
        <translation type="unfinished">E&amp;pisodio</translation>
    </message>
    <message>
        <source>Episode</source>
        <translation type="unfinished">Episodio</translation>
    </message>
    <message>
        <source>&amp;Episode...</source>
        <translation type="unfinished">E&amp;pisodio...</translation>
    </message>
    <message>
        <source>Search for an episode of a series</source>
        <translation type="unfinished">Buscar un episodio de una serie</translation>
    </message>
    <message>
        <source>Sea&amp;rch</source>
        <translation type="unfinished">&amp;Buscar</translation>
    </message>
    <message>
        <source>I&amp;MDb id</source>
        <translation type="unfinished">ID de I&amp;MDb</translation>
    </message>
    <message>
        <source>IMDb id</source>
        <translation type="unfinished">ID de IMDb</translation>
    </message>
    <message>
        <source>The film&apos;s number at IMDb, as in tt0123456</source>
        <translation type="unfinished">El número de la película en IMDb, como en tt0123456</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation type="unfinished">&amp;Idiomas</translation>
    </message>
    <message>
        <source>E&amp;xactly this file</source>
        <translation type="unfinished">E&amp;xactamente este archivo</translation>
    </message>
    <message>
        <source>Finds subtitles by the fingerprint of the file, whatever its name is</source>
        <translation type="unfinished">Encuentra subtítulos por la huella del archivo, se llame como se llame</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowStatus</name>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">Buscando...</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation type="unfinished">Descargando...</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation type="unfinished">Cancelando...</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found</source>
        <translation type="unfinished">
            <numerusform>%n subtítulo encontrado</numerusform>
            <numerusform>%n subtítulos encontrados</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">&amp;Cancelar</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Download %n</source>
        <translation type="unfinished">
            <numerusform>&amp;Descargar %n</numerusform>
            <numerusform>&amp;Descargar %n</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Download</source>
        <translation type="unfinished">&amp;Descargar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished">Cerrar</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ResultList</name>
    <message>
        <source>Smallest first; press to turn it round</source>
        <translation type="unfinished">Menor primero; pulse para invertir</translation>
    </message>
    <message>
        <source>Largest first; press to turn it round</source>
        <translation type="unfinished">Mayor primero; pulse para invertir</translation>
    </message>
    <message numerus="yes">
        <source>None of the %n subtitle(s) found holds &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>El %n subtítulo encontrado no contiene «%1».</numerusform>
            <numerusform>Ninguno de los %n subtítulos encontrados contiene «%1».</numerusform>
        </translation>
    </message>
    <message>
        <source>Best match</source>
        <translation type="unfinished">Mejor coincidencia</translation>
    </message>
    <message>
        <source>Subtitles found</source>
        <translation type="unfinished">Subtítulos encontrados</translation>
    </message>
    <message>
        <source>Filter the list</source>
        <translation type="unfinished">Filtrar la lista</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation type="unfinished">&amp;Ordenar por</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation type="unfinished">Ordenar por</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::AboutDialog</name>
    <message>
        <source>About Korvex Subtitles</source>
        <translation type="unfinished">Acerca de Korvex Subtitles</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished">Versión %1</translation>
    </message>
    <message>
        <source>Converts films with their subtitles: as tracks that can be switched on and off, or drawn into the picture.

Free software under the GNU General Public License, version 3 or later. It comes without any warranty.

It is built on Qt, FFmpeg and libass.</source>
        <translation type="unfinished">Convierte películas con sus subtítulos: como pistas que se activan y desactivan, o incrustados en la imagen.

Software libre bajo la Licencia Pública General de GNU, versión 3 o posterior. Se ofrece sin garantía alguna.

Se basa en Qt, FFmpeg y libass.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Actions</name>
    <message>
        <source>&amp;Add films...</source>
        <translation type="unfinished">&amp;Añadir películas...</translation>
    </message>
    <message>
        <source>Add &amp;subtitles...</source>
        <translation type="unfinished">Añadir &amp;subtítulos...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished">&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Subtitles...</source>
        <translation type="unfinished">&amp;Subtítulos...</translation>
    </message>
    <message>
        <source>Apply these subtitles to &amp;all</source>
        <translation type="unfinished">Aplicar estos subtítulos a &amp;todas</translation>
    </message>
    <message>
        <source>&amp;Copy as command line</source>
        <translation type="unfinished">&amp;Copiar como línea de órdenes</translation>
    </message>
    <message>
        <source>Show &amp;output in folder</source>
        <translation type="unfinished">&amp;Mostrar el resultado en la carpeta</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">&amp;Quitar de la lista</translation>
    </message>
    <message>
        <source>&amp;Previous film</source>
        <translation type="unfinished">Película &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next film</source>
        <translation type="unfinished">Película &amp;siguiente</translation>
    </message>
    <message>
        <source>Convert &amp;all</source>
        <translation type="unfinished">Convertir &amp;todas</translation>
    </message>
    <message>
        <source>Convert this &amp;film</source>
        <translation type="unfinished">Convertir esta &amp;película</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">&amp;Pausar</translation>
    </message>
    <message>
        <source>&amp;Cancel this film</source>
        <translation type="unfinished">&amp;Cancelar esta película</translation>
    </message>
    <message>
        <source>Cancel a&amp;ll</source>
        <translation type="unfinished">Cancelar &amp;todo</translation>
    </message>
    <message>
        <source>Same as &amp;system</source>
        <translation type="unfinished">Como el &amp;sistema</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished">&amp;Claro</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished">&amp;Oscuro</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation type="unfinished">&amp;Atajos de teclado</translation>
    </message>
    <message>
        <source>&amp;About Korvex Subtitles</source>
        <translation type="unfinished">&amp;Acerca de Korvex Subtitles</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished">Quitar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished">Añadir</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation type="unfinished">A&amp;justes...</translation>
    </message>
    <message>
        <source>Find subtitles on&amp;line...</source>
        <translation type="unfinished">Buscar subtítulos en &amp;línea...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyReportDialog</name>
    <message>
        <source>Applied to all films</source>
        <translation type="unfinished">Aplicado a todas las películas</translation>
    </message>
    <message>
        <source>Subtitles as in &quot;%1&quot;</source>
        <translation type="unfinished">Subtítulos como en «%1»</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyToAll</name>
    <message>
        <source>&quot;%1&quot;: nothing changed, because the film cannot be read at the moment.</source>
        <translation type="unfinished">«%1»: nada cambió, porque la película no se puede leer en este momento.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: nothing changed, because it has no track like %2 and no file of that name.</source>
        <translation type="unfinished">«%1»: nada cambió, porque no tiene una pista como %2 ni un archivo con ese nombre.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::CommandLineText</name>
    <message>
        <source>A picture that cannot be copied is encoded with --crf %1 there and %2 here.</source>
        <translation type="unfinished">Una imagen que no se puede copiar se codifica allí con --crf %1 y aquí con %2.</translation>
    </message>
    <message>
        <source>The text cannot be moved by more than %1 lines.</source>
        <translation type="unfinished">El texto no se puede desplazar más de %1 líneas.</translation>
    </message>
    <message>
        <source>The font size %1 is not a whole number up to %2: the nearest one stands for it.</source>
        <translation type="unfinished">El tamaño de letra %1 no es un número entero hasta %2: se usa el más cercano.</translation>
    </message>
    <message>
        <source>%1 keeps its own language, title and forced mark.</source>
        <translation type="unfinished">%1 conserva su idioma, su título y su marca de forzado.</translation>
    </message>
    <message>
        <source>%1 keeps the language, title and forced mark that its name states.</source>
        <translation type="unfinished">%1 conserva el idioma, el título y la marca de forzado que indica su nombre.</translation>
    </message>
    <message>
        <source>%1 goes out without its mark for the hard of hearing.</source>
        <translation type="unfinished">%1 sale sin su marca para personas con dificultades auditivas.</translation>
    </message>
    <message>
        <source>Which of the film&apos;s own tracks players show by themselves stays as in the film.</source>
        <translation type="unfinished">Qué pistas propias de la película muestran los reproductores por sí solos queda como en la película.</translation>
    </message>
    <message>
        <source>The files have different encodings: all are read as they are detected.</source>
        <translation type="unfinished">Los archivos tienen codificaciones distintas: todos se leen según se detecten.</translation>
    </message>
    <message>
        <source>The tracks are moved by different offsets: none is moved.</source>
        <translation type="unfinished">Las pistas tienen desfases distintos: no se desplaza ninguna.</translation>
    </message>
    <message>
        <source>Text cannot be moved by more than a day.</source>
        <translation type="unfinished">El texto no se puede desplazar más de un día.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionControl</name>
    <message>
        <source>Quit while converting?</source>
        <translation type="unfinished">¿Salir mientras se convierte?</translation>
    </message>
    <message>
        <source>Films are still being converted. Quitting cancels them; what is finished stays.</source>
        <translation type="unfinished">Aún se están convirtiendo películas. Al salir se cancelan; lo que está terminado se conserva.</translation>
    </message>
    <message>
        <source>Cancel conversions and quit</source>
        <translation type="unfinished">Cancelar las conversiones y salir</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">Seguir convirtiendo</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionQueue</name>
    <message>
        <source>The subtitles of &quot;%1&quot; cannot go out as chosen: choose them again.</source>
        <translation type="unfinished">Los subtítulos de «%1» no pueden salir como se eligió; vuelva a elegirlos.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::DropHighlight</name>
    <message>
        <source>Drop films, folders or subtitle files</source>
        <translation type="unfinished">Suelte películas, carpetas o archivos de subtítulos</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::EmptyPage</name>
    <message>
        <source>Drop films here or choose files</source>
        <translation type="unfinished">Suelte películas aquí o elija archivos</translation>
    </message>
    <message>
        <source>Folders work too. Subtitle files beside a film are found automatically.</source>
        <translation type="unfinished">También sirven carpetas. Los archivos de subtítulos junto a una película se encuentran solos.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FetchedSubtitles</name>
    <message>
        <source>&quot;%1&quot; was added to &quot;%2&quot;.</source>
        <translation type="unfinished">«%1» se añadió a «%2».</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle file(s) were added to &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>Se añadió %n archivo de subtítulos a «%1».</numerusform>
            <numerusform>Se añadieron %n archivos de subtítulos a «%1».</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">Deshacer</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FileActions</name>
    <message>
        <source>&quot;%1&quot; needs a film to go with: add the film first.</source>
        <translation type="unfinished">«%1» necesita una película: añada primero la película.</translation>
    </message>
    <message>
        <source>No new film was found in &quot;%1&quot;: choose a folder with films.</source>
        <translation type="unfinished">No se encontró ninguna película nueva en «%1»: elija una carpeta con películas.</translation>
    </message>
    <message>
        <source>Add films</source>
        <translation type="unfinished">Añadir películas</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">Subtítulos</translation>
    </message>
    <message>
        <source>All files</source>
        <translation type="unfinished">Todos los archivos</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Añadir subtítulos</translation>
    </message>
    <message>
        <source>Where is &quot;%1&quot; now?</source>
        <translation type="unfinished">¿Dónde está «%1» ahora?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the list already: show another file, or remove &quot;%2&quot; from the list.</source>
        <translation type="unfinished">«%1» ya está en la lista: indique otro archivo o quite «%2» de la lista.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Film</name>
    <message>
        <source>The film &quot;%1&quot; is not there any more: show where it is now, or remove it from the list.</source>
        <translation type="unfinished">La película «%1» ya no está: indique dónde está ahora o quítela de la lista.</translation>
    </message>
    <message>
        <source>Locate...</source>
        <translation type="unfinished">Localizar...</translation>
    </message>
    <message>
        <source>No subtitles, as it stands</source>
        <translation type="unfinished">Tal como está, sin subtítulos</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmActions</name>
    <message>
        <source>Remove a film that is being converted?</source>
        <translation type="unfinished">¿Quitar una película que se está convirtiendo?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is being converted. Removing it cancels its conversion.</source>
        <translation type="unfinished">«%1» se está convirtiendo. Al quitarla se cancela su conversión.</translation>
    </message>
    <message>
        <source>Cancel conversion and remove</source>
        <translation type="unfinished">Cancelar la conversión y quitar</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation type="unfinished">Conservarla</translation>
    </message>
    <message>
        <source>No file manager could be started: the film is &quot;%1&quot;.</source>
        <translation type="unfinished">No se pudo iniciar ningún gestor de archivos: la película es «%1».</translation>
    </message>
    <message>
        <source>The command line is in the clipboard.</source>
        <translation type="unfinished">La línea de órdenes está en el portapapeles.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmListPane</name>
    <message numerus="yes">
        <source>%n film(s)</source>
        <translation type="unfinished">
            <numerusform>%n película</numerusform>
            <numerusform>%n películas</numerusform>
        </translation>
    </message>
    <message>
        <source>Films</source>
        <translation type="unfinished">Películas</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmWords</name>
    <message>
        <source>Track %1</source>
        <translation type="unfinished">Pista %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n track(s)</source>
        <translation type="unfinished">
            <numerusform>%n pista</numerusform>
            <numerusform>Las %n pistas</numerusform>
        </translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">Sin subtítulos</translation>
    </message>
    <message>
        <source>Drawn in: %1</source>
        <translation type="unfinished">Incrustada: %1</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no subtitles that can be read: remove it.</source>
        <translation type="unfinished">El archivo «%1» no contiene subtítulos legibles: quítelo.</translation>
    </message>
    <message>
        <source>Remove the file</source>
        <translation type="unfinished">Quitar el archivo</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: draw it in, or leave it out.</source>
        <translation type="unfinished">%1 no cabe en %2: incrústela en la imagen o déjela fuera.</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: choose %3, draw it in, or leave it out.</source>
        <translation type="unfinished">%1 no cabe en %2: elija %3, incrústela en la imagen o déjela fuera.</translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation type="unfinished">Elegir %1</translation>
    </message>
    <message>
        <source>%1 cannot be moved in time while it stays a track: draw it in, set its offset to 0, or leave it out.</source>
        <translation type="unfinished">%1 no se puede desplazar en el tiempo mientras siga siendo una pista: incrústela, ponga su desfase a 0 o déjela fuera.</translation>
    </message>
    <message>
        <source>Set its offset to 0</source>
        <translation type="unfinished">Poner su desfase a 0</translation>
    </message>
    <message>
        <source>%1 cannot be read in another encoding while it stays a track: draw it in, or leave it out.</source>
        <translation type="unfinished">%1 no se puede leer con otra codificación mientras siga siendo una pista: incrústela o déjela fuera.</translation>
    </message>
    <message>
        <source>Draw it in</source>
        <translation type="unfinished">Incrustarla</translation>
    </message>
    <message>
        <source>Leave it out</source>
        <translation type="unfinished">Dejarla fuera</translation>
    </message>
    <message>
        <source>%1 is moved by %2 s.</source>
        <translation type="unfinished">%1 se desplazará %2 s.</translation>
    </message>
    <message>
        <source>%1 is read as %2.</source>
        <translation type="unfinished">%1 se leerá como %2.</translation>
    </message>
    <message>
        <source>%1 goes into %2 as plain text and loses its styles.</source>
        <translation type="unfinished">%1 irá en %2 como texto sin formato y perderá sus estilos.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished">&amp;Archivo</translation>
    </message>
    <message>
        <source>Fil&amp;m</source>
        <translation type="unfinished">Pelíc&amp;ula</translation>
    </message>
    <message>
        <source>Put left-out tracks &amp;back</source>
        <translation type="unfinished">&amp;Recuperar las pistas dejadas fuera</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation type="unfinished">&amp;Convertir</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished">&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished">&amp;Tema</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished">&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished">A&amp;yuda</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::NoticeBar</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished">%1 de %2</translation>
    </message>
    <message>
        <source>Previous notice</source>
        <translation type="unfinished">Aviso anterior</translation>
    </message>
    <message>
        <source>Next notice</source>
        <translation type="unfinished">Aviso siguiente</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation type="unfinished">Cerrar este aviso</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Notices</name>
    <message>
        <source>Try again</source>
        <translation type="unfinished">Reintentar</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Show the first that failed</source>
        <translation type="unfinished">Mostrar la primera que falló</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::OutputBar</name>
    <message>
        <source>Same as source</source>
        <translation type="unfinished">Como el original</translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished">Alta</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished">Media</translation>
    </message>
    <message>
        <source>Small</source>
        <translation type="unfinished">Pequeño</translation>
    </message>
    <message>
        <source>The picture is copied unchanged where nothing is drawn into it and the format can carry it; otherwise it is encoded in high quality.</source>
        <translation type="unfinished">La imagen se copia sin cambios si no se incrusta nada y el formato la admite; si no, se codifica en alta calidad.</translation>
    </message>
    <message>
        <source>The picture is encoded anew; differences are next to invisible.</source>
        <translation type="unfinished">La imagen se vuelve a codificar; las diferencias son casi invisibles.</translation>
    </message>
    <message>
        <source>The picture is encoded anew; good for watching, in a smaller file.</source>
        <translation type="unfinished">La imagen se vuelve a codificar; buena para ver, en un archivo más pequeño.</translation>
    </message>
    <message>
        <source>The picture is encoded anew into a small file; losses are visible.</source>
        <translation type="unfinished">La imagen se vuelve a codificar en un archivo pequeño; las pérdidas son visibles.</translation>
    </message>
    <message>
        <source>paused</source>
        <translation type="unfinished">en pausa</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished">%1, %2</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation type="unfinished">&amp;Reanudar</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">&amp;Pausar</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">Seguir convirtiendo</translation>
    </message>
    <message>
        <source>Wait until you resume</source>
        <translation type="unfinished">Detenerse hasta que usted reanude</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation type="unfinished">&amp;Formato</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation type="unfinished">Formato de salida</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation type="unfinished">&amp;Calidad</translation>
    </message>
    <message>
        <source>Quality of the picture</source>
        <translation type="unfinished">Calidad de la imagen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished">&amp;Guardar</translation>
    </message>
    <message>
        <source>Beside each film</source>
        <translation type="unfinished">Junto a cada película</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation type="unfinished">Elegir una carpeta...</translation>
    </message>
    <message>
        <source>&amp;Convert all</source>
        <translation type="unfinished">&amp;Convertir todas</translation>
    </message>
    <message>
        <source>Convert all films that are ready</source>
        <translation type="unfinished">Convertir todas las películas que están listas</translation>
    </message>
    <message>
        <source>Only &amp;this film</source>
        <translation type="unfinished">Solo &amp;esta película</translation>
    </message>
    <message>
        <source>Convert the film that is chosen in the list, and no other</source>
        <translation type="unfinished">Convertir la película elegida en la lista y ninguna otra</translation>
    </message>
    <message>
        <source>Progress of all conversions</source>
        <translation type="unfinished">Progreso de todas las conversiones</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation type="unfinished">Ca&amp;ncelar</translation>
    </message>
    <message>
        <source>Stop converting; half-written files are removed</source>
        <translation type="unfinished">Detener la conversión; los archivos a medio escribir se eliminan</translation>
    </message>
    <message>
        <source>Where to save</source>
        <translation type="unfinished">Dónde guardar</translation>
    </message>
    <message>
        <source>Output folder: %1</source>
        <translation type="unfinished">Carpeta de salida: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::PreviewPane</name>
    <message>
        <source>Drop films here.</source>
        <translation type="unfinished">Suelte películas aquí.</translation>
    </message>
    <message>
        <source>The film is being read.</source>
        <translation type="unfinished">La película se está leyendo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no picture, so there is nothing to see. Its sound can be converted.</source>
        <translation type="unfinished">«%1» no tiene imagen, así que no hay nada que ver. Su sonido se puede convertir.</translation>
    </message>
    <message>
        <source>There are no subtitles. Add a subtitle file to see it drawn in.</source>
        <translation type="unfinished">No hay subtítulos. Añada un archivo de subtítulos para verlo incrustado.</translation>
    </message>
    <message>
        <source>All tracks stay switchable. Choose one to see it drawn in.</source>
        <translation type="unfinished">Las pistas siguen activables. Elija una para verla incrustada.</translation>
    </message>
    <message>
        <source>Choose a track to see it drawn in.</source>
        <translation type="unfinished">Elija una pista para verla incrustada.</translation>
    </message>
    <message>
        <source>All tracks stay switchable.</source>
        <translation type="unfinished">Las pistas siguen activables.</translation>
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
        <translation type="unfinished">Subtítulo anterior</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation type="unfinished">Subtítulo siguiente</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished">Vista previa</translation>
    </message>
    <message>
        <source>Position in the film</source>
        <translation type="unfinished">Posición en la película</translation>
    </message>
    <message>
        <source>Where the cues are</source>
        <translation type="unfinished">Dónde están los subtítulos</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>position / length</comment>
        <translation type="unfinished">%1 / %2</translation>
    </message>
    <message>
        <source>The subtitles are being read.</source>
        <translation type="unfinished">Los subtítulos se están leyendo.</translation>
    </message>
    <message>
        <source>This track has no lines.</source>
        <translation type="unfinished">Esta pista no tiene líneas.</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the next one.</source>
        <comment>keys</comment>
        <translation type="unfinished">Aquí no hay ninguna línea: %1 va a la siguiente.</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the one before.</source>
        <comment>keys</comment>
        <translation type="unfinished">Aquí no hay ninguna línea: %1 va a la anterior.</translation>
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
        <translation type="unfinished">Subtítulos Blu-ray (*.sup)</translation>
    </message>
    <message>
        <source>Matroska (*.mkv *.mks)</source>
        <translation type="unfinished">Matroska (*.mkv *.mks)</translation>
    </message>
    <message>
        <source>Save the track as</source>
        <translation type="unfinished">Guardar la pista como</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; was saved as %2 with %n cue(s)</source>
        <translation type="unfinished">
            <numerusform>«%1» se guardó como %2 con %n subtítulo</numerusform>
            <numerusform>«%1» se guardó como %2 con %n subtítulos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) could not be read as %1</source>
        <translation type="unfinished">
            <numerusform>%n byte no se pudo leer como %1</numerusform>
            <numerusform>%n bytes no se pudieron leer como %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) without usable times were left out</source>
        <translation type="unfinished">
            <numerusform>%n subtítulo sin tiempos utilizables se dejó fuera</numerusform>
            <numerusform>%n subtítulos sin tiempos utilizables se dejaron fuera</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of no duration were left out</source>
        <translation type="unfinished">
            <numerusform>%n subtítulo sin duración se dejó fuera</numerusform>
            <numerusform>%n subtítulos sin duración se dejaron fuera</numerusform>
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
        <translation type="unfinished">El nombre «%1» no indica cómo guardar la pista: hágalo terminar en .srt, .ass, .sup o .mkv.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is %3, which no subtitle file can hold: draw it into the picture instead.</source>
        <translation type="unfinished">La pista %1 de «%2» es %3, que ningún archivo de subtítulos admite: incrústela en la imagen.</translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation type="unfinished">Guardando «%1»</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Cancelar</translation>
    </message>
    <message>
        <source>Save a track</source>
        <translation type="unfinished">Guardar una pista</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SessionStore</name>
    <message>
        <source>The last list of films, &quot;%1&quot;, cannot be read, so nothing is saved this time: rename or remove that file.</source>
        <translation type="unfinished">La última lista, en «%1», no se puede leer y esta vez no se guarda nada: cambie el nombre del archivo o elimínelo.</translation>
    </message>
    <message>
        <source>The last list of films was written by a newer version of the program; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">La última lista la escribió una versión más reciente del programa; se conserva como «%1». Abra de nuevo sus películas.</translation>
    </message>
    <message>
        <source>The last list of films is damaged; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">La última lista está dañada; se conserva como «%1». Abra de nuevo sus películas.</translation>
    </message>
    <message>
        <source>The list of films could not be saved in &quot;%1&quot; (%2): check that you may write there.</source>
        <translation type="unfinished">La lista de películas no se pudo guardar en «%1» (%2): compruebe que puede escribir allí.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished">Ajustes</translation>
    </message>
    <message>
        <source>Online service</source>
        <translation type="unfinished">Servicio en línea</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished">Estadísticas</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Cancelar</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsOnlinePage</name>
    <message>
        <source>version 1 of OpenSubtitles, because an API key is set.</source>
        <translation type="unfinished">la versión 1 de OpenSubtitles, porque hay una clave de API.</translation>
    </message>
    <message>
        <source>version 1 of OpenSubtitles, because the configuration file says so. It answers nobody without an API key: enter one below.</source>
        <translation type="unfinished">la versión 1 de OpenSubtitles, porque así lo indica el archivo de configuración. No responde a nadie sin clave de API: introduzca una abajo.</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because the configuration file says so. The API key is not used.</source>
        <translation type="unfinished">la interfaz antigua de OpenSubtitles, porque así lo indica el archivo de configuración. La clave de API no se usa.</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because no API key is set.</source>
        <translation type="unfinished">la interfaz antigua de OpenSubtitles, porque no hay clave de API.</translation>
    </message>
    <message>
        <source>API &amp;key:</source>
        <translation type="unfinished">C&amp;lave de API:</translation>
    </message>
    <message>
        <source>API key</source>
        <translation type="unfinished">Clave de API</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation type="unfinished">&amp;Mostrar</translation>
    </message>
    <message>
        <source>Fetched &amp;files:</source>
        <translation type="unfinished">&amp;Descargas:</translation>
    </message>
    <message>
        <source>Folder for fetched files</source>
        <translation type="unfinished">Carpeta para los archivos descargados</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation type="unfinished">&amp;Elegir...</translation>
    </message>
    <message>
        <source>&amp;Usual folder</source>
        <translation type="unfinished">Carpeta &amp;habitual</translation>
    </message>
    <message>
        <source>Version 1:</source>
        <translation type="unfinished">Versión 1:</translation>
    </message>
    <message>
        <source>Older interface:</source>
        <translation type="unfinished">Interfaz antigua:</translation>
    </message>
    <message>
        <source>The addresses are set in the configuration file &quot;%1&quot;.</source>
        <translation type="unfinished">Las direcciones se fijan en el archivo de configuración «%1».</translation>
    </message>
    <message>
        <source>In use: %1</source>
        <translation type="unfinished">En uso: %1</translation>
    </message>
    <message>
        <source>From the next start of the program on: %1</source>
        <translation type="unfinished">A partir del próximo inicio del programa: %1</translation>
    </message>
    <message>
        <source>Folder for fetched subtitle files</source>
        <translation type="unfinished">Carpeta para los archivos de subtítulos descargados</translation>
    </message>
    <message>
        <source>It comes from the account pages of opensubtitles.com, is kept in the configuration file, and is used from the next start on.</source>
        <translation type="unfinished">Se obtiene en las páginas de la cuenta de opensubtitles.com, se guarda en el archivo de configuración y se usa a partir del próximo inicio.</translation>
    </message>
    <message>
        <source>The variable %1 of the environment sets it.</source>
        <translation type="unfinished">La fija la variable de entorno %1.</translation>
    </message>
    <message>
        <source>This is no API key: a key has no blanks and no special characters. Copy it again.</source>
        <translation type="unfinished">Esto no es una clave de API: una clave no tiene espacios ni caracteres especiales. Cópiela de nuevo.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsStatisticsPage</name>
    <message>
        <source>If you agree, the program counts how the online search is used: from where it is opened, which fields are filled in, how many searches find something, nothing or fail, and how many files are fetched. Names, folders and what you type are never recorded. The record stays on this computer; it is sent to nobody.</source>
        <translation type="unfinished">Si está de acuerdo, el programa cuenta cómo se usa la búsqueda en línea: desde dónde se abre, qué campos se rellenan, cuántas búsquedas encuentran algo, no encuentran nada o fallan, y cuántos archivos se descargan. Nunca se registran nombres, carpetas ni lo que usted escribe. El registro se queda en este equipo; no se envía a nadie.</translation>
    </message>
    <message>
        <source>&amp;Count how the online search is used</source>
        <translation type="unfinished">&amp;Contar cómo se usa la búsqueda en línea</translation>
    </message>
    <message>
        <source>&amp;Recorded in &quot;%1&quot;:</source>
        <translation type="unfinished">&amp;Registrado en «%1»:</translation>
    </message>
    <message>
        <source>Nothing has been recorded.</source>
        <translation type="unfinished">No se ha registrado nada.</translation>
    </message>
    <message>
        <source>What has been recorded</source>
        <translation type="unfinished">Lo que se ha registrado</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">&amp;Eliminar</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ShortcutsDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished">Atajos de teclado</translation>
    </message>
    <message>
        <source>In the list: subtitles of the film</source>
        <translation type="unfinished">En la lista: subtítulos de la película</translation>
    </message>
    <message>
        <source>In the list: menu of the film</source>
        <translation type="unfinished">En la lista: menú de la película</translation>
    </message>
    <message>
        <source>Close what is open</source>
        <translation type="unfinished">Cerrar lo que está abierto</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpPane</name>
    <message>
        <source>Help with the text</source>
        <translation type="unfinished">Ayuda con el texto</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpTexts</name>
    <message>
        <source>The file itself says that it is %1.</source>
        <translation type="unfinished">El propio archivo indica que es %1.</translation>
    </message>
    <message>
        <source>Detected: %1, certain.</source>
        <translation type="unfinished">Detectado: %1, seguro.</translation>
    </message>
    <message>
        <source>Nothing tells the encoding; %1 is a guess.</source>
        <translation type="unfinished">Nada revela la codificación; %1 es una suposición.</translation>
    </message>
    <message>
        <source>Detected: %1, very sure (%2).</source>
        <translation type="unfinished">Detectado: %1, muy seguro (%2).</translation>
    </message>
    <message>
        <source>Detected: %1, fairly sure (%2).</source>
        <translation type="unfinished">Detectado: %1, bastante seguro (%2).</translation>
    </message>
    <message>
        <source>Detected: %1, not sure (%2).</source>
        <translation type="unfinished">Detectado: %1, no seguro (%2).</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) cannot be read in this encoding and show as &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>%n byte no se puede leer con esta codificación y aparece como «%1».</numerusform>
            <numerusform>%n bytes no se pueden leer con esta codificación y aparecen como «%1».</numerusform>
        </translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; is not installed; &quot;%2&quot; stands in.</source>
        <translation type="unfinished">La fuente «%1» no está instalada; la sustituye «%2».</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">japonés</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation type="unfinished">chino</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">coreano</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation type="unfinished">cirílico</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">griego</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">hebreo</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">árabe</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">tailandés</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation type="unfinished">devanagari</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; lacks %n character(s) of this text (%2): &quot;%3&quot; stands in.</source>
        <translation type="unfinished">
            <numerusform>A «%1» le falta %n carácter de este texto (%2): lo sustituye «%3».</numerusform>
            <numerusform>A «%1» le faltan %n caracteres de este texto (%2): los sustituye «%3».</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No installed font has %n character(s) of this text (%1); they show as empty boxes.</source>
        <translation type="unfinished">
            <numerusform>Ninguna fuente instalada tiene %n carácter de este texto (%1); aparece como un recuadro vacío.</numerusform>
            <numerusform>Ninguna fuente instalada tiene %n caracteres de este texto (%1); aparecen como recuadros vacíos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpView</name>
    <message>
        <source>It could also read:</source>
        <translation type="unfinished">También podría leerse así:</translation>
    </message>
    <message>
        <source>First lines of the text</source>
        <translation type="unfinished">Primeras líneas del texto</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackActions</name>
    <message>
        <source>Quit while saving?</source>
        <translation type="unfinished">¿Salir mientras se guarda?</translation>
    </message>
    <message>
        <source>A track is still being saved. Quitting cancels that, and no file is written.</source>
        <translation type="unfinished">Aún se está guardando una pista. Al salir se cancela y no se escribe ningún archivo.</translation>
    </message>
    <message>
        <source>Cancel saving and quit</source>
        <translation type="unfinished">Cancelar el guardado y salir</translation>
    </message>
    <message>
        <source>Go on saving</source>
        <translation type="unfinished">Seguir guardando</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackMenu</name>
    <message>
        <source>&amp;Draw in</source>
        <translation type="unfinished">&amp;Incrustar</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">&amp;Quitar de la lista</translation>
    </message>
    <message>
        <source>&amp;Leave out of the output</source>
        <translation type="unfinished">&amp;Dejar fuera de la salida</translation>
    </message>
    <message>
        <source>Language, &amp;title and marks...</source>
        <translation type="unfinished">Idioma, &amp;título y marcas...</translation>
    </message>
    <message>
        <source>&amp;Put back</source>
        <translation type="unfinished">&amp;Recuperar</translation>
    </message>
    <message>
        <source>&amp;Save as a file...</source>
        <translation type="unfinished">&amp;Guardar como archivo...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackPropertiesDialog</name>
    <message>
        <source>Subtitle track</source>
        <translation type="unfinished">Pista de subtítulos</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished">&amp;Idioma:</translation>
    </message>
    <message>
        <source>Not stated</source>
        <translation type="unfinished">Sin indicar</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">Idioma</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation type="unfinished">&amp;Título:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">Título</translation>
    </message>
    <message>
        <source>On by &amp;default</source>
        <translation type="unfinished">Activada por &amp;omisión</translation>
    </message>
    <message>
        <source>Players show this track unless another one is chosen</source>
        <translation type="unfinished">Los reproductores muestran esta pista si no se elige otra</translation>
    </message>
    <message>
        <source>&amp;Forced</source>
        <translation type="unfinished">&amp;Forzada</translation>
    </message>
    <message>
        <source>Only what has to be read in any case: signs and foreign speech</source>
        <translation type="unfinished">Solo lo que hay que leer en cualquier caso: letreros y diálogos extranjeros</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Cancelar</translation>
    </message>
    <message>
        <source>This language is not known: choose one from the list, or write its code, such as &quot;en&quot; or &quot;pt-br&quot;.</source>
        <translation type="unfinished">Este idioma no se conoce: elija uno de la lista o escriba su código, por ejemplo «en» o «pt-br».</translation>
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
        <translation type="unfinished">Color %1</translation>
    </message>
    <message>
        <source>Choose a color</source>
        <translation type="unfinished">Elegir un color</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Afrikaans</source>
        <translation type="unfinished">afrikáans</translation>
    </message>
    <message>
        <source>Albanian</source>
        <translation type="unfinished">albanés</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">árabe</translation>
    </message>
    <message>
        <source>Aragonese</source>
        <translation type="unfinished">aragonés</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation type="unfinished">armenio</translation>
    </message>
    <message>
        <source>Asturian</source>
        <translation type="unfinished">asturiano</translation>
    </message>
    <message>
        <source>Azerbaijani</source>
        <translation type="unfinished">azerbaiyano</translation>
    </message>
    <message>
        <source>Basque</source>
        <translation type="unfinished">euskera</translation>
    </message>
    <message>
        <source>Belarusian</source>
        <translation type="unfinished">bielorruso</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation type="unfinished">bengalí</translation>
    </message>
    <message>
        <source>Bosnian</source>
        <translation type="unfinished">bosnio</translation>
    </message>
    <message>
        <source>Breton</source>
        <translation type="unfinished">bretón</translation>
    </message>
    <message>
        <source>Bulgarian</source>
        <translation type="unfinished">búlgaro</translation>
    </message>
    <message>
        <source>Burmese</source>
        <translation type="unfinished">birmano</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation type="unfinished">catalán</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation type="unfinished">chino (simplificado)</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation type="unfinished">chino (tradicional)</translation>
    </message>
    <message>
        <source>Chinese (Bilingual)</source>
        <translation type="unfinished">chino (bilingüe)</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation type="unfinished">croata</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation type="unfinished">checo</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation type="unfinished">danés</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation type="unfinished">neerlandés</translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished">inglés</translation>
    </message>
    <message>
        <source>Esperanto</source>
        <translation type="unfinished">esperanto</translation>
    </message>
    <message>
        <source>Estonian</source>
        <translation type="unfinished">estonio</translation>
    </message>
    <message>
        <source>Extremaduran</source>
        <translation type="unfinished">extremeño</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation type="unfinished">finés</translation>
    </message>
    <message>
        <source>French</source>
        <translation type="unfinished">francés</translation>
    </message>
    <message>
        <source>Galician</source>
        <translation type="unfinished">gallego</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation type="unfinished">georgiano</translation>
    </message>
    <message>
        <source>German</source>
        <translation type="unfinished">alemán</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">griego</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">hebreo</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation type="unfinished">hindi</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation type="unfinished">húngaro</translation>
    </message>
    <message>
        <source>Icelandic</source>
        <translation type="unfinished">islandés</translation>
    </message>
    <message>
        <source>Indonesian</source>
        <translation type="unfinished">indonesio</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation type="unfinished">italiano</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">japonés</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation type="unfinished">canarés</translation>
    </message>
    <message>
        <source>Kazakh</source>
        <translation type="unfinished">kazajo</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation type="unfinished">jemer</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">coreano</translation>
    </message>
    <message>
        <source>Kurdish</source>
        <translation type="unfinished">kurdo</translation>
    </message>
    <message>
        <source>Latvian</source>
        <translation type="unfinished">letón</translation>
    </message>
    <message>
        <source>Lithuanian</source>
        <translation type="unfinished">lituano</translation>
    </message>
    <message>
        <source>Luxembourgish</source>
        <translation type="unfinished">luxemburgués</translation>
    </message>
    <message>
        <source>Macedonian</source>
        <translation type="unfinished">macedonio</translation>
    </message>
    <message>
        <source>Malay</source>
        <translation type="unfinished">malayo</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation type="unfinished">malayálam</translation>
    </message>
    <message>
        <source>Manipuri</source>
        <translation type="unfinished">manipurí</translation>
    </message>
    <message>
        <source>Mongolian</source>
        <translation type="unfinished">mongol</translation>
    </message>
    <message>
        <source>Montenegrin</source>
        <translation type="unfinished">montenegrino</translation>
    </message>
    <message>
        <source>Northern Sami</source>
        <translation type="unfinished">sami septentrional</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation type="unfinished">noruego</translation>
    </message>
    <message>
        <source>Occitan</source>
        <translation type="unfinished">occitano</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation type="unfinished">persa</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation type="unfinished">polaco</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation type="unfinished">portugués</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation type="unfinished">portugués (Brasil)</translation>
    </message>
    <message>
        <source>Portuguese (Mozambique)</source>
        <translation type="unfinished">portugués (Mozambique)</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation type="unfinished">rumano</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation type="unfinished">ruso</translation>
    </message>
    <message>
        <source>Serbian</source>
        <translation type="unfinished">serbio</translation>
    </message>
    <message>
        <source>Sinhalese</source>
        <translation type="unfinished">cingalés</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation type="unfinished">eslovaco</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation type="unfinished">esloveno</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation type="unfinished">español</translation>
    </message>
    <message>
        <source>Swahili</source>
        <translation type="unfinished">suajili</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation type="unfinished">sueco</translation>
    </message>
    <message>
        <source>Syriac</source>
        <translation type="unfinished">siríaco</translation>
    </message>
    <message>
        <source>Tagalog</source>
        <translation type="unfinished">tagalo</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation type="unfinished">tamil</translation>
    </message>
    <message>
        <source>Telugu</source>
        <translation type="unfinished">telugu</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">tailandés</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation type="unfinished">turco</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation type="unfinished">ucraniano</translation>
    </message>
    <message>
        <source>Urdu</source>
        <translation type="unfinished">urdu</translation>
    </message>
    <message>
        <source>Uzbek</source>
        <translation type="unfinished">uzbeko</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation type="unfinished">vietnamita</translation>
    </message>
</context>
<context>
    <name>LanguageSelector</name>
    <message>
        <source>All languages</source>
        <translation type="unfinished">Todos los idiomas</translation>
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
        <translation type="unfinished">No hay ningún servicio de subtítulos en línea configurado; añada su clave de API a la configuración.</translation>
    </message>
    <message>
        <source> (it says: &quot;%1&quot;)</source>
        <translation type="unfinished"> (dice: «%1»)</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again after %3.</source>
        <translation type="unfinished">Sus descargas en %1 se han agotado%2; vuelva a descargar después de este momento: %3.</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again in %3.</source>
        <translation type="unfinished">Sus descargas en %1 se han agotado%2; vuelva a descargar pasado este tiempo: %3.</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again tomorrow.</source>
        <translation type="unfinished">Sus descargas en %1 se han agotado%2; vuelva a descargar mañana.</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; wait %3 s and try again.</source>
        <translation type="unfinished">Se hicieron demasiadas peticiones a %1%2; espere %3 s e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; try again in a minute.</source>
        <translation type="unfinished">Se hicieron demasiadas peticiones a %1%2; inténtelo de nuevo dentro de un minuto.</translation>
    </message>
    <message>
        <source>%1 did not accept the API key%2; set a valid one in the settings, as KORVEX_OPENSUBTITLES_API_KEY in the environment or as api_key in the configuration file.</source>
        <translation type="unfinished">%1 no aceptó la clave de API%2; fije una válida en los ajustes, como KORVEX_OPENSUBTITLES_API_KEY en el entorno o como api_key en el archivo de configuración.</translation>
    </message>
    <message>
        <source>%1 sent something else in place of the subtitle%2; choose another one, or try again later.</source>
        <translation type="unfinished">%1 envió otra cosa en lugar del subtítulo%2; elija otro o inténtelo más tarde.</translation>
    </message>
    <message>
        <source>%1 is down or overloaded at the moment%2; try again later.</source>
        <translation type="unfinished">%1 está caído o sobrecargado en este momento%2; inténtelo más tarde.</translation>
    </message>
    <message>
        <source>The subtitle could not be unpacked or stored in &quot;%1&quot;%2; choose another subtitle, or make sure that the folder may be written and has room.</source>
        <translation type="unfinished">No se pudo descomprimir el subtítulo o guardarlo en «%1»%2; elija otro subtítulo o asegúrese de que se puede escribir en la carpeta y de que tiene espacio.</translation>
    </message>
    <message>
        <source>%1 refused the request%2; ask for something else, or try again later.</source>
        <translation type="unfinished">%1 rechazó la petición%2; pida otra cosa o inténtelo más tarde.</translation>
    </message>
    <message>
        <source>%1 points to other addresses without end, or to one that may not be used%2; check the address that is set for it, or try again later.</source>
        <translation type="unfinished">%1 remite sin fin a otras direcciones o a una que no se puede usar%2; compruebe la dirección fijada para él o inténtelo más tarde.</translation>
    </message>
    <message>
        <source>The answer of %1 was empty, broke off or was too large; try again later.</source>
        <translation type="unfinished">La respuesta de %1 estaba vacía, se cortó o era demasiado grande; inténtelo más tarde.</translation>
    </message>
    <message>
        <source>The answer of %1 cannot be used%2; try again later.</source>
        <translation type="unfinished">La respuesta de %1 no se puede usar%2; inténtelo más tarde.</translation>
    </message>
    <message>
        <source>%1 could not answer%2; try again later.</source>
        <translation type="unfinished">%1 no pudo responder%2; inténtelo más tarde.</translation>
    </message>
    <message>
        <source>%1 could not answer%2; check the address that is set for it and the proxy, or try again later.</source>
        <translation type="unfinished">%1 no pudo responder%2; compruebe la dirección fijada para él y el proxy, o inténtelo más tarde.</translation>
    </message>
    <message>
        <source>The connection to %1 failed%2; check the proxy and whether the service&apos;s certificate is valid, or try again later.</source>
        <translation type="unfinished">Falló la conexión con %1%2; compruebe el proxy y si el certificado del servicio es válido, o inténtelo más tarde.</translation>
    </message>
    <message>
        <source>Another search or download has not ended yet; try again in a moment.</source>
        <translation type="unfinished">Otra búsqueda o descarga no ha terminado aún; inténtelo de nuevo dentro de un momento.</translation>
    </message>
    <message>
        <source>%1 cannot look for this%2; type a title or an IMDb id.</source>
        <translation type="unfinished">%1 no puede buscar esto%2; escriba un título o un ID de IMDb.</translation>
    </message>
    <message>
        <source>%1 cannot search in this way; look for a title or an IMDb id.</source>
        <translation type="unfinished">%1 no puede buscar de esta manera; busque un título o un ID de IMDb.</translation>
    </message>
    <message>
        <source>%1 cannot be reached or did not answer in time; check the connection to the network and try again.</source>
        <translation type="unfinished">No se puede acceder a %1 o no respondió a tiempo; compruebe la conexión a la red e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>OnlineSearchDialogPresenter</name>
    <message>
        <source>same file</source>
        <translation type="unfinished">mismo archivo</translation>
    </message>
    <message>
        <source>same release group</source>
        <translation type="unfinished">mismo grupo</translation>
    </message>
    <message>
        <source>same source</source>
        <translation type="unfinished">misma fuente</translation>
    </message>
    <message>
        <source>same resolution</source>
        <translation type="unfinished">misma resolución</translation>
    </message>
    <message>
        <source>same episode</source>
        <translation type="unfinished">mismo episodio</translation>
    </message>
    <message>
        <source>another episode</source>
        <translation type="unfinished">otro episodio</translation>
    </message>
    <message>
        <source>another film</source>
        <translation type="unfinished">otra película</translation>
    </message>
    <message>
        <source>Type a title or an IMDb id to search for.</source>
        <translation type="unfinished">Escriba un título o un ID de IMDb que buscar.</translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and digits, or leave it empty.</source>
        <translation type="unfinished">Esto no es un ID de IMDb: escriba «tt» y cifras o déjelo vacío.</translation>
    </message>
    <message>
        <source>The season is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">La temporada no es un número: escriba cifras o déjela vacía.</translation>
    </message>
    <message>
        <source>The episode is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">El episodio no es un número: escriba cifras o déjelo vacío.</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">Buscando...</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n found so far</source>
        <translation type="unfinished">
            <numerusform>Buscando... %n encontrado hasta ahora</numerusform>
            <numerusform>Buscando... %n encontrados hasta ahora</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>%n subtítulo encontrado.</numerusform>
            <numerusform>%n subtítulos encontrados.</numerusform>
        </translation>
    </message>
    <message>
        <source>check the spelling of the title</source>
        <translation type="unfinished">compruebe la ortografía del título</translation>
    </message>
    <message>
        <source>type the title</source>
        <translation type="unfinished">escriba el título</translation>
    </message>
    <message>
        <source>type the film&apos;s IMDb id</source>
        <translation type="unfinished">escriba el ID de IMDb de la película</translation>
    </message>
    <message>
        <source>check the IMDb id</source>
        <translation type="unfinished">compruebe el ID de IMDb</translation>
    </message>
    <message>
        <source>leave out the season and the episode</source>
        <translation type="unfinished">omita la temporada y el episodio</translation>
    </message>
    <message>
        <source>choose other languages</source>
        <translation type="unfinished">elija otros idiomas</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished">%1 o %2</translation>
    </message>
    <message>
        <source>No subtitles were found: %1.</source>
        <translation type="unfinished">No se encontraron subtítulos: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Downloading %n subtitle(s)...</source>
        <translation type="unfinished">
            <numerusform>Descargando %n subtítulo...</numerusform>
            <numerusform>Descargando %n subtítulos...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) added to the film.</source>
        <translation type="unfinished">
            <numerusform>%n subtítulo añadido a la película.</numerusform>
            <numerusform>%n subtítulos añadidos a la película.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n download(s) left.</source>
        <translation type="unfinished">
            <numerusform>Queda %n descarga.</numerusform>
            <numerusform>Quedan %n descargas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for the last request to end...</source>
        <translation type="unfinished">Esperando a que termine la última petición...</translation>
    </message>
    <message>
        <source>The search was cancelled.</source>
        <translation type="unfinished">La búsqueda se canceló.</translation>
    </message>
    <message numerus="yes">
        <source>The search was cancelled; %n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>La búsqueda se canceló; %n subtítulo encontrado.</numerusform>
            <numerusform>La búsqueda se canceló; %n subtítulos encontrados.</numerusform>
        </translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation type="unfinished">La descarga se canceló.</translation>
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
        <translation type="unfinished">Automático</translation>
    </message>
    <message>
        <source>Translated by a machine</source>
        <translation type="unfinished">Traducido por una máquina</translation>
    </message>
    <message>
        <source>Foreign</source>
        <comment>short mark</comment>
        <translation type="unfinished">Extranjero</translation>
    </message>
    <message>
        <source>Only what is spoken in a foreign language</source>
        <translation type="unfinished">Solo lo que se habla en un idioma extranjero</translation>
    </message>
    <message>
        <source>HI</source>
        <comment>short mark</comment>
        <translation type="unfinished">Sordos</translation>
    </message>
    <message>
        <source>For the hearing impaired: sounds are described</source>
        <translation type="unfinished">Para personas sordas: se describen los sonidos</translation>
    </message>
    <message>
        <source>Trusted</source>
        <comment>short mark</comment>
        <translation type="unfinished">Fiable</translation>
    </message>
    <message>
        <source>From an uploader whom the service trusts</source>
        <translation type="unfinished">De alguien en quien confía el servicio</translation>
    </message>
    <message>
        <source>CD %1/%2</source>
        <comment>short mark</comment>
        <translation type="unfinished">CD %1/%2</translation>
    </message>
    <message>
        <source>Part %1 of %2; all parts are downloaded</source>
        <translation type="unfinished">Parte %1 de %2; se descargan todas las partes</translation>
    </message>
    <message>
        <source>HD</source>
        <comment>short mark</comment>
        <translation type="unfinished">HD</translation>
    </message>
    <message>
        <source>Made for a release in high definition</source>
        <translation type="unfinished">Hecho para una edición en alta definición</translation>
    </message>
    <message>
        <source>Made for this file or release</source>
        <translation type="unfinished">Hecho para este archivo o esta edición</translation>
    </message>
    <message>
        <source>For this film, perhaps for another cut of it</source>
        <translation type="unfinished">Para esta película, quizá para otro montaje</translation>
    </message>
    <message>
        <source>For another film or episode</source>
        <translation type="unfinished">Para otra película u otro episodio</translation>
    </message>
    <message>
        <source>It is not known how well it fits</source>
        <translation type="unfinished">No se sabe hasta qué punto encaja</translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished">Nombre</translation>
    </message>
    <message>
        <source>Match</source>
        <translation type="unfinished">Coincidencia</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">Idioma</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation type="unfinished">Marcas</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation type="unfinished">Descargas</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation type="unfinished">Valoración</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation type="unfinished">Subido</translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished">Formato</translation>
    </message>
    <message>
        <source>Release: %1</source>
        <translation type="unfinished">Edición: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of 10, by %n vote(s)</source>
        <translation type="unfinished">
            <numerusform>%1 de 10, con %n voto</numerusform>
            <numerusform>%1 de 10, con %n votos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SubtitleCollection</name>
    <message>
        <source>Subtitle tracks</source>
        <translation type="unfinished">Pistas de subtítulos</translation>
    </message>
    <message>
        <source>Current choice</source>
        <translation type="unfinished">Elección actual</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">Sin subtítulos</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">Conservar todas las pistas (softsub)</translation>
    </message>
    <message>
        <source>There are no subtitle tracks yet. Add a subtitle file first.</source>
        <translation type="unfinished">Todavía no hay pistas de subtítulos. Añada primero un archivo de subtítulos.</translation>
    </message>
    <message>
        <source>The chosen output format cannot carry these tracks. Choose another format, or burn one track in.</source>
        <translation type="unfinished">El formato de salida elegido no admite estas pistas. Elija otro formato o incruste una pista.</translation>
    </message>
    <message>
        <source>Save this track to a file (Ctrl+S)</source>
        <translation type="unfinished">Guardar esta pista en un archivo (Ctrl+S)</translation>
    </message>
    <message>
        <source>Save to a file: %1</source>
        <translation type="unfinished">Guardar en un archivo: %1</translation>
    </message>
</context>
<context>
    <name>SubtitleCollectionInteractor</name>
    <message>
        <source>No subtitles were found in &quot;%1&quot;: take it out of the list and choose an SRT, ASS or SSA file.</source>
        <translation type="unfinished">No se encontraron subtítulos en «%1»: quítelo de la lista y elija un archivo SRT, ASS o SSA.</translation>
    </message>
</context>
<context>
    <name>SubtitleSettings</name>
    <message>
        <source>Auto</source>
        <translation type="unfinished">Automática</translation>
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
        <translation type="unfinished">Europa central y oriental (Windows-1250)</translation>
    </message>
    <message>
        <source>Russian (KOI8-R)</source>
        <translation type="unfinished">Ruso (KOI8-R)</translation>
    </message>
    <message>
        <source>Ukrainian, Belarusian (KOI8-U/RU)</source>
        <translation type="unfinished">Ucraniano, bielorruso (KOI8-U/RU)</translation>
    </message>
    <message>
        <source>Esperanto, Galician, Maltese, Turkish (ISO-8859-3)</source>
        <translation type="unfinished">Esperanto, gallego, maltés, turco (ISO-8859-3)</translation>
    </message>
    <message>
        <source>Modern Greek (ISO-8859-7)</source>
        <translation type="unfinished">Griego moderno (ISO-8859-7)</translation>
    </message>
    <message>
        <source>Hebrew charsets (ISO-8859-8)</source>
        <translation type="unfinished">Hebreo (ISO-8859-8)</translation>
    </message>
    <message>
        <source>Turkish (ISO-8859-9)</source>
        <translation type="unfinished">Turco (ISO-8859-9)</translation>
    </message>
    <message>
        <source>Baltic (ISO-8859-13)</source>
        <translation type="unfinished">Báltico (ISO-8859-13)</translation>
    </message>
    <message>
        <source>Western European Languages with Euro (ISO-8859-15)</source>
        <translation type="unfinished">Europa occidental con euro (ISO-8859-15)</translation>
    </message>
    <message>
        <source>Japanese charsets (SHIFT-JIS/CP932)</source>
        <translation type="unfinished">Japonés (SHIFT-JIS/CP932)</translation>
    </message>
    <message>
        <source>Simplified Chinese charset (CP936)</source>
        <translation type="unfinished">Chino simplificado (CP936)</translation>
    </message>
    <message>
        <source>Traditional Chinese charset (BIG5)</source>
        <translation type="unfinished">Chino tradicional (BIG5)</translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished">Predeterminada</translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished">Arriba</translation>
    </message>
    <message>
        <source>Vertical center</source>
        <translation type="unfinished">Centro vertical</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished">Abajo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished">Izquierda</translation>
    </message>
    <message>
        <source>Horizontal center</source>
        <translation type="unfinished">Centro horizontal</translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished">Derecha</translation>
    </message>
</context>
<context>
    <name>TimeTexts</name>
    <message>
        <source>less than a minute left</source>
        <translation type="unfinished">queda menos de un minuto</translation>
    </message>
    <message numerus="yes">
        <source>%n min left</source>
        <translation type="unfinished">
            <numerusform>queda %n min</numerusform>
            <numerusform>quedan %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h left</source>
        <translation type="unfinished">
            <numerusform>queda %n h</numerusform>
            <numerusform>quedan %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 h %n min left</source>
        <translation type="unfinished">
            <numerusform>quedan %1 h %n min</numerusform>
            <numerusform>quedan %1 h %n min</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WarningWords</name>
    <message>
        <source>Track %1 of &quot;%2&quot; (a second picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">La pista %1 de «%2» (una segunda imagen, %3) se dejó fuera porque no cabe en %4.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a cover picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">La pista %1 de «%2» (una carátula, %3) se dejó fuera porque no cabe en %4.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a further sound track, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">La pista %1 de «%2» (otra pista de sonido, %3) se dejó fuera porque no cabe en %4.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a sound track, %3) was left out, because nothing in it can be read.</source>
        <translation type="unfinished">La pista %1 de «%2» (una pista de sonido, %3) se dejó fuera porque no se puede leer nada de ella.</translation>
    </message>
    <message>
        <source>The picture of &quot;%1&quot; was encoded anew, because %2 cannot hold it as it is.</source>
        <translation type="unfinished">La imagen de «%1» se codificó de nuevo porque tal como está no cabe en %2.</translation>
    </message>
    <message>
        <source>Files attached to &quot;%1&quot;, for example fonts, were left out, because %2 cannot hold them.</source>
        <translation type="unfinished">Los archivos adjuntos a «%1», por ejemplo las fuentes, se dejaron fuera porque no caben en %2.</translation>
    </message>
    <message>
        <source>A subtitle track was left out, because its file is missing.</source>
        <translation type="unfinished">Una pista de subtítulos se dejó fuera porque falta su archivo.</translation>
    </message>
    <message>
        <source>The subtitle track &quot;%1&quot; was left out, because its file is missing.</source>
        <translation type="unfinished">La pista de subtítulos «%1» se dejó fuera porque falta su archivo.</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of &quot;%1&quot; could not be read as %2 and show as &quot;%3&quot;: check the encoding.</source>
        <translation type="unfinished">
            <numerusform>%n byte de «%1» no se pudo leer como %2 y aparece como «%3»: compruebe la codificación.</numerusform>
            <numerusform>%n bytes de «%1» no se pudieron leer como %2 y aparecen como «%3»: compruebe la codificación.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>Se dejó fuera %n subtítulo de «%1» sin tiempos utilizables.</numerusform>
            <numerusform>Se dejaron fuera %n subtítulos de «%1» sin tiempos utilizables.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; of no duration were left out.</source>
        <translation type="unfinished">
            <numerusform>Se dejó fuera %n subtítulo de «%1» sin duración.</numerusform>
            <numerusform>Se dejaron fuera %n subtítulos de «%1» sin duración.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some pictures of &quot;%1&quot; are damaged; they may be missing or look wrong.</source>
        <translation type="unfinished">Algunas imágenes de «%1» están dañadas; pueden faltar o verse mal.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; breaks off after %2 of %3, and so does the new film.</source>
        <translation type="unfinished">«%1» se corta a los %2 de %3, y la película nueva también.</translation>
    </message>
</context>
</TS>
