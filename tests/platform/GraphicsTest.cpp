#include <gtest/gtest.h>

#include "PaintTestSupport.h"

namespace Tarvo {
namespace {

using namespace Testing;

struct TOutlineCase {
  TIGXRect Rect;
  Single Width;
  TIGXPenAlignment Alignment;
  int First, Last; // painted square, inclusive
  int Thickness;
};

class PenOutlineTest : public testing::TestWithParam<TOutlineCase> {};

// Every pixel of the canvas is black exactly where the outline should be.
TEST_P(PenOutlineTest, LandsOnTheExpectedPixels) {
  const TOutlineCase c = GetParam();
  const QImage image = Paint(14, 14, [&](IGXGraphics& AGraphics) {
    const auto pen = New<TIGXPen>(claBlack, c.Width);
    pen->SetAlignment(c.Alignment);
    AGraphics.DrawRectangle(pen, c.Rect);
  });
  const auto inside = [](int AValue, int AFirst, int ALast) { return AValue >= AFirst && AValue <= ALast; };
  for (int y = 0; y < 14; ++y)
    for (int x = 0; x < 14; ++x) {
      const bool outer = inside(x, c.First, c.Last) && inside(y, c.First, c.Last);
      const bool hole = inside(x, c.First + c.Thickness, c.Last - c.Thickness) &&
                        inside(y, c.First + c.Thickness, c.Last - c.Thickness);
      EXPECT_EQ(Pixel(image, x, y) == claBlack, outer && !hole) << "pixel " << x << "," << y;
    }
}

INSTANTIATE_TEST_SUITE_P(Outlines, PenOutlineTest,
                         testing::Values(
                             // Width 1, centred: one pixel more than the rectangle's width.
                             TOutlineCase{TIGXRect(2, 2, 5, 5), 1, paCenter, 2, 7, 1},
                             TOutlineCase{TIGXRect(2, 2, 8, 8), 1, paCenter, 2, 10, 1},
                             TOutlineCase{TIGXRect(2, 2, 8, 8), 2, paCenter, 1, 10, 2},
                             TOutlineCase{TIGXRect(2, 2, 8, 8), 3, paCenter, 1, 11, 3},
                             // Inset: the outline stays within the rectangle's own pixels.
                             TOutlineCase{TIGXRect(2, 2, 5, 5), 1, paInset, 2, 6, 1},
                             TOutlineCase{TIGXRect(2, 2, 8, 8), 2, paInset, 2, 9, 2},
                             TOutlineCase{TIGXRect(2, 2, 8, 8), 3, paInset, 2, 9, 3}));

TEST(GraphicsTest, FillCoversWidthByHeightPixels) {
  const QImage image = Paint(10, 10, [](IGXGraphics& AGraphics) {
    AGraphics.FillRectangle(New<TIGXSolidBrush>(claBlack), TIGXRect(2, 3, 4, 2));
  });
  EXPECT_EQ(Row(image, 2, 0, 10), "..........");
  EXPECT_EQ(Row(image, 3, 0, 10), "..####....");
  EXPECT_EQ(Row(image, 4, 0, 10), "..####....");
  EXPECT_EQ(Row(image, 5, 0, 10), "..........");
}

struct TDashCase {
  TIGXDashStyle Style;
  const char* Pixels;
};

class DashStyleTest : public testing::TestWithParam<TDashCase> {};

// Dash and gap lengths in pen widths, starting at the line's start.
TEST_P(DashStyleTest, RepeatsItsPattern) {
  const QImage image = Paint(20, 3, [](IGXGraphics& AGraphics) {
    const auto pen = New<TIGXPen>(claBlack, 1.0f);
    pen->SetDashStyle(GetParam().Style);
    AGraphics.DrawLine(pen, 0, 1, 20, 1);
  });
  EXPECT_EQ(Row(image, 1, 0, 16), GetParam().Pixels);
}

INSTANTIATE_TEST_SUITE_P(Styles, DashStyleTest,
                         testing::Values(TDashCase{dsSolid, "################"}, TDashCase{dsDash, "###.###.###.###."},
                                         TDashCase{dsDot, "#.#.#.#.#.#.#.#."}, TDashCase{dsDashDot, "###.#.###.#.###."},
                                         TDashCase{dsDashDotDot, "###.#.#.###.#.#."}));

TEST(GraphicsTest, CustomDashPatternAndItsChecks) {
  const auto pen = New<TIGXPen>(claBlack, 2.0f);
  pen->SetDashPattern({2, 1, 1});
  EXPECT_EQ(pen->GetDashStyle(), dsCustom);
  const QImage image = Paint(30, 4, [&](IGXGraphics& AGraphics) { AGraphics.DrawLine(pen, 0, 2, 30, 2); });
  // An odd pattern alternates: dash 4, gap 2, dash 2, gap 4, dash 2, gap 2 (in pixels at width 2).
  EXPECT_EQ(Row(image, 1, 0, 18), "####..##....##..##");

  EXPECT_THROW(pen->SetDashPattern({}), EArgumentException);
  EXPECT_THROW(pen->SetDashPattern({2, 0}), EArgumentException);
  EXPECT_THROW(pen->SetDashStyle(TIGXDashStyle(6)), EArgumentOutOfRangeException);
  EXPECT_THROW(pen->SetLineJoin(TIGXLineJoin(-1)), EArgumentOutOfRangeException);
  EXPECT_EQ(pen->GetDashPattern(), (std::vector<Single>{2, 1, 1}));
}

struct TJoinCase {
  TIGXLineJoin Join;
  bool OuterCornerPainted;
};

class LineJoinTest : public testing::TestWithParam<TJoinCase> {};

// A right angle of width 6 turning at (10, 10): only the miters reach the outer corner (13, 7).
TEST_P(LineJoinTest, ShapesTheOuterCorner) {
  const QImage image = Paint(20, 20, [](IGXGraphics& AGraphics) {
    const auto pen = New<TIGXPen>(claBlack, 6.0f);
    pen->SetLineJoin(GetParam().Join);
    AGraphics.DrawLines(pen, {{0, 10}, {10, 10}, {10, 20}});
  });
  EXPECT_EQ(Pixel(image, 12, 7) == claBlack, GetParam().OuterCornerPainted);
  EXPECT_EQ(Pixel(image, 9, 9), claBlack); // the joint itself, whatever the join
}

INSTANTIATE_TEST_SUITE_P(Joins, LineJoinTest,
                         testing::Values(TJoinCase{ljMiter, true}, TJoinCase{ljBevel, false}, TJoinCase{ljRound, false},
                                         TJoinCase{ljMiterClipped, true}));

TEST(GraphicsTest, SmoothingModeSwitchesAntialiasing) {
  const auto diagonal = [](TIGXSmoothingMode AMode) {
    return Paint(20, 20, [AMode](IGXGraphics& AGraphics) {
      AGraphics.SetSmoothingMode(AMode);
      AGraphics.DrawLine(New<TIGXPen>(claBlack, 1.0f), 0, 0, 20, 7);
    });
  };
  const auto hasGrey = [](const QImage& AImage) {
    for (int y = 0; y < AImage.height(); ++y)
      for (int x = 0; x < AImage.width(); ++x)
        if (Pixel(AImage, x, y) != claBlack && Pixel(AImage, x, y) != claWhite) return true;
    return false;
  };
  EXPECT_FALSE(hasGrey(diagonal(smDefault)));
  EXPECT_FALSE(hasGrey(diagonal(smNone)));
  EXPECT_TRUE(hasGrey(diagonal(smHighQuality)));
  EXPECT_TRUE(hasGrey(diagonal(smAntiAlias)));

  QImage image = Canvas(4, 4);
  const auto graphics = New<TIGXGraphics>(image);
  EXPECT_THROW(graphics->SetSmoothingMode(TIGXSmoothingMode(5)), EArgumentOutOfRangeException);
  EXPECT_THROW(graphics->DrawLines(New<TIGXPen>(claBlack), {{1, 1}}), EArgumentException) << "a line needs two points";
}

TEST(GraphicsTest, ClearReplacesEveryPixelWhateverTheTransform) {
  const QImage image = Paint(6, 6, [](IGXGraphics& AGraphics) {
    AGraphics.TranslateTransform(3, 3);
    AGraphics.Clear(0x80FF0000u);
  });
  // Replaced, not blended over the white: the alpha is the cleared colour's own.
  EXPECT_TRUE(Near(Pixel(image, 0, 0), 0x80FF0000u, 1)) << Hex(Pixel(image, 0, 0));
  EXPECT_TRUE(Near(Pixel(image, 5, 5), 0x80FF0000u, 1));
}

TEST(GraphicsTest, TranslateTransformMovesLaterDrawing) {
  const QImage image = Paint(10, 4, [](IGXGraphics& AGraphics) {
    AGraphics.TranslateTransform(3, 0);
    AGraphics.TranslateTransform(2, 1);
    AGraphics.FillRectangle(New<TIGXSolidBrush>(claBlack), TIGXRect(0, 0, 2, 1));
    AGraphics.ResetTransform();
    AGraphics.FillRectangle(New<TIGXSolidBrush>(claBlack), TIGXRect(0, 3, 1, 1));
  });
  EXPECT_EQ(Row(image, 1, 0, 10), ".....##...");
  EXPECT_EQ(Row(image, 3, 0, 10), "#.........");
}

TEST(GraphicsTest, DrawImageUnscaledAndScaled) {
  const auto bitmap = New<TIGXBitmap>(2, 2);
  bitmap->SetPixel(0, 0, Red);
  bitmap->SetPixel(1, 0, Green);
  bitmap->SetPixel(0, 1, Blue);
  bitmap->SetPixel(1, 1, Yellow);

  const QImage unscaled = Paint(6, 6, [&](IGXGraphics& AGraphics) { AGraphics.DrawImage(bitmap, 3, 1); });
  EXPECT_EQ(Pixel(unscaled, 3, 1), Red);
  EXPECT_EQ(Pixel(unscaled, 4, 1), Green);
  EXPECT_EQ(Pixel(unscaled, 3, 2), Blue);
  EXPECT_EQ(Pixel(unscaled, 4, 2), Yellow);
  EXPECT_EQ(Pixel(unscaled, 5, 1), claWhite);
  EXPECT_EQ(Pixel(unscaled, 2, 1), claWhite);

  const QImage scaled = Paint(8, 8, [&](IGXGraphics& AGraphics) {
    AGraphics.SetInterpolationMode(imNearestNeighbor);
    AGraphics.DrawImage(bitmap, TIGXRect(0, 0, 8, 4));
  });
  EXPECT_EQ(Pixel(scaled, 0, 0), Red);
  EXPECT_EQ(Pixel(scaled, 3, 1), Red);
  EXPECT_EQ(Pixel(scaled, 4, 0), Green);
  EXPECT_EQ(Pixel(scaled, 7, 3), Yellow);
  EXPECT_EQ(Pixel(scaled, 0, 4), claWhite);
}

TEST(GraphicsTest, OverAPainterRestoresItsState) {
  QImage image = Canvas(8, 8);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing, true);
  painter.translate(1, 1);
  {
    const auto graphics = New<TIGXGraphics>(painter);
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing)); // the wrapper's own default
    graphics->TranslateTransform(2, 2);
    graphics->FillRectangle(New<TIGXSolidBrush>(claBlack), TIGXRect(0, 0, 1, 1));
  }
  EXPECT_TRUE(painter.testRenderHint(QPainter::Antialiasing));
  EXPECT_EQ(painter.transform(), QTransform::fromTranslate(1, 1));
  painter.end();
  // Drawn through the host's transform as well as its own.
  EXPECT_EQ(Pixel(image, 3, 3), claBlack);

  QPainter idle;
  EXPECT_THROW(New<TIGXGraphics>(idle), EArgumentException);
  QImage null;
  EXPECT_THROW(New<TIGXGraphics>(null), EArgumentException);
}

} // namespace
} // namespace Tarvo
