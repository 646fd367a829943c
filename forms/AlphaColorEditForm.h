#pragma once
// The dialog of the alpha colour rows: a hue wheel with a brightness bar, an alpha bar and the
// colour's text, over a preview that shows transparency against a diamond pattern. One form
// serves every row: made on first use and kept until the package goes.

#include <QDialog>
#include <QLineEdit>
#include <QSlider>

#include "forms/HBHSVWheel.h"
#include "platform/GXTypes.h"
#include "rtl/Export.h"

namespace Tarvo {

// Exported: a host that stands in for the user gives it a colour.
class TARVO_API TWXAlphaColorEditForm : public QDialog {
public:
  explicit TWXAlphaColorEditForm(QWidget* AParent = nullptr);

  TAlphaColor GetColor() const { return FColor; }
  // Shows AColor in every control.
  void SetColor(TAlphaColor AColor);

  THBHSVWheel* HBHSVWheel;
  QSlider* TrackBarValue;
  QSlider* TrackBarAlpha;
  // The colour as "#AARRGGBB" or a name; typing any text an alpha colour row takes sets it.
  QLineEdit* EditColor;

private:
  // The colour of the wheel and the brightness bar, with the alpha bar's alpha.
  void ControlsChange();
  void TextChange(const QString& AText);
  // Shows FColor in the controls; the text too unless it is what is being typed.
  void ShowColor(Boolean AText);

  TAlphaColor FColor = claBlack;
  Boolean FInUpdate = false;
  QWidget* FPreview;
};

// The form the alpha colour rows share, made on the first call.
TWXAlphaColorEditForm& AlphaColorEditForm();
// Frees the shared form, if made; the package calls it as it goes.
void ReleaseAlphaColorEditForm();

} // namespace Tarvo
