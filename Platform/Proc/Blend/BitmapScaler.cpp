#include "Proc/Blend/BitmapScaler.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Korvex::Proc::Blend
{
namespace
{

/// The input samples that make an output sample, with weights that sum up to 1.
struct Taps
{
    int first = 0;
    std::vector<float> weights;
};

Taps MakeTaps(int output, int inputSize, double ratio)
{
    Taps taps;
    double const radius = std::max(ratio, 1.0);
    double const center = (output + 0.5) * ratio;
    // A box of `ratio` samples where it shrinks; a triangle reaching to the neighbours where it grows.
    double const reach = ratio > 1.0 ? radius / 2.0 : 1.0;
    int const begin = std::max(0, static_cast<int>(std::floor(center - reach)));
    int const end = std::min(inputSize, static_cast<int>(std::ceil(center + reach)));
    taps.first = std::min(begin, inputSize - 1);
    double sum = 0.0;
    for (int i = taps.first; i < end; ++i)
    {
        double const weight = ratio > 1.0 ? std::min(center + reach, i + 1.0) - std::max(center - reach, double(i))
                                          : 1.0 - std::abs(i + 0.5 - center);
        taps.weights.push_back(static_cast<float>(std::max(weight, 0.0)));
        sum += taps.weights.back();
    }
    for (float& weight : taps.weights)
        weight = static_cast<float>(weight / sum);
    return taps;
}

std::vector<Taps> MakeAxis(int size, int newSize)
{
    std::vector<Taps> axis;
    axis.reserve(static_cast<std::size_t>(newSize));
    for (int i = 0; i < newSize; ++i)
        axis.push_back(MakeTaps(i, size, static_cast<double>(size) / newSize));
    return axis;
}

/// One row, premultiplied and scaled across.
void ScaleRow(std::uint8_t const* rgba, std::vector<Taps> const& columns, float* out)
{
    for (Taps const& taps : columns)
    {
        float sum[4] = {};
        std::uint8_t const* pixel = rgba + 4 * static_cast<std::ptrdiff_t>(taps.first);
        for (float const weight : taps.weights)
        {
            float const alpha = weight * static_cast<float>(pixel[3]);
            for (int c = 0; c < 3; ++c)
                sum[c] += alpha * static_cast<float>(pixel[c]);
            sum[3] += alpha;
            pixel += 4;
        }
        out = std::copy_n(sum, 4, out);
    }
}

void StorePixel(float const* sum, std::uint8_t* pixel)
{
    if (sum[3] < 0.5F)
    {
        std::fill_n(pixel, 4, std::uint8_t{0});
        return;
    }
    for (int c = 0; c < 3; ++c)
        pixel[c] = static_cast<std::uint8_t>(std::min(sum[c] / sum[3] + 0.5F, 255.0F));
    pixel[3] = static_cast<std::uint8_t>(std::min(sum[3] + 0.5F, 255.0F));
}

} // namespace

std::vector<std::uint8_t> ScaleRgba(std::uint8_t const* rgba, int width, int height, int newWidth, int newHeight)
{
    std::vector<Taps> const columns = MakeAxis(width, newWidth);
    std::vector<Taps> const rows = MakeAxis(height, newHeight);
    std::size_t const rowSize = 4 * static_cast<std::size_t>(newWidth);
    std::vector<float> across(rowSize * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y)
    {
        ScaleRow(rgba + 4 * static_cast<std::ptrdiff_t>(y) * width, columns,
                 across.data() + static_cast<std::size_t>(y) * rowSize);
    }
    std::vector<std::uint8_t> result(rowSize * static_cast<std::size_t>(newHeight));
    std::vector<float> sums(rowSize);
    std::uint8_t* pixel = result.data();
    for (Taps const& taps : rows)
    {
        std::fill(sums.begin(), sums.end(), 0.0F);
        float const* row = across.data() + static_cast<std::size_t>(taps.first) * rowSize;
        for (float const weight : taps.weights)
        {
            for (std::size_t i = 0; i < rowSize; ++i)
                sums[i] += weight * row[i];
            row += rowSize;
        }
        for (std::size_t i = 0; i < rowSize; i += 4, pixel += 4)
            StorePixel(sums.data() + i, pixel);
    }
    return result;
}

} // namespace Korvex::Proc::Blend
