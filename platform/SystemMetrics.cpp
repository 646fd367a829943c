#include "platform/SystemMetrics.h"

#include <QApplication>

namespace Tarvo {

Integer GetDragThreshold() { return QApplication::startDragDistance(); }

Boolean IsDragDistance(const QPoint& AFrom, const QPoint& ATo) {
  return (ATo - AFrom).manhattanLength() >= GetDragThreshold();
}

} // namespace Tarvo
