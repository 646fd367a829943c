#pragma once
#pragma GCC visibility push(default)
// Brushes of the drawing wrapper: solid, hatch, texture, linear gradient and path gradient.
// A brush fills an area of a painter in the painter's world coordinates.

#include <QPainter>
#include <QPainterPath>
#include <QTransform>

#include <array>
#include <vector>

#include "platform/GXImages.h"
#include "platform/GXTypes.h"
#include "rtl/InterfacedObject.h"

namespace Tarvo {

enum TIGXBrushType : Integer { btSolidColor, btHatchFill, btTextureFill, btPathGradient, btLinearGradient };

enum TIGXHatchStyle : Integer {
  hsHorizontal,
  hsVertical,
  hsForwardDiagonal,
  hsBackwardDiagonal,
  hsCross,
  hsDiagonalCross,
  hs05Percent,
  hs10Percent,
  hs20Percent,
  hs25Percent,
  hs30Percent,
  hs40Percent,
  hs50Percent,
  hs60Percent,
  hs70Percent,
  hs75Percent,
  hs80Percent,
  hs90Percent,
  hsLightDownwardDiagonal,
  hsLightUpwardDiagonal,
  hsDarkDownwardDiagonal,
  hsDarkUpwardDiagonal,
  hsWideDownwardDiagonal,
  hsWideUpwardDiagonal,
  hsLightVertical,
  hsLightHorizontal,
  hsNarrowVertical,
  hsNarrowHorizontal,
  hsDarkVertical,
  hsDarkHorizontal,
  hsDashedDownwardDiagonal,
  hsDashedUpwardDiagonal,
  hsDashedHorizontal,
  hsDashedVertical,
  hsSmallConfetti,
  hsLargeConfetti,
  hsZigZag,
  hsWave,
  hsDiagonalBrick,
  hsHorizontalBrick,
  hsWeave,
  hsPlaid,
  hsDivot,
  hsDottedGrid,
  hsDottedDiamond,
  hsShingle,
  hsTrellis,
  hsSphere,
  hsSmallGrid,
  hsSmallCheckerBoard,
  hsLargeCheckerBoard,
  hsOutlinedDiamond,
  hsSolidDiamond
};
inline constexpr int HatchStyleCount = hsSolidDiamond + 1;

// Rows top down; the high bit of a row is its leftmost pixel, a set bit shows the foreground.
using THatchPattern = std::array<Byte, 8>;
// Raises EArgumentOutOfRangeException for a value outside the enumeration.
const THatchPattern& HatchPattern(TIGXHatchStyle AStyle);

// How an image or gradient continues beyond its own extent; clamp paints it once.
enum TIGXWrapMode : Integer { wmTile, wmTileFlipX, wmTileFlipY, wmTileFlipXY, wmClamp };

enum TIGXLinearGradientMode : Integer { lgmHorizontal, lgmVertical, lgmForwardDiagonal, lgmBackwardDiagonal };

class IGXBrush : public virtual IInterface {
  TARVO_INTERFACE(IGXBrush, "{0F6B3D28-71A9-4E5C-B4D3-92E8A1C7F053}", IInterface)
public:
  virtual TIGXBrushType GetType() = 0;
  // Fills AArea, given in the world coordinates of APainter; leaves the painter's state as it was.
  virtual void Fill(QPainter& APainter, const QPainterPath& AArea) = 0;
};

class IGXSolidBrush : public virtual IGXBrush {
  TARVO_INTERFACE(IGXSolidBrush, "{A3C8E512-4D7B-4F09-8A26-E51B3D90C7F4}", IGXBrush)
public:
  virtual TAlphaColor GetColor() = 0;
  virtual void SetColor(TAlphaColor AColor) = 0;
};

class IGXHatchBrush : public virtual IGXBrush {
  TARVO_INTERFACE(IGXHatchBrush, "{6D2F94B1-E083-4A5D-9C17-B8A4E6203F95}", IGXBrush)
public:
  virtual TIGXHatchStyle GetHatchStyle() = 0;
  virtual TAlphaColor GetForegroundColor() = 0;
  virtual TAlphaColor GetBackgroundColor() = 0;
};

class IGXTextureBrush : public virtual IGXBrush {
  TARVO_INTERFACE(IGXTextureBrush, "{E14A7C36-25F8-4B91-A0D2-7C9563B8E1A4}", IGXBrush)
public:
  virtual TRef<IGXImage> GetImage() = 0;
  virtual TIGXWrapMode GetWrapMode() = 0;
  virtual void SetWrapMode(TIGXWrapMode AWrapMode) = 0;
  // Moves the image by (ADX, ADY) in the brush's space, before its other transforms.
  virtual void TranslateTransform(Single ADX, Single ADY) = 0;
  virtual void ResetTransform() = 0;
};

class IGXLinearGradientBrush : public virtual IGXBrush {
  TARVO_INTERFACE(IGXLinearGradientBrush, "{93B05E7D-C1A2-4D68-B3F4-0A8E27D5C169}", IGXBrush)
public:
  // Tile repeats the gradient beyond its end points, the flips mirror it; clamp is refused
  // with EArgumentException.
  virtual TIGXWrapMode GetWrapMode() = 0;
  virtual void SetWrapMode(TIGXWrapMode AWrapMode) = 0;
  // At each position (0..1 along the gradient) the share (0..1) of the second colour. Positions
  // start at 0, end at 1 and never descend; raises EArgumentException otherwise.
  virtual void SetBlend(const std::vector<Single>& AFactors, const std::vector<Single>& APositions) = 0;
  // Colours at positions along the gradient, replacing the two colours and any blend; positions
  // as for SetBlend.
  virtual void SetInterpolationColors(const std::vector<TAlphaColor>& AColors,
                                      const std::vector<Single>& APositions) = 0;
};

class IGXPathGradientBrush : public virtual IGXBrush {
  TARVO_INTERFACE(IGXPathGradientBrush, "{4C7E1A90-8B35-4F26-9D0E-B6A3F52C8D17}", IGXBrush)
public:
  virtual TAlphaColor GetCenterColor() = 0;
  virtual void SetCenterColor(TAlphaColor AColor) = 0;
  virtual std::vector<TAlphaColor> GetSurroundColors() = 0;
  // One colour per point, the last one standing for the points beyond; raises
  // EArgumentException for no colours or more colours than points.
  virtual void SetSurroundColors(const std::vector<TAlphaColor>& AColors) = 0;
  virtual TIGXPointF GetCenterPointF() = 0;
  virtual void SetCenterPointF(const TIGXPointF& APoint) = 0;
  virtual TIGXWrapMode GetWrapMode() = 0;
  virtual void SetWrapMode(TIGXWrapMode AWrapMode) = 0;
};

class TIGXSolidBrush : public TImplements<TInterfacedObject, IGXSolidBrush> {
public:
  explicit TIGXSolidBrush(TAlphaColor AColor) : FColor(AColor) {}

  TIGXBrushType GetType() override { return btSolidColor; }
  void Fill(QPainter& APainter, const QPainterPath& AArea) override;
  TAlphaColor GetColor() override { return FColor; }
  void SetColor(TAlphaColor AColor) override { FColor = AColor; }

private:
  TAlphaColor FColor;
};

// The pattern is tiled from the device origin of the painter, whatever its world transform,
// so that neighbouring fills join seamlessly.
class TIGXHatchBrush : public TImplements<TInterfacedObject, IGXHatchBrush> {
public:
  // Raises EArgumentOutOfRangeException for a style outside the enumeration.
  TIGXHatchBrush(TIGXHatchStyle AStyle, TAlphaColor AForeColor, TAlphaColor ABackColor = claBlack);

  TIGXBrushType GetType() override { return btHatchFill; }
  void Fill(QPainter& APainter, const QPainterPath& AArea) override;
  TIGXHatchStyle GetHatchStyle() override { return FStyle; }
  TAlphaColor GetForegroundColor() override { return FForeColor; }
  TAlphaColor GetBackgroundColor() override { return FBackColor; }

private:
  TIGXHatchStyle FStyle;
  TAlphaColor FForeColor;
  TAlphaColor FBackColor;
  QImage FTile;
};

// The image's top left sits at the brush's origin, which the painter's world transform moves.
class TIGXTextureBrush : public TImplements<TInterfacedObject, IGXTextureBrush> {
public:
  TIGXTextureBrush(TRef<IGXImage> AImage, TIGXWrapMode AWrapMode = wmTile);

  TIGXBrushType GetType() override { return btTextureFill; }
  void Fill(QPainter& APainter, const QPainterPath& AArea) override;
  TRef<IGXImage> GetImage() override { return FImage; }
  TIGXWrapMode GetWrapMode() override { return FWrapMode; }
  void SetWrapMode(TIGXWrapMode AWrapMode) override;
  void TranslateTransform(Single ADX, Single ADY) override { FTransform.translate(ADX, ADY); }
  void ResetTransform() override { FTransform.reset(); }

private:
  TRef<IGXImage> FImage;
  TIGXWrapMode FWrapMode;
  QTransform FTransform;
};

class TIGXLinearGradientBrush : public TImplements<TInterfacedObject, IGXLinearGradientBrush> {
public:
  // From AColor1 at APoint1 to AColor2 at APoint2; lines of equal colour stand perpendicular to
  // the line between them. Raises EArgumentException when the points coincide.
  TIGXLinearGradientBrush(const TIGXPointF& APoint1, const TIGXPointF& APoint2, TAlphaColor AColor1,
                          TAlphaColor AColor2);
  // Across ARect in the direction of AMode; the diagonal modes run corner to corner, with lines
  // of equal colour parallel to the other diagonal. Raises EArgumentException for an empty rectangle.
  TIGXLinearGradientBrush(const TIGXRect& ARect, TAlphaColor AColor1, TAlphaColor AColor2,
                          TIGXLinearGradientMode AMode);

  TIGXBrushType GetType() override { return btLinearGradient; }
  void Fill(QPainter& APainter, const QPainterPath& AArea) override;
  TIGXWrapMode GetWrapMode() override { return FWrapMode; }
  void SetWrapMode(TIGXWrapMode AWrapMode) override;
  void SetBlend(const std::vector<Single>& AFactors, const std::vector<Single>& APositions) override;
  void SetInterpolationColors(const std::vector<TAlphaColor>& AColors, const std::vector<Single>& APositions) override;

private:
  QPointF FStart;
  QPointF FEnd;
  // Maps the gradient's own space to world space: the unit square onto the rectangle of the
  // rectangle form, identity for the two-point form.
  QTransform FTransform;
  TAlphaColor FColor1;
  TAlphaColor FColor2;
  QGradientStops FStops;
  TIGXWrapMode FWrapMode = wmTile;
};

// Colours are shaded across the triangles that the centre point makes with each edge, and
// rendered once per fill at one sample per world unit: a transform that enlarges the graphics
// enlarges those samples too.
class TIGXPathGradientBrush : public TImplements<TInterfacedObject, IGXPathGradientBrush> {
public:
  // The centre point starts at the mean of the points, the centre colour black and every
  // surround colour white. Raises EArgumentException for fewer than three points.
  explicit TIGXPathGradientBrush(std::vector<TIGXPointF> APoints, TIGXWrapMode AWrapMode = wmClamp);

  TIGXBrushType GetType() override { return btPathGradient; }
  void Fill(QPainter& APainter, const QPainterPath& AArea) override;
  TAlphaColor GetCenterColor() override { return FCenterColor; }
  void SetCenterColor(TAlphaColor AColor) override { FCenterColor = AColor; }
  std::vector<TAlphaColor> GetSurroundColors() override { return FSurroundColors; }
  void SetSurroundColors(const std::vector<TAlphaColor>& AColors) override;
  TIGXPointF GetCenterPointF() override { return FCenterPoint; }
  void SetCenterPointF(const TIGXPointF& APoint) override { FCenterPoint = APoint; }
  TIGXWrapMode GetWrapMode() override { return FWrapMode; }
  void SetWrapMode(TIGXWrapMode AWrapMode) override;

private:
  TAlphaColor SurroundColor(std::size_t APointIndex) const;

  std::vector<TIGXPointF> FPoints;
  TIGXWrapMode FWrapMode;
  TIGXPointF FCenterPoint;
  TAlphaColor FCenterColor = claBlack;
  std::vector<TAlphaColor> FSurroundColors{claWhite};
};

} // namespace Tarvo

#pragma GCC visibility pop
