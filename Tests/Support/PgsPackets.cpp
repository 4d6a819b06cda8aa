#include "Support/PgsPackets.h"

namespace Korvex::Testing
{

namespace
{

constexpr int PALETTE = 0x14;
constexpr int OBJECT = 0x15;
constexpr int COMPOSITION = 0x16;
constexpr int WINDOW = 0x17;
constexpr int END = 0x80;
constexpr int EPOCH_START = 0x80;

std::string Bytes(std::uint64_t value, int count)
{
    std::string bytes;
    for (int shift = 8 * (count - 1); shift >= 0; shift -= 8)
        bytes += static_cast<char>((value >> shift) & 0xFF);
    return bytes;
}

std::string Segment(int type, std::string const& payload)
{
    return Bytes(static_cast<std::uint64_t>(type), 1) + Bytes(payload.size(), 2) + payload;
}

std::string Composition(int width, int height, int number, int state, std::string const& objects, int objectCount)
{
    return Segment(COMPOSITION, Bytes(static_cast<std::uint64_t>(width), 2) +
                                    Bytes(static_cast<std::uint64_t>(height), 2) + Bytes(0x10, 1) +
                                    Bytes(static_cast<std::uint64_t>(number), 2) +
                                    Bytes(static_cast<std::uint64_t>(state), 1) + Bytes(0, 2) +
                                    Bytes(static_cast<std::uint64_t>(objectCount), 1) + objects);
}

std::string Window(MadeCue const& cue)
{
    return Segment(WINDOW, Bytes(1, 1) + Bytes(0, 1) + Bytes(static_cast<std::uint64_t>(cue.x), 2) +
                               Bytes(static_cast<std::uint64_t>(cue.y), 2) +
                               Bytes(static_cast<std::uint64_t>(cue.width), 2) +
                               Bytes(static_cast<std::uint64_t>(cue.height), 2));
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
    return Segment(PALETTE,
                   Bytes(0, 2) + Bytes(1, 1) + Bytes(y, 1) + Bytes(cr, 1) + Bytes(cb, 1) + Bytes(rgba & 0xFF, 1));
}

std::string Object(MadeCue const& cue)
{
    std::string runs;
    for (int row = 0; row < cue.height; ++row)
    {
        runs += Bytes(0, 1) + Bytes(0xC000U | static_cast<std::uint64_t>(cue.width), 2) + Bytes(1, 1);
        runs += Bytes(0, 2);
    }
    return Segment(OBJECT, Bytes(0, 2) + Bytes(0, 1) + Bytes(0xC0, 1) + Bytes(runs.size() + 4, 3) +
                               Bytes(static_cast<std::uint64_t>(cue.width), 2) +
                               Bytes(static_cast<std::uint64_t>(cue.height), 2) + runs);
}

} // namespace

std::string MakePgsDisplaySet(MadeCue const& cue, int canvasWidth, int canvasHeight, int number)
{
    std::string const object =
        Bytes(0, 4) + Bytes(static_cast<std::uint64_t>(cue.x), 2) + Bytes(static_cast<std::uint64_t>(cue.y), 2);
    return Composition(canvasWidth, canvasHeight, number, EPOCH_START, object, 1) + Window(cue) + Palette(cue.rgba) +
           Object(cue) + Segment(END, {});
}

std::string MakePgsClearSet(MadeCue const& cue, int canvasWidth, int canvasHeight, int number)
{
    return Composition(canvasWidth, canvasHeight, number, 0, {}, 0) + Window(cue) + Segment(END, {});
}

} // namespace Korvex::Testing
