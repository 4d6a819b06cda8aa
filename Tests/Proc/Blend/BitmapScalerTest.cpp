#include "Proc/Blend/BitmapScaler.h"

#include <algorithm>
#include <cstdlib>

namespace Korvex::Proc::Tests
{
namespace
{

using Pixels = std::vector<std::uint8_t>;

/// A solid square of one colour in the middle of clear pixels of another.
Pixels MakeSquare(int size, int border)
{
    Pixels rgba;
    for (int i = 0; i < size * size; ++i)
    {
        int const x = i % size;
        int const y = i / size;
        bool const isInside = std::min(x, y) >= border && std::max(x, y) < size - border;
        for (int const value : {isInside ? 200 : 255, isInside ? 100 : 0, isInside ? 50 : 255, isInside ? 255 : 0})
            rgba.push_back(static_cast<std::uint8_t>(value));
    }
    return rgba;
}

double SumOfOpacity(Pixels const& rgba)
{
    double sum = 0.0;
    for (std::size_t i = 3; i < rgba.size(); i += 4)
        sum += rgba[i];
    return sum / 255.0;
}

TEST(BitmapScaler, KeepsAreaAndColourInEveryDirection)
{
    Pixels const square = MakeSquare(24, 6);
    double const area = SumOfOpacity(square);
    for (auto const& [width, height] : {std::pair{24, 24}, {12, 12}, {36, 36}, {17, 31}, {5, 7}, {100, 9}})
    {
        Pixels const scaled = Blend::ScaleRgba(square.data(), 24, 24, width, height);
        ASSERT_EQ(scaled.size(), 4U * static_cast<unsigned>(width * height));
        double const expected = area * width * height / (24.0 * 24.0);
        EXPECT_NEAR(SumOfOpacity(scaled), expected, 0.03 * expected) << width << 'x' << height;
        // Nothing of the clear pixels' magenta.
        for (std::size_t i = 0; i < scaled.size(); i += 4)
            ASSERT_TRUE(scaled[i + 3] == 0 || (std::abs(scaled[i] - 200) <= 1 && std::abs(scaled[i + 1] - 100) <= 1 &&
                                               std::abs(scaled[i + 2] - 50) <= 1));
    }
    Pixels const same = Blend::ScaleRgba(square.data(), 24, 24, 24, 24);
    for (std::size_t i = 3; i < same.size(); i += 4)
        ASSERT_EQ(same[i], square[i]);
}

TEST(BitmapScaler, CopesWithOnePixel)
{
    Pixels const pixel{1, 2, 3, 255};
    EXPECT_EQ(Blend::ScaleRgba(pixel.data(), 1, 1, 1, 1), pixel);
    EXPECT_EQ(Blend::ScaleRgba(pixel.data(), 1, 1, 3, 2).size(), 24U);
    EXPECT_EQ(Blend::ScaleRgba(MakeSquare(9, 0).data(), 9, 9, 1, 1), (Pixels{200, 100, 50, 255}));
}

} // namespace
} // namespace Korvex::Proc::Tests
