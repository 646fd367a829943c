#include "forms/BasicInplaceForm.h"

#include <QEvent>
#include <QProxyStyle>

#include "platform/ControlColor.h"
#include "platform/MessageDlg.h"
#include "platform/QueryControls.h"

namespace Tarvo {

namespace {
class TTrackBarStyle : public QProxyStyle {
public:
  static constexpr int ThumbLength = 15;

  int pixelMetric(PixelMetric AMetric, const QStyleOption* AOption, const QWidget* AWidget) const override {
    return AMetric == PM_SliderLength ? ThumbLength : QProxyStyle::pixelMetric(AMetric, AOption, AWidget);
  }
};
} // namespace

void NotifyForm(const TFormNotifyEvent& AEvent, QWidget* ASender) {
  if (!AEvent) return;
  try {
    AEvent(ASender);
  } catch (const Exception& AError) {
    MessageDlg(AError.Message(), mtError, {mbOK}, mbOK);
  }
}

TBasicInplaceForm::TBasicInplaceForm(QWidget* AParent) : QWidget(AParent) {}

QSlider* TBasicInplaceForm::AddTrackBar(int AMax) {
  auto* bar = new QSlider(Qt::Horizontal, this);
  auto* style = new TTrackBarStyle();
  style->setParent(bar);
  bar->setStyle(style);
  bar->setRange(0, AMax);
  bar->setTickPosition(QSlider::NoTicks);
  return bar;
}

void TBasicInplaceForm::changeEvent(QEvent* AEvent) {
  QWidget::changeEvent(AEvent);
  if (AEvent->type() != QEvent::PaletteChange) return;
  const TColor color = GetControlColor(this);
  QueryControls<QSlider>(this)->ForEach([color](QWidget* const& ABar) { SetControlColor(ABar, color); });
}

} // namespace Tarvo
