#include "Support/OnlineServer/SubtitleTexts.h"

#include <QStringList>
#include <QTextCodec>
#include <QTime>

#include <map>

namespace Korvex::Testing
{

namespace
{

constexpr int CUE_COUNT = 24;
constexpr int CUE_SECONDS = 5;

QStringList const& GetLines(QByteArray const& language)
{
    static std::map<QByteArray, QStringList> const LINES = {
        {"en", {"You kept the light burning all night.", "The tide turns at four.", "Not one letter arrived."}},
        {"fr", {"Tu as gardé la lampe allumée.", "La marée tourne à quatre heures.", "Aucune lettre n'est arrivée."}},
        {"de", {"Du hast das Licht brennen lassen.", "Um vier kommt die Flut.", "Hast du das gehört?"}},
        {"pt-BR", {"Você deixou a luz acesa a noite toda.", "A maré vira às quatro.", "É só o vento nos fios."}},
        {"ru", {"Ты всю ночь не гасил свет.", "В четыре начнётся прилив.", "Ни одно письмо не дошло."}},
        {"ja", {"一晩中、明かりを灯していたのね。", "潮は四時に変わる。", "一通も届かなかった。"}},
    };
    auto const found = LINES.find(language);
    return found == LINES.end() ? LINES.at("en") : found->second;
}

QString FormatTime(int seconds, QString const& pattern)
{
    return QTime(0, 0).addSecs(seconds).toString(pattern);
}

QString MakeSrtCue(int number, int start, QString const& text)
{
    QString const pattern = QStringLiteral("hh:mm:ss,zzz");
    return QStringLiteral("%1\n%2 --> %3\n%4\n\n")
        .arg(QString::number(number), FormatTime(start, pattern), FormatTime(start + 3, pattern), text);
}

QString MakeAssCue(int start, QString const& text)
{
    QString const pattern = QStringLiteral("h:mm:ss.00");
    return QStringLiteral("Dialogue: 0,%1,%2,Default,,0,0,0,,%3\n")
        .arg(FormatTime(start, pattern), FormatTime(start + 3, pattern), QString(text).replace('\n', "\\N"));
}

} // namespace

QByteArray MakeSubtitleText(SubtitleTextSpecification const& specification)
{
    bool const isAss = specification.format == "ass";
    QStringList const& lines = GetLines(specification.language);
    QString file = isAss ? "[Script Info]\nScriptType: v4.00+\n\n[V4+ Styles]\nFormat: Name, Fontname, Fontsize\n"
                           "Style: Default,Sans,48\n\n[Events]\nFormat: Layer, Start, End, Style, Name, MarginL, "
                           "MarginR, MarginV, Effect, Text\n"
                         : "";
    for (int cue = 0; cue < CUE_COUNT; ++cue)
    {
        QString text = cue == 0 ? specification.title : lines[cue % lines.size()];
        if (specification.withSounds && cue % 3 == 1)
            text.prepend("[foghorn]\n");
        int const start = specification.variant + cue * CUE_SECONDS;
        file += isAss ? MakeAssCue(start, text) : MakeSrtCue(cue + 1, start, text);
    }
    return QTextCodec::codecForName(specification.encoding)->fromUnicode(file.replace('\n', QLatin1String("\r\n")));
}

} // namespace Korvex::Testing
