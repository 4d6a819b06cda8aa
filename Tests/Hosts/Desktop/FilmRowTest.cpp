#include "Desktop/Window/FilmRow.h"

#include <QFontMetrics>
#include <QGuiApplication>

#include <gmock/gmock.h>

namespace Korvex::Desktop
{
namespace
{

using testing::ElementsAre;
using testing::MatchesRegex;

/// The lines that the name takes in a row with room for `widest`.
std::vector<std::string> SplitName(QString const& name, QString const& widest)
{
    QFont const font = QGuiApplication::font();
    FilmRow row;
    row.name = name;
    constexpr int WIDE = 1000;
    int const others = WIDE - FilmRowLayout(row, QRect(0, 0, WIDE, 0), font).name.width();
    int const wanted = QFontMetrics(FilmRowLayout::MakeNameFont(font)).horizontalAdvance(widest);
    std::vector<std::string> lines;
    for (QString const& line : FilmRowLayout(row, QRect(0, 0, others + wanted, 0), font).nameLines)
        lines.push_back(line.toStdString());
    return lines;
}

TEST(FilmRowTest, BreaksANameBetweenItsWords)
{
    EXPECT_THAT(SplitName("Voyage.mkv", "Voyage.mkv"), ElementsAre("Voyage.mkv"));
    EXPECT_THAT(SplitName("Voyage.mkv", "Voyage.mk"), ElementsAre(MatchesRegex("V.*\u2026.*kv")));
    EXPECT_THAT(SplitName("A rather long voyage.mkv", "A rather long vo"), ElementsAre("A rather long", "voyage.mkv"));
    EXPECT_THAT(SplitName("Long.Voyage.2019.mkv", "Long.Voyage.20"), ElementsAre("Long.Voyage.", "2019.mkv"));
    EXPECT_THAT(SplitName("a_voyage--home.mkv", "a_voyage--ho"), ElementsAre("a_voyage--", "home.mkv"));
    EXPECT_THAT(SplitName("長い航海の物語.mkv", "長い航海の物"), ElementsAre("長い航海の物", "語.mkv"));
}

} // namespace
} // namespace Korvex::Desktop
