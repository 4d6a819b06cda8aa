#include "Proc/Ass/TextInkSource.h"

#include "Proc/Ass/CjkBreaks.h"
#include "Proc/Ass/EventTrack.h"
#include "Proc/Ass/Look.h"
#include "Proc/Ass/RenderContext.h"
#include "Proc/Blend/Placement.h"
#include "Proc/Settings.h"
#include "Proc/Text/TextSubtitles.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Korvex::Proc::Ass
{
namespace
{

/// Which lines stop together when the user's shift takes them to the edge; from the bottom up.
enum class Place
{
    Fixed, ///< not moved at all
    Middle,
    Top,
    Bottom,
};
constexpr std::array PLACES{Place::Fixed, Place::Middle, Place::Top, Place::Bottom};

/// How many events are tried before a script with fonts of its own is found to be without any that can be used.
constexpr std::size_t TRIED_EVENTS = 16;

std::int64_t FloorToMs(std::chrono::microseconds time)
{
    return std::chrono::floor<std::chrono::milliseconds>(time).count();
}

/// The matrix that a script's colours went through in the renderers of its day; empty: none, colours mean themselves.
std::optional<YuvMatrix> AuthoredMatrix(ASS_YCbCrMatrix matrix)
{
    switch (matrix)
    {
    case YCBCR_DEFAULT:
    case YCBCR_BT601_TV:
    case YCBCR_BT601_PC:
        return YuvMatrix::Bt601;
    case YCBCR_BT709_TV:
    case YCBCR_BT709_PC:
        return YuvMatrix::Bt709;
    default:
        return std::nullopt;
    }
}

/// Alignment of a style, 1..9 as on a numeric keypad. The renderer's rules: the last style of a name holds, stars
/// before the name are nothing, an unknown name is the default style.
int StyleAlignment(ASS_Track const& track, std::string name)
{
    name.erase(0, name.find_first_not_of('*'));
    int found = track.default_style;
    for (int i = track.n_styles - 1; i >= 0; --i)
    {
        if (name == track.styles[i].Name)
        {
            found = i;
            break;
        }
    }
    if (found < 0 || found >= track.n_styles)
        return 2;
    int const alignment = track.styles[found].Alignment;
    int const column = std::clamp(alignment & 3, 1, 3);
    if ((alignment & VALIGN_TOP) != 0)
        return column + 6;
    return (alignment & VALIGN_CENTER) != 0 ? column + 3 : column;
}

class TextInkSource : public Blend::IInkSource
{
public:
    TextInkSource(SettingsSubtitleDrawer const& settings, PictureGeometry const& geometry,
                  std::unique_ptr<RenderContext> context, TextDocument document);

    /// True when one of the first events leaves ink, or when there are no events.
    [[nodiscard]] bool LeavesInk();

    [[nodiscard]] bool IsActiveAt(std::chrono::microseconds time) const override
    {
        std::int64_t const now = FloorToMs(time - m_timeShift);
        return std::any_of(m_groups.begin(), m_groups.end(),
                           [now](Group const& group) { return group.track.IsActiveAt(now); });
    }

    bool Update(std::chrono::microseconds time) override;

    [[nodiscard]] Blend::Ink const& CurrentInk() const override { return m_ink; }

    void SetSettings(SettingsSubtitleDrawer const& settings) override;

    [[nodiscard]] std::vector<CueSpan> ListCueSpans() const override;

private:
    struct Group
    {
        Place place;
        EventTrack track;
        std::vector<Blend::MaskLayer> layers;
        std::vector<std::uint8_t> pixels; ///< behind the layers, where another group's turn would take them away
    };

    void TakeEvents(TextDocument document);
    void Restyle();
    void GroupEvents();
    [[nodiscard]] bool IsMoved() const { return m_settings.GetMoveUp() != 0 || m_settings.GetMoveRight() != 0; }
    /// The alignment that the event is drawn with when it says nothing itself.
    [[nodiscard]] int AlignmentOf(TrackEvent const& event) const;
    [[nodiscard]] Place PlaceOf(TrackEvent const& event) const;
    [[nodiscard]] std::string TextOf(TrackEvent const& event) const;
    [[nodiscard]] int LongestCjkRun() const;
    void TakeImages(Group& group) const;
    void Move(Group& group) const;

    SettingsSubtitleDrawer m_settings;
    PictureGeometry m_geometry;
    std::chrono::microseconds m_timeShift;
    std::unique_ptr<RenderContext> m_context;
    std::string const m_ownLook; ///< the script's header; empty: the settings' look
    bool const m_breaksCjk;
    std::vector<TrackEvent> m_events; ///< in the order of the file; never changes
    std::vector<Place> m_places;      ///< of the events, by which they are grouped
    std::vector<Group> m_groups;
    Blend::Ink m_ink;
};

TextInkSource::TextInkSource(SettingsSubtitleDrawer const& settings, PictureGeometry const& geometry,
                             std::unique_ptr<RenderContext> context, TextDocument document)
    : m_settings(settings),
      m_geometry(geometry),
      m_timeShift(settings.GetTimeShift()),
      m_context(std::move(context)),
      m_ownLook(document.scriptHeader),
      m_breaksCjk(!document.HasOwnLook() && !m_context->CanBreakCjk())
{
    m_context->SetGeometry(m_geometry, m_ownLook.empty() ? GlyphShape::AsShown : GlyphShape::AsStored);
    TakeEvents(std::move(document));
    Restyle();
}

void TextInkSource::TakeEvents(TextDocument document)
{
    TrackPtr styles;
    if (document.HasOwnLook())
    {
        styles = m_context->MakeScriptTrack(m_ownLook, LayoutRules::Script);
        m_ink.authoredMatrix = AuthoredMatrix(styles->YCbCrMatrix);
    }
    int readOrder = 0;
    m_events.reserve(document.cues.size());
    for (TextCue& cue : document.cues)
    {
        TrackEvent event;
        event.readOrder = readOrder++;
        event.startMs = FloorToMs(cue.start);
        event.endMs = FloorToMs(cue.end);
        if (document.markup != TextMarkup::Ass)
            cue.text = Text::ToAssText(cue.text, document.markup);
        event.traits = ReadEventTraits(cue.text, cue.effect);
        if (event.endMs <= event.startMs || event.traits.isBlank)
            continue;
        if (styles)
            event.styleAlignment = StyleAlignment(*styles, cue.style);
        event.cue = std::move(cue);
        m_events.push_back(std::move(event));
    }
}

void TextInkSource::SetSettings(SettingsSubtitleDrawer const& settings)
{
    m_settings = settings;
    m_timeShift = std::chrono::microseconds(settings.GetTimeShift());
    Restyle();
}

void TextInkSource::Restyle()
{
    LayoutRules const rules = m_ownLook.empty() ? LayoutRules::Modern : LayoutRules::Script;
    std::string const script = m_ownLook.empty() ? MakeLookScript(m_settings, m_geometry) : m_ownLook;
    GroupEvents();
    for (Group& group : m_groups)
    {
        group.layers.clear();
        group.track.SetStyles(m_context->MakeScriptTrack(script, rules),
                              [this](TrackEvent const& event) { return TextOf(event); });
    }
    m_ink.masks.clear();
}

void TextInkSource::GroupEvents()
{
    std::vector<Place> places;
    places.reserve(m_events.size());
    for (TrackEvent const& event : m_events)
        places.push_back(PlaceOf(event));
    if (places == m_places)
        return;
    m_places = std::move(places);
    m_groups.clear();
    for (Place const place : PLACES)
    {
        std::vector<TrackEvent const*> events;
        for (std::size_t i = 0; i < m_events.size(); ++i)
        {
            if (m_places[i] == place)
                events.push_back(&m_events[i]);
        }
        if (!events.empty())
            m_groups.push_back({place, EventTrack(*m_context, std::move(events)), {}, {}});
    }
}

std::vector<CueSpan> TextInkSource::ListCueSpans() const
{
    std::vector<CueSpan> spans;
    spans.reserve(m_events.size());
    for (TrackEvent const& event : m_events)
        spans.push_back({event.cue.start + m_timeShift, event.cue.end + m_timeShift});
    std::stable_sort(spans.begin(), spans.end(), [](CueSpan const& a, CueSpan const& b) { return a.start < b.start; });
    return spans;
}

/// How many wide characters surely have room in a line: none is wider than the font's size.
int TextInkSource::LongestCjkRun() const
{
    double const columns = m_geometry.width / Blend::LinesToColumns(1.0, m_geometry) - 2 * Blend::LAYOUT_MARGIN;
    return static_cast<int>(columns / std::max(m_settings.GetAssRendererSettings().GetFontSize(), 1.0));
}

bool TextInkSource::LeavesInk()
{
    std::size_t const tried = std::min(m_events.size(), TRIED_EVENTS);
    for (std::size_t i = 0; i < tried; ++i)
    {
        // Half-way, in case it fades in.
        TextCue const& cue = m_events[i].cue;
        Update(m_timeShift + cue.start + (cue.end - cue.start) / 2);
        if (!m_ink.IsEmpty())
            return true;
    }
    return tried == 0;
}

int TextInkSource::AlignmentOf(TrackEvent const& event) const
{
    int const base = m_ownLook.empty() ? DEFAULT_ALIGNMENT : event.styleAlignment;
    return ChooseAlignment(base, m_settings.GetHorizontalAlignment(), m_settings.GetVerticalAligment());
}

Place TextInkSource::PlaceOf(TrackEvent const& event) const
{
    if (!IsMoved() || event.traits.hasPosition)
        return Place::Fixed;
    int const alignment = event.traits.alignment != 0 ? event.traits.alignment : AlignmentOf(event);
    return std::array{Place::Bottom, Place::Middle, Place::Top}[static_cast<std::size_t>((alignment - 1) / 3)];
}

std::string TextInkSource::TextOf(TrackEvent const& event) const
{
    if (m_breaksCjk)
        return AddCjkBreaks(event.cue.text, LongestCjkRun());
    bool const isAligned = m_ownLook.empty() || event.traits.alignment != 0 || event.traits.hasPosition;
    int const alignment = AlignmentOf(event);
    if (isAligned || alignment == event.styleAlignment)
        return event.cue.text;
    return "{\\an" + std::to_string(alignment) + '}' + event.cue.text;
}

bool TextInkSource::Update(std::chrono::microseconds time)
{
    std::int64_t const now = FloorToMs(time - m_timeShift);
    bool hasChanged = false;
    for (Group& group : m_groups)
    {
        if (!group.track.Update(now))
            continue;
        hasChanged = true;
        TakeImages(group);
        Move(group);
    }
    if (!hasChanged)
        return false;
    m_ink.masks.clear();
    for (Place const place : PLACES)
    {
        for (Group const& group : m_groups)
        {
            if (group.place == place)
                m_ink.masks.insert(m_ink.masks.end(), group.layers.begin(), group.layers.end());
        }
    }
    return true;
}

void TextInkSource::TakeImages(Group& group) const
{
    group.layers.clear();
    group.pixels.clear();
    bool const needsCopy = m_groups.size() > 1;
    for (ASS_Image const* image = group.track.Images(); image != nullptr; image = image->next)
    {
        auto const opacity = static_cast<std::uint8_t>(255 - (image->color & 0xFFU));
        if (image->w <= 0 || image->h <= 0 || opacity == 0)
            continue;
        RgbColor const color{static_cast<std::uint8_t>(image->color >> 24U),
                             static_cast<std::uint8_t>(image->color >> 16U),
                             static_cast<std::uint8_t>(image->color >> 8U)};
        group.layers.push_back(
            {image->dst_x, image->dst_y, image->w, image->h, image->stride, image->bitmap, color, opacity});
        if (!needsCopy)
            continue;
        for (int row = 0; row < image->h; ++row)
        {
            std::uint8_t const* const source = image->bitmap + static_cast<std::ptrdiff_t>(row) * image->stride;
            group.pixels.insert(group.pixels.end(), source, source + image->w);
        }
    }
    if (!needsCopy)
        return;
    std::uint8_t const* pixels = group.pixels.data();
    for (Blend::MaskLayer& layer : group.layers)
    {
        layer.coverage = pixels;
        layer.stride = layer.width;
        pixels += static_cast<std::ptrdiff_t>(layer.width) * layer.height;
    }
}

void TextInkSource::Move(Group& group) const
{
    if (group.place == Place::Fixed || group.layers.empty())
        return;
    Blend::PixelBox box;
    for (Blend::MaskLayer const& layer : group.layers)
        box = Blend::Unite(box, Blend::InkBoxOf(layer));
    Blend::PixelOffset const offset = Blend::MoveInside(box, m_settings, m_geometry);
    for (Blend::MaskLayer& layer : group.layers)
    {
        layer.x += offset.x;
        layer.y += offset.y;
    }
}

} // namespace

Core::Result<std::unique_ptr<Blend::IInkSource>>
MakeTextInkSource(SettingsSubtitleDrawer const& settings, TextDocument document, PictureGeometry const& geometry)
{
    std::unique_ptr<RenderContext> context = RenderContext::Make(document.fonts);
    if (!context)
        return Core::Error{Core::ErrorCode::Internal, {}, {}, {}, {}, "the text renderer could not be set up"};
    Core::Error const noFont{Core::ErrorCode::NoUsableFont, {}, {}, {}, {}, {}};
    bool const hasLetters = context->CanDrawLetters(MakeLookScript(settings, geometry));
    if (!hasLetters && document.fonts.empty())
        return noFont;
    auto source = std::make_unique<TextInkSource>(settings, geometry, std::move(context), std::move(document));
    // Fonts that the file brings may be all there is, and need not have Latin letters.
    if (!hasLetters && !source->LeavesInk())
        return noFont;
    return std::unique_ptr<Blend::IInkSource>(std::move(source));
}

} // namespace Korvex::Proc::Ass
