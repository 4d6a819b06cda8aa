#include "Proc/TextSample.h"

#include "Support/Environment.h"
#include "Support/MediaMaker.h"
#include "SystemEncoder.h"

#include <gmock/gmock.h>

namespace Korvex::Proc
{
namespace
{

using Source = TextDecodeReport::Source;
using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class TextSampleTest : public testing::Test
{
protected:
    ioPath Write(std::string const& name, std::string const& bytes) const { return m_folder.Write(name, bytes); }

    // The language of the machine must not decide what a test finds.
    Testing::ScopedVariable const m_locale{"LC_ALL", "C"};
    Testing::TemporaryFolder const m_folder;
};

std::string MakeCue(std::size_t number, std::string const& text)
{
    char times[80];
    std::snprintf(times, sizeof times, "%zu\n%02zu:%02zu:%02zu,000 --> %02zu:%02zu:%02zu,900\n", number, number / 3600,
                  number / 60 % 60, number % 60, number / 3600, number / 60 % 60, number % 60);
    return times + text + "\n\n";
}

std::string const RUSSIAN = MakeCue(1, "<i>Ты опять опоздал на поезд?</i>") + MakeCue(2, "Я ждал тебя\nцелый час.") +
                            MakeCue(3, "{\\an8}Ничего, завтра поедем вместе.");

TEST_F(TextSampleTest, ShowsWhatAWrongEncodingReadsLikeAndOffersTheRightOneFirst)
{
    ioPath const path = Write("film.srt", Testing::EncodeText(RUSSIAN, "CP1251"));
    auto const detected = ReadTextSample(path, "");
    ASSERT_TRUE(detected);
    EXPECT_THAT(detected->lines, ElementsAre("Ты опять опоздал на поезд?", "Я ждал тебя", "целый час.",
                                             "Ничего, завтра поедем вместе."));
    EXPECT_EQ(detected->decoding.encoding, "CP1251");
    EXPECT_EQ(detected->decoding.source, Source::Detector);
    EXPECT_GT(detected->decoding.confidence, 0.9);
    EXPECT_THAT(detected->alternatives, Each(Field(&TextAlternative::encoding, Not("CP1251"))));
    for (TextAlternative const& alternative : detected->alternatives)
    {
        EXPECT_LT(alternative.confidence, 0.1);
        auto const other = ReadTextSample(path, alternative.encoding);
        EXPECT_EQ(other->lines.front(), alternative.line) << alternative.encoding;
    }

    auto const wrong = ReadTextSample(path, "KOI8-R");
    ASSERT_TRUE(wrong);
    EXPECT_EQ(wrong->decoding.source, Source::Stated);
    EXPECT_EQ(wrong->detected.encoding, "CP1251");
    ASSERT_THAT(wrong->alternatives, Not(IsEmpty()));
    EXPECT_EQ(wrong->alternatives.front().encoding, "CP1251");
    EXPECT_EQ(wrong->alternatives.front().line, "Ты опять опоздал на поезд?");
    // Page KOI8-U gives the very same text for Russian.
    EXPECT_THAT(wrong->alternatives, Each(Field(&TextAlternative::encoding, Not("KOI8-U"))));
}

std::vector<std::string> ListAlternatives(ioPath const& path)
{
    std::vector<std::string> encodings;
    auto const sample = ReadTextSample(path, "");
    for (TextAlternative const& alternative : sample->alternatives)
        encodings.push_back(alternative.encoding);
    return encodings;
}

TEST_F(TextSampleTest, OffersWhatMayBeMeantAndNoOtherScriptForALongText)
{
    std::string const czech = MakeCue(1, "Kde jsi včera byl? Čekal jsem celou hodinu. Nevadí, zítra pojedeme.");
    std::string const chinese = MakeCue(1, "你昨天在哪里？我等了你一个小时。没关系，明天我们一起去吧。");
    std::string const western = MakeCue(1, "Où étais-tu hier ? Ça ne fait rien, on ira demain à la fête entière.");
    std::string russian;
    for (std::size_t cue = 1; cue < 100; ++cue)
        russian += RUSSIAN;
    // Page KOI8-R is the other one for Russian, KOI8-U reads alike.
    EXPECT_THAT(ListAlternatives(Write("a.srt", Testing::EncodeText(russian, "CP1251"))), ElementsAre("KOI8-R"));
    EXPECT_THAT(ListAlternatives(Write("b.srt", Testing::EncodeText(RUSSIAN, "CP1251"))), ElementsAre("KOI8-R"));
    EXPECT_THAT(ListAlternatives(Write("c.srt", Testing::EncodeText(czech, "CP1250"))),
                testing::Contains("ISO-8859-15"));
    EXPECT_THAT(ListAlternatives(Write("d.srt", Testing::EncodeText(chinese, "CP936"))), IsEmpty());
    EXPECT_THAT(ListAlternatives(Write("e.srt", Testing::EncodeText(western, "CP1252"))), IsEmpty());
    // So short a text may be anything.
    EXPECT_THAT(ListAlternatives(Write("f.srt", Testing::EncodeText(MakeCue(1, "Привет!"), "CP1251"))),
                testing::IsSupersetOf({"ISO-8859-7", "KOI8-R"}));
}

TEST_F(TextSampleTest, CountsWhatDoesNotDecodeInTheWholeFileAndShowsALineThatTells)
{
    std::string russian;
    for (std::size_t cue = 0; cue < 9000; ++cue)
        russian += MakeCue(cue, "Credits " + std::to_string(cue));
    for (std::size_t cue = 9000; cue < 14'000; ++cue)
        russian += MakeCue(cue, "Подожди, я слышу шаги.");
    std::string const bytes = Testing::EncodeText(russian, "CP1251");
    auto const sample = ReadTextSample(Write("film.srt", bytes), "UTF-8");
    ASSERT_TRUE(sample);
    EXPECT_EQ(sample->decoding.replacedBytes, 17U * 5000);
    ASSERT_THAT(sample->lines, SizeIs(5));
    EXPECT_THAT(sample->lines[4], HasSubstr("\xEF\xBF\xBD")) << "a line that tells, however late";
    ASSERT_THAT(sample->alternatives, Not(IsEmpty()));
    EXPECT_EQ(sample->alternatives.front().line, "Подожди, я слышу шаги.");
}

TEST_F(TextSampleTest, OffersNothingWhereNothingReadsOtherwise)
{
    EXPECT_THAT(ReadTextSample(Write("a.srt", MakeCue(1, "Nothing but ASCII.")), "CP1251")->alternatives, IsEmpty());
    EXPECT_THAT(ReadTextSample(Write("b.srt", RUSSIAN), "")->alternatives, IsEmpty());
    EXPECT_THAT(ReadTextSample(Write("c.srt", "\xEF\xBB\xBF" + RUSSIAN), "KOI8-R")->alternatives, IsEmpty());
    // What is UTF-8 without doubt is all that there is to offer to somebody who chose otherwise.
    auto const wrong = ReadTextSample(Write("d.srt", RUSSIAN), "CP1251");
    EXPECT_THAT(wrong->alternatives, ElementsAre(Field(&TextAlternative::encoding, "UTF-8")));
}

TEST_F(TextSampleTest, ReadsEveryFormatAndRefusesWhatIsNoText)
{
    std::string const script = "[Script Info]\nScriptType: v4.00+\n[V4+ Styles]\n[Events]\nDialogue: 0,0:00:01.00,"
                               "0:00:02.00,D,,0,0,0,,{\\p1}m 0 0 l 1 1{\\p0}\\{жил\\} был\\Nкот{\\i1}ик\n";
    EXPECT_THAT(ReadTextSample(Write("a.ass", Testing::EncodeText(script, "CP1251")), "CP1251")->lines,
                ElementsAre("{жил} был", "котик"));
    std::string const foreign = "WEBVTT\n\n00:01.000 --> 00:02.000\n<v Ann>Grüße &amp; Küsse</v>\n";
    EXPECT_THAT(ReadTextSample(Write("a.vtt", foreign), "")->lines, ElementsAre("Grüße & Küsse"));
    auto const film = ReadTextSample(Write("a.mkv", std::string("\x1A\x45\xDF\xA3", 4) + std::string(99, '\0')), "");
    EXPECT_EQ(film.GetError().code, Core::ErrorCode::FormatUnknown);
    auto const unknown = ReadTextSample(Write("b.srt", RUSSIAN), "CP9999");
    EXPECT_THAT(Core::ToSentence(unknown.GetError()), HasSubstr("b.srt"));
}

} // namespace
} // namespace Korvex::Proc
