#include "forms/EnumCanvasInplaceForm.h"

#include <QPixmap>

#include <algorithm>

namespace Tarvo {

TEnumCanvasInplaceForm::TEnumCanvasInplaceForm(QWidget* AParent) : QWidget(AParent), FGroup(new QButtonGroup(this)) {
  FGroup->setExclusive(true);
}

void TEnumCanvasInplaceForm::AddButton(const TRef<IGXImage>& ABitmap, const String& AHint, Boolean AIsDown,
                                       Integer AValue, Integer AWidth) {
  auto* button = new QToolButton(this);
  if (ABitmap) {
    button->setIcon(QIcon(QPixmap::fromImage(ABitmap->GetQImage())));
    button->setIconSize(ABitmap->GetQImage().size());
  }
  button->setCheckable(true);
  button->setAutoRaise(true);
  button->setToolTip(QString::fromStdString(AHint));
  const int left = FLastButton ? FLastButton->x() + FLastButton->width() + Margin : Margin;
  button->setGeometry(left, Margin, AWidth + 5, ButtonHeight);
  FGroup->addButton(button);
  button->setChecked(AIsDown);
  QObject::connect(button, &QToolButton::clicked, [this, button] { ButtonClick(button); });
  FButtons.emplace_back(button, AValue);
  FLastWidth = button->width();
  FLastButton = button;
}

void TEnumCanvasInplaceForm::ArrangeButtons() {
  const int step = FLastWidth + Margin;
  const int all = int(FButtons.size()) * step + Margin;
  const int rowWidth = std::min(all, width());
  int x = Margin, y = Margin;
  for (std::size_t i = 0; i < FButtons.size(); ++i) {
    FButtons[i].first->move(x + (width() - rowWidth), y);
    if (i + 1 == FButtons.size()) break;
    x += step;
    if (x > rowWidth - FLastWidth - Margin) {
      x = Margin;
      y += RowHeight;
    }
  }
  resize(width(), y + RowHeight);
}

void TEnumCanvasInplaceForm::SetSelectedValue(Integer AValue) {
  if (AValue >= 0 && std::size_t(AValue) < FButtons.size()) FButtons[AValue].first->setChecked(true);
}

void TEnumCanvasInplaceForm::ButtonClick(QToolButton* AButton) {
  const auto found =
      std::find_if(FButtons.begin(), FButtons.end(), [AButton](const auto& AEntry) { return AEntry.first == AButton; });
  if (found != FButtons.end() && OnButtonClick) OnButtonClick(Integer(found - FButtons.begin()), found->second);
}

void TEnumCanvasInplaceForm::resizeEvent(QResizeEvent* AEvent) {
  QWidget::resizeEvent(AEvent);
  ArrangeButtons();
}

} // namespace Tarvo
