#pragma once
#pragma GCC visibility push(default)
// Geometry and colours of the drawing wrapper. Rectangles and points are in world units (pixels
// unless the graphics is transformed); colours are 32-bit ARGB, while TColor keeps its
// 0x00BBGGRR form with system colours in the high byte.

#include <QColor>
#include <QPointF>
#include <QRectF>

#include "rtl/Types.h"
#include "runtime/NamedTypes.h" // TColor, TAlphaColor and the colour constants

namespace Tarvo {

struct TIGXPoint {
  Integer X = 0;
  Integer Y = 0;
  friend constexpr bool operator==(const TIGXPoint&, const TIGXPoint&) = default;
};

struct TIGXPointF {
  Single X = 0;
  Single Y = 0;
  constexpr TIGXPointF() = default;
  constexpr TIGXPointF(Single AX, Single AY) : X(AX), Y(AY) {}
  constexpr TIGXPointF(const TIGXPoint& APoint) : X(Single(APoint.X)), Y(Single(APoint.Y)) {}
  QPointF ToQPointF() const { return QPointF(X, Y); }
  friend constexpr bool operator==(const TIGXPointF&, const TIGXPointF&) = default;
};

struct TIGXSize {
  Single Width = 0;
  Single Height = 0;
  friend constexpr bool operator==(const TIGXSize&, const TIGXSize&) = default;
};

struct TIGXRect {
  Single X = 0;
  Single Y = 0;
  Single Width = 0;
  Single Height = 0;

  constexpr TIGXRect() = default;
  constexpr TIGXRect(Single AX, Single AY, Single AWidth, Single AHeight)
      : X(AX), Y(AY), Width(AWidth), Height(AHeight) {}
  // Grid cells and samples are laid out in whole pixels.
  constexpr TIGXRect(Integer AX, Integer AY, Integer AWidth, Integer AHeight)
      : X(Single(AX)), Y(Single(AY)), Width(Single(AWidth)), Height(Single(AHeight)) {}

  constexpr Single Left() const { return X; }
  constexpr Single Top() const { return Y; }
  constexpr Single Right() const { return X + Width; }
  constexpr Single Bottom() const { return Y + Height; }

  QRectF ToQRectF() const { return QRectF(X, Y, Width, Height); }
  static TIGXRect FromQRectF(const QRectF& ARect) {
    return TIGXRect(Single(ARect.x()), Single(ARect.y()), Single(ARect.width()), Single(ARect.height()));
  }
  friend constexpr bool operator==(const TIGXRect&, const TIGXRect&) = default;
};

inline constexpr TAlphaColor claBlack = 0xFF000000u;
inline constexpr TAlphaColor claWhite = 0xFFFFFFFFu;
inline constexpr TAlphaColor claNull = 0x00000000u;

// The system colour indices, as they appear in the low byte of a system TColor.
enum TSystemColorIndex : Byte {
  scScrollBar,
  scBackground,
  scActiveCaption,
  scInactiveCaption,
  scMenu,
  scWindow,
  scWindowFrame,
  scMenuText,
  scWindowText,
  scCaptionText,
  scActiveBorder,
  scInactiveBorder,
  scAppWorkspace,
  scHighlight,
  scHighlightText,
  scBtnFace,
  scBtnShadow,
  scGrayText,
  scBtnText,
  scInactiveCaptionText,
  scBtnHighlight,
  sc3DDarkShadow,
  sc3DLight,
  scInfoText,
  scInfoBackground,
  scHotLight = 26,
  scGradientActiveCaption,
  scGradientInactiveCaption,
  scMenuHighlight,
  scMenuBar
};

inline constexpr TColor SystemColor(TSystemColorIndex AIndex) { return TColor(0xFF000000u | AIndex); }

static_assert(clWindow == SystemColor(scWindow) && clWindowText == SystemColor(scWindowText) &&
              clBtnFace == SystemColor(scBtnFace));
inline constexpr TColor clHighlight = SystemColor(scHighlight);
inline constexpr TColor clHighlightText = SystemColor(scHighlightText);

// A system colour resolved through the application palette; any other colour as it is.
// Indices the palette has no counterpart for give black.
TColor ColorToRGB(TColor AColor);
// The ARGB form of a TColor (system colours resolved) with the given alpha.
TAlphaColor MakeColor(TColor AColor, Byte AAlpha = 255);

// Raises EArgumentOutOfRangeException unless 0 <= AValue < ACount: values of the enumerations
// arrive as plain ordinals from the inspector.
void CheckEnumValue(Integer AValue, Integer ACount, const char* ATypeName);

inline QColor ToQColor(TAlphaColor AColor) { return QColor::fromRgba(AColor); }

} // namespace Tarvo

#pragma GCC visibility pop
