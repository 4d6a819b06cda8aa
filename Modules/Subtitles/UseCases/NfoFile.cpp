#include "Subtitles/UseCases/NfoFile.h"

#include "Subtitles/UseCases/ImdbId.h"

#include "Core/FileSystem.h"

#include <algorithm>

namespace Korvex::Converter::Subtitles::UseCases
{

namespace
{

constexpr std::size_t MOST_BYTES = 65536;

bool IsNfo(ioPath const& name)
{
    std::string const extension = name.Extension();
    return extension == "nfo" || extension == "NFO" || extension == "Nfo";
}

ioPath ChooseNfo(ioPath const& film)
{
    std::vector<std::string> const names = Core::ListFolder(film.Parent());
    std::vector<ioPath> nfos;
    std::copy_if(names.begin(), names.end(), std::back_inserter(nfos), IsNfo);
    for (ioPath const& nfo : nfos)
    {
        if (nfo.Stem() == film.Stem())
            return nfo;
    }
    if (nfos.size() != 1)
        return {};
    bool const isOfAnother =
        std::any_of(names.begin(), names.end(),
                    [&](ioPath const& name) { return !IsNfo(name) && name.Stem() == nfos.front().Stem(); });
    return isOfAnother ? ioPath() : nfos.front();
}

} // namespace

std::string FindImdbIdInNfo(ioPath const& film)
{
    ioPath const name = film.empty() ? ioPath() : ChooseNfo(film);
    if (name.empty())
        return {};
    ioPath const folder = film.Parent();
    auto read = Core::ReadFileHead(folder.empty() ? name : folder / name.utf8string(), MOST_BYTES);
    if (!read)
        return {};
    // Files in UTF-16 hold the same letters with zeros between them.
    std::string text = std::move(*read);
    text.erase(std::remove(text.begin(), text.end(), '\0'), text.end());
    return FindImdbId(text);
}

} // namespace Korvex::Converter::Subtitles::UseCases
