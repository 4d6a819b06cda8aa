#pragma once

#include <QByteArray>
#include <QString>

namespace Korvex::Testing
{

/// What makes one made-up subtitle file differ from another.
struct SubtitleTextSpecification
{
    QString title;           ///< of film or episode; said in the first line
    QByteArray language;     ///< as version 1 writes it: "pt-BR"; English lines for one without lines of its own
    QByteArray format;       ///< "srt" or "ass"
    QByteArray encoding;     ///< a name that QTextCodec knows: "UTF-8", "windows-1251"
    int variant = 0;         ///< different numbers give different times
    bool withSounds = false; ///< for the hearing impaired: "[foghorn]"
};

/// The same specification always gives the same bytes. Lines end in CR LF, as most uploaded files' do.
[[nodiscard]] QByteArray MakeSubtitleText(SubtitleTextSpecification const& specification);

} // namespace Korvex::Testing
