#include "Proc/Blend/TestPicture.h"

#include <algorithm>
#include <cstring>

namespace Korvex::Proc::Tests
{
namespace
{

constexpr std::size_t GUARD = 32;
constexpr std::uint8_t GUARD_BYTE = 0xA5;

bool IsChroma(PixelLayout const& layout, int component)
{
    return layout.model == ColorModel::Yuv && (component == 1 || component == 2);
}

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
    for (std::size_t p = 0; p < starts.size(); ++p)
    {
        auto const stride = static_cast<std::ptrdiff_t>(rowBytes[p] + rowBytes[p] % 2 + GUARD);
        bool const isUp = order == RowOrder::BottomUp && rows[p] > 0;
        m_view.planes[p] = {m_bytes.data() + starts[p] + (isUp ? (rows[p] - 1) * stride : 0), isUp ? -stride : stride};
    }
    int const span = 1 << layout.bitDepth;
    for (int c = 0; c < layout.componentCount; ++c)
    {
        for (int y = 0; y < Height(c); ++y)
        {
            for (int x = 0; x < Width(c); ++x)
                Write(c, x, y, (x * 37 + y * 101 + c * 53) % span);
        }
    }
    m_original = m_bytes;
}

void TestPicture::Fill(int component, int value)
{
    for (int y = 0; y < Height(component); ++y)
    {
        for (int x = 0; x < Width(component); ++x)
            Write(component, x, y, value);
    }
    m_original = m_bytes;
}

void TestPicture::Restore()
{
    std::copy(m_original.begin(), m_original.end(), m_bytes.begin());
}

int TestPicture::Width(int component) const
{
    int const shift = IsChroma(m_view.layout, component) ? m_view.layout.chromaShiftX : 0;
    return (m_view.width + (1 << shift) - 1) >> shift;
}

int TestPicture::Height(int component) const
{
    int const shift = IsChroma(m_view.layout, component) ? m_view.layout.chromaShiftY : 0;
    return (m_view.height + (1 << shift) - 1) >> shift;
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
    if (m_view.layout.bitDepth == 8)
        return bytes[at];
    std::uint16_t value = 0;
    std::memcpy(&value, bytes.data() + at, sizeof(value));
    return value;
}

void TestPicture::Write(int component, int x, int y, int value)
{
    std::size_t const at = ByteOf(component, x, y);
    auto const word = static_cast<std::uint16_t>(value);
    if (m_view.layout.bitDepth == 8)
        m_bytes[at] = static_cast<std::uint8_t>(value);
    else
        std::memcpy(m_bytes.data() + at, &word, sizeof(word));
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
    std::vector<bool> isSample(m_bytes.size(), false);
    for (int c = 0; c < m_view.layout.componentCount; ++c)
    {
        for (int y = 0; y < Height(c); ++y)
        {
            for (int x = 0; x < Width(c); ++x)
            {
                for (int byte = 0; byte < SampleSize(m_view.layout); ++byte)
                    isSample[ByteOf(c, x, y) + static_cast<std::size_t>(byte)] = true;
            }
        }
    }
    for (std::size_t i = 0; i < m_bytes.size(); ++i)
    {
        if (!isSample[i] && m_bytes[i] != GUARD_BYTE)
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
    {
        layout.components[static_cast<std::size_t>(order[i])] = {0, static_cast<int>(order.size()),
                                                                 static_cast<int>(i)};
    }
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
