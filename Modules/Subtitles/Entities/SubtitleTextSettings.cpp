#include "Subtitles/Entities/SubtitleTextSettings.h"

#include <QString>

#include <utility>

namespace Korvex::Converter::Subtitles::Entities
{

SubtitleTextSettings::SubtitleTextSettings()
    : SubtitleTextSettings(0, QFont(QStringLiteral("Verdana"), 20), QColor(QStringLiteral("white")),
                           QColor(QStringLiteral("black")), SubtitleAlign::Default)
{
}

SubtitleTextSettings::SubtitleTextSettings(int shift, QFont textFont, QColor text, QColor outline,
                                           SubtitleAlign alignment)
    : positionShift(shift),
      font(std::move(textFont)),
      textColor(std::move(text)),
      outlineColor(std::move(outline)),
      align(alignment)
{
}

void SubtitleTextSettings::Clear()
{
    *this = SubtitleTextSettings();
}

void SubtitleTextSettings::ResetToDefault()
{
    *this = SubtitleTextSettings();
}

bool operator==(SubtitleTextSettings const& a, SubtitleTextSettings const& b)
{
    return a.positionShift == b.positionShift && a.font == b.font && a.textColor == b.textColor &&
           a.outlineColor == b.outlineColor && a.align == b.align;
}

} // namespace Korvex::Converter::Subtitles::Entities
