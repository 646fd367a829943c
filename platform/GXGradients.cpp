#include <QLinearGradient>

#include <algorithm>
#include <cmath>
#include <string>

#include "platform/GXBrushes.h"
#include "rtl/Exceptions.h"

namespace Tarvo {

namespace {

void CheckWrapMode(TIGXWrapMode AWrapMode) { CheckEnumValue(AWrapMode, wmClamp + 1, "TIGXWrapMode"); }

// Blend and interpolation positions run from 0 to 1 without going back, one per value.
void CheckPositions(std::size_t AValueCount, const std::vector<Single>& APositions, const char* AWhat) {
  const auto fail = [AWhat](const std::string& AReason) {
    throw EArgumentException(std::string(AWhat) + ": " + AReason);
  };
  if (APositions.size() < 2) fail("at least two positions are needed");
  if (APositions.size() != AValueCount) fail("there must be as many positions as values");
  if (APositions.front() != 0.0f) fail("the first position must be 0");
  if (APositions.back() != 1.0f) fail("the last position must be 1");
  if (!std::ranges::is_sorted(APositions)) fail("positions must ascend");
}

Byte Mix(Cardinal AFrom, Cardinal ATo, double AShare) {
  return Byte(std::lround(double(AFrom) + (double(ATo) - double(AFrom)) * AShare));
}

// Channel by channel, unpremultiplied.
TAlphaColor MixColors(TAlphaColor AFrom, TAlphaColor ATo, double AShare) {
  TAlphaColor result = 0;
  for (int shift = 0; shift < 32; shift += 8)
    result |= TAlphaColor(Mix(AFrom >> shift & 0xFFu, ATo >> shift & 0xFFu, AShare)) << shift;
  return result;
}

TAlphaColor Shade(const std::array<TAlphaColor, 3>& AColors, const std::array<double, 3>& AWeights) {
  TAlphaColor result = 0;
  for (int shift = 0; shift < 32; shift += 8) {
    double channel = 0;
    for (int i = 0; i < 3; ++i) channel += AWeights[i] * double(AColors[i] >> shift & 0xFFu);
    result |= TAlphaColor(std::clamp(std::lround(channel), 0L, 255L)) << shift;
  }
  return result;
}

} // namespace

// ---- Linear gradient ----

TIGXLinearGradientBrush::TIGXLinearGradientBrush(const TIGXPointF& APoint1, const TIGXPointF& APoint2,
                                                 TAlphaColor AColor1, TAlphaColor AColor2)
    : FStart(APoint1.ToQPointF()), FEnd(APoint2.ToQPointF()), FColor1(AColor1),
      FColor2(AColor2), FStops{{0.0, ToQColor(AColor1)}, {1.0, ToQColor(AColor2)}} {
  if (APoint1 == APoint2) throw EArgumentException("A linear gradient needs two distinct points");
}

TIGXLinearGradientBrush::TIGXLinearGradientBrush(const TIGXRect& ARect, TAlphaColor AColor1, TAlphaColor AColor2,
                                                 TIGXLinearGradientMode AMode)
    : FColor1(AColor1), FColor2(AColor2), FStops{{0.0, ToQColor(AColor1)}, {1.0, ToQColor(AColor2)}} {
  CheckEnumValue(AMode, lgmBackwardDiagonal + 1, "TIGXLinearGradientMode");
  if (!(ARect.Width > 0 && ARect.Height > 0))
    throw EArgumentException("A linear gradient needs a rectangle with an area");
  // Corner to corner of the unit square, then stretched onto the rectangle.
  static constexpr std::array<std::array<QPointF, 2>, 4> Ends = {{
      {QPointF(0, 0), QPointF(1, 0)},
      {QPointF(0, 0), QPointF(0, 1)},
      {QPointF(0, 0), QPointF(1, 1)},
      {QPointF(1, 0), QPointF(0, 1)},
  }};
  FStart = Ends[AMode][0];
  FEnd = Ends[AMode][1];
  FTransform = QTransform::fromTranslate(ARect.X, ARect.Y).scale(ARect.Width, ARect.Height);
}

void TIGXLinearGradientBrush::SetWrapMode(TIGXWrapMode AWrapMode) {
  CheckWrapMode(AWrapMode);
  if (AWrapMode == wmClamp) throw EArgumentException("A linear gradient cannot be clamped");
  FWrapMode = AWrapMode;
}

void TIGXLinearGradientBrush::SetBlend(const std::vector<Single>& AFactors, const std::vector<Single>& APositions) {
  CheckPositions(AFactors.size(), APositions, "Invalid blend");
  if (std::ranges::any_of(AFactors, [](Single AFactor) { return !(AFactor >= 0 && AFactor <= 1); }))
    throw EArgumentException("Invalid blend: factors must lie between 0 and 1");
  FStops.clear();
  for (std::size_t i = 0; i < AFactors.size(); ++i)
    FStops.append({APositions[i], ToQColor(MixColors(FColor1, FColor2, AFactors[i]))});
}

void TIGXLinearGradientBrush::SetInterpolationColors(const std::vector<TAlphaColor>& AColors,
                                                     const std::vector<Single>& APositions) {
  CheckPositions(AColors.size(), APositions, "Invalid interpolation colors");
  FStops.clear();
  for (std::size_t i = 0; i < AColors.size(); ++i) FStops.append({APositions[i], ToQColor(AColors[i])});
}

void TIGXLinearGradientBrush::Fill(QPainter& APainter, const QPainterPath& AArea) {
  QLinearGradient gradient(FStart, FEnd);
  gradient.setStops(FStops);
  // Mirroring across the gradient's lines changes nothing, so only a flip along it reflects.
  gradient.setSpread(FWrapMode == wmTileFlipX || FWrapMode == wmTileFlipXY ? QGradient::ReflectSpread
                                                                           : QGradient::RepeatSpread);
  QBrush brush(gradient);
  brush.setTransform(FTransform);
  APainter.fillPath(AArea, brush);
}

// ---- Path gradient ----

TIGXPathGradientBrush::TIGXPathGradientBrush(std::vector<TIGXPointF> APoints, TIGXWrapMode AWrapMode)
    : FPoints(std::move(APoints)), FWrapMode(wmClamp) {
  if (FPoints.size() < 3) throw EArgumentException("A path gradient needs at least three points");
  SetWrapMode(AWrapMode);
  for (const TIGXPointF& point : FPoints) {
    FCenterPoint.X += point.X / Single(FPoints.size());
    FCenterPoint.Y += point.Y / Single(FPoints.size());
  }
}

void TIGXPathGradientBrush::SetWrapMode(TIGXWrapMode AWrapMode) {
  CheckWrapMode(AWrapMode);
  FWrapMode = AWrapMode;
}

void TIGXPathGradientBrush::SetSurroundColors(const std::vector<TAlphaColor>& AColors) {
  if (AColors.empty() || AColors.size() > FPoints.size())
    throw EArgumentException("A path gradient takes from one surround colour to one per point, not " +
                             std::to_string(AColors.size()));
  FSurroundColors = AColors;
}

TAlphaColor TIGXPathGradientBrush::SurroundColor(std::size_t APointIndex) const {
  return FSurroundColors[std::min(APointIndex, FSurroundColors.size() - 1)];
}

void TIGXPathGradientBrush::Fill(QPainter& APainter, const QPainterPath& AArea) {
  const auto [leftmost, rightmost] = std::ranges::minmax(FPoints, {}, &TIGXPointF::X);
  const auto [topmost, bottommost] = std::ranges::minmax(FPoints, {}, &TIGXPointF::Y);
  const int left = int(std::floor(leftmost.X)), top = int(std::floor(topmost.Y));
  const int width = int(std::ceil(rightmost.X)) - left, height = int(std::ceil(bottommost.Y)) - top;
  if (width <= 0 || height <= 0) return;

  // Each pixel centre takes the barycentric mix of the triangle (centre, edge start, edge end)
  // that holds it; pixels outside every triangle stay transparent.
  const auto tile = New<TIGXBitmap>(width, height);
  const double cx = FCenterPoint.X, cy = FCenterPoint.Y;
  const std::size_t count = FPoints.size();
  constexpr double Tolerance = 1e-9;
  for (int j = 0; j < height; ++j)
    for (int i = 0; i < width; ++i) {
      const double px = left + i + 0.5, py = top + j + 0.5;
      for (std::size_t k = 0; k < count; ++k) {
        const TIGXPointF& a = FPoints[k];
        const TIGXPointF& b = FPoints[(k + 1) % count];
        const double area = (a.X - cx) * (b.Y - cy) - (b.X - cx) * (a.Y - cy);
        if (std::abs(area) < Tolerance) continue;
        const double wa = ((px - cx) * (b.Y - cy) - (b.X - cx) * (py - cy)) / area;
        const double wb = ((a.X - cx) * (py - cy) - (px - cx) * (a.Y - cy)) / area;
        const double wc = 1 - wa - wb;
        if (wa < -Tolerance || wb < -Tolerance || wc < -Tolerance) continue;
        tile->SetPixel(i, j, Shade({FCenterColor, SurroundColor(k), SurroundColor((k + 1) % count)}, {wc, wa, wb}));
        break;
      }
    }

  const auto texture = New<TIGXTextureBrush>(tile, FWrapMode);
  texture->TranslateTransform(Single(left), Single(top));
  texture->Fill(APainter, AArea);
}

} // namespace Tarvo
