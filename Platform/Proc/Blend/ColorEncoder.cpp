#include "Proc/Blend/ColorEncoder.h"

#include <algorithm>
#include <cmath>

namespace Korvex::Proc::Blend
{
namespace
{

using Triple = std::array<double, 3>;

/// Peak of the PQ scale and the luminance of diffuse white in it, cd/m2 (ITU-R BT.2100, BT.2408).
constexpr double PQ_PEAK = 10000.0;
constexpr double GRAPHICS_WHITE = 203.0;
/// The display for which HLG's graphics white is 203 cd/m2, cd/m2, and its system gamma.
constexpr double HLG_PEAK = 1000.0;
constexpr double HLG_GAMMA = 1.2;

struct LumaWeights
{
    double red;
    double blue;
};

LumaWeights WeightsOf(YuvMatrix matrix)
{
    switch (matrix)
    {
    case YuvMatrix::Bt601:
        return {0.299, 0.114};
    case YuvMatrix::Bt709:
        return {0.2126, 0.0722};
    case YuvMatrix::Bt2020:
        return {0.2627, 0.0593};
    }
    return {0.2126, 0.0722};
}

double Linearize(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Delinearize(double value)
{
    return value <= 0.0031308 ? value * 12.92 : 1.055 * std::pow(value, 1.0 / 2.4) - 0.055;
}

/// BT.709 primaries to BT.2020 primaries, linear light (ITU-R BT.2087).
Triple WidenGamut(Triple const& c)
{
    return {0.6274 * c[0] + 0.3293 * c[1] + 0.0433 * c[2], 0.0691 * c[0] + 0.9195 * c[1] + 0.0114 * c[2],
            0.0164 * c[0] + 0.0880 * c[1] + 0.8956 * c[2]};
}

double PqSignal(double luminance)
{
    constexpr double m1 = 2610.0 / 16384.0;
    constexpr double m2 = 2523.0 / 4096.0 * 128.0;
    constexpr double c1 = 3424.0 / 4096.0;
    constexpr double c2 = 2413.0 / 4096.0 * 32.0;
    constexpr double c3 = 2392.0 / 4096.0 * 32.0;
    double const y = std::pow(std::max(luminance, 0.0) / PQ_PEAK, m1);
    return std::pow((c1 + c2 * y) / (1.0 + c3 * y), m2);
}

double HlgSignal(double scene)
{
    constexpr double a = 0.17883277;
    constexpr double b = 1.0 - 4.0 * a;
    double const c = 0.5 - a * std::log(4.0 * a);
    return scene <= 1.0 / 12.0 ? std::sqrt(3.0 * std::max(scene, 0.0)) : a * std::log(12.0 * scene - b) + c;
}

/// Display light, 1 being graphics white, to the HLG signal: the display's gamma undone on luminance, hue kept.
Triple ToHlg(Triple const& display)
{
    double const white = GRAPHICS_WHITE / HLG_PEAK;
    double const luminance = white * (0.2627 * display[0] + 0.6780 * display[1] + 0.0593 * display[2]);
    if (luminance <= 0.0)
        return {0.0, 0.0, 0.0};
    double const gain = white * std::pow(luminance, (1.0 - HLG_GAMMA) / HLG_GAMMA);
    return {HlgSignal(gain * display[0]), HlgSignal(gain * display[1]), HlgSignal(gain * display[2])};
}

} // namespace

ColorEncoder::ColorEncoder(PixelLayout const& layout, ColorDescription const& color,
                           std::optional<YuvMatrix> authoredMatrix)
    : m_model(layout.model),
      m_bitDepth(layout.bitDepth),
      m_matrix(color.matrix),
      m_range(color.range),
      m_transfer(color.transfer),
      m_isWideGamut(color.isWideGamut)
{
    bool const isPlainSdr =
        color.transfer == TransferFunction::Sdr && !color.isWideGamut && color.matrix != YuvMatrix::Bt2020;
    if (authoredMatrix && isPlainSdr)
        m_matrix = *authoredMatrix;
}

ColorEncoder::Triple ColorEncoder::ToSignal(RgbColor color) const
{
    Triple value{color.red / 255.0, color.green / 255.0, color.blue / 255.0};
    if (m_transfer == TransferFunction::Sdr && !m_isWideGamut)
        return value;
    std::transform(value.begin(), value.end(), value.begin(), Linearize);
    if (m_isWideGamut)
        value = WidenGamut(value);
    switch (m_transfer)
    {
    case TransferFunction::Sdr:
        std::transform(value.begin(), value.end(), value.begin(), Delinearize);
        return value;
    case TransferFunction::Pq:
        std::transform(value.begin(), value.end(), value.begin(),
                       [](double v) { return PqSignal(v * GRAPHICS_WHITE); });
        return value;
    case TransferFunction::Hlg:
        return ToHlg(value);
    }
    return value;
}

ComponentCodes ColorEncoder::Encode(RgbColor color) const
{
    Triple const rgb = ToSignal(color);
    double const unit = 1 << (m_bitDepth - 8);
    double const peak = (1 << m_bitDepth) - 1;
    bool const isLimited = m_range == SampleRange::Limited;
    double const base = isLimited ? 16.0 * unit : 0.0;
    double const span = isLimited ? 219.0 * unit : peak;
    if (m_model == ColorModel::Rgb)
        return {base + span * rgb[0], base + span * rgb[1], base + span * rgb[2]};

    LumaWeights const weights = WeightsOf(m_matrix);
    double const luma = weights.red * rgb[0] + (1.0 - weights.red - weights.blue) * rgb[1] + weights.blue * rgb[2];
    double const chromaSpan = isLimited ? 224.0 * unit : peak;
    return {base + span * luma, 128.0 * unit + chromaSpan * (rgb[2] - luma) / (2.0 * (1.0 - weights.blue)),
            128.0 * unit + chromaSpan * (rgb[0] - luma) / (2.0 * (1.0 - weights.red))};
}

std::array<std::uint16_t, 3> ColorEncoder::EncodeFixed(RgbColor color) const
{
    ComponentCodes const codes = Encode(color);
    double const one = 1 << (16 - m_bitDepth);
    double const peak = (1 << m_bitDepth) - 1;
    std::array<std::uint16_t, 3> fixed{};
    for (std::size_t i = 0; i < fixed.size(); ++i)
    {
        double const code = std::clamp(codes[i], 0.0, peak);
        double const nearest = std::floor(code + 0.5);
        // Within the half-open interval that rounds to `nearest`, and never above the largest code.
        double const low = nearest * one - one / 2.0;
        double const high = std::min(nearest * one + one / 2.0 - 1.0, peak * one);
        fixed[i] = static_cast<std::uint16_t>(std::clamp(std::floor(code * one + 0.5), std::max(low, 0.0), high));
    }
    return fixed;
}

} // namespace Korvex::Proc::Blend
