#pragma once
#pragma GCC visibility push(default)
// The colour of a widget as the design speaks of it: a TColor that may name a system colour. The
// widget paints its background in it through the window role of its palette, and keeps the TColor
// as given, so that a system colour stays one.

#include <QWidget>

#include "platform/GXTypes.h"

namespace Tarvo {

// The colour last given by SetControlColor, or else the window colour of the widget's palette.
TColor GetControlColor(const QWidget* AControl);

// Paints the widget's background in AColor from now on; its children take the colour through the
// palette, unless they keep palettes of their own.
void SetControlColor(QWidget* AControl, TColor AColor);

} // namespace Tarvo

#pragma GCC visibility pop
