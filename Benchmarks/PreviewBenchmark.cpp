#include "Core/FileSystem.h"
#include "Proc/Preview.h"
#include "Proc/Settings.h"
#include "Support/MediaMaker.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <stdexcept>

using namespace Korvex;
using std::chrono::microseconds;
using std::chrono::milliseconds;

namespace
{

constexpr int WIDTH = 1920;
constexpr int HEIGHT = 1080;
constexpr int FRAME_MS = 40;
constexpr int FRAMES = 100;
constexpr milliseconds CUE_STEP{360}; ///< 20,000 cues fill two hours
constexpr milliseconds SHOWN_AT{1000};

/// A film with one key picture, and subtitles of any length, made once.
class Material
{
public:
    static Material const& Get()
    {
        static Material const material;
        return material;
    }

    [[nodiscard]] ioPath Film() const { return m_folder / "film.mkv"; }

    [[nodiscard]] Proc::SettingsSubtitleMixer Subtitles(std::int64_t cues) const
    {
        ioPath const path = m_folder / (std::to_string(cues) + ".srt");
        if (!Core::PathExists(path))
        {
            std::string text;
            // A single cue lasts as long as the film.
            milliseconds const length = cues == 1 ? milliseconds(FRAMES * FRAME_MS) : CUE_STEP;
            for (std::int64_t i = 0; i < cues; ++i)
            {
                text += std::to_string(i + 1) + '\n' + TimeText(CUE_STEP * i) + " --> " +
                        TimeText(CUE_STEP * i + length) + "\nWhat was said in scene " + std::to_string(i) +
                        ",\nand what was <i>not</i>\n\n";
            }
            if (Core::WriteFile(path, text, true))
                throw std::runtime_error("the subtitles could not be written");
        }
        Proc::SettingsSubtitleMixer mixer;
        mixer.SetFilename(path);
        return mixer;
    }

private:
    Material()
    {
        Testing::MadeMedia film;
        film.video.emplace();
        film.video->width = WIDTH;
        film.video->height = HEIGHT;
        film.video->frameCount = FRAMES;
        film.video->keyFrameInterval = FRAMES;
        film.video->bFrames = 2;
        Testing::MakeMedia(Film(), film);
    }

    static std::string TimeText(milliseconds time)
    {
        char text[32];
        auto const ms = static_cast<int>(time.count());
        std::snprintf(text, sizeof(text), "%02d:%02d:%02d,%03d", ms / 3600000, ms / 60000 % 60, ms / 1000 % 60,
                      ms % 1000);
        return text;
    }

    Testing::TemporaryFolder m_folder;
};

boost::intrusive_ptr<Proc::IPreview> Open()
{
    auto preview = Proc::MakePreview(Material::Get().Film());
    if (!preview)
        throw std::runtime_error(Core::ToSentence(preview.GetError()));
    return *preview;
}

void Show(Proc::IPreview& preview, Proc::SettingsSubtitleMixer const& settings, microseconds time)
{
    if (auto failed = preview.SetSubtitles(&settings))
        throw std::runtime_error(Core::ToSentence(*failed));
    auto image = preview.Render(time);
    if (!image)
        throw std::runtime_error(Core::ToSentence(image.GetError()));
    benchmark::DoNotOptimize(image->rgba.data());
}

/// Another size, then the picture that is decoded already.
void StyleChange(benchmark::State& state)
{
    auto const preview = Open();
    Proc::SettingsSubtitleMixer mixer = Material::Get().Subtitles(state.range(0));
    Show(*preview, mixer, SHOWN_AT);
    int edit = 0;
    for (auto _ : state)
    {
        Proc::AssRendererSettings look;
        look.SetFontSize(16 + ++edit % 12);
        Proc::SettingsSubtitleDrawer drawer;
        drawer.SetAssRendererSettings(look);
        mixer.SetDrawerSettings(drawer);
        Show(*preview, mixer, SHOWN_AT);
    }
}

/// One frame after the other, as the arrow key steps.
void ScrubForward(benchmark::State& state)
{
    auto const preview = Open();
    Proc::SettingsSubtitleMixer const mixer = Material::Get().Subtitles(state.range(0));
    int frame = FRAMES / 4;
    Show(*preview, mixer, milliseconds(frame * FRAME_MS));
    for (auto _ : state)
        Show(*preview, mixer, milliseconds(++frame * FRAME_MS));
}

/// From the file's name to its first picture, track included.
void FirstPicture(benchmark::State& state)
{
    Proc::SettingsSubtitleMixer const mixer = Material::Get().Subtitles(state.range(0));
    Material::Get();
    for (auto _ : state)
        Show(*Open(), mixer, milliseconds(0));
}

} // namespace

BENCHMARK(StyleChange)
    ->Arg(1)
    ->Arg(20000)
    ->Iterations(50)
    ->Repetitions(5)
    ->ReportAggregatesOnly()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ScrubForward)
    ->Arg(1)
    ->Arg(20000)
    ->Iterations(50)
    ->Repetitions(3)
    ->ReportAggregatesOnly()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(FirstPicture)
    ->Arg(1)
    ->Arg(20000)
    ->Iterations(3)
    ->Repetitions(3)
    ->ReportAggregatesOnly()
    ->Unit(benchmark::kMillisecond);
