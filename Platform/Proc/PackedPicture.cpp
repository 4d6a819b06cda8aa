#include "Proc/PackedPicture.h"

#include "Proc/SubtitleContent.h"

#include <algorithm>

namespace Korvex::Proc
{

namespace
{

// A control byte below RUN announces that many samples and one more as they are, any other a run of one sample.
constexpr std::uint8_t RUN = 128;
constexpr std::size_t SHORTEST_RUN = 2;
constexpr std::size_t LONGEST_RUN = 255 - RUN + SHORTEST_RUN;
constexpr std::size_t LONGEST_LITERAL = RUN;

std::size_t RunLength(std::vector<std::uint8_t> const& samples, std::size_t at)
{
    std::size_t const limit = std::min(samples.size(), at + LONGEST_RUN);
    std::size_t end = at + 1;
    while (end < limit && samples[end] == samples[at])
        ++end;
    return end - at;
}

std::vector<std::uint8_t> Pack(std::vector<std::uint8_t> const& samples)
{
    std::vector<std::uint8_t> packed;
    for (std::size_t at = 0; at < samples.size();)
    {
        std::size_t const run = RunLength(samples, at);
        if (run >= SHORTEST_RUN)
        {
            packed.push_back(static_cast<std::uint8_t>(RUN + run - SHORTEST_RUN));
            packed.push_back(samples[at]);
            at += run;
            continue;
        }
        std::size_t end = at + 1;
        while (end < samples.size() && end - at < LONGEST_LITERAL && RunLength(samples, end) < SHORTEST_RUN)
            ++end;
        packed.push_back(static_cast<std::uint8_t>(end - at - 1));
        packed.insert(packed.end(), samples.begin() + static_cast<std::ptrdiff_t>(at),
                      samples.begin() + static_cast<std::ptrdiff_t>(end));
        at = end;
    }
    packed.shrink_to_fit();
    return packed;
}

} // namespace

PackedPicture::PackedPicture(std::vector<std::uint8_t> const& indices, std::vector<Color> palette)
    : m_palette(std::move(palette)),
      m_packed(Pack(indices)),
      m_pixelCount(indices.size())
{
}

std::vector<std::uint8_t> PackedPicture::Unpack() const
{
    std::vector<std::uint8_t> rgba;
    rgba.reserve(m_pixelCount * 4);
    auto const append = [&](std::uint8_t index)
    {
        Color const color = index < m_palette.size() ? m_palette[index] : Color{};
        rgba.insert(rgba.end(), color.begin(), color.end());
    };
    for (std::size_t at = 0; at < m_packed.size();)
    {
        std::uint8_t const control = m_packed[at++];
        if (control >= RUN)
        {
            for (std::size_t i = 0; i < control - RUN + SHORTEST_RUN; ++i)
                append(m_packed[at]);
            ++at;
            continue;
        }
        for (std::size_t i = 0; i <= control; ++i)
            append(m_packed[at++]);
    }
    return rgba;
}

std::shared_ptr<std::vector<std::uint8_t> const> BitmapRect::Pixels() const
{
    if (rgba || !packed)
        return rgba;
    return std::make_shared<std::vector<std::uint8_t> const>(packed->Unpack());
}

} // namespace Korvex::Proc
