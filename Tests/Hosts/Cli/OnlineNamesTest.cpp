#include "Cli/TextWidth.h"
#include "Common/SubtitleFileName.h"

#include "Subtitles/UseCases/SearchResult.h"
#include "Subtitles/UseCases/SidecarName.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

} // namespace
} // namespace Korvex::Hosts
