#include "forms/HBHSVWheel.h"

#include <QConicalGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Tarvo {

void HBHSVToHSL(Single AHue, Single ASaturation, Single AValue, Single& AHslHue, Single& AHslSaturation,
                Single& ALightness) {
  const Single saturation = std::clamp(ASaturation, 0.0f, 1.0f);
  const Single value = std::clamp(AValue, 0.0f, 1.0f);
  AHslHue = AHue;
  ALightness = value * (1 - saturation / 2);
  const Single room = std::min(ALightness, 1 - ALightness);
  AHslSaturation = room > 0 ? (value - ALightness) / room : 0;
}

void HBHSLToRGB(Single AHue, Single ASaturation, Single ALightness, Byte& ARed, Byte& AGreen, Byte& ABlue) {
  const Single saturation = std::clamp(ASaturation, 0.0f, 1.0f);
  const Single lightness = std::clamp(ALightness, 0.0f, 1.0f);
  const Single hue = std::fmod(std::fmod(AHue, 360.0f) + 360.0f, 360.0f) / 60; // sixths of a turn
  const Single chroma = (1 - std::fabs(2 * lightness - 1)) * saturation;
  const Single second = chroma * (1 - std::fabs(std::fmod(hue, 2.0f) - 1));
  const Single base = lightness - chroma / 2;
  Single rgb[3];
  switch (int(hue)) {
  case 0:
    rgb[0] = chroma, rgb[1] = second, rgb[2] = 0;
    break;
  case 1:
    rgb[0] = second, rgb[1] = chroma, rgb[2] = 0;
    break;
  case 2:
    rgb[0] = 0, rgb[1] = chroma, rgb[2] = second;
    break;
  case 3:
    rgb[0] = 0, rgb[1] = second, rgb[2] = chroma;
    break;
  case 4:
    rgb[0] = second, rgb[1] = 0, rgb[2] = chroma;
    break;
  default:
    rgb[0] = chroma, rgb[1] = 0, rgb[2] = second;
    break;
  }
  const auto channel = [base](Single AShare) { return Byte(std::lround(std::clamp(AShare + base, 0.0f, 1.0f) * 255)); };
  ARed = channel(rgb[0]);
  AGreen = channel(rgb[1]);
  ABlue = channel(rgb[2]);
}

THBHSVWheel::THBHSVWheel(QWidget* AParent) : QWidget(AParent) {}

void THBHSVWheel::SetHue(Single AHue) { Change(FHue, AHue); }
void THBHSVWheel::SetSaturation(Single ASaturation) { Change(FSaturation, ASaturation); }
void THBHSVWheel::SetValue(Single AValue) { Change(FValue, AValue); }

void THBHSVWheel::Change(Single& AField, Single AValue) {
  if (AField == AValue) return;
  AField = AValue;
  DoChange();
}

void THBHSVWheel::DoChange() {
  update();
  if (OnChange) OnChange();
}

QPointF THBHSVWheel::Center() const { return QRectF(rect()).center(); }

Single THBHSVWheel::Radius() const { return Single(std::max(1, std::min(width(), height()) / 2 - 1)); }

void THBHSVWheel::PickAt(const QPointF& APoint) {
  const QPointF offset = APoint - Center();
  // Screen y runs down; the hue turns counter-clockwise.
  Single hue = Single(std::atan2(-offset.y(), offset.x()) / (2 * std::numbers::pi));
  if (hue < 0) hue += 1;
  const Single saturation = std::min(1.0f, Single(std::hypot(offset.x(), offset.y())) / Radius());
  if (hue == FHue && saturation == FSaturation) return;
  FHue = hue;
  FSaturation = saturation;
  DoChange();
}

void THBHSVWheel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPointF center = Center();
  const Single radius = Radius();
  QConicalGradient hues(center, 0);
  for (int sixth = 0; sixth <= 6; ++sixth) hues.setColorAt(sixth / 6.0, QColor::fromHsvF(float(sixth % 6) / 6, 1, 1));
  painter.setPen(Qt::NoPen);
  painter.setBrush(hues);
  painter.drawEllipse(center, radius, radius);
  QRadialGradient whites(center, radius);
  whites.setColorAt(0, Qt::white);
  whites.setColorAt(1, Qt::transparent);
  painter.setBrush(whites);
  painter.drawEllipse(center, radius, radius);

  const Single angle = FHue * 2 * std::numbers::pi_v<Single>;
  const Single distance = std::min(FSaturation, 1.0f) * radius;
  const QPointF marker = center + QPointF(std::cos(angle) * distance, -std::sin(angle) * distance);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::black, 1));
  painter.drawEllipse(marker, 2.5, 2.5);
}

void THBHSVWheel::mousePressEvent(QMouseEvent* AEvent) {
  if (AEvent->button() == Qt::LeftButton) {
    FPicking = true;
    PickAt(AEvent->position());
  }
  if (OnMouseDown) OnMouseDown();
}

void THBHSVWheel::mouseMoveEvent(QMouseEvent* AEvent) {
  if (FPicking) PickAt(AEvent->position());
}

void THBHSVWheel::mouseReleaseEvent(QMouseEvent* AEvent) {
  if (AEvent->button() == Qt::LeftButton) FPicking = false;
  if (OnMouseUp) OnMouseUp();
}

} // namespace Tarvo
