#include "Proc/Text/TextDecoder.h"

#include "SystemEncoder.h"

#include <gmock/gmock.h>

namespace Korvex::Proc::Text
{
namespace
{

using namespace std::string_literals;
using Source = TextDecodeReport::Source;

#define FFFD "\xEF\xBF\xBD"

DecodedText Decode(std::string const& bytes, std::string const& encoding = {})
{
    auto result = DecodeText(bytes, encoding);
    EXPECT_TRUE(result) << encoding;
    return result ? *result : DecodedText{};
}

TEST(TextDecoderTest, MarksDecide)
{
    std::string const text = "1\n00:00:01,000 --> 00:00:02,000\nZażółć 字幕 😀\n";
    for (auto const& [name, mark] : {std::pair{"UTF-8"s, "\xEF\xBB\xBF"s},
                                     {"UTF-16LE"s, "\xFF\xFE"s},
                                     {"UTF-16BE"s, "\xFE\xFF"s},
                                     {"UTF-32LE"s, "\xFF\xFE\0\0"s},
                                     {"UTF-32BE"s, "\0\0\xFE\xFF"s}})
    {
        std::string const encoded = Testing::EncodeText(text, name);
        auto const marked = Decode(mark + encoded);
        EXPECT_EQ(marked.utf8, text) << name;
        EXPECT_EQ(marked.report.encoding, name);
        EXPECT_EQ(marked.report.source, Source::ByteOrderMark);
        // The mark is right even where somebody states otherwise.
        EXPECT_EQ(Decode(mark + encoded, "CP1251").utf8, text) << name;
        auto const unmarked = Decode(encoded);
        EXPECT_EQ(unmarked.utf8, text) << name;
        EXPECT_EQ(unmarked.report.encoding, name);
    }
    EXPECT_EQ(Decode(Testing::EncodeText(text, "UTF-16LE"), "UTF-16LE").utf8, text);
}

TEST(TextDecoderTest, DecodesWhatEncodingsDoNotShare)
{
    struct Case
    {
        char const* encoding;
        std::string bytes;
        char const* text;
    };
    for (Case const& c : {
             Case{"CP1251", "\xC6\xF3\xEA \x93\xE0\x94", "Жук “а”"},
             Case{"ISO-8859-7", "\xDC\xF2\xA4", "άς€"},
             Case{"ISO-8859-15", "\xA4\xBD\xBC", "€œŒ"},
             Case{"CP932", "\x95\x5C\x8E\xA6 \x87\x40\xB1\x81\x60", "表示 ①ｱ～"},
             Case{"CP936", "\xD7\xD6\xC4\xBB\x80", "字幕€"},
             Case{"CP936", "\x81\x30\x8B\x37", "\xC3\xBF"}, // a character that only the larger page has
             Case{"BIG-5", "\xA6\x72\xB9\xF5 \xA3\xE1\xF9\xD6", "字幕 €碁"},
             Case{"BIG-5", "\xFA\x40", "\xF0\xA0\x95\x87"},  // Hong Kong
             Case{"ISO-8859-9", "\x93\xFE\x94\x85", "“ş”…"}, // what the Windows page has there
             Case{"windows-1252", "\x80", "€"},
             Case{"EUC-KR", "\xC7\xD1\xB1\xDB", "한글"},
         })
    {
        auto const decoded = Decode(c.bytes, c.encoding);
        EXPECT_EQ(decoded.utf8, c.text) << c.encoding;
        EXPECT_EQ(decoded.report.replacedBytes, 0u) << c.encoding;
        EXPECT_EQ(decoded.report.source, Source::Stated);
    }
    for (char const* const name : {"no-such", "UTF-8//IGNORE", "a b"})
    {
        auto const refused = DecodeText("x", name);
        ASSERT_FALSE(refused) << name;
        EXPECT_EQ(refused.GetError().code, Core::ErrorCode::InvalidSetting);
    }
}

TEST(TextDecoderTest, BadBytesAreShownAndCountedAndTakeNothingAlong)
{
    struct Case
    {
        char const* encoding;
        std::string bytes;
        std::string text;
        std::size_t replaced;
    };
    for (Case const& c : {
             Case{"UTF-8", "a\xFF\xFE\xC3z", "a" FFFD "z", 3},
             Case{"UTF-8", "\xE2\x82 \xC0\x80 \xED\xA0\x80 \xF4\x90\x80\x80", FFFD " " FFFD " " FFFD " " FFFD,
                  2 + 2 + 3 + 4},
             Case{"UTF-8", "\xC3"s, FFFD, 1},
             Case{"CP1251", "a\x98"s + "b", "a" FFFD "b", 1},
             Case{"CP932", "\x81\nnext", FFFD "\nnext", 1},
             Case{"CP932", "\x82\xA0\x82", "あ" FFFD, 1},
             Case{"CP936", "\xD7\xD6\xFF\xFFok", "字" FFFD "ok", 2},
             Case{"BIG-5",
                  "\xA6\x72\x81\x20"
                  "A",
                  "字" FFFD " A", 1},
             Case{"UTF-16LE",
                  "a\0\x00\xD8"
                  "b\0c"s,
                  "a" FFFD "b" FFFD, 3},
             Case{"UTF-8",
                  "a\0\0b\x01\x02"
                  "c"s,
                  "a" FFFD "b" FFFD "c", 4},
             Case{"UTF-8",
                  "\xD0\0\x96"s
                  "x",
                  "Ж" FFFD "x", 1}, // a zero byte split the letter
             Case{"UTF-8", "end\n\x1A", "end\n", 0},
             Case{"UTF-8", "end\n\0\0\0"s, "end\n", 3},
             Case{"ISO-8859-7", "\xE1\xD2\xE2", "α" FFFD "β", 1},
         })
    {
        auto const decoded = Decode(c.bytes, c.encoding);
        EXPECT_EQ(decoded.utf8, c.text) << c.encoding << ' ' << testing::PrintToString(c.bytes);
        EXPECT_EQ(decoded.report.replacedBytes, c.replaced) << c.encoding << ' ' << testing::PrintToString(c.bytes);
    }
}

TEST(TextDecoderTest, RepairsTextOfPieces)
{
    std::size_t replaced = 0;
    EXPECT_EQ(RepairUtf8("\xD0\x96\xD0", replaced), "Ж" FFFD);
    EXPECT_EQ(replaced, 1u);
    // Lines in two encodings: neither may spoil the other.
    std::string mixed;
    std::string expected;
    for (int i = 0; i < 6; ++i)
    {
        mixed += Testing::EncodeText("Это строка старого файла, её нужно прочесть верно\n", "CP1251");
        expected += "Это строка старого файла, её нужно прочесть верно\n";
    }
    for (int i = 0; i < 6; ++i)
    {
        mixed += "これは新しいファイルの行です\n";
        expected += "これは新しいファイルの行です\n";
    }
    auto const decoded = Decode(mixed);
    EXPECT_EQ(decoded.utf8, expected);
    EXPECT_EQ(decoded.report.encoding, "CP1251");
}

} // namespace
} // namespace Korvex::Proc::Text
