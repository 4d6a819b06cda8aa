#pragma once

#include "Core/ioPath.h"

#include <string>
#include <system_error>

/// The few file operations that differ between systems. One source file per system implements them.
namespace Korvex::Core::PlatformFile
{

#if defined(_WIN32)
using NativeText = std::wstring;
#else
using NativeText = std::string;
#endif

/// A path as the system's own calls take it.
NativeText ToNative(ioPath const& path);
std::string ToUtf8(NativeText const& text);
/// Writes what the system has buffered of a closed file to the disk.
std::error_code Synchronize(ioPath const& file);
/// Gives `from` the name `to` in one step, replacing what is there.
std::error_code ReplaceFile(ioPath const& from, ioPath const& to);
/// Gives `from` the name `to` in one step; fails with errc::file_exists when the name is taken.
std::error_code RenameWithoutReplacing(ioPath const& from, ioPath const& to);
/// A number that no other running process has.
unsigned long ProcessId();

} // namespace Korvex::Core::PlatformFile
