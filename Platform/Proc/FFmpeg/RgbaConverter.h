#pragma once

#include "Proc/FFmpeg/FrameConversion.h"

#include <cstdint>
#include <vector>

namespace Korvex::Proc::FFmpeg
{

/// Planar pictures of one size as RGBA for the screen: 4 bytes a pixel, rows without gaps. Where the RGBA of nearly the
/// same picture is there already, only the rows are converted that differ, to the same bytes as the whole would give.
class RgbaConverter
{
public:
    /// `height` is even.
    RgbaConverter(int width, int height);

    /// Negative: FFmpeg's error number.
    [[nodiscard]] int Convert(AVFrame const& picture, std::vector<std::uint8_t>& rgba);

    /// `rgba` holds `before`, and `picture` from then on. Both are of one format and say the same of their colours.
    [[nodiscard]] int Update(AVFrame const& before, AVFrame const& picture, std::vector<std::uint8_t>& rgba);

private:
    struct Rows
    {
        int begin = 0;
        int end = 0;
    };

    [[nodiscard]] std::vector<Rows> FindChanges(AVFrame const& before, AVFrame const& picture) const;
    [[nodiscard]] int ConvertBand(AVFrame const& picture, Rows const& wanted, std::vector<std::uint8_t>& rgba,
                                  int& converted);
    void CopyRows(AVFrame const& from, int firstRow, Rows const& to, std::vector<std::uint8_t>& rgba) const;

    int const m_width;
    int const m_height;
    FrameConverter m_whole;
    FrameConverter m_band;
    FramePool m_wholePool;
    FramePool m_bandPool;
};

} // namespace Korvex::Proc::FFmpeg
