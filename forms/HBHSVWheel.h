#pragma once
// The hue wheel of the colour forms: the angle picks the hue, the distance from the centre the
// saturation. Its value (brightness) is set from outside only.

#include <QWidget>

#include "containers/Common.h"
#include "rtl/Types.h"

namespace Tarvo {

// Hue in degrees, the rest from 0 to 1; a saturation above 1 counts as 1. The hue passes through.
void HBHSVToHSL(Single AHue, Single ASaturation, Single AValue, Single& AHslHue, Single& AHslSaturation,
                Single& ALightness);
// Hue in degrees (any turn), saturation and lightness from 0 to 1 (clamped).
void HBHSLToRGB(Single AHue, Single ASaturation, Single ALightness, Byte& ARed, Byte& AGreen, Byte& ABlue);

class THBHSVWheel : public QWidget {
public:
  explicit THBHSVWheel(QWidget* AParent = nullptr);

  // A fraction of a turn, counter-clockwise from the right.
  Single GetHue() const { return FHue; }
  Single GetSaturation() const { return FSaturation; }
  Single GetValue() const { return FValue; }
  // Each fires OnChange when it changes what the wheel holds.
  void SetHue(Single AHue);
  void SetSaturation(Single ASaturation);
  void SetValue(Single AValue);

  // After a change by the user or by a setter.
  TProc<> OnChange;
  // After the wheel's own handling of the press and the release.
  TProc<> OnMouseDown;
  TProc<> OnMouseUp;

protected:
  void paintEvent(QPaintEvent* AEvent) override;
  void mousePressEvent(QMouseEvent* AEvent) override;
  void mouseMoveEvent(QMouseEvent* AEvent) override;
  void mouseReleaseEvent(QMouseEvent* AEvent) override;

private:
  QPointF Center() const;
  Single Radius() const;
  // Hue and saturation of the point, fired as one change.
  void PickAt(const QPointF& APoint);
  void Change(Single& AField, Single AValue);
  void DoChange();

  Single FHue = 0;
  Single FSaturation = 1;
  Single FValue = 1;
  Boolean FPicking = false;
};

} // namespace Tarvo
