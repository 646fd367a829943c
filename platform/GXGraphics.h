#pragma once
#pragma GCC visibility push(default)
// The drawing surface of the wrapper: draws shapes, images and text with pens, brushes and
// fonts onto a QImage or through a painter that a paint event already holds. With smoothing
// off, whole coordinates land on whole pixels: a filled rectangle (x, y, w, h) covers w by h
// pixels, the outline of the same rectangle with a pen of width 1 covers w + 1 by h + 1.

#include <QImage>
#include <QPainter>

#include <memory>
#include <vector>

#include "platform/GXBrushes.h"
#include "platform/GXFonts.h"
#include "platform/GXImages.h"
#include "platform/GXPens.h"
#include "platform/GXTypes.h"
#include "rtl/InterfacedObject.h"

namespace Tarvo {

// Numbered as stored in designs; high quality and antialias smooth edges, the rest do not.
enum TIGXSmoothingMode : Integer { smDefault, smHighSpeed, smHighQuality, smNone, smAntiAlias };
// Numbered as stored in designs; every mode but nearest neighbour filters scaled images.
enum TIGXInterpolationMode : Integer {
  imDefault,
  imLowQuality,
  imHighQuality,
  imBilinear,
  imBicubic,
  imNearestNeighbor,
  imHighQualityBilinear,
  imHighQualityBicubic
};

class IGXGraphics : public virtual IInterface {
  TARVO_INTERFACE(IGXGraphics, "{B8D5F2A7-0C34-4E91-A6B8-5F1E7392D0C4}", IInterface)
public:
  // Sets every pixel (within the clip) to AColor, replacing what was there.
  virtual void Clear(TAlphaColor AColor) = 0;
  virtual void FillRectangle(const TRef<IGXBrush>& ABrush, const TIGXRect& ARect) = 0;
  virtual void DrawRectangle(const TRef<IGXPen>& APen, const TIGXRect& ARect) = 0;
  virtual void DrawLine(const TRef<IGXPen>& APen, Single AX1, Single AY1, Single AX2, Single AY2) = 0;
  // Connected segments through the points, joined by the pen's line join; raises
  // EArgumentException for fewer than two points.
  virtual void DrawLines(const TRef<IGXPen>& APen, const std::vector<TIGXPointF>& APoints) = 0;
  // At its own pixel size, top left at (AX, AY).
  virtual void DrawImage(const TRef<IGXImage>& AImage, Single AX, Single AY) = 0;
  // Scaled into ARect.
  virtual void DrawImage(const TRef<IGXImage>& AImage, const TIGXRect& ARect) = 0;
  // The box the text takes when laid out in ALayoutRect; a width or height of 0 leaves that
  // side unbounded. The format may be nil (wrapping, near alignment, no trimming).
  virtual TIGXRect MeasureString(const String& AText, const TRef<IGXFont>& AFont, const TIGXRect& ALayoutRect,
                                 const TRef<IGXStringFormat>& AFormat) = 0;
  // As above, for a layout rectangle at the origin.
  virtual TIGXRect MeasureString(const String& AText, const TRef<IGXFont>& AFont, const TIGXSize& ALayoutSize,
                                 const TRef<IGXStringFormat>& AFormat) = 0;
  // Fills the glyphs with ABrush; clipped to ARect unless the format says sfNoClip.
  virtual void DrawString(const String& AText, const TRef<IGXFont>& AFont, const TIGXRect& ARect,
                          const TRef<IGXStringFormat>& AFormat, const TRef<IGXBrush>& ABrush) = 0;
  virtual TIGXSmoothingMode GetSmoothingMode() = 0;
  virtual void SetSmoothingMode(TIGXSmoothingMode AMode) = 0;
  virtual TIGXInterpolationMode GetInterpolationMode() = 0;
  virtual void SetInterpolationMode(TIGXInterpolationMode AMode) = 0;
  // Moves the origin of later drawing by (ADX, ADY), before the transforms already set.
  virtual void TranslateTransform(Single ADX, Single ADY) = 0;
  virtual void ResetTransform() = 0;
  // The painter underneath, for the host.
  virtual QPainter& GetPainter() = 0;
};

class TIGXGraphics : public TImplements<TInterfacedObject, IGXGraphics> {
public:
  // Paints into AImage, which must outlive this object; raises EArgumentException when the
  // image cannot be painted on.
  explicit TIGXGraphics(QImage& AImage);
  // Paints through an active painter, whose state is restored when this object goes.
  explicit TIGXGraphics(QPainter& APainter);
  ~TIGXGraphics() override;

  void Clear(TAlphaColor AColor) override;
  void FillRectangle(const TRef<IGXBrush>& ABrush, const TIGXRect& ARect) override;
  void DrawRectangle(const TRef<IGXPen>& APen, const TIGXRect& ARect) override;
  void DrawLine(const TRef<IGXPen>& APen, Single AX1, Single AY1, Single AX2, Single AY2) override;
  void DrawLines(const TRef<IGXPen>& APen, const std::vector<TIGXPointF>& APoints) override;
  void DrawImage(const TRef<IGXImage>& AImage, Single AX, Single AY) override;
  void DrawImage(const TRef<IGXImage>& AImage, const TIGXRect& ARect) override;
  TIGXRect MeasureString(const String& AText, const TRef<IGXFont>& AFont, const TIGXRect& ALayoutRect,
                         const TRef<IGXStringFormat>& AFormat) override;
  TIGXRect MeasureString(const String& AText, const TRef<IGXFont>& AFont, const TIGXSize& ALayoutSize,
                         const TRef<IGXStringFormat>& AFormat) override;
  void DrawString(const String& AText, const TRef<IGXFont>& AFont, const TIGXRect& ARect,
                  const TRef<IGXStringFormat>& AFormat, const TRef<IGXBrush>& ABrush) override;
  TIGXSmoothingMode GetSmoothingMode() override { return FSmoothingMode; }
  void SetSmoothingMode(TIGXSmoothingMode AMode) override;
  TIGXInterpolationMode GetInterpolationMode() override { return FInterpolationMode; }
  void SetInterpolationMode(TIGXInterpolationMode AMode) override;
  void TranslateTransform(Single ADX, Single ADY) override { FPainter->translate(ADX, ADY); }
  void ResetTransform() override { FPainter->resetTransform(); }
  QPainter& GetPainter() override { return *FPainter; }

private:
  void Init();

  std::unique_ptr<QPainter> FOwnPainter;
  QPainter* FPainter;
  TIGXSmoothingMode FSmoothingMode = smDefault;
  TIGXInterpolationMode FInterpolationMode = imDefault;
};

} // namespace Tarvo

#pragma GCC visibility pop
