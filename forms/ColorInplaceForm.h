#pragma once
// The colour forms: a hue wheel beside red, green and blue track bars (and alpha for an alpha
// colour). The bars hold the colour; the wheel follows them and steers them when dragged.

#include <QLabel>

#include <vector>

#include "forms/BasicInplaceForm.h"
#include "forms/HBHSVWheel.h"
#include "platform/GXTypes.h"

namespace Tarvo {

class TBasicColorInplaceForm : public TBasicInplaceForm {
public:
  static constexpr int WheelSize = 53;

  // Fired when the user changes the colour, never for a colour set from outside.
  TFormNotifyEvent OnColorChange;
  // Fired when the user takes hold of the wheel or a bar, and when letting go.
  TFormNotifyEvent OnEditorEnter;
  TFormNotifyEvent OnEditorLeave;

  THBHSVWheel* HBHSVWheel;
  QSlider* TrackBarRed;
  QSlider* TrackBarGreen;
  QSlider* TrackBarBlue;

protected:
  TBasicColorInplaceForm(int AClientHeight, QWidget* AParent);

  // A labelled bar from 0 to 255, taking part in the colour.
  QSlider* AddColorBar(const char* ACaption);
  // Brings the wheel to the colour, unless the change came from the wheel or the wheel shows it
  // already.
  void UpdateHue(Byte ARed, Byte AGreen, Byte ABlue);
  // Sets the bars (and the wheel) for a colour from outside, without firing OnColorChange.
  void SetPositions(const std::vector<std::pair<QSlider*, Byte>>& APositions);

  void resizeEvent(QResizeEvent* AEvent) override;

private:
  void TrackBarChange();
  void HBHSVWheelChange();
  void FormMouseDown();
  void FormMouseUp();

  Boolean FInUpdate = false;
  Boolean FInWheelUpdate = false;
  std::vector<std::pair<QLabel*, QSlider*>> FRows;
};

class TColorInplaceForm : public TBasicColorInplaceForm {
public:
  static constexpr int ClientHeight = 53;

  explicit TColorInplaceForm(QWidget* AParent = nullptr);

  // Red is the low byte, then green, then blue; a system colour is taken resolved.
  TColor GetColor() const;
  void SetColor(TColor AColor);
};

class TAlphaColorInplaceForm : public TBasicColorInplaceForm {
public:
  static constexpr int ClientHeight = 72;

  explicit TAlphaColorInplaceForm(QWidget* AParent = nullptr);

  TAlphaColor GetColor() const;
  void SetColor(TAlphaColor AColor);

  QSlider* TrackBarAlpha;
};

} // namespace Tarvo
