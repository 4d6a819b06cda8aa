#include "Core/PlatformFile.h"

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#undef ReplaceFile // a macro there

namespace Korvex::Core::PlatformFile
{

namespace
{

std::error_code LastError()
{
    return {static_cast<int>(GetLastError()), std::system_category()};
}

} // namespace

NativeText ToNative(ioPath const& path)
{
    std::string const& utf8 = path.utf8string();
    int const length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), wide.data(), length);
    return wide;
}

std::string ToUtf8(NativeText const& text)
{
    auto const size = static_cast<int>(text.size());
    int const length = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, utf8.data(), length, nullptr, nullptr);
    return utf8;
}

std::error_code Synchronize(ioPath const& file)
{
    HANDLE const handle = CreateFileW(ToNative(file).c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return LastError();
    std::error_code const result = FlushFileBuffers(handle) ? std::error_code() : LastError();
    CloseHandle(handle);
    return result;
}

std::error_code ReplaceFile(ioPath const& from, ioPath const& to)
{
    DWORD const flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return MoveFileExW(ToNative(from).c_str(), ToNative(to).c_str(), flags) ? std::error_code() : LastError();
}

std::error_code RenameWithoutReplacing(ioPath const& from, ioPath const& to)
{
    if (MoveFileExW(ToNative(from).c_str(), ToNative(to).c_str(), MOVEFILE_WRITE_THROUGH))
        return {};
    DWORD const error = GetLastError();
    if (error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS)
        return std::make_error_code(std::errc::file_exists);
    return {static_cast<int>(error), std::system_category()};
}

unsigned long ProcessId()
{
    return GetCurrentProcessId();
}

} // namespace Korvex::Core::PlatformFile
