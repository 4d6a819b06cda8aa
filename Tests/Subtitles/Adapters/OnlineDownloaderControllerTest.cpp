#include "Subtitles/Adapters/OnlineDownloaderController.h"

#include "Core/FileSystem.h"

namespace Korvex::Converter::Subtitles::Adapters
{
namespace
{

TEST(OnlineDownloaderControllerTest, FingerprintsBothEndsAndTheSize)
{
    ioPath const folder = std::move(Core::CreateWorkFolder()).Value();
    // Zeros but for one word in the first block, one in the last, and one between them that does not count.
    std::string bytes(200000, '\0');
    bytes[8] = '\x02';
    bytes[100000] = '\x7f';
    bytes[199999] = '\x10'; // the top byte of the last block's last word
    ASSERT_FALSE(Core::WriteFile(folder / "film.mkv", bytes, false));
    ASSERT_FALSE(Core::WriteFile(folder / "short.mkv", bytes.substr(0, 131071), false));

    OnlineDownloaderController const controller;
    auto const fingerprint = controller.DetermineFingerprint(folder / "film.mkv");
    ASSERT_TRUE(fingerprint);
    EXPECT_EQ(fingerprint->byteSize, 200000u);
    EXPECT_EQ(fingerprint->hash, "1000000000030d42"); // 0x10 << 56, plus 200000 (0x30d40), plus 2
    EXPECT_FALSE(controller.DetermineFingerprint(folder / "short.mkv"));
    EXPECT_FALSE(controller.DetermineFingerprint(folder / "missing.mkv"));
    Core::RemoveWorkFolder(folder);
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Adapters
