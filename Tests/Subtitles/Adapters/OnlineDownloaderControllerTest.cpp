#include "Support/MediaMaker.h"

#include "Subtitles/Adapters/OnlineDownloaderController.h"

#include <QFile>

namespace Korvex::Converter::Subtitles::Adapters
{
namespace
{

TEST(OnlineDownloaderControllerTest, FingerprintsBothEndsAndTheSize)
{
    Korvex::Testing::TemporaryFolder const folder;
    // Zeros but for one word in the first block, one in the last, and one between them that does not count.
    std::string bytes(200000, '\0');
    bytes[8] = '\x02';
    bytes[100000] = '\x7f';
    bytes[199999] = '\x10'; // the top byte of the last block's last word
    folder.Write("film.mkv", bytes);
    folder.Write("short.mkv", bytes.substr(0, 131071));

    OnlineDownloaderController const controller;
    auto const fingerprint = controller.DetermineFingerprint(folder / "film.mkv");
    ASSERT_TRUE(fingerprint);
    EXPECT_EQ(fingerprint->byteSize, 200000u);
    EXPECT_EQ(fingerprint->hash, "1000000000030d42"); // 0x10 << 56, plus 200000 (0x30d40), plus 2
    EXPECT_FALSE(controller.DetermineFingerprint(folder / "short.mkv"));
    EXPECT_FALSE(controller.DetermineFingerprint(folder / "missing.mkv"));

    auto const getHash = [&](std::string const& content)
    {
        return controller.DetermineFingerprint(folder.Write("vector.mkv", content))
            .value_or(UseCases::MediaFingerprint())
            .hash;
    };
    std::string counting(200000, '\0');
    for (std::size_t i = 0; i < counting.size(); ++i)
        counting[i] = static_cast<char>(i & 0xFF);
    EXPECT_EQ(getHash(std::string(131072, '\0')), "0000000000020000");
    EXPECT_EQ(getHash(std::string(131072, '\xFF')), "000000000001c000"); // the sum passes 2^64
    EXPECT_EQ(getHash(counting.substr(0, 131072)), "a0601fdf9f610000");
    EXPECT_EQ(getHash(counting), "a0601fdf9f620d40");

    QFile large(QString::fromStdString((folder / "vector.mkv").utf8string()));
    ASSERT_TRUE(large.resize(Q_INT64_C(0x140030000))); // with a hole, so that it takes no space
    EXPECT_EQ(controller.DetermineFingerprint(folder / "vector.mkv")->byteSize, 0x140030000u);
    EXPECT_FALSE(controller.DetermineFingerprint(folder.Path()));
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Adapters
