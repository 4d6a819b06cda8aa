#include "Desktop/Films/FileKinds.h"

#include "Core/FileSystem.h"

#include <QFileInfo>
#include <QString>

#include <set>
#include <string>

namespace Korvex::Desktop
{

namespace
{

std::string LowerExtension(ioPath const& path)
{
    return QString::fromStdString(path.Extension()).toLower().toStdString();
}

bool IsFilmFileName(ioPath const& path)
{
    static std::set<std::string> const EXTENSIONS{"3gp", "asf", "avi", "divx", "dv",  "flv",  "m2ts", "m4v",
                                                  "mkv", "mov", "mp4", "mpeg", "mpg", "mts",  "mxf",  "ogm",
                                                  "ogv", "ts",  "vob", "webm", "wmv", "mpeg2"};
    return EXTENSIONS.count(LowerExtension(path)) > 0;
}

} // namespace

ioPath MakeAbsolute(ioPath const& path)
{
    QFileInfo const file(QString::fromStdString(path.utf8string()));
    return file.isAbsolute() ? path : ioPath(file.absoluteFilePath().toStdString());
}

bool IsSubtitleFileName(ioPath const& path)
{
    static std::set<std::string> const EXTENSIONS{"ass", "sami", "smi", "srt", "ssa", "sub", "sup", "vtt"};
    return EXTENSIONS.count(LowerExtension(path)) > 0;
}

DroppedFiles SortDropped(std::vector<ioPath> const& paths)
{
    DroppedFiles sorted;
    for (ioPath const& path : paths)
    {
        if (IsSubtitleFileName(path))
        {
            sorted.subtitles.push_back(path);
            continue;
        }
        if (!Core::FolderExists(path))
        {
            sorted.films.push_back(path);
            continue;
        }
        sorted.folders.push_back(path);
        for (std::string const& name : Core::ListFolder(path))
            if (IsFilmFileName(name) && Core::FileExists(path / name))
                sorted.films.push_back(path / name);
    }
    return sorted;
}

} // namespace Korvex::Desktop
