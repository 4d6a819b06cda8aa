// What drawing costs for each frame of 1080p: libass, the overlay and blending together, as the converter calls them.

#include "Proc/Settings.h"
#include "Proc/SubtitleDrawer.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

namespace
{

using namespace Korvex::Proc;
using std::chrono::microseconds;

constexpr int WIDTH = 1920;
constexpr int HEIGHT = 1080;
constexpr microseconds FRAME{40000};
constexpr microseconds CUE_LENGTH{3000000};

constexpr char const* SCRIPT_HEADER =
    "[Script Info]\nScriptType: v4.00+\nPlayResX: 1920\nPlayResY: 1080\n\n[V4+ Styles]\n"
    "Format: Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, OutlineColour, BackColour, Bold, Italic, "
    "Underline, StrikeOut, ScaleX, ScaleY, Spacing, Angle, BorderStyle, Outline, Shadow, Alignment, MarginL, MarginR, "
    "MarginV, Encoding\n"
    "Style: Default,DejaVu Sans,64,&H00FFFFFF,&H000000FF,&H00000000,&H80000000,0,0,0,0,100,100,0,0,1,3,2,2,60,60,60,1"
    "\n";

/// A picture of 8-bit 4:2:0, the usual one.
class Picture
{
public:
    Picture() : m_luma(WIDTH * HEIGHT, 100), m_chromaU(WIDTH * HEIGHT / 4, 128), m_chromaV(WIDTH * HEIGHT / 4, 128)
    {
        view.width = WIDTH;
        view.height = HEIGHT;
        for (int plane = 0; plane < 3; ++plane)
            view.layout.components[static_cast<std::size_t>(plane)] = {plane, 1, 0};
        view.planes = {{{m_luma.data(), WIDTH}, {m_chromaU.data(), WIDTH / 2}, {m_chromaV.data(), WIDTH / 2}, {}}};
    }

    PictureView view;

private:
    std::vector<std::uint8_t> m_luma;
    std::vector<std::uint8_t> m_chromaU;
    std::vector<std::uint8_t> m_chromaV;
};

TextDocument MakeDocument(std::string const& text, std::size_t count, microseconds distance)
{
    TextDocument document;
    document.codecId = "ass";
    document.scriptHeader = SCRIPT_HEADER;
    for (std::size_t i = 0; i < count; ++i)
    {
        TextCue cue;
        cue.start = distance * static_cast<std::int64_t>(i);
        cue.end = cue.start + CUE_LENGTH;
        cue.text = text;
        document.cues.push_back(cue);
    }
    return document;
}

/// Draws frame after frame from `start`, beginning again after `length`.
void Draw(benchmark::State& state, TextDocument document, microseconds start, microseconds length)
{
    auto drawer = MakeSubtitleDrawer(SettingsSubtitleDrawer(), std::move(document), {WIDTH, HEIGHT, 1, 1});
    if (!drawer)
    {
        state.SkipWithError(Korvex::Core::ToSentence(drawer.GetError()).c_str());
        return;
    }
    Picture picture;
    microseconds passed{0};
    for (auto _ : state)
    {
        benchmark::DoNotOptimize((*drawer)->Draw(picture.view, start + passed));
        passed = (passed + FRAME) % length;
    }
}

/// Between two of many cues: what most frames of a film cost.
void NothingVisible(benchmark::State& state)
{
    Draw(state, MakeDocument("Seen before and after", 20000, 2 * CUE_LENGTH), 9999 * 2 * CUE_LENGTH + CUE_LENGTH,
         CUE_LENGTH);
}
BENCHMARK(NothingVisible)->Unit(benchmark::kMicrosecond);

void StaticCue(benchmark::State& state)
{
    Draw(state, MakeDocument("Two lines of what is said\\Nwhile nothing moves", 1, CUE_LENGTH), microseconds(0),
         CUE_LENGTH);
}
BENCHMARK(StaticCue)->Unit(benchmark::kMicrosecond);

void Karaoke(benchmark::State& state)
{
    Draw(state, MakeDocument("{\\k80}Sing {\\kf100}it {\\k60}with {\\k60}me", 1, CUE_LENGTH), microseconds(0),
         CUE_LENGTH);
}
BENCHMARK(Karaoke)->Unit(benchmark::kMicrosecond);

void MovingSign(benchmark::State& state)
{
    Draw(state, MakeDocument("{\\an7\\move(100,100,900,500)\\t(\\frz20\\fscx130)}A sign that moves", 1, CUE_LENGTH),
         microseconds(0), CUE_LENGTH);
}
BENCHMARK(MovingSign)->Unit(benchmark::kMicrosecond);

/// Everything that a change of the look costs: the drawer is made anew and draws one frame.
void Restyle(benchmark::State& state)
{
    TextDocument const document = MakeDocument("What is said", 1000, CUE_LENGTH);
    Picture picture;
    for (auto _ : state)
    {
        auto drawer = MakeSubtitleDrawer(SettingsSubtitleDrawer(), document, {WIDTH, HEIGHT, 1, 1});
        if (!drawer)
        {
            state.SkipWithError(Korvex::Core::ToSentence(drawer.GetError()).c_str());
            break;
        }
        benchmark::DoNotOptimize((*drawer)->Draw(picture.view, CUE_LENGTH / 2));
    }
}
BENCHMARK(Restyle)->Unit(benchmark::kMillisecond);

} // namespace
