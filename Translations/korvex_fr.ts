<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n film(s) converted.</source>
        <translation type="unfinished">
            <numerusform>%n film converti.</numerusform>
            <numerusform>%n films convertis.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) with remarks: %1</source>
        <translation type="unfinished">
            <numerusform>%n film avec des remarques&#xa0;: %1</numerusform>
            <numerusform>%n films avec des remarques&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) could not be converted: %1</source>
        <translation type="unfinished">
            <numerusform>%n film n’a pas pu être converti&#xa0;: %1</numerusform>
            <numerusform>%n films n’ont pas pu être convertis&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) cancelled.</source>
        <translation type="unfinished">
            <numerusform>%n film annulé.</numerusform>
            <numerusform>%n films annulés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConversionTexts</name>
    <message>
        <source>%1 holds no cues and was left out.</source>
        <translation type="unfinished">%1 ne contient aucun sous-titre et a été laissée de côté.</translation>
    </message>
    <message>
        <source>%1 goes into %2 as %3.</source>
        <translation type="unfinished">%1 est placée dans %2 en tant que %3.</translation>
    </message>
    <message>
        <source>%1 was read as %2.</source>
        <translation type="unfinished">%1 a été lue en %2.</translation>
    </message>
    <message>
        <source>%1 was moved by %2 s.</source>
        <translation type="unfinished">%1 a été décalée de %2 s.</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of %1 could not be read as text.</source>
        <translation type="unfinished">
            <numerusform>%n octet de %1 n&apos;a pas pu être lu comme du texte.</numerusform>
            <numerusform>%n octets de %1 n&apos;ont pas pu être lus comme du texte.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>%n sous-titre de %1 sans horaires utilisables a été laissé de côté.</numerusform>
            <numerusform>%n sous-titres de %1 sans horaires utilisables ont été laissés de côté.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 would never be shown and were left out.</source>
        <translation type="unfinished">
            <numerusform>%n sous-titre de %1 ne serait jamais affiché et a été laissé de côté.</numerusform>
            <numerusform>%n sous-titres de %1 ne seraient jamais affichés et ont été laissés de côté.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EditingPanel</name>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">Sous-titres</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Choisir les sous-titres</translation>
    </message>
    <message>
        <source>Subtitles encoding</source>
        <translation type="unfinished">Encodage des sous-titres</translation>
    </message>
    <message>
        <source>Aligment</source>
        <translation type="unfinished">Alignement</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation type="unfinished">Synchroniser</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Ajouter des sous-titres</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">Garder toutes les pistes (softsub)</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">Choisir un fichier</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">Chercher un fichier</translation>
    </message>
    <message>
        <source>Relocating subtitles saves all subtitle tracks. You can select them in player.&lt;br&gt;&lt;br&gt;Select one of track to hardsub them.</source>
        <translation type="unfinished">Le transfert des sous-titres conserve toutes les pistes. Vous pouvez les choisir dans le lecteur.&lt;br&gt;&lt;br&gt;Choisissez une piste pour l&apos;incruster dans l&apos;image.</translation>
    </message>
    <message>
        <source>Hastened</source>
        <translation type="unfinished">Avancé</translation>
    </message>
    <message>
        <source>Delayed</source>
        <translation type="unfinished">Retardé</translation>
    </message>
    <message>
        <source>Help on subtitles</source>
        <translation type="unfinished">Aide sur les sous-titres</translation>
    </message>
    <message>
        <source>Position shift</source>
        <translation type="unfinished">Décalage de la position</translation>
    </message>
    <message>
        <source>Synchronization offset in seconds</source>
        <translation type="unfinished">Décalage de synchronisation en secondes</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation type="unfinished">Couleur du texte</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation type="unfinished">Couleur du contour</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation type="unfinished">Police&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ErrorClauses</name>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished">c&apos;est un dossier</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="unfinished">ce n&apos;est pas un fichier</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation type="unfinished">il dépasse %1 octets</translation>
    </message>
    <message>
        <source>its header cannot be read</source>
        <translation type="unfinished">son en-tête est illisible</translation>
    </message>
    <message>
        <source>nothing in it can be read</source>
        <translation type="unfinished">rien n&apos;y est lisible</translation>
    </message>
    <message>
        <source>it holds no subtitles</source>
        <translation type="unfinished">il ne contient pas de sous-titres</translation>
    </message>
    <message>
        <source>it does not hold exactly one subtitle track</source>
        <translation type="unfinished">il ne contient pas exactement une piste de sous-titres</translation>
    </message>
    <message>
        <source>it has no picture</source>
        <translation type="unfinished">il n&apos;a pas d&apos;image</translation>
    </message>
    <message>
        <source>it has no picture that subtitles could be drawn into</source>
        <translation type="unfinished">il n&apos;a pas d&apos;image où incruster des sous-titres</translation>
    </message>
    <message>
        <source>the size of its picture is not known</source>
        <translation type="unfinished">la taille de son image est inconnue</translation>
    </message>
    <message>
        <source>the picture has no usable size</source>
        <translation type="unfinished">l&apos;image n&apos;a pas de taille utilisable</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation type="unfinished">aucune de ses images ne peut être décodée</translation>
    </message>
    <message>
        <source>there is no decoder for it</source>
        <translation type="unfinished">il n&apos;existe pas de décodeur pour lui</translation>
    </message>
    <message>
        <source>there is no decoder for track %1</source>
        <translation type="unfinished">il n&apos;existe pas de décodeur pour la piste %1</translation>
    </message>
    <message>
        <source>its decoder refuses the stream: %1</source>
        <translation type="unfinished">son décodeur refuse le flux&#xa0;: %1</translation>
    </message>
    <message>
        <source>its decoder does not know the options %1</source>
        <translation type="unfinished">son décodeur ne connaît pas les options %1</translation>
    </message>
    <message>
        <source>its encoder refuses the sound: %1</source>
        <translation type="unfinished">son encodeur refuse le son&#xa0;: %1</translation>
    </message>
    <message>
        <source>its encoder refuses the picture (%1): %2</source>
        <translation type="unfinished">son encodeur refuse l&apos;image (%1)&#xa0;: %2</translation>
    </message>
    <message>
        <source>the encoder here is %1</source>
        <translation type="unfinished">l&apos;encodeur est ici %1</translation>
    </message>
    <message>
        <source>there is no encoder preset &quot;%1&quot;</source>
        <translation type="unfinished">il n&apos;existe pas de préréglage d&apos;encodeur «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the text encoding &quot;%1&quot; is not known</source>
        <translation type="unfinished">l&apos;encodage de texte «&#xa0;%1&#xa0;» n&apos;est pas connu</translation>
    </message>
    <message>
        <source>the text renderer could not be set up</source>
        <translation type="unfinished">le moteur de rendu du texte n&apos;a pas pu être préparé</translation>
    </message>
    <message>
        <source>it names a folder</source>
        <translation type="unfinished">c&apos;est un dossier</translation>
    </message>
    <message>
        <source>it is a device or a pipe, not a file</source>
        <translation type="unfinished">c&apos;est un périphérique ou un tube, pas un fichier</translation>
    </message>
    <message>
        <source>a .%1 file</source>
        <translation type="unfinished">un fichier .%1</translation>
    </message>
    <message>
        <source>save it as .%1 instead</source>
        <translation type="unfinished">enregistrez-le plutôt en .%1</translation>
    </message>
    <message>
        <source>it consists of pictures, so save it as .%1</source>
        <translation type="unfinished">elle se compose d&apos;images, enregistrez-la donc en .%1</translation>
    </message>
    <message>
        <source>the encoder libx264 is missing</source>
        <translation type="unfinished">l&apos;encodeur libx264 manque</translation>
    </message>
    <message>
        <source>subtitles can be switchable or drawn in, not both</source>
        <translation type="unfinished">les sous-titres peuvent être activables ou incrustés, pas les deux</translation>
    </message>
    <message>
        <source>the quality goes from 0 to 51</source>
        <translation type="unfinished">la qualité va de 0 à 51</translation>
    </message>
    <message>
        <source>the chosen format</source>
        <translation type="unfinished">le format choisi</translation>
    </message>
    <message>
        <source>draw it in</source>
        <translation type="unfinished">incrustez-la</translation>
    </message>
    <message>
        <source>choose Matroska or draw it in</source>
        <translation type="unfinished">choisissez Matroska ou incrustez-la</translation>
    </message>
    <message>
        <source>draw it in or leave it out</source>
        <translation type="unfinished">incrustez-la ou laissez-la de côté</translation>
    </message>
    <message>
        <source>you may not do this</source>
        <translation type="unfinished">vous n&apos;en avez pas le droit</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation type="unfinished">le disque est en lecture seule</translation>
    </message>
    <message>
        <source>the disk could not be read or written</source>
        <translation type="unfinished">le disque n&apos;a pas pu être lu ou écrit</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation type="unfinished">ce fichier ou dossier n&apos;existe pas</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation type="unfinished">son nom est trop long</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation type="unfinished">la mémoire ne suffit pas</translation>
    </message>
    <message>
        <source>it holds data that make no sense</source>
        <translation type="unfinished">il contient des données incohérentes</translation>
    </message>
</context>
<context>
    <name>ErrorWords</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation type="unfinished">«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot;</source>
        <translation type="unfinished">La piste %1 de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no track %2: choose another track.</source>
        <translation type="unfinished">Le fichier «&#xa0;%1&#xa0;» n&apos;a pas de piste %2&#xa0;: choisissez une autre piste.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no subtitle track: choose another file.</source>
        <translation type="unfinished">Le fichier «&#xa0;%1&#xa0;» n&apos;a pas de piste de sous-titres&#xa0;: choisissez un autre fichier.</translation>
    </message>
    <message>
        <source>choose another format, draw it in or leave it out</source>
        <translation type="unfinished">choisissez un autre format, incrustez les sous-titres ou laissez-les de côté</translation>
    </message>
    <message>
        <source>%1 is %2, which %3 cannot hold: %4.</source>
        <extracomment>%1: a track or a file, %2: its codec, %3: a format or a kind of file, %4: what to do</extracomment>
        <translation type="unfinished">%1 est en %2, ce que ne peut contenir %3&#xa0;: %4.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read%2: choose another one, or check that you may open it.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Le fichier «&#xa0;%1&#xa0;» ne peut pas être lu%2&#xa0;: choisissez-en un autre ou vérifiez que vous avez le droit de l&apos;ouvrir.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is of no kind that can be used here%2: choose another one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Le fichier «&#xa0;%1&#xa0;» n&apos;est d&apos;aucun type utilisable ici%2&#xa0;: choisissez-en un autre.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged%2: try to get a complete copy.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Le fichier «&#xa0;%1&#xa0;» est endommagé%2&#xa0;: essayez d&apos;en obtenir une copie complète.</translation>
    </message>
    <message>
        <source>The text of &quot;%1&quot; cannot be drawn, because no usable font is installed%2: install one, for example DejaVu Sans.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Le texte de «&#xa0;%1&#xa0;» ne peut pas être dessiné, car aucune police utilisable n&apos;est installée%2&#xa0;: installez-en une, par exemple DejaVu Sans.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written%2: choose another folder, or check that you may write to this one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Le fichier «&#xa0;%1&#xa0;» ne peut pas être écrit%2&#xa0;: choisissez un autre dossier ou vérifiez que vous avez le droit d&apos;écrire dans celui-ci.</translation>
    </message>
    <message>
        <source>A setting for &quot;%1&quot; is not valid%2: correct it and try again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Un réglage de «&#xa0;%1&#xa0;» n&apos;est pas valable%2&#xa0;: corrigez-le et réessayez.</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; failed%2: try again, and report it if it fails again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Le traitement de «&#xa0;%1&#xa0;» a échoué%2&#xa0;: réessayez et signalez-le si l&apos;échec se répète.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist any more: choose another one.</source>
        <translation type="unfinished">Le fichier «&#xa0;%1&#xa0;» n&apos;existe plus&#xa0;: choisissez-en un autre.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty: choose another one.</source>
        <translation type="unfinished">Le fichier «&#xa0;%1&#xa0;» est vide&#xa0;: choisissez-en un autre.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is not a subtitle track: choose another one.</source>
        <translation type="unfinished">La piste %1 de «&#xa0;%2&#xa0;» n&apos;est pas une piste de sous-titres&#xa0;: choisissez-en une autre.</translation>
    </message>
    <message>
        <source>The codec of &quot;%1&quot;, %2, cannot be used here%3: choose another file or another format.</source>
        <extracomment>%2: a codec, %3: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">Le codec de «&#xa0;%1&#xa0;», %2, n&apos;est pas utilisable ici%3&#xa0;: choisissez un autre fichier ou un autre format.</translation>
    </message>
    <message>
        <source>The format of &quot;%1&quot; is not known%2: choose another one.</source>
        <extracomment>%2: what was asked for, in brackets, or nothing</extracomment>
        <translation type="unfinished">Le format de «&#xa0;%1&#xa0;» n&apos;est pas connu%2&#xa0;: choisissez-en un autre.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has neither picture nor sound: choose another one.</source>
        <translation type="unfinished">Le fichier «&#xa0;%1&#xa0;» n&apos;a ni image ni son&#xa0;: choisissez-en un autre.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already: choose another name.</source>
        <translation type="unfinished">Le fichier «&#xa0;%1&#xa0;» existe déjà&#xa0;: choisissez un autre nom.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is being read, so it cannot be written: choose another name.</source>
        <translation type="unfinished">Le fichier «&#xa0;%1&#xa0;» est en cours de lecture et ne peut donc pas être écrit&#xa0;: choisissez un autre nom.</translation>
    </message>
    <message>
        <source>The folder of &quot;%1&quot; does not exist: create it, or choose another one.</source>
        <translation type="unfinished">Le dossier de «&#xa0;%1&#xa0;» n&apos;existe pas&#xa0;: créez-le ou choisissez-en un autre.</translation>
    </message>
    <message>
        <source>The disk is full, so &quot;%1&quot; was not written: free some space, or choose another folder.</source>
        <translation type="unfinished">Le disque est plein, «&#xa0;%1&#xa0;» n&apos;a donc pas été écrit&#xa0;: libérez de l&apos;espace ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; was cancelled: start it again if you want it.</source>
        <translation type="unfinished">Le traitement de «&#xa0;%1&#xa0;» a été annulé&#xa0;: relancez-le si vous le souhaitez.</translation>
    </message>
</context>
<context>
    <name>ExternalSubtitlesDialog</name>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Choisir les sous-titres</translation>
    </message>
    <message>
        <source>Subtitle files (%1)</source>
        <translation type="unfinished">Fichiers de sous-titres (%1)</translation>
    </message>
</context>
<context>
    <name>FilmRow</name>
    <message>
        <source>Paused</source>
        <translation type="unfinished">En pause</translation>
    </message>
    <message>
        <source>Preparing subtitles</source>
        <translation type="unfinished">Préparation des sous-titres</translation>
    </message>
    <message>
        <source>Converting</source>
        <translation type="unfinished">Conversion en cours</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished">En attente</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation type="unfinished">Converti</translation>
    </message>
    <message numerus="yes">
        <source>Converted, with %n remark(s)</source>
        <translation type="unfinished">
            <numerusform>Converti, avec %n remarque</numerusform>
            <numerusform>Converti, avec %n remarques</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished">Annulé</translation>
    </message>
    <message>
        <source>Reading the film</source>
        <translation type="unfinished">Lecture du film</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Converted, but it breaks off after %1 of %2</source>
        <translation type="unfinished">Converti, mais s’interrompt après %1 sur %2</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::AutocompleteField</name>
    <message>
        <source>Film or series</source>
        <translation type="unfinished">Film ou série</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">Titre</translation>
    </message>
    <message>
        <source>Suggested titles</source>
        <translation type="unfinished">Titres suggérés</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ImdbIdValidator</name>
    <message numerus="yes">
        <source>The IMDb id is too short: it has at least %n digit(s), as in tt0123456.</source>
        <translation type="unfinished">
            <numerusform>L&apos;ID IMDb est trop court&#xa0;: il a au moins %n chiffre, comme dans tt0123456.</numerusform>
            <numerusform>L&apos;ID IMDb est trop court&#xa0;: il a au moins %n chiffres, comme dans tt0123456.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The IMDb id is too long: it has at most %n digit(s).</source>
        <translation type="unfinished">
            <numerusform>L&apos;ID IMDb est trop long&#xa0;: il a au plus %n chiffre.</numerusform>
            <numerusform>L&apos;ID IMDb est trop long&#xa0;: il a au plus %n chiffres.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and a number, or the number alone, as in tt0123456.</source>
        <translation type="unfinished">Ce n&apos;est pas un ID IMDb&#xa0;: tapez «&#xa0;tt&#xa0;» et un nombre, ou le nombre seul, comme dans tt0123456.</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ItemPanel</name>
    <message>
        <source>Subtitles of this film</source>
        <translation type="unfinished">Sous-titres de ce film</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">Choisir les sous-titres</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Ajouter des sous-titres</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">Choisir un fichier</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">Chercher un fichier</translation>
    </message>
    <message>
        <source>Apply to all files</source>
        <translation type="unfinished">Appliquer à tous les fichiers</translation>
    </message>
    <message>
        <source>Makes the same choice for every film of the list</source>
        <translation type="unfinished">Fait le même choix pour chaque film de la liste</translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished">Terminé</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelector</name>
    <message>
        <source>Languages: %1</source>
        <translation type="unfinished">Langues&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelectorList</name>
    <message>
        <source>Languages to search in</source>
        <translation type="unfinished">Langues de recherche</translation>
    </message>
    <message>
        <source>Find a language</source>
        <translation type="unfinished">Chercher une langue</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindow</name>
    <message>
        <source>Type a title and press &quot;Search&quot;.</source>
        <translation type="unfinished">Tapez un titre et appuyez sur «&#xa0;Rechercher&#xa0;».</translation>
    </message>
    <message>
        <source>Find subtitles</source>
        <translation type="unfinished">Chercher des sous-titres</translation>
    </message>
    <message>
        <source>Find subtitles: %1</source>
        <translation type="unfinished">Chercher des sous-titres&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowFields</name>
    <message>
        <source>&amp;Title</source>
        <translation type="unfinished">&amp;Titre</translation>
    </message>
    <message>
        <source>&amp;Season</source>
        <translation type="unfinished">&amp;Saison</translation>
    </message>
    <message>
        <source>Season</source>
        <translation type="unfinished">Saison</translation>
    </message>
    <message>
        <source>&amp;Episode</source>
        <translation type="unfinished">É&amp;pisode</translation>
    </message>
    <message>
        <source>Episode</source>
        <translation type="unfinished">Épisode</translation>
    </message>
    <message>
        <source>&amp;Episode...</source>
        <translation type="unfinished">É&amp;pisode...</translation>
    </message>
    <message>
        <source>Search for an episode of a series</source>
        <translation type="unfinished">Rechercher un épisode d&apos;une série</translation>
    </message>
    <message>
        <source>Sea&amp;rch</source>
        <translation type="unfinished">&amp;Rechercher</translation>
    </message>
    <message>
        <source>I&amp;MDb id</source>
        <translation type="unfinished">ID I&amp;MDb</translation>
    </message>
    <message>
        <source>IMDb id</source>
        <translation type="unfinished">ID IMDb</translation>
    </message>
    <message>
        <source>The film&apos;s number at IMDb, as in tt0123456</source>
        <translation type="unfinished">Le numéro du film chez IMDb, comme dans tt0123456</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation type="unfinished">&amp;Langues</translation>
    </message>
    <message>
        <source>E&amp;xactly this file</source>
        <translation type="unfinished">E&amp;xactement ce fichier</translation>
    </message>
    <message>
        <source>Finds subtitles by the fingerprint of the file, whatever its name is</source>
        <translation type="unfinished">Trouve les sous-titres d&apos;après l&apos;empreinte du fichier, quel que soit son nom</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowStatus</name>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">Recherche...</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation type="unfinished">Téléchargement...</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation type="unfinished">Annulation...</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found</source>
        <translation type="unfinished">
            <numerusform>%n sous-titre trouvé</numerusform>
            <numerusform>%n sous-titres trouvés</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">&amp;Annuler</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Download %n</source>
        <translation type="unfinished">
            <numerusform>Téléc&amp;harger %n</numerusform>
            <numerusform>Téléc&amp;harger %n</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Download</source>
        <translation type="unfinished">Téléc&amp;harger</translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished">Fermer</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ResultList</name>
    <message>
        <source>Smallest first; press to turn it round</source>
        <translation type="unfinished">Le plus petit d&apos;abord&#xa0;; appuyez pour inverser</translation>
    </message>
    <message>
        <source>Largest first; press to turn it round</source>
        <translation type="unfinished">Le plus grand d&apos;abord&#xa0;; appuyez pour inverser</translation>
    </message>
    <message numerus="yes">
        <source>None of the %n subtitle(s) found holds &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>Le %n sous-titre trouvé ne contient pas «&#xa0;%1&#xa0;».</numerusform>
            <numerusform>Aucun des %n sous-titres trouvés ne contient «&#xa0;%1&#xa0;».</numerusform>
        </translation>
    </message>
    <message>
        <source>Best match</source>
        <translation type="unfinished">Meilleure correspondance</translation>
    </message>
    <message>
        <source>Subtitles found</source>
        <translation type="unfinished">Sous-titres trouvés</translation>
    </message>
    <message>
        <source>Filter the list</source>
        <translation type="unfinished">Filtrer la liste</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation type="unfinished">Tr&amp;ier par</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation type="unfinished">Trier par</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::AboutDialog</name>
    <message>
        <source>About Korvex Subtitles</source>
        <translation type="unfinished">À propos de Korvex Subtitles</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished">Version %1</translation>
    </message>
    <message>
        <source>Converts films with their subtitles: as tracks that can be switched on and off, or drawn into the picture.

Free software under the GNU General Public License, version 3 or later. It comes without any warranty.

It is built on Qt, FFmpeg and libass.</source>
        <translation type="unfinished">Convertit des films avec leurs sous-titres&#xa0;: en pistes que l&apos;on active ou désactive, ou incrustés dans l&apos;image.

Logiciel libre sous licence publique générale GNU, version 3 ou ultérieure. Il est fourni sans aucune garantie.

Il repose sur Qt, FFmpeg et libass.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Actions</name>
    <message>
        <source>&amp;Add films...</source>
        <translation type="unfinished">&amp;Ajouter des films...</translation>
    </message>
    <message>
        <source>Add &amp;subtitles...</source>
        <translation type="unfinished">Ajouter des &amp;sous-titres...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished">&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Subtitles...</source>
        <translation type="unfinished">&amp;Sous-titres...</translation>
    </message>
    <message>
        <source>Apply these subtitles to &amp;all</source>
        <translation type="unfinished">Appliquer ces sous-titres à &amp;tous</translation>
    </message>
    <message>
        <source>&amp;Copy as command line</source>
        <translation type="unfinished">&amp;Copier en ligne de commande</translation>
    </message>
    <message>
        <source>Show &amp;output in folder</source>
        <translation type="unfinished">Afficher le &amp;résultat dans le dossier</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">&amp;Retirer de la liste</translation>
    </message>
    <message>
        <source>&amp;Previous film</source>
        <translation type="unfinished">Film &amp;précédent</translation>
    </message>
    <message>
        <source>&amp;Next film</source>
        <translation type="unfinished">Film &amp;suivant</translation>
    </message>
    <message>
        <source>Convert &amp;all</source>
        <translation type="unfinished">&amp;Tout convertir</translation>
    </message>
    <message>
        <source>Convert this &amp;film</source>
        <translation type="unfinished">Convertir ce &amp;film</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">&amp;Pause</translation>
    </message>
    <message>
        <source>&amp;Cancel this film</source>
        <translation type="unfinished">&amp;Annuler ce film</translation>
    </message>
    <message>
        <source>Cancel a&amp;ll</source>
        <translation type="unfinished">Tout &amp;annuler</translation>
    </message>
    <message>
        <source>Same as &amp;system</source>
        <translation type="unfinished">Comme le &amp;système</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished">&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished">&amp;Sombre</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation type="unfinished">&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>&amp;About Korvex Subtitles</source>
        <translation type="unfinished">À &amp;propos de Korvex Subtitles</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished">Retirer</translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished">Ajouter</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation type="unfinished">&amp;Réglages...</translation>
    </message>
    <message>
        <source>Find subtitles on&amp;line...</source>
        <translation type="unfinished">Chercher des sous-titres en &amp;ligne...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyReportDialog</name>
    <message>
        <source>Applied to all films</source>
        <translation type="unfinished">Appliqué à tous les films</translation>
    </message>
    <message>
        <source>Subtitles as in &quot;%1&quot;</source>
        <translation type="unfinished">Sous-titres comme dans «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyToAll</name>
    <message>
        <source>&quot;%1&quot;: nothing changed, because the film cannot be read at the moment.</source>
        <translation type="unfinished">«&#xa0;%1&#xa0;»&#xa0;: rien n&apos;a changé, car le film est illisible pour le moment.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: nothing changed, because it has no track like %2 and no file of that name.</source>
        <translation type="unfinished">«&#xa0;%1&#xa0;»&#xa0;: rien n&apos;a changé, car il n&apos;y a ni piste comme %2 ni fichier de ce nom.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::CommandLineText</name>
    <message>
        <source>A picture that cannot be copied is encoded with --crf %1 there and %2 here.</source>
        <translation type="unfinished">Une image qui ne peut pas être copiée est encodée là-bas avec --crf %1 et ici avec %2.</translation>
    </message>
    <message>
        <source>The text cannot be moved by more than %1 lines.</source>
        <translation type="unfinished">Le texte ne peut pas être décalé de plus de %1 lignes.</translation>
    </message>
    <message>
        <source>The font size %1 is not a whole number up to %2: the nearest one stands for it.</source>
        <translation type="unfinished">La taille de police %1 n&apos;est pas un entier jusqu&apos;à %2&#xa0;: le plus proche la remplace.</translation>
    </message>
    <message>
        <source>%1 keeps its own language, title and forced mark.</source>
        <translation type="unfinished">%1 garde sa langue, son titre et sa marque «&#xa0;forcé&#xa0;».</translation>
    </message>
    <message>
        <source>%1 keeps the language, title and forced mark that its name states.</source>
        <translation type="unfinished">%1 garde la langue, le titre et la marque «&#xa0;forcé&#xa0;» indiqués par son nom.</translation>
    </message>
    <message>
        <source>%1 goes out without its mark for the hard of hearing.</source>
        <translation type="unfinished">%1 sort sans sa marque pour malentendants.</translation>
    </message>
    <message>
        <source>Which of the film&apos;s own tracks players show by themselves stays as in the film.</source>
        <translation type="unfinished">Les pistes du film que les lecteurs affichent d&apos;eux-mêmes restent celles du film.</translation>
    </message>
    <message>
        <source>The files have different encodings: all are read as they are detected.</source>
        <translation type="unfinished">Les fichiers ont des encodages différents&#xa0;: tous sont lus tels qu&apos;ils sont détectés.</translation>
    </message>
    <message>
        <source>The tracks are moved by different offsets: none is moved.</source>
        <translation type="unfinished">Les pistes ont des décalages différents&#xa0;: aucune n&apos;est décalée.</translation>
    </message>
    <message>
        <source>Text cannot be moved by more than a day.</source>
        <translation type="unfinished">Le texte ne peut pas être décalé de plus d&apos;un jour.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionControl</name>
    <message>
        <source>Quit while converting?</source>
        <translation type="unfinished">Quitter pendant la conversion&#xa0;?</translation>
    </message>
    <message>
        <source>Films are still being converted. Quitting cancels them; what is finished stays.</source>
        <translation type="unfinished">Des films sont encore en cours de conversion. Quitter les annule&#xa0;; ce qui est terminé reste.</translation>
    </message>
    <message>
        <source>Cancel conversions and quit</source>
        <translation type="unfinished">Annuler les conversions et quitter</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">Continuer la conversion</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionQueue</name>
    <message>
        <source>The subtitles of &quot;%1&quot; cannot go out as chosen: choose them again.</source>
        <translation type="unfinished">Les sous-titres de «&#xa0;%1&#xa0;» ne peuvent pas sortir comme choisi&#xa0;; choisissez-les de nouveau.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::DropHighlight</name>
    <message>
        <source>Drop films, folders or subtitle files</source>
        <translation type="unfinished">Déposez des films, des dossiers ou des fichiers de sous-titres</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::EmptyPage</name>
    <message>
        <source>Drop films here or choose files</source>
        <translation type="unfinished">Déposez des films ici ou choisissez des fichiers</translation>
    </message>
    <message>
        <source>Folders work too. Subtitle files beside a film are found automatically.</source>
        <translation type="unfinished">Les dossiers aussi. Les fichiers de sous-titres à côté d&apos;un film sont trouvés automatiquement.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FetchedSubtitles</name>
    <message>
        <source>&quot;%1&quot; was added to &quot;%2&quot;.</source>
        <translation type="unfinished">«&#xa0;%1&#xa0;» a été ajouté à «&#xa0;%2&#xa0;».</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle file(s) were added to &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>%n fichier de sous-titres a été ajouté à «&#xa0;%1&#xa0;».</numerusform>
            <numerusform>%n fichiers de sous-titres ont été ajoutés à «&#xa0;%1&#xa0;».</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">Défaire</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FileActions</name>
    <message>
        <source>&quot;%1&quot; needs a film to go with: add the film first.</source>
        <translation type="unfinished">«&#xa0;%1&#xa0;» a besoin d&apos;un film&#xa0;: ajoutez d&apos;abord le film.</translation>
    </message>
    <message>
        <source>No new film was found in &quot;%1&quot;: choose a folder with films.</source>
        <translation type="unfinished">Aucun nouveau film dans «&#xa0;%1&#xa0;»&#xa0;: choisissez un dossier contenant des films.</translation>
    </message>
    <message>
        <source>Add films</source>
        <translation type="unfinished">Ajouter des films</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">Sous-titres</translation>
    </message>
    <message>
        <source>All files</source>
        <translation type="unfinished">Tous les fichiers</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">Ajouter des sous-titres</translation>
    </message>
    <message>
        <source>Where is &quot;%1&quot; now?</source>
        <translation type="unfinished">Où se trouve «&#xa0;%1&#xa0;» maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the list already: show another file, or remove &quot;%2&quot; from the list.</source>
        <translation type="unfinished">«&#xa0;%1&#xa0;» est déjà dans la liste&#xa0;: indiquez un autre fichier ou retirez «&#xa0;%2&#xa0;» de la liste.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Film</name>
    <message>
        <source>The film &quot;%1&quot; is not there any more: show where it is now, or remove it from the list.</source>
        <translation type="unfinished">Le film «&#xa0;%1&#xa0;» n&apos;est plus là&#xa0;: indiquez où il se trouve maintenant ou retirez-le de la liste.</translation>
    </message>
    <message>
        <source>Locate...</source>
        <translation type="unfinished">Localiser...</translation>
    </message>
    <message>
        <source>No subtitles, as it stands</source>
        <translation type="unfinished">En l’état, aucun sous-titre</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmActions</name>
    <message>
        <source>Remove a film that is being converted?</source>
        <translation type="unfinished">Retirer un film en cours de conversion&#xa0;?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is being converted. Removing it cancels its conversion.</source>
        <translation type="unfinished">«&#xa0;%1&#xa0;» est en cours de conversion. Le retirer annule sa conversion.</translation>
    </message>
    <message>
        <source>Cancel conversion and remove</source>
        <translation type="unfinished">Annuler la conversion et retirer</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation type="unfinished">Le garder</translation>
    </message>
    <message>
        <source>No file manager could be started: the film is &quot;%1&quot;.</source>
        <translation type="unfinished">Aucun gestionnaire de fichiers n&apos;a pu être lancé&#xa0;: le film est «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The command line is in the clipboard.</source>
        <translation type="unfinished">La ligne de commande est dans le presse-papiers.</translation>
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
    <message>
        <source>Films</source>
        <translation type="unfinished">Films</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmWords</name>
    <message>
        <source>Track %1</source>
        <translation type="unfinished">Piste %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n track(s)</source>
        <translation type="unfinished">
            <numerusform>%n piste</numerusform>
            <numerusform>Les %n pistes</numerusform>
        </translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">Pas de sous-titres</translation>
    </message>
    <message>
        <source>Drawn in: %1</source>
        <translation type="unfinished">Incrustée&#xa0;: %1</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no subtitles that can be read: remove it.</source>
        <translation type="unfinished">Le fichier «&#xa0;%1&#xa0;» ne contient aucun sous-titre lisible&#xa0;: retirez-le.</translation>
    </message>
    <message>
        <source>Remove the file</source>
        <translation type="unfinished">Retirer le fichier</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: draw it in, or leave it out.</source>
        <translation type="unfinished">%1 ne peut pas aller dans %2&#xa0;: incrustez-la ou laissez-la de côté.</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: choose %3, draw it in, or leave it out.</source>
        <translation type="unfinished">%1 ne peut pas aller dans %2&#xa0;: choisissez %3, incrustez-la ou laissez-la de côté.</translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation type="unfinished">Choisir %1</translation>
    </message>
    <message>
        <source>%1 cannot be moved in time while it stays a track: draw it in, set its offset to 0, or leave it out.</source>
        <translation type="unfinished">%1 ne peut pas être décalée dans le temps tant qu&apos;elle reste une piste&#xa0;: incrustez-la, mettez son décalage à 0 ou laissez-la de côté.</translation>
    </message>
    <message>
        <source>Set its offset to 0</source>
        <translation type="unfinished">Mettre son décalage à 0</translation>
    </message>
    <message>
        <source>%1 cannot be read in another encoding while it stays a track: draw it in, or leave it out.</source>
        <translation type="unfinished">%1 ne peut pas être lue dans un autre encodage tant qu&apos;elle reste une piste&#xa0;: incrustez-la ou laissez-la de côté.</translation>
    </message>
    <message>
        <source>Draw it in</source>
        <translation type="unfinished">L&apos;incruster</translation>
    </message>
    <message>
        <source>Leave it out</source>
        <translation type="unfinished">La laisser de côté</translation>
    </message>
    <message>
        <source>%1 is moved by %2 s.</source>
        <translation type="unfinished">%1 sera décalée de %2 s.</translation>
    </message>
    <message>
        <source>%1 is read as %2.</source>
        <translation type="unfinished">%1 sera lue en %2.</translation>
    </message>
    <message>
        <source>%1 goes into %2 as plain text and loses its styles.</source>
        <translation type="unfinished">%1 ira dans %2 en texte brut et perdra ses styles.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished">&amp;Fichier</translation>
    </message>
    <message>
        <source>Fil&amp;m</source>
        <translation type="unfinished">Fil&amp;m</translation>
    </message>
    <message>
        <source>Put left-out tracks &amp;back</source>
        <translation type="unfinished">&amp;Remettre les pistes laissées de côté</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation type="unfinished">&amp;Convertir</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished">&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished">&amp;Thème</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished">&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished">Ai&amp;de</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::NoticeBar</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished">%1 sur %2</translation>
    </message>
    <message>
        <source>Previous notice</source>
        <translation type="unfinished">Avis précédent</translation>
    </message>
    <message>
        <source>Next notice</source>
        <translation type="unfinished">Avis suivant</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation type="unfinished">Fermer cet avis</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Notices</name>
    <message>
        <source>Try again</source>
        <translation type="unfinished">Réessayer</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Show the first that failed</source>
        <translation type="unfinished">Afficher le premier en échec</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::OutputBar</name>
    <message>
        <source>Same as source</source>
        <translation type="unfinished">Comme la source</translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished">Haute</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished">Moyenne</translation>
    </message>
    <message>
        <source>Small</source>
        <translation type="unfinished">Petite</translation>
    </message>
    <message>
        <source>The picture is copied unchanged where nothing is drawn into it and the format can carry it; otherwise it is encoded in high quality.</source>
        <translation type="unfinished">L&apos;image est copiée sans changement si rien n&apos;y est incrusté et si le format l&apos;accepte&#xa0;; sinon elle est encodée en haute qualité.</translation>
    </message>
    <message>
        <source>The picture is encoded anew; differences are next to invisible.</source>
        <translation type="unfinished">L&apos;image est réencodée&#xa0;; les différences sont presque invisibles.</translation>
    </message>
    <message>
        <source>The picture is encoded anew; good for watching, in a smaller file.</source>
        <translation type="unfinished">L&apos;image est réencodée&#xa0;; convient pour regarder, dans un fichier plus petit.</translation>
    </message>
    <message>
        <source>The picture is encoded anew into a small file; losses are visible.</source>
        <translation type="unfinished">L&apos;image est réencodée dans un petit fichier&#xa0;; les pertes sont visibles.</translation>
    </message>
    <message>
        <source>paused</source>
        <translation type="unfinished">en pause</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished">%1, %2</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation type="unfinished">&amp;Reprendre</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">&amp;Pause</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">Continuer la conversion</translation>
    </message>
    <message>
        <source>Wait until you resume</source>
        <translation type="unfinished">S&apos;arrêter jusqu&apos;à la reprise</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation type="unfinished">&amp;Format</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation type="unfinished">Format de sortie</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation type="unfinished">&amp;Qualité</translation>
    </message>
    <message>
        <source>Quality of the picture</source>
        <translation type="unfinished">Qualité de l&apos;image</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished">&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Beside each film</source>
        <translation type="unfinished">À côté de chaque film</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation type="unfinished">Choisir un dossier...</translation>
    </message>
    <message>
        <source>&amp;Convert all</source>
        <translation type="unfinished">&amp;Tout convertir</translation>
    </message>
    <message>
        <source>Convert all films that are ready</source>
        <translation type="unfinished">Convertir tous les films prêts</translation>
    </message>
    <message>
        <source>Only &amp;this film</source>
        <translation type="unfinished">Seulement &amp;ce film</translation>
    </message>
    <message>
        <source>Convert the film that is chosen in the list, and no other</source>
        <translation type="unfinished">Convertir le film choisi dans la liste, et aucun autre</translation>
    </message>
    <message>
        <source>Progress of all conversions</source>
        <translation type="unfinished">Progression de toutes les conversions</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation type="unfinished">A&amp;nnuler</translation>
    </message>
    <message>
        <source>Stop converting; half-written files are removed</source>
        <translation type="unfinished">Arrêter la conversion&#xa0;; les fichiers inachevés sont supprimés</translation>
    </message>
    <message>
        <source>Where to save</source>
        <translation type="unfinished">Où enregistrer</translation>
    </message>
    <message>
        <source>Output folder: %1</source>
        <translation type="unfinished">Dossier de sortie&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::PreviewPane</name>
    <message>
        <source>Drop films here.</source>
        <translation type="unfinished">Déposez des films ici.</translation>
    </message>
    <message>
        <source>The film is being read.</source>
        <translation type="unfinished">Le film est en cours de lecture.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no picture, so there is nothing to see. Its sound can be converted.</source>
        <translation type="unfinished">«&#xa0;%1&#xa0;» n&apos;a pas d&apos;image, il n&apos;y a donc rien à voir. Le son peut être converti.</translation>
    </message>
    <message>
        <source>There are no subtitles. Add a subtitle file to see it drawn in.</source>
        <translation type="unfinished">Il n&apos;y a pas de sous-titres. Ajoutez un fichier de sous-titres pour le voir incrusté.</translation>
    </message>
    <message>
        <source>All tracks stay switchable. Choose one to see it drawn in.</source>
        <translation type="unfinished">Les pistes restent activables. Choisissez-en une pour la voir.</translation>
    </message>
    <message>
        <source>Choose a track to see it drawn in.</source>
        <translation type="unfinished">Choisissez une piste pour la voir incrustée.</translation>
    </message>
    <message>
        <source>All tracks stay switchable.</source>
        <translation type="unfinished">Les pistes restent activables.</translation>
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
        <translation type="unfinished">Sous-titre précédent</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation type="unfinished">Sous-titre suivant</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished">Aperçu</translation>
    </message>
    <message>
        <source>Position in the film</source>
        <translation type="unfinished">Position dans le film</translation>
    </message>
    <message>
        <source>Where the cues are</source>
        <translation type="unfinished">Où sont les sous-titres</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>position / length</comment>
        <translation type="unfinished">%1 / %2</translation>
    </message>
    <message>
        <source>The subtitles are being read.</source>
        <translation type="unfinished">Les sous-titres sont en cours de lecture.</translation>
    </message>
    <message>
        <source>This track has no lines.</source>
        <translation type="unfinished">Cette piste ne contient aucune réplique.</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the next one.</source>
        <comment>keys</comment>
        <translation type="unfinished">Aucune réplique ici&#xa0;: %1 va à la suivante.</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the one before.</source>
        <comment>keys</comment>
        <translation type="unfinished">Aucune réplique ici&#xa0;: %1 va à la précédente.</translation>
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
        <translation type="unfinished">Sous-titres Blu-ray (*.sup)</translation>
    </message>
    <message>
        <source>Matroska (*.mkv *.mks)</source>
        <translation type="unfinished">Matroska (*.mkv *.mks)</translation>
    </message>
    <message>
        <source>Save the track as</source>
        <translation type="unfinished">Enregistrer la piste sous</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; was saved as %2 with %n cue(s)</source>
        <translation type="unfinished">
            <numerusform>«&#xa0;%1&#xa0;» a été enregistré en %2 avec %n sous-titre</numerusform>
            <numerusform>«&#xa0;%1&#xa0;» a été enregistré en %2 avec %n sous-titres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) could not be read as %1</source>
        <translation type="unfinished">
            <numerusform>%n octet n&apos;a pas pu être lu en %1</numerusform>
            <numerusform>%n octets n&apos;ont pas pu être lus en %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) without usable times were left out</source>
        <translation type="unfinished">
            <numerusform>%n sous-titre sans horaires utilisables a été laissé de côté</numerusform>
            <numerusform>%n sous-titres sans horaires utilisables ont été laissés de côté</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of no duration were left out</source>
        <translation type="unfinished">
            <numerusform>%n sous-titre sans durée a été laissé de côté</numerusform>
            <numerusform>%n sous-titres sans durée ont été laissés de côté</numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation type="unfinished">%1.</translation>
    </message>
    <message>
        <source>%1; %2.</source>
        <translation type="unfinished">%1&#xa0;; %2.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; does not tell how to save the track: let it end in .srt, .ass, .sup or .mkv.</source>
        <translation type="unfinished">Le nom «&#xa0;%1&#xa0;» n&apos;indique pas comment enregistrer la piste&#xa0;: terminez-le par .srt, .ass, .sup ou .mkv.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is %3, which no subtitle file can hold: draw it into the picture instead.</source>
        <translation type="unfinished">La piste %1 de «&#xa0;%2&#xa0;» est en %3, qu&apos;aucun fichier de sous-titres n&apos;accepte&#xa0;: incrustez-la plutôt dans l&apos;image.</translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation type="unfinished">Enregistrement de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Annuler</translation>
    </message>
    <message>
        <source>Save a track</source>
        <translation type="unfinished">Enregistrer une piste</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SessionStore</name>
    <message>
        <source>The last list of films, &quot;%1&quot;, cannot be read, so nothing is saved this time: rename or remove that file.</source>
        <translation type="unfinished">La dernière liste, dans «&#xa0;%1&#xa0;», est illisible et rien n&apos;est conservé cette fois&#xa0;: renommez ou supprimez ce fichier.</translation>
    </message>
    <message>
        <source>The last list of films was written by a newer version of the program; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">La dernière liste a été écrite par une version plus récente du programme&#xa0;; elle est conservée sous «&#xa0;%1&#xa0;». Rouvrez vos films.</translation>
    </message>
    <message>
        <source>The last list of films is damaged; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">La dernière liste est endommagée&#xa0;; elle est conservée sous «&#xa0;%1&#xa0;». Rouvrez vos films.</translation>
    </message>
    <message>
        <source>The list of films could not be saved in &quot;%1&quot; (%2): check that you may write there.</source>
        <translation type="unfinished">La liste des films n&apos;a pas pu être conservée dans «&#xa0;%1&#xa0;» (%2)&#xa0;: vérifiez que vous pouvez y écrire.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished">Réglages</translation>
    </message>
    <message>
        <source>Online service</source>
        <translation type="unfinished">Service en ligne</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished">Statistiques</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Annuler</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsOnlinePage</name>
    <message>
        <source>version 1 of OpenSubtitles, because an API key is set.</source>
        <translation type="unfinished">la version 1 d&apos;OpenSubtitles, car une clé d&apos;API est fixée.</translation>
    </message>
    <message>
        <source>version 1 of OpenSubtitles, because the configuration file says so. It answers nobody without an API key: enter one below.</source>
        <translation type="unfinished">la version 1 d&apos;OpenSubtitles, car le fichier de configuration le demande. Elle ne répond à personne sans clé d&apos;API&#xa0;: saisissez-en une ci-dessous.</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because the configuration file says so. The API key is not used.</source>
        <translation type="unfinished">l&apos;ancienne interface d&apos;OpenSubtitles, car le fichier de configuration le demande. La clé d&apos;API n&apos;est pas utilisée.</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because no API key is set.</source>
        <translation type="unfinished">l&apos;ancienne interface d&apos;OpenSubtitles, car aucune clé d&apos;API n&apos;est fixée.</translation>
    </message>
    <message>
        <source>API &amp;key:</source>
        <translation type="unfinished">C&amp;lé d&apos;API&#xa0;:</translation>
    </message>
    <message>
        <source>API key</source>
        <translation type="unfinished">Clé d&apos;API</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation type="unfinished">&amp;Afficher</translation>
    </message>
    <message>
        <source>Fetched &amp;files:</source>
        <translation type="unfinished">&amp;Téléchargements&#xa0;:</translation>
    </message>
    <message>
        <source>Folder for fetched files</source>
        <translation type="unfinished">Dossier des fichiers téléchargés</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation type="unfinished">&amp;Choisir...</translation>
    </message>
    <message>
        <source>&amp;Usual folder</source>
        <translation type="unfinished">Dossier &amp;habituel</translation>
    </message>
    <message>
        <source>Version 1:</source>
        <translation type="unfinished">Version 1&#xa0;:</translation>
    </message>
    <message>
        <source>Older interface:</source>
        <translation type="unfinished">Ancienne interface&#xa0;:</translation>
    </message>
    <message>
        <source>The addresses are set in the configuration file &quot;%1&quot;.</source>
        <translation type="unfinished">Les adresses sont fixées dans le fichier de configuration «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>In use: %1</source>
        <translation type="unfinished">Utilisé&#xa0;: %1</translation>
    </message>
    <message>
        <source>From the next start of the program on: %1</source>
        <translation type="unfinished">À partir du prochain démarrage du programme&#xa0;: %1</translation>
    </message>
    <message>
        <source>Folder for fetched subtitle files</source>
        <translation type="unfinished">Dossier des fichiers de sous-titres téléchargés</translation>
    </message>
    <message>
        <source>It comes from the account pages of opensubtitles.com, is kept in the configuration file, and is used from the next start on.</source>
        <translation type="unfinished">Elle vient des pages de compte d&apos;opensubtitles.com, est conservée dans le fichier de configuration et sert à partir du prochain démarrage.</translation>
    </message>
    <message>
        <source>The variable %1 of the environment sets it.</source>
        <translation type="unfinished">Elle est fixée par la variable d&apos;environnement %1.</translation>
    </message>
    <message>
        <source>This is no API key: a key has no blanks and no special characters. Copy it again.</source>
        <translation type="unfinished">Ce n&apos;est pas une clé d&apos;API&#xa0;: une clé n&apos;a ni espaces ni caractères spéciaux. Copiez-la de nouveau.</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsStatisticsPage</name>
    <message>
        <source>If you agree, the program counts how the online search is used: from where it is opened, which fields are filled in, how many searches find something, nothing or fail, and how many files are fetched. Names, folders and what you type are never recorded. The record stays on this computer; it is sent to nobody.</source>
        <translation type="unfinished">Si vous êtes d&apos;accord, le programme compte comment la recherche en ligne est utilisée&#xa0;: d&apos;où elle est ouverte, quels champs sont remplis, combien de recherches trouvent quelque chose, ne trouvent rien ou échouent, et combien de fichiers sont téléchargés. Les noms, les dossiers et ce que vous tapez ne sont jamais enregistrés. Le relevé reste sur cet ordinateur&#xa0;; il n&apos;est envoyé à personne.</translation>
    </message>
    <message>
        <source>&amp;Count how the online search is used</source>
        <translation type="unfinished">&amp;Compter comment la recherche en ligne est utilisée</translation>
    </message>
    <message>
        <source>&amp;Recorded in &quot;%1&quot;:</source>
        <translation type="unfinished">&amp;Enregistré dans «&#xa0;%1&#xa0;»&#xa0;:</translation>
    </message>
    <message>
        <source>Nothing has been recorded.</source>
        <translation type="unfinished">Rien n&apos;a été enregistré.</translation>
    </message>
    <message>
        <source>What has been recorded</source>
        <translation type="unfinished">Ce qui a été enregistré</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">&amp;Supprimer</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ShortcutsDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished">Raccourcis clavier</translation>
    </message>
    <message>
        <source>In the list: subtitles of the film</source>
        <translation type="unfinished">Dans la liste&#xa0;: sous-titres du film</translation>
    </message>
    <message>
        <source>In the list: menu of the film</source>
        <translation type="unfinished">Dans la liste&#xa0;: menu du film</translation>
    </message>
    <message>
        <source>Close what is open</source>
        <translation type="unfinished">Fermer ce qui est ouvert</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpPane</name>
    <message>
        <source>Help with the text</source>
        <translation type="unfinished">Aide pour le texte</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpTexts</name>
    <message>
        <source>The file itself says that it is %1.</source>
        <translation type="unfinished">Le fichier indique lui-même qu&apos;il est en %1.</translation>
    </message>
    <message>
        <source>Detected: %1, certain.</source>
        <translation type="unfinished">Détecté&#xa0;: %1, certain.</translation>
    </message>
    <message>
        <source>Nothing tells the encoding; %1 is a guess.</source>
        <translation type="unfinished">Rien n&apos;indique l&apos;encodage&#xa0;; %1 est une supposition.</translation>
    </message>
    <message>
        <source>Detected: %1, very sure (%2).</source>
        <translation type="unfinished">Détecté&#xa0;: %1, très sûr (%2).</translation>
    </message>
    <message>
        <source>Detected: %1, fairly sure (%2).</source>
        <translation type="unfinished">Détecté&#xa0;: %1, assez sûr (%2).</translation>
    </message>
    <message>
        <source>Detected: %1, not sure (%2).</source>
        <translation type="unfinished">Détecté&#xa0;: %1, pas sûr (%2).</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) cannot be read in this encoding and show as &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>%n octet est illisible dans cet encodage et apparaît comme «&#xa0;%1&#xa0;».</numerusform>
            <numerusform>%n octets sont illisibles dans cet encodage et apparaissent comme «&#xa0;%1&#xa0;».</numerusform>
        </translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; is not installed; &quot;%2&quot; stands in.</source>
        <translation type="unfinished">La police «&#xa0;%1&#xa0;» n&apos;est pas installée&#xa0;; «&#xa0;%2&#xa0;» la remplace.</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">japonais</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation type="unfinished">chinois</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">coréen</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation type="unfinished">cyrillique</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">grec</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">hébreu</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">arabe</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">thaï</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation type="unfinished">devanagari</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; lacks %n character(s) of this text (%2): &quot;%3&quot; stands in.</source>
        <translation type="unfinished">
            <numerusform>Il manque à «&#xa0;%1&#xa0;» %n caractère de ce texte (%2)&#xa0;: «&#xa0;%3&#xa0;» le remplace.</numerusform>
            <numerusform>Il manque à «&#xa0;%1&#xa0;» %n caractères de ce texte (%2)&#xa0;: «&#xa0;%3&#xa0;» les remplace.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No installed font has %n character(s) of this text (%1); they show as empty boxes.</source>
        <translation type="unfinished">
            <numerusform>Aucune police installée n&apos;a %n caractère de ce texte (%1)&#xa0;; il apparaît comme un carré vide.</numerusform>
            <numerusform>Aucune police installée n&apos;a %n caractères de ce texte (%1)&#xa0;; ils apparaissent comme des carrés vides.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpView</name>
    <message>
        <source>It could also read:</source>
        <translation type="unfinished">On pourrait aussi lire&#xa0;:</translation>
    </message>
    <message>
        <source>First lines of the text</source>
        <translation type="unfinished">Premières lignes du texte</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackActions</name>
    <message>
        <source>Quit while saving?</source>
        <translation type="unfinished">Quitter pendant l&apos;enregistrement&#xa0;?</translation>
    </message>
    <message>
        <source>A track is still being saved. Quitting cancels that, and no file is written.</source>
        <translation type="unfinished">Une piste est encore en cours d&apos;enregistrement. Quitter l&apos;annule, et aucun fichier n&apos;est écrit.</translation>
    </message>
    <message>
        <source>Cancel saving and quit</source>
        <translation type="unfinished">Annuler l&apos;enregistrement et quitter</translation>
    </message>
    <message>
        <source>Go on saving</source>
        <translation type="unfinished">Continuer l&apos;enregistrement</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackMenu</name>
    <message>
        <source>&amp;Draw in</source>
        <translation type="unfinished">&amp;Incruster</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">&amp;Retirer de la liste</translation>
    </message>
    <message>
        <source>&amp;Leave out of the output</source>
        <translation type="unfinished">&amp;Laisser de côté</translation>
    </message>
    <message>
        <source>Language, &amp;title and marks...</source>
        <translation type="unfinished">Langue, &amp;titre et marques...</translation>
    </message>
    <message>
        <source>&amp;Put back</source>
        <translation type="unfinished">&amp;Remettre</translation>
    </message>
    <message>
        <source>&amp;Save as a file...</source>
        <translation type="unfinished">&amp;Enregistrer dans un fichier...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackPropertiesDialog</name>
    <message>
        <source>Subtitle track</source>
        <translation type="unfinished">Piste de sous-titres</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished">&amp;Langue&#xa0;:</translation>
    </message>
    <message>
        <source>Not stated</source>
        <translation type="unfinished">Non précisée</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">Langue</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation type="unfinished">&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">Titre</translation>
    </message>
    <message>
        <source>On by &amp;default</source>
        <translation type="unfinished">Activée par &amp;défaut</translation>
    </message>
    <message>
        <source>Players show this track unless another one is chosen</source>
        <translation type="unfinished">Les lecteurs affichent cette piste si aucune autre n&apos;est choisie</translation>
    </message>
    <message>
        <source>&amp;Forced</source>
        <translation type="unfinished">&amp;Forcée</translation>
    </message>
    <message>
        <source>Only what has to be read in any case: signs and foreign speech</source>
        <translation type="unfinished">Seulement ce qui doit être lu dans tous les cas&#xa0;: panneaux et langues étrangères</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Annuler</translation>
    </message>
    <message>
        <source>This language is not known: choose one from the list, or write its code, such as &quot;en&quot; or &quot;pt-br&quot;.</source>
        <translation type="unfinished">Cette langue est inconnue&#xa0;: choisissez-en une dans la liste ou écrivez son code, par exemple «&#xa0;en&#xa0;» ou «&#xa0;pt-br&#xa0;».</translation>
    </message>
</context>
<context>
    <name>Korvex::GUI::ColorPickerButton</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation type="unfinished">Couleur %1</translation>
    </message>
    <message>
        <source>Choose a color</source>
        <translation type="unfinished">Choisir une couleur</translation>
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
        <translation type="unfinished">albanais</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">arabe</translation>
    </message>
    <message>
        <source>Aragonese</source>
        <translation type="unfinished">aragonais</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation type="unfinished">arménien</translation>
    </message>
    <message>
        <source>Asturian</source>
        <translation type="unfinished">asturien</translation>
    </message>
    <message>
        <source>Azerbaijani</source>
        <translation type="unfinished">azerbaïdjanais</translation>
    </message>
    <message>
        <source>Basque</source>
        <translation type="unfinished">basque</translation>
    </message>
    <message>
        <source>Belarusian</source>
        <translation type="unfinished">biélorusse</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation type="unfinished">bengali</translation>
    </message>
    <message>
        <source>Bosnian</source>
        <translation type="unfinished">bosniaque</translation>
    </message>
    <message>
        <source>Breton</source>
        <translation type="unfinished">breton</translation>
    </message>
    <message>
        <source>Bulgarian</source>
        <translation type="unfinished">bulgare</translation>
    </message>
    <message>
        <source>Burmese</source>
        <translation type="unfinished">birman</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation type="unfinished">catalan</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation type="unfinished">chinois (simplifié)</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation type="unfinished">chinois (traditionnel)</translation>
    </message>
    <message>
        <source>Chinese (Bilingual)</source>
        <translation type="unfinished">chinois (bilingue)</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation type="unfinished">croate</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation type="unfinished">tchèque</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation type="unfinished">danois</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation type="unfinished">néerlandais</translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished">anglais</translation>
    </message>
    <message>
        <source>Esperanto</source>
        <translation type="unfinished">espéranto</translation>
    </message>
    <message>
        <source>Estonian</source>
        <translation type="unfinished">estonien</translation>
    </message>
    <message>
        <source>Extremaduran</source>
        <translation type="unfinished">estrémègne</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation type="unfinished">finnois</translation>
    </message>
    <message>
        <source>French</source>
        <translation type="unfinished">français</translation>
    </message>
    <message>
        <source>Galician</source>
        <translation type="unfinished">galicien</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation type="unfinished">géorgien</translation>
    </message>
    <message>
        <source>German</source>
        <translation type="unfinished">allemand</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">grec</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">hébreu</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation type="unfinished">hindi</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation type="unfinished">hongrois</translation>
    </message>
    <message>
        <source>Icelandic</source>
        <translation type="unfinished">islandais</translation>
    </message>
    <message>
        <source>Indonesian</source>
        <translation type="unfinished">indonésien</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation type="unfinished">italien</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">japonais</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation type="unfinished">kannada</translation>
    </message>
    <message>
        <source>Kazakh</source>
        <translation type="unfinished">kazakh</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation type="unfinished">khmer</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">coréen</translation>
    </message>
    <message>
        <source>Kurdish</source>
        <translation type="unfinished">kurde</translation>
    </message>
    <message>
        <source>Latvian</source>
        <translation type="unfinished">letton</translation>
    </message>
    <message>
        <source>Lithuanian</source>
        <translation type="unfinished">lituanien</translation>
    </message>
    <message>
        <source>Luxembourgish</source>
        <translation type="unfinished">luxembourgeois</translation>
    </message>
    <message>
        <source>Macedonian</source>
        <translation type="unfinished">macédonien</translation>
    </message>
    <message>
        <source>Malay</source>
        <translation type="unfinished">malais</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation type="unfinished">malayalam</translation>
    </message>
    <message>
        <source>Manipuri</source>
        <translation type="unfinished">manipuri</translation>
    </message>
    <message>
        <source>Mongolian</source>
        <translation type="unfinished">mongol</translation>
    </message>
    <message>
        <source>Montenegrin</source>
        <translation type="unfinished">monténégrin</translation>
    </message>
    <message>
        <source>Northern Sami</source>
        <translation type="unfinished">same du Nord</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation type="unfinished">norvégien</translation>
    </message>
    <message>
        <source>Occitan</source>
        <translation type="unfinished">occitan</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation type="unfinished">persan</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation type="unfinished">polonais</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation type="unfinished">portugais</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation type="unfinished">portugais (Brésil)</translation>
    </message>
    <message>
        <source>Portuguese (Mozambique)</source>
        <translation type="unfinished">portugais (Mozambique)</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation type="unfinished">roumain</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation type="unfinished">russe</translation>
    </message>
    <message>
        <source>Serbian</source>
        <translation type="unfinished">serbe</translation>
    </message>
    <message>
        <source>Sinhalese</source>
        <translation type="unfinished">cingalais</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation type="unfinished">slovaque</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation type="unfinished">slovène</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation type="unfinished">espagnol</translation>
    </message>
    <message>
        <source>Swahili</source>
        <translation type="unfinished">swahili</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation type="unfinished">suédois</translation>
    </message>
    <message>
        <source>Syriac</source>
        <translation type="unfinished">syriaque</translation>
    </message>
    <message>
        <source>Tagalog</source>
        <translation type="unfinished">tagalog</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation type="unfinished">tamoul</translation>
    </message>
    <message>
        <source>Telugu</source>
        <translation type="unfinished">télougou</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">thaï</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation type="unfinished">turc</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation type="unfinished">ukrainien</translation>
    </message>
    <message>
        <source>Urdu</source>
        <translation type="unfinished">ourdou</translation>
    </message>
    <message>
        <source>Uzbek</source>
        <translation type="unfinished">ouzbek</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation type="unfinished">vietnamien</translation>
    </message>
</context>
<context>
    <name>LanguageSelector</name>
    <message>
        <source>All languages</source>
        <translation type="unfinished">Toutes les langues</translation>
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
        <translation type="unfinished">Aucun service de sous-titres en ligne n&apos;est configuré&#xa0;; ajoutez sa clé d&apos;API aux paramètres.</translation>
    </message>
    <message>
        <source> (it says: &quot;%1&quot;)</source>
        <translation type="unfinished"> (il répond&#xa0;: «&#xa0;%1&#xa0;»)</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again after %3.</source>
        <translation type="unfinished">Vos téléchargements auprès du service %1 sont épuisés%2&#xa0;; téléchargez de nouveau après ce moment&#xa0;: %3.</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again in %3.</source>
        <translation type="unfinished">Vos téléchargements auprès du service %1 sont épuisés%2&#xa0;; téléchargez de nouveau après ce délai&#xa0;: %3.</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again tomorrow.</source>
        <translation type="unfinished">Vos téléchargements auprès du service %1 sont épuisés%2&#xa0;; téléchargez de nouveau demain.</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; wait %3 s and try again.</source>
        <translation type="unfinished">Le service %1 a été trop souvent interrogé%2&#xa0;; attendez %3 s et réessayez.</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; try again in a minute.</source>
        <translation type="unfinished">Le service %1 a été trop souvent interrogé%2&#xa0;; réessayez dans une minute.</translation>
    </message>
    <message>
        <source>%1 did not accept the API key%2; set a valid one in the settings, as KORVEX_OPENSUBTITLES_API_KEY in the environment or as api_key in the configuration file.</source>
        <translation type="unfinished">Le service %1 n&apos;a pas accepté la clé d&apos;API%2&#xa0;; fixez-en une valable dans les réglages, comme KORVEX_OPENSUBTITLES_API_KEY dans l&apos;environnement ou comme api_key dans le fichier de configuration.</translation>
    </message>
    <message>
        <source>%1 sent something else in place of the subtitle%2; choose another one, or try again later.</source>
        <translation type="unfinished">Le service %1 a envoyé autre chose que le sous-titre%2&#xa0;; choisissez-en un autre ou réessayez plus tard.</translation>
    </message>
    <message>
        <source>%1 is down or overloaded at the moment%2; try again later.</source>
        <translation type="unfinished">Le service %1 est en panne ou surchargé en ce moment%2&#xa0;; réessayez plus tard.</translation>
    </message>
    <message>
        <source>The subtitle could not be unpacked or stored in &quot;%1&quot;%2; choose another subtitle, or make sure that the folder may be written and has room.</source>
        <translation type="unfinished">Le sous-titre n&apos;a pas pu être décompressé ou enregistré dans «&#xa0;%1&#xa0;»%2&#xa0;; choisissez-en un autre ou assurez-vous que le dossier est accessible en écriture et a de la place.</translation>
    </message>
    <message>
        <source>%1 refused the request%2; ask for something else, or try again later.</source>
        <translation type="unfinished">Le service %1 a refusé la demande%2&#xa0;; demandez autre chose ou réessayez plus tard.</translation>
    </message>
    <message>
        <source>%1 points to other addresses without end, or to one that may not be used%2; check the address that is set for it, or try again later.</source>
        <translation type="unfinished">Le service %1 renvoie sans fin à d&apos;autres adresses, ou à une adresse qui ne peut pas être utilisée%2&#xa0;; vérifiez l&apos;adresse fixée pour lui ou réessayez plus tard.</translation>
    </message>
    <message>
        <source>The answer of %1 was empty, broke off or was too large; try again later.</source>
        <translation type="unfinished">La réponse du service %1 était vide, interrompue ou trop grande&#xa0;; réessayez plus tard.</translation>
    </message>
    <message>
        <source>The answer of %1 cannot be used%2; try again later.</source>
        <translation type="unfinished">La réponse du service %1 est inutilisable%2&#xa0;; réessayez plus tard.</translation>
    </message>
    <message>
        <source>%1 could not answer%2; try again later.</source>
        <translation type="unfinished">Le service %1 n&apos;a pas pu répondre%2&#xa0;; réessayez plus tard.</translation>
    </message>
    <message>
        <source>%1 could not answer%2; check the address that is set for it and the proxy, or try again later.</source>
        <translation type="unfinished">Le service %1 n&apos;a pas pu répondre%2&#xa0;; vérifiez l&apos;adresse fixée pour lui et le proxy, ou réessayez plus tard.</translation>
    </message>
    <message>
        <source>The connection to %1 failed%2; check the proxy and whether the service&apos;s certificate is valid, or try again later.</source>
        <translation type="unfinished">La connexion au service %1 a échoué%2&#xa0;; vérifiez le proxy et la validité du certificat du service, ou réessayez plus tard.</translation>
    </message>
    <message>
        <source>Another search or download has not ended yet; try again in a moment.</source>
        <translation type="unfinished">Une autre recherche ou un autre téléchargement n&apos;est pas terminé&#xa0;; réessayez dans un instant.</translation>
    </message>
    <message>
        <source>%1 cannot look for this%2; type a title or an IMDb id.</source>
        <translation type="unfinished">Le service %1 ne peut pas chercher cela%2&#xa0;; tapez un titre ou un ID IMDb.</translation>
    </message>
    <message>
        <source>%1 cannot search in this way; look for a title or an IMDb id.</source>
        <translation type="unfinished">Le service %1 ne peut pas chercher de cette façon&#xa0;; cherchez un titre ou un ID IMDb.</translation>
    </message>
    <message>
        <source>%1 cannot be reached or did not answer in time; check the connection to the network and try again.</source>
        <translation type="unfinished">Le service %1 est injoignable ou n&apos;a pas répondu à temps&#xa0;; vérifiez la connexion au réseau et réessayez.</translation>
    </message>
</context>
<context>
    <name>OnlineSearchDialogPresenter</name>
    <message>
        <source>same file</source>
        <translation type="unfinished">même fichier</translation>
    </message>
    <message>
        <source>same release group</source>
        <translation type="unfinished">même groupe de diffusion</translation>
    </message>
    <message>
        <source>same source</source>
        <translation type="unfinished">même source</translation>
    </message>
    <message>
        <source>same resolution</source>
        <translation type="unfinished">même résolution</translation>
    </message>
    <message>
        <source>same episode</source>
        <translation type="unfinished">même épisode</translation>
    </message>
    <message>
        <source>another episode</source>
        <translation type="unfinished">autre épisode</translation>
    </message>
    <message>
        <source>another film</source>
        <translation type="unfinished">autre film</translation>
    </message>
    <message>
        <source>Type a title or an IMDb id to search for.</source>
        <translation type="unfinished">Tapez un titre ou un ID IMDb à rechercher.</translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and digits, or leave it empty.</source>
        <translation type="unfinished">Ce n&apos;est pas un ID IMDb&#xa0;: tapez «&#xa0;tt&#xa0;» et des chiffres, ou laissez le champ vide.</translation>
    </message>
    <message>
        <source>The season is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">La saison n&apos;est pas un nombre&#xa0;: tapez des chiffres ou laissez le champ vide.</translation>
    </message>
    <message>
        <source>The episode is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">L&apos;épisode n&apos;est pas un nombre&#xa0;: tapez des chiffres ou laissez le champ vide.</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">Recherche...</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n found so far</source>
        <translation type="unfinished">
            <numerusform>Recherche... %n trouvé jusqu&apos;ici</numerusform>
            <numerusform>Recherche... %n trouvés jusqu&apos;ici</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>%n sous-titre trouvé.</numerusform>
            <numerusform>%n sous-titres trouvés.</numerusform>
        </translation>
    </message>
    <message>
        <source>check the spelling of the title</source>
        <translation type="unfinished">vérifiez l&apos;orthographe du titre</translation>
    </message>
    <message>
        <source>type the title</source>
        <translation type="unfinished">tapez le titre</translation>
    </message>
    <message>
        <source>type the film&apos;s IMDb id</source>
        <translation type="unfinished">tapez l&apos;ID IMDb du film</translation>
    </message>
    <message>
        <source>check the IMDb id</source>
        <translation type="unfinished">vérifiez l&apos;ID IMDb</translation>
    </message>
    <message>
        <source>leave out the season and the episode</source>
        <translation type="unfinished">omettez la saison et l&apos;épisode</translation>
    </message>
    <message>
        <source>choose other languages</source>
        <translation type="unfinished">choisissez d&apos;autres langues</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished">%1 ou %2</translation>
    </message>
    <message>
        <source>No subtitles were found: %1.</source>
        <translation type="unfinished">Aucun sous-titre trouvé&#xa0;: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Downloading %n subtitle(s)...</source>
        <translation type="unfinished">
            <numerusform>Téléchargement de %n sous-titre...</numerusform>
            <numerusform>Téléchargement de %n sous-titres...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) added to the film.</source>
        <translation type="unfinished">
            <numerusform>%n sous-titre ajouté au film.</numerusform>
            <numerusform>%n sous-titres ajoutés au film.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n download(s) left.</source>
        <translation type="unfinished">
            <numerusform>Il reste %n téléchargement.</numerusform>
            <numerusform>Il reste %n téléchargements.</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for the last request to end...</source>
        <translation type="unfinished">Attente de la fin de la dernière demande...</translation>
    </message>
    <message>
        <source>The search was cancelled.</source>
        <translation type="unfinished">La recherche a été annulée.</translation>
    </message>
    <message numerus="yes">
        <source>The search was cancelled; %n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>La recherche a été annulée&#xa0;; %n sous-titre trouvé.</numerusform>
            <numerusform>La recherche a été annulée&#xa0;; %n sous-titres trouvés.</numerusform>
        </translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation type="unfinished">Le téléchargement a été annulé.</translation>
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
        <translation type="unfinished">Machine</translation>
    </message>
    <message>
        <source>Translated by a machine</source>
        <translation type="unfinished">Traduit par une machine</translation>
    </message>
    <message>
        <source>Foreign</source>
        <comment>short mark</comment>
        <translation type="unfinished">Étranger</translation>
    </message>
    <message>
        <source>Only what is spoken in a foreign language</source>
        <translation type="unfinished">Seulement ce qui est dit dans une langue étrangère</translation>
    </message>
    <message>
        <source>HI</source>
        <comment>short mark</comment>
        <translation type="unfinished">SME</translation>
    </message>
    <message>
        <source>For the hearing impaired: sounds are described</source>
        <translation type="unfinished">Pour sourds et malentendants&#xa0;: les sons sont décrits</translation>
    </message>
    <message>
        <source>Trusted</source>
        <comment>short mark</comment>
        <translation type="unfinished">Fiable</translation>
    </message>
    <message>
        <source>From an uploader whom the service trusts</source>
        <translation type="unfinished">D&apos;un contributeur en qui le service a confiance</translation>
    </message>
    <message>
        <source>CD %1/%2</source>
        <comment>short mark</comment>
        <translation type="unfinished">CD %1/%2</translation>
    </message>
    <message>
        <source>Part %1 of %2; all parts are downloaded</source>
        <translation type="unfinished">Partie %1 sur %2&#xa0;; toutes les parties sont téléchargées</translation>
    </message>
    <message>
        <source>HD</source>
        <comment>short mark</comment>
        <translation type="unfinished">HD</translation>
    </message>
    <message>
        <source>Made for a release in high definition</source>
        <translation type="unfinished">Fait pour une version en haute définition</translation>
    </message>
    <message>
        <source>Made for this file or release</source>
        <translation type="unfinished">Fait pour ce fichier ou cette version</translation>
    </message>
    <message>
        <source>For this film, perhaps for another cut of it</source>
        <translation type="unfinished">Pour ce film, peut-être pour un autre montage</translation>
    </message>
    <message>
        <source>For another film or episode</source>
        <translation type="unfinished">Pour un autre film ou épisode</translation>
    </message>
    <message>
        <source>It is not known how well it fits</source>
        <translation type="unfinished">On ne sait pas s&apos;il convient</translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished">Nom</translation>
    </message>
    <message>
        <source>Match</source>
        <translation type="unfinished">Correspondance</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">Langue</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation type="unfinished">Marques</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation type="unfinished">Téléchargements</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation type="unfinished">Note</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation type="unfinished">Mis en ligne</translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished">Format</translation>
    </message>
    <message>
        <source>Release: %1</source>
        <translation type="unfinished">Version&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of 10, by %n vote(s)</source>
        <translation type="unfinished">
            <numerusform>%1 sur 10, avec %n vote</numerusform>
            <numerusform>%1 sur 10, avec %n votes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SubtitleCollection</name>
    <message>
        <source>Subtitle tracks</source>
        <translation type="unfinished">Pistes de sous-titres</translation>
    </message>
    <message>
        <source>Current choice</source>
        <translation type="unfinished">Choix actuel</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">Pas de sous-titres</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">Garder toutes les pistes (softsub)</translation>
    </message>
    <message>
        <source>There are no subtitle tracks yet. Add a subtitle file first.</source>
        <translation type="unfinished">Il n&apos;y a pas encore de pistes de sous-titres. Ajoutez d&apos;abord un fichier de sous-titres.</translation>
    </message>
    <message>
        <source>The chosen output format cannot carry these tracks. Choose another format, or burn one track in.</source>
        <translation type="unfinished">Le format de sortie choisi n&apos;accepte pas ces pistes. Choisissez un autre format ou incrustez une piste.</translation>
    </message>
    <message>
        <source>Save this track to a file (Ctrl+S)</source>
        <translation type="unfinished">Enregistrer cette piste dans un fichier (Ctrl+S)</translation>
    </message>
    <message>
        <source>Save to a file: %1</source>
        <translation type="unfinished">Enregistrer dans un fichier&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>SubtitleCollectionInteractor</name>
    <message>
        <source>No subtitles were found in &quot;%1&quot;: take it out of the list and choose an SRT, ASS or SSA file.</source>
        <translation type="unfinished">Aucun sous-titre n&apos;a été trouvé dans «&#xa0;%1&#xa0;»&#xa0;: retirez-le de la liste et choisissez un fichier SRT, ASS ou SSA.</translation>
    </message>
</context>
<context>
    <name>SubtitleSettings</name>
    <message>
        <source>Auto</source>
        <translation type="unfinished">Automatique</translation>
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
        <translation type="unfinished">Europe centrale et orientale (Windows-1250)</translation>
    </message>
    <message>
        <source>Russian (KOI8-R)</source>
        <translation type="unfinished">Russe (KOI8-R)</translation>
    </message>
    <message>
        <source>Ukrainian, Belarusian (KOI8-U/RU)</source>
        <translation type="unfinished">Ukrainien, biélorusse (KOI8-U/RU)</translation>
    </message>
    <message>
        <source>Esperanto, Galician, Maltese, Turkish (ISO-8859-3)</source>
        <translation type="unfinished">Espéranto, galicien, maltais, turc (ISO-8859-3)</translation>
    </message>
    <message>
        <source>Modern Greek (ISO-8859-7)</source>
        <translation type="unfinished">Grec moderne (ISO-8859-7)</translation>
    </message>
    <message>
        <source>Hebrew charsets (ISO-8859-8)</source>
        <translation type="unfinished">Hébreu (ISO-8859-8)</translation>
    </message>
    <message>
        <source>Turkish (ISO-8859-9)</source>
        <translation type="unfinished">Turc (ISO-8859-9)</translation>
    </message>
    <message>
        <source>Baltic (ISO-8859-13)</source>
        <translation type="unfinished">Balte (ISO-8859-13)</translation>
    </message>
    <message>
        <source>Western European Languages with Euro (ISO-8859-15)</source>
        <translation type="unfinished">Europe occidentale avec euro (ISO-8859-15)</translation>
    </message>
    <message>
        <source>Japanese charsets (SHIFT-JIS/CP932)</source>
        <translation type="unfinished">Japonais (SHIFT-JIS/CP932)</translation>
    </message>
    <message>
        <source>Simplified Chinese charset (CP936)</source>
        <translation type="unfinished">Chinois simplifié (CP936)</translation>
    </message>
    <message>
        <source>Traditional Chinese charset (BIG5)</source>
        <translation type="unfinished">Chinois traditionnel (BIG5)</translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished">Par défaut</translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished">Haut</translation>
    </message>
    <message>
        <source>Vertical center</source>
        <translation type="unfinished">Centre vertical</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished">Bas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished">Gauche</translation>
    </message>
    <message>
        <source>Horizontal center</source>
        <translation type="unfinished">Centre horizontal</translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished">Droite</translation>
    </message>
</context>
<context>
    <name>TimeTexts</name>
    <message>
        <source>less than a minute left</source>
        <translation type="unfinished">il reste moins d&apos;une minute</translation>
    </message>
    <message numerus="yes">
        <source>%n min left</source>
        <translation type="unfinished">
            <numerusform>%n min restante</numerusform>
            <numerusform>%n min restantes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h left</source>
        <translation type="unfinished">
            <numerusform>%n h restante</numerusform>
            <numerusform>%n h restantes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 h %n min left</source>
        <translation type="unfinished">
            <numerusform>%1 h %n min restantes</numerusform>
            <numerusform>%1 h %n min restantes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WarningWords</name>
    <message>
        <source>Track %1 of &quot;%2&quot; (a second picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">La piste %1 de «&#xa0;%2&#xa0;» (une deuxième image, %3) a été laissée de côté, car %4 ne peut pas la contenir.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a cover picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">La piste %1 de «&#xa0;%2&#xa0;» (une image de couverture, %3) a été laissée de côté, car %4 ne peut pas la contenir.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a further sound track, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">La piste %1 de «&#xa0;%2&#xa0;» (une autre piste audio, %3) a été laissée de côté, car %4 ne peut pas la contenir.</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a sound track, %3) was left out, because nothing in it can be read.</source>
        <translation type="unfinished">La piste %1 de «&#xa0;%2&#xa0;» (une piste audio, %3) a été laissée de côté, car rien n&apos;y est lisible.</translation>
    </message>
    <message>
        <source>The picture of &quot;%1&quot; was encoded anew, because %2 cannot hold it as it is.</source>
        <translation type="unfinished">L&apos;image de «&#xa0;%1&#xa0;» a été réencodée, car %2 ne peut pas la contenir telle quelle.</translation>
    </message>
    <message>
        <source>Files attached to &quot;%1&quot;, for example fonts, were left out, because %2 cannot hold them.</source>
        <translation type="unfinished">Les fichiers joints à «&#xa0;%1&#xa0;», des polices par exemple, ont été laissés de côté, car %2 ne peut pas les contenir.</translation>
    </message>
    <message>
        <source>A subtitle track was left out, because its file is missing.</source>
        <translation type="unfinished">Une piste de sous-titres a été laissée de côté, car son fichier manque.</translation>
    </message>
    <message>
        <source>The subtitle track &quot;%1&quot; was left out, because its file is missing.</source>
        <translation type="unfinished">La piste de sous-titres «&#xa0;%1&#xa0;» a été laissée de côté, car son fichier manque.</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of &quot;%1&quot; could not be read as %2 and show as &quot;%3&quot;: check the encoding.</source>
        <translation type="unfinished">
            <numerusform>%n octet de «&#xa0;%1&#xa0;» n&apos;a pas pu être lu comme %2 et apparaît comme «&#xa0;%3&#xa0;»&#xa0;: vérifiez l&apos;encodage.</numerusform>
            <numerusform>%n octets de «&#xa0;%1&#xa0;» n&apos;ont pas pu être lus comme %2 et apparaissent comme «&#xa0;%3&#xa0;»&#xa0;: vérifiez l&apos;encodage.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>%n sous-titre de «&#xa0;%1&#xa0;» sans temps utilisables a été laissé de côté.</numerusform>
            <numerusform>%n sous-titres de «&#xa0;%1&#xa0;» sans temps utilisables ont été laissés de côté.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; of no duration were left out.</source>
        <translation type="unfinished">
            <numerusform>%n sous-titre de «&#xa0;%1&#xa0;» sans durée a été laissé de côté.</numerusform>
            <numerusform>%n sous-titres de «&#xa0;%1&#xa0;» sans durée ont été laissés de côté.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some pictures of &quot;%1&quot; are damaged; they may be missing or look wrong.</source>
        <translation type="unfinished">Certaines images de «&#xa0;%1&#xa0;» sont endommagées&#xa0;; elles peuvent manquer ou s&apos;afficher mal.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; breaks off after %2 of %3, and so does the new film.</source>
        <translation type="unfinished">«&#xa0;%1&#xa0;» s&apos;interrompt après %2 sur %3, et le nouveau film aussi.</translation>
    </message>
</context>
</TS>
