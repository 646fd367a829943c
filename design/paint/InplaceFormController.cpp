#include "design/paint/InplaceFormController.h"

#include <QEvent>

#include <cmath>

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

namespace Detail {

namespace {
class TCloseEventFilter : public QObject {
public:
  TCloseEventFilter(QObject* AParent, std::weak_ptr<const TProc<>> AHandler)
      : QObject(AParent), FHandler(std::move(AHandler)) {}

  bool eventFilter(QObject*, QEvent* AEvent) override {
    if (AEvent->type() == QEvent::Close)
      if (const auto handler = FHandler.lock()) (*handler)();
    return false;
  }

private:
  std::weak_ptr<const TProc<>> FHandler;
};
} // namespace

void HandleFormClose(QWidget* AForm, std::weak_ptr<const TProc<>> AHandler) {
  // A child of the form, so that it goes with the form.
  AForm->installEventFilter(new TCloseEventFilter(AForm, std::move(AHandler)));
}

} // namespace Detail

} // namespace Tarvo
