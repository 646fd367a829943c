#include "platform/GXImages.h"

#include <string>

#include "rtl/Exceptions.h"
#include "rtl/Module.h"

namespace Tarvo {

namespace {

constexpr QImage::Format BitmapFormat = QImage::Format_ARGB32_Premultiplied;

QImage Decode(std::span<const std::byte> AData) {
  QImage image;
  const auto* bytes = reinterpret_cast<const uchar*>(AData.data());
  if (!image.loadFromData(bytes, int(AData.size()), "PNG") && !image.loadFromData(bytes, int(AData.size()), "BMP"))
    throw EArgumentException("The image data is neither PNG nor BMP");
  return image.convertToFormat(BitmapFormat);
}

} // namespace

TIGXBitmap::TIGXBitmap(Integer AWidth, Integer AHeight) : FImage(AWidth, AHeight, BitmapFormat) {
  if (AWidth <= 0 || AHeight <= 0 || FImage.isNull())
    throw EArgumentOutOfRangeException("Cannot make a bitmap of " + std::to_string(AWidth) + " by " +
                                       std::to_string(AHeight) + " pixels");
  FImage.fill(Qt::transparent);
}

TIGXBitmap::TIGXBitmap(std::span<const std::byte> AData) : FImage(Decode(AData)) {}

TIGXBitmap::TIGXBitmap(const QImage& AImage) : FImage(AImage.convertToFormat(BitmapFormat)) {}

TRef<TIGXBitmap> TIGXBitmap::Create(const TModule* AModule, const String& AResourceName) {
  const auto data = AModule ? AModule->FindResource(AResourceName) : std::span<const std::byte>();
  if (data.empty())
    throw EArgumentException("Bitmap resource '" + AResourceName + "' not found in module '" +
                             (AModule ? AModule->FileName() : String("(none)")) + "'");
  try {
    return New<TIGXBitmap>(data);
  } catch (const EArgumentException& e) {
    throw EArgumentException("Bitmap resource '" + AResourceName + "': " + e.Message());
  }
}

void TIGXBitmap::CheckPoint(Integer AX, Integer AY) const {
  if (!FImage.valid(AX, AY))
    throw EArgumentOutOfRangeException("Pixel (" + std::to_string(AX) + ", " + std::to_string(AY) +
                                       ") lies outside the bitmap");
}

TAlphaColor TIGXBitmap::GetPixel(Integer AX, Integer AY) {
  CheckPoint(AX, AY);
  return FImage.pixelColor(AX, AY).rgba();
}

void TIGXBitmap::SetPixel(Integer AX, Integer AY, TAlphaColor AColor) {
  CheckPoint(AX, AY);
  FImage.setPixelColor(AX, AY, ToQColor(AColor));
}

} // namespace Tarvo
