#include "Subtitles/UseCases/SubtitleStorage.h"

#include "Core/FileSystem.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <set>

namespace Korvex::Converter::Subtitles::UseCases
{

std::string MakeStorageName(std::string const& serviceName, QString const& serviceId)
{
    constexpr int LONGEST_ID = 80;
    QByteArray const id = serviceId.toUtf8();
    QByteArray name;
    for (char const c : id)
    {
        bool const isPlain = (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
        // "_" begins an escape, so it is one itself.
        name += isPlain ? QByteArray(1, c) : '_' + QByteArray(1, c).toHex();
    }
    if (name.size() > LONGEST_ID)
        name = "__" + QCryptographicHash::hash(id, QCryptographicHash::Sha1).toHex();
    return serviceName + "-" + name.toStdString();
}

ioPath FindStoredSubtitle(ioPath const& folder)
{
    static std::set<std::string> const OF_FILE_MANAGERS = {"Thumbs.db", "desktop.ini", "Desktop.ini"};
    ioPath found;
    for (std::string const& name : Core::ListFolder(folder))
    {
        if (name.front() == '.' || OF_FILE_MANAGERS.count(name) != 0)
            continue;
        auto const stamp = Core::FindFileStamp(folder / name);
        if (!stamp || stamp->size == 0)
            continue;
        if (!found.empty())
            return {};
        found = folder / name;
    }
    return found;
}

} // namespace Korvex::Converter::Subtitles::UseCases
