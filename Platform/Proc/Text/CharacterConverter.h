#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

/// Bytes of a named encoding to UTF-8, on the system's converter. Internal to this folder.
namespace Korvex::Proc::Text
{

/// One encoding. Cheap to use again and again; one thread at a time.
class CharacterConverter
{
public:
    /// Null when neither the core nor the system knows the name.
    [[nodiscard]] static std::unique_ptr<CharacterConverter> Make(std::string const& encoding);

    virtual ~CharacterConverter() = default;

    /// Always succeeds: each run of bytes that are no character shows as one U+FFFD, and `replacedBytes` counts them. A
    /// bad byte never takes a good one behind it along: the text is picked up at the next byte that can begin a
    /// character.
    [[nodiscard]] virtual std::string Convert(std::string_view bytes, std::size_t& replacedBytes) = 0;

protected:
    CharacterConverter() = default;
    CharacterConverter(CharacterConverter const&) = delete;
    CharacterConverter& operator=(CharacterConverter const&) = delete;
};

/// The core's spelling of an encoding name ("utf8" is "UTF-8", "big5" is "BIG-5"), else the name in capitals.
[[nodiscard]] std::string NormalizeEncodingName(std::string const& name);

} // namespace Korvex::Proc::Text
