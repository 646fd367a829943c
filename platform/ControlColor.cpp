#include "platform/ControlColor.h"

#include <QPalette>
#include <QVariant>

namespace Tarvo {

namespace {
constexpr const char* ColorProperty = "TarvoColor";
}

TColor GetControlColor(const QWidget* AControl) {
  const QVariant color = AControl->property(ColorProperty);
  if (color.isValid()) return TColor(color.toInt());
  const QColor window = AControl->palette().color(QPalette::Window);
  return TColor(window.red() | window.green() << 8 | window.blue() << 16);
}

void SetControlColor(QWidget* AControl, TColor AColor) {
  AControl->setProperty(ColorProperty, QVariant(int(AColor)));
  QPalette palette = AControl->palette();
  palette.setColor(QPalette::Window, ToQColor(MakeColor(AColor)));
  AControl->setPalette(palette);
  AControl->setAutoFillBackground(true);
}

} // namespace Tarvo
