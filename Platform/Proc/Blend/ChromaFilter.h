#pragma once

#include "Proc/Picture.h"

#include <array>
#include <vector>

namespace Korvex::Proc::Blend
{

/// Which luma samples of one axis share in a chroma sample, and how much. The weights are those of a box as wide as a
/// chroma block around the place where the chroma sample is sited; they sum up to 256.
struct AxisFilter
{
    int block = 1; ///< luma samples (of the field, if by field) a chroma sample
    int first = 0; ///< of the first tap, from the block's first luma sample; may be negative
    std::vector<int> weights{256};

    [[nodiscard]] int TapCount() const { return static_cast<int>(weights.size()); }
};

/// `site` in quarters of a luma sample from the first sample of the block, as in ChromaSite.
[[nodiscard]] AxisFilter MakeAxisFilter(int shift, int site);

/// The rows of luma that share in a row of chroma, progressive or by field.
class ChromaRows
{
public:
    explicit ChromaRows(PictureView const& picture);

    /// Filter of a chroma row.
    [[nodiscard]] AxisFilter const& FilterOf(int chromaRow) const;
    /// The luma row of one of its taps; rows off the edge repeat the last one of the field.
    [[nodiscard]] int LumaRow(int chromaRow, int tap) const;

    /// How many luma rows above and below the luma rows of a chroma row (of its block, or of its pair of blocks if by
    /// field) have a share in it.
    [[nodiscard]] int Reach() const { return m_reach; }

private:
    std::array<AxisFilter, 2> m_filters; ///< of the top and the bottom field; progressive: the first
    bool m_isByField;
    int m_height;
    int m_reach;
};

} // namespace Korvex::Proc::Blend
