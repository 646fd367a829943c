#include "design/paint/InplaceForm.h"

#include <cmath>

#include "platform/ControlColor.h"

namespace Tarvo {

TInplaceForm::TInplaceForm(QWidget* AInplaceForm, TRef<IMemberUIUpdate> AUIUpdate)
    : FInplaceForm(AInplaceForm), FUIUpdate(std::move(AUIUpdate)) {}

TInplaceForm::~TInplaceForm() { delete FInplaceForm.data(); }

Integer TInplaceForm::GetHeight() { return FInplaceForm ? FInplaceForm->height() : 0; }

void TInplaceForm::UpdateColor(TColor AColor) {
  if (!FInplaceForm || GetControlColor(FInplaceForm) == AColor) return;
  SetControlColor(FInplaceForm, AColor);
  FInplaceForm->repaint();
}

void TInplaceForm::UpdateRect(const TIGXRect& ARect) {
  if (!FInplaceForm) return;
  FInplaceForm->setGeometry(int(std::lround(ARect.X)), int(std::lround(ARect.Y)), int(std::lround(ARect.Width)),
                            FInplaceForm->height());
}

} // namespace Tarvo
