#include <gtest/gtest.h>

#include <QBuffer>

#include <cstddef>
#include <span>
#include <string>

#include "PaintTestSupport.h"
#include "rtl/Module.h"

namespace Tarvo {
namespace {

using namespace Testing;

// A 2 by 2 PNG: red, green / blue, transparent.
const unsigned char TestPicture[] = {
    0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48, 0x44, 0x52, 0x00, 0x00, 0x00,
    0x02, 0x00, 0x00, 0x00, 0x02, 0x08, 0x06, 0x00, 0x00, 0x00, 0x72, 0xB6, 0x0D, 0x24, 0x00, 0x00, 0x00, 0x13, 0x49,
    0x44, 0x41, 0x54, 0x78, 0xDA, 0x63, 0xF8, 0xCF, 0xC0, 0xF0, 0x1F, 0x0C, 0x81, 0x34, 0x88, 0x60, 0x00, 0x00, 0x3F,
    0xD2, 0x05, 0xFB, 0x7F, 0xE6, 0x6A, 0x2B, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42, 0x60, 0x82};
const TResourceRegistration TestPictureResource("TESTPICTURE", TestPicture, sizeof TestPicture);
const char NotAPicture[] = "plain text";
const TResourceRegistration NotAPictureResource("NOTAPICTURE", NotAPicture, sizeof NotAPicture - 1);

// The test picture's pixels as letters, the transparent one '?'.
std::string Pixels(const TRef<TIGXBitmap>& ABitmap) {
  EXPECT_EQ(ABitmap->GetPixel(1, 1) >> 24, 0u);
  return ColourRows(ABitmap->GetQImage(), 0, 2, ABitmap->GetWidth());
}

// A new bitmap is transparent; kept premultiplied, a translucent pixel comes back within rounding.
TEST(BitmapTest, NewBitmapIsTransparentAndKeepsItsPixelsWithinItsBounds) {
  const auto bitmap = New<TIGXBitmap>(3, 2);
  EXPECT_EQ(bitmap->GetQImage().size(), QSize(3, 2));
  EXPECT_EQ(bitmap->GetPixel(2, 1), claNull);
  bitmap->SetPixel(2, 1, 0x80336699u);
  EXPECT_TRUE(Near(bitmap->GetPixel(2, 1), 0x80336699u, 1)) << Hex(bitmap->GetPixel(2, 1));
  const struct {
    const char* Name;
    int X, Y;
  } outside[] = {{"right of the last column", 3, 0}, {"below the last row", 0, 2}, {"left of the first column", -1, 0}};
  ForEachRow(outside, [&](const auto& APoint) {
    EXPECT_THROW(bitmap->GetPixel(APoint.X, APoint.Y), EArgumentOutOfRangeException);
    EXPECT_THROW(bitmap->SetPixel(APoint.X, APoint.Y, Red), EArgumentOutOfRangeException);
  });
  EXPECT_THROW(New<TIGXBitmap>(0, 5), EArgumentOutOfRangeException);
}

// PNG and BMP (which keeps no alpha) decode; text and no bytes are refused.
TEST(BitmapTest, DecodesPngAndBmp) {
  EXPECT_EQ(Pixels(New<TIGXBitmap>(std::as_bytes(std::span(TestPicture)))), "rg/b?");
  QByteArray bmp;
  QBuffer buffer(&bmp);
  buffer.open(QIODevice::WriteOnly);
  ASSERT_TRUE(Quad()->GetQImage().convertToFormat(QImage::Format_RGB32).save(&buffer, "BMP"));
  const auto decoded = New<TIGXBitmap>(std::as_bytes(std::span(bmp.constData(), bmp.size())));
  EXPECT_EQ(ColourRows(decoded->GetQImage(), 0, 2, 2), "rg/by");
  EXPECT_THROW(New<TIGXBitmap>(std::as_bytes(std::span(NotAPicture))), EArgumentException);
  EXPECT_THROW(New<TIGXBitmap>(std::span<const std::byte>()), EArgumentException);
}

// Names are case-insensitive; a missing or undecodable resource is refused by its name.
TEST(BitmapTest, LoadsANamedResourceOfAModule) {
  TModule* module = FindModule(TestPicture);
  ASSERT_NE(module, nullptr);
  EXPECT_EQ(Pixels(TIGXBitmap::Create(module, "TestPicture")), "rg/b?");
  for (const char* name : {"NOSUCHPICTURE", "NOTAPICTURE"}) {
    try {
      TIGXBitmap::Create(module, name);
      ADD_FAILURE() << name << " loaded";
    } catch (const EArgumentException& e) {
      EXPECT_NE(std::string(e.what()).find(name), std::string::npos) << e.what();
    }
  }
  EXPECT_THROW(TIGXBitmap::Create(nullptr, "TESTPICTURE"), EArgumentException);
}

// The image handed out is the bitmap's own: what a host paints into it, the bitmap reads.
TEST(BitmapTest, HostPaintsIntoTheImageAndTheWrapperSeesIt) {
  const auto bitmap = New<TIGXBitmap>(4, 1);
  {
    const auto graphics = New<TIGXGraphics>(bitmap->GetQImage());
    graphics->Clear(claWhite);
    graphics->FillRectangle(New<TIGXSolidBrush>(Blue), TIGXRect(1, 0, 2, 1));
  }
  EXPECT_EQ(Colours(bitmap->GetQImage(), 0, 0, 4), "wbbw");
  EXPECT_EQ(bitmap->GetPixel(2, 0), Blue);
  EXPECT_EQ(New<TIGXBitmap>(bitmap->GetQImage())->GetPixel(1, 0), Blue);
}

} // namespace
} // namespace Tarvo
