#include "Support/PgsPackets.h"

#include "Support/MediaEncoders.h"

#include <initializer_list>
#include <utility>

namespace Korvex::Testing
{

namespace
{

constexpr std::uint64_t PALETTE = 0x14;
constexpr std::uint64_t OBJECT = 0x15;
constexpr std::uint64_t COMPOSITION = 0x16;
constexpr std::uint64_t WINDOW = 0x17;
constexpr std::uint64_t END = 0x80;
constexpr std::uint64_t EPOCH_START = 0x80;

/// Numbers of so many bytes each, the highest byte first.
std::string Bytes(std::initializer_list<std::pair<std::uint64_t, int>> numbers)
{
    std::string bytes;
    for (auto const& [value, count] : numbers)
        for (int shift = 8 * (count - 1); shift >= 0; shift -= 8)
            bytes += static_cast<char>((value >> shift) & 0xFF);
    return bytes;
}

std::string Segment(std::uint64_t type, std::string const& payload)
{
    return Bytes({{type, 1}, {payload.size(), 2}}) + payload;
}

/// One entry, number 1, in BT.709 video levels.
std::string Palette(std::uint32_t rgba)
{
    double const red = (rgba >> 24) & 0xFF;
    double const green = (rgba >> 16) & 0xFF;
    double const blue = (rgba >> 8) & 0xFF;
    double const luma = 0.2126 * red + 0.7152 * green + 0.0722 * blue;
    auto const y = static_cast<std::uint64_t>(16.5 + luma * 219.0 / 255.0);
    auto const cr = static_cast<std::uint64_t>(128.5 + (red - luma) / 1.5748 * 224.0 / 255.0);
    auto const cb = static_cast<std::uint64_t>(128.5 + (blue - luma) / 1.8556 * 224.0 / 255.0);
    return Segment(PALETTE, Bytes({{0, 2}, {1, 1}, {y, 1}, {cr, 1}, {cb, 1}, {rgba & 0xFF, 1}}));
}

} // namespace

std::string MakePgsSet(MadeCue const& cue, bool isShown, int number)
{
    auto const x = static_cast<std::uint64_t>(cue.x);
    auto const y = static_cast<std::uint64_t>(cue.y);
    auto const width = static_cast<std::uint64_t>(cue.width);
    auto const height = static_cast<std::uint64_t>(cue.height);
    std::string const composition =
        Bytes({{CANVAS_WIDTH, 2}, {CANVAS_HEIGHT, 2}, {0x10, 1}, {static_cast<std::uint64_t>(number), 2}}) +
        Bytes({{isShown ? EPOCH_START : 0, 1}, {0, 2}, {isShown ? 1 : 0, 1}}) +
        (isShown ? Bytes({{0, 4}, {x, 2}, {y, 2}}) : std::string());
    std::string set = Segment(COMPOSITION, composition) +
                      Segment(WINDOW, Bytes({{1, 1}, {0, 1}, {x, 2}, {y, 2}, {width, 2}, {height, 2}}));
    if (isShown)
    {
        std::string runs;
        for (int row = 0; row < cue.height; ++row)
            runs += Bytes({{0, 1}, {0xC000U | width, 2}, {1, 1}, {0, 2}});
        set += Palette(cue.rgba) +
               Segment(OBJECT, Bytes({{0, 3}, {0xC0, 1}, {runs.size() + 4, 3}, {width, 2}, {height, 2}}) + runs);
    }
    return set + Segment(END, {});
}

} // namespace Korvex::Testing
