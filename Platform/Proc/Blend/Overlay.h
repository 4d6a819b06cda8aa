#pragma once

#include "Proc/Blend/Ink.h"
#include "Proc/Picture.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Korvex::Proc::Blend
{

class ColorEncoder;
class InkStrip;

/// Ink in a picture's own format: for every plane the spans of samples that change, and by how much. Made once when the
/// ink changes, then laid over as many pictures as show it. It owns what it needs; the ink's pixels may go after
/// `Build`.
///
/// All formats that PixelLayout describes with samples of whole bytes are supported, planar, semi-planar and packed.
/// Samples that are kept in the high bits of a word (P010 and its kin) are not; such pictures are repacked first.
class Overlay
{
public:
    Overlay();

    /// Composes the layers for pictures of the kind given (its planes are not looked at).
    void Build(Ink const& ink, PictureView const& kind);

    /// True when the overlay was built for pictures of this kind.
    [[nodiscard]] bool Fits(PictureView const& picture) const;

    /// Paints. False when there is nothing to paint.
    bool BlendOnto(PictureView const& picture) const;

private:
    /// Samples side by side in one row of one plane.
    struct Span
    {
        int plane;
        int row;
        std::ptrdiff_t firstSample;
        std::size_t count;
        std::size_t offset; ///< into m_keep and m_add
    };
    /// The components that lie interleaved in one plane at one resolution.
    struct Group
    {
        int plane = 0;
        int step = 1; ///< samples of the plane from one pixel to the next
        bool isChroma = false;
        std::vector<std::size_t> components;
    };
    struct ChromaScratch;

    [[nodiscard]] std::vector<Group> MakeGroups() const;
    void EmitLuma(InkStrip const& strip, int firstRow, int endRow);
    void EmitChroma(InkStrip& strip, int firstRow, int endRow, ChromaScratch& scratch);
    /// Fills the scratch with the chroma samples [first, end) of a chroma row.
    void FilterChroma(InkStrip& strip, int row, int first, int end, ChromaScratch& scratch) const;
    void Emit(Group const& group, int row, int first, int count, std::uint16_t const* keep,
              std::array<std::uint16_t const*, 3> const& color);

    /// Room for samples of one more span; its offset.
    [[nodiscard]] std::size_t Reserve(std::size_t samples);

    PictureView m_kind;
    std::vector<Group> m_groups;
    std::vector<Span> m_spans;
    std::vector<std::uint16_t> m_keep; ///< of all spans, one behind the other; longer than what is used of it
    std::vector<std::uint16_t> m_add;
    std::size_t m_used = 0;
};

} // namespace Korvex::Proc::Blend
