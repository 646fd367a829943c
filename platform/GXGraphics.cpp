#include "platform/GXGraphics.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include "platform/GXTextLayout.h"
#include "rtl/Exceptions.h"

namespace Tarvo {

namespace {

QPainterPath RectPath(const QRectF& ARect) {
  QPainterPath path;
  path.addRect(ARect);
  return path;
}

// Layers for brushed text start on a multiple of the hatch cell, so hatch patterns stay in step
// with the device.
constexpr int LayerAlignment = 8;
// Room for antialiased edges and overhanging glyphs beyond the text's measured box.
constexpr int LayerMargin = 2;

int AlignDown(int AValue) { return AValue - (AValue % LayerAlignment + LayerAlignment) % LayerAlignment; }

// Any brush but a solid one: the glyphs become a mask in a layer, the brush fills through it.
// The painter holds the font and the clip.
void DrawTextThroughBrush(QPainter& APainter, const TGXTextLayout& ALayout, IGXBrush& ABrush) {
  const QTransform toDevice = APainter.combinedTransform();
  const QRectF textBox = APainter.boundingRect(ALayout.Rect, ALayout.Flags, ALayout.Text);
  QRect area = toDevice.mapRect(textBox).toAlignedRect().adjusted(-LayerMargin, -LayerMargin, LayerMargin, LayerMargin);
  if (ALayout.Clip) area &= toDevice.mapRect(ALayout.Rect).toAlignedRect();
  area &= QRect(0, 0, APainter.device()->width(), APainter.device()->height());
  if (area.isEmpty()) return;
  area.setTopLeft(QPoint(AlignDown(area.left()), AlignDown(area.top())));

  QImage layer(area.size(), QImage::Format_ARGB32_Premultiplied);
  layer.fill(Qt::transparent);
  QPainter layerPainter(&layer);
  layerPainter.setRenderHints(APainter.renderHints());
  layerPainter.setTransform(toDevice * QTransform::fromTranslate(-area.x(), -area.y()));
  layerPainter.setFont(APainter.font());
  layerPainter.setPen(Qt::black);
  layerPainter.drawText(ALayout.Rect, ALayout.Flags, ALayout.Text);
  layerPainter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  ABrush.Fill(layerPainter, RectPath(layerPainter.transform().inverted().mapRect(QRectF(layer.rect()))));
  layerPainter.end();
  APainter.resetTransform();
  APainter.drawImage(area.topLeft(), layer);
}

} // namespace

TIGXGraphics::TIGXGraphics(QImage& AImage) : FOwnPainter(std::make_unique<QPainter>()), FPainter(FOwnPainter.get()) {
  if (AImage.isNull() || !FPainter->begin(&AImage)) throw EArgumentException("Cannot paint on this image");
  Init();
}

TIGXGraphics::TIGXGraphics(QPainter& APainter) : FPainter(&APainter) {
  if (!APainter.isActive()) throw EArgumentException("The painter is not active");
  FPainter->save();
  Init();
}

TIGXGraphics::~TIGXGraphics() {
  if (FOwnPainter) FOwnPainter->end();
  else FPainter->restore();
}

void TIGXGraphics::Init() {
  SetSmoothingMode(smDefault);
  SetInterpolationMode(imDefault);
}

void TIGXGraphics::SetSmoothingMode(TIGXSmoothingMode AMode) {
  CheckEnumValue(AMode, smAntiAlias + 1, "TIGXSmoothingMode");
  FSmoothingMode = AMode;
  FPainter->setRenderHint(QPainter::Antialiasing, AMode == smHighQuality || AMode == smAntiAlias);
}

void TIGXGraphics::SetInterpolationMode(TIGXInterpolationMode AMode) {
  CheckEnumValue(AMode, imHighQualityBicubic + 1, "TIGXInterpolationMode");
  FInterpolationMode = AMode;
  FPainter->setRenderHint(QPainter::SmoothPixmapTransform, AMode != imNearestNeighbor);
}

void TIGXGraphics::Clear(TAlphaColor AColor) {
  FPainter->save();
  FPainter->resetTransform();
  FPainter->setCompositionMode(QPainter::CompositionMode_Source);
  const QPaintDevice* device = FPainter->device();
  FPainter->fillRect(QRect(0, 0, device->width(), device->height()), ToQColor(AColor));
  FPainter->restore();
}

void TIGXGraphics::FillRectangle(const TRef<IGXBrush>& ABrush, const TIGXRect& ARect) {
  ABrush->Fill(*FPainter, RectPath(ARect.ToQRectF()));
}

void TIGXGraphics::DrawRectangle(const TRef<IGXPen>& APen, const TIGXRect& ARect) {
  QRectF rect = ARect.ToQRectF();
  if (APen->GetAlignment() == paInset) {
    // The stroke's outer edge on the bounds. Without smoothing Qt puts a one-pixel line on the
    // pixels right of and below it, so that line goes half a pixel up and left to match.
    const qreal half = APen->GetWidth() / 2;
    const qreal shift = APen->GetWidth() <= 1 && !FPainter->testRenderHint(QPainter::Antialiasing) ? 0.5 : 0;
    rect.adjust(half - shift, half - shift, -half - shift, -half - shift);
  }
  FPainter->strokePath(RectPath(rect), APen->ToQPen());
}

void TIGXGraphics::DrawLine(const TRef<IGXPen>& APen, Single AX1, Single AY1, Single AX2, Single AY2) {
  QPainterPath path(QPointF(AX1, AY1));
  path.lineTo(AX2, AY2);
  FPainter->strokePath(path, APen->ToQPen());
}

void TIGXGraphics::DrawLines(const TRef<IGXPen>& APen, const std::vector<TIGXPointF>& APoints) {
  if (APoints.size() < 2) throw EArgumentException("Drawing lines needs at least two points");
  QPainterPath path(APoints.front().ToQPointF());
  for (std::size_t i = 1; i < APoints.size(); ++i) path.lineTo(APoints[i].ToQPointF());
  FPainter->strokePath(path, APen->ToQPen());
}

void TIGXGraphics::DrawImage(const TRef<IGXImage>& AImage, Single AX, Single AY) {
  FPainter->drawImage(QPointF(AX, AY), AImage->GetQImage());
}

void TIGXGraphics::DrawImage(const TRef<IGXImage>& AImage, const TIGXRect& ARect) {
  const QImage& image = AImage->GetQImage();
  FPainter->drawImage(ARect.ToQRectF(), image, QRectF(image.rect()));
}

TIGXRect TIGXGraphics::MeasureString(const String& AText, const TRef<IGXFont>& AFont, const TIGXRect& ALayoutRect,
                                     const TRef<IGXStringFormat>& AFormat) {
  const QFont font = AFont->ToQFont();
  const TGXTextLayout layout = LayOutText(AText, font, FPainter->device(), ALayoutRect, AFormat.get());
  const QFontMetricsF metrics(font, FPainter->device());
  return TIGXRect::FromQRectF(metrics.boundingRect(layout.Rect, layout.Flags, layout.Text));
}

TIGXRect TIGXGraphics::MeasureString(const String& AText, const TRef<IGXFont>& AFont, const TIGXSize& ALayoutSize,
                                     const TRef<IGXStringFormat>& AFormat) {
  return MeasureString(AText, AFont, TIGXRect(0.0f, 0.0f, ALayoutSize.Width, ALayoutSize.Height), AFormat);
}

void TIGXGraphics::DrawString(const String& AText, const TRef<IGXFont>& AFont, const TIGXRect& ARect,
                              const TRef<IGXStringFormat>& AFormat, const TRef<IGXBrush>& ABrush) {
  const QFont font = AFont->ToQFont();
  const TGXTextLayout layout = LayOutText(AText, font, FPainter->device(), ARect, AFormat.get());
  FPainter->save();
  if (layout.Clip) FPainter->setClipRect(layout.Rect, Qt::IntersectClip);
  FPainter->setFont(font);

  TRef<IGXSolidBrush> solid;
  if (Supports<IGXSolidBrush>(ABrush, solid)) {
    FPainter->setPen(ToQColor(solid->GetColor()));
    FPainter->drawText(layout.Rect, layout.Flags, layout.Text);
  } else DrawTextThroughBrush(*FPainter, layout, *ABrush);
  FPainter->restore();
}

} // namespace Tarvo
