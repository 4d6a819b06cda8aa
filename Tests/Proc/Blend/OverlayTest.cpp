#include "Proc/Blend/TestPicture.h"

#include "Proc/Blend/ColorEncoder.h"
#include "Proc/Blend/Overlay.h"

#include <algorithm>
#include <cmath>

namespace Korvex::Proc::Tests
{
namespace
{

/// Blends as plainly as it can be said, sample by sample, in double precision.
class Reference
{
public:
    Reference(Blend::Ink const& ink, PictureView const& kind) : m_kind(kind)
    {
        m_pixels.resize(static_cast<std::size_t>(kind.width * kind.height), {0.0, 0.0, 0.0, 1.0});
        Blend::ColorEncoder const encoder(kind.layout, kind.color, ink.authoredMatrix);
        for (Blend::MaskLayer const& layer : ink.masks)
        {
            for (int i = 0; i < layer.width * layer.height; ++i)
                Cover(layer.x + i % layer.width, layer.y + i / layer.width,
                      layer.coverage[i / layer.width * layer.stride + i % layer.width] / 255.0 * layer.opacity / 255.0,
                      encoder.Encode(layer.color));
        }
        for (Blend::RgbaLayer const& layer : ink.bitmaps)
        {
            for (int i = 0; i < layer.width * layer.height; ++i)
            {
                std::uint8_t const* const p = layer.rgba + 4 * i;
                Cover(layer.x + i % layer.width, layer.y + i / layer.width, p[3] / 255.0,
                      encoder.Encode({p[0], p[1], p[2]}));
            }
        }
    }

    /// What the sample should be after blending, with a fraction.
    [[nodiscard]] double Expected(TestPicture const& picture, int component, int x, int y) const
    {
        Pixel const ink = InkOf(component, x, y);
        double const peak = (1 << m_kind.layout.bitDepth) - 1;
        bool const isAlpha = component == 3 || (m_kind.layout.model == ColorModel::Gray && component == 1);
        double const added = isAlpha ? (1.0 - ink[KEEP]) * peak : ink[static_cast<std::size_t>(component)];
        return std::min(picture.Original(component, x, y) * ink[KEEP] + added, peak);
    }

private:
    /// The colour on top, premultiplied, and what is left of the picture.
    using Pixel = std::array<double, 4>;
    static constexpr std::size_t KEEP = 3;

    /// Averaged over the area that the sample stands for; each point has the ink of the luma sample it falls into.
    [[nodiscard]] Pixel InkOf(int component, int x, int y) const
    {
        bool const isChroma = m_kind.layout.model == ColorModel::Yuv && (component == 1 || component == 2);
        int const shiftX = isChroma ? m_kind.layout.chromaShiftX : 0;
        int const shiftY = isChroma ? m_kind.layout.chromaShiftY : 0;
        Pixel sum{};
        int const pointsX = shiftX == 0 ? 1 : 16 << shiftX;
        int const pointsY = shiftY == 0 ? 1 : 16 << shiftY;
        for (int i = 0; i < pointsX * pointsY; ++i)
        {
            int const column =
                LumaAt(x, shiftX, m_kind.color.chromaSite.x, (i % pointsX + 0.5) / pointsX, m_kind.width, 1);
            int const row = LumaAt(y, shiftY, m_kind.color.chromaSite.y, (i / pointsX + 0.5) / pointsY, m_kind.height,
                                   m_kind.isInterlaced ? 2 : 1);
            for (std::size_t c = 0; c < sum.size(); ++c)
                sum[c] += m_pixels[static_cast<std::size_t>(row * m_kind.width + column)][c] / (pointsX * pointsY);
        }
        return sum;
    }

    void Cover(int x, int y, double alpha, std::array<double, 3> const& color)
    {
        if (x < 0 || y < 0 || x >= m_kind.width || y >= m_kind.height)
            return;
        Pixel& pixel = m_pixels[static_cast<std::size_t>(y * m_kind.width + x)];
        pixel[KEEP] *= 1.0 - alpha;
        for (std::size_t c = 0; c < color.size(); ++c)
            pixel[c] = pixel[c] * (1.0 - alpha) + color[c] * alpha;
    }

    /// The luma column or row at a point `part` of the way through the area of a chroma sample. Chroma rows take turns
    /// between the fields, as luma rows do.
    static int LumaAt(int at, int shift, int site, double part, int size, int fieldCount)
    {
        if (shift == 0)
            return at;
        int const field = at % fieldCount;
        int const lines = (size + fieldCount - 1 - field) / fieldCount;
        double const middle = ((at << shift) + site / 4.0 - field) / fieldCount + 0.5;
        int const line = static_cast<int>(std::floor(middle + (part - 0.5) * (1 << shift)));
        return std::clamp(line, 0, lines - 1) * fieldCount + field;
    }

    PictureView m_kind;
    std::vector<Pixel> m_pixels;
};

/// A soft-edged blob, so that coverage of every strength occurs.
std::vector<std::uint8_t> MakeBlob(int width, int height)
{
    std::vector<std::uint8_t> mask;
    for (int y = 0; y < height; ++y)
    {
        for (int x = 0; x < width; ++x)
        {
            double const dx = (x + 0.5) / width * 2.0 - 1.0;
            double const dy = (y + 0.5) / height * 2.0 - 1.0;
            double const ripple = 0.15 * std::sin(x * 1.7 + y * 0.9);
            mask.push_back(
                static_cast<std::uint8_t>(std::clamp(1.6 - 1.7 * std::hypot(dx, dy) + ripple, 0.0, 1.0) * 255));
        }
    }
    return mask;
}

/// An outlined, shadowed, translucent drawing that reaches over the picture's edges.
struct Drawing
{
    std::vector<std::uint8_t> large = MakeBlob(41, 23);
    std::vector<std::uint8_t> small = MakeBlob(19, 11);
    std::vector<std::uint8_t> rgba;
    Blend::Ink ink;

    Drawing(int width, int height)
    {
        for (int i = 0; i < 13 * 9; ++i)
        {
            for (int const value : {i * 7, 255 - i, i * 29, i % 3 == 0 ? 255 : i * 2})
                rgba.push_back(static_cast<std::uint8_t>(value));
        }
        ink.masks = {{5, 3, 41, 23, 41, large.data(), {20, 30, 40}, 150},
                     {3, 1, 41, 23, 41, large.data(), {0, 0, 0}, 255},
                     {14, 7, 19, 11, 19, small.data(), {250, 200, 40}, 255},
                     {width - 20, height - 9, 41, 23, 41, large.data(), {255, 255, 255}, 255},
                     {-7, height - 8, 19, 11, 19, small.data(), {10, 90, 250}, 220}};
        ink.bitmaps = {{width / 2 - 3, height / 2, 13, 9, rgba.data()}};
    }
};

struct Kind
{
    char const* name;
    PixelLayout layout;
    ColorDescription color;
    bool isInterlaced = false;
    RowOrder order = RowOrder::TopDown;
    int width = 61;
    int height = 37;
};

ColorDescription Sited(int x, int y)
{
    ColorDescription color;
    color.chromaSite = {x, y};
    return color;
}

PixelLayout Yuyv()
{
    PixelLayout layout;
    layout.chromaShiftY = 0;
    layout.components = {{{0, 2, 0}, {0, 4, 1}, {0, 4, 3}, {}}};
    return layout;
}

PixelLayout GrayAlpha()
{
    PixelLayout layout = GrayLayout(8);
    layout.componentCount = 2;
    layout.components = {{{0, 2, 0}, {0, 2, 1}, {}, {}}};
    return layout;
}

PixelLayout WithAlpha(PixelLayout layout)
{
    layout.componentCount = 4;
    return layout;
}

PixelLayout PlanarRgb(int bitDepth)
{
    PixelLayout layout = PlanarYuv(bitDepth, 0, 0);
    layout.model = ColorModel::Rgb;
    return layout;
}

class OverlayKinds : public testing::TestWithParam<Kind>
{
};

TEST_P(OverlayKinds, AgreesWithPlainBlendingInDoublePrecision)
{
    Kind const& kind = GetParam();
    TestPicture picture(kind.width, kind.height, kind.layout, kind.order);
    picture.View().color = kind.color;
    picture.View().isInterlaced = kind.isInterlaced;
    Drawing const drawing(kind.width, kind.height);
    Blend::Overlay overlay;
    overlay.Build(drawing.ink, picture.View());
    ASSERT_TRUE(overlay.BlendOnto(picture.View()));
    EXPECT_FALSE(picture.IsGuardTouched());
    // Half a level is rounding; twelve bits leave only a sixteenth of a level to calculate with.
    double const tolerance = kind.layout.bitDepth == 12 ? 0.85 : 0.56;
    Reference const reference(drawing.ink, picture.View());
    for (int c = 0; c < kind.layout.componentCount; ++c)
    {
        for (int i = 0; i < picture.Width(c) * picture.Height(c); ++i)
        {
            int const x = i % picture.Width(c);
            int const y = i / picture.Width(c);
            ASSERT_NEAR(picture.Sample(c, x, y), reference.Expected(picture, c, x, y), tolerance)
                << "component " << c << " at " << x << ',' << y;
        }
    }
    EXPECT_FALSE(picture.Changed().IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Formats, OverlayKinds,
    testing::Values(Kind{"left", PlanarYuv(8, 1, 1), Sited(0, 2)}, Kind{"topleft", PlanarYuv(8, 1, 1), Sited(0, 0)},

                    Kind{"interlaced", PlanarYuv(8, 1, 1), Sited(0, 2), true},
                    Kind{"interlacedTopLeft", PlanarYuv(8, 1, 1), Sited(0, 0), true, RowOrder::TopDown, 64, 46},
                    Kind{"bottomUp", PlanarYuv(8, 1, 1), Sited(0, 2), false, RowOrder::BottomUp},
                    Kind{"yuv422", PlanarYuv(8, 1, 0), Sited(0, 2)}, Kind{"yuv440", PlanarYuv(8, 0, 1), Sited(2, 2)},
                    Kind{"yuv410", PlanarYuv(8, 2, 2), Sited(6, 6)}, Kind{"yuva420", WithAlpha(PlanarYuv(8, 1, 1)), {}},
                    Kind{"yuv420p10", PlanarYuv(10, 1, 1), Sited(0, 2)},
                    Kind{"yuv422p12", PlanarYuv(12, 1, 0), Sited(0, 2)}, Kind{"nv12", SemiPlanarYuv(), Sited(0, 2)},
                    Kind{"yuyv", Yuyv(), Sited(0, 2)}, Kind{"gray10", GrayLayout(10), {}},
                    Kind{"grayAlpha", GrayAlpha(), {}}, Kind{"bgra", PackedRgb({2, 1, 0, 3}), {}},
                    Kind{"argb", PackedRgb({3, 0, 1, 2}), {}, false, RowOrder::BottomUp},
                    Kind{"gbrp10", PlanarRgb(10), {}},
                    Kind{"single", PlanarYuv(8, 1, 1), Sited(0, 2), true, RowOrder::TopDown, 1, 1}),
    [](auto const& kind) { return std::string(kind.param.name); });

TEST(Overlay, SolidInkGivesTheExactColourAtEveryDepth)
{
    std::vector<std::uint8_t> const solid(40 * 30, 255);
    for (int const depth : {8, 10, 12})
    {
        for (int shade = 0; shade < 256; shade += 5)
        {
            RgbColor const color{static_cast<std::uint8_t>(shade), static_cast<std::uint8_t>(255 - shade),
                                 static_cast<std::uint8_t>(shade * 7)};
            TestPicture picture(24, 18, PlanarYuv(depth, 1, 1));
            Blend::Ink ink;
            ink.masks = {{-2, -3, 40, 30, 40, solid.data(), {1, 2, 3}, 90},
                         {-2, -3, 40, 30, 40, solid.data(), color, 255}};
            Blend::Overlay overlay;
            overlay.Build(ink, picture.View());
            overlay.BlendOnto(picture.View());
            auto const codes = Blend::ColorEncoder(picture.View().layout, {}, std::nullopt).Encode(color);
            for (int c = 0; c < 3; ++c)
                ASSERT_EQ(picture.Sample(c, 5, 7), std::lround(codes[static_cast<std::size_t>(c)]))
                    << "depth " << depth << " shade " << shade << " component " << c;
        }
    }
}

TEST(Overlay, HundredsOfTranslucentLayersNeverOverflow)
{
    std::vector<std::uint8_t> mask(32 * 32);
    for (std::size_t i = 0; i < mask.size(); ++i)
        mask[i] = static_cast<std::uint8_t>(i * 11);
    for (int const depth : {8, 12})
    {
        PixelLayout const layout = PlanarRgb(depth);
        TestPicture picture(32, 32, layout);
        picture.View().color.range = SampleRange::Full;
        int const white = (1 << depth) - 1;
        for (int c = 0; c < 3; ++c)
            picture.Fill(c, white);
        Blend::Ink ink;
        ink.masks.assign(300, {0, 0, 32, 32, 32, mask.data(), {255, 255, 255}, 40});
        Blend::Overlay overlay;
        overlay.Build(ink, picture.View());
        overlay.BlendOnto(picture.View());
        for (int i = 0; i < 32 * 32; ++i)
        {
            // White on white stays white; rounding down in every layer may cost one percent, wrapping round would cost
            // all.
            ASSERT_GE(picture.Sample(0, i % 32, i / 32), white - white / 100);
        }
    }
}

TEST(Overlay, FitsOnlyTheKindItWasBuiltFor)
{
    Drawing const drawing(64, 48);
    TestPicture picture(64, 48, PlanarYuv(8, 1, 1));
    Blend::Overlay overlay;
    overlay.Build(drawing.ink, picture.View());
    EXPECT_TRUE(overlay.Fits(picture.View()));
    PictureView range = picture.View();
    range.color.range = SampleRange::Full;
    PictureView fields = picture.View();
    fields.isInterlaced = true;
    EXPECT_FALSE(overlay.Fits(range) || overlay.Fits(fields));
    // Built anew with nothing in it, it paints nothing.
    overlay.Build({}, picture.View());
    EXPECT_FALSE(overlay.BlendOnto(picture.View()));
    EXPECT_TRUE(picture.Changed().IsEmpty());
}

} // namespace
} // namespace Korvex::Proc::Tests
