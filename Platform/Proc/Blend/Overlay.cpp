#include "Proc/Blend/Overlay.h"

#include "Proc/Blend/ChromaFilter.h"
#include "Proc/Blend/ColorEncoder.h"
#include "Proc/Blend/InkStrip.h"
#include "Proc/Blend/Kernels.h"

#include <algorithm>

namespace Korvex::Proc::Blend
{
namespace
{

/// Rows composed at a time: a multiple of every chroma block, by field too, and few enough to stay in the cache.
constexpr int STRIP_ROWS = 16;

/// Grey pictures carry their transparency right behind the only other component.
bool IsAlpha(PixelLayout const& layout, std::size_t component)
{
    return component == 3 || (layout.model == ColorModel::Gray && component == 1);
}

bool IsSame(PixelLayout const& a, PixelLayout const& b)
{
    auto const isSameComponent = [](PixelLayout::Component const& c, PixelLayout::Component const& d)
    { return c.plane == d.plane && c.step == d.step && c.offset == d.offset; };
    return a.model == b.model && a.bitDepth == b.bitDepth && a.chromaShiftX == b.chromaShiftX &&
           a.chromaShiftY == b.chromaShiftY && a.componentCount == b.componentCount &&
           std::equal(a.components.begin(), a.components.begin() + a.componentCount, b.components.begin(),
                      isSameComponent);
}

bool IsSame(ColorDescription const& a, ColorDescription const& b)
{
    return a.matrix == b.matrix && a.range == b.range && a.transfer == b.transfer && a.isWideGamut == b.isWideGamut &&
           a.chromaSite.x == b.chromaSite.x && a.chromaSite.y == b.chromaSite.y;
}

int CeilShift(int value, int shift)
{
    return (value + (1 << shift) - 1) >> shift;
}

struct RowRange
{
    int begin;
    int end;
};

/// Writes the spans of one component: what stays of every sample, and what is added, rounding included.
void StoreColor(std::uint16_t* keepOut, std::uint16_t* addOut, int step, std::uint16_t const* keep,
                std::uint16_t const* color, std::uint16_t half, int count)
{
    if (step == 1)
    {
        std::copy_n(keep, count, keepOut);
        for (int i = 0; i < count; ++i)
            addOut[i] = static_cast<std::uint16_t>(color[i] + half);
        return;
    }
    for (int i = 0; i < count; ++i, keepOut += step, addOut += step)
    {
        *keepOut = keep[i];
        *addOut = static_cast<std::uint16_t>(color[i] + half);
    }
}

/// The same for the picture's own transparency, which goes where ink is.
void StoreAlpha(std::uint16_t* keepOut, std::uint16_t* addOut, int step, std::uint16_t const* keep,
                std::uint16_t opaque, std::uint16_t half, int count)
{
    for (int i = 0; i < count; ++i, keepOut += step, addOut += step)
    {
        *keepOut = keep[i];
        *addOut = static_cast<std::uint16_t>((((65535U - keep[i]) * opaque) >> 16U) + half);
    }
}

/// The rows of every layer, for finding the bands that have to be composed at all.
std::vector<RowRange> RowRangesOf(Ink const& ink)
{
    std::vector<RowRange> ranges;
    ranges.reserve(ink.masks.size() + ink.bitmaps.size());
    for (MaskLayer const& layer : ink.masks)
        ranges.push_back({layer.y, layer.y + layer.height});
    for (RgbaLayer const& layer : ink.bitmaps)
        ranges.push_back({layer.y, layer.y + layer.height});
    return ranges;
}

} // namespace

struct Overlay::ChromaScratch
{
    explicit ChromaScratch(PictureView const& picture)
        : columns(MakeAxisFilter(picture.layout.chromaShiftX, picture.color.chromaSite.x)),
          rows(picture)
    {
        std::size_t const size = static_cast<std::size_t>(picture.width) + 4 * static_cast<std::size_t>(CHUNK);
        mixed.resize(size);
        for (auto& plane : planes)
            plane.resize(size);
    }

    AxisFilter columns;
    ChromaRows rows;
    std::vector<std::uint16_t> mixed;                 ///< one row of luma resolution, already mixed down the picture
    std::array<std::vector<std::uint16_t>, 3> planes; ///< keep, second and third component, from the first sample on
};

Overlay::Overlay() = default;

bool Overlay::Fits(PictureView const& picture) const
{
    return picture.width == m_kind.width && picture.height == m_kind.height &&
           picture.isInterlaced == m_kind.isInterlaced && IsSame(picture.layout, m_kind.layout) &&
           IsSame(picture.color, m_kind.color);
}

std::vector<Overlay::Group> Overlay::MakeGroups() const
{
    PixelLayout const& layout = m_kind.layout;
    int const sampleSize = layout.bitDepth > 8 ? 2 : 1;
    bool const isSubsampled = layout.model == ColorModel::Yuv && (layout.chromaShiftX != 0 || layout.chromaShiftY != 0);
    std::vector<Group> groups;
    for (std::size_t i = 0; i < static_cast<std::size_t>(layout.componentCount); ++i)
    {
        PixelLayout::Component const& component = layout.components[i];
        bool const isChroma = isSubsampled && (i == 1 || i == 2);
        int const step = component.step / sampleSize;
        auto const match =
            std::find_if(groups.begin(), groups.end(),
                         [&](Group const& group) {
                             return group.plane == component.plane && group.step == step && group.isChroma == isChroma;
                         });
        if (match != groups.end())
            match->components.push_back(i);
        else
            groups.push_back({component.plane, step, isChroma, {i}});
    }
    return groups;
}

void Overlay::Build(Ink const& ink, PictureView const& kind)
{
    m_kind = kind;
    m_groups = MakeGroups();
    m_spans.clear();
    m_used = 0;

    ColorEncoder const encoder(kind.layout, kind.color, ink.authoredMatrix);
    std::vector<std::array<std::uint16_t, 3>> colors;
    colors.reserve(ink.masks.size());
    for (MaskLayer const& layer : ink.masks)
        colors.push_back(encoder.EncodeFixed(layer.color));

    ChromaScratch scratch(kind);
    int const reach = scratch.rows.Reach();
    InkStrip strip(kind.width, kind.height, STRIP_ROWS + 2 * reach);
    std::vector<RowRange> const ranges = RowRangesOf(ink);
    for (int first = 0; first < kind.height; first += STRIP_ROWS)
    {
        int const end = std::min(first + STRIP_ROWS, kind.height);
        auto const hasRows = [&](RowRange const& range)
        { return range.begin < end + reach && range.end > first - reach; };
        if (std::none_of(ranges.begin(), ranges.end(), hasRows))
            continue;
        strip.MoveTo(first - reach);
        for (std::size_t i = 0; i < ink.masks.size(); ++i)
            strip.Add(ink.masks[i], colors[i]);
        for (RgbaLayer const& layer : ink.bitmaps)
            strip.Add(layer, encoder);
        EmitLuma(strip, first, end);
        EmitChroma(strip, first, end, scratch);
    }
}

void Overlay::EmitLuma(InkStrip const& strip, int firstRow, int endRow)
{
    for (int row = firstRow; row < endRow; ++row)
    {
        for (int chunk = 0; chunk < strip.ChunkCount();)
        {
            if (!strip.HasInk(row, chunk))
            {
                ++chunk;
                continue;
            }
            int const first = chunk * CHUNK;
            while (chunk < strip.ChunkCount() && strip.HasInk(row, chunk))
                ++chunk;
            int const count = std::min(chunk * CHUNK, m_kind.width) - first;
            for (Group const& group : m_groups)
            {
                if (!group.isChroma)
                {
                    Emit(group, row, first, count, strip.Keep(row) + first,
                         {strip.Color(row, 0) + first, strip.Color(row, 1) + first, strip.Color(row, 2) + first});
                }
            }
        }
    }
}

void Overlay::EmitChroma(InkStrip& strip, int firstRow, int endRow, ChromaScratch& scratch)
{
    auto const isChroma = [](Group const& group) { return group.isChroma; };
    if (std::none_of(m_groups.begin(), m_groups.end(), isChroma))
        return;
    int const shiftY = m_kind.layout.chromaShiftY;
    int const width = CeilShift(m_kind.width, m_kind.layout.chromaShiftX);
    AxisFilter const& columns = scratch.columns;
    int const endChromaRow = CeilShift(endRow, shiftY);
    for (int row = firstRow >> shiftY; row < endChromaRow; ++row)
    {
        int const taps = scratch.rows.FilterOf(row).TapCount();
        auto const hasInk = [&](int first)
        {
            int const left = first * columns.block + columns.first;
            int const right = (std::min(first + CHUNK, width) - 1) * columns.block + columns.first + columns.TapCount();
            for (int tap = 0; tap < taps; ++tap)
            {
                if (strip.HasInk(scratch.rows.LumaRow(row, tap), left, right))
                    return true;
            }
            return false;
        };
        for (int first = 0; first < width;)
        {
            int end = first;
            while (end < width && hasInk(end))
                end += CHUNK;
            if (end == first)
            {
                first += CHUNK;
                continue;
            }
            end = std::min(end, width);
            FilterChroma(strip, row, first, end, scratch);
            for (Group const& group : m_groups)
            {
                if (group.isChroma)
                {
                    Emit(group, row, first, end - first, scratch.planes[0].data(),
                         {nullptr, scratch.planes[1].data(), scratch.planes[2].data()});
                }
            }
            first = end;
        }
    }
}

void Overlay::FilterChroma(InkStrip& strip, int row, int first, int end, ChromaScratch& scratch) const
{
    AxisFilter const& columns = scratch.columns;
    AxisFilter const& down = scratch.rows.FilterOf(row);
    int const left = first * columns.block + columns.first;
    int const right = (end - 1) * columns.block + columns.first + columns.TapCount();
    for (int tap = 0; tap < down.TapCount(); ++tap)
        strip.MakeReadable(scratch.rows.LumaRow(row, tap), left, right);

    std::vector<std::uint16_t const*> rows(static_cast<std::size_t>(down.TapCount()));
    for (std::size_t plane = 0; plane < scratch.planes.size(); ++plane)
    {
        for (int tap = 0; tap < down.TapCount(); ++tap)
        {
            int const lumaRow = scratch.rows.LumaRow(row, tap);
            rows[static_cast<std::size_t>(tap)] =
                (plane == 0 ? strip.Keep(lumaRow) : strip.Color(lumaRow, plane)) + left;
        }
        MixRows(scratch.mixed.data(), rows.data(), down.weights.data(), down.TapCount(),
                static_cast<std::size_t>(right - left));
        MixColumns(scratch.planes[plane].data(), scratch.mixed.data(), columns.block, columns.weights.data(),
                   columns.TapCount(), static_cast<std::size_t>(end - first));
    }
}

void Overlay::Emit(Group const& group, int row, int first, int count, std::uint16_t const* keep,
                   std::array<std::uint16_t const*, 3> const& color)
{
    PixelLayout const& layout = m_kind.layout;
    int const sampleSize = layout.bitDepth > 8 ? 2 : 1;
    int const fraction = 16 - layout.bitDepth;
    auto const half = static_cast<std::uint16_t>(1U << (fraction - 1));
    auto const sampleOffset = [&](std::size_t component) { return layout.components[component].offset / sampleSize; };
    int low = sampleOffset(group.components.front());
    int high = low;
    for (std::size_t const component : group.components)
    {
        low = std::min(low, sampleOffset(component));
        high = std::max(high, sampleOffset(component));
    }
    std::size_t const samples = static_cast<std::size_t>(count - 1) * static_cast<std::size_t>(group.step) +
                                static_cast<std::size_t>(high - low) + 1;
    std::size_t const offset = Reserve(samples);
    m_spans.push_back({group.plane, row, static_cast<std::ptrdiff_t>(first) * group.step + low, samples, offset});

    auto const opaque = static_cast<std::uint16_t>(((1U << layout.bitDepth) - 1U) << fraction);
    if (group.components.size() < static_cast<std::size_t>(group.step))
    {
        // Samples in between that belong to nothing, or to components of another resolution, stay as they are.
        std::fill_n(m_keep.data() + offset, samples, std::uint16_t{65535});
        std::fill_n(m_add.data() + offset, samples, half);
    }
    for (std::size_t const component : group.components)
    {
        std::size_t const at = offset + static_cast<std::size_t>(sampleOffset(component) - low);
        if (IsAlpha(layout, component))
            StoreAlpha(m_keep.data() + at, m_add.data() + at, group.step, keep, opaque, half, count);
        else
            StoreColor(m_keep.data() + at, m_add.data() + at, group.step, keep, color[component], half, count);
    }
}

std::size_t Overlay::Reserve(std::size_t samples)
{
    std::size_t const offset = m_used;
    m_used += samples;
    if (m_used > m_keep.size())
    {
        m_keep.resize(m_used * 2);
        m_add.resize(m_used * 2);
    }
    return offset;
}

bool Overlay::BlendOnto(PictureView const& picture) const
{
    for (Span const& span : m_spans)
    {
        PictureView::Plane const& plane = picture.planes[static_cast<std::size_t>(span.plane)];
        std::uint8_t* const row = plane.data + span.row * plane.stride;
        std::uint16_t const* const keep = m_keep.data() + span.offset;
        std::uint16_t const* const add = m_add.data() + span.offset;
        if (m_kind.layout.bitDepth == 8)
            BlendRow(row + span.firstSample, keep, add, span.count);
        else
            BlendRow(reinterpret_cast<std::uint16_t*>(row) + span.firstSample, keep, add, span.count,
                     m_kind.layout.bitDepth);
    }
    return !m_spans.empty();
}

} // namespace Korvex::Proc::Blend
