#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

/// The loops over samples. Plain C++ that compilers turn into vector code: all of it is 16-bit arithmetic whose only
/// product is the high half of 16 x 16 bits, which every vector unit has.
///
/// Fixed point: `keep` is the part of the picture that stays, 65535 meaning all of it. Colours and sums are codes with
/// 16 - depth bits of fraction. Every step rounds down, so that the sum of what stays and what is added never
/// overflows; untouched samples and full coverage come out exact.
namespace Korvex::Proc::Blend
{

/// Samples that the loops below handle at a time.
inline constexpr int CHUNK = 16;

/// One chunk of the ink under construction: transmittance and premultiplied components.
struct InkChunk
{
    std::uint16_t* keep;
    std::array<std::uint16_t*, 3> color;
};

/// How strongly a layer covers each sample of a chunk, 65535 being fully.
using ChunkCoverage = std::array<std::uint16_t, CHUNK>;
using ChunkColors = std::array<std::array<std::uint16_t, CHUNK>, 3>;

/// True when all 16 bytes are zero.
[[nodiscard]] inline bool IsBlank(std::uint8_t const* coverage)
{
    std::array<std::uint64_t, 2> halves;
    std::memcpy(halves.data(), coverage, sizeof(halves));
    return (halves[0] | halves[1]) == 0;
}

/// Lays one colour over a chunk through 16 bytes of coverage. `opacity` is 65535 for an opaque layer.
void CoverChunk(InkChunk const& chunk, std::uint8_t const* coverage, std::uint16_t opacity,
                std::array<std::uint16_t, 3> const& color);

/// Lays a colour of its own over every sample of a chunk.
void CoverChunk(InkChunk const& chunk, ChunkCoverage const& coverage, ChunkColors const& colors);

/// out = samples * keep + add, for `count` samples.
void BlendRow(std::uint8_t* samples, std::uint16_t const* keep, std::uint16_t const* add, std::size_t count);
void BlendRow(std::uint16_t* samples, std::uint16_t const* keep, std::uint16_t const* add, std::size_t count,
              int bitDepth);

/// out = (sum of weight x row) / 256 for `count` columns; the weights sum up to 256.
void MixRows(std::uint16_t* out, std::uint16_t const* const* rows, int const* weights, int rowCount, std::size_t count);

/// out[i] = (sum over t of weights[t] x in[i * step + t]) / 256; the weights sum up to 256.
void MixColumns(std::uint16_t* out, std::uint16_t const* in, int step, int const* weights, int tapCount,
                std::size_t count);

} // namespace Korvex::Proc::Blend
