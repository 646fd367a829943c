#pragma once
#pragma GCC visibility push(default)
// Images of the drawing wrapper: bitmaps in memory, decoded from PNG or BMP bytes, or read from
// a resource compiled into a module.

#include <QImage>

#include <cstddef>
#include <span>

#include "platform/GXTypes.h"
#include "rtl/InterfacedObject.h"

namespace Tarvo {

class TModule;

class IGXImage : public virtual IInterface {
  TARVO_INTERFACE(IGXImage, "{8E3A61D5-0B47-4C92-A1F8-3D6C25E9B704}", IInterface)
public:
  virtual Integer GetWidth() = 0;
  virtual Integer GetHeight() = 0;
  // The pixels as QPainter draws them; the host may paint into it.
  virtual QImage& GetQImage() = 0;
};

class IGXBitmap : public virtual IGXImage {
  TARVO_INTERFACE(IGXBitmap, "{2D94C0B8-6F15-4E3A-8B72-C5A019D34E6F}", IGXImage)
public:
  // Raise EArgumentOutOfRangeException outside the bitmap.
  virtual TAlphaColor GetPixel(Integer AX, Integer AY) = 0;
  virtual void SetPixel(Integer AX, Integer AY, TAlphaColor AColor) = 0;
};

class TIGXBitmap : public TImplements<TInterfacedObject, IGXBitmap> {
public:
  // A transparent bitmap of the size.
  TIGXBitmap(Integer AWidth, Integer AHeight);
  // Decodes PNG or BMP bytes; raises EArgumentException when they are neither.
  explicit TIGXBitmap(std::span<const std::byte> AData);
  // Wraps a copy of an image (Qt shares the pixels until one side writes).
  explicit TIGXBitmap(const QImage& AImage);

  // The bitmap stored in AModule under AResourceName; raises EArgumentException naming the
  // resource when the module has none of that name.
  static TRef<TIGXBitmap> Create(const TModule* AModule, const String& AResourceName);

  Integer GetWidth() override { return FImage.width(); }
  Integer GetHeight() override { return FImage.height(); }
  QImage& GetQImage() override { return FImage; }
  TAlphaColor GetPixel(Integer AX, Integer AY) override;
  void SetPixel(Integer AX, Integer AY, TAlphaColor AColor) override;

private:
  void CheckPoint(Integer AX, Integer AY) const;

  // Premultiplied, the format QPainter draws into and from fastest; pixels are read and
  // written unpremultiplied whatever the format.
  QImage FImage;
};

} // namespace Tarvo

#pragma GCC visibility pop
