#pragma once

#include "Proc/Blend/ColorEncoder.h"
#include "Proc/Blend/Ink.h"
#include "Proc/Blend/Kernels.h"

#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace Korvex::Proc::Blend
{

/// A band of rows across the picture in which layers are composed at full resolution. It is used over and over for one
/// band after the other; only chunks that carry ink cost anything.
class InkStrip
{
public:
    /// `pictureHeight` rows exist; the strip holds at most `rows` of them at a time.
    InkStrip(int pictureWidth, int pictureHeight, int rows);

    /// Forgets everything and moves to the rows [firstRow, firstRow + rows) of the picture.
    void MoveTo(int firstRow);

    void Add(MaskLayer const& layer, std::array<std::uint16_t, 3> const& color);
    void Add(RgbaLayer const& layer, ColorEncoder const& encoder);

    [[nodiscard]] int ChunkCount() const { return m_chunkCount; }
    /// True when a layer has put ink into the chunk of the row of the picture.
    [[nodiscard]] bool HasInk(int row, int chunk) const { return State(row, chunk) == ChunkState::Inked; }
    /// True when any chunk of the columns [left, right) in the row has ink; columns may lie outside the picture.
    [[nodiscard]] bool HasInk(int row, int left, int right) const;

    [[nodiscard]] std::uint16_t const* Keep(int row) const { return m_keep.data() + Offset(row); }
    [[nodiscard]] std::uint16_t const* Color(int row, std::size_t component) const
    {
        return m_color[component].data() + Offset(row);
    }

    /// Makes the columns [left, right) of the row readable, ink or no ink. Columns off the picture, up to `MARGIN`,
    /// repeat its edge.
    void MakeReadable(int row, int left, int right);

    static constexpr int MARGIN = 16;

private:
    enum class ChunkState : std::uint8_t
    {
        Stale, ///< left over from an earlier band
        Clear,
        Inked,
    };

    [[nodiscard]] std::size_t Offset(int row) const
    {
        return static_cast<std::size_t>(row - m_firstRow) * m_stride + MARGIN;
    }
    [[nodiscard]] std::size_t StateIndex(int row, int chunk) const
    {
        return static_cast<std::size_t>(row - m_firstRow) * static_cast<std::size_t>(m_chunkCount) +
               static_cast<std::size_t>(chunk);
    }
    [[nodiscard]] ChunkState State(int row, int chunk) const { return m_states[StateIndex(row, chunk)]; }
    [[nodiscard]] bool IsClipped(int y) const;
    void Clear(int row, int chunk);
    /// The chunk, ready to take ink.
    [[nodiscard]] InkChunk Open(int row, int chunk);
    void AddRow(int row, MaskLayer const& layer, std::uint16_t opacity, std::array<std::uint16_t, 3> const& color);
    void AddRow(int row, RgbaLayer const& layer, ColorEncoder const& encoder);
    [[nodiscard]] std::array<std::uint16_t, 3> const& CachedCode(std::uint32_t rgb, ColorEncoder const& encoder);

    int m_width;
    int m_height;
    int m_rows;
    int m_chunkCount;
    std::size_t m_stride;
    int m_firstRow = 0;
    std::vector<std::uint16_t> m_keep;
    std::array<std::vector<std::uint16_t>, 3> m_color;
    std::vector<ChunkState> m_states;
    std::unordered_map<std::uint32_t, std::array<std::uint16_t, 3>> m_codes; ///< of colours met in bitmaps
    std::uint32_t m_lastRgb = 0;
    std::array<std::uint16_t, 3> const* m_lastCode = nullptr; ///< into m_codes, whose entries stay where they are
};

} // namespace Korvex::Proc::Blend
