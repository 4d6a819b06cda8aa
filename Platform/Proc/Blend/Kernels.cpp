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

/// All bits set where the condition holds; compilers turn the selection by such masks into vector code.
inline std::uint16_t MaskOf(bool condition)
{
    return condition ? FULL : std::uint16_t{0};
}

/// A plane of the chunk seen through coverage of `over`, one value or one for each sample.
template <typename Colors>
inline void Cover(std::uint16_t* plane, ChunkCoverage const& coverage, Colors over)
{
    ChunkCoverage under;
    std::memcpy(under.data(), plane, sizeof(under));
    for (int i = 0; i < CHUNK; ++i)
    {
        std::uint16_t const a = coverage[i];
        // 65536 - a does not fit for a = 0, where nothing changes.
        auto const rest = static_cast<std::uint16_t>(0 - a);
        auto const mixed = static_cast<std::uint16_t>(HighProduct(under[i], rest) + HighProduct(over(i), a));
        std::uint16_t const isClear = MaskOf(a == 0);
        std::uint16_t const isFull = MaskOf(a == FULL);
        under[i] =
            static_cast<std::uint16_t>((under[i] & isClear) | (over(i) & isFull) | (mixed & ~(isClear | isFull)));
    }
    std::memcpy(plane, under.data(), sizeof(under));
}

template <typename Colors>
inline void CoverAll(InkChunk const& chunk, ChunkCoverage const& coverage, Colors const& colors)
{
    for (std::size_t c = 0; c < chunk.color.size(); ++c)
        Cover(chunk.color[c], coverage, [&colors, c](int i) { return colors(c, i); });
    Cover(chunk.keep, coverage, [](int) { return std::uint16_t{0}; });
}

} // namespace

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
    CoverAll(chunk, amount, [&color](std::size_t c, int) { return color[c]; });
}

void CoverChunk(InkChunk const& chunk, ChunkCoverage const& coverage, ChunkColors const& colors)
{
    CoverAll(chunk, coverage, [&colors](std::size_t c, int i) { return colors[c][static_cast<std::size_t>(i)]; });
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
