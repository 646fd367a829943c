#pragma once
// Canvases, pictures and pixel checks shared by the drawing tests.

#include <QImage>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <utility>

#include "platform/GXGraphics.h"
#include "tests/support/NamedRows.h"

namespace Tarvo::Testing {

inline constexpr TAlphaColor Red = 0xFFFF0000u;
inline constexpr TAlphaColor Green = 0xFF00FF00u;
inline constexpr TAlphaColor Blue = 0xFF0000FFu;
inline constexpr TAlphaColor Yellow = 0xFFFFFF00u;

inline QImage Canvas(int AWidth, int AHeight, TAlphaColor AColor = claWhite) {
  QImage image(AWidth, AHeight, QImage::Format_ARGB32_Premultiplied);
  image.fill(ToQColor(AColor));
  return image;
}

// Paints onto a fresh canvas through a graphics that is gone (and its painter ended) on return.
inline QImage Paint(int AWidth, int AHeight, const std::function<void(IGXGraphics&)>& APaint,
                    TAlphaColor ABackground = claWhite) {
  QImage image = Canvas(AWidth, AHeight, ABackground);
  APaint(*New<TIGXGraphics>(image));
  return image;
}

// The whole canvas filled with ABrush.
inline QImage FillWith(const TRef<IGXBrush>& ABrush, int AWidth, int AHeight, TAlphaColor ABackground = claWhite) {
  return Paint(
      AWidth, AHeight,
      [&](IGXGraphics& AGraphics) { AGraphics.FillRectangle(ABrush, TIGXRect(0, 0, AWidth, AHeight)); }, ABackground);
}

// Two by two: red, green / blue, yellow.
inline TRef<TIGXBitmap> Quad() {
  const auto bitmap = New<TIGXBitmap>(2, 2);
  bitmap->SetPixel(0, 0, Red);
  bitmap->SetPixel(1, 0, Green);
  bitmap->SetPixel(0, 1, Blue);
  bitmap->SetPixel(1, 1, Yellow);
  return bitmap;
}

// Unpremultiplied, as colours are given.
inline TAlphaColor Pixel(const QImage& AImage, int AX, int AY) {
  const QRgb pixel = AImage.pixel(AX, AY);
  return AImage.format() == QImage::Format_ARGB32_Premultiplied ? qUnpremultiply(pixel) : pixel;
}

// True when every channel lies within ATolerance of the expected one.
inline bool Near(TAlphaColor AActual, TAlphaColor AExpected, int ATolerance = 3) {
  for (int shift = 0; shift < 32; shift += 8)
    if (std::abs(int(AActual >> shift & 0xFF) - int(AExpected >> shift & 0xFF)) > ATolerance) return false;
  return true;
}

inline std::string Hex(TAlphaColor AColor) {
  char text[16];
  std::snprintf(text, sizeof text, "%08X", AColor);
  return text;
}

// The pixel at (AX, AY) within ATolerance of AExpected, for EXPECT_TRUE; names both when not.
inline testing::AssertionResult PixelNear(const QImage& AImage, int AX, int AY, TAlphaColor AExpected, int ATolerance) {
  const TAlphaColor actual = Pixel(AImage, AX, AY);
  if (Near(actual, AExpected, ATolerance)) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "(" << AX << ", " << AY << ") is " << Hex(actual) << ", not " << Hex(AExpected);
}

// One row of pixels as text: '#' where the pixel is AInk, '.' elsewhere.
inline std::string Row(const QImage& AImage, int AY, int AFrom, int ACount, TAlphaColor AInk = claBlack) {
  std::string row;
  for (int x = AFrom; x < AFrom + ACount; ++x) row += Pixel(AImage, x, AY) == AInk ? '#' : '.';
  return row;
}

// One row of pixels as the letters of the test colours: r, g, b, y, k (black), w (white), or '?'.
inline std::string Colours(const QImage& AImage, int AY, int AFrom, int ACount) {
  static const std::pair<TAlphaColor, char> letters[] = {{Red, 'r'},    {Green, 'g'},    {Blue, 'b'},
                                                         {Yellow, 'y'}, {claBlack, 'k'}, {claWhite, 'w'}};
  std::string row(ACount, '?');
  for (int i = 0; i < ACount; ++i)
    for (auto [color, letter] : letters)
      if (Pixel(AImage, AFrom + i, AY) == color) row[i] = letter;
  return row;
}

// ACount rows of pixels from row AY as colour letters, separated by '/'.
inline std::string ColourRows(const QImage& AImage, int AY, int ACount, int AWidth) {
  std::string rows;
  for (int y = AY; y < AY + ACount; ++y) rows += (y > AY ? "/" : "") + Colours(AImage, y, 0, AWidth);
  return rows;
}

} // namespace Tarvo::Testing
