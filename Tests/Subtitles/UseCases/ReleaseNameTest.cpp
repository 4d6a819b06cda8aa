#include "Subtitles/UseCases/ReleaseName.h"

#include "Subtitles/UseCases/ImdbId.h"

#include <ctime>
#include <random>

namespace Korvex::Converter::Subtitles::UseCases
{
namespace
{

struct NamedRelease
{
    char const* name;
    char const* title;
    char const* when; ///< year, "S2E5", "E12a" (absolute), in this order, what there is
    char const* what; ///< resolution, source, codec, what there is
    char const* group;
};

// clang-format off
NamedRelease const RELEASES[] = {
    {"The.Lighthouse.Keeper.2019.1080p.BluRay.x264-SPARROW.mkv", "The Lighthouse Keeper", "2019", "1080p BluRay x264", "SPARROW"},
    {"Winter Harbour (2010).mkv", "Winter Harbour", "2010", "", ""},
    {"Winter Harbour [2010] [1080p] [YTS.MX].mp4", "Winter Harbour", "2010", "1080p", "YTS.MX"},
    {"2012 (2009).mkv", "2012", "2009", "", ""},
    {"2012.2009.720p.BRRip.XviD-ABC.avi", "2012", "2009", "720p BluRay XviD", "ABC"},
    {"1917 (2019) 2160p UHD BluRay x265.mkv", "1917", "2019", "2160p BluRay x265", ""},
    {"1917.2019.1080p.WEB-DL.DD5.1.H.264-FGT.mkv", "1917", "2019", "1080p WEB-DL x264", "FGT"},
    {"1917.mkv", "1917", "", "", ""},
    {"300.mkv", "300", "", "", ""},
    {"300.2006.1080p.mkv", "300", "2006", "1080p", ""},
    {"Blade Runner 2049 2017.mkv", "Blade Runner 2049", "2017", "", ""},
    {"Blade.Runner.2049.1080p.BluRay.mkv", "Blade Runner 2049", "", "1080p BluRay", ""},
    {"2001 A Space Odyssey 1968 REMASTERED.mkv", "2001 A Space Odyssey", "1968", "", ""},
    {"2001.A.Space.Odyssey.mkv", "2001 A Space Odyssey", "", "", ""},
    {"Wonder.Woman.1984.2020.IMAX.2160p.HMAX.WEB-DL.DDP5.1.Atmos.DV.HDR10+.HEVC-FLUX.mkv", "Wonder Woman 1984", "2020", "2160p WEB-DL x265", "FLUX"},
    {"Class of 1999 II The Substitute.mkv", "Class of 1999 II The Substitute", "", "", ""},
    {"(2014) Night Train.avi", "Night Train", "2014", "", ""},
    {"(500) Days of Summer (2009).mkv", "500 Days of Summer", "2009", "", ""},
    {"[REC].2007.DVDRip.XviD.avi", "REC", "2007", "DVD XviD", ""},
    {"Birdman or (The Unexpected Virtue of Ignorance) (2014).mkv", "Birdman or The Unexpected Virtue of Ignorance", "2014", "", ""},
    {"Northern.Lights.S02E05.720p.HDTV.x264-KILO.mkv", "Northern Lights", "S2E5", "720p HDTV x264", "KILO"},
    {"Northern Lights s2 e5.mkv", "Northern Lights", "S2E5", "", ""},
    {"Northern Lights - 2x05 - The Long Way.mkv", "Northern Lights", "S2E5", "", ""},
    {"Northern Lights Season 2 Episode 5.mp4", "Northern Lights", "S2E5", "", ""},
    {"Northern Lights, Season 2, Episode 5 (1080p).mp4", "Northern Lights", "S2E5", "1080p", ""},
    {"northern_lights_s02e05_hdtv_xvid-lol.avi", "northern lights", "S2E5", "HDTV XviD", "lol"},
    {"Northern.Lights.S01E01E02.Pilot.1080p.AMZN.WEB-DL.DDP5.1.H.264-NTb.mkv", "Northern Lights", "S1E1,2", "1080p WEB-DL x264", "NTb"},
    {"Northern.Lights.S01E01-E03.720p.mkv", "Northern Lights", "S1E1,2,3", "720p", ""},
    {"Northern.Lights.S01E01-03.720p.mkv", "Northern Lights", "S1E1,2,3", "720p", ""},
    {"Northern Lights - 1x01-02 - Pilot.mkv", "Northern Lights", "S1E1,2", "", ""},
    {"Northern.Lights.S01E09.E10.WEBRip.mkv", "Northern Lights", "S1E9,10", "WEBRip", ""},
    {"Northern.Lights.2005.S01E01.PROPER.HDTV.mkv", "Northern Lights", "2005 S1E1", "HDTV", ""},
    {"Northern Lights (2003) - S01E01 - 33.mkv", "Northern Lights", "2003 S1E1", "", ""},
    {"Northern.Lights.S02.COMPLETE.1080p.BluRay.x265-GRP", "Northern Lights", "S2", "1080p BluRay x265", "GRP"},
    {"Northern.Lights.S00E01.Special.mkv", "Northern Lights", "S0E1", "", ""},
    {"S01E05 - The Bridge.mkv", "", "S1E5", "", ""},
    {"Season 2", "", "S2", "", ""},
    {"S02", "", "S2", "", ""},
    {"The 100 S02E05.mkv", "The 100", "S2E5", "", ""},
    {"24.S01E01.DVDRip.mkv", "24", "S1E1", "DVD", ""},
    {"9-1-1.S03E02.720p.WEB.H264-MEMENTO.mkv", "9-1-1", "S3E2", "720p WEB-DL x264", "MEMENTO"},
    {"S.W.A.T.S02E05.1080p.WEB.x264-TBS.mkv", "S.W.A.T.", "S2E5", "1080p WEB-DL x264", "TBS"},
    {"S.W.A.T. - 2x05.mkv", "S.W.A.T.", "S2E5", "", ""},
    {"L.A.Confidential.1997.1080p.mkv", "L.A. Confidential", "1997", "1080p", ""},
    {"Mr. Robot S01E01.mkv", "Mr. Robot", "S1E1", "", ""},
    {"Mr.Robot.S01E01.mkv", "Mr Robot", "S1E1", "", ""},
    {"Spider-Man.Far.from.Home.2019.HDCAM.x264-SPARROW.mkv", "Spider-Man Far from Home", "2019", "CAM x264", "SPARROW"},
    {"Spider-Man.mkv", "Spider-Man", "", "", ""},
    {"Schindler's List 1993.mkv", "Schindler's List", "1993", "", ""},
    {"Charlotte's Web 2006 1080p WEB-DL.mkv", "Charlotte's Web", "2006", "1080p WEB-DL", ""},
    {"Charlottes.Web.1080p.BluRay.mkv", "Charlottes Web", "", "1080p BluRay", ""},
    {"The French Dispatch 2021 1080p.mkv", "The French Dispatch", "2021", "1080p", ""},
    {"The.Italian.Job.1969.mkv", "The Italian Job", "1969", "", ""},
    {"The.Good.German.2006.DVDRip.mkv", "The Good German", "2006", "DVD", ""},
    {"Winter.Harbour.GERMAN.DL.1080p.BluRay.x264-ROUGH.mkv", "Winter Harbour", "", "1080p BluRay x264", "ROUGH"},
    {"Winter.Harbour.FRENCH.DVDRip.XviD-ZON3.avi", "Winter Harbour", "", "DVD XviD", "ZON3"},
    {"Winter.Harbour.EXTENDED.2001.1080p.BluRay.DTS-HD.MA.5.1.x264-D-Z0N3.mkv", "Winter Harbour", "2001", "1080p BluRay x264", "D-Z0N3"},
    {"Winter Harbour (Director's Cut) (1982) [Blu-ray 1080p].mkv", "Winter Harbour", "1982", "1080p BluRay", ""},
    {"Winter.Harbour.Part.2.2011.mkv", "Winter Harbour Part 2", "2011", "", ""},
    {"Winter Harbour CD1.avi", "Winter Harbour", "", "", ""},
    {"Winter.Harbour.1999.DVDRip.CD2-GRP.avi", "Winter Harbour", "1999", "DVD", "GRP"},
    {"Winter.Harbour.AKA.Le.Port.2010.1080p.mkv", "Winter Harbour", "2010", "1080p", ""},
    {"Harbour, The (1999).mkv", "The Harbour", "1999", "", ""},
    {"Star Wars Episode 4 A New Hope (1977).mkv", "Star Wars Episode 4 A New Hope", "1977", "", ""},
    {"[SubGroup] Title of Stars - 12v2 [1080p][ABCD1234].mkv", "Title of Stars", "E12a", "1080p", "SubGroup"},
    {"[SubGroup]_Title_of_Stars_-_05_[720p].mkv", "Title of Stars", "E5a", "720p", "SubGroup"},
    {"[SubGroup] Title of Stars 05 [BD 1080p HEVC].mkv", "Title of Stars", "E5a", "1080p BluRay x265", "SubGroup"},
    {"[SubGroup] Title of Stars S2 - 05 (WEB 1080p x265).mkv", "Title of Stars", "S2E5", "1080p WEB-DL x265", "SubGroup"},
    {"[SubGroup] Title of Stars 2nd Season - 05.mkv", "Title of Stars", "S2E5", "", "SubGroup"},
    {"[SubGroup] Mob 100 - 07 [720p].mkv", "Mob 100", "E7a", "720p", "SubGroup"},
    {"Long Voyage - 1015 [1080p].mkv", "Long Voyage", "E1015a", "1080p", ""},
    {"[SubGroup] Title of Stars - 01-03 [720p].mkv", "Title of Stars", "E1,2,3a", "720p", "SubGroup"},
    {"The.Late.Programme.2020.03.04.Guest.Name.720p.WEB.x264-XLF.mkv", "The Late Programme", "2020", "720p WEB-DL x264", "XLF"},
    {"The Late Programme - 2020-03-04.mkv", "The Late Programme", "2020", "", ""},
    {"Winter.Harbour.2010.1080p.BluRay.x264-GRP.en.forced.srt", "Winter Harbour", "2010", "1080p BluRay x264", "GRP"},
    {"Winter Harbour.en.forced.srt", "Winter Harbour", "", "", ""},
    {"Winter Harbour.pt-BR.sdh.srt", "Winter Harbour", "", "", ""},
    {"It.srt", "It", "", "", ""},
    {"Winter.Harbour.tt0133093.2010.mkv", "Winter Harbour", "2010", "", ""},
    {"Winter Harbour (2010) {imdb-tt0133093}.mkv", "Winter Harbour", "2010", "", ""},
    {"Northern.Lights.S01E02.The.Road.HDTV.XviD-FQM.HI", "Northern Lights", "S1E2", "HDTV XviD", "FQM"},
    {"720p.HDDVD.DTS.x264-SPARROW", "", "", "720p BluRay x264", "SPARROW"},
    {"1080p.mkv", "", "", "1080p", ""},
    {"Cam (2018).mkv", "Cam", "2018", "", ""},
    {"Real.Steel.2011.720p.mkv", "Real Steel", "2011", "720p", ""},
    {"2.0 (2018) 1080p.mkv", "2.0", "2018", "1080p", ""},
    {"4x4.2019.1080p.mkv", "4x4", "2019", "1080p", ""},
    {"Winter Harbour 1920x800 x264.mkv", "Winter Harbour", "", "1080p x264", ""},
    {"Winter Harbour (2010) (1080p BluRay x265 10bit AAC 5.1 Tigole).mkv", "Winter Harbour", "2010", "1080p BluRay x265", "Tigole"},
    {"[ www.Films.example ] - Winter.Harbour.2010.HDRip.mkv", "Winter Harbour", "2010", "HDRip", ""},
    {"Зимняя гавань (2010) BDRip 1080p.mkv", "Зимняя гавань", "2010", "1080p BluRay", ""},
    {"Северное сияние 2 сезон 5 серия.avi", "Северное сияние", "S2E5", "", ""},
    {"Северное.сияние.S02E05.WEBRip.mkv", "Северное сияние", "S2E5", "WEBRip", ""},
    {"千と千尋の神隠し (2001).mkv", "千と千尋の神隠し", "2001", "", ""},
    {"【字幕组】星之旅 第05話 [1080p].mkv", "星之旅", "E5a", "1080p", "字幕组"},
    {"Nordlicht Staffel 2 Folge 5.mkv", "Nordlicht", "S2E5", "", ""},
    {"Winter Harbour 3D.mkv", "Winter Harbour", "", "", ""},
    {"Am\xE9lie (2001).mkv", "Amélie", "2001", "", ""},
    {"Alien \xE2\x80\x93 Covenant 2017.mkv", "Alien Covenant", "2017", "", ""},
    {"", "", "", "", ""},
    {"...---___.mkv", "", "", "", ""},
};
// clang-format on

std::string Append(std::string text, std::string const& word)
{
    return text.empty() || word.empty() ? text + word : text + " " + word;
}

std::string DescribeWhen(ReleaseName const& name)
{
    std::string episode = name.season ? "S" + std::to_string(*name.season) : "";
    for (std::size_t i = 0; i < name.episodes.size(); ++i)
        episode += (i == 0 ? "E" : ",") + std::to_string(name.episodes[i]);
    return Append(name.year ? std::to_string(*name.year) : "", episode + (name.isAbsoluteEpisode ? "a" : ""));
}

TEST(ReleaseNameTest, ReadsWhatPeopleCallTheirFiles)
{
    for (NamedRelease const& expected : RELEASES)
    {
        ReleaseName const name = ParseReleaseName(expected.name);
        EXPECT_EQ(name.title, expected.title) << expected.name;
        EXPECT_EQ(DescribeWhen(name), expected.when) << expected.name;
        EXPECT_EQ(Append(Append(name.resolution, name.source), name.videoCodec), expected.what) << expected.name;
        EXPECT_EQ(name.group, expected.group) << expected.name;
    }
}

TEST(ReleaseNameTest, FindsImdbIdsAnywhere)
{
    EXPECT_EQ(FindImdbId("see https://www.imdb.com/title/tt0133093/?ref=x"), "133093");
    EXPECT_EQ(FindImdbId("matt1234567 tt123 tt12345678901 tt00000000 (TT12345678)"), "12345678");
    EXPECT_EQ(FindImdbId("tt1234567"), "1234567");
    EXPECT_EQ(FindImdbId("tt123456"), "");
    EXPECT_EQ(ParseReleaseName("Winter Harbour {imdb-tt0133093}.mkv").imdbId, "133093");
}

/// Bounds are generous for slow machines and sanitizers; time that grows with the square takes far longer.
TEST(ReleaseNameTest, TakesTimeInLineWithTheLength)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    constexpr int LONGEST_MS = 3000;
#else
    constexpr int LONGEST_MS = 500;
#endif
    for (char const* const piece :
         {"a.", "2001.", "s1.", "(", "[a]", "Episode 1 ", "web-", "S01E01-", "dts hd ", "\xFF", "x", "1 season "})
    {
        std::string name;
        while (name.size() < 100'000)
            name += piece;
        std::clock_t const begin = std::clock();
        (void)ParseReleaseName(name + " 1999");
        auto const milliseconds = static_cast<int>((std::clock() - begin) * 1000 / CLOCKS_PER_SEC);
        EXPECT_LT(milliseconds, LONGEST_MS) << piece;
    }
}

TEST(ReleaseNameTest, SurvivesAnyBytes)
{
    std::mt19937 random(7);
    std::string const alphabet = ".-_ ()[]{}sSeExX0129/\xE3\x80\x90\xFF" + std::string(1, '\0');
    for (int round = 0; round < 20'000; ++round)
    {
        std::string name(random() % 24, ' ');
        for (char& c : name)
            c = alphabet[random() % alphabet.size()];
        ReleaseName const release = ParseReleaseName(name);
        EXPECT_EQ(release.title.find("  "), std::string::npos) << name;
    }
}

} // namespace
} // namespace Korvex::Converter::Subtitles::UseCases
