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

std::span<const std::byte> Bytes(const QByteArray& AData) { return std::as_bytes(std::span(AData.constData(), AData.size())); }

QByteArray Encode(const QImage& AImage, const char* AFormat) {
  QByteArray data;
  QBuffer buffer(&data);
  buffer.open(QIODevice::WriteOnly);
  EXPECT_TRUE(AImage.save(&buffer, AFormat));
  return data;
}

void ExpectTestPicture(IGXBitmap& ABitmap) {
  ASSERT_EQ(ABitmap.GetWidth(), 2);
  ASSERT_EQ(ABitmap.GetHeight(), 2);
  EXPECT_EQ(ABitmap.GetPixel(0, 0), Red);
  EXPECT_EQ(ABitmap.GetPixel(1, 0), Green);
  EXPECT_EQ(ABitmap.GetPixel(0, 1), Blue);
  EXPECT_EQ(ABitmap.GetPixel(1, 1) >> 24, 0u);
}

TEST(BitmapTest, NewBitmapIsTransparentAndKeepsItsPixels) {
  const auto bitmap = New<TIGXBitmap>(3, 2);
  EXPECT_EQ(bitmap->GetWidth(), 3);
  EXPECT_EQ(bitmap->GetHeight(), 2);
  EXPECT_EQ(bitmap->GetPixel(2, 1), claNull);
  bitmap->SetPixel(2, 1, 0x80336699u);
  // Kept premultiplied underneath, so a translucent colour comes back within rounding.
  EXPECT_TRUE(Near(bitmap->GetPixel(2, 1), 0x80336699u, 1)) << Hex(bitmap->GetPixel(2, 1));
  EXPECT_EQ(bitmap->GetQImage().format(), QImage::Format_ARGB32_Premultiplied);

  for (auto [x, y] : {std::pair{3, 0}, std::pair{0, 2}, std::pair{-1, 0}}) {
    EXPECT_THROW(bitmap->GetPixel(x, y), EArgumentOutOfRangeException);
    EXPECT_THROW(bitmap->SetPixel(x, y, Red), EArgumentOutOfRangeException);
  }
  EXPECT_THROW(New<TIGXBitmap>(0, 5), EArgumentOutOfRangeException);
}

TEST(BitmapTest, DecodesPngAndBmp) {
  QImage source(2, 2, QImage::Format_ARGB32);
  source.setPixel(0, 0, Red);
  source.setPixel(1, 0, Green);
  source.setPixel(0, 1, Blue);
  source.setPixel(1, 1, 0x00000000u);
  ExpectTestPicture(*New<TIGXBitmap>(Bytes(Encode(source, "PNG"))));

  // BMP keeps no alpha: the transparent pixel becomes opaque there.
  const auto bmp = New<TIGXBitmap>(Bytes(Encode(source.convertToFormat(QImage::Format_RGB32), "BMP")));
  EXPECT_EQ(bmp->GetPixel(1, 0), Green);
  EXPECT_EQ(bmp->GetPixel(0, 1), Blue);

  EXPECT_THROW(New<TIGXBitmap>(Bytes(QByteArray("not an image"))), EArgumentException);
  EXPECT_THROW(New<TIGXBitmap>(std::span<const std::byte>()), EArgumentException);
}

TEST(BitmapTest, LoadsANamedResourceOfAModule) {
  TModule* module = FindModule(TestPicture);
  ASSERT_NE(module, nullptr);
  ExpectTestPicture(*TIGXBitmap::Create(module, "TestPicture")); // names are case-insensitive

  try {
    TIGXBitmap::Create(module, "NOSUCHPICTURE");
    FAIL() << "a missing resource loaded";
  } catch (const EArgumentException& e) {
    EXPECT_NE(std::string(e.what()).find("NOSUCHPICTURE"), std::string::npos) << e.what();
  }
  try {
    TIGXBitmap::Create(module, "NOTAPICTURE");
    FAIL() << "text loaded as a picture";
  } catch (const EArgumentException& e) {
    EXPECT_NE(std::string(e.what()).find("NOTAPICTURE"), std::string::npos) << e.what();
  }
  EXPECT_THROW(TIGXBitmap::Create(nullptr, "TESTPICTURE"), EArgumentException);
}

TEST(BitmapTest, HostPaintsIntoTheImageAndTheWrapperSeesIt) {
  const auto bitmap = New<TIGXBitmap>(4, 4);
  {
    const auto graphics = New<TIGXGraphics>(bitmap->GetQImage());
    graphics->Clear(claWhite);
    graphics->FillRectangle(New<TIGXSolidBrush>(Blue), TIGXRect(1, 1, 2, 2));
  }
  EXPECT_EQ(bitmap->GetPixel(0, 0), claWhite);
  EXPECT_EQ(bitmap->GetPixel(2, 2), Blue);
  EXPECT_EQ(New<TIGXBitmap>(bitmap->GetQImage())->GetPixel(1, 1), Blue);
}

} // namespace
} // namespace Tarvo
