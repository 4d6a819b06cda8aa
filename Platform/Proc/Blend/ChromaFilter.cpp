#include "Proc/Blend/ChromaFilter.h"

#include <algorithm>
#include <cmath>

namespace Korvex::Proc::Blend
{
namespace
{

/// `site` in luma samples from the block's first one.
AxisFilter MakeBox(int block, double site)
{
    AxisFilter filter;
    filter.block = block;
    filter.weights.clear();
    // Sample i covers [i, i + 1) once the axis is moved by half a sample.
    double const begin = site + 0.5 - block / 2.0;
    double const end = begin + block;
    filter.first = static_cast<int>(std::floor(begin));
    int sum = 0;
    for (int i = filter.first; i < end; ++i)
    {
        double const part = (std::min<double>(end, i + 1) - std::max<double>(begin, i)) / block;
        filter.weights.push_back(static_cast<int>(std::lround(part * 256.0)));
        sum += filter.weights.back();
    }
    filter.weights[filter.weights.size() / 2] += 256 - sum;
    return filter;
}

} // namespace

AxisFilter MakeAxisFilter(int shift, int site)
{
    return shift == 0 ? AxisFilter{} : MakeBox(1 << shift, site / 4.0);
}

ChromaRows::ChromaRows(PictureView const& picture)
    : m_isByField(picture.isInterlaced && picture.layout.chromaShiftY == 1 && picture.height >= 4),
      m_height(picture.height),
      m_reach(0)
{
    int const site = picture.color.chromaSite.y;
    for (int field = 0; field < 2; ++field)
    {
        // Chroma rows of the bottom field lie one chroma row, two luma rows, below those of the top field.
        m_filters[static_cast<std::size_t>(field)] =
            m_isByField ? MakeBox(2, (field + site / 4.0) / 2.0) : MakeAxisFilter(picture.layout.chromaShiftY, site);
    }
    for (AxisFilter const& filter : m_filters)
    {
        int const below = filter.first + filter.TapCount() - filter.block;
        m_reach = std::max({m_reach, -filter.first, below});
    }
    m_reach *= m_isByField ? 2 : 1;
}

AxisFilter const& ChromaRows::FilterOf(int chromaRow) const
{
    return m_filters[m_isByField ? static_cast<std::size_t>(chromaRow & 1) : 0];
}

int ChromaRows::LumaRow(int chromaRow, int tap) const
{
    AxisFilter const& filter = FilterOf(chromaRow);
    if (!m_isByField)
        return std::clamp(chromaRow * filter.block + filter.first + tap, 0, m_height - 1);
    int const field = chromaRow & 1;
    int const fieldHeight = (m_height + 1 - field) / 2;
    int const line = std::clamp((chromaRow >> 1) * 2 + filter.first + tap, 0, fieldHeight - 1);
    return 2 * line + field;
}

} // namespace Korvex::Proc::Blend
