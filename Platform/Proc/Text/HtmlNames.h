#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// Tables of names that HTML gives to colours and characters. Internal to this folder.
namespace Korvex::Proc::Text
{

/// 0xRRGGBB of a colour name in lower case.
[[nodiscard]] std::optional<std::uint32_t> FindColourName(std::string_view name);

/// The character of a reference's name ("eacute", "Eacute"); names of markup characters in any case.
[[nodiscard]] std::optional<char32_t> FindCharacterName(std::string_view name);

} // namespace Korvex::Proc::Text
