#pragma once

#include "Core/Export.h"
#include "Core/Result.h"
#include "Core/TakenName.h"
#include "Core/ioPath.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What the core and the hosts do with files. Paths are UTF-8 on every system; any thread; nothing throws.
namespace Korvex::Core
{

[[nodiscard]] KORVEX_PLATFORM_API bool FileExists(ioPath const& path); ///< a regular file (links followed)
[[nodiscard]] KORVEX_PLATFORM_API bool FolderExists(ioPath const& path);
[[nodiscard]] KORVEX_PLATFORM_API bool PathExists(ioPath const& path); ///< anything at all, dangling links included
/// True when both name one existing file (links, spellings and hard links included).
[[nodiscard]] KORVEX_PLATFORM_API bool IsSameFile(ioPath const& a, ioPath const& b);

/// What tells one state of a file from another without reading it.
struct FileStamp
{
    std::uintmax_t size = 0;    ///< in bytes
    std::int64_t writtenAt = 0; ///< seconds, of the system's own epoch
};
[[nodiscard]] inline bool operator==(FileStamp const& a, FileStamp const& b)
{
    return a.size == b.size && a.writtenAt == b.writtenAt;
}
/// Empty where there is no such file.
[[nodiscard]] KORVEX_PLATFORM_API std::optional<FileStamp> FindFileStamp(ioPath const& path);

/// The names (not paths) of the entries of a folder, sorted by bytes; empty when it cannot be read.
[[nodiscard]] KORVEX_PLATFORM_API std::vector<std::string> ListFolder(ioPath const& folder);

/// The file's bytes, at most `limit`; a larger file fails with FileUnreadable and says so.
[[nodiscard]] KORVEX_PLATFORM_API Result<std::string> ReadFile(ioPath const& path, std::size_t limit);

/// The first `count` bytes of a regular file, fewer when it is shorter. Folders, devices and pipes fail with
/// FileUnreadable.
[[nodiscard]] KORVEX_PLATFORM_API Result<std::string> ReadFileHead(ioPath const& path, std::size_t count);

/// A name beside `target` that does not exist yet: ".<stem>.<number>.part.<extension>".
[[nodiscard]] KORVEX_PLATFORM_API ioPath MakeTemporaryPath(ioPath const& target);
/// Makes the file's bytes durable, then gives it its final name in one step. With `overwrite` an existing target is
/// replaced, else the call fails with OutputExists (also when the target appeared meanwhile).
[[nodiscard]] KORVEX_PLATFORM_API Status CommitFile(ioPath const& temporary, ioPath const& target, bool overwrite);
/// As above; returns the name that the file really got.
[[nodiscard]] KORVEX_PLATFORM_API Result<ioPath> CommitFile(ioPath const& temporary, ioPath const& target,
                                                            TakenName takenName);
/// Removes a file if it is there.
KORVEX_PLATFORM_API void RemoveFile(ioPath const& path);

/// Writes a whole file aside and commits it.
[[nodiscard]] KORVEX_PLATFORM_API Status WriteFile(ioPath const& target, std::string const& bytes, bool overwrite);

[[nodiscard]] KORVEX_PLATFORM_API Status CreateFolders(ioPath const& folder);
/// A folder of its own for working files, made new inside the system's temporary folder, readable by this user only.
[[nodiscard]] KORVEX_PLATFORM_API Result<ioPath> CreateWorkFolder();
/// Removes a folder and all that is in it; only ever called for folders that `CreateWorkFolder` made.
KORVEX_PLATFORM_API void RemoveWorkFolder(ioPath const& folder);

/// Refuses an output that must not be written: same file as an input, folder missing, a device or pipe, target present
/// without `overwrite`.
[[nodiscard]] KORVEX_PLATFORM_API Status CheckOutput(ioPath const& output, std::vector<ioPath> const& inputs,
                                                     bool overwrite);

} // namespace Korvex::Core
