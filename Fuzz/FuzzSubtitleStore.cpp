#include "Check.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/NotASubtitle.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleFileName.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleStore.h"

#include <cstdint>

using namespace Korvex::Converter::Subtitles;

namespace
{

void CheckName(QString const& name)
{
    using Korvex::Fuzz::Require;
    QString const clean = Details::OpenSubtitles::CleanFileName(name, QStringLiteral("srt"));
    Require(clean.toUtf8().size() <= 200 && clean.contains(QLatin1Char('.')));
    Require(!clean.startsWith(QLatin1Char('.')) && !clean.endsWith(QLatin1Char('.')) && clean.trimmed() == clean);
    for (char const forbidden : {'/', '\\', ':', '"', '\0', '\n', '*', '?'})
        Require(!clean.contains(QLatin1Char(forbidden)));
    Require(Details::OpenSubtitles::IsSubtitleExtension(clean.section(QLatin1Char('.'), -1)));
    Require(QString::fromUtf8(clean.toUtf8()) == clean);
    Require(Details::OpenSubtitles::CleanFileName(clean, QStringLiteral("ass")) == clean);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    QByteArray const bytes(reinterpret_cast<char const*>(data), static_cast<int>(size));
    auto const instead = Details::OpenSubtitles::FindWhatItIsInstead(bytes);
    Korvex::Fuzz::Require(!instead || (!instead->isEmpty() && instead->size() < 300));
    CheckName(QString::fromUtf8(bytes));
    // Halves of surrogate pairs come from nowhere else.
    QString units;
    for (int at = 0; at + 1 < bytes.size(); at += 2)
        units += QChar(static_cast<uchar>(bytes.at(at)), static_cast<uchar>(bytes.at(at + 1)));
    CheckName(units);
    return 0;
}
