#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What is known about languages and the encodings in which their texts are found. Internal to this folder.
namespace Korvex::Proc::Text
{

enum class Script
{
    Latin,
    Cyrillic,
    Greek,
    Hebrew,
    Arabic,
    Thai,
    EastAsian,
};

/// One language: how it names itself in file names and locales, and its letters outside ASCII.
struct LanguageModel
{
    std::string_view codes; ///< short names, blanks between: ISO 639-1, 639-2
    Script script;
    std::u32string_view letters; ///< small ones, the most frequent first; East Asian: the common characters
    std::string_view codePage;   ///< what its users' machines usually wrote
    std::string_view words = {}; ///< frequent ones that are all ASCII, blanks between; Latin script only
    double prior = 0; ///< logarithm of how seldom its texts are met, compared with those of the large languages
};

/// An encoding that detection considers.
struct EncodingModel
{
    std::string_view name;
    std::string_view languages; ///< first codes of the languages written in it, blanks between
    double prior = 0; ///< logarithm of how seldom it is met, compared with the usual encodings of its languages
};

[[nodiscard]] std::vector<LanguageModel> const& GetLanguageModels();

/// Encodings of one byte a character and those of several, each list in order of preference.
[[nodiscard]] std::vector<EncodingModel> const& GetByteEncodings();
[[nodiscard]] std::vector<EncodingModel> const& GetPairEncodings();

/// The language with this short name ("uk", "ukr", "pt-br", "ru_RU.UTF-8"); null when there is no model.
[[nodiscard]] LanguageModel const* FindLanguage(std::string_view shortName);

/// True when the blank-separated list holds the word.
[[nodiscard]] bool HasWord(std::string_view list, std::string_view word);

/// The small letter of a letter that detection knows, else the code point itself.
[[nodiscard]] char32_t ToSmallLetter(char32_t codePoint);
/// The script of a letter outside ASCII; empty for what is no letter.
[[nodiscard]] std::optional<Script> ScriptOf(char32_t codePoint);

} // namespace Korvex::Proc::Text
