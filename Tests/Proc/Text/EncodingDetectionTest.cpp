#include "Proc/Text/TextDecoder.h"

#include "Support/Environment.h"
#include "SystemEncoder.h"

#include <gmock/gmock.h>

namespace Korvex::Proc::Text
{
namespace
{

using Source = TextDecodeReport::Source;

struct Sample
{
    char const* encoding;
    std::vector<std::string> lines; ///< the first two alone are the short text
};

// Everyday sentences, written for this test.
std::vector<Sample> const& Samples()
{
    static std::vector<Sample> const SAMPLES = {
        {"CP1251",
         {"Ты опять опоздал на поезд?", "Я ждал тебя целый час.", "Ничего, завтра поедем вместе.",
          "Хорошо, только не забудь ключи."}},
        {"CP1251",
         {"Вече е късно, да тръгваме.", "Щом искаш, ще остана още малко.", "Майка ми ще се сърди.",
          "Нищо, ще обясня."}},
        {"CP1251", {"Немој да ме чекаш вечерас.", "Њена кћерка је отишла у школу.", "Шта ћеш сутра да радиш?"}},
        {"CP1250",
         {"Gdzie byłeś wczoraj wieczorem?", "Muszę już iść, jest późno.", "Dziękuję ci za wszystko.",
          "Nie ma sprawy, wróć szybko."}},
        {"CP1250", {"Proč jsi mi to neřekl dřív?", "Bál jsem se, že už nepřijdeš.", "Všechno bude v pořádku."}},
        {"CP1250", {"Nem értem, miért jöttél ide.", "Később majd elmesélem, ülj le.", "Jó éjszakát, kedves barátom."}},
        {"KOI8-R",
         {"Здесь никого нет, уходим.", "Подожди, я слышу шаги.", "Это просто ветер за окном.",
          "Всё равно мне страшно."}},
        {"KOI8-U",
         {"Де ти був увечері?", "Її сестра живе у Києві.", "Я нічого не знаю про це.",
          "Завтра зустрінемося біля ґанку."}},
        {"ISO-8859-3", {"Ĉu vi scias, kie ŝi loĝas?", "Jes, ĝi estas ĉe la malnova preĝejo.", "Dankon, ĝis morgaŭ."}},
        {"ISO-8859-7",
         {"Πού πήγες χθες το βράδυ;", "Δεν θέλω να μιλήσω γι' αυτό.", "Καλά, όπως νομίζεις.",
          "Η μητέρα σου περιμένει."}},
        {"ISO-8859-8", {"לאן אתה הולך עכשיו?", "אני חוזר הביתה, כבר מאוחר.", "תודה רבה על העזרה שלך."}},
        {"ISO-8859-9",
         {"Neden dün akşam gelmedin?", "Çok işim vardı, özür dilerim.", "Başka bir gün görüşürüz.",
          "Işığı kapatmayı unutma."}},
        {"ISO-8859-13",
         {"Kodėl tu man nieko nesakei?", "Nežinojau, ar tau tai rūpėtų.", "Ačiū, kad atėjai į svečius."}},
        {"ISO-8859-13",
         {"Kāpēc tu man neko neteici?", "Es nezināju, vai tevi tas interesē.", "Paldies, ka atnāci ciemos."}},
        {"ISO-8859-15",
         {"Où étais-tu passé hier soir ?", "Je suis resté à la fenêtre, ça m'a plu.", "Ma sœur t'a cherché partout."}},
        {"ISO-8859-15",
         {"Warum hast du nichts gesagt?", "Ich wollte dich nicht stören, schöne Grüße.",
          "Das müssen wir später klären."}},
        {"CP932",
         {"昨日の夜はどこにいたの？", "ごめん、仕事が終わらなかった。", "明日はきっと会えるよね。",
          "うん、約束する。"}},
        {"CP936", {"你昨天晚上去哪儿了？", "对不起，我没有时间给你打电话。", "没关系，我们明天再说吧。"}},
        {"BIG-5", {"你昨天晚上去哪裡了？", "對不起，我沒有時間給你打電話。", "沒關係，我們明天再說吧。"}},
    };
    return SAMPLES;
}

std::string MakeSubRip(std::vector<std::string> const& lines, std::size_t cueCount)
{
    std::string text;
    for (std::size_t cue = 0; cue < cueCount; ++cue)
    {
        char times[200];
        std::snprintf(times, sizeof times, "%zu\r\n00:%02zu:%02zu,000 --> 00:%02zu:%02zu,900\r\n", cue + 1, cue / 60,
                      cue % 60, cue / 60, cue % 60);
        text += times;
        text += (cue % 3 == 1 ? "<i>" + lines[cue % lines.size()] + "</i>" : lines[cue % lines.size()]) + "\r\n\r\n";
    }
    return text;
}

class EncodingDetectionTest : public testing::Test
{
protected:
    // The language of the machine must not decide what a test finds.
    Testing::ScopedVariable const m_locale{"LC_ALL", "C"};
};

TEST_F(EncodingDetectionTest, ReadsLongAndShortTextsInEveryEncoding)
{
    for (Sample const& sample : Samples())
    {
        for (std::size_t const cueCount : {std::size_t{2}, sample.lines.size(), std::size_t{600}})
        {
            std::string const text = MakeSubRip(sample.lines, cueCount);
            auto const decoded = DecodeText(Testing::EncodeText(text, sample.encoding), "");
            ASSERT_TRUE(decoded);
            // The same text counts, whatever the name: pages agree on many letters.
            EXPECT_EQ(decoded->utf8, text)
                << sample.encoding << " taken for " << decoded->report.encoding << " at " << cueCount;
            EXPECT_EQ(decoded->report.source, Source::Detector);
            EXPECT_GT(decoded->report.confidence, cueCount > 100 ? 0.9 : 0.3)
                << sample.encoding << ' ' << sample.lines[0];
            // By the name that the core offers, once there is text enough.
            EXPECT_TRUE(cueCount < 100 || decoded->report.encoding == sample.encoding) << decoded->report.encoding;
        }
    }
    // Bytes that only the Windows page has make it that page.
    EXPECT_EQ(DecodeText("\x93"
                         "D\xFCn ak\xFE"
                         "am nereye gittin, \xE7ok \xF6zledim\x94 dedi\n",
                         "")
                  ->report.encoding,
              "CP1254");
}

TEST_F(EncodingDetectionTest, NeitherCapitalsNorTagsMislead)
{
    std::string tagged = "[Script Info]\nTitle: a plain title\n[Events]\n";
    for (int i = 0; i < 300; ++i)
        tagged += "Dialogue: 0,0:00:01.00,0:00:02.00,Default,,0,0,0,,{\\pos(320,240)\\an8\\fs20\\b1}ok{\\b0}\n";
    tagged += "Dialogue: 0,0:00:01.00,0:00:02.00,Default,,0,0,0,,{\\i1}Уже поздно,\\Nпора домой{\\i0}\n";
    std::string const capitals = MakeSubRip({"ДОБРО ПОЖАЛОВАТЬ ДОМОЙ", "КОНЕЦ ПЕРВОЙ ЧАСТИ", "ЧЕТЫРЕ ГОДА СПУСТЯ",
                                             "НЕ ВХОДИТЬ, ОПАСНО ДЛЯ ЖИЗНИ", "ПОСЛЕДНИЕ НОВОСТИ ЭТОГО ЧАСА"},
                                            5);
    for (char const* const encoding : {"CP1251", "KOI8-R"})
    {
        for (std::string const& text : {capitals, tagged})
            EXPECT_EQ(DecodeText(Testing::EncodeText(text, encoding), "")->utf8, text) << encoding;
    }
}

TEST_F(EncodingDetectionTest, HintsAndTheLocaleTipTheScale)
{
    // One letter: "o" with two strokes in Hungarian, with a tilde in the west.
    std::string const bytes = "1\n00:00:01,000 --> 00:00:02,000\nMegn\xF5tt\n";
    DetectionHints hungarian;
    hungarian.languages = {"srt", "hu"};
    EXPECT_THAT(DecodeText(bytes, "", hungarian)->utf8, testing::HasSubstr("Megnőtt"));
    DetectionHints portuguese;
    portuguese.languages = {"pt-br"};
    EXPECT_THAT(DecodeText(bytes, "", portuguese)->utf8, testing::HasSubstr("Megnõtt"));

    // Nothing that reads as text: the usual code page of the user's machine, and what does not fit shows.
    std::string noise;
    for (unsigned i = 1, value = 1; i < 400; ++i)
    {
        value = value * 1664525u + 1013904223u;
        noise += static_cast<char>(0x80 + (value >> 25));
        noise += i % 5 == 0 ? "\x01 " : "";
    }
    Testing::ScopedVariable const russian("LC_ALL", "ru_RU.UTF-8");
    auto const fallback = DecodeText(noise, "");
    EXPECT_EQ(fallback->report.source, Source::Fallback);
    EXPECT_EQ(fallback->report.encoding, "CP1251");
    EXPECT_LT(fallback->report.confidence, 0.2);
}

TEST_F(EncodingDetectionTest, DamagedUtf8StaysUtf8)
{
    std::string text = MakeSubRip(Samples()[0].lines, 40);
    text[100] = '\xFF';
    text.resize(text.size() - 9);
    text += "\xD0";
    auto const decoded = DecodeText(text, "");
    EXPECT_EQ(decoded->report.encoding, "UTF-8");
    EXPECT_GE(decoded->report.replacedBytes, 2u);
    EXPECT_THAT(decoded->utf8, testing::HasSubstr("Ничего, завтра поедем вместе."));
    EXPECT_EQ(DecodeText("plain", "")->report.source, Source::ValidUtf8);
}

} // namespace
} // namespace Korvex::Proc::Text
