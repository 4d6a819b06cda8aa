#pragma once

#include "Proc/Text/EncodingModels.h"

#include <string>
#include <string_view>

/// How well bytes read as a text of some language when they are taken for some encoding. Internal to this folder.
namespace Korvex::Proc::Text
{

/// The lines that say something about the encoding: those with bytes outside ASCII, spread over the whole file.
[[nodiscard]] std::string TakeSample(std::string_view bytes);

/// The same without tags, override blocks and line breaks of subtitle formats; for encodings whose second bytes cannot
/// look like markup.
[[nodiscard]] std::string StripMarkup(std::string_view sample);

/// What the frequent words of a language in the text add to its scores.
[[nodiscard]] double ScoreWords(std::string_view stripped, LanguageModel const& language);

/// The logarithm of a likelihood: the higher the better, comparable between encodings for one sample. `stripped` is a
/// sample after StripMarkup. Scores of pairs only fall on the way; below `floor` the rest is not looked at.
[[nodiscard]] double ScoreByteEncoding(std::string_view stripped, EncodingModel const& encoding,
                                       LanguageModel const& language);
[[nodiscard]] double ScorePairEncoding(std::string_view sample, EncodingModel const& encoding,
                                       LanguageModel const& language, double floor);

} // namespace Korvex::Proc::Text
