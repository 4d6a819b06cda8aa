#include "Proc/FFmpeg/RgbaConverter.h"

#include "Proc/FFmpeg/FrameView.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>

extern "C"
{
#include <libavutil/pixdesc.h>
}

namespace Korvex::Proc::FFmpeg
{

namespace
{

/// Rows of a band: a multiple of every chroma block, and few beside a picture. All bands have one size, because another
/// size costs the scaler new tables.
constexpr int BAND_ROWS = 128;
/// How far a chroma sample reaches up and down, in rows of the picture. The scaler's filter mixes four chroma rows, so
/// that six would do.
constexpr int REACH = 8;

/// A band's size must not change what is taken for granted where the picture does not state its matrix.
AVColorSpace MatrixOf(AVFrame const& picture)
{
    switch (DescribeColor(picture).matrix)
    {
    case YuvMatrix::Bt2020:
        return AVCOL_SPC_BT2020_NCL;
    case YuvMatrix::Bt709:
        return AVCOL_SPC_BT709;
    case YuvMatrix::Bt601:
        break;
    }
    return AVCOL_SPC_SMPTE170M;
}

/// The rows from `firstRow` on as a picture of their own; it points into the other.
Frame ViewBand(AVFrame const& picture, int firstRow)
{
    AVPixFmtDescriptor const& format = *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(picture.format));
    Frame band = MakeFrame();
    band->format = picture.format;
    band->width = picture.width;
    band->height = BAND_ROWS;
    band->colorspace = MatrixOf(picture);
    band->color_range = picture.color_range;
    band->chroma_location = picture.chroma_location;
    for (int plane = 0; plane < av_pix_fmt_count_planes(static_cast<AVPixelFormat>(picture.format)); ++plane)
    {
        int const row = firstRow >> (plane == 1 || plane == 2 ? format.log2_chroma_h : 0);
        band->data[plane] = picture.data[plane] + std::ptrdiff_t{picture.linesize[plane]} * row;
        band->linesize[plane] = picture.linesize[plane];
    }
    return band;
}

} // namespace

RgbaConverter::RgbaConverter(int width, int height)
    : m_width(width),
      m_height(height),
      m_whole(width, height, AV_PIX_FMT_RGBA),
      m_band(width, BAND_ROWS, AV_PIX_FMT_RGBA)
{
}

int RgbaConverter::Convert(AVFrame const& picture, std::vector<std::uint8_t>& rgba)
{
    // Rows of the scaler's target are aligned for its vector code.
    Frame const target = m_wholePool.Get(AV_PIX_FMT_RGBA, m_width, m_height);
    if (int const result = m_whole.Convert(picture, *target); result < 0)
        return result;
    rgba.resize(std::size_t{4} * static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height));
    CopyRows(*target, 0, {0, m_height}, rgba);
    return 0;
}

int RgbaConverter::Update(AVFrame const& before, AVFrame const& picture, std::vector<std::uint8_t>& rgba)
{
    std::vector<Rows> const changes = FindChanges(before, picture);
    if (changes.empty())
        return 0;
    if (m_height < BAND_ROWS)
        return Convert(picture, rgba);
    int converted = 0;
    for (Rows const& change : changes)
    {
        while (converted < change.end)
        {
            int const begin = std::max(converted, change.begin);
            if (int const result = ConvertBand(picture, {begin, change.end}, rgba, converted); result < 0)
                return result;
        }
    }
    return 0;
}

/// Ordered and apart from each other.
std::vector<RgbaConverter::Rows> RgbaConverter::FindChanges(AVFrame const& before, AVFrame const& picture) const
{
    auto const format = static_cast<AVPixelFormat>(picture.format);
    AVPixFmtDescriptor const& description = *av_pix_fmt_desc_get(format);
    std::vector<bool> changes(static_cast<std::size_t>(m_height), false);
    for (int plane = 0; plane < av_pix_fmt_count_planes(format); ++plane)
    {
        if (before.data[plane] == picture.data[plane])
            continue;
        bool const isChroma = plane == 1 || plane == 2;
        int const shift = isChroma ? description.log2_chroma_h : 0;
        int const samples = isChroma ? AV_CEIL_RSHIFT(m_width, description.log2_chroma_w) : m_width;
        auto const bytes = static_cast<std::size_t>(samples) * (description.comp[0].depth > 8 ? 2 : 1);
        for (int row = 0; row < AV_CEIL_RSHIFT(m_height, shift); ++row)
        {
            if (std::memcmp(before.data[plane] + std::ptrdiff_t{before.linesize[plane]} * row,
                            picture.data[plane] + std::ptrdiff_t{picture.linesize[plane]} * row, bytes) == 0)
                continue;
            int const end = std::min(((row + 1) << shift) + REACH, m_height);
            std::fill(changes.begin() + std::max((row << shift) - REACH, 0), changes.begin() + end, true);
        }
    }
    std::vector<Rows> runs;
    for (auto begin = std::find(changes.begin(), changes.end(), true); begin != changes.end();)
    {
        auto const end = std::find(begin, changes.end(), false);
        runs.push_back({static_cast<int>(begin - changes.begin()), static_cast<int>(end - changes.begin())});
        begin = std::find(end, changes.end(), true);
    }
    return runs;
}

/// Converts from the first wanted row on as far as one band gets; `converted` becomes the row behind.
int RgbaConverter::ConvertBand(AVFrame const& picture, Rows const& wanted, std::vector<std::uint8_t>& rgba,
                               int& converted)
{
    // Where a band ends within the picture, its outermost rows lack neighbours and are not used.
    int const top = std::clamp((wanted.begin - REACH) & ~1, 0, (m_height - BAND_ROWS) & ~1);
    int const end = top + BAND_ROWS >= m_height ? m_height : top + BAND_ROWS - REACH;
    Frame const target = m_bandPool.Get(AV_PIX_FMT_RGBA, m_width, BAND_ROWS);
    if (int const result = m_band.Convert(*ViewBand(picture, top), *target); result < 0)
        return result;
    converted = std::min(end, wanted.end);
    CopyRows(*target, wanted.begin - top, {wanted.begin, converted}, rgba);
    return 0;
}

void RgbaConverter::CopyRows(AVFrame const& from, int firstRow, Rows const& to, std::vector<std::uint8_t>& rgba) const
{
    std::size_t const bytes = std::size_t{4} * static_cast<std::size_t>(m_width);
    for (int row = to.begin; row < to.end; ++row)
        std::memcpy(rgba.data() + bytes * static_cast<std::size_t>(row),
                    from.data[0] + std::ptrdiff_t{from.linesize[0]} * (firstRow + row - to.begin), bytes);
}

} // namespace Korvex::Proc::FFmpeg
