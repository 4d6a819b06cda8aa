#include "Desktop/Films/FilePatterns.h"

#include "Core/FileSystem.h"

#include <string>
#include <utility>

namespace Korvex::Desktop
{

using TrackID = FilmChoice::TrackID;

namespace
{

/// Where the file is now; the file itself when it is there still or nowhere.
ioPath FindMoved(ioPath const& file, ioPath const& from, ioPath const& to)
{
    if (Core::FileExists(file))
        return file;
    for (ioPath const& candidate : {FindFolderLike(file, from, to) / file.FileName(), NameFileLike(file, from, to)})
        if (!candidate.empty() && Core::FileExists(candidate))
            return candidate;
    return file;
}

class Moves
{
public:
    Moves(ioPath const& from, ioPath const& to) : m_from(from), m_to(to) {}

    void Add(ioPath const& file)
    {
        if (ioPath const there = FindMoved(file, m_from, m_to); there != file)
            m_moves.emplace(TrackID(file), there);
    }

    [[nodiscard]] TrackID Follow(TrackID const& id) const
    {
        auto const moved = m_moves.find(id);
        return moved == m_moves.end() ? id : TrackID(moved->second);
    }

    [[nodiscard]] std::set<TrackID> Follow(std::set<TrackID> const& ids) const
    {
        std::set<TrackID> followed;
        for (TrackID const& id : ids)
            followed.insert(Follow(id));
        return followed;
    }

private:
    ioPath const& m_from;
    ioPath const& m_to;
    std::map<TrackID, ioPath> m_moves;
};

} // namespace

ioPath FindFolderLike(ioPath const& file, ioPath const& film, ioPath const& otherFilm)
{
    std::string const folder = file.Parent().utf8string();
    std::string const beside = film.Parent().utf8string();
    if (folder == beside)
        return otherFilm.Parent();
    bool const isBelow = folder.size() > beside.size() + 1 && folder.compare(0, beside.size(), beside) == 0 &&
                         folder[beside.size()] == '/';
    return isBelow ? otherFilm.Parent() / folder.substr(beside.size() + 1) : file.Parent();
}

ioPath NameFileLike(ioPath const& file, ioPath const& film, ioPath const& otherFilm)
{
    std::string const name = file.FileName();
    std::string const stem = film.Stem();
    if (stem.empty() || name.compare(0, stem.size(), stem) != 0)
        return {};
    return FindFolderLike(file, film, otherFilm) / (otherFilm.Stem() + name.substr(stem.size()));
}

FilmChoice FollowFilm(FilmChoice choice, ioPath const& from, ioPath const& to)
{
    if (from == to)
        return choice;
    Moves moves(from, to);
    for (ioPath const& file : choice.files)
        moves.Add(file);
    for (TrackID const& id : choice.removedFiles)
        moves.Add(ioPath(id.ToString()));

    for (ioPath& file : choice.files)
        file = ioPath(moves.Follow(TrackID(file)).ToString());
    choice.currentTrack = moves.Follow(choice.currentTrack);
    choice.removedFiles = moves.Follow(choice.removedFiles);
    if (choice.defaultTracks)
        choice.defaultTracks = moves.Follow(*choice.defaultTracks);
    std::map<TrackID, TrackChoice> tracks;
    for (auto const& [id, track] : choice.tracks)
        tracks.emplace(moves.Follow(id), track);
    choice.tracks = std::move(tracks);
    return choice;
}

} // namespace Korvex::Desktop
