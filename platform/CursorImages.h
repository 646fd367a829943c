#pragma once
#pragma GCC visibility push(default)
// Pictures of the cursor shapes, for samples beside a cursor's name: the platform gives no image of
// its stock cursors, so each shape is drawn here, white with a black outline, at cursor size.

#include <QPainter>

#include "rtl/Types.h"

namespace Tarvo {

// The size a cursor is drawn at, its natural size on screen.
inline constexpr Integer CursorImageWidth = 32;
inline constexpr Integer CursorImageHeight = 32;

// Draws the shape with its box's top left at ATopLeft; the painter's state is kept.
void DrawCursor(QPainter& APainter, Qt::CursorShape AShape, const QPointF& ATopLeft);

} // namespace Tarvo

#pragma GCC visibility pop
