#pragma once
// The track-bar forms of numbers with a range: the bar runs over 4096 steps of the range that
// FLimits gives.

#include "design/paint/PropertyRange.h"
#include "forms/BasicInplaceForm.h"

namespace Tarvo {

class TBasicRangedInplaceForm : public TBasicInplaceForm {
public:
  static constexpr int ClientHeight = 30;
  static constexpr int TrackBarMax = 4095;

  // Taken once; the form scales by it from the next value on.
  void SetLimits(TRef<IPropertyRange> ALimits) { FLimits = std::move(ALimits); }

  // Fired when the user moves the bar, never for a value set from outside.
  TFormNotifyEvent OnValueChange;
  // Fired when the bar gains and loses the focus, and when the user takes hold of it and lets go.
  TFormNotifyEvent OnEditorEnter;
  TFormNotifyEvent OnEditorLeave;

  QSlider* TrackBar;

protected:
  explicit TBasicRangedInplaceForm(QWidget* AParent);

  // The user moved the bar.
  virtual void TrackBarChange() = 0;
  void DoValueChange();
  // Moves the bar to APosition, rounded half to even and kept on the bar.
  void SetPosition(Extended APosition);
  // The limits as read now.
  void ReadLimits(Extended& AMin, Extended& AMax);
  Int64 MinValue() { return FLimits->GetMinValue().AsInt64(); }
  Int64 MaxValue() { return FLimits->GetMaxValue().AsInt64(); }

  void resizeEvent(QResizeEvent* AEvent) override;

  TRef<IPropertyRange> FLimits;
};

// Whole numbers up to the full 64-bit range.
class TNumericInplaceForm : public TBasicRangedInplaceForm {
public:
  explicit TNumericInplaceForm(QWidget* AParent = nullptr);

  TValue GetValue() const;
  // Places the bar for AValue (read as Int64) unless the form holds that value already, so that
  // the value the bar gave does not move the bar again.
  void SetValue(const TValue& AValue);

protected:
  void TrackBarChange() override;

private:
  Int64 FValue = 0;
  // A new form holds no value, whatever FValue says.
  Boolean FHasValue = false;
};

class TRealInplaceFormUnit : public TBasicRangedInplaceForm {
public:
  explicit TRealInplaceFormUnit(QWidget* AParent = nullptr);

  TValue GetValue() const;
  // Moves the bar only when its position means another value. Ignored while the form reports a
  // change, so that the value coming back from the editor leaves the bar where the user put it.
  void SetValue(const TValue& AValue);

protected:
  void TrackBarChange() override;

private:
  Double FValue = 0;
  Integer FLockCount = 0;
};

} // namespace Tarvo
