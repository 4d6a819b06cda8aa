#include "Proc/Blend/TestPicture.h"

#include <algorithm>

namespace Korvex::Proc::Tests
{
namespace
{

constexpr std::size_t GUARD = 32;
constexpr std::uint8_t GUARD_BYTE = 0xA5;

int SampleSize(PixelLayout const& layout)
{
    return layout.bitDepth > 8 ? 2 : 1;
}

} // namespace

TestPicture::TestPicture(int width, int height, PixelLayout const& layout, RowOrder order)
{
    m_view.width = width;
    m_view.height = height;
    m_view.layout = layout;
    std::array<std::size_t, 4> rowBytes{};
    std::array<int, 4> rows{};
    std::size_t total = GUARD;
    for (int c = 0; c < layout.componentCount; ++c)
    {
        auto const& component = layout.components[static_cast<std::size_t>(c)];
        auto const plane = static_cast<std::size_t>(component.plane);
        rowBytes[plane] = std::max(rowBytes[plane], static_cast<std::size_t>((Width(c) - 1) * component.step +
                                                                             component.offset + SampleSize(layout)));
        rows[plane] = Height(c);
    }
    std::array<std::size_t, 4> starts{};
    for (std::size_t p = 0; p < starts.size(); ++p)
    {
        starts[p] = total;
        total += static_cast<std::size_t>(rows[p]) * (rowBytes[p] + rowBytes[p] % 2 + GUARD);
    }
    m_bytes.assign(total, GUARD_BYTE);
    m_isSample.resize(total);
    for (std::size_t p = 0; p < starts.size(); ++p)
    {
        auto const stride = static_cast<std::ptrdiff_t>(rowBytes[p] + rowBytes[p] % 2 + GUARD);
        bool const isUp = order == RowOrder::BottomUp && rows[p] > 0;
        m_view.planes[p] = {m_bytes.data() + starts[p] + (isUp ? (rows[p] - 1) * stride : 0), isUp ? -stride : stride};
    }
    for (int c = 0; c < layout.componentCount; ++c)
        Paint(c, [&](int x, int y) { return (x * 37 + y * 101 + c * 53) % (1 << layout.bitDepth); });
}

void TestPicture::Fill(int component, int value)
{
    Paint(component, [value](int, int) { return value; });
}

int TestPicture::Width(int component) const
{
    return AtChroma(m_view.width, component, m_view.layout.chromaShiftX);
}

int TestPicture::Height(int component) const
{
    return AtChroma(m_view.height, component, m_view.layout.chromaShiftY);
}

int TestPicture::AtChroma(int size, int component, int shift) const
{
    bool const isChroma = m_view.layout.model == ColorModel::Yuv && (component == 1 || component == 2);
    return isChroma ? (size + (1 << shift) - 1) >> shift : size;
}

std::size_t TestPicture::ByteOf(int component, int x, int y) const
{
    auto const& place = m_view.layout.components[static_cast<std::size_t>(component)];
    auto const& plane = m_view.planes[static_cast<std::size_t>(place.plane)];
    std::ptrdiff_t const base = plane.data - m_bytes.data();
    return static_cast<std::size_t>(base + y * plane.stride + x * place.step + place.offset);
}

int TestPicture::Read(std::vector<std::uint8_t> const& bytes, int component, int x, int y) const
{
    std::size_t const at = ByteOf(component, x, y);
    return bytes[at] | (SampleSize(m_view.layout) > 1 ? bytes[at + 1] << 8 : 0);
}

void TestPicture::Write(int component, int x, int y, int value)
{
    std::size_t const at = ByteOf(component, x, y);
    for (std::size_t byte = 0; byte < static_cast<std::size_t>(SampleSize(m_view.layout)); ++byte)
    {
        m_bytes[at + byte] = static_cast<std::uint8_t>(value >> 8 * byte);
        m_isSample[at + byte] = true;
    }
}

InkBox TestPicture::Changed(int component, int firstRow, int endRow) const
{
    InkBox box{1 << 20, 1 << 20, 0, 0};
    for (int y = firstRow; y < std::min(endRow, Height(component)); ++y)
    {
        for (int x = 0; x < Width(component); ++x)
        {
            if (Sample(component, x, y) == Original(component, x, y))
                continue;
            box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1), y + 1};
        }
    }
    return box.right == 0 ? InkBox{} : box;
}

bool TestPicture::IsGuardTouched() const
{
    for (std::size_t i = 0; i < m_bytes.size(); ++i)
    {
        if (!m_isSample[i] && m_bytes[i] != GUARD_BYTE)
            return true;
    }
    return false;
}

PixelLayout PlanarYuv(int bitDepth, int chromaShiftX, int chromaShiftY)
{
    PixelLayout layout;
    layout.bitDepth = bitDepth;
    layout.chromaShiftX = chromaShiftX;
    layout.chromaShiftY = chromaShiftY;
    int const step = bitDepth > 8 ? 2 : 1;
    for (int c = 0; c < 4; ++c)
        layout.components[static_cast<std::size_t>(c)] = {c, step, 0};
    return layout;
}

PixelLayout SemiPlanarYuv()
{
    PixelLayout layout;
    layout.components = {{{0, 1, 0}, {1, 2, 0}, {1, 2, 1}, {}}};
    return layout;
}

PixelLayout PackedRgb(std::vector<int> const& order)
{
    PixelLayout layout;
    layout.model = ColorModel::Rgb;
    layout.chromaShiftX = 0;
    layout.chromaShiftY = 0;
    layout.componentCount = static_cast<int>(order.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        layout.components[static_cast<std::size_t>(order[i])] = {0, static_cast<int>(order.size()),
                                                                 static_cast<int>(i)};
    return layout;
}

PixelLayout GrayLayout(int bitDepth)
{
    PixelLayout layout = PlanarYuv(bitDepth, 0, 0);
    layout.model = ColorModel::Gray;
    layout.componentCount = 1;
    return layout;
}

} // namespace Korvex::Proc::Tests
