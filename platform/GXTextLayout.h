#pragma once
#pragma GCC visibility push(default)
// How a string format lays text out in a rectangle, in the terms QPainter::drawText takes:
// the text with ellipses applied, alignment and wrap flags, the layout rectangle and the clip.

#include <QFont>
#include <QPaintDevice>
#include <QRectF>
#include <QString>

#include "platform/GXFonts.h"
#include "platform/GXTypes.h"

namespace Tarvo {

struct TGXTextLayout {
  QString Text;
  int Flags = 0;
  // Sides given as 0 are opened up to a size no text reaches, about the aligned edge.
  QRectF Rect;
  bool Clip = true;
};

// AFormat may be nil: wrap, near alignment, no trimming, clipped. Ellipsis trimming shortens
// each line of unwrapped text to the width; wrapped text is cut off at the rectangle instead.
TGXTextLayout LayOutText(const String& AText, const QFont& AFont, QPaintDevice* ADevice, const TIGXRect& ARect,
                         IGXStringFormat* AFormat);

} // namespace Tarvo

#pragma GCC visibility pop
