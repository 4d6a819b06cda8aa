#include "Subtitles/Entities/SubtitleAlign.h"
#include "Subtitles/Entities/SubtitleEncoding.h"

#include <QCoreApplication>

#include <array>
#include <cstddef>

namespace Korvex::Converter::Subtitles::Entities
{

namespace
{

constexpr char const* CONTEXT = "SubtitleSettings";

constexpr std::array<char const*, 15> ENCODINGS = {
    QT_TRANSLATE_NOOP("SubtitleSettings", "Auto"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "UTF-8"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Windows-1251"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Central and Eastern European (Windows-1250)"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Russian (KOI8-R)"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Ukrainian, Belarusian (KOI8-U/RU)"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Esperanto, Galician, Maltese, Turkish (ISO-8859-3)"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Modern Greek (ISO-8859-7)"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Hebrew charsets (ISO-8859-8)"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Turkish (ISO-8859-9)"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Baltic (ISO-8859-13)"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Western European Languages with Euro (ISO-8859-15)"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Japanese charsets (SHIFT-JIS/CP932)"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Simplified Chinese charset (CP936)"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Traditional Chinese charset (BIG5)"),
};

constexpr std::array<char const*, 7> ALIGNS = {
    QT_TRANSLATE_NOOP("SubtitleSettings", "Default"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Top"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Vertical center"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Bottom"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Left"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Horizontal center"),
    QT_TRANSLATE_NOOP("SubtitleSettings", "Right"),
};

/// The first text of a table stands for every value beyond it.
template <typename Enumeration, std::size_t N>
std::string Translate(std::array<char const*, N> const& texts, Enumeration value)
{
    auto const number = static_cast<std::int32_t>(value);
    bool const isKnown = number >= 0 && static_cast<std::size_t>(number) < N;
    return QCoreApplication::translate(CONTEXT, texts[isKnown ? static_cast<std::size_t>(number) : 0]).toStdString();
}

} // namespace

std::string GetDisplayText(SubtitleEncoding encoding)
{
    return Translate(ENCODINGS, encoding);
}

std::string GetDisplayText(SubtitleAlign align)
{
    return Translate(ALIGNS, align);
}

} // namespace Korvex::Converter::Subtitles::Entities
