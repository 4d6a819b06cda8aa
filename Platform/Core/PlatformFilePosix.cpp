#include "Core/PlatformFile.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace Korvex::Core::PlatformFile
{

namespace
{

std::error_code LastError()
{
    return {errno, std::generic_category()};
}

std::error_code SynchronizeDescriptor(char const* path, int flags)
{
    int const descriptor = ::open(path, flags | O_CLOEXEC);
    if (descriptor < 0)
        return LastError();
    std::error_code const result = ::fsync(descriptor) == 0 ? std::error_code() : LastError();
    ::close(descriptor);
    return result;
}

/// Makes the new name itself durable. Some file systems cannot synchronise a folder; the file is complete all the same.
void SynchronizeFolderOf(ioPath const& file)
{
    ioPath const folder = file.Parent();
    SynchronizeDescriptor(folder.empty() ? "." : folder.utf8string().c_str(), O_RDONLY | O_DIRECTORY);
}

} // namespace

NativeText ToNative(ioPath const& path)
{
    return path.utf8string();
}

std::string ToUtf8(NativeText const& text)
{
    return text;
}

std::error_code Synchronize(ioPath const& file)
{
    return SynchronizeDescriptor(file.utf8string().c_str(), O_RDONLY);
}

std::error_code ReplaceFile(ioPath const& from, ioPath const& to)
{
    if (std::rename(from.utf8string().c_str(), to.utf8string().c_str()) != 0)
        return LastError();
    SynchronizeFolderOf(to);
    return {};
}

std::error_code RenameWithoutReplacing(ioPath const& from, ioPath const& to)
{
    // A hard link fails when the name is taken, which rename() does not. File systems without hard links leave a short
    // moment between the look and the rename.
    if (::link(from.utf8string().c_str(), to.utf8string().c_str()) == 0)
    {
        ::unlink(from.utf8string().c_str());
        SynchronizeFolderOf(to);
        return {};
    }
    if (errno == EEXIST)
        return LastError();
    if (::access(to.utf8string().c_str(), F_OK) == 0)
        return std::make_error_code(std::errc::file_exists);
    return ReplaceFile(from, to);
}

unsigned long ProcessId()
{
    return static_cast<unsigned long>(::getpid());
}

} // namespace Korvex::Core::PlatformFile
