#include "Core/FileSystem.h"

#include <boost/filesystem.hpp>

namespace Korvex::Core
{
namespace
{

class FileSystemTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        auto folder = CreateWorkFolder();
        ASSERT_TRUE(folder) << ToSentence(folder.GetError());
        m_folder = *folder;
    }
    void TearDown() override { RemoveWorkFolder(m_folder); }

    [[nodiscard]] ioPath Path(std::string const& name) const { return m_folder / name; }
    [[nodiscard]] std::string Content(ioPath const& path) const
    {
        auto bytes = ReadFile(path, 1 << 20);
        return bytes ? *bytes : "failed: " + ToSentence(bytes.GetError());
    }

    ioPath m_folder;
};

TEST_F(FileSystemTest, WritesAsideAndNeverOverAnExistingFileUnasked)
{
    ioPath const target = Path("фильм.srt");
    ASSERT_FALSE(WriteFile(target, "one", false));
    Status const refused = WriteFile(target, "two", false);
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->code, ErrorCode::OutputExists);
    EXPECT_EQ(Content(target), "one");
    ASSERT_FALSE(WriteFile(target, "three", true));
    EXPECT_EQ(Content(target), "three");
    EXPECT_EQ(ListFolder(m_folder), std::vector<std::string>{"фильм.srt"}) << "no temporary file may stay behind";
}

TEST_F(FileSystemTest, AFinishedFileStandsUnderTheNextFreeNameWhereItsOwnIsTaken)
{
    auto const commit = [this](std::string const& name)
    {
        EXPECT_FALSE(WriteFile(Path("done"), "new", true));
        auto const written = CommitFile(Path("done"), Path(name), TakenName::NextFree);
        EXPECT_TRUE(written && Content(*written) == "new");
        return written ? written->FileName() : "failed: " + ToSentence(written.GetError());
    };
    for (char const* taken : {"film.mkv", "film (2).mkv", "film (1999).mkv", "plain", "() (.mkv"})
        ASSERT_FALSE(WriteFile(Path(taken), "old", false));
    EXPECT_EQ(commit("free.mkv"), "free.mkv");
    EXPECT_EQ(commit("film.mkv"), "film (3).mkv");
    EXPECT_EQ(commit("film (2).mkv"), "film (4).mkv");
    EXPECT_EQ(commit("film (1999).mkv"), "film (1999) (2).mkv") << "a year is no number";
    EXPECT_EQ(commit("plain"), "plain (2)");
    EXPECT_EQ(commit("() (.mkv"), "() ( (2).mkv");
    EXPECT_EQ(Content(Path("film.mkv")), "old");
    EXPECT_EQ(Content(Path("film (2).mkv")), "old");
}

TEST_F(FileSystemTest, SaysWhyAFileCannotBeReadOrWritten)
{
    ASSERT_FALSE(WriteFile(Path("big"), std::string(5000, 'x'), false));
    EXPECT_EQ(ReadFile(Path("absent"), 10).GetError().code, ErrorCode::FileNotFound);
    EXPECT_EQ(ReadFile(m_folder, 10).GetError().code, ErrorCode::FileUnreadable);
    EXPECT_EQ(ReadFile(Path("big"), 4999).GetError().code, ErrorCode::FileUnreadable);
    EXPECT_TRUE(ReadFile(Path("big"), 5000));
    EXPECT_EQ(WriteFile(Path("absent") / "file", "x", false)->code, ErrorCode::OutputNotWritable);
}

TEST_F(FileSystemTest, ChecksOutputsBeforeAnythingIsWritten)
{
    ioPath const input = Path("in.mkv");
    ASSERT_FALSE(WriteFile(input, "film", false));
    boost::filesystem::create_symlink("in.mkv", Path("link.mkv").utf8string());

    EXPECT_FALSE(CheckOutput(Path("out.mkv"), {input}, false));
    EXPECT_EQ(CheckOutput(input, {input}, true)->code, ErrorCode::OutputIsInput);
    EXPECT_EQ(CheckOutput(Path("link.mkv"), {input}, true)->code, ErrorCode::OutputIsInput);
    EXPECT_EQ(CheckOutput(m_folder / "." / "in.mkv", {input}, true)->code, ErrorCode::OutputIsInput);
    EXPECT_EQ(CheckOutput(input, {}, false)->code, ErrorCode::OutputExists);
    EXPECT_EQ(CheckOutput(Path("absent") / "out.mkv", {input}, false)->code, ErrorCode::OutputFolderMissing);
    EXPECT_EQ(CheckOutput(m_folder, {input}, true)->code, ErrorCode::OutputNotWritable);
#if !defined(_WIN32)
    auto const refused = CheckOutput("/dev/null", {input}, true);
    ASSERT_TRUE(refused) << "renaming would replace the device by a file";
    EXPECT_EQ(refused->code, ErrorCode::OutputNotWritable);
#endif
}

TEST_F(FileSystemTest, TemporaryNamesStayBesideTheTargetAndWithinTheLimit)
{
    ioPath const target = Path(std::string(250, 'n') + ".mp4");
    ioPath const temporary = MakeTemporaryPath(target);
    EXPECT_EQ(temporary.Parent(), m_folder);
    EXPECT_EQ(temporary.Extension(), "mp4");
    EXPECT_LE(temporary.FileName().size(), 255U);
    EXPECT_NE(MakeTemporaryPath(target), temporary);
}

} // namespace
} // namespace Korvex::Core
