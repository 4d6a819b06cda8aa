#include "Proc/Blend/InkStrip.h"

#include <algorithm>
#include <cstring>

namespace Korvex::Proc::Blend
{

InkStrip::InkStrip(int pictureWidth, int pictureHeight, int rows)
    : m_width(pictureWidth),
      m_height(pictureHeight),
      m_rows(rows),
      m_chunkCount((pictureWidth + CHUNK - 1) / CHUNK),
      m_stride(static_cast<std::size_t>(m_chunkCount) * CHUNK + 2 * static_cast<std::size_t>(MARGIN))
{
    std::size_t const size = m_stride * static_cast<std::size_t>(rows);
    m_keep.resize(size);
    for (auto& plane : m_color)
        plane.resize(size);
    m_states.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(m_chunkCount));
}

void InkStrip::MoveTo(int firstRow)
{
    m_firstRow = firstRow;
    std::fill(m_states.begin(), m_states.end(), ChunkState::Stale);
}

bool InkStrip::IsClipped(int y) const
{
    return y < std::max(m_firstRow, 0) || y >= std::min(m_firstRow + m_rows, m_height);
}

void InkStrip::Clear(int row, int chunk)
{
    std::size_t const at = Offset(row) + static_cast<std::size_t>(chunk) * CHUNK;
    std::fill_n(m_keep.begin() + static_cast<std::ptrdiff_t>(at), CHUNK, std::uint16_t{65535});
    for (auto& plane : m_color)
        std::fill_n(plane.begin() + static_cast<std::ptrdiff_t>(at), CHUNK, std::uint16_t{0});
    m_states[StateIndex(row, chunk)] = ChunkState::Clear;
}

InkChunk InkStrip::Open(int row, int chunk)
{
    if (State(row, chunk) == ChunkState::Stale)
        Clear(row, chunk);
    m_states[StateIndex(row, chunk)] = ChunkState::Inked;
    std::size_t const at = Offset(row) + static_cast<std::size_t>(chunk) * CHUNK;
    return {m_keep.data() + at, {m_color[0].data() + at, m_color[1].data() + at, m_color[2].data() + at}};
}

void InkStrip::Add(MaskLayer const& layer, std::array<std::uint16_t, 3> const& color)
{
    auto const opacity = static_cast<std::uint16_t>(layer.opacity * 257);
    int const end = std::min({layer.y + layer.height, m_firstRow + m_rows, m_height});
    for (int row = std::max({layer.y, m_firstRow, 0}); row < end; ++row)
        AddRow(row, layer, opacity, color);
}

void InkStrip::AddRow(int row, MaskLayer const& layer, std::uint16_t opacity, std::array<std::uint16_t, 3> const& color)
{
    std::uint8_t const* const coverage = layer.coverage + (row - layer.y) * layer.stride;
    int const left = std::max(layer.x, 0);
    int const right = std::min(layer.x + layer.width, m_width);
    for (int chunk = left / CHUNK; chunk * CHUNK < right; ++chunk)
    {
        int const begin = chunk * CHUNK;
        std::uint8_t const* source = coverage + (begin - layer.x);
        std::array<std::uint8_t, CHUNK> part;
        if (begin < left || begin + CHUNK > right)
        {
            // The mask covers only a part of the chunk, and may end with the memory it lies in.
            part.fill(0);
            int const from = std::max(begin, left);
            std::memcpy(part.data() + (from - begin), coverage + (from - layer.x),
                        static_cast<std::size_t>(std::min(begin + CHUNK, right) - from));
            source = part.data();
        }
        if (!IsBlank(source))
            CoverChunk(Open(row, chunk), source, opacity, color);
    }
}

void InkStrip::Add(RgbaLayer const& layer, ColorEncoder const& encoder)
{
    int const end = std::min({layer.y + layer.height, m_firstRow + m_rows, m_height});
    for (int row = std::max({layer.y, m_firstRow, 0}); row < end; ++row)
        AddRow(row, layer, encoder);
}

void InkStrip::AddRow(int row, RgbaLayer const& layer, ColorEncoder const& encoder)
{
    std::uint8_t const* const pixels =
        layer.rgba + 4 * static_cast<std::ptrdiff_t>(row - layer.y) * static_cast<std::ptrdiff_t>(layer.width);
    int const left = std::max(layer.x, 0);
    int const right = std::min(layer.x + layer.width, m_width);
    for (int chunk = left / CHUNK; chunk * CHUNK < right; ++chunk)
    {
        ChunkCoverage coverage{};
        ChunkColors colors{};
        bool hasInk = false;
        int const end = std::min(chunk * CHUNK + CHUNK, right);
        for (int x = std::max(chunk * CHUNK, left); x < end; ++x)
        {
            std::uint8_t const* const pixel = pixels + 4 * static_cast<std::ptrdiff_t>(x - layer.x);
            if (pixel[3] == 0)
                continue;
            hasInk = true;
            auto const i = static_cast<std::size_t>(x - chunk * CHUNK);
            coverage[i] = static_cast<std::uint16_t>(pixel[3] * 257);
            auto const& code = CachedCode(pixel[0] | (pixel[1] << 8U) | (pixel[2] << 16U), encoder);
            for (std::size_t c = 0; c < code.size(); ++c)
                colors[c][i] = code[c];
        }
        if (hasInk)
            CoverChunk(Open(row, chunk), coverage, colors);
    }
}

std::array<std::uint16_t, 3> const& InkStrip::CachedCode(std::uint32_t rgb, ColorEncoder const& encoder)
{
    // Neighbours are mostly of one colour.
    if (m_lastCode != nullptr && m_lastRgb == rgb)
        return *m_lastCode;
    auto const [entry, isNew] = m_codes.try_emplace(rgb);
    if (isNew)
    {
        entry->second = encoder.EncodeFixed({static_cast<std::uint8_t>(rgb), static_cast<std::uint8_t>(rgb >> 8U),
                                             static_cast<std::uint8_t>(rgb >> 16U)});
    }
    m_lastRgb = rgb;
    m_lastCode = &entry->second;
    return entry->second;
}

bool InkStrip::HasInk(int row, int left, int right) const
{
    if (IsClipped(row))
        return false;
    int const last = (std::clamp(right, 1, m_width) - 1) / CHUNK;
    for (int chunk = std::clamp(left, 0, m_width - 1) / CHUNK; chunk <= last; ++chunk)
    {
        if (HasInk(row, chunk))
            return true;
    }
    return false;
}

void InkStrip::MakeReadable(int row, int left, int right)
{
    int const last = (std::clamp(right, 1, m_width) - 1) / CHUNK;
    for (int chunk = std::clamp(left, 0, m_width - 1) / CHUNK; chunk <= last; ++chunk)
    {
        if (State(row, chunk) == ChunkState::Stale)
            Clear(row, chunk);
    }
    auto const repeatEdges = [&](std::uint16_t* samples)
    {
        if (left < 0)
            std::fill(samples + left, samples, samples[0]);
        if (right > m_width)
            std::fill(samples + m_width, samples + right, samples[m_width - 1]);
    };
    repeatEdges(m_keep.data() + Offset(row));
    for (auto& plane : m_color)
        repeatEdges(plane.data() + Offset(row));
}

} // namespace Korvex::Proc::Blend
