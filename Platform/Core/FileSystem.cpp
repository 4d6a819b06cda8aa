#include "Core/FileSystem.h"

#include "Core/PlatformFile.h"

#include <boost/filesystem.hpp>
#include <boost/filesystem/fstream.hpp>

#include <algorithm>
#include <atomic>

namespace Korvex::Core
{

namespace fs = boost::filesystem;

namespace
{

fs::path Native(ioPath const& path)
{
    return {PlatformFile::ToNative(path)};
}

std::string ToUtf8(fs::path const& path)
{
    return PlatformFile::ToUtf8(path.native());
}

Error MakeError(ErrorCode code, ioPath const& file, std::string detail = {})
{
    Error error;
    error.code = code;
    error.file = file;
    error.detail = std::move(detail);
    return error;
}

Error WriteError(ioPath const& file, std::error_code const& reason)
{
    if (reason == std::errc::no_space_on_device)
        return MakeError(ErrorCode::DiskFull, file);
    return MakeError(ErrorCode::OutputNotWritable, file, reason.message());
}

/// Something that is there and neither a file, a folder nor a link that leads nowhere.
bool IsDeviceOrPipe(ioPath const& path)
{
    boost::system::error_code error;
    fs::file_type const type = fs::status(Native(path), error).type();
    return type > fs::file_not_found && type != fs::regular_file && type != fs::directory_file;
}

std::error_code Convert(boost::system::error_code const& error)
{
    return {error.default_error_condition().value(), std::generic_category()};
}

/// The beginning of a name, cut between characters.
std::string Shortened(std::string name, std::size_t mostBytes)
{
    if (name.size() <= mostBytes)
        return name;
    while (mostBytes > 0 && (static_cast<unsigned char>(name[mostBytes]) & 0xC0U) == 0x80U)
        --mostBytes;
    name.resize(mostBytes);
    return name;
}

/// Of a file whose bytes are on the disk already: waiting for them once is enough, however many names are tried.
Status GiveName(ioPath const& temporary, ioPath const& name, bool overwrite)
{
    std::error_code const error =
        overwrite ? PlatformFile::ReplaceFile(temporary, name) : PlatformFile::RenameWithoutReplacing(temporary, name);
    if (!error)
        return SUCCESS;
    if (error == std::errc::file_exists)
        return MakeError(ErrorCode::OutputExists, name);
    return WriteError(name, error);
}

/// "film.mkv", "film (2).mkv", "film (3).mkv" ...; longer numbers are years: "film (1999) (2).mkv".
ioPath NextName(ioPath const& path)
{
    constexpr std::size_t MOST_DIGITS = 2;
    std::string stem = path.Stem();
    int number = 1;
    std::size_t const open = stem.rfind(" (");
    if (open != std::string::npos && stem.back() == ')')
    {
        std::string const digits = stem.substr(open + 2, stem.size() - open - 3);
        bool const isNumber = !digits.empty() && digits.size() <= MOST_DIGITS &&
                              digits.find_first_not_of("0123456789") == std::string::npos;
        if (isNumber)
        {
            number = std::stoi(digits);
            stem.resize(open);
        }
    }
    std::string const extension = path.Extension();
    std::string const name =
        stem + " (" + std::to_string(number + 1) + ")" + (extension.empty() ? std::string() : "." + extension);
    return path.Parent().empty() ? ioPath(name) : path.Parent() / name;
}

} // namespace

bool FileExists(ioPath const& path)
{
    boost::system::error_code error;
    return fs::is_regular_file(Native(path), error);
}

std::optional<FileStamp> FindFileStamp(ioPath const& path)
{
    boost::system::error_code error;
    FileStamp stamp;
    stamp.size = fs::file_size(Native(path), error);
    if (error)
        return std::nullopt;
    stamp.writtenAt = fs::last_write_time(Native(path), error);
    if (error)
        return std::nullopt;
    return stamp;
}

bool FolderExists(ioPath const& path)
{
    boost::system::error_code error;
    return fs::is_directory(Native(path), error);
}

bool PathExists(ioPath const& path)
{
    boost::system::error_code error;
    return fs::symlink_status(Native(path), error).type() > fs::file_not_found;
}

bool IsSameFile(ioPath const& a, ioPath const& b)
{
    boost::system::error_code error;
    return fs::equivalent(Native(a), Native(b), error) && !error;
}

std::vector<std::string> ListFolder(ioPath const& folder)
{
    std::vector<std::string> names;
    boost::system::error_code error;
    fs::directory_iterator entry(Native(folder.empty() ? ioPath(".") : folder), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        names.push_back(ToUtf8(entry->path().filename()));
    std::sort(names.begin(), names.end());
    return names;
}

Result<std::string> ReadFile(ioPath const& path, std::size_t limit)
{
    if (!PathExists(path))
        return MakeError(ErrorCode::FileNotFound, path);
    if (FolderExists(path))
        return MakeError(ErrorCode::FileUnreadable, path, "it is a folder");
    fs::ifstream stream(Native(path), std::ios::binary);
    if (!stream)
        return MakeError(ErrorCode::FileUnreadable, path);

    // The size that the system states may be wrong (devices, growing files): what counts is what can be read.
    constexpr std::size_t BLOCK = 1 << 16;
    std::string bytes;
    while (stream)
    {
        std::size_t const before = bytes.size();
        if (before > limit)
            return MakeError(ErrorCode::FileUnreadable, path, "it is larger than " + std::to_string(limit) + " bytes");
        bytes.resize(before + BLOCK);
        stream.read(&bytes[before], BLOCK);
        bytes.resize(before + static_cast<std::size_t>(stream.gcount()));
    }
    if (stream.bad())
        return MakeError(ErrorCode::FileUnreadable, path);
    if (bytes.size() > limit)
        return MakeError(ErrorCode::FileUnreadable, path, "it is larger than " + std::to_string(limit) + " bytes");
    return bytes;
}

Result<std::string> ReadFileHead(ioPath const& path, std::size_t count)
{
    if (!PathExists(path))
        return MakeError(ErrorCode::FileNotFound, path);
    if (!FileExists(path))
        return MakeError(ErrorCode::FileUnreadable, path, FolderExists(path) ? "it is a folder" : "it is not a file");
    fs::ifstream stream(Native(path), std::ios::binary);
    std::string bytes(count, '\0');
    stream.read(&bytes[0], static_cast<std::streamsize>(count));
    if (!stream.eof() && stream.fail())
        return MakeError(ErrorCode::FileUnreadable, path);
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

ioPath MakeTemporaryPath(ioPath const& target)
{
    static std::atomic<unsigned> counter{0};
    std::string const extension = target.Extension();
    // A long name with our additions could pass the file system's limit of 255 bytes.
    std::string const stem = Shortened(target.Stem(), 180);
    for (;;)
    {
        std::string const number = std::to_string(PlatformFile::ProcessId()) + "-" + std::to_string(++counter);
        std::string const name =
            "." + stem + "." + number + ".part" + (extension.empty() ? std::string() : "." + extension);
        ioPath const candidate = target.Parent().empty() ? ioPath(name) : target.Parent() / name;
        if (!PathExists(candidate))
            return candidate;
    }
}

Status CommitFile(ioPath const& temporary, ioPath const& target, bool overwrite)
{
    if (std::error_code const error = PlatformFile::Synchronize(temporary))
        return WriteError(target, error);
    return GiveName(temporary, target, overwrite);
}

Result<ioPath> CommitFile(ioPath const& temporary, ioPath const& target, TakenName takenName)
{
    Status failed = CommitFile(temporary, target, takenName == TakenName::Replace);
    ioPath name = target;
    while (failed && failed->code == ErrorCode::OutputExists && takenName == TakenName::NextFree)
    {
        name = NextName(name);
        failed = GiveName(temporary, name, false);
    }
    if (failed)
        return *failed;
    return name;
}

void RemoveFile(ioPath const& path)
{
    boost::system::error_code error;
    fs::remove(Native(path), error);
}

Status WriteFile(ioPath const& target, std::string const& bytes, bool overwrite)
{
    ioPath const temporary = MakeTemporaryPath(target);
    fs::ofstream stream(Native(temporary), std::ios::binary | std::ios::trunc);
    if (!stream)
        return WriteError(target, {errno, std::generic_category()});
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    Status result = stream ? CommitFile(temporary, target, overwrite)
                           : Status(WriteError(target, {errno, std::generic_category()}));
    if (result)
        RemoveFile(temporary);
    return result;
}

Status CreateFolders(ioPath const& folder)
{
    boost::system::error_code error;
    fs::create_directories(Native(folder), error);
    if (error && !FolderExists(folder))
        return WriteError(folder, Convert(error));
    return SUCCESS;
}

Result<ioPath> CreateWorkFolder()
{
    boost::system::error_code error;
    fs::path const folder = fs::temp_directory_path(error) / fs::unique_path("korvex-%%%%-%%%%-%%%%-%%%%");
    if (!error)
        fs::create_directory(folder, error);
    if (!error)
        fs::permissions(folder, fs::owner_all, error);
    if (error)
        return WriteError(ToUtf8(folder), Convert(error));
    return ioPath(ToUtf8(folder));
}

void RemoveWorkFolder(ioPath const& folder)
{
    boost::system::error_code error;
    fs::remove_all(Native(folder), error);
}

Status CheckOutput(ioPath const& output, std::vector<ioPath> const& inputs, bool overwrite)
{
    for (ioPath const& input : inputs)
    {
        if (output == input || IsSameFile(output, input))
            return MakeError(ErrorCode::OutputIsInput, output);
    }
    ioPath const folder = output.Parent();
    if (output.FileName().empty() || FolderExists(output))
        return MakeError(ErrorCode::OutputNotWritable, output, "it names a folder");
    if (!folder.empty() && !FolderExists(folder))
        return MakeError(ErrorCode::OutputFolderMissing, output);
    // Outputs take their names by renaming, which would put a plain file in the place of a device or a pipe.
    if (IsDeviceOrPipe(output))
        return MakeError(ErrorCode::OutputNotWritable, output, "it is a device or a pipe, not a file");
    if (!overwrite && PathExists(output))
        return MakeError(ErrorCode::OutputExists, output);
    return SUCCESS;
}

} // namespace Korvex::Core
