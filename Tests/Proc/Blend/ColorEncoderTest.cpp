#include "Proc/Blend/ColorEncoder.h"

#include "Proc/Blend/TestPicture.h"

namespace Korvex::Proc::Tests
{
namespace
{

using Codes = std::array<int, 3>;

constexpr RgbColor WHITE{255, 255, 255};
constexpr RgbColor RED{255, 0, 0};

struct Case
{
    PixelLayout layout;
    ColorDescription color;
};

Codes Rounded(Case const& c, RgbColor color, std::optional<YuvMatrix> authored = std::nullopt)
{
    auto const fixed = Blend::ColorEncoder(c.layout, c.color, authored).EncodeFixed(color);
    int const fraction = 16 - c.layout.bitDepth;
    Codes codes{};
    for (std::size_t i = 0; i < codes.size(); ++i)
        codes[i] = (fixed[i] + (1 << (fraction - 1))) >> fraction;
    return codes;
}

Case Yuv(int depth, YuvMatrix matrix, SampleRange range, TransferFunction transfer = TransferFunction::Sdr)
{
    Case c{PlanarYuv(depth, 1, 1), {}};
    c.color.matrix = matrix;
    c.color.range = range;
    c.color.transfer = transfer;
    c.color.isWideGamut = transfer != TransferFunction::Sdr;
    return c;
}

TEST(ColorEncoder, FollowsMatrixRangeAndDepth)
{
    // Worked out by hand from the recommendations' coefficients.
    EXPECT_EQ(Rounded(Yuv(8, YuvMatrix::Bt601, SampleRange::Limited), RED), (Codes{81, 90, 240}));
    EXPECT_EQ(Rounded(Yuv(8, YuvMatrix::Bt709, SampleRange::Limited), RED), (Codes{63, 102, 240}));
    EXPECT_EQ(Rounded(Yuv(8, YuvMatrix::Bt601, SampleRange::Full), RED), (Codes{76, 85, 255}));
    EXPECT_EQ(Rounded(Yuv(10, YuvMatrix::Bt2020, SampleRange::Limited), RED), (Codes{294, 387, 960}));
    EXPECT_EQ(Rounded(Yuv(8, YuvMatrix::Bt709, SampleRange::Limited), WHITE), (Codes{235, 128, 128}));
    EXPECT_EQ(Rounded(Yuv(10, YuvMatrix::Bt709, SampleRange::Limited), WHITE), (Codes{940, 512, 512}));
    EXPECT_EQ(Rounded(Yuv(12, YuvMatrix::Bt709, SampleRange::Full), WHITE), (Codes{4095, 2048, 2048}));
    EXPECT_EQ(Rounded(Yuv(12, YuvMatrix::Bt709, SampleRange::Limited), {0, 0, 0}), (Codes{256, 2048, 2048}));

    Case rgb{PackedRgb({0, 1, 2}), {}};
    EXPECT_EQ(Rounded(rgb, {255, 128, 0}), (Codes{235, 126, 16}));
    rgb.color.range = SampleRange::Full;
    EXPECT_EQ(Rounded(rgb, {255, 128, 0}), (Codes{255, 128, 0}));
}

TEST(ColorEncoder, PutsTextWhiteWhereHdrGraphicsBelong)
{
    // 203 cd/m2 is 58.07 % of PQ; HLG has 75 % for it. Greys stay without colour.
    Case const pq = Yuv(10, YuvMatrix::Bt2020, SampleRange::Limited, TransferFunction::Pq);
    Case const hlg = Yuv(10, YuvMatrix::Bt2020, SampleRange::Limited, TransferFunction::Hlg);
    EXPECT_EQ(Rounded(pq, WHITE), (Codes{573, 512, 512}));
    EXPECT_EQ(Rounded(hlg, WHITE), (Codes{721, 512, 512}));
    EXPECT_EQ(Rounded(pq, {0, 0, 0}), (Codes{64, 512, 512}));
    EXPECT_EQ(Rounded(hlg, {0, 0, 0}), (Codes{64, 512, 512}));
    EXPECT_EQ(Rounded(pq, {90, 90, 90})[1], 512);

    // sRGB red is well inside the wide gamut: it needs some green, and its difference signal is not at the end.
    EXPECT_LT(Rounded(pq, RED)[2], 800);
    EXPECT_GT(Rounded(pq, RED)[2], 600);
    Case wide = Yuv(8, YuvMatrix::Bt2020, SampleRange::Limited);
    wide.color.isWideGamut = true;
    EXPECT_EQ(Rounded(wide, WHITE), (Codes{235, 128, 128}));
    EXPECT_LT(Rounded(wide, RED)[2], 230);
}

TEST(ColorEncoder, RepeatsAScriptsMatrixOnSdrPicturesOnly)
{
    Case const sdr = Yuv(8, YuvMatrix::Bt709, SampleRange::Limited);
    EXPECT_EQ(Rounded(sdr, RED, YuvMatrix::Bt601), (Codes{81, 90, 240}));
    EXPECT_EQ(Rounded(sdr, RED, YuvMatrix::Bt709), (Codes{63, 102, 240}));
    // The range stays the picture's, and where old renderers never were nothing is repeated.
    EXPECT_EQ(Rounded(Yuv(8, YuvMatrix::Bt709, SampleRange::Full), WHITE, YuvMatrix::Bt601)[0], 255);
    for (Case const& hdr : {Yuv(10, YuvMatrix::Bt2020, SampleRange::Limited),
                            Yuv(10, YuvMatrix::Bt2020, SampleRange::Limited, TransferFunction::Pq)})
        EXPECT_EQ(Rounded(hdr, RED, YuvMatrix::Bt601), Rounded(hdr, RED));
}

} // namespace
} // namespace Korvex::Proc::Tests
