<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n film(s) converted.</source>
        <translation type="unfinished">
            <numerusform>%n 本の映画を変換しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) with remarks: %1</source>
        <translation type="unfinished">
            <numerusform>注意のある映画 %n 本：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) could not be converted: %1</source>
        <translation type="unfinished">
            <numerusform>変換できなかった映画 %n 本：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) cancelled.</source>
        <translation type="unfinished">
            <numerusform>%n 本の映画をキャンセルしました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConversionTexts</name>
    <message>
        <source>%1 holds no cues and was left out.</source>
        <translation type="unfinished">%1 には字幕がないため、除外しました。</translation>
    </message>
    <message>
        <source>%1 goes into %2 as %3.</source>
        <translation type="unfinished">%1 は %3 として %2 に入ります。</translation>
    </message>
    <message>
        <source>%1 was read as %2.</source>
        <translation type="unfinished">%1 は %2 として読み込みました。</translation>
    </message>
    <message>
        <source>%1 was moved by %2 s.</source>
        <translation type="unfinished">%1 を %2 秒ずらしました。</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of %1 could not be read as text.</source>
        <translation type="unfinished">
            <numerusform>%1 の %n バイトをテキストとして読み込めませんでした。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>%1 の有効な時刻のない字幕 %n 件を除外しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 would never be shown and were left out.</source>
        <translation type="unfinished">
            <numerusform>%1 の字幕 %n 件は表示されることがないため、除外しました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EditingPanel</name>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">字幕</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">字幕を選択</translation>
    </message>
    <message>
        <source>Subtitles encoding</source>
        <translation type="unfinished">字幕の文字コード</translation>
    </message>
    <message>
        <source>Aligment</source>
        <translation type="unfinished">配置</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation type="unfinished">同期</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">字幕を追加</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">すべてのトラックを残す (ソフト字幕)</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">ファイルを選択</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">ファイルを探す</translation>
    </message>
    <message>
        <source>Relocating subtitles saves all subtitle tracks. You can select them in player.&lt;br&gt;&lt;br&gt;Select one of track to hardsub them.</source>
        <translation type="unfinished">字幕を移すと、すべての字幕トラックが保存されます。プレーヤーで選択できます。&lt;br&gt;&lt;br&gt;映像に焼き込むには、トラックを 1 つ選んでください。</translation>
    </message>
    <message>
        <source>Hastened</source>
        <translation type="unfinished">早める</translation>
    </message>
    <message>
        <source>Delayed</source>
        <translation type="unfinished">遅らせる</translation>
    </message>
    <message>
        <source>Help on subtitles</source>
        <translation type="unfinished">字幕のヘルプ</translation>
    </message>
    <message>
        <source>Position shift</source>
        <translation type="unfinished">位置のずれ</translation>
    </message>
    <message>
        <source>Synchronization offset in seconds</source>
        <translation type="unfinished">同期のずれ (秒)</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation type="unfinished">文字の色</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation type="unfinished">縁取りの色</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation type="unfinished">フォント: %1</translation>
    </message>
</context>
<context>
    <name>ErrorClauses</name>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished">フォルダーです</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="unfinished">ファイルではありません</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation type="unfinished">%1 バイトより大きいです</translation>
    </message>
    <message>
        <source>its header cannot be read</source>
        <translation type="unfinished">ヘッダーを読み込めません</translation>
    </message>
    <message>
        <source>nothing in it can be read</source>
        <translation type="unfinished">読み込める内容がありません</translation>
    </message>
    <message>
        <source>it holds no subtitles</source>
        <translation type="unfinished">字幕が含まれていません</translation>
    </message>
    <message>
        <source>it does not hold exactly one subtitle track</source>
        <translation type="unfinished">字幕トラックがちょうど 1 つではありません</translation>
    </message>
    <message>
        <source>it has no picture</source>
        <translation type="unfinished">映像がありません</translation>
    </message>
    <message>
        <source>it has no picture that subtitles could be drawn into</source>
        <translation type="unfinished">字幕を焼き込む映像がありません</translation>
    </message>
    <message>
        <source>the size of its picture is not known</source>
        <translation type="unfinished">映像の大きさが分かりません</translation>
    </message>
    <message>
        <source>the picture has no usable size</source>
        <translation type="unfinished">映像の大きさが使えません</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation type="unfinished">どの画像もデコードできません</translation>
    </message>
    <message>
        <source>there is no decoder for it</source>
        <translation type="unfinished">デコーダーがありません</translation>
    </message>
    <message>
        <source>there is no decoder for track %1</source>
        <translation type="unfinished">トラック %1 のデコーダーがありません</translation>
    </message>
    <message>
        <source>its decoder refuses the stream: %1</source>
        <translation type="unfinished">デコーダーがストリームを受け付けません: %1</translation>
    </message>
    <message>
        <source>its decoder does not know the options %1</source>
        <translation type="unfinished">デコーダーがオプション %1 を認識しません</translation>
    </message>
    <message>
        <source>its encoder refuses the sound: %1</source>
        <translation type="unfinished">エンコーダーが音声を受け付けません: %1</translation>
    </message>
    <message>
        <source>its encoder refuses the picture (%1): %2</source>
        <translation type="unfinished">エンコーダーが映像を受け付けません (%1): %2</translation>
    </message>
    <message>
        <source>the encoder here is %1</source>
        <translation type="unfinished">ここでのエンコーダーは %1 です</translation>
    </message>
    <message>
        <source>there is no encoder preset &quot;%1&quot;</source>
        <translation type="unfinished">エンコーダーのプリセット「%1」はありません</translation>
    </message>
    <message>
        <source>the text encoding &quot;%1&quot; is not known</source>
        <translation type="unfinished">文字コード「%1」は認識されません</translation>
    </message>
    <message>
        <source>the text renderer could not be set up</source>
        <translation type="unfinished">文字の描画機能を準備できませんでした</translation>
    </message>
    <message>
        <source>it names a folder</source>
        <translation type="unfinished">フォルダーを指しています</translation>
    </message>
    <message>
        <source>it is a device or a pipe, not a file</source>
        <translation type="unfinished">ファイルではなく、デバイスかパイプです</translation>
    </message>
    <message>
        <source>a .%1 file</source>
        <translation type="unfinished">.%1 ファイル</translation>
    </message>
    <message>
        <source>save it as .%1 instead</source>
        <translation type="unfinished">代わりに .%1 として保存してください</translation>
    </message>
    <message>
        <source>it consists of pictures, so save it as .%1</source>
        <translation type="unfinished">画像でできているため、.%1 として保存してください</translation>
    </message>
    <message>
        <source>the encoder libx264 is missing</source>
        <translation type="unfinished">エンコーダー libx264 がありません</translation>
    </message>
    <message>
        <source>subtitles can be switchable or drawn in, not both</source>
        <translation type="unfinished">字幕は切り替え可能か焼き込みのどちらか一方だけです</translation>
    </message>
    <message>
        <source>the quality goes from 0 to 51</source>
        <translation type="unfinished">品質は 0 から 51 までです</translation>
    </message>
    <message>
        <source>the chosen format</source>
        <translation type="unfinished">選んだ形式</translation>
    </message>
    <message>
        <source>draw it in</source>
        <translation type="unfinished">映像に焼き込んでください</translation>
    </message>
    <message>
        <source>choose Matroska or draw it in</source>
        <translation type="unfinished">Matroska を選ぶか、映像に焼き込んでください</translation>
    </message>
    <message>
        <source>draw it in or leave it out</source>
        <translation type="unfinished">映像に焼き込むか、除外してください</translation>
    </message>
    <message>
        <source>you may not do this</source>
        <translation type="unfinished">権限がありません</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation type="unfinished">ディスクは読み取り専用です</translation>
    </message>
    <message>
        <source>the disk could not be read or written</source>
        <translation type="unfinished">ディスクの読み書きに失敗しました</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation type="unfinished">そのようなファイルやフォルダーはありません</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation type="unfinished">名前が長すぎます</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation type="unfinished">メモリが足りません</translation>
    </message>
    <message>
        <source>it holds data that make no sense</source>
        <translation type="unfinished">意味をなさないデータが含まれています</translation>
    </message>
</context>
<context>
    <name>ErrorWords</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation type="unfinished">「%1」</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot;</source>
        <translation type="unfinished">「%2」のトラック %1</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no track %2: choose another track.</source>
        <translation type="unfinished">ファイル「%1」にトラック %2 はありません。別のトラックを選んでください。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no subtitle track: choose another file.</source>
        <translation type="unfinished">ファイル「%1」に字幕トラックはありません。別のファイルを選んでください。</translation>
    </message>
    <message>
        <source>choose another format, draw it in or leave it out</source>
        <translation type="unfinished">別の形式を選ぶか、字幕を映像に焼き込むか、除外してください</translation>
    </message>
    <message>
        <source>%1 is %2, which %3 cannot hold: %4.</source>
        <extracomment>%1: a track or a file, %2: its codec, %3: a format or a kind of file, %4: what to do</extracomment>
        <translation type="unfinished">%1 は %2 で、%3 には入れられません。%4。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read%2: choose another one, or check that you may open it.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">ファイル「%1」を読み込めません%2。別のファイルを選ぶか、開く権限があるか確認してください。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is of no kind that can be used here%2: choose another one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">ファイル「%1」は、ここで使える種類ではありません%2。別のファイルを選んでください。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged%2: try to get a complete copy.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">ファイル「%1」は壊れています%2。完全なコピーを入手してください。</translation>
    </message>
    <message>
        <source>The text of &quot;%1&quot; cannot be drawn, because no usable font is installed%2: install one, for example DejaVu Sans.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">使えるフォントがインストールされていないため、「%1」の文字を描けません%2。DejaVu Sans などのフォントをインストールしてください。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written%2: choose another folder, or check that you may write to this one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">ファイル「%1」に書き込めません%2。別のフォルダーを選ぶか、このフォルダーに書き込む権限があるか確認してください。</translation>
    </message>
    <message>
        <source>A setting for &quot;%1&quot; is not valid%2: correct it and try again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">「%1」の設定が正しくありません%2。直してからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; failed%2: try again, and report it if it fails again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">「%1」の処理に失敗しました%2。もう一度試し、再び失敗する場合は報告してください。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist any more: choose another one.</source>
        <translation type="unfinished">ファイル「%1」はもう存在しません。別のファイルを選んでください。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty: choose another one.</source>
        <translation type="unfinished">ファイル「%1」は空です。別のファイルを選んでください。</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is not a subtitle track: choose another one.</source>
        <translation type="unfinished">「%2」のトラック %1 は字幕トラックではありません。別のトラックを選んでください。</translation>
    </message>
    <message>
        <source>The codec of &quot;%1&quot;, %2, cannot be used here%3: choose another file or another format.</source>
        <extracomment>%2: a codec, %3: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">「%1」のコーデック %2 はここでは使えません%3。別のファイルか別の形式を選んでください。</translation>
    </message>
    <message>
        <source>The format of &quot;%1&quot; is not known%2: choose another one.</source>
        <extracomment>%2: what was asked for, in brackets, or nothing</extracomment>
        <translation type="unfinished">「%1」の形式が分かりません%2。別の形式を選んでください。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has neither picture nor sound: choose another one.</source>
        <translation type="unfinished">ファイル「%1」には映像も音声もありません。別のファイルを選んでください。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already: choose another name.</source>
        <translation type="unfinished">ファイル「%1」はすでに存在します。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is being read, so it cannot be written: choose another name.</source>
        <translation type="unfinished">ファイル「%1」は読み込み中のため書き込めません。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>The folder of &quot;%1&quot; does not exist: create it, or choose another one.</source>
        <translation type="unfinished">「%1」のフォルダーが存在しません。作成するか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The disk is full, so &quot;%1&quot; was not written: free some space, or choose another folder.</source>
        <translation type="unfinished">ディスクがいっぱいのため、「%1」を書き込めませんでした。空き容量を増やすか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; was cancelled: start it again if you want it.</source>
        <translation type="unfinished">「%1」の処理は中止されました。必要ならもう一度開始してください。</translation>
    </message>
</context>
<context>
    <name>ExternalSubtitlesDialog</name>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">字幕を選択</translation>
    </message>
    <message>
        <source>Subtitle files (%1)</source>
        <translation type="unfinished">字幕ファイル (%1)</translation>
    </message>
</context>
<context>
    <name>FilmRow</name>
    <message>
        <source>Paused</source>
        <translation type="unfinished">一時停止中</translation>
    </message>
    <message>
        <source>Preparing subtitles</source>
        <translation type="unfinished">字幕を準備中</translation>
    </message>
    <message>
        <source>Converting</source>
        <translation type="unfinished">変換中</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished">待機中</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation type="unfinished">変換済み</translation>
    </message>
    <message numerus="yes">
        <source>Converted, with %n remark(s)</source>
        <translation type="unfinished">
            <numerusform>変換済み、注意 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished">キャンセルされました</translation>
    </message>
    <message>
        <source>Reading the film</source>
        <translation type="unfinished">映画を読み込み中</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">フォルダーで表示</translation>
    </message>
    <message>
        <source>Converted, but it breaks off after %1 of %2</source>
        <translation type="unfinished">変換済み、ただし %2 のうち %1 で途切れています</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::AutocompleteField</name>
    <message>
        <source>Film or series</source>
        <translation type="unfinished">映画またはシリーズ</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">タイトル</translation>
    </message>
    <message>
        <source>Suggested titles</source>
        <translation type="unfinished">タイトルの候補</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ImdbIdValidator</name>
    <message numerus="yes">
        <source>The IMDb id is too short: it has at least %n digit(s), as in tt0123456.</source>
        <translation type="unfinished">
            <numerusform>IMDb ID が短すぎます。数字は tt0123456 のように最低 %n 桁です。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The IMDb id is too long: it has at most %n digit(s).</source>
        <translation type="unfinished">
            <numerusform>IMDb ID が長すぎます。数字は最大 %n 桁です。</numerusform>
        </translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and a number, or the number alone, as in tt0123456.</source>
        <translation type="unfinished">これは IMDb ID ではありません。tt0123456 のように「tt」と番号、または番号だけを入力してください。</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ItemPanel</name>
    <message>
        <source>Subtitles of this film</source>
        <translation type="unfinished">この映画の字幕</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">字幕を選択</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">字幕を追加</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">ファイルを選択</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">ファイルを探す</translation>
    </message>
    <message>
        <source>Apply to all files</source>
        <translation type="unfinished">すべてのファイルに適用</translation>
    </message>
    <message>
        <source>Makes the same choice for every film of the list</source>
        <translation type="unfinished">一覧のすべての映画で同じものを選択します</translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished">完了</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelector</name>
    <message>
        <source>Languages: %1</source>
        <translation type="unfinished">言語: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelectorList</name>
    <message>
        <source>Languages to search in</source>
        <translation type="unfinished">検索する言語</translation>
    </message>
    <message>
        <source>Find a language</source>
        <translation type="unfinished">言語を探す</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindow</name>
    <message>
        <source>Type a title and press &quot;Search&quot;.</source>
        <translation type="unfinished">タイトルを入力して「検索」を押してください。</translation>
    </message>
    <message>
        <source>Find subtitles</source>
        <translation type="unfinished">字幕を探す</translation>
    </message>
    <message>
        <source>Find subtitles: %1</source>
        <translation type="unfinished">字幕を探す: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowFields</name>
    <message>
        <source>&amp;Title</source>
        <translation type="unfinished">タイトル(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Season</source>
        <translation type="unfinished">シーズン(&amp;S)</translation>
    </message>
    <message>
        <source>Season</source>
        <translation type="unfinished">シーズン</translation>
    </message>
    <message>
        <source>&amp;Episode</source>
        <translation type="unfinished">エピソード(&amp;E)</translation>
    </message>
    <message>
        <source>Episode</source>
        <translation type="unfinished">エピソード</translation>
    </message>
    <message>
        <source>&amp;Episode...</source>
        <translation type="unfinished">エピソード(&amp;E)...</translation>
    </message>
    <message>
        <source>Search for an episode of a series</source>
        <translation type="unfinished">シリーズのエピソードを検索します</translation>
    </message>
    <message>
        <source>Sea&amp;rch</source>
        <translation type="unfinished">検索(&amp;R)</translation>
    </message>
    <message>
        <source>I&amp;MDb id</source>
        <translation type="unfinished">IMDb ID(&amp;M)</translation>
    </message>
    <message>
        <source>IMDb id</source>
        <translation type="unfinished">IMDb ID</translation>
    </message>
    <message>
        <source>The film&apos;s number at IMDb, as in tt0123456</source>
        <translation type="unfinished">IMDb での映画の番号（例：tt0123456）</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation type="unfinished">言語(&amp;L)</translation>
    </message>
    <message>
        <source>E&amp;xactly this file</source>
        <translation type="unfinished">このファイルだけ(&amp;X)</translation>
    </message>
    <message>
        <source>Finds subtitles by the fingerprint of the file, whatever its name is</source>
        <translation type="unfinished">ファイル名に関係なく、ファイルのフィンガープリントで字幕を探します</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowStatus</name>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">検索しています...</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation type="unfinished">ダウンロードしています...</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation type="unfinished">キャンセルしています...</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found</source>
        <translation type="unfinished">
            <numerusform>字幕が %n 件見つかりました</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">キャンセル(&amp;C)</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Download %n</source>
        <translation type="unfinished">
            <numerusform>%n 件をダウンロード(&amp;D)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Download</source>
        <translation type="unfinished">ダウンロード(&amp;D)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished">閉じる</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ResultList</name>
    <message>
        <source>Smallest first; press to turn it round</source>
        <translation type="unfinished">小さい順。押すと逆にします</translation>
    </message>
    <message>
        <source>Largest first; press to turn it round</source>
        <translation type="unfinished">大きい順。押すと逆にします</translation>
    </message>
    <message numerus="yes">
        <source>None of the %n subtitle(s) found holds &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>見つかった %n 件の字幕に「%1」を含むものはありません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Best match</source>
        <translation type="unfinished">一致度</translation>
    </message>
    <message>
        <source>Subtitles found</source>
        <translation type="unfinished">見つかった字幕</translation>
    </message>
    <message>
        <source>Filter the list</source>
        <translation type="unfinished">一覧を絞り込む</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation type="unfinished">並べ替え(&amp;O)</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation type="unfinished">並べ替え</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::AboutDialog</name>
    <message>
        <source>About Korvex Subtitles</source>
        <translation type="unfinished">Korvex Subtitles について</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished">バージョン %1</translation>
    </message>
    <message>
        <source>Converts films with their subtitles: as tracks that can be switched on and off, or drawn into the picture.

Free software under the GNU General Public License, version 3 or later. It comes without any warranty.

It is built on Qt, FFmpeg and libass.</source>
        <translation type="unfinished">映画を字幕ごと変換します。字幕はオン・オフできるトラックにも、映像への焼き込みにもできます。

GNU 一般公衆利用許諾書バージョン 3 以降によるフリーソフトウェアです。いかなる保証もありません。

Qt、FFmpeg、libass を利用しています。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Actions</name>
    <message>
        <source>&amp;Add films...</source>
        <translation type="unfinished">映画を追加(&amp;A)...</translation>
    </message>
    <message>
        <source>Add &amp;subtitles...</source>
        <translation type="unfinished">字幕を追加(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished">終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Subtitles...</source>
        <translation type="unfinished">字幕(&amp;S)...</translation>
    </message>
    <message>
        <source>Apply these subtitles to &amp;all</source>
        <translation type="unfinished">この字幕をすべてに適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Copy as command line</source>
        <translation type="unfinished">コマンドラインとしてコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Show &amp;output in folder</source>
        <translation type="unfinished">出力をフォルダーで表示(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">一覧から削除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Previous film</source>
        <translation type="unfinished">前の映画(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next film</source>
        <translation type="unfinished">次の映画(&amp;N)</translation>
    </message>
    <message>
        <source>Convert &amp;all</source>
        <translation type="unfinished">すべて変換(&amp;A)</translation>
    </message>
    <message>
        <source>Convert this &amp;film</source>
        <translation type="unfinished">この映画を変換(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">一時停止(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Cancel this film</source>
        <translation type="unfinished">この映画をキャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Cancel a&amp;ll</source>
        <translation type="unfinished">すべてキャンセル(&amp;L)</translation>
    </message>
    <message>
        <source>Same as &amp;system</source>
        <translation type="unfinished">システムに合わせる(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished">ライト(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished">ダーク(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation type="unfinished">キーボードショートカット(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About Korvex Subtitles</source>
        <translation type="unfinished">Korvex Subtitles について(&amp;A)</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished">削除</translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished">追加</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation type="unfinished">設定(&amp;E)...</translation>
    </message>
    <message>
        <source>Find subtitles on&amp;line...</source>
        <translation type="unfinished">字幕をオンラインで探す(&amp;L)...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyReportDialog</name>
    <message>
        <source>Applied to all films</source>
        <translation type="unfinished">すべての映画に適用しました</translation>
    </message>
    <message>
        <source>Subtitles as in &quot;%1&quot;</source>
        <translation type="unfinished">「%1」と同じ字幕</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyToAll</name>
    <message>
        <source>&quot;%1&quot;: nothing changed, because the film cannot be read at the moment.</source>
        <translation type="unfinished">「%1」: 現在この映画を読み込めないため、変更していません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: nothing changed, because it has no track like %2 and no file of that name.</source>
        <translation type="unfinished">「%1」: %2 のようなトラックもその名前のファイルもないため、変更していません。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::CommandLineText</name>
    <message>
        <source>A picture that cannot be copied is encoded with --crf %1 there and %2 here.</source>
        <translation type="unfinished">コピーできない映像は、そちらでは --crf %1、こちらでは %2 でエンコードされます。</translation>
    </message>
    <message>
        <source>The text cannot be moved by more than %1 lines.</source>
        <translation type="unfinished">テキストを %1 行より多くずらすことはできません。</translation>
    </message>
    <message>
        <source>The font size %1 is not a whole number up to %2: the nearest one stands for it.</source>
        <translation type="unfinished">フォントサイズ %1 は %2 までの整数ではないため、最も近い値を使います。</translation>
    </message>
    <message>
        <source>%1 keeps its own language, title and forced mark.</source>
        <translation type="unfinished">%1 は元の言語、タイトル、強制の印を保ちます。</translation>
    </message>
    <message>
        <source>%1 keeps the language, title and forced mark that its name states.</source>
        <translation type="unfinished">%1 は名前が示す言語、タイトル、強制の印を保ちます。</translation>
    </message>
    <message>
        <source>%1 goes out without its mark for the hard of hearing.</source>
        <translation type="unfinished">%1 は聴覚障害者向けの印なしで出力されます。</translation>
    </message>
    <message>
        <source>Which of the film&apos;s own tracks players show by themselves stays as in the film.</source>
        <translation type="unfinished">映画自体のどのトラックをプレーヤーが自動表示するかは、元の映画のままです。</translation>
    </message>
    <message>
        <source>The files have different encodings: all are read as they are detected.</source>
        <translation type="unfinished">ファイルの文字コードが異なるため、すべて検出どおりに読み込みます。</translation>
    </message>
    <message>
        <source>The tracks are moved by different offsets: none is moved.</source>
        <translation type="unfinished">トラックごとにずれが異なるため、どれもずらしません。</translation>
    </message>
    <message>
        <source>Text cannot be moved by more than a day.</source>
        <translation type="unfinished">テキストを 1 日より多くずらすことはできません。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionControl</name>
    <message>
        <source>Quit while converting?</source>
        <translation type="unfinished">変換中ですが終了しますか？</translation>
    </message>
    <message>
        <source>Films are still being converted. Quitting cancels them; what is finished stays.</source>
        <translation type="unfinished">映画を変換しています。終了すると中止されます。完了したものは残ります。</translation>
    </message>
    <message>
        <source>Cancel conversions and quit</source>
        <translation type="unfinished">変換を中止して終了</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">変換を続ける</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionQueue</name>
    <message>
        <source>The subtitles of &quot;%1&quot; cannot go out as chosen: choose them again.</source>
        <translation type="unfinished">「%1」の字幕は選択どおりに出力できません。選び直してください。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::DropHighlight</name>
    <message>
        <source>Drop films, folders or subtitle files</source>
        <translation type="unfinished">映画、フォルダー、字幕ファイルをドロップ</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::EmptyPage</name>
    <message>
        <source>Drop films here or choose files</source>
        <translation type="unfinished">映画をここにドロップするか、ファイルを選択</translation>
    </message>
    <message>
        <source>Folders work too. Subtitle files beside a film are found automatically.</source>
        <translation type="unfinished">フォルダーも使えます。映画と同じ場所の字幕ファイルは自動で見つかります。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FetchedSubtitles</name>
    <message>
        <source>&quot;%1&quot; was added to &quot;%2&quot;.</source>
        <translation type="unfinished">「%1」を「%2」に追加しました。</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle file(s) were added to &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>字幕ファイル %n 個を「%1」に追加しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">元に戻す</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FileActions</name>
    <message>
        <source>&quot;%1&quot; needs a film to go with: add the film first.</source>
        <translation type="unfinished">「%1」を組み合わせる映画がありません。先に映画を追加してください。</translation>
    </message>
    <message>
        <source>No new film was found in &quot;%1&quot;: choose a folder with films.</source>
        <translation type="unfinished">「%1」に新しい映画は見つかりませんでした。映画のあるフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>Add films</source>
        <translation type="unfinished">映画を追加</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">字幕</translation>
    </message>
    <message>
        <source>All files</source>
        <translation type="unfinished">すべてのファイル</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">字幕を追加</translation>
    </message>
    <message>
        <source>Where is &quot;%1&quot; now?</source>
        <translation type="unfinished">「%1」は今どこにありますか？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the list already: show another file, or remove &quot;%2&quot; from the list.</source>
        <translation type="unfinished">「%1」はすでに一覧にあります。別のファイルを指定するか、「%2」を一覧から削除してください。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Film</name>
    <message>
        <source>The film &quot;%1&quot; is not there any more: show where it is now, or remove it from the list.</source>
        <translation type="unfinished">映画「%1」が見つかりません。現在の場所を指定するか、一覧から削除してください。</translation>
    </message>
    <message>
        <source>Locate...</source>
        <translation type="unfinished">場所を指定...</translation>
    </message>
    <message>
        <source>No subtitles, as it stands</source>
        <translation type="unfinished">このままでは字幕なし</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmActions</name>
    <message>
        <source>Remove a film that is being converted?</source>
        <translation type="unfinished">変換中の映画を削除しますか？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is being converted. Removing it cancels its conversion.</source>
        <translation type="unfinished">「%1」を変換しています。削除すると変換が中止されます。</translation>
    </message>
    <message>
        <source>Cancel conversion and remove</source>
        <translation type="unfinished">変換を中止して削除</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation type="unfinished">残す</translation>
    </message>
    <message>
        <source>No file manager could be started: the film is &quot;%1&quot;.</source>
        <translation type="unfinished">ファイルマネージャーを起動できませんでした。映画は「%1」です。</translation>
    </message>
    <message>
        <source>The command line is in the clipboard.</source>
        <translation type="unfinished">コマンドラインをクリップボードにコピーしました。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmListPane</name>
    <message numerus="yes">
        <source>%n film(s)</source>
        <translation type="unfinished">
            <numerusform>映画 %n 本</numerusform>
        </translation>
    </message>
    <message>
        <source>Films</source>
        <translation type="unfinished">映画</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmWords</name>
    <message>
        <source>Track %1</source>
        <translation type="unfinished">トラック %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n track(s)</source>
        <translation type="unfinished">
            <numerusform>全 %n トラック</numerusform>
        </translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">字幕なし</translation>
    </message>
    <message>
        <source>Drawn in: %1</source>
        <translation type="unfinished">焼き込み: %1</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no subtitles that can be read: remove it.</source>
        <translation type="unfinished">ファイル「%1」には読み込める字幕がありません。削除してください。</translation>
    </message>
    <message>
        <source>Remove the file</source>
        <translation type="unfinished">ファイルを削除</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: draw it in, or leave it out.</source>
        <translation type="unfinished">%1 は %2 に入れられません。映像に焼き込むか、除外してください。</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: choose %3, draw it in, or leave it out.</source>
        <translation type="unfinished">%1 は %2 に入れられません。%3 を選ぶか、映像に焼き込むか、除外してください。</translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation type="unfinished">%1 を選ぶ</translation>
    </message>
    <message>
        <source>%1 cannot be moved in time while it stays a track: draw it in, set its offset to 0, or leave it out.</source>
        <translation type="unfinished">%1 はトラックのままでは時間をずらせません。映像に焼き込むか、ずれを 0 にするか、除外してください。</translation>
    </message>
    <message>
        <source>Set its offset to 0</source>
        <translation type="unfinished">ずれを 0 にする</translation>
    </message>
    <message>
        <source>%1 cannot be read in another encoding while it stays a track: draw it in, or leave it out.</source>
        <translation type="unfinished">%1 はトラックのままでは別の文字コードで読み込めません。映像に焼き込むか、除外してください。</translation>
    </message>
    <message>
        <source>Draw it in</source>
        <translation type="unfinished">焼き込む</translation>
    </message>
    <message>
        <source>Leave it out</source>
        <translation type="unfinished">除外する</translation>
    </message>
    <message>
        <source>%1 is moved by %2 s.</source>
        <translation type="unfinished">%1 を %2 秒ずらします。</translation>
    </message>
    <message>
        <source>%1 is read as %2.</source>
        <translation type="unfinished">%1 を %2 として読み込みます。</translation>
    </message>
    <message>
        <source>%1 goes into %2 as plain text and loses its styles.</source>
        <translation type="unfinished">%1 は書式のないテキストとして %2 に入り、スタイルが失われます。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished">ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Fil&amp;m</source>
        <translation type="unfinished">映画(&amp;M)</translation>
    </message>
    <message>
        <source>Put left-out tracks &amp;back</source>
        <translation type="unfinished">除外したトラックを戻す(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation type="unfinished">変換(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished">表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished">テーマ(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished">言語(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished">ヘルプ(&amp;H)</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::NoticeBar</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished">%1/%2</translation>
    </message>
    <message>
        <source>Previous notice</source>
        <translation type="unfinished">前の通知</translation>
    </message>
    <message>
        <source>Next notice</source>
        <translation type="unfinished">次の通知</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation type="unfinished">この通知を閉じる</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Notices</name>
    <message>
        <source>Try again</source>
        <translation type="unfinished">再試行</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">フォルダーで表示</translation>
    </message>
    <message>
        <source>Show the first that failed</source>
        <translation type="unfinished">最初の失敗を表示</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::OutputBar</name>
    <message>
        <source>Same as source</source>
        <translation type="unfinished">元と同じ</translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished">高</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished">中</translation>
    </message>
    <message>
        <source>Small</source>
        <translation type="unfinished">小</translation>
    </message>
    <message>
        <source>The picture is copied unchanged where nothing is drawn into it and the format can carry it; otherwise it is encoded in high quality.</source>
        <translation type="unfinished">何も焼き込まず、形式が対応していれば映像をそのままコピーします。それ以外は高品質でエンコードします。</translation>
    </message>
    <message>
        <source>The picture is encoded anew; differences are next to invisible.</source>
        <translation type="unfinished">映像を再エンコードします。違いはほとんど分かりません。</translation>
    </message>
    <message>
        <source>The picture is encoded anew; good for watching, in a smaller file.</source>
        <translation type="unfinished">映像を再エンコードします。視聴に十分で、ファイルは小さくなります。</translation>
    </message>
    <message>
        <source>The picture is encoded anew into a small file; losses are visible.</source>
        <translation type="unfinished">映像を小さなファイルに再エンコードします。劣化が目に見えます。</translation>
    </message>
    <message>
        <source>paused</source>
        <translation type="unfinished">一時停止中</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished">%1、%2</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation type="unfinished">再開(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">一時停止(&amp;P)</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">変換を続ける</translation>
    </message>
    <message>
        <source>Wait until you resume</source>
        <translation type="unfinished">再開するまで停止します</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation type="unfinished">形式(&amp;F)</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation type="unfinished">出力形式</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation type="unfinished">品質(&amp;Q)</translation>
    </message>
    <message>
        <source>Quality of the picture</source>
        <translation type="unfinished">映像の品質</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished">保存先(&amp;S)</translation>
    </message>
    <message>
        <source>Beside each film</source>
        <translation type="unfinished">各映画と同じ場所</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation type="unfinished">フォルダーを選択...</translation>
    </message>
    <message>
        <source>&amp;Convert all</source>
        <translation type="unfinished">すべて変換(&amp;C)</translation>
    </message>
    <message>
        <source>Convert all films that are ready</source>
        <translation type="unfinished">準備のできた映画をすべて変換します</translation>
    </message>
    <message>
        <source>Only &amp;this film</source>
        <translation type="unfinished">この映画のみ(&amp;T)</translation>
    </message>
    <message>
        <source>Convert the film that is chosen in the list, and no other</source>
        <translation type="unfinished">一覧で選択した映画だけを変換します</translation>
    </message>
    <message>
        <source>Progress of all conversions</source>
        <translation type="unfinished">すべての変換の進行状況</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation type="unfinished">キャンセル(&amp;N)</translation>
    </message>
    <message>
        <source>Stop converting; half-written files are removed</source>
        <translation type="unfinished">変換を中止します。書きかけのファイルは削除されます</translation>
    </message>
    <message>
        <source>Where to save</source>
        <translation type="unfinished">保存する場所</translation>
    </message>
    <message>
        <source>Output folder: %1</source>
        <translation type="unfinished">出力フォルダー: %1</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::PreviewPane</name>
    <message>
        <source>Drop films here.</source>
        <translation type="unfinished">映画をここにドロップしてください。</translation>
    </message>
    <message>
        <source>The film is being read.</source>
        <translation type="unfinished">映画を読み込んでいます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no picture, so there is nothing to see. Its sound can be converted.</source>
        <translation type="unfinished">「%1」には映像がないため、表示するものがありません。音声は変換できます。</translation>
    </message>
    <message>
        <source>There are no subtitles. Add a subtitle file to see it drawn in.</source>
        <translation type="unfinished">字幕がありません。焼き込みを見るには字幕ファイルを追加してください。</translation>
    </message>
    <message>
        <source>All tracks stay switchable. Choose one to see it drawn in.</source>
        <translation type="unfinished">すべてのトラックは切り替え可能なままです。焼き込みを見るには 1 つ選んでください。</translation>
    </message>
    <message>
        <source>Choose a track to see it drawn in.</source>
        <translation type="unfinished">焼き込みを見るにはトラックを選んでください。</translation>
    </message>
    <message>
        <source>All tracks stay switchable.</source>
        <translation type="unfinished">すべてのトラックは切り替え可能なままです。</translation>
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
        <translation type="unfinished">前の字幕</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation type="unfinished">次の字幕</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished">プレビュー</translation>
    </message>
    <message>
        <source>Position in the film</source>
        <translation type="unfinished">映画内の位置</translation>
    </message>
    <message>
        <source>Where the cues are</source>
        <translation type="unfinished">字幕の位置</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>position / length</comment>
        <translation type="unfinished">%1 / %2</translation>
    </message>
    <message>
        <source>The subtitles are being read.</source>
        <translation type="unfinished">字幕を読み込んでいます。</translation>
    </message>
    <message>
        <source>This track has no lines.</source>
        <translation type="unfinished">このトラックには字幕の行がありません。</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the next one.</source>
        <comment>keys</comment>
        <translation type="unfinished">ここには字幕がありません。%1 で次の字幕へ移動します。</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the one before.</source>
        <comment>keys</comment>
        <translation type="unfinished">ここには字幕がありません。%1 で前の字幕へ移動します。</translation>
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
        <translation type="unfinished">Blu-ray 字幕 (*.sup)</translation>
    </message>
    <message>
        <source>Matroska (*.mkv *.mks)</source>
        <translation type="unfinished">Matroska (*.mkv *.mks)</translation>
    </message>
    <message>
        <source>Save the track as</source>
        <translation type="unfinished">トラックに名前を付けて保存</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; was saved as %2 with %n cue(s)</source>
        <translation type="unfinished">
            <numerusform>「%1」を字幕 %n 件の %2 として保存しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) could not be read as %1</source>
        <translation type="unfinished">
            <numerusform>%n バイトを %1 として読み込めませんでした</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) without usable times were left out</source>
        <translation type="unfinished">
            <numerusform>有効な時刻のない字幕 %n 件を除外しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of no duration were left out</source>
        <translation type="unfinished">
            <numerusform>長さのない字幕 %n 件を除外しました</numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation type="unfinished">%1。</translation>
    </message>
    <message>
        <source>%1; %2.</source>
        <translation type="unfinished">%1、%2。</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; does not tell how to save the track: let it end in .srt, .ass, .sup or .mkv.</source>
        <translation type="unfinished">名前「%1」ではトラックの保存形式が分かりません。末尾を .srt、.ass、.sup、.mkv のいずれかにしてください。</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is %3, which no subtitle file can hold: draw it into the picture instead.</source>
        <translation type="unfinished">「%2」のトラック %1 は %3 で、字幕ファイルには保存できません。代わりに映像に焼き込んでください。</translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation type="unfinished">「%1」を保存中</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">キャンセル</translation>
    </message>
    <message>
        <source>Save a track</source>
        <translation type="unfinished">トラックの保存</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SessionStore</name>
    <message>
        <source>The last list of films, &quot;%1&quot;, cannot be read, so nothing is saved this time: rename or remove that file.</source>
        <translation type="unfinished">前回の一覧「%1」を読み込めないため、今回は何も保存されません。そのファイルの名前を変えるか、削除してください。</translation>
    </message>
    <message>
        <source>The last list of films was written by a newer version of the program; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">前回の一覧は新しいバージョンのプログラムで書かれたもので、「%1」として残してあります。映画を開き直してください。</translation>
    </message>
    <message>
        <source>The last list of films is damaged; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">前回の一覧は壊れているため、「%1」として残してあります。映画を開き直してください。</translation>
    </message>
    <message>
        <source>The list of films could not be saved in &quot;%1&quot; (%2): check that you may write there.</source>
        <translation type="unfinished">映画の一覧を「%1」に保存できませんでした (%2)。書き込み権限を確認してください。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished">設定</translation>
    </message>
    <message>
        <source>Online service</source>
        <translation type="unfinished">オンラインサービス</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished">統計</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">キャンセル</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsOnlinePage</name>
    <message>
        <source>version 1 of OpenSubtitles, because an API key is set.</source>
        <translation type="unfinished">OpenSubtitles のバージョン 1（API キーが設定されているため）。</translation>
    </message>
    <message>
        <source>version 1 of OpenSubtitles, because the configuration file says so. It answers nobody without an API key: enter one below.</source>
        <translation type="unfinished">OpenSubtitles のバージョン 1（設定ファイルの指定による）。API キーがないと応答しません。下に入力してください。</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because the configuration file says so. The API key is not used.</source>
        <translation type="unfinished">OpenSubtitles の旧インターフェイス（設定ファイルの指定による）。API キーは使われません。</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because no API key is set.</source>
        <translation type="unfinished">OpenSubtitles の旧インターフェイス（API キーが設定されていないため）。</translation>
    </message>
    <message>
        <source>API &amp;key:</source>
        <translation type="unfinished">API キー(&amp;K):</translation>
    </message>
    <message>
        <source>API key</source>
        <translation type="unfinished">API キー</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation type="unfinished">表示(&amp;S)</translation>
    </message>
    <message>
        <source>Fetched &amp;files:</source>
        <translation type="unfinished">ダウンロード先(&amp;F):</translation>
    </message>
    <message>
        <source>Folder for fetched files</source>
        <translation type="unfinished">ダウンロードしたファイルのフォルダー</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation type="unfinished">選択(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Usual folder</source>
        <translation type="unfinished">既定のフォルダー(&amp;U)</translation>
    </message>
    <message>
        <source>Version 1:</source>
        <translation type="unfinished">バージョン 1:</translation>
    </message>
    <message>
        <source>Older interface:</source>
        <translation type="unfinished">旧インターフェイス:</translation>
    </message>
    <message>
        <source>The addresses are set in the configuration file &quot;%1&quot;.</source>
        <translation type="unfinished">アドレスは設定ファイル「%1」で指定します。</translation>
    </message>
    <message>
        <source>In use: %1</source>
        <translation type="unfinished">使用中: %1</translation>
    </message>
    <message>
        <source>From the next start of the program on: %1</source>
        <translation type="unfinished">次回のプログラム起動時から: %1</translation>
    </message>
    <message>
        <source>Folder for fetched subtitle files</source>
        <translation type="unfinished">ダウンロードした字幕ファイルのフォルダー</translation>
    </message>
    <message>
        <source>It comes from the account pages of opensubtitles.com, is kept in the configuration file, and is used from the next start on.</source>
        <translation type="unfinished">opensubtitles.com のアカウントページで取得します。設定ファイルに保存され、次回の起動時から使われます。</translation>
    </message>
    <message>
        <source>The variable %1 of the environment sets it.</source>
        <translation type="unfinished">環境変数 %1 で指定されています。</translation>
    </message>
    <message>
        <source>This is no API key: a key has no blanks and no special characters. Copy it again.</source>
        <translation type="unfinished">これは API キーではありません。キーに空白や特殊文字は含まれません。もう一度コピーしてください。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsStatisticsPage</name>
    <message>
        <source>If you agree, the program counts how the online search is used: from where it is opened, which fields are filled in, how many searches find something, nothing or fail, and how many files are fetched. Names, folders and what you type are never recorded. The record stays on this computer; it is sent to nobody.</source>
        <translation type="unfinished">同意すると、オンライン検索の使われ方を数えます。どこから開かれたか、どの項目が入力されたか、何かが見つかった検索、何も見つからなかった検索、失敗した検索の数、ダウンロードしたファイルの数です。名前、フォルダー、入力内容は決して記録しません。記録はこのコンピューターに残り、誰にも送信されません。</translation>
    </message>
    <message>
        <source>&amp;Count how the online search is used</source>
        <translation type="unfinished">オンライン検索の使われ方を数える(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Recorded in &quot;%1&quot;:</source>
        <translation type="unfinished">「%1」の記録(&amp;R):</translation>
    </message>
    <message>
        <source>Nothing has been recorded.</source>
        <translation type="unfinished">何も記録されていません。</translation>
    </message>
    <message>
        <source>What has been recorded</source>
        <translation type="unfinished">記録された内容</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">削除(&amp;D)</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ShortcutsDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished">キーボードショートカット</translation>
    </message>
    <message>
        <source>In the list: subtitles of the film</source>
        <translation type="unfinished">一覧で: 映画の字幕</translation>
    </message>
    <message>
        <source>In the list: menu of the film</source>
        <translation type="unfinished">一覧で: 映画のメニュー</translation>
    </message>
    <message>
        <source>Close what is open</source>
        <translation type="unfinished">開いているものを閉じる</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpPane</name>
    <message>
        <source>Help with the text</source>
        <translation type="unfinished">テキストのヘルプ</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpTexts</name>
    <message>
        <source>The file itself says that it is %1.</source>
        <translation type="unfinished">ファイル自体が %1 だと示しています。</translation>
    </message>
    <message>
        <source>Detected: %1, certain.</source>
        <translation type="unfinished">検出: %1、確実。</translation>
    </message>
    <message>
        <source>Nothing tells the encoding; %1 is a guess.</source>
        <translation type="unfinished">文字コードの手がかりがありません。%1 は推測です。</translation>
    </message>
    <message>
        <source>Detected: %1, very sure (%2).</source>
        <translation type="unfinished">検出: %1、非常に確か (%2)。</translation>
    </message>
    <message>
        <source>Detected: %1, fairly sure (%2).</source>
        <translation type="unfinished">検出: %1、かなり確か (%2)。</translation>
    </message>
    <message>
        <source>Detected: %1, not sure (%2).</source>
        <translation type="unfinished">検出: %1、不確か (%2)。</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) cannot be read in this encoding and show as &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>%n バイトはこの文字コードでは読み込めず、「%1」と表示されます。</numerusform>
        </translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; is not installed; &quot;%2&quot; stands in.</source>
        <translation type="unfinished">フォント「%1」はインストールされていません。「%2」で代用します。</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">日本語</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation type="unfinished">中国語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">韓国語</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation type="unfinished">キリル文字</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">ギリシャ文字</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">ヘブライ文字</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">アラビア文字</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">タイ文字</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation type="unfinished">デーヴァナーガリー文字</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; lacks %n character(s) of this text (%2): &quot;%3&quot; stands in.</source>
        <translation type="unfinished">
            <numerusform>「%1」にはこのテキストの %n 文字 (%2) がありません。「%3」で代用します。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No installed font has %n character(s) of this text (%1); they show as empty boxes.</source>
        <translation type="unfinished">
            <numerusform>このテキストの %n 文字 (%1) は、どのフォントにもありません。空の四角で表示されます。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpView</name>
    <message>
        <source>It could also read:</source>
        <translation type="unfinished">次のようにも読めます:</translation>
    </message>
    <message>
        <source>First lines of the text</source>
        <translation type="unfinished">テキストの最初の行</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackActions</name>
    <message>
        <source>Quit while saving?</source>
        <translation type="unfinished">保存中ですが終了しますか？</translation>
    </message>
    <message>
        <source>A track is still being saved. Quitting cancels that, and no file is written.</source>
        <translation type="unfinished">トラックを保存しています。終了すると中止され、ファイルは作成されません。</translation>
    </message>
    <message>
        <source>Cancel saving and quit</source>
        <translation type="unfinished">保存を中止して終了</translation>
    </message>
    <message>
        <source>Go on saving</source>
        <translation type="unfinished">保存を続ける</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackMenu</name>
    <message>
        <source>&amp;Draw in</source>
        <translation type="unfinished">焼き込む(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">一覧から削除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Leave out of the output</source>
        <translation type="unfinished">出力から除外(&amp;L)</translation>
    </message>
    <message>
        <source>Language, &amp;title and marks...</source>
        <translation type="unfinished">言語、タイトル、印(&amp;T)...</translation>
    </message>
    <message>
        <source>&amp;Put back</source>
        <translation type="unfinished">戻す(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Save as a file...</source>
        <translation type="unfinished">ファイルとして保存(&amp;S)...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackPropertiesDialog</name>
    <message>
        <source>Subtitle track</source>
        <translation type="unfinished">字幕トラック</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished">言語(&amp;L):</translation>
    </message>
    <message>
        <source>Not stated</source>
        <translation type="unfinished">指定なし</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">言語</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation type="unfinished">タイトル(&amp;T):</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">タイトル</translation>
    </message>
    <message>
        <source>On by &amp;default</source>
        <translation type="unfinished">既定でオン(&amp;D)</translation>
    </message>
    <message>
        <source>Players show this track unless another one is chosen</source>
        <translation type="unfinished">別のトラックを選ばない限り、プレーヤーはこのトラックを表示します</translation>
    </message>
    <message>
        <source>&amp;Forced</source>
        <translation type="unfinished">強制(&amp;F)</translation>
    </message>
    <message>
        <source>Only what has to be read in any case: signs and foreign speech</source>
        <translation type="unfinished">必ず読む必要のあるものだけ: 看板や外国語の台詞</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">キャンセル</translation>
    </message>
    <message>
        <source>This language is not known: choose one from the list, or write its code, such as &quot;en&quot; or &quot;pt-br&quot;.</source>
        <translation type="unfinished">不明な言語です。一覧から選ぶか、「en」や「pt-br」のようなコードを入力してください。</translation>
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
        <translation type="unfinished">色 %1</translation>
    </message>
    <message>
        <source>Choose a color</source>
        <translation type="unfinished">色を選択</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Afrikaans</source>
        <translation type="unfinished">アフリカーンス語</translation>
    </message>
    <message>
        <source>Albanian</source>
        <translation type="unfinished">アルバニア語</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">アラビア文字</translation>
    </message>
    <message>
        <source>Aragonese</source>
        <translation type="unfinished">アラゴン語</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation type="unfinished">アルメニア語</translation>
    </message>
    <message>
        <source>Asturian</source>
        <translation type="unfinished">アストゥリアス語</translation>
    </message>
    <message>
        <source>Azerbaijani</source>
        <translation type="unfinished">アゼルバイジャン語</translation>
    </message>
    <message>
        <source>Basque</source>
        <translation type="unfinished">バスク語</translation>
    </message>
    <message>
        <source>Belarusian</source>
        <translation type="unfinished">ベラルーシ語</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation type="unfinished">ベンガル語</translation>
    </message>
    <message>
        <source>Bosnian</source>
        <translation type="unfinished">ボスニア語</translation>
    </message>
    <message>
        <source>Breton</source>
        <translation type="unfinished">ブルトン語</translation>
    </message>
    <message>
        <source>Bulgarian</source>
        <translation type="unfinished">ブルガリア語</translation>
    </message>
    <message>
        <source>Burmese</source>
        <translation type="unfinished">ミャンマー語</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation type="unfinished">カタロニア語</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation type="unfinished">中国語 (簡体字)</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation type="unfinished">中国語 (繁体字)</translation>
    </message>
    <message>
        <source>Chinese (Bilingual)</source>
        <translation type="unfinished">中国語 (2言語併記)</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation type="unfinished">クロアチア語</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation type="unfinished">チェコ語</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation type="unfinished">デンマーク語</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation type="unfinished">オランダ語</translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished">英語</translation>
    </message>
    <message>
        <source>Esperanto</source>
        <translation type="unfinished">エスペラント語</translation>
    </message>
    <message>
        <source>Estonian</source>
        <translation type="unfinished">エストニア語</translation>
    </message>
    <message>
        <source>Extremaduran</source>
        <translation type="unfinished">エストレマドゥーラ語</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation type="unfinished">フィンランド語</translation>
    </message>
    <message>
        <source>French</source>
        <translation type="unfinished">フランス語</translation>
    </message>
    <message>
        <source>Galician</source>
        <translation type="unfinished">ガリシア語</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation type="unfinished">ジョージア語</translation>
    </message>
    <message>
        <source>German</source>
        <translation type="unfinished">ドイツ語</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">ギリシャ文字</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">ヘブライ文字</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation type="unfinished">ヒンディー語</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation type="unfinished">ハンガリー語</translation>
    </message>
    <message>
        <source>Icelandic</source>
        <translation type="unfinished">アイスランド語</translation>
    </message>
    <message>
        <source>Indonesian</source>
        <translation type="unfinished">インドネシア語</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation type="unfinished">イタリア語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">日本語</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation type="unfinished">カンナダ語</translation>
    </message>
    <message>
        <source>Kazakh</source>
        <translation type="unfinished">カザフ語</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation type="unfinished">クメール語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">韓国語</translation>
    </message>
    <message>
        <source>Kurdish</source>
        <translation type="unfinished">クルド語</translation>
    </message>
    <message>
        <source>Latvian</source>
        <translation type="unfinished">ラトビア語</translation>
    </message>
    <message>
        <source>Lithuanian</source>
        <translation type="unfinished">リトアニア語</translation>
    </message>
    <message>
        <source>Luxembourgish</source>
        <translation type="unfinished">ルクセンブルク語</translation>
    </message>
    <message>
        <source>Macedonian</source>
        <translation type="unfinished">マケドニア語</translation>
    </message>
    <message>
        <source>Malay</source>
        <translation type="unfinished">マレー語</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation type="unfinished">マラヤーラム語</translation>
    </message>
    <message>
        <source>Manipuri</source>
        <translation type="unfinished">マニプリ語</translation>
    </message>
    <message>
        <source>Mongolian</source>
        <translation type="unfinished">モンゴル語</translation>
    </message>
    <message>
        <source>Montenegrin</source>
        <translation type="unfinished">モンテネグロ語</translation>
    </message>
    <message>
        <source>Northern Sami</source>
        <translation type="unfinished">北サーミ語</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation type="unfinished">ノルウェー語</translation>
    </message>
    <message>
        <source>Occitan</source>
        <translation type="unfinished">オック語</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation type="unfinished">ペルシア語</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation type="unfinished">ポーランド語</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation type="unfinished">ポルトガル語</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation type="unfinished">ポルトガル語 (ブラジル)</translation>
    </message>
    <message>
        <source>Portuguese (Mozambique)</source>
        <translation type="unfinished">ポルトガル語 (モザンビーク)</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation type="unfinished">ルーマニア語</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation type="unfinished">ロシア語</translation>
    </message>
    <message>
        <source>Serbian</source>
        <translation type="unfinished">セルビア語</translation>
    </message>
    <message>
        <source>Sinhalese</source>
        <translation type="unfinished">シンハラ語</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation type="unfinished">スロバキア語</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation type="unfinished">スロベニア語</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation type="unfinished">スペイン語</translation>
    </message>
    <message>
        <source>Swahili</source>
        <translation type="unfinished">スワヒリ語</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation type="unfinished">スウェーデン語</translation>
    </message>
    <message>
        <source>Syriac</source>
        <translation type="unfinished">シリア語</translation>
    </message>
    <message>
        <source>Tagalog</source>
        <translation type="unfinished">タガログ語</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation type="unfinished">タミル語</translation>
    </message>
    <message>
        <source>Telugu</source>
        <translation type="unfinished">テルグ語</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">タイ文字</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation type="unfinished">トルコ語</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation type="unfinished">ウクライナ語</translation>
    </message>
    <message>
        <source>Urdu</source>
        <translation type="unfinished">ウルドゥー語</translation>
    </message>
    <message>
        <source>Uzbek</source>
        <translation type="unfinished">ウズベク語</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation type="unfinished">ベトナム語</translation>
    </message>
</context>
<context>
    <name>LanguageSelector</name>
    <message>
        <source>All languages</source>
        <translation type="unfinished">すべての言語</translation>
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
        <translation type="unfinished">オンライン字幕サービスが設定されていません。設定に API キーを追加してください。</translation>
    </message>
    <message>
        <source> (it says: &quot;%1&quot;)</source>
        <translation type="unfinished"> （応答：「%1」）</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again after %3.</source>
        <translation type="unfinished">%1 でのダウンロード回数を使い切りました%2。%3 以降にもう一度ダウンロードしてください。</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again in %3.</source>
        <translation type="unfinished">%1 でのダウンロード回数を使い切りました%2。次の時間が過ぎてからもう一度ダウンロードしてください: %3。</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again tomorrow.</source>
        <translation type="unfinished">%1 でのダウンロード回数を使い切りました%2。明日もう一度ダウンロードしてください。</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; wait %3 s and try again.</source>
        <translation type="unfinished">%1 への要求が多すぎます%2。%3 秒待ってからもう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; try again in a minute.</source>
        <translation type="unfinished">%1 への要求が多すぎます%2。1 分後にもう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 did not accept the API key%2; set a valid one in the settings, as KORVEX_OPENSUBTITLES_API_KEY in the environment or as api_key in the configuration file.</source>
        <translation type="unfinished">%1 は API キーを受け付けませんでした%2。有効なキーを設定画面、環境変数 KORVEX_OPENSUBTITLES_API_KEY、または設定ファイルの api_key に設定してください。</translation>
    </message>
    <message>
        <source>%1 sent something else in place of the subtitle%2; choose another one, or try again later.</source>
        <translation type="unfinished">%1 から字幕ではないものが送られてきました%2。別の字幕を選ぶか、しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 is down or overloaded at the moment%2; try again later.</source>
        <translation type="unfinished">%1 は現在停止中か混雑しています%2。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The subtitle could not be unpacked or stored in &quot;%1&quot;%2; choose another subtitle, or make sure that the folder may be written and has room.</source>
        <translation type="unfinished">字幕を展開できないか、「%1」に保存できませんでした%2。別の字幕を選ぶか、フォルダーに書き込めて空きがあることを確認してください。</translation>
    </message>
    <message>
        <source>%1 refused the request%2; ask for something else, or try again later.</source>
        <translation type="unfinished">%1 は要求を拒否しました%2。別のものを指定するか、しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 points to other addresses without end, or to one that may not be used%2; check the address that is set for it, or try again later.</source>
        <translation type="unfinished">%1 は別のアドレスへの転送を繰り返すか、使えないアドレスに転送しています%2。設定されたアドレスを確認するか、しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The answer of %1 was empty, broke off or was too large; try again later.</source>
        <translation type="unfinished">%1 の応答が空か、途中で切れたか、大きすぎました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The answer of %1 cannot be used%2; try again later.</source>
        <translation type="unfinished">%1 の応答は使えません%2。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 could not answer%2; try again later.</source>
        <translation type="unfinished">%1 は応答できませんでした%2。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 could not answer%2; check the address that is set for it and the proxy, or try again later.</source>
        <translation type="unfinished">%1 は応答できませんでした%2。設定されたアドレスとプロキシを確認するか、しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The connection to %1 failed%2; check the proxy and whether the service&apos;s certificate is valid, or try again later.</source>
        <translation type="unfinished">%1 への接続に失敗しました%2。プロキシとサービスの証明書が有効かどうかを確認するか、しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Another search or download has not ended yet; try again in a moment.</source>
        <translation type="unfinished">別の検索またはダウンロードがまだ終わっていません。少し待ってからもう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 cannot look for this%2; type a title or an IMDb id.</source>
        <translation type="unfinished">%1 ではこれを検索できません%2。タイトルか IMDb ID を入力してください。</translation>
    </message>
    <message>
        <source>%1 cannot search in this way; look for a title or an IMDb id.</source>
        <translation type="unfinished">%1 ではこの方法で検索できません。タイトルか IMDb ID で検索してください。</translation>
    </message>
    <message>
        <source>%1 cannot be reached or did not answer in time; check the connection to the network and try again.</source>
        <translation type="unfinished">%1 に接続できないか、時間内に応答がありませんでした。ネットワーク接続を確認してもう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>OnlineSearchDialogPresenter</name>
    <message>
        <source>same file</source>
        <translation type="unfinished">同じファイル</translation>
    </message>
    <message>
        <source>same release group</source>
        <translation type="unfinished">同じリリースグループ</translation>
    </message>
    <message>
        <source>same source</source>
        <translation type="unfinished">同じソース</translation>
    </message>
    <message>
        <source>same resolution</source>
        <translation type="unfinished">同じ解像度</translation>
    </message>
    <message>
        <source>same episode</source>
        <translation type="unfinished">同じエピソード</translation>
    </message>
    <message>
        <source>another episode</source>
        <translation type="unfinished">別のエピソード</translation>
    </message>
    <message>
        <source>another film</source>
        <translation type="unfinished">別の映画</translation>
    </message>
    <message>
        <source>Type a title or an IMDb id to search for.</source>
        <translation type="unfinished">検索するタイトルか IMDb ID を入力してください。</translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and digits, or leave it empty.</source>
        <translation type="unfinished">これは IMDb ID ではありません。「tt」と数字を入力するか、空欄にしてください。</translation>
    </message>
    <message>
        <source>The season is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">シーズンが数字ではありません。数字を入力するか、空欄にしてください。</translation>
    </message>
    <message>
        <source>The episode is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">エピソードが数字ではありません。数字を入力するか、空欄にしてください。</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">検索しています...</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n found so far</source>
        <translation type="unfinished">
            <numerusform>検索しています... これまでに %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>字幕が %n 件見つかりました。</numerusform>
        </translation>
    </message>
    <message>
        <source>check the spelling of the title</source>
        <translation type="unfinished">タイトルのつづりの確認</translation>
    </message>
    <message>
        <source>type the title</source>
        <translation type="unfinished">タイトルの入力</translation>
    </message>
    <message>
        <source>type the film&apos;s IMDb id</source>
        <translation type="unfinished">映画の IMDb ID の入力</translation>
    </message>
    <message>
        <source>check the IMDb id</source>
        <translation type="unfinished">IMDb ID の確認</translation>
    </message>
    <message>
        <source>leave out the season and the episode</source>
        <translation type="unfinished">シーズンとエピソードの省略</translation>
    </message>
    <message>
        <source>choose other languages</source>
        <translation type="unfinished">他の言語の選択</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished">%1、または%2</translation>
    </message>
    <message>
        <source>No subtitles were found: %1.</source>
        <translation type="unfinished">字幕が見つかりませんでした。次をお試しください：%1。</translation>
    </message>
    <message numerus="yes">
        <source>Downloading %n subtitle(s)...</source>
        <translation type="unfinished">
            <numerusform>字幕 %n 件をダウンロードしています...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) added to the film.</source>
        <translation type="unfinished">
            <numerusform>字幕 %n 件を映画に追加しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n download(s) left.</source>
        <translation type="unfinished">
            <numerusform>残りのダウンロードは %n 回です。</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for the last request to end...</source>
        <translation type="unfinished">最後の要求の終了を待っています...</translation>
    </message>
    <message>
        <source>The search was cancelled.</source>
        <translation type="unfinished">検索をキャンセルしました。</translation>
    </message>
    <message numerus="yes">
        <source>The search was cancelled; %n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>検索をキャンセルしました。字幕は %n 件見つかりました。</numerusform>
        </translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation type="unfinished">ダウンロードをキャンセルしました。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished">%1、%2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation type="unfinished">%1%2</translation>
    </message>
</context>
<context>
    <name>ResultList</name>
    <message>
        <source>Machine</source>
        <comment>short mark</comment>
        <translation type="unfinished">機械翻訳</translation>
    </message>
    <message>
        <source>Translated by a machine</source>
        <translation type="unfinished">機械で翻訳されたもの</translation>
    </message>
    <message>
        <source>Foreign</source>
        <comment>short mark</comment>
        <translation type="unfinished">外国語</translation>
    </message>
    <message>
        <source>Only what is spoken in a foreign language</source>
        <translation type="unfinished">外国語で話される部分だけ</translation>
    </message>
    <message>
        <source>HI</source>
        <comment>short mark</comment>
        <translation type="unfinished">聴覚障害</translation>
    </message>
    <message>
        <source>For the hearing impaired: sounds are described</source>
        <translation type="unfinished">聴覚障害者向け：音も説明されています</translation>
    </message>
    <message>
        <source>Trusted</source>
        <comment>short mark</comment>
        <translation type="unfinished">信頼</translation>
    </message>
    <message>
        <source>From an uploader whom the service trusts</source>
        <translation type="unfinished">サービスが信頼する投稿者によるもの</translation>
    </message>
    <message>
        <source>CD %1/%2</source>
        <comment>short mark</comment>
        <translation type="unfinished">CD %1/%2</translation>
    </message>
    <message>
        <source>Part %1 of %2; all parts are downloaded</source>
        <translation type="unfinished">%2 パート中のパート %1。すべてのパートをダウンロードします</translation>
    </message>
    <message>
        <source>HD</source>
        <comment>short mark</comment>
        <translation type="unfinished">HD</translation>
    </message>
    <message>
        <source>Made for a release in high definition</source>
        <translation type="unfinished">高解像度のリリース用</translation>
    </message>
    <message>
        <source>Made for this file or release</source>
        <translation type="unfinished">このファイルまたはリリース用</translation>
    </message>
    <message>
        <source>For this film, perhaps for another cut of it</source>
        <translation type="unfinished">この映画用。ただし別の編集版向けかもしれません</translation>
    </message>
    <message>
        <source>For another film or episode</source>
        <translation type="unfinished">別の映画またはエピソード用</translation>
    </message>
    <message>
        <source>It is not known how well it fits</source>
        <translation type="unfinished">どの程度合うかは不明です</translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished">名前</translation>
    </message>
    <message>
        <source>Match</source>
        <translation type="unfinished">一致</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">言語</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation type="unfinished">印</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation type="unfinished">ダウンロード数</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation type="unfinished">評価</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation type="unfinished">投稿日</translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished">形式</translation>
    </message>
    <message>
        <source>Release: %1</source>
        <translation type="unfinished">リリース: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of 10, by %n vote(s)</source>
        <translation type="unfinished">
            <numerusform>10 点中 %1 点、%n 票</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SubtitleCollection</name>
    <message>
        <source>Subtitle tracks</source>
        <translation type="unfinished">字幕トラック</translation>
    </message>
    <message>
        <source>Current choice</source>
        <translation type="unfinished">現在の選択</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">字幕なし</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">すべてのトラックを残す (ソフト字幕)</translation>
    </message>
    <message>
        <source>There are no subtitle tracks yet. Add a subtitle file first.</source>
        <translation type="unfinished">字幕トラックがまだありません。先に字幕ファイルを追加してください。</translation>
    </message>
    <message>
        <source>The chosen output format cannot carry these tracks. Choose another format, or burn one track in.</source>
        <translation type="unfinished">選択した出力形式にはこれらのトラックを入れられません。別の形式を選ぶか、1 つを焼き込んでください。</translation>
    </message>
    <message>
        <source>Save this track to a file (Ctrl+S)</source>
        <translation type="unfinished">このトラックをファイルに保存 (Ctrl+S)</translation>
    </message>
    <message>
        <source>Save to a file: %1</source>
        <translation type="unfinished">ファイルに保存: %1</translation>
    </message>
</context>
<context>
    <name>SubtitleCollectionInteractor</name>
    <message>
        <source>No subtitles were found in &quot;%1&quot;: take it out of the list and choose an SRT, ASS or SSA file.</source>
        <translation type="unfinished">「%1」に字幕が見つかりませんでした。一覧から外し、SRT、ASS、SSA のいずれかのファイルを選んでください。</translation>
    </message>
</context>
<context>
    <name>SubtitleSettings</name>
    <message>
        <source>Auto</source>
        <translation type="unfinished">自動</translation>
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
        <translation type="unfinished">中央・東ヨーロッパ言語 (Windows-1250)</translation>
    </message>
    <message>
        <source>Russian (KOI8-R)</source>
        <translation type="unfinished">ロシア語 (KOI8-R)</translation>
    </message>
    <message>
        <source>Ukrainian, Belarusian (KOI8-U/RU)</source>
        <translation type="unfinished">ウクライナ語、ベラルーシ語 (KOI8-U/RU)</translation>
    </message>
    <message>
        <source>Esperanto, Galician, Maltese, Turkish (ISO-8859-3)</source>
        <translation type="unfinished">エスペラント、ガリシア語、マルタ語、トルコ語 (ISO-8859-3)</translation>
    </message>
    <message>
        <source>Modern Greek (ISO-8859-7)</source>
        <translation type="unfinished">現代ギリシャ語 (ISO-8859-7)</translation>
    </message>
    <message>
        <source>Hebrew charsets (ISO-8859-8)</source>
        <translation type="unfinished">ヘブライ語 (ISO-8859-8)</translation>
    </message>
    <message>
        <source>Turkish (ISO-8859-9)</source>
        <translation type="unfinished">トルコ語 (ISO-8859-9)</translation>
    </message>
    <message>
        <source>Baltic (ISO-8859-13)</source>
        <translation type="unfinished">バルト諸語 (ISO-8859-13)</translation>
    </message>
    <message>
        <source>Western European Languages with Euro (ISO-8859-15)</source>
        <translation type="unfinished">西ヨーロッパ言語・ユーロ記号付き (ISO-8859-15)</translation>
    </message>
    <message>
        <source>Japanese charsets (SHIFT-JIS/CP932)</source>
        <translation type="unfinished">日本語 (SHIFT-JIS/CP932)</translation>
    </message>
    <message>
        <source>Simplified Chinese charset (CP936)</source>
        <translation type="unfinished">簡体字中国語 (CP936)</translation>
    </message>
    <message>
        <source>Traditional Chinese charset (BIG5)</source>
        <translation type="unfinished">繁体字中国語 (BIG5)</translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished">既定</translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished">上</translation>
    </message>
    <message>
        <source>Vertical center</source>
        <translation type="unfinished">上下中央</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished">下</translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished">左</translation>
    </message>
    <message>
        <source>Horizontal center</source>
        <translation type="unfinished">左右中央</translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished">右</translation>
    </message>
</context>
<context>
    <name>TimeTexts</name>
    <message>
        <source>less than a minute left</source>
        <translation type="unfinished">残り 1 分未満</translation>
    </message>
    <message numerus="yes">
        <source>%n min left</source>
        <translation type="unfinished">
            <numerusform>残り %n 分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h left</source>
        <translation type="unfinished">
            <numerusform>残り %n 時間</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 h %n min left</source>
        <translation type="unfinished">
            <numerusform>残り %1 時間 %n 分</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WarningWords</name>
    <message>
        <source>Track %1 of &quot;%2&quot; (a second picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">「%2」のトラック %1（2 つ目の映像、%3）は、%4 に入れられないため除外しました。</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a cover picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">「%2」のトラック %1（カバー画像、%3）は、%4 に入れられないため除外しました。</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a further sound track, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">「%2」のトラック %1（別の音声トラック、%3）は、%4 に入れられないため除外しました。</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a sound track, %3) was left out, because nothing in it can be read.</source>
        <translation type="unfinished">「%2」のトラック %1（音声トラック、%3）は、読み込める内容がないため除外しました。</translation>
    </message>
    <message>
        <source>The picture of &quot;%1&quot; was encoded anew, because %2 cannot hold it as it is.</source>
        <translation type="unfinished">「%1」の映像は、そのままでは %2 に入れられないため再エンコードしました。</translation>
    </message>
    <message>
        <source>Files attached to &quot;%1&quot;, for example fonts, were left out, because %2 cannot hold them.</source>
        <translation type="unfinished">「%1」に添付されたファイル（フォントなど）は、%2 に入れられないため除外しました。</translation>
    </message>
    <message>
        <source>A subtitle track was left out, because its file is missing.</source>
        <translation type="unfinished">ファイルがないため、字幕トラックを 1 つ除外しました。</translation>
    </message>
    <message>
        <source>The subtitle track &quot;%1&quot; was left out, because its file is missing.</source>
        <translation type="unfinished">ファイルがないため、字幕トラック「%1」を除外しました。</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of &quot;%1&quot; could not be read as %2 and show as &quot;%3&quot;: check the encoding.</source>
        <translation type="unfinished">
            <numerusform>「%1」の %n バイトは %2 として読めず、「%3」と表示されます。文字コードを確認してください。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>「%1」の時間が使えない字幕 %n 個を除外しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; of no duration were left out.</source>
        <translation type="unfinished">
            <numerusform>「%1」の長さのない字幕 %n 個を除外しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Some pictures of &quot;%1&quot; are damaged; they may be missing or look wrong.</source>
        <translation type="unfinished">「%1」の一部の画像が壊れています。欠けたり、正しく表示されないことがあります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; breaks off after %2 of %3, and so does the new film.</source>
        <translation type="unfinished">「%1」は %3 のうち %2 で途切れているため、新しい映画もそこで終わります。</translation>
    </message>
</context>
</TS>
