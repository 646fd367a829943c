#include "forms/RangedInplaceForm.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <QSignalBlocker>

#include "platform/EventHook.h"

namespace Tarvo {

namespace {

// Steps of the bar over the whole range; its last position stops one short of the range's end.
constexpr Extended Steps = 4096;
// From this span on, positions are worked out in quarters, so that 64-bit limits cannot overflow.
constexpr UInt64 QuarterSpan = 100000;

Extended RoundHalfEven(Extended AValue) { return std::nearbyintl(AValue); }

// What position APosition stands for in the range, at the precision of Extended, so that even
// the full ranges of Int64 and Double cannot overflow.
Extended PositionMeaning(int APosition, Extended AMin, Extended AMax) {
  return APosition / Steps * (AMax - AMin) + AMin;
}

// Position of a value in quarters: the first quarter of the range lands on 1024.
Extended QuarterPosition(Extended AValue, Extended AMin, Extended AMax) {
  return RoundHalfEven((AValue / 4 - AMin / 4) / (AMax / 4 - AMin / 4) * 1024) * 4;
}

Int64 ToInt64(Extended AValue) {
  constexpr Int64 lowest = std::numeric_limits<Int64>::min(), highest = std::numeric_limits<Int64>::max();
  if (AValue <= Extended(lowest)) return lowest;
  if (AValue >= Extended(highest)) return highest;
  return Int64(AValue);
}

} // namespace

TBasicRangedInplaceForm::TBasicRangedInplaceForm(QWidget* AParent) : TBasicInplaceForm(AParent) {
  TrackBar = AddTrackBar(TrackBarMax);
  const auto enter = [this](QEvent*) { NotifyForm(OnEditorEnter, this); };
  const auto leave = [this](QEvent*) { NotifyForm(OnEditorLeave, this); };
  HookEvent(TrackBar, QEvent::FocusIn, enter);
  HookEvent(TrackBar, QEvent::MouseButtonPress, enter);
  HookEvent(TrackBar, QEvent::FocusOut, leave);
  HookEvent(TrackBar, QEvent::MouseButtonRelease, leave);
  QObject::connect(TrackBar, &QSlider::valueChanged, [this] { TrackBarChange(); });
  resize(200, ClientHeight);
}

void TBasicRangedInplaceForm::DoValueChange() { NotifyForm(OnValueChange, this); }

void TBasicRangedInplaceForm::SetPosition(Extended APosition) {
  // An empty range gives no number at all; the bar stays at its start.
  const Extended position = std::isnan(APosition) ? 0 : std::clamp<Extended>(APosition, 0, TrackBarMax);
  TrackBar->setValue(int(RoundHalfEven(position)));
}

void TBasicRangedInplaceForm::ReadLimits(Extended& AMin, Extended& AMax) {
  TARVO_ASSERT(FLimits != nullptr);
  AMin = FLimits->GetMinValue().AsExtended();
  AMax = FLimits->GetMaxValue().AsExtended();
}

void TBasicRangedInplaceForm::resizeEvent(QResizeEvent* AEvent) {
  TBasicInplaceForm::resizeEvent(AEvent);
  TrackBar->setGeometry(rect());
}

TNumericInplaceForm::TNumericInplaceForm(QWidget* AParent) : TBasicRangedInplaceForm(AParent) {}

TValue TNumericInplaceForm::GetValue() const { return TValue::From<Int64>(FValue); }

void TNumericInplaceForm::SetValue(const TValue& AValue) {
  const Int64 value = AValue.AsInt64();
  const QSignalBlocker quiet(TrackBar); // a value set from outside is no change by the user
  TARVO_ASSERT(FLimits != nullptr);
  const Int64 min = MinValue(), max = MaxValue();
  if (FHasValue && value == FValue) return;
  FValue = value;
  FHasValue = true;
  if (max <= min) SetPosition(0);
  else if (UInt64(max) - UInt64(min) >= QuarterSpan)
    SetPosition(RoundHalfEven(Extended(value / 4 - min / 4) / Extended(max / 4 - min / 4) * 1024) * 4);
  else SetPosition((Extended(value) - min) / (Extended(max) - min) * Steps);
}

void TNumericInplaceForm::TrackBarChange() {
  FValue = ToInt64(RoundHalfEven(PositionMeaning(TrackBar->value(), MinValue(), MaxValue())));
  FHasValue = true;
  DoValueChange();
}

TRealInplaceFormUnit::TRealInplaceFormUnit(QWidget* AParent) : TBasicRangedInplaceForm(AParent) {}

TValue TRealInplaceFormUnit::GetValue() const { return TValue::From<Double>(FValue); }

void TRealInplaceFormUnit::SetValue(const TValue& AValue) {
  if (FLockCount > 0) return;
  FValue = Double(AValue.AsExtended());
  const QSignalBlocker quiet(TrackBar); // a value set from outside is no change by the user
  Extended min, max;
  ReadLimits(min, max);
  if (Double(PositionMeaning(TrackBar->value(), min, max)) != FValue) SetPosition(QuarterPosition(FValue, min, max));
}

void TRealInplaceFormUnit::TrackBarChange() {
  Extended min, max;
  ReadLimits(min, max);
  FValue = Double(PositionMeaning(TrackBar->value(), min, max));
  ++FLockCount;
  struct TUnlock {
    Integer& FCount;
    ~TUnlock() { --FCount; }
  } unlock{FLockCount};
  DoValueChange();
}

} // namespace Tarvo
