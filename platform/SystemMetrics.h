#pragma once
#pragma GCC visibility push(default)
// Measures of the user's system that the package adapts to.

#include <QPoint>

#include "rtl/Types.h"

namespace Tarvo {

// How far, in pixels, the mouse must travel with a button down before a press becomes a drag.
Integer GetDragThreshold();

// Whether the way from AFrom to ATo (counted along the axes) reaches the drag threshold.
Boolean IsDragDistance(const QPoint& AFrom, const QPoint& ATo);

} // namespace Tarvo

#pragma GCC visibility pop
