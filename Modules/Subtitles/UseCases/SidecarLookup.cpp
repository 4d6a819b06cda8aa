#include "Subtitles/UseCases/SidecarLookup.h"

#include "Subtitles/UseCases/ISubtitleController.h"
#include "Subtitles/UseCases/SidecarName.h"

#include "Core/FileSystem.h"

#include <algorithm>
#include <set>
#include <string>

namespace Korvex::Converter::Subtitles::UseCases
{

using Entities::SubtitleTrack;

namespace
{

std::string LowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

bool IsFilm(ioPath const& name)
{
    static std::set<std::string> const EXTENSIONS = {"3gp", "avi", "flv",  "m2ts", "m4v", "mkv", "mov",  "mp4",
                                                     "mpg", "mts", "mpeg", "ogv",  "ts",  "vob", "webm", "wmv"};
    return EXTENSIONS.count(LowerCase(name.Extension())) != 0;
}

ioPath Join(ioPath const& folder, std::string const& name)
{
    return folder.empty() ? ioPath(name) : folder / name;
}

class Lookup
{
public:
    Lookup(ioPath const& media, ISubtitleController& controller)
        : m_media(media),
          m_name(media.Stem()),
          m_controller(controller)
    {
    }

    std::vector<SubtitleTrack> Run()
    {
        ioPath const folder = m_media.Parent();
        std::vector<std::string> const names = Core::ListFolder(folder.empty() ? ioPath(".") : folder);
        for (std::string const& name : names)
        {
            if (IsFilm(name))
                m_films.push_back(ioPath(name).Stem());
        }
        Search(folder, names);
        for (char const* const wanted : {"subs", "subtitles"})
        {
            for (std::string const& name : names)
            {
                if (LowerCase(name) == wanted)
                    Search(Join(folder, name), Core::ListFolder(Join(folder, name)));
            }
        }
        return std::move(m_found);
    }

private:
    void Search(ioPath const& folder, std::vector<std::string> const& names)
    {
        for (std::string const& name : names)
        {
            if (auto const labels = Match(name); labels && Core::FileExists(Join(folder, name)))
                m_found.push_back(MakeTrack(Join(folder, name), *labels));
        }
    }

    std::optional<SidecarLabels> Match(ioPath const& name)
    {
        if (!m_controller.IsFileExtensionSupported(name.Extension()))
            return std::nullopt;
        bool const belongsToAnother =
            std::any_of(m_films.begin(), m_films.end(),
                        [&](std::string const& film) { return m_name.IsOutdoneBy(film, name.Stem()); });
        return belongsToAnother ? std::nullopt : m_name.Parse(name.Stem());
    }

    static SubtitleTrack MakeTrack(ioPath const& path, SidecarLabels const& labels)
    {
        SubtitleTrack track(path);
        track.title = path.FileName();
        track.language = labels.language;
        track.detail = Entities::DescribeMarks(labels.marks);
        track.isForced = labels.marks.isForced;
        return track;
    }

    ioPath m_media;
    SidecarName m_name;
    ISubtitleController& m_controller;
    std::vector<std::string> m_films; ///< stems of the films in the folder
    std::vector<SubtitleTrack> m_found;
};

} // namespace

std::vector<SubtitleTrack> FindSidecars(ioPath const& media, ISubtitleController& controller)
{
    return Lookup(media, controller).Run();
}

} // namespace Korvex::Converter::Subtitles::UseCases
