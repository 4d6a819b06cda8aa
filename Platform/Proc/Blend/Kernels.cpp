#include "Proc/Blend/Kernels.h"

#include <cstring>

namespace Korvex::Proc::Blend
{
namespace
{

constexpr std::uint16_t FULL = 65535;

inline std::uint16_t HighProduct(std::uint16_t a, std::uint16_t b)
{
    return static_cast<std::uint16_t>((static_cast<std::uint32_t>(a) * b) >> 16);
}

/// `under` seen through coverage `a` of `over`. 65536 - a does not fit for a = 0, where nothing changes.
inline std::uint16_t Over(std::uint16_t under, std::uint16_t over, std::uint16_t a)
{
    auto const rest = static_cast<std::uint16_t>(0 - a);
    auto const mixed = static_cast<std::uint16_t>(HighProduct(under, rest) + HighProduct(over, a));
    std::uint16_t const shown = a == FULL ? over : mixed;
    return a == 0 ? under : shown;
}

} // namespace

bool IsBlank(std::uint8_t const* coverage)
{
    std::uint64_t halves[2];
    std::memcpy(halves, coverage, sizeof(halves));
    return (halves[0] | halves[1]) == 0;
}

void CoverChunk(InkChunk const& chunk, std::uint8_t const* coverage, std::uint16_t opacity,
                std::array<std::uint16_t, 3> const& color)
{
    ChunkCoverage amount;
    if (opacity == FULL)
    {
        for (int i = 0; i < CHUNK; ++i)
            amount[i] = static_cast<std::uint16_t>(coverage[i] * 257);
    }
    else
    {
        for (int i = 0; i < CHUNK; ++i)
            amount[i] = HighProduct(static_cast<std::uint16_t>(coverage[i] * 257), opacity);
    }
    for (std::size_t c = 0; c < color.size(); ++c)
    {
        std::uint16_t* const plane = chunk.color[c];
        std::uint16_t const value = color[c];
        for (int i = 0; i < CHUNK; ++i)
            plane[i] = Over(plane[i], value, amount[i]);
    }
    for (int i = 0; i < CHUNK; ++i)
        chunk.keep[i] = Over(chunk.keep[i], 0, amount[i]);
}

void CoverChunk(InkChunk const& chunk, ChunkCoverage const& coverage, ChunkColors const& colors)
{
    for (std::size_t c = 0; c < colors.size(); ++c)
    {
        std::uint16_t* const plane = chunk.color[c];
        for (int i = 0; i < CHUNK; ++i)
            plane[i] = Over(plane[i], colors[c][i], coverage[i]);
    }
    for (int i = 0; i < CHUNK; ++i)
        chunk.keep[i] = Over(chunk.keep[i], 0, coverage[i]);
}

void BlendRow(std::uint8_t* __restrict samples, std::uint16_t const* __restrict keep,
              std::uint16_t const* __restrict add, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
    {
        auto const stays = HighProduct(static_cast<std::uint16_t>(samples[i] << 8), keep[i]);
        samples[i] = static_cast<std::uint8_t>(static_cast<std::uint16_t>(stays + add[i]) >> 8);
    }
}

void BlendRow(std::uint16_t* __restrict samples, std::uint16_t const* __restrict keep,
              std::uint16_t const* __restrict add, std::size_t count, int bitDepth)
{
    int const fraction = 16 - bitDepth;
    for (std::size_t i = 0; i < count; ++i)
    {
        auto const stays = HighProduct(static_cast<std::uint16_t>(samples[i] << fraction), keep[i]);
        samples[i] = static_cast<std::uint16_t>(static_cast<std::uint16_t>(stays + add[i]) >> fraction);
    }
}

void MixRows(std::uint16_t* __restrict out, std::uint16_t const* const* rows, int const* weights, int rowCount,
             std::size_t count)
{
    if (rowCount == 1)
    {
        std::memcpy(out, rows[0], count * sizeof(*out));
        return;
    }
    if (rowCount == 2 && weights[0] == weights[1])
    {
        std::uint16_t const* const a = rows[0];
        std::uint16_t const* const b = rows[1];
        for (std::size_t i = 0; i < count; ++i)
            out[i] = static_cast<std::uint16_t>((a[i] & b[i]) + ((a[i] ^ b[i]) >> 1));
        return;
    }
    for (std::size_t i = 0; i < count; ++i)
    {
        std::uint32_t sum = 0;
        for (int r = 0; r < rowCount; ++r)
            sum += static_cast<std::uint32_t>(weights[r]) * rows[r][i];
        out[i] = static_cast<std::uint16_t>(sum >> 8);
    }
}

void MixColumns(std::uint16_t* __restrict out, std::uint16_t const* __restrict in, int step, int const* weights,
                int tapCount, std::size_t count)
{
    if (step == 2 && tapCount == 3 && weights[0] == 64 && weights[1] == 128)
    {
        for (std::size_t i = 0; i < count; ++i)
            out[i] = static_cast<std::uint16_t>((in[2 * i] + 2U * in[2 * i + 1] + in[2 * i + 2]) >> 2);
        return;
    }
    if (step == 2 && tapCount == 2 && weights[0] == weights[1])
    {
        for (std::size_t i = 0; i < count; ++i)
            out[i] = static_cast<std::uint16_t>((static_cast<std::uint32_t>(in[2 * i]) + in[2 * i + 1]) >> 1);
        return;
    }
    for (std::size_t i = 0; i < count; ++i)
    {
        std::uint32_t sum = 0;
        for (int t = 0; t < tapCount; ++t)
            sum += static_cast<std::uint32_t>(weights[t]) * in[i * static_cast<std::size_t>(step) + t];
        out[i] = static_cast<std::uint16_t>(sum >> 8);
    }
}

} // namespace Korvex::Proc::Blend
