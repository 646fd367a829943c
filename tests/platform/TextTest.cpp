#include <gtest/gtest.h>

#include <QRect>

#include "PaintTestSupport.h"

namespace Tarvo {
namespace {

using namespace Testing;

const String LongText = "The quick brown fox jumps over the lazy dog";

TRef<IGXFont> Font(TIGXFontStyle AStyle = gfsRegular, Single ASize = 10, TIGXFontUnit AUnit = fuPoint) {
  return New<TIGXFont>("DejaVu Sans", ASize, AStyle, AUnit);
}

TRef<IGXStringFormat> Format(Cardinal AFlags, TIGXStringTrimming ATrimming = stNone) {
  const auto format = New<TIGXStringFormat>(AFlags);
  format->SetTrimming(ATrimming);
  return format;
}

// Measures on a scratch image, as a host measures before it paints.
TIGXRect Measure(const String& AText, const TRef<IGXFont>& AFont, Single AWidth = 0,
                 const TRef<IGXStringFormat>& AFormat = nullptr) {
  QImage scratch = Canvas(1, 1);
  return New<TIGXGraphics>(scratch)->MeasureString(AText, AFont, TIGXSize{AWidth, 0}, AFormat);
}

// The box of every pixel that is no longer white; empty when nothing was painted.
QRect Ink(const QImage& AImage) {
  QRect ink;
  for (int y = 0; y < AImage.height(); ++y)
    for (int x = 0; x < AImage.width(); ++x)
      if (Pixel(AImage, x, y) != claWhite) ink |= QRect(x, y, 1, 1);
  return ink;
}

// The box grows with text, boldness and size; text wraps to the width unless told not to or trimmed.
TEST(MeasureStringTest, GrowsWithTheTextAndWrapsUnlessToldNotTo) {
  const auto font = Font();
  EXPECT_GT(Measure("WWWW", font).Width, Measure("WW", font).Width);
  EXPECT_GT(Measure("Wide", Font(gfsBold)).Width, Measure("Wide", font).Width);
  // 10 points are about 13 pixels at 96 dots per inch.
  EXPECT_GT(Measure("x", font).Height, Measure("x", Font(gfsRegular, 10, fuPixel)).Height);
  const Single line = Measure("x", font).Height;
  const TIGXRect wrapped = Measure(LongText, font, 80);
  EXPECT_GT(wrapped.Height, 2 * line);
  EXPECT_LE(wrapped.Width, 80);
  const TIGXRect single = Measure(LongText, font, 80, Format(sfNoWrap));
  EXPECT_TRUE(single.Height == line && single.Width > 80);
  EXPECT_LE(Measure(LongText, font, 80, Format(sfNoWrap, stEllipsisCharacter)).Width, 80);
}

// Trimmed, the text stays inside its rectangle with or without the clip; untrimmed and unclipped it runs past.
TEST(DrawStringTest, EllipsisKeepsTheTextInsideItsRectangle) {
  const auto draw = [&](const TRef<IGXStringFormat>& AFormat) {
    return Ink(Paint(200, 30, [&](IGXGraphics& AGraphics) {
      AGraphics.DrawString(LongText, Font(), TIGXRect(10, 5, 80, 20), AFormat, New<TIGXSolidBrush>(claBlack));
    }));
  };
  const QRect inside(10, 5, 80, 20);
  const QRect trimmed = draw(Format(sfNoWrap, stEllipsisCharacter));
  ASSERT_FALSE(trimmed.isEmpty());
  EXPECT_TRUE(inside.contains(trimmed)) << trimmed.left() << ".." << trimmed.right();
  EXPECT_GT(trimmed.right(), 75); // the ellipsis fills the line out to the end
  EXPECT_LE(draw(Format(sfNoWrap | sfNoClip, stEllipsisCharacter)).right(), inside.right());
  EXPECT_GT(draw(Format(sfNoWrap | sfNoClip)).right(), 150);
}

// The centre of the ink, within a few pixels, for each alignment in a 120 by 60 rectangle.
TEST(DrawStringTest, AlignmentsPlaceTheTextInItsRectangle) {
  const struct {
    const char* Name;
    TIGXStringAlignment Alignment, LineAlignment;
    int CentreX, CentreY;
  } cases[] = {{"top left", saNear, saNear, 18, 6},
               {"centre", saCenter, saCenter, 60, 30},
               {"bottom right", saFar, saFar, 102, 54},
               {"top right", saFar, saNear, 102, 6}};
  ForEachRow(cases, [](const auto& c) {
    const auto format = New<TIGXStringFormat>();
    format->SetAlignment(c.Alignment);
    format->SetLineAlignment(c.LineAlignment);
    const QRect ink = Ink(Paint(120, 60, [&](IGXGraphics& AGraphics) {
      AGraphics.DrawString("mmmm", Font(gfsRegular, 12, fuPixel), TIGXRect(0, 0, 120, 60), format,
                           New<TIGXSolidBrush>(claBlack));
    }));
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_NEAR(ink.center().x(), c.CentreX, 12);
    EXPECT_NEAR(ink.center().y(), c.CentreY, 8);
  });
}

// The darkest pixel of the first and of the last column of ink: red at the left, blue at the right.
TEST(DrawStringTest, AnyBrushFillsTheGlyphs) {
  const TIGXRect box(0, 0, 160, 30);
  const QImage image = Paint(160, 30, [&](IGXGraphics& AGraphics) {
    AGraphics.DrawString("IIIIIIIIIIIIIIIIIIII", Font(gfsBold, 24, fuPixel), box, nullptr,
                         New<TIGXLinearGradientBrush>(box, Red, Blue, lgmHorizontal));
  });
  const QRect ink = Ink(image);
  ASSERT_FALSE(ink.isEmpty());
  const auto strongest = [&](int AX) {
    TAlphaColor best = claWhite;
    for (int y = ink.top(); y <= ink.bottom(); ++y)
      if (qGray(Pixel(image, AX, y)) < qGray(best)) best = Pixel(image, AX, y);
    return best;
  };
  const TAlphaColor left = strongest(ink.left() + 1), right = strongest(ink.right() - 1);
  EXPECT_GT(qRed(left), qBlue(left) + 100) << Hex(left);
  EXPECT_GT(qBlue(right), qRed(right) + 100) << Hex(right);
  EXPECT_EQ(Pixel(image, ink.left() - 1, ink.center().y()), claWhite); // the background stays
}

// Every style and the size reach the Qt font; a size of zero is refused.
TEST(FontTest, StylesReachTheQtFontAndTheSizeMustBePositive) {
  const QFont font = Font(gfsBold | gfsItalic | gfsUnderline, 9, fuPoint)->ToQFont();
  EXPECT_TRUE(font.bold() && font.italic() && font.underline() && !font.strikeOut());
  EXPECT_EQ(font.pointSizeF(), 9.0);
  EXPECT_THROW(New<TIGXFont>("DejaVu Sans", 0.0f), EArgumentOutOfRangeException);
}

} // namespace
} // namespace Tarvo
