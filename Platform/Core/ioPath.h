#pragma once

#include "Core/Export.h"

#include <string>
#include <utility>

namespace Korvex
{

/// A path of a file or folder, kept as UTF-8 text on every system. It crosses every interface that takes a file.
///
/// A value type: it never touches the disk (see Core/FileSystem.h for that) and it is neither normalised nor made
/// absolute, so that two spellings of one file are two paths. Comparison is byte by byte.
class KORVEX_PLATFORM_API ioPath
{
public:
    ioPath() = default;
    ioPath(std::string utf8) : m_utf8(std::move(utf8)) {} // NOLINT(google-explicit-constructor)
    ioPath(char const* utf8) : m_utf8(utf8) {}            // NOLINT(google-explicit-constructor)

    /// The whole path in UTF-8, exactly as it was given.
    [[nodiscard]] std::string const& utf8string() const noexcept { return m_utf8; }
    [[nodiscard]] bool empty() const noexcept { return m_utf8.empty(); }

    /// The last component, extension included; empty when the path ends in a separator.
    [[nodiscard]] std::string FileName() const;
    /// The file name up to its last dot; a leading dot alone does not begin an extension.
    [[nodiscard]] std::string Stem() const;
    /// What follows the last dot of the file name, without the dot, in the spelling given.
    [[nodiscard]] std::string Extension() const;
    /// The path without its last component; empty for a bare file name.
    [[nodiscard]] ioPath Parent() const;
    /// This path with one more component.
    [[nodiscard]] ioPath operator/(std::string const& component) const;

    friend bool operator==(ioPath const& a, ioPath const& b) noexcept { return a.m_utf8 == b.m_utf8; }
    friend bool operator!=(ioPath const& a, ioPath const& b) noexcept { return !(a == b); }
    friend bool operator<(ioPath const& a, ioPath const& b) noexcept { return a.m_utf8 < b.m_utf8; }

private:
    std::string m_utf8;
};

} // namespace Korvex
