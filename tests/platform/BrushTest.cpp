#include <gtest/gtest.h>

#include <map>
#include <utility>
#include <vector>

#include "PaintTestSupport.h"

namespace Tarvo {
namespace {

using namespace Testing;
using TPoints = std::vector<std::pair<int, int>>;

QImage Hatch(TIGXHatchStyle AStyle, const TIGXRect& AArea = TIGXRect(0, 0, 16, 16)) {
  return Paint(16, 16, [&](IGXGraphics& AGraphics) {
    AGraphics.FillRectangle(New<TIGXHatchBrush>(AStyle, claBlack, claWhite), AArea);
  });
}

struct THatchCase {
  TIGXHatchStyle Style;
  TPoints Fore; // within the 8 by 8 cell
  TPoints Back;
};

class HatchStyleTest : public testing::TestWithParam<THatchCase> {};

// The cell's pixels show the foreground where the pattern has it, and repeat every 8 pixels
// from the origin.
TEST_P(HatchStyleTest, ShowsForegroundWhereThePatternPutsIt) {
  const THatchCase& c = GetParam();
  const QImage image = Hatch(c.Style);
  for (int dy : {0, 8})
    for (int dx : {0, 8}) {
      for (auto [x, y] : c.Fore) EXPECT_EQ(Pixel(image, x + dx, y + dy), claBlack) << "fore " << x + dx << "," << y + dy;
      for (auto [x, y] : c.Back) EXPECT_EQ(Pixel(image, x + dx, y + dy), claWhite) << "back " << x + dx << "," << y + dy;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Styles, HatchStyleTest,
    testing::Values(THatchCase{hsHorizontal, {{0, 0}, {4, 0}, {7, 0}}, {{0, 1}, {3, 4}, {7, 7}}},
                    THatchCase{hsVertical, {{0, 0}, {0, 4}, {0, 7}}, {{1, 0}, {4, 3}, {7, 7}}},
                    THatchCase{hsForwardDiagonal, {{0, 0}, {3, 3}, {7, 7}}, {{7, 0}, {0, 7}, {4, 3}}},
                    THatchCase{hsBackwardDiagonal, {{7, 0}, {4, 3}, {0, 7}}, {{0, 0}, {7, 7}, {3, 3}}},
                    THatchCase{hsCross, {{0, 0}, {5, 0}, {0, 5}}, {{1, 1}, {5, 5}, {7, 7}}},
                    THatchCase{hs50Percent, {{0, 0}, {1, 1}, {2, 0}, {7, 7}}, {{1, 0}, {0, 1}, {7, 6}}},
                    THatchCase{hsLargeCheckerBoard, {{0, 0}, {3, 3}, {4, 4}, {7, 7}}, {{4, 0}, {0, 4}, {7, 3}}},
                    THatchCase{hsSmallGrid, {{0, 0}, {6, 0}, {4, 2}, {0, 6}}, {{1, 1}, {5, 5}, {3, 7}}},
                    // A filled diamond about the cell's middle; the corners stay background.
                    THatchCase{hsSolidDiamond, {{3, 3}, {3, 0}, {0, 3}, {6, 3}, {3, 6}, {2, 2}, {4, 4}},
                               {{0, 0}, {7, 0}, {0, 7}, {7, 7}, {6, 1}, {1, 5}}}));

// Every style shows both colours and nothing else; the percent styles grow darker in order.
TEST(HatchBrushTest, EveryStyleShowsBothColoursAndPercentStylesGrowDarker) {
  const std::map<int, int> exact = {{hs25Percent, 16}, {hs50Percent, 32}, {hs75Percent, 48}};
  int previous = 0;
  for (int style = 0; style < HatchStyleCount; ++style) {
    const QImage image = Hatch(TIGXHatchStyle(style), TIGXRect(0, 0, 8, 8));
    int fore = 0, back = 0;
    for (int y = 0; y < 8; ++y)
      for (int x = 0; x < 8; ++x) (Pixel(image, x, y) == claBlack ? fore : back)++;
    EXPECT_TRUE(fore > 0 && fore < 64 && fore + back == 64) << "style " << style << ": " << fore << " of " << fore + back;
    if (style >= hs05Percent && style <= hs90Percent) {
      EXPECT_GT(fore, previous) << "style " << style;
      if (exact.contains(style)) {
        EXPECT_EQ(fore, exact.at(style)) << "style " << style;
      }
      previous = fore;
    }
  }
  EXPECT_THROW(New<TIGXHatchBrush>(TIGXHatchStyle(HatchStyleCount), claBlack, claWhite), EArgumentOutOfRangeException);
  EXPECT_THROW(HatchPattern(TIGXHatchStyle(-1)), EArgumentOutOfRangeException);
}

TEST(HatchBrushTest, PatternStaysOnTheDeviceGrid) {
  // A rectangle that does not start on the grid, and a moved origin, both leave the columns
  // of a vertical hatch at device x = 0 and 8.
  const QImage offset = Hatch(hsVertical, TIGXRect(3, 0, 13, 16));
  EXPECT_EQ(Row(offset, 0, 0, 16), "........#.......");
  const QImage moved = Paint(16, 2, [](IGXGraphics& AGraphics) {
    AGraphics.TranslateTransform(3, 0);
    AGraphics.FillRectangle(New<TIGXHatchBrush>(hsVertical, claBlack, claWhite), TIGXRect(-3, 0, 16, 2));
  });
  EXPECT_EQ(Row(moved, 0, 0, 16), "#.......#.......");
}

TRef<TIGXBitmap> Quad() {
  const auto bitmap = New<TIGXBitmap>(2, 2);
  bitmap->SetPixel(0, 0, Red);
  bitmap->SetPixel(1, 0, Green);
  bitmap->SetPixel(0, 1, Blue);
  bitmap->SetPixel(1, 1, Yellow);
  return bitmap;
}

// The quad's pixel at a device position: a flipped axis runs 0 1 1 0 over four pixels.
TAlphaColor QuadAt(int AX, int AY, bool AFlipX, bool AFlipY) {
  const auto along = [](int AValue, bool AFlip) { return AFlip && AValue % 4 >= 2 ? 3 - AValue % 4 : AValue % 2; };
  static const TAlphaColor colors[2][2] = {{Red, Green}, {Blue, Yellow}};
  return colors[along(AY, AFlipY)][along(AX, AFlipX)];
}

struct TWrapCase {
  TIGXWrapMode Mode;
  bool FlipX, FlipY;
};

class TextureWrapTest : public testing::TestWithParam<TWrapCase> {};

TEST_P(TextureWrapTest, TilesAndFlips) {
  const TWrapCase c = GetParam();
  const QImage image = Paint(8, 8, [&](IGXGraphics& AGraphics) {
    AGraphics.FillRectangle(New<TIGXTextureBrush>(Quad(), c.Mode), TIGXRect(0, 0, 8, 8));
  });
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 8; ++x)
      EXPECT_EQ(Pixel(image, x, y), QuadAt(x, y, c.FlipX, c.FlipY)) << "pixel " << x << "," << y;
}

INSTANTIATE_TEST_SUITE_P(Modes, TextureWrapTest,
                         testing::Values(TWrapCase{wmTile, false, false}, TWrapCase{wmTileFlipX, true, false},
                                         TWrapCase{wmTileFlipY, false, true}, TWrapCase{wmTileFlipXY, true, true}));

TEST(TextureBrushTest, ClampPaintsTheImageOnceWhereItIsMoved) {
  const auto brush = New<TIGXTextureBrush>(Quad(), wmClamp);
  brush->TranslateTransform(3, 1);
  const QImage image = Paint(8, 8, [&](IGXGraphics& AGraphics) {
    AGraphics.TranslateTransform(1, 0);
    AGraphics.FillRectangle(brush, TIGXRect(-1, 0, 8, 8));
  });
  EXPECT_EQ(Pixel(image, 4, 1), Red);
  EXPECT_EQ(Pixel(image, 5, 2), Yellow);
  for (auto [x, y] : TPoints{{3, 1}, {6, 1}, {4, 0}, {4, 3}, {0, 0}, {7, 7}}) EXPECT_EQ(Pixel(image, x, y), claWhite);

  // The fill area still bounds it.
  const QImage clipped = Paint(8, 8, [&](IGXGraphics& AGraphics) { AGraphics.FillRectangle(brush, TIGXRect(0, 0, 4, 8)); });
  EXPECT_EQ(Pixel(clipped, 3, 1), Red);
  EXPECT_EQ(Pixel(clipped, 4, 1), claWhite);

  brush->ResetTransform();
  const QImage reset = Paint(4, 4, [&](IGXGraphics& AGraphics) { AGraphics.FillRectangle(brush, TIGXRect(0, 0, 4, 4)); });
  EXPECT_EQ(Pixel(reset, 0, 0), Red);
}

TEST(TextureBrushTest, TranslatedTileStartsAtTheNewOrigin) {
  const auto brush = New<TIGXTextureBrush>(Quad());
  brush->TranslateTransform(1, 0);
  const QImage image = Paint(4, 1, [&](IGXGraphics& AGraphics) { AGraphics.FillRectangle(brush, TIGXRect(0, 0, 4, 1)); });
  EXPECT_EQ(Pixel(image, 0, 0), Green);
  EXPECT_EQ(Pixel(image, 1, 0), Red);
  EXPECT_THROW(New<TIGXTextureBrush>(nullptr), EArgumentException);
  EXPECT_THROW(brush->SetWrapMode(TIGXWrapMode(5)), EArgumentOutOfRangeException);
}

constexpr TAlphaColor Purple = 0xFF800080u; // halfway from red to blue

QImage FillWith(const TRef<IGXBrush>& ABrush, int AWidth, int AHeight) {
  return Paint(AWidth, AHeight, [&](IGXGraphics& AGraphics) { AGraphics.FillRectangle(ABrush, TIGXRect(0, 0, AWidth, AHeight)); });
}

struct TGradientModeCase {
  TIGXLinearGradientMode Mode;
  TAlphaColor TopLeft, TopRight, BottomLeft, BottomRight;
};

class GradientModeTest : public testing::TestWithParam<TGradientModeCase> {};

// Over a rectangle four times as wide as high, so that the diagonals show that they run corner
// to corner.
TEST_P(GradientModeTest, RunsAcrossTheRectangle) {
  const TGradientModeCase c = GetParam();
  const QImage image = FillWith(New<TIGXLinearGradientBrush>(TIGXRect(0, 0, 64, 16), Red, Blue, c.Mode), 64, 16);
  const std::pair<TAlphaColor, TAlphaColor> corners[] = {{Pixel(image, 0, 0), c.TopLeft}, {Pixel(image, 63, 0), c.TopRight},
                                                          {Pixel(image, 0, 15), c.BottomLeft}, {Pixel(image, 63, 15), c.BottomRight}};
  for (auto [actual, expected] : corners) EXPECT_TRUE(Near(actual, expected, 10)) << Hex(actual) << " for " << Hex(expected);
}

INSTANTIATE_TEST_SUITE_P(Modes, GradientModeTest,
                         testing::Values(TGradientModeCase{lgmHorizontal, Red, Blue, Red, Blue},
                                         TGradientModeCase{lgmVertical, Red, Red, Blue, Blue},
                                         TGradientModeCase{lgmForwardDiagonal, Red, Purple, Purple, Blue},
                                         TGradientModeCase{lgmBackwardDiagonal, Purple, Red, Blue, Purple}));

TEST(LinearGradientTest, BetweenTwoPointsAndBeyondThem) {
  const auto brush = New<TIGXLinearGradientBrush>(TIGXPointF(10, 0), TIGXPointF(30, 0), Red, Blue);
  const QImage tiled = FillWith(brush, 60, 1);
  EXPECT_TRUE(Near(Pixel(tiled, 10, 0), Red, 8));
  EXPECT_TRUE(Near(Pixel(tiled, 20, 0), Purple, 8));
  EXPECT_TRUE(Near(Pixel(tiled, 29, 0), Blue, 8));
  EXPECT_TRUE(Near(Pixel(tiled, 30, 0), Red, 8)); // tiles: starts again

  brush->SetWrapMode(wmTileFlipX);
  const QImage flipped = FillWith(brush, 60, 1);
  EXPECT_TRUE(Near(Pixel(flipped, 30, 0), Blue, 8)); // mirrors: runs back
  EXPECT_TRUE(Near(Pixel(flipped, 49, 0), Red, 8));

  EXPECT_THROW(brush->SetWrapMode(wmClamp), EArgumentException);
  EXPECT_THROW(New<TIGXLinearGradientBrush>(TIGXPointF(1, 1), TIGXPointF(1, 1), Red, Blue), EArgumentException);
  EXPECT_THROW(New<TIGXLinearGradientBrush>(TIGXRect(0, 0, 0, 5), Red, Blue, lgmVertical), EArgumentException);
}

// A blend reaches the end colour at half way; interpolation colours replace the two colours.
TEST(LinearGradientTest, BlendAndInterpolationColours) {
  const auto brush = New<TIGXLinearGradientBrush>(TIGXRect(0, 0, 100, 1), Red, Blue, lgmHorizontal);
  brush->SetBlend({0, 1, 1}, {0, 0.5f, 1});
  const QImage image = FillWith(brush, 100, 1);
  EXPECT_TRUE(Near(Pixel(image, 0, 0), Red, 8));
  EXPECT_TRUE(Near(Pixel(image, 25, 0), Purple, 8)) << Hex(Pixel(image, 25, 0));
  for (int x : {50, 75, 99}) EXPECT_EQ(Pixel(image, x, 0), Blue) << x;
  EXPECT_THROW(brush->SetBlend({0, 1.5f, 1}, {0, 0.5f, 1}), EArgumentException);

  const auto colours = New<TIGXLinearGradientBrush>(TIGXRect(0, 0, 100, 1), Red, Blue, lgmHorizontal);
  colours->SetInterpolationColors({Yellow, Green, Yellow}, {0, 0.5f, 1});
  const QImage three = FillWith(colours, 100, 1);
  for (auto [x, colour] : std::vector<std::pair<int, TAlphaColor>>{{0, Yellow}, {50, Green}, {99, Yellow}})
    EXPECT_TRUE(Near(Pixel(three, x, 0), colour, 8)) << x;
}

TEST(LinearGradientTest, InvalidPositionsAreRefusedWithTheReason) {
  const struct {
    std::vector<Single> Positions;
    const char* Reason;
  } cases[] = {{{0.1f, 0.5f, 1}, "first position must be 0"}, {{0, 0.5f, 0.9f}, "last position must be 1"},
               {{0, 1.5f, 1}, "positions must ascend"},      {{0, 0.7f, 0.3f, 1}, "as many positions"},
               {{0, 1}, "as many positions"},                {{0}, "at least two positions"}};
  const auto brush = New<TIGXLinearGradientBrush>(TIGXRect(0, 0, 10, 10), Red, Blue, lgmHorizontal);
  for (const auto& c : cases) {
    const auto expectRefused = [&](auto AFunction) {
      try {
        AFunction();
        ADD_FAILURE() << "accepted positions for: " << c.Reason;
      } catch (const EArgumentException& e) {
        EXPECT_NE(std::string(e.what()).find(c.Reason), std::string::npos) << e.what();
      }
    };
    expectRefused([&] { brush->SetBlend(std::vector<Single>(3, 0.5f), c.Positions); });
    expectRefused([&] { brush->SetInterpolationColors(std::vector<TAlphaColor>(3, Green), c.Positions); });
  }
}

const std::vector<TIGXPointF> Square = {{0, 0}, {20, 0}, {20, 20}, {0, 20}};

// A moved centre point takes the centre colour with it.
TEST(PathGradientTest, ShadesFromTheCentreToTheEdge) {
  const auto brush = New<TIGXPathGradientBrush>(Square, wmClamp);
  brush->SetCenterColor(claWhite);
  brush->SetSurroundColors({claBlack});
  const QImage image = Paint(24, 24, [&](IGXGraphics& AGraphics) { AGraphics.FillRectangle(brush, TIGXRect(0, 0, 24, 24)); }, Red);
  EXPECT_TRUE(Near(Pixel(image, 10, 10), claWhite, 16)) << Hex(Pixel(image, 10, 10));
  EXPECT_TRUE(Near(Pixel(image, 5, 10), 0xFF808080u, 16)) << Hex(Pixel(image, 5, 10));
  for (auto [x, y] : TPoints{{0, 0}, {10, 0}, {19, 19}, {0, 10}})
    EXPECT_TRUE(Near(Pixel(image, x, y), claBlack, 16)) << x << "," << y << " " << Hex(Pixel(image, x, y));
  // Clamped: nothing outside the path.
  for (auto [x, y] : TPoints{{20, 10}, {10, 20}, {23, 23}}) EXPECT_EQ(Pixel(image, x, y), Red) << x << "," << y;

  brush->SetCenterPointF(TIGXPointF(5, 5));
  const QImage moved = FillWith(brush, 20, 20);
  EXPECT_TRUE(Near(Pixel(moved, 5, 5), claWhite, 24)) << Hex(Pixel(moved, 5, 5));
  EXPECT_TRUE(Near(Pixel(moved, 12, 12), 0xFF808080u, 24)) << Hex(Pixel(moved, 12, 12));
}

TEST(PathGradientTest, SurroundColoursBelongToTheirPoints) {
  const auto brush = New<TIGXPathGradientBrush>(Square);
  brush->SetSurroundColors({Red, Green}); // the last stands for the remaining points
  EXPECT_EQ(brush->GetCenterPointF(), TIGXPointF(10, 10));
  const QImage image = FillWith(brush, 20, 20);
  EXPECT_TRUE(Near(Pixel(image, 0, 0), Red, 24)) << Hex(Pixel(image, 0, 0));
  EXPECT_TRUE(Near(Pixel(image, 19, 0), Green, 24)) << Hex(Pixel(image, 19, 0));
  EXPECT_TRUE(Near(Pixel(image, 19, 19), Green, 24)) << Hex(Pixel(image, 19, 19));
  EXPECT_TRUE(Near(Pixel(image, 10, 10), claBlack, 16)) << Hex(Pixel(image, 10, 10));

  EXPECT_THROW(brush->SetSurroundColors({}), EArgumentException);
  EXPECT_THROW(brush->SetSurroundColors({Red, Red, Red, Red, Red}), EArgumentException);
  EXPECT_THROW(New<TIGXPathGradientBrush>(std::vector<TIGXPointF>{{0, 0}, {1, 1}}), EArgumentException);
}

TEST(PathGradientTest, TilesByWrapMode) {
  const auto brush = New<TIGXPathGradientBrush>(std::vector<TIGXPointF>{{0, 0}, {10, 0}, {10, 10}, {0, 10}}, wmTile);
  brush->SetCenterColor(claWhite);
  const QImage image = FillWith(brush, 20, 20);
  for (auto [x, y] : TPoints{{2, 7}, {5, 5}, {9, 0}}) {
    EXPECT_EQ(Pixel(image, x + 10, y), Pixel(image, x, y));
    EXPECT_EQ(Pixel(image, x + 10, y + 10), Pixel(image, x, y));
  }
}

} // namespace
} // namespace Tarvo
