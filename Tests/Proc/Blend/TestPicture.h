#pragma once

#include "Proc/Picture.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace Korvex::Proc::Tests
{

/// A box of luma samples; empty when `right` is not past `left`.
struct InkBox
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    [[nodiscard]] int Width() const { return right - left; }
    [[nodiscard]] int Height() const { return bottom - top; }
    [[nodiscard]] int CenterX() const { return (left + right) / 2; }
    [[nodiscard]] int CenterY() const { return (top + bottom) / 2; }
    [[nodiscard]] bool IsEmpty() const { return right <= left; }
};

enum class RowOrder
{
    TopDown,
    BottomUp, ///< negative strides
};

/// A picture with memory of its own, guarded by a frame of bytes around every row, and a copy of how it began.
class TestPicture
{
public:
    /// Filled with a pattern that differs from sample to sample.
    TestPicture(int width, int height, PixelLayout const& layout, RowOrder order = RowOrder::TopDown);
    TestPicture(TestPicture const&) = delete;
    TestPicture& operator=(TestPicture const&) = delete;

    [[nodiscard]] PictureView& View() { return m_view; }
    /// Gives every sample of a component one value, and takes the picture as it is now for its beginning.
    void Fill(int component, int value);
    /// Puts back the samples as they began.
    void Restore() { std::copy(m_original.begin(), m_original.end(), m_bytes.begin()); }

    [[nodiscard]] int Width(int component) const;
    [[nodiscard]] int Height(int component) const;
    [[nodiscard]] int Sample(int component, int x, int y) const { return Read(m_bytes, component, x, y); }
    [[nodiscard]] int Original(int component, int x, int y) const { return Read(m_original, component, x, y); }

    [[nodiscard]] std::vector<std::uint8_t> const& Bytes() const { return m_bytes; }
    /// The samples of the component that differ from the beginning, within the rows given.
    [[nodiscard]] InkBox Changed(int component = 0, int firstRow = 0, int endRow = 1 << 20) const;
    /// True when a byte outside the samples was written to.
    [[nodiscard]] bool IsGuardTouched() const;

private:
    [[nodiscard]] std::size_t ByteOf(int component, int x, int y) const;
    [[nodiscard]] int Read(std::vector<std::uint8_t> const& bytes, int component, int x, int y) const;
    [[nodiscard]] int AtChroma(int size, int component, int shift) const;
    void Write(int component, int x, int y, int value);
    template <typename Sample>
    void Paint(int component, Sample const& sample)
    {
        for (int i = 0; i < Width(component) * Height(component); ++i)
            Write(component, i % Width(component), i / Width(component),
                  sample(i % Width(component), i / Width(component)));
        m_original = m_bytes;
    }

    PictureView m_view;
    std::vector<std::uint8_t> m_bytes;
    std::vector<std::uint8_t> m_original;
    std::vector<bool> m_isSample;
};

/// Planar YUV without alpha.
[[nodiscard]] PixelLayout PlanarYuv(int bitDepth, int chromaShiftX, int chromaShiftY);
/// Planes of luma and of U and V in turn.
[[nodiscard]] PixelLayout SemiPlanarYuv();
/// All components interleaved, in the order given (of R, G, B and A by number).
[[nodiscard]] PixelLayout PackedRgb(std::vector<int> const& order);
[[nodiscard]] PixelLayout GrayLayout(int bitDepth);

} // namespace Korvex::Proc::Tests
