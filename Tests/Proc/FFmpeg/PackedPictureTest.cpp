#include "Proc/PackedPicture.h"

namespace Korvex::Proc
{

TEST(PackedPictureTest, UnpacksToWhatWasPackedAtEveryRunLength)
{
    std::vector<PackedPicture::Color> const palette{{0, 0, 0, 0}, {10, 20, 30, 255}, {200, 100, 50, 128}};
    std::vector<std::uint8_t> indices;
    for (std::size_t length : {1U, 2U, 3U, 127U, 128U, 129U, 130U, 131U, 260U, 1U, 1U})
        indices.insert(indices.end(), length, static_cast<std::uint8_t>(indices.size() % 3));
    // More single samples than one literal holds, the last colour outside the palette.
    for (int i = 0; i < 300; ++i)
        indices.push_back(static_cast<std::uint8_t>(i % 4));
    std::vector<std::uint8_t> expected;
    for (std::uint8_t const index : indices)
    {
        PackedPicture::Color const color = index < 3 ? palette[index] : PackedPicture::Color{};
        expected.insert(expected.end(), color.begin(), color.end());
    }
    EXPECT_EQ(PackedPicture(indices, palette).Unpack(), expected);
    EXPECT_TRUE(PackedPicture({}, palette).Unpack().empty());
}

} // namespace Korvex::Proc
