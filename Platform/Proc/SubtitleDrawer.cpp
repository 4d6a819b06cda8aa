#include "Proc/SubtitleDrawer.h"

#include "Proc/Ass/TextInkSource.h"
#include "Proc/Blend/BitmapInkSource.h"
#include "Proc/Blend/IInkSource.h"
#include "Proc/Blend/Overlay.h"
#include "Proc/Settings.h"

#include <memory>
#include <utility>

namespace Korvex::Proc
{
namespace
{

class SubtitleDrawer : public ISubtitleDrawer
{
public:
    explicit SubtitleDrawer(std::unique_ptr<Blend::IInkSource> source) : m_source(std::move(source)) {}

    [[nodiscard]] bool IsVisibleAt(std::chrono::microseconds time) override { return m_source->IsActiveAt(time); }

    bool Draw(PictureView const& picture, std::chrono::microseconds time) override
    {
        if (!m_source->IsActiveAt(time))
            return false;
        if (m_source->Update(time) || m_isStale || !m_overlay.Fits(picture))
            m_overlay.Build(m_source->CurrentInk(), picture);
        m_isStale = false;
        return m_overlay.BlendOnto(picture);
    }

    void SetSettings(SettingsSubtitleDrawer const& settings) override
    {
        m_source->SetSettings(settings);
        m_isStale = true;
    }

    [[nodiscard]] std::vector<CueSpan> ListCueSpans() const override { return m_source->ListCueSpans(); }

private:
    std::unique_ptr<Blend::IInkSource> m_source;
    Blend::Overlay m_overlay;
    bool m_isStale = false; ///< the overlay is of other settings
};

Core::Result<std::unique_ptr<Blend::IInkSource>> MakeSource(SettingsSubtitleDrawer const& settings,
                                                            SubtitleDocument document, PictureGeometry const& geometry)
{
    if (auto* const bitmaps = std::get_if<BitmapDocument>(&document))
        return Blend::MakeBitmapInkSource(settings, std::move(*bitmaps), geometry);
    return Ass::MakeTextInkSource(settings, std::move(std::get<TextDocument>(document)), geometry);
}

/// Far beyond any video, near enough to keep products of sizes within 32 bits.
constexpr int MAX_SIDE = 32768;

bool IsUsable(PictureGeometry const& geometry)
{
    return geometry.width > 0 && geometry.width <= MAX_SIDE && geometry.height > 0 && geometry.height <= MAX_SIDE;
}

} // namespace

Core::Result<boost::intrusive_ptr<ISubtitleDrawer>>
MakeSubtitleDrawer(SettingsSubtitleDrawer const& settings, SubtitleDocument document, PictureGeometry const& geometry)
{
    if (!IsUsable(geometry))
        return Core::Error{Core::ErrorCode::InvalidSetting, {}, {}, {}, {}, "the picture has no usable size"};
    PictureGeometry frame = geometry;
    if (frame.sampleAspectNumerator <= 0 || frame.sampleAspectDenominator <= 0)
        frame.sampleAspectNumerator = frame.sampleAspectDenominator = 1;
    auto source = MakeSource(settings, std::move(document), frame);
    if (!source)
        return source.GetError();
    return boost::intrusive_ptr<ISubtitleDrawer>(new SubtitleDrawer(std::move(source).Value()));
}

} // namespace Korvex::Proc
