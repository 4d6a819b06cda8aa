#include "Support/OnlineServer/SubtitleTexts.h"

#include <QStringList>
#include <QTextCodec>

#include <map>

namespace Korvex::Testing
{

namespace
{

constexpr int CUE_COUNT = 24;
constexpr int CUE_SECONDS = 5;
constexpr int DISC_SECONDS = 2'700;
constexpr int VARIANT_SECONDS = 51; // no multiple of the number of lines

QStringList const& GetLines(QByteArray const& language)
{
    static std::map<QByteArray, QStringList> const LINES = {
        {"en",
         {"You kept the light burning all night.", "Somebody had to.", "The tide turns at four.",
          "Then we have less time than I thought.", "Did you hear that?", "It's only the wind in the wires.",
          "I wrote to you, every week.", "Not one letter arrived."}},
        {"fr",
         {"Tu as gardé la lampe allumée toute la nuit.", "Il fallait bien que quelqu'un le fasse.",
          "La marée tourne à quatre heures.", "Alors il nous reste peu de temps.", "Tu as entendu ?",
          "Ce n'est que le vent dans les câbles.", "Je t'ai écrit chaque semaine.", "Aucune lettre n'est arrivée."}},
        {"de",
         {"Du hast das Licht die ganze Nacht brennen lassen.", "Einer musste es tun.", "Um vier kommt die Flut.",
          "Dann bleibt uns weniger Zeit, als ich dachte.", "Hast du das gehört?", "Nur der Wind in den Drähten.",
          "Ich habe dir jede Woche geschrieben.", "Kein einziger Brief kam an."}},
        {"es",
         {"Dejaste la luz encendida toda la noche.", "Alguien tenía que hacerlo.", "La marea cambia a las cuatro.",
          "Entonces queda menos tiempo del que creía.", "¿Has oído eso?", "Sólo es el viento en los cables.",
          "Te escribí todas las semanas.", "No llegó ni una carta."}},
        {"pt-BR",
         {"Você deixou a luz acesa a noite toda.", "Alguém tinha que fazer isso.", "A maré vira às quatro.",
          "Então temos menos tempo do que eu pensava.", "Você ouviu isso?", "É só o vento nos fios.",
          "Eu te escrevi toda semana.", "Nenhuma carta chegou."}},
        {"ru",
         {"Ты всю ночь не гасил свет.", "Кто-то должен был это сделать.", "В четыре начнётся прилив.",
          "Значит, времени меньше, чем я думал.", "Ты слышал?", "Это просто ветер в проводах.",
          "Я писала тебе каждую неделю.", "Ни одно письмо не дошло."}},
        {"ja",
         {"一晩中、明かりを灯していたのね。", "誰かがやらなければならなかった。", "潮は四時に変わる。",
          "思ったより時間がないな。", "今の、聞こえた？", "電線を渡る風の音だよ。", "毎週、手紙を書いたの。",
          "一通も届かなかった。"}},
        {"zh-CN",
         {"你让灯亮了一整夜。", "总得有人这么做。", "四点钟涨潮。", "那时间比我想的还少。", "你听见了吗？",
          "只是风吹电线的声音。", "我每个星期都给你写信。", "一封也没有收到。"}},
    };
    auto const found = LINES.find(language);
    return found == LINES.end() ? LINES.at("en") : found->second;
}

QStringList MakeCueTexts(SubtitleTextSpecification const& specification)
{
    static QStringList const SOUNDS = {"[door creaks]", "[foghorn in the distance]", "[footsteps]", "[gulls cry]"};
    QStringList const& lines = GetLines(specification.language);
    QStringList texts = {specification.discNumber == 1
                             ? specification.title
                             : QStringLiteral("%1 (%2)").arg(specification.title).arg(specification.discNumber)};
    for (int cue = 1; cue < CUE_COUNT; ++cue)
    {
        QString text = lines[(cue + specification.discNumber * 3 + specification.variant) % lines.size()];
        if (specification.withSounds && cue % 3 == 0)
            text.prepend(SOUNDS[cue % SOUNDS.size()] + '\n');
        texts.append(text);
    }
    return texts;
}

QString FormatTime(int seconds, QString const& pattern)
{
    return pattern.arg(seconds / 3600, 2, 10, QLatin1Char('0'))
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

QString MakeSrt(QStringList const& texts, int firstSecond)
{
    QString const pattern = QStringLiteral("%1:%2:%3,250");
    QString file;
    for (int cue = 0; cue < texts.size(); ++cue)
    {
        int const start = firstSecond + cue * CUE_SECONDS;
        file +=
            QStringLiteral("%1\n%2 --> %3\n%4\n\n")
                .arg(QString::number(cue + 1), FormatTime(start, pattern), FormatTime(start + 3, pattern), texts[cue]);
    }
    return file;
}

QString MakeAss(QString const& title, QStringList const& texts, int firstSecond)
{
    QString const pattern = QStringLiteral("%1:%2:%3.25");
    QString file =
        QStringLiteral("[Script Info]\nTitle: %1\nScriptType: v4.00+\nPlayResX: 1280\nPlayResY: 720\n\n[V4+ Styles]\n"
                       "Format: Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, OutlineColour, BackColour, "
                       "Bold, Italic, Underline, StrikeOut, ScaleX, ScaleY, Spacing, Angle, BorderStyle, Outline, "
                       "Shadow, Alignment, MarginL, MarginR, MarginV, Encoding\n"
                       "Style: Default,Sans,48,&H00FFFFFF,&H000000FF,&H00202020,&H00000000,0,0,0,0,100,100,0,0,1,2,1,"
                       "2,40,40,36,1\n\n[Events]\n"
                       "Format: Layer, Start, End, Style, Name, MarginL, MarginR, MarginV, Effect, Text\n")
            .arg(title);
    for (int cue = 0; cue < texts.size(); ++cue)
    {
        int const start = firstSecond + cue * CUE_SECONDS;
        file += QStringLiteral("Dialogue: 0,%1,%2,Default,,0,0,0,,%3\n")
                    .arg(FormatTime(start, pattern).mid(1), FormatTime(start + 3, pattern).mid(1),
                         QString(texts[cue]).replace('\n', QLatin1String("\\N")));
    }
    return file;
}

} // namespace

QByteArray MakeSubtitleText(SubtitleTextSpecification const& specification)
{
    QStringList const texts = MakeCueTexts(specification);
    int const firstSecond =
        12 + specification.variant % VARIANT_SECONDS + (specification.discNumber - 1) * DISC_SECONDS;
    QString const file =
        specification.format == "ass" ? MakeAss(specification.title, texts, firstSecond) : MakeSrt(texts, firstSecond);
    QTextCodec* const codec = QTextCodec::codecForName(specification.encoding);
    Q_ASSERT(codec);
    return codec->fromUnicode(QString(file).replace('\n', QLatin1String("\r\n")));
}

} // namespace Korvex::Testing
