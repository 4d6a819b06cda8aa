#include "Subtitles/Fakes/FakeController.h"
#include "Support/MediaMaker.h"

#include "Subtitles/UseCases/SidecarLookup.h"

#include "Core/FileSystem.h"

namespace Korvex::Converter::Subtitles::UseCases
{
namespace
{

class SidecarLookupTest : public testing::Test
{
protected:
    void Write(std::string const& name)
    {
        ASSERT_FALSE(Core::CreateFolders((m_folder / name).Parent()));
        m_folder.Write(name, "text");
    }

    std::vector<std::string> Find(std::string const& film)
    {
        std::vector<std::string> found;
        for (Entities::SubtitleTrack const& track : FindSidecars(m_folder / film, m_controller))
            found.push_back(track.path.utf8string().substr(m_folder.Path().utf8string().size() + 1));
        return found;
    }

    Korvex::Testing::TemporaryFolder m_folder;
    Testing::FakeController m_controller;
};

TEST_F(SidecarLookupTest, FindsFilesBesideTheFilmAndInItsFolders)
{
    for (char const* name : {"Movie.mkv", "Movie.srt", "movie.DE.SRT", "Movie.en.ass", "Movie.nfo", "Movie 2.srt",
                             "Subs/Movie.fr.srt", "subtitles/Movie.srt", "Extras/Movie.srt"})
        Write(name);
    ASSERT_FALSE(Core::CreateFolders(m_folder / "Movie.es.srt"));

    EXPECT_EQ(Find("Movie.mkv"), (std::vector<std::string>{"Movie.en.ass", "Movie.srt", "movie.DE.SRT",
                                                           "Subs/Movie.fr.srt", "subtitles/Movie.srt"}));
    EXPECT_TRUE(Find("gone/Movie.mkv").empty());
}

TEST_F(SidecarLookupTest, LeavesFilesToTheFilmWithTheLongerName)
{
    for (char const* name : {"Movie.mkv", "Movie.Two.mp4", "Movie.Two.srt", "Movie.two.en.srt", "Movie.srt"})
        Write(name);
    EXPECT_EQ(Find("Movie.mkv"), (std::vector<std::string>{"Movie.srt"}));
    EXPECT_EQ(Find("Movie.Two.mp4"), (std::vector<std::string>{"Movie.Two.srt", "Movie.two.en.srt"}));
}

} // namespace
} // namespace Korvex::Converter::Subtitles::UseCases
