#include "Cli/ResultTable.h"
#include "Cli/TextWidth.h"
#include "Common/SubtitleFileName.h"

#include "Subtitles/UseCases/SearchResult.h"
#include "Subtitles/UseCases/SidecarName.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace Korvex::Hosts
{
namespace
{

namespace Language = Converter::Subtitles::Entities::Language;
using Converter::Subtitles::UseCases::SearchResult;
using Converter::Subtitles::UseCases::SidecarName;

SearchResult MakeResult(Language::LanguageID language)
{
    SearchResult result;
    result.facts.language = language;
    return result;
}

TEST(OnlineNamesTest, TheLookUpBesideTheFilmUnderstandsEveryName)
{
    std::string const film = "Der Film. 2009 [1080p]";
    for (Language::LanguageID const language : Language::GetAllLanguages())
    {
        SearchResult result = MakeResult(language);
        result.facts.isForeignPartsOnly = true;
        result.facts.isHearingImpaired = true;
        result.facts.discNumber = 2;
        result.facts.discCount = 3;
        // A name that is taken gets a number like this.
        for (std::string const taken : {"", " (2)"})
        {
            std::string const stem = MakeSidecarStem(film, result) + taken;
            auto const labels = SidecarName(film).Parse(stem);
            ASSERT_TRUE(labels) << stem;
            EXPECT_EQ(Language::GetLanguageFromShortName(labels->language), language) << stem;
            EXPECT_TRUE(labels->marks.isForced && labels->marks.isHearingImpaired) << stem;
        }
    }
}

TEST(OnlineNamesTest, ANameSaysNoMoreThanIsKnown)
{
    EXPECT_EQ(MakeSidecarStem("Up", MakeResult(Language::LanguageID::None)), "Up");
    EXPECT_EQ(MakeSidecarStem("Up", MakeResult(Language::LanguageID::PortugueseBR)), "Up.pt-br");
}

TEST(OnlineNamesTest, ATerminalGetsNothingThatItWouldObey)
{
    EXPECT_EQ(Cli::ToSafeLine(QStringLiteral("a\x1b[2J\r\nb\t\u202Etxt.\u009B1mc")).toStdString(), "a [2J b txt. 1mc");
}

TEST(OnlineNamesTest, WidthsAreThoseOfATerminal)
{
    using Cli::Alignment;
    EXPECT_EQ(Cli::DisplayWidth(QString::fromUtf8("\u5343\u3068\u5343\u5C0B")), 8);
    EXPECT_EQ(Cli::DisplayWidth(QString::fromUtf8("e\u0301te\u0301 \U0001F600 \uFF8A\uFF9F\uFF08")),
              3 + 1 + 2 + 1 + 2 + 2);
    EXPECT_EQ(Cli::Padded(QString::fromUtf8("\u5343"), 4, Alignment::Right), QString::fromUtf8("  \u5343"));

    QString const shortened = Cli::Shortened(QString::fromUtf8("\u5343\u3068\u5343\u5C0B\u306E\u795E.1080p.srt"), 12);
    EXPECT_EQ(shortened, QString::fromUtf8("\u5343\u3068....srt"));
    EXPECT_EQ(Cli::Shortened(QStringLiteral("Up.1080p.srt"), 12), QStringLiteral("Up.1080p.srt"));
}

TEST(OnlineNamesTest, ATableFitsTheTerminalAndIsWholeElsewhere)
{
    auto const first = std::make_shared<SearchResult>(MakeResult(Language::LanguageID::Japanese));
    first->fileName =
        QString::fromUtf8("\u5343\u3068\u5343\u5C0B\u306E\u795E\u96A0\u3057.2001.1080p.BluRay.x264-GROUP.srt");
    first->tags["FILE_FORMAT"] = "srt";
    first->facts.serviceId = "8200001";
    first->facts.downloadCount = 1234567;
    first->facts.isHearingImpaired = true;
    first->facts.discCount = 2;
    auto const second = std::make_shared<SearchResult>(MakeResult(Language::LanguageID::PortugueseBR));
    second->fileName = QStringLiteral("Short.srt");
    second->facts.isHashMatch = true;

    std::ostringstream terminal;
    Cli::PrintResultTable({{first, {}}, {second, {}}}, 92, terminal);
    QStringList const lines = QString::fromStdString(terminal.str()).split('\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(Cli::DisplayWidth(lines[1]), 92);
    EXPECT_EQ(lines[0].indexOf("Marks"), lines[2].indexOf("fingerprint"));
    EXPECT_EQ(lines[0].indexOf("Marks"), Cli::DisplayWidth(lines[1].left(lines[1].indexOf("SDH"))));
    EXPECT_EQ(lines[0].indexOf("Downloads") + 9, lines[1].indexOf("1234567") + 7);
    std::ostringstream file;
    Cli::PrintResultTable({{first, {}}, {second, {}}}, 0, file);
    EXPECT_THAT(file.str(), testing::HasSubstr(first->fileName.toStdString() + "  SDH, part 1 of 2\n"));
}

} // namespace
} // namespace Korvex::Hosts
