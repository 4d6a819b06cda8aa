#pragma once

class QString;
class QUrl;

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

/// A download link of the service, letter case kept. Empty for anything that is no whole http or https address, so that
/// no reply can have a file of this machine read.
[[nodiscard]] QUrl ReadArchiveLink(QString const& link);

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
