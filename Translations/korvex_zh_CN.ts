<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n film(s) converted.</source>
        <translation type="unfinished">
            <numerusform>已转换 %n 部影片。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) with remarks: %1</source>
        <translation type="unfinished">
            <numerusform>%n 部影片有说明：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) could not be converted: %1</source>
        <translation type="unfinished">
            <numerusform>%n 部影片无法转换：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) cancelled.</source>
        <translation type="unfinished">
            <numerusform>已取消 %n 部影片。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConversionTexts</name>
    <message>
        <source>%1 holds no cues and was left out.</source>
        <translation type="unfinished">%1不含任何字幕，未输出。</translation>
    </message>
    <message>
        <source>%1 goes into %2 as %3.</source>
        <translation type="unfinished">%1将以 %3 的形式放入 %2。</translation>
    </message>
    <message>
        <source>%1 was read as %2.</source>
        <translation type="unfinished">%1已按 %2 读取。</translation>
    </message>
    <message>
        <source>%1 was moved by %2 s.</source>
        <translation type="unfinished">%1已移动 %2 秒。</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of %1 could not be read as text.</source>
        <translation type="unfinished">
            <numerusform>%1中有 %n 个字节无法读取为文本。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>略去 %1中 %n 条没有可用时间的字幕。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of %1 would never be shown and were left out.</source>
        <translation type="unfinished">
            <numerusform>%1中有 %n 条字幕永远不会显示，已略去。</numerusform>
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
        <translation type="unfinished">选择字幕</translation>
    </message>
    <message>
        <source>Subtitles encoding</source>
        <translation type="unfinished">字幕编码</translation>
    </message>
    <message>
        <source>Aligment</source>
        <translation type="unfinished">对齐方式</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation type="unfinished">同步</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">添加字幕</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">保留所有轨道（软字幕）</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">选择文件</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">查找文件</translation>
    </message>
    <message>
        <source>Relocating subtitles saves all subtitle tracks. You can select them in player.&lt;br&gt;&lt;br&gt;Select one of track to hardsub them.</source>
        <translation type="unfinished">转移字幕会保存所有字幕轨道。您可以在播放器中选择它们。&lt;br&gt;&lt;br&gt;选择其中一条轨道即可将其嵌入画面。</translation>
    </message>
    <message>
        <source>Hastened</source>
        <translation type="unfinished">提前</translation>
    </message>
    <message>
        <source>Delayed</source>
        <translation type="unfinished">延后</translation>
    </message>
    <message>
        <source>Help on subtitles</source>
        <translation type="unfinished">字幕帮助</translation>
    </message>
    <message>
        <source>Position shift</source>
        <translation type="unfinished">位置偏移</translation>
    </message>
    <message>
        <source>Synchronization offset in seconds</source>
        <translation type="unfinished">同步偏移（秒）</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation type="unfinished">文字颜色</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation type="unfinished">描边颜色</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation type="unfinished">字体：%1</translation>
    </message>
</context>
<context>
    <name>ErrorClauses</name>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished">它是文件夹</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="unfinished">它不是文件</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation type="unfinished">它大于 %1 字节</translation>
    </message>
    <message>
        <source>its header cannot be read</source>
        <translation type="unfinished">无法读取其文件头</translation>
    </message>
    <message>
        <source>nothing in it can be read</source>
        <translation type="unfinished">其中没有可读取的内容</translation>
    </message>
    <message>
        <source>it holds no subtitles</source>
        <translation type="unfinished">其中没有字幕</translation>
    </message>
    <message>
        <source>it does not hold exactly one subtitle track</source>
        <translation type="unfinished">其中不是恰好一条字幕轨道</translation>
    </message>
    <message>
        <source>it has no picture</source>
        <translation type="unfinished">它没有画面</translation>
    </message>
    <message>
        <source>it has no picture that subtitles could be drawn into</source>
        <translation type="unfinished">它没有可嵌入字幕的画面</translation>
    </message>
    <message>
        <source>the size of its picture is not known</source>
        <translation type="unfinished">其画面尺寸未知</translation>
    </message>
    <message>
        <source>the picture has no usable size</source>
        <translation type="unfinished">画面尺寸不可用</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation type="unfinished">其中没有可解码的画面</translation>
    </message>
    <message>
        <source>there is no decoder for it</source>
        <translation type="unfinished">没有可用的解码器</translation>
    </message>
    <message>
        <source>there is no decoder for track %1</source>
        <translation type="unfinished">轨道 %1 没有可用的解码器</translation>
    </message>
    <message>
        <source>its decoder refuses the stream: %1</source>
        <translation type="unfinished">解码器拒绝该流：%1</translation>
    </message>
    <message>
        <source>its decoder does not know the options %1</source>
        <translation type="unfinished">解码器不识别选项 %1</translation>
    </message>
    <message>
        <source>its encoder refuses the sound: %1</source>
        <translation type="unfinished">编码器拒绝该声音：%1</translation>
    </message>
    <message>
        <source>its encoder refuses the picture (%1): %2</source>
        <translation type="unfinished">编码器拒绝该画面 (%1)：%2</translation>
    </message>
    <message>
        <source>the encoder here is %1</source>
        <translation type="unfinished">此处的编码器是 %1</translation>
    </message>
    <message>
        <source>there is no encoder preset &quot;%1&quot;</source>
        <translation type="unfinished">没有编码器预设“%1”</translation>
    </message>
    <message>
        <source>the text encoding &quot;%1&quot; is not known</source>
        <translation type="unfinished">文本编码“%1”未知</translation>
    </message>
    <message>
        <source>the text renderer could not be set up</source>
        <translation type="unfinished">无法准备文本渲染器</translation>
    </message>
    <message>
        <source>it names a folder</source>
        <translation type="unfinished">它指向文件夹</translation>
    </message>
    <message>
        <source>it is a device or a pipe, not a file</source>
        <translation type="unfinished">它是设备或管道，不是文件</translation>
    </message>
    <message>
        <source>a .%1 file</source>
        <translation type="unfinished">.%1 文件</translation>
    </message>
    <message>
        <source>save it as .%1 instead</source>
        <translation type="unfinished">请改存为 .%1</translation>
    </message>
    <message>
        <source>it consists of pictures, so save it as .%1</source>
        <translation type="unfinished">它由图片组成，请存为 .%1</translation>
    </message>
    <message>
        <source>the encoder libx264 is missing</source>
        <translation type="unfinished">缺少编码器 libx264</translation>
    </message>
    <message>
        <source>subtitles can be switchable or drawn in, not both</source>
        <translation type="unfinished">字幕只能可切换或嵌入，不能两者兼有</translation>
    </message>
    <message>
        <source>the quality goes from 0 to 51</source>
        <translation type="unfinished">质量范围为 0 到 51</translation>
    </message>
    <message>
        <source>the chosen format</source>
        <translation type="unfinished">所选格式</translation>
    </message>
    <message>
        <source>draw it in</source>
        <translation type="unfinished">请将其嵌入画面</translation>
    </message>
    <message>
        <source>choose Matroska or draw it in</source>
        <translation type="unfinished">请选择 Matroska 或将其嵌入画面</translation>
    </message>
    <message>
        <source>draw it in or leave it out</source>
        <translation type="unfinished">请将其嵌入画面或不输出它</translation>
    </message>
    <message>
        <source>you may not do this</source>
        <translation type="unfinished">权限不足</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation type="unfinished">磁盘是只读的</translation>
    </message>
    <message>
        <source>the disk could not be read or written</source>
        <translation type="unfinished">无法读写磁盘</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation type="unfinished">没有这样的文件或文件夹</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation type="unfinished">名称过长</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation type="unfinished">内存不足</translation>
    </message>
    <message>
        <source>it holds data that make no sense</source>
        <translation type="unfinished">其中含有无意义的数据</translation>
    </message>
</context>
<context>
    <name>ErrorWords</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation type="unfinished">“%1”</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot;</source>
        <translation type="unfinished">“%2”的轨道 %1</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no track %2: choose another track.</source>
        <translation type="unfinished">文件“%1”没有轨道 %2：请选择其他轨道。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no subtitle track: choose another file.</source>
        <translation type="unfinished">文件“%1”没有字幕轨道：请选择其他文件。</translation>
    </message>
    <message>
        <source>choose another format, draw it in or leave it out</source>
        <translation type="unfinished">请选择其他格式、将其嵌入画面或不输出它</translation>
    </message>
    <message>
        <source>%1 is %2, which %3 cannot hold: %4.</source>
        <extracomment>%1: a track or a file, %2: its codec, %3: a format or a kind of file, %4: what to do</extracomment>
        <translation type="unfinished">%1是 %2，%3 无法容纳：%4。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read%2: choose another one, or check that you may open it.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">无法读取文件“%1”%2：请选择其他文件，或检查是否有权打开它。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is of no kind that can be used here%2: choose another one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">文件“%1”不是此处可用的类型%2：请选择其他文件。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged%2: try to get a complete copy.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">文件“%1”已损坏%2：请设法获取完整的副本。</translation>
    </message>
    <message>
        <source>The text of &quot;%1&quot; cannot be drawn, because no usable font is installed%2: install one, for example DejaVu Sans.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">未安装可用的字体，因此无法绘制“%1”的文字%2：请安装一种字体，例如 DejaVu Sans。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written%2: choose another folder, or check that you may write to this one.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">无法写入文件“%1”%2：请选择其他文件夹，或检查是否有权写入此文件夹。</translation>
    </message>
    <message>
        <source>A setting for &quot;%1&quot; is not valid%2: correct it and try again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">“%1”的一项设置无效%2：请更正后重试。</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; failed%2: try again, and report it if it fails again.</source>
        <extracomment>%2: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">处理“%1”失败%2：请重试，如再次失败请报告此问题。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist any more: choose another one.</source>
        <translation type="unfinished">文件“%1”已不存在：请选择其他文件。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty: choose another one.</source>
        <translation type="unfinished">文件“%1”是空的：请选择其他文件。</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is not a subtitle track: choose another one.</source>
        <translation type="unfinished">“%2”的轨道 %1 不是字幕轨道：请选择其他轨道。</translation>
    </message>
    <message>
        <source>The codec of &quot;%1&quot;, %2, cannot be used here%3: choose another file or another format.</source>
        <extracomment>%2: a codec, %3: a reason in brackets or nothing</extracomment>
        <translation type="unfinished">“%1”的编解码器 %2 在此无法使用%3：请选择其他文件或其他格式。</translation>
    </message>
    <message>
        <source>The format of &quot;%1&quot; is not known%2: choose another one.</source>
        <extracomment>%2: what was asked for, in brackets, or nothing</extracomment>
        <translation type="unfinished">“%1”的格式未知%2：请选择其他格式。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has neither picture nor sound: choose another one.</source>
        <translation type="unfinished">文件“%1”既没有画面也没有声音：请选择其他文件。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already: choose another name.</source>
        <translation type="unfinished">文件“%1”已存在：请选择其他名称。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is being read, so it cannot be written: choose another name.</source>
        <translation type="unfinished">文件“%1”正被读取，因此无法写入：请选择其他名称。</translation>
    </message>
    <message>
        <source>The folder of &quot;%1&quot; does not exist: create it, or choose another one.</source>
        <translation type="unfinished">“%1”所在的文件夹不存在：请创建它或选择其他文件夹。</translation>
    </message>
    <message>
        <source>The disk is full, so &quot;%1&quot; was not written: free some space, or choose another folder.</source>
        <translation type="unfinished">磁盘已满，因此未写入“%1”：请释放一些空间或选择其他文件夹。</translation>
    </message>
    <message>
        <source>Work on &quot;%1&quot; was cancelled: start it again if you want it.</source>
        <translation type="unfinished">“%1”的处理已取消：如有需要请重新开始。</translation>
    </message>
</context>
<context>
    <name>ExternalSubtitlesDialog</name>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">选择字幕</translation>
    </message>
    <message>
        <source>Subtitle files (%1)</source>
        <translation type="unfinished">字幕文件 (%1)</translation>
    </message>
</context>
<context>
    <name>FilmRow</name>
    <message>
        <source>Paused</source>
        <translation type="unfinished">已暂停</translation>
    </message>
    <message>
        <source>Preparing subtitles</source>
        <translation type="unfinished">正在准备字幕</translation>
    </message>
    <message>
        <source>Converting</source>
        <translation type="unfinished">正在转换</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished">正在等待</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation type="unfinished">已转换</translation>
    </message>
    <message numerus="yes">
        <source>Converted, with %n remark(s)</source>
        <translation type="unfinished">
            <numerusform>已转换，有 %n 条说明</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished">已取消</translation>
    </message>
    <message>
        <source>Reading the film</source>
        <translation type="unfinished">正在读取影片</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">在文件夹中显示</translation>
    </message>
    <message>
        <source>Converted, but it breaks off after %1 of %2</source>
        <translation type="unfinished">已转换，但在 %1 处中断（全长 %2）</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::AutocompleteField</name>
    <message>
        <source>Film or series</source>
        <translation type="unfinished">影片或剧集</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">标题</translation>
    </message>
    <message>
        <source>Suggested titles</source>
        <translation type="unfinished">建议的标题</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ImdbIdValidator</name>
    <message numerus="yes">
        <source>The IMDb id is too short: it has at least %n digit(s), as in tt0123456.</source>
        <translation type="unfinished">
            <numerusform>IMDb 编号太短：至少有 %n 位数字，如 tt0123456。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The IMDb id is too long: it has at most %n digit(s).</source>
        <translation type="unfinished">
            <numerusform>IMDb 编号太长：最多有 %n 位数字。</numerusform>
        </translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and a number, or the number alone, as in tt0123456.</source>
        <translation type="unfinished">这不是 IMDb 编号：请输入“tt”加数字，或只输入数字，如 tt0123456。</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ItemPanel</name>
    <message>
        <source>Subtitles of this film</source>
        <translation type="unfinished">此影片的字幕</translation>
    </message>
    <message>
        <source>Choose subtitles</source>
        <translation type="unfinished">选择字幕</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">添加字幕</translation>
    </message>
    <message>
        <source>Choose file</source>
        <translation type="unfinished">选择文件</translation>
    </message>
    <message>
        <source>Find file</source>
        <translation type="unfinished">查找文件</translation>
    </message>
    <message>
        <source>Apply to all files</source>
        <translation type="unfinished">应用到所有文件</translation>
    </message>
    <message>
        <source>Makes the same choice for every film of the list</source>
        <translation type="unfinished">为列表中的每部影片作相同的选择</translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished">完成</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelector</name>
    <message>
        <source>Languages: %1</source>
        <translation type="unfinished">语言：%1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::LanguageSelectorList</name>
    <message>
        <source>Languages to search in</source>
        <translation type="unfinished">要搜索的语言</translation>
    </message>
    <message>
        <source>Find a language</source>
        <translation type="unfinished">查找语言</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindow</name>
    <message>
        <source>Type a title and press &quot;Search&quot;.</source>
        <translation type="unfinished">请输入标题并按“搜索”。</translation>
    </message>
    <message>
        <source>Find subtitles</source>
        <translation type="unfinished">查找字幕</translation>
    </message>
    <message>
        <source>Find subtitles: %1</source>
        <translation type="unfinished">查找字幕：%1</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowFields</name>
    <message>
        <source>&amp;Title</source>
        <translation type="unfinished">标题(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Season</source>
        <translation type="unfinished">季(&amp;S)</translation>
    </message>
    <message>
        <source>Season</source>
        <translation type="unfinished">季</translation>
    </message>
    <message>
        <source>&amp;Episode</source>
        <translation type="unfinished">集(&amp;E)</translation>
    </message>
    <message>
        <source>Episode</source>
        <translation type="unfinished">集</translation>
    </message>
    <message>
        <source>&amp;Episode...</source>
        <translation type="unfinished">集(&amp;E)...</translation>
    </message>
    <message>
        <source>Search for an episode of a series</source>
        <translation type="unfinished">搜索剧集中的一集</translation>
    </message>
    <message>
        <source>Sea&amp;rch</source>
        <translation type="unfinished">搜索(&amp;R)</translation>
    </message>
    <message>
        <source>I&amp;MDb id</source>
        <translation type="unfinished">IMDb 编号(&amp;M)</translation>
    </message>
    <message>
        <source>IMDb id</source>
        <translation type="unfinished">IMDb 编号</translation>
    </message>
    <message>
        <source>The film&apos;s number at IMDb, as in tt0123456</source>
        <translation type="unfinished">影片在 IMDb 上的编号，如 tt0123456</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation type="unfinished">语言(&amp;L)</translation>
    </message>
    <message>
        <source>E&amp;xactly this file</source>
        <translation type="unfinished">仅限此文件(&amp;X)</translation>
    </message>
    <message>
        <source>Finds subtitles by the fingerprint of the file, whatever its name is</source>
        <translation type="unfinished">按文件指纹查找字幕，与文件名无关</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::OnlineSearchWindowStatus</name>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">正在搜索...</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation type="unfinished">正在下载...</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation type="unfinished">正在取消...</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found</source>
        <translation type="unfinished">
            <numerusform>找到 %n 个字幕</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">取消(&amp;C)</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Download %n</source>
        <translation type="unfinished">
            <numerusform>下载 %n 个(&amp;D)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Download</source>
        <translation type="unfinished">下载(&amp;D)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished">关闭</translation>
    </message>
</context>
<context>
    <name>Korvex::Converter::Subtitles::Details::ResultList</name>
    <message>
        <source>Smallest first; press to turn it round</source>
        <translation type="unfinished">从小到大；按下可反转</translation>
    </message>
    <message>
        <source>Largest first; press to turn it round</source>
        <translation type="unfinished">从大到小；按下可反转</translation>
    </message>
    <message numerus="yes">
        <source>None of the %n subtitle(s) found holds &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>找到的 %n 个字幕中没有包含“%1”的。</numerusform>
        </translation>
    </message>
    <message>
        <source>Best match</source>
        <translation type="unfinished">最佳匹配</translation>
    </message>
    <message>
        <source>Subtitles found</source>
        <translation type="unfinished">找到的字幕</translation>
    </message>
    <message>
        <source>Filter the list</source>
        <translation type="unfinished">筛选列表</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation type="unfinished">排序方式(&amp;O)</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation type="unfinished">排序方式</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::AboutDialog</name>
    <message>
        <source>About Korvex Subtitles</source>
        <translation type="unfinished">关于 Korvex Subtitles</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished">版本 %1</translation>
    </message>
    <message>
        <source>Converts films with their subtitles: as tracks that can be switched on and off, or drawn into the picture.

Free software under the GNU General Public License, version 3 or later. It comes without any warranty.

It is built on Qt, FFmpeg and libass.</source>
        <translation type="unfinished">转换影片及其字幕：作为可开关的轨道，或嵌入画面。

本程序是自由软件，采用 GNU 通用公共许可证第 3 版或更高版本。不提供任何担保。

基于 Qt、FFmpeg 和 libass 构建。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Actions</name>
    <message>
        <source>&amp;Add films...</source>
        <translation type="unfinished">添加影片(&amp;A)...</translation>
    </message>
    <message>
        <source>Add &amp;subtitles...</source>
        <translation type="unfinished">添加字幕(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished">退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Subtitles...</source>
        <translation type="unfinished">字幕(&amp;S)...</translation>
    </message>
    <message>
        <source>Apply these subtitles to &amp;all</source>
        <translation type="unfinished">将这些字幕应用到全部(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Copy as command line</source>
        <translation type="unfinished">复制为命令行(&amp;C)</translation>
    </message>
    <message>
        <source>Show &amp;output in folder</source>
        <translation type="unfinished">在文件夹中显示输出(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">从列表中移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Previous film</source>
        <translation type="unfinished">上一部影片(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next film</source>
        <translation type="unfinished">下一部影片(&amp;N)</translation>
    </message>
    <message>
        <source>Convert &amp;all</source>
        <translation type="unfinished">全部转换(&amp;A)</translation>
    </message>
    <message>
        <source>Convert this &amp;film</source>
        <translation type="unfinished">转换此影片(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">暂停(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Cancel this film</source>
        <translation type="unfinished">取消此影片(&amp;C)</translation>
    </message>
    <message>
        <source>Cancel a&amp;ll</source>
        <translation type="unfinished">全部取消(&amp;L)</translation>
    </message>
    <message>
        <source>Same as &amp;system</source>
        <translation type="unfinished">跟随系统(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished">浅色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished">深色(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation type="unfinished">键盘快捷键(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About Korvex Subtitles</source>
        <translation type="unfinished">关于 Korvex Subtitles(&amp;A)</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished">移除</translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished">添加</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation type="unfinished">设置(&amp;E)...</translation>
    </message>
    <message>
        <source>Find subtitles on&amp;line...</source>
        <translation type="unfinished">在线查找字幕(&amp;L)...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyReportDialog</name>
    <message>
        <source>Applied to all films</source>
        <translation type="unfinished">已应用到所有影片</translation>
    </message>
    <message>
        <source>Subtitles as in &quot;%1&quot;</source>
        <translation type="unfinished">字幕与“%1”相同</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ApplyToAll</name>
    <message>
        <source>&quot;%1&quot;: nothing changed, because the film cannot be read at the moment.</source>
        <translation type="unfinished">“%1”：未作更改，因为目前无法读取该影片。</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: nothing changed, because it has no track like %2 and no file of that name.</source>
        <translation type="unfinished">“%1”：未作更改，因为没有类似 %2 的轨道，也没有该名称的文件。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::CommandLineText</name>
    <message>
        <source>A picture that cannot be copied is encoded with --crf %1 there and %2 here.</source>
        <translation type="unfinished">无法复制的画面，在那里以 --crf %1 编码，在这里以 %2 编码。</translation>
    </message>
    <message>
        <source>The text cannot be moved by more than %1 lines.</source>
        <translation type="unfinished">文本移动不能超过 %1 行。</translation>
    </message>
    <message>
        <source>The font size %1 is not a whole number up to %2: the nearest one stands for it.</source>
        <translation type="unfinished">字号 %1 不是不超过 %2 的整数：改用最接近的值。</translation>
    </message>
    <message>
        <source>%1 keeps its own language, title and forced mark.</source>
        <translation type="unfinished">%1保留自己的语言、标题和强制标记。</translation>
    </message>
    <message>
        <source>%1 keeps the language, title and forced mark that its name states.</source>
        <translation type="unfinished">%1保留其名称所示的语言、标题和强制标记。</translation>
    </message>
    <message>
        <source>%1 goes out without its mark for the hard of hearing.</source>
        <translation type="unfinished">%1将不带听障标记输出。</translation>
    </message>
    <message>
        <source>Which of the film&apos;s own tracks players show by themselves stays as in the film.</source>
        <translation type="unfinished">播放器自动显示影片自带的哪些轨道，保持与影片一致。</translation>
    </message>
    <message>
        <source>The files have different encodings: all are read as they are detected.</source>
        <translation type="unfinished">各文件编码不同：全部按检测结果读取。</translation>
    </message>
    <message>
        <source>The tracks are moved by different offsets: none is moved.</source>
        <translation type="unfinished">各轨道的偏移不同：都不移动。</translation>
    </message>
    <message>
        <source>Text cannot be moved by more than a day.</source>
        <translation type="unfinished">文本移动不能超过一天。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionControl</name>
    <message>
        <source>Quit while converting?</source>
        <translation type="unfinished">正在转换，要退出吗？</translation>
    </message>
    <message>
        <source>Films are still being converted. Quitting cancels them; what is finished stays.</source>
        <translation type="unfinished">仍有影片在转换。退出会将其取消；已完成的会保留。</translation>
    </message>
    <message>
        <source>Cancel conversions and quit</source>
        <translation type="unfinished">取消转换并退出</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">继续转换</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ConversionQueue</name>
    <message>
        <source>The subtitles of &quot;%1&quot; cannot go out as chosen: choose them again.</source>
        <translation type="unfinished">“%1”的字幕无法按所选方式输出；请重新选择。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::DropHighlight</name>
    <message>
        <source>Drop films, folders or subtitle files</source>
        <translation type="unfinished">拖放影片、文件夹或字幕文件</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::EmptyPage</name>
    <message>
        <source>Drop films here or choose files</source>
        <translation type="unfinished">将影片拖到此处或选择文件</translation>
    </message>
    <message>
        <source>Folders work too. Subtitle files beside a film are found automatically.</source>
        <translation type="unfinished">也可以是文件夹。影片旁的字幕文件会自动找到。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FetchedSubtitles</name>
    <message>
        <source>&quot;%1&quot; was added to &quot;%2&quot;.</source>
        <translation type="unfinished">已将“%1”添加到“%2”。</translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle file(s) were added to &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>已将 %n 个字幕文件添加到“%1”。</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">撤销</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FileActions</name>
    <message>
        <source>&quot;%1&quot; needs a film to go with: add the film first.</source>
        <translation type="unfinished">“%1”需要对应的影片：请先添加影片。</translation>
    </message>
    <message>
        <source>No new film was found in &quot;%1&quot;: choose a folder with films.</source>
        <translation type="unfinished">在“%1”中没有找到新影片：请选择包含影片的文件夹。</translation>
    </message>
    <message>
        <source>Add films</source>
        <translation type="unfinished">添加影片</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished">字幕</translation>
    </message>
    <message>
        <source>All files</source>
        <translation type="unfinished">所有文件</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation type="unfinished">添加字幕</translation>
    </message>
    <message>
        <source>Where is &quot;%1&quot; now?</source>
        <translation type="unfinished">“%1”现在在哪里？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the list already: show another file, or remove &quot;%2&quot; from the list.</source>
        <translation type="unfinished">“%1”已在列表中：请指定其他文件，或将“%2”从列表中移除。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Film</name>
    <message>
        <source>The film &quot;%1&quot; is not there any more: show where it is now, or remove it from the list.</source>
        <translation type="unfinished">影片“%1”已不在原处：请指出它现在的位置，或将其从列表中移除。</translation>
    </message>
    <message>
        <source>Locate...</source>
        <translation type="unfinished">定位...</translation>
    </message>
    <message>
        <source>No subtitles, as it stands</source>
        <translation type="unfinished">目前无字幕</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmActions</name>
    <message>
        <source>Remove a film that is being converted?</source>
        <translation type="unfinished">要移除正在转换的影片吗？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is being converted. Removing it cancels its conversion.</source>
        <translation type="unfinished">“%1”正在转换。移除会取消其转换。</translation>
    </message>
    <message>
        <source>Cancel conversion and remove</source>
        <translation type="unfinished">取消转换并移除</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation type="unfinished">保留</translation>
    </message>
    <message>
        <source>No file manager could be started: the film is &quot;%1&quot;.</source>
        <translation type="unfinished">无法启动文件管理器：影片是“%1”。</translation>
    </message>
    <message>
        <source>The command line is in the clipboard.</source>
        <translation type="unfinished">命令行已复制到剪贴板。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmListPane</name>
    <message numerus="yes">
        <source>%n film(s)</source>
        <translation type="unfinished">
            <numerusform>%n 部影片</numerusform>
        </translation>
    </message>
    <message>
        <source>Films</source>
        <translation type="unfinished">影片</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::FilmWords</name>
    <message>
        <source>Track %1</source>
        <translation type="unfinished">轨道 %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n track(s)</source>
        <translation type="unfinished">
            <numerusform>全部 %n 条轨道</numerusform>
        </translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">无字幕</translation>
    </message>
    <message>
        <source>Drawn in: %1</source>
        <translation type="unfinished">嵌入画面：%1</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no subtitles that can be read: remove it.</source>
        <translation type="unfinished">文件“%1”不含可读取的字幕：请将其移除。</translation>
    </message>
    <message>
        <source>Remove the file</source>
        <translation type="unfinished">移除该文件</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: draw it in, or leave it out.</source>
        <translation type="unfinished">%1无法放入 %2：请将其嵌入画面或不输出它。</translation>
    </message>
    <message>
        <source>%1 cannot go into %2: choose %3, draw it in, or leave it out.</source>
        <translation type="unfinished">%1无法放入 %2：请选择 %3、将其嵌入画面或不输出它。</translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation type="unfinished">选择 %1</translation>
    </message>
    <message>
        <source>%1 cannot be moved in time while it stays a track: draw it in, set its offset to 0, or leave it out.</source>
        <translation type="unfinished">%1作为轨道时无法移动时间：请将其嵌入画面、将偏移设为 0 或不输出它。</translation>
    </message>
    <message>
        <source>Set its offset to 0</source>
        <translation type="unfinished">将偏移设为 0</translation>
    </message>
    <message>
        <source>%1 cannot be read in another encoding while it stays a track: draw it in, or leave it out.</source>
        <translation type="unfinished">%1作为轨道时无法以其他编码读取：请将其嵌入画面或不输出它。</translation>
    </message>
    <message>
        <source>Draw it in</source>
        <translation type="unfinished">嵌入画面</translation>
    </message>
    <message>
        <source>Leave it out</source>
        <translation type="unfinished">不输出</translation>
    </message>
    <message>
        <source>%1 is moved by %2 s.</source>
        <translation type="unfinished">%1将移动 %2 秒。</translation>
    </message>
    <message>
        <source>%1 is read as %2.</source>
        <translation type="unfinished">%1将按 %2 读取。</translation>
    </message>
    <message>
        <source>%1 goes into %2 as plain text and loses its styles.</source>
        <translation type="unfinished">%1将以纯文本写入 %2，并失去样式。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished">文件(&amp;F)</translation>
    </message>
    <message>
        <source>Fil&amp;m</source>
        <translation type="unfinished">影片(&amp;M)</translation>
    </message>
    <message>
        <source>Put left-out tracks &amp;back</source>
        <translation type="unfinished">恢复未输出的轨道(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation type="unfinished">转换(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished">视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished">主题(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished">语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished">帮助(&amp;H)</translation>
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
        <translation type="unfinished">上一条通知</translation>
    </message>
    <message>
        <source>Next notice</source>
        <translation type="unfinished">下一条通知</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation type="unfinished">关闭此通知</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::Notices</name>
    <message>
        <source>Try again</source>
        <translation type="unfinished">重试</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished">在文件夹中显示</translation>
    </message>
    <message>
        <source>Show the first that failed</source>
        <translation type="unfinished">显示第一个失败的影片</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::OutputBar</name>
    <message>
        <source>Same as source</source>
        <translation type="unfinished">与源相同</translation>
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
        <translation type="unfinished">如果没有嵌入内容且格式支持，画面将原样复制；否则以高质量编码。</translation>
    </message>
    <message>
        <source>The picture is encoded anew; differences are next to invisible.</source>
        <translation type="unfinished">画面重新编码；差别几乎看不出来。</translation>
    </message>
    <message>
        <source>The picture is encoded anew; good for watching, in a smaller file.</source>
        <translation type="unfinished">画面重新编码；适合观看，文件较小。</translation>
    </message>
    <message>
        <source>The picture is encoded anew into a small file; losses are visible.</source>
        <translation type="unfinished">画面重新编码为小文件；损失可见。</translation>
    </message>
    <message>
        <source>paused</source>
        <translation type="unfinished">已暂停</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished">%1，%2</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation type="unfinished">继续(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished">暂停(&amp;P)</translation>
    </message>
    <message>
        <source>Go on converting</source>
        <translation type="unfinished">继续转换</translation>
    </message>
    <message>
        <source>Wait until you resume</source>
        <translation type="unfinished">停下，直到您继续</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation type="unfinished">格式(&amp;F)</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation type="unfinished">输出格式</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation type="unfinished">质量(&amp;Q)</translation>
    </message>
    <message>
        <source>Quality of the picture</source>
        <translation type="unfinished">画面质量</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished">保存(&amp;S)</translation>
    </message>
    <message>
        <source>Beside each film</source>
        <translation type="unfinished">与影片同一位置</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation type="unfinished">选择文件夹...</translation>
    </message>
    <message>
        <source>&amp;Convert all</source>
        <translation type="unfinished">全部转换(&amp;C)</translation>
    </message>
    <message>
        <source>Convert all films that are ready</source>
        <translation type="unfinished">转换所有就绪的影片</translation>
    </message>
    <message>
        <source>Only &amp;this film</source>
        <translation type="unfinished">仅此影片(&amp;T)</translation>
    </message>
    <message>
        <source>Convert the film that is chosen in the list, and no other</source>
        <translation type="unfinished">只转换列表中选中的影片</translation>
    </message>
    <message>
        <source>Progress of all conversions</source>
        <translation type="unfinished">所有转换的进度</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation type="unfinished">取消(&amp;N)</translation>
    </message>
    <message>
        <source>Stop converting; half-written files are removed</source>
        <translation type="unfinished">停止转换；未写完的文件会被删除</translation>
    </message>
    <message>
        <source>Where to save</source>
        <translation type="unfinished">保存位置</translation>
    </message>
    <message>
        <source>Output folder: %1</source>
        <translation type="unfinished">输出文件夹：%1</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::PreviewPane</name>
    <message>
        <source>Drop films here.</source>
        <translation type="unfinished">将影片拖到此处。</translation>
    </message>
    <message>
        <source>The film is being read.</source>
        <translation type="unfinished">正在读取影片。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no picture, so there is nothing to see. Its sound can be converted.</source>
        <translation type="unfinished">“%1”没有画面，因此无可显示。其声音可以转换。</translation>
    </message>
    <message>
        <source>There are no subtitles. Add a subtitle file to see it drawn in.</source>
        <translation type="unfinished">没有字幕。请添加字幕文件以查看嵌入效果。</translation>
    </message>
    <message>
        <source>All tracks stay switchable. Choose one to see it drawn in.</source>
        <translation type="unfinished">所有轨道都保持可切换。请选择一条以查看嵌入效果。</translation>
    </message>
    <message>
        <source>Choose a track to see it drawn in.</source>
        <translation type="unfinished">请选择一条轨道以查看嵌入效果。</translation>
    </message>
    <message>
        <source>All tracks stay switchable.</source>
        <translation type="unfinished">所有轨道都保持可切换。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::PreviewStage</name>
    <message>
        <source>%1 (%2)</source>
        <comment>what a button does (its keys)</comment>
        <translation type="unfinished">%1（%2）</translation>
    </message>
    <message>
        <source>Previous cue</source>
        <translation type="unfinished">上一条字幕</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation type="unfinished">下一条字幕</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished">预览</translation>
    </message>
    <message>
        <source>Position in the film</source>
        <translation type="unfinished">影片中的位置</translation>
    </message>
    <message>
        <source>Where the cues are</source>
        <translation type="unfinished">字幕所在位置</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>position / length</comment>
        <translation type="unfinished">%1 / %2</translation>
    </message>
    <message>
        <source>The subtitles are being read.</source>
        <translation type="unfinished">正在读取字幕。</translation>
    </message>
    <message>
        <source>This track has no lines.</source>
        <translation type="unfinished">此轨道没有字幕行。</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the next one.</source>
        <comment>keys</comment>
        <translation type="unfinished">此处没有字幕：按 %1 转到下一条。</translation>
    </message>
    <message>
        <source>No line here: %1 goes to the one before.</source>
        <comment>keys</comment>
        <translation type="unfinished">此处没有字幕：按 %1 转到上一条。</translation>
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
        <translation type="unfinished">蓝光字幕 (*.sup)</translation>
    </message>
    <message>
        <source>Matroska (*.mkv *.mks)</source>
        <translation type="unfinished">Matroska (*.mkv *.mks)</translation>
    </message>
    <message>
        <source>Save the track as</source>
        <translation type="unfinished">轨道另存为</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; was saved as %2 with %n cue(s)</source>
        <translation type="unfinished">
            <numerusform>“%1”已保存为 %2，共 %n 条字幕</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) could not be read as %1</source>
        <translation type="unfinished">
            <numerusform>%n 个字节无法按 %1 读取</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) without usable times were left out</source>
        <translation type="unfinished">
            <numerusform>略去 %n 条没有可用时间的字幕</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of no duration were left out</source>
        <translation type="unfinished">
            <numerusform>略去 %n 条没有时长的字幕</numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation type="unfinished">%1。</translation>
    </message>
    <message>
        <source>%1; %2.</source>
        <translation type="unfinished">%1；%2。</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; does not tell how to save the track: let it end in .srt, .ass, .sup or .mkv.</source>
        <translation type="unfinished">从名称“%1”看不出如何保存轨道：请以 .srt、.ass、.sup 或 .mkv 结尾。</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; is %3, which no subtitle file can hold: draw it into the picture instead.</source>
        <translation type="unfinished">“%2”的轨道 %1 是 %3，没有字幕文件能容纳它：请改为将其嵌入画面。</translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation type="unfinished">正在保存“%1”</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">取消</translation>
    </message>
    <message>
        <source>Save a track</source>
        <translation type="unfinished">保存轨道</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SessionStore</name>
    <message>
        <source>The last list of films, &quot;%1&quot;, cannot be read, so nothing is saved this time: rename or remove that file.</source>
        <translation type="unfinished">无法读取“%1”中上次的列表，这次不会保存任何内容：请重命名或删除该文件。</translation>
    </message>
    <message>
        <source>The last list of films was written by a newer version of the program; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">上次的列表由较新版本的程序写入；已保留为“%1”。请重新打开影片。</translation>
    </message>
    <message>
        <source>The last list of films is damaged; it is kept as &quot;%1&quot;. Open your films again.</source>
        <translation type="unfinished">上次的列表已损坏；已保留为“%1”。请重新打开影片。</translation>
    </message>
    <message>
        <source>The list of films could not be saved in &quot;%1&quot; (%2): check that you may write there.</source>
        <translation type="unfinished">影片列表无法保存到“%1”（%2）：请检查您是否有写入权限。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished">设置</translation>
    </message>
    <message>
        <source>Online service</source>
        <translation type="unfinished">在线服务</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished">统计</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">取消</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsOnlinePage</name>
    <message>
        <source>version 1 of OpenSubtitles, because an API key is set.</source>
        <translation type="unfinished">OpenSubtitles 的版本 1，因为已设置 API 密钥。</translation>
    </message>
    <message>
        <source>version 1 of OpenSubtitles, because the configuration file says so. It answers nobody without an API key: enter one below.</source>
        <translation type="unfinished">OpenSubtitles 的版本 1，因为配置文件如此规定。没有 API 密钥时它不会应答：请在下方输入密钥。</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because the configuration file says so. The API key is not used.</source>
        <translation type="unfinished">OpenSubtitles 的旧接口，因为配置文件如此规定。不使用 API 密钥。</translation>
    </message>
    <message>
        <source>the older interface of OpenSubtitles, because no API key is set.</source>
        <translation type="unfinished">OpenSubtitles 的旧接口，因为没有设置 API 密钥。</translation>
    </message>
    <message>
        <source>API &amp;key:</source>
        <translation type="unfinished">API 密钥(&amp;K)：</translation>
    </message>
    <message>
        <source>API key</source>
        <translation type="unfinished">API 密钥</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation type="unfinished">显示(&amp;S)</translation>
    </message>
    <message>
        <source>Fetched &amp;files:</source>
        <translation type="unfinished">下载的文件(&amp;F)：</translation>
    </message>
    <message>
        <source>Folder for fetched files</source>
        <translation type="unfinished">下载文件的文件夹</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation type="unfinished">选择(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Usual folder</source>
        <translation type="unfinished">默认文件夹(&amp;U)</translation>
    </message>
    <message>
        <source>Version 1:</source>
        <translation type="unfinished">版本 1：</translation>
    </message>
    <message>
        <source>Older interface:</source>
        <translation type="unfinished">旧接口：</translation>
    </message>
    <message>
        <source>The addresses are set in the configuration file &quot;%1&quot;.</source>
        <translation type="unfinished">地址在配置文件“%1”中设置。</translation>
    </message>
    <message>
        <source>In use: %1</source>
        <translation type="unfinished">正在使用：%1</translation>
    </message>
    <message>
        <source>From the next start of the program on: %1</source>
        <translation type="unfinished">下次启动程序后：%1</translation>
    </message>
    <message>
        <source>Folder for fetched subtitle files</source>
        <translation type="unfinished">下载的字幕文件的文件夹</translation>
    </message>
    <message>
        <source>It comes from the account pages of opensubtitles.com, is kept in the configuration file, and is used from the next start on.</source>
        <translation type="unfinished">密钥来自 opensubtitles.com 的账户页面，保存在配置文件中，下次启动时生效。</translation>
    </message>
    <message>
        <source>The variable %1 of the environment sets it.</source>
        <translation type="unfinished">由环境变量 %1 设置。</translation>
    </message>
    <message>
        <source>This is no API key: a key has no blanks and no special characters. Copy it again.</source>
        <translation type="unfinished">这不是 API 密钥：密钥中没有空格和特殊字符。请重新复制。</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::SettingsStatisticsPage</name>
    <message>
        <source>If you agree, the program counts how the online search is used: from where it is opened, which fields are filled in, how many searches find something, nothing or fail, and how many files are fetched. Names, folders and what you type are never recorded. The record stays on this computer; it is sent to nobody.</source>
        <translation type="unfinished">如果您同意，程序会统计在线搜索的使用情况：从哪里打开、填写了哪些字段、有多少次搜索有结果、无结果或失败，以及下载了多少文件。绝不记录名称、文件夹和您输入的内容。记录只保留在这台计算机上，不会发送给任何人。</translation>
    </message>
    <message>
        <source>&amp;Count how the online search is used</source>
        <translation type="unfinished">统计在线搜索的使用情况(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Recorded in &quot;%1&quot;:</source>
        <translation type="unfinished">记录在“%1”中(&amp;R)：</translation>
    </message>
    <message>
        <source>Nothing has been recorded.</source>
        <translation type="unfinished">没有任何记录。</translation>
    </message>
    <message>
        <source>What has been recorded</source>
        <translation type="unfinished">已记录的内容</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">删除(&amp;D)</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::ShortcutsDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished">键盘快捷键</translation>
    </message>
    <message>
        <source>In the list: subtitles of the film</source>
        <translation type="unfinished">在列表中：影片的字幕</translation>
    </message>
    <message>
        <source>In the list: menu of the film</source>
        <translation type="unfinished">在列表中：影片的菜单</translation>
    </message>
    <message>
        <source>Close what is open</source>
        <translation type="unfinished">关闭打开的内容</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpPane</name>
    <message>
        <source>Help with the text</source>
        <translation type="unfinished">文本帮助</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpTexts</name>
    <message>
        <source>The file itself says that it is %1.</source>
        <translation type="unfinished">文件自身标明是 %1。</translation>
    </message>
    <message>
        <source>Detected: %1, certain.</source>
        <translation type="unfinished">检测到：%1，确定。</translation>
    </message>
    <message>
        <source>Nothing tells the encoding; %1 is a guess.</source>
        <translation type="unfinished">无法判断编码；%1 只是猜测。</translation>
    </message>
    <message>
        <source>Detected: %1, very sure (%2).</source>
        <translation type="unfinished">检测到：%1，非常确定（%2）。</translation>
    </message>
    <message>
        <source>Detected: %1, fairly sure (%2).</source>
        <translation type="unfinished">检测到：%1，比较确定（%2）。</translation>
    </message>
    <message>
        <source>Detected: %1, not sure (%2).</source>
        <translation type="unfinished">检测到：%1，不确定（%2）。</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) cannot be read in this encoding and show as &quot;%1&quot;.</source>
        <translation type="unfinished">
            <numerusform>有 %n 个字节无法按此编码读取，显示为“%1”。</numerusform>
        </translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; is not installed; &quot;%2&quot; stands in.</source>
        <translation type="unfinished">未安装字体“%1”；由“%2”代替。</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">日文</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation type="unfinished">中文</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">韩文</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation type="unfinished">西里尔文</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">希腊文</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">希伯来文</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">阿拉伯文</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">泰文</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation type="unfinished">天城文</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; lacks %n character(s) of this text (%2): &quot;%3&quot; stands in.</source>
        <translation type="unfinished">
            <numerusform>“%1”缺少此文本的 %n 个字符（%2）：由“%3”代替。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No installed font has %n character(s) of this text (%1); they show as empty boxes.</source>
        <translation type="unfinished">
            <numerusform>已安装的字体都没有此文本的 %n 个字符（%1）；它们显示为空框。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TextHelpView</name>
    <message>
        <source>It could also read:</source>
        <translation type="unfinished">也可能读作：</translation>
    </message>
    <message>
        <source>First lines of the text</source>
        <translation type="unfinished">文本的前几行</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackActions</name>
    <message>
        <source>Quit while saving?</source>
        <translation type="unfinished">正在保存，要退出吗？</translation>
    </message>
    <message>
        <source>A track is still being saved. Quitting cancels that, and no file is written.</source>
        <translation type="unfinished">仍有轨道在保存。退出会将其取消，不会写入文件。</translation>
    </message>
    <message>
        <source>Cancel saving and quit</source>
        <translation type="unfinished">取消保存并退出</translation>
    </message>
    <message>
        <source>Go on saving</source>
        <translation type="unfinished">继续保存</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackMenu</name>
    <message>
        <source>&amp;Draw in</source>
        <translation type="unfinished">嵌入画面(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Remove from list</source>
        <translation type="unfinished">从列表中移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Leave out of the output</source>
        <translation type="unfinished">不输出(&amp;L)</translation>
    </message>
    <message>
        <source>Language, &amp;title and marks...</source>
        <translation type="unfinished">语言、标题和标记(&amp;T)...</translation>
    </message>
    <message>
        <source>&amp;Put back</source>
        <translation type="unfinished">恢复(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Save as a file...</source>
        <translation type="unfinished">保存为文件(&amp;S)...</translation>
    </message>
</context>
<context>
    <name>Korvex::Desktop::TrackPropertiesDialog</name>
    <message>
        <source>Subtitle track</source>
        <translation type="unfinished">字幕轨道</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished">语言(&amp;L)：</translation>
    </message>
    <message>
        <source>Not stated</source>
        <translation type="unfinished">未说明</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">语言</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation type="unfinished">标题(&amp;T)：</translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished">标题</translation>
    </message>
    <message>
        <source>On by &amp;default</source>
        <translation type="unfinished">默认开启(&amp;D)</translation>
    </message>
    <message>
        <source>Players show this track unless another one is chosen</source>
        <translation type="unfinished">除非选择其他轨道，播放器会显示此轨道</translation>
    </message>
    <message>
        <source>&amp;Forced</source>
        <translation type="unfinished">强制(&amp;F)</translation>
    </message>
    <message>
        <source>Only what has to be read in any case: signs and foreign speech</source>
        <translation type="unfinished">仅限无论如何都要看的内容：标牌和外语对白</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished">确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">取消</translation>
    </message>
    <message>
        <source>This language is not known: choose one from the list, or write its code, such as &quot;en&quot; or &quot;pt-br&quot;.</source>
        <translation type="unfinished">未知的语言：请从列表中选择，或输入其代码，例如“en”或“pt-br”。</translation>
    </message>
</context>
<context>
    <name>Korvex::GUI::ColorPickerButton</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1：%2</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation type="unfinished">颜色 %1</translation>
    </message>
    <message>
        <source>Choose a color</source>
        <translation type="unfinished">选择颜色</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Afrikaans</source>
        <translation type="unfinished">南非荷兰语</translation>
    </message>
    <message>
        <source>Albanian</source>
        <translation type="unfinished">阿尔巴尼亚语</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished">阿拉伯文</translation>
    </message>
    <message>
        <source>Aragonese</source>
        <translation type="unfinished">阿拉贡语</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation type="unfinished">亚美尼亚语</translation>
    </message>
    <message>
        <source>Asturian</source>
        <translation type="unfinished">阿斯图里亚斯语</translation>
    </message>
    <message>
        <source>Azerbaijani</source>
        <translation type="unfinished">阿塞拜疆语</translation>
    </message>
    <message>
        <source>Basque</source>
        <translation type="unfinished">巴斯克语</translation>
    </message>
    <message>
        <source>Belarusian</source>
        <translation type="unfinished">白俄罗斯语</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation type="unfinished">孟加拉语</translation>
    </message>
    <message>
        <source>Bosnian</source>
        <translation type="unfinished">波斯尼亚语</translation>
    </message>
    <message>
        <source>Breton</source>
        <translation type="unfinished">布列塔尼语</translation>
    </message>
    <message>
        <source>Bulgarian</source>
        <translation type="unfinished">保加利亚语</translation>
    </message>
    <message>
        <source>Burmese</source>
        <translation type="unfinished">缅甸语</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation type="unfinished">加泰罗尼亚语</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation type="unfinished">中文（简体）</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation type="unfinished">中文（繁体）</translation>
    </message>
    <message>
        <source>Chinese (Bilingual)</source>
        <translation type="unfinished">中文（双语）</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation type="unfinished">克罗地亚语</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation type="unfinished">捷克语</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation type="unfinished">丹麦语</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation type="unfinished">荷兰语</translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished">英语</translation>
    </message>
    <message>
        <source>Esperanto</source>
        <translation type="unfinished">世界语</translation>
    </message>
    <message>
        <source>Estonian</source>
        <translation type="unfinished">爱沙尼亚语</translation>
    </message>
    <message>
        <source>Extremaduran</source>
        <translation type="unfinished">埃斯特雷马杜拉语</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation type="unfinished">芬兰语</translation>
    </message>
    <message>
        <source>French</source>
        <translation type="unfinished">法语</translation>
    </message>
    <message>
        <source>Galician</source>
        <translation type="unfinished">加利西亚语</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation type="unfinished">格鲁吉亚语</translation>
    </message>
    <message>
        <source>German</source>
        <translation type="unfinished">德语</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished">希腊文</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished">希伯来文</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation type="unfinished">印地语</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation type="unfinished">匈牙利语</translation>
    </message>
    <message>
        <source>Icelandic</source>
        <translation type="unfinished">冰岛语</translation>
    </message>
    <message>
        <source>Indonesian</source>
        <translation type="unfinished">印度尼西亚语</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation type="unfinished">意大利语</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished">日文</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation type="unfinished">卡纳达语</translation>
    </message>
    <message>
        <source>Kazakh</source>
        <translation type="unfinished">哈萨克语</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation type="unfinished">高棉语</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished">韩文</translation>
    </message>
    <message>
        <source>Kurdish</source>
        <translation type="unfinished">库尔德语</translation>
    </message>
    <message>
        <source>Latvian</source>
        <translation type="unfinished">拉脱维亚语</translation>
    </message>
    <message>
        <source>Lithuanian</source>
        <translation type="unfinished">立陶宛语</translation>
    </message>
    <message>
        <source>Luxembourgish</source>
        <translation type="unfinished">卢森堡语</translation>
    </message>
    <message>
        <source>Macedonian</source>
        <translation type="unfinished">马其顿语</translation>
    </message>
    <message>
        <source>Malay</source>
        <translation type="unfinished">马来语</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation type="unfinished">马拉雅拉姆语</translation>
    </message>
    <message>
        <source>Manipuri</source>
        <translation type="unfinished">曼尼普尔语</translation>
    </message>
    <message>
        <source>Mongolian</source>
        <translation type="unfinished">蒙古语</translation>
    </message>
    <message>
        <source>Montenegrin</source>
        <translation type="unfinished">黑山语</translation>
    </message>
    <message>
        <source>Northern Sami</source>
        <translation type="unfinished">北方萨米语</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation type="unfinished">挪威语</translation>
    </message>
    <message>
        <source>Occitan</source>
        <translation type="unfinished">奥克语</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation type="unfinished">波斯语</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation type="unfinished">波兰语</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation type="unfinished">葡萄牙语</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation type="unfinished">葡萄牙语（巴西）</translation>
    </message>
    <message>
        <source>Portuguese (Mozambique)</source>
        <translation type="unfinished">葡萄牙语（莫桑比克）</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation type="unfinished">罗马尼亚语</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation type="unfinished">俄语</translation>
    </message>
    <message>
        <source>Serbian</source>
        <translation type="unfinished">塞尔维亚语</translation>
    </message>
    <message>
        <source>Sinhalese</source>
        <translation type="unfinished">僧伽罗语</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation type="unfinished">斯洛伐克语</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation type="unfinished">斯洛文尼亚语</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation type="unfinished">西班牙语</translation>
    </message>
    <message>
        <source>Swahili</source>
        <translation type="unfinished">斯瓦希里语</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation type="unfinished">瑞典语</translation>
    </message>
    <message>
        <source>Syriac</source>
        <translation type="unfinished">叙利亚语</translation>
    </message>
    <message>
        <source>Tagalog</source>
        <translation type="unfinished">他加禄语</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation type="unfinished">泰米尔语</translation>
    </message>
    <message>
        <source>Telugu</source>
        <translation type="unfinished">泰卢固语</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished">泰文</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation type="unfinished">土耳其语</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation type="unfinished">乌克兰语</translation>
    </message>
    <message>
        <source>Urdu</source>
        <translation type="unfinished">乌尔都语</translation>
    </message>
    <message>
        <source>Uzbek</source>
        <translation type="unfinished">乌兹别克语</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation type="unfinished">越南语</translation>
    </message>
</context>
<context>
    <name>LanguageSelector</name>
    <message>
        <source>All languages</source>
        <translation type="unfinished">所有语言</translation>
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
        <translation type="unfinished">未设置在线字幕服务；请在设置中添加其 API 密钥。</translation>
    </message>
    <message>
        <source> (it says: &quot;%1&quot;)</source>
        <translation type="unfinished"> （它回复：“%1”）</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again after %3.</source>
        <translation type="unfinished">您在 %1 的下载次数已用完%2；请在 %3 之后再下载。</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again in %3.</source>
        <translation type="unfinished">您在 %1 的下载次数已用完%2；请在以下时间过后再下载：%3。</translation>
    </message>
    <message>
        <source>Your downloads at %1 are used up%2; download again tomorrow.</source>
        <translation type="unfinished">您在 %1 的下载次数已用完%2；请明天再下载。</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; wait %3 s and try again.</source>
        <translation type="unfinished">对 %1 的请求过于频繁%2；请等待 %3 秒后重试。</translation>
    </message>
    <message>
        <source>%1 was asked too often%2; try again in a minute.</source>
        <translation type="unfinished">对 %1 的请求过于频繁%2；请一分钟后重试。</translation>
    </message>
    <message>
        <source>%1 did not accept the API key%2; set a valid one in the settings, as KORVEX_OPENSUBTITLES_API_KEY in the environment or as api_key in the configuration file.</source>
        <translation type="unfinished">%1 不接受该 API 密钥%2；请在设置、环境变量 KORVEX_OPENSUBTITLES_API_KEY 或配置文件的 api_key 中设置有效的密钥。</translation>
    </message>
    <message>
        <source>%1 sent something else in place of the subtitle%2; choose another one, or try again later.</source>
        <translation type="unfinished">%1 发来的不是字幕%2；请选择其他字幕，或稍后重试。</translation>
    </message>
    <message>
        <source>%1 is down or overloaded at the moment%2; try again later.</source>
        <translation type="unfinished">%1 目前停机或过载%2；请稍后重试。</translation>
    </message>
    <message>
        <source>The subtitle could not be unpacked or stored in &quot;%1&quot;%2; choose another subtitle, or make sure that the folder may be written and has room.</source>
        <translation type="unfinished">无法解压字幕或将其保存到“%1”%2；请选择其他字幕，或确保该文件夹可写且有空间。</translation>
    </message>
    <message>
        <source>%1 refused the request%2; ask for something else, or try again later.</source>
        <translation type="unfinished">%1 拒绝了请求%2；请改为请求其他内容，或稍后重试。</translation>
    </message>
    <message>
        <source>%1 points to other addresses without end, or to one that may not be used%2; check the address that is set for it, or try again later.</source>
        <translation type="unfinished">%1 不断转到其他地址，或转到不允许使用的地址%2；请检查为它设置的地址，或稍后重试。</translation>
    </message>
    <message>
        <source>The answer of %1 was empty, broke off or was too large; try again later.</source>
        <translation type="unfinished">%1 的应答为空、中断或过大；请稍后重试。</translation>
    </message>
    <message>
        <source>The answer of %1 cannot be used%2; try again later.</source>
        <translation type="unfinished">%1 的应答无法使用%2；请稍后重试。</translation>
    </message>
    <message>
        <source>%1 could not answer%2; try again later.</source>
        <translation type="unfinished">%1 无法应答%2；请稍后重试。</translation>
    </message>
    <message>
        <source>%1 could not answer%2; check the address that is set for it and the proxy, or try again later.</source>
        <translation type="unfinished">%1 无法应答%2；请检查为它设置的地址和代理，或稍后重试。</translation>
    </message>
    <message>
        <source>The connection to %1 failed%2; check the proxy and whether the service&apos;s certificate is valid, or try again later.</source>
        <translation type="unfinished">连接 %1 失败%2；请检查代理以及该服务的证书是否有效，或稍后重试。</translation>
    </message>
    <message>
        <source>Another search or download has not ended yet; try again in a moment.</source>
        <translation type="unfinished">另一个搜索或下载尚未结束；请稍候重试。</translation>
    </message>
    <message>
        <source>%1 cannot look for this%2; type a title or an IMDb id.</source>
        <translation type="unfinished">%1 无法搜索此内容%2；请输入标题或 IMDb 编号。</translation>
    </message>
    <message>
        <source>%1 cannot search in this way; look for a title or an IMDb id.</source>
        <translation type="unfinished">%1 无法以这种方式搜索；请按标题或 IMDb 编号查找。</translation>
    </message>
    <message>
        <source>%1 cannot be reached or did not answer in time; check the connection to the network and try again.</source>
        <translation type="unfinished">无法连接 %1，或它没有及时应答；请检查网络连接后重试。</translation>
    </message>
</context>
<context>
    <name>OnlineSearchDialogPresenter</name>
    <message>
        <source>same file</source>
        <translation type="unfinished">同一文件</translation>
    </message>
    <message>
        <source>same release group</source>
        <translation type="unfinished">同一发布组</translation>
    </message>
    <message>
        <source>same source</source>
        <translation type="unfinished">相同来源</translation>
    </message>
    <message>
        <source>same resolution</source>
        <translation type="unfinished">相同分辨率</translation>
    </message>
    <message>
        <source>same episode</source>
        <translation type="unfinished">同一集</translation>
    </message>
    <message>
        <source>another episode</source>
        <translation type="unfinished">另一集</translation>
    </message>
    <message>
        <source>another film</source>
        <translation type="unfinished">另一部影片</translation>
    </message>
    <message>
        <source>Type a title or an IMDb id to search for.</source>
        <translation type="unfinished">请输入要搜索的标题或 IMDb 编号。</translation>
    </message>
    <message>
        <source>This is no IMDb id: type &quot;tt&quot; and digits, or leave it empty.</source>
        <translation type="unfinished">这不是 IMDb 编号：请输入“tt”加数字，或留空。</translation>
    </message>
    <message>
        <source>The season is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">季数不是数字：请输入数字或留空。</translation>
    </message>
    <message>
        <source>The episode is no number: type digits, or leave it empty.</source>
        <translation type="unfinished">集数不是数字：请输入数字或留空。</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation type="unfinished">正在搜索...</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n found so far</source>
        <translation type="unfinished">
            <numerusform>正在搜索... 目前找到 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>找到 %n 个字幕。</numerusform>
        </translation>
    </message>
    <message>
        <source>check the spelling of the title</source>
        <translation type="unfinished">检查标题的拼写</translation>
    </message>
    <message>
        <source>type the title</source>
        <translation type="unfinished">输入标题</translation>
    </message>
    <message>
        <source>type the film&apos;s IMDb id</source>
        <translation type="unfinished">输入影片的 IMDb 编号</translation>
    </message>
    <message>
        <source>check the IMDb id</source>
        <translation type="unfinished">检查 IMDb 编号</translation>
    </message>
    <message>
        <source>leave out the season and the episode</source>
        <translation type="unfinished">不填季和集</translation>
    </message>
    <message>
        <source>choose other languages</source>
        <translation type="unfinished">选择其他语言</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished">%1或%2</translation>
    </message>
    <message>
        <source>No subtitles were found: %1.</source>
        <translation type="unfinished">没有找到字幕：请%1。</translation>
    </message>
    <message numerus="yes">
        <source>Downloading %n subtitle(s)...</source>
        <translation type="unfinished">
            <numerusform>正在下载 %n 个字幕...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n subtitle(s) added to the film.</source>
        <translation type="unfinished">
            <numerusform>已将 %n 个字幕添加到影片。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n download(s) left.</source>
        <translation type="unfinished">
            <numerusform>还可下载 %n 次。</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for the last request to end...</source>
        <translation type="unfinished">正在等待上一个请求结束...</translation>
    </message>
    <message>
        <source>The search was cancelled.</source>
        <translation type="unfinished">搜索已取消。</translation>
    </message>
    <message numerus="yes">
        <source>The search was cancelled; %n subtitle(s) found.</source>
        <translation type="unfinished">
            <numerusform>搜索已取消；找到 %n 个字幕。</numerusform>
        </translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation type="unfinished">下载已取消。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished">%1，%2</translation>
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
        <translation type="unfinished">机器翻译</translation>
    </message>
    <message>
        <source>Translated by a machine</source>
        <translation type="unfinished">由机器翻译</translation>
    </message>
    <message>
        <source>Foreign</source>
        <comment>short mark</comment>
        <translation type="unfinished">外语</translation>
    </message>
    <message>
        <source>Only what is spoken in a foreign language</source>
        <translation type="unfinished">仅限外语对白</translation>
    </message>
    <message>
        <source>HI</source>
        <comment>short mark</comment>
        <translation type="unfinished">听障</translation>
    </message>
    <message>
        <source>For the hearing impaired: sounds are described</source>
        <translation type="unfinished">听障人士适用：包含声音描述</translation>
    </message>
    <message>
        <source>Trusted</source>
        <comment>short mark</comment>
        <translation type="unfinished">可信</translation>
    </message>
    <message>
        <source>From an uploader whom the service trusts</source>
        <translation type="unfinished">来自该服务信任的上传者</translation>
    </message>
    <message>
        <source>CD %1/%2</source>
        <comment>short mark</comment>
        <translation type="unfinished">CD %1/%2</translation>
    </message>
    <message>
        <source>Part %1 of %2; all parts are downloaded</source>
        <translation type="unfinished">第 %1 部分，共 %2 部分；将下载所有部分</translation>
    </message>
    <message>
        <source>HD</source>
        <comment>short mark</comment>
        <translation type="unfinished">高清</translation>
    </message>
    <message>
        <source>Made for a release in high definition</source>
        <translation type="unfinished">为高清版本制作</translation>
    </message>
    <message>
        <source>Made for this file or release</source>
        <translation type="unfinished">为此文件或版本制作</translation>
    </message>
    <message>
        <source>For this film, perhaps for another cut of it</source>
        <translation type="unfinished">用于此影片，但可能是另一剪辑版本</translation>
    </message>
    <message>
        <source>For another film or episode</source>
        <translation type="unfinished">用于其他影片或剧集</translation>
    </message>
    <message>
        <source>It is not known how well it fits</source>
        <translation type="unfinished">不清楚是否匹配</translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished">名称</translation>
    </message>
    <message>
        <source>Match</source>
        <translation type="unfinished">匹配</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished">语言</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation type="unfinished">标记</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation type="unfinished">下载次数</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation type="unfinished">评分</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation type="unfinished">上传时间</translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished">格式</translation>
    </message>
    <message>
        <source>Release: %1</source>
        <translation type="unfinished">版本：%1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of 10, by %n vote(s)</source>
        <translation type="unfinished">
            <numerusform>10 分中的 %1 分，%n 票</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SubtitleCollection</name>
    <message>
        <source>Subtitle tracks</source>
        <translation type="unfinished">字幕轨道</translation>
    </message>
    <message>
        <source>Current choice</source>
        <translation type="unfinished">当前选择</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation type="unfinished">无字幕</translation>
    </message>
    <message>
        <source>Leave all tracks (softsub)</source>
        <translation type="unfinished">保留所有轨道（软字幕）</translation>
    </message>
    <message>
        <source>There are no subtitle tracks yet. Add a subtitle file first.</source>
        <translation type="unfinished">还没有字幕轨道。请先添加字幕文件。</translation>
    </message>
    <message>
        <source>The chosen output format cannot carry these tracks. Choose another format, or burn one track in.</source>
        <translation type="unfinished">所选输出格式无法包含这些轨道。请选择其他格式，或嵌入一条轨道。</translation>
    </message>
    <message>
        <source>Save this track to a file (Ctrl+S)</source>
        <translation type="unfinished">将此轨道保存为文件 (Ctrl+S)</translation>
    </message>
    <message>
        <source>Save to a file: %1</source>
        <translation type="unfinished">保存为文件：%1</translation>
    </message>
</context>
<context>
    <name>SubtitleCollectionInteractor</name>
    <message>
        <source>No subtitles were found in &quot;%1&quot;: take it out of the list and choose an SRT, ASS or SSA file.</source>
        <translation type="unfinished">在“%1”中没有找到字幕：请将其从列表中移除，并选择 SRT、ASS 或 SSA 文件。</translation>
    </message>
</context>
<context>
    <name>SubtitleSettings</name>
    <message>
        <source>Auto</source>
        <translation type="unfinished">自动</translation>
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
        <translation type="unfinished">中欧和东欧语言 (Windows-1250)</translation>
    </message>
    <message>
        <source>Russian (KOI8-R)</source>
        <translation type="unfinished">俄语 (KOI8-R)</translation>
    </message>
    <message>
        <source>Ukrainian, Belarusian (KOI8-U/RU)</source>
        <translation type="unfinished">乌克兰语、白俄罗斯语 (KOI8-U/RU)</translation>
    </message>
    <message>
        <source>Esperanto, Galician, Maltese, Turkish (ISO-8859-3)</source>
        <translation type="unfinished">世界语、加利西亚语、马耳他语、土耳其语 (ISO-8859-3)</translation>
    </message>
    <message>
        <source>Modern Greek (ISO-8859-7)</source>
        <translation type="unfinished">现代希腊语 (ISO-8859-7)</translation>
    </message>
    <message>
        <source>Hebrew charsets (ISO-8859-8)</source>
        <translation type="unfinished">希伯来语 (ISO-8859-8)</translation>
    </message>
    <message>
        <source>Turkish (ISO-8859-9)</source>
        <translation type="unfinished">土耳其语 (ISO-8859-9)</translation>
    </message>
    <message>
        <source>Baltic (ISO-8859-13)</source>
        <translation type="unfinished">波罗的海语言 (ISO-8859-13)</translation>
    </message>
    <message>
        <source>Western European Languages with Euro (ISO-8859-15)</source>
        <translation type="unfinished">西欧语言（含欧元符号）(ISO-8859-15)</translation>
    </message>
    <message>
        <source>Japanese charsets (SHIFT-JIS/CP932)</source>
        <translation type="unfinished">日语 (SHIFT-JIS/CP932)</translation>
    </message>
    <message>
        <source>Simplified Chinese charset (CP936)</source>
        <translation type="unfinished">简体中文 (CP936)</translation>
    </message>
    <message>
        <source>Traditional Chinese charset (BIG5)</source>
        <translation type="unfinished">繁体中文 (BIG5)</translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished">默认</translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished">顶部</translation>
    </message>
    <message>
        <source>Vertical center</source>
        <translation type="unfinished">垂直居中</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished">底部</translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished">左侧</translation>
    </message>
    <message>
        <source>Horizontal center</source>
        <translation type="unfinished">水平居中</translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished">右侧</translation>
    </message>
</context>
<context>
    <name>TimeTexts</name>
    <message>
        <source>less than a minute left</source>
        <translation type="unfinished">剩余不到一分钟</translation>
    </message>
    <message numerus="yes">
        <source>%n min left</source>
        <translation type="unfinished">
            <numerusform>剩余 %n 分钟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h left</source>
        <translation type="unfinished">
            <numerusform>剩余 %n 小时</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 h %n min left</source>
        <translation type="unfinished">
            <numerusform>剩余 %1 小时 %n 分钟</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WarningWords</name>
    <message>
        <source>Track %1 of &quot;%2&quot; (a second picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">“%2”的轨道 %1（第二画面，%3）未输出，因为 %4 无法容纳它。</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a cover picture, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">“%2”的轨道 %1（封面图片，%3）未输出，因为 %4 无法容纳它。</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a further sound track, %3) was left out, because %4 cannot hold it.</source>
        <translation type="unfinished">“%2”的轨道 %1（另一条音轨，%3）未输出，因为 %4 无法容纳它。</translation>
    </message>
    <message>
        <source>Track %1 of &quot;%2&quot; (a sound track, %3) was left out, because nothing in it can be read.</source>
        <translation type="unfinished">“%2”的轨道 %1（音轨，%3）未输出，因为其中没有可读取的内容。</translation>
    </message>
    <message>
        <source>The picture of &quot;%1&quot; was encoded anew, because %2 cannot hold it as it is.</source>
        <translation type="unfinished">“%1”的画面已重新编码，因为 %2 无法原样容纳它。</translation>
    </message>
    <message>
        <source>Files attached to &quot;%1&quot;, for example fonts, were left out, because %2 cannot hold them.</source>
        <translation type="unfinished">“%1”附带的文件（例如字体）未输出，因为 %2 无法容纳它们。</translation>
    </message>
    <message>
        <source>A subtitle track was left out, because its file is missing.</source>
        <translation type="unfinished">一条字幕轨道未输出，因为缺少其文件。</translation>
    </message>
    <message>
        <source>The subtitle track &quot;%1&quot; was left out, because its file is missing.</source>
        <translation type="unfinished">字幕轨道“%1”未输出，因为缺少其文件。</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) of &quot;%1&quot; could not be read as %2 and show as &quot;%3&quot;: check the encoding.</source>
        <translation type="unfinished">
            <numerusform>“%1”中有 %n 个字节无法按 %2 读取，显示为“%3”：请检查编码。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; without usable times were left out.</source>
        <translation type="unfinished">
            <numerusform>“%1”中有 %n 条字幕的时间不可用，未输出。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cue(s) of &quot;%1&quot; of no duration were left out.</source>
        <translation type="unfinished">
            <numerusform>“%1”中有 %n 条字幕没有时长，未输出。</numerusform>
        </translation>
    </message>
    <message>
        <source>Some pictures of &quot;%1&quot; are damaged; they may be missing or look wrong.</source>
        <translation type="unfinished">“%1”的部分画面已损坏；它们可能缺失或显示不正常。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; breaks off after %2 of %3, and so does the new film.</source>
        <translation type="unfinished">“%1”在 %3 中的 %2 处中断，新影片也是如此。</translation>
    </message>
</context>
</TS>
