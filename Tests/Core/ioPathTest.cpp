#include "Core/ioPath.h"
#include "Core/Error.h"

namespace Korvex
{
namespace
{

TEST(ioPathTest, TakesPathsApart)
{
    struct Case
    {
        char const* path;
        char const* parent;
        char const* name;
        char const* stem;
        char const* extension;
    };
    for (Case const& c : {Case{"/films/Élan vital.en.SRT", "/films", "Élan vital.en.SRT", "Élan vital.en", "SRT"},
                          Case{"movie", "", "movie", "movie", ""}, Case{"/movie.", "/", "movie.", "movie", ""},
                          Case{"a.b/.hidden", "a.b", ".hidden", ".hidden", ""}, Case{"a/..", "a", "..", "..", ""},
                          Case{"folder/", "folder", "", "", ""}})
    {
        ioPath const path(c.path);
        EXPECT_EQ(path.Parent().utf8string(), c.parent) << c.path;
        EXPECT_EQ(path.FileName(), c.name) << c.path;
        EXPECT_EQ(path.Stem(), c.stem) << c.path;
        EXPECT_EQ(path.Extension(), c.extension) << c.path;
    }
}

TEST(ioPathTest, JoinsWithOneSeparator)
{
    EXPECT_EQ((ioPath("a") / "b").utf8string(), "a/b");
    EXPECT_EQ((ioPath("/") / "b").utf8string(), "/b");
    EXPECT_EQ((ioPath() / "b").utf8string(), "b");
}

TEST(ErrorTest, EverySentenceNamesTheFileAndEnds)
{
    for (int code = 0; code <= static_cast<int>(Core::ErrorCode::Internal); ++code)
    {
        Core::Error error;
        error.code = static_cast<Core::ErrorCode>(code);
        error.file = "/films/some.mkv";
        error.detail = "why it is so";
        std::string const sentence = Core::ToSentence(error);
        EXPECT_NE(sentence.find("/films/some.mkv"), std::string::npos) << sentence;
        EXPECT_EQ(sentence.back(), '.') << sentence;
        EXPECT_EQ(sentence.find(".."), std::string::npos) << sentence;
    }
}

} // namespace
} // namespace Korvex
