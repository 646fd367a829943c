#include "platform/GXBrushes.h"

#include "rtl/Exceptions.h"

namespace Tarvo {

namespace {

// One period of a wrapped image: the image itself, or two or four copies mirrored in turn.
QImage WrapTile(const QImage& AImage, TIGXWrapMode AWrapMode) {
  const bool flipX = AWrapMode == wmTileFlipX || AWrapMode == wmTileFlipXY;
  const bool flipY = AWrapMode == wmTileFlipY || AWrapMode == wmTileFlipXY;
  if (!flipX && !flipY) return AImage;
  const int w = AImage.width(), h = AImage.height();
  QImage tile(flipX ? 2 * w : w, flipY ? 2 * h : h, AImage.format());
  QPainter painter(&tile);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.drawImage(0, 0, AImage);
  if (flipX) painter.drawImage(w, 0, AImage.mirrored(true, false));
  if (flipY) painter.drawImage(0, h, AImage.mirrored(false, true));
  if (flipX && flipY) painter.drawImage(w, h, AImage.mirrored(true, true));
  return tile;
}

} // namespace

void TIGXSolidBrush::Fill(QPainter& APainter, const QPainterPath& AArea) { APainter.fillPath(AArea, ToQColor(FColor)); }

TIGXHatchBrush::TIGXHatchBrush(TIGXHatchStyle AStyle, TAlphaColor AForeColor, TAlphaColor ABackColor)
    : FStyle(AStyle), FForeColor(AForeColor), FBackColor(ABackColor), FTile(8, 8, QImage::Format_ARGB32_Premultiplied) {
  const THatchPattern& pattern = HatchPattern(AStyle);
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 8; ++x) FTile.setPixel(x, y, qPremultiply(pattern[y] & (0x80 >> x) ? AForeColor : ABackColor));
}

void TIGXHatchBrush::Fill(QPainter& APainter, const QPainterPath& AArea) {
  QBrush brush(FTile);
  brush.setTransform(APainter.combinedTransform().inverted());
  APainter.fillPath(AArea, brush);
}

TIGXTextureBrush::TIGXTextureBrush(TRef<IGXImage> AImage, TIGXWrapMode AWrapMode)
    : FImage(std::move(AImage)), FWrapMode(wmTile) {
  if (!FImage) throw EArgumentException("A texture brush needs an image");
  SetWrapMode(AWrapMode);
}

void TIGXTextureBrush::SetWrapMode(TIGXWrapMode AWrapMode) {
  CheckEnumValue(AWrapMode, wmClamp + 1, "TIGXWrapMode");
  FWrapMode = AWrapMode;
}

void TIGXTextureBrush::Fill(QPainter& APainter, const QPainterPath& AArea) {
  const QImage& image = FImage->GetQImage();
  if (FWrapMode == wmClamp) {
    APainter.save();
    APainter.setClipPath(AArea, Qt::IntersectClip);
    APainter.setTransform(FTransform, true);
    APainter.drawImage(0, 0, image);
    APainter.restore();
    return;
  }
  QBrush brush(WrapTile(image, FWrapMode));
  brush.setTransform(FTransform);
  APainter.fillPath(AArea, brush);
}

} // namespace Tarvo
