#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "PaintTestSupport.h"

namespace Tarvo {
namespace {

using namespace Testing;
using TPoints = std::vector<std::pair<int, int>>;

// The 8 by 8 cell at (AX, AY) as rows of '#' (black) and '.', separated by '/'.
std::string Cell(const QImage& AImage, int AX, int AY) {
  std::string cell;
  for (int y = AY; y < AY + 8; ++y) cell += (y > AY ? "/" : "") + Row(AImage, y, AX, 8);
  return cell;
}

// Each 8 by 8 cell shows the pattern, high bit leftmost and rows top down, repeated from the origin;
// styles out of range are refused.
TEST(HatchBrushTest, CellsShowThePatternRepeated) {
  const struct {
    const char* Name;
    TIGXHatchStyle Style;
    const char* Look;
  } looks[] = {
      {"horizontal", hsHorizontal, "########/......../......../......../......../......../......../........"},
      {"forward diagonal", hsForwardDiagonal,
       "#......./.#....../..#...../...#..../....#.../.....#../......#./.......#"},
      {"large checker board", hsLargeCheckerBoard,
       "####..../####..../####..../####..../....####/....####/....####/....####"},
      {"solid diamond", hsSolidDiamond, "...#..../..###.../.#####../#######./.#####../..###.../...#..../........"},
  };
  ForEachRow(looks, [](const auto& ALook) {
    const QImage image = FillWith(New<TIGXHatchBrush>(ALook.Style, claBlack, claWhite), 16, 16);
    for (int at : {0, 8}) EXPECT_EQ(Cell(image, at, at), ALook.Look) << at;
  });
  EXPECT_THROW(New<TIGXHatchBrush>(TIGXHatchStyle(HatchStyleCount), claBlack, claWhite), EArgumentOutOfRangeException);
  EXPECT_THROW(HatchPattern(TIGXHatchStyle(-1)), EArgumentOutOfRangeException);
}

// A rectangle off the grid and a moved origin both leave a vertical hatch at device x = 0 and 8.
TEST(HatchBrushTest, PatternStaysOnTheDeviceGrid) {
  const auto brush = New<TIGXHatchBrush>(hsVertical, claBlack, claWhite);
  const auto fill = [&](Single AShift, TIGXRect ARect) {
    return Row(Paint(16, 1,
                     [&](IGXGraphics& AGraphics) {
                       AGraphics.TranslateTransform(AShift, 0);
                       AGraphics.FillRectangle(brush, ARect);
                     }),
               0, 0, 16);
  };
  EXPECT_EQ(fill(0, TIGXRect(3, 0, 13, 1)), "........#.......");
  EXPECT_EQ(fill(3, TIGXRect(-3, 0, 16, 1)), "#.......#.......");
}

// Each wrap mode tiles or mirrors the image along its axes.
TEST(TextureBrushTest, TilesAndFlipsByWrapMode) {
  const struct {
    const char* Name;
    TIGXWrapMode Mode;
    std::vector<std::string> Rows;
  } cases[] = {{"tile", wmTile, {"rgrgrgrg", "bybybyby", "rgrgrgrg", "bybybyby"}},
               {"flip x", wmTileFlipX, {"rggrrggr", "byybbyyb", "rggrrggr", "byybbyyb"}},
               {"flip y", wmTileFlipY, {"rgrgrgrg", "bybybyby", "bybybyby", "rgrgrgrg"}},
               {"flip both", wmTileFlipXY, {"rggrrggr", "byybbyyb", "byybbyyb", "rggrrggr"}}};
  ForEachRow(cases, [](const auto& ACase) {
    const QImage image = FillWith(New<TIGXTextureBrush>(Quad(), ACase.Mode), 8, 8);
    for (int y = 0; y < 8; ++y) EXPECT_EQ(Colours(image, y, 0, 8), ACase.Rows[y % 4]) << "pixel row " << y;
  });
}

// The brush's translation comes before the graphics' own; clamped, the image is painted once, clipped to the fill.
TEST(TextureBrushTest, TranslationMovesTheImageAndClampPaintsItOnce) {
  const auto tiled = New<TIGXTextureBrush>(Quad());
  tiled->TranslateTransform(1, 0);
  EXPECT_EQ(Colours(FillWith(tiled, 4, 1), 0, 0, 4), "grgr");

  const auto brush = New<TIGXTextureBrush>(Quad(), wmClamp);
  brush->TranslateTransform(3, 1);
  const QImage image = Paint(8, 4, [&](IGXGraphics& AGraphics) {
    AGraphics.TranslateTransform(1, 0);
    AGraphics.FillRectangle(brush, TIGXRect(-1, 0, 8, 4));
  });
  EXPECT_EQ(ColourRows(image, 0, 4, 8), "wwwwwwww/wwwwrgww/wwwwbyww/wwwwwwww");
  const QImage clipped =
      Paint(8, 2, [&](IGXGraphics& AGraphics) { AGraphics.FillRectangle(brush, TIGXRect(0, 0, 4, 2)); });
  EXPECT_EQ(Colours(clipped, 1, 0, 8), "wwwrwwww");
  brush->ResetTransform();
  EXPECT_EQ(Colours(FillWith(brush, 4, 1), 0, 0, 4), "rgww");

  EXPECT_THROW(New<TIGXTextureBrush>(nullptr), EArgumentException);
  EXPECT_THROW(brush->SetWrapMode(TIGXWrapMode(5)), EArgumentOutOfRangeException);
}

constexpr TAlphaColor Purple = 0xFF800080u; // halfway from red to blue

// Over a rectangle four times as wide as high, the diagonals run corner to corner.
TEST(LinearGradientTest, ModesRunAcrossTheRectangle) {
  const TPoints corners = {{0, 0}, {63, 0}, {0, 15}, {63, 15}};
  const struct {
    const char* Name;
    TIGXLinearGradientMode Mode;
    std::vector<TAlphaColor> Colours;
  } cases[] = {{"horizontal", lgmHorizontal, {Red, Blue, Red, Blue}},
               {"vertical", lgmVertical, {Red, Red, Blue, Blue}},
               {"forward diagonal", lgmForwardDiagonal, {Red, Purple, Purple, Blue}},
               {"backward diagonal", lgmBackwardDiagonal, {Purple, Red, Blue, Purple}}};
  ForEachRow(cases, [&](const auto& ACase) {
    const QImage image = FillWith(New<TIGXLinearGradientBrush>(TIGXRect(0, 0, 64, 16), Red, Blue, ACase.Mode), 64, 16);
    for (std::size_t i = 0; i < corners.size(); ++i) // the pixel names its corner
      EXPECT_TRUE(PixelNear(image, corners[i].first, corners[i].second, ACase.Colours[i], 10));
  });
}

// Between two points, tiled beyond them or mirrored; a clamp, equal points or an empty rectangle are refused.
TEST(LinearGradientTest, BetweenTwoPointsAndBeyondThem) {
  const auto brush = New<TIGXLinearGradientBrush>(TIGXPointF(10, 0), TIGXPointF(30, 0), Red, Blue);
  const QImage tiled = FillWith(brush, 60, 1);
  for (auto [x, colour] : std::vector<std::pair<int, TAlphaColor>>{{10, Red}, {20, Purple}, {29, Blue}, {30, Red}})
    EXPECT_TRUE(PixelNear(tiled, x, 0, colour, 8));
  brush->SetWrapMode(wmTileFlipX);
  const QImage flipped = FillWith(brush, 60, 1);
  EXPECT_TRUE(PixelNear(flipped, 30, 0, Blue, 8) && PixelNear(flipped, 49, 0, Red, 8));

  EXPECT_THROW(brush->SetWrapMode(wmClamp), EArgumentException);
  EXPECT_THROW(New<TIGXLinearGradientBrush>(TIGXPointF(1, 1), TIGXPointF(1, 1), Red, Blue), EArgumentException);
  EXPECT_THROW(New<TIGXLinearGradientBrush>(TIGXRect(0, 0, 0, 5), Red, Blue, lgmVertical), EArgumentException);
}

// A blend reaches the end colour at half way; interpolation colours replace the two colours.
TEST(LinearGradientTest, BlendAndInterpolationColours) {
  const auto brush = New<TIGXLinearGradientBrush>(TIGXRect(0, 0, 100, 1), Red, Blue, lgmHorizontal);
  brush->SetBlend({0, 1, 1}, {0, 0.5f, 1});
  const QImage image = FillWith(brush, 100, 1);
  EXPECT_TRUE(PixelNear(image, 0, 0, Red, 8) && PixelNear(image, 25, 0, Purple, 8));
  for (int x : {50, 99}) EXPECT_EQ(Pixel(image, x, 0), Blue) << x;

  brush->SetInterpolationColors({Yellow, Green, Yellow}, {0, 0.5f, 1});
  const QImage three = FillWith(brush, 100, 1);
  for (auto [x, colour] : std::vector<std::pair<int, TAlphaColor>>{{0, Yellow}, {50, Green}, {99, Yellow}})
    EXPECT_TRUE(PixelNear(three, x, 0, colour, 8));
}

// Exact reasons for refused blends and interpolation colours.
TEST(LinearGradientTest, InvalidBlendsAreRefusedWithTheReason) {
  const auto brush = New<TIGXLinearGradientBrush>(TIGXRect(0, 0, 10, 10), Red, Blue, lgmHorizontal);
  const auto expectRefused = [](const char* AReason, auto AFunction) {
    try {
      AFunction();
      ADD_FAILURE() << "accepted: " << AReason;
    } catch (const EArgumentException& e) {
      EXPECT_NE(std::string(e.what()).find(AReason), std::string::npos) << e.what();
    }
  };
  const struct {
    const char* Name;
    std::vector<Single> Positions;
    const char* Reason;
  } cases[] = {{"late start", {0.1f, 0.5f, 1}, "first position must be 0"},
               {"early end", {0, 0.5f, 0.9f}, "last position must be 1"},
               {"beyond the end", {0, 1.5f, 1}, "positions must ascend"},
               {"descending, one too many", {0, 0.7f, 0.3f, 1}, "as many positions"},
               {"one too few", {0, 1}, "as many positions"},
               {"a single position", {0}, "at least two positions"}};
  ForEachRow(cases, [&](const auto& ACase) {
    expectRefused(ACase.Reason, [&] { brush->SetBlend({0, 0.5f, 1}, ACase.Positions); });
    expectRefused(ACase.Reason, [&] { brush->SetInterpolationColors({Red, Green, Blue}, ACase.Positions); });
  });
  expectRefused("factors must lie between 0 and 1", [&] { brush->SetBlend({0, 1.5f, 1}, {0, 0.5f, 1}); });
}

const std::vector<TIGXPointF> Square = {{0, 0}, {20, 0}, {20, 20}, {0, 20}};

// From the centre colour to the surround at the edge, nothing beyond the path when clamped; tiled, it repeats.
TEST(PathGradientTest, ShadesFromTheCentreToTheEdge) {
  const auto brush = New<TIGXPathGradientBrush>(Square, wmClamp);
  brush->SetCenterColor(claWhite);
  brush->SetSurroundColors({claBlack});
  const QImage image = FillWith(brush, 24, 24, Red);
  EXPECT_TRUE(PixelNear(image, 10, 10, claWhite, 16));
  EXPECT_TRUE(PixelNear(image, 5, 10, 0xFF808080u, 16));
  for (auto [x, y] : TPoints{{0, 0}, {10, 0}, {19, 19}, {0, 10}}) EXPECT_TRUE(PixelNear(image, x, y, claBlack, 16));
  for (auto [x, y] : TPoints{{20, 10}, {10, 20}, {23, 23}}) EXPECT_EQ(Pixel(image, x, y), Red) << x << "," << y;

  brush->SetCenterPointF(TIGXPointF(5, 5));
  const QImage moved = FillWith(brush, 20, 20);
  EXPECT_TRUE(PixelNear(moved, 5, 5, claWhite, 24) && PixelNear(moved, 12, 12, 0xFF808080u, 24));
  brush->SetWrapMode(wmTile);
  const QImage tiled = FillWith(brush, 24, 24, Red);
  for (auto [x, y] : TPoints{{0, 2}, {2, 3}, {3, 0}}) {
    EXPECT_EQ(Pixel(tiled, x + 20, y), Pixel(tiled, x, y));
    EXPECT_EQ(Pixel(tiled, x, y + 20), Pixel(tiled, x, y));
  }
}

// Surround colours belong to their points, the last standing for the rest; the centre starts black at the mean.
TEST(PathGradientTest, SurroundColoursBelongToTheirPoints) {
  const auto brush = New<TIGXPathGradientBrush>(Square);
  brush->SetSurroundColors({Red, Green});
  EXPECT_EQ(brush->GetCenterPointF(), TIGXPointF(10, 10));
  const QImage image = FillWith(brush, 20, 20);
  EXPECT_TRUE(PixelNear(image, 0, 0, Red, 24) && PixelNear(image, 19, 0, Green, 24));
  EXPECT_TRUE(PixelNear(image, 19, 19, Green, 24) && PixelNear(image, 10, 10, claBlack, 16));

  EXPECT_THROW(brush->SetSurroundColors({}), EArgumentException);
  EXPECT_THROW(brush->SetSurroundColors({Red, Red, Red, Red, Red}), EArgumentException);
  EXPECT_THROW(New<TIGXPathGradientBrush>(std::vector<TIGXPointF>{{0, 0}, {1, 1}}), EArgumentException);
}

} // namespace
} // namespace Tarvo
