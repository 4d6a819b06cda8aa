#include "Proc/Drawer/DrawerFixture.h"

#include <memory>

namespace Korvex::Proc::Tests
{
namespace
{

constexpr PictureGeometry FRAME{384, 288, 1, 1};

/// Thirds of the picture, from the left and the top.
constexpr int LOW = 0;
constexpr int MIDDLE = 1;
constexpr int HIGH = 2;
using Place = std::pair<int, int>; ///< column, row

Place PlaceOf(InkBox const& ink)
{
    return {ink.CenterX() * 3 / FRAME.width, ink.CenterY() * 3 / FRAME.height};
}

SettingsSubtitleDrawer Aligned(AlignmentHorizontal horizontal, AlignmentVertical vertical)
{
    SettingsSubtitleDrawer settings = DejaVu();
    settings.SetHorizontalAlignment(horizontal);
    settings.SetVerticalAligment(vertical);
    return settings;
}

SettingsSubtitleDrawer Moved(int up, int right = 0)
{
    SettingsSubtitleDrawer settings = DejaVu();
    settings.SetMoveSubtitles(up, right);
    return settings;
}

BitmapDocument Bitmap(int canvasWidth, int canvasHeight, std::vector<InkBox> const& boxes,
                      std::string const& codec = "hdmv_pgs_subtitle")
{
    BitmapDocument document;
    document.codecId = codec;
    BitmapCue cue;
    cue.start = seconds(1);
    cue.end = seconds(2);
    cue.canvasWidth = canvasWidth;
    cue.canvasHeight = canvasHeight;
    for (InkBox const& box : boxes)
    {
        auto const pixels = static_cast<std::size_t>(box.Width() * box.Height());
        cue.rects.push_back({box.left, box.top, box.Width(), box.Height(),
                             std::make_shared<std::vector<std::uint8_t> const>(pixels * 4, std::uint8_t{255})});
    }
    document.cues.push_back(cue);
    return document;
}

constexpr std::array<std::pair<AlignmentHorizontal, int>, 4> COLUMNS{{{AlignmentHorizontal::Default, MIDDLE},
                                                                      {AlignmentHorizontal::Left, LOW},
                                                                      {AlignmentHorizontal::Center, MIDDLE},
                                                                      {AlignmentHorizontal::Right, HIGH}}};
constexpr std::array<std::pair<AlignmentVertical, int>, 4> ROWS{{{AlignmentVertical::Default, HIGH},
                                                                 {AlignmentVertical::Top, LOW},
                                                                 {AlignmentVertical::Center, MIDDLE},
                                                                 {AlignmentVertical::Bottom, HIGH}}};

TEST(Placement, EveryAlignmentPutsEveryKindOfSubtitleWhereItSays)
{
    for (auto const& [horizontal, column] : COLUMNS)
    {
        for (auto const& [vertical, row] : ROWS)
        {
            SettingsSubtitleDrawer const settings = Aligned(horizontal, vertical);
            Place const expected{column, row};
            EXPECT_EQ(PlaceOf(DrawnBox(settings, PlainText({"Ab"}), FRAME)), expected) << "text";
            EXPECT_EQ(PlaceOf(DrawnBox(settings, Script({"Ab"}), FRAME)), expected) << "script";
            EXPECT_EQ(PlaceOf(DrawnBox(settings, Bitmap(384, 288, {{180, 250, 204, 270}}), FRAME)), expected)
                << "bitmap";
        }
    }
}

TEST(Placement, AnAxisLeftAtDefaultIsTheStyles)
{
    using H = AlignmentHorizontal;
    using V = AlignmentVertical;
    EXPECT_EQ(PlaceOf(DrawnBox(DejaVu(), Script({"Ab"}, "An7"), FRAME)), (Place{LOW, LOW}));
    EXPECT_EQ(PlaceOf(DrawnBox(Aligned(H::Right, V::Default), Script({"Ab"}, "An7"), FRAME)), (Place{HIGH, LOW}));
    EXPECT_EQ(PlaceOf(DrawnBox(Aligned(H::Default, V::Bottom), Script({"Ab"}, "*An7"), FRAME)), (Place{LOW, HIGH}));
    EXPECT_EQ(PlaceOf(DrawnBox(Aligned(H::Default, V::Center), Script({"Ab"}, "An6"), FRAME)), (Place{HIGH, MIDDLE}));
}

TEST(Placement, WhatTheAuthorPlacedStays)
{
    SettingsSubtitleDrawer const settings = Aligned(AlignmentHorizontal::Left, AlignmentVertical::Bottom);
    for (char const* const text :
         {"{\\an9}Ab", "{\\i1}{\\b1\\an9}Ab", "{\\a7}Ab", "{\\pos(340,30)}Ab", "{\\move(340,30,350,30)}Ab"})
    {
        InkBox const without = DrawnBox(DejaVu(), Script({text}), FRAME);
        InkBox const with = DrawnBox(settings, Script({text}), FRAME);
        EXPECT_EQ(with.left, without.left) << text;
        EXPECT_EQ(with.top, without.top) << text;
    }
    // \alpha is no alignment.
    EXPECT_EQ(PlaceOf(DrawnBox(settings, Script({"{\\alpha&H10&}Ab"}), FRAME)), (Place{LOW, HIGH}));
}

TEST(Placement, ShiftsByLinesOfTheLayoutFrame)
{
    for (PictureGeometry const& geometry : {PictureGeometry{384, 288, 1, 1}, {1920, 1080, 1, 1}, {720, 576, 16, 15}})
    {
        for (SubtitleDocument const& document :
             {SubtitleDocument(PlainText({"Shift"})), SubtitleDocument(Script({"Shift"})),
              SubtitleDocument(Bitmap(
                  geometry.width, geometry.height,
                  {{geometry.width / 2 - 20, geometry.height - 40, geometry.width / 2 + 20, geometry.height - 20}},
                  "dvd_subtitle"))})
        {
            InkBox const still = DrawnBox(DejaVu(), document, geometry);
            InkBox const up = DrawnBox(Moved(100), document, geometry);
            EXPECT_NEAR(still.top - up.top, geometry.height * 100 / 288.0, 1.0);
            EXPECT_EQ(up.Height(), still.Height());
            EXPECT_EQ(up.left, still.left);
            InkBox const right = DrawnBox(Moved(0, 50), document, geometry);
            double const columns =
                geometry.height * 50 / 288.0 * geometry.sampleAspectDenominator / geometry.sampleAspectNumerator;
            EXPECT_NEAR(right.left - still.left, columns, 1.0);
        }
    }
}

TEST(Placement, NothingLeavesTheFrameAndTheTopDoesNotHoldTheBottom)
{
    TextDocument const both = Script({"Below", "{\\an8}Above", "{\\pos(192,150)}Sign"});
    auto const boxIn = [&](SettingsSubtitleDrawer const& settings, int first, int end)
    {
        TestPicture picture(384, 288, PlanarYuv(8, 1, 1));
        picture.Fill(0, 120);
        MakeDrawer(settings, both, FRAME)->Draw(picture.View(), milliseconds(1500));
        return picture.Changed(0, first, end);
    };
    InkBox const above = boxIn(DejaVu(), 0, 96);
    InkBox const below = boxIn(DejaVu(), 200, 288);
    InkBox const sign = boxIn(DejaVu(), 110, 170);
    EXPECT_EQ(boxIn(Moved(40), 0, 96).top, 0);
    EXPECT_EQ(boxIn(Moved(40), 0, 96).Height(), above.Height());
    EXPECT_EQ(boxIn(Moved(40), 172, 288).top, below.top - 40);
    EXPECT_EQ(boxIn(Moved(40), 110, 170).top, sign.top);
    EXPECT_EQ(boxIn(Moved(-40), 200, 288).bottom, 288);
    EXPECT_EQ(boxIn(Moved(-40), 0, 96).top, above.top + 40);

    for (int const far : {5000, -5000})
    {
        SubtitleDocument const text = PlainText({"Far"});
        InkBox const still = DrawnBox(DejaVu(), text, FRAME);
        InkBox const vertical = DrawnBox(Moved(far), text, FRAME);
        InkBox const horizontal = DrawnBox(Moved(0, far), text, FRAME);
        EXPECT_EQ(far > 0 ? vertical.top : 288 - vertical.bottom, 0);
        EXPECT_EQ(far > 0 ? 384 - horizontal.right : horizontal.left, 0);
        EXPECT_TRUE(vertical.Height() == still.Height() && horizontal.Width() == still.Width());
        InkBox const bitmap = DrawnBox(Moved(far), Bitmap(384, 288, {{100, 250, 200, 270}}), FRAME);
        EXPECT_EQ(bitmap.top, far > 0 ? 0 : 268);
    }
}

TEST(Placement, BitmapsFollowTheShapeOfThePicture)
{
    // A canvas of the picture's shape is stretched, samples of any shape.
    InkBox const scaled = DrawnBox(DejaVu(), Bitmap(1920, 1080, {{480, 900, 1440, 990}}), {640, 360, 1, 1});
    EXPECT_EQ(scaled.left, 160);
    EXPECT_EQ(scaled.right, 480);
    EXPECT_EQ(scaled.top, 300);
    EXPECT_EQ(scaled.bottom, 330);
    InkBox const anamorphic = DrawnBox(DejaVu(), Bitmap(1920, 1080, {{480, 900, 1440, 990}}), {1440, 1080, 4, 3});
    EXPECT_EQ(anamorphic.left, 360);
    EXPECT_EQ(anamorphic.Width(), 720);
    // Black bars were cut off the film: what stood on them comes into the picture, at its size.
    InkBox const cropped = DrawnBox(DejaVu(), Bitmap(1920, 1080, {{480, 1000, 1440, 1060}}), {1920, 800, 1, 1});
    EXPECT_EQ(cropped.bottom, 800);
    EXPECT_EQ(cropped.Height(), 60);
    EXPECT_EQ(cropped.left, 480);
    // A DVD's canvas is the coded picture.
    InkBox const dvd = DrawnBox(DejaVu(), Bitmap(720, 576, {{100, 500, 620, 540}}, "dvd_subtitle"), {1024, 576, 1, 1});
    EXPECT_NEAR(dvd.left, 142, 1);
    EXPECT_EQ(dvd.top, 500);
}

TEST(Placement, BitmapsComeAndGoWithTheirCues)
{
    BitmapDocument document = Bitmap(384, 288, {{10, 10, 50, 30}});
    BitmapDocument const other = Bitmap(384, 288, {{10, 200, 50, 230}});
    document.cues.push_back(other.cues[0]);
    document.cues[1].start = seconds(2);
    document.cues[1].end = seconds(3);
    DrawerPtr const drawer = MakeDrawer(DejaVu(), document, FRAME);
    TestPicture picture(384, 288, PlanarYuv(8, 1, 1));
    for (auto const& [time, top] : {std::pair{2500, 200}, {1500, 10}, {2000, 200}, {1000, 10}})
    {
        picture.Restore();
        EXPECT_TRUE(drawer->Draw(picture.View(), milliseconds(time)));
        EXPECT_EQ(picture.Changed().top, top);
    }
    EXPECT_FALSE(drawer->IsVisibleAt(seconds(3)));
    // Pixels that are missing are not read.
    document.cues[0].rects[0].height = 4000;
    document.cues[0].rects[0].width = -3;
    EXPECT_TRUE(DrawnBox(DejaVu(), document, FRAME).IsEmpty());
}

} // namespace
} // namespace Korvex::Proc::Tests
