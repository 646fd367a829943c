#include <gtest/gtest.h>

#include "PaintTestSupport.h"

namespace Tarvo {
namespace {

using namespace Testing;

// A filled rectangle covers width by height pixels; translations add up until reset.
TEST(GraphicsTest, FillsWholePixelsWhereTheTransformPutsThem) {
  const QImage image = Paint(10, 6, [](IGXGraphics& AGraphics) {
    AGraphics.TranslateTransform(3, 0);
    AGraphics.TranslateTransform(-1, 1);
    AGraphics.FillRectangle(New<TIGXSolidBrush>(claBlack), TIGXRect(0, 1, 4, 2));
    AGraphics.ResetTransform();
    AGraphics.FillRectangle(New<TIGXSolidBrush>(claBlack), TIGXRect(0, 5, 1, 1));
  });
  const char* rows[] = {"..........", "..........", "..####....", "..####....", "..........", "#........."};
  for (int y = 0; y < 6; ++y) EXPECT_EQ(Row(image, y, 0, 10), rows[y]) << "row " << y;
}

// The painted square runs from First to Last inclusive, Thickness pixels deep; nothing else.
TEST(GraphicsTest, OutlinesLandOnTheExpectedPixels) {
  const struct {
    const char* Name;
    TIGXRect Rect;
    Single Width;
    TIGXPenAlignment Alignment;
    int First, Last, Thickness;
  } cases[] = {// Centred at width 1: one pixel more than the rectangle's width.
               {"centred, width 1", TIGXRect(2, 2, 8, 8), 1, paCenter, 2, 10, 1},
               {"centred, width 2", TIGXRect(2, 2, 8, 8), 2, paCenter, 1, 10, 2},
               {"centred, width 3", TIGXRect(2, 2, 8, 8), 3, paCenter, 1, 11, 3},
               // Inset: within the rectangle's own pixels.
               {"inset, width 1, small", TIGXRect(2, 2, 5, 5), 1, paInset, 2, 6, 1},
               {"inset, width 2", TIGXRect(2, 2, 8, 8), 2, paInset, 2, 9, 2},
               {"inset, width 3", TIGXRect(2, 2, 8, 8), 3, paInset, 2, 9, 3}};
  ForEachRow(cases, [](const auto& c) {
    const QImage image = Paint(14, 14, [&](IGXGraphics& AGraphics) {
      const auto pen = New<TIGXPen>(claBlack, c.Width);
      pen->SetAlignment(c.Alignment);
      AGraphics.DrawRectangle(pen, c.Rect);
    });
    const auto within = [](int AX, int AY, int AFirst, int ALast) {
      return AX >= AFirst && AX <= ALast && AY >= AFirst && AY <= ALast;
    };
    for (int y = 0; y < 14; ++y)
      for (int x = 0; x < 14; ++x)
        EXPECT_EQ(Pixel(image, x, y) == claBlack,
                  within(x, y, c.First, c.Last) && !within(x, y, c.First + c.Thickness, c.Last - c.Thickness))
            << "pixel " << x << "," << y;
  });
}

// Dash and gap lengths in pen widths, from the line's start.
TEST(GraphicsTest, DashStylesRepeatTheirPatterns) {
  const struct {
    const char* Name;
    TIGXDashStyle Style;
    const char* Pixels;
  } cases[] = {{"solid", dsSolid, "################"},
               {"dash", dsDash, "###.###.###.###."},
               {"dot", dsDot, "#.#.#.#.#.#.#.#."},
               {"dash dot", dsDashDot, "###.#.###.#.###."},
               {"dash dot dot", dsDashDotDot, "###.#.#.###.#.#."}};
  ForEachRow(cases, [](const auto& ACase) {
    const auto pen = New<TIGXPen>(claBlack, 1.0f);
    pen->SetDashStyle(ACase.Style);
    EXPECT_EQ(Row(Paint(20, 3, [&](IGXGraphics& AGraphics) { AGraphics.DrawLine(pen, 0, 1, 20, 1); }), 1, 0, 16),
              ACase.Pixels);
  });

  const auto pen = New<TIGXPen>(claBlack, 2.0f);
  pen->SetDashPattern({2, 1, 1});
  EXPECT_EQ(pen->GetDashStyle(), dsCustom);
  // An odd pattern alternates: dash 4, gap 2, dash 2, gap 4, dash 2, gap 2 (in pixels at width 2).
  EXPECT_EQ(Row(Paint(30, 4, [&](IGXGraphics& AGraphics) { AGraphics.DrawLine(pen, 0, 2, 30, 2); }), 1, 0, 18),
            "####..##....##..##");
  EXPECT_THROW(pen->SetDashPattern({}), EArgumentException);
  EXPECT_THROW(pen->SetDashPattern({2, 0}), EArgumentException);
  EXPECT_THROW(pen->SetDashStyle(TIGXDashStyle(6)), EArgumentOutOfRangeException);
  EXPECT_THROW(pen->SetLineJoin(TIGXLineJoin(-1)), EArgumentOutOfRangeException);
}

// A right angle of width 6 turning at (10, 10): only the miters reach the outer corner.
TEST(GraphicsTest, LineJoinsShapeTheOuterCorner) {
  const struct {
    const char* Name;
    TIGXLineJoin Join;
    bool CornerPainted;
  } cases[] = {{"miter", ljMiter, true},
               {"bevel", ljBevel, false},
               {"round", ljRound, false},
               {"clipped miter", ljMiterClipped, true}};
  ForEachRow(cases, [](const auto& ACase) {
    const QImage image = Paint(20, 20, [&ACase](IGXGraphics& AGraphics) {
      const auto pen = New<TIGXPen>(claBlack, 6.0f);
      pen->SetLineJoin(ACase.Join);
      AGraphics.DrawLines(pen, {{0, 10}, {10, 10}, {10, 20}});
    });
    EXPECT_EQ(Pixel(image, 12, 7) == claBlack, ACase.CornerPainted);
    EXPECT_EQ(Pixel(image, 9, 9), claBlack);
  });
}

// Only the high quality and anti-alias modes leave grey pixels along a slanted line.
TEST(GraphicsTest, OnlyHighQualityAndAntiAliasSmooth) {
  const struct {
    const char* Name;
    TIGXSmoothingMode Mode;
    bool Smooth;
  } cases[] = {{"default", smDefault, false}, {"high quality", smHighQuality, true}, {"anti-alias", smAntiAlias, true}};
  ForEachRow(cases, [](const auto& ACase) {
    const QImage image = Paint(20, 20, [&ACase](IGXGraphics& AGraphics) {
      AGraphics.SetSmoothingMode(ACase.Mode);
      AGraphics.DrawLine(New<TIGXPen>(claBlack, 1.0f), 0, 0, 20, 7);
    });
    bool grey = false;
    for (int y = 0; y < 20; ++y)
      for (int x = 0; x < 20; ++x) grey |= Pixel(image, x, y) != claBlack && Pixel(image, x, y) != claWhite;
    EXPECT_EQ(grey, ACase.Smooth);
  });
  QImage image = Canvas(4, 4);
  const auto graphics = New<TIGXGraphics>(image);
  EXPECT_THROW(graphics->SetSmoothingMode(TIGXSmoothingMode(5)), EArgumentOutOfRangeException);
  EXPECT_THROW(graphics->DrawLines(New<TIGXPen>(claBlack), {{1, 1}}), EArgumentException) << "a line needs two points";
}

// Replaced, not blended over the white: the alpha is the cleared colour's own.
TEST(GraphicsTest, ClearReplacesEveryPixelWhateverTheTransform) {
  const QImage image = Paint(6, 6, [](IGXGraphics& AGraphics) {
    AGraphics.TranslateTransform(3, 3);
    AGraphics.Clear(0x80FF0000u);
  });
  EXPECT_TRUE(PixelNear(image, 0, 0, 0x80FF0000u, 1) && PixelNear(image, 5, 5, 0x80FF0000u, 1));
}

// An image drawn at a point at its own size, or stretched into a rectangle pixel for pixel.
TEST(GraphicsTest, DrawImageUnscaledAndScaled) {
  const QImage unscaled = Paint(6, 4, [](IGXGraphics& AGraphics) { AGraphics.DrawImage(Quad(), 3, 1); });
  EXPECT_EQ(ColourRows(unscaled, 1, 2, 6), "wwwrgw/wwwbyw");
  const QImage scaled = Paint(8, 8, [](IGXGraphics& AGraphics) {
    AGraphics.SetInterpolationMode(imNearestNeighbor);
    AGraphics.DrawImage(Quad(), TIGXRect(0, 0, 8, 4));
  });
  EXPECT_EQ(ColourRows(scaled, 0, 5, 8), "rrrrgggg/rrrrgggg/bbbbyyyy/bbbbyyyy/wwwwwwww");
}

// Over a host's painter it draws through the host's transform and gives the painter back as it was.
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
  EXPECT_EQ(Pixel(image, 3, 3), claBlack);

  QPainter idle;
  EXPECT_THROW(New<TIGXGraphics>(idle), EArgumentException);
  QImage null;
  EXPECT_THROW(New<TIGXGraphics>(null), EArgumentException);
}

} // namespace
} // namespace Tarvo
