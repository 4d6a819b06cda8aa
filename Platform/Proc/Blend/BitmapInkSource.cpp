#include "Proc/Blend/BitmapInkSource.h"

#include "Proc/Blend/BitmapScaler.h"
#include "Proc/Blend/Placement.h"
#include "Proc/Settings.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Korvex::Proc::Blend
{
namespace
{

/// Tracks whose canvas is the coded picture itself, whatever the shape of its samples.
constexpr std::array<char const*, 3> CODED_PICTURE_CODECS{"dvd_subtitle", "dvb_subtitle", "xsub"};

/// Shapes that differ by less than this are one shape, cut by a few lines for the coder's sake.
constexpr double SHAPE_TOLERANCE = 0.02;

/// What is larger than so many pictures lies on a canvas of a wrong size, and would need any amount of memory.
constexpr int MOST_PICTURES = 4;
/// Far outside of every picture.
constexpr double FARTHEST = 1'000'000;

/// From canvas to picture.
struct Mapping
{
    double scaleX = 1.0;
    double scaleY = 1.0;
    double offsetX = 0.0;
    double offsetY = 0.0;
};

class BitmapInkSource : public IInkSource
{
public:
    BitmapInkSource(SettingsSubtitleDrawer const& settings, BitmapDocument document, PictureGeometry const& geometry)
        : m_settings(settings),
          m_document(std::move(document)),
          m_geometry(geometry),
          m_timeShift(settings.GetTimeShift())
    {
    }

    [[nodiscard]] bool IsActiveAt(std::chrono::microseconds time) const override { return FindCue(time) != nullptr; }
    bool Update(std::chrono::microseconds time) override;
    [[nodiscard]] Ink const& CurrentInk() const override { return m_ink; }
    void SetSettings(SettingsSubtitleDrawer const& settings) override;
    [[nodiscard]] std::vector<CueSpan> ListCueSpans() const override;

private:
    struct Placed
    {
        BitmapRect const* rect;
        PixelBox box;
    };

    [[nodiscard]] BitmapCue const* FindCue(std::chrono::microseconds time) const;
    [[nodiscard]] Mapping MapCanvas(BitmapCue const& cue) const;
    [[nodiscard]] std::vector<Placed> Place(BitmapCue const& cue) const;
    [[nodiscard]] PixelOffset AlignmentOffset(PixelBox const& box) const;
    void MoveTogether(std::vector<Placed>& placed) const;
    void MoveByThirds(std::vector<Placed>& placed) const;
    void Rasterize(Placed const& placed);

    SettingsSubtitleDrawer m_settings;
    BitmapDocument m_document;
    PictureGeometry m_geometry;
    std::chrono::microseconds m_timeShift;
    BitmapCue const* m_cue = nullptr;
    std::vector<std::shared_ptr<std::vector<std::uint8_t> const>> m_pixels; ///< those that m_ink shows
    Ink m_ink;
};

BitmapCue const* BitmapInkSource::FindCue(std::chrono::microseconds time) const
{
    std::chrono::microseconds const now = time - m_timeShift;
    auto const next = std::upper_bound(m_document.cues.begin(), m_document.cues.end(), now,
                                       [](std::chrono::microseconds t, BitmapCue const& cue) { return t < cue.start; });
    if (next == m_document.cues.begin())
        return nullptr;
    BitmapCue const& cue = *std::prev(next);
    return now < cue.end && !cue.rects.empty() ? &cue : nullptr;
}

Mapping BitmapInkSource::MapCanvas(BitmapCue const& cue) const
{
    // A canvas without a size is taken for the picture.
    int width = cue.canvasWidth;
    int height = cue.canvasHeight;
    if (width <= 0 || height <= 0)
    {
        width = m_geometry.width;
        height = m_geometry.height;
    }
    Mapping mapping{static_cast<double>(m_geometry.width) / width, static_cast<double>(m_geometry.height) / height, 0.0,
                    0.0};
    if (std::find(CODED_PICTURE_CODECS.begin(), CODED_PICTURE_CODECS.end(), m_document.codecId) !=
        CODED_PICTURE_CODECS.end())
        return mapping;
    // The canvas has square samples. A picture of another shape is a part cut out of the canvas' middle.
    double const sampleAspect =
        static_cast<double>(m_geometry.sampleAspectNumerator) / m_geometry.sampleAspectDenominator;
    double const acrossSquare = mapping.scaleX * sampleAspect;
    if (std::abs(acrossSquare / mapping.scaleY - 1.0) <= SHAPE_TOLERANCE)
        return mapping;
    double const scale = std::max(acrossSquare, mapping.scaleY);
    mapping.scaleX = scale / sampleAspect;
    mapping.scaleY = scale;
    mapping.offsetX = (m_geometry.width - width * mapping.scaleX) / 2.0;
    mapping.offsetY = (m_geometry.height - height * mapping.scaleY) / 2.0;
    return mapping;
}

std::vector<BitmapInkSource::Placed> BitmapInkSource::Place(BitmapCue const& cue) const
{
    Mapping const mapping = MapCanvas(cue);
    auto const toPicture = [](double place)
    { return static_cast<int>(std::lround(std::clamp(place, -FARTHEST, FARTHEST))); };
    auto const column = [&](int x) { return toPicture(x * mapping.scaleX + mapping.offsetX); };
    auto const row = [&](int y) { return toPicture(y * mapping.scaleY + mapping.offsetY); };
    std::vector<Placed> placed;
    for (BitmapRect const& rect : cue.rects)
    {
        if (rect.width <= 0 || rect.height <= 0 || (!rect.rgba && !rect.packed))
            continue;
        PixelBox box{column(rect.x), row(rect.y), column(rect.x + rect.width), row(rect.y + rect.height)};
        box.right = std::max(box.right, box.left + 1);
        box.bottom = std::max(box.bottom, box.top + 1);
        bool const isDamage = box.right - box.left > MOST_PICTURES * m_geometry.width ||
                              box.bottom - box.top > MOST_PICTURES * m_geometry.height;
        if (!isDamage)
            placed.push_back({&rect, box});
    }
    return placed;
}

PixelOffset BitmapInkSource::AlignmentOffset(PixelBox const& box) const
{
    auto const marginX = static_cast<int>(std::lround(LinesToColumns(LAYOUT_MARGIN, m_geometry)));
    auto const marginY = static_cast<int>(std::lround(LinesToRows(LAYOUT_MARGIN, m_geometry)));
    PixelOffset offset;
    switch (m_settings.GetHorizontalAlignment())
    {
    case AlignmentHorizontal::Left:
        offset.x = marginX - box.left;
        break;
    case AlignmentHorizontal::Center:
        offset.x = (m_geometry.width - box.left - box.right) / 2;
        break;
    case AlignmentHorizontal::Right:
        offset.x = m_geometry.width - marginX - box.right;
        break;
    case AlignmentHorizontal::Default:
        break;
    }
    switch (m_settings.GetVerticalAligment())
    {
    case AlignmentVertical::Top:
        offset.y = marginY - box.top;
        break;
    case AlignmentVertical::Center:
        offset.y = (m_geometry.height - box.top - box.bottom) / 2;
        break;
    case AlignmentVertical::Bottom:
        offset.y = m_geometry.height - marginY - box.bottom;
        break;
    case AlignmentVertical::Default:
        break;
    }
    return offset;
}

/// Moves the rectangles as one box into the picture and by the user's shift.
void BitmapInkSource::MoveTogether(std::vector<Placed>& placed) const
{
    PixelBox box;
    for (Placed const& item : placed)
        box = Unite(box, item.box);
    PixelOffset const inside = BringInside(box, m_geometry);
    PixelOffset const shift = MoveInside(Translate(box, inside), m_settings, m_geometry);
    for (Placed& item : placed)
        item.box = Translate(item.box, {inside.x + shift.x, inside.y + shift.y});
}

/// The rectangles in the upper, middle and lower third move apart from each other: what stands at the top must not keep
/// what stands at the bottom from moving up.
void BitmapInkSource::MoveByThirds(std::vector<Placed>& placed) const
{
    std::array<std::vector<Placed>, 3> thirds;
    for (Placed const& item : placed)
    {
        int const middle = std::clamp((item.box.top + item.box.bottom) / 2, 0, m_geometry.height - 1);
        thirds[static_cast<std::size_t>(middle * 3 / m_geometry.height)].push_back(item);
    }
    placed.clear();
    for (std::vector<Placed>& third : thirds)
    {
        MoveTogether(third);
        placed.insert(placed.end(), third.begin(), third.end());
    }
}

void BitmapInkSource::Rasterize(Placed const& placed)
{
    BitmapRect const& rect = *placed.rect;
    int const width = placed.box.right - placed.box.left;
    int const height = placed.box.bottom - placed.box.top;
    std::shared_ptr<std::vector<std::uint8_t> const> pixels = rect.Pixels();
    if (pixels->size() < 4 * static_cast<std::size_t>(rect.width) * static_cast<std::size_t>(rect.height))
        return;
    if (width != rect.width || height != rect.height)
        pixels = std::make_shared<std::vector<std::uint8_t> const>(
            ScaleRgba(pixels->data(), rect.width, rect.height, width, height));
    m_ink.bitmaps.push_back({placed.box.left, placed.box.top, width, height, pixels->data()});
    m_pixels.push_back(std::move(pixels));
}

bool BitmapInkSource::Update(std::chrono::microseconds time)
{
    BitmapCue const* const cue = FindCue(time);
    if (cue == m_cue)
        return false;
    m_cue = cue;
    m_pixels.clear();
    m_ink.bitmaps.clear();
    if (cue == nullptr)
        return true;
    std::vector<Placed> placed = Place(*cue);
    PixelBox box;
    for (Placed const& item : placed)
        box = Unite(box, item.box);
    PixelOffset const offset = AlignmentOffset(box);
    for (Placed& item : placed)
        item.box = Translate(item.box, offset);

    if (m_settings.GetVerticalAligment() == AlignmentVertical::Default)
        MoveByThirds(placed);
    else
        MoveTogether(placed);
    for (Placed const& item : placed)
        Rasterize(item);
    return true;
}

void BitmapInkSource::SetSettings(SettingsSubtitleDrawer const& settings)
{
    m_settings = settings;
    m_timeShift = std::chrono::microseconds(settings.GetTimeShift());
    m_cue = nullptr;
    m_pixels.clear();
    m_ink.bitmaps.clear();
}

std::vector<CueSpan> BitmapInkSource::ListCueSpans() const
{
    std::vector<CueSpan> spans;
    for (BitmapCue const& cue : m_document.cues)
    {
        if (!cue.rects.empty() && cue.end > cue.start)
            spans.push_back({cue.start + m_timeShift, cue.end + m_timeShift});
    }
    return spans;
}

} // namespace

Core::Result<std::unique_ptr<IInkSource>> MakeBitmapInkSource(SettingsSubtitleDrawer const& settings,
                                                              BitmapDocument document, PictureGeometry const& geometry)
{
    return std::unique_ptr<IInkSource>(std::make_unique<BitmapInkSource>(settings, std::move(document), geometry));
}

} // namespace Korvex::Proc::Blend
