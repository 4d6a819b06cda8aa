#pragma once

#include <string>
#include <string_view>

namespace Korvex::Proc::FFmpeg
{

/// Which of the two three-letter names a container wants for the languages that have two.
enum class LanguageForm
{
    Bibliographic, ///< ISO 639-2/B, Matroska and transport streams: "fre", "ger"
    Terminology,   ///< ISO 639-2/T, MP4: "fra", "deu"
    QuickTime,     ///< the names by which FFmpeg finds a language in MOV's own table: "fra", but "ger"
};

/// The three-letter name of a language that is given by any short name ("fr", "fre", "fra", "pt-BR"), any letter case.
/// A name that is not known here stays as it is when it has three letters and is empty otherwise.
[[nodiscard]] std::string ToIso6392(std::string_view shortName, LanguageForm form);

} // namespace Korvex::Proc::FFmpeg
