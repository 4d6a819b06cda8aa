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
                  std::unique_ptr<RenderContext> context, std::string script, LayoutRules rules)
        : m_settings(settings),
          m_geometry(geometry),
          m_timeShift(settings.GetTimeShift()),
          m_context(std::move(context)),
          m_script(std::move(script)),
          m_rules(rules)
    {
    }

    void Load(TextDocument const& document);

    /// True when one of the first events leaves ink, or when there are no events.
    [[nodiscard]] bool LeavesInk(TextDocument const& document);

    [[nodiscard]] bool IsActiveAt(std::chrono::microseconds time) const override
    {
        std::int64_t const now = FloorToMs(time - m_timeShift);
        return std::any_of(m_groups.begin(), m_groups.end(),
                           [now](Group const& group) { return group.track.IsActiveAt(now); });
    }

    bool Update(std::chrono::microseconds time) override;

    [[nodiscard]] Blend::Ink const& CurrentInk() const override { return m_ink; }

private:
    struct Group
    {
        Place place;
        EventTrack track;
        std::vector<Blend::MaskLayer> layers;
        std::vector<std::uint8_t> pixels; ///< behind the layers, where another group's turn would take them away
    };

    [[nodiscard]] bool IsMoved() const { return m_settings.GetMoveUp() != 0 || m_settings.GetMoveRight() != 0; }
    void Add(TextCue const& cue, std::string text, int readOrder, int styleAlignment, bool hasOwnLook);
    [[nodiscard]] int LongestCjkRun() const;
    [[nodiscard]] EventTrack& TrackOf(Place place);
    void TakeImages(Group& group) const;
    void Move(Group& group) const;

    SettingsSubtitleDrawer m_settings;
    PictureGeometry m_geometry;
    std::chrono::microseconds m_timeShift;
    std::unique_ptr<RenderContext> m_context;
    std::string m_script;
    LayoutRules m_rules;
    std::vector<Group> m_groups;
    Blend::Ink m_ink;
};

EventTrack& TextInkSource::TrackOf(Place place)
{
    auto const group =
        std::find_if(m_groups.begin(), m_groups.end(), [place](Group const& g) { return g.place == place; });
    if (group != m_groups.end())
        return group->track;
    m_groups.push_back({place, EventTrack(*m_context, m_context->MakeScriptTrack(m_script, m_rules)), {}, {}});
    return m_groups.back().track;
}

/// How many wide characters surely have room in a line: none is wider than the font's size.
int TextInkSource::LongestCjkRun() const
{
    double const columns = m_geometry.width / Blend::LinesToColumns(1.0, m_geometry) - 2 * Blend::LAYOUT_MARGIN;
    return static_cast<int>(columns / std::max(m_settings.GetAssRendererSettings().GetFontSize(), 1.0));
}

void TextInkSource::Load(TextDocument const& document)
{
    TrackPtr const styles = m_context->MakeScriptTrack(m_script, m_rules);
    if (document.HasOwnLook())
        m_ink.authoredMatrix = AuthoredMatrix(styles->YCbCrMatrix);
    bool const breaksCjk = !document.HasOwnLook() && !m_context->CanBreakCjk();
    int readOrder = 0;
    for (TextCue const& cue : document.cues)
    {
        std::string text = document.markup == TextMarkup::Ass ? cue.text : Text::ToAssText(cue.text, document.markup);
        if (breaksCjk)
            text = AddCjkBreaks(text, LongestCjkRun());
        Add(cue, std::move(text), readOrder++, StyleAlignment(*styles, cue.style), document.HasOwnLook());
    }
    for (Group& group : m_groups)
        group.track.Finish();
}

bool TextInkSource::LeavesInk(TextDocument const& document)
{
    std::size_t tried = 0;
    for (auto cue = document.cues.begin(); cue != document.cues.end() && tried < TRIED_EVENTS; ++cue)
    {
        // Half-way, in case it fades in.
        std::chrono::microseconds const time = m_timeShift + cue->start + (cue->end - cue->start) / 2;
        if (!IsActiveAt(time))
            continue;
        ++tried;
        Update(time);
        if (!m_ink.IsEmpty())
            return true;
    }
    return tried == 0;
}

void TextInkSource::Add(TextCue const& cue, std::string text, int readOrder, int styleAlignment, bool hasOwnLook)
{
    TrackEvent event;
    event.startMs = FloorToMs(cue.start);
    event.endMs = FloorToMs(cue.end);
    event.readOrder = readOrder;
    event.traits = ReadEventTraits(text, cue.effect);
    if (event.endMs <= event.startMs || event.traits.isBlank)
        return;

    int alignment = event.traits.alignment != 0 ? event.traits.alignment : styleAlignment;
    if (hasOwnLook && event.traits.alignment == 0 && !event.traits.hasPosition)
    {
        alignment =
            ChooseAlignment(styleAlignment, m_settings.GetHorizontalAlignment(), m_settings.GetVerticalAligment());
        if (alignment != styleAlignment)
            text.insert(0, "{\\an" + std::to_string(alignment) + '}');
    }
    Place place = Place::Fixed;
    if (IsMoved() && !event.traits.hasPosition)
        place = std::array{Place::Bottom, Place::Middle, Place::Top}[static_cast<std::size_t>((alignment - 1) / 3)];
    event.text = std::move(text);
    TrackOf(place).Add(cue, event);
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
MakeTextInkSource(SettingsSubtitleDrawer const& settings, TextDocument const& document, PictureGeometry const& geometry)
{
    std::unique_ptr<RenderContext> context = RenderContext::Make(document.fonts);
    if (!context)
        return Core::Error{Core::ErrorCode::Internal, {}, {}, {}, {}, "the text renderer could not be set up"};
    std::string const look = MakeLookScript(settings, geometry);
    Core::Error const noFont{Core::ErrorCode::NoUsableFont, {}, {}, {}, {}, {}};
    bool const hasLetters = context->CanDrawLetters(look);
    if (!hasLetters && document.fonts.empty())
        return noFont;
    bool const hasOwnLook = document.HasOwnLook();
    context->SetGeometry(geometry, hasOwnLook ? GlyphShape::AsStored : GlyphShape::AsShown);
    auto source = std::make_unique<TextInkSource>(settings, geometry, std::move(context),
                                                  hasOwnLook ? document.scriptHeader : look,
                                                  hasOwnLook ? LayoutRules::Script : LayoutRules::Modern);
    source->Load(document);
    // Fonts that the file brings may be all there is, and need not have Latin letters.
    if (!hasLetters && !source->LeavesInk(document))
        return noFont;
    return std::unique_ptr<Blend::IInkSource>(std::move(source));
}

} // namespace Korvex::Proc::Ass
