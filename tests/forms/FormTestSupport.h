#pragma once
// Mouse input for the form tests, delivered as the window system would.

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

namespace Tarvo::Testing {

inline void SendMouse(QWidget* AWidget, QEvent::Type AType, const QPointF& APosition) {
  const Qt::MouseButtons held = AType == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(AType, APosition, AWidget->mapToGlobal(APosition), Qt::LeftButton, held, Qt::NoModifier);
  QApplication::sendEvent(AWidget, &event);
}

inline void Click(QWidget* AWidget, const QPointF& APosition) {
  SendMouse(AWidget, QEvent::MouseButtonPress, APosition);
  SendMouse(AWidget, QEvent::MouseButtonRelease, APosition);
}

} // namespace Tarvo::Testing
